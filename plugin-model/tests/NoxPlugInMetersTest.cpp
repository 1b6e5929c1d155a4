// SPDX-License-Identifier: GPL-3.0-or-later
// The meter records of an instance and how a snapshot gets into them.
#include "plugin-model/tests/MockProcessingHost.h"
#include "plugin-model/tests/TestPlugInModel.h"

#include <gtest/gtest.h>

using ::testing::_;
using ::testing::Ref;

namespace {

/// An architecture without a controller, so that the host is asked itself.
class NoxPlugInMeters : public ::testing::Test {
protected:
    TestTypeGroup group;
    NiceProcessingHost host{NoxArchitecture::nativeUndelivered};
    TestPlugIn plugIn{group.testType(), nullptr, nullptr};
};

} // namespace

TEST_F(NoxPlugInMeters, thereAreAsManyRecordsAsTheTypeHasMeters) {
    EXPECT_EQ(plugIn.meterRecordCount(), 2);
    ASSERT_NE(plugIn.meterRecord(0), nullptr);
    ASSERT_NE(plugIn.meterRecord(1), nullptr);
    EXPECT_EQ(plugIn.meterRecord(2), nullptr);
    EXPECT_EQ(plugIn.meterRecord(-1), nullptr);
}

TEST_F(NoxPlugInMeters, aRecordBeginsWithItsIndexAndIsOtherwiseZero) {
    plugIn.meterCount = 5;
    for (std::int32_t i = 0; i < 5; ++i) {
        ASSERT_NE(plugIn.meterRecord(i), nullptr);
        EXPECT_EQ(plugIn.meterRecord(i)->index, i);
        for (const float value : plugIn.meterRecord(i)->values)
            EXPECT_EQ(value, 0.0F);
    }
}

TEST_F(NoxPlugInMeters, theSameCountKeepsTheValues) {
    plugIn.resizeMeterRecords();
    plugIn.records()[1].values[3] = 0.5F;
    plugIn.resizeMeterRecords();
    EXPECT_EQ(plugIn.meterRecord(1)->values[3], 0.5F);
}

TEST_F(NoxPlugInMeters, anotherCountZeroesTheWholeTable) {
    for (const std::int32_t count : {4, 1}) {
        plugIn.meterCount = 2;
        plugIn.resizeMeterRecords();
        plugIn.records()[0].values[3] = 0.5F;
        plugIn.meterCount = count;
        plugIn.resizeMeterRecords();
        ASSERT_EQ(plugIn.records().size(), static_cast<std::size_t>(count));
        EXPECT_EQ(plugIn.records()[0].values[3], 0.0F);
        for (std::int32_t i = 0; i < count; ++i)
            EXPECT_EQ(plugIn.records()[static_cast<std::size_t>(i)].index, i);
    }
}

TEST_F(NoxPlugInMeters, aNegativeCountIsNone) {
    class Strange : public TestPlugIn {
    public:
        using TestPlugIn::TestPlugIn;

        [[nodiscard]] std::int32_t meterRecordCount() const override { return -3; }
    };

    Strange strange(group.testType(), nullptr, nullptr);
    strange.resizeMeterRecords();
    EXPECT_EQ(strange.meterRecord(0), nullptr);
}

TEST_F(NoxPlugInMeters, theTableIsCopiedAsFarAsThereIsRoom) {
    plugIn.resizeMeterRecords();
    plugIn.records()[0].values[0] = 1.5F;
    std::array<NoxMeterRecord, 3> copy{};
    copy[2].index = 99;
    EXPECT_EQ(plugIn.copyMeterRecords(copy.data(), 3), 2);
    EXPECT_EQ(copy[0].values[0], 1.5F);
    EXPECT_EQ(copy[1].index, 1);
    EXPECT_EQ(copy[2].index, 99);
    copy = {};
    EXPECT_EQ(plugIn.copyMeterRecords(copy.data(), 1), 1);
    EXPECT_EQ(copy[0].values[0], 1.5F);
    EXPECT_EQ(copy[1].index, 0);
    EXPECT_EQ(plugIn.copyMeterRecords(nullptr, 0), 0);
    EXPECT_EQ(plugIn.copyMeterRecords(nullptr, -1), 0);
}

TEST_F(NoxPlugInMeters, anUpdateFetchesOneSnapshotIntoAZeroedPacketAndReceivesIt) {
    plugIn.setProcessingHost(&host);
    plugIn.analysisWords = 4;
    EXPECT_CALL(host, fetchInputCopy(Ref(plugIn), 0, 0, 4, _))
        .WillOnce([](INoxPlugIn&, std::uint64_t, std::uint32_t, std::uint32_t, void* destination) {
            auto* floats = static_cast<float*>(destination);
            for (int i = 0; i < 4; ++i)
                EXPECT_EQ(floats[i], 0.0F);
            floats[0] = 0.25F;
            floats[3] = 0.75F;
            return NoxResultCode::noHostAvailable;
        });
    plugIn.updateMeters();
    EXPECT_EQ(plugIn.received, (std::vector<float>{0.25F, 0.0F, 0.0F, 0.75F}));
    EXPECT_EQ(plugIn.records().size(), 2u);
}

TEST_F(NoxPlugInMeters, anUpdateWithoutAnalysisWordsOnlyBringsTheTableToItsSize) {
    plugIn.setProcessingHost(&host);
    EXPECT_CALL(host, fetchInputCopy).Times(0);
    plugIn.updateMeters();
    EXPECT_EQ(plugIn.records().size(), 2u);
    EXPECT_TRUE(plugIn.received.empty());
}

TEST_F(NoxPlugInMeters, anUpdateWithoutRecordsFetchesNothing) {
    plugIn.setProcessingHost(&host);
    plugIn.analysisWords = 4;
    plugIn.meterCount = 0;
    EXPECT_CALL(host, fetchInputCopy).Times(0);
    plugIn.updateMeters();
    EXPECT_TRUE(plugIn.received.empty());
}

TEST_F(NoxPlugInMeters, withoutAHostTheSnapshotIsAllZero) {
    plugIn.analysisWords = 3;
    plugIn.updateMeters();
    EXPECT_EQ(plugIn.received, std::vector<float>(3));
}
