// SPDX-License-Identifier: GPL-3.0-or-later
// What is left of a host and its instances when either ends, with real instances.
#include "QMShell/hosting/QMShellPlugInProcessingHost.h"
#include "QMShell/hosting/tests/MockHostedPlugIn.h"
#include "services/tests/LogCapture.h"

#include <gtest/gtest.h>

#include <memory>

using ::testing::InSequence;

TEST(ProcessingHostEnd, tellsEverySlottedInstanceInSlotOrder) {
    TestTypeGroup group;
    NiceHostedPlugIn first(group);
    NiceHostedPlugIn second(group);
    NiceHostedPlugIn third(group);
    auto host = std::make_unique<QMShellPlugInProcessingHost>();
    host->setSlotLimit(-1);
    for (MockHostedPlugIn* plugIn : {&first, &second, &third})
        host->instantiate(*plugIn);
    host->removePlugIn(&second);
    const InSequence inOrder;
    EXPECT_CALL(second, setProcessingHost).Times(0);
    EXPECT_CALL(first, setProcessingHost(nullptr));
    EXPECT_CALL(third, setProcessingHost(nullptr));
    host.reset();
}

TEST(ProcessingHostEnd, leavesRealInstancesWithoutAHost) {
    TestTypeGroup group;
    TestPlugIn plugIn(group.testType(), nullptr, nullptr);
    {
        QMShellPlugInProcessingHost host;
        host.setSlotLimit(1);
        ASSERT_EQ(host.instantiate(plugIn), 0);
        EXPECT_EQ(plugIn.processingHost(), &host);
        EXPECT_EQ(plugIn.pushedLengths, std::vector<std::uint64_t>{8}); // the first flush
    }
    EXPECT_EQ(plugIn.processingHost(), nullptr);
    EXPECT_EQ(plugIn.ioConnectionController(), nullptr);
}

TEST(ProcessingHostEnd, anInstanceThatEndsFirstLeavesItsSlot) {
    TestTypeGroup group;
    QMShellPlugInProcessingHost host;
    host.setSlotLimit(1);
    auto plugIn = std::make_unique<TestPlugIn>(group.testType(), nullptr, nullptr);
    ASSERT_EQ(host.instantiate(*plugIn), 0);
    void* left = plugIn->allocateRemoteBuffer(8, "left");
    const LogCapture capture(QM::LogLevel::error);
    plugIn.reset();
    EXPECT_EQ(host.slotCount(), 0);
    EXPECT_EQ(host.plugInAt(0), nullptr);
    EXPECT_EQ(capture.messages(),
              "NoxPlugIn: Error: Derived Class failed to remove all Remote Buffers\n");
    char byte = 0;
    EXPECT_EQ(host.readRemoteBlock(left, 0, 1, &byte), 6); // freed
}

TEST(ProcessingHostEnd, theTypeInstantiatesThroughTheHost) {
    TestTypeGroup group;
    QMShellPlugInProcessingHost host;
    const auto plugIn = group.testType().createAndRecordInstance();
    const LogCapture capture(QM::LogLevel::error);
    EXPECT_EQ(group.testType().instantiate(host, plugIn.get()), 7);
    const std::string lines = capture.messages();
    EXPECT_NE(lines.find("Error: 7 [No enough slots available on remote host] while instantiating"),
              std::string::npos)
        << lines;
    host.setSlotLimit(1);
    EXPECT_EQ(group.testType().instantiate(host, plugIn.get()), 0);
    EXPECT_EQ(capture.messages(), lines);
    EXPECT_EQ(host.plugInAt(0), plugIn.get());
}
