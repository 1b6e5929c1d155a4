// SPDX-License-Identifier: GPL-3.0-or-later
// An instance's state: settings records, the flat form, the current preset.
#include "plugin-model/INoxPlugInEnvironment.h"
#include "plugin-model/INoxPlugInType.h"
#include "plugin-model/INoxPlugInTypeGroup.h"
#include "plugin-model/NoxPlugIn.h"
#include "plugin-model/NoxPlugInSnapshot.h"
#include "plugin-model/QMParameterValues.h"
#include "plugin-model/records/ExtensionMembers.h"
#include "plugin-model/records/ParameterStateRecord.h"
#include "presets/record/PresetIdentity.h"
#include "presets/record/QMGenericPreset.h"

#include <algorithm>

namespace {

/// Values and nothing else: a preset of this kind goes into the active snapshot and leaves the
/// other state of the instance alone.
bool isBare(const QMGenericPreset& record) {
    return !record.values.empty() && QM::holdsNothing(record.extension);
}

SettingLocator locatorOfPreset(std::uint64_t id) {
    if (id == PresetIdentity::factoryDefault)
        return {};
    if (id == PresetIdentity::deletedPreset)
        return {.manual = 1};
    return SettingLocator::ofUniqueId(id);
}

} // namespace

bool NoxPlugIn::supportsGenericPresets() const {
    return values_ != nullptr;
}

bool NoxPlugIn::canApplyGenericPreset(const QMGenericPreset& record) const {
    return values_ != nullptr && values_->acceptsRecord(record);
}

QMGenericPreset NoxPlugIn::getStateRecord(StateExtent extent) const {
    return values_ != nullptr ? values_->makeRecord(extent) : QMGenericPreset();
}

bool NoxPlugIn::applyStateRecord(const QMGenericPreset& record) {
    if (!canApplyGenericPreset(record))
        return false;
    (void)createEventSources(record.extension); // throws what the update below would throw too late
    QM::QMParameterChanges changes;
    const std::int32_t active = values_->activeSnapshot();
    if (active >= 0 && isBare(record))
        values_->loadSnapshotFromPreset(active, record, &changes);
    else if (!values_->applyRecord(record, &changes))
        return false;
    finishApplication(changes);
    return true;
}

void NoxPlugIn::finishApplication(const QM::QMParameterChanges& changes) {
    postApplicationHook();
    updateParameterControllerMapFromProperty();
    tellChanges(changes);
}

void NoxPlugIn::tellChanges(const QM::QMParameterChanges& changes) {
    if (environment_ != nullptr && !changes.empty())
        environment_->parametersChanged(*this, changes.count(), changes.indices(), changes.values(),
                                        0);
}

void NoxPlugIn::adaptStateRecord(QMGenericPreset& record) const {
    const QMGenericPreset own = getStateRecord(StateExtent::parameters);
    record.manufacturerCode = own.manufacturerCode;
    record.productCode = own.productCode;
}

bool NoxPlugIn::equalsStateRecord(const QMGenericPreset& record) const {
    return values_ != nullptr && values_->equalsRecord(record);
}

std::vector<std::byte> NoxPlugIn::getParameterState() const {
    if (values_ != nullptr)
        return values_->makeStateRecord();
    return ownStateRecord(defaultValues).bytes();
}

std::vector<std::byte> NoxPlugIn::getFactoryState() const {
    std::vector<double> defaults;
    for (std::int32_t i = 0; i < parameterCount(); ++i)
        defaults.push_back(defaultValue(i));
    return ownStateRecord(std::move(defaults)).bytes();
}

QM::ParameterStateRecord NoxPlugIn::ownStateRecord(std::vector<double> values) const {
    const INoxPlugInTypeGroup* typeGroup = group();
    return {0, typeCode, typeGroup != nullptr ? typeGroup->manufacturerCode() : 0,
            std::move(values)};
}

bool NoxPlugIn::applyParameterState(std::span<const std::byte> bytes) {
    if (values_ == nullptr)
        return takeDefaultValues(bytes);
    QM::QMParameterChanges changes;
    if (!values_->applyStateRecord(bytes, &changes))
        return false;
    finishApplication(changes);
    return true;
}

bool NoxPlugIn::takeDefaultValues(std::span<const std::byte> bytes) {
    const auto record = QM::ParameterStateRecord::of(bytes);
    const QM::ParameterStateRecord own = ownStateRecord({});
    if (!record || record->typeCode != own.typeCode ||
        record->manufacturerCode != own.manufacturerCode || record->version > own.version)
        return false;
    const std::size_t count = std::min(record->values.size(), defaultValues.size());
    std::copy_n(record->values.begin(), count, defaultValues.begin());
    return true;
}

std::unique_ptr<NoxPlugInSnapshot> NoxPlugIn::captureSettings() const {
    return std::make_unique<NoxPlugInSnapshot>(
        NoxPlugInSnapshot{getStateRecord(StateExtent::complete), currentPresetLocator()});
}

bool NoxPlugIn::restoreSettings(const NoxPlugInSnapshot& settings) {
    if (!applyStateRecord(settings.record))
        return false;
    setCurrentPresetLocator(settings.locator);
    return true;
}

std::uint64_t NoxPlugIn::currentPresetId() const {
    return values_ != nullptr ? values_->currentPresetId() : 0;
}

void NoxPlugIn::setCurrentPresetId(std::uint64_t id) {
    if (values_ == nullptr)
        return;
    values_->setCurrentPresetId(id);
    chosenLocator.presetId = id;
}

SettingLocator NoxPlugIn::currentPresetLocator() const {
    const std::uint64_t id = currentPresetId();
    return chosenLocator.isSet && chosenLocator.presetId == id ? chosenLocator.locator
                                                               : locatorOfPreset(id);
}

void NoxPlugIn::setCurrentPresetLocator(const SettingLocator& locator) {
    if (values_ != nullptr && locator.valid != 0 && locator.namesUniqueId())
        values_->setCurrentPresetId(locator.uniqueId());
    chosenLocator = {true, locator, currentPresetId()};
}
