// SPDX-License-Identifier: GPL-3.0-or-later
// Class identifiers and the document that names earlier ones.

#include "QMShell/vst3/Vst3ClassID.h"

#include <gtest/gtest.h>

namespace {

// 56 53 54 is "VST", 51 4D 62 6C is "QMbl", then "qm brolt" letter by letter and a zero.
TEST(Vst3ClassID, isVstThenTheIdentifierThenTheNameInLowerCase) {
    EXPECT_EQ(vst3ClassIDText(fourCharCode("QMbl"), "QM Brolt"),
              "565354514D626C716D2062726F6C7400");
}

TEST(Vst3ClassID, takesNineCharactersOfTheName) {
    EXPECT_EQ(vst3ClassIDText(fourCharCode("ABCD"), "Long Names Are Cut"),
              "565354414243446C6F6E67206E616D65");
}

TEST(Vst3ClassID, fillsAShortNameWithZeros) {
    EXPECT_EQ(vst3ClassIDText(0x00000001, "A"), "56535400000001610000000000000000");
    EXPECT_EQ(vst3ClassIDText(0, ""), "56535400000000000000000000000000");
}

TEST(Vst3ClassID, writesBytesBeyondAsciiAsTheyAre) {
    EXPECT_EQ(vst3ClassIDText(0xFFFFFFFF, "\xC3\x84"), "565354FFFFFFFFC38400000000000000");
}

TEST(Vst3Compatibility, namesTheClassAndNoEarlierOneWhereThereIsNone) {
    EXPECT_EQ(vst3CompatibilityText("ABC", {}, "QM Brolt"), R"([{"New":"ABC","Old":[]}])");
}

// "qm other" is 71 6D 20 6F 74 68 65 72.
TEST(Vst3Compatibility, putsTheMakersInitialsInFrontOfAnEarlierName) {
    EXPECT_EQ(vst3CompatibilityText("ABC", {fourCharCode("OLD1"), fourCharCode("OLD2")}, "Other"),
              R"([{"New":"ABC","Old":["5653544F4C4431716D206F7468657200",)"
              R"("5653544F4C4432716D206F7468657200"]}])");
}

TEST(Vst3Compatibility, leavesANameThatHasTheInitials) {
    EXPECT_EQ(vst3CompatibilityText("A", {fourCharCode("OLD1")}, "QM Brolt"),
              R"([{"New":"A","Old":["5653544F4C4431716D2062726F6C7400"]}])");
    EXPECT_EQ(vst3CompatibilityText("A", {fourCharCode("OLD1")}, "MB x"),
              R"([{"New":"A","Old":["5653544F4C44316D6220780000000000"]}])");
}

} // namespace
