// SPDX-License-Identifier: GPL-3.0-or-later
// Parameters through an instance: what the values object gets, what the environment hears.
#include "plugin-model/tests/MockEnvironment.h"
#include "plugin-model/tests/MockProcessingHost.h"
#include "plugin-model/tests/TestPlugInModel.h"
#include "services/tests/LogCapture.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <stdexcept>

using ::testing::InSequence;
using ::testing::Ref;

namespace {

class NoxPlugInParameters : public ::testing::Test {
protected:
    NiceEnvironment environment;
    NiceProcessingHost host;
    TestTypeGroup group{&environment};
    TestPlugIn plugIn{group.testType(), nullptr, &environment};

    void attach() {
        plugIn.setProcessingHost(&host);
        plugIn.pushedLengths.clear();
    }
};

} // namespace

TEST_F(NoxPlugInParameters, startAtTheirDefaults) {
    EXPECT_EQ(plugIn.parameterCount(), 3);
    EXPECT_EQ(plugIn.parameterValue(0), 5.0);
    EXPECT_EQ(plugIn.normalisedValue(0), 0.5);
    EXPECT_EQ(plugIn.parameterValue(2), 10.0);
    EXPECT_EQ(plugIn.parameterValue(-1), 0.0);
    EXPECT_EQ(plugIn.parameterValue(3), 0.0);
    EXPECT_EQ(plugIn.parameterSet(), group.testType().parameterSet());
}

TEST_F(NoxPlugInParameters, questionsAboutThemAreTheSetsToAnswer) {
    std::array<char, 16> text{};
    plugIn.copyName(1, text.data(), text.size());
    EXPECT_STREQ(text.data(), "Bravo");
    plugIn.formatValueText(0, 5.5, text.data(), text.size());
    EXPECT_STREQ(text.data(), "5.5");
    EXPECT_STREQ(plugIn.unitPointer(2), "%");
    EXPECT_EQ(plugIn.minimum(2), 1.0);
    EXPECT_EQ(plugIn.maximum(2), 100.0);
    EXPECT_EQ(plugIn.defaultValue(2), 10.0);
    EXPECT_EQ(plugIn.taper(1), NoxTaper::stepped);
    EXPECT_EQ(plugIn.step(0), 0.5);
    EXPECT_EQ(plugIn.idOfIndex(2), fourCharCode("chrl"));
    EXPECT_EQ(plugIn.indexOfID(fourCharCode("brvo")), 1);
    EXPECT_EQ(plugIn.indexOfID(fourCharCode("none")), -1);
    EXPECT_EQ(plugIn.normalisedToPlain(0, 0.5), 5.0);
    EXPECT_EQ(plugIn.plainToNormalised(0, 2.5), 0.25);
    EXPECT_EQ(plugIn.maximum(3), 0.0);
    EXPECT_STREQ(plugIn.namePointer(-1), "");
}

TEST_F(NoxPlugInParameters, aChangeReachesTheValuesAndTheEnvironmentOnce) {
    EXPECT_CALL(environment, parameterChanged(Ref(plugIn), 0, 7.0, 0)).Times(1);
    plugIn.setParameterValue(0, 7.0);
    EXPECT_EQ(plugIn.parameterValue(0), 7.0);
    EXPECT_TRUE(plugIn.testChangedFlag(0));
    EXPECT_FALSE(plugIn.testChangedFlag(1));
    plugIn.clearChangedFlag(0);
    EXPECT_FALSE(plugIn.testChangedFlag(0));
}

TEST_F(NoxPlugInParameters, theEnvironmentHearsTheValueAsStored) {
    EXPECT_CALL(environment, parameterChanged(Ref(plugIn), 0, 10.0, 0));
    plugIn.setParameterValue(0, 1000.0);
}

TEST_F(NoxPlugInParameters, aValueInForceAlreadyIsNoNews) {
    EXPECT_CALL(environment, parameterChanged).Times(0);
    plugIn.setParameterValue(0, 5.0);
}

TEST_F(NoxPlugInParameters, notANumberBecomesTheMinimum) {
    EXPECT_CALL(environment, parameterChanged(Ref(plugIn), 2, 1.0, 0));
    plugIn.setParameterValue(2, std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(plugIn.parameterValue(2), 1.0);
}

TEST_F(NoxPlugInParameters, aNormalisedChangeGoesThroughTheTaper) {
    EXPECT_CALL(environment, parameterChanged(Ref(plugIn), 0, 2.5, 0));
    plugIn.setNormalisedValue(0, 0.25);
    EXPECT_EQ(plugIn.parameterValue(0), 2.5);
}

TEST_F(NoxPlugInParameters, storingAndFlushingIsAChangeToo) {
    attach();
    EXPECT_CALL(environment, parameterChanged(Ref(plugIn), 0, 3.0, 0)).Times(1);
    plugIn.storeAndFlush(0, 3.0);
    plugIn.storeAndFlush(0, 3.0);
    EXPECT_EQ(plugIn.parameterValue(0), 3.0);
    EXPECT_EQ(plugIn.pushedLengths.size(), 2u);
}

TEST_F(NoxPlugInParameters, aChangeIsRecordedForTheCommand) {
    QM::QMParameterChanges changes;
    plugIn.setParameterValue(1, 0.0, &changes);
    plugIn.setParameterValue(0, 2.0, &changes);
    ASSERT_EQ(changes.count(), 2);
    EXPECT_EQ(changes.indices()[0], 1);
    EXPECT_EQ(changes.values()[0], 0.0);
    EXPECT_EQ(changes.indices()[1], 0);
    EXPECT_EQ(changes.values()[1], 2.0);
}

TEST_F(NoxPlugInParameters, anIndexOutOfRangeIsLoggedAndDropped) {
    attach();
    const LogCapture capture(QM::LogLevel::error);
    EXPECT_CALL(environment, parameterChanged).Times(0);
    plugIn.setParameterValue(3, 1.0);
    plugIn.setParameterValue(-1, 1.0);
    plugIn.setNormalisedValue(4, 1.0);
    plugIn.storeAndFlush(5, 1.0);
    EXPECT_EQ(capture.messages(), "Error: got unexpected parameter index: 3\n"
                                  "Error: got unexpected parameter index: -1\n"
                                  "Error: got unexpected parameter index: 4\n"
                                  "Error: got unexpected parameter index: 5\n");
    EXPECT_TRUE(plugIn.pushedLengths.empty());
}

TEST_F(NoxPlugInParameters, aBracketFlushesOnceAtItsOuterEnd) {
    attach();
    plugIn.beginAccumulate();
    plugIn.beginAccumulate();
    plugIn.setParameterValue(0, 1.0);
    plugIn.setParameterValue(2, 2.0);
    plugIn.endAccumulate();
    EXPECT_TRUE(plugIn.pushedLengths.empty());
    plugIn.endAccumulate();
    EXPECT_EQ(plugIn.pushedLengths.size(), 1u);
    EXPECT_THROW(plugIn.endAccumulate(), std::logic_error);
}

TEST_F(NoxPlugInParameters, theFirstTouchAndTheLastReleaseReachTheEnvironment) {
    const InSequence inOrder;
    EXPECT_CALL(environment, parameterTouched(Ref(plugIn), 1)).Times(1);
    EXPECT_CALL(environment, parameterReleased(Ref(plugIn), 1)).Times(1);
    plugIn.beginTouch(1);
    plugIn.beginTouch(1);
    EXPECT_TRUE(plugIn.isTouched(1));
    EXPECT_FALSE(plugIn.isTouched(0));
    plugIn.endTouch(1);
    EXPECT_TRUE(plugIn.isTouched(1));
    plugIn.endTouch(1);
    EXPECT_FALSE(plugIn.isTouched(1));
}

TEST_F(NoxPlugInParameters, touchesOutOfRangeAreNobodys) {
    EXPECT_CALL(environment, parameterTouched).Times(0);
    EXPECT_CALL(environment, parameterReleased).Times(0);
    for (const std::int32_t index : {-1, 3}) {
        plugIn.beginTouch(index);
        EXPECT_FALSE(plugIn.isTouched(index));
        plugIn.endTouch(index);
        EXPECT_FALSE(plugIn.testChangedFlag(index));
        plugIn.clearChangedFlag(index);
    }
}

TEST_F(NoxPlugInParameters, aRefreshFlushesOneCompletePacketAndOnlyWithAnArgument) {
    attach();
    EXPECT_CALL(environment, parameterChanged).Times(0);
    plugIn.refresh(nullptr);
    EXPECT_TRUE(plugIn.pushedLengths.empty());
    plugIn.refresh(&host);
    EXPECT_EQ(plugIn.pushedLengths, std::vector<std::uint64_t>{8});
    EXPECT_TRUE(plugIn.hookCalls.empty());
}

TEST_F(NoxPlugInParameters, packetsAreGeneratedAndReleasedByTheValues) {
    PacketList packets;
    plugIn.generatePackets(packets);
    ASSERT_EQ(packets.size(), 2u);
    EXPECT_EQ(packets[0]->kind, Packet::coefficientKind);
    EXPECT_EQ(packets[0]->length, 8u);
    plugIn.releasePackets(packets);
    EXPECT_TRUE(packets.empty());
}

TEST_F(NoxPlugInParameters, aControllerIsMadeOnRequestAndKept) {
    EXPECT_EQ(plugIn.controllerOfIndex(-1), nullptr);
    EXPECT_EQ(plugIn.controllerOfIndex(3), nullptr);
    NoxParameterController* second = plugIn.controllerOfIndex(2);
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(second->index(), 2);
    EXPECT_EQ(&second->plugIn(), &plugIn);
    NoxParameterController* first = plugIn.controllerOfIndex(0);
    EXPECT_NE(first, second);
    EXPECT_EQ(plugIn.controllerOfIndex(2), second);
    EXPECT_EQ(plugIn.controllerOfID(fourCharCode("chrl")), second);
    EXPECT_EQ(plugIn.controllerOfID(fourCharCode("alfa")), first);
    EXPECT_EQ(plugIn.controllerOfID(fourCharCode("none")), nullptr);
}

TEST_F(NoxPlugInParameters, theValuesAreLoggedAtLevelOne) {
    const LogCapture capture(QM::LogLevel::error);
    plugIn.logParameterValues();
    EXPECT_EQ(capture.messages(), "==================================\n"
                                  "\t 0 \t alfa \t Alfa \t 5 \n"
                                  "\t 1 \t brvo \t Bravo \t 1 \n"
                                  "\t 2 \t chrl \t Charly \t 10 \n");
}

TEST_F(NoxPlugInParameters, theDefaultsTableGoesToStandardError) {
    testing::internal::CaptureStderr();
    plugIn.dumpDefaultsTable("Thing");
    const std::string text = testing::internal::GetCapturedStderr();
    EXPECT_NE(text.find("// parameters for Thing "), std::string::npos) << text;
    EXPECT_NE(text.find("5.00000000,\t// 0 'alfa' 'Alfa'"), std::string::npos) << text;
}

TEST_F(NoxPlugInParameters, withoutAnEnvironmentChangesAreQuiet) {
    TestPlugIn alone(group.testType(), nullptr, nullptr);
    alone.setParameterValue(0, 7.0);
    alone.beginTouch(0);
    alone.endTouch(0);
    EXPECT_EQ(alone.parameterValue(0), 7.0);
}

TEST(NoxPlugInBypass, theTypeNamesTheBypassParameter) {
    NoxPlugInTypeFields fields;
    fields.bypassParameterID = fourCharCode("brvo");
    TestTypeGroup group(nullptr, TestTypeKind::complete, fields);
    const TestPlugIn plugIn(group.testType(), nullptr, nullptr);
    EXPECT_TRUE(plugIn.isBypassParameterIndex(1));
    for (const std::int32_t index : {-1, 0, 2, 3})
        EXPECT_FALSE(plugIn.isBypassParameterIndex(index)) << index;
}
