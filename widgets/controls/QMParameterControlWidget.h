// SPDX-License-Identifier: GPL-3.0-or-later
// The base of everything the user drags, clicks or scrolls to change a parameter. It holds the
// position along its travel (0 to 1) and stands between that and the parameter's plain value with a
// taper; it writes what the user does in gestures, and its readout shows whatever it shows itself.
//
// A drag is one gesture, and so is a sequence of wheel events without a pause. No value that is not
// a number gets in or out.
//
// Everything here is used on the message thread alone. [message thread]
#pragma once

#include "widgets/base/IQMReadoutOwner.h"
#include "widgets/base/QMWidget.h"
#include "widgets/controls/ControlTaper.h"
#include "widgets/controls/QMParameterTextTransformer.h"

#include <memory>

class QMEphemeralReadout;

class QMParameterControlWidget : public QMWidget, public IQMReadoutOwner {
public:
    QMParameterControlWidget();
    ~QMParameterControlWidget() override;

    // Value.

    /// Position along the travel, 0 to 1.
    [[nodiscard]] float getValue() const { return value; }

    /// Moves to a position, 0 to 1 (clamped), and writes it.
    void setValueFromUser(double normalised);
    /// Moves by a part of the travel and writes.
    void nudge(double amount);
    /// Writes the default as one gesture.
    void resetToDefault();
    /// Without notify, shows a value of the plug-in's; with it, writes one, limited to the range.
    void setParameterValue(std::uint32_t slot, double plain, bool notify) override;
    [[nodiscard]] double getSlotValue(std::uint32_t slot) const override;
    /// The control's own text: its value times scale, with the decimals of its resolution.
    [[nodiscard]] juce::String getDisplayText() const override;
    void flushDeferredUpdates() override;

    // Range, in the parameter's unit.

    [[nodiscard]] double getSlotDefault(std::uint32_t slot) const override;
    [[nodiscard]] double getSlotMinimum(std::uint32_t slot) const override;
    [[nodiscard]] double getSlotMaximum(std::uint32_t slot) const override;
    void setSlotDefault(std::uint32_t slot, double plain, bool notify) override;
    void setSlotMinimum(std::uint32_t slot, double plain, bool notify) override;
    void setSlotMaximum(std::uint32_t slot, double plain, bool notify) override;

    /// See ControlTaper. The position stays where it is.
    void setTaperMode(std::uint32_t mode) { taperMode = mode; }

    [[nodiscard]] std::uint32_t getTaperMode() const { return taperMode; }

    void setTaperFactor(float factor) { taperFactor = factor; }

    [[nodiscard]] float getTaperFactor() const { return taperFactor; }

    [[nodiscard]] ControlTaper taper() const;

    // Text and steps.

    void setDisplayScale(std::uint32_t slot, double scale, bool notify) override;
    void setDisplayOffset(std::uint32_t slot, double offset, bool notify) override;
    void setDisplayResolution(std::uint32_t slot, double resolution, bool notify) override;
    /// How far a step goes, in the parameter's unit; a fine step goes a tenth of that.
    void setKeyStep(std::uint32_t slot, double step, bool notify) override;
    /// Null for the plain one.
    void setTextTransformer(std::unique_ptr<QMParameterTextTransformer> transformer);
    void stepUp(bool fine) override;
    void stepDown(bool fine) override;
    /// With a readout, opens its text editor.
    bool activate() override;
    bool beginTextEntry(juce::juce_wchar character) override;

    // Behaviour.

    void setWheelAxes(bool horizontal, bool vertical);

    void setResetOnDoubleClick(bool flag) { resetOnDoubleClick = flag; }

    /// Whether a readout floats beside the control while it is moved, and where.
    void setShowEphemeralReadout(bool flag) { showEphemeralReadout = flag; }

    void setEphemeralBelow(bool flag) { ephemeralBelow = flag; }

    [[nodiscard]] QMEphemeralReadout* getEphemeralReadout() const;

    [[nodiscard]] bool isDragging() const { return dragging; }

    [[nodiscard]] bool isEditable() const override { return isEnabled(); }

    // IQMReadoutOwner.

    void setReadout(QMWidget* newReadout) override;

    [[nodiscard]] QMWidget* readout() const override { return attachedReadout.getComponent(); }

    // Mouse.

    void mouseDown(const juce::MouseEvent& event) override;
    void mouseDrag(const juce::MouseEvent& event) override;
    void mouseUp(const juce::MouseEvent& event) override;
    void mouseDoubleClick(const juce::MouseEvent& event) override;
    void mouseWheelMove(const juce::MouseEvent& event,
                        const juce::MouseWheelDetails& wheel) override;

protected:
    /// How much of the travel a movement of the mouse is, fine with Control. Knobs: right and up
    /// add, 250 pixels are all of it.
    [[nodiscard]] virtual double travelOf(juce::Point<int> movement, bool fine) const;

    /// The position has changed from what it was before: repaint what shows it.
    virtual void positionChanged(float) { repaint(); }

    [[nodiscard]] juce::AccessibilityRole accessibleRole() const override {
        return juce::AccessibilityRole::slider;
    }

private:
    class WheelTimer final : public juce::Timer {
    public:
        explicit WheelTimer(QMParameterControlWidget& widget)
            : control(widget) {}

        void timerCallback() override { control.wheelPaused(); }

    private:
        QMParameterControlWidget& control;
    };

    void show(double position, double plain);
    void tellReadouts(double plain);
    void step(double amount);
    [[nodiscard]] double limited(double plain) const;
    void closeGesture();
    void anchorAt(const juce::MouseEvent& event);
    void letGo();
    void wheelPaused();
    void openEphemeralReadout();
    void fadeEphemeralReadout();

    float value = 0.5f;
    float rangeMinimum = 0.0f;
    float rangeMaximum = 1.0f;
    float defaultValue = 0.5f;
    float dragAnchorValue = 0.0f;
    std::int32_t dragAnchorX = 0;
    std::int32_t dragAnchorY = 0;
    float taperFactor = 1.0f;
    double displayScale = 1.0;
    double displayOffset = 0.0;
    double displayResolution = 0.01;
    double keyStep = 5.0;
    bool wheelHorizontal = true;
    bool wheelVertical = true;
    bool fineMode = false;
    bool dragging = false;
    bool pressDrags = false; ///< whether the last press was one that begins a drag
    bool pressMoved = false; ///< and went further than a click
    bool pressBeforeMoved = false;
    std::uint32_t taperMode = ControlTaper::linear;
    bool resetOnDoubleClick = true;
    bool showEphemeralReadout = false;
    bool ephemeralBelow = true;
    std::unique_ptr<QMParameterTextTransformer> textTransformer;
    juce::Component::SafePointer<juce::Component> ephemeralReadout;
    WheelTimer wheelTimer{*this};
    juce::Component::SafePointer<QMWidget> attachedReadout;
    float shownValue = 0.5f; ///< what has been painted, or is about to be
};
