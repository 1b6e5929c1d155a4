// SPDX-License-Identifier: GPL-3.0-or-later
// The processing host's remote blocks: ranges, unknown addresses, ends that overflow.
#include "QMShell/hosting/QMShellPlugInProcessingHost.h"
#include "services/tests/LogCapture.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <numeric>
#include <utility>
#include <vector>

namespace {

constexpr std::size_t blockSize = 16;
constexpr std::size_t huge = std::numeric_limits<std::size_t>::max();
using Bytes = std::array<unsigned char, blockSize>;

const char* const truncationLine = "Requested Length extends past remote block; truncating!\n";

class ProcessingHostBlocks : public ::testing::Test {
protected:
    QMShellPlugInProcessingHost host;
    unsigned char* block = static_cast<unsigned char*>(host.allocateRemoteBlock(blockSize, "name"));
    Bytes counting = [] {
        Bytes bytes{};
        std::iota(bytes.begin(), bytes.end(), static_cast<unsigned char>(1));
        return bytes;
    }();

    void SetUp() override {
        ASSERT_NE(block, nullptr);
        ASSERT_EQ(host.writeRemoteBlock(block, 0, blockSize, counting.data()), 0);
    }

    Bytes content() {
        Bytes bytes{};
        EXPECT_EQ(host.readRemoteBlock(block, 0, blockSize, bytes.data()), 0);
        return bytes;
    }
};

} // namespace

TEST_F(ProcessingHostBlocks, whatWasWrittenIsRead) {
    EXPECT_EQ(content(), counting);
    const unsigned char bytes[] = {0xA0, 0xA1};
    EXPECT_EQ(host.writeRemoteBlock(block, 3, 2, bytes), 0);
    unsigned char read[3] = {};
    EXPECT_EQ(host.readRemoteBlock(block, 2, 3, read), 0);
    EXPECT_EQ(read[0], 3);
    EXPECT_EQ(read[1], 0xA0);
    EXPECT_EQ(read[2], 0xA1);
}

TEST_F(ProcessingHostBlocks, aNewBlockIsZeroed) {
    void* fresh = host.allocateRemoteBlock(blockSize, nullptr);
    Bytes bytes = counting;
    EXPECT_EQ(host.readRemoteBlock(fresh, 0, blockSize, bytes.data()), 0);
    EXPECT_EQ(bytes, Bytes{});
}

TEST_F(ProcessingHostBlocks, anUnknownBlockIsNoHostAvailable) {
    unsigned char byte = 0x55;
    EXPECT_EQ(host.writeRemoteBlock(nullptr, 0, 1, &byte), 6);
    EXPECT_EQ(host.readRemoteBlock(nullptr, 0, 1, &byte), 6);
    EXPECT_EQ(host.writeRemoteBlock(block + 1, 0, 1, &byte), 6);
    EXPECT_EQ(host.readRemoteBlock(&byte, 0, 1, &byte), 6);
    EXPECT_EQ(byte, 0x55);
}

TEST_F(ProcessingHostBlocks, aFreedBlockIsUnknownAndUnknownAddressesAreIgnored) {
    unsigned char byte = 0;
    host.freeRemoteBlock(&byte);
    host.freeRemoteBlock(nullptr);
    EXPECT_EQ(content(), counting);
    host.freeRemoteBlock(block);
    EXPECT_EQ(host.readRemoteBlock(block, 0, 1, &byte), 6);
    host.freeRemoteBlock(block);
}

TEST_F(ProcessingHostBlocks, aReadOneByteTooLongIsCutAndAnswersNoError) {
    const LogCapture capture(QM::LogLevel::error);
    std::array<unsigned char, 8> read{};
    read.fill(0x55);
    EXPECT_EQ(host.readRemoteBlock(block, 10, 7, read.data()), 0);
    EXPECT_EQ(read, (std::array<unsigned char, 8>{11, 12, 13, 14, 15, 16, 0x55, 0x55}));
    EXPECT_EQ(capture.messages(), truncationLine);
}

TEST_F(ProcessingHostBlocks, aReadToTheLastByteIsNotLogged) {
    const LogCapture capture(QM::LogLevel::error);
    std::array<unsigned char, 6> read{};
    EXPECT_EQ(host.readRemoteBlock(block, 10, 6, read.data()), 0);
    EXPECT_EQ(read[5], 16);
    EXPECT_EQ(host.readRemoteBlock(block, blockSize, 0, nullptr), 0);
    EXPECT_EQ(capture.messages(), "");
}

TEST_F(ProcessingHostBlocks, aReadBeyondTheEndCopiesNothingAndIsLogged) {
    unsigned char byte = 0x55;
    for (const auto& [offset, length] : std::vector<std::pair<std::size_t, std::size_t>>{
             {blockSize, 1}, {blockSize + 1, 0}, {1000, 5}, {huge, 1}, {huge, huge}}) {
        const LogCapture capture(QM::LogLevel::error);
        EXPECT_EQ(host.readRemoteBlock(block, offset, length, &byte), 0) << offset;
        EXPECT_EQ(byte, 0x55) << offset;
        EXPECT_EQ(capture.messages(), truncationLine) << offset << " " << length;
    }
}

TEST_F(ProcessingHostBlocks, aReadWhoseEndOverflowsIsCutAtTheBlock) {
    const LogCapture capture(QM::LogLevel::error);
    std::array<unsigned char, 2> read{};
    EXPECT_EQ(host.readRemoteBlock(block, 14, huge - 10, read.data()), 0);
    EXPECT_EQ(read, (std::array<unsigned char, 2>{15, 16}));
    EXPECT_EQ(capture.messages(), truncationLine);
}

TEST_F(ProcessingHostBlocks, aWriteOneByteTooLongIsRefused) {
    const LogCapture capture(QM::LogLevel::error);
    const Bytes zeroes{};
    EXPECT_EQ(host.writeRemoteBlock(block, 10, 7, zeroes.data()), 4);
    EXPECT_EQ(host.writeRemoteBlock(block, 1, blockSize, zeroes.data()), 4);
    EXPECT_EQ(content(), counting);
    EXPECT_EQ(capture.messages(), "");
}

TEST_F(ProcessingHostBlocks, aWriteWhoseEndOverflowsIsRefused) {
    const Bytes zeroes{};
    EXPECT_EQ(host.writeRemoteBlock(block, 8, huge, zeroes.data()), 4);
    EXPECT_EQ(host.writeRemoteBlock(block, huge, 1, zeroes.data()), 4);
    EXPECT_EQ(host.writeRemoteBlock(block, huge - 3, 8, zeroes.data()), 4);
    EXPECT_EQ(host.writeRemoteBlock(block, blockSize + 1, 0, zeroes.data()), 4);
    EXPECT_EQ(content(), counting);
}

TEST_F(ProcessingHostBlocks, aWriteToTheLastByteIsTaken) {
    const unsigned char byte = 0xEE;
    EXPECT_EQ(host.writeRemoteBlock(block, blockSize - 1, 1, &byte), 0);
    EXPECT_EQ(host.writeRemoteBlock(block, blockSize, 0, nullptr), 0);
    EXPECT_EQ(content()[blockSize - 1], 0xEE);
}

TEST_F(ProcessingHostBlocks, blocksOfSizeZeroAreBlocksOfTheirOwn) {
    void* first = host.allocateRemoteBlock(0, "Analysis Collection Buffer");
    void* second = host.allocateRemoteBlock(0, nullptr);
    ASSERT_NE(first, nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_NE(first, second);
    const unsigned char byte = 1;
    EXPECT_EQ(host.writeRemoteBlock(first, 0, 0, nullptr), 0);
    EXPECT_EQ(host.writeRemoteBlock(first, 0, 1, &byte), 4);
}

TEST_F(ProcessingHostBlocks, memoryThatCannotBeHadIsNull) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the address sanitizer ends the process on a request that cannot be served";
#endif
    EXPECT_EQ(host.allocateRemoteBlock(huge / 2, "too much"), nullptr);
    EXPECT_EQ(host.allocateRemoteBlock(huge, "far too much"), nullptr);
}
