// SPDX-License-Identifier: GPL-3.0-or-later
// The fifteen parameters as hosts know them, written out by hand: saved projects and automation
// depend on every entry.
#pragma once

#include <array>
#include <cmath>

enum class RowTaper { linear, logarithmic, stepped, stretchedLogarithmic };

struct ParameterRow {
    const char* id;
    const char* title;
    const char* shortTitle;
    const char* unit;
    double minimum;
    double maximum;
    double defaultValue;
    RowTaper taper;
};

// clang-format off
constexpr std::array<ParameterRow, 15> parameterRows{{
    {"mbyp", "Master Bypass",           "Maste", "",     0.0,    1.0,   0.0, RowTaper::stepped},
    {"afre", "Osc 1 Attack Frequency",  "Osc 1", "Hz",   1.0,  440.0, 100.0, RowTaper::logarithmic},
    {"sfre", "Osc 1 Sustain Frequency", "Osc 1", "Hz",   1.0,  440.0,  60.0, RowTaper::logarithmic},
    {"osc1", "Osc 1 Enable",            "Osc 1", "",     0.0,    1.0,   1.0, RowTaper::stepped},
    {"mgan", "Osc 1 Mix Gain",          "Osc 1", "dB", -60.0,    6.0,   0.0, RowTaper::stretchedLogarithmic},
    {"dafr", "Osc 2 Attack Frequency",  "Osc 2", "Hz",   1.0,  440.0, 200.0, RowTaper::logarithmic},
    {"dsfr", "Osc 2 Sustain Frequency", "Osc 2", "Hz",   1.0,  440.0, 120.0, RowTaper::logarithmic},
    {"osc2", "Osc 2 Enable",            "Osc 2", "",     0.0,    1.0,   1.0, RowTaper::stepped},
    {"dmgn", "Osc 2 Mix Gain",          "Osc 2", "dB", -60.0,    6.0, -12.0, RowTaper::stretchedLogarithmic},
    {"attk", "Envelope Attack",         "Envel", "ms",   1.0,  100.0,   2.0, RowTaper::stretchedLogarithmic},
    {"rlse", "Envelope Release",        "Envel", "ms",   5.0, 1000.0, 140.0, RowTaper::stretchedLogarithmic},
    {"patt", "Pitch Attack",            "Pitch", "ms",   1.0,  100.0,   2.0, RowTaper::stretchedLogarithmic},
    {"prls", "Pitch Release",           "Pitch", "ms",   5.0, 1000.0, 140.0, RowTaper::stretchedLogarithmic},
    {"wetd", "Wet/Dry",                 "Wet/D", "%",    0.0,  100.0, 100.0, RowTaper::linear},
    {"gain", "Output Gain",             "Outpu", "dB", -24.0,   24.0,   0.0, RowTaper::linear},
}};

// clang-format on

/// The position of a plain value in its range: linear, or by the logarithm, where the two gains of
/// the oscillators and the times are stretched a thousandfold so that most of the travel is near
/// the minimum.
inline double positionOf(const ParameterRow& row, double plain) {
    const double range = row.maximum - row.minimum;
    const double offset = plain - row.minimum;
    switch (row.taper) {
    case RowTaper::logarithmic:
        return std::log(offset + 1.0) / std::log(range + 1.0);
    case RowTaper::stretchedLogarithmic:
        return std::log(1000.0 * offset + 1.0) / std::log(1000.0 * range + 1.0);
    default:
        return offset / range;
    }
}
