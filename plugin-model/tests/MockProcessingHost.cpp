// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/tests/MockProcessingHost.h"

using ::testing::Return;

MockProcessingHost::MockProcessingHost(NoxRuntimeArchitecture architecture, double rate) {
    ON_CALL(*this, runtimeArchitecture).WillByDefault(Return(architecture));
    ON_CALL(*this, sampleRate).WillByDefault(Return(rate));
    ON_CALL(*this, defaultInputSlot).WillByDefault(Return(-1));
    ON_CALL(*this, defaultOutputSlot).WillByDefault(Return(-1));
    ON_CALL(*this, allocateRemoteBlock).WillByDefault([this](std::size_t, const char*) {
        blocks.push_back(std::make_unique<char>());
        return static_cast<void*>(blocks.back().get());
    });
}

MockProcessingHost::~MockProcessingHost() = default;

NiceProcessingHost::NiceProcessingHost(NoxRuntimeArchitecture architecture, double rate)
    : NiceMock(architecture, rate) {}

NiceProcessingHost::~NiceProcessingHost() = default;
