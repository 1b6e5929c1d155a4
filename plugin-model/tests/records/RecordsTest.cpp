// SPDX-License-Identifier: GPL-3.0-or-later
// Settings records made of a values object and applied to it.
#include "plugin-model/tests/ParameterRecordings.h"
#include "plugin-model/tests/StateTestKit.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace stateTest;
using nlohmann::json;

class Records : public testing::Test {
protected:
    [[nodiscard]] QMGenericPreset record(double level) const {
        QMGenericPreset result;
        result.manufacturerCode = maker;
        result.productCode = product;
        result.values = {{fourCharCode("levl"), level}};
        result.uniqueId = 99;
        return result;
    }

    State state;
    Values& values = state.values;
};

TEST_F(Records, holdEveryValueUnderItsIdentifier) {
    values.set(levelIndex, 7.5);
    values.setCurrentPresetId(12);
    const QMGenericPreset made = values.makeRecord(StateExtent::parameters);
    const std::map<FourCharCode, double> expected{{fourCharCode("mbyp"), 0.0},
                                                  {fourCharCode("levl"), 7.5},
                                                  {fourCharCode("ptch"), 20.0},
                                                  {fourCharCode("stay"), 0.5}};
    EXPECT_EQ(made.values, expected);
    EXPECT_EQ(made.name, "");
    EXPECT_EQ(made.valuesTag, 0u);
    EXPECT_EQ(made.manufacturerCode, maker);
    EXPECT_EQ(made.productCode, product);
    EXPECT_EQ(made.variantCode, fourCharCode("****"));
    EXPECT_EQ(made.uniqueId, 12u);
    EXPECT_TRUE(made.extension.is_null());
}

TEST_F(Records, ofAValuesObjectWithoutCodesCarryTheSetsOwn) {
    QM::QMParameterValues plain(state.set, 44100.0);
    EXPECT_EQ(plain.makeRecord(StateExtent::parameters).manufacturerCode, maker);
    EXPECT_EQ(plain.makeRecord(StateExtent::parameters).productCode, typeCode);
}

TEST_F(Records, carryTheExtensionDocumentUnlessItHoldsNothing) {
    for (const json& nothing : {json(), json::object(), json::array()}) {
        values.setExtensionDocument(nothing);
        EXPECT_TRUE(values.makeRecord(StateExtent::parameters).extension.is_null());
    }
    values.setExtensionDocument({{"key", 1}});
    EXPECT_EQ(values.makeRecord(StateExtent::parameters).extension, json({{"key", 1}}));
}

TEST_F(Records, areAppliedInOneFlushAndTold) {
    parameterTest::Events events;
    parameterTest::RecordingListener listener("l", events);
    parameterTest::FlushRecord flushes;
    values.setFlusher(std::make_unique<parameterTest::RecordingFlusher>(flushes));
    values.addListener(listener);
    QMGenericPreset twoValues = record(7.5);
    twoValues.values[fourCharCode("ptch")] = 30.0;
    QM::QMParameterChanges changes;
    ASSERT_TRUE(values.applyRecord(twoValues, &changes));
    EXPECT_EQ(flushes.flushes, 1);
    EXPECT_EQ(events, (parameterTest::Events{"l set 1 7.5", "l set 2 30"}));
    ASSERT_EQ(changes.count(), 2);
    EXPECT_EQ(changes.indices()[0], levelIndex);
    EXPECT_EQ(changes.values()[1], 30.0);
    EXPECT_EQ(values.currentPresetId(), 99u);
    EXPECT_EQ(values.getValue(stayIndex), 0.5) << "what the record lacks stays";
    values.removeListener(listener);
    values.setFlusher(nullptr);
}

TEST_F(Records, reportOnlyChangedParameters) {
    QM::QMParameterChanges changes;
    values.applyRecord(record(5.0), &changes);
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(Records, ofAnotherMakerOrProductChangeNothing) {
    QMGenericPreset otherMaker = record(9.0);
    otherMaker.manufacturerCode = fourCharCode("ELSE");
    QMGenericPreset otherProduct = record(9.0);
    otherProduct.productCode = fourCharCode("ELSE");
    EXPECT_FALSE(values.applyRecord(otherMaker, nullptr));
    EXPECT_FALSE(values.applyRecord(otherProduct, nullptr));
    EXPECT_EQ(values.getValue(levelIndex), 5.0);
    EXPECT_FALSE(values.undoManager().canUndo());
    EXPECT_TRUE(values.acceptsRecord(record(9.0)));
    EXPECT_FALSE(values.acceptsRecord(otherMaker));
}

TEST_F(Records, leaveTheBypassAloneUnlessItIsTakenOffTheList) {
    QMGenericPreset bypassed = record(9.0);
    bypassed.values[fourCharCode("mbyp")] = 1.0;
    values.applyRecord(bypassed, nullptr);
    EXPECT_EQ(values.getValue(bypassIndex), 0.0);

    values.excludeID(fourCharCode("levl"));
    values.applyRecord(record(3.0), nullptr);
    EXPECT_EQ(values.getValue(levelIndex), 9.0);
    values.resetExcludedIDs();
    values.applyRecord(record(3.0), nullptr);
    EXPECT_EQ(values.getValue(levelIndex), 3.0);
    EXPECT_EQ(values.excludedIDs(), std::set<FourCharCode>{fourCharCode("mbyp")});
}

TEST_F(Records, withValuesOutOfRangeOrNoNumbersAreClamped) {
    values.applyRecord(record(1e300), nullptr);
    EXPECT_EQ(values.getValue(levelIndex), 10.0);
    values.applyRecord(record(std::numeric_limits<double>::quiet_NaN()), nullptr);
    EXPECT_EQ(values.getValue(levelIndex), 0.0);
}

TEST_F(Records, bringTheirDocumentWithThem) {
    values.setExtensionDocument({{"old", 1}});
    QMGenericPreset withDocument = record(9.0);
    withDocument.extension = {{"new", 2}, {"mBlendX", 0.25}};
    values.applyRecord(withDocument, nullptr);
    EXPECT_EQ(values.extensionDocument(), json({{"new", 2}})) << "snapshot members are taken out";
    EXPECT_EQ(values.blendCoordinate(false), 0.25f);
    values.applyRecord(record(9.0), nullptr);
    EXPECT_TRUE(values.extensionDocument().is_null());
}

TEST_F(Records, thatSayNothingOfControllersKeepTheMappingsInForce) {
    const json map{{"levl", {{"source_type", "MIDI"}}}};
    values.setExtensionDocument({{"parameterMap", map}, {"old", 1}});
    values.applyRecord(record(9.0), nullptr);
    EXPECT_EQ(values.extensionDocument(), json({{"parameterMap", map}}));
    QMGenericPreset withDocument = record(9.0);
    withDocument.extension = {{"parameterMap", json::object()}, {"new", 2}};
    values.applyRecord(withDocument, nullptr);
    EXPECT_EQ(values.extensionDocument(), json({{"parameterMap", map}, {"new", 2}}));
    withDocument.extension = {{"parameterMap", {{"ptch", {{"source_type", "MIDI"}}}}}};
    values.applyRecord(withDocument, nullptr);
    EXPECT_EQ(values.extensionDocument(), withDocument.extension);
}

TEST_F(Records, areComparedWithTheCurrentSettings) {
    EXPECT_TRUE(values.equalsRecord(record(5.0)));
    EXPECT_TRUE(values.equalsRecord(record(5.00001)));
    EXPECT_FALSE(values.equalsRecord(record(5.1)));
    QMGenericPreset bypassed = record(5.0);
    bypassed.values[fourCharCode("mbyp")] = 1.0;
    EXPECT_TRUE(values.equalsRecord(bypassed));
    QMGenericPreset tagged = record(5.0);
    tagged.valuesTag = 1;
    EXPECT_FALSE(values.equalsRecord(tagged));
}

TEST_F(Records, knowTheSetsOwnCodesAndVersion) {
    EXPECT_TRUE(values.matchesFirstCode(maker));
    EXPECT_FALSE(values.matchesFirstCode(product));
    EXPECT_TRUE(values.matchesSecondCode(typeCode));
    EXPECT_FALSE(values.matchesSecondCode(product));
    EXPECT_TRUE(values.isNotAboveVersion(0));
    EXPECT_FALSE(values.isNotAboveVersion(1));
}

} // namespace
