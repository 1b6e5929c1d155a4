// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/state/tests/support/EnvelopeEncoder.h"

namespace {

std::uint32_t sizeOf(const Bytes& bytes) {
    return static_cast<std::uint32_t>(bytes.size());
}

/// Numbers of a chunk in the order of the machine that writes it.
class ChunkBuilder {
public:
    explicit ChunkBuilder(bool isBigEndian)
        : big(isBigEndian) {}

    ChunkBuilder& word(std::uint32_t value) {
        big ? builder.bigU32(value) : builder.u32(value);
        return *this;
    }

    ChunkBuilder& real(double value) {
        big ? builder.bigF64(value) : builder.f64(value);
        return *this;
    }

    ChunkBuilder& append(const Bytes& bytes) {
        builder.append(bytes);
        return *this;
    }

    [[nodiscard]] const Bytes& bytes() const { return builder.bytes(); }

private:
    bool big;
    ByteBuilder builder;
};

Bytes encodeChunk(const Vst2Fixture& chunk, bool isBigEndian) {
    ChunkBuilder builder(isBigEndian);
    builder.append(chunk.reserved)
        .word(chunk.marker)
        .word(chunk.version)
        .word(codeOf(chunk.productWord))
        .word(codeOf(chunk.uniqueId))
        .word(chunk.recordBlockFlag)
        .word(chunk.claimedEntryCount.value_or(static_cast<std::uint32_t>(chunk.entries.size())));
    for (const auto& [identifier, value] : chunk.entries)
        builder.word(codeOf(identifier)).word(0).real(value);
    if (chunk.recordBlockFlag != 0)
        builder.word(chunk.claimedRecordLength.value_or(sizeOf(chunk.record)))
            .word(codeOf(chunk.blockTag))
            .append(chunk.record);
    builder.append(Bytes(chunk.surplus));
    return builder.bytes();
}

void appendProgram(ByteBuilder& builder, const ProgramFixture& program) {
    const auto count = static_cast<std::uint32_t>(program.values.size());
    const bool opaque = program.kind == "FPCh";
    std::string name = program.name;
    name.resize(28, '\0');
    builder.text(program.magic)
        .bigU32(48 + count * 4) // behind this field; nobody looks at it
        .text(program.kind)
        .bigU32(1)
        .text("qmBR")
        .bigU32(0x40002)
        .bigU32(opaque ? 15 : program.claimedCount.value_or(count))
        .text(name);
    if (opaque)
        builder.bigU32(program.claimedCount.value_or(sizeOf(program.chunk))).append(program.chunk);
    for (const float value : program.values)
        builder.bigF32(value);
}

} // namespace

Bytes encodeVst3(const Vst3Fixture& envelope) {
    return ByteBuilder()
        .u32(static_cast<std::uint32_t>(envelope.version))
        .u32(envelope.claimedLength.value_or(sizeOf(envelope.record)))
        .append(envelope.record)
        .bytes();
}

Bytes encodeVst2(const Vst2Fixture& chunk) {
    return encodeChunk(chunk, false);
}

Bytes encodeVst2BigEndian(const Vst2Fixture& chunk) {
    return encodeChunk(chunk, true);
}

Bytes encodeBank(const BankFixture& bank) {
    ByteBuilder builder;
    if (bank.wrapperBypass)
        builder.text("VstW").bigU32(8).bigU32(1).bigU32(*bank.wrapperBypass);
    builder.text(bank.magic)
        .bigU32(152 + sizeOf(bank.chunk))
        .text(bank.kind)
        .bigU32(bank.version)
        .text(bank.plugIn)
        .bigU32(bank.plugInVersion)
        .bigU32(bank.programCount)
        .bigU32(bank.currentProgram)
        .zeros(124);
    if (bank.kind == "FBCh")
        builder.bigU32(bank.claimedChunkSize.value_or(sizeOf(bank.chunk))).append(bank.chunk);
    for (const ProgramFixture& program : bank.programs)
        appendProgram(builder, program);
    return builder.bytes();
}
