// SPDX-License-Identifier: GPL-3.0-or-later
// A values object's settings records: made and applied.
#include "plugin-model/AccumulateBracket.h"
#include "plugin-model/QMParameterValues.h"
#include "plugin-model/records/ExtensionMembers.h"
#include "plugin-model/records/ParameterStateRecord.h"
#include "plugin-model/snapshots/SnapshotDocument.h"
#include "presets/record/PresetComparison.h"

#include <numeric>

namespace QM {
namespace {

using nlohmann::json;

} // namespace

QMGenericPreset QMParameterValues::makeRecord(StateExtent extent) const {
    QMGenericPreset record;
    record.valuesTag = valuesTag();
    record.manufacturerCode = manufacturerCode() != 0 ? manufacturerCode() : set.firstCode();
    record.productCode = productCode() != 0 ? productCode() : set.secondCode();
    record.uniqueId = currentPreset;
    for (std::size_t i = 0; i < values.size(); ++i)
        record.values[set.idOfIndex(static_cast<std::int32_t>(i))] = values[i];
    if (!holdsNothing(*document))
        record.extension = *document;
    if (extent == StateExtent::complete)
        writeSnapshotMembers(snapshots, record.extension);
    return record;
}

bool QMParameterValues::acceptsRecord(const QMGenericPreset& record) const {
    return set.acceptsPair(record.manufacturerCode, record.productCode);
}

bool QMParameterValues::isExcluded(FourCharCode id, std::int32_t index) const {
    return excluded.contains(id) || index == blendParameter;
}

bool QMParameterValues::applyRecord(const QMGenericPreset& record, QMParameterChanges* changes) {
    if (!acceptsRecord(record))
        return false;
    const SnapshotMembers members(record.extension);
    std::vector<std::int32_t> indices;
    std::vector<double> plainValues;
    for (const auto& [id, value] : record.values) {
        const std::int32_t index = set.indexOfID(id);
        if (isValid(index) && !isExcluded(id, index)) {
            indices.push_back(index);
            plainValues.push_back(value);
        }
    }
    recordPresetCommand();
    AccumulateBracket bracket(*this);
    applyValues(indices, plainValues, changes);
    takeDocumentOver(record.extension);
    members.applyTo(snapshots, values);
    currentPreset = record.uniqueId;
    if (QMSnapshotTable::Snapshot* active = snapshots.activeOne())
        active->presetId = record.uniqueId;
    bracket.close();
    return true;
}

void QMParameterValues::applyValues(std::span<const std::int32_t> indices,
                                    std::span<const double> plainValues,
                                    QMParameterChanges* changes) {
    setParameterValues(static_cast<std::int32_t>(indices.size()), indices.data(),
                       plainValues.data(), nullptr);
    if (changes == nullptr)
        return;
    for (const std::int32_t index : indices) {
        if (testChangedFlag(index))
            changes->record(index, getValue(index));
    }
}

void QMParameterValues::takeDocumentOver(const json& newDocument) {
    // A document without mappings of controllers leaves those in force alone, and then they have to
    // stay in the document that is saved next.
    json taken = newDocument;
    SnapshotMembers::removeFrom(taken);
    const auto present = document->find(controllerMapKey);
    const bool keepsMap =
        present != document->end() && !holdsNothing(*present) &&
        (holdsNothing(taken) || taken.is_object()) &&
        holdsNothing(taken.is_object() ? taken.value(controllerMapKey, json()) : json());
    if (keepsMap)
        taken[controllerMapKey] = *present;
    *document = std::move(taken);
}

void QMParameterValues::setExtensionDocument(json newDocument) {
    *document = std::move(newDocument);
}

bool QMParameterValues::equalsRecord(const QMGenericPreset& record) const {
    return presetsAreEqual(makeRecord(StateExtent::parameters), record, excluded);
}

std::vector<std::byte> QMParameterValues::makeStateRecord() const {
    return ParameterStateRecord{0, set.secondCode(), set.firstCode(), values}.bytes();
}

bool QMParameterValues::acceptsStateRecord(std::span<const std::byte> bytes) const {
    const auto record = ParameterStateRecord::of(bytes);
    return record && set.acceptsPair(record->manufacturerCode, record->typeCode) &&
           isNotAboveVersion(record->version);
}

bool QMParameterValues::applyStateRecord(std::span<const std::byte> bytes,
                                         QMParameterChanges* changes) {
    if (!acceptsStateRecord(bytes))
        return false;
    const std::vector<double> stored = ParameterStateRecord::of(bytes)->values;
    std::vector<std::int32_t> indices;
    std::vector<double> plainValues;
    for (std::size_t i = 0; i < std::min(stored.size(), values.size()); ++i) {
        const auto index = static_cast<std::int32_t>(i);
        if (!isExcluded(set.idOfIndex(index), index)) {
            indices.push_back(index);
            plainValues.push_back(stored[i]);
        }
    }
    recordPresetCommand();
    applyValues(indices, plainValues, changes);
    return true;
}

void QMParameterValues::resetExcludedIDs() {
    excluded = {fourCharCode("mbyp")};
}

bool QMParameterValues::matchesFirstCode(FourCharCode code) const {
    return set.firstCode() == code;
}

bool QMParameterValues::matchesSecondCode(FourCharCode code) const {
    return set.secondCode() == code;
}

bool QMParameterValues::isNotAboveVersion(std::uint32_t version) const {
    constexpr std::uint32_t ownVersion = 0;
    return version <= ownVersion;
}

} // namespace QM
