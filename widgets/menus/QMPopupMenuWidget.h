// SPDX-License-Identifier: GPL-3.0-or-later
// A parameter whose values have names, in a window with a glossy frame; a click opens the menu of
// the names. [message thread]
#pragma once

#include "widgets/base/IQMItemList.h"
#include "widgets/base/QMWidget.h"
#include "widgets/buttons/IIdealWidthComputer.h"

#include <functional>
#include <optional>

class QMPopupMenuWidget final : public QMWidget, public IIdealWidthComputer, public IQMItemList {
public:
    /// Which value the first item names.
    enum class FirstItem { minimum, zero };

    using ChangeCallback = std::function<void(QMPopupMenuWidget&, double value)>;

    explicit QMPopupMenuWidget(FirstItem firstItem = FirstItem::minimum);

    void setItems(const juce::StringArray& texts, int shownItem) override;

    [[nodiscard]] const juce::StringArray& getItems() const { return items; }

    /// The item of the value, rounded; it need not be there.
    [[nodiscard]] int currentItem() const;

    /// Without one the text is bright on the dark window.
    void setTextColour(std::optional<juce::Colour> colour);

    /// Called when the user has chosen another item, whose value is written already.
    void setChangeCallback(ChangeCallback callback) { changeCallback = std::move(callback); }

    /// What the frame is made of; with a null one among them it is drawn.
    void setFramePictures(const juce::Image& left, const juce::Image& middle,
                          const juce::Image& right);

    void openMenu();

    void setParameterValue(std::uint32_t slot, double newValue, bool notify) override;
    [[nodiscard]] double getSlotValue(std::uint32_t slot) const override;
    /// "UNKNOWN" for a value without a name.
    [[nodiscard]] juce::String getDisplayText() const override;
    void setMagnification(float factor) override;
    void flushDeferredUpdates() override;

    [[nodiscard]] bool isEditable() const override { return true; }

    /// To the next or previous item, not beyond the ends.
    void stepUp(bool fine) override;
    void stepDown(bool fine) override;
    /// Opens the menu.
    bool activate() override;

    [[nodiscard]] int getIdealWidth() const override;

    void paint(juce::Graphics& g) override;
    void paintOverChildren(juce::Graphics& g) override;
    void enablementChanged() override;
    void mouseDown(const juce::MouseEvent& event) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

protected:
    [[nodiscard]] juce::AccessibilityRole accessibleRole() const override;

private:
    [[nodiscard]] double firstValue() const;
    [[nodiscard]] juce::Font textFont() const;
    void drawFrame(juce::Graphics& g) const;
    void drawText(juce::Graphics& g) const;
    void choose(int item);
    void write(int item);

    FirstItem firstItem;
    juce::StringArray items;
    double value = 0.0;
    bool repaintIsDue = false; ///< put off until updates are flushed
    std::optional<juce::Colour> ownColour;
    ChangeCallback changeCallback;
    juce::Image frameLeft;
    juce::Image frameMiddle;
    juce::Image frameRight;
};
