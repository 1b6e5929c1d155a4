// SPDX-License-Identifier: GPL-3.0-or-later
// Another place for the preference files, so that test programs never touch the user's own. The
// product has no such setting: nothing but a test program calls the setter.
#pragma once

#include <juce_core/juce_core.h>

namespace QM {

/// The stores opened from now on keep their folders below this one; the empty file stands for the
/// toolkit's place again. A store that is open keeps its file. [message thread]
void setPreferencesBaseFolder(const juce::File& folder);

/// The empty file where none was set. [message thread]
[[nodiscard]] juce::File preferencesBaseFolder();

} // namespace QM
