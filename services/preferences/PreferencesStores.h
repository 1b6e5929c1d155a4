// SPDX-License-Identifier: GPL-3.0-or-later
// The three preference stores of the process. Each is opened on first use and shared by every
// instance of every product in the process: what one writes, the others read at once. Other
// processes see it when they next open the file.
#pragma once

#include "services/preferences/PreferencesStoreDescription.h"

namespace QM {

/// "QMShell". Lives until the library is unloaded. [message thread]
[[nodiscard]] juce::PropertiesFile& shellStore();

/// "QMPlugins". Lives until the library is unloaded. [message thread]
[[nodiscard]] juce::PropertiesFile& plugInsStore();

/// "NoxConsole3d". Lives until the toolkit shuts down; used again after that, it is opened anew, so
/// never keep a reference to it. [message thread]
[[nodiscard]] juce::PropertiesFile& consoleStore();

/// One of the above. [message thread]
[[nodiscard]] juce::PropertiesFile& preferencesStore(PreferencesStoreId store);

} // namespace QM
