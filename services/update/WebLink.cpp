// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/update/WebLink.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace {

constexpr std::size_t longestLink = 2048; ///< what browsers and servers agree on

constexpr char lowerCase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                : character;
}

bool beginsWith(std::string_view text, std::string_view lowerCaseStart) {
    return text.size() >= lowerCaseStart.size() &&
           std::equal(lowerCaseStart.begin(), lowerCaseStart.end(), text.begin(),
                      [](char expected, char found) { return expected == lowerCase(found); });
}

/// No system's idea of letters: only these are safe everywhere.
bool isAllowed(char character) {
    constexpr std::string_view others = "-._~:/?#[]@!&'()*+,;=%";
    const char lower = lowerCase(character);
    return (lower >= 'a' && lower <= 'z') || (character >= '0' && character <= '9') ||
           others.find(character) != std::string_view::npos;
}

} // namespace

bool QM::isWebLink(std::string_view link) {
    constexpr std::array<std::string_view, 2> schemes = {"https://", "http://"};
    if (link.size() > longestLink || !std::all_of(link.begin(), link.end(), isAllowed))
        return false;
    return std::any_of(schemes.begin(), schemes.end(), [link](std::string_view scheme) {
        if (!beginsWith(link, scheme))
            return false;
        const std::string_view host = link.substr(scheme.size());
        return host.find_first_of("/?#") != 0 && !host.empty();
    });
}
