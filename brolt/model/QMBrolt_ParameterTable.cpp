// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/model/QMBrolt_ParameterTable.h"

#include "plugin-model/EngineeringDisplay.h"
#include "plugin-model/TextBuffer.h"

#include <array>

namespace {

/// The display says whether the processor is on, the value whether it is bypassed: 0 shows "On".
void formatBypass(const NoxPlugInParameter&, double value, char* buffer, std::size_t size) {
    copyText(buffer, size, value == 0.0 ? "On" : "Off");
}

constexpr std::array<const char*, 2> bypassNames{"Engaged", "Bypass"};
constexpr std::array<const char*, 2> enableNames{"Disabled", "Enabled"};

constexpr auto show = QM::formatEngineering;
constexpr auto showUnit = QM::formatEngineeringWithUnit;

constexpr std::int32_t lin = NoxTaper::linear;
constexpr std::int32_t log = NoxTaper::logarithmic;
constexpr std::int32_t step = NoxTaper::stepped;
constexpr std::int32_t log1k = NoxTaper::stretchedLogarithmic;

constexpr std::uint32_t onOff = NoxUnitCode::boolean;
constexpr std::uint32_t hertz = NoxUnitCode::hertz;
constexpr std::uint32_t decibels = NoxUnitCode::decibels;
constexpr std::uint32_t millis = NoxUnitCode::milliseconds;
constexpr std::uint32_t percent = NoxUnitCode::percent;

constexpr FourCharCode id(const char (&text)[5]) {
    return fourCharCode(text);
}

// The mix gains and times use the stretched taper, which puts most of the travel near the minimum;
// the output gain is linear although it is in dB. The curve is for host adapters and does not bend
// the taper.
// clang-format off
constexpr std::array<NoxPlugInParameter, 15> parameters{{
    // name                      value names         unit  text          text with unit  min    max    default  taper  step  factor  id          grp sub hook     opt1 opt2 unit code reserved curve opt3
    {"Master Bypass",            bypassNames.data(), "",   formatBypass, formatBypass,     0.0,    1.0,   0.0,   step,  1.0,  1.0,   id("mbyp"), 0,  0,  nullptr, 0,   1,   onOff,    0,       0.0,  0},
    {"Osc 1 Attack Frequency",   nullptr,            "Hz", show,         showUnit,         1.0,  440.0, 100.0,   log,   0.01, 1.0,   id("afre"), 0,  0,  nullptr, 0,   1,   hertz,    0,       0.0,  0},
    {"Osc 1 Sustain Frequency",  nullptr,            "Hz", show,         showUnit,         1.0,  440.0,  60.0,   log,   0.01, 1.0,   id("sfre"), 0,  0,  nullptr, 0,   1,   hertz,    0,       0.0,  0},
    {"Osc 1 Enable",             enableNames.data(), "",   nullptr,      nullptr,          0.0,    1.0,   1.0,   step,  1.0,  1.0,   id("osc1"), 0,  0,  nullptr, 0,   1,   onOff,    0,       0.0,  0},
    {"Osc 1 Mix Gain",           nullptr,            "dB", show,         showUnit,       -60.0,    6.0,   0.0,   log1k, 0.01, 1.0,   id("mgan"), 0,  0,  nullptr, 0,   1,   decibels, 0,       3.0,  0},
    {"Osc 2 Attack Frequency",   nullptr,            "Hz", show,         showUnit,         1.0,  440.0, 200.0,   log,   0.01, 1.0,   id("dafr"), 0,  0,  nullptr, 0,   1,   hertz,    0,       0.0,  0},
    {"Osc 2 Sustain Frequency",  nullptr,            "Hz", show,         showUnit,         1.0,  440.0, 120.0,   log,   0.01, 1.0,   id("dsfr"), 0,  0,  nullptr, 0,   1,   hertz,    0,       0.0,  0},
    {"Osc 2 Enable",             enableNames.data(), "",   nullptr,      nullptr,          0.0,    1.0,   1.0,   step,  1.0,  1.0,   id("osc2"), 0,  0,  nullptr, 0,   1,   onOff,    0,       0.0,  0},
    {"Osc 2 Mix Gain",           nullptr,            "dB", show,         showUnit,       -60.0,    6.0, -12.0,   log1k, 0.01, 1.0,   id("dmgn"), 0,  0,  nullptr, 0,   1,   decibels, 0,       3.0,  0},
    {"Envelope Attack",          nullptr,            "ms", show,         showUnit,         1.0,  100.0,   2.0,   log1k, 0.01, 1.0,   id("attk"), 0,  0,  nullptr, 0,   1,   millis,   0,       0.33, 0},
    {"Envelope Release",         nullptr,            "ms", show,         showUnit,         5.0, 1000.0, 140.0,   log1k, 0.01, 1.0,   id("rlse"), 0,  0,  nullptr, 0,   1,   millis,   0,       0.33, 0},
    {"Pitch Attack",             nullptr,            "ms", show,         showUnit,         1.0,  100.0,   2.0,   log1k, 0.01, 1.0,   id("patt"), 0,  0,  nullptr, 0,   1,   millis,   0,       0.33, 0},
    {"Pitch Release",            nullptr,            "ms", show,         showUnit,         5.0, 1000.0, 140.0,   log1k, 0.01, 1.0,   id("prls"), 0,  0,  nullptr, 0,   1,   millis,   0,       0.33, 0},
    {"Wet/Dry",                  nullptr,            "%",  show,         showUnit,         0.0,  100.0, 100.0,   lin,   0.01, 1.0,   id("wetd"), 0,  0,  nullptr, 0,   1,   percent,  0,       0.0,  0},
    {"Output Gain",              nullptr,            "dB", show,         showUnit,       -24.0,   24.0,   0.0,   lin,   0.01, 1.0,   id("gain"), 0,  0,  nullptr, 0,   1,   decibels, 0,       0.0,  0},
}};

constexpr std::array<const char*, 1> subgroups{"Main"};
constexpr std::array<NoxParameterGroup, 1> groups{{{"", subgroups.size(), subgroups.data()}}};

constexpr std::uint32_t level = 1;
constexpr std::uint32_t pitches = 6;

constexpr std::array<NoxMeterDescriptor, 2> monoMeters{{
    {"Out",     id("out "), 0, level},
    {"Pitches", id("ptch"), 0, pitches},
}};

constexpr std::array<NoxMeterDescriptor, 3> stereoMeters{{
    {"OutL",    id("out "), 0, level},
    {"OutR",    id("out2"), 1, level},
    {"Pitches", id("ptch"), 0, pitches},
}};
// clang-format on

static_assert(parameters.front().id == fourCharCode("mbyp"));
static_assert(parameters.back().id == fourCharCode("gain"));

} // namespace

std::span<const NoxPlugInParameter> QMBrolt_parameters() {
    return parameters;
}

std::span<const NoxParameterGroup> QMBrolt_parameterGroups() {
    return groups;
}

std::span<const NoxMeterDescriptor> QMBrolt_meters(std::int32_t typeIndex) {
    constexpr std::int32_t stereo = 2;
    if (typeIndex == stereo)
        return stereoMeters;
    return monoMeters;
}
