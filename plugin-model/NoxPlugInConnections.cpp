// SPDX-License-Identifier: GPL-3.0-or-later
// An instance's inputs, outputs and slots.
#include "plugin-model/NoxPlugIn.h"

#include "plugin-model/INoxPlugInProcessingHost.h"
#include "plugin-model/INoxPlugInType.h"
#include "services/Log.h"

namespace {

template <typename Connections>
auto* connectionAt(Connections& connections, std::int32_t index) {
    const bool known = index >= 0 && static_cast<std::size_t>(index) < connections.size();
    return known ? &connections[static_cast<std::size_t>(index)] : nullptr;
}

} // namespace

NoxResult NoxPlugIn::setIOConfiguration(std::int32_t inputCountWanted,
                                        std::int32_t outputCountWanted) {
    if (!type_->supportsIOConfiguration(inputCountWanted, outputCountWanted))
        return NoxResultCode::unsupportedIOConfiguration;
    const NoxResult result = ioConfigurationHook(inputCountWanted, outputCountWanted);
    if (result == NoxResultCode::noError) {
        inputs.resize(static_cast<std::size_t>(inputCountWanted));
        outputs.resize(static_cast<std::size_t>(outputCountWanted));
    }
    return result;
}

std::int32_t NoxPlugIn::inputCount() const {
    return static_cast<std::int32_t>(inputs.size());
}

std::int32_t NoxPlugIn::outputCount() const {
    return static_cast<std::int32_t>(outputs.size());
}

void NoxPlugIn::connectInput(std::int32_t input, std::int32_t slot) {
    QM::log(QM::LogLevel::trace, "%s(%p) Connecting Input %d to Slot %d:\n", displayName_.c_str(),
            static_cast<void*>(this), input, slot);
    Connection* connection = connectionAt(inputs, input);
    if (connection == nullptr)
        return;
    if (host_ != nullptr)
        connection->differs = slot != host_->defaultInputSlot(input);
    connection->slot = slot;
    if (ioConnectionController_ != nullptr)
        ioConnectionController_->inputConnected(input, slot);
}

void NoxPlugIn::connectOutput(std::int32_t output, std::int32_t slot) {
    QM::log(QM::LogLevel::trace, "%s(%p) Connecting Output %d to Slot %d:\n", displayName_.c_str(),
            static_cast<void*>(this), output, slot);
    Connection* connection = connectionAt(outputs, output);
    if (connection == nullptr)
        return;
    if (host_ != nullptr)
        connection->differs = slot != host_->defaultOutputSlot(output);
    connection->slot = slot;
    // A host knows its own default outputs; only another slot has to be told.
    if (connection->differs && ioConnectionController_ != nullptr)
        ioConnectionController_->outputConnected(output, slot);
}

std::int32_t NoxPlugIn::inputSlot(std::int32_t input) const {
    const Connection* connection = connectionAt(inputs, input);
    return connection != nullptr ? connection->slot : -1;
}

std::int32_t NoxPlugIn::outputSlot(std::int32_t output) const {
    const Connection* connection = connectionAt(outputs, output);
    return connection != nullptr ? connection->slot : -1;
}

bool NoxPlugIn::inputSlotDiffers(std::int32_t input) const {
    const Connection* connection = connectionAt(inputs, input);
    return connection != nullptr && connection->differs;
}

bool NoxPlugIn::outputSlotDiffers(std::int32_t output) const {
    const Connection* connection = connectionAt(outputs, output);
    return connection != nullptr && connection->differs;
}

const NoxSlotRecord* NoxPlugIn::slotRecord() const {
    return slot_.index >= 0 ? &slot_ : nullptr;
}

bool NoxPlugIn::isOwnSlot(std::int32_t slot) const {
    const NoxSlotRecord* record = slotRecord();
    return record != nullptr && record->index == slot;
}
