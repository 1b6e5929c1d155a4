// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/preferences/EditorPreferences.h"

#include "services/preferences/PreferencesStores.h"

namespace QM {

std::string backgroundModeKey(const std::string& productCode) {
    return productCode + "_bknd";
}

std::int32_t readBackgroundMode(const std::string& productCode) {
    return shellStore().getIntValue(juce::String(backgroundModeKey(productCode)),
                                    defaultBackgroundMode);
}

void writeBackgroundMode(const std::string& productCode, std::int32_t mode) {
    shellStore().setValue(juce::String(backgroundModeKey(productCode)), mode);
}

std::int32_t readMagnification(const std::string& sizeKey, std::int32_t defaultPercent) {
    return shellStore().getIntValue(juce::String(sizeKey), defaultPercent);
}

void writeMagnification(const std::string& sizeKey, std::int32_t percent) {
    shellStore().setValue(juce::String(sizeKey), percent);
    shellStore().saveIfNeeded();
}

} // namespace QM
