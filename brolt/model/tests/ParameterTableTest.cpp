// SPDX-License-Identifier: GPL-3.0-or-later
// The product's table, row by row: projects, presets, hosts and the editor all build on it, so
// that none of it may change unnoticed.
#include "brolt/model/QMBrolt_ParameterTable.h"

#include "brolt/model/QMBrolt_ParametersSet.h"
#include "plugin-model/EngineeringDisplay.h"
#include "plugin-model/tests/ParameterTextProbe.h"

#include <gtest/gtest.h>

using parameterTest::textWritten;

namespace {

struct Row {
    const char* id;
    const char* name;
    const char* unit;
    double minimum;
    double maximum;
    double defaultValue;
    std::int32_t taper;
    double step;
    std::uint32_t unitCode;
    double curve;
};

// clang-format off
constexpr std::array<Row, 15> rows{{
    {"mbyp", "Master Bypass",           "",     0.0,    1.0,   0.0, 2, 1.0,   2, 0.0},
    {"afre", "Osc 1 Attack Frequency",  "Hz",   1.0,  440.0, 100.0, 1, 0.01,  8, 0.0},
    {"sfre", "Osc 1 Sustain Frequency", "Hz",   1.0,  440.0,  60.0, 1, 0.01,  8, 0.0},
    {"osc1", "Osc 1 Enable",            "",     0.0,    1.0,   1.0, 2, 1.0,   2, 0.0},
    {"mgan", "Osc 1 Mix Gain",          "dB", -60.0,    6.0,   0.0, 3, 0.01, 13, 3.0},
    {"dafr", "Osc 2 Attack Frequency",  "Hz",   1.0,  440.0, 200.0, 1, 0.01,  8, 0.0},
    {"dsfr", "Osc 2 Sustain Frequency", "Hz",   1.0,  440.0, 120.0, 1, 0.01,  8, 0.0},
    {"osc2", "Osc 2 Enable",            "",     0.0,    1.0,   1.0, 2, 1.0,   2, 0.0},
    {"dmgn", "Osc 2 Mix Gain",          "dB", -60.0,    6.0, -12.0, 3, 0.01, 13, 3.0},
    {"attk", "Envelope Attack",         "ms",   1.0,  100.0,   2.0, 3, 0.01, 24, 0.33},
    {"rlse", "Envelope Release",        "ms",   5.0, 1000.0, 140.0, 3, 0.01, 24, 0.33},
    {"patt", "Pitch Attack",            "ms",   1.0,  100.0,   2.0, 3, 0.01, 24, 0.33},
    {"prls", "Pitch Release",           "ms",   5.0, 1000.0, 140.0, 3, 0.01, 24, 0.33},
    {"wetd", "Wet/Dry",                 "%",    0.0,  100.0, 100.0, 0, 0.01,  3, 0.0},
    {"gain", "Output Gain",             "dB", -24.0,   24.0,   0.0, 0, 0.01, 13, 0.0},
}};

// clang-format on

bool isSwitch(const std::string& id) {
    return id == "mbyp" || id == "osc1" || id == "osc2";
}

} // namespace

TEST(QMBrolt_ParameterTable, hasItsFifteenRows) {
    const std::span<const NoxPlugInParameter> table = QMBrolt_parameters();
    ASSERT_EQ(table.size(), 15u);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const Row& row = rows[i];
        const NoxPlugInParameter& record = table[i];
        SCOPED_TRACE(row.id);
        EXPECT_EQ(fourCharText(record.id), row.id);
        EXPECT_STREQ(record.name, row.name);
        EXPECT_STREQ(record.unit, row.unit);
        EXPECT_EQ(record.minimum, row.minimum);
        EXPECT_EQ(record.maximum, row.maximum);
        EXPECT_EQ(record.defaultValue, row.defaultValue);
        EXPECT_EQ(record.taper, row.taper);
        EXPECT_EQ(record.step, row.step);
        EXPECT_EQ(record.unitCode, row.unitCode);
        EXPECT_EQ(record.curve, row.curve);
    }
}

TEST(QMBrolt_ParameterTable, hasTheSameInTheFieldsThatNoRowUses) {
    for (const NoxPlugInParameter& record : QMBrolt_parameters()) {
        SCOPED_TRACE(record.name);
        EXPECT_EQ(record.factor, 1.0);
        EXPECT_EQ(record.groupIndex, 0u);
        EXPECT_EQ(record.subgroupIndex, 0u);
        EXPECT_EQ(record.changeHook, nullptr);
        EXPECT_EQ(record.option1, 0u);
        EXPECT_EQ(record.option2, 1u);
        EXPECT_EQ(record.option3, 0u);
        EXPECT_EQ(record.reservedWord, 0u);
    }
}

TEST(QMBrolt_ParameterTable, showsEveryContinuousParameterTheEngineeringWay) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const NoxPlugInParameter& record = QMBrolt_parameters()[i];
        SCOPED_TRACE(rows[i].id);
        if (isSwitch(rows[i].id))
            continue;
        EXPECT_EQ(record.formatValue, &QM::formatEngineering);
        EXPECT_EQ(record.formatValueWithUnit, &QM::formatEngineeringWithUnit);
        EXPECT_EQ(record.valueNames, nullptr);
    }
}

TEST(QMBrolt_ParameterTable, namesTheValuesOfItsSwitches) {
    const std::span<const NoxPlugInParameter> table = QMBrolt_parameters();
    ASSERT_NE(table[0].valueNames, nullptr);
    EXPECT_STREQ(table[0].valueNames[0], "Engaged");
    EXPECT_STREQ(table[0].valueNames[1], "Bypass");
    EXPECT_NE(table[0].formatValue, nullptr);
    EXPECT_NE(table[0].formatValueWithUnit, nullptr);
    for (const std::size_t i : {3u, 7u}) {
        ASSERT_NE(table[i].valueNames, nullptr);
        EXPECT_STREQ(table[i].valueNames[0], "Disabled");
        EXPECT_STREQ(table[i].valueNames[1], "Enabled");
        EXPECT_EQ(table[i].formatValue, nullptr);
        EXPECT_EQ(table[i].formatValueWithUnit, nullptr);
    }
}

TEST(QMBrolt_ParameterTable, hasOneGroupWithoutANameAndTheSubgroupMain) {
    const std::span<const NoxParameterGroup> groups = QMBrolt_parameterGroups();
    ASSERT_EQ(groups.size(), 1u);
    EXPECT_STREQ(groups[0].name, "");
    ASSERT_EQ(groups[0].subgroupCount, 1u);
    EXPECT_STREQ(groups[0].subgroupNames[0], "Main");
}

TEST(QMBrolt_ParameterTable, hasOneOutputMeterAndThePitchesForMono) {
    const std::span<const NoxMeterDescriptor> meters = QMBrolt_meters(1);
    ASSERT_EQ(meters.size(), 2u);
    EXPECT_STREQ(meters[0].name, "Out");
    EXPECT_EQ(meters[0].id, 0x6F757420u); // 'out '
    EXPECT_EQ(meters[0].channel, 0u);
    EXPECT_EQ(meters[0].kind, 1u);
    EXPECT_STREQ(meters[1].name, "Pitches");
    EXPECT_EQ(meters[1].id, 0x70746368u); // 'ptch'
    EXPECT_EQ(meters[1].channel, 0u);
    EXPECT_EQ(meters[1].kind, 6u);
}

TEST(QMBrolt_ParameterTable, hasTwoOutputMetersAndThePitchesForStereo) {
    const std::span<const NoxMeterDescriptor> meters = QMBrolt_meters(2);
    ASSERT_EQ(meters.size(), 3u);
    EXPECT_STREQ(meters[0].name, "OutL");
    EXPECT_EQ(meters[0].id, 0x6F757420u); // 'out '
    EXPECT_EQ(meters[0].channel, 0u);
    EXPECT_EQ(meters[0].kind, 1u);
    EXPECT_STREQ(meters[1].name, "OutR");
    EXPECT_EQ(meters[1].id, 0x6F757432u); // 'out2'
    EXPECT_EQ(meters[1].channel, 1u);
    EXPECT_EQ(meters[1].kind, 1u);
    EXPECT_STREQ(meters[2].name, "Pitches");
    EXPECT_EQ(meters[2].id, 0x70746368u); // 'ptch'
    EXPECT_EQ(meters[2].channel, 0u);
    EXPECT_EQ(meters[2].kind, 6u);
}

TEST(QMBrolt_ParameterTable, isTheSameThroughTheSetsOfBothTypes) {
    for (const std::int32_t type : {1, 2}) {
        const QM::QMBrolt_ParametersSet set(type);
        ASSERT_EQ(set.parameterCount(), 15);
        for (std::int32_t i = 0; i < 15; ++i) {
            const Row& row = rows[static_cast<std::size_t>(i)];
            SCOPED_TRACE(row.id);
            const auto id = static_cast<FourCharCode>((row.id[0] << 24) | (row.id[1] << 16) |
                                                      (row.id[2] << 8) | row.id[3]);
            EXPECT_EQ(set.idOfIndex(i), id);
            EXPECT_EQ(set.indexOfID(id), i);
            EXPECT_STREQ(set.namePointer(i), row.name);
            EXPECT_STREQ(set.unitPointer(i), row.unit);
            EXPECT_EQ(set.minimum(i), row.minimum);
            EXPECT_EQ(set.maximum(i), row.maximum);
            EXPECT_EQ(set.defaultValue(i), row.defaultValue);
            EXPECT_EQ(set.taper(i), row.taper);
            EXPECT_EQ(set.step(i), row.step);
            EXPECT_EQ(set.factor(i), 1.0);
            EXPECT_EQ(set.unitCode(i), row.unitCode);
            EXPECT_EQ(set.curve(i), row.curve);
            EXPECT_EQ(set.option1(i), 0u);
            EXPECT_EQ(set.option2(i), 1u);
            EXPECT_EQ(set.option3(i), 0u);
            EXPECT_EQ(set.reservedWord(i), 0u);
            EXPECT_EQ(set.valueNamesPointer(i) != nullptr, isSwitch(row.id));
            EXPECT_EQ(textWritten([&](char* b, std::size_t n) { set.longName(i, b, n); }),
                      row.name);
        }
    }
}

TEST(QMBrolt_ParameterTable, leadsFromTheFirstAndLastIdentifierToTheirIndices) {
    const QM::QMBrolt_ParametersSet set(1);
    EXPECT_EQ(set.indexOfID(fourCharCode("mbyp")), 0);
    EXPECT_EQ(set.indexOfID(fourCharCode("gain")), 14);
    EXPECT_EQ(set.indexOfID(fourCharCode("abBl")), -1);
    EXPECT_EQ(set.indexOfID(fourCharCode("xxxx")), -1);
}
