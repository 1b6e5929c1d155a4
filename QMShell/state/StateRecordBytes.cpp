// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/state/StateRecordBytes.h"

#include "plugin-model/INoxPlugInState.h"
#include "presets/record/GenericPresetFormat.h"

namespace {

/// First capacity of a stream that only measures, in bytes.
constexpr std::int32_t measuringCapacity = 128;

} // namespace

bool writeCompleteState(const INoxPlugInState& instance, MemoryStream& stream) {
    return writeGenericPreset(instance.getStateRecord(StateExtent::complete), stream);
}

std::size_t completeStateSize(const INoxPlugInState& instance) {
    MemoryStream stream(measuringCapacity);
    return writeCompleteState(instance, stream) ? stream.bytes().size() : 0;
}

std::optional<QMGenericPreset> readRecordBytes(std::span<const std::byte> bytes) {
    MemoryStream stream(bytes);
    if (!stream.isOpen())
        return std::nullopt;
    return readGenericPreset(stream);
}
