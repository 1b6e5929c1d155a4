// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/editor/EditorTables.h"

#include "brolt/editor/EditorLayout.h"
#include "brolt/editor/EmbeddedImages.h"
#include "brolt/model/QMBrolt_EditorTexts.h"
#include "widgets/buttons/ToggleStyleRecord.h"
#include "widgets/controls/ControlTaper.h"
#include "widgets/controls/KnobStyleRecord.h"
#include "widgets/statics/ImageStyleRecord.h"

#include <array>
#include <vector>

namespace {

// Styles.

constexpr std::int32_t pointerKnob = 8;
constexpr std::int32_t labelBelow = 1;
constexpr std::int32_t ringFromMinimum = 2;
constexpr std::uint32_t everyField = 127;

struct KnobColour {
    std::uint32_t red;
    std::uint32_t green;
    std::uint32_t blue;
    std::uint32_t alpha;
};

constexpr KnobColour green{0, 255, 0, 176};
constexpr KnobColour orange{255, 160, 0, 224};

KnobStyleRecord knobStyle(KnobColour colour, std::uint32_t taper) {
    KnobStyleRecord style;
    style.knobType = pointerKnob;
    style.styleOption = labelBelow;
    style.red = colour.red;
    style.green = colour.green;
    style.blue = colour.blue;
    style.alpha = colour.alpha;
    style.styleValue1 = 0.0F;
    style.styleValue2 = 0.0F;
    style.styleOption2 = ringFromMinimum;
    style.taperMode = static_cast<std::int32_t>(taper);
    style.presentMask = everyField;
    return style;
}

ToggleStyleRecord enableStyle() {
    ToggleStyleRecord style;
    style.red = 255;
    style.green = 192;
    style.blue = 64;
    style.alpha = 255;
    return style;
}

struct Styles {
    const KnobStyleRecord a = knobStyle(green, ControlTaper::logarithmic);
    const KnobStyleRecord b = knobStyle(orange, ControlTaper::logarithmic);
    const KnobStyleRecord c = knobStyle(green, ControlTaper::linear);
    const ToggleStyleRecord enable = enableStyle();
    const ImageStyleRecord backdrop{QMBrolt::historyBackdropPng().data(),
                                    QMBrolt::historyBackdropPng().size()};
    const ImageStyleRecord logo{QMBrolt::logoPng().data(), QMBrolt::logoPng().size()};
};

const Styles& styles() {
    static const Styles all;
    return all;
}

// Widgets.

/// One parameter or display at most; 0 is none.
struct Row {
    FourCharCode widgetID;
    std::uint32_t type;
    const char* label; ///< null: that of the parameter's control
    const QMWidgetStyleRecord* style;
    FourCharCode parameter;
    FourCharCode display;
};

constexpr std::uint32_t toggle = 2;
constexpr std::uint32_t caption = 6;
constexpr std::uint32_t bevel = 12;
constexpr std::uint32_t meter = 17;
constexpr std::uint32_t picture = 18;
constexpr std::uint32_t scale = 19;
constexpr std::uint32_t fader = 21;
constexpr std::uint32_t knob = 31;
constexpr std::uint32_t updates = 33;
constexpr std::uint32_t history = 36;

constexpr FourCharCode id(const char (&text)[5]) {
    return fourCharCode(text);
}

std::array<Row, 30> widgetRows() {
    const KnobStyleRecord* const a = &styles().a;
    const KnobStyleRecord* const b = &styles().b;
    const KnobStyleRecord* const c = &styles().c;
    const ToggleStyleRecord* const ena = &styles().enable;
    const ImageStyleRecord* const back = &styles().backdrop;
    const ImageStyleRecord* const logo = &styles().logo;
    // clang-format off
    return {{
        // widget    type     label                      style    parameter   display
        {id("afre"), knob,    nullptr,                   a,       id("afre"), 0},
        {id("sfre"), knob,    nullptr,                   a,       id("sfre"), 0},
        {id("osc1"), toggle,  nullptr,                   ena,     id("osc1"), 0},
        {id("mg1L"), caption, "Mix (dB)",                nullptr, 0,          0},
        {id("mg2L"), caption, "Mix (dB)",                nullptr, 0,          0},
        {id("mgan"), fader,   nullptr,                   nullptr, id("mgan"), 0},
        {id("dafr"), knob,    nullptr,                   b,       id("dafr"), 0},
        {id("dsfr"), knob,    nullptr,                   b,       id("dsfr"), 0},
        {id("osc2"), toggle,  nullptr,                   ena,     id("osc2"), 0},
        {id("dmgn"), fader,   nullptr,                   nullptr, id("dmgn"), 0},
        {id("gain"), knob,    nullptr,                   c,       id("gain"), 0},
        {id("attk"), knob,    nullptr,                   a,       id("attk"), 0},
        {id("rlse"), knob,    nullptr,                   a,       id("rlse"), 0},
        {id("patt"), knob,    nullptr,                   a,       id("patt"), 0},
        {id("prls"), knob,    nullptr,                   a,       id("prls"), 0},
        {id("wetd"), knob,    nullptr,                   c,       id("wetd"), 0},
        {id("osl1"), caption, "Osc 1",                   nullptr, 0,          0},
        {id("osl2"), caption, "Osc 2",                   nullptr, 0,          0},
        {id("foll"), caption, "Amplitude Followers",     nullptr, 0,          0},
        {id("outl"), caption, "Output",                  nullptr, 0,          0},
        {id("wndl"), caption, "Oscillator Pitch History", nullptr, 0,         0},
        {id("envl"), caption, "Envelope",                nullptr, 0,          0},
        {id("pitl"), caption, "Pitch",                   nullptr, 0,          0},
        {id("metr"), meter,   "Output",                  nullptr, 0,          id("out ")},
        {id("mtr2"), meter,   "Output2",                 nullptr, 0,          id("out2")},
        {id("mtcb"), scale,   "Meters Cal",              nullptr, 0,          0},
        {id("wind"), history, "Brolt Readout",           back,    0,          id("ptch")},
        {id("logo"), picture, "QMBrolt",                 logo,    0,          0},
        {id("bkgd"), bevel,   "Bevel",                   nullptr, 0,          0},
        {id("UPDT"), updates, "Update Check",            nullptr, 0,          0},
    }};
    // clang-format on
}

std::span<const FourCharCode> upToOne(const FourCharCode& code) {
    return {&code, code == 0 ? std::size_t{0} : std::size_t{1}};
}

/// Ends with its entry of zeros.
const std::vector<QMWidgetDescriptor>& widgets() {
    static const std::array<Row, 30> rows = widgetRows();
    static const std::vector<QMWidgetDescriptor> table = [] {
        std::vector<QMWidgetDescriptor> made;
        for (const Row& row : rows) {
            const QMBrolt_EditorText* const text = QMBrolt_editorText(row.parameter);
            QMWidgetDescriptor& widget = made.emplace_back();
            widget.widgetID = row.widgetID;
            widget.widgetType = row.type;
            widget.label = row.label == nullptr ? text->label.c_str() : row.label;
            widget.style = row.style;
            widget.parameterIDs = upToOne(row.parameter);
            widget.displayIDs = upToOne(row.display);
        }
        made.emplace_back();
        return made;
    }();
    return table;
}

// Help.

struct HelpRow {
    FourCharCode widgetID;
    const char* text; ///< null: that of the parameter's control
};

// clang-format off
constexpr std::array<HelpRow, 19> helpRows{{
    {id("afre"), nullptr},
    {id("sfre"), nullptr},
    {id("osc1"), nullptr},
    {id("mgan"), nullptr},
    {id("dafr"), nullptr},
    {id("dsfr"), nullptr},
    {id("osc2"), nullptr},
    {id("dmgn"), nullptr},
    {id("gain"), nullptr},
    {id("attk"), nullptr},
    {id("rlse"), nullptr},
    {id("patt"), nullptr},
    {id("prls"), nullptr},
    {id("wetd"), nullptr},
    {id("wind"), "Shows the history of the pitch and gain of the synth oscillators."},
    {id("metr"), "Output meter for Left Channel."},
    {id("mtr2"), "Output meter for Right Channel."},
    {id("help"), "Help Button: When enabled, tooltips will be displayed for elements that have help available. "
                 "You can also hold the ? or Help button on your keyboard at any time to pop help up for the "
                 "element under the mouse pointer."},
    {id("smlB"), "UI Size Selector: Click to choose between small, medium and large UI."},
}};

// clang-format on

/// Ends with its entry of zeros.
const std::vector<QMWidgetHelpEntry>& help() {
    static const std::vector<QMWidgetHelpEntry> table = [] {
        std::vector<QMWidgetHelpEntry> made;
        for (const HelpRow& row : helpRows) {
            const QMBrolt_EditorText* const text = QMBrolt_editorText(row.widgetID);
            made.push_back({row.widgetID, row.text == nullptr ? text->help.c_str() : row.text});
        }
        made.emplace_back();
        return made;
    }();
    return table;
}

} // namespace

QMWidgetPluginUI::Tables QMBrolt::editorTables(std::int32_t channels) {
    constexpr std::int32_t stereo = 2;
    return {channels == stereo ? stereoLayout() : monoLayout(), widgets(), help()};
}
