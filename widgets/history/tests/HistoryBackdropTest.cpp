// SPDX-License-Identifier: GPL-3.0-or-later
// The image behind the traces.
#include "widgets/history/HistoryBackdrop.h"

#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/statics/tests/PictureOf.h"

namespace {

class HistoryBackdropTest : public ToolkitTest {
protected:
    /// On red, at a number of the screen's pixels for each of ours.
    juce::Image drawn(juce::Rectangle<int> area, float scale = 1.0f) {
        const int side = juce::roundToInt(20.0f * scale);
        juce::Image picture(juce::Image::RGB, side, side, true, juce::SoftwareImageType());
        juce::Graphics g(picture);
        g.fillAll(juce::Colours::red);
        g.addTransform(juce::AffineTransform::scale(scale));
        backdrop.draw(g, area, [&](juce::Graphics& on) {
            ++made;
            on.setColour(colour);
            on.fillRect(0, 0, 10, 10);
        });
        return picture;
    }

    int made = 0;
    juce::Colour colour = juce::Colours::blue;
    HistoryBackdrop backdrop;
};

} // namespace

TEST_F(HistoryBackdropTest, IsMadeOnceForASize) {
    juce::ignoreUnused(drawn({0, 0, 10, 10}));
    const juce::Image moved = drawn({5, 5, 10, 10});
    EXPECT_EQ(made, 1);
    expectPixel(moved, 4, 5, juce::Colours::red);
    expectPixel(moved, 5, 5, juce::Colours::blue);
    expectPixel(moved, 14, 14, juce::Colours::blue);
    expectPixel(moved, 15, 14, juce::Colours::red);
    juce::ignoreUnused(drawn({0, 0, 10, 11}));
    EXPECT_EQ(made, 2);
    backdrop.drop();
    juce::ignoreUnused(drawn({0, 0, 10, 11}));
    EXPECT_EQ(made, 3);
}

TEST_F(HistoryBackdropTest, HasTheScreensOwnPixels) {
    juce::ignoreUnused(drawn({0, 0, 10, 10}));
    const juce::Image fine = drawn({2, 2, 10, 10}, 2.0f);
    EXPECT_EQ(made, 2);
    expectPixel(fine, 3, 4, juce::Colours::red);
    expectPixel(fine, 4, 4, juce::Colours::blue);
    expectPixel(fine, 23, 23, juce::Colours::blue);
    expectPixel(fine, 24, 23, juce::Colours::red);
}

TEST_F(HistoryBackdropTest, WhatIsTransparentInItStaysSo) {
    const juce::Image half = drawn({0, 0, 12, 10});
    expectPixel(half, 9, 5, juce::Colours::blue);
    expectPixel(half, 11, 5, juce::Colours::red);
    backdrop.drop();
    colour = juce::Colours::blue.withAlpha(0.5f);
    expectPixel(drawn({0, 0, 10, 10}), 5, 5, juce::Colour(128, 0, 127));
}

TEST_F(HistoryBackdropTest, ItsRowsFitTogetherWhereverItIs) {
    const auto paint = [](juce::Graphics& on) {
        on.setGradientFill(juce::ColourGradient::vertical(juce::Colours::blue, 0.0f,
                                                          juce::Colours::yellow, 60.0f));
        on.fillRoundedRectangle(0.0f, 0.0f, 40.0f, 60.0f, 12.0f);
    };

    struct Place {
        float scale;
        float x;
        float y;
    };

    for (const Place place :
         {Place{1.0f, 0.0f, 0.0f}, Place{2.0f, 3.0f, 4.0f}, Place{1.25f, 0.0f, 0.0f},
          Place{1.0f, 0.5f, 0.5f}, Place{1.25f, 1.0f, 1.0f}}) {
        const auto drawnBy = [&](const std::function<void(juce::Graphics&)>& drawing) {
            juce::Image picture(juce::Image::RGB, 120, 160, true, juce::SoftwareImageType());
            juce::Graphics g(picture);
            g.fillAll(juce::Colours::red);
            g.addTransform(
                juce::AffineTransform::translation(place.x, place.y).scaled(place.scale));
            drawing(g);
            return picture;
        };
        HistoryBackdrop rounded;
        const juce::Image picture = drawnBy([&](juce::Graphics& g) {
            rounded.draw(g, {5, 5, 40, 60}, paint);
        });
        const juce::Image expected = drawnBy([&](juce::Graphics& g) {
            g.setOrigin(5, 5);
            paint(g);
        });
        // Where it lies between the pixels its edge is softer; inside there is no seam.
        for (int y = 0; y < 160; ++y) {
            const int x = juce::roundToInt((25.0f + place.x) * place.scale);
            const juce::Rectangle<float> inside =
                juce::Rectangle<float>(5.0f + place.x, 5.0f + place.y, 40.0f, 60.0f) * place.scale;
            if (inside.reduced(1.5f).contains(static_cast<float>(x), static_cast<float>(y)))
                expectPixel(picture, x, y, expected.getPixelAt(x, y), 6);
        }
        const juce::Point<int> corner =
            (juce::Point<float>(6.0f + place.x, 6.0f + place.y) * place.scale).toInt();
        expectPixel(picture, corner.x, corner.y, juce::Colours::red);
    }
}

TEST_F(HistoryBackdropTest, NothingIsDrawnInNoArea) {
    expectPixel(drawn({}), 5, 5, juce::Colours::red);
    EXPECT_EQ(made, 0);
}
