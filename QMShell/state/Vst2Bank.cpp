// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/state/Vst2Bank.h"

#include "QMShell/state/BigEndianReader.h"

#include <algorithm>

namespace {

constexpr FourCharCode wrapperMagic = fourCharCode("VstW");
constexpr FourCharCode chunkMagic = fourCharCode("CcnK");
constexpr FourCharCode bankOfPrograms = fourCharCode("FxBk");
constexpr FourCharCode opaqueBank = fourCharCode("FBCh");
constexpr FourCharCode programOfValues = fourCharCode("FxCk");
constexpr FourCharCode opaqueProgram = fourCharCode("FPCh");

/// The first version that tells the current program.
constexpr std::int32_t versionWithCurrentProgram = 2;
/// Bytes behind the current program.
constexpr std::int64_t reservedSize = 124;
constexpr std::int64_t programNameSize = 28;

/// The fields that banks and programs begin with, from their kind on.
struct Preamble {
    FourCharCode kind = 0;
    std::int32_t version = 0;
    FourCharCode plugIn = 0;
    std::int32_t plugInVersion = 0;
    std::int32_t count = 0; ///< of programs, or of parameters
};

/// Behind 'CcnK'.
Preamble readPreamble(BigEndianReader& reader) {
    reader.word(); // the size
    Preamble preamble;
    preamble.kind = reader.word();
    preamble.version = reader.number();
    preamble.plugIn = reader.word();
    preamble.plugInVersion = reader.number();
    preamble.count = reader.number();
    return preamble;
}

std::span<const std::byte> readChunk(BigEndianReader& reader) {
    const std::int32_t size = reader.number();
    return reader.bytes(size);
}

std::string readName(BigEndianReader& reader) {
    std::string name;
    for (const std::byte byte : reader.bytes(programNameSize)) {
        if (byte == std::byte{0})
            break;
        name += static_cast<char>(byte);
    }
    return name;
}

std::optional<std::vector<float>> readValues(BigEndianReader& reader, std::int32_t count) {
    if (count < 0 || static_cast<std::size_t>(count) > reader.remaining() / sizeof(float))
        return std::nullopt;
    std::vector<float> values(static_cast<std::size_t>(count));
    std::generate(values.begin(), values.end(), [&] { return reader.real(); });
    return values;
}

std::optional<Vst2Program> readProgram(BigEndianReader& reader) {
    if (reader.word() != chunkMagic)
        return std::nullopt;
    const Preamble preamble = readPreamble(reader);
    Vst2Program program;
    program.plugIn = preamble.plugIn;
    program.plugInVersion = preamble.plugInVersion;
    program.name = readName(reader);
    if (preamble.kind == opaqueProgram) {
        program.chunk = readChunk(reader);
    } else if (preamble.kind == programOfValues) {
        std::optional<std::vector<float>> values = readValues(reader, preamble.count);
        if (!values)
            return std::nullopt;
        program.values = std::move(*values);
    } else {
        return std::nullopt;
    }
    if (reader.failed())
        return std::nullopt;
    return program;
}

/// Nothing is set aside for the count: programs that are not there end the reading.
bool readPrograms(BigEndianReader& reader, Vst2Bank& bank) {
    for (std::int32_t i = 0; i < bank.programCount; ++i) {
        std::optional<Vst2Program> program = readProgram(reader);
        if (!program)
            return false;
        bank.programs.push_back(std::move(*program));
    }
    return true;
}

} // namespace

bool mayBeginVst2Bank(std::span<const std::byte> bytes) {
    const FourCharCode magic = BigEndianReader(bytes).word();
    return magic == wrapperMagic || magic == chunkMagic;
}

std::optional<Vst2Bank> parseVst2Bank(std::span<const std::byte> bytes,
                                      std::optional<FourCharCode> expectedPlugIn) {
    BigEndianReader reader(bytes);
    Vst2Bank bank;
    FourCharCode magic = reader.word();
    if (magic == wrapperMagic) {
        reader.word(); // the size
        reader.word(); // the wrapper's version
        bank.bypassed = reader.word() != 0;
        magic = reader.word();
    }
    if (magic != chunkMagic)
        return std::nullopt;

    const Preamble preamble = readPreamble(reader);
    bank.plugIn = preamble.plugIn;
    bank.plugInVersion = preamble.plugInVersion;
    bank.programCount = preamble.count;
    const std::int32_t currentProgram = reader.number();
    if (preamble.version >= versionWithCurrentProgram)
        bank.currentProgram = currentProgram;
    reader.bytes(reservedSize);
    if (reader.failed() || bank.programCount <= 0 ||
        bank.plugIn != expectedPlugIn.value_or(bank.plugIn))
        return std::nullopt;

    if (preamble.kind == opaqueBank)
        bank.chunk = readChunk(reader);
    else if (preamble.kind != bankOfPrograms || !readPrograms(reader, bank))
        return std::nullopt;
    if (reader.failed())
        return std::nullopt;
    return bank;
}
