// SPDX-License-Identifier: GPL-3.0-or-later
// The pitches of two oscillators as numbers. Their meter record holds, for each, the cosine of its
// phase's step from frame to frame and its level. [message thread]
#pragma once

#include "widgets/base/IQMDisplayWidget.h"
#include "widgets/base/QMWidget.h"

#include <array>
#include <cstddef>

class GenericPitchDisplay final : public QMWidget, public IQMDisplayWidget {
public:
    static constexpr std::uint32_t kind = 6; ///< of the meter records it shows

    GenericPitchDisplay();

    void bindMeterRecord(std::uint32_t slot, FourCharCode displayID, std::uint32_t recordKind,
                         const NoxMeterRecord* newRecord) override;
    void tick() override;

    /// "61.2 Hz"; a dash while the oscillator is silent.
    [[nodiscard]] juce::String getText(std::size_t oscillator) const { return texts[oscillator]; }

    [[nodiscard]] juce::String getDisplayText() const override;
    void paint(juce::Graphics& g) override;

protected:
    [[nodiscard]] juce::AccessibilityRole accessibleRole() const override {
        return juce::AccessibilityRole::label;
    }

private:
    [[nodiscard]] juce::String textOf(std::size_t oscillator) const;

    const NoxMeterRecord* record = nullptr;
    std::array<juce::String, 2> texts;
};
