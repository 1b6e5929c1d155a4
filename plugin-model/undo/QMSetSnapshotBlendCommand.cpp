// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/undo/QMSetSnapshotBlendCommand.h"

#include "plugin-model/IQMParameterValues.h"

namespace QM {

QMSetSnapshotBlendCommand::QMSetSnapshotBlendCommand(IQMParameterValues& values, float blendXBefore)
    : ZulCommand(&values)
    , blendX(blendXBefore) {}

void QMSetSnapshotBlendCommand::execute(ZulUndoManager&) {
    target()->replayBlendAmount(blendX);
}

void QMSetSnapshotBlendCommand::print() const {
    std::fprintf(stderr, "%32s\t%8f\n", description().c_str(), static_cast<double>(blendX));
}

} // namespace QM
