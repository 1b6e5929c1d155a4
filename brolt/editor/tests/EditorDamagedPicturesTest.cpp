// SPDX-License-Identifier: GPL-3.0-or-later
// A picture file that is missing or damaged costs the editor this picture and nothing else.
#include "brolt/editor/tests/support/BroltEditorTest.h"
#include "brolt/editor/tests/support/DamagedPictures.h"
#include "brolt/editor/tests/support/ProductPictures.h"
#include "services/tests/TemporaryDirectory.h"
#include "widgets/controls/QMKnobStripWidget.h"
#include "widgets/images/ResourceImages.h"

#include <list>

namespace {

FileBytes bytesOf(const juce::File& file) {
    juce::MemoryBlock content;
    EXPECT_TRUE(file.loadFileAsData(content)) << file.getFullPathName();
    const auto* const bytes = static_cast<const std::uint8_t*>(content.getData());
    return {bytes, bytes + content.getSize()};
}

class EditorDamagedPictures : public BroltEditorTest {
protected:
    EditorDamagedPictures() {
        juce::MemoryOutputStream stream;
        juce::Image small(juce::Image::ARGB, 16, 17, true);
        small.clear(small.getBounds(), juce::Colours::grey);
        EXPECT_TRUE(juce::PNGImageFormat().writeImageToStream(small, stream));
        const auto* const bytes = static_cast<const std::uint8_t*>(stream.getData());
        standIn = {bytes, bytes + stream.getDataSize()};
    }

    /// Small pictures under the names of all but this one, so that the editors open quickly.
    /// Another folder each time: pictures that have been read stay.
    [[nodiscard]] juce::File folderWithout(const std::string& name) {
        TemporaryDirectory& made = folders.emplace_back();
        const juce::File folder(juce::String(made.path().string()));
        for (const char* const other : productPictures) {
            if (other != name)
                write(folder.getChildFile(other), standIn);
        }
        return folder;
    }

    static void write(const juce::File& file, const FileBytes& bytes) {
        ASSERT_TRUE(file.replaceWithData(bytes.data(), bytes.size())) << file.getFullPathName();
    }

    void expectAnEditorWithoutThisPicture(const juce::File& folder, const std::string& name,
                                          const std::string& how) {
        setResourceFolder(folder);
        open();
        editor->setScalePercent(60);
        for (const std::int32_t background : {0, 1}) {
            editor->setBackgroundMode(background);
            EXPECT_EQ(picture().getBounds(), editor->getLocalBounds()) << name << ' ' << how;
        }
        for (const char* const asked : productPictures)
            EXPECT_EQ(loadResourceImage(asked).isValid(), asked != name) << name << ' ' << how;
        close();
    }

    FileBytes standIn;
    std::list<TemporaryDirectory> folders;
};

TEST_F(EditorDamagedPictures, areMissedOneByOneWhereTheyAreMissing) {
    for (const char* const name : productPictures)
        expectAnEditorWithoutThisPicture(folderWithout(name), name, "missing");
}

TEST_F(EditorDamagedPictures, areMissedOneByOneWhereTheyAreDamaged) {
    for (const char* const name : productPictures) {
        for (const DamagedPicture& damaged :
             damagedCopiesOf(bytesOf(bundledFiles().getChildFile(name)))) {
            const juce::File folder = folderWithout(name);
            write(folder.getChildFile(name), damaged.bytes);
            expectAnEditorWithoutThisPicture(folder, name, damaged.how);
        }
    }
}

TEST_F(EditorDamagedPictures, allAtOnceLeaveAnEditorThatCanBeUsed) {
    const TemporaryDirectory nothing;
    setResourceFolder(juce::File(juce::String(nothing.path().string())));
    open();
    auto& knob = widget<QMKnobStripWidget>("afre");
    EXPECT_FALSE(knob.getFrames().hasImage());
    TestWindow window(*editor);
    const juce::Image before = picture();
    window.press(knob);
    window.dragBy(0.0F, -50.0F);
    window.release();
    EXPECT_GT(instance->value(fourCharCode("afre")), 100.0);
    const juce::Rectangle<int> area = knob.getBounds();
    int differing = 0;
    const juce::Image after = picture();
    for (int y = area.getY(); y < area.getBottom(); ++y) {
        for (int x = area.getX(); x < area.getRight(); ++x)
            differing += before.getPixelAt(x, y) != after.getPixelAt(x, y) ? 1 : 0;
    }
    EXPECT_GT(differing, 50) << "it turns";
}

} // namespace
