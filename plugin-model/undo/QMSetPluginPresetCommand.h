// SPDX-License-Identifier: GPL-3.0-or-later
// Puts all parameters, the active snapshot and the current preset back to what they were before a
// record was applied or a snapshot recalled.
#pragma once

#include "plugin-model/undo/ZulCommand.h"

#include <cstdint>
#include <memory>

struct QMGenericPreset;

namespace QM {

class QMSetPluginPresetCommand : public ZulCommand {
public:
    /// The record is without snapshots: those change by operations of their own.
    QMSetPluginPresetCommand(IQMParameterValues& values, QMGenericPreset stateBefore,
                             std::int32_t activeSnapshotBefore, std::uint64_t presetIdBefore);
    ~QMSetPluginPresetCommand() override;

    void execute(ZulUndoManager& manager) override;

    [[nodiscard]] std::string description() const override { return "Set Preset"; }

    void print() const override;

private:
    std::unique_ptr<const QMGenericPreset> record;
    std::int32_t activeSnapshot;
    std::uint64_t presetId;
};

} // namespace QM
