// SPDX-License-Identifier: GPL-3.0-or-later
// A values object's snapshots: what is kept, recalled and copied.
#include "plugin-model/QMParameterValues.h"
#include "presets/record/QMGenericPreset.h"

#include <numeric>

namespace QM {

void QMParameterValues::setSnapshotCount(std::int32_t count) {
    snapshots.setCount(count, values.size());
}

bool QMParameterValues::isSnapshotPopulated(std::int32_t snapshot) const {
    return snapshots.isPopulated(snapshot);
}

std::string QMParameterValues::snapshotName(std::int32_t snapshot) const {
    constexpr std::int32_t letters = 'Z' - 'A' + 1;
    if (!snapshots.isIndex(snapshot))
        return "Unknown";
    if (snapshot >= letters)
        return std::to_string(snapshot + 1);
    return std::string(1, static_cast<char>('A' + snapshot));
}

double QMParameterValues::snapshotValue(std::int32_t snapshot, std::int32_t index) const {
    if (!snapshots.isIndex(snapshot) || !isValid(index))
        return 0.0;
    return snapshots.at(snapshot).values[static_cast<std::size_t>(index)];
}

std::uint64_t QMParameterValues::snapshotPresetId(std::int32_t snapshot) const {
    return snapshots.isIndex(snapshot) ? snapshots.at(snapshot).presetId : 0;
}

bool QMParameterValues::snapshotsAreEqual(std::int32_t first, std::int32_t second) const {
    return snapshots.isIndex(first) && snapshots.isIndex(second) &&
           snapshots.at(first).values == snapshots.at(second).values;
}

void QMParameterValues::selectSnapshot(std::int32_t snapshot, SnapshotMode mode,
                                       QMParameterChanges* changes) {
    if (snapshot == blendOfSnapshots) {
        selectBlend(changes);
    } else if (snapshot == noSnapshot) {
        snapshots.active = noSnapshot;
    } else if (snapshots.isIndex(snapshot) && snapshot != snapshots.active) {
        if (mode == SnapshotMode::recallOrStore && snapshots.isPopulated(snapshot)) {
            recallSnapshot(snapshot, changes);
            return;
        }
        snapshots.active = snapshot;
        if (mode != SnapshotMode::activate)
            storeSnapshot(snapshot);
    }
}

void QMParameterValues::recallSnapshot(std::int32_t snapshot, QMParameterChanges* changes) {
    recordPresetCommand();
    snapshots.active = snapshot;
    currentPreset = snapshots.at(snapshot).presetId;
    applySnapshotValues(snapshots.at(snapshot).values, changes);
}

void QMParameterValues::storeSnapshot(std::int32_t snapshot) {
    QMSnapshotTable::Snapshot& stored = snapshots.at(snapshot);
    stored.values = values;
    stored.presetId = currentPreset;
    stored.populated = true;
}

void QMParameterValues::loadSnapshotFromPreset(std::int32_t snapshot, const QMGenericPreset& record,
                                               QMParameterChanges* changes) {
    if (!snapshots.isIndex(snapshot))
        return;
    QMSnapshotTable::Snapshot& loaded = snapshots.at(snapshot);
    for (const auto& [id, value] : record.values) {
        const std::int32_t index = set.indexOfID(id);
        if (isValid(index) && !isExcluded(id, index))
            loaded.values[static_cast<std::size_t>(index)] = value;
    }
    if (record.values.empty())
        return;
    loaded.presetId = record.uniqueId;
    if (snapshot != snapshots.active)
        return;
    recordPresetCommand();
    applySnapshotValues(loaded.values, changes);
    currentPreset = record.uniqueId;
}

void QMParameterValues::copySnapshot(std::int32_t from, std::int32_t to,
                                     QMParameterChanges* changes) {
    // Snapshot 0 takes no part on either side: sessions count on A staying what it is.
    if (from < 1 || to < 1 || !snapshots.isIndex(from) || !snapshots.isIndex(to) ||
        !snapshots.isPopulated(from))
        return;
    snapshots.at(to).values = snapshots.at(from).values;
    snapshots.at(to).populated = true;
    if (to != snapshots.active)
        return;
    recordPresetCommand();
    applySnapshotValues(snapshots.at(to).values, changes);
}

void QMParameterValues::applySnapshotValues(const std::vector<double>& plainValues,
                                            QMParameterChanges* changes) {
    // A copy: storing goes into the active snapshot, which these values may be.
    const std::vector<double> applied = plainValues;
    std::vector<std::int32_t> indices(applied.size());
    std::iota(indices.begin(), indices.end(), 0);
    if (isValid(blendParameter))
        indices.erase(indices.begin() + blendParameter);
    std::vector<double> chosen;
    for (const std::int32_t index : indices)
        chosen.push_back(applied[static_cast<std::size_t>(index)]);
    applyValues(indices, chosen, changes);
}

} // namespace QM
