// SPDX-License-Identifier: GPL-3.0-or-later
// Settings records as bytes, whole or deliberately wrong, put together from their layout alone.
#pragma once

#include "presets/record/tests/support/ByteBuilder.h"

#include <optional>
#include <string>
#include <utility>

/// Every field as it goes into the bytes. Codes are written as text, first character most
/// significant: "gain" lies in the bytes as "niag".
struct RecordFixture {
    std::string magic = "qmbp";
    std::uint32_t version = 2;
    std::uint32_t valuesTag = 0;
    std::string manufacturerCode = "QML ";
    std::string productCode = "BRLT";
    std::string variantCode = "****";
    std::string name;
    std::vector<std::pair<std::string, double>> values;
    Bytes extension = bytesOf({0xC0}); ///< a null document as MessagePack
    std::string extensionType = "msgp";
    std::uint64_t uniqueId = 0;

    // Instead of the true ones.
    std::optional<std::uint32_t> claimedNameLength = std::nullopt;
    std::optional<std::uint32_t> claimedValueCount = std::nullopt;
    std::optional<std::uint32_t> claimedExtensionLength = std::nullopt;
};

/// The bytes of a record; versions 0 and 1 end before the fields that came later.
[[nodiscard]] Bytes encodeRecord(const RecordFixture& record);

/// A four-character text as a number.
[[nodiscard]] std::uint32_t codeOf(const std::string& text);

/// A record of the product with a few values, a name beyond ASCII and a nested document.
[[nodiscard]] RecordFixture exampleRecord();

/// The smallest there is: no name, no value, no document.
[[nodiscard]] RecordFixture emptyRecord();
