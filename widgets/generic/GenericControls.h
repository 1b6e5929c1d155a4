// SPDX-License-Identifier: GPL-3.0-or-later
// Which control a parameter gets in the generic editor, and the control made and set up for it:
// bound, with its range, its default and its value. [message thread]
#pragma once

#include "widgets/ui/IGenericEditorContent.h"

#include <memory>

enum class GenericControlKind {
    toggle, ///< two values
    menu,   ///< several named values, or a few whole numbers
    knob,   ///< anything else
};

[[nodiscard]] GenericControlKind genericControlKind(const GenericParameter& parameter);

/// The texts of the whole numbers from the minimum to the maximum; a number where there is no name.
[[nodiscard]] juce::StringArray genericValueTexts(const GenericParameter& parameter);

/// "Osc 1 Attack Frequency: 1 to 440 Hz", "Mode: Off or On".
[[nodiscard]] juce::String genericTooltip(const GenericParameter& parameter);

/// How far a key moves a knob: a round number, about a fiftieth of the range, and whole steps.
[[nodiscard]] double genericKeyStep(const GenericParameter& parameter);

[[nodiscard]] std::unique_ptr<QMWidget> makeGenericControl(const GenericParameter& parameter);

/// The readout of a knob; belongs to it, and is bound as it is.
[[nodiscard]] std::unique_ptr<QMWidget> makeGenericReadout(const GenericParameter& parameter,
                                                           QMWidget& control);
