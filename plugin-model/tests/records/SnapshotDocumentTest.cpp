// SPDX-License-Identifier: GPL-3.0-or-later
// Snapshots in the extension document: what is written, what is taken, what is refused.
#include "plugin-model/snapshots/SnapshotDocument.h"
#include "plugin-model/tests/StateTestKit.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

namespace {

using namespace stateTest;
using nlohmann::json;

class SnapshotDocument : public testing::Test {
protected:
    [[nodiscard]] static QMGenericPreset recordWith(json extension) {
        QMGenericPreset record;
        record.manufacturerCode = maker;
        record.productCode = product;
        record.values = {{fourCharCode("levl"), 6.0}};
        record.uniqueId = 99;
        record.extension = std::move(extension);
        return record;
    }

    bool apply(json extension) {
        return values.applyRecord(recordWith(std::move(extension)), nullptr);
    }

    State state;
    Values& values = state.values;
    const std::vector<double> a{0.0, 2.0, 4.0, 0.1};
    const std::vector<double> b{1.0, 8.0, 100.0, 0.9};
};

TEST_F(SnapshotDocument, isWrittenWithItsSixMembers) {
    state.fillBoth(a, b);
    values.setExtensionDocument({{"own", "kept"}});
    values.setBlend(0.1f, 0.75f, nullptr);
    const json expected = {{"own", "kept"},
                           {"mSnapshots", {{0.0, 2.0, 4.0, 0.1}, {1.0, 8.0, 100.0, 0.9}}},
                           {"mSnapshotsUIDs", {0u, 0u}},
                           {"mSnapshotPopulated", {true, true}},
                           {"mActiveSnapshot", -2},
                           {"mBlendX", static_cast<double>(0.1f)},
                           {"mBlendY", 0.75}};
    EXPECT_EQ(values.makeRecord(StateExtent::complete).extension, expected);
    EXPECT_EQ(values.extensionDocument(), json({{"own", "kept"}})) << "a copy was written into";
}

TEST_F(SnapshotDocument, comesBackAsItWas) {
    state.fillBoth(a, b);
    values.setBlend(0.1f, 0.75f, nullptr);
    values.setCurrentPresetId(0xFFFFFFFFFFFFFFFFu);
    values.select(1, QM::SnapshotMode::store);
    const QMGenericPreset saved = values.makeRecord(StateExtent::complete);
    State other;
    ASSERT_TRUE(other.values.applyRecord(saved, nullptr));
    EXPECT_EQ(other.values.makeRecord(StateExtent::complete).extension, saved.extension);
    EXPECT_EQ(other.values.activeSnapshot(), 1);
    EXPECT_EQ(other.values.snapshotPresetId(1), 0xFFFFFFFFFFFFFFFFu);
    EXPECT_EQ(other.values.blendCoordinate(false), 0.1f);
}

TEST_F(SnapshotDocument, shorterSnapshotsAreFilledUpWithTheCurrentValues) {
    apply({{"mSnapshots", {{1.0}, json::array()}}, {"mSnapshotPopulated", {true, true}}});
    EXPECT_EQ(values.snapshot(0), (std::vector{1.0, 6.0, 20.0, 0.5}))
        << "the current values are those of the record";
    EXPECT_EQ(values.snapshot(1), (std::vector{0.0, 6.0, 20.0, 0.5}));
}

TEST_F(SnapshotDocument, longerSnapshotsLoseWhatHasNoParameter) {
    apply({{"mSnapshots", {{1.0, 2.0, 3.0, 0.4, 55.0, 66.0}}}});
    EXPECT_EQ(values.snapshot(0), (std::vector{1.0, 2.0, 3.0, 0.4}));
    EXPECT_EQ(values.snapshotCount(), 2) << "what the product has stays";
    EXPECT_FALSE(values.isSnapshotPopulated(1));
}

TEST_F(SnapshotDocument, moreSnapshotsThanTheProductHasAreKept) {
    apply({{"mSnapshots", {{1.0}, {2.0}, {3.0}}},
           {"mSnapshotPopulated", {false, false, true}},
           {"mActiveSnapshot", 2}});
    EXPECT_EQ(values.snapshotCount(), 3);
    EXPECT_EQ(values.activeSnapshot(), 2);
}

TEST_F(SnapshotDocument, aSmallDocumentCannotAskForManySnapshots) {
    apply({{"mSnapshots", json::array_t(100000, json::array())}});
    EXPECT_EQ(values.snapshotCount(), QM::mostSnapshots);
}

TEST_F(SnapshotDocument, theActiveIndexMayBeAnyNumber) {
    struct Row {
        json member;
        std::int32_t active;
    };

    const std::vector<Row> rows{{1.9, 1},
                                {1, 1},
                                {1u, 1},
                                {true, 1},
                                {false, 0},
                                {-1, -1},
                                {-2, -2},
                                {-1.5, -1},
                                {-3, -1},
                                {2, -1},
                                {1e300, -1},
                                {-1e300, -1},
                                {std::numeric_limits<double>::quiet_NaN(), 0},
                                {0xFFFFFFFFFFFFFFFFu, -1}};
    for (const Row& row : rows) {
        apply({{"mActiveSnapshot", row.member}});
        EXPECT_EQ(values.activeSnapshot(), row.active) << row.member;
    }
}

TEST_F(SnapshotDocument, theActiveSnapshotTakesTheRecordsIdentity) {
    apply({{"mSnapshotsUIDs", {5u, 6u}}, {"mActiveSnapshot", 1}});
    EXPECT_EQ(values.snapshotPresetId(0), 5u);
    EXPECT_EQ(values.snapshotPresetId(1), 99u);
}

TEST_F(SnapshotDocument, eachMemberIsTakenOnlyWhenItIsThere) {
    state.fillBoth(a, b);
    apply({{"mBlendY", 0.125}});
    EXPECT_EQ(values.blendCoordinate(true), 0.125f);
    EXPECT_EQ(values.blendCoordinate(false), 0.5f);
    EXPECT_EQ(values.activeSnapshot(), 0);
    EXPECT_EQ(values.snapshot(1), b);
    EXPECT_EQ(values.snapshot(0)[levelIndex], 6.0) << "the active one goes with the values";
    apply({{"mSnapshotPopulated", {true, false, true, true}}, {"mSnapshotsUIDs", {1, 2, 3}}});
    EXPECT_EQ(values.snapshotCount(), 2) << "only the snapshots themselves make snapshots";
    EXPECT_FALSE(values.isSnapshotPopulated(1));
}

TEST_F(SnapshotDocument, aWrongTypeRaisesTheLibrarysErrorAndChangesNothing) {
    struct Row {
        json extension;
        std::string text;
    };

    const std::vector<Row> rows{
        {{{"mSnapshots", "x"}}, "type must be array, but is string"},
        {{{"mSnapshots", {1, 2}}}, "type must be array, but is number"},
        {{{"mSnapshots", {{"x"}}}}, "type must be number, but is string"},
        {{{"mSnapshotsUIDs", 1}}, "type must be array, but is number"},
        {{{"mSnapshotsUIDs", {nullptr}}}, "type must be number, but is null"},
        {{{"mSnapshotPopulated", {{"k", true}}}}, "type must be array, but is object"},
        {{{"mSnapshotPopulated", {1}}}, "type must be boolean, but is number"},
        {{{"mActiveSnapshot", "1"}}, "type must be number, but is string"},
        {{{"mBlendX", nullptr}}, "type must be number, but is null"},
        {{{"mBlendY", json::array()}}, "type must be number, but is array"},
    };
    state.fillBoth(a, b);
    const QMGenericPreset before = values.makeRecord(StateExtent::complete);
    for (const Row& row : rows) {
        try {
            apply(row.extension);
            ADD_FAILURE() << row.extension << " was taken";
        } catch (const json::type_error& error) {
            EXPECT_NE(std::string(error.what()).find(row.text), std::string::npos)
                << row.extension << ": " << error.what();
        }
        const QMGenericPreset after = values.makeRecord(StateExtent::complete);
        EXPECT_EQ(after.values, before.values);
        EXPECT_EQ(after.extension, before.extension);
        EXPECT_EQ(after.uniqueId, before.uniqueId);
        EXPECT_FALSE(values.undoManager().canUndo());
    }
}

TEST_F(SnapshotDocument, identifiersOutOfRangeAreSaturated) {
    apply({{"mSnapshotsUIDs", {1e300, -5.0}}});
    EXPECT_EQ(values.snapshotPresetId(0), std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(values.snapshotPresetId(1), 0u);
}

TEST_F(SnapshotDocument, blendPositionsThatAreNoNumbersBecomeTheMiddle) {
    apply({{"mBlendX", std::numeric_limits<double>::quiet_NaN()}, {"mBlendY", 1e300}});
    EXPECT_EQ(values.blendCoordinate(false), 0.5f);
    EXPECT_EQ(values.blendCoordinate(true), std::numeric_limits<float>::max());
}

TEST_F(SnapshotDocument, aDocumentThatIsNoObjectHasNoMembers) {
    for (const json& document : {json(5), json("text"), json::array({1, 2})}) {
        EXPECT_TRUE(apply(document));
        EXPECT_EQ(values.extensionDocument(), document);
        EXPECT_EQ(values.activeSnapshot(), -1);
    }
    EXPECT_TRUE(values.makeRecord(StateExtent::complete).extension.is_object());
}

} // namespace
