// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/record/PresetIdentity.h"

#include <algorithm>
#include <atomic>
#include <bit>
#include <chrono>

namespace PresetIdentity {

std::uint64_t fresh() {
    static std::atomic<std::uint64_t> last = 0;
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    const auto now = static_cast<std::uint64_t>(
        std::chrono::duration_cast<std::chrono::microseconds>(sinceEpoch).count());
    std::uint64_t previous = last.load(std::memory_order_relaxed);
    std::uint64_t next = 0;
    do {
        next = std::max(now, previous + 1);
    } while (!last.compare_exchange_weak(previous, next, std::memory_order_relaxed));
    return next | assignedBit;
}

std::uint64_t ofContent(const QMGenericPreset& preset) {
    constexpr std::uint64_t multiplier = 37;
    std::uint64_t hash = 0;
    for (const auto& [id, value] : preset.values)
        hash = (hash + std::bit_cast<std::uint64_t>(value)) * multiplier;
    for (const char character : preset.name) {
        // NOLINTNEXTLINE(bugprone-signed-char-misuse): bytes beyond ASCII count as negative
        const auto extended = static_cast<std::int64_t>(static_cast<signed char>(character));
        hash = (hash + static_cast<std::uint64_t>(extended)) * multiplier;
    }
    return hash | assignedBit;
}

} // namespace PresetIdentity
