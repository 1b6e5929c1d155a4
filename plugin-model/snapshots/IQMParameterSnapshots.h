// SPDX-License-Identifier: GPL-3.0-or-later
// The snapshots of a values object: complete settings kept beside the current ones, of which one
// may be in force, or a mixture of the first two. While a snapshot is in force, every change goes
// into it as well. Snapshot 0 is A, 1 is B.
//
// Indices out of range make every operation do nothing. [message thread], or the host's thread
// while it restores a project
#pragma once

#include "plugin-model/QMParameterChanges.h"

#include <cstdint>
#include <string>

struct QMGenericPreset;

namespace QM {

/// Answers of activeSnapshot that are no index.
constexpr std::int32_t noSnapshot = -1;
constexpr std::int32_t blendOfSnapshots = -2; ///< a mixture of A and B is in force

/// What selecting a snapshot does to it.
enum class SnapshotMode : std::int32_t {
    activate = 0,      ///< only make it the active one
    recallOrStore = 1, ///< apply it, or fill it with the current values when it is empty
    store = 2,         ///< fill it with the current values
};

class IQMParameterSnapshots {
public:
    virtual ~IQMParameterSnapshots() = default;

    /// New snapshots are empty and hold 0 for every parameter. When the active one is lost, none is
    /// active.
    virtual void setSnapshotCount(std::int32_t count) = 0;
    [[nodiscard]] virtual std::int32_t snapshotCount() const = 0;
    /// True for noSnapshot; for blendOfSnapshots when A and B both are.
    [[nodiscard]] virtual bool isSnapshotPopulated(std::int32_t snapshot) const = 0;
    /// An index, noSnapshot or blendOfSnapshots.
    [[nodiscard]] virtual std::int32_t activeSnapshot() const = 0;
    /// "A", "B", …; "Unknown" out of range.
    [[nodiscard]] virtual std::string snapshotName(std::int32_t snapshot) const = 0;
    /// The plain value of a parameter in a snapshot; 0.0 out of range.
    [[nodiscard]] virtual double snapshotValue(std::int32_t snapshot, std::int32_t index) const = 0;
    /// The identifier of the preset a snapshot's values came from; 0 out of range.
    [[nodiscard]] virtual std::uint64_t snapshotPresetId(std::int32_t snapshot) const = 0;

    /// Selecting the active snapshot does nothing. A recall is undoable, a store is not. Selecting
    /// the blend applies it at its position, also when it is in force already.
    virtual void selectSnapshot(std::int32_t snapshot, SnapshotMode mode,
                                QMParameterChanges* changes) = 0;
    /// Writes a record's values into a snapshot; applies them (undoably) when it is the active one.
    /// Parameters that applying records skips stay as they are, and so does whether the snapshot
    /// counts as populated.
    virtual void loadSnapshotFromPreset(std::int32_t snapshot, const QMGenericPreset& record,
                                        QMParameterChanges* changes) = 0;
    /// Neither source nor destination can be snapshot 0, and the source must be populated.
    virtual void copySnapshot(std::int32_t from, std::int32_t to, QMParameterChanges* changes) = 0;
    /// Whether two snapshots hold the same values.
    [[nodiscard]] virtual bool snapshotsAreEqual(std::int32_t first, std::int32_t second) const = 0;

    /// Puts the blend of A and B in force: each parameter that differs is mixed in the normalised
    /// domain, by x alone (0 is A, 1 is B; y is kept and carried). Does nothing unless both are
    /// populated, or for a position that is no finite number.
    virtual void setBlend(float x, float y, QMParameterChanges* changes) = 0;
    /// The second coordinate when asked for, else the first.
    [[nodiscard]] virtual float blendCoordinate(bool second) const = 0;
    /// Opens an undo group in which the first move of the blend is recorded.
    virtual void beginBlendGesture() = 0;
    virtual void endBlendGesture() = 0;
};

} // namespace QM
