// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/record/ExtensionDocument.h"

#include "presets/record/tests/support/MessagePackEncoder.h"

#include <gtest/gtest.h>

namespace {

std::span<const std::uint8_t> numbers(const Bytes& bytes) {
    return {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()};
}

std::optional<nlohmann::json> messagePack(const Bytes& bytes) {
    return decodeMessagePackDocument(numbers(bytes));
}

std::optional<nlohmann::json> jsonText(const std::string& text) {
    return decodeJsonDocument({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

Bytes nestedArrays(int depth) {
    Bytes document = packed::nil();
    for (int i = 0; i < depth; ++i)
        document = packed::array({document});
    return document;
}

Bytes nestedObjects(int depth) {
    Bytes document = packed::nil();
    for (int i = 0; i < depth; ++i)
        document = packed::object({{"a", document}});
    return document;
}

std::string nestedText(int depth, const std::string& open, const std::string& close) {
    std::string text;
    for (int i = 0; i < depth; ++i)
        text += open;
    text += "0";
    for (int i = 0; i < depth; ++i)
        text += close;
    return text;
}

} // namespace

TEST(ExtensionDocument, sixtyFourLevelsAreTakenAndOneMoreIsNot) {
    EXPECT_TRUE(messagePack(nestedArrays(64)));
    EXPECT_FALSE(messagePack(nestedArrays(65)));
    EXPECT_TRUE(messagePack(nestedObjects(64)));
    EXPECT_FALSE(messagePack(nestedObjects(65)));
    EXPECT_TRUE(jsonText(nestedText(64, "[", "]")));
    EXPECT_FALSE(jsonText(nestedText(65, "[", "]")));
    EXPECT_TRUE(jsonText(nestedText(64, "{\"a\":", "}")));
    EXPECT_FALSE(jsonText(nestedText(65, "{\"a\":", "}")));
}

TEST(ExtensionDocument, levelsThatWereClosedDoNotCount) {
    EXPECT_TRUE(messagePack(packed::array(std::vector<Bytes>(200, nestedArrays(60)))));
    EXPECT_TRUE(jsonText("[" + nestedText(60, "[", "]") + "," + nestedText(60, "[", "]") + "]"));
}

TEST(ExtensionDocument, aMegabyteOfOpeningBracketsIsRefused) {
    constexpr std::size_t megabyte = std::size_t{1} << 20;
    EXPECT_FALSE(messagePack(Bytes(megabyte, std::byte{0x91})));
    EXPECT_FALSE(jsonText(std::string(megabyte, '[')));
    EXPECT_FALSE(jsonText(nestedText(megabyte, "[", "]")));
    std::string objects;
    for (std::size_t i = 0; i < megabyte / 5; ++i)
        objects += "{\"a\":";
    EXPECT_FALSE(jsonText(objects));
    Bytes maps;
    for (std::size_t i = 0; i < megabyte / 2; ++i)
        maps.insert(maps.end(), {std::byte{0x81}, std::byte{0xA0}});
    EXPECT_FALSE(messagePack(maps));
}

TEST(ExtensionDocument, whatIsNotExactlyOneDocumentIsRefused) {
    EXPECT_FALSE(messagePack({}));
    EXPECT_FALSE(messagePack(bytesOf({0xC0, 0xC0})));
    EXPECT_FALSE(messagePack(bytesOf({0xC1})));             // no type of the format
    EXPECT_FALSE(messagePack(bytesOf({0x81, 0x01, 0x01}))); // a key that is no text
    for (const char* text : {"", " ", "{", "{}{}", "nul", "[1,]", "{\"a\"}", "\"\xFF\"", "1e999",
                             "// comment\n1", "'a'", "NaN"})
        EXPECT_FALSE(jsonText(text)) << text;
}

TEST(ExtensionDocument, countsThatPromiseMoreThanThereIsAreRefused) {
    for (const unsigned code : {0xC6u, 0xC9u, 0xDBu, 0xDDu, 0xDFu}) {
        // Four bytes of length: the most there can be.
        EXPECT_FALSE(messagePack(bytesOf({code, 0xFF, 0xFF, 0xFF, 0xFF}))) << code;
        EXPECT_FALSE(messagePack(bytesOf({code, 0x7F, 0xFF, 0xFF, 0xFF, 0xC0}))) << code;
    }
}

TEST(ExtensionDocument, numbersKeepTheirKind) {
    EXPECT_EQ(messagePack(packed::integer(-5)), nlohmann::json(-5));
    EXPECT_TRUE(messagePack(packed::real(2.0))->is_number_float());
    EXPECT_TRUE(jsonText("2")->is_number_integer());
    EXPECT_TRUE(jsonText("2.0")->is_number_float());
    EXPECT_TRUE(jsonText("18446744073709551616")->is_number_float()); // beyond 64 bits
}

TEST(ExtensionDocument, bytesOrderMarksAndBlanksAroundJsonAreTaken) {
    EXPECT_EQ(jsonText("\xEF\xBB\xBF{\"a\":1}"), nlohmann::json({{"a", 1}}));
    EXPECT_EQ(jsonText("\r\n\t 1 "), nlohmann::json(1));
}
