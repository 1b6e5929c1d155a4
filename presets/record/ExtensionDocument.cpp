// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/record/ExtensionDocument.h"

namespace {

using nlohmann::json;

/// Walks a document without building it and stops where it nests too deep.
class NestingCheck : public nlohmann::json_sax<json> {
public:
    bool null() override { return true; }

    bool boolean(bool) override { return true; }

    bool number_integer(number_integer_t) override { return true; }

    bool number_unsigned(number_unsigned_t) override { return true; }

    bool number_float(number_float_t, const string_t&) override { return true; }

    bool string(string_t&) override { return true; }

    bool binary(binary_t&) override { return true; }

    bool start_object(std::size_t) override { return ++depth <= deepestExtensionNesting; }

    bool key(string_t&) override { return true; }

    bool end_object() override { return --depth >= 0; }

    bool start_array(std::size_t) override { return ++depth <= deepestExtensionNesting; }

    bool end_array() override { return --depth >= 0; }

    bool parse_error(std::size_t, const std::string&, const json::exception&) override {
        return false;
    }

private:
    int depth = 0;
};

std::optional<json> decode(std::span<const std::uint8_t> bytes, json::input_format_t format) {
    NestingCheck check;
    if (!json::sax_parse(bytes.begin(), bytes.end(), &check, format))
        return std::nullopt;
    // Not exceptions: a document may fail here that was well-formed, a number too large to hold.
    json document = format == json::input_format_t::msgpack
                        ? json::from_msgpack(bytes.begin(), bytes.end(), true, false)
                        : json::parse(bytes.begin(), bytes.end(), nullptr, false);
    if (document.is_discarded())
        return std::nullopt;
    return document;
}

} // namespace

std::optional<nlohmann::json> decodeMessagePackDocument(std::span<const std::uint8_t> bytes) {
    return decode(bytes, json::input_format_t::msgpack);
}

std::optional<nlohmann::json> decodeJsonDocument(std::span<const std::uint8_t> text) {
    return decode(text, json::input_format_t::json);
}
