// SPDX-License-Identifier: GPL-3.0-or-later
// How a preset is referred to: by folder and place in it, or by its unique identifier. Every
// identifier that is assigned has its top bit set, so that its high half read as a signed number is
// negative and cannot be taken for a folder.
#pragma once

#include <cstdint>

struct SettingLocator {
    /// Category in the high 16 bits (0 all, 1 factory, 2 user) and folder in the low ones; or, read
    /// as a signed number below 0, the high half of a unique identifier.
    std::uint32_t folderSelector = 0;
    /// Place among the folder's presets, or the low half of the identifier.
    std::uint32_t index = 0;
    std::uint32_t valid = 0;  ///< 1 when the locator names a preset
    std::uint32_t manual = 0; ///< 1 for settings that come from no preset file

    friend bool operator==(const SettingLocator&, const SettingLocator&) = default;

    [[nodiscard]] bool namesUniqueId() const {
        return static_cast<std::int32_t>(folderSelector) < 0;
    }

    /// The identifier in the first two words.
    [[nodiscard]] std::uint64_t uniqueId() const {
        return std::uint64_t{folderSelector} << 32 | index;
    }

    /// Not valid for an identifier of 0.
    [[nodiscard]] static SettingLocator ofUniqueId(std::uint64_t id) {
        return {static_cast<std::uint32_t>(id >> 32), static_cast<std::uint32_t>(id),
                id != 0 ? 1u : 0u, 0};
    }
};
