// SPDX-License-Identifier: GPL-3.0-or-later
// The instances of a type: making and recording them, and putting them on a host.
#include "plugin-model/tests/MockEnvironment.h"
#include "plugin-model/tests/MockProcessingHost.h"
#include "plugin-model/tests/TestPlugInModel.h"
#include "services/tests/LogCapture.h"

#include <gtest/gtest.h>

#include <memory>

using ::testing::Ref;
using ::testing::Return;

TEST(NoxPlugInTypeInstances, theBaseCreatesAPlainInstanceWithoutHostInTheTypesEnvironment) {
    NiceEnvironment environment;
    TestTypeGroup group(&environment);
    const std::unique_ptr<INoxPlugIn> plugIn = group.testType().NoxPlugInType::createInstance();
    ASSERT_NE(plugIn, nullptr);
    EXPECT_EQ(plugIn->type(), &group.testType());
    EXPECT_EQ(plugIn->environment(), &environment);
    EXPECT_EQ(plugIn->processingHost(), nullptr);
}

TEST(NoxPlugInTypeInstances, onlyRecordedInstancesAreInItsList) {
    TestTypeGroup group;
    TestType& type = group.testType();
    EXPECT_EQ(type.instanceCount(), 0);
    const auto unrecorded = type.createInstance();
    EXPECT_EQ(type.instanceCount(), 0);
    auto first = type.createAndRecordInstance();
    auto second = type.createAndRecordInstance();
    EXPECT_EQ(type.instanceCount(), 2);
    EXPECT_EQ(type.instanceAt(0), first.get());
    EXPECT_EQ(type.instanceAt(1), second.get());
    EXPECT_EQ(type.instanceAt(2), nullptr);
    EXPECT_EQ(type.instanceAt(-1), nullptr);
    first.reset();
    EXPECT_EQ(type.instanceCount(), 1);
    EXPECT_EQ(type.instanceAt(0), second.get());
    second.reset();
    EXPECT_EQ(type.instanceCount(), 0);
}

namespace {

class NoInstanceType : public TestType {
public:
    using TestType::TestType;

    std::unique_ptr<INoxPlugIn> createInstance() override { return nullptr; }
};

class NoxPlugInTypeInstantiation : public ::testing::Test {
protected:
    TestTypeGroup group;
    TestType& type = group.testType();
    NiceProcessingHost host;
    std::unique_ptr<INoxPlugIn> plugIn = type.createAndRecordInstance();
};

} // namespace

TEST(NoxPlugInTypeInstances, anInstanceThatCannotBeMadeIsNotCounted) {
    TestTypeGroup group;
    NoInstanceType type(group, nullptr, fourCharCode("TST1"), TestTypeKind::complete);
    EXPECT_EQ(type.createAndRecordInstance(), nullptr);
    EXPECT_EQ(type.instanceCount(), 0);
}

TEST_F(NoxPlugInTypeInstantiation, ofNoInstanceOrAForeignOneIsRefusedWithoutALine) {
    const LogCapture capture(QM::LogLevel::error);
    EXPECT_CALL(host, instantiate).Times(0);
    const auto unrecorded = type.createInstance();
    const auto ofTheOther = group.testType(1).createAndRecordInstance();
    EXPECT_EQ(type.instantiate(host, nullptr), 2);
    EXPECT_EQ(type.instantiate(host, unrecorded.get()), 2);
    EXPECT_EQ(type.instantiate(host, ofTheOther.get()), 2);
    EXPECT_EQ(capture.messages(), "");
}

TEST_F(NoxPlugInTypeInstantiation, answersWhatTheHostAnswers) {
    const LogCapture capture(QM::LogLevel::error);
    EXPECT_CALL(host, instantiate(Ref(*plugIn))).WillOnce(Return(0)).WillOnce(Return(-2003));
    EXPECT_EQ(type.instantiate(host, plugIn.get()), 0);
    EXPECT_EQ(type.instantiate(host, plugIn.get()), -2003);
    EXPECT_EQ(capture.messages(), "");
}

TEST_F(NoxPlugInTypeInstantiation, logsAFailureWithItsText) {
    const LogCapture capture(QM::LogLevel::error);
    EXPECT_CALL(host, instantiate).WillOnce(Return(7)).WillOnce(Return(14)).WillOnce(Return(-2005));
    EXPECT_EQ(type.instantiate(host, plugIn.get()), 7);
    EXPECT_EQ(type.instantiate(host, plugIn.get()), 14);
    EXPECT_EQ(type.instantiate(host, plugIn.get()), -2005);
    void* address = &type;
    EXPECT_EQ(
        capture.messages(),
        printed("NPIT[%p]: Error: 7 [No enough slots available on remote host] while "
                "instantiating plug.\n",
                address) +
            printed("NPIT[%p]: Error: 14 [Unknown Error] while instantiating plug.\n", address) +
            printed("NPIT[%p]: Error: -2005 [Nox Driver Error: Out of Memory] while instantiating "
                    "plug.\n",
                    address));
}
