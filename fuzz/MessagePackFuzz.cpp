// SPDX-License-Identifier: GPL-3.0-or-later
// Extension documents in MessagePack, and the product's state when it is given them.
#include "fuzz/support/ExtensionCheck.h"
#include "fuzz/support/Require.h"
#include "presets/record/ExtensionDocument.h"
#include "presets/record/tests/support/MessagePackDepth.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span bytes(data, size);
    const auto document = decodeMessagePackDocument(bytes);
    if (nestsTooDeep(std::as_bytes(bytes), deepestExtensionNesting)) {
        require(!document, "what nests too deep is refused");
        return 0;
    }
    const auto decoded = nlohmann::json::from_msgpack(bytes, true, false);
    require(document.has_value() == !decoded.is_discarded(),
            "a document exactly where there is one");
    if (document) {
        const auto again = nlohmann::json::to_msgpack(*document);
        const auto reread = decodeMessagePackDocument(again);
        require(reread && nlohmann::json::to_msgpack(*reread) == again, "it packs and unpacks");
        requireHarmless(*document);
    }
    return 0;
}
