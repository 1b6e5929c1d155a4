// SPDX-License-Identifier: GPL-3.0-or-later
// Somebody who follows the presses of a button, and decides when its new state counts: at the
// release, as everybody expects, or already when it is pressed. [message thread]
#pragma once

class QMTrackedMultistateButtonWidget;

class IQMTrackedButtonListener {
public:
    virtual ~IQMTrackedButtonListener() = default;

    /// False has a press write the new state at once; the release writes what is shown then again.
    [[nodiscard]] virtual bool waitsForRelease(QMTrackedMultistateButtonWidget&) { return true; }

    virtual void buttonPressed(QMTrackedMultistateButtonWidget&) {}

    /// The pointer has left the button that is being pressed, or come back.
    virtual void buttonDragged(QMTrackedMultistateButtonWidget&, bool /*inside*/) {}

    virtual void buttonReleased(QMTrackedMultistateButtonWidget&) {}

    /// The user has changed the value; it is written already.
    virtual void buttonValueChanged(QMTrackedMultistateButtonWidget&, double /*value*/) {}
};
