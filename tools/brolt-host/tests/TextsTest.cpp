// SPDX-License-Identifier: GPL-3.0-or-later
//
// The small texts on the terminal: messages, tables, levels, the progress bar.

#include "tools/brolt-host/Decibels.h"
#include "tools/brolt-host/Messages.h"
#include "tools/brolt-host/ProgressBar.h"
#include "tools/brolt-host/TextTable.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

TEST(Messages, aMessageIsOneLineWhateverIsInIt) {
    EXPECT_EQ(messageLine("a\nb\tc\x7f"), "brolt-host: a?b?c?");
    EXPECT_EQ(messageLine("k\xc3\xb6.wav: no such file"),
              "brolt-host: k\xc3\xb6.wav: no such file");
}

TEST(TextTable, columnsAreAsWideAsTheirLongestText) {
    EXPECT_EQ(alignedTable({{"a", "bb"}, {"ccc", "d", "e"}, {"\xc2\xb5", "f"}}), "a    bb\n"
                                                                                 "ccc  d   e\n"
                                                                                 "\xc2\xb5    f\n");
}

TEST(TextTable, forProgramsTabulatorsStandBetweenTheCells) {
    EXPECT_EQ(tabSeparatedTable({{"a", "", "b"}, {"c"}}), "a\t\tb\nc\n");
}

TEST(PeakText, aPeakIsInDecibelsOfFullScale) {
    EXPECT_EQ(peakText(1.0), "0.0 dBFS");
    EXPECT_EQ(peakText(0.5), "-6.0 dBFS");
    EXPECT_EQ(peakText(0.0), "silence");
    EXPECT_EQ(peakText(std::nan("")), "not a number");
    EXPECT_EQ(peakText(std::numeric_limits<double>::infinity()), "infinite");
}

TEST(ProgressLine, theBarFillsUp) {
    EXPECT_EQ(progressLine("a", 0, 200), "a [                              ]   0 %");
    EXPECT_EQ(progressLine("a", 100, 200), "a [###############               ]  50 %");
    EXPECT_EQ(progressLine("a", 200, 200), "a [##############################] 100 %");
}

TEST(ProgressLine, itStaysInItsBoundsForCountsOutsideTheirs) {
    EXPECT_EQ(progressLine("a", 300, 200), progressLine("a", 200, 200));
    EXPECT_EQ(progressLine("a", -1, 200), progressLine("a", 0, 200));
    EXPECT_EQ(progressLine("a", 0, 0), "a [                              ]   0 %");
}

TEST(ProgressLine, aLongNameKeepsItsEnd) {
    EXPECT_EQ(progressLine("0123456789012345678901234567890.wav", 0, 1).substr(0, 32),
              "...8901234567890123456"
              "7890.wav [");
}
