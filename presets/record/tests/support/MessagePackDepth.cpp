// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/record/tests/support/MessagePackDepth.h"

namespace {

class Walker {
public:
    explicit Walker(std::span<const std::byte> document)
        : bytes(document) {}

    bool exceeds(int deepest) {
        while (true) {
            while (!open.empty() && open.back() == 0)
                open.pop_back();
            if (begun && open.empty())
                return false; // the document is over
            begun = true;
            if (!open.empty())
                --open.back();
            if (position >= bytes.size())
                return false;
            takeValue(static_cast<unsigned>(number(1)));
            if (open.size() > static_cast<std::size_t>(deepest))
                return true;
        }
    }

private:
    std::uint64_t number(int size) {
        std::uint64_t value = 0;
        for (int i = 0; i < size; ++i, ++position)
            value = value * 256 +
                    (position < bytes.size() ? std::to_integer<std::uint64_t>(bytes[position]) : 0);
        return value;
    }

    void takeValue(unsigned code) {
        // Widths of the length, or of the value itself, from 0xC4 on: see the published format.
        if (code >= 0x80 && code <= 0x8F)
            open.push_back(std::uint64_t{code & 15} * 2);
        else if (code >= 0x90 && code <= 0x9F)
            open.push_back(code & 15);
        else if (code >= 0xA0 && code <= 0xBF)
            position += code & 31;
        else if (code >= 0xC4 && code <= 0xC6) // binary
            skip(number(1 << (code - 0xC4)));
        else if (code >= 0xC7 && code <= 0xC9) // extension
            skip(number(1 << (code - 0xC7)) + 1);
        else if (code == 0xCA || code == 0xCB) // reals
            position += code == 0xCA ? 4 : 8;
        else if (code >= 0xCC && code <= 0xD3) // integers
            position += std::size_t{1} << (code & 3);
        else if (code >= 0xD4 && code <= 0xD8) // extensions of fixed size
            position += (std::size_t{1} << (code - 0xD4)) + 1;
        else if (code >= 0xD9 && code <= 0xDB) // text
            skip(number(1 << (code - 0xD9)));
        else if (code == 0xDC || code == 0xDD)
            open.push_back(number(code == 0xDC ? 2 : 4));
        else if (code == 0xDE || code == 0xDF)
            open.push_back(number(code == 0xDE ? 2 : 4) * 2);
    }

    void skip(std::uint64_t count) { position += static_cast<std::size_t>(count); }

    std::span<const std::byte> bytes;
    std::size_t position = 0;
    bool begun = false;
    std::vector<std::uint64_t> open; ///< values that each open array or object still wants
};

} // namespace

bool nestsTooDeep(std::span<const std::byte> bytes, int deepest) {
    return Walker(bytes).exceeds(deepest);
}
