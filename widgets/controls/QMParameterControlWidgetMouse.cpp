// SPDX-License-Identifier: GPL-3.0-or-later
// What the mouse does to a control.
#include "widgets/controls/ControlClickOptions.h"
#include "widgets/controls/QMEphemeralReadout.h"
#include "widgets/controls/QMParameterControlWidget.h"

namespace {

constexpr double travelPerPixel = 0.004;
constexpr double fineTravelPerPixel = 0.001;
constexpr double wheelSpeed = 0.2;
constexpr double fineWheelSpeed = 0.02;
constexpr double travelOfWheel = 0.1;
constexpr int clickSlack = 4;     ///< pixels that the mouse may move in a click
constexpr int wheelPauseMs = 300; ///< ends a gesture of the wheel

} // namespace

double QMParameterControlWidget::travelOf(juce::Point<int> movement, bool fine) const {
    return (movement.x - movement.y) * (fine ? fineTravelPerPixel : travelPerPixel);
}

/// Whatever is still open: the wheel's gesture, or that of a press whose end never came.
void QMParameterControlWidget::closeGesture() {
    wheelTimer.stopTimer();
    dragging = false;
    for (std::int32_t open = getTouchCount(); open > 0; --open)
        endTouch(0);
}

void QMParameterControlWidget::anchorAt(const juce::MouseEvent& event) {
    fineMode = event.mods.isCtrlDown();
    dragAnchorX = event.x;
    dragAnchorY = event.y;
    dragAnchorValue = value;
}

void QMParameterControlWidget::mouseDown(const juce::MouseEvent& event) {
    closeGesture();
    pressDrags = false;
    pressBeforeMoved = pressMoved;
    pressMoved = false;
    if (pressIsTaken(event) || !isEditable())
        return;
    const ControlClickOptions& options = controlClickOptions();
    const juce::ModifierKeys keys = event.mods;
    if (options.altClickResets && keys.isAltDown() && keys.isCtrlDown()) {
        writeAsGesture(0, rangeMinimum);
        return;
    }
    if ((options.controlClickTakesFocus && keys.isCtrlDown() && !keys.isShiftDown()) ||
        (options.rightClickTakesFocus && keys.isRightButtonDown())) {
        takeFocus();
        return;
    }
    if (options.altClickResets && keys.isAltDown()) {
        resetToDefault();
        return;
    }
    beginTouch(0);
    anchorAt(event);
    dragging = true;
    pressDrags = true;
    openEphemeralReadout();
}

void QMParameterControlWidget::mouseDrag(const juce::MouseEvent& event) {
    if (!dragging)
        return;
    pressMoved = pressMoved || event.getDistanceFromDragStart() > clickSlack;
    if (event.mods.isCtrlDown() != fineMode)
        anchorAt(event);
    const juce::Point<int> movement(event.x - dragAnchorX, event.y - dragAnchorY);
    const auto moved =
        static_cast<float>(juce::jlimit(0.0, 1.0, dragAnchorValue + travelOf(movement, fineMode)));
    // A press that shakes leaves the plug-in's value as exact as it was.
    if (moved != value)
        setValueFromUser(moved);
}

void QMParameterControlWidget::mouseUp(const juce::MouseEvent&) {
    letGo();
}

void QMParameterControlWidget::letGo() {
    if (dragging) {
        dragging = false;
        endTouch(0);
    }
    // While the wheel's gesture goes on, so does its readout.
    if (!wheelTimer.isTimerRunning())
        fadeEphemeralReadout();
}

void QMParameterControlWidget::mouseDoubleClick(const juce::MouseEvent&) {
    // Comes after the second press has ended. One that was for something else has done it, and a
    // short drag followed by a click is none.
    if (!pressDrags || pressBeforeMoved)
        return;
    letGo();
    switch (controlClickOptions().doubleClickAction) {
    case ControlClickOptions::DoubleClick::reset:
        if (resetOnDoubleClick)
            resetToDefault();
        break;
    case ControlClickOptions::DoubleClick::takeFocus:
        takeFocus();
        break;
    case ControlClickOptions::DoubleClick::nothing:
        break;
    }
}

void QMParameterControlWidget::setWheelAxes(bool horizontal, bool vertical) {
    wheelHorizontal = horizontal;
    wheelVertical = vertical;
}

void QMParameterControlWidget::mouseWheelMove(const juce::MouseEvent& event,
                                              const juce::MouseWheelDetails& wheel) {
    if (!isEnabled()) {
        juce::Component::mouseWheelMove(event, wheel);
        return;
    }
    const double direction = wheel.isReversed ? -1.0 : 1.0;
    const double x = wheelHorizontal ? direction * static_cast<double>(wheel.deltaX) : 0.0;
    const double y = wheelVertical ? direction * static_cast<double>(wheel.deltaY) : 0.0;
    const double speed = event.mods.isCtrlDown() ? fineWheelSpeed : wheelSpeed;
    const double amount = (y - x) * speed * travelOfWheel;
    if (amount == 0.0)
        return;
    if (!isTouched(0))
        beginTouch(0);
    nudge(amount);
    // A drag goes on from where the wheel has left the control.
    if (dragging)
        anchorAt(event);
    wheelTimer.startTimer(wheelPauseMs);
    openEphemeralReadout();
}

void QMParameterControlWidget::wheelPaused() {
    wheelTimer.stopTimer();
    // A drag's gesture ends with the drag.
    if (dragging)
        return;
    closeGesture();
    fadeEphemeralReadout();
}
