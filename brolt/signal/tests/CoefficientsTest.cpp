// SPDX-License-Identifier: GPL-3.0-or-later
//
// The fresh record as bytes.

#include "brolt/signal/Coefficients.h"
#include "brolt/signal/tests/BroltTestKit.h"

#include <gtest/gtest.h>

TEST(Coefficients, aFreshRecordHasTheDocumentedWords) {
    // 1.0 = 3f800000; 44100 = 1.345825... * 2^15 = 472c4400; -1; 0.001 rounds to 3a83126f.
    const std::vector<uint32_t> expected{0x3f800000, 0x3f800000, 0x3f800000, 0x3f800000, 0x472c4400,
                                         0xffffffff, 0,          0,          0,          0x3a83126f,
                                         0x3f800000, 0x3f800000, 0x3f800000, 0x3f800000, 0x3f800000,
                                         0x3f800000, 0x3f800000, 0x3f800000};
    EXPECT_EQ(wordsOf(Coefficients{}), expected);
}

TEST(Coefficients, theImageIsLittleEndian) {
    const Coefficients record;
    unsigned char bytes[4];
    std::memcpy(bytes, reinterpret_cast<const unsigned char*>(&record) + 16, sizeof bytes);
    EXPECT_EQ(bytes[0], 0x00);
    EXPECT_EQ(bytes[1], 0x44);
    EXPECT_EQ(bytes[2], 0x2c);
    EXPECT_EQ(bytes[3], 0x47);
}
