// SPDX-License-Identifier: GPL-3.0-or-later
//
// What params and info print.

#include "tools/brolt-host/ParameterReport.h"
#include "tools/brolt-host/ProductReport.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;

TEST(ParameterReport, aContinuousParameterIsShownWithItsUnit) {
    ProductModel product;
    const std::vector<TextRow> rows = parameterRows(product.parameters());
    ASSERT_EQ(rows.size(), 16U);
    EXPECT_THAT(rows[2], ElementsAre("afre", "Osc 1 Attack Frequency", "Hz", "1 to 440", "100",
                                     "1 Hz", "100 Hz", "440 Hz", ""));
    EXPECT_THAT(rows[11], ElementsAre("rlse", "Envelope Release", "ms", "5 to 1000", "140", "5 ms",
                                      "140 ms", "1 kms", ""));
}

TEST(ParameterReport, aSwitchIsShownWithNamesAndTextsOfItsValues) {
    ProductModel product;
    const std::vector<TextRow> rows = parameterRows(product.parameters());
    EXPECT_THAT(rows[1], ElementsAre("mbyp", "Master Bypass", "-", "0 to 1", "0", "On", "On", "Off",
                                     "0 = Engaged (shown as On), 1 = Bypass (shown as Off)"));
    EXPECT_THAT(rows[4], ElementsAre("osc1", "Osc 1 Enable", "-", "0 to 1", "1", "Disabled",
                                     "Enabled", "Enabled", "0 = Disabled, 1 = Enabled"));
}

TEST(ParameterReport, forProgramsEveryFieldHasItsColumn) {
    ProductModel product;
    const std::vector<TextRow> rows = parameterData(product.parameters());
    ASSERT_EQ(rows.size(), 16U);
    for (const TextRow& row : rows)
        EXPECT_EQ(row.size(), rows[0].size());
    EXPECT_THAT(rows[1], ElementsAre("0", "mbyp", "Master Bypass", "", "0", "1", "0", "On", "Off",
                                     "On", "On", "Engaged|Bypass", "On|Off"));
    EXPECT_THAT(rows[15], ElementsAre("14", "gain", "Output Gain", "dB", "-24", "24", "0", "-24",
                                      "24", "0", "0 dB", "", ""));
}

TEST(ProductReport, tellsWhoTheProductIs) {
    ProductModel product;
    const std::string text = productReport(product);
    for (const char* part :
         {"QM Brolt", "4.0.2.157", "Quolm 'QML '", "'BRLT'", "'BLT1'", "'BLT2'", "Brolt (m/m)",
          "Brolt (s/s)", "1 in, 1 out", "2 in, 2 out", "QMFree, bits 2049",
          "565354514D626C716D2062726F6C7400", "OutL 'out ', OutR 'out2', Pitches 'ptch'"})
        EXPECT_THAT(text, HasSubstr(part));
}
