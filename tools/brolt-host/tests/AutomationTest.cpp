// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/brolt-host/Automation.h"

#include "tools/brolt-host/ProductModel.h"
#include "tools/brolt-host/tests/HostTestKit.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;

namespace {

constexpr std::int32_t bypassIndex = 0;
constexpr std::int32_t sustainIndex = 2;
constexpr std::int32_t gainIndex = 14;

auto isChange(double seconds, std::int32_t index, double value) {
    return testing::AllOf(Field(&AutomationChange::seconds, seconds),
                          Field(&AutomationChange::index, index),
                          Field(&AutomationChange::value, value));
}

class AutomationText : public testing::Test {
protected:
    Automation parse(const std::string& text) {
        return parseAutomation(text, "moves.txt", product.parameters());
    }

    std::string error(const std::string& text) {
        return errorOf([&] { parse(text); });
    }

    ProductModel product;
};

} // namespace

TEST_F(AutomationText, aLineIsSecondsIdentifierAndValue) {
    EXPECT_THAT(parse("1.5 gain -6\n").changes, ElementsAre(isChange(1.5, gainIndex, -6.0)));
    EXPECT_THAT(parse("2 mbyp bypass").changes, ElementsAre(isChange(2.0, bypassIndex, 1.0)));
}

TEST_F(AutomationText, commentsEmptyLinesTabulatorsAndForeignLineEndsAreAllowed) {
    EXPECT_THAT(parse("# moves\r\n\r\n \t0\tgain\t3  # up\r\n#\n1 gain 4#down").changes,
                ElementsAre(isChange(0.0, gainIndex, 3.0), isChange(1.0, gainIndex, 4.0)));
    EXPECT_THAT(parse("").changes, ElementsAre());
    EXPECT_THAT(parse("\xEF\xBB\xBF"
                      "0 gain 3")
                    .changes,
                ElementsAre(isChange(0.0, gainIndex, 3.0)));
}

TEST_F(AutomationText, changesAreSortedByTimeAndKeepTheOrderOfTheirLinesAtOneTime) {
    EXPECT_THAT(parse("3 gain 1\n1 gain 2\n1 sfre 50\n1 gain 3\n0 sfre 60\n").changes,
                ElementsAre(isChange(0.0, sustainIndex, 60.0), isChange(1.0, gainIndex, 2.0),
                            isChange(1.0, sustainIndex, 50.0), isChange(1.0, gainIndex, 3.0),
                            isChange(3.0, gainIndex, 1.0)));
}

TEST_F(AutomationText, aMistakeIsToldWithFileAndLine) {
    EXPECT_THAT(error("0 gain 1\n\n1 gian 2\n"),
                HasSubstr("moves.txt:3: unknown parameter 'gian'"));
    EXPECT_EQ(error("0 gain loud"), "moves.txt:1: 'loud' is not a value of gain (Output Gain)");
    EXPECT_EQ(error("0 gain nan"), "moves.txt:1: 'nan' is not a value of gain (Output Gain)");
    EXPECT_EQ(error("soon gain 1"), "moves.txt:1: 'soon' is not a time in seconds");
    EXPECT_EQ(error("nan gain 1"), "moves.txt:1: 'nan' is not a time in seconds");
    EXPECT_EQ(error("-0.5 gain 1"), "moves.txt:1: the time -0.5 s lies before the beginning");
    EXPECT_EQ(error("0 gain"), "moves.txt:1: a line reads: seconds ID value");
    EXPECT_EQ(error("0 gain 1 dB"), "moves.txt:1: a line reads: seconds ID value");
}

TEST_F(AutomationText, clampedValuesAreSaidOnceForEachParameter) {
    const Automation automation = parse("0 gain 30\n1 gain 40\n2 sfre 500\n3 gain -30\n");
    EXPECT_THAT(automation.changes,
                ElementsAre(isChange(0.0, gainIndex, 24.0), isChange(1.0, gainIndex, 24.0),
                            isChange(2.0, sustainIndex, 440.0), isChange(3.0, gainIndex, -24.0)));
    EXPECT_THAT(automation.notices,
                ElementsAre("moves.txt:3: sfre 500 Hz is outside 1 to 440 Hz; using 440 Hz",
                            "moves.txt:1: gain 30 dB is outside -24 to 24 dB; using 24 dB (and 2 "
                            "more of this parameter)"));
}

TEST_F(AutomationText, aFileIsReadAsItsText) {
    const TemporaryFolder folder;
    const Automation automation =
        readAutomation(folder.write("a.txt", "1 gain 2\n"), product.parameters());
    EXPECT_THAT(automation.changes, ElementsAre(isChange(1.0, gainIndex, 2.0)));
}

TEST_F(AutomationText, aFileThatCannotBeReadIsAnError) {
    const TemporaryFolder folder;
    const auto read = [&](const std::filesystem::path& file) {
        return errorOf([&] { readAutomation(file, product.parameters()); });
    };
    EXPECT_THAT(read(folder / "missing.txt"), testing::EndsWith("missing.txt: no such file"));
    EXPECT_THAT(read(folder.path()), testing::EndsWith(": is a folder"));
}
