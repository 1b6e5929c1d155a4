// SPDX-License-Identifier: GPL-3.0-or-later
// Writing that goes wrong: no permission, no room, no more process. Whatever happens, the file
// holds the old bytes or the new ones.
#ifndef _WIN32

#    include "presets/manager/PresetFileNames.h"
#    include "presets/manager/PresetFileWriter.h"
#    include "presets/manager/tests/PresetBytes.h"
#    include "presets/manager/tests/UnprivilegedChild.h"
#    include "services/tests/TemporaryDirectory.h"

#    include <gtest/gtest.h>

#    include <chrono>
#    include <csignal>
#    include <random>
#    include <set>
#    include <sys/wait.h>
#    include <thread>
#    include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// Large enough to need several writes.
QMGenericPreset record(const std::string& name, std::size_t nameLength) {
    QMGenericPreset preset;
    preset.name = name + std::string(nameLength, '.');
    preset.values = {{code("afre"), 41.5}};
    preset.uniqueId = 0x8000000000000777u;
    return preset;
}

PresetBytes bytesOf(const std::string& name, std::size_t nameLength) {
    PresetBytes bytes;
    bytes.manufacturer = 0;
    bytes.product = 0;
    bytes.name = name + std::string(nameLength, '.');
    bytes.values = {{code("afre"), 41.5}};
    bytes.uniqueId = 0x8000000000000777u;
    return bytes;
}

class PresetFileWriterFaultTest : public ::testing::Test {
protected:
    TemporaryDirectory directory;
    fs::path folder = directory / "presets";
    fs::path file = folder / "Kick.qmpreset";

    void SetUp() override {
        writeFile(file, bytesOf("old", 0).bytes());
        giveToUnprivilegedChild(folder);
        giveToUnprivilegedChild(file);
    }

    void TearDown() override { fs::permissions(folder, fs::perms::owner_all); }

    [[nodiscard]] bool holdsOldBytesAlone() const {
        return readFile(file) == bytesOf("old", 0).bytes() &&
               namesIn(folder) == std::vector<std::string>{"Kick.qmpreset"};
    }
};

} // namespace

TEST_F(PresetFileWriterFaultTest, aFolderThatAllowsNoNewFileStillLetsAFileBeUpdated) {
    fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec);
    const ino_t before = fs::hard_link_count(file);
    EXPECT_TRUE(inUnprivilegedChild([this] {
        return PresetFileWriter::save(file, record("new", 10)) &&
               readFile(file) == bytesOf("new", 10).bytes() &&
               PresetFileWriter::updateExisting(file, record("again", 0));
    }));
    EXPECT_EQ(fs::hard_link_count(file), before);
    // In place too the end of what was longer stays.
    const std::string first = bytesOf("new", 10).bytes();
    const std::string second = bytesOf("again", 0).bytes();
    ASSERT_LT(second.size(), first.size());
    EXPECT_EQ(readFile(file), second + first.substr(second.size()));
}

TEST_F(PresetFileWriterFaultTest, aFolderThatAllowsNoNewFileGetsNone) {
    fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_TRUE(inUnprivilegedChild(
        [this] { return !PresetFileWriter::save(folder / "New.qmpreset", record("new", 0)); }));
    EXPECT_TRUE(holdsOldBytesAlone());
}

TEST_F(PresetFileWriterFaultTest, aReadOnlyFileIsNotReplacedThoughItsFolderAllowsIt) {
    fs::permissions(file, fs::perms::owner_read);
    EXPECT_TRUE(inUnprivilegedChild([this] {
        return !PresetFileWriter::save(file, record("new", 0)) &&
               !PresetFileWriter::updateExisting(file, record("new", 0));
    }));
    EXPECT_TRUE(holdsOldBytesAlone());
}

TEST_F(PresetFileWriterFaultTest, somebodyElsesFileThatMayBeWrittenKeepsItsOwner) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only the superuser can make files of two owners";
    ASSERT_EQ(lchown(file.c_str(), 0, 0), 0);
    fs::permissions(file, fs::perms(0666));
    EXPECT_TRUE(
        inUnprivilegedChild([this] { return PresetFileWriter::save(file, record("new", 0)); }));
    EXPECT_EQ(readFile(file), bytesOf("new", 0).bytes());
    struct stat information = {};
    ASSERT_EQ(stat(file.c_str(), &information), 0);
    EXPECT_EQ(information.st_uid, 0u);
    EXPECT_EQ(namesIn(folder), (std::vector<std::string>{"Kick.qmpreset"}));
}

TEST_F(PresetFileWriterFaultTest, theSuperusersUpdateLeavesAFileItsOwner) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only the superuser can make files of two owners";
    EXPECT_TRUE(PresetFileWriter::save(file, record("new", 0)));
    struct stat information = {};
    ASSERT_EQ(stat(file.c_str(), &information), 0);
    EXPECT_EQ(information.st_uid, 65534u);
    EXPECT_EQ(information.st_gid, 65534u);
}

TEST_F(PresetFileWriterFaultTest, aFullDiskLeavesTheOldFile) {
    EXPECT_TRUE(inChildWithFullDisk(40, [this] {
        return !PresetFileWriter::save(file, record("new", 5000)) &&
               !PresetFileWriter::updateExisting(file, record("new", 0));
    }));
    EXPECT_TRUE(holdsOldBytesAlone());
}

TEST_F(PresetFileWriterFaultTest, aDiskThatFillsUpAtTheVeryEndLeavesTheOldFile) {
    const std::size_t size = bytesOf("new", 5000).bytes().size();
    EXPECT_TRUE(inChildWithFullDisk(
        size - 1, [this] { return !PresetFileWriter::save(file, record("new", 5000)); }));
    EXPECT_TRUE(holdsOldBytesAlone());
    EXPECT_TRUE(inChildWithFullDisk(
        size, [this] { return PresetFileWriter::save(file, record("new", 5000)); }));
    EXPECT_EQ(readFile(file), bytesOf("new", 5000).bytes());
}

TEST_F(PresetFileWriterFaultTest, aFullDiskLeavesNoNewFile) {
    EXPECT_TRUE(inChildWithFullDisk(
        40, [this] { return !PresetFileWriter::save(folder / "New.qmpreset", record("new", 0)); }));
    EXPECT_TRUE(holdsOldBytesAlone());
}

TEST_F(PresetFileWriterFaultTest, aDiskThatFillsUpWhileAFileIsWrittenInPlaceGivesTheOldBytesBack) {
    fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec);
    const std::size_t oldSize = bytesOf("old", 0).bytes().size();
    EXPECT_TRUE(inChildWithFullDisk(oldSize + 100, [this] {
        // The limit is this process's, so the rights have to go in a child of the child.
        return inUnprivilegedChild(
            [this] { return !PresetFileWriter::save(file, record("new", 5000)); });
    }));
    EXPECT_TRUE(holdsOldBytesAlone());
}

TEST_F(PresetFileWriterFaultTest, aKilledProcessLeavesTheOldFileOrTheNewOne) {
    // The child writes records of two lengths in turn as fast as it can. Large ones: a kill finds
    // the system inside a write of many pages and stops it there.
    constexpr std::size_t largeName = 1000000;
    const std::set<std::string> whole = {
        bytesOf("old", 0).bytes(), bytesOf("first", largeName).bytes(),
        // The shorter one over the longer.
        bytesOf("second", 100).bytes() +
            bytesOf("first", largeName).bytes().substr(bytesOf("second", 100).bytes().size())};
    const auto writePair = [this] {
        PresetFileWriter::save(file, record("first", largeName));
        PresetFileWriter::updateExisting(file, record("second", 100));
    };
    // From before the first write to well into the next ones, however slow the disk is now.
    const auto begin = std::chrono::steady_clock::now();
    writePair();
    const auto onePair = std::chrono::duration_cast<std::chrono::microseconds>(
        std::chrono::steady_clock::now() - begin);
    std::minstd_rand random(1);
    std::uniform_int_distribution<std::int64_t> microseconds(0, 3 * onePair.count());
    constexpr int rounds = 100;
    int writtenRounds = 0;
    for (int round = 0; round < rounds; ++round) {
        writeFile(file, bytesOf("old", 0).bytes());
        int started[2];
        ASSERT_EQ(pipe(started), 0);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            const char sign = 1;
            if (write(started[1], &sign, 1) != 1)
                _exit(1);
            for (;;)
                writePair();
        }
        char sign = 0;
        ASSERT_EQ(read(started[0], &sign, 1), 1);
        close(started[0]);
        close(started[1]);
        // The moment of the kill, not a wait for something.
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
        ASSERT_EQ(kill(child, SIGKILL), 0);
        ASSERT_EQ(waitpid(child, nullptr, 0), child);
        const std::string left = readFile(file);
        ASSERT_TRUE(whole.contains(left)) << "round " << round << ", " << left.size() << " bytes";
        writtenRounds += left != bytesOf("old", 0).bytes() ? 1 : 0;
    }
    EXPECT_GT(writtenRounds, 0) << "every child was killed before it had written once";
    for (const std::string& name : namesIn(folder))
        EXPECT_TRUE(name == "Kick.qmpreset" || PresetFileNames::isTemporary(name)) << name;
}

#else

#    include <gtest/gtest.h>

TEST(PresetFileWriterFaultTest, isForSystemsWithPermissionsLimitsAndSignals) {
    GTEST_SKIP() << "Windows has neither file size limits nor unprivileged children to test with";
}

#endif
