// SPDX-License-Identifier: GPL-3.0-or-later
// Every label and help text of the editor, written out in full: users and translators know them by
// the letter.
#include "brolt/model/QMBrolt_EditorTexts.h"

#include "brolt/model/QMBrolt_ParameterTable.h"

#include <gtest/gtest.h>

namespace {

struct Row {
    FourCharCode id;
    const char* label;
    const char* help;
};

// clang-format off
constexpr Row rows[] = {
    {fourCharCode("afre"), "Atk. Freq",
     "Sets the frequency of Oscillator 1 when the pitch envelop detector is at the maximum "
     "level. Click and drag to change. Alt-Click or double-click to reset to default. "
     "Control-click and drag for fine-adjust mode. You may also use the scroll-wheel or "
     "scroll-gesture to adjust. Click on the readout window to change value by entering text."},
    {fourCharCode("sfre"), "Sust. Freq",
     "Sets the frequency of Oscillator 1 when the pitch envelop detector is at the minimum "
     "level. Click and drag to change. Alt-Click or double-click to reset to default. "
     "Control-click and drag for fine-adjust mode. You may also use the scroll-wheel or "
     "scroll-gesture to adjust. Click on the readout window to change value by entering text."},
    {fourCharCode("osc1"), "Ena",
     "Enables Oscillator 1. Click to toggle."},
    {fourCharCode("mgan"), "Mix (dB)",
     "Sets the mix level for Oscillator 1. Click and drag to change. Alt-Click or double-click "
     "to reset to default. Control-click and drag for fine-adjust mode. You may also use the "
     "scroll-wheel or scroll-gesture to adjust. Click on the readout window to change value by "
     "entering text."},
    {fourCharCode("dafr"), "Atk. Freq",
     "Sets the frequency of Oscillator 2 when the pitch envelop detector is at the maximum "
     "level. Click and drag to change. Alt-Click or double-click to reset to default. "
     "Control-click and drag for fine-adjust mode. You may also use the scroll-wheel or "
     "scroll-gesture to adjust. Click on the readout window to change value by entering text."},
    {fourCharCode("dsfr"), "Sust. Freq",
     "Sets the frequency of Oscillator 2 when the pitch envelop detector is at the minimum "
     "level. Click and drag to change. Alt-Click or double-click to reset to default. "
     "Control-click and drag for fine-adjust mode. You may also use the scroll-wheel or "
     "scroll-gesture to adjust. Click on the readout window to change value by entering text."},
    {fourCharCode("osc2"), "Ena",
     "Enables Oscillator 2. Click to toggle."},
    {fourCharCode("dmgn"), "Mix (dB)",
     "Sets the mix level for Oscillator 2. Click and drag to change. Alt-Click or double-click "
     "to reset to default. Control-click and drag for fine-adjust mode. You may also use the "
     "scroll-wheel or scroll-gesture to adjust. Click on the readout window to change value by "
     "entering text."},
    {fourCharCode("gain"), "Out Gain (dB)",
     "Sets the overall output gain of the processor. Click and drag to change. Alt-Click or "
     "double-click to reset to default. Control-click and drag for fine-adjust mode. You may "
     "also use the scroll-wheel or scroll-gesture to adjust. Click on the readout window to "
     "change value by entering text."},
    {fourCharCode("attk"), "Env Atk.",
     "Sets the attack time (in ms) for the level envelope detector that is used to envelope the "
     "output of the oscillators. Click and drag to change. Alt-Click or double-click to reset to "
     "default. Control-click and drag for fine-adjust mode. You may also use the scroll-wheel or "
     "scroll-gesture to adjust. Click on the readout window to change value by entering text."},
    {fourCharCode("rlse"), "Env Sust.",
     "Sets the release time (in ms) for the level envelope detector that is used to envelope the "
     "output of the oscillators. Click and drag to change. Alt-Click or double-click to reset to "
     "default. Control-click and drag for fine-adjust mode. You may also use the scroll-wheel or "
     "scroll-gesture to adjust. Click on the readout window to change value by entering text."},
    {fourCharCode("patt"), "Pitch Atk.",
     "Sets the attack time (in ms) for the level envelope detector that is used to drive the "
     "pitch of the oscillators. Click and drag to change. Alt-Click or double-click to reset to "
     "default. Control-click and drag for fine-adjust mode. You may also use the scroll-wheel or "
     "scroll-gesture to adjust. Click on the readout window to change value by entering text."},
    {fourCharCode("prls"), "Pitch Sust.",
     "Sets the release time (in ms) for the level envelope detector that is used to drive the "
     "pitch of the oscillators. Click and drag to change. Alt-Click or double-click to reset to "
     "default. Control-click and drag for fine-adjust mode. You may also use the scroll-wheel or "
     "scroll-gesture to adjust. Click on the readout window to change value by entering text."},
    {fourCharCode("wetd"), "Wet/Dry Mix",
     "Sets wet/dry mix of the processor. When set to 0% only the input signal is passed. When "
     "set to 100% only the synthesized signal is passed. Click and drag to change. Alt-Click or "
     "double-click to reset to default. Control-click and drag for fine-adjust mode. You may "
     "also use the scroll-wheel or scroll-gesture to adjust. Click on the readout window to "
     "change value by entering text."},
};
// clang-format on

} // namespace

TEST(QMBrolt_EditorTexts, areTheProductsOwnWording) {
    for (const Row& row : rows) {
        SCOPED_TRACE(fourCharText(row.id));
        const QMBrolt_EditorText* text = QMBrolt_editorText(row.id);
        ASSERT_NE(text, nullptr);
        EXPECT_EQ(text->id, row.id);
        EXPECT_EQ(text->label, row.label);
        EXPECT_EQ(text->help, row.help);
    }
}

TEST(QMBrolt_EditorTexts, areThereForEveryParameterButTheBypass) {
    for (const NoxPlugInParameter& parameter : QMBrolt_parameters()) {
        const bool isBypass = parameter.id == fourCharCode("mbyp");
        EXPECT_EQ(QMBrolt_editorText(parameter.id) == nullptr, isBypass) << parameter.name;
    }
}

TEST(QMBrolt_EditorTexts, areNotThereForUnknownIdentifiers) {
    for (const FourCharCode id : {0u, 0xFFFFFFFFu, fourCharCode("AFRE"), fourCharCode("none")})
        EXPECT_EQ(QMBrolt_editorText(id), nullptr) << id;
}

TEST(QMBrolt_EditorTexts, stayWhereTheyAre) {
    EXPECT_EQ(QMBrolt_editorText(fourCharCode("gain")), QMBrolt_editorText(fourCharCode("gain")));
}
