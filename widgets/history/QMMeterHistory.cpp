// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/history/QMMeterHistory.h"

#include "widgets/history/HelpMenuItem.h"
#include "widgets/history/HistoryAccessibility.h"
#include "widgets/history/HistoryGlass.h"
#include "widgets/history/HistoryTrace.h"
#include "widgets/menus/MenuShower.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace {

constexpr double silence = -std::numeric_limits<double>::infinity();
/// Automatic sensitivity lets quieter levels go by, or every pause would widen the range. dB
constexpr double quietest = -48.0;

// At magnification 1.
constexpr float margin = 12.0f; // above and below the range
constexpr float thickness = 2.5f;
constexpr float itemHeight = 20.0f;

// Items of the menu; those of the ranges come first, from 1.
constexpr int numRanges = static_cast<int>(MeterHistorySettings::gainRanges.size());
constexpr int outputGainItem = numRanges + 1;
constexpr int sensitivityItem = numRanges + 2;
constexpr int saveItem = numRanges + 3;

/// Silence for what is no level.
double decibelsOf(const NoxMeterRecord* record) {
    const float level = record->values[0];
    return level > 0.0f ? 10.0 * std::log10(static_cast<double>(level)) : silence;
}

juce::String rangeText(int range) {
    return juce::String::charToString(0xb1) + juce::String(range) + " dB";
}

} // namespace

QMMeterHistory::QMMeterHistory(double seconds, MeterClock timeSource)
    : QMWidget(0)
    , clock(timeSource ? std::move(timeSource) : systemMeterClock())
    , historyLength(seconds > 0.0 ? seconds : usualLength)
    , settings(readMeterHistorySettings()) {
    setCanTakeFocus(true);
}

QMMeterHistory::~QMMeterHistory() {
    closeMenu();
}

// Levels.

void QMMeterHistory::bindMeterRecord(std::uint32_t slot, FourCharCode, std::uint32_t,
                                     const NoxMeterRecord* record) {
    if (slot == outputGainSlot)
        gainRecord = record;
    if (slot != levelSlot)
        return;
    levelRecord = record;
    if (levelRecord == nullptr) {
        samples.clear();
        repaint();
    }
}

void QMMeterHistory::tick() {
    now = static_cast<double>(clock()) * 0.001;
    if (levelRecord == nullptr)
        return;
    samples.dropOutside(now - historyLength - 0.1, now);
    samples.append(
        {now, decibelsOf(levelRecord), gainRecord != nullptr ? decibelsOf(gainRecord) : 0.0});
    if (settings.autoSensitivity)
        chooseRange();
    const bool somethingToSee = hasSomethingToSee();
    if (somethingToSee || somethingWasSeen)
        repaint();
    somethingWasSeen = somethingToSee;
}

double QMMeterHistory::shownLevel(const Sample& sample) const {
    return settings.includeOutputGain ? sample.level + sample.outputGain : sample.level;
}

bool QMMeterHistory::hasSomethingToSee() const {
    for (std::size_t i = 0; i < samples.size(); ++i) {
        if (std::isfinite(shownLevel(samples[i])))
            return true;
    }
    return false;
}

void QMMeterHistory::chooseRange() {
    double farthest = 0.0;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double level = shownLevel(samples[i]);
        if (std::isfinite(level) && level >= quietest)
            farthest = std::max(farthest, std::abs(level));
    }
    const auto& ranges = MeterHistorySettings::gainRanges;
    const auto wide = std::find_if(ranges.begin(), ranges.end(),
                                   [farthest](int range) { return range >= farthest; });
    const int range = wide != ranges.end() ? *wide : ranges.back();
    if (range == settings.gainRange)
        return;
    settings.gainRange = range;
    backdrop.drop();
}

juce::String QMMeterHistory::getDisplayText() const {
    const double level = samples.isEmpty() ? silence : shownLevel(samples.newest());
    return std::isfinite(level) ? juce::String(level, 1) + " dB" : juce::String("-Inf dB");
}

void QMMeterHistory::setSettings(const MeterHistorySettings& newSettings) {
    settings = newSettings;
    if (settings.autoSensitivity)
        chooseRange();
    backdrop.drop();
    repaint();
}

// The menu.

void QMMeterHistory::mouseDown(const juce::MouseEvent& event) {
    if (isEnabled() && !pressIsTaken(event) && event.mods.isPopupMenu())
        openMenu(juce::Rectangle<int>(1, 1).withPosition(event.getScreenPosition()));
}

bool QMMeterHistory::activate() {
    openMenu(getScreenBounds());
    return true;
}

bool QMMeterHistory::keyPressed(const juce::KeyPress& key) {
    const juce::KeyPress menuKey(juce::KeyPress::F10Key, juce::ModifierKeys::shiftModifier, 0);
    return key == menuKey && isEnabled() ? activate() : QMWidget::keyPressed(key);
}

juce::PopupMenu QMMeterHistory::buildMenu(int heightOfItems) const {
    juce::PopupMenu menu;
    const auto add = [&](int id, const juce::String& text, const juce::String& help, bool isTicked,
                         bool canBeChosen = true) {
        menu.addItem(juce::PopupMenu::Item(text)
                         .setID(id)
                         .setTicked(isTicked)
                         .setEnabled(canBeChosen)
                         .setCustomComponent(new HelpMenuItem(help, heightOfItems)));
    };
    for (int i = 0; i < numRanges; ++i) {
        const int range = MeterHistorySettings::gainRanges[static_cast<std::size_t>(i)];
        add(i + 1, rangeText(range), "Set gain range of display to " + rangeText(range),
            range == settings.gainRange);
    }
    menu.addSeparator();
    add(outputGainItem, "Include Output Gain", "Show the level with the output gain added",
        settings.includeOutputGain, gainRecord != nullptr);
    add(sensitivityItem, "Auto Sensitivity",
        "Set gain range of display to the smallest that holds what it shows",
        settings.autoSensitivity);
    menu.addSeparator();
    add(saveItem, "Save Settings as default", "Begin with these settings in every new display",
        false);
    return menu;
}

void QMMeterHistory::openMenu(juce::Rectangle<int> area) {
    const int height = juce::roundToInt(itemHeight * std::max(0.8f, getMagnification()));
    juce::PopupMenu menu = buildMenu(height);
    menu.setLookAndFeel(&getLookAndFeel());
    menuIsOpen = true;
    showMenu(std::move(menu),
             juce::PopupMenu::Options()
                 .withTargetComponent(this)
                 .withTargetScreenArea(area)
                 .withDeletionCheck(*this)
                 .withStandardItemHeight(height),
             [self = SafePointer<QMMeterHistory>(this)](int itemID) {
                 if (self == nullptr)
                     return;
                 self->menuIsOpen = false;
                 self->choose(itemID);
             });
}

void QMMeterHistory::choose(int itemID) {
    MeterHistorySettings chosen = settings;
    if (itemID >= 1 && itemID <= numRanges) {
        chosen.gainRange = MeterHistorySettings::gainRanges[static_cast<std::size_t>(itemID - 1)];
        chosen.autoSensitivity = false;
    } else if (itemID == outputGainItem) {
        chosen.includeOutputGain = !chosen.includeOutputGain;
    } else if (itemID == sensitivityItem) {
        chosen.autoSensitivity = !chosen.autoSensitivity;
    } else if (itemID == saveItem) {
        writeMeterHistorySettings(settings);
    }
    setSettings(chosen);
}

void QMMeterHistory::closeMenu() {
    // The toolkit would leave it standing.
    if (menuIsOpen)
        juce::PopupMenu::dismissAllActiveMenus();
}

void QMMeterHistory::parentHierarchyChanged() {
    if (getPeer() == nullptr)
        closeMenu();
}

std::unique_ptr<juce::AccessibilityHandler> QMMeterHistory::createAccessibilityHandler() {
    const auto open = [this] { activate(); };
    return makeHistoryAccessibility(
        *this, juce::AccessibilityActions()
                   .addAction(juce::AccessibilityActionType::focus, [this] { takeFocus(); })
                   .addAction(juce::AccessibilityActionType::press, open)
                   .addAction(juce::AccessibilityActionType::showMenu, open));
}

// Drawing.

void QMMeterHistory::setMagnification(float factor) {
    QMWidget::setMagnification(factor);
    backdrop.drop();
    repaint();
}

float QMMeterHistory::heightOf(double decibels) const {
    const auto height = static_cast<float>(getHeight());
    const float reach = height / 2.0f - margin * getMagnification();
    const auto share = static_cast<float>(decibels / settings.gainRange);
    return std::clamp(height / 2.0f - share * reach, 0.0f, height);
}

void QMMeterHistory::drawBackdrop(juce::Graphics& g) const {
    std::vector<HistoryMark> marks;
    for (const double share : {-1.0, -0.5, 0.0, 0.5, 1.0}) {
        const double decibels = share * settings.gainRange;
        const juce::String sign = share > 0.0 ? "+" : "";
        marks.push_back({heightOf(decibels), sign + juce::String(decibels)});
    }
    drawHistoryGlass(g, getLocalBounds(), getMagnification(), marks, historyLength);
}

void QMMeterHistory::paint(juce::Graphics& g) {
    backdrop.draw(g, getLocalBounds(), [this](juce::Graphics& on) { drawBackdrop(on); });
    const juce::Rectangle<float> area = getLocalBounds().toFloat();
    const double perSecond = static_cast<double>(area.getWidth() - 1.0f) / historyLength;
    HistoryTrace trace(juce::Colour(0, 255, 0), area, thickness * getMagnification());
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double level = shownLevel(samples[i]);
        const auto x = static_cast<float>((samples[i].time - now) * perSecond) + area.getWidth();
        // Out of a silence the line comes from below.
        trace.lineTo({x - 1.0f, std::isfinite(level) ? heightOf(level) : area.getBottom()},
                     std::isfinite(level) ? 1.0f : 0.0f);
    }
    trace.draw(g);
}
