// SPDX-License-Identifier: GPL-3.0-or-later
// What writing leaves in files when all goes well.
#include "presets/manager/PresetFileWriter.h"

#include "presets/manager/FileIdentity.h"
#include "presets/manager/tests/PresetBytes.h"
#include "presets/record/Utf8Path.h"
#include "services/tests/TemporaryDirectory.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#    include <sys/stat.h>
#endif

namespace fs = std::filesystem;

namespace {

class PresetFileWriterTest : public ::testing::Test {
protected:
    TemporaryDirectory directory;
    fs::path file = directory / "Kick.qmpreset";

    /// The bytes of the record below.
    static PresetBytes expected() {
        PresetBytes bytes;
        bytes.name = "Kick";
        bytes.values = {{code("afre"), 41.5}};
        bytes.uniqueId = 0x8000000000000777u;
        return bytes;
    }

    static QMGenericPreset record() {
        QMGenericPreset preset;
        preset.name = "Kick";
        preset.manufacturerCode = code("QML ");
        preset.productCode = code("BRLT");
        preset.values = {{code("afre"), 41.5}};
        preset.uniqueId = 0x8000000000000777u;
        return preset;
    }

    bool save() { return PresetFileWriter::save(utf8FromPath(file), record()); }

    bool update() { return PresetFileWriter::updateExisting(utf8FromPath(file), record()); }

    [[nodiscard]] std::vector<std::string> names() const { return namesIn(directory.path()); }
};

} // namespace

TEST_F(PresetFileWriterTest, savingMakesAFileThatIsMissing) {
    EXPECT_TRUE(save());
    EXPECT_EQ(readFile(file), expected().bytes());
    EXPECT_EQ(names(), (std::vector<std::string>{"Kick.qmpreset"}));
}

TEST_F(PresetFileWriterTest, updatingDoesNot) {
    EXPECT_FALSE(update());
    EXPECT_TRUE(names().empty());
}

TEST_F(PresetFileWriterTest, aLongerRecordReplacesAShorterFile) {
    for (const bool saving : {true, false}) {
        writeFile(file, "short");
        EXPECT_TRUE(saving ? save() : update());
        EXPECT_EQ(readFile(file), expected().bytes());
    }
    EXPECT_EQ(names(), (std::vector<std::string>{"Kick.qmpreset"}));
}

TEST_F(PresetFileWriterTest, aShorterRecordLeavesTheEndOfALongerFile) {
    const std::string written = expected().bytes();
    for (const bool saving : {true, false}) {
        // Longer than one block of the copying, and every byte told from its neighbours.
        std::string old;
        for (int i = 0; i < 200000; ++i)
            old += static_cast<char>(i * 7 + i / 251);
        writeFile(file, old);
        EXPECT_TRUE(saving ? save() : update());
        EXPECT_TRUE(readFile(file) == written + old.substr(written.size()));
    }
}

TEST_F(PresetFileWriterTest, aFileOneByteLongerKeepsThatByte) {
    const std::string written = expected().bytes();
    writeFile(file, std::string(written.size() + 1, 'x'));
    EXPECT_TRUE(save());
    EXPECT_EQ(readFile(file), written + "x");
}

TEST_F(PresetFileWriterTest, aMissingFolderIsNotMade) {
    EXPECT_FALSE(PresetFileWriter::save(utf8FromPath(directory / "no" / "Kick"), record()));
    EXPECT_TRUE(names().empty());
}

TEST_F(PresetFileWriterTest, aFolderIsNoFileToWrite) {
    fs::create_directory(file);
    EXPECT_FALSE(save());
    EXPECT_FALSE(update());
    EXPECT_TRUE(fs::is_directory(file));
    EXPECT_TRUE(namesIn(file).empty());
}

TEST_F(PresetFileWriterTest, textThatIsNoPathIsRefused) {
    EXPECT_FALSE(PresetFileWriter::save("", record()));
    EXPECT_FALSE(PresetFileWriter::updateExisting("", record()));
}

TEST_F(PresetFileWriterTest, aFileThatIsReadOnlyIsNotReplacedEvenBySomebodyWhoMay) {
    writeFile(file, "old content");
    fs::permissions(file, fs::perms::owner_read);
    EXPECT_FALSE(save());
    EXPECT_FALSE(update());
    EXPECT_EQ(readFile(file), "old content");
    EXPECT_EQ(names(), (std::vector<std::string>{"Kick.qmpreset"}));
    fs::permissions(file, fs::perms::owner_all); // or it could not be removed on every system
}

#ifndef _WIN32

TEST_F(PresetFileWriterTest, aNewFileHasThePermissionsThatAnyNewFileHas) {
    const mode_t before = umask(0027);
    EXPECT_TRUE(save());
    umask(before);
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0640));
}

TEST_F(PresetFileWriterTest, anUpdatedFileKeepsItsPermissions) {
    for (const unsigned mode : {0600u, 0664u, 0755u, 0622u}) {
        writeFile(file, "old");
        fs::permissions(file, fs::perms(mode));
        EXPECT_TRUE(save());
        EXPECT_EQ(fs::status(file).permissions(), fs::perms(mode));
    }
}

TEST_F(PresetFileWriterTest, savingSwapsFilesAndUpdatingAnIdentifierAloneDoesNot) {
    PresetBytes old = expected();
    old.uniqueId = 0;
    writeFile(file, old.bytes());
    const auto first = fileIdentity(file);
    EXPECT_TRUE(update());
    EXPECT_EQ(readFile(file), expected().bytes());
    EXPECT_EQ(fileIdentity(file), first);
    EXPECT_TRUE(save());
    EXPECT_NE(fileIdentity(file), first);

    old.name = "kick"; // more than the identifier changes
    writeFile(file, old.bytes());
    const auto second = fileIdentity(file);
    EXPECT_TRUE(update());
    EXPECT_EQ(readFile(file), expected().bytes());
    EXPECT_NE(fileIdentity(file), second);
}

TEST_F(PresetFileWriterTest, aLinkStaysALinkAndItsTargetIsWritten) {
    fs::create_directory(directory / "elsewhere");
    writeFile(directory / "elsewhere" / "target", "old");
    fs::create_symlink("elsewhere/target", directory / "second");
    fs::create_symlink(directory / "second", file);
    EXPECT_TRUE(save());
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_TRUE(fs::is_symlink(directory / "second"));
    EXPECT_EQ(readFile(directory / "elsewhere" / "target"), expected().bytes());
    EXPECT_EQ(namesIn(directory / "elsewhere"), (std::vector<std::string>{"target"}));
}

TEST_F(PresetFileWriterTest, savingToALinkThatLeadsNowhereMakesItsTarget) {
    fs::create_symlink("target", file);
    EXPECT_FALSE(update());
    EXPECT_TRUE(save());
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(readFile(directory / "target"), expected().bytes());
}

TEST_F(PresetFileWriterTest, aLinkToItselfIsRefused) {
    fs::create_symlink("Kick.qmpreset", file);
    EXPECT_FALSE(save());
    EXPECT_FALSE(update());
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(names(), (std::vector<std::string>{"Kick.qmpreset"}));
}

TEST_F(PresetFileWriterTest, aPipeIsRefusedAndDoesNotBlock) {
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    EXPECT_FALSE(save());
    EXPECT_FALSE(update());
    EXPECT_TRUE(fs::is_fifo(file));
}

#endif
