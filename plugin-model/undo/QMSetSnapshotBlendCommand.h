// SPDX-License-Identifier: GPL-3.0-or-later
// Puts the blend between the snapshots back to the position it had before a gesture.
#pragma once

#include "plugin-model/undo/ZulCommand.h"

namespace QM {

class QMSetSnapshotBlendCommand : public ZulCommand {
public:
    QMSetSnapshotBlendCommand(IQMParameterValues& values, float blendXBefore);

    void execute(ZulUndoManager& manager) override;

    [[nodiscard]] std::string description() const override { return "Set Snapshot Blend Amount"; }

    void print() const override;

private:
    float blendX;
};

} // namespace QM
