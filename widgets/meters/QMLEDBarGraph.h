// SPDX-License-Identifier: GPL-3.0-or-later
// A row of lamps that shows a value: as many are lit, from the minimum's end, as the value has come
// of its slot's range. Upright when it is higher than wide. [message thread]
#pragma once

#include "widgets/base/QMWidget.h"

class QMLEDBarGraph : public QMWidget {
public:
    static constexpr int mostSegments = 256;

    QMLEDBarGraph() = default;

    /// 1 to mostSegments; 16 at first.
    void setSegmentCount(int count);

    [[nodiscard]] int getSegmentCount() const { return segmentCount; }

    [[nodiscard]] int getLitCount() const;

    /// The lamp of an index from the minimum's end on.
    [[nodiscard]] juce::Rectangle<int> segmentArea(int index) const;

    void setParameterValue(std::uint32_t slot, double newValue, bool notify) override;

    [[nodiscard]] double getSlotValue(std::uint32_t) const override { return value; }

    void flushDeferredUpdates() override { repaint(); }

    void paint(juce::Graphics& g) override;

protected:
    [[nodiscard]] juce::AccessibilityRole accessibleRole() const override {
        return juce::AccessibilityRole::progressBar;
    }

private:
    [[nodiscard]] juce::Colour colourOf(int index) const;

    int segmentCount = 16;
    double value = 0.0;
};
