// SPDX-License-Identifier: GPL-3.0-or-later
//
// How the interface's numbers read.

#include "tools/brolt-host/tests/HostTestKit.h"
#include "tools/brolt-host/vst3/Vst3Report.h"
#include "tools/brolt-host/vst3/Vst3Result.h"

#include <gtest/gtest.h>

using namespace Steinberg;

TEST(Vst3Result, answersAreToldInWords) {
    EXPECT_EQ(vst3ResultText(kResultOk), "OK");
    EXPECT_EQ(vst3ResultText(kResultFalse), "false");
    EXPECT_EQ(vst3ResultText(kInvalidArgument), "invalid argument");
    EXPECT_EQ(vst3ResultText(kNotImplemented), "not implemented");
    EXPECT_EQ(vst3ResultText(kInternalError), "internal error");
    EXPECT_EQ(vst3ResultText(kNotInitialized), "not initialised");
    EXPECT_EQ(vst3ResultText(kOutOfMemory), "out of memory");
    EXPECT_EQ(vst3ResultText(kNoInterface), "no such interface");
    EXPECT_EQ(vst3ResultText(12345), "result 12345");
}

TEST(Vst3Result, everyAnswerButOKIsAnError) {
    EXPECT_EQ(errorOf([] { requireOk(kResultOk, "setState"); }), "no error");
    EXPECT_EQ(errorOf([] { requireOk(kNotImplemented, "setState"); }),
              "the VST3 plug-in answers setState with 'not implemented'");
}

TEST(Vst3Result, operationsThatMayBeLeftOutMayBeLeftOut) {
    EXPECT_EQ(errorOf([] { requireOkIfImplemented(kNotImplemented, "setProcessing"); }),
              "no error");
    EXPECT_EQ(errorOf([] { requireOkIfImplemented(kResultFalse, "setProcessing"); }),
              "the VST3 plug-in answers setProcessing with 'false'");
}

TEST(Vst3Report, flagsAreToldInWords) {
    EXPECT_EQ(parameterFlagsText(0), "-");
    EXPECT_EQ(parameterFlagsText(1), "automatable");
    EXPECT_EQ(parameterFlagsText(0x10009), "automatable, list, bypass");
    EXPECT_EQ(parameterFlagsText(0x10 | 0x2), "read-only, hidden");
    EXPECT_EQ(factoryFlagsText(0x10), "Unicode");
    EXPECT_EQ(factoryFlagsText(0x1 | 0x2 | 0x8),
              "discardable classes, licence check, not unloaded");
}

TEST(Vst3Report, flagsWithoutAWordAreToldAsANumber) {
    EXPECT_EQ(factoryFlagsText(0x50), "Unicode, 0x40");
    EXPECT_EQ(parameterFlagsText(static_cast<int32>(0x80000000U)), "0x80000000");
}
