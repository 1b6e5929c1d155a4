// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/vst3/Vst3SubCategories.h"

#include <array>

namespace {

constexpr std::uint32_t instrumentBit = 0x400;

struct SubCategory {
    std::uint32_t bit;
    const char* text;
};

/// In the order in which they are joined.
// clang-format off
constexpr std::array<SubCategory, 11> subCategories = {{
    {0x40,      "|Channel Strip"},
    {0x10,      "|Delay"},
    {0x02,      "|EQ"},
    {0x04,      "|Dynamics"},
    {0x80,      "|Mastering"},
    {0x20,      "|Reverb"},
    {0x100,     "|Analyzer"},
    {0x400000,  "|Tools"},
    {0x8000,    "|Distortion"},
    {0x10000,   "|Guitar"},
    {0x2000000, "|Modulation"},
}};
// clang-format on

} // namespace

std::string vst3SubCategories(std::uint32_t categoryBits) {
    std::string text = (categoryBits & instrumentBit) != 0 ? "Instrument" : "Fx";
    for (const SubCategory& each : subCategories) {
        if ((categoryBits & each.bit) != 0)
            text += each.text;
    }
    return text;
}
