// SPDX-License-Identifier: GPL-3.0-or-later
// The envelopes around settings records as bytes, whole or deliberately wrong, put together from
// their layouts alone.
#pragma once

#include "presets/record/tests/support/RecordEncoder.h"

/// Envelope of a VST3 host.
struct Vst3Fixture {
    std::int32_t version = 0;
    Bytes record;
    std::optional<std::uint32_t> claimedLength = std::nullopt;
};

[[nodiscard]] Bytes encodeVst3(const Vst3Fixture& envelope);

/// Chunk of a VST 2 host.
struct Vst2Fixture {
    Bytes reserved = Bytes(64);
    std::uint32_t marker = 0x656E6469;
    std::uint32_t version = 1;
    std::string productWord = "BRLT";
    std::string uniqueId = "qmBR";
    std::uint32_t recordBlockFlag = 1;
    std::vector<std::pair<std::string, double>> entries;
    std::string blockTag = "qmps";
    Bytes record;
    std::size_t surplus = 20; ///< bytes of zeros at the end
    std::optional<std::uint32_t> claimedEntryCount = std::nullopt;
    std::optional<std::uint32_t> claimedRecordLength = std::nullopt;
};

/// As a little-endian machine writes it.
[[nodiscard]] Bytes encodeVst2(const Vst2Fixture& chunk);
/// As a big-endian machine writes it; the record's own bytes are the same.
[[nodiscard]] Bytes encodeVst2BigEndian(const Vst2Fixture& chunk);

/// One program of a bank: of values, or opaque when it has a chunk.
struct ProgramFixture {
    std::string magic = "CcnK";
    std::string kind = "FxCk";
    std::string name;
    std::vector<float> values;
    Bytes chunk;
    std::optional<std::uint32_t> claimedCount = std::nullopt; ///< of values, or bytes of the chunk
};

/// Bank of a VST 2 host.
struct BankFixture {
    std::optional<std::uint32_t> wrapperBypass = std::nullopt; ///< given: inside a wrapper
    std::string magic = "CcnK";
    std::string kind = "FBCh";
    std::uint32_t version = 2;
    std::string plugIn = "qmBR";
    std::uint32_t plugInVersion = 0x40002;
    std::uint32_t currentProgram = 0;
    Bytes chunk;                          ///< of an opaque bank
    std::vector<ProgramFixture> programs; ///< of a bank of programs
    std::uint32_t programCount = 1;
    std::optional<std::uint32_t> claimedChunkSize = std::nullopt;
};

[[nodiscard]] Bytes encodeBank(const BankFixture& bank);
