// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/state/Vst3State.h"

#include "QMShell/state/Vst3Envelope.h"
#include "plugin-model/INoxPlugInState.h"
#include "services/Log.h"

bool writeVst3State(IStateByteStream& stream, const INoxPlugInState& instance) {
    return writeVst3Envelope(stream, instance.getStateRecord(StateExtent::complete));
}

Vst3StateReading readVst3State(IStateByteStream& stream, INoxPlugInState& instance,
                               const Vst2BankImport& import) {
    if (importVst2Bank(stream, import))
        return Vst3StateReading::bankImported;
    const std::optional<QMGenericPreset> record = readVst3Envelope(stream);
    if (!record)
        return Vst3StateReading::refused;
    QM::log(QM::LogLevel::error, "==================================\n");
    QM::log(QM::LogLevel::error, "Setting from Generic Preset in VST3 stream\n");
    return instance.applyStateRecord(*record) ? Vst3StateReading::recordApplied
                                              : Vst3StateReading::recordDeclined;
}
