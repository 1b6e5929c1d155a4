// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/history/MeterHistorySettings.h"

#include "services/preferences/PreferenceKeys.h"

#include <algorithm>
#include <cstdint>

namespace {

constexpr MeterHistorySettings factorySettings;
constexpr auto store = QM::PreferencesStoreId::plugIns;

constexpr QM::PreferenceKey<std::int32_t> gainRangeKey{store, "meterHistoryGainRange",
                                                       factorySettings.gainRange};
constexpr QM::PreferenceKey<bool> outputGainKey{store, "meterHistoryIncludeOutputGain",
                                                factorySettings.includeOutputGain};
constexpr QM::PreferenceKey<bool> sensitivityKey{store, "meterHistoryAutoSensitivity",
                                                 factorySettings.autoSensitivity};

} // namespace

MeterHistorySettings readMeterHistorySettings() {
    MeterHistorySettings settings;
    const std::int32_t range = QM::readPreference(gainRangeKey);
    const auto& ranges = MeterHistorySettings::gainRanges;
    if (std::find(ranges.begin(), ranges.end(), range) != ranges.end())
        settings.gainRange = range;
    settings.includeOutputGain = QM::readPreference(outputGainKey);
    settings.autoSensitivity = QM::readPreference(sensitivityKey);
    return settings;
}

void writeMeterHistorySettings(const MeterHistorySettings& settings) {
    QM::writePreference(gainRangeKey, settings.gainRange);
    QM::writePreference(outputGainKey, settings.includeOutputGain);
    QM::writePreference(sensitivityKey, settings.autoSensitivity);
}
