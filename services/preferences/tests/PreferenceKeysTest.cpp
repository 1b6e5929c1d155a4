// SPDX-License-Identifier: GPL-3.0-or-later
// Keys, types and defaults of the single preferences.
#include "services/preferences/PreferenceKeys.h"

#include "services/preferences/EditorPreferences.h"
#include "services/preferences/PreferencesStores.h"
#include "services/preferences/tests/PreferencesFixtures.h"
#include "services/preferences/tests/StoredFile.h"

using preferencesTest::storedValues;
using QM::PreferencesStoreId;
namespace Keys = QM::PreferenceKeys;

namespace {

class PreferenceKeys : public preferencesTest::ProcessStoresTest {};

class EditorPreferences : public preferencesTest::ProcessStoresTest {};

struct BooleanRow {
    const char* name;
    QM::PreferenceKey<bool> key;
    PreferencesStoreId store;
    bool defaultValue;
};

constexpr BooleanRow booleanRows[] = {
    {"useLayer", Keys::useLayer, PreferencesStoreId::plugIns, true},
    {"useAsync", Keys::useAsync, PreferencesStoreId::plugIns, false},
    {"useBackingImages", Keys::useBackingImages, PreferencesStoreId::plugIns, true},
    {"auto_apply_selected_preset", Keys::autoApplySelectedPreset, PreferencesStoreId::console,
     false},
};

} // namespace

TEST_F(PreferenceKeys, withNoFilesPresentTheDefaultsAreRead) {
    EXPECT_TRUE(QM::readPreference(Keys::useLayer));
    EXPECT_FALSE(QM::readPreference(Keys::useAsync));
    EXPECT_TRUE(QM::readPreference(Keys::useBackingImages));
    EXPECT_FALSE(QM::readPreference(Keys::autoApplySelectedPreset));
    EXPECT_EQ(QM::readPreference(Keys::globalColourPicker), 0);
}

TEST_F(PreferenceKeys, everyBooleanHasItsStoreItsNameAndItsDefault) {
    for (const BooleanRow& row : booleanRows) {
        EXPECT_EQ(QM::readPreference(row.key), row.defaultValue) << row.name;
        QM::preferencesStore(row.store).setValue(row.name, !row.defaultValue);
        EXPECT_EQ(QM::readPreference(row.key), !row.defaultValue) << row.name;
    }
}

TEST_F(PreferenceKeys, booleansAreWrittenUnderTheirNamesAsZeroAndOne) {
    for (const bool value : {true, false}) {
        for (const BooleanRow& row : booleanRows) {
            QM::writePreference(row.key, value);
            EXPECT_EQ(QM::readPreference(row.key), value) << row.name;
            QM::preferencesStore(row.store).saveIfNeeded();
            EXPECT_EQ(storedValues(file(row.store))[row.name], value ? "1" : "0");
        }
    }
}

TEST_F(PreferenceKeys, theKindOfColourPickerIsAnIntegerOfTheConsoleStore) {
    QM::writePreference(Keys::globalColourPicker, 2);
    EXPECT_EQ(QM::readPreference(Keys::globalColourPicker), 2);
    QM::consoleStore().saveIfNeeded();
    EXPECT_EQ(storedValues(file(PreferencesStoreId::console)),
              (std::map<std::string, std::string>{{"global_color_picker", "2"}}));
    QM::consoleStore().setValue("global_color_picker", -3);
    EXPECT_EQ(QM::readPreference(Keys::globalColourPicker), -3);
}

TEST_F(EditorPreferences, theBackgroundModeIsOneUntilItIsSet) {
    EXPECT_EQ(QM::readBackgroundMode("QMBLT"), 1);
}

TEST_F(EditorPreferences, theBackgroundModeIsStoredUnderTheProductCode) {
    EXPECT_EQ(QM::backgroundModeKey("QMBLT"), "QMBLT_bknd");
    QM::writeBackgroundMode("QMBLT", 4);
    EXPECT_EQ(QM::readBackgroundMode("QMBLT"), 4);
    EXPECT_EQ(QM::readBackgroundMode("OTHER"), 1);
    QM::shellStore().saveIfNeeded();
    EXPECT_EQ(storedValues(file(PreferencesStoreId::shell)),
              (std::map<std::string, std::string>{{"QMBLT_bknd", "4"}}));
}

TEST_F(EditorPreferences, theMagnificationHasTheDefaultOfItsReader) {
    EXPECT_EQ(QM::readMagnification("BROLT_SML", 120), 120);
    EXPECT_EQ(QM::readMagnification("BROLT_SML", 100), 100);
}

TEST_F(EditorPreferences, theMagnificationIsAnIntegerThatIsSavedAtOnce) {
    QM::writeMagnification("BROLT_SML", 150);
    EXPECT_EQ(QM::readMagnification("BROLT_SML", 120), 150);
    EXPECT_EQ(storedValues(file(PreferencesStoreId::shell)),
              (std::map<std::string, std::string>{{"BROLT_SML", "150"}}));
}
