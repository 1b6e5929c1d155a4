// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/PresetDesktop.h"

#include <juce_core/juce_core.h>

namespace {

juce::File fileOf(const std::string& path) {
    return juce::File::getCurrentWorkingDirectory().getChildFile(
        juce::String::fromUTF8(path.c_str()));
}

#if JUCE_LINUX
/// The toolkit moves things to a trash that is there, and makes none for a user who never had
/// anything in it.
void makeTrash() {
    const auto home = juce::File::getSpecialLocation(juce::File::userHomeDirectory);
    if (!home.getChildFile(".Trash").isDirectory())
        home.getChildFile(".local/share/Trash/files").createDirectory();
}
#endif

} // namespace

bool PresetDesktop::moveToTrash(const std::string& path) {
#if JUCE_LINUX
    makeTrash();
#endif
    return fileOf(path).moveToTrash();
}

void PresetDesktop::reveal(const std::string& path) {
    fileOf(path).revealToUser();
}
