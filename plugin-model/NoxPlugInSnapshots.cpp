// SPDX-License-Identifier: GPL-3.0-or-later
// An instance's snapshots and undo: the values object does it, the environment is told.
#include "plugin-model/NoxPlugIn.h"
#include "plugin-model/QMParameterValues.h"
#include "presets/record/QMGenericPreset.h"

std::int32_t NoxPlugIn::snapshotCount() const {
    return values_ != nullptr ? values_->snapshotCount() : 0;
}

bool NoxPlugIn::isSnapshotPopulated(std::int32_t snapshot) const {
    return values_ != nullptr && values_->isSnapshotPopulated(snapshot);
}

std::int32_t NoxPlugIn::activeSnapshot() const {
    return values_ != nullptr ? values_->activeSnapshot() : QM::noSnapshot;
}

std::string NoxPlugIn::snapshotName(std::int32_t snapshot) const {
    return values_ != nullptr ? values_->snapshotName(snapshot) : "Unknown";
}

template <typename Change>
void NoxPlugIn::changeSnapshots(Change change) {
    if (values_ == nullptr)
        return;
    QM::QMParameterChanges changes;
    change(*values_, &changes);
    finishApplication(changes);
}

void NoxPlugIn::selectSnapshot(std::int32_t snapshot, QM::SnapshotMode mode) {
    changeSnapshots([&](QM::QMParameterValues& values, QM::QMParameterChanges* changes) {
        values.selectSnapshot(snapshot, mode, changes);
    });
}

void NoxPlugIn::loadSnapshotFromPreset(std::int32_t snapshot, const QMGenericPreset& record) {
    changeSnapshots([&](QM::QMParameterValues& values, QM::QMParameterChanges* changes) {
        values.loadSnapshotFromPreset(snapshot, record, changes);
    });
}

void NoxPlugIn::copySnapshot(std::int32_t from, std::int32_t to) {
    changeSnapshots([&](QM::QMParameterValues& values, QM::QMParameterChanges* changes) {
        values.copySnapshot(from, to, changes);
    });
}

void NoxPlugIn::setBlend(float x, float y) {
    if (values_ == nullptr)
        return;
    QM::QMParameterChanges changes;
    values_->setBlend(x, y, &changes);
    tellChanges(changes);
}

float NoxPlugIn::blendValue(std::int32_t axis) const {
    constexpr float middle = 0.5f;
    return values_ != nullptr ? values_->blendCoordinate(axis != 0) : middle;
}

void NoxPlugIn::beginBlendGesture() {
    if (values_ != nullptr)
        values_->beginBlendGesture();
}

void NoxPlugIn::endBlendGesture() {
    if (values_ != nullptr)
        values_->endBlendGesture();
}

void NoxPlugIn::undo() {
    if (values_ != nullptr)
        values_->undoManager().undo();
}

void NoxPlugIn::redo() {
    if (values_ != nullptr)
        values_->undoManager().redo();
}

bool NoxPlugIn::canUndo() const {
    return values_ != nullptr && values_->undoManager().canUndo();
}

bool NoxPlugIn::canRedo() const {
    return values_ != nullptr && values_->undoManager().canRedo();
}

void NoxPlugIn::clearUndo() {
    if (values_ != nullptr)
        values_->undoManager().clearUndo();
}

void NoxPlugIn::clearRedo() {
    if (values_ != nullptr)
        values_->undoManager().clearRedo();
}

void NoxPlugIn::clearUndoAndRedo() {
    if (values_ != nullptr)
        values_->undoManager().clear();
}

std::string NoxPlugIn::undoMenuText() const {
    if (values_ == nullptr)
        return {};
    return canUndo() ? "Undo" + values_->undoManager().undoDescription() : "Nothing to Undo";
}

std::string NoxPlugIn::redoMenuText() const {
    if (values_ == nullptr)
        return {};
    return canRedo() ? "Redo" + values_->undoManager().redoDescription() : "Nothing to Redo";
}

void NoxPlugIn::replayParameterValue(std::int32_t index, double value) {
    setParameterValue(index, value);
}

void NoxPlugIn::replayRecord(const QMGenericPreset& record) {
    QM::QMParameterChanges changes;
    if (values_->applyRecord(record, &changes))
        finishApplication(changes);
}

void NoxPlugIn::replayBlendAmount(float x) {
    setBlend(x, blendValue(1));
}
