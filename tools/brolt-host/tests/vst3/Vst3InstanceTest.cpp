// SPDX-License-Identifier: GPL-3.0-or-later
//
// An instance's beginning and end, with plug-ins of one object and of two.

#include "tools/brolt-host/vst3/Vst3Instance.h"

#include "tools/brolt-host/tests/HostTestKit.h"
#include "tools/brolt-host/tests/vst3/FakeVst3PlugIn.h"

#include <gtest/gtest.h>

using Calls = std::vector<std::string>;

TEST(Vst3Instance, aPlugInOfOneObjectIsInitialisedAndTerminatedOnce) {
    FakeVst3PlugIn plugIn;
    { const Vst3Instance instance(plugIn.effectClass()); }
    EXPECT_EQ(plugIn.calls, (Calls{"initialize", "setComponentHandler some",
                                   "setComponentHandler none", "terminate"}));
    EXPECT_NE(plugIn.context, nullptr);
    EXPECT_EQ(plugIn.livingObjects, 0);
}

TEST(Vst3Instance, aControllerOfItsOwnIsCreatedConnectedAndTerminatedAsWell) {
    FakeVst3PlugIn plugIn;
    plugIn.isSeparate = true;
    { const Vst3Instance instance(plugIn.effectClass()); }
    EXPECT_EQ(plugIn.calls,
              (Calls{"initialize", "getControllerClassId", "controller initialize", "connect",
                     "controller connect", "setComponentHandler some", "setComponentHandler none",
                     "disconnect", "controller disconnect", "terminate", "controller terminate"}));
    EXPECT_EQ(plugIn.livingObjects, 0);
}

TEST(Vst3Instance, whatRefusesToBeInitialisedIsNotTerminated) {
    FakeVst3PlugIn plugIn;
    plugIn.refused = "initialize";
    EXPECT_EQ(errorOf([&] { const Vst3Instance instance(plugIn.effectClass()); }),
              "the VST3 plug-in answers initialize with 'false'");
    EXPECT_EQ(plugIn.calls, Calls{"initialize"});
    EXPECT_EQ(plugIn.livingObjects, 0);
}

TEST(Vst3Instance, theComponentIsTerminatedWhenItsControllerRefuses) {
    FakeVst3PlugIn plugIn;
    plugIn.isSeparate = true;
    plugIn.refused = "controller initialize";
    EXPECT_EQ(errorOf([&] { const Vst3Instance instance(plugIn.effectClass()); }),
              "the VST3 plug-in answers initialize of the controller with 'false'");
    EXPECT_EQ(plugIn.calls.back(), "terminate");
    EXPECT_EQ(plugIn.livingObjects, 0);
}

TEST(Vst3Instance, aClassThatCannotBeCreatedIsRefused) {
    FakeVst3PlugIn plugIn;
    plugIn.refused = "createInstance";
    EXPECT_EQ(errorOf([&] { const Vst3Instance instance(plugIn.effectClass()); }),
              "the VST3 plug-in has no component");
}

TEST(Vst3Instance, aComponentThatProcessesNoAudioIsRefused) {
    FakeVst3PlugIn plugIn;
    plugIn.hasProcessor = false;
    EXPECT_EQ(errorOf([&] { const Vst3Instance instance(plugIn.effectClass()); }),
              "the VST3 plug-in has no audio processor");
    EXPECT_EQ(plugIn.calls, (Calls{"initialize", "terminate"}));
    EXPECT_EQ(plugIn.livingObjects, 0);
}

TEST(Vst3Instance, busesAreArrangedAsMonoOrStereo) {
    FakeVst3PlugIn plugIn;
    Vst3Instance instance(plugIn.effectClass());
    instance.arrangeBuses(1);
    // The bit of the mono speaker.
    EXPECT_EQ(plugIn.calls.back(), "setBusArrangements 524288 524288");
    instance.arrangeBuses(2);
    // The bits of left and right.
    EXPECT_EQ(plugIn.calls.back(), "setBusArrangements 3 3");
}

TEST(Vst3Instance, otherBusesThanOneInputAndOneOutputAreRefused) {
    FakeVst3PlugIn plugIn;
    plugIn.inputBuses = 2;
    Vst3Instance instance(plugIn.effectClass());
    EXPECT_EQ(errorOf([&] { instance.arrangeBuses(2); }),
              "the VST3 plug-in has 2 input and 1 output buses; one of each is needed");
}
