// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/preferences/tests/StoredFile.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace preferencesTest {
namespace {

std::string encodeUtf8(unsigned long character) {
    const auto byte = [](unsigned long value) {
        return static_cast<char>(static_cast<unsigned char>(value));
    };
    if (character < 0x80)
        return {byte(character)};
    if (character < 0x800)
        return {byte(0xC0 | (character >> 6)), byte(0x80 | (character & 0x3F))};
    if (character < 0x10000)
        return {byte(0xE0 | (character >> 12)), byte(0x80 | ((character >> 6) & 0x3F)),
                byte(0x80 | (character & 0x3F))};
    return {byte(0xF0 | (character >> 18)), byte(0x80 | ((character >> 12) & 0x3F)),
            byte(0x80 | ((character >> 6) & 0x3F)), byte(0x80 | (character & 0x3F))};
}

std::string decodeEntity(const std::string& entity) {
    static const std::map<std::string, std::string> named{
        {"lt", "<"}, {"gt", ">"}, {"amp", "&"}, {"quot", "\""}, {"apos", "'"}};
    if (const auto found = named.find(entity); found != named.end())
        return found->second;
    if (entity.starts_with("#x"))
        return encodeUtf8(std::stoul(entity.substr(2), nullptr, 16));
    if (entity.starts_with("#"))
        return encodeUtf8(std::stoul(entity.substr(1)));
    throw std::runtime_error("unknown entity " + entity);
}

std::string decode(const std::string& escaped) {
    std::string text;
    for (std::size_t i = 0; i < escaped.size(); ++i) {
        if (escaped[i] != '&') {
            text += escaped[i];
            continue;
        }
        const std::size_t end = escaped.find(';', i);
        if (end == std::string::npos)
            throw std::runtime_error("unfinished entity in " + escaped);
        text += decodeEntity(escaped.substr(i + 1, end - i - 1));
        i = end;
    }
    return text;
}

/// Walks through a text from the front.
class Scanner {
public:
    explicit Scanner(std::string textToScan)
        : text(std::move(textToScan)) {}

    /// Passes `expected` if it comes next.
    bool pass(std::string_view expected) {
        if (text.compare(position, expected.size(), expected) != 0)
            return false;
        position += expected.size();
        return true;
    }

    void passBlanks() {
        position = std::min(text.find_first_not_of(" \r\n", position), text.size());
    }

    void demand(std::string_view expected) {
        if (!pass(expected))
            throw std::runtime_error("no " + std::string(expected) + " but " +
                                     text.substr(position, 100));
    }

    /// What stands before the next quotation mark, which is passed too.
    std::string upToQuote() {
        const std::size_t begin = position;
        const std::size_t quote = text.find('"', begin);
        if (quote == std::string::npos)
            throw std::runtime_error("a quotation mark is missing");
        position = quote + 1;
        return text.substr(begin, quote - begin);
    }

    [[nodiscard]] bool atEnd() const { return position == text.size(); }

private:
    const std::string text;
    std::size_t position = 0;
};

} // namespace

std::string bytesOf(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::map<std::string, std::string> storedValues(const std::filesystem::path& file) {
    Scanner scanner(bytesOf(file));
    if (scanner.atEnd())
        return {};
    std::map<std::string, std::string> values;
    scanner.demand("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    scanner.passBlanks();
    if (!scanner.pass("<PROPERTIES/>")) {
        scanner.demand("<PROPERTIES>");
        scanner.passBlanks();
        while (scanner.pass("<VALUE name=\"")) {
            const std::string key = decode(scanner.upToQuote());
            scanner.demand(" val=\"");
            if (!values.emplace(key, decode(scanner.upToQuote())).second)
                throw std::runtime_error("twice: " + key);
            scanner.demand("/>");
            scanner.passBlanks();
        }
        scanner.demand("</PROPERTIES>");
    }
    scanner.passBlanks();
    if (!scanner.atEnd())
        throw std::runtime_error("something after the end");
    return values;
}

std::string fileWith(const std::string& key, const std::string& escapedText) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n\n<PROPERTIES>\n  <VALUE name=\"" + key +
           "\" val=\"" + escapedText + "\"/>\n</PROPERTIES>\n";
}

} // namespace preferencesTest
