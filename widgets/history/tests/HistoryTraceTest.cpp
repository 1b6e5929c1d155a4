// SPDX-License-Identifier: GPL-3.0-or-later
// The line of a history: its pieces' opacities, its joints, its gaps.
#include "widgets/history/HistoryTrace.h"

#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/statics/tests/PictureOf.h"

namespace {

const juce::Rectangle<int> whole(0, 0, 100, 40);

class HistoryTraceTest : public ToolkitTest {
protected:
    /// Green on black: the green of a pixel is how opaque the trace is there.
    int greenAt(int x, int y) {
        const juce::Image picture(juce::Image::RGB, whole.getWidth(), whole.getHeight(), true,
                                  juce::SoftwareImageType());
        juce::Graphics g(picture);
        HistoryTrace copy = trace;
        copy.draw(g);
        return picture.getPixelAt(x, y).getGreen();
    }

    HistoryTrace trace{juce::Colour(0, 255, 0), whole.toFloat(), 4.0f};
};

} // namespace

TEST_F(HistoryTraceTest, EachPieceHasTheOpacityOfItsEnd) {
    trace.lineTo({10.0f, 20.0f}, 1.0f);
    trace.lineTo({30.0f, 20.0f}, 1.0f);
    trace.lineTo({50.0f, 20.0f}, 0.5f);
    trace.lineTo({70.0f, 20.0f}, 0.25f);
    EXPECT_EQ(greenAt(5, 20), 0);
    EXPECT_EQ(greenAt(20, 20), 255);
    EXPECT_EQ(greenAt(28, 20), 255);
    EXPECT_NEAR(greenAt(32, 20), 127, 2);
    EXPECT_NEAR(greenAt(48, 20), 127, 2);
    EXPECT_NEAR(greenAt(52, 20), 64, 2);
    EXPECT_NEAR(greenAt(68, 20), 64, 2);
    EXPECT_EQ(greenAt(75, 20), 0);
}

TEST_F(HistoryTraceTest, ItIsAsThickAsItShouldBe) {
    trace.lineTo({0.0f, 20.0f}, 1.0f);
    trace.lineTo({100.0f, 20.0f}, 1.0f);
    EXPECT_EQ(greenAt(50, 17), 0);
    EXPECT_EQ(greenAt(50, 18), 255);
    EXPECT_EQ(greenAt(50, 21), 255);
    EXPECT_EQ(greenAt(50, 22), 0);
}

TEST_F(HistoryTraceTest, JointsAreNeitherDotsNorGaps) {
    // Pieces that end between pixels, as those of a history do.
    for (int i = 0; i <= 20; ++i)
        trace.lineTo({4.7f * static_cast<float>(i), 20.0f}, 0.5f);
    for (int x = 1; x < 93; ++x)
        EXPECT_NEAR(greenAt(x, 20), 127, 2) << x;
}

TEST_F(HistoryTraceTest, WhereOpacityFallsTheJointsLieBetweenTheirPieces) {
    for (int i = 0; i <= 20; ++i)
        trace.lineTo({4.7f * static_cast<float>(i), 20.0f}, 1.0f - 0.04f * static_cast<float>(i));
    int before = 255;
    for (int x = 1; x < 93; ++x) {
        const int here = greenAt(x, 20);
        EXPECT_LE(here, before + 1) << x;
        EXPECT_GE(here, before - 13) << x;
        before = here;
    }
}

TEST_F(HistoryTraceTest, ASteepPieceThatIsTheBrighterOneHasItsWholeThickness) {
    trace.lineTo({0.0f, 30.0f}, 0.25f);
    trace.lineTo({40.0f, 30.0f}, 0.25f);
    trace.lineTo({40.0f, 10.0f}, 1.0f);
    trace.lineTo({80.0f, 10.0f}, 0.25f);
    EXPECT_EQ(greenAt(37, 20), 0);
    for (const int x : {38, 39, 40, 41})
        EXPECT_EQ(greenAt(x, 20), 255) << x;
    EXPECT_EQ(greenAt(42, 20), 0);
    EXPECT_NEAR(greenAt(35, 30), 64, 2);
    EXPECT_NEAR(greenAt(45, 10), 64, 2);
}

TEST_F(HistoryTraceTest, AnInvisiblePieceIsAGap) {
    trace.lineTo({10.0f, 20.0f}, 1.0f);
    trace.lineTo({30.0f, 20.0f}, 1.0f);
    trace.lineTo({50.0f, 20.0f}, 0.0f);
    trace.lineTo({70.0f, 20.0f}, 1.0f);
    EXPECT_EQ(greenAt(29, 20), 255);
    EXPECT_EQ(greenAt(31, 20), 0);
    EXPECT_EQ(greenAt(49, 20), 0);
    EXPECT_EQ(greenAt(51, 20), 255);
}

TEST_F(HistoryTraceTest, AfterAGapItBeginsAtTheNextPoint) {
    trace.lineTo({10.0f, 20.0f}, 1.0f);
    trace.lineTo({30.0f, 20.0f}, 1.0f);
    trace.gap();
    trace.lineTo({50.0f, 20.0f}, 1.0f);
    trace.lineTo({70.0f, 20.0f}, 1.0f);
    EXPECT_EQ(greenAt(20, 20), 255);
    EXPECT_EQ(greenAt(40, 20), 0);
    EXPECT_EQ(greenAt(60, 20), 255);
}

TEST_F(HistoryTraceTest, WithoutAPieceItDrawsNothing) {
    EXPECT_EQ(greenAt(50, 20), 0);
    trace.lineTo({50.0f, 20.0f}, 1.0f);
    EXPECT_EQ(greenAt(50, 20), 0);
    EXPECT_EQ(greenAt(49, 20), 0);
}

TEST_F(HistoryTraceTest, ALineThatBeginsBeforeTheEdgeHasItsOpacityThere) {
    trace.lineTo({-30.0f, 20.0f}, 1.0f);
    trace.lineTo({-10.0f, 20.0f}, 0.25f);
    trace.lineTo({-5.0f, 20.0f}, 1.0f);
    trace.lineTo({20.0f, 20.0f}, 0.5f);
    EXPECT_NEAR(greenAt(1, 20), 127, 2);
    EXPECT_NEAR(greenAt(15, 20), 127, 2);
}
