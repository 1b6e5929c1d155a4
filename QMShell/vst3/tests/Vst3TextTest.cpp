// SPDX-License-Identifier: GPL-3.0-or-later
// Texts on their way to hosts and back.

#include "QMShell/vst3/Vst3Text.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using Text = std::array<char16_t, 128>;

std::u16string copied(std::string_view utf8) {
    Text text;
    text.fill(u'x');
    copyToString128(utf8, text.data());
    return text.data();
}

TEST(Vst3Text, goesToHostsAsUtf16) {
    EXPECT_EQ(copied("Osc 1"), u"Osc 1");
    EXPECT_EQ(copied(""), u"");
    EXPECT_EQ(copied("4\xC2\xB5s"), u"4\u00B5s");
    EXPECT_EQ(copied("\xF0\x9F\x94\x8A"), u"\U0001F50A"); // two units
}

TEST(Vst3Text, isCutToWhatFitsBeforeTheEndingZero) {
    EXPECT_EQ(copied(std::string(127, 'a')), std::u16string(127, u'a'));
    EXPECT_EQ(copied(std::string(500, 'a')), std::u16string(127, u'a'));
    // A character of two units is not cut in the middle.
    EXPECT_EQ(copied(std::string(126, 'a') + "\xF0\x9F\x94\x8A"), std::u16string(126, u'a'));
}

TEST(Vst3Text, isEmptyForBytesThatAreNoUtf8) {
    EXPECT_EQ(copied("a\xFF"), u"");
    EXPECT_EQ(copied("\xC3("), u"");
}

TEST(Vst3Text, comesFromHostsAsUtf8) {
    EXPECT_EQ(utf8OfString128(u"1,5k"), "1,5k");
    EXPECT_EQ(utf8OfString128(u"\u00B5\U0001F50A"), "\xC2\xB5\xF0\x9F\x94\x8A");
    EXPECT_EQ(utf8OfString128(u""), "");
    EXPECT_EQ(utf8OfString128(nullptr), "");
}

TEST(Vst3Text, isReadNoFurtherThanAHostsBuffer) {
    Text text;
    text.fill(u'\u20AC'); // no ending zero; three bytes each
    EXPECT_EQ(utf8OfString128(text.data()).size(), 3U * 128U);
}

TEST(Vst3Text, isEmptyForHalfACharacter) {
    const Text text{u'a', char16_t{0xD83D}, u'b'};
    EXPECT_EQ(utf8OfString128(text.data()), "");
}

} // namespace
