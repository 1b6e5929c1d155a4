// SPDX-License-Identifier: GPL-3.0-or-later
// A settings record as the VST3 interface's hosts keep it. All numbers are little-endian:
//
//   version, written as 0     int32
//   length of the record N    int32
//   the record                N bytes
#pragma once

#include "presets/record/QMGenericPreset.h"

#include <optional>

class IStateByteStream;

/// False when the stream did not take all of it, or memory ran out. [message thread]
bool writeVst3Envelope(IStateByteStream& stream, const QMGenericPreset& record);

/// Reads on from the stream's position. Nothing when the stream ends too early, the version is
/// negative (any other is taken) or the record cannot be read. Throws std::length_error for a
/// negative length. [message thread]
[[nodiscard]] std::optional<QMGenericPreset> readVst3Envelope(IStateByteStream& stream);
