// SPDX-License-Identifier: GPL-3.0-or-later
// The log file: what passes, when it is opened, how a line looks, and what happens when it cannot
// be opened.
#include "services/LogFile.h"

#include "services/tests/LogCapture.h"
#include "services/tests/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <chrono>
#include <ctime>
#include <fstream>
#include <iterator>
#include <optional>

namespace {

std::string contentOf(const std::filesystem::path& path) {
    std::ifstream in(path);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

/// A log in a folder of its own. The file's content is complete only once the log is closed.
class LogFileTest : public ::testing::Test {
protected:
    TemporaryDirectory directory;
    std::filesystem::path path = directory / "test.log";
    std::optional<QM::LogFile> log{std::in_place, path.string()};

    std::string closedContent() {
        log.reset();
        return contentOf(path);
    }

    std::string closedMessages() { return withoutLogPrefixes(closedContent()); }
};

} // namespace

TEST_F(LogFileTest, startsAtLevelOneAndHasLoggedNothing) {
    EXPECT_EQ(log->level(), 1u);
    EXPECT_FALSE(log->hasLogged());
}

TEST_F(LogFileTest, aLevelFourMessageProducesNoOutputAndDoesNotOpenTheFile) {
    log->write(4, "trace %d\n", 1);
    EXPECT_FALSE(log->hasLogged());
    EXPECT_FALSE(std::filesystem::exists(path));
    log.reset();
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(LogFileTest, levelsZeroAndOnePassAndTwoAndThreeDoNot) {
    for (const std::uint32_t level : {0u, 1u, 2u, 3u})
        log->write(level, "level %u\n", level);
    EXPECT_TRUE(log->hasLogged());
    EXPECT_EQ(closedMessages(), "level 0\nlevel 1\n");
}

TEST_F(LogFileTest, onlyTheLowEightBitsOfTheLevelAreCompared) {
    log->write(0x101, "a");
    log->write(0xFFFFFF00u, "b");
    log->write(0x104, "c");
    log->write(0x1FF, "d");
    EXPECT_EQ(closedMessages(), "ab");
}

TEST_F(LogFileTest, aRaisedMaximumLevelLetsTracesThrough) {
    log->setMaximumLevel(4);
    log->write(4, "trace\n");
    log->write(5, "deeper\n");
    EXPECT_EQ(closedMessages(), "trace\n");
}

TEST_F(LogFileTest, theFirstMessageThatPassesTruncatesAnExistingFile) {
    std::ofstream(path) << "of the process before\n";
    log->write(4, "dropped\n");
    EXPECT_EQ(contentOf(path), "of the process before\n");
    log->write(1, "first\n");
    log->write(1, "second\n");
    EXPECT_EQ(closedMessages(), "first\nsecond\n");
}

TEST_F(LogFileTest, aRelativePathIsTakenFromTheDirectoryOfTheFirstMessage) {
    QM::LogFile relative("relative.log");
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(directory.path());
    relative.write(1, "here\n");
    std::filesystem::current_path(before);
    EXPECT_TRUE(std::filesystem::exists(directory / "relative.log"));
}

TEST_F(LogFileTest, everyMessageIsPrefixedWithTheLocalTimeInMicroseconds) {
    using Clock = std::chrono::system_clock;
    const std::time_t earliest = Clock::to_time_t(Clock::now());
    log->write(1, "message\n");
    const std::time_t latest = Clock::to_time_t(Clock::now());

    const std::string line = closedContent();
    std::smatch parts;
    const std::regex form(R"((\d{4})-(\d{2})-(\d{2}) (\d{2}):(\d{2}):(\d{2})\.(\d{6}): message\n)");
    ASSERT_TRUE(std::regex_match(line, parts, form)) << line;
    std::tm fields{};
    fields.tm_year = std::stoi(parts[1]) - 1900;
    fields.tm_mon = std::stoi(parts[2]) - 1;
    fields.tm_mday = std::stoi(parts[3]);
    fields.tm_hour = std::stoi(parts[4]);
    fields.tm_min = std::stoi(parts[5]);
    fields.tm_sec = std::stoi(parts[6]);
    fields.tm_isdst = -1;
    const std::time_t written = std::mktime(&fields);
    EXPECT_GE(written, earliest);
    EXPECT_LE(written, latest);
}

TEST_F(LogFileTest, aMessageGetsNoLineEndOfTheLogs) {
    log->write(1, "one ");
    log->write(1, "two");
    const std::string expected = std::string(logPrefixPattern) + "one " + logPrefixPattern + "two";
    const std::string content = closedContent();
    EXPECT_TRUE(std::regex_match(content, std::regex(expected))) << content;
}

TEST_F(LogFileTest, aMessageOfAnyLengthIsWrittenWhole) {
    const std::string longText(100000, 'x');
    log->write(1, "%s\n", longText.c_str());
    EXPECT_EQ(closedMessages(), longText + "\n");
}

TEST_F(LogFileTest, aPercentSignInAnArgumentIsNoFormat) {
    log->write(1, "%s%%\n", "100%s %d");
    EXPECT_EQ(closedMessages(), "100%s %d%\n");
}

TEST_F(LogFileTest, suppressionsAreCounted) {
    log->suppressTimestamps();
    log->suppressTimestamps();
    log->write(1, "a\n");
    log->resumeTimestamps();
    log->write(1, "b\n");
    log->resumeTimestamps();
    log->write(1, "c\n");
    const std::string content = closedContent();
    EXPECT_TRUE(
        std::regex_match(content, std::regex("a\nb\n" + std::string(logPrefixPattern) + "c\n")))
        << content;
}

TEST_F(LogFileTest, theSecondSinkGetsTheSameLineAsTheFile) {
    std::string copied;
    {
        const LogCapture capture(1, *log);
        log->write(1, "message %d\n", 7);
        copied = capture.text();
    }
    EXPECT_NE(copied, "");
    EXPECT_EQ(closedContent(), copied);
}

TEST_F(LogFileTest, aSecondSinkWithoutAMaskTakesEveryLevelThatPasses) {
    const LogCapture capture(3, *log, 0);
    for (const std::uint32_t level : {0u, 1u, 2u, 3u, 4u})
        log->write(level, "%u", level);
    EXPECT_EQ(capture.messages(), "0123");
}

TEST_F(LogFileTest, aSecondSinkWithAMaskTakesLevelsThatShareABit) {
    const LogCapture capture(7, *log, 2);
    for (std::uint32_t level = 0; level <= 8; ++level)
        log->write(level, "%u", level);
    EXPECT_EQ(capture.messages(), "2367");
}

TEST_F(LogFileTest, theMaskSeesTheBitsAboveTheLevelToo) {
    const LogCapture capture(1, *log, 0x100);
    log->write(1, "a");
    log->write(0x101, "b");
    log->write(0x104, "c");
    EXPECT_EQ(capture.messages(), "b");
}

TEST_F(LogFileTest, theFileIsNotAffectedByTheMask) {
    {
        const LogCapture capture(1, *log, 2);
        log->write(1, "message\n");
        EXPECT_EQ(capture.messages(), "");
    }
    EXPECT_EQ(closedMessages(), "message\n");
}

namespace {

class UnopenableLogTest : public LogFileTest {
protected:
    std::filesystem::path missing = directory / "missing";
    QM::LogFile unopenable{(missing / "test.log").string()};
};

} // namespace

TEST_F(UnopenableLogTest, theFailureIsReportedOnceOnStandardError) {
    testing::internal::CaptureStderr();
    unopenable.write(4, "dropped\n");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");

    testing::internal::CaptureStderr();
    unopenable.write(1, "first\n");
    unopenable.write(1, "second\n");
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_TRUE(std::regex_match(said, std::regex("Opening Log File: [^\r\n]+\r?\n"))) << said;
}

TEST_F(UnopenableLogTest, openingIsNeverTriedAgain) {
    testing::internal::CaptureStderr();
    unopenable.write(1, "first\n");
    std::filesystem::create_directory(missing);
    unopenable.write(1, "second\n");
    testing::internal::GetCapturedStderr();
    EXPECT_TRUE(std::filesystem::is_empty(missing));
}

TEST_F(UnopenableLogTest, messagesAreCountedAndReachTheSecondSink) {
    const LogCapture capture(1, unopenable);
    testing::internal::CaptureStderr();
    unopenable.write(1, "message\n");
    testing::internal::GetCapturedStderr();
    EXPECT_EQ(capture.messages(), "message\n");
    EXPECT_TRUE(unopenable.hasLogged());
}
