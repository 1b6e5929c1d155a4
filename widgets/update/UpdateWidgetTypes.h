// SPDX-License-Identifier: GPL-3.0-or-later
// The factory's type of the line that tells of updates.
#pragma once

#include <juce_core/juce_core.h>

class QMWidgetFactory;

/// The widgets made ask for the product of this name; empty for none. Added once more with another
/// name, the new one counts. [message thread]
void addUpdateWidgetTypes(QMWidgetFactory& factory, const juce::String& productName = {});
