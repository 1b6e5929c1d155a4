// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/hosting/tests/MockHostedPlugIn.h"

#include <gtest/gtest.h>

#include <cstring>

MockHostedPlugIn::MockHostedPlugIn(TestTypeGroup& group)
    : NoxPlugIn(group.testType(), nullptr, nullptr) {}

MockHostedPlugIn::~MockHostedPlugIn() = default;

NiceHostedPlugIn::NiceHostedPlugIn(TestTypeGroup& group)
    : NiceMock(group) {}

NiceHostedPlugIn::~NiceHostedPlugIn() = default;

NoxBufferMessage bufferMessageOf(const Packet& packet) {
    NoxBufferMessage message{};
    EXPECT_NE(packet.kind, Packet::coefficientKind);
    EXPECT_EQ(packet.length, sizeof message);
    if (packet.length == sizeof message)
        std::memcpy(&message, packet.data, sizeof message);
    return message;
}
