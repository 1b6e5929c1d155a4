// SPDX-License-Identifier: GPL-3.0-or-later
// Extension documents in JSON text, and the product's state when it is given them.
#include "fuzz/support/ExtensionCheck.h"
#include "fuzz/support/Require.h"
#include "presets/record/ExtensionDocument.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto document = decodeJsonDocument(std::span(data, size));
    if (document) {
        const std::string text = document->dump();
        const auto again = decodeJsonDocument(
            std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()));
        require(again && *again == *document, "it is written and read again");
        requireHarmless(*document);
    }
    return 0;
}
