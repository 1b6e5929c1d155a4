// SPDX-License-Identifier: GPL-3.0-or-later
// A values object's blend between snapshots A and B.
#include "plugin-model/QMParameterValues.h"

#include <algorithm>
#include <cmath>

namespace QM {

void QMParameterValues::selectBlend(QMParameterChanges* changes) {
    if (!snapshots.isPopulated(blendOfSnapshots))
        return;
    recordPendingBlendCommand();
    // Moved away first, so that setting the same position again is a change and applies the blend.
    const float x = snapshots.blendX;
    snapshots.blendX += 1.0f;
    setBlend(x, snapshots.blendY, changes);
}

void QMParameterValues::setBlend(float x, float y, QMParameterChanges* changes) {
    const bool moves =
        snapshots.blendX != x || snapshots.blendY != y || snapshots.active != blendOfSnapshots;
    if (!moves || !snapshots.isPopulated(blendOfSnapshots) || !std::isfinite(x) ||
        !std::isfinite(y))
        return;
    recordPendingBlendCommand();
    snapshots.active = blendOfSnapshots;
    snapshots.blendX = x;
    snapshots.blendY = y;
    const std::vector<double> blended = blendedValues();
    applyingBlend = true;
    try {
        applySnapshotValues(blended, changes);
    } catch (...) {
        applyingBlend = false;
        throw;
    }
    applyingBlend = false;
}

std::vector<double> QMParameterValues::blendedValues() const {
    std::vector<double> blended = values;
    const std::vector<double>& a = snapshots.at(0).values;
    const std::vector<double>& b = snapshots.at(1).values;
    const std::size_t count = std::min({a.size(), b.size(), values.size()});
    for (std::size_t k = 0; k < count; ++k) {
        const auto index = static_cast<std::int32_t>(k);
        if (set.isBlendable(index) && index != blendParameter)
            blended[k] = blendedValue(index, a[k], b[k]);
    }
    return blended;
}

double QMParameterValues::blendedValue(std::int32_t index, double a, double b) const {
    if (a == b)
        return a;
    const double normalisedA = set.plainToNormalised(index, a);
    const double normalisedB = set.plainToNormalised(index, b);
    const auto x = static_cast<double>(snapshots.blendX);
    return set.normalisedToPlain(index, normalisedA + (normalisedB - normalisedA) * x);
}

void QMParameterValues::beginBlendGesture() {
    undoManager_.beginGroup();
    blendGesturePending = true;
}

void QMParameterValues::endBlendGesture() {
    undoManager_.endGroup();
}

} // namespace QM
