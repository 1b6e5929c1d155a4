// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/undo/QMSetPluginPresetCommand.h"

#include "plugin-model/IQMParameterValues.h"
#include "presets/record/QMGenericPreset.h"

namespace QM {

QMSetPluginPresetCommand::QMSetPluginPresetCommand(IQMParameterValues& values,
                                                   QMGenericPreset stateBefore,
                                                   std::int32_t activeSnapshotBefore,
                                                   std::uint64_t presetIdBefore)
    : ZulCommand(&values)
    , record(std::make_unique<const QMGenericPreset>(std::move(stateBefore)))
    , activeSnapshot(activeSnapshotBefore)
    , presetId(presetIdBefore) {}

QMSetPluginPresetCommand::~QMSetPluginPresetCommand() = default;

void QMSetPluginPresetCommand::execute(ZulUndoManager&) {
    target()->replayPreset(*record, activeSnapshot, presetId);
}

void QMSetPluginPresetCommand::print() const {
    std::fprintf(stderr, "%32s\n", description().c_str());
}

} // namespace QM
