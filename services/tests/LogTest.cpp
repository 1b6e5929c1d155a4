// SPDX-License-Identifier: GPL-3.0-or-later
// The process's own log and the packet dump.
#include "services/Log.h"

#include "services/tests/LogCapture.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <numeric>
#include <vector>

TEST(Log, levelsHaveTheirNumbers) {
    EXPECT_EQ(QM::LogLevel::error, 1u);
    EXPECT_EQ(QM::LogLevel::packet, 3u);
    EXPECT_EQ(QM::LogLevel::trace, 4u);
}

TEST(Log, theProcessLogIsAtLevelOne) {
    EXPECT_EQ(QM::processLog().level(), 1u);
}

TEST(Log, theProcessLogWritesIntoTheCurrentDirectory) {
    QM::log(QM::LogLevel::error, "an error, %d of %s\n", 1, "many");
    QM::log(QM::LogLevel::trace, "a trace\n");
    std::fflush(nullptr);
    std::ifstream in("NoxConsole3d.log");
    const std::string content{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    EXPECT_NE(content.find(": an error, 1 of many\n"), std::string::npos) << content;
    EXPECT_EQ(content.find("a trace"), std::string::npos) << content;
    EXPECT_TRUE(QM::processLog().hasLogged());
}

namespace {

class DumpPacketTest : public ::testing::Test {
protected:
    TemporaryDirectory directory;
    QM::LogFile log{(directory / "dump.log").string()};

    static std::vector<unsigned char> counting(std::size_t length) {
        std::vector<unsigned char> bytes(length);
        for (std::size_t i = 0; i < length; ++i)
            bytes[i] = static_cast<unsigned char>(i);
        return bytes;
    }
};

} // namespace

TEST_F(DumpPacketTest, writesSixteenBytesALineAndTimesOnlyTheFirstAndTheLastLine) {
    const LogCapture capture(3, log);
    QM::dumpPacket(log, counting(20).data(), 20);
    const std::string prefix = logPrefixPattern;
    const std::string expected = prefix + "Packet Len: 20\n" +
                                 "0000: 00 01 02 03 04 05 06 07 08 09 0a 0b 0c 0d 0e 0f \n"
                                 "0010: 10 11 12 13 \n" +
                                 prefix + "\n";
    EXPECT_TRUE(std::regex_match(capture.text(), std::regex(expected))) << capture.text();
}

TEST_F(DumpPacketTest, aWholeNumberOfLinesHasNoEmptyByteLine) {
    const LogCapture capture(3, log);
    QM::dumpPacket(log, counting(16).data(), 16);
    EXPECT_EQ(capture.messages(), "Packet Len: 16\n"
                                  "0000: 00 01 02 03 04 05 06 07 08 09 0a 0b 0c 0d 0e 0f \n"
                                  "\n");
}

TEST_F(DumpPacketTest, anEmptyPacketHasNoByteLines) {
    const LogCapture capture(3, log);
    QM::dumpPacket(log, nullptr, 0);
    EXPECT_EQ(capture.messages(), "Packet Len: 0\n\n");
}

TEST_F(DumpPacketTest, bytesAreUnsignedAndOffsetsGrowBeyondFourDigits) {
    const LogCapture capture(3, log);
    const std::vector<unsigned char> bytes(0x10001, 0xFE);
    QM::dumpPacket(log, bytes.data(), bytes.size());
    const std::string text = capture.messages();
    EXPECT_NE(text.find("\nfff0: fe fe "), std::string::npos);
    EXPECT_NE(text.find("\n10000: fe \n\n"), std::string::npos);
}

TEST_F(DumpPacketTest, isAtLevelThreeAndLeavesTheTimestampsOn) {
    const LogCapture capture(2, log);
    QM::dumpPacket(log, counting(20).data(), 20);
    EXPECT_EQ(capture.text(), "");
    EXPECT_FALSE(log.hasLogged());
    log.write(1, "after\n");
    EXPECT_TRUE(
        std::regex_match(capture.text(), std::regex(std::string(logPrefixPattern) + "after\n")))
        << capture.text();
}
