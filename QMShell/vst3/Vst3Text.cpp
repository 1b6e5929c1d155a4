// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/vst3/Vst3Text.h"

#include <algorithm>
#include <array>
#include <cwchar>
#include <locale>

namespace {

constexpr std::size_t capacity = 128;
/// UTF-8 bytes of a unit of UTF-16 at most.
constexpr std::size_t bytesOfUnit = 3;

/// The standard's conversion without a state of its own. (The SDK's has one for the whole process,
/// and hosts ask several instances for texts at once.)
using Conversion = std::codecvt<char16_t, char8_t, std::mbstate_t>;

const Conversion& conversion() {
    return std::use_facet<Conversion>(std::locale::classic());
}

} // namespace

void copyToString128(std::string_view utf8, Steinberg::Vst::String128 destination) {
    const std::u8string text(utf8.begin(), utf8.end());
    std::mbstate_t state{};
    const char8_t* read = nullptr;
    char16_t* written = destination;
    const auto result = conversion().in(state, text.data(), text.data() + text.size(), read,
                                        destination, destination + capacity - 1, written);
    *(result == std::codecvt_base::error ? destination : written) = 0;
}

std::string utf8OfString128(const Steinberg::Vst::TChar* text) {
    if (text == nullptr)
        return {};
    std::array<char8_t, capacity * bytesOfUnit> utf8{};
    std::mbstate_t state{};
    const char16_t* read = nullptr;
    char8_t* written = utf8.data();
    const auto result = conversion().out(state, text, std::find(text, text + capacity, 0), read,
                                         utf8.data(), utf8.data() + utf8.size(), written);
    if (result == std::codecvt_base::error)
        return {};
    return {utf8.data(), written};
}
