// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/snapshots/QMSnapshotTable.h"

#include <algorithm>

namespace QM {

void QMSnapshotTable::setCount(std::int32_t count, std::size_t parameterCount) {
    snapshots.resize(static_cast<std::size_t>(std::max(count, 0)));
    for (Snapshot& snapshot : snapshots)
        snapshot.values.resize(parameterCount);
    if (active >= this->count())
        active = noSnapshot;
}

bool QMSnapshotTable::isPopulated(std::int32_t snapshot) const {
    if (snapshot == noSnapshot)
        return true;
    if (snapshot == blendOfSnapshots)
        return isPopulated(0) && isPopulated(1);
    return isIndex(snapshot) && at(snapshot).populated;
}

void QMSnapshotTable::conform(std::span<const double> currentValues) {
    for (Snapshot& snapshot : snapshots) {
        const std::size_t known = std::min(snapshot.values.size(), currentValues.size());
        snapshot.values.resize(currentValues.size());
        std::copy(currentValues.begin() + static_cast<std::ptrdiff_t>(known), currentValues.end(),
                  snapshot.values.begin() + static_cast<std::ptrdiff_t>(known));
    }
    if (!isIndex(active) && active != blendOfSnapshots)
        active = noSnapshot;
}

} // namespace QM
