// SPDX-License-Identifier: GPL-3.0-or-later
// Pitches as numbers.
#include "widgets/generic/GenericPitchDisplay.h"

#include "tests/support/toolkit/ToolkitTest.h"

#include <limits>

namespace {

const juce::String dash = juce::String::charToString(0x2013);

class GenericPitchDisplayTest : public ToolkitTest {
protected:
    GenericPitchDisplayTest() { display.bindMeterRecord(0, fourCharCode("ptch"), 6, &record); }

    // cos(2 pi 100 / 44100) = 0.99989850, cos(2 pi 440 / 44100) = 0.99803556
    NoxMeterRecord record{2, {0.99989850f, 0.5f, 0.99803556f, 0.25f, 0.0f, 0.0f}};
    GenericPitchDisplay display;
};

} // namespace

TEST_F(GenericPitchDisplayTest, ShowsHertzOfBothOscillators) {
    EXPECT_EQ(display.getText(0), dash);
    display.tick();
    EXPECT_EQ(display.getText(0), "100.0 Hz");
    EXPECT_EQ(display.getText(1), "440.0 Hz");
    EXPECT_EQ(display.getDisplayText(), "100.0 Hz, 440.0 Hz");
}

TEST_F(GenericPitchDisplayTest, ShowsADashForAnOscillatorThatIsSilentOrNotANumber) {
    record.values[1] = 0.0f;
    record.values[2] = std::numeric_limits<float>::quiet_NaN();
    display.tick();
    EXPECT_EQ(display.getText(0), dash);
    EXPECT_EQ(display.getText(1), dash);
    record.values[1] = 0.1f;
    record.values[2] = 1.5f;
    display.tick();
    EXPECT_EQ(display.getText(0), "100.0 Hz");
    EXPECT_EQ(display.getText(1), dash);
}

TEST_F(GenericPitchDisplayTest, UnboundItShowsDashes) {
    display.tick();
    display.bindMeterRecord(1, fourCharCode("ptch"), 6, nullptr);
    display.tick();
    EXPECT_EQ(display.getText(0), "100.0 Hz");
    display.bindMeterRecord(0, fourCharCode("ptch"), 6, nullptr);
    display.tick();
    EXPECT_EQ(display.getText(0), dash);
}
