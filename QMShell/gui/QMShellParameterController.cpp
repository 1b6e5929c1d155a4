// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/gui/QMShellParameterController.h"

#include "QMShell/gui/QMShell_GUI.h"

void QMShellParameterController::updateCoefficients() {
    gui.updateCoefficients();
}

bool QMShellParameterController::handleParameterMouseDown(FourCharCode id,
                                                          const juce::ModifierKeys& modifiers) {
    return gui.handleParameterMouseDown(id, modifiers);
}

void QMShellParameterController::setParameterValue(FourCharCode id, double plain) {
    gui.setParameterValue(id, plain);
}

float QMShellParameterController::parameterValue(FourCharCode id) const {
    return gui.parameterValue(id);
}

void QMShellParameterController::beginParameterGesture(FourCharCode id) {
    gui.beginParameterGesture(id);
}

void QMShellParameterController::endParameterGesture(FourCharCode id) {
    gui.endParameterGesture(id);
}
