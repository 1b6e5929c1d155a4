// SPDX-License-Identifier: GPL-3.0-or-later
// The identifiers by which presets are found again when folders are scanned, sorted and renamed.
#pragma once

#include "presets/record/QMGenericPreset.h"

namespace PresetIdentity {

/// Set in every identifier that is assigned: see SettingLocator.
constexpr std::uint64_t assignedBit = 0x8000000000000000u;
/// Current preset of an instance that was set to its factory default.
constexpr std::uint64_t factoryDefault = 0x8000000000000000u;
/// Current preset of an instance whose preset was deleted.
constexpr std::uint64_t deletedPreset = 0x8000000000000001u;

/// A new identifier: microseconds since 1970 with the assigned bit. No two calls of one process
/// answer the same, however coarse the clock. [any thread]
[[nodiscard]] std::uint64_t fresh();

/// The identifier of a preset whose file cannot be written: made of its values and its name, so
/// that it is the same in every run. [any thread]
[[nodiscard]] std::uint64_t ofContent(const QMGenericPreset& preset);

} // namespace PresetIdentity
