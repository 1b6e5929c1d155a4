// SPDX-License-Identifier: GPL-3.0-or-later
// Who replays recorded changes on behalf of a values object. The plug-in instance is it, so that a
// replayed change reaches the environment's listeners like any other.
#pragma once

#include <cstdint>

struct QMGenericPreset;

namespace QM {

class IQMParameterValuesUndoHandler {
public:
    virtual ~IQMParameterValuesUndoHandler() = default;

    /// Sets a parameter to a plain value recorded earlier. [message thread]
    virtual void replayParameterValue(std::int32_t index, double value) = 0;
    /// Applies a record made earlier. [message thread]
    virtual void replayRecord(const QMGenericPreset& record) = 0;
    /// Moves the blend of the snapshots to a position recorded earlier. [message thread]
    virtual void replayBlendAmount(float x) = 0;
};

} // namespace QM
