// SPDX-License-Identifier: GPL-3.0-or-later
// The picture files of the product's editor: all are there and can be read.
#include "brolt/editor/EmbeddedImages.h"
#include "brolt/editor/tests/support/BroltEditorTest.h"
#include "brolt/editor/tests/support/ProductPictures.h"
#include "services/tests/LogCapture.h"
#include "widgets/controls/QMKnobStripWidget.h"
#include "widgets/images/ResourceImages.h"
#include "widgets/statics/QMImageWidget.h"

#include <regex>
#include <set>

namespace {

class EditorPictures : public BroltEditorTest {
protected:
    static juce::Array<juce::File> all() {
        return projectPictures().findChildFiles(juce::File::TypesOfFileToFind::findFiles, false);
    }
};

TEST_F(EditorPictures, areTheOnesTheEditorAsksFor) {
    // In a folder without any, each one is missed in the log.
    const TemporaryDirectory nothing;
    setResourceFolder(juce::File(juce::String(nothing.path().string())));
    std::set<std::string> asked;
    {
        const LogCapture log;
        open();
        static_cast<void>(picture());
        editor->setBackgroundMode(0);
        static_cast<void>(picture());
        const std::string lines = log.messages();
        const std::regex name(R"(([^/\\]+\.(png|webp)): no such file)");
        for (std::sregex_iterator found(lines.begin(), lines.end(), name), end; found != end;
             ++found)
            asked.insert((*found)[1]);
    }
    std::set<std::string> wanted;
    for (const char* const name : productPictures)
        wanted.insert(name);
    EXPECT_EQ(asked, wanted);
}

TEST_F(EditorPictures, areThereAndCanBeRead) {
    for (const char* const name : productPictures)
        EXPECT_TRUE(loadResourceImage(name).isValid()) << name;
}

TEST_F(EditorPictures, canAllBeRead) {
    std::int64_t bytes = 0;
    for (const juce::File& file : all()) {
        bytes += file.getSize();
        EXPECT_TRUE(loadResourceImage(file.getFileName()).isValid()) << file.getFileName();
    }
    EXPECT_LT(bytes, 16 * 1024 * 1024);
}

TEST_F(EditorPictures, ofKnobsAreGridsOfSixteenBySeventeenFrames) {
    int strips = 0;
    for (const juce::File& file : all()) {
        if (!file.hasFileExtension("webp"))
            continue;
        const juce::Image strip = loadResourceImage(file.getFileName());
        ++strips;
        EXPECT_EQ(strip.getWidth() % 16, 0) << file.getFileName();
        EXPECT_EQ(strip.getHeight() % 17, 0) << file.getFileName();
        EXPECT_TRUE(strip.hasAlphaChannel()) << file.getFileName();
    }
    EXPECT_GE(strips, 1);
}

TEST_F(EditorPictures, ofTheKnobsTurnWithEveryFrame) {
    open();
    const KnobFrames& frames = widget<QMKnobStripWidget>("afre").getFrames();
    ASSERT_TRUE(frames.hasImage());
    ASSERT_EQ(frames.getFrameCount(), 271);
    const juce::Image strip = frames.getImage();
    for (std::int32_t frame = 0; frame < 271; ++frame) {
        const juce::Rectangle<int> area = frames.areaOf(frame);
        const juce::Image here = strip.getClippedImage(area);
        EXPECT_EQ(here.getPixelAt(area.getWidth() / 2, area.getHeight() / 2).getAlpha(), 255);
        EXPECT_EQ(here.getPixelAt(0, 0).getAlpha(), 0) << frame;
        EXPECT_EQ(here.getPixelAt(area.getWidth() - 1, area.getHeight() - 1).getAlpha(), 0);
        if (frame == 0)
            continue;
        const juce::Image before = strip.getClippedImage(frames.areaOf(frame - 1));
        int differing = 0;
        for (int y = 0; y < area.getHeight(); y += 2) {
            for (int x = 0; x < area.getWidth(); x += 2)
                differing += here.getPixelAt(x, y) != before.getPixelAt(x, y) ? 1 : 0;
        }
        EXPECT_GT(differing, 20) << frame;
    }
}

TEST_F(EditorPictures, ofTheLibraryItselfHaveTheirSizesAndCanBeRead) {
    EXPECT_EQ(QMBrolt::logoPng().size(), 71699U);
    EXPECT_EQ(QMBrolt::historyBackdropPng().size(), 14086U);
    EXPECT_TRUE(imageFromMemory(QMBrolt::logoPng().data(), QMBrolt::logoPng().size()).isValid());
    EXPECT_TRUE(
        imageFromMemory(QMBrolt::historyBackdropPng().data(), QMBrolt::historyBackdropPng().size())
            .isValid());
}

TEST_F(EditorPictures, ofTheLibraryItselfServeWhereTheFilesAreGone) {
    const TemporaryDirectory nothing;
    setResourceFolder(juce::File(juce::String(nothing.path().string())));
    open();
    EXPECT_EQ(widget<QMImageWidget>("logo").getImage(),
              imageFromMemory(QMBrolt::logoPng().data(), QMBrolt::logoPng().size()));
}

} // namespace
