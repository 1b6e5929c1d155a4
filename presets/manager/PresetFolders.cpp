// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/PresetFolders.h"

#include <juce_core/juce_core.h>

namespace {

constexpr const char* fallbackProductFolderName = "QM Plug-In";

std::string pathOf(juce::File::SpecialLocationType location) {
    return juce::File::getSpecialLocation(location).getFullPathName().toStdString();
}

} // namespace

PresetFolders findPresetFolders(const std::string& productFolderName) {
    const std::string product =
        productFolderName.empty() ? fallbackProductFolderName : productFolderName;
#ifdef _WIN32
    return {pathOf(juce::File::globalApplicationsDirectory) + "\\Quolm\\QMPresets\\" + product,
            pathOf(juce::File::userDocumentsDirectory) + "\\Quolm\\QMPresets\\" + product};
#else
    // Packages install shared data there; what the toolkit calls the folder for programs is /usr.
    return {"/usr/share/Quolm/QMPresets/" + product,
            pathOf(juce::File::userDocumentsDirectory) + "/Quolm/QMPresets/" + product};
#endif
}

const PresetFolders& presetFoldersOfProcess(const std::string& productFolderName) {
    static const PresetFolders folders = findPresetFolders(productFolderName);
    return folders;
}
