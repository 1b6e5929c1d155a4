// SPDX-License-Identifier: GPL-3.0-or-later
// Unique identifiers: which files get one, where it is written, and what stands in for it.
#include "presets/manager/tests/ListedEntries.h"
#include "presets/manager/tests/PresetTreeTest.h"
#include "presets/manager/tests/UnprivilegedChild.h"

#include <chrono>
#include <set>

#ifndef _WIN32
#    include <unistd.h>
#endif

namespace {

class PresetScanIdentityTest : public PresetTreeTest {};

constexpr std::uint64_t topBit = 0x8000000000000000u;

std::uint64_t microsecondsNow() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(
        std::chrono::duration_cast<std::chrono::microseconds>(now).count());
}

/// Worked by hand: (bits of 0.5) × 37, then (h + 'A') × 37, with the top bit set.
/// 0x3FE0000000000000 × 37 mod 2^64 = 0x3B60000000000000 (0x3FE × 37 = 0x93B6);
/// + 0x41 = 0x3B60000000000041; × 37 = 0x94E0000000000965 (0x3B6 × 37 = 0x894E, 0x41 × 37 = 0x965).
constexpr std::uint64_t hashOfHalfNamedA = 0x94E0000000000965u;

PresetBytes halfNamedA() {
    PresetBytes preset = withId(0);
    preset.name = "A";
    preset.values = {{code("gain"), 0.5}};
    return preset;
}

} // namespace

TEST_F(PresetScanIdentityTest, aPresetWithoutOneGetsTheTimeWithTheTopBitInItsFileToo) {
    writeFile(user / "a.qmpreset", withId(0).bytes());
    const std::uint64_t before = microsecondsNow();
    manager.rescan();
    const std::uint64_t after = microsecondsNow();
    const std::uint64_t id = manager.presetUniqueId(userRoot, 0);
    EXPECT_GE(id, before | topBit);
    EXPECT_LE(id, after | topBit);
    EXPECT_EQ(readFile(user / "a.qmpreset"), withId(id).bytes());
    EXPECT_EQ(namesIn(user), Names{"a.qmpreset"});
    EXPECT_EQ(
        manager.presetName(static_cast<std::uint32_t>(id >> 32), static_cast<std::uint32_t>(id)),
        "a");
}

TEST_F(PresetScanIdentityTest, itIsTheSameInEveryLaterScan) {
    writeFile(user / "a.qmpreset", withId(0).bytes());
    manager.rescan();
    const std::uint64_t id = manager.presetUniqueId(userRoot, 0);
    const auto written = std::filesystem::last_write_time(user / "a.qmpreset");
    manager.rescan();
    EXPECT_EQ(manager.presetUniqueId(userRoot, 0), id);
    EXPECT_EQ(std::filesystem::last_write_time(user / "a.qmpreset"), written);
}

TEST_F(PresetScanIdentityTest, noTwoPresetsGetTheSame) {
    constexpr std::size_t count = 200;
    for (std::size_t i = 0; i < count; ++i)
        writeFile(user / (std::to_string(i) + ".qmpreset"), withId(0).bytes());
    manager.rescan();
    std::set<std::uint64_t> ids;
    for (std::size_t i = 0; i < count; ++i)
        ids.insert(manager.presetAtPosition(i)->uniqueId());
    EXPECT_EQ(ids.size(), count);
}

TEST_F(PresetScanIdentityTest, filesOfOlderVersionsAreWrittenAsVersionTwo) {
    for (const std::uint32_t version : {0u, 1u}) {
        PresetBytes old = withId(0);
        old.version = version;
        writeFile(user / "a.qmpreset", old.bytes());
        manager.rescan();
        EXPECT_EQ(readFile(user / "a.qmpreset"),
                  withId(manager.presetUniqueId(userRoot, 0)).bytes())
            << version;
    }
}

TEST_F(PresetScanIdentityTest, aFileThatKeepsItsOldEndIsReadWithWhatThatEndHolds) {
    // Six bytes of an older, longer record lie behind the new one; all of them are 0.
    const std::string overlaid = withId(0).bytes() + std::string(6, '\0');
    writeFile(user / "a.qmpreset", overlaid);
    manager.rescan();
    const std::uint64_t id = manager.presetUniqueId(userRoot, 0);
    EXPECT_NE(id & topBit, 0u);
    EXPECT_EQ(readFile(user / "a.qmpreset"), withId(id).bytes() + std::string(6, '\0'));
    // The last eight bytes now are the two highest of the identifier and six times 0.
    manager.rescan();
    EXPECT_EQ(manager.presetUniqueId(userRoot, 0), id >> 48);
}

TEST_F(PresetScanIdentityTest, aFileThatIsNoRecordIsNeverWritten) {
    const std::string damaged = PresetBytes().bytes().substr(0, 30);
    writeFile(user / "notes.txt", "somebody's text");
    writeFile(user / "damaged.qmpreset", damaged);
    writeFile(user / "empty.qmpreset", "");
    manager.rescan();
    EXPECT_EQ(listedNames(), (Names{"damaged", "empty", "notes.txt"}));
    for (std::uint32_t i = 0; i < 3; ++i) {
        EXPECT_EQ(manager.presetUniqueId(userRoot, i), 0u);
        ASSERT_NE(manager.loadPreset(userRoot, i), nullptr);
        EXPECT_TRUE(manager.loadPreset(userRoot, i)->values.empty());
    }
    EXPECT_EQ(readFile(user / "notes.txt"), "somebody's text");
    EXPECT_EQ(readFile(user / "damaged.qmpreset"), damaged);
    EXPECT_EQ(readFile(user / "empty.qmpreset"), "");
}

TEST_F(PresetScanIdentityTest, ofTwoPresetsWithOneIdentifierTheLaterScannedIsFound) {
    const std::string root = utf8FromPath(user);
    writePreset(user / "a.qmpreset", 5);
    writePreset(user / "b.qmpreset", 5);
    for (const bool aFirst : {true, false}) {
        const std::pair<std::string, bool> a = {"a.qmpreset", false};
        const std::pair<std::string, bool> b = {"b.qmpreset", false};
        QMGenericPresetManager listed(ListedDirectoryIterator::factory(
            aFirst ? ListedEntries{{root, {a, b}}} : ListedEntries{{root, {b, a}}}));
        prepare(listed);
        listed.rescan();
        EXPECT_EQ(listed.numPresets(), 2u);
        EXPECT_EQ(listed.presetName(idSelector, 5), aFirst ? "b" : "a");
    }
}

TEST_F(PresetScanIdentityTest, theUsersPresetIsFoundBeforeTheFactorysOfTheSameIdentifier) {
    writePreset(factory / "installed.qmpreset", 5);
    writePreset(user / "own.qmpreset", 5);
    manager.rescan();
    EXPECT_EQ(manager.presetName(idSelector, 5), "own");
}

TEST_F(PresetScanIdentityTest, aFileThatIsReadOnlyGetsOneMadeOfItsContent) {
    writeFile(factory / "a.qmpreset", halfNamedA().bytes());
    std::filesystem::permissions(factory / "a.qmpreset", std::filesystem::perms(0444));
    for (int scan = 0; scan < 2; ++scan) {
        manager.rescan();
        EXPECT_EQ(manager.presetUniqueId(factoryRoot, 0), hashOfHalfNamedA);
        EXPECT_EQ(readFile(factory / "a.qmpreset"), halfNamedA().bytes());
    }
    EXPECT_EQ(manager.presetName(static_cast<std::uint32_t>(hashOfHalfNamedA >> 32),
                                 static_cast<std::uint32_t>(hashOfHalfNamedA)),
              "a");
    std::filesystem::permissions(factory / "a.qmpreset", std::filesystem::perms(0644));
}

TEST_F(PresetScanIdentityTest, aFileThatVanishesOnceItWasAcceptedDoesNotComeBack) {
    writeFile(user / "a.qmpreset", halfNamedA().bytes());

    class Vanishing : public QMGenericPresetManager::Filter {
    public:
        bool accept(const std::string& path) override {
            std::filesystem::remove(pathFromUtf8(path));
            return true;
        }
    };

    manager.setFilter(std::make_unique<Vanishing>());
    manager.rescan();
    EXPECT_EQ(listedNames(), Names{"a"});
    EXPECT_EQ(manager.loadPreset(userRoot, 0), nullptr);
    EXPECT_EQ(manager.presetUniqueId(userRoot, 0), 0u);
    EXPECT_TRUE(namesIn(user).empty());
}

#ifndef _WIN32

TEST_F(PresetScanIdentityTest, aReadOnlyTreeIsNotWrittenAndItsIdentifiersStay) {
    for (const char* name : {"a.qmpreset", "folder/b.qmpreset"})
        writeFile(factory / name, halfNamedA().bytes());
    using std::filesystem::perms;
    for (const char* name : {"folder/b.qmpreset", "a.qmpreset", "folder", "."}) {
        giveToUnprivilegedChild(factory / name);
        const bool isFolder = std::filesystem::is_directory(factory / name);
        std::filesystem::permissions(factory / name, isFolder ? perms(0555) : perms(0444));
    }
    const auto before = std::filesystem::last_write_time(factory / "a.qmpreset");
    EXPECT_TRUE(inUnprivilegedChild([this] {
        for (int scan = 0; scan < 2; ++scan) {
            manager.rescan();
            for (std::size_t i = 0; i < 2; ++i)
                if (manager.presetAtPosition(i)->uniqueId() != hashOfHalfNamedA)
                    return false;
        }
        return true;
    }));
    for (const char* name : {"a.qmpreset", "folder/b.qmpreset"})
        EXPECT_EQ(readFile(factory / name), halfNamedA().bytes());
    EXPECT_EQ(std::filesystem::last_write_time(factory / "a.qmpreset"), before);
    EXPECT_EQ(namesIn(factory), (Names{"a.qmpreset", "folder"}));
    for (const char* name : {".", "folder"})
        std::filesystem::permissions(factory / name, perms(0755));
}

TEST_F(PresetScanIdentityTest, aTreeOfSomebodyElseIsNotWrittenAndItsIdentifiersStay) {
    // As installed: anybody may read, the owner alone may write. An ordinary user owns the tree
    // here and takes the rights away from himself.
    writeFile(factory / "a.qmpreset", halfNamedA().bytes());
    const bool isSuperuser = geteuid() == 0;
    if (!isSuperuser)
        std::filesystem::permissions(factory / "a.qmpreset", std::filesystem::perms(0444));
    EXPECT_TRUE(inUnprivilegedChild([this] {
        manager.rescan();
        return manager.presetUniqueId(factoryRoot, 0) == hashOfHalfNamedA;
    }));
    EXPECT_EQ(readFile(factory / "a.qmpreset"), halfNamedA().bytes());
}

TEST_F(PresetScanIdentityTest, aFullDiskLeavesTheFileAndGivesAnIdentifierMadeOfTheContent) {
    writeFile(user / "a.qmpreset", halfNamedA().bytes());
    EXPECT_TRUE(inChildWithFullDisk(20, [this] {
        manager.rescan();
        return manager.presetUniqueId(userRoot, 0) == hashOfHalfNamedA;
    }));
    EXPECT_EQ(readFile(user / "a.qmpreset"), halfNamedA().bytes());
    EXPECT_EQ(namesIn(user), Names{"a.qmpreset"});
}

#endif
