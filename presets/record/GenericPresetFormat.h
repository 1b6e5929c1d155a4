// SPDX-License-Identifier: GPL-3.0-or-later
// The byte form of a settings record, in preset files and in the state that hosts keep. All numbers
// are little-endian:
//
//   magic 'qmbp', version 2, values tag, maker, product, variant     u32 each
//   length of the name, the name                                     u32, bytes
//   count of values, then identifier and value of each               u32, (u32, f64)...
//   extension document as MessagePack                                L bytes
//   type of the extension 'msgp', its length L                       u32 each
//   unique identifier                                                u64
//
// The last two rows are found from the end of the stream, not by walking there. A file is updated
// in place and never cut: when a record becomes shorter, the old end stays behind the new one, and
// the old extension and identifier are what is read. Files in the field rely on it.
#pragma once

#include "presets/record/QMGenericPreset.h"
#include "presets/record/QMGenericPresetStream.h"

#include <optional>

namespace GenericPresetFormat {

constexpr FourCharCode magic = fourCharCode("qmbp");
constexpr std::uint32_t writtenVersion = 2;
constexpr std::uint32_t firstVersionWithUniqueId = 1;
constexpr std::uint32_t firstVersionWithExtension = 2;
constexpr FourCharCode messagePackExtension = fourCharCode("msgp");
constexpr FourCharCode jsonExtension = fourCharCode("json");
/// Bytes of one identifier and value.
constexpr std::int32_t valueEntrySize = 12;

} // namespace GenericPresetFormat

/// What becomes of a record whose extension cannot be decoded.
enum class UndecodableExtension {
    refuse, ///< there is no record: a host's project came back damaged
    /// The extension reads as null. A preset that was updated in place by a shorter record may have
    /// its new end over the beginning of its old extension; the sound in it must not be lost.
    drop,
};

/// Writes a record, version 2 with a MessagePack extension, to an open stream; a stream that is not
/// open is left alone. False when something could not be written. [any thread]
bool writeGenericPreset(const QMGenericPreset& preset, QMGenericPresetStream& stream);

/// A record without its values, and how many of them follow at the stream's position.
struct GenericPresetHeader {
    QMGenericPreset preset;
    std::uint32_t valueCount = 0;
};

/// Reads everything but the values. Nothing when the stream does not begin with the magic, is too
/// short for what it announces, or has an extension that cannot be decoded (as asked); an extension
/// of another type than MessagePack and JSON reads as null. [any thread]
[[nodiscard]] std::optional<GenericPresetHeader>
readGenericPresetHeader(QMGenericPresetStream& stream,
                        UndecodableExtension undecodable = UndecodableExtension::refuse);

/// Reads as many values as the header counts, or as the stream still holds when these are fewer. A
/// repeated identifier replaces the earlier value. [any thread]
[[nodiscard]] QMGenericPreset readGenericPresetValues(QMGenericPresetStream& stream,
                                                      GenericPresetHeader header);

/// Header and values. [any thread]
[[nodiscard]] std::optional<QMGenericPreset>
readGenericPreset(QMGenericPresetStream& stream,
                  UndecodableExtension undecodable = UndecodableExtension::refuse);
