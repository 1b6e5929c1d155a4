// SPDX-License-Identifier: GPL-3.0-or-later
// The data of the snapshots: what is saved and restored of them. What may be done with it is the
// values object's business.
#pragma once

#include "plugin-model/snapshots/IQMParameterSnapshots.h"

#include <span>
#include <vector>

namespace QM {

class QMSnapshotTable {
public:
    struct Snapshot {
        std::vector<double> values; ///< plain, one for each parameter
        std::uint64_t presetId = 0; ///< of the preset the values came from
        bool populated = false;
    };

    [[nodiscard]] std::int32_t count() const { return static_cast<std::int32_t>(snapshots.size()); }

    /// Negative counts as 0.
    void setCount(std::int32_t count, std::size_t parameterCount);

    [[nodiscard]] bool isIndex(std::int32_t snapshot) const {
        return snapshot >= 0 && snapshot < count();
    }

    [[nodiscard]] bool isPopulated(std::int32_t snapshot) const;

    [[nodiscard]] Snapshot& at(std::int32_t snapshot) {
        return snapshots[static_cast<std::size_t>(snapshot)];
    }

    [[nodiscard]] const Snapshot& at(std::int32_t snapshot) const {
        return snapshots[static_cast<std::size_t>(snapshot)];
    }

    /// The snapshot that changes go into as well; null when none is in force.
    [[nodiscard]] Snapshot* activeOne() { return isIndex(active) ? &at(active) : nullptr; }

    /// Gives every snapshot a value for each parameter: what one lacks comes from the current
    /// values, what it has too many is dropped. An active snapshot that does not exist becomes
    /// none.
    void conform(std::span<const double> currentValues);

    std::int32_t active = noSnapshot;
    float blendX = 0.5f;
    float blendY = 0.5f;

private:
    std::vector<Snapshot> snapshots;
};

} // namespace QM
