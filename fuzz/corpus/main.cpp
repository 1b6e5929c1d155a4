// SPDX-License-Identifier: GPL-3.0-or-later
// fuzz_corpus DIRECTORY
//
// Writes the inputs that each fuzz target begins with into DIRECTORY/<target>: made when they are
// needed rather than kept, so that they follow the layouts.
#include "QMShell/state/AaxChunk.h"
#include "QMShell/state/StateMemoryStream.h"
#include "QMShell/state/Vst2Chunk.h"
#include "QMShell/state/Vst3State.h"
#include "QMShell/state/tests/support/EnvelopeEncoder.h"
#include "fuzz/support/FuzzedInstance.h"
#include "fuzz/support/InstanceVst2Adapter.h"
#include "presets/record/QMGenericPreset.h"
#include "presets/record/tests/support/MessagePackEncoder.h"

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;

Bytes copyOf(std::span<const std::byte> bytes) {
    return {bytes.begin(), bytes.end()};
}

Bytes bytesOfText(const std::string& text) {
    return ByteBuilder().text(text).bytes();
}

/// Writes the inputs of one target, numbered.
bool writeInputs(const fs::path& root, const std::string& target,
                 const std::vector<Bytes>& inputs) {
    fs::create_directories(root / target);
    bool complete = true;
    for (std::size_t i = 0; i < inputs.size(); ++i) {
        std::ofstream file(root / target / ("begin-" + std::to_string(i)), std::ios::binary);
        file.write(reinterpret_cast<const char*>(inputs[i].data()),
                   static_cast<std::streamsize>(inputs[i].size()));
        complete = complete && file.good();
    }
    return complete;
}

/// The product's state: as it stands, and blended.
std::vector<Bytes> productRecords() {
    FuzzedInstance instance;
    std::vector<Bytes> records = {getAaxChunk(AaxChunks::state, instance.plugIn)->data};
    instance.plugIn.setBlend(0.25F, 0.5F);
    records.push_back(getAaxChunk(AaxChunks::state, instance.plugIn)->data);
    return records;
}

std::vector<Bytes> recordInputs() {
    std::vector<Bytes> inputs = productRecords();
    for (const std::uint32_t version : {0u, 1u, 2u}) {
        RecordFixture record = exampleRecord();
        record.version = version;
        inputs.push_back(encodeRecord(record));
    }
    RecordFixture text = exampleRecord();
    text.extension = bytesOfText("{\"mSnapshots\":[[1,2],[3]],\"mActiveSnapshot\":-2}");
    text.extensionType = "json";
    inputs.push_back(encodeRecord(text));
    inputs.push_back(encodeRecord(emptyRecord()));
    return inputs;
}

std::vector<Bytes> messagePackInputs() {
    FuzzedInstance instance;
    const auto record = instance.plugIn.getStateRecord(StateExtent::complete);
    const auto packedExtension = nlohmann::json::to_msgpack(record.extension);
    return {copyOf(std::as_bytes(std::span(packedExtension))), exampleRecord().extension,
            packed::object({{"parameterMap", packed::object({{"gain", packed::object({})}})}}),
            packed::array({packed::nil(), packed::boolean(true), packed::integer(-5),
                           packed::real(0.1), packed::text("text")}),
            packed::nil()};
}

std::vector<Bytes> jsonInputs() {
    FuzzedInstance instance;
    return {bytesOfText(instance.plugIn.getStateRecord(StateExtent::complete).extension.dump()),
            bytesOfText("{\"parameterMap\":{\"gain\":{\"source_type\":\"MIDI\"}}}"),
            bytesOfText("{\"parameterMap\":[{},null,\"text\"]}"),
            bytesOfText("[null,true,-5,1e300,\"\\u00e4\"]")};
}

std::vector<Bytes> vst2ChunkInputs() {
    FuzzedInstance instance;
    InstanceVst2Adapter adapter(instance.plugIn);
    Vst2Chunk chunk(adapter);
    Vst2Fixture entries;
    entries.entries = {{"gain", 0.5}, {"afre", 100.0}};
    entries.recordBlockFlag = 0;
    Vst2Fixture block = entries;
    block.recordBlockFlag = 1;
    block.record = encodeRecord(exampleRecord());
    return {copyOf(chunk.get()), encodeVst2(entries), encodeVst2BigEndian(entries),
            encodeVst2(block), encodeVst2BigEndian(block)};
}

std::vector<Bytes> bankInputs() {
    std::vector<Bytes> inputs;
    for (const Bytes& chunk : vst2ChunkInputs()) {
        BankFixture bank;
        bank.chunk = chunk;
        inputs.push_back(encodeBank(bank));
    }
    ProgramFixture values;
    values.values = {0.0F, 0.5F};
    ProgramFixture opaque;
    opaque.kind = "FPCh";
    opaque.chunk = vst2ChunkInputs()[1];
    BankFixture programs;
    programs.wrapperBypass = 1;
    programs.kind = "FxBk";
    programs.programs = {values, opaque};
    programs.programCount = 2;
    inputs.push_back(encodeBank(programs));
    return inputs;
}

std::vector<Bytes> vst3Inputs() {
    std::vector<Bytes> inputs;
    for (const Bytes& record : recordInputs())
        inputs.push_back(encodeVst3({0, record}));
    inputs.push_back(bankInputs()[1]);
    return inputs;
}

std::vector<Bytes> replyInputs() {
    return {bytesOfText("{\"updateAvailable\":true,\"updateVersion\":\"4.1.0\","
                        "\"updateURL\":\"https://quolm.example/x?y=1&z=2\",\"isbeta\":false,"
                        "\"updateReleaseNotesURL\":\"http://quolm.example/notes\"}"),
            bytesOfText("{\"updateAvailable\":false,\"tipsAndTricksURL\":\"javascript:x\","
                        "\"currentReleaseNotesURL\":null}"),
            bytesOfText("https://quolm.example:443/a%20b#c")};
}

} // namespace

int main(int count, char** words) {
    if (count != 2) {
        std::fputs("fuzz_corpus: say which directory\n", stderr);
        return 2;
    }
    const fs::path root = words[1];
    const bool complete = writeInputs(root, "RecordFuzz", recordInputs()) &&
                          writeInputs(root, "MessagePackFuzz", messagePackInputs()) &&
                          writeInputs(root, "JsonFuzz", jsonInputs()) &&
                          writeInputs(root, "Vst3StateFuzz", vst3Inputs()) &&
                          writeInputs(root, "Vst2ChunkFuzz", vst2ChunkInputs()) &&
                          writeInputs(root, "AaxChunkFuzz", recordInputs()) &&
                          writeInputs(root, "Vst2BankFuzz", bankInputs()) &&
                          writeInputs(root, "UpdateReplyFuzz", replyInputs());
    return complete ? 0 : 1;
}
