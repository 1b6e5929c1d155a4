// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/support/FuzzedInstance.h"

#include "QMShell/state/StateRecordBytes.h"
#include "brolt/model/QMBrolt_PlugInTypeGroup.h"
#include "brolt/model/QMBrolt_ProductCodes.h"
#include "fuzz/support/Require.h"
#include "presets/record/tests/support/ReferenceRecordReader.h"
#include "services/Log.h"

namespace {

INoxPlugInType& stereoType() {
    static QMBrolt_PlugInTypeGroup group(nullptr);
    return *group.typeOfIndex(QMBrolt::stereoTypeIndex);
}

} // namespace

FuzzedInstance::FuzzedInstance()
    : plugIn(stereoType(), nullptr, nullptr) {
    QM::processLog().setMaximumLevel(0);
    plugIn.setNormalisedValue(plugIn.indexOfID(fourCharCode("afre")), 0.25);
    plugIn.selectSnapshot(0, QM::SnapshotMode::store);
    plugIn.selectSnapshot(1, QM::SnapshotMode::store);
    plugIn.setNormalisedValue(plugIn.indexOfID(fourCharCode("gain")), 0.75);
    plugIn.setCurrentPresetId(0x8000000000001234u);
    plugIn.parameterValues()->setExtensionDocument({{"text", "kept"}});
}

std::string FuzzedInstance::state() const {
    return describeRecord(plugIn.getStateRecord(StateExtent::complete));
}

std::string FuzzedInstance::restorableState() const {
    QMGenericPreset record = plugIn.getStateRecord(StateExtent::complete);
    record.values.erase(fourCharCode("mbyp"));
    const auto active = record.extension.at("mActiveSnapshot").get<std::int32_t>();
    if (active >= 0)
        record.extension.at("mSnapshotsUIDs").at(static_cast<std::size_t>(active)) =
            record.uniqueId;
    return describeRecord(record);
}

void FuzzedInstance::requireOrder() const {
    // Most inputs are refused and leave the state of the input before.
    static std::string lastInOrder;
    const std::string current = state();
    if (current == lastInOrder)
        return;
    for (std::int32_t i = 0; i < plugIn.parameterCount(); ++i) {
        const double value = plugIn.parameterValue(i);
        require(value >= plugIn.minimum(i) && value <= plugIn.maximum(i), "a value in its range");
    }
    MemoryStream stream(1024);
    require(writeCompleteState(plugIn, stream), "the state can be saved");
    const auto saved = readRecordBytes(stream.bytes());
    requireEqual(describeRecord(saved), current, "the saved state read back");
    FuzzedInstance other;
    require(other.plugIn.applyStateRecord(*saved), "the saved state restored");
    requireEqual(other.restorableState(), restorableState(), "the restored state");
    lastInOrder = current;
}

Outcome runReader(FuzzedInstance& instance, const std::function<void()>& reader) {
    const std::string before = instance.state();
    try {
        reader();
    } catch (const nlohmann::json::exception&) {
        requireEqual(instance.state(), before, "the state after an exception");
        return Outcome::threw;
    }
    return Outcome::done;
}
