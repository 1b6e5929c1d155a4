// SPDX-License-Identifier: GPL-3.0-or-later
// The two dumps for developers, byte for byte.
#include "plugin-model/tests/ParameterCommaLocale.h"
#include "plugin-model/tests/ParameterRecordings.h"
#include "plugin-model/tests/ParameterTemporaryFile.h"
#include "plugin-model/tests/ParameterTestTable.h"

#include <gtest/gtest.h>

using parameterTest::TemporaryFile;

namespace {

// Values right-aligned in 14 places; the last line has a blank where the others have a comma.
constexpr const char* rows = "\t    2.50000000,\t// 0 'levl' 'Level'\n\t"
                             "\t    2.00000000,\t// 1 'mode' 'Mode'\n\t"
                             "\t   12.34567891,\t// 2 'time' 'Time'\n\t"
                             "\t    1.00000000,\t// 3 'swit' 'Switch'\n\t"
                             "\t    5.00000000 \t// 4 'stry' 'Stray'\n\t"
                             "\n};\n";

class ParameterDumps : public testing::Test {
protected:
    ParameterDumps() { values.storeValue(parameterTest::timeIndex, 12.345678912); }

    parameterTest::Set set;
    QM::QMParameterValues values{set, 48000.0};
};

} // namespace

TEST_F(ParameterDumps, theDefaultsTableHasItsName) {
    const TemporaryFile file;
    values.dumpDefaultsTable("Thing", file.stream());
    EXPECT_EQ(file.text(), std::string("// parameters for Thing \n"
                                       "static NoxPlugInParameter kThing[] =  {\n\t") +
                               rows);
}

TEST_F(ParameterDumps, theDefaultsTableHasAStandardNameWithoutOne) {
    const TemporaryFile file;
    values.dumpDefaultsTable(nullptr, file.stream());
    EXPECT_EQ(file.text(),
              std::string("static NoxPlugInParameter kDefaultValues[] =  {\n\t") + rows);
}

TEST_F(ParameterDumps, theDefaultsTableGoesToStandardErrorWithoutAStream) {
    testing::internal::CaptureStderr();
    values.dumpDefaultsTable("Thing", nullptr);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              std::string("// parameters for Thing \n"
                          "static NoxPlugInParameter kThing[] =  {\n\t") +
                  rows);
}

TEST_F(ParameterDumps, wideAndNegativeValuesAreWrittenWhole) {
    std::array<NoxPlugInParameter, 2> table{parameterTest::parameters()[0],
                                            parameterTest::parameters()[1]};
    table[0].defaultValue = -12345678.5;
    table[1].defaultValue = -0.25;
    QM::QMParameterSet wideSet(table, {}, {}, 1);
    const QM::QMParameterValues wide(wideSet, 48000.0);
    const TemporaryFile file;
    wide.dumpDefaultsTable(nullptr, file.stream());
    EXPECT_EQ(file.text(), "static NoxPlugInParameter kDefaultValues[] =  {\n\t"
                           "\t-12345678.50000000,\t// 0 'levl' 'Level'\n\t"
                           "\t   -0.25000000 \t// 1 'mode' 'Mode'\n\t"
                           "\n};\n");
}

TEST_F(ParameterDumps, theGreatestNumberIsWrittenWholeToo) {
    constexpr double greatest = std::numeric_limits<double>::max();
    NoxPlugInParameter record = parameterTest::parameters()[0];
    record.defaultValue = greatest;
    QM::QMParameterSet greatSet({&record, 1}, {}, {}, 1);
    const QM::QMParameterValues great(greatSet, 48000.0);
    const TemporaryFile file;
    great.dumpDefaultsTable(nullptr, file.stream());

    std::array<char, 400> digits{};
    std::snprintf(digits.data(), digits.size(), "%.8f", greatest);
    ASSERT_EQ(std::string(digits.data()).size(), 318u);
    EXPECT_EQ(file.text(), std::string("static NoxPlugInParameter kDefaultValues[] =  {\n\t\t") +
                               digits.data() + " \t// 0 'levl' 'Level'\n\t\n};\n");
}

TEST_F(ParameterDumps, anEmptyTableIsAnEmptyTable) {
    QM::QMParameterSet emptySet({}, {}, {}, 1);
    const QM::QMParameterValues none(emptySet, 48000.0);
    const TemporaryFile file;
    none.dumpDefaultsTable(nullptr, file.stream());
    EXPECT_EQ(file.text(), "static NoxPlugInParameter kDefaultValues[] =  {\n\t\n};\n");
}

TEST_F(ParameterDumps, theLogGetsEveryValueAtTheErrorLevel) {
    const parameterTest::LogCapture log(1);
    values.logValues();
    EXPECT_EQ(log.text(), "==================================\n"
                          "\t 0 \t levl \t Level \t 2.5 \n"
                          "\t 1 \t mode \t Mode \t 2 \n"
                          "\t 2 \t time \t Time \t 12.3457 \n"
                          "\t 3 \t swit \t Switch \t 1 \n"
                          "\t 4 \t stry \t Stray \t 5 \n");
}

TEST_F(ParameterDumps, haveDecimalPointsUnderALocaleWithCommas) {
    const parameterTest::CommaLocale locale;
    if (!locale.isInForce())
        GTEST_SKIP() << "this machine has no locale with decimal commas and cannot compile one";
    const TemporaryFile file;
    values.dumpDefaultsTable("Thing", file.stream());
    EXPECT_EQ(file.text(), std::string("// parameters for Thing \n"
                                       "static NoxPlugInParameter kThing[] =  {\n\t") +
                               rows);
    const parameterTest::LogCapture log(1);
    values.logValues();
    EXPECT_NE(log.text().find("\t Time \t 12.3457 \n"), std::string::npos) << log.text();
}
