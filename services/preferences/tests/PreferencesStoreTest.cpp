// SPDX-License-Identifier: GPL-3.0-or-later
// One store and its file.
#include "services/preferences/PreferencesStore.h"

#include "services/preferences/tests/PreferencesFixtures.h"
#include "services/preferences/tests/StoredFile.h"

#include <memory>

using preferencesTest::bytesOf;
using preferencesTest::fileWith;
using preferencesTest::storedValues;
using QM::PreferencesStoreId;

namespace {

class PreferencesStoreTest : public preferencesTest::OwnStoreTest {
protected:
    static std::unique_ptr<QM::PreferencesStore>
    open(PreferencesStoreId store = PreferencesStoreId::shell) {
        return std::make_unique<QM::PreferencesStore>(QM::describePreferencesStore(store));
    }
};

} // namespace

TEST_F(PreferencesStoreTest, withoutAFileEveryReadAnswersItsDefault) {
    const auto store = open();
    EXPECT_TRUE(store->properties().getBoolValue("boolean", true));
    EXPECT_FALSE(store->properties().getBoolValue("boolean", false));
    EXPECT_EQ(store->properties().getIntValue("integer", -7), -7);
    EXPECT_EQ(store->properties().getDoubleValue("double", 0.25), 0.25);
    EXPECT_EQ(store->properties().getValue("text", "default"), juce::String("default"));
}

TEST_F(PreferencesStoreTest, readingMakesNoFile) {
    {
        const auto store = open();
        EXPECT_EQ(store->properties().getIntValue("integer", 3), 3);
    }
    EXPECT_FALSE(std::filesystem::exists(base()));
}

TEST_F(PreferencesStoreTest, theFirstSaveMakesTheFolderAndTheFile) {
    for (const auto id : QM::allPreferencesStores) {
        const auto path = preferencesTest::storeFile(base(), id);
        const auto store = open(id);
        store->properties().setValue("key", 1);
        EXPECT_FALSE(std::filesystem::exists(path));
        EXPECT_TRUE(store->properties().saveIfNeeded());
        EXPECT_TRUE(std::filesystem::is_regular_file(path));
    }
}

TEST_F(PreferencesStoreTest, itsEndWritesWhatIsPending) {
    {
        const auto store = open();
        store->properties().setValue("key", 5);
        EXPECT_TRUE(store->properties().needsToBeSaved());
    }
    EXPECT_EQ(storedValues(shellFile()), (std::map<std::string, std::string>{{"key", "5"}}));
}

TEST_F(PreferencesStoreTest, theFileIsReadableXmlOfTypedTexts) {
    const auto store = open();
    store->properties().setValue("true", true);
    store->properties().setValue("false", false);
    store->properties().setValue("integer", -2147483647 - 1);
    store->properties().setValue("double", 0.5);
    store->properties().setValue("text", "a \"b\" <c> & 'd'");
    store->properties().saveIfNeeded();
    EXPECT_EQ(storedValues(shellFile()),
              (std::map<std::string, std::string>{{"true", "1"},
                                                  {"false", "0"},
                                                  {"integer", "-2147483648"},
                                                  {"double", "0.5"},
                                                  {"text", "a \"b\" <c> & 'd'"}}));
}

TEST_F(PreferencesStoreTest, aNewStoreReadsWhatAnotherWrote) {
    {
        const auto store = open();
        store->properties().setValue("boolean", true);
        store->properties().setValue("integer", -5);
        store->properties().setValue("double", -0.125);
        store->properties().setValue("text", "a text");
    }
    const auto store = open();
    EXPECT_TRUE(store->properties().getBoolValue("boolean", false));
    EXPECT_EQ(store->properties().getIntValue("integer", 0), -5);
    EXPECT_EQ(store->properties().getDoubleValue("double", 0.0), -0.125);
    EXPECT_EQ(store->properties().getValue("text"), juce::String("a text"));
}

TEST_F(PreferencesStoreTest, keysAreToldApartByCase) {
    {
        const auto store = open();
        store->properties().setValue("key", 1);
        store->properties().setValue("KEY", 2);
    }
    const auto store = open();
    EXPECT_EQ(store->properties().getIntValue("key", 0), 1);
    EXPECT_EQ(store->properties().getIntValue("KEY", 0), 2);
    EXPECT_EQ(store->properties().getIntValue("Key", 3), 3);
}

TEST_F(PreferencesStoreTest, theSameValueAgainIsNoChange) {
    writeShellFile(fileWith("key", "5"));
    const auto store = open();
    store->properties().setValue("key", 5);
    EXPECT_FALSE(store->properties().needsToBeSaved());
}

TEST_F(PreferencesStoreTest, aRemovedValueReadsAsItsDefaultAgain) {
    writeShellFile(fileWith("key", "5"));
    const auto store = open();
    ASSERT_EQ(store->properties().getIntValue("key", 0), 5);
    store->properties().removeValue("key");
    EXPECT_EQ(store->properties().getIntValue("key", 9), 9);
}

TEST_F(PreferencesStoreTest, valuesThatAnotherProductWroteAreKept) {
    writeShellFile(fileWith("QMOTHER_background", "3"));
    {
        const auto store = open();
        store->properties().setValue("QMBLT_background", 1);
    }
    EXPECT_EQ(storedValues(shellFile()),
              (std::map<std::string, std::string>{{"QMOTHER_background", "3"},
                                                  {"QMBLT_background", "1"}}));
}

TEST_F(PreferencesStoreTest, theShellAndThePlugInsStoreShareAFolderAndNotAFile) {
    const auto shell = open(PreferencesStoreId::shell);
    const auto plugIns = open(PreferencesStoreId::plugIns);
    shell->properties().setValue("key", 1);
    plugIns->properties().setValue("key", 2);
    shell->properties().saveIfNeeded();
    plugIns->properties().saveIfNeeded();
    EXPECT_EQ(storedValues(preferencesTest::storeFile(base(), PreferencesStoreId::shell))["key"],
              "1");
    EXPECT_EQ(storedValues(preferencesTest::storeFile(base(), PreferencesStoreId::plugIns))["key"],
              "2");
}

// A number is what a text begins with; without one it is 0. Only a missing key has the default.
TEST_F(PreferencesStoreTest, aTextThatIsNoNumberReadsAsZeroOrFalse) {
    struct Case {
        const char* text;
        int integer;
        bool boolean;
        double number;
    };

    for (const Case& c :
         {Case{"12abc", 12, true, 12.0}, Case{"abc", 0, false, 0.0}, Case{"", 0, false, 0.0},
          Case{"true", 0, false, 0.0}, Case{"-1", -1, true, -1.0}, Case{" 7", 7, true, 7.0},
          Case{"0.5", 0, false, 0.5}, Case{"1e3", 1, true, 1000.0}}) {
        writeShellFile(fileWith("key", c.text));
        const auto store = open();
        EXPECT_EQ(store->properties().getIntValue("key", 99), c.integer) << c.text;
        EXPECT_EQ(store->properties().getBoolValue("key", !c.boolean), c.boolean) << c.text;
        EXPECT_EQ(store->properties().getDoubleValue("key", 99.0), c.number) << c.text;
    }
}

TEST_F(PreferencesStoreTest, aValidFileLeavesNoCopy) {
    writeShellFile(fileWith("key", "5"));
    (void)open();
    EXPECT_EQ(bytesOf(shellFile()), fileWith("key", "5"));
    EXPECT_FALSE(std::filesystem::exists(shellFile().concat(".damaged")));
}
