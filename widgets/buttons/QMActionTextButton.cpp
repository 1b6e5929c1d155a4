// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/buttons/QMActionTextButton.h"

QMActionTextButton::QMActionTextButton(const juce::String& name)
    : TextButton(name) {
    // The host keeps the keyboard when somebody merely clicks.
    setMouseClickGrabsKeyboardFocus(false);
}

void QMActionTextButton::setParameter(FourCharCode parameterID, double valueToWrite) {
    parameter = parameterID;
    value = valueToWrite;
}

void QMActionTextButton::mouseDown(const juce::MouseEvent& event) {
    if (parameter != noParameter) {
        for (QMGenericParameterTarget* const target : parameterTargets()) {
            if (target->takesClick(parameter))
                return;
        }
    }
    TextButton::mouseDown(event);
}

void QMActionTextButton::clicked() {
    QMGenericParameterTarget* const target = parameterTarget();
    if (target == nullptr || parameter == noParameter)
        return;
    target->beginTouch(parameter);
    target->setParameterValue(parameter, value);
    target->endTouch(parameter);
}
