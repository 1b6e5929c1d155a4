// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/record/tests/support/RecordEncoder.h"

#include "presets/record/tests/support/MessagePackEncoder.h"

std::uint32_t codeOf(const std::string& text) {
    std::uint32_t code = 0;
    for (const char character : text)
        code = code * 256 + static_cast<unsigned char>(character);
    return code;
}

Bytes encodeRecord(const RecordFixture& record) {
    ByteBuilder builder;
    builder.u32(codeOf(record.magic)).u32(record.version).u32(record.valuesTag);
    for (const std::string* code :
         {&record.manufacturerCode, &record.productCode, &record.variantCode})
        builder.u32(codeOf(*code));
    builder.u32(record.claimedNameLength.value_or(static_cast<std::uint32_t>(record.name.size())))
        .text(record.name)
        .u32(record.claimedValueCount.value_or(static_cast<std::uint32_t>(record.values.size())));
    for (const auto& [identifier, value] : record.values)
        builder.u32(codeOf(identifier)).f64(value);
    if (record.version >= 2) {
        const auto length = static_cast<std::uint32_t>(record.extension.size());
        builder.append(record.extension)
            .u32(codeOf(record.extensionType))
            .u32(record.claimedExtensionLength.value_or(length));
    }
    if (record.version >= 1)
        builder.u64(record.uniqueId);
    return builder.bytes();
}

RecordFixture exampleRecord() {
    RecordFixture record;
    record.name = "K\xC3\xA4se \xE4\xBD\x8E"; // beyond ASCII: two and three bytes a character
    record.values = {{"afre", 123.5}, {"gain", -6.02}, {"mbyp", 0.0}, {"wetd", 100.0 / 3.0}};
    record.extension = packed::object({
        {"mActiveSnapshot", packed::integer(1)},
        {"mBlendX", packed::real(0.25)},
        {"mBlendY", packed::real(0.1)},
        {"mSnapshotPopulated", packed::array({packed::boolean(true), packed::boolean(false)})},
        {"note", packed::text(std::string(40, 'x'))},
    });
    record.uniqueId = 0x8006123456789ABCu;
    return record;
}

RecordFixture emptyRecord() {
    return {};
}
