// SPDX-License-Identifier: GPL-3.0-or-later
// Reading state and analysis data from an instance through the processing host.
#include "QMShell/hosting/QMShellPlugInProcessingHost.h"
#include "QMShell/hosting/tests/MockHostedPlugIn.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <limits>

using ::testing::Return;

namespace {

constexpr std::size_t huge = std::numeric_limits<std::size_t>::max();

class ProcessingHostData : public ::testing::Test {
protected:
    TestTypeGroup group;
    NiceHostedPlugIn plugIn{group};
    QMShellPlugInProcessingHost host;
    std::array<unsigned char, 16> data{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
};

} // namespace

TEST_F(ProcessingHostData, ofAnInstanceWithoutAStateIsNotFound) {
    unsigned char byte = 0x55;
    EXPECT_EQ(host.readPlugInData(plugIn, 0, 0, 1, &byte), 9);
    EXPECT_EQ(byte, 0x55);
}

TEST_F(ProcessingHostData, isCopiedFromTheOffset) {
    ON_CALL(plugIn, processingData).WillByDefault(Return(data.data()));
    ON_CALL(plugIn, processingDataSize).WillByDefault(Return(data.size()));
    std::array<unsigned char, 4> read{};
    EXPECT_EQ(host.readPlugInData(plugIn, 0, 12, 4, read.data()), 0);
    EXPECT_EQ(read, (std::array<unsigned char, 4>{13, 14, 15, 16}));
}

TEST_F(ProcessingHostData, isNeverReadPastTheState) {
    ON_CALL(plugIn, processingData).WillByDefault(Return(data.data()));
    ON_CALL(plugIn, processingDataSize).WillByDefault(Return(data.size()));
    std::array<unsigned char, 4> read{};
    read.fill(0x55);
    EXPECT_EQ(host.readPlugInData(plugIn, 0, 14, 4, read.data()), 0);
    EXPECT_EQ(read, (std::array<unsigned char, 4>{15, 16, 0x55, 0x55}));
    EXPECT_EQ(host.readPlugInData(plugIn, 0, huge, huge, read.data()), 0);
    EXPECT_EQ(read, (std::array<unsigned char, 4>{15, 16, 0x55, 0x55}));
}

TEST_F(ProcessingHostData, theInputCopyIsAskedOfTheInstanceAndStillAnswersSix) {
    ON_CALL(plugIn, analysisWordCount).WillByDefault(Return(3));
    EXPECT_CALL(plugIn, handleMessage).WillOnce([](const Packet& packet) {
        const NoxBufferMessage message = bufferMessageOf(packet);
        EXPECT_EQ(message.code, 0x1000000u);
        ASSERT_NE(message.buffer, nullptr);
        const std::array<float, 3> snapshot{0.25F, 0.5F, 0.75F};
        std::memcpy(message.buffer, snapshot.data(), sizeof snapshot);
    });
    std::array<float, 3> words{};
    EXPECT_EQ(host.fetchInputCopy(plugIn, 0, 0, 3, words.data()), 6);
    EXPECT_EQ(words, (std::array<float, 3>{0.25F, 0.5F, 0.75F}));
}

TEST_F(ProcessingHostData, anInstanceThatIgnoresTheMessageLeavesTheWords) {
    ON_CALL(plugIn, analysisWordCount).WillByDefault(Return(2));
    std::array<float, 2> words{0.5F, -1.0F};
    EXPECT_EQ(host.fetchInputCopy(plugIn, 0, 0, 2, words.data()), 6);
    EXPECT_EQ(words, (std::array<float, 2>{0.5F, -1.0F}));
}

TEST_F(ProcessingHostData, aStretchOfTheInputCopyNeverOverrunsItsBuffer) {
    ON_CALL(plugIn, analysisWordCount).WillByDefault(Return(4));
    ON_CALL(plugIn, handleMessage).WillByDefault([](const Packet& packet) {
        const std::array<float, 4> snapshot{1.0F, 2.0F, 3.0F, 4.0F};
        std::memcpy(bufferMessageOf(packet).buffer, snapshot.data(), sizeof snapshot);
    });
    std::array<float, 3> words{-1.0F, -1.0F, -1.0F};
    host.fetchInputCopy(plugIn, 0, 1, 2, words.data());
    EXPECT_EQ(words, (std::array<float, 3>{2.0F, 3.0F, -1.0F}));
    host.fetchInputCopy(plugIn, 0, 3, 2, words.data()); // one word is left
    EXPECT_EQ(words, (std::array<float, 3>{4.0F, 3.0F, -1.0F}));
    host.fetchInputCopy(plugIn, 0, 4, 1, words.data());
    host.fetchInputCopy(plugIn, 0, 0xFFFFFFFFu, 0xFFFFFFFFu, words.data());
    EXPECT_EQ(words, (std::array<float, 3>{4.0F, 3.0F, -1.0F}));
}

TEST_F(ProcessingHostData, analysisDataIsRequestedWithABufferForEveryChannel) {
    for (const std::int32_t channels : {0, 1, 2, 16, 3}) {
        std::array<std::int32_t, 2> request{channels, 0};
        EXPECT_CALL(plugIn, handleMessage).WillOnce([&](const Packet& packet) {
            const NoxBufferMessage message = bufferMessageOf(packet);
            EXPECT_EQ(message.code, 0x1000002u);
            EXPECT_EQ(message.flag, 1u);
            ASSERT_NE(message.buffer, nullptr);
            const std::size_t size = 8 + static_cast<std::size_t>(channels) * 8192;
            std::memset(message.buffer, 0x5A, size); // the address sanitizer watches its end
        });
        EXPECT_EQ(host.fetchAnalysisData(plugIn, 0, request.data()), 0);
    }
}

TEST_F(ProcessingHostData, theAnalysisBufferStartsZeroed) {
    std::array<std::int32_t, 2> request{2, 0};
    EXPECT_CALL(plugIn, handleMessage).WillOnce([&](const Packet& packet) {
        const auto* bytes = static_cast<const unsigned char*>(bufferMessageOf(packet).buffer);
        for (std::size_t i = 0; i < 8 + 2 * 8192; ++i)
            ASSERT_EQ(bytes[i], 0) << i;
    });
    EXPECT_EQ(host.fetchAnalysisData(plugIn, 0, request.data()), 0);
}

TEST_F(ProcessingHostData, aDamagedChannelCountStillGetsAHeader) {
    for (const std::int32_t channels : {-1, 17, std::numeric_limits<std::int32_t>::max(),
                                        std::numeric_limits<std::int32_t>::min()}) {
        std::array<std::int32_t, 2> request{channels, 0};
        EXPECT_CALL(plugIn, handleMessage).WillOnce([](const Packet& packet) {
            std::memset(bufferMessageOf(packet).buffer, 0, 8);
        });
        EXPECT_EQ(host.fetchAnalysisData(plugIn, 0, request.data()), 0) << channels;
    }
}
