// SPDX-License-Identifier: GPL-3.0-or-later
// Names in many scripts, of every length and with every character a file can have.
#include "presets/manager/tests/PresetTreeTest.h"

namespace fs = std::filesystem;

namespace {

class ManagerNamesTest : public PresetTreeTest {
protected:
    void SetUp() override {
        PresetTreeTest::SetUp();
        acceptEverySoundHeader();
        manager.rescan();
    }

    /// Saves, lists, renames and finds a preset of that name.
    void livesThroughEverything(const std::string& name) {
        SCOPED_TRACE(name);
        QMGenericPreset preset = record(name, 50.0);
        preset.uniqueId = idOf(77);
        ASSERT_TRUE(manager.savePresetAs(userRoot, name, preset));
        EXPECT_EQ(manager.presetName(idSelector, 77), name);
        const std::string path = utf8FromPath(user) + "/" + name + ".qmpreset";
        EXPECT_EQ(manager.positionOfPath(path), 0);
        ASSERT_TRUE(manager.renamePreset(idSelector, 77, "plain"));
        ASSERT_TRUE(manager.renamePreset(idSelector, 77, name));
        EXPECT_EQ(namesIn(user), Names{name + ".qmpreset"});
        ASSERT_TRUE(manager.savePreset(idSelector, 77, preset));
        EXPECT_EQ(manager.loadPreset(idSelector, 77)->name, name);

        ASSERT_TRUE(manager.createFolder(name));
        EXPECT_EQ(manager.folderDisplayName(0x20001), "\t\t" + name);
        ASSERT_TRUE(manager.savePresetAs(0x20001, name, record(name, 1.0)));
        EXPECT_EQ(manager.presetName(0x20001, 0), name);

        ASSERT_TRUE(manager.trashFolder(0x20001));
        ASSERT_TRUE(manager.trashPreset(idSelector, 77));
        EXPECT_EQ(manager.numPresets(), 0u);
        fs::remove_all(trash);
    }
};

} // namespace

TEST_F(ManagerNamesTest, namesInAnyScriptWork) {
    for (const char* name :
         {"Bassdrum groß", "Grosse caisse n°1", "Большой барабан", "Μπάσο", "低音ドラム", "베이스",
          "תוף בס", "طبل كبير", "กลองใหญ่", "बड़ा ढोल", "Kick 🥁", "e\xCC\x81", "İI ıi ẞ",
          "\xF0\x9D\x84\xA2 clef", "zero\xE2\x80\x8Bwidth"})
        livesThroughEverything(name);
}

TEST_F(ManagerNamesTest, namesWithSignsWork) {
    for (const char* name : {"100% (hard) [2] {x}", "a & b; c, d's", "~", "-rf", "#1!", "$HOME",
                             " leading", "a.b.c", "...dots", "@^`=+"})
        livesThroughEverything(name);
}

TEST_F(ManagerNamesTest, filesWithControlCharactersInTheirNamesAreListedAndLoaded) {
#ifdef _WIN32
    GTEST_SKIP() << "Windows has no such names";
#endif
    for (const char* name : {"two\nlines", "a\tb", "\x01\x1F\x7F", "bell\a", "colon:star*what?",
                             "\"quoted\"", "<a|b>", "trailing ", "trailing."})
        livesThroughEverything(name);
}

TEST_F(ManagerNamesTest, namesOf255BytesWork) {
    // With the extension: 246 + 9.
    const std::string name(246, 'x');
    ASSERT_EQ((name + ".qmpreset").size(), 255u);
    QMGenericPreset preset = record("long", 50.0);
    preset.uniqueId = idOf(77);
    ASSERT_TRUE(manager.savePresetAs(userRoot, name, preset));
    EXPECT_EQ(manager.presetName(idSelector, 77), name);
    ASSERT_TRUE(manager.savePreset(idSelector, 77, preset));
    ASSERT_TRUE(manager.renamePreset(idSelector, 77, std::string(245, 'y') + "z"));
    EXPECT_FALSE(manager.renamePreset(idSelector, 77, std::string(247, 'y')));
    EXPECT_FALSE(manager.savePresetAs(userRoot, std::string(247, 'y'), preset));
    EXPECT_EQ(namesIn(user).size(), 1u);
    EXPECT_EQ(manager.numPresets(), 1u);
}

TEST_F(ManagerNamesTest, namesOf255BytesInAnotherScriptWork) {
    // 82 characters of three bytes.
    std::string name;
    for (int i = 0; i < 82; ++i)
        name += "低";
    ASSERT_EQ((name + ".qmpreset").size(), 255u);
    livesThroughEverything(name);
}

TEST_F(ManagerNamesTest, aFileOf255BytesThatHasNoIdentifierGetsOne) {
    const std::string name = std::string(246, 'x') + ".qmpreset";
    writeFile(user / name, withId(0).bytes());
    manager.rescan();
    ASSERT_EQ(manager.numPresets(), 1u);
    EXPECT_EQ(idAtEndOf(user / name), manager.presetUniqueId(userRoot, 0));
    EXPECT_NE(idAtEndOf(user / name), 0u);
}

TEST_F(ManagerNamesTest, namesThatAreNoUtf8DoNoHarm) {
#ifdef _WIN32
    GTEST_SKIP() << "Windows names are made of 16-bit units";
#endif
    writePreset(user / "good.qmpreset", 1);
    for (const char* name : {"\xFF\xFE", "caf\xE9", "\xC3", "\xE4\xBD", "\xF8\x88\x80\x80\x80",
                             "\xED\xA0\x80", "\xC0\xAF"}) {
        writePreset(user / (std::string(name) + ".qmpreset"), 2);
        writePreset(user / name / "inside.qmpreset", 3);
    }
    const Names before = namesIn(user);
    manager.rescan();
    EXPECT_EQ(manager.presetName(idSelector, 1), "good");
    EXPECT_GE(manager.numPresets(), 1u);
    manager.setFilter(nullptr);
    manager.rescan();
    EXPECT_EQ(manager.presetName(idSelector, 1), "good");
    for (std::size_t i = 0; i < manager.numPresets(); ++i)
        static_cast<void>(manager.recordAtPosition(i));
    EXPECT_EQ(namesIn(user), before);
}

TEST_F(ManagerNamesTest, aNewNameThatIsNoUtf8DoesNoHarm) {
    writePreset(user / "a.qmpreset", 1);
    manager.rescan();
    // The system may take it or not; the preset stays a whole file in its folder.
    manager.renamePreset(userRoot, 0, "caf\xE9");
    const Names names = namesIn(user);
    ASSERT_EQ(names.size(), 1u);
}
