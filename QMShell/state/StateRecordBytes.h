// SPDX-License-Identifier: GPL-3.0-or-later
// Between an instance and the bytes of its settings record, which every envelope holds.
#pragma once

#include "presets/record/MemoryStream.h"
#include "presets/record/QMGenericPreset.h"

#include <optional>
#include <span>

class INoxPlugInState;

/// Appends the instance's complete state. False when memory runs out; what the stream then holds is
/// no record. [message thread]
[[nodiscard]] bool writeCompleteState(const INoxPlugInState& instance, MemoryStream& stream);

/// Bytes of the instance's complete state as a record; 0 when memory runs out. [message thread]
[[nodiscard]] std::size_t completeStateSize(const INoxPlugInState& instance);

/// Nothing for bytes that are no record. [any thread]
[[nodiscard]] std::optional<QMGenericPreset> readRecordBytes(std::span<const std::byte> bytes);
