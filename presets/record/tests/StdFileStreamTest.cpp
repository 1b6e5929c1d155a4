// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/record/StdFileStream.h"

#include "presets/record/GenericPresetFormat.h"
#include "presets/record/tests/support/RecordEncoder.h"
#include "presets/record/tests/support/ReferenceRecordReader.h"
#include "services/tests/TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <fstream>
#ifndef _WIN32
#    include <sys/stat.h>
#endif

namespace fs = std::filesystem;

namespace {

std::string utf8(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

void writeFile(const fs::path& path, const Bytes& bytes) {
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
}

Bytes readFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    ByteBuilder builder;
    for (int c = file.get(); c >= 0; c = file.get())
        builder.u8(static_cast<unsigned>(c));
    return builder.bytes();
}

} // namespace

TEST(StdFileStream, aRecordGoesToAFileAndComesBack) {
    const TemporaryDirectory directory;
    const fs::path path = directory / "a.qmpreset";
    const Bytes bytes = encodeRecord(exampleRecord());
    const auto record = readRecordPlainly(bytes);
    ASSERT_TRUE(record);
    {
        StdFileStream stream(utf8(path), "w+b");
        ASSERT_TRUE(stream.isOpen());
        EXPECT_TRUE(writeGenericPreset(*record, stream));
        EXPECT_FALSE(stream.close());
    }
    EXPECT_EQ(readFile(path), bytes);
    StdFileStream stream(utf8(path), "rb");
    EXPECT_EQ(describeRecord(readGenericPreset(stream)), describeRecord(record));
}

TEST(StdFileStream, updatingInPlaceLeavesTheOldEnd) {
    const TemporaryDirectory directory;
    const fs::path path = directory / "a.qmpreset";
    const Bytes before = encodeRecord(exampleRecord());
    writeFile(path, before);
    {
        StdFileStream stream(utf8(path), "r+b");
        EXPECT_TRUE(writeGenericPreset(*readRecordPlainly(encodeRecord(emptyRecord())), stream));
    }
    Bytes expected = before;
    const Bytes now = encodeRecord(emptyRecord());
    std::copy(now.begin(), now.end(), expected.begin());
    EXPECT_EQ(readFile(path), expected);
}

TEST(StdFileStream, theSizeKeepsThePosition) {
    const TemporaryDirectory directory;
    writeFile(directory / "a", bytesOf({1, 2, 3, 4, 5}));
    StdFileStream stream(utf8(directory / "a"), "rb");
    EXPECT_EQ(stream.tell(), 0);
    EXPECT_EQ(stream.seek(2), 2);
    EXPECT_EQ(stream.size(), 5);
    EXPECT_EQ(stream.tell(), 2);
    std::byte byte{};
    EXPECT_FALSE(stream.read(1, &byte));
    EXPECT_EQ(byte, std::byte{3});
    EXPECT_EQ(stream.seek(0), 0);
}

TEST(StdFileStream, readingBeyondTheEndFails) {
    const TemporaryDirectory directory;
    writeFile(directory / "a", bytesOf({1, 2, 3}));
    StdFileStream stream(utf8(directory / "a"), "rb");
    std::array<std::byte, 4> bytes{};
    EXPECT_TRUE(stream.read(4, bytes.data()));
    EXPECT_EQ(stream.seek(0), 0);
    EXPECT_FALSE(stream.read(3, bytes.data()));
    EXPECT_TRUE(stream.read(1, bytes.data()));
    EXPECT_TRUE(stream.read(-1, bytes.data()));
}

TEST(StdFileStream, aFileThatIsMissingIsNotOpened) {
    const TemporaryDirectory directory;
    const StdFileStream stream(utf8(directory / "none"), "rb");
    EXPECT_FALSE(stream.isOpen());
    EXPECT_EQ(stream.size(), -1);
    EXPECT_EQ(stream.tell(), -1);
}

TEST(StdFileStream, aStreamWithoutAFileDoesNothing) {
    StdFileStream stream(nullptr);
    std::byte byte{};
    EXPECT_FALSE(stream.isOpen());
    EXPECT_TRUE(stream.write(1, &byte));
    EXPECT_TRUE(stream.read(1, &byte));
    EXPECT_EQ(stream.seek(0), -1);
    EXPECT_TRUE(stream.close());
}

TEST(StdFileStream, aFolderIsNotOpened) {
    const TemporaryDirectory directory;
    fs::create_directory(directory / "folder");
    for (const char* mode : {"rb", "r+b", "w+b"})
        EXPECT_FALSE(StdFileStream(utf8(directory / "folder"), mode).isOpen()) << mode;
}

TEST(StdFileStream, textThatIsNoPathIsNotOpened) {
    EXPECT_FALSE(StdFileStream("", "rb").isOpen());
    EXPECT_FALSE(StdFileStream(std::string(100000, 'x'), "rb").isOpen());
    EXPECT_FALSE(StdFileStream("\xFF\xFE\xFD", "rb").isOpen());
}

TEST(StdFileStream, namesInAnyScriptAreOpened) {
    const TemporaryDirectory directory;
    // "Käse 低 🔊.qmpreset"
    const std::string name = "K\xC3\xA4se \xE4\xBD\x8E \xF0\x9F\x94\x8A.qmpreset";
    const std::string path = utf8(directory / "") + name;
    {
        StdFileStream stream(path, "w+b");
        ASSERT_TRUE(stream.isOpen());
        EXPECT_FALSE(stream.write(2, "hi"));
    }
    EXPECT_EQ(readFile(fs::path(std::u8string(path.begin(), path.end()))), bytesOf({'h', 'i'}));
}

TEST(StdFileStream, closingTellsOfAWriteThatFailed) {
    const TemporaryDirectory directory;
    writeFile(directory / "a", bytesOf({1}));
    StdFileStream stream(utf8(directory / "a"), "rb"); // not for writing
    ASSERT_TRUE(stream.isOpen());
    EXPECT_TRUE(stream.write(1, "x"));
    EXPECT_TRUE(stream.close());
    EXPECT_FALSE(stream.isOpen());
    EXPECT_TRUE(stream.close());
}

#ifndef _WIN32

TEST(StdFileStream, aPipeIsNotOpened) {
    const TemporaryDirectory directory;
    const std::string path = utf8(directory / "pipe");
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    // Opening it would wait for somebody at the other end.
    EXPECT_FALSE(StdFileStream(path, "rb").isOpen());
}

TEST(StdFileStream, aDeviceIsNotOpened) {
    EXPECT_FALSE(StdFileStream("/dev/zero", "rb").isOpen());
    EXPECT_FALSE(StdFileStream("/dev/null", "w+b").isOpen());
}

TEST(StdFileStream, aLinkToAPlainFileIsOpenedAndALinkToItselfIsNot) {
    const TemporaryDirectory directory;
    writeFile(directory / "a", bytesOf({1}));
    fs::create_symlink(directory / "a", directory / "link");
    fs::create_symlink(directory / "loop", directory / "loop");
    EXPECT_TRUE(StdFileStream(utf8(directory / "link"), "rb").isOpen());
    EXPECT_FALSE(StdFileStream(utf8(directory / "loop"), "rb").isOpen());
}

TEST(StdFileStream, aFullDiskIsNoticedAtTheLatestWhenClosing) {
    std::FILE* const full = std::fopen("/dev/full", "w+b");
    if (full == nullptr)
        GTEST_SKIP() << "this machine has no /dev/full";
    StdFileStream stream(full);
    const Bytes many(100000);
    const bool failedToWrite = stream.write(static_cast<std::int32_t>(many.size()), many.data());
    EXPECT_TRUE(stream.close());
    EXPECT_TRUE(failedToWrite);
}

TEST(StdFileStream, aFileBeyondThirtyTwoBitsHasNoSize) {
    const TemporaryDirectory directory;
    writeFile(directory / "a", {});
    std::error_code error;
    fs::resize_file(directory / "a", (std::uintmax_t{1} << 32) + 100, error); // takes no room
    if (error)
        GTEST_SKIP() << "the file system has no sparse files";
    StdFileStream stream(utf8(directory / "a"), "rb");
    EXPECT_EQ(stream.size(), -1);
    EXPECT_EQ(stream.tell(), 0);
    EXPECT_FALSE(readGenericPreset(stream));
}

#endif
