// SPDX-License-Identifier: GPL-3.0-or-later
// Descriptions of plug-ins for the tests: one with fifteen parameters of the usual kinds and stereo
// meters, and any number of like parameters.
#pragma once

#include "plugin-model/NoxPlugInParameter.h"
#include "widgets/ui/IGenericEditorContent.h"

#include <array>

namespace ExamplePlugIn {

inline GenericParameter parameter(FourCharCode id, const char* name, const char* unit,
                                  double minimum, double maximum, double value,
                                  std::int32_t taper = NoxTaper::linear) {
    GenericParameter made;
    made.id = id;
    made.name = name;
    made.unit = unit;
    made.minimum = minimum;
    made.maximum = maximum;
    made.defaultValue = value;
    made.value = value;
    made.taper = taper;
    made.step = taper == NoxTaper::stepped ? 1.0 : 0.01;
    return made;
}

inline GenericParameter choice(FourCharCode id, const char* name, const juce::StringArray& names,
                               double value = 0.0) {
    GenericParameter made =
        parameter(id, name, "", 0.0, names.size() - 1.0, value, NoxTaper::stepped);
    made.valueNames = names;
    return made;
}

inline std::vector<GenericParameter> parameters() {
    constexpr std::int32_t log = NoxTaper::logarithmic;
    constexpr std::int32_t stretched = NoxTaper::stretchedLogarithmic;
    std::vector<GenericParameter> all{
        choice(fourCharCode("mbyp"), "Master Bypass", {"Engaged", "Bypass"}),
        parameter(fourCharCode("afre"), "Osc 1 Attack Frequency", "Hz", 1.0, 440.0, 100.0, log),
        parameter(fourCharCode("sfre"), "Osc 1 Sustain Frequency", "Hz", 1.0, 440.0, 60.0, log),
        choice(fourCharCode("osc1"), "Osc 1 Enable", {"Disabled", "Enabled"}, 1.0),
        parameter(fourCharCode("mgan"), "Osc 1 Mix Gain", "dB", -60.0, 6.0, 0.0, stretched),
        parameter(fourCharCode("dafr"), "Osc 2 Attack Frequency", "Hz", 1.0, 440.0, 200.0, log),
        parameter(fourCharCode("dsfr"), "Osc 2 Sustain Frequency", "Hz", 1.0, 440.0, 120.0, log),
        choice(fourCharCode("osc2"), "Osc 2 Enable", {"Disabled", "Enabled"}, 1.0),
        parameter(fourCharCode("dmgn"), "Osc 2 Mix Gain", "dB", -60.0, 6.0, -12.0, stretched),
        parameter(fourCharCode("attk"), "Envelope Attack", "ms", 1.0, 100.0, 2.0, stretched),
        parameter(fourCharCode("rlse"), "Envelope Release", "ms", 5.0, 1000.0, 140.0, stretched),
        parameter(fourCharCode("patt"), "Pitch Attack", "ms", 1.0, 100.0, 2.0, stretched),
        parameter(fourCharCode("prls"), "Pitch Release", "ms", 5.0, 1000.0, 140.0, stretched),
        parameter(fourCharCode("wetd"), "Wet/Dry", "%", 0.0, 100.0, 100.0),
        parameter(fourCharCode("gain"), "Output Gain", "dB", -24.0, 24.0, 0.0)};
    all.front().isBypass = true;
    return all;
}

/// Two levels and the pitches; the records live as long as the process.
inline std::vector<GenericMeter> meters() {
    static const std::array<NoxMeterRecord, 3> records{
        {{0, {0.5f, 0.0f, 0.1f, 0.0f, 0.0f, 0.0f}},
         {1, {0.3f, 0.0f, 0.05f, 0.0f, 0.0f, 0.0f}},
         // cos(2 pi 100 / 44100) and cos(2 pi 440 / 44100)
         {2, {0.99989850f, 0.5f, 0.99803556f, 0.0f, 0.0f, 0.0f}}}};
    return {{"OutL", fourCharCode("out "), 1, &records[0]},
            {"OutR", fourCharCode("out2"), 1, &records[1]},
            {"Pitches", fourCharCode("ptch"), 6, &records[2]}};
}

inline GenericEditorDescription description() {
    return {"Example", parameters(), meters()};
}

/// Of every kind in turn, without meters.
inline GenericEditorDescription descriptionWith(int count) {
    GenericEditorDescription made{"Many", {}, {}};
    for (int i = 0; i < count; ++i) {
        const auto id = static_cast<FourCharCode>(0x61000000 + i);
        const juce::String name = "Parameter " + juce::String(i + 1);
        GenericParameter next =
            parameter(id, name.toRawUTF8(), "Hz", 20.0, 20000.0, 1000.0, NoxTaper::logarithmic);
        if (i % 3 == 1)
            next = choice(id, name.toRawUTF8(), {"Off", "On"});
        else if (i % 3 == 2)
            next = choice(id, name.toRawUTF8(), {"Sine", "Saw", "Square", "Noise"}, 2.0);
        made.parameters.push_back(next);
    }
    return made;
}

} // namespace ExamplePlugIn
