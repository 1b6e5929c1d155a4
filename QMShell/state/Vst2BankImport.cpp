// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/state/Vst2BankImport.h"

#include "QMShell/state/IStateEntrySink.h"
#include "QMShell/state/StateStreamReading.h"
#include "QMShell/state/Vst2Bank.h"
#include "QMShell/state/Vst2ChunkDecoder.h"

#include <array>

namespace {

class PositionRestorer {
public:
    explicit PositionRestorer(IStateByteStream& visited)
        : stream(visited)
        , position(visited.tell()) {}

    ~PositionRestorer() { restore(); }

    PositionRestorer(const PositionRestorer&) = delete;
    PositionRestorer& operator=(const PositionRestorer&) = delete;

    /// False when the stream cannot be put back.
    bool restore() { return position >= 0 && stream.seek(position); }

private:
    IStateByteStream& stream;
    std::int64_t position;
};

/// Everything from the position on when a bank may begin there, else nothing: an envelope is not
/// read twice.
std::vector<std::byte> readBankBytes(IStateByteStream& stream, PositionRestorer& home) {
    std::array<std::byte, sizeof(FourCharCode)> magic{};
    if (!readExactly(stream, magic.size(), magic.data()) || !mayBeginVst2Bank(magic) ||
        !home.restore())
        return {};
    return readRemaining(stream);
}

} // namespace

bool importVst2Bank(IStateByteStream& stream, const Vst2BankImport& import) {
    // A stream that cannot be put back must not be touched: the envelope comes next.
    PositionRestorer home(stream);
    if (!home.restore())
        return false;
    const std::vector<std::byte> bytes = readBankBytes(stream, home);
    const std::optional<Vst2Bank> bank = parseVst2Bank(bytes, import.expectedPlugIn);
    if (!bank)
        return false;
    const std::optional<Vst2ChunkContent> chunk = decodeVst2Chunk(bank->chunk);
    if (!chunk)
        return false;
    for (const Vst2StoredValue& entry : chunk->entries)
        import.sink.restoreParameter(entry.identifier, entry.value);
    return true;
}
