// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/PresetFileNames.h"

#include <algorithm>

namespace PresetFileNames {

namespace {

constexpr std::string_view temporaryBeginning = ".qm-";
constexpr std::string_view temporaryEnding = ".tmp";
constexpr std::string_view hexDigits = "0123456789abcdef";
constexpr int hexDigitCount = 16;

#ifdef _WIN32

char upper(char character) {
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A')
                                                : character;
}

/// The devices have these names with every extension.
bool namesDevice(std::string_view name) {
    std::string stem(name.substr(0, name.find('.')));
    while (stem.ends_with(' '))
        stem.pop_back();
    std::transform(stem.begin(), stem.end(), stem.begin(), upper);
    if (stem == "CON" || stem == "PRN" || stem == "AUX" || stem == "NUL")
        return true;
    return stem.size() == 4 && (stem.starts_with("COM") || stem.starts_with("LPT")) &&
           stem[3] >= '1' && stem[3] <= '9';
}

bool systemTakesItLiterally(std::string_view name) {
    constexpr char firstPrintable = ' ';
    const bool hasForbidden = std::any_of(name.begin(), name.end(), [](char character) {
        return (character >= 0 && character < firstPrintable) ||
               std::string_view("<>:\"|?*").find(character) != std::string_view::npos;
    });
    return !hasForbidden && !name.ends_with('.') && !name.ends_with(' ') && !namesDevice(name);
}

#else

bool systemTakesItLiterally(std::string_view) {
    return true;
}

#endif

} // namespace

std::string displayNameOf(std::string_view fileName) {
    return std::string(fileName.substr(0, fileName.find(extension)));
}

bool isUsable(std::string_view name) {
    return !name.empty() && name != "." && name != ".." &&
           name.find_first_of(std::string_view("/\\\0", 3)) == std::string_view::npos &&
           systemTakesItLiterally(name);
}

std::string temporary(std::uint64_t number) {
    constexpr int bitsPerDigit = 4;
    std::string digits;
    for (int digit = hexDigitCount - 1; digit >= 0; --digit)
        digits += hexDigits[number >> (digit * bitsPerDigit) & (hexDigits.size() - 1)];
    return std::string(temporaryBeginning) + digits + std::string(temporaryEnding);
}

bool isTemporary(std::string_view fileName) {
    if (fileName.size() != temporaryBeginning.size() + hexDigitCount + temporaryEnding.size() ||
        !fileName.starts_with(temporaryBeginning) || !fileName.ends_with(temporaryEnding))
        return false;
    const std::string_view digits = fileName.substr(temporaryBeginning.size(), hexDigitCount);
    return digits.find_first_not_of(hexDigits) == std::string_view::npos;
}

} // namespace PresetFileNames
