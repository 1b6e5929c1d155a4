// SPDX-License-Identifier: GPL-3.0-or-later
// Settings records: the product's reader answers what the tests' plain one does, and what it has
// read it writes and reads again.
#include "QMShell/state/StateRecordBytes.h"
#include "fuzz/support/Require.h"
#include "presets/record/GenericPresetFormat.h"
#include "presets/record/tests/support/ReferenceRecordReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto bytes = std::as_bytes(std::span(data, size));
    const std::optional<QMGenericPreset> record = readRecordBytes(bytes);
    const std::string description = describeRecord(record);
    requireEqual(description, describeRecord(readRecordPlainly(bytes)),
                 "the plain reader's record");
    if (record) {
        MemoryStream stream(16);
        require(writeGenericPreset(*record, stream), "a record that was read can be written");
        requireEqual(describeRecord(readRecordBytes(stream.bytes())), description,
                     "the record written and read again");
    }
    return 0;
}
