// SPDX-License-Identifier: GPL-3.0-or-later
// The pitch history of the product's editor, from what the processor captures to the pixels of its
// traces.
#include "brolt/editor/tests/support/BroltEditorTest.h"
#include "widgets/history/QMPitchHistory.h"

#include <cmath>

namespace {

constexpr double turn = 6.283185307179586;
constexpr int tickMs = 30;
/// Pixels from the display's edge, at 100 percent; its rim is narrower.
constexpr int nearTheEdge = 14;

const juce::Colour green(0, 255, 0);
const juce::Colour orange(255, 127, 0);

class EditorHistory : public BroltEditorTest {
protected:
    EditorHistory() { openAt(100); }

    [[nodiscard]] QMPitchHistory& history() const { return widget<QMPitchHistory>("wind"); }

    /// What the processor captures of an oscillator: the cosine of its phase's step at 44100 Hz.
    static float cosineOf(double frequency) {
        return static_cast<float>(std::cos(turn * frequency / 44100.0));
    }

    /// For half a second, which is 83 of the display's 502 pixels.
    void play(double first, float firstLevel, double second, float secondLevel) {
        instance->analysis() = {cosineOf(first), cosineOf(second), firstLevel, secondLevel};
        beginTicking();
        for (int ms = 0; ms < 500; ms += tickMs)
            tickAfter(tickMs);
    }

    /// Pixels from the top for the design's height of 173: 440 Hz is 20 below the upper edge, 0 is
    /// 20 above the lower one.
    static int heightOf(double frequency) {
        return static_cast<int>(std::lround(153.0 - 133.0 * frequency / 440.0));
    }

    [[nodiscard]] juce::Colour pixel(int fromRight, int y) const {
        const juce::Image image = pictureOf(history());
        return image.getPixelAt(image.getWidth() - fromRight, y);
    }

    /// A pixel's three channels are within two of a colour's.
    static void expectColour(juce::Colour pixel, juce::Colour wanted, const std::string& where) {
        EXPECT_NEAR(pixel.getRed(), wanted.getRed(), 2) << where;
        EXPECT_NEAR(pixel.getGreen(), wanted.getGreen(), 2) << where;
        EXPECT_NEAR(pixel.getBlue(), wanted.getBlue(), 2) << where;
    }
};

TEST_F(EditorHistory, showsOnlyItsBackdropWhileNothingSounds) {
    const juce::Image before = pictureOf(history());
    play(100.0, 0.0F, 300.0, 0.0F);
    const juce::Image after = pictureOf(history());
    for (int y = 0; y < before.getHeight(); ++y) {
        for (int x = 0; x < before.getWidth(); ++x)
            ASSERT_EQ(before.getPixelAt(x, y), after.getPixelAt(x, y)) << x << ", " << y;
    }
    EXPECT_EQ(before.getBounds(), juce::Rectangle<int>(0, 0, 502, 173));
}

TEST_F(EditorHistory, drawsTheFirstOscillatorInGreenAtItsFrequency) {
    const juce::Colour below = pixel(nearTheEdge, heightOf(60.0) + 6);
    for (const double frequency : {1.0, 60.0, 110.0, 220.0, 439.99}) {
        open();
        editor->setScalePercent(100);
        play(frequency, 1.0F, 100.0, 0.0F);
        for (const int fromRight : {nearTheEdge, 40, 70}) {
            expectColour(pixel(fromRight, heightOf(frequency)), green,
                         std::to_string(frequency) + " Hz, " + std::to_string(fromRight));
        }
    }
    play(60.0, 1.0F, 100.0, 0.0F);
    EXPECT_EQ(pixel(nearTheEdge, heightOf(60.0) + 6), below) << "the line is four pixels wide";
}

TEST_F(EditorHistory, drawsTheSecondInOrangeOverTheFirst) {
    play(110.0, 1.0F, 330.0, 1.0F);
    expectColour(pixel(nearTheEdge, heightOf(110.0)), green, "first");
    expectColour(pixel(nearTheEdge, heightOf(330.0)), orange, "second");
    play(220.0, 1.0F, 220.0, 1.0F);
    expectColour(pixel(nearTheEdge, heightOf(220.0)), orange, "both");
}

TEST_F(EditorHistory, drawsAQuarterOfTheGainHalfTransparent) {
    const juce::Colour behind = pixel(nearTheEdge, heightOf(200.0));
    play(200.0, 0.25F, 100.0, 0.0F);
    expectColour(pixel(nearTheEdge, heightOf(200.0)), behind.interpolatedWith(green, 0.5F),
                 "a quarter");
}

TEST_F(EditorHistory, takesAGainBeyondOneForOne) {
    play(200.0, 100.0F, 100.0, -1.0F);
    expectColour(pixel(nearTheEdge, heightOf(200.0)), green, "first");
}

TEST_F(EditorHistory, showsWhatIsHeardAtTheRateOfTheHost) {
    instance->setSampleRate(48000.0);
    play(220.0, 1.0F, 330.0, 1.0F);
    // The processor counts with 44100 Hz; at 48000 everything sounds higher.
    expectColour(pixel(nearTheEdge, heightOf(220.0 * 48000.0 / 44100.0)), green, "first");
    expectColour(pixel(nearTheEdge, heightOf(330.0 * 48000.0 / 44100.0)), orange, "second");
    EXPECT_EQ(history().getSampleRate(), 48000.0F);
    EXPECT_NE(pixel(nearTheEdge, heightOf(220.0)), green);
}

TEST_F(EditorHistory, followsAHostThatChangesItsRate) {
    instance->setSampleRate(44100.0);
    play(100.0, 1.0F, 0.0, 0.0F);
    instance->setSampleRate(96000.0);
    tickAfter(tickMs);
    EXPECT_NEAR(history().getSamples().newest().frequency[0], 100.0 * 96000.0 / 44100.0, 0.1);
}

TEST_F(EditorHistory, drawsTheTopEdgeForWhatIsAboveTheScale) {
    play(880.0, 1.0F, 100.0, 0.0F);
    expectColour(pixel(40, 1), green, "at the edge");
}

TEST_F(EditorHistory, forgetsWhatWasAboveTheScaleForAMoment) {
    play(100.0, 1.0F, 100.0, 0.0F);
    instance->analysis()[0] = cosineOf(880.0);
    tickAfter(tickMs);
    EXPECT_NEAR(history().getSamples().newest().frequency[0], 880.0, 0.1);
    instance->analysis()[0] = cosineOf(100.0);
    for (int ms = 0; ms < 300; ms += tickMs)
        tickAfter(tickMs);
    for (std::size_t i = 0; i < history().getSamples().size(); ++i)
        EXPECT_NEAR(history().getSamples()[i].frequency[0], 100.0, 0.1) << i;
    expectColour(pixel(55, heightOf(100.0)), green, "then");
}

TEST_F(EditorHistory, movesFromRightToLeftInThreeSeconds) {
    instance->setSampleRate(44100.0);
    play(200.0, 1.0F, 100.0, 0.0F);
    // 501 pixels for three seconds; half a second of sound, then silence.
    instance->analysis()[2] = 0.0F;
    for (int ms = 0; ms < 1500; ms += tickMs)
        tickAfter(tickMs);
    const int moved = 501 / 2;
    expectColour(pixel(moved + 40, heightOf(200.0)), green, "a while ago");
    EXPECT_NE(pixel(moved - 20, heightOf(200.0)), green) << "silent since";
    for (int ms = 0; ms < 1800; ms += tickMs)
        tickAfter(tickMs);
    const juce::Image image = pictureOf(history());
    for (int x = 0; x < image.getWidth(); ++x)
        ASSERT_NE(image.getPixelAt(x, heightOf(200.0)), green) << x;
}

TEST_F(EditorHistory, reachesTheLeftEdgeAndKeepsNoMore) {
    play(200.0, 1.0F, 100.0, 0.0F);
    for (int ms = 0; ms < 6000; ms += tickMs)
        tickAfter(tickMs);
    expectColour(pixel(502 - nearTheEdge, heightOf(200.0)), green, "left edge");
    // 3.1 seconds of ticks 30 ms apart, and the newest.
    EXPECT_LE(history().getSamples().size(), 3100U / tickMs + 1);
    EXPECT_GE(history().getSamples().size(), 3000U / tickMs);
}

TEST_F(EditorHistory, growsWithTheEditor) {
    play(220.0, 1.0F, 110.0, 1.0F);
    for (const std::int32_t percent : {40, 120, 250}) {
        editor->setScalePercent(percent);
        const double factor = percent / 100.0;
        const double height = history().getHeight();
        const auto y = [&](double frequency) {
            return static_cast<int>(height - 20.0 * factor -
                                    (height - 40.0 * factor) * frequency / 440.0);
        };
        expectColour(pixel(static_cast<int>(nearTheEdge * factor), y(220.0)), green,
                     "first at " + std::to_string(percent));
        expectColour(pixel(static_cast<int>(nearTheEdge * factor), y(110.0)), orange,
                     "second at " + std::to_string(percent));
    }
}

TEST_F(EditorHistory, isTheSameForOneChannel) {
    openAt(100, mono);
    play(150.0, 1.0F, 250.0, 1.0F);
    expectColour(pixel(nearTheEdge, heightOf(150.0)), green, "first");
    expectColour(pixel(nearTheEdge, heightOf(250.0)), orange, "second");
}

} // namespace
