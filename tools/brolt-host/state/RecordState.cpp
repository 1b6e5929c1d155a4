// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/state/RecordState.h"

#include "plugin-model/NoxPlugInSnapshot.h"
#include "presets/record/PresetComparison.h"

bool RecordState::applyStateRecord(const QMGenericPreset& applied) {
    record = applied;
    return true;
}

bool RecordState::equalsStateRecord(const QMGenericPreset& other) const {
    return presetsAreEqual(record, other);
}

SettingLocator RecordState::currentPresetLocator() const {
    return SettingLocator::ofUniqueId(record.uniqueId);
}

std::unique_ptr<NoxPlugInSnapshot> RecordState::captureSettings() const {
    return std::make_unique<NoxPlugInSnapshot>(NoxPlugInSnapshot{record, currentPresetLocator()});
}

bool RecordState::restoreSettings(const NoxPlugInSnapshot& settings) {
    return applyStateRecord(settings.record);
}
