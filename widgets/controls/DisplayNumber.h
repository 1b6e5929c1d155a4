// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers as controls and readouts show them, and as users type them. The same under every locale:
// a host may switch the process to decimal commas.
#pragma once

#include <juce_core/juce_core.h>

#include <optional>

/// Plain digits, without a sign on what reads as zero; "inf", "-inf", "nan". decimals: below 0
/// counts as 0. [any thread]
[[nodiscard]] juce::String numberWithDecimals(double number, int decimals);

/// The nearest multiple, halves away from zero. The number itself for a resolution that is not
/// above 0. [any thread]
[[nodiscard]] double roundedToResolution(double number, double resolution);

/// Of the text of a control: as many as its resolution has, at most 2. [any thread]
[[nodiscard]] int decimalsOfControl(double resolution);

/// Of the text of a readout, for the rounded number. The later rules win: at a resolution of 1 a
/// number of 150 has one decimal. [any thread]
[[nodiscard]] int decimalsOfReadout(double number, double resolution);

/// The number a text begins with, behind white space; letters may follow. Nothing when there is
/// none. Infinity where a double cannot hold it. [any thread]
[[nodiscard]] std::optional<double> leadingNumber(const juce::String& text);
