// SPDX-License-Identifier: GPL-3.0-or-later
// Files that are damaged, cannot be read or cannot be written: defaults, no exception, and nothing
// that stood in a file is lost.
#include "services/preferences/PreferencesStore.h"
#include "services/preferences/tests/PreferencesFixtures.h"
#include "services/preferences/tests/StoredFile.h"

#include <fstream>
#include <memory>
#include <random>

#ifdef _WIN32
#    include <windows.h>
#else
#    include <unistd.h>
#endif

using preferencesTest::bytesOf;
using preferencesTest::fileWith;
using preferencesTest::storedValues;

namespace {

class PreferencesStoreFailures : public preferencesTest::OwnStoreTest {
protected:
    static std::unique_ptr<QM::PreferencesStore> open() {
        return std::make_unique<QM::PreferencesStore>(
            QM::describePreferencesStore(QM::PreferencesStoreId::shell));
    }

    [[nodiscard]] std::filesystem::path damagedFile() const {
        return shellFile().concat(".damaged");
    }

    /// The store answers defaults, takes values and writes them, and what was in the file is kept.
    void expectDamagedFileIsReplacedAndKept(const std::string& bytes) {
        writeShellFile(bytes);
        {
            const auto store = open();
            EXPECT_EQ(store->properties().getIntValue("key", 42), 42) << bytes;
            EXPECT_EQ(bytesOf(shellFile()), bytes) << "reading alone changes nothing";
            store->properties().setValue("key", 6);
            EXPECT_EQ(store->properties().getIntValue("key", 42), 6);
        }
        EXPECT_EQ(storedValues(shellFile()), (std::map<std::string, std::string>{{"key", "6"}}));
        EXPECT_EQ(bytesOf(damagedFile()), bytes);
    }
};

#ifdef _WIN32

/// Nobody else can read the file while this lives; it can be renamed, as with missing rights.
class Unreadable {
public:
    explicit Unreadable(const std::filesystem::path& file)
        : handle(CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                             FILE_ATTRIBUTE_NORMAL, nullptr)) {}

    ~Unreadable() { CloseHandle(handle); }

    Unreadable(const Unreadable&) = delete;
    Unreadable& operator=(const Unreadable&) = delete;

private:
    HANDLE handle;
};

#else

/// Takes away the right to read the file, and from root the right to read everything.
class Unreadable {
public:
    explicit Unreadable(std::filesystem::path unreadableFile)
        : file(std::move(unreadableFile)) {
        constexpr uid_t nobody = 65534;
        if (geteuid() == 0) {
            for (auto path = file; path != std::filesystem::temp_directory_path();
                 path = path.parent_path())
                changed = chown(path.c_str(), nobody, gid_t(-1)) == 0 && changed;
            std::filesystem::permissions(file, std::filesystem::perms::none);
            changed = seteuid(nobody) == 0 && changed;
        } else {
            std::filesystem::permissions(file, std::filesystem::perms::none);
        }
    }

    ~Unreadable() {
        if (user == 0)
            changed = seteuid(0) == 0 && changed;
        EXPECT_TRUE(changed);
    }

    Unreadable(const Unreadable&) = delete;
    Unreadable& operator=(const Unreadable&) = delete;

private:
    const uid_t user = geteuid();
    const std::filesystem::path file;
    bool changed = true;
};

#endif

} // namespace

TEST_F(PreferencesStoreFailures, damagedFilesReadAsEmptyAndAreKeptBesideTheNewOne) {
    for (const std::string& bytes :
         {std::string("not XML at all"), std::string("<?xml version=\"1.0\"?>"),
          std::string("<PROPERTIES><VALUE name=\"key\" val=\"5\"/>"),
          std::string("<PROPERTIES><VALUE name=\"key\" val=\"5\"></PROPERTIES>"),
          std::string("<OTHER><VALUE name=\"key\" val=\"5\"/></OTHER>"), std::string("\0\0\0\0", 4),
          std::string("\xFF\xFE<\0P\0", 6), std::string("<<<<<<<<"), std::string("\xC3\x28")})
        expectDamagedFileIsReplacedAndKept(bytes);
}

TEST_F(PreferencesStoreFailures, aFileCutOffBeforeItsLastTagReadsAsEmptyAndIsKept) {
    const std::string whole = fileWith("key", "5");
    const std::size_t lastTag = whole.rfind("</");
    for (std::size_t length = 1; length <= lastTag + 1; ++length) {
        const std::string bytes = whole.substr(0, length);
        // To the toolkit that is a whole element, and there is no value yet to keep.
        if (!bytes.ends_with("<PROPERTIES"))
            expectDamagedFileIsReplacedAndKept(bytes);
    }
}

// The toolkit does not insist on the rest.
TEST_F(PreferencesStoreFailures, aFileCutOffInItsLastTagHasAllItsValues) {
    const std::string whole = fileWith("key", "5");
    for (std::size_t length = whole.rfind("</") + 2; length < whole.size(); ++length) {
        writeShellFile(whole.substr(0, length));
        {
            const auto store = open();
            EXPECT_EQ(store->properties().getIntValue("key", 42), 5) << length;
            store->properties().setValue("other", 6);
        }
        EXPECT_EQ(storedValues(shellFile()),
                  (std::map<std::string, std::string>{{"key", "5"}, {"other", "6"}}));
        EXPECT_FALSE(std::filesystem::exists(damagedFile()));
    }
}

TEST_F(PreferencesStoreFailures, anEmptyFileReadsAsEmpty) {
    writeShellFile("");
    {
        const auto store = open();
        EXPECT_EQ(store->properties().getIntValue("key", 42), 42);
        store->properties().setValue("key", 6);
    }
    EXPECT_EQ(storedValues(shellFile())["key"], "6");
    EXPECT_FALSE(std::filesystem::exists(damagedFile())) << "there was nothing to keep";
}

TEST_F(PreferencesStoreFailures, elementsThatAreNoValuesAreLeftOut) {
    writeShellFile("<PROPERTIES><VALUE/><VALUE name=\"\" val=\"1\"/><VALUE val=\"2\"/>"
                   "<VALUE name=\"empty\"/><OTHER name=\"other\" val=\"3\"/>text"
                   "<VALUE name=\"key\" val=\"5\"/></PROPERTIES>");
    const auto store = open();
    EXPECT_EQ(store->properties().getAllProperties().size(), 2);
    EXPECT_EQ(store->properties().getIntValue("key", 42), 5);
    EXPECT_EQ(store->properties().getValue("empty", "default"), juce::String());
}

TEST_F(PreferencesStoreFailures, randomBytesHarmNothing) {
    std::mt19937 random(20261121);
    std::uniform_int_distribution<int> byte(0, 255);
    std::uniform_int_distribution<std::size_t> length(1, 400);
    const std::string whole = fileWith("key", "5");
    for (int round = 0; round < 300; ++round) {
        std::string bytes;
        if (round % 3 == 0) {
            // Noise, sometimes behind the mark of the toolkit's binary form.
            bytes = round % 2 == 0 ? "PROP" : "";
            for (std::size_t i = length(random); i > 0; --i)
                bytes += static_cast<char>(byte(random));
        } else {
            bytes = whole;
            for (int changes = 0; changes < 3; ++changes)
                bytes[std::uniform_int_distribution<std::size_t>(0, whole.size() - 1)(random)] =
                    static_cast<char>(byte(random));
        }
        writeShellFile(bytes);
        {
            const auto store = open();
            store->properties().setValue("written", round);
        }
        const auto store = open();
        ASSERT_EQ(store->properties().getIntValue("written", -1), round) << bytes;
    }
}

TEST_F(PreferencesStoreFailures, aFolderInTheFilesPlaceLosesNothingInMemory) {
    std::filesystem::create_directories(shellFile() / "folder");
    {
        const auto store = open();
        EXPECT_EQ(store->properties().getIntValue("key", 42), 42);
        store->properties().setValue("key", 6);
        EXPECT_FALSE(store->properties().saveIfNeeded());
        EXPECT_EQ(store->properties().getIntValue("key", 42), 6);
    }
    EXPECT_TRUE(std::filesystem::is_directory(shellFile() / "folder"));
    EXPECT_FALSE(std::filesystem::exists(damagedFile()));
}

TEST_F(PreferencesStoreFailures, aFolderThatCannotBeMadeIsTriedAgainAtTheNextSave) {
    std::filesystem::create_directories(base());
    const auto folder = shellFile().parent_path();
    std::ofstream(folder, std::ios::binary) << "a file where the folder should be";
    {
        const auto store = open();
        EXPECT_EQ(store->properties().getIntValue("key", 42), 42);
        store->properties().setValue("key", 6);
        EXPECT_FALSE(store->properties().saveIfNeeded());
        EXPECT_TRUE(store->properties().needsToBeSaved());
        EXPECT_EQ(store->properties().getIntValue("key", 42), 6);
        EXPECT_EQ(bytesOf(folder), "a file where the folder should be");
        std::filesystem::remove(folder);
    }
    EXPECT_EQ(storedValues(shellFile())["key"], "6");
}

// Some platforms replace a read-only file, others refuse; in no case is there half of one.
TEST_F(PreferencesStoreFailures, aReadOnlyFileIsReadAndEitherReplacedOrLeftAlone) {
    const std::string before = fileWith("key", "5");
    writeShellFile(before);
    std::filesystem::permissions(shellFile(),
                                 std::filesystem::perms::owner_write |
                                     std::filesystem::perms::group_write |
                                     std::filesystem::perms::others_write,
                                 std::filesystem::perm_options::remove);
    {
        const auto store = open();
        EXPECT_EQ(store->properties().getIntValue("key", 42), 5);
        store->properties().setValue("key", 6);
        const bool saved = store->properties().saveIfNeeded();
        EXPECT_EQ(saved, !store->properties().needsToBeSaved());
        EXPECT_EQ(store->properties().getIntValue("key", 42), 6);
        if (!saved) {
            EXPECT_EQ(bytesOf(shellFile()), before);
            std::filesystem::permissions(shellFile(), std::filesystem::perms::owner_write,
                                         std::filesystem::perm_options::add);
        }
    }
    EXPECT_EQ(storedValues(shellFile())["key"], "6");
}

TEST_F(PreferencesStoreFailures, aFileThatMayNotBeReadIsSetAside) {
    const std::string before = fileWith("key", "5");
    writeShellFile(before);
    {
        const Unreadable unreadable(shellFile());
        const auto store = open();
        EXPECT_EQ(store->properties().getIntValue("key", 42), 42);
        store->properties().setValue("key", 6);
    }
    EXPECT_EQ(storedValues(shellFile())["key"], "6");
    std::filesystem::permissions(damagedFile(), std::filesystem::perms::owner_read,
                                 std::filesystem::perm_options::add);
    EXPECT_EQ(bytesOf(damagedFile()), before);
}
