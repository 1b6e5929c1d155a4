// SPDX-License-Identifier: GPL-3.0-or-later
// The base of every control, label, meter and display: a component that knows its four-character
// identity, the parameters it is bound to (one a slot) with their ranges and defaults, how many
// gestures are open on each, its help text (its tooltip) and where its colours come from.
//
// Values and gestures leave a widget through its controller, when it has one and uses it, else
// through its target. They reach it through the plug-in UI, which never tells a slot that is
// touched.
//
// Everything here is used on the message thread alone. [message thread]
#pragma once

#include "widgets/base/QMColorSource.h"
#include "widgets/base/QMGenericParameterTargetHolder.h"
#include "widgets/base/QMSelectable.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

class IQMParameterController;

class QMWidget : public juce::Component,
                 public juce::SettableTooltipClient,
                 public QMColorSource,
                 public QMGenericParameterTargetHolder,
                 public QMSelectable {
public:
    /// The parameter of a slot that has none.
    static constexpr FourCharCode noParameter = 0xFFFFFFFF;

    enum class GesturePhase { begin, end };

    /// Told when the first gesture on a slot has begun and the last one has ended.
    using GestureListener = std::function<void(std::uint32_t slot, GesturePhase, QMWidget&)>;

    explicit QMWidget(std::uint32_t slotCount = 1);
    ~QMWidget() override;

    // Identity and placement.

    [[nodiscard]] FourCharCode getWidgetID() const { return widgetID; }

    void setWidgetID(FourCharCode code) { widgetID = code; }

    /// Repaints when it changes.
    void setName(const juce::String& name) override;

    /// Pixels per design unit.
    [[nodiscard]] float getMagnification() const { return magnification; }

    /// Widgets that keep scaled drawings drop them here.
    virtual void setMagnification(float factor) { magnification = factor; }

    /// In design units, as in the layout table.
    [[nodiscard]] juce::Rectangle<int> getDesignArea() const { return designArea; }

    void setDesignArea(juce::Rectangle<int> area) { designArea = area; }

    [[nodiscard]] virtual juce::Rectangle<int> getLocalArea() const { return getLocalBounds(); }

    // Binding.

    [[nodiscard]] virtual std::uint32_t getNumParameterSlots() const { return numParameterSlots; }

    /// Ignored for a slot that there is not. A slot count that has changed since unbinds all slots
    /// and clears their states first.
    void setParameter(std::uint32_t slot, FourCharCode parameterID);
    /// noParameter when unbound or out of range.
    [[nodiscard]] FourCharCode getParameterID(std::uint32_t slot) const;
    /// -1 for a parameter that no slot shows.
    [[nodiscard]] std::int32_t getSlotOfParameter(FourCharCode parameterID) const;

    /// One more than the largest slot that was ever bound.
    [[nodiscard]] std::uint32_t getHighestBoundSlot() const { return highestBoundSlot; }

    // Values. A value is plain, in the parameter's own unit.

    /// With notify, writes the slot's parameter. Controls show the value as well.
    virtual void setParameterValue(std::uint32_t slot, double value, bool notify);
    /// What the target has.
    [[nodiscard]] virtual double getParameterValue(std::uint32_t slot) const;
    /// A value in the units the widget shows. fromUser: as one who may write.
    virtual void writeDisplayValue(std::uint32_t slot, double value, bool fromUser);

    /// What the widget shows, plain.
    [[nodiscard]] virtual double getSlotValue(std::uint32_t) const { return 0.0; }

    [[nodiscard]] virtual double readParameterValue(std::uint32_t slot) const {
        return getParameterValue(slot);
    }

    [[nodiscard]] virtual juce::String getDisplayText() const { return "0"; }

    /// A slot without one of its own has 0, 0 and 1.
    [[nodiscard]] virtual double getSlotDefault(std::uint32_t slot) const;
    [[nodiscard]] virtual double getSlotMinimum(std::uint32_t slot) const;
    [[nodiscard]] virtual double getSlotMaximum(std::uint32_t slot) const;
    virtual void setSlotDefault(std::uint32_t slot, double value, bool notify);
    virtual void setSlotMinimum(std::uint32_t slot, double value, bool notify);
    virtual void setSlotMaximum(std::uint32_t slot, double value, bool notify);

    // Display options of controls.

    virtual void setDisplayScale(std::uint32_t, double, bool) {}

    virtual void setDisplayOffset(std::uint32_t, double, bool) {}

    virtual void setDisplayResolution(std::uint32_t, double, bool) {}

    virtual void setKeyStep(std::uint32_t, double, bool) {}

    // Looks of slots, whose meaning is the widget's.

    virtual void setSlotState(std::uint32_t slot, bool flag, std::uint32_t state);
    [[nodiscard]] bool getSlotFlag(std::uint32_t slot) const;
    [[nodiscard]] std::uint32_t getSlotState(std::uint32_t slot) const;

    virtual void slotStateChanged() { repaint(); }

    // Updates from the plug-in.

    [[nodiscard]] bool isDeferringUpdates() const { return deferUpdates; }

    /// While set, values are taken without repainting; clearing it flushes.
    void setDeferUpdates(bool flag);

    virtual void flushDeferredUpdates() {}

    // Enablement.

    virtual void setEnabledFlag(bool flag) { enabledFlag = flag; }

    [[nodiscard]] bool getEnabledFlag() const { return enabledFlag; }

    /// Repaints when it changes.
    virtual void setWidgetEnabled(bool flag);

    [[nodiscard]] virtual bool isEditable() const { return false; }

    // Gestures.

    virtual void beginTouch(std::uint32_t slot);
    /// One too many is printed as an error and counted; nobody else hears of it.
    virtual void endTouch(std::uint32_t slot);
    [[nodiscard]] virtual bool isTouched(std::uint32_t slot) const;

    [[nodiscard]] std::int32_t getTouchCount() const { return touchCount; }

    void setGestureListener(GestureListener listener) { gestureListener = std::move(listener); }

    /// Not owned; null for none.
    void setParameterController(IQMParameterController* controller) {
        parameterController = controller;
    }

    [[nodiscard]] IQMParameterController* getParameterController() const {
        return parameterController;
    }

    /// Whether gestures and values go to the controller.
    void setUseController(bool flag) { useController = flag; }

    /// Asks targets and controller, in this order, whether a press belongs to them.
    [[nodiscard]] bool pressIsTaken(const juce::MouseEvent& event);

    // Keyboard.

    [[nodiscard]] bool canTakeKeyboardFocus() const { return canTakeFocus; }

    void setCanTakeFocus(bool flag);

    [[nodiscard]] std::int32_t getTabIndex() const { return tabIndex; }

    void setTabIndex(std::int32_t index) { tabIndex = index; }

    /// Places in the widget that can have the focus one after the other.
    [[nodiscard]] virtual int getNumFocusPositions() const { return canTakeFocus ? 1 : 0; }

    virtual void focusAt(int position);
    /// To the next widget, or the one before.
    virtual void focusNext(bool backwards);
    /// Scrolls the widget into the view that it is in and gives it the focus.
    virtual void takeFocus();

    virtual void stepUp(bool) {}

    virtual void stepDown(bool) {}

    /// What Return does. False when it means nothing here.
    virtual bool activate() { return false; }

    /// Begins the entry of a number by its first character. False where there is no such thing.
    virtual bool beginTextEntry(juce::juce_wchar) { return false; }

    /// Arrows and page keys step (finely with Control or Shift, by ten steps), Home and End go to
    /// the ends of the range, Tab goes on, Escape lets go of the keyboard, digits begin an entry.
    /// Other keys are the host's, the space bar among them.
    bool keyPressed(const juce::KeyPress& key) override;

    // QMColorSource and QMSelectable.

    /// That of the nearest colour source above; light grey without one.
    [[nodiscard]] juce::Colour getBaseColour() const override;

    [[nodiscard]] bool isSelectable() const override { return selectable; }

    void setSelectable(bool flag) { selectable = flag; }

    [[nodiscard]] bool isSelected() const override { return selected; }

    void setSelected(bool flag) override;

    [[nodiscard]] juce::Component* getComponent() override { return this; }

    // juce::Component.

    /// A frame of one pixel in the current colour: what a widget that draws nothing itself shows.
    void paint(juce::Graphics& g) override;
    void paintOverChildren(juce::Graphics& g) override;
    bool hitTest(int x, int y) override;
    void focusGained(FocusChangeType cause) override;
    void focusLost(FocusChangeType cause) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

protected:
    /// What a screen reader takes the widget for.
    [[nodiscard]] virtual juce::AccessibilityRole accessibleRole() const {
        return juce::AccessibilityRole::unspecified;
    }

    /// To be called when the value shown has changed.
    void tellAccessibility();

    void setNumParameterSlots(std::uint32_t count) { numParameterSlots = count; }

    /// A value from the user that is a whole gesture by itself. Whoever is told of it may end the
    /// widget's life.
    void writeAsGesture(std::uint32_t slot, double value);

    /// Anything kept back goes out before a value or the end of a gesture does.
    virtual void flushPendingOutput() {}

    [[nodiscard]] bool usesController(std::uint32_t slot) const;

private:
    void matchSlotCount();

    FourCharCode widgetID = 0;
    std::int32_t touchCount = 0;
    std::vector<bool> slotFlags;
    std::vector<std::uint32_t> slotStates;
    std::uint32_t highestBoundSlot = 0;
    std::vector<FourCharCode> parameterSlots;
    std::map<FourCharCode, std::uint32_t> slotOfParameter;
    std::vector<std::int32_t> slotTouches;
    std::vector<double> slotDefaults;
    std::vector<double> slotMinimums;
    std::vector<double> slotMaximums;
    std::uint32_t numParameterSlots;
    bool canTakeFocus = false;
    std::int32_t tabIndex = 0;
    bool selectable = true;
    bool selected = false;
    bool deferUpdates = false;
    bool enabledFlag = true;
    IQMParameterController* parameterController = nullptr;
    bool useController = false;
    GestureListener gestureListener;
    float magnification = 1.0f;
    juce::Rectangle<int> designArea;
};
