// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps this test program's preferences out of the user's folders.
#pragma once

#include <juce_data_structures/juce_data_structures.h>

/// The shell store without any entry. [message thread]
juce::PropertiesFile& emptyShellStore();
