// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of the editor without a window, as the project's own tools take them.
#include "brolt/library/tests/support/EditorView.h"
#include "brolt/library/tests/support/HostFrame.h"
#include "brolt/library/tests/support/LibraryInstance.h"

using Steinberg::int32;
using Steinberg::kInvalidArgument;
using Steinberg::kResultOk;

namespace {

class EditorPictureTest : public ::testing::Test {
protected:
    LibraryInstance instance;
    EditorView view{instance.controller()};
    Steinberg::FUnknownPtr<IQMEditorPicture> pictures = view.as<IQMEditorPicture>();

    /// Whether the picture of the area comes to change once more.
    bool changes(EditorArea area, const EditorPicture& before) {
        HostFrame nobody(HostFrame::Loop::none);
        return nobody.driveUntil([&] { return view.picture(area) != before; });
    }
};

} // namespace

TEST_F(EditorPictureTest, isAsLargeAsTheViewAndHasNoHoles) {
    const EditorPicture picture = view.picture();
    EXPECT_EQ(picture.size, view.size());
    EXPECT_TRUE(picture.isOpaque());
    EXPECT_FALSE(picture.isOneColour());
}

TEST_F(EditorPictureTest, isTheSameWhereNothingChanges) {
    EXPECT_TRUE(view.picture() == view.picture());
}

TEST_F(EditorPictureTest, isRefusedInAnotherSizeAndWithoutRoom) {
    const auto [width, height] = view.size();
    std::vector<Steinberg::uint8> pixels(
        4 * static_cast<std::size_t>(width + 1) * static_cast<std::size_t>(height + 1), 77);
    EXPECT_EQ(pictures->drawInto(pixels.data(), width + 1, height), kInvalidArgument);
    EXPECT_EQ(pictures->drawInto(pixels.data(), width, height - 1), kInvalidArgument);
    EXPECT_EQ(pictures->drawInto(pixels.data(), height, width), kInvalidArgument);
    EXPECT_EQ(pictures->drawInto(pixels.data(), 0, 0), kInvalidArgument);
    EXPECT_EQ(pictures->drawInto(nullptr, width, height), kInvalidArgument);
    EXPECT_EQ(pixels, std::vector<Steinberg::uint8>(pixels.size(), 77));
}

TEST_F(EditorPictureTest, isDrawnAtOtherMagnifications) {
    ASSERT_EQ(view.magnify(100), kResultOk);
    const EditorSize design = view.size();
    for (const int32 percent : {60, 120, 200}) {
        ASSERT_EQ(view.magnify(percent), kResultOk);
        const EditorSize size = view.size();
        // An editor is never larger than the screen, where there is one; its sides stay in
        // proportion.
        EXPECT_LE(size.width, design.width * percent / 100 + 1) << percent;
        EXPECT_NEAR(size.height, 1.0 * size.width * design.height / design.width, 2.0) << percent;
        if (percent < 100) {
            EXPECT_NEAR(size.width, design.width * percent / 100.0, 1.0) << percent;
        } else {
            EXPECT_GT(size.width, design.width) << percent;
        }
        const EditorPicture picture = view.picture();
        EXPECT_EQ(picture.size, size);
        EXPECT_TRUE(picture.isOpaque());
        EXPECT_FALSE(picture.isOneColour());
        EXPECT_EQ(view.areasOf(1).size(), 1U) << percent;
    }
}

TEST_F(EditorPictureTest, hasNoMagnificationBelowOnePercent) {
    const EditorSize before = view.size();
    for (const int32 percent : {0, -1, -100})
        EXPECT_EQ(view.magnify(percent), kInvalidArgument);
    EXPECT_EQ(view.size(), before);
    EXPECT_EQ(view.magnify(1), kResultOk);
    EXPECT_FALSE(view.picture().pixels.empty());
}

TEST_F(EditorPictureTest, leavesTheNextViewsMagnificationAlone) {
    const EditorSize before = view.size();
    ASSERT_EQ(view.magnify(60), kResultOk);
    EditorView next(instance.controller());
    EXPECT_EQ(next.size(), before);
}

TEST_F(EditorPictureTest, showsTheEditorThatEveryProductHasAndTheProductsOwn) {
    EXPECT_EQ(pictures->showGenericEditor(1), kResultOk);
    EXPECT_EQ(view.areasOf(14).size(), 2U); // a knob and its readout
    EXPECT_FALSE(view.picture().isOneColour());
    EXPECT_EQ(pictures->showGenericEditor(0), kResultOk);
    EXPECT_FALSE(view.picture().isOneColour());
}

TEST_F(EditorPictureTest, followsTheParameter) {
    const auto [readout, knob] = view.knobOf(1);
    const EditorArea other = view.areasOf(2).at(0);
    const EditorPicture knobBefore = view.picture(knob);
    const EditorPicture readoutBefore = view.picture(readout);
    const EditorPicture otherBefore = view.picture(other);
    instance.set("afre", 250.0);
    EXPECT_TRUE(changes(knob, knobBefore));
    EXPECT_TRUE(changes(readout, readoutBefore));
    EXPECT_TRUE(view.picture(other) == otherBefore);
    instance.set("afre", 100.0);
    HostFrame nobody(HostFrame::Loop::none);
    EXPECT_TRUE(nobody.driveUntil([&] { return view.picture(knob) == knobBefore; }));
}

TEST_F(EditorPictureTest, followsARestoredState) {
    const Bytes before = instance.state();
    const EditorArea knob = view.areasOf(1).at(0);
    const EditorPicture picture = view.picture(knob);
    instance.set("afre", 250.0);
    ASSERT_TRUE(changes(knob, picture));
    ASSERT_EQ(instance.restore(before), kResultOk);
    HostFrame nobody(HostFrame::Loop::none);
    EXPECT_TRUE(nobody.driveUntil([&] { return view.picture(knob) == picture; }));
}

TEST_F(EditorPictureTest, showsWhatWasSetBeforeTheViewWasThere) {
    const EditorArea knob = view.areasOf(1).at(0);
    const EditorPicture before = view.picture(knob);
    instance.set("afre", 250.0);
    EditorView next(instance.controller());
    EXPECT_TRUE(next.picture(knob) != before);
}
