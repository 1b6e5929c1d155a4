// SPDX-License-Identifier: GPL-3.0-or-later
// Groups in the shell store: keys, the stored text of each type, and what comes back.
#include "services/preferences/PreferenceGroupStorage.h"

#include "plugin-model/tests/ParameterCommaLocale.h"
#include "services/preferences/PreferencesStore.h"
#include "services/preferences/PreferencesStores.h"
#include "services/preferences/tests/PreferencesFixtures.h"
#include "services/preferences/tests/StoredFile.h"

#include <cmath>
#include <cstdlib>
#include <limits>

using preferencesTest::fileWith;
using preferencesTest::storedValues;
using QM::PreferenceColour;
using QM::PreferenceGroup;
using QM::PreferenceItem;
using QM::PreferenceValue;

namespace {

/// What an editor of this family offers.
PreferenceGroup uiPreferences() {
    return PreferenceGroup(
        "UI Preferences",
        {PreferenceItem("text_color", "Parameter Text Color", PreferenceColour{0xFF00FF00}),
         PreferenceItem("background", "Background Mode", 1),
         PreferenceItem("base_color", "Background Base Color", PreferenceColour{0xFF575757}),
         PreferenceItem("top_brightness", "Top Gradient Brightness", 0.164F),
         PreferenceItem("bot_brightness", "Bottom Gradient Brightness", -0.91F),
         PreferenceItem("show_bevels", "Show Bevels", true),
         PreferenceItem("show_rings", "Show Knob Rings", true),
         PreferenceItem("ring_width", "Rings Width", 4.0F)});
}

PreferenceGroup groupOf(const PreferenceValue& value) {
    return PreferenceGroup("group", {PreferenceItem("item", "Item", value)});
}

/// Groups in stores that the test opens.
class PreferenceGroupFile : public preferencesTest::OwnStoreTest {
protected:
    [[nodiscard]] static QM::PreferencesStore open() {
        return QM::PreferencesStore(QM::describePreferencesStore(QM::PreferencesStoreId::shell));
    }

    /// The text that a value is stored as.
    std::string storedTextOf(const PreferenceValue& value) const {
        {
            QM::PreferencesStore store = open();
            saveGroup(store.properties(), "P", groupOf(value));
            store.properties().saveIfNeeded();
        }
        return storedValues(shellFile())["P_item"];
    }

    /// What an item with this value has after it was loaded from a file that another store wrote.
    static PreferenceValue reloaded(const PreferenceValue& current) {
        QM::PreferencesStore store = open();
        PreferenceGroup group = groupOf(current);
        loadGroup(store.properties(), "P", group);
        return group.items()[0].value();
    }

    PreferenceValue loadedFrom(const std::string& text, const PreferenceValue& current) const {
        writeShellFile(fileWith("P_item", text));
        return reloaded(current);
    }
};

/// Groups in the process's shell store.
class PreferenceGroupStorage : public preferencesTest::ProcessStoresTest {
protected:
    [[nodiscard]] static std::map<std::string, std::string> saved() {
        QM::shellStore().saveIfNeeded();
        return storedValues(file(QM::PreferencesStoreId::shell));
    }
};

} // namespace

TEST_F(PreferenceGroupStorage, keysAreThePrefixAnUnderscoreAndTheItemsKey) {
    QM::saveGroup("QMBLT", uiPreferences());
    const auto values = saved();
    EXPECT_EQ(values.size(), 8U);
    for (const auto& [key, value] : values)
        EXPECT_TRUE(key.starts_with("QMBLT_")) << key;
    EXPECT_EQ(values.at("QMBLT_text_color"), "#ff00ff00");
    EXPECT_EQ(values.at("QMBLT_background"), "1");
    EXPECT_EQ(values.at("QMBLT_base_color"), "#ff575757");
    EXPECT_EQ(std::strtof(values.at("QMBLT_top_brightness").c_str(), nullptr), 0.164F);
    EXPECT_EQ(std::strtof(values.at("QMBLT_bot_brightness").c_str(), nullptr), -0.91F);
    EXPECT_EQ(values.at("QMBLT_show_bevels"), "1");
    EXPECT_EQ(values.at("QMBLT_show_rings"), "1");
    EXPECT_EQ(values.at("QMBLT_ring_width"), "4.0");
}

TEST_F(PreferenceGroupStorage, withNothingStoredItemsKeepTheirValuesButTextsBecomeEmpty) {
    PreferenceGroup group = uiPreferences();
    group.find("background")->setValue(3);
    group.find("show_rings")->setValue(false);
    group.items().emplace_back("title", "Title", std::string("default"));
    const PreferenceGroup before = group;
    QM::loadGroup("QMBLT", group);
    for (const PreferenceItem& item : before.items()) {
        if (item.key() == "title")
            continue;
        EXPECT_EQ(group.find(item.key())->value(), item.value()) << item.key();
    }
    EXPECT_EQ(group.find("title")->textValue(), "");
    EXPECT_EQ(group.find("title")->defaultValue(), PreferenceValue(std::string("default")));
}

TEST_F(PreferenceGroupStorage, whatOneGroupSavesAnotherLoadsAtOnce) {
    PreferenceGroup one = uiPreferences();
    PreferenceGroup two = uiPreferences();
    one.find("text_color")->setValue(PreferenceColour{0x80102030});
    one.find("background")->setValue(4);
    one.find("ring_width")->setValue(2.5F);
    one.find("show_bevels")->setValue(false);
    QM::saveGroup("QMBLT", one);
    QM::loadGroup("QMBLT", two);
    for (const PreferenceItem& item : one.items())
        EXPECT_EQ(two.find(item.key())->value(), item.value()) << item.key();
}

TEST_F(PreferenceGroupStorage, prefixesKeepProductsApart) {
    PreferenceGroup group = groupOf(7);
    QM::saveGroup("ONE", group);
    group.items()[0].setValue(8);
    QM::saveGroup("TWO", group);
    QM::loadGroup("ONE", group);
    EXPECT_EQ(group.items()[0].integerValue(), 7);
    EXPECT_EQ(saved(), (std::map<std::string, std::string>{{"ONE_item", "7"}, {"TWO_item", "8"}}));
}

TEST_F(PreferenceGroupStorage, anEmptyPrefixStillHasItsUnderscore) {
    QM::saveGroup("", groupOf(7));
    EXPECT_EQ(saved(), (std::map<std::string, std::string>{{"_item", "7"}}));
}

TEST_F(PreferenceGroupStorage, anEmptyGroupChangesNothing) {
    PreferenceGroup group("empty");
    QM::saveGroup("QMBLT", group);
    QM::loadGroup("QMBLT", group);
    EXPECT_FALSE(QM::shellStore().needsToBeSaved());
}

TEST_F(PreferenceGroupStorage, savingUnchangedValuesIsNoChange) {
    QM::saveGroup("QMBLT", uiPreferences());
    QM::shellStore().saveIfNeeded();
    QM::saveGroup("QMBLT", uiPreferences());
    EXPECT_FALSE(QM::shellStore().needsToBeSaved());
}

TEST_F(PreferenceGroupFile, booleansAreStoredAsOneAndZero) {
    EXPECT_EQ(storedTextOf(true), "1");
    EXPECT_EQ(reloaded(false), PreferenceValue(true));
    EXPECT_EQ(storedTextOf(false), "0");
    EXPECT_EQ(reloaded(true), PreferenceValue(false));
}

TEST_F(PreferenceGroupFile, integersAreStoredAsDecimalNumbers) {
    using Limits = std::numeric_limits<std::int32_t>;
    for (const std::int32_t number : {0, 1, -1, 120, Limits::max(), Limits::min()}) {
        EXPECT_EQ(storedTextOf(number), std::to_string(number));
        EXPECT_EQ(reloaded(55), PreferenceValue(number));
    }
}

TEST_F(PreferenceGroupFile, floatsComeBackAsTheSameFloats) {
    using Limits = std::numeric_limits<float>;
    for (const float number : {0.0F, 0.5F, 4.0F, 0.164F, -0.91F, 0.1F, 1.0F / 3.0F, 1.0e-5F,
                               123456.789F, 16777215.0F, std::nextafter(1.0F, 2.0F), Limits::max(),
                               Limits::lowest(), Limits::min(), Limits::denorm_min()}) {
        EXPECT_EQ(std::strtof(storedTextOf(number).c_str(), nullptr), number);
        EXPECT_EQ(reloaded(77.0F), PreferenceValue(number)) << number;
    }
    EXPECT_EQ(storedTextOf(0.5F), "0.5");
    EXPECT_EQ(storedTextOf(4.0F), "4.0");
}

TEST_F(PreferenceGroupFile, floatsDoNotDependOnTheLocale) {
    const parameterTest::CommaLocale commas;
    if (!commas.isInForce())
        GTEST_SKIP() << "no locale with decimal commas here";
    EXPECT_EQ(storedTextOf(0.5F), "0.5");
    EXPECT_EQ(reloaded(77.0F), PreferenceValue(0.5F));
}

TEST_F(PreferenceGroupFile, floatsThatAreNoneAreIgnoredAndTooGreatOnesClamped) {
    constexpr float greatest = std::numeric_limits<float>::max();
    const PreferenceValue current(0.25F);
    for (const char* text : {"nan", "inf", "-inf", "1e999", "-1e999"})
        EXPECT_EQ(loadedFrom(text, current), current) << text;
    EXPECT_EQ(loadedFrom("1e300", current), PreferenceValue(greatest));
    EXPECT_EQ(loadedFrom("-1e300", current), PreferenceValue(-greatest));
    EXPECT_EQ(loadedFrom("wide", current), PreferenceValue(0.0F));
    EXPECT_EQ(loadedFrom("1e-300", current), PreferenceValue(0.0F));
}

TEST_F(PreferenceGroupFile, textsComeBackByteByByte) {
    for (const std::string& text :
         {std::string(), std::string("plain"), std::string("a \"b\" <c> & 'd' #"),
          std::string("Gr\xC3\xBC\xC3\x9F\x65 \xE2\x82\xAC \xF0\x9D\x84\x9E"),
          std::string("two\nlines\tand a tab"), std::string("  blanks around  "),
          std::string("&amp; not an entity"), std::string(100000, 'x')}) {
        EXPECT_EQ(storedTextOf(text), text);
        EXPECT_EQ(reloaded(std::string("before")), PreferenceValue(text));
    }
}

TEST_F(PreferenceGroupFile, coloursAreStoredInHexadecimalWithAllFourChannels) {
    struct Case {
        std::uint32_t argb;
        const char* text;
    };

    for (const Case& c :
         {Case{0xFF00FF00, "#ff00ff00"}, Case{0xFF575757, "#ff575757"},
          Case{0x12345678, "#12345678"}, Case{0x80000000, "#80000000"},
          Case{0x01000000, "#1000000"}, Case{0x00FF00FF, "#ff00ff"}, Case{0x0000000F, "#f"},
          Case{0x00000000, "#0"}, Case{0xFFFFFFFF, "#ffffffff"}}) {
        EXPECT_EQ(storedTextOf(PreferenceColour{c.argb}), c.text);
        EXPECT_EQ(reloaded(PreferenceColour{0xAABBCCDD}), PreferenceValue(PreferenceColour{c.argb}))
            << c.text;
    }
}

TEST_F(PreferenceGroupFile, aColourTextIsHexadecimalAfterTheHashAndAnIntegerWithoutIt) {
    struct Case {
        const char* text;
        std::uint32_t argb;
    };

    for (const Case& c : {
             Case{"#FF00FF00", 0xFF00FF00},
             Case{"#Ff00fF00", 0xFF00FF00},
             Case{"#1FF00FF00", 0xFF00FF00}, // the last eight digits
             Case{"# f f", 0x000000FF},      // what is no digit is skipped
             Case{"#", 0x00000000},
             Case{"#red", 0x000000ED},
             Case{"-16711936", 0xFF00FF00}, // 0xFF00FF00 - 2^32
             Case{"4278255360", 0xFF00FF00},
             Case{"255", 0x000000FF},
             Case{"-1", 0xFFFFFFFF},
             Case{"-2147483648", 0x80000000},
             Case{"0", 0x00000000},
             Case{"ff00ff00", 0x00000000}, // no hash, and no number to begin with
             Case{" #ff00ff00", 0x00000000},
             Case{"", 0x00000000},
         })
        EXPECT_EQ(loadedFrom(c.text, PreferenceColour{0xAABBCCDD}),
                  PreferenceValue(PreferenceColour{c.argb}))
            << c.text;
}

TEST_F(PreferenceGroupFile, aStoredTypeThatIsNotTheItemsIsReadByTheItemsType) {
    EXPECT_EQ(loadedFrom("#ff00ff00", 7), PreferenceValue(0));
    EXPECT_EQ(loadedFrom("true", true), PreferenceValue(false));
    EXPECT_EQ(loadedFrom("3", false), PreferenceValue(true));
    EXPECT_EQ(loadedFrom("2.75", 7), PreferenceValue(2));
    EXPECT_EQ(loadedFrom("3", 0.5F), PreferenceValue(3.0F));
    EXPECT_EQ(loadedFrom("99999999999", 7), PreferenceValue(1215752191)); // modulo 2^32
    EXPECT_EQ(loadedFrom("5", std::string("before")), PreferenceValue(std::string("5")));
}

// The toolkit stores a text that is XML as an element.
TEST_F(PreferenceGroupFile, aTextThatIsXmlComesBackAsTheSameElement) {
    {
        QM::PreferencesStore store = open();
        saveGroup(store.properties(), "P", groupOf(std::string("<a b=\"c\"><d/></a>")));
    }
    EXPECT_EQ(reloaded(std::string()), PreferenceValue(std::string("<a b=\"c\"><d/></a>")));
}
