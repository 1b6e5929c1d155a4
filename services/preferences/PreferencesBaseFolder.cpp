// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/preferences/PreferencesBaseFolder.h"

namespace QM {
namespace {

juce::File& baseFolder() {
    static juce::File folder;
    return folder;
}

} // namespace

void setPreferencesBaseFolder(const juce::File& folder) {
    baseFolder() = folder;
}

juce::File preferencesBaseFolder() {
    return baseFolder();
}

} // namespace QM
