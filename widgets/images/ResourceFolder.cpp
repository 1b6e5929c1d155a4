// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/images/ResourceFolder.h"

namespace {

/// A path and not a file: a file asks the system for the current folder when it is made.
juce::String& otherFolder() {
    static juce::String path;
    return path;
}

juce::File ownLibrary() {
    // For a plug-in this is the library, not the host's program.
    return juce::File::getSpecialLocation(juce::File::SpecialLocationType::currentExecutableFile);
}

} // namespace

juce::File resourceFolderOfLibrary(const juce::File& library) {
    const juce::File platform = library.getParentDirectory();
    const juce::File bundle = platform.getParentDirectory().getParentDirectory();
    return bundle.getChildFile("Contents/Resources");
}

juce::File resourceFile(const juce::String& name) {
    const juce::File folder =
        otherFolder().isEmpty() ? resourceFolderOfLibrary(ownLibrary()) : juce::File(otherFolder());
    return folder.getChildFile(name);
}

void setResourceFolder(const juce::File& folder) {
    otherFolder() = folder.getFullPathName();
}
