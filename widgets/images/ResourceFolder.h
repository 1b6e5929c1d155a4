// SPDX-License-Identifier: GPL-3.0-or-later
// Where the files are that come with the library: pictures, typefaces. A plug-in is a bundle, and
// its library stands two folders deep in it, in the one for the platform:
//
//   <bundle>/Contents/<platform>/<library>
//   <bundle>/Contents/Resources/<name>
#pragma once

#include <juce_core/juce_core.h>

/// The resource folder of the bundle that this library file would be in; whether there is one is
/// not looked at. [any thread]
[[nodiscard]] juce::File resourceFolderOfLibrary(const juce::File& library);

/// A file in the resource folder of the library that this code is part of. [message thread]
[[nodiscard]] juce::File resourceFile(const juce::String& name);

/// Another resource folder, for tests and for programs that are no bundle; an empty file gives
/// their own back. Pictures that have been read stay. [message thread]
void setResourceFolder(const juce::File& folder);
