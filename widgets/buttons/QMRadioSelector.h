// SPDX-License-Identifier: GPL-3.0-or-later
// One of several items, as a row of segments of which one is lit. [message thread]
#pragma once

#include "widgets/base/IQMItemList.h"
#include "widgets/base/QMWidget.h"
#include "widgets/buttons/IIdealWidthComputer.h"
#include "widgets/buttons/QMPillToggleButton.h"

#include <functional>
#include <memory>
#include <vector>

class QMRadioSelector final : public QMWidget, public IIdealWidthComputer, public IQMItemList {
public:
    using ChangeCallback = std::function<void(QMRadioSelector&, double value)>;

    QMRadioSelector();
    ~QMRadioSelector() override;

    void setItems(const juce::StringArray& texts, int shownItem) override;
    /// Each is the help of its segment.
    void setItemHelpTexts(const juce::StringArray& texts);

    /// Pixels left free around the row.
    void setMargin(int pixels);

    /// Called at every click on a segment, after the value has been written; also when the segment
    /// was lit already: it may mean something to click there again.
    void setChangeCallback(ChangeCallback callback) { changeCallback = std::move(callback); }

    [[nodiscard]] int getNumSegments() const { return static_cast<int>(segments.size()); }

    /// For colours and the like. There must be one of this index.
    [[nodiscard]] QMPillToggleButton& segment(int index) const;

    /// Lights the segment of this index; none where there is none.
    void setParameterValue(std::uint32_t slot, double value, bool notify) override;
    [[nodiscard]] double getSlotValue(std::uint32_t slot) const override;
    /// The lit segment's text.
    [[nodiscard]] juce::String getDisplayText() const override;
    void setMagnification(float factor) override;

    [[nodiscard]] bool isEditable() const override { return true; }

    void stepUp(bool fine) override;
    void stepDown(bool fine) override;
    /// Selects the next segment, after the last the first.
    bool activate() override;

    [[nodiscard]] int getIdealWidth() const override;

    void resized() override;
    void paint(juce::Graphics& g) override;
    void paintOverChildren(juce::Graphics& g) override;

protected:
    [[nodiscard]] juce::AccessibilityRole accessibleRole() const override;

private:
    void matchSegmentCount(int count);
    void addSegment(int index);
    void choose(int index);
    void light(int index);

    std::vector<std::unique_ptr<QMPillToggleButton>> segments;
    juce::StringArray helpTexts;
    int lit = 0;
    int margin = 0;
    ChangeCallback changeCallback;
};
