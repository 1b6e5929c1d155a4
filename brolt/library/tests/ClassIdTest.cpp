// SPDX-License-Identifier: GPL-3.0-or-later
// The identifiers that saved projects find the plug-in by.
#include "brolt/library/tests/support/LoadedLibrary.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cstdio>
#include <cstring>
#include <string>

namespace {

std::string hexadecimal(const char* format, unsigned number) {
    char digits[9];
    std::snprintf(digits, sizeof digits, format, number);
    return digits;
}

/// The published rule by which a VST3 class takes the place of a VST 2 plug-in: "VST", the old
/// identifier, and the first nine characters of the lower-case name, all as hexadecimal digits.
std::string successorOf(unsigned identifier, const std::string& name) {
    std::string digits = hexadecimal("%06X", 0x565354) + hexadecimal("%08X", identifier);
    for (std::size_t i = 0; i < 9; ++i) {
        const int character =
            i < name.size() ? std::tolower(static_cast<unsigned char>(name[i])) : 0;
        digits += hexadecimal("%02X", static_cast<unsigned>(character));
    }
    return digits;
}

/// As the interface writes an identifier down, the same on every platform.
std::string textOfClass(const std::string& category) {
    return LoadedLibrary::shared().classOf(category).ID().toString();
}

} // namespace

TEST(Vst3ClassId, isTheSuccessorOfTheVst2PlugIn) {
    const unsigned qmbl = 0x514D626C; // 'QMbl'
    EXPECT_EQ(successorOf(qmbl, "QM Brolt"), "565354514D626C716D2062726F6C7400");
    EXPECT_EQ(textOfClass("Audio Module Class"), successorOf(qmbl, "QM Brolt"));
}

TEST(Vst3ClassId, ofTheCompatibilityClassIsFixed) {
    EXPECT_EQ(textOfClass("Plugin Compatibility Class"), "7A8EA518ECA240369AD492D170AD04FB");
}

TEST(Vst3ClassId, liesInMemoryAsThePlatformHasIt) {
#ifdef _WIN32
    const unsigned char bytes[16] = {0x18, 0xA5, 0x8E, 0x7A, 0xA2, 0xEC, 0x36, 0x40,
                                     0x9A, 0xD4, 0x92, 0xD1, 0x70, 0xAD, 0x04, 0xFB};
#else
    const unsigned char bytes[16] = {0x7A, 0x8E, 0xA5, 0x18, 0xEC, 0xA2, 0x40, 0x36,
                                     0x9A, 0xD4, 0x92, 0xD1, 0x70, 0xAD, 0x04, 0xFB};
#endif
    const VST3::UID id = LoadedLibrary::shared().classOf("Plugin Compatibility Class").ID();
    EXPECT_EQ(std::memcmp(id.data(), bytes, sizeof bytes), 0) << id.toString();
}
