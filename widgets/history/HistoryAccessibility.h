// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader is told of a history: its display text, when it asks. Nobody wants to be
// told of every change. [message thread]
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

#include <memory>

class QMWidget;

/// The widget outlives the handler.
[[nodiscard]] std::unique_ptr<juce::AccessibilityHandler>
makeHistoryAccessibility(QMWidget& history, juce::AccessibilityActions actions = {});
