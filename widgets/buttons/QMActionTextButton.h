// SPDX-License-Identifier: GPL-3.0-or-later
// The toolkit's own text button, for panels and dialogs, with a parameter behind it: a click writes
// one value to it, as a gesture. Whoever connects a MIDI controller may take the click instead.
// [message thread]
#pragma once

#include "widgets/base/QMGenericParameterTargetHolder.h"

#include <juce_gui_basics/juce_gui_basics.h>

class QMActionTextButton final : public juce::TextButton, public QMGenericParameterTargetHolder {
public:
    explicit QMActionTextButton(const juce::String& name = {});

    /// What a click writes, plain, to the first target; none without a parameter.
    void setParameter(FourCharCode parameterID, double valueToWrite = 1.0);

    void mouseDown(const juce::MouseEvent& event) override;

protected:
    void clicked() override;

private:
    FourCharCode parameter = noParameter;
    double value = 1.0;

    static constexpr FourCharCode noParameter = 0xFFFFFFFF;
};
