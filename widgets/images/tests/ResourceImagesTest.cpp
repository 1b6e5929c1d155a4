// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures from the resource folder and from memory: found by name, decoded once, and one line in
// the log for what is wrong with them.

#include "widgets/images/ResourceImages.h"

#include "services/tests/LogCapture.h"
#include "services/tests/TemporaryDirectory.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/images/ResourceFolder.h"
#include "widgets/images/ScaledImageCache.h"
#include "widgets/images/tests/TestImages.h"

#include <algorithm>
#include <string>

namespace {

class ResourceImages : public ToolkitTest {
protected:
    ResourceImages() { setResourceFolder(juce::File(folder.path().string())); }

    ~ResourceImages() override { setResourceFolder({}); }

    static juce::File fileOf(const juce::String& name) { return resourceFile(name); }

    static void write(const juce::String& name, const PictureBytes& bytes) {
        ASSERT_TRUE(fileOf(name).replaceWithData(bytes.data(), bytes.size()));
    }

    static std::ptrdiff_t lines(const LogCapture& log) {
        const std::string text = log.text();
        return std::count(text.begin(), text.end(), '\n');
    }

private:
    TemporaryDirectory folder;
};

TEST(ResourceFolder, isThreeLevelsAboveTheLibrary) {
    const juce::File root = juce::File::getSpecialLocation(juce::File::tempDirectory);
    const juce::File library = root.getChildFile("Some.vst3/Contents/x86_64-linux/Some.so");
    EXPECT_EQ(resourceFolderOfLibrary(library), root.getChildFile("Some.vst3/Contents/Resources"));
}

TEST(ResourceFolder, isThatOfThisProgramUnlessAnotherIsSet) {
    const juce::File program =
        juce::File::getSpecialLocation(juce::File::SpecialLocationType::currentExecutableFile);
    EXPECT_EQ(resourceFile("a.png"), resourceFolderOfLibrary(program).getChildFile("a.png"));
    setResourceFolder(program.getParentDirectory());
    EXPECT_EQ(resourceFile("a.png"), program.getSiblingFile("a.png"));
    setResourceFolder({});
    EXPECT_EQ(resourceFile("a.png"), resourceFolderOfLibrary(program).getChildFile("a.png"));
}

TEST_F(ResourceImages, areFoundByFileName) {
    const juce::Image image = noiseImage(juce::Image::RGB, 12, 10);
    write("knob.png", pngOf(image));
    EXPECT_EQ(pixelsOf(loadResourceImage("knob.png")), pixelsOf(image));
}

TEST_F(ResourceImages, areToldByContentAndNotByName) {
    const juce::Image image = noiseImage(juce::Image::RGB, 12, 10);
    write("knob.webp", pngOf(image));
    EXPECT_EQ(pixelsOf(loadResourceImage("knob.webp")), pixelsOf(image));
}

TEST_F(ResourceImages, areDecodedOnce) {
    write("knob.png", pngOf(noiseImage(juce::Image::RGB, 12, 10)));
    const juce::Image first = loadResourceImage("knob.png");
    ASSERT_TRUE(fileOf("knob.png").deleteFile());
    EXPECT_EQ(loadResourceImage("knob.png"), first);
}

TEST_F(ResourceImages, areKeptWhenNobodyUsesThem) {
    write("knob.png", pngOf(noiseImage(juce::Image::RGB, 12, 10)));
    ASSERT_TRUE(loadResourceImage("knob.png").isValid());
    ASSERT_TRUE(fileOf("knob.png").deleteFile());
    juce::ImageCache::releaseUnusedImages();
    EXPECT_TRUE(loadResourceImage("knob.png").isValid());
}

TEST_F(ResourceImages, areInTheToolkitsCache) {
    write("knob.png", pngOf(noiseImage(juce::Image::RGB, 12, 10)));
    const juce::Image image = loadResourceImage("knob.png");
    EXPECT_EQ(juce::ImageCache::getFromFile(fileOf("knob.png")), image);
}

TEST_F(ResourceImages, areDecodedAgainInTheToolkitsNextLife) {
    write("knob.png", pngOf(noiseImage(juce::Image::RGB, 12, 10)));
    ASSERT_TRUE(loadResourceImage("knob.png").isValid());
    shutDownToolkit();
    startToolkit();
    const juce::Image other = noiseImage(juce::Image::RGB, 5, 4);
    write("knob.png", pngOf(other));
    EXPECT_EQ(pixelsOf(loadResourceImage("knob.png")), pixelsOf(other));
}

TEST_F(ResourceImages, areNullAndLoggedOnceWhereThereIsNoFile) {
    const LogCapture log(QM::LogLevel::error);
    EXPECT_TRUE(loadResourceImage("none.png").isNull());
    EXPECT_TRUE(loadResourceImage("none.png").isNull());
    EXPECT_EQ(log.messages(),
              "Image " + fileOf("none.png").getFullPathName().toStdString() + ": no such file\n");
}

TEST_F(ResourceImages, areNullAndLoggedOnceWhereTheFileIsDamaged) {
    const LogCapture log(QM::LogLevel::error);
    PictureBytes png = pngOf(noiseImage(juce::Image::RGB, 12, 10));
    png.resize(png.size() / 2);
    write("half.png", png);
    EXPECT_TRUE(loadResourceImage("half.png").isNull());
    EXPECT_TRUE(loadResourceImage("half.png").isNull());
    EXPECT_EQ(lines(log), 1);
}

TEST_F(ResourceImages, areTriedAgainAtTheNextOpeningOfAnEditor) {
    const LogCapture log(QM::LogLevel::error);
    EXPECT_TRUE(loadResourceImage("late.png").isNull());
    write("late.png", pngOf(noiseImage(juce::Image::RGB, 12, 10)));
    EXPECT_TRUE(loadResourceImage("late.png").isNull());
    retryFailedImages();
    EXPECT_TRUE(loadResourceImage("late.png").isValid());
}

TEST_F(ResourceImages, prefetchedAreTheSameAsThoseThatAreNot) {
    const juce::Image one = noiseImage(juce::Image::RGB, 120, 100);
    const juce::Image other = noiseImage(juce::Image::RGB, 90, 110);
    write("one.png", pngOf(one));
    write("other.png", pngOf(other));
    prefetchResourceImages({"one.png", "other.png", "one.png"});
    const juce::Image first = loadResourceImage("one.png");
    EXPECT_EQ(pixelsOf(first), pixelsOf(one));
    EXPECT_EQ(pixelsOf(loadResourceImage("other.png")), pixelsOf(other));
    // What has been taken is not fetched again.
    ASSERT_TRUE(fileOf("one.png").deleteFile());
    prefetchResourceImages({"one.png"});
    EXPECT_EQ(loadResourceImage("one.png"), first);
}

TEST_F(ResourceImages, prefetchedAreNullAndLoggedWhenTheyAreAskedForAndCannotBeHad) {
    const LogCapture log;
    prefetchResourceImages({"nowhere.png"});
    EXPECT_TRUE(loadResourceImage("nowhere.png").isNull());
    EXPECT_TRUE(loadResourceImage("nowhere.png").isNull());
    EXPECT_EQ(lines(log), 1);
}

TEST_F(ResourceImages, prefetchedAndNeverAskedForGoWithTheToolkit) {
    write("knob.png", pngOf(noiseImage(juce::Image::RGB, 400, 300)));
    prefetchResourceImages({"knob.png"});
}

TEST_F(ResourceImages, areTheSameForTheSameBytesInMemory) {
    const PictureBytes png = pngOf(noiseImage(juce::Image::RGB, 12, 10));
    const juce::Image first = imageFromMemory(png.data(), png.size());
    EXPECT_EQ(first.getBounds(), juce::Rectangle<int>(12, 10));
    const PictureBytes copy = png;
    EXPECT_EQ(imageFromMemory(copy.data(), copy.size()), first);
}

TEST_F(ResourceImages, areOthersForOtherBytesInTheSamePlace) {
    PictureBytes bytes = pngOf(noiseImage(juce::Image::RGB, 12, 10));
    const juce::Image first = imageFromMemory(bytes.data(), bytes.size());
    const PictureBytes other = pngOf(noiseImage(juce::Image::RGB, 12, 11));
    bytes.reserve(other.size());
    bytes = other;
    EXPECT_EQ(imageFromMemory(bytes.data(), bytes.size()).getHeight(), 11);
    EXPECT_EQ(first.getHeight(), 10);
}

TEST_F(ResourceImages, areNullForNothingInMemory) {
    const LogCapture log(QM::LogLevel::error);
    EXPECT_TRUE(imageFromMemory(nullptr, 0).isNull());
    EXPECT_EQ(log.messages(), "Image in memory: neither PNG nor WebP\n");
}

TEST_F(ResourceImages, areScaledOnceForASize) {
    write("knob.png", pngOf(noiseImage(juce::Image::RGB, 20, 10)));
    const juce::Image scaled = scaledResourceImage("knob.png", 0.5);
    EXPECT_EQ(scaled.getBounds(), juce::Rectangle<int>(10, 5));
    EXPECT_EQ(scaledResourceImage("knob.png", 0.5), scaled);
    // 20 x 0.52 = 10.4, 10 x 0.52 = 5.2: the same size.
    EXPECT_EQ(scaledResourceImage("knob.png", 0.52), scaled);
    EXPECT_NE(scaledResourceImage("knob.png", 0.6), scaled);
}

TEST_F(ResourceImages, areScaledUnderNameAndSizeInTheToolkitsCache) {
    const juce::Image image = noiseImage(juce::Image::ARGB, 20, 10);
    const juce::Image scaled = scaledImage("strip.png", image, 0.5, 0.3);
    EXPECT_EQ(juce::ImageCache::getFromHashCode(juce::String("strip.png10x3").hashCode64()),
              scaled);
}

TEST_F(ResourceImages, areNotScaledUp) {
    const juce::Image image = noiseImage(juce::Image::ARGB, 20, 10);
    EXPECT_EQ(scaledImage("strip.png", image, 1.0, 0.5), image);
    EXPECT_TRUE(scaledImage("strip.png", {}, 0.5, 0.5).isNull());
    EXPECT_TRUE(scaledImage("strip.png", image, 0.0, 0.5).isNull());
}

} // namespace
