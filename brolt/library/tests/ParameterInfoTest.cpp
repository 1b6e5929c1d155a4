// SPDX-License-Identifier: GPL-3.0-or-later
// What hosts are told about the parameters, row by row.
#include "brolt/library/tests/support/LibraryInstance.h"
#include "brolt/library/tests/support/ParameterRows.h"

#include <pluginterfaces/vst/ivstunits.h>

using Steinberg::int32;
using Steinberg::kResultOk;

namespace {

bool isSwitch(const ParameterRow& row) {
    return row.taper == RowTaper::stepped;
}

int32 flagsOf(const ParameterRow& row) {
    int32 flags = 0x1; // can be automated
    if (isSwitch(row))
        flags |= 0x8; // has a list of values
    if (std::string(row.id) == "mbyp")
        flags |= 0x10000; // is the bypass
    return flags;
}

Vst::ParameterInfo infoOf(LibraryInstance& instance, std::size_t index) {
    Vst::ParameterInfo info{};
    EXPECT_EQ(instance.controller().getParameterInfo(static_cast<int32>(index), info), kResultOk);
    return info;
}

void expectRows(LibraryInstance& instance) {
    ASSERT_EQ(instance.controller().getParameterCount(), 15);
    for (std::size_t i = 0; i < parameterRows.size(); ++i) {
        const ParameterRow& row = parameterRows[i];
        SCOPED_TRACE(row.id);
        const Vst::ParameterInfo info = infoOf(instance, i);
        EXPECT_EQ(info.id, i); // the index, the same in automation and in edits
        EXPECT_EQ(textOf(info.title), row.title);
        EXPECT_EQ(textOf(info.shortTitle), row.shortTitle);
        EXPECT_EQ(info.stepCount, isSwitch(row) ? 1 : 0);
        EXPECT_NEAR(info.defaultNormalizedValue, positionOf(row, row.defaultValue), 1e-12);
        EXPECT_EQ(info.unitId, Vst::kRootUnitId);
        EXPECT_EQ(info.flags, flagsOf(row));
    }
}

} // namespace

TEST(Vst3ParameterInfo, isThatOfTheTable) {
    LibraryInstance instance;
    expectRows(instance);
}

TEST(Vst3ParameterInfo, isTheSameInEveryLayout) {
    LibraryInstance instance;
    instance.start({.channels = 1});
    expectRows(instance);
    instance.stop();
    instance.start({.channels = 2});
    expectRows(instance);
}

TEST(Vst3ParameterInfo, endsWithTheTable) {
    LibraryInstance instance;
    for (const int32 index : {-1, 15, 16, 1000, -1000, 0x67616976}) {
        Vst::ParameterInfo info{};
        EXPECT_NE(instance.controller().getParameterInfo(index, info), kResultOk) << index;
    }
}

TEST(Vst3ParameterInfo, namesTheValueThatANewInstanceHas) {
    LibraryInstance instance;
    for (std::size_t i = 0; i < parameterRows.size(); ++i) {
        const Vst::ParameterInfo info = infoOf(instance, i);
        EXPECT_EQ(instance.normalised(info.id), info.defaultNormalizedValue) << parameterRows[i].id;
    }
}

TEST(Vst3ParameterInfo, keepsTheDefaultWhenValuesChange) {
    LibraryInstance instance;
    instance.set("gain", 12.0);
    EXPECT_EQ(infoOf(instance, 14).defaultNormalizedValue, 0.5); // 0 dB in -24..24
    ASSERT_EQ(instance.arrange(1), kResultOk);
    EXPECT_EQ(infoOf(instance, 14).defaultNormalizedValue, 0.5);
    EXPECT_EQ(instance.normalised(14), 0.75);
}
