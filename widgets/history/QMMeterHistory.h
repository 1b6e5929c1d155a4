// SPDX-License-Identifier: GPL-3.0-or-later
// The last seconds of a meter's level in dB, around 0 dB, scrolling from right to left. A menu, on
// the right button, Return or Shift+F10, chooses what is shown. [message thread]
#pragma once

#include "widgets/base/IQMDisplayWidget.h"
#include "widgets/base/QMWidget.h"
#include "widgets/history/HistoryBackdrop.h"
#include "widgets/history/HistoryRing.h"
#include "widgets/history/MeterHistorySettings.h"
#include "widgets/meters/MeterClock.h"

#include <cstdint>

class QMMeterHistory : public QMWidget, public IQMDisplayWidget {
public:
    static constexpr double usualLength = 5.0; ///< seconds

    // Display slots.
    static constexpr std::uint32_t levelSlot = 0;
    static constexpr std::uint32_t outputGainSlot = 1; ///< of a gain that comes after the level

    /// seconds: how long the history is. Begins with the settings saved as the default.
    explicit QMMeterHistory(double seconds = usualLength, MeterClock timeSource = {});
    ~QMMeterHistory() override;

    /// Both are records whose first value is a level squared. Without one for the level the history
    /// is empty; without one for the gain there is none to include.
    void bindMeterRecord(std::uint32_t slot, FourCharCode displayID, std::uint32_t kind,
                         const NoxMeterRecord* record) override;
    void tick() override;

    void setSettings(const MeterHistorySettings& newSettings);

    /// With automatic sensitivity, the range is the one chosen now.
    [[nodiscard]] const MeterHistorySettings& getSettings() const { return settings; }

    /// "-12.3 dB": now; "-Inf dB" for silence.
    [[nodiscard]] juce::String getDisplayText() const override;

    /// Beside an area of the screen.
    void openMenu(juce::Rectangle<int> area);

    void setMagnification(float factor) override;
    void paint(juce::Graphics& g) override;
    void mouseDown(const juce::MouseEvent& event) override;
    bool keyPressed(const juce::KeyPress& key) override;
    /// Opens the menu.
    bool activate() override;
    void parentHierarchyChanged() override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

private:
    /// dB; minus infinity for silence.
    struct Sample {
        double time = 0.0;
        double level = 0.0;
        double outputGain = 0.0;
    };

    [[nodiscard]] double shownLevel(const Sample& sample) const;
    [[nodiscard]] bool hasSomethingToSee() const;
    void chooseRange();
    [[nodiscard]] juce::PopupMenu buildMenu(int itemHeight) const;
    void choose(int itemID);
    void closeMenu();
    [[nodiscard]] float heightOf(double decibels) const;
    void drawBackdrop(juce::Graphics& g) const;

    MeterClock clock;
    const NoxMeterRecord* levelRecord = nullptr;
    const NoxMeterRecord* gainRecord = nullptr;
    double historyLength;
    double now = 0.0; ///< of the last tick, seconds
    HistoryRing<Sample> samples;
    bool somethingWasSeen = false; ///< after the last tick
    MeterHistorySettings settings;
    bool menuIsOpen = false;
    HistoryBackdrop backdrop;
};
