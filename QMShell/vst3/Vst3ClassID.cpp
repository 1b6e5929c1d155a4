// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/vst3/Vst3ClassID.h"

#include <nlohmann/json.hpp>

#include <array>
#include <cstdio>

namespace {

/// ASCII, whatever the locale.
std::string lowerCase(std::string_view text) {
    std::string lower(text);
    for (char& c : lower)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return lower;
}

/// The earlier plug-ins' names began with the maker's initials.
std::string earlierEffectName(const std::string& productName) {
    const std::string name = lowerCase(productName);
    return name.starts_with("qm") || name.starts_with("mb") ? name : "qm " + name;
}

} // namespace

std::string vst3ClassIDText(FourCharCode vst2UniqueId, std::string_view effectName) {
    constexpr unsigned int vst = 0x565354; // "VST"
    constexpr std::size_t nameLength = 9;
    std::array<char, 16> prefix{};
    std::snprintf(prefix.data(), prefix.size(), "%06X%08X", vst,
                  static_cast<unsigned int>(vst2UniqueId));
    std::string text = prefix.data();
    std::string name = lowerCase(effectName.substr(0, nameLength));
    name.resize(nameLength, '\0');
    for (const char c : name) {
        std::array<char, 4> digits{};
        std::snprintf(digits.data(), digits.size(), "%02X", static_cast<unsigned char>(c));
        text += digits.data();
    }
    return text;
}

std::string vst3CompatibilityText(const std::string& classID,
                                  const std::vector<FourCharCode>& earlierVst2Ids,
                                  const std::string& productName) {
    nlohmann::json old = nlohmann::json::array();
    for (const FourCharCode id : earlierVst2Ids)
        old.push_back(vst3ClassIDText(id, earlierEffectName(productName)));
    return nlohmann::json::array({{{"New", classID}, {"Old", old}}}).dump();
}
