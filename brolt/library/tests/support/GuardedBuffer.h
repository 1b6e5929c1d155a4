// SPDX-License-Identifier: GPL-3.0-or-later
// Samples between two rows of guards that show when somebody wrote past an end.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

class GuardedBuffer {
public:
    GuardedBuffer(std::size_t frames, float value);

    [[nodiscard]] std::span<float> samples() {
        return std::span(memory).subspan(guards, memory.size() - 2 * guards);
    }

    [[nodiscard]] std::span<const float> samples() const {
        return std::span(memory).subspan(guards, memory.size() - 2 * guards);
    }

    [[nodiscard]] bool isIntact() const;

private:
    static constexpr std::size_t guards = 64;

    std::vector<float> memory;
};
