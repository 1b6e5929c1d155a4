// SPDX-License-Identifier: GPL-3.0-or-later
// What a values object records for undo, and how a recorded step is replayed.
#include "plugin-model/QMParameterValues.h"
#include "plugin-model/undo/QMSetPluginParameterCommand.h"
#include "plugin-model/undo/QMSetPluginPresetCommand.h"
#include "plugin-model/undo/QMSetSnapshotBlendCommand.h"
#include "presets/record/QMGenericPreset.h"

namespace QM {
namespace {

/// Keeps what a replay does out of the history: its inverse is recorded as one command before.
class SuspendedRecording {
public:
    explicit SuspendedRecording(ZulUndoManager& suspendedManager)
        : manager(suspendedManager) {
        manager.suspend();
    }

    ~SuspendedRecording() { manager.resume(); }

    SuspendedRecording(const SuspendedRecording&) = delete;
    SuspendedRecording& operator=(const SuspendedRecording&) = delete;

private:
    ZulUndoManager& manager;
};

} // namespace

void QMParameterValues::beginUndoGesture(std::int32_t index) {
    beginBlendGesture();
    // While a blend is in force its position is what the user undoes, whatever knob he held.
    if (snapshots.active == blendOfSnapshots && !applyingBlend)
        recordBlendCommand();
    else
        recordParameterCommand(index);
}

void QMParameterValues::recordParameterCommand(std::int32_t index) {
    undoManager_.add(std::make_unique<QMSetPluginParameterCommand>(*this, index, getValue(index)));
}

void QMParameterValues::recordPresetCommand() {
    if (undoManager_.isSuspended())
        return;
    undoManager_.add(std::make_unique<QMSetPluginPresetCommand>(
        *this, makeRecord(StateExtent::parameters), snapshots.active, currentPreset));
}

void QMParameterValues::recordBlendCommand() {
    undoManager_.add(std::make_unique<QMSetSnapshotBlendCommand>(*this, snapshots.blendX));
}

void QMParameterValues::recordPendingBlendCommand() {
    if (!blendGesturePending)
        return;
    recordBlendCommand();
    blendGesturePending = false;
}

void QMParameterValues::replayParameterValue(std::int32_t index, double value) {
    if (undoHandler == nullptr)
        return;
    recordParameterCommand(index);
    undoHandler->replayParameterValue(index, value);
}

void QMParameterValues::replayPreset(const QMGenericPreset& record, std::int32_t activeSnapshot,
                                     std::uint64_t presetId) {
    if (undoHandler == nullptr)
        return;
    recordPresetCommand();
    const SuspendedRecording suspended(undoManager_);
    // The snapshot first: what is set goes into the active one as well, and the one that is left
    // must keep its sound. A blend that becomes active again is applied before the record, whose
    // values were changed after the blend.
    selectSnapshot(activeSnapshot, SnapshotMode::activate, nullptr);
    undoHandler->replayRecord(record);
    currentPreset = presetId;
}

void QMParameterValues::replayBlendAmount(float x) {
    if (undoHandler == nullptr)
        return;
    blendGesturePending = true;
    undoHandler->replayBlendAmount(x);
}

} // namespace QM
