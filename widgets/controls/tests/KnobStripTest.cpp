// SPDX-License-Identifier: GPL-3.0-or-later
// Knob strips: their types, styles, labels, rings, and what they draw with and without images.
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/controls/QMKnobStripWidget.h"
#include "widgets/controls/QMKnobWidget.h"
#include "widgets/controls/tests/support/ControlPanel.h"
#include "widgets/controls/tests/support/TestPictures.h"

#include <utility>

namespace {

KnobStyleRecord style(std::uint32_t present) {
    KnobStyleRecord record;
    record.knobType = 8;
    record.styleOption = 1;
    record.red = 255;
    record.green = 160;
    record.blue = 0;
    record.alpha = 224;
    record.styleValue1 = 0.25f;
    record.styleValue2 = 0.0f;
    record.styleOption2 = 2;
    record.taperMode = 2;
    record.presentMask = present;
    return record;
}

/// How much of the knob's left half is bright, less that of its right.
double brightnessLeftOfCentre(const juce::Image& picture, juce::Rectangle<int> area) {
    double sum = 0.0;
    for (int y = area.getY(); y < area.getBottom(); ++y) {
        for (int x = area.getX(); x < area.getRight(); ++x) {
            const bool isLeft = x < area.getCentreX();
            const bool isPointer = picture.getPixelAt(x, y).getBrightness() > 0.9f;
            sum += isPointer ? (isLeft ? 1.0 : -1.0) : 0.0;
        }
    }
    return sum;
}

} // namespace

class KnobStripTest : public ToolkitTest {
protected:
    TestResources resources;
};

// Types.

TEST_F(KnobStripTest, TypesAreTheNumbersOfTheTable) {
    struct Row {
        std::int32_t type;
        const char* image;
        std::int32_t frames;
        bool isBlack;
    };

    const Row rows[] = {
        {-1, nullptr, 0, false},
        {0, "knobs_alpha_128.webp", 270, false},
        {1, "knob_array_light.webp", 271, false},
        {2, "knob_array_dark.webp", 271, false},
        {3, nullptr, 271, false},
        {4, "knob_array_brushed.webp", 271, false},
        {5, "knob_array_brushed.webp", 271, false},
        {6, "medium_knob_array_dark.webp", 271, false},
        {7, "medium_knob_array.webp", 271, false},
        {8, "qm_knob_70_black_128.webp", 271, false},
        {9, "qm_knob_70_black_128.webp", 271, true},
        {10, "medium_knob_array.webp", 271, false},
    };
    for (const Row& row : rows) {
        const KnobType& type = KnobTypes::get(row.type);
        EXPECT_STREQ(type.imageName, row.image) << row.type;
        EXPECT_EQ(type.frameCount, row.frames) << row.type;
        EXPECT_EQ(type.isBlack, row.isBlack) << row.type;
        EXPECT_EQ(type.keepsImage, row.type == 3) << row.type;
    }
}

TEST_F(KnobStripTest, ATypeBeyondTheTableIsTheNearest) {
    QMKnobStripWidget knob;
    knob.setKnobType(11);
    EXPECT_EQ(knob.getKnobType(), 10);
    knob.setKnobType(-2);
    EXPECT_EQ(knob.getKnobType(), -1);
    knob.setKnobType(1000);
    EXPECT_EQ(knob.getKnobType(), 10);
}

TEST_F(KnobStripTest, ATypeLoadsItsImageAndTheFourthKeepsTheOneThatIsThere) {
    resources.add("knob_array_dark.webp", gridImage(8, 6));
    QMKnobStripWidget knob;
    EXPECT_FALSE(knob.getFrames().hasImage());
    knob.setKnobType(2);
    ASSERT_TRUE(knob.getFrames().hasImage());
    EXPECT_EQ(knob.getFrames().getFrameWidth(), 8);
    EXPECT_EQ(knob.getFrames().getFrameHeight(), 6);
    EXPECT_EQ(knob.getFrames().getFrameCount(), 271);
    knob.setFrameArrangement(2, 2, false);
    knob.setKnobType(3);
    EXPECT_TRUE(knob.getFrames().hasImage());
    EXPECT_EQ(knob.getFrames().getColumns(), 16);
    EXPECT_EQ(knob.getFrames().getFrameWidth(), 8);
    knob.setKnobType(-1);
    EXPECT_FALSE(knob.getFrames().hasImage());
    EXPECT_EQ(knob.getFrames().getFrameCount(), 0);
}

TEST_F(KnobStripTest, TheTypeItHasAlreadyChangesNothing) {
    QMKnobStripWidget knob;
    knob.setKnobType(2);
    knob.setKnobImage(gridImage(4, 4), 100);
    knob.setKnobType(2);
    EXPECT_TRUE(knob.getFrames().hasImage());
    EXPECT_EQ(knob.getFrames().getFrameCount(), 100);
}

TEST_F(KnobStripTest, OnlyTheTenthTypeIsBlack) {
    QMKnobStripWidget knob;
    for (std::int32_t type = -1; type <= 10; ++type) {
        knob.setKnobType(type);
        EXPECT_EQ(knob.isBlackKnob(), type == 9) << type;
    }
}

// Styles.

TEST_F(KnobStripTest, WithoutAStyleItHasTheDefaults) {
    const QMKnobStripWidget knob;
    EXPECT_EQ(knob.getKnobType(), 7);
    EXPECT_EQ(knob.getAccentColour(), juce::Colour(0, 255, 0));
    EXPECT_EQ(knob.getTaperMode(), 0u);
    EXPECT_EQ(knob.getTaperFactor(), 1.0f);
    EXPECT_EQ(knob.getLabelPosition(), QMKnobStripWidget::noLabel);
    EXPECT_EQ(knob.getRingMode(), 1);
    EXPECT_TRUE(knob.getShowRings());
    EXPECT_EQ(knob.getRingWidth(), 4.0);
}

TEST_F(KnobStripTest, AStyleReplacesThem) {
    const KnobStyleRecord record = style(127);
    const QMKnobStripWidget knob(&record);
    EXPECT_EQ(knob.getKnobType(), 8);
    EXPECT_EQ(knob.getAccentColour(), juce::Colour(255, 160, 0).withAlpha(juce::uint8{224}));
    EXPECT_EQ(knob.getTaperMode(), 2u);
    EXPECT_EQ(knob.getTaperFactor(), 1000.0f);
    EXPECT_EQ(knob.getLabelPosition(), QMKnobStripWidget::labelBelow);
    EXPECT_EQ(knob.getRingMode(), 2);
}

TEST_F(KnobStripTest, OnlyFieldsWhoseBitIsSetCount) {
    const KnobStyleRecord none = style(0);
    const QMKnobStripWidget plain(&none);
    EXPECT_EQ(plain.getKnobType(), 7);
    EXPECT_EQ(plain.getAccentColour(), juce::Colour(0, 255, 0));
    EXPECT_EQ(plain.getTaperMode(), 0u);
    EXPECT_EQ(plain.getRingMode(), 1);
    const KnobStyleRecord colour = style(1u << 2);
    const QMKnobStripWidget coloured(&colour);
    EXPECT_EQ(coloured.getKnobType(), 7);
    EXPECT_EQ(coloured.getAccentColour().getRed(), 255);
    const KnobStyleRecord type = style(1u << 0);
    EXPECT_EQ(QMKnobStripWidget(&type).getKnobType(), 8);
    const KnobStyleRecord label = style(1u << 1);
    EXPECT_EQ(QMKnobStripWidget(&label).getLabelPosition(), 1);
    const KnobStyleRecord ring = style(1u << 5);
    EXPECT_EQ(QMKnobStripWidget(&ring).getRingMode(), 2);
    const KnobStyleRecord taper = style(1u << 6);
    EXPECT_EQ(QMKnobStripWidget(&taper).getTaperFactor(), 1000.0f);
}

// Where things are.

TEST_F(KnobStripTest, ALabelBelowTakesAFifthOfTheWidthAndPushesTheKnobUp) {
    QMKnobStripWidget knob;
    knob.setBounds(0, 0, 66, 100);
    knob.setLabel(QMKnobStripWidget::labelBelow);
    // 66 x 12.8 / 66 = 12.8 pixels.
    EXPECT_EQ(knob.getLabelArea(), juce::Rectangle<int>(0, 87, 66, 13));
    // 34 pixels of room, less 12.8 + 4.
    EXPECT_EQ(knob.getKnobArea(), juce::Rectangle<int>(0, 17, 66, 66));
    knob.setLabel(QMKnobStripWidget::labelBelow, 33.0f);
    EXPECT_EQ(knob.getLabelArea(), juce::Rectangle<int>(0, 67, 66, 33));
    EXPECT_EQ(knob.getKnobArea().getY(), 1);
}

TEST_F(KnobStripTest, ALabelAboveMovesTheKnobDownAtMostToTheBottom) {
    QMKnobStripWidget knob;
    knob.setBounds(0, 0, 66, 100);
    knob.setLabel(QMKnobStripWidget::labelAbove);
    EXPECT_EQ(knob.getLabelArea(), juce::Rectangle<int>(0, 0, 66, 14));
    EXPECT_EQ(knob.getKnobArea(), juce::Rectangle<int>(0, 10, 66, 66));
    knob.setBounds(0, 0, 66, 72);
    // The knob is 58 high; 14 pixels are left and 10 wanted.
    EXPECT_EQ(knob.getKnobArea(), juce::Rectangle<int>(4, 10, 58, 58));
    knob.setLabel(QMKnobStripWidget::labelAbove, 60.0f);
    EXPECT_EQ(knob.getKnobArea(), juce::Rectangle<int>(27, 56, 12, 12));
}

TEST_F(KnobStripTest, WithoutALabelTheKnobIsInTheMiddle) {
    QMKnobStripWidget knob;
    knob.setBounds(0, 0, 80, 100);
    EXPECT_TRUE(knob.getLabelArea().isEmpty());
    EXPECT_EQ(knob.getKnobArea(), juce::Rectangle<int>(0, 10, 80, 80));
}

TEST_F(KnobStripTest, AnImageKeepsItsShape) {
    QMKnobStripWidget knob;
    knob.setKnobImage(gridImage(20, 10), 271);
    knob.setBounds(0, 0, 80, 100);
    EXPECT_EQ(knob.getKnobArea(), juce::Rectangle<int>(0, 30, 80, 40));
}

TEST_F(KnobStripTest, AWidgetTooSmallForItsLabelDrawsNoKnobAndDoesNoHarm) {
    QMKnobStripWidget knob;
    knob.setName("Label");
    knob.setLabel(QMKnobStripWidget::labelBelow, 30.0f);
    knob.setRingMode(KnobRing::fromMinimum);
    for (const auto& [width, height] : {std::pair{10, 10}, {1, 1}, {0, 40}, {40, 31}}) {
        knob.setBounds(0, 0, width, height);
        juce::Image picture(juce::Image::ARGB, 50, 50, true);
        juce::Graphics g(picture);
        knob.paint(g);
        EXPECT_GE(knob.getKnobArea().getWidth(), 0);
    }
}

// Drawing.

TEST_F(KnobStripTest, ShowsTheFrameOfItsValue) {
    QMKnobStripWidget knob;
    knob.setKnobImage(gridImage(16, 16), 271);
    knob.setBounds(0, 0, 40, 40);
    for (const int frame : {0, 135, 270}) {
        knob.setParameterValue(0, frame / 270.0, false);
        EXPECT_LE(difference(pictureOf(knob).getPixelAt(20, 20), colourOfFrame(frame)), 2) << frame;
    }
}

TEST_F(KnobStripTest, WithoutAnImageItsPointerFollowsTheValue) {
    for (std::int32_t type : {2, 6, 8}) {
        QMKnobStripWidget knob;
        knob.setKnobType(type);
        knob.setBounds(0, 0, 96, 96);
        knob.setParameterValue(0, 0.1, false);
        EXPECT_GT(brightnessLeftOfCentre(pictureOf(knob), knob.getKnobArea()), 10.0) << type;
        knob.setParameterValue(0, 0.9, false);
        EXPECT_LT(brightnessLeftOfCentre(pictureOf(knob), knob.getKnobArea()), -10.0) << type;
    }
}

TEST_F(KnobStripTest, ThePointerTurnsOverTwoHundredAndSeventyDegrees) {
    constexpr float pi = juce::MathConstants<float>::pi;
    EXPECT_FLOAT_EQ(DrawnKnob::angleOf(0.0f), -0.75f * pi);
    EXPECT_FLOAT_EQ(DrawnKnob::angleOf(0.5f), 0.0f);
    EXPECT_FLOAT_EQ(DrawnKnob::angleOf(1.0f), 0.75f * pi);
}

TEST_F(KnobStripTest, TheRingShowsTheValueAndCanBeHidden) {
    const KnobStyleRecord record = style(127 & ~(1u << 6));
    QMKnobStripWidget knob(&record);
    knob.setRingWidth(10.0);
    knob.setBounds(0, 0, 100, 100);
    knob.setLabel(QMKnobStripWidget::noLabel);
    const auto right = [&knob] { return pictureOf(knob).getPixelAt(93, 49); };
    knob.setParameterValue(0, 0.0, false);
    EXPECT_LE(difference(right(), juce::Colours::black), 3);
    knob.setParameterValue(0, 1.0, false);
    // 224 / 255 of the accent over black.
    EXPECT_NEAR(right().getRed(), 224, 3.0);
    EXPECT_NEAR(right().getGreen(), 160 * 224 / 255, 3.0);
    knob.setShowRings(false);
    EXPECT_LT(right().getRed(), 40);
}

TEST_F(KnobStripTest, ARingsWidthIsInDesignUnits) {
    const KnobStyleRecord record = style(1u << 5);
    QMKnobStripWidget knob(&record);
    knob.setBounds(0, 0, 100, 100);
    knob.setRingWidth(6.0);
    knob.setParameterValue(0, 1.0, false);
    // The outer radius is 48, around 50, 49: 6 pixels wide it ends at x = 92, 12 wide at 86.
    EXPECT_LT(pictureOf(knob).getPixelAt(88, 49).getGreen(), 100);
    knob.setMagnification(2.0f);
    EXPECT_GT(pictureOf(knob).getPixelAt(88, 49).getGreen(), 250);
}

TEST_F(KnobStripTest, TheLabelIsItsNameInTheTextColour) {
    ControlPanel panel;
    QMKnobStripWidget knob;
    knob.setLabel(QMKnobStripWidget::labelBelow);
    knob.setBounds(0, 0, 80, 100);
    panel.addAndMakeVisible(knob);
    const auto brightest = [&knob] {
        const juce::Image picture = pictureOf(knob);
        float most = 0.0f;
        const juce::Rectangle<int> area = knob.getLabelArea();
        for (int y = area.getY(); y < area.getBottom(); ++y)
            for (int x = 0; x < area.getWidth(); ++x)
                most = juce::jmax(most, picture.getPixelAt(x, y).getBrightness());
        return most;
    };
    const float without = brightest();
    knob.setName("Atk. Freq");
    EXPECT_LT(without, 0.3f);
    EXPECT_GT(brightest(), 0.7f);
}

TEST_F(KnobStripTest, TheLabelTakesAColourOfItsOwn) {
    QMKnobStripWidget knob;
    knob.setLabel(QMKnobStripWidget::labelBelow);
    knob.setBounds(0, 0, 80, 100);
    knob.setName("Atk. Freq");
    const auto redPixels = [&knob] {
        const juce::Image picture = pictureOf(knob);
        const juce::Rectangle<int> area = knob.getLabelArea();
        int count = 0;
        for (int y = area.getY(); y < area.getBottom(); ++y)
            for (int x = 0; x < area.getWidth(); ++x) {
                const juce::Colour pixel = picture.getPixelAt(x, y);
                count += pixel.getAlpha() > 128 && pixel.getRed() > 200 && pixel.getGreen() < 40;
            }
        return count;
    };
    EXPECT_EQ(redPixels(), 0);
    knob.setTextColour(juce::Colour(255, 0, 0));
    EXPECT_GT(redPixels(), 20);
    knob.setTextColour({});
    EXPECT_EQ(redPixels(), 0);
}

TEST_F(KnobStripTest, ADisabledKnobIsFainter) {
    QMKnobStripWidget knob;
    knob.setKnobImage(gridImage(16, 16), 271);
    knob.setBounds(0, 0, 40, 40);
    const int opaque = pictureOf(knob).getPixelAt(20, 20).getAlpha();
    knob.setWidgetEnabled(false);
    EXPECT_EQ(opaque, 255);
    EXPECT_NEAR(pictureOf(knob).getPixelAt(20, 20).getAlpha(), 128, 3.0);
}

TEST_F(KnobStripTest, ItsValueIsInItsMiddleWhereThatIsAskedForAndThereIsNoImage) {
    QMKnobStripWidget knob;
    knob.setKnobType(-1);
    knob.setBounds(0, 0, 96, 96);
    knob.setParameterValue(0, 0.0, false);
    const juce::Image without = pictureOf(knob);
    knob.setShowValueText(true);
    const juce::Image with = pictureOf(knob);
    int changed = 0;
    for (int y = 38; y < 58; ++y)
        for (int x = 28; x < 68; ++x)
            changed += difference(without.getPixelAt(x, y), with.getPixelAt(x, y)) > 60 ? 1 : 0;
    EXPECT_GT(changed, 40);
}

TEST_F(KnobStripTest, AKnobIsDrawnAtTheScreensOwnResolution) {
    QMKnobWidget knob;
    knob.setBounds(0, 0, 60, 60);
    const juce::Image once = pictureOf(knob);
    const juce::Image twice = pictureOf(knob, 2.0f);
    ASSERT_EQ(twice.getWidth(), 120);
    // An enlarged picture would have every pixel four times.
    int distinct = 0;
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 60; ++x)
            distinct += difference(twice.getPixelAt(2 * x, 2 * y),
                                   twice.getPixelAt(2 * x + 1, 2 * y + 1)) > 12
                            ? 1
                            : 0;
    EXPECT_GT(distinct, 150);
    EXPECT_EQ(difference(pictureOf(knob).getPixelAt(20, 20), once.getPixelAt(20, 20)), 0);
}
