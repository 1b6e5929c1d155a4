// SPDX-License-Identifier: GPL-3.0-or-later
// What a new instance says of itself, and what its making tells others.
#include "plugin-model/tests/MockEnvironment.h"
#include "plugin-model/tests/MockProcessingHost.h"
#include "plugin-model/tests/TestPlugInModel.h"

#include <gtest/gtest.h>

using ::testing::_;
using ::testing::Pointee;
using ::testing::Ref;
using ::testing::StrictMock;

TEST(NoxPlugInConstruction, withoutAHostTheRateIs44100AndTheTransportAtItsDefaults) {
    TestTypeGroup group;
    const TestPlugIn plugIn(group.testType(), nullptr, nullptr);
    EXPECT_EQ(plugIn.sampleRate(), 44100.0);
    EXPECT_EQ(plugIn.tempo(), 120.0);
    EXPECT_EQ(plugIn.timeSignature().numerator, 4u);
    EXPECT_EQ(plugIn.timeSignature().denominator, 4u);
    EXPECT_EQ(plugIn.transportPosition().playRate, 1.0);
    EXPECT_EQ(plugIn.transportPosition().position, 0.0);
    EXPECT_EQ(plugIn.markPositions(), (std::array<std::int64_t, 3>{-1, -1, -1}));
}

TEST(NoxPlugInConstruction, theTransportPositionCanBeSet) {
    TestTypeGroup group;
    TestPlugIn plugIn(group.testType(), nullptr, nullptr);
    plugIn.setTransportPosition({0.5, 12.25});
    EXPECT_EQ(plugIn.transportPosition().playRate, 0.5);
    EXPECT_EQ(plugIn.transportPosition().position, 12.25);
}

TEST(NoxPlugInConstruction, theBooksAreEmpty) {
    TestTypeGroup group;
    TestPlugIn plugIn(group.testType(), nullptr, nullptr);
    EXPECT_EQ(plugIn.processingHost(), nullptr);
    EXPECT_EQ(plugIn.hostKind(), 0);
    EXPECT_EQ(plugIn.environment(), nullptr);
    EXPECT_EQ(plugIn.ioConnectionController(), nullptr);
    EXPECT_EQ(plugIn.stateFlag(), 0);
    EXPECT_EQ(plugIn.remoteInstanceID(), 0u);
    EXPECT_EQ(plugIn.slotRecord(), nullptr);
    EXPECT_FALSE(plugIn.isOwnSlot(0));
    EXPECT_FALSE(plugIn.isOwnSlot(-1));
    EXPECT_EQ(plugIn.type(), &group.testType());
    EXPECT_EQ(plugIn.group(), &group);
    EXPECT_EQ(plugIn.typeCodeOfInstance(), fourCharCode("TST1"));
}

TEST(NoxPlugInConstruction, whatCanBeSetIsAnswered) {
    TestTypeGroup group;
    NiceEnvironment environment;
    TestPlugIn plugIn(group.testType(), nullptr, nullptr);
    plugIn.setEnvironment(&environment);
    plugIn.setRemoteInstanceID(0x123456789ABCDEFu);
    plugIn.setStateFlag(200);
    plugIn.setSlotNumber(3);
    EXPECT_EQ(plugIn.environment(), &environment);
    EXPECT_EQ(plugIn.remoteInstanceID(), 0x123456789ABCDEFu);
    EXPECT_EQ(plugIn.stateFlag(), 200);
    ASSERT_NE(plugIn.slotRecord(), nullptr);
    EXPECT_EQ(plugIn.slotRecord()->index, 3);
    EXPECT_TRUE(plugIn.isOwnSlot(3));
    EXPECT_FALSE(plugIn.isOwnSlot(2));
}

TEST(NoxPlugInConstruction, aTypeThatNobodyFilledGivesUndefinedTexts) {
    TestTypeGroup group;
    const TestPlugIn plugIn(group.testType(), nullptr, nullptr);
    EXPECT_EQ(plugIn.displayName(), "Undefined Plugin");
    EXPECT_EQ(plugIn.shortName(), "Undefined Plugin");
    EXPECT_EQ(plugIn.description(), "Undefined Plugin Description");
}

TEST(NoxPlugInConstruction, theTextsComeFromTheTypeAndBelongToTheInstance) {
    NoxPlugInTypeFields fields;
    fields.displayNameWithMaker = "Maker Thing";
    fields.shortName = "Thng";
    fields.description = "A thing";
    TestTypeGroup group(nullptr, TestTypeKind::complete, fields);
    TestPlugIn plugIn(group.testType(), nullptr, nullptr);
    EXPECT_EQ(plugIn.displayName(), "Maker Thing");
    EXPECT_EQ(plugIn.shortName(), "Thng");
    EXPECT_EQ(plugIn.description(), "A thing");
    plugIn.setDisplayName("a");
    plugIn.setShortName("b");
    plugIn.setDescription("c");
    EXPECT_EQ(plugIn.displayName(), "a");
    EXPECT_EQ(plugIn.shortName(), "b");
    EXPECT_EQ(plugIn.description(), "c");
    EXPECT_EQ(group.testType().displayNameWithMaker(), "Maker Thing");
}

TEST(NoxPlugInConstruction, aHostGivesItsRate) {
    TestTypeGroup group;
    NiceProcessingHost host(NoxArchitecture::native, 96000.0);
    const TestPlugIn plugIn(group.testType(), &host, nullptr);
    EXPECT_EQ(plugIn.sampleRate(), 96000.0);
    EXPECT_EQ(plugIn.parameterValues()->sampleRate(), 96000.0);
    EXPECT_EQ(plugIn.hostKind(), NoxArchitecture::native);
}

TEST(NoxPlugInConstruction, theEnvironmentHearsOfTheRate) {
    TestTypeGroup group;
    StrictMock<MockEnvironment> environment;
    EXPECT_CALL(environment, sampleRateSet(_, Pointee(44100.0)));
    EXPECT_CALL(environment, plugInGoingAway);
    const TestPlugIn plugIn(group.testType(), nullptr, &environment);
}

TEST(NoxPlugInConstruction, aTypeWithoutValuesGivesItsDefaultsAndTellsNobody) {
    TestTypeGroup group(nullptr, TestTypeKind::withoutValues);
    StrictMock<MockEnvironment> environment;
    EXPECT_CALL(environment, plugInGoingAway);
    const TestPlugIn plugIn(group.testType(), nullptr, &environment);
    EXPECT_EQ(plugIn.parameterValues(), nullptr);
    EXPECT_EQ(plugIn.parameterCount(), 3);
    EXPECT_EQ(plugIn.parameterValue(0), 5.0);
    EXPECT_EQ(plugIn.parameterValue(1), 1.0);
    EXPECT_EQ(plugIn.parameterValue(2), 10.0);
    EXPECT_EQ(plugIn.parameterValue(-1), 0.0);
    EXPECT_EQ(plugIn.parameterValue(3), 0.0);
    EXPECT_EQ(plugIn.normalisedValue(0), 0.5);
}

TEST(NoxPlugInConstruction, aTypeWithoutASetHasNoParameters) {
    TestTypeGroup group(nullptr, TestTypeKind::withoutSet);
    TestPlugIn plugIn(group.testType(), nullptr, nullptr);
    EXPECT_EQ(plugIn.parameterSet(), nullptr);
    EXPECT_EQ(plugIn.parameterCount(), 0);
    EXPECT_EQ(plugIn.parameterValue(0), 0.0);
    EXPECT_EQ(plugIn.normalisedValue(0), 0.0);
    EXPECT_EQ(plugIn.controllerOfIndex(0), nullptr);
    EXPECT_EQ(plugIn.controllerOfID(fourCharCode("alfa")), nullptr);
    EXPECT_FALSE(plugIn.isBypassParameterIndex(0));
    EXPECT_FALSE(plugIn.isBypassParameterIndex(-1));
}

TEST(NoxPlugInConstruction, theInstanceReplaysTheValuesRecordedChanges) {
    TestTypeGroup group;
    NiceEnvironment environment;
    TestPlugIn plugIn(group.testType(), nullptr, &environment);
    EXPECT_CALL(environment, parameterChanged(Ref(plugIn), 0, 7.0, 0));
    plugIn.parameterValues()->replayParameterValue(0, 7.0);
    EXPECT_EQ(plugIn.parameterValue(0), 7.0);
}

TEST(NoxPlugInConstruction, theProcessingHooksAreNeutralInTheBase) {
    TestTypeGroup group;
    NoxPlugIn plugIn(group.testType(), nullptr, nullptr);
    float sample = 0.25F;
    float* channel = &sample;
    const std::int32_t frames = 1;
    NoxProcessBlock block{1, 1, 0, &channel};
    NoxHostManagedBlock managed{};
    managed.inputs = managed.outputs = &channel;
    managed.frameCount = &frames;
    std::array<unsigned char, 256> memory{};
    const Packet packet(Packet::coefficientKind, 72);

    plugIn.createProcessingState();
    plugIn.process(block, block);
    plugIn.processWithMeters(managed);
    plugIn.resetProcessingState();
    plugIn.pushCoefficients(packet);
    plugIn.handleMessage(packet);
    plugIn.receiveAnalysis(packet);
    plugIn.discardPendingCoefficients();
    plugIn.destroyProcessingState();
    EXPECT_EQ(sample, 0.25F);
    EXPECT_EQ(plugIn.initialiseStateBuffer(memory.data(), memory.size()), 0);
    EXPECT_EQ(memory, (std::array<unsigned char, 256>{}));
    EXPECT_EQ(plugIn.analysisOffset(0), -1);
    EXPECT_EQ(plugIn.requestCounterOffset(), -1);
    EXPECT_EQ(plugIn.analysisWordCount(), 0u);
    EXPECT_EQ(plugIn.processingData(), nullptr);
    EXPECT_EQ(plugIn.processingDataSize(), 0u);
    EXPECT_EQ(plugIn.dumpProcessingState(), 0);
}
