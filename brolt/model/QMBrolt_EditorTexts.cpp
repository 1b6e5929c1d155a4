// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/model/QMBrolt_EditorTexts.h"

#include <vector>

namespace {

const std::string tail =
    " Click and drag to change. Alt-Click or double-click to reset to default. Control-click and "
    "drag for fine-adjust mode. You may also use the scroll-wheel or scroll-gesture to adjust. "
    "Click on the readout window to change value by entering text.";

std::string frequencyHelp(const std::string& oscillator, const std::string& end) {
    return "Sets the frequency of Oscillator " + oscillator +
           " when the pitch envelop detector is at the " + end + " level." + tail;
}

std::string mixHelp(const std::string& oscillator) {
    return "Sets the mix level for Oscillator " + oscillator + "." + tail;
}

std::string enableHelp(const std::string& oscillator) {
    return "Enables Oscillator " + oscillator + ". Click to toggle.";
}

std::string timeHelp(const std::string& time, const std::string& use) {
    return "Sets the " + time + " time (in ms) for the level envelope detector that is used to " +
           use + " of the oscillators." + tail;
}

std::vector<QMBrolt_EditorText> editorTexts() {
    const std::string envelopeUse = "envelope the output";
    const std::string pitchUse = "drive the pitch";
    // clang-format off
    return {
        {fourCharCode("afre"), "Atk. Freq",     frequencyHelp("1", "maximum")},
        {fourCharCode("sfre"), "Sust. Freq",    frequencyHelp("1", "minimum")},
        {fourCharCode("osc1"), "Ena",           enableHelp("1")},
        {fourCharCode("mgan"), "Mix (dB)",      mixHelp("1")},
        {fourCharCode("dafr"), "Atk. Freq",     frequencyHelp("2", "maximum")},
        {fourCharCode("dsfr"), "Sust. Freq",    frequencyHelp("2", "minimum")},
        {fourCharCode("osc2"), "Ena",           enableHelp("2")},
        {fourCharCode("dmgn"), "Mix (dB)",      mixHelp("2")},
        {fourCharCode("gain"), "Out Gain (dB)", "Sets the overall output gain of the processor." + tail},
        {fourCharCode("attk"), "Env Atk.",      timeHelp("attack", envelopeUse)},
        {fourCharCode("rlse"), "Env Sust.",     timeHelp("release", envelopeUse)},
        {fourCharCode("patt"), "Pitch Atk.",    timeHelp("attack", pitchUse)},
        {fourCharCode("prls"), "Pitch Sust.",   timeHelp("release", pitchUse)},
        {fourCharCode("wetd"), "Wet/Dry Mix",   "Sets wet/dry mix of the processor. When set to 0% only the input signal is passed. "
                                                "When set to 100% only the synthesized signal is passed." + tail},
    };
    // clang-format on
}

} // namespace

const QMBrolt_EditorText* QMBrolt_editorText(FourCharCode id) {
    static const std::vector<QMBrolt_EditorText> texts = editorTexts();
    for (const QMBrolt_EditorText& text : texts) {
        if (text.id == id)
            return &text;
    }
    return nullptr;
}
