// SPDX-License-Identifier: GPL-3.0-or-later
// The press of a button from beginning to end. Whoever is told of a part of it may end the button's
// life, which is why each call is followed by a look whether there still is one.
#include "widgets/buttons/IQMTrackedButtonListener.h"
#include "widgets/buttons/QMTrackedMultistateButtonWidget.h"

using SafeButton = juce::Component::SafePointer<QMTrackedMultistateButtonWidget>;

bool QMTrackedMultistateButtonWidget::acceptsPress(const juce::MouseEvent& event) {
    if (!isEnabled() || locked || pressIsTaken(event))
        return false;
    if (!clickHandler)
        return true;
    const SafeButton self(this);
    const ClickHandler handler = clickHandler;
    return !handler(*this, event) && self != nullptr;
}

void QMTrackedMultistateButtonWidget::mouseDown(const juce::MouseEvent& event) {
    if (acceptsPress(event))
        press(event.mods.isShiftDown() || event.mods.isAltDown() ? -1 : 1);
}

void QMTrackedMultistateButtonWidget::mouseDrag(const juce::MouseEvent& event) {
    if (pressOpen)
        follow(getLocalBounds().contains(event.getPosition()));
}

void QMTrackedMultistateButtonWidget::mouseUp(const juce::MouseEvent&) {
    if (pressOpen)
        release();
}

bool QMTrackedMultistateButtonWidget::activate() {
    if (locked || !isEnabled() || pressOpen)
        return false;
    const SafeButton self(this);
    press(1);
    if (self != nullptr && pressOpen)
        release();
    return true;
}

int QMTrackedMultistateButtonWidget::advancedState() const {
    if (staticState || stateCount == 0)
        return previousState;
    return (previousState + stateCount + step) % stateCount;
}

void QMTrackedMultistateButtonWidget::press(int direction) {
    const SafeButton self(this);
    step = direction;
    pressOpen = true;
    pressCounts = false;
    beginTouch(0);
    if (self == nullptr)
        return;
    previousState = state;
    showState(advancedState());
    bool isWritten = false;
    if (listener != nullptr && !listener->waitsForRelease(*this)) {
        commit();
        isWritten = true;
    }
    if (self != nullptr && listener != nullptr)
        listener->buttonPressed(*this);
    if (self == nullptr)
        return;
    pressCounts = !pressVeto || pressVeto(*this);
    pointerInside = pressCounts;
    pressedLook = pressCounts;
    if (!pressCounts && !isWritten)
        showState(previousState);
    repaint();
}

void QMTrackedMultistateButtonWidget::follow(bool inside) {
    if (!pressCounts || inside == pressedLook)
        return;
    pointerInside = inside;
    pressedLook = inside;
    showState(inside ? advancedState() : previousState);
    repaint();
    if (listener != nullptr)
        listener->buttonDragged(*this, inside);
}

void QMTrackedMultistateButtonWidget::release() {
    const SafeButton self(this);
    pressOpen = false;
    if (!isEnabled() || locked) {
        // It has been taken out of use meanwhile.
        showState(previousState);
        pressedLook = false;
    } else if (pressCounts && !staticState) {
        if (revertOnRelease)
            showState(previousState);
        commit();
    }
    if (self != nullptr)
        finishPress();
}

void QMTrackedMultistateButtonWidget::finishPress() {
    const SafeButton self(this);
    const bool looked = pressedLook;
    endTouch(0);
    if (self != nullptr && listener != nullptr)
        listener->buttonReleased(*this);
    if (self != nullptr && releaseCallback) {
        const ReleaseCallback callback = releaseCallback;
        callback(*this, looked);
    }
    if (self == nullptr)
        return;
    pressedLook = false;
    pointerInside = false;
    repaint();
}
