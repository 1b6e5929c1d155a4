// SPDX-License-Identifier: GPL-3.0-or-later
// An instance's analysis values and meter records.
#include "plugin-model/NoxPlugIn.h"

#include "plugin-model/INoxPlugInProcessingHost.h"
#include "plugin-model/INoxPlugInType.h"

#include <algorithm>

void NoxPlugIn::fetchAnalysis(Packet& packet) {
    if (ioConnectionController_ != nullptr)
        ioConnectionController_->transfer(packet, 0, nullptr);
    else if (host_ != nullptr)
        host_->fetchInputCopy(*this, remoteID, 0, packet.wordCount(), packet.data);
}

void NoxPlugIn::updateMeters() {
    resizeMeterRecords();
    const std::uint32_t words = analysisWordCount();
    if (meterRecords_.empty() || words == 0)
        return;
    Packet packet(Packet::messageKind, std::uint64_t{words} * sizeof(float));
    fetchAnalysis(packet);
    receiveAnalysis(packet);
}

std::int32_t NoxPlugIn::meterRecordCount() const {
    return type_->meterCount();
}

void NoxPlugIn::resizeMeterRecords() {
    const auto wanted = static_cast<std::size_t>(std::max(0, meterRecordCount()));
    if (wanted == meterRecords_.size())
        return;
    meterRecords_.assign(wanted, NoxMeterRecord{});
    for (std::size_t i = 0; i < wanted; ++i)
        meterRecords_[i].index = static_cast<std::int32_t>(i);
}

const NoxMeterRecord* NoxPlugIn::meterRecord(std::int32_t index) {
    resizeMeterRecords();
    if (index < 0 || static_cast<std::size_t>(index) >= meterRecords_.size())
        return nullptr;
    return &meterRecords_[static_cast<std::size_t>(index)];
}

std::int32_t NoxPlugIn::copyMeterRecords(NoxMeterRecord* destination, std::int32_t capacity) {
    const auto held = static_cast<std::int32_t>(meterRecords_.size());
    const std::int32_t count = std::clamp(capacity, 0, held);
    std::copy_n(meterRecords_.begin(), count, destination);
    return count;
}
