// SPDX-License-Identifier: GPL-3.0-or-later
// The scale beside meters: lines and labels at the levels of its marks, along its longer side and
// mapped as the meters are. [message thread]
#pragma once

#include "widgets/base/QMWidget.h"
#include "widgets/meters/MeterRenderer.h"

#include <vector>

class QMMeterCalibrationWidget : public QMWidget {
public:
    /// A mark where it is drawn.
    struct PlacedMark {
        const MeterMark* mark;
        float position; ///< along the widget
        bool showsLabel;
    };

    QMMeterCalibrationWidget();

    /// Index into meterScales().
    void setScale(std::size_t index);
    void setMapping(const MeterMapping& mapping);

    /// Lines that would run into one another are left out, and all labels from the first one on
    /// that would run into a louder one.
    [[nodiscard]] const std::vector<PlacedMark>& getMarks() const { return placed; }

    void setMagnification(float factor) override;
    void resized() override;
    void paint(juce::Graphics& g) override;

protected:
    [[nodiscard]] juce::AccessibilityRole accessibleRole() const override {
        return juce::AccessibilityRole::ignored;
    }

private:
    [[nodiscard]] float fontHeight() const;
    [[nodiscard]] juce::Font font() const;
    [[nodiscard]] float spaceOfLabel(const char* label) const;
    [[nodiscard]] bool canShow(const char* label) const;
    /// Pixels; shorter where the scale is narrow for a label of this extent.
    [[nodiscard]] int lineLengthBeside(float label) const;
    void placeMarks();
    void drawVerticalMark(juce::Graphics& g, const PlacedMark& mark) const;
    void drawHorizontalMark(juce::Graphics& g, const PlacedMark& mark) const;

    MeterRenderer renderer; ///< knows where levels are
    std::vector<PlacedMark> placed;
};
