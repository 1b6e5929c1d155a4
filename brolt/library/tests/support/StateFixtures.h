// SPDX-License-Identifier: GPL-3.0-or-later
// States that hosts may hand over, put together from their layouts alone.
#pragma once

#include "QMShell/state/tests/support/EnvelopeEncoder.h"

/// A record of the product with a value for a few parameters, none of them the default.
[[nodiscard]] inline RecordFixture savedRecord() {
    RecordFixture record;
    record.name = "saved";
    record.values = {{"afre", 123.5}, {"gain", -6.0}, {"osc2", 0.0}, {"wetd", 40.0}};
    return record;
}

/// As a project keeps it.
[[nodiscard]] inline Bytes savedState(const RecordFixture& record = savedRecord()) {
    return encodeVst3({0, encodeRecord(record)});
}

/// What a host hands over that puts this plug-in in the place of the VST 2 one: a bank with that
/// one's chunk.
[[nodiscard]] inline Bytes savedBank(const Vst2Fixture& chunk) {
    BankFixture bank;
    bank.plugIn = "QMbl";
    bank.chunk = encodeVst2(chunk);
    return encodeBank(bank);
}

/// A chunk whose entries and record say different things.
[[nodiscard]] inline Vst2Fixture savedChunk() {
    Vst2Fixture chunk;
    chunk.uniqueId = "QMbl";
    chunk.entries = {{"gain", 6.0}, {"osc1", 0.0}, {"afre", 220.0}};
    chunk.record = encodeRecord(savedRecord());
    return chunk;
}
