// SPDX-License-Identifier: GPL-3.0-or-later
// The preferences panel's conversation with an owner of groups, from both sides: what the panel
// does to an item and calls, and an owner that saves what it is told of.
#include "services/preferences/IPreferencesProvider.h"
#include "services/preferences/PreferenceGroupStorage.h"
#include "services/preferences/PreferencesStores.h"
#include "services/preferences/tests/PreferencesFixtures.h"
#include "services/preferences/tests/StoredFile.h"

using QM::PreferenceGroup;
using QM::PreferenceItem;

namespace {

class Provider : public QM::IPreferencesProvider {
public:
    Provider() {
        for (PreferenceGroup& group : groups)
            QM::loadGroup("QMBLT", group);
    }

    std::vector<PreferenceGroup>& preferenceGroups() override { return groups; }

    void itemChanged(PreferenceItem& item) override {
        for (const PreferenceGroup& group : groups) {
            if (group.find(item.key()) == &item)
                QM::saveGroup("QMBLT", group);
        }
    }

    void resetToDefaults() override {
        for (PreferenceGroup& group : groups) {
            group.resetToDefaults();
            QM::saveGroup("QMBLT", group);
        }
    }

private:
    std::vector<PreferenceGroup> groups{
        PreferenceGroup("One", {PreferenceItem("show", "Show", true)}),
        PreferenceGroup("Two", {PreferenceItem("width", "Width", 4.0F)})};
};

class PreferencesProvider : public preferencesTest::ProcessStoresTest {};

} // namespace

TEST_F(PreferencesProvider, aChangedItemIsSavedWithItsGroupAlone) {
    Provider provider;
    PreferenceItem& item = provider.preferenceGroups()[1].items()[0];
    item.setValue(2.5F);
    provider.itemChanged(item);
    QM::shellStore().saveIfNeeded();
    EXPECT_EQ(preferencesTest::storedValues(file(QM::PreferencesStoreId::shell)),
              (std::map<std::string, std::string>{{"QMBLT_width", "2.5"}}));
}

TEST_F(PreferencesProvider, anotherProviderOpenedLaterHasTheChange) {
    Provider first;
    PreferenceItem& item = first.preferenceGroups()[0].items()[0];
    item.setValue(false);
    first.itemChanged(item);
    Provider second;
    EXPECT_FALSE(second.preferenceGroups()[0].items()[0].booleanValue());
}

TEST_F(PreferencesProvider, aResetReachesEveryItemOfEveryGroup) {
    Provider provider;
    provider.preferenceGroups()[0].items()[0].setValue(false);
    provider.preferenceGroups()[1].items()[0].setValue(1.0F);
    provider.resetToDefaults();
    EXPECT_TRUE(provider.preferenceGroups()[0].items()[0].booleanValue());
    EXPECT_EQ(provider.preferenceGroups()[1].items()[0].floatValue(), 4.0F);
}
