// SPDX-License-Identifier: GPL-3.0-or-later
// Category bits as hosts' menus sort by them.

#include "QMShell/vst3/Vst3SubCategories.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace {

TEST(Vst3SubCategories, areFxAloneForBitsWithoutAText) {
    EXPECT_EQ(vst3SubCategories(0), "Fx");
    EXPECT_EQ(vst3SubCategories(2049), "Fx"); // the product's
}

TEST(Vst3SubCategories, beginWithInstrumentForOne) {
    EXPECT_EQ(vst3SubCategories(0x400), "Instrument");
    EXPECT_EQ(vst3SubCategories(0x402), "Instrument|EQ");
}

TEST(Vst3SubCategories, haveATextForEachBit) {
    const std::vector<std::pair<std::uint32_t, const char*>> table = {
        {0x40, "Fx|Channel Strip"}, {0x10, "Fx|Delay"},           {0x02, "Fx|EQ"},
        {0x04, "Fx|Dynamics"},      {0x80, "Fx|Mastering"},       {0x20, "Fx|Reverb"},
        {0x100, "Fx|Analyzer"},     {0x400000, "Fx|Tools"},       {0x8000, "Fx|Distortion"},
        {0x10000, "Fx|Guitar"},     {0x2000000, "Fx|Modulation"},
    };
    for (const auto& [bit, text] : table)
        EXPECT_EQ(vst3SubCategories(bit), text);
}

TEST(Vst3SubCategories, areJoinedInTheirOwnOrder) {
    EXPECT_EQ(vst3SubCategories(0xFFFFFFFF),
              "Instrument|Channel Strip|Delay|EQ|Dynamics|Mastering|Reverb|Analyzer|Tools|"
              "Distortion|Guitar|Modulation");
}

} // namespace
