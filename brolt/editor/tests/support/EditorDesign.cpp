// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/editor/tests/support/EditorDesign.h"

#include "widgets/buttons/QMToggleButton.h"
#include "widgets/controls/QMFaderWidget.h"
#include "widgets/controls/QMKnobStripWidget.h"
#include "widgets/history/QMPitchHistory.h"
#include "widgets/meters/QMMeterCalibrationWidget.h"
#include "widgets/meters/QMMeterWidget.h"
#include "widgets/statics/QMBevelWidget.h"
#include "widgets/statics/QMImageWidget.h"
#include "widgets/statics/QMLabelWidget.h"
#include "widgets/update/QMUpdateCheckWidget.h"

#include <cstdlib>

namespace {

using EditorDesign::Area;

Area at(const char* id, int top, int left, int width, int height) {
    return {id, {left, top, width, height}};
}

void append(std::vector<Area>& areas, const std::vector<Area>& more) {
    areas.insert(areas.end(), more.begin(), more.end());
}

// clang-format off
const std::vector<Area>& first() {
    static const std::vector<Area> areas{
        at("bkgd",   0,   0, 220, 679),
        at("bkgd",   0, 220, 270, 290),
        at("bkgd",   0, 490, 285, 290),
        at("bkgd", 290, 220, 555, 236),
        at("bkgd", 526, 220, 555, 153),
        at("logo", 546, 251, 492, 108),
        at("UPDT", 663, 436, 255,  12)};
    return areas;
}

const std::vector<Area>& oscillatorTitles() {
    static const std::vector<Area> areas{
        at("osl1",  12,  20,  80,  16),
        at("osl2",  12, 120,  80,  16)};
    return areas;
}

const std::vector<Area>& otherTitles() {
    static const std::vector<Area> areas{
        at("foll",  12, 265, 180,  16),
        at("outl",  12, 490, 285,  16)};
    return areas;
}

const std::vector<Area>& last() {
    static const std::vector<Area> areas{
        at("envl",  36, 241,  16, 124),
        at("pitl", 156, 241,  16, 124),
        at("wndl", 306, 246, 502,  16),
        at("wind", 330, 246, 502, 173),
        at("mg1L", 380,  10, 100,  12),
        at("mg2L", 380, 110, 100,  12),
        at("afre",  60,  20,  80, 100),
        at("sfre", 180,  20,  80, 100),
        at("osc1", 276,  30,  60,  60),
        at("mgan", 360,  20,  80, 304),
        at("dafr",  60, 120,  80, 100),
        at("dsfr", 180, 120,  80, 100),
        at("osc2", 276, 130,  60,  60),
        at("dmgn", 360, 120,  80, 304),
        at("attk",  60, 265,  80, 100),
        at("rlse",  60, 365,  80, 100),
        at("patt", 180, 265,  80, 100),
        at("prls", 180, 365,  80, 100),
        at("wetd",  60, 545,  80, 100),
        at("gain", 180, 545,  80, 100),
        at("help", 264, 674,  21,  21),
        at("smlB", 264, 699,  21,  21)};
    return areas;
}

const std::vector<Area>& metersOfMono() {
    static const std::vector<Area> areas{
        at("mtcb",  36, 673,  20, 220),
        at("mtcb",  36, 701,  20, 220),
        at("metr",  36, 690,  14, 220)};
    return areas;
}

const std::vector<Area>& metersOfStereo() {
    static const std::vector<Area> areas{
        at("mtcb",  36, 687,  20, 220),
        at("metr",  36, 676,  14, 220),
        at("mtr2",  36, 704,  14, 220)};
    return areas;
}

// clang-format on

std::string changing(const std::string& sentence) {
    return sentence +
           " Click and drag to change. Alt-Click or double-click to reset to default. "
           "Control-click and drag for fine-adjust mode. You may also use the scroll-wheel or "
           "scroll-gesture to adjust. Click on the readout window to change value by entering "
           "text.";
}

} // namespace

std::vector<Area> EditorDesign::areas(int channels) {
    const bool isStereo = channels == 2;
    std::vector<Area> all = first();
    append(all, isStereo ? oscillatorTitles() : otherTitles());
    append(all, isStereo ? otherTitles() : oscillatorTitles());
    append(all, last());
    append(all, isStereo ? metersOfStereo() : metersOfMono());
    return all;
}

const std::vector<EditorDesign::Widget>& EditorDesign::widgets() {
    static const std::type_index knob = typeid(QMKnobStripWidget);
    static const std::type_index fader = typeid(QMFaderWidget);
    static const std::type_index toggle = typeid(QMToggleButton);
    static const std::type_index label = typeid(QMLabelWidget);
    static const std::type_index meter = typeid(QMMeterWidget);
    static const std::vector<Widget> all{
        {"afre", knob, "Atk. Freq", true},
        {"sfre", knob, "Sust. Freq", true},
        {"osc1", toggle, "Ena"},
        {"mg1L", label, "Mix (dB)"},
        {"mg2L", label, "Mix (dB)"},
        {"mgan", fader, "Mix (dB)", true},
        {"dafr", knob, "Atk. Freq", true},
        {"dsfr", knob, "Sust. Freq", true},
        {"osc2", toggle, "Ena"},
        {"dmgn", fader, "Mix (dB)", true},
        {"gain", knob, "Out Gain (dB)", true},
        {"attk", knob, "Env Atk.", true},
        {"rlse", knob, "Env Sust.", true},
        {"patt", knob, "Pitch Atk.", true},
        {"prls", knob, "Pitch Sust.", true},
        {"wetd", knob, "Wet/Dry Mix", true},
        {"osl1", label, "Osc 1"},
        {"osl2", label, "Osc 2"},
        {"foll", label, "Amplitude Followers"},
        {"outl", label, "Output"},
        {"wndl", label, "Oscillator Pitch History"},
        {"envl", label, "Envelope"},
        {"pitl", label, "Pitch"},
        {"metr", meter, "Output"},
        {"mtr2", meter, "Output2"},
        {"mtcb", typeid(QMMeterCalibrationWidget), "Meters Cal"},
        {"wind", typeid(QMPitchHistory), "Brolt Readout"},
        {"logo", typeid(QMImageWidget), "QMBrolt"},
        {"bkgd", typeid(QMBevelWidget), "Bevel"},
        {"UPDT", typeid(QMUpdateCheckWidget), "Update Check"},
    };
    return all;
}

const EditorDesign::Widget* EditorDesign::widgetOf(const std::string& id) {
    for (const Widget& widget : widgets()) {
        if (widget.id == id)
            return &widget;
    }
    return nullptr;
}

const std::vector<EditorDesign::Help>& EditorDesign::helpTexts() {
    static const std::vector<Help> all{
        {"afre", changing("Sets the frequency of Oscillator 1 when the pitch envelop detector is "
                          "at the maximum level.")},
        {"sfre", changing("Sets the frequency of Oscillator 1 when the pitch envelop detector is "
                          "at the minimum level.")},
        {"osc1", "Enables Oscillator 1. Click to toggle."},
        {"mgan", changing("Sets the mix level for Oscillator 1.")},
        {"dafr", changing("Sets the frequency of Oscillator 2 when the pitch envelop detector is "
                          "at the maximum level.")},
        {"dsfr", changing("Sets the frequency of Oscillator 2 when the pitch envelop detector is "
                          "at the minimum level.")},
        {"osc2", "Enables Oscillator 2. Click to toggle."},
        {"dmgn", changing("Sets the mix level for Oscillator 2.")},
        {"gain", changing("Sets the overall output gain of the processor.")},
        {"attk", changing("Sets the attack time (in ms) for the level envelope detector that is "
                          "used to envelope the output of the oscillators.")},
        {"rlse", changing("Sets the release time (in ms) for the level envelope detector that is "
                          "used to envelope the output of the oscillators.")},
        {"patt", changing("Sets the attack time (in ms) for the level envelope detector that is "
                          "used to drive the pitch of the oscillators.")},
        {"prls", changing("Sets the release time (in ms) for the level envelope detector that is "
                          "used to drive the pitch of the oscillators.")},
        {"wetd", changing("Sets wet/dry mix of the processor. When set to 0% only the input signal "
                          "is passed. When set to 100% only the synthesized signal is passed.")},
        {"wind", "Shows the history of the pitch and gain of the synth oscillators."},
        {"metr", "Output meter for Left Channel."},
        {"mtr2", "Output meter for Right Channel."},
        {"help", "Help Button: When enabled, tooltips will be displayed for elements that have "
                 "help available. You can also hold the ? or Help button on your keyboard at any "
                 "time to pop help up for the element under the mouse pointer."},
        {"smlB", "UI Size Selector: Click to choose between small, medium and large UI."},
    };
    return all;
}

juce::Rectangle<int> EditorDesign::readoutPlace(const Area& control) {
    const juce::Rectangle<int> place = control.place;
    const bool isFader = control.id == "mgan" || control.id == "dmgn";
    if (!isFader)
        return {place.getX(), place.getY() - 18, place.getWidth(), 18};
    // 0.57 of 80 is 45.6, half of what is left of 80 - 45 is 17.5: whole units of both.
    return {place.getX() + 17 + 3, place.getY() + 12, 45, place.getHeight()};
}

bool EditorDesign::isNearest(juce::Rectangle<int> pixels, juce::Rectangle<int> place, int percent) {
    // An edge that would be half way between two pixels may be on either.
    const auto near = [percent](int pixel, int edge) {
        return std::abs(100 * pixel - edge * percent) <= 50;
    };
    return near(pixels.getX(), place.getX()) && near(pixels.getY(), place.getY()) &&
           near(pixels.getRight(), place.getRight()) && near(pixels.getBottom(), place.getBottom());
}
