// SPDX-License-Identifier: GPL-3.0-or-later
// What the maker's service answers: a JSON object, any key of which may be missing. It comes from
// outside: nothing in it is trusted, links least of all (see WebLink.h).
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace QM {

/// Bytes. An honest reply has a few hundred.
inline constexpr std::size_t largestUpdateReply = 65536;

/// Texts are UTF-8, and empty where the reply does not have them.
struct UpdateReply {
    bool updateAvailable = false;
    // Of the newer version; not set when there is none.
    bool isBeta = false;
    std::string version;
    std::string installerLink;
    std::string releaseNotesLink;
    // Of the installed one.
    std::string currentReleaseNotesLink;
    std::string tipsLink;

    bool operator==(const UpdateReply&) const = default;
};

/// Nothing for a text that is too large or no JSON object. A key whose value has another type than
/// it should counts as missing. [any thread]
[[nodiscard]] std::optional<UpdateReply> readUpdateReply(std::string_view text);

} // namespace QM
