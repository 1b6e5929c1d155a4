// SPDX-License-Identifier: GPL-3.0-or-later
//
// A view without a window: its form, its size and its picture.

#include "tools/brolt-host/editor/EditorView.h"

#include "tools/brolt-host/tests/HostTestKit.h"
#include "tools/brolt-host/tests/editor/FakeEditorView.h"
#include "tools/brolt-host/tests/vst3/FakeVst3PlugIn.h"
#include "tools/brolt-host/vst3/Vst3Instance.h"

#include <gtest/gtest.h>

namespace {

class EditorViewTest : public testing::Test {
protected:
    EditorViewTest() {
        plugIn.makeView = [this] { return fake.made(); };
    }

    CallLog log;
    FakeEditorView fake{log};
    FakeVst3PlugIn plugIn;
    Vst3Instance instance{plugIn.effectClass()};
    ViewOptions options;
};

} // namespace

TEST_F(EditorViewTest, aPlugInWithoutAnEditorIsRefused) {
    plugIn.makeView = nullptr;
    EXPECT_EQ(errorOf([&] { const EditorView view(instance.controller()); }),
              "the plug-in has no editor");
}

TEST_F(EditorViewTest, isLetGoOfAtItsEnd) {
    { const EditorView view(instance.controller()); }
    EXPECT_EQ(log, CallLog{"released"});
}

TEST_F(EditorViewTest, nothingIsChosenUnlessItIsAskedFor) {
    EditorView view(instance.controller());
    view.choose(options);
    EXPECT_EQ(log, CallLog{});
}

TEST_F(EditorViewTest, formAndSizeAreChosen) {
    EditorView view(instance.controller());
    options.generic = true;
    options.magnification = 150;
    view.choose(options);
    EXPECT_EQ(log, (CallLog{"showGenericEditor 1", "setMagnification 150"}));
}

TEST_F(EditorViewTest, aRefusedChoiceIsSaid) {
    EditorView view(instance.controller());
    options.magnification = 150;
    fake.refused = "setMagnification";
    EXPECT_EQ(errorOf([&] { view.choose(options); }),
              "the VST3 plug-in answers setMagnification with 'false'");
}

TEST_F(EditorViewTest, aViewOfSomebodyElseIsShownAsItIsAndNoOtherWay) {
    fake.isOurs = false;
    EditorView view(instance.controller());
    view.refreshDisplays();
    EXPECT_EQ(view.size(), (ViewSize{320, 200}));
    EXPECT_EQ(errorOf([&] { static_cast<void>(view.picture()); }),
              "the plug-in's editor draws no pictures without a window");
    options.magnification = 150;
    EXPECT_EQ(errorOf([&] { view.choose(options); }),
              "--scale: the plug-in's editor cannot be told its size");
    options.generic = true;
    EXPECT_EQ(errorOf([&] { view.choose(options); }),
              "--generic: the plug-in's editor has one form alone");
}

TEST_F(EditorViewTest, sizesThatNothingHasAreRefused) {
    const EditorView view(instance.controller());
    fake.size = {0, 200};
    EXPECT_EQ(errorOf([&] { static_cast<void>(view.size()); }),
              "the plug-in's editor claims a size of 0 x 200 pixels");
    fake.size = {320, 16385};
    EXPECT_EQ(errorOf([&] { static_cast<void>(view.size()); }),
              "the plug-in's editor claims a size of 320 x 16385 pixels");
}

TEST_F(EditorViewTest, aPictureIsDrawnInTheViewsSizeAndLosesItsAlpha) {
    fake.size = {2, 3};
    EditorView view(instance.controller());
    EXPECT_EQ(view.picture(), (std::vector<std::uint8_t>{0, 1, 2, 1, 2, 3, 2, 3, 4, //
                                                         3, 4, 5, 4, 5, 6, 5, 6, 7}));
    EXPECT_EQ(log, CallLog{"drawInto 2 x 3"});
}
