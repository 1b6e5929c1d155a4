// SPDX-License-Identifier: GPL-3.0-or-later
// The base of all buttons with states. A press shows the next state (with Shift or Alt the one
// before), a release writes it to the parameter of slot 0, all in one gesture; dragging the pointer
// away takes it back, and then the release writes the old one.
//
// What is drawn is the derived classes' business; this one draws the text of the state in a frame.
// [message thread]
#pragma once

#include "widgets/base/IQMItemList.h"
#include "widgets/base/QMWidget.h"
#include "widgets/buttons/IIdealWidthComputer.h"

#include <functional>

class IQMTrackedButtonListener;

class QMTrackedMultistateButtonWidget : public QMWidget,
                                        public IIdealWidthComputer,
                                        public IQMItemList {
public:
    /// For a parameter whose values are not the numbers of the states.
    struct ValueMap {
        std::function<double(int state)> valueOfState;
        std::function<int(double value)> stateOfValue;
    };

    using ClickHandler =
        std::function<bool(QMTrackedMultistateButtonWidget&, const juce::MouseEvent&)>;
    using PressVeto = std::function<bool(QMTrackedMultistateButtonWidget&)>;
    using ChangeCallback = std::function<void(QMTrackedMultistateButtonWidget&, double value)>;
    using ReleaseCallback = std::function<void(QMTrackedMultistateButtonWidget&, bool pressed)>;

    /// A button that gets its states with its items.
    QMTrackedMultistateButtonWidget();

    // States.

    [[nodiscard]] int getStateCount() const { return stateCount; }

    /// None at all switches values off. Shows the first state when the present one is gone.
    void setStateCount(int count);

    [[nodiscard]] int getState() const { return state; }

    /// The texts of the states, and which one is shown. As many states as texts, but for the
    /// buttons that always have two or three: those take the texts alone, as far as they have
    /// states for them.
    void setItems(const juce::StringArray& texts, int shownItem) override;

    [[nodiscard]] const juce::StringArray& getItems() const { return items; }

    /// Shown instead of the button's own help while the state of the same place is.
    void setItemHelpTexts(const juce::StringArray& texts) { itemHelpTexts = texts; }

    /// Both functions or none.
    void setValueMap(ValueMap map) { valueMap = std::move(map); }

    /// Whole numbers of states: those beyond the last begin again with the first, and -1 is the
    /// last. Without states, and for what is no number, nothing happens.
    void setParameterValue(std::uint32_t slot, double value, bool notify) override;
    [[nodiscard]] double getSlotValue(std::uint32_t slot) const override;

    /// The text of the state.
    [[nodiscard]] juce::String getDisplayText() const override;
    juce::String getTooltip() override;

    // How a press is taken.

    /// A press does not advance the state, and nothing is written: for momentary buttons.
    void setStaticState(bool flag) { staticState = flag; }

    [[nodiscard]] bool isStaticState() const { return staticState; }

    /// The mouse does nothing, nor does the keyboard.
    void setLocked(bool flag) { locked = flag; }

    [[nodiscard]] bool isLocked() const { return locked; }

    /// The release brings back the state from before the press.
    void setRevertOnRelease(bool flag) { revertOnRelease = flag; }

    /// Not owned; null for none.
    void setListener(IQMTrackedButtonListener* newListener) { listener = newListener; }

    /// True takes the click away from the button.
    void setClickHandler(ClickHandler handler) { clickHandler = std::move(handler); }

    /// False: the press does not count, and nothing comes of it.
    void setPressVeto(PressVeto veto) { pressVeto = std::move(veto); }

    /// Called when the user has changed the value, which is written already.
    void setChangeCallback(ChangeCallback callback) { changeCallback = std::move(callback); }

    /// Called at a release, with whether the button looked pressed until then.
    void setReleaseCallback(ReleaseCallback callback) { releaseCallback = std::move(callback); }

    [[nodiscard]] bool hasPressedLook() const { return pressedLook; }

    [[nodiscard]] bool isPointerInside() const { return pointerInside; }

    // QMWidget, juce::Component.

    void flushDeferredUpdates() override;
    void setMagnification(float factor) override;

    [[nodiscard]] bool isEditable() const override { return true; }

    /// To the next or previous state, not beyond the ends.
    void stepUp(bool fine) override;
    void stepDown(bool fine) override;
    /// A press and a release.
    bool activate() override;

    [[nodiscard]] int getIdealWidth() const override;

    void paint(juce::Graphics& g) override;
    void paintOverChildren(juce::Graphics& g) override;
    void enablementChanged() override;
    void mouseDown(const juce::MouseEvent& event) override;
    void mouseDrag(const juce::MouseEvent& event) override;
    void mouseUp(const juce::MouseEvent& event) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

protected:
    /// A button that always has this many states.
    explicit QMTrackedMultistateButtonWidget(int fixedStateCount);

    [[nodiscard]] juce::AccessibilityRole accessibleRole() const override;

    /// Whether a press is the button's: nobody else has taken it, and it may be pressed.
    [[nodiscard]] bool acceptsPress(const juce::MouseEvent& event);

    [[nodiscard]] double valueOfState(int ofState) const;

    /// Empty for a state without one.
    [[nodiscard]] juce::String itemText(int itemState) const { return items[itemState]; }

    /// The font of this button's text, which getIdealWidth() measures.
    [[nodiscard]] virtual juce::Font textFont() const;

    /// 1, or less for a button that is disabled.
    [[nodiscard]] float opacity() const { return isEnabled() ? 1.0f : disabledOpacity; }

    static constexpr float disabledOpacity = 0.45f;

private:
    [[nodiscard]] int stateOfValue(double value) const;
    [[nodiscard]] int advancedState() const;
    void showState(int newState);
    void stateChanged();
    void commit();
    void press(int direction);
    void follow(bool inside);
    void release();
    void finishPress();

    int stateCount = 0;
    bool stateCountIsFixed = false;
    int state = 0; ///< -1 while it is being written
    int previousState = 0;
    int step = 1;
    bool pressOpen = false;   ///< between press and release
    bool pressCounts = false; ///< nobody has vetoed it
    bool pressedLook = false;
    bool pointerInside = false;
    bool staticState = false;
    bool locked = false;
    bool revertOnRelease = false;
    bool repaintIsDue = false; ///< put off until updates are flushed
    juce::StringArray items;
    juce::StringArray itemHelpTexts;
    ValueMap valueMap;
    IQMTrackedButtonListener* listener = nullptr;
    ClickHandler clickHandler;
    PressVeto pressVeto;
    ChangeCallback changeCallback;
    ReleaseCallback releaseCallback;
};
