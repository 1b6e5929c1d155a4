// SPDX-License-Identifier: GPL-3.0-or-later
//
// Include lines are recognised in every form a compiler takes.

#include "tests/layering/IncludeLine.h"

#include <gtest/gtest.h>

TEST(IncludeLine, takesQuotesAndAngleBracketsApart) {
    const auto quoted = parseIncludeLine("#include \"brolt/signal/Brolt.h\"");
    ASSERT_TRUE(quoted);
    EXPECT_EQ(quoted->header, "brolt/signal/Brolt.h");
    EXPECT_TRUE(quoted->quoted);

    const auto bracketed = parseIncludeLine("#include <vector>");
    ASSERT_TRUE(bracketed);
    EXPECT_EQ(bracketed->header, "vector");
    EXPECT_FALSE(bracketed->quoted);
}

TEST(IncludeLine, blanksAndTabsMakeNoDifference) {
    const auto line = parseIncludeLine(" \t#\t include<juce_core/juce_core.h>  // why");
    ASSERT_TRUE(line);
    EXPECT_EQ(line->header, "juce_core/juce_core.h");
}

TEST(IncludeLine, includeNextCountsAsInclude) {
    const auto line = parseIncludeLine("#include_next <png.h>");
    ASSERT_TRUE(line);
    EXPECT_EQ(line->header, "png.h");
}

TEST(IncludeLine, otherLinesAreNone) {
    for (const char* line :
         {"", "   ", "#", "# include", "#include", "#include \"unfinished", "#include <unfinished",
          "#include MACRO", "#define X \"a.h\"", "// #include \"a.h\"", "int include = 0;"}) {
        EXPECT_FALSE(parseIncludeLine(line)) << line;
    }
}
