// SPDX-License-Identifier: GPL-3.0-or-later
// The drawing target on an image, the shadow strip and the shapes that widgets share, by pixels.

#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/drawing/QMGraphicsDrawingTarget.h"
#include "widgets/drawing/QMShadower.h"
#include "widgets/drawing/SharedDrawing.h"
#include "widgets/drawing/tests/Rendering.h"

namespace {

using juce::Colour;
using juce::Colours::black;
using juce::Colours::blue;
using juce::Colours::green;
using juce::Colours::red;
using juce::Colours::transparentBlack;
using juce::Colours::white;

using Drawing = ToolkitTest;

template <typename Draw>
juce::Image drawn(const Draw& draw) {
    return rendered(20, 10, white, [&draw](juce::Graphics& g) {
        QMGraphicsDrawingTarget target(g);
        draw(target);
    });
}

juce::Image plainImage(int width, int height, Colour colour) {
    return rendered(width, height, colour, [](juce::Graphics&) {});
}

TEST_F(Drawing, fillsAndFramesRectangles) {
    const juce::Image image = drawn([](QMDrawingTarget& target) {
        target.setColour(red);
        target.fillRectangle({2.0F, 2.0F, 4.0F, 4.0F});
        target.setColour(blue);
        target.drawRectangle({10.0F, 0.0F, 8.0F, 8.0F}, 2.0F);
    });
    EXPECT_EQ(image.getPixelAt(2, 2), red);
    EXPECT_EQ(image.getPixelAt(5, 5), red);
    EXPECT_EQ(image.getPixelAt(6, 5), white);
    EXPECT_EQ(image.getPixelAt(11, 1), blue);
    EXPECT_EQ(image.getPixelAt(13, 4), white);
    EXPECT_EQ(image.getPixelAt(18, 4), white);
}

TEST_F(Drawing, drawsLinesAndPaths) {
    const juce::Image image = drawn([](QMDrawingTarget& target) {
        target.setColour(green);
        target.drawLine({0.0F, 1.0F, 20.0F, 1.0F}, 2.0F);
        juce::Path path;
        path.addRectangle(4.0F, 4.0F, 4.0F, 4.0F);
        target.fillPath(path);
        juce::Path stroke;
        stroke.startNewSubPath(15.0F, 4.0F);
        stroke.lineTo(15.0F, 10.0F);
        target.strokePath(stroke, 4.0F);
    });
    EXPECT_EQ(image.getPixelAt(10, 0), green);
    EXPECT_EQ(image.getPixelAt(10, 1), green);
    EXPECT_EQ(image.getPixelAt(10, 2), white);
    EXPECT_EQ(image.getPixelAt(5, 5), green);
    EXPECT_EQ(image.getPixelAt(13, 7), green);
    EXPECT_EQ(image.getPixelAt(16, 7), green);
    EXPECT_EQ(image.getPixelAt(12, 7), white);
}

TEST_F(Drawing, multipliesOpacityAndTheColoursAlpha) {
    const juce::Image image = drawn([](QMDrawingTarget& target) {
        target.setOpacity(0.5F);
        target.setColour(black.withAlpha(0.5F));
        target.fillRectangle({0.0F, 0.0F, 5.0F, 5.0F});
        target.setColour(black);
        target.fillRectangle({5.0F, 0.0F, 5.0F, 5.0F});
    });
    EXPECT_TRUE(isNear(image.getPixelAt(2, 2), Colour::greyLevel(0.75F)));
    EXPECT_TRUE(isNear(image.getPixelAt(7, 2), Colour::greyLevel(0.5F)));
}

TEST_F(Drawing, drawsImagesStretchedAndWithTheOpacityAlone) {
    const juce::Image image = drawn([](QMDrawingTarget& target) {
        target.setColour(red.withAlpha(0.1F));
        target.setOpacity(0.5F);
        target.drawImage(plainImage(2, 2, black), {0.0F, 0.0F, 10.0F, 10.0F});
        target.drawImage({}, {0.0F, 0.0F, 10.0F, 10.0F});
    });
    EXPECT_TRUE(isNear(image.getPixelAt(5, 5), Colour::greyLevel(0.5F)));
    EXPECT_EQ(image.getPixelAt(12, 5), white);
}

TEST_F(Drawing, bringsBackWhatWasSaved) {
    const juce::Image image = drawn([](QMDrawingTarget& target) {
        target.setColour(red);
        target.saveState();
        target.setColour(blue);
        target.setOpacity(0.1F);
        target.addTransform(juce::AffineTransform::translation(10.0F, 0.0F));
        EXPECT_TRUE(target.clipToRectangle({0, 0, 2, 2}));
        EXPECT_EQ(target.clipBounds(), juce::Rectangle<int>(0, 0, 2, 2));
        target.restoreState();
        target.fillRectangle({0.0F, 0.0F, 4.0F, 4.0F});
        // More than was saved.
        target.restoreState();
        target.fillRectangle({6.0F, 0.0F, 1.0F, 4.0F});
    });
    EXPECT_EQ(image.getPixelAt(3, 3), red);
    EXPECT_EQ(image.getPixelAt(6, 3), red);
    EXPECT_EQ(image.getPixelAt(10, 1), white);
}

TEST_F(Drawing, drawsNothingOutsideTheClip) {
    const juce::Image image = drawn([](QMDrawingTarget& target) {
        target.setColour(red);
        juce::Path left;
        left.addRectangle(0.0F, 0.0F, 5.0F, 10.0F);
        EXPECT_TRUE(target.clipToPath(left));
        target.fillAll();
        EXPECT_FALSE(target.clipToRectangle({12, 0, 3, 3}));
        target.fillAll();
    });
    EXPECT_EQ(image.getPixelAt(4, 9), red);
    EXPECT_EQ(image.getPixelAt(5, 9), white);
    EXPECT_EQ(image.getPixelAt(13, 1), white);
}

TEST_F(Drawing, transformsWhatIsDrawn) {
    const juce::Image image = drawn([](QMDrawingTarget& target) {
        target.setColour(red);
        target.addTransform(juce::AffineTransform::scale(2.0F));
        target.fillRectangle({1.0F, 1.0F, 1.0F, 1.0F});
    });
    EXPECT_EQ(image.getPixelAt(3, 3), red);
    EXPECT_EQ(image.getPixelAt(1, 1), white);
    EXPECT_EQ(image.getPixelAt(4, 4), white);
}

TEST_F(Drawing, leavesTheContextAsItWas) {
    const juce::Image image = rendered(10, 10, white, [](juce::Graphics& g) {
        g.setColour(green);
        {
            QMGraphicsDrawingTarget target(g);
            target.saveState();
            target.setColour(red);
            target.clipToRectangle({0, 0, 1, 1});
        }
        g.fillRect(4, 4, 2, 2);
    });
    EXPECT_EQ(image.getPixelAt(5, 5), green);
}

TEST_F(Drawing, writesText) {
    const juce::Image image = drawn([](QMDrawingTarget& target) {
        target.setColour(black);
        target.setFont(juce::Font(10.0F));
        target.drawText("HHH", {0.0F, 0.0F, 20.0F, 10.0F}, juce::Justification::centred);
    });
    int dark = 0;
    for (int y = 0; y < 10; ++y)
        for (int x = 0; x < 20; ++x)
            dark += image.getPixelAt(x, y).getBrightness() < 0.5F ? 1 : 0;
    EXPECT_GT(dark, 10);
}

juce::Image shadow(int width, int height, QMShadower::DarkEdge edge) {
    QMShadower shadower(edge);
    shadower.setBounds(0, 0, width, height);
    return rendered(width, height, white, [&shadower](juce::Graphics& g) { shadower.paint(g); });
}

/// White below black at 0.4 x (1 - the way across): the middle of pixel i of n is (i + 0.5) / n.
Colour shaded(int i, int n) {
    const float way = (static_cast<float>(i) + 0.5F) / static_cast<float>(n);
    return Colour::greyLevel(1.0F - 0.4F * (1.0F - way));
}

TEST_F(Drawing, shadesAWideStripFromItsTop) {
    const juce::Image image = shadow(40, 8, QMShadower::DarkEdge::topOrLeft);
    for (int i = 0; i < 8; ++i)
        EXPECT_TRUE(isNear(image.getPixelAt(20, i), shaded(i, 8), 4)) << i;
    EXPECT_EQ(image.getPixelAt(0, 3), image.getPixelAt(39, 3));
}

TEST_F(Drawing, shadesAHighStripFromItsLeft) {
    const juce::Image image = shadow(8, 40, QMShadower::DarkEdge::topOrLeft);
    for (int i = 0; i < 8; ++i)
        EXPECT_TRUE(isNear(image.getPixelAt(i, 20), shaded(i, 8), 4)) << i;
}

TEST_F(Drawing, shadesFromTheOtherEdge) {
    const juce::Image wide = shadow(40, 8, QMShadower::DarkEdge::bottomOrRight);
    const juce::Image high = shadow(8, 40, QMShadower::DarkEdge::bottomOrRight);
    for (int i = 0; i < 8; ++i) {
        EXPECT_TRUE(isNear(wide.getPixelAt(20, i), shaded(7 - i, 8), 4)) << i;
        EXPECT_TRUE(isNear(high.getPixelAt(i, 20), shaded(7 - i, 8), 4)) << i;
    }
}

TEST_F(Drawing, lacksNothingOfTheMouseBelowAShadow) {
    QMShadower shadower;
    shadower.setBounds(0, 0, 10, 10);
    bool itself = true;
    bool children = true;
    shadower.getInterceptsMouseClicks(itself, children);
    EXPECT_FALSE(itself);
    EXPECT_FALSE(children);
}

juce::Image frame(int width, int height) {
    return rendered(width, height, white, [width, height](juce::Graphics& g) {
        // Caps 7 x 10 and 9 x 10.
        drawGlossyFrame(g, {width, height}, plainImage(7, 10, red), plainImage(3, 10, green),
                        plainImage(9, 10, blue));
    });
}

TEST_F(Drawing, framesWithCapsOfTheirOwnShape) {
    const juce::Image image = frame(40, 15);
    // 7 x 15 / 10 = 10.5 and 9 x 15 / 10 = 13.5, whole pixels of each: 10, 17 between, 13.
    EXPECT_TRUE(isNear(image.getPixelAt(9, 7), red));
    EXPECT_TRUE(isNear(image.getPixelAt(10, 7), green));
    EXPECT_TRUE(isNear(image.getPixelAt(26, 7), green));
    EXPECT_TRUE(isNear(image.getPixelAt(27, 7), blue));
    EXPECT_TRUE(isNear(image.getPixelAt(39, 14), blue));
}

TEST_F(Drawing, framesWhatIsNarrowerThanTheCaps) {
    const juce::Image image = frame(14, 15);
    EXPECT_TRUE(isNear(image.getPixelAt(9, 7), red));
    EXPECT_TRUE(isNear(image.getPixelAt(10, 7), blue));
    EXPECT_TRUE(isNear(image.getPixelAt(13, 7), blue));
    EXPECT_TRUE(isNear(frame(4, 15).getPixelAt(3, 7), red));
}

TEST_F(Drawing, framesWithoutAPictureThatIsMissing) {
    const juce::Image image = rendered(20, 10, white, [](juce::Graphics& g) {
        drawGlossyFrame(g, {20, 10}, {}, plainImage(3, 10, green), plainImage(5, 10, blue));
        drawGlossyFrame(g, {}, plainImage(3, 10, red), {}, {});
    });
    EXPECT_TRUE(isNear(image.getPixelAt(0, 5), green));
    EXPECT_TRUE(isNear(image.getPixelAt(15, 5), blue));
}

juce::Image pill(JoinedEdges joined) {
    return rendered(40, 20, transparentBlack, [joined](juce::Graphics& g) {
        drawPill(g, {0.0F, 0.0F, 40.0F, 20.0F}, 8.0F, white, black, joined);
    });
}

TEST_F(Drawing, makesAPillRoundAndRunningDownwards) {
    const juce::Image image = pill({});
    for (const auto& corner : {juce::Point(0, 0), {39, 0}, {0, 19}, {39, 19}})
        EXPECT_LT(image.getPixelAt(corner.x, corner.y).getAlpha(), 60) << corner.toString();
    EXPECT_GT(image.getPixelAt(20, 0).getBrightness(), 0.9F);
    EXPECT_TRUE(isNear(image.getPixelAt(20, 10), Colour::greyLevel(0.475F), 8));
    EXPECT_LT(image.getPixelAt(20, 19).getBrightness(), 0.1F);
}

TEST_F(Drawing, squaresAPillWhereItIsJoined) {
    const auto isSquare = [](const juce::Image& image, int x, int y) {
        return image.getPixelAt(x, y).getAlpha() > 250;
    };
    const juce::Image left = pill({.left = true});
    EXPECT_TRUE(isSquare(left, 0, 0));
    EXPECT_TRUE(isSquare(left, 0, 19));
    EXPECT_FALSE(isSquare(left, 39, 0));
    const juce::Image right = pill({.right = true});
    EXPECT_TRUE(isSquare(right, 39, 0));
    EXPECT_TRUE(isSquare(right, 39, 19));
    EXPECT_FALSE(isSquare(right, 0, 19));
    const juce::Image top = pill({.top = true});
    EXPECT_TRUE(isSquare(top, 0, 0));
    EXPECT_TRUE(isSquare(top, 39, 0));
    EXPECT_FALSE(isSquare(top, 0, 19));
    const juce::Image bottom = pill({.bottom = true});
    EXPECT_TRUE(isSquare(bottom, 0, 19));
    EXPECT_TRUE(isSquare(bottom, 39, 19));
    EXPECT_FALSE(isSquare(bottom, 39, 0));
}

} // namespace
