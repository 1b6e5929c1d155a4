// SPDX-License-Identifier: GPL-3.0-or-later
// The plug-in interface through which a host has loaded the library, which the maker's service is
// told: installers differ.
#pragma once

namespace QM {

enum class PlugInInterface { vst3, vst2, aax };

/// "vst3", "vst2" or "aax". [any thread]
[[nodiscard]] const char* textOf(PlugInInterface plugInInterface);

/// For the entry points of an interface, before anything else of the library is used; VST3 is what
/// the process has been loaded through until somebody says otherwise. [any thread]
void setLoadedInterface(PlugInInterface plugInInterface);

/// [any thread]
[[nodiscard]] PlugInInterface loadedInterface();

} // namespace QM
