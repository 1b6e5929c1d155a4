// SPDX-License-Identifier: GPL-3.0-or-later
// What the pitch history draws: where its traces are, how opaque, on which backdrop.
#include "tests/support/toolkit/TestWindow.h"
#include "widgets/history/tests/support/PitchHistoryFixture.h"
#include "widgets/images/ResourceFolder.h"
#include "widgets/images/ResourceImages.h"
#include "widgets/statics/ImageStyleRecord.h"
#include "widgets/statics/tests/PictureOf.h"

#include <limits>

namespace {

struct Size {
    float magnification;
    int width;
    int height;
};

constexpr Size sizes[] = {{1.0f, 502, 173}, {1.2f, 602, 208}, {2.5f, 1255, 433}};

const juce::Colour green(0, 255, 0);
const juce::Colour orange(255, 127, 0);

class PitchPictureTest : public PitchHistoryFixture {
protected:
    PitchPictureTest() { become(sizes[0]); }

    void become(const Size& size) {
        history.setMagnification(size.magnification);
        history.setSize(size.width, size.height);
    }

    void clear() {
        history.bindMeterRecord(0, fourCharCode("ptch"), 6, nullptr);
        history.bindMeterRecord(0, fourCharCode("ptch"), 6, &record);
    }

    /// The history full of one frequency.
    void fill(std::size_t oscillator, double hertz, float gain) {
        clear();
        setOscillator(oscillator, hertz, gain);
        tickFor(3300);
        setOscillator(oscillator, hertz, 0.0f);
    }

    /// Without samples.
    juce::Image emptyPicture() {
        clear();
        return pictureOf(history);
    }
};

/// The middle of what a column of a picture shows beside the backdrop, weighted by how much.
/// Pixels; -1 where there is nothing.
double centreInColumn(const juce::Image& picture, const juce::Image& backdrop, int x) {
    double weights = 0.0;
    double sum = 0.0;
    for (int y = 0; y < picture.getHeight(); ++y) {
        const juce::Colour a = picture.getPixelAt(x, y);
        const juce::Colour b = backdrop.getPixelAt(x, y);
        const double weight =
            std::abs(a.getGreen() - b.getGreen()) + std::abs(a.getRed() - b.getRed());
        weights += weight;
        sum += weight * (y + 0.5);
    }
    return weights == 0.0 ? -1.0 : sum / weights;
}

/// The first and the last column that show anything beside the backdrop.
juce::Range<int> inkedColumns(const juce::Image& picture, const juce::Image& backdrop) {
    juce::Range<int> columns;
    for (int x = 0; x < picture.getWidth(); ++x) {
        if (centreInColumn(picture, backdrop, x) >= 0.0)
            columns = columns.isEmpty() ? juce::Range<int>(x, x + 1) : columns.withEnd(x + 1);
    }
    return columns;
}

juce::Colour over(juce::Colour below, juce::Colour above, float opacity) {
    return below.overlaidWith(above.withAlpha(opacity));
}

/// Quarters of four colours, so that a shifted or stretched picture is told from the right one.
juce::Image quarters(int width, int height) {
    juce::Image image(juce::Image::ARGB, width, height, true, juce::SoftwareImageType());
    juce::Graphics g(image);
    const juce::Rectangle<int> quarter(width / 2, height / 2);
    g.setColour(juce::Colours::red);
    g.fillRect(quarter);
    g.setColour(juce::Colours::blue);
    g.fillRect(quarter.translated(width / 2, 0));
    g.setColour(juce::Colours::yellow);
    g.fillRect(quarter.translated(0, height / 2));
    g.setColour(juce::Colours::white);
    g.fillRect(quarter.translated(width / 2, height / 2));
    return image;
}

std::vector<char> pngOf(const juce::Image& image) {
    juce::MemoryOutputStream stream;
    juce::PNGImageFormat().writeImageToStream(image, stream);
    const auto* const bytes = static_cast<const char*>(stream.getData());
    return {bytes, bytes + stream.getDataSize()};
}

} // namespace

TEST_F(PitchPictureTest, ATraceIsAsHighAsItsFrequencyAtEachMagnification) {
    // y = h - 20m - (h - 40m) f / 440.
    struct Row {
        double hertz;
        double heights[3]; ///< at the sizes above
    };

    const Row rows[] = {
        {0.0, {153.0, 184.0, 383.0}},
        {110.0, {119.75, 144.0, 299.75}},
        {220.0, {86.5, 104.0, 216.5}},
        {440.0, {20.0, 24.0, 50.0}},
    };
    for (std::size_t i = 0; i < std::size(sizes); ++i) {
        become(sizes[i]);
        const juce::Image backdrop = emptyPicture();
        for (const Row& row : rows) {
            for (std::size_t oscillator = 0; oscillator < 2; ++oscillator) {
                fill(oscillator, row.hertz, 1.0f);
                const juce::Image picture = pictureOf(history);
                for (const int x : {40, sizes[i].width / 2, sizes[i].width - 10})
                    EXPECT_NEAR(centreInColumn(picture, backdrop, x), row.heights[i], 1.0)
                        << row.hertz << " Hz at " << sizes[i].magnification << ", x " << x;
            }
        }
    }
}

TEST_F(PitchPictureTest, WhatIsAboveTheScaleIsDrawnAtTheTopEdge) {
    for (const Size& size : sizes) {
        become(size);
        const juce::Image backdrop = emptyPicture();
        fill(0, 880.0, 1.0f);
        const juce::Image picture = pictureOf(history);
        const int x = size.width / 2;
        // Half of the line's thickness, 4m, is below the edge.
        const int half = juce::roundToInt(2.0f * size.magnification);
        expectPixel(picture, x, 0, green);
        expectPixel(picture, x, half - 1, green, 160);
        EXPECT_EQ(picture.getPixelAt(x, half + 1), backdrop.getPixelAt(x, half + 1));
    }
}

TEST_F(PitchPictureTest, TheLineIsFourPixelsThickAtMagnificationOne) {
    for (const Size& size : sizes) {
        become(size);
        const juce::Image backdrop = emptyPicture();
        fill(0, 0.0, 1.0f);
        const juce::Image picture = pictureOf(history);
        double inked = 0.0;
        for (int y = 0; y < size.height; ++y) {
            const int here = picture.getPixelAt(300, y).getGreen();
            const int behind = backdrop.getPixelAt(300, y).getGreen();
            inked += static_cast<double>(here - behind) / (255 - behind);
        }
        EXPECT_NEAR(inked, 4.0 * static_cast<double>(size.magnification), 0.1);
    }
}

TEST_F(PitchPictureTest, TheNewestSampleIsAtTheRightEdgeAndOneOfHalfTheTimeInTheMiddle) {
    for (const Size& size : sizes) {
        become(size);
        const juce::Image backdrop = emptyPicture();
        setOscillator(0, 200.0, 0.0f);
        tickAfter(tickMs);
        setOscillator(0, 200.0, 1.0f);
        tickAfter(tickMs);
        // The line ends at w - 1, under the rim of three units.
        juce::Range<int> columns = inkedColumns(pictureOf(history), backdrop);
        const int rim = juce::roundToInt(3.0f * size.magnification);
        EXPECT_NEAR(columns.getEnd(), size.width - 1 - rim, 1);
        setOscillator(0, 200.0, 0.0f);
        tickFor(1500);
        // From the sample before, 1.53 s old, to the one that is 1.5 s old.
        columns = inkedColumns(pictureOf(history), backdrop);
        EXPECT_NEAR(columns.getEnd(), (size.width - 1) / 2.0, 1.5);
        EXPECT_NEAR(columns.getStart(), (size.width - 1) * (1.0 - 1.53 / 3.0), 1.5);
    }
}

TEST_F(PitchPictureTest, GainIsOpacity) {
    const juce::Image backdrop = emptyPicture();
    // 220 Hz are at 86.5: the line covers the row.
    const juce::Colour behind = backdrop.getPixelAt(300, 86);

    struct Row {
        float gain;
        float opacity;
    };

    for (const Row row : {Row{1.0f, 1.0f}, Row{0.25f, 0.5f}, Row{0.0f, 0.0f}, Row{0.01f, 0.1f},
                          Row{9.0f, 1.0f}, Row{-1.0f, 0.0f}}) {
        fill(0, 220.0, row.gain);
        expectPixel(pictureOf(history), 300, 86, over(behind, green, row.opacity), 3);
        fill(1, 220.0, row.gain);
        expectPixel(pictureOf(history), 300, 86, over(behind, orange, row.opacity), 3);
    }
}

TEST_F(PitchPictureTest, AnInfiniteGainIsFullAndOneThatIsNoNumberNone) {
    const juce::Image backdrop = emptyPicture();
    fill(0, 220.0, std::numeric_limits<float>::infinity());
    expectPixel(pictureOf(history), 300, 86, green);
    fill(0, 220.0, std::numeric_limits<float>::quiet_NaN());
    expectPixel(pictureOf(history), 300, 86, backdrop.getPixelAt(300, 86));
}

TEST_F(PitchPictureTest, TheSecondOscillatorIsInFrontOfTheFirst) {
    clear();
    setOscillator(0, 220.0, 1.0f);
    setOscillator(1, 220.0, 1.0f);
    tickFor(3300);
    expectPixel(pictureOf(history), 300, 86, orange);
    setOscillator(1, 110.0, 1.0f);
    tickFor(3300);
    expectPixel(pictureOf(history), 300, 86, green);
    expectPixel(pictureOf(history), 300, 119, orange);
}

TEST_F(PitchPictureTest, AFrequencyThatIsNoneIsAGapInTheTraceOfItsOscillatorAlone) {
    const juce::Image backdrop = emptyPicture();
    for (const float cosine : {std::numeric_limits<float>::quiet_NaN(), 1.5f, -7.0f}) {
        fill(1, 110.0, 0.0f);
        record.values[3] = 1.0f;
        setOscillator(0, 220.0, 1.0f);
        tickFor(1500);
        record.values[0] = cosine;
        tickFor(300);
        setOscillator(0, 220.0, 1.0f);
        tickFor(600);
        const juce::Image picture = pictureOf(history);
        // The gap is from 0.9 s to 0.57 s ago: 350.7 to 405.8.
        expectPixel(picture, 340, 86, green);
        for (const int x : {360, 380, 400})
            EXPECT_EQ(picture.getPixelAt(x, 86), backdrop.getPixelAt(x, 86)) << x;
        expectPixel(picture, 415, 86, green);
        expectPixel(picture, 380, 119, orange);
    }
}

TEST_F(PitchPictureTest, WithoutARecordThereIsOnlyTheBackdrop) {
    const juce::Image backdrop = emptyPicture();
    QMPitchHistory unbound(QMPitchHistory::usualLength, nullptr, clock());
    unbound.setSize(history.getWidth(), history.getHeight());
    unbound.tick();
    EXPECT_TRUE(inkedColumns(pictureOf(unbound), backdrop).isEmpty());
}

TEST_F(PitchPictureTest, TheBackdropsLinesAreWhereTheTracesAre) {
    for (const Size& size : sizes) {
        become(size);
        const juce::Image backdrop = emptyPicture();
        // The lines of 440 and 0 Hz are brighter than what is around them.
        const auto brightness = [&](float y) {
            return backdrop.getPixelAt(size.width - 20, static_cast<int>(y)).getGreen();
        };
        for (const float y : {20.0f * size.magnification,
                              static_cast<float>(size.height) - 20.0f * size.magnification}) {
            EXPECT_GT(brightness(y), brightness(y - 2.0f) + 5) << size.magnification;
            EXPECT_GT(brightness(y), brightness(y + 2.0f) + 5) << size.magnification;
        }
    }
}

TEST_F(PitchPictureTest, AStylesPictureIsTheBackdropAtItsOrigin) {
    const std::vector<char> png = pngOf(quarters(100, 60));
    const ImageStyleRecord style(png.data(), png.size());
    QMPitchHistory styled(QMPitchHistory::usualLength, &style, clock());
    EXPECT_TRUE(styled.usesStyleImage());
    EXPECT_FALSE(styled.usesWindowImage());
    styled.setSize(200, 90);
    const juce::Image picture = pictureOf(styled);
    expectPixel(picture, 0, 0, juce::Colours::red);
    expectPixel(picture, 49, 29, juce::Colours::red);
    expectPixel(picture, 50, 29, juce::Colours::blue);
    expectPixel(picture, 99, 59, juce::Colours::white);
    expectPixel(picture, 100, 59, juce::Colours::black);
    expectPixel(picture, 99, 60, juce::Colours::black);
}

TEST_F(PitchPictureTest, AtOtherMagnificationsTheStylesPictureFillsTheWidget) {
    const ImageStyleRecord style(quarters(200, 90));
    QMPitchHistory styled(QMPitchHistory::usualLength, &style, clock());
    for (const float magnification : {0.4f, 1.2f, 2.5f}) {
        styled.setMagnification(magnification);
        const int width = juce::roundToInt(200.0f * magnification);
        const int height = juce::roundToInt(90.0f * magnification);
        styled.setSize(width, height);
        const juce::Image picture = pictureOf(styled);
        const auto at = [](int length, double share) { return juce::roundToInt(length * share); };
        expectPixel(picture, 0, 0, juce::Colours::red);
        expectPixel(picture, at(width, 0.48), at(height, 0.47), juce::Colours::red);
        expectPixel(picture, at(width, 0.52), at(height, 0.47), juce::Colours::blue);
        expectPixel(picture, at(width, 0.48), at(height, 0.53), juce::Colours::yellow);
        expectPixel(picture, width - 1, height - 1, juce::Colours::white);
    }
}

TEST_F(PitchPictureTest, APictureThatWouldBeCutOffIsMadeToFit) {
    const ImageStyleRecord style(quarters(400, 180));
    QMPitchHistory styled(QMPitchHistory::usualLength, &style, clock());
    styled.setSize(200, 90);
    const juce::Image picture = pictureOf(styled);
    expectPixel(picture, 98, 43, juce::Colours::red);
    expectPixel(picture, 199, 89, juce::Colours::white);
}

TEST_F(PitchPictureTest, TracesAreDrawnOverTheStylesPicture) {
    const ImageStyleRecord style(imageOf(juce::Colours::blue, 502, 173));
    QMPitchHistory styled(QMPitchHistory::usualLength, &style, clock());
    styled.setSize(502, 173);
    styled.bindMeterRecord(0, fourCharCode("ptch"), 6, &record);
    setOscillator(0, 220.0, 0.25f);
    for (int i = 0; i < 110; ++i) {
        now += tickMs;
        styled.tick();
    }
    const juce::Image picture = pictureOf(styled);
    expectPixel(picture, 300, 86, over(juce::Colours::blue, green, 0.5f));
    expectPixel(picture, 300, 40, juce::Colours::blue);
}

TEST_F(PitchPictureTest, AStyleWithoutAPictureLeavesItsOwnBackdrop) {
    const juce::Image own = emptyPicture();
    const char noPicture[] = "this is no picture";
    const ImageStyleRecord damaged(noPicture, sizeof(noPicture));

    struct OtherStyle : QMWidgetStyleRecord {};

    const OtherStyle foreign;
    for (const QMWidgetStyleRecord* const style :
         {static_cast<const QMWidgetStyleRecord*>(&damaged),
          static_cast<const QMWidgetStyleRecord*>(&foreign)}) {
        QMPitchHistory styled(QMPitchHistory::usualLength, style, clock());
        EXPECT_FALSE(styled.usesStyleImage());
        styled.setUseStyleImage(true);
        styled.setSize(502, 173);
        EXPECT_TRUE(inkedColumns(pictureOf(styled), own).isEmpty());
    }
}

TEST_F(PitchPictureTest, FlagsChooseTheBackdrop) {
    const ImageStyleRecord style(imageOf(juce::Colours::blue, 502, 173));
    QMPitchHistory styled(QMPitchHistory::usualLength, &style, clock());
    styled.setSize(502, 173);
    expectPixel(pictureOf(styled), 300, 40, juce::Colours::blue);
    styled.setUseStyleImage(false);
    EXPECT_TRUE(inkedColumns(pictureOf(styled), emptyPicture()).isEmpty());
    styled.setUseStyleImage(true);
    expectPixel(pictureOf(styled), 300, 40, juce::Colours::blue);
}

namespace {

/// A resource folder with the picture of a display window.
class WindowPictureTest : public PitchPictureTest {
protected:
    WindowPictureTest() {
        folder.createDirectory();
        const std::vector<char> png = pngOf(quarters(100, 60));
        folder.getChildFile("UI_DIsplayWindow.png").replaceWithData(png.data(), png.size());
        setResourceFolder(folder);
        retryFailedImages();
    }

    ~WindowPictureTest() override {
        setResourceFolder({});
        folder.deleteRecursively();
    }

    juce::File folder = juce::File::createTempFile("resources");
};

} // namespace

TEST_F(WindowPictureTest, TheWindowsPictureIsStretchedOverTheWidgetAndHasNoTraces) {
    const ImageStyleRecord style(imageOf(juce::Colours::green, 300, 120));
    QMPitchHistory windowed(QMPitchHistory::usualLength, &style, clock());
    windowed.bindMeterRecord(0, fourCharCode("ptch"), 6, &record);
    windowed.setSize(300, 120);
    setOscillator(0, 220.0, 1.0f);
    for (int i = 0; i < 110; ++i) {
        now += tickMs;
        windowed.tick();
    }
    // Only when asked for.
    expectPixel(pictureOf(windowed), 10, 10, juce::Colours::green);
    expectPixel(pictureOf(windowed), 100, 60, green);

    windowed.setUseWindowImage(true);
    const juce::Image picture = pictureOf(windowed);
    expectPixel(picture, 10, 10, juce::Colours::red);
    expectPixel(picture, 145, 56, juce::Colours::red);
    expectPixel(picture, 155, 56, juce::Colours::blue);
    expectPixel(picture, 145, 64, juce::Colours::yellow);
    expectPixel(picture, 290, 110, juce::Colours::white);
    // Nothing but the picture's four colours along the trace.
    for (int x = 0; x < 140; ++x)
        expectPixel(picture, x, 64, juce::Colours::yellow);
}

TEST_F(PitchPictureTest, WithoutTheWindowsPictureTheGlassTakesItsPlace) {
    const juce::File empty = juce::File::createTempFile("resources");
    setResourceFolder(empty);
    QMPitchHistory windowed(QMPitchHistory::usualLength, nullptr, clock());
    setResourceFolder({});
    windowed.setSize(502, 173);
    windowed.setUseWindowImage(true);
    EXPECT_TRUE(inkedColumns(pictureOf(windowed), emptyPicture()).isEmpty());
}

TEST_F(PitchPictureTest, ItMayBeOfNoSize) {
    setOscillator(0, 220.0, 1.0f);
    tickFor(300);
    for (const juce::Point<int> size : {juce::Point<int>(0, 0), {1, 1}, {3, 100}, {100, 2}}) {
        history.setSize(size.x, size.y);
        if (!history.getBounds().isEmpty())
            juce::ignoreUnused(pictureOf(history));
    }
}

TEST_F(PitchPictureTest, AWindowShowsIt) {
    const juce::Image backdrop = emptyPicture();
    fill(0, 220.0, 1.0f);
    TestWindow window(history);
    const juce::Image picture = window.picture();
    expectPixel(picture, 300, 86, green);
    expectPixel(picture, 300, 60, backdrop.getPixelAt(300, 60));
}

TEST_F(PitchPictureTest, TheTracesGoUnderTheRimAtBothSides) {
    // Three units, rounded.
    const int rims[] = {3, 4, 8};
    for (std::size_t i = 0; i < std::size(sizes); ++i) {
        become(sizes[i]);
        const juce::Image backdrop = emptyPicture();
        fill(0, 220.0, 1.0f);
        const juce::Image picture = pictureOf(history);
        const int right = sizes[i].width - 1;
        for (int x = 0; x < rims[i]; ++x) {
            EXPECT_EQ(centreInColumn(picture, backdrop, x), -1.0) << x;
            EXPECT_EQ(centreInColumn(picture, backdrop, right - x), -1.0) << x;
        }
        EXPECT_GT(centreInColumn(picture, backdrop, rims[i]), 0.0);
        EXPECT_GT(centreInColumn(picture, backdrop, right - rims[i]), 0.0);
    }
}
