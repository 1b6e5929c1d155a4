// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/NumberText.h"

#include <array>
#include <charconv>

namespace QM {

std::string numberText(double value, int significantDigits) {
    std::array<char, 64> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value,
                                      std::chars_format::general, significantDigits);
    return {text.data(), result.ptr};
}

} // namespace QM
