// SPDX-License-Identifier: GPL-3.0-or-later
// The undo history of a values object. Gestures record the value before them, applied records and
// recalled snapshots the settings before them; what a host automates is not recorded.
// [message thread], or the host's thread while it restores a project
#pragma once

#include "plugin-model/undo/IQMParameterValuesUndoHandler.h"

#include <cstdint>

class ZulUndoManager;
struct QMGenericPreset;

namespace QM {

class IQMParameterUndo {
public:
    virtual ~IQMParameterUndo() = default;

    [[nodiscard]] virtual ZulUndoManager& undoManager() = 0;
    [[nodiscard]] virtual const ZulUndoManager& undoManager() const = 0;

    /// Who makes the replayed changes; not owned. Without a handler replays do nothing.
    virtual void setUndoHandler(IQMParameterValuesUndoHandler* handler) = 0;

    // Replays, called by the recorded commands. Each records the step in the other direction.

    virtual void replayParameterValue(std::int32_t index, double value) = 0;
    virtual void replayPreset(const QMGenericPreset& record, std::int32_t activeSnapshot,
                              std::uint64_t presetId) = 0;
    virtual void replayBlendAmount(float x) = 0;
};

} // namespace QM
