// SPDX-License-Identifier: GPL-3.0-or-later
// The history of a level, as somebody uses it who opens its menu.
#include "widgets/history/QMMeterHistory.h"

#include "services/preferences/PreferencesStores.h"
#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/history/tests/support/RepaintCounter.h"
#include "widgets/menus/MenuShower.h"
#include "widgets/statics/tests/PictureOf.h"

#include <cmath>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

namespace {

/// What the user sees of the menu, and chooses by its text.
class SeenMenu {
public:
    SeenMenu() {
        setMenuShower([this](juce::PopupMenu menu, const juce::PopupMenu::Options& options,
                             std::function<void(int)> toldOfChoice) {
            ++shown;
            chosen = std::move(toldOfChoice);
            area = options.getTargetScreenArea();
            items.clear();
            for (juce::PopupMenu::MenuItemIterator i(menu); i.next();) {
                if (!i.getItem().isSeparator)
                    items.push_back(i.getItem());
            }
        });
    }

    ~SeenMenu() { setMenuShower(nullptr); }

    SeenMenu(const SeenMenu&) = delete;
    SeenMenu& operator=(const SeenMenu&) = delete;

    [[nodiscard]] const juce::PopupMenu::Item& item(const juce::String& text) const {
        for (const juce::PopupMenu::Item& candidate : items) {
            if (candidate.text == text)
                return candidate;
        }
        ADD_FAILURE() << "no item " << text;
        return items.front();
    }

    [[nodiscard]] juce::StringArray texts() const {
        juce::StringArray all;
        for (const juce::PopupMenu::Item& one : items)
            all.add(one.text);
        return all;
    }

    [[nodiscard]] juce::StringArray ticked() const {
        juce::StringArray all;
        for (const juce::PopupMenu::Item& one : items) {
            if (one.isTicked)
                all.add(one.text);
        }
        return all;
    }

    [[nodiscard]] juce::String helpOf(const juce::String& text) const {
        auto* const help = dynamic_cast<juce::TooltipClient*>(item(text).customComponent.get());
        return help == nullptr ? juce::String() : help->getTooltip();
    }

    int shown = 0;
    juce::Rectangle<int> area;
    std::function<void(int)> chosen;
    std::vector<juce::PopupMenu::Item> items;
};

juce::String range(int decibels) {
    return juce::String::fromUTF8("±") + juce::String(decibels) + " dB";
}

class QMMeterHistoryTest : public ToolkitTest {
protected:
    QMMeterHistoryTest() {
        QM::plugInsStore().clear();
        history.emplace(QMMeterHistory::usualLength, [this] { return now; });
        history->bindMeterRecord(0, fourCharCode("out "), 1, &level);
        history->setSize(300, 124);
        window.emplace(*history);
    }

    ~QMMeterHistoryTest() override { QM::plugInsStore().clear(); }

    static float levelOf(double decibels) {
        return static_cast<float>(std::pow(10.0, decibels / 10.0));
    }

    void tickFor(int milliseconds) {
        for (int i = 0; i < milliseconds; i += 30) {
            now += 30;
            history->tick();
        }
    }

    void openMenu() { window->click(*history, 0, juce::ModifierKeys::rightButtonModifier); }

    void choose(const juce::String& text) {
        openMenu();
        menu.chosen(menu.item(text).itemID);
    }

    /// Where the trace is in the middle of the widget; -1 where there is none.
    int traceHeight() {
        const juce::Image picture = pictureOf(*history);
        int first = -1;
        int last = -1;
        for (int y = 0; y < picture.getHeight(); ++y) {
            if (picture.getPixelAt(150, y).getGreen() < 200)
                continue;
            first = first < 0 ? y : first;
            last = y;
        }
        return first < 0 ? -1 : (first + last) / 2;
    }

    std::int64_t now = 5000;
    NoxMeterRecord level{0, {1.0f}};
    NoxMeterRecord gain{1, {1.0f}};
    SeenMenu menu;
    std::optional<QMMeterHistory> history;
    std::optional<TestWindow> window;
};

} // namespace

TEST_F(QMMeterHistoryTest, TheRightButtonOpensItsMenuAtTheMouse) {
    window->click(*history);
    EXPECT_EQ(menu.shown, 0);
    window->click({40.0f, 30.0f}, 0, juce::ModifierKeys::rightButtonModifier);
    EXPECT_EQ(menu.shown, 1);
    EXPECT_EQ(menu.area.getPosition(), juce::Point<int>(40, 30));
    EXPECT_EQ(menu.texts(), juce::StringArray(range(3), range(6), range(12), range(24), range(36),
                                              "Include Output Gain", "Auto Sensitivity",
                                              "Save Settings as default"));
    EXPECT_EQ(menu.ticked(), juce::StringArray(range(24)));
}

TEST_F(QMMeterHistoryTest, KeysOpenItsMenu) {
    history->takeFocus();
    EXPECT_TRUE(window->key(juce::KeyPress(juce::KeyPress::returnKey)));
    EXPECT_EQ(menu.shown, 1);
    const juce::KeyPress menuKey(juce::KeyPress::F10Key, juce::ModifierKeys::shiftModifier, 0);
    EXPECT_TRUE(window->key(menuKey));
    EXPECT_EQ(menu.shown, 2);
    EXPECT_FALSE(window->key(juce::KeyPress(juce::KeyPress::F10Key)));
    EXPECT_FALSE(window->key(juce::KeyPress(juce::KeyPress::spaceKey)));
    history->setWidgetEnabled(false);
    EXPECT_FALSE(window->key(menuKey));
    openMenu();
    EXPECT_EQ(menu.shown, 2);
}

TEST_F(QMMeterHistoryTest, ItsItemsExplainThemselves) {
    openMenu();
    for (const int decibels : {3, 6, 12, 24, 36})
        EXPECT_EQ(menu.helpOf(range(decibels)), "Set gain range of display to " + range(decibels));
    for (const char* const text :
         {"Include Output Gain", "Auto Sensitivity", "Save Settings as default"})
        EXPECT_TRUE(menu.helpOf(text).isNotEmpty()) << text;
}

TEST_F(QMMeterHistoryTest, ItsItemsGrowWithTheMagnification) {
    for (const auto& [magnification, expected] : {std::pair(1.0f, 20), std::pair(1.5f, 30)}) {
        history->setMagnification(magnification);
        openMenu();
        int width = 0;
        int height = 0;
        menu.item(range(24)).customComponent->getIdealSize(width, height);
        EXPECT_EQ(height, expected);
    }
}

TEST_F(QMMeterHistoryTest, TheGainRangeIsTheScale) {
    // The middle is 62; 12 pixels of margin leave 50 for the range.
    level.values[0] = levelOf(6.0);
    tickFor(5100);
    choose(range(6));
    EXPECT_NEAR(traceHeight(), 12, 1);
    choose(range(12));
    EXPECT_NEAR(traceHeight(), 37, 1);
    choose(range(24));
    EXPECT_NEAR(traceHeight(), 62 - 12.5, 1);
    level.values[0] = levelOf(-12.0);
    tickFor(5100);
    EXPECT_NEAR(traceHeight(), 87, 1);
    choose(range(36));
    EXPECT_NEAR(traceHeight(), 62 + 16.7, 1);
    openMenu();
    EXPECT_EQ(menu.ticked(), juce::StringArray(range(36)));
    EXPECT_EQ(history->getDisplayText(), "-12.0 dB");
}

TEST_F(QMMeterHistoryTest, EverythingGrowsWithTheMagnification) {
    level.values[0] = levelOf(24.0);
    tickFor(5100);
    history->setMagnification(2.5f);
    history->setSize(750, 310);
    EXPECT_NEAR(traceHeight(), 30, 1);
}

TEST_F(QMMeterHistoryTest, TheOutputGainIsIncludedWhereThereIsOne) {
    openMenu();
    EXPECT_FALSE(menu.item("Include Output Gain").isEnabled);
    history->bindMeterRecord(1, fourCharCode("ogan"), 3, &gain);
    level.values[0] = levelOf(-12.0);
    gain.values[0] = levelOf(6.0);
    tickFor(5100);
    EXPECT_EQ(history->getDisplayText(), "-12.0 dB");
    choose("Include Output Gain");
    EXPECT_TRUE(menu.item("Include Output Gain").isEnabled);
    // What has been seen moves as well: -6 of 24 dB.
    EXPECT_EQ(history->getDisplayText(), "-6.0 dB");
    EXPECT_NEAR(traceHeight(), 62 + 12.5, 1);
    openMenu();
    EXPECT_EQ(menu.ticked(), juce::StringArray(range(24), "Include Output Gain"));
    choose("Include Output Gain");
    EXPECT_EQ(history->getDisplayText(), "-12.0 dB");
}

TEST_F(QMMeterHistoryTest, AutoSensitivityTakesTheSmallestRangeThatHoldsWhatIsSeen) {
    level.values[0] = levelOf(2.0);
    tickFor(300);
    choose("Auto Sensitivity");
    EXPECT_EQ(history->getSettings().gainRange, 3);
    level.values[0] = levelOf(-11.0);
    tickFor(30);
    EXPECT_EQ(history->getSettings().gainRange, 12);
    level.values[0] = levelOf(2.0);
    tickFor(5000);
    EXPECT_EQ(history->getSettings().gainRange, 12);
    // Out of sight.
    tickFor(200);
    EXPECT_EQ(history->getSettings().gainRange, 3);
    level.values[0] = levelOf(40.0);
    tickFor(30);
    EXPECT_EQ(history->getSettings().gainRange, 36);
    openMenu();
    EXPECT_EQ(menu.ticked(), juce::StringArray(range(36), "Auto Sensitivity"));
}

TEST_F(QMMeterHistoryTest, PausesDoNotWidenTheRange) {
    level.values[0] = levelOf(2.0);
    tickFor(300);
    choose("Auto Sensitivity");
    for (const float quiet : {levelOf(-70.0), 0.0f, std::numeric_limits<float>::quiet_NaN()}) {
        level.values[0] = quiet;
        tickFor(90);
    }
    EXPECT_EQ(history->getSettings().gainRange, 3);
}

TEST_F(QMMeterHistoryTest, ARangeChosenByHandEndsAutoSensitivity) {
    choose("Auto Sensitivity");
    choose(range(12));
    level.values[0] = levelOf(30.0);
    tickFor(300);
    EXPECT_EQ(history->getSettings().gainRange, 12);
    openMenu();
    EXPECT_EQ(menu.ticked(), juce::StringArray(range(12)));
}

TEST_F(QMMeterHistoryTest, NewOnesBeginWithTheSettingsThatWereSaved) {
    history->bindMeterRecord(1, fourCharCode("ogan"), 3, &gain);
    choose(range(6));
    choose("Include Output Gain");
    EXPECT_EQ(QMMeterHistory().getSettings().gainRange, 24);
    choose("Save Settings as default");
    QMMeterHistory another;
    EXPECT_EQ(another.getSettings().gainRange, 6);
    EXPECT_TRUE(another.getSettings().includeOutputGain);
    EXPECT_FALSE(another.getSettings().autoSensitivity);
    choose("Auto Sensitivity");
    choose("Save Settings as default");
    EXPECT_TRUE(QMMeterHistory().getSettings().autoSensitivity);
}

TEST_F(QMMeterHistoryTest, ASavedRangeThatThereIsNotIsTheUsualOne) {
    QM::plugInsStore().setValue("meterHistoryGainRange", 7);
    EXPECT_EQ(QMMeterHistory().getSettings().gainRange, 24);
    QM::plugInsStore().setValue("meterHistoryGainRange", "wide");
    EXPECT_EQ(QMMeterHistory().getSettings().gainRange, 24);
}

TEST_F(QMMeterHistoryTest, SilenceIsNotDrawn) {
    for (const float silent : {0.0f, -1.0f, std::numeric_limits<float>::quiet_NaN()}) {
        level.values[0] = silent;
        tickFor(5200);
        EXPECT_EQ(traceHeight(), -1);
        EXPECT_EQ(history->getDisplayText(), "-Inf dB");
    }
    level.values[0] = std::numeric_limits<float>::infinity();
    tickFor(5200);
    EXPECT_EQ(traceHeight(), -1);
}

TEST_F(QMMeterHistoryTest, AsksToBeDrawnAsLongAsThereIsSomethingToSee) {
    RepaintCounter& repaints = RepaintCounter::on(*history);
    level.values[0] = 0.0f;
    tickFor(300);
    EXPECT_EQ(repaints.take(), 0);
    level.values[0] = 1.0f;
    tickFor(30);
    EXPECT_EQ(repaints.take(), 1);
    level.values[0] = 0.0f;
    tickFor(5200);
    EXPECT_GE(repaints.take(), 170);
    tickFor(3000);
    EXPECT_EQ(repaints.take(), 0);
}

TEST_F(QMMeterHistoryTest, UnboundItIsEmpty) {
    tickFor(5100);
    EXPECT_NEAR(traceHeight(), 62, 1);
    history->bindMeterRecord(0, fourCharCode("out "), 1, nullptr);
    EXPECT_EQ(traceHeight(), -1);
    tickFor(300);
    EXPECT_EQ(traceHeight(), -1);
    EXPECT_EQ(history->getDisplayText(), "-Inf dB");
}

TEST_F(QMMeterHistoryTest, ItMayGoWhileItsMenuIsOpen) {
    openMenu();
    window.reset();
    history.reset();
    menu.chosen(1);
    SUCCEED();
}

TEST_F(QMMeterHistoryTest, AMenuThatIsDismissedChangesNothing) {
    openMenu();
    menu.chosen(0);
    EXPECT_EQ(history->getSettings().gainRange, 24);
    EXPECT_FALSE(history->getSettings().autoSensitivity);
}

TEST_F(QMMeterHistoryTest, AScreenReaderHearsItsTextAndOpensItsMenu) {
    tickFor(30);
    const auto handler = history->createAccessibilityHandler();
    ASSERT_NE(handler->getValueInterface(), nullptr);
    EXPECT_EQ(handler->getValueInterface()->getCurrentValueAsString(), "0.0 dB");
    EXPECT_TRUE(handler->getActions().invoke(juce::AccessibilityActionType::showMenu));
    EXPECT_EQ(menu.shown, 1);
}
