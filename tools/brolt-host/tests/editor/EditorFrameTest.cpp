// SPDX-License-Identifier: GPL-3.0-or-later
//
// A view and its window: who is told what, and in which order.

#include "tools/brolt-host/editor/EditorFrame.h"

#include "tools/brolt-host/tests/HostTestKit.h"
#include "tools/brolt-host/tests/editor/FakeEditorScreen.h"
#include "tools/brolt-host/tests/vst3/FakeVst3PlugIn.h"
#include "tools/brolt-host/vst3/Vst3Instance.h"

#include <gtest/gtest.h>

#include <optional>

using namespace Steinberg;

namespace {

/// A plug-in, its view and a window; the log begins when the view is attached.
class EditorFrameTest : public testing::Test {
protected:
    EditorFrameTest() {
        plugIn.makeView = [this] { return view.made(); };
    }

    void attach() {
        if (!instance)
            instance.emplace(plugIn.effectClass());
        frame.emplace(EditorView(instance->controller()), window, messages);
        log.clear();
    }

    tresult resize(int width, int height) {
        ViewRect rect(0, 0, width, height);
        return view.frame->resizeView(&view, &rect);
    }

    CallLog log;
    FakeEditorView view{log};
    FakeEditorWindow window{log};
    FakeVst3PlugIn plugIn;
    HostMessages messages;
    std::optional<Vst3Instance> instance;
    std::optional<EditorFrame> frame;
};

} // namespace

TEST_F(EditorFrameTest, aViewHasItsFrameBeforeItIsAttachedAndIsShownAfterwards) {
    instance.emplace(plugIn.effectClass());
    frame.emplace(EditorView(instance->controller()), window, messages);
    EXPECT_EQ(log, (CallLog{"isPlatformTypeSupported Fake", "setFrame some", "attached Fake",
                            "window shown"}));
}

TEST_F(EditorFrameTest, aViewIsRemovedLosesItsFrameAndIsLetGoOf) {
    attach();
    frame.reset();
    EXPECT_EQ(log, (CallLog{"window deaf", "removed", "setFrame none", "released"}));
}

TEST_F(EditorFrameTest, aViewThatWantsAnotherSizeIsSizedAfterItsWindow) {
    attach();
    EXPECT_EQ(resize(400, 300), kResultOk);
    EXPECT_EQ(log, (CallLog{"window 400 x 300", "onSize 400 x 300"}));
}

TEST_F(EditorFrameTest, aViewThatHasTheSizeAlreadyIsNotSized) {
    attach();
    view.size = {400, 300};
    EXPECT_EQ(resize(400, 300), kResultOk);
    EXPECT_EQ(log, CallLog{"window 400 x 300"});
}

TEST_F(EditorFrameTest, aViewMayAskForASizeWhileItIsAttached) {
    view.whenAttached = [this] { EXPECT_EQ(resize(400, 300), kResultOk); };
    instance.emplace(plugIn.effectClass());
    frame.emplace(EditorView(instance->controller()), window, messages);
    EXPECT_EQ(log, (CallLog{"isPlatformTypeSupported Fake", "setFrame some", "attached Fake",
                            "window 400 x 300", "onSize 400 x 300", "window shown"}));
}

TEST_F(EditorFrameTest, aViewThatAsksAgainWhileItIsSizedIsRefused) {
    attach();
    view.whenSized = [this] { EXPECT_EQ(resize(500, 400), kResultFalse); };
    EXPECT_EQ(resize(400, 300), kResultOk);
    EXPECT_EQ(log, (CallLog{"window 400 x 300", "onSize 400 x 300"}));
    view.whenSized = nullptr;
    EXPECT_EQ(resize(500, 400), kResultOk);
}

TEST_F(EditorFrameTest, whatMakesNoSenseIsRefused) {
    attach();
    FakeEditorView other(log);
    ViewRect rect(0, 0, 400, 300);
    EXPECT_EQ(view.frame->resizeView(&other, &rect), kInvalidArgument);
    EXPECT_EQ(view.frame->resizeView(&view, nullptr), kInvalidArgument);
    EXPECT_EQ(resize(0, 300), kInvalidArgument);
    EXPECT_EQ(resize(400, -1), kInvalidArgument);
    EXPECT_EQ(log, CallLog{});
}

TEST_F(EditorFrameTest, theUsersSizeIsLimitedByTheViewAndTold) {
    attach();
    view.largest = {400, 300};
    EXPECT_EQ(window.listener->possibleSize({500, 250}), (ViewSize{400, 250}));
    window.listener->contentResized({400, 250});
    EXPECT_EQ(log, CallLog{"onSize 400 x 250"});
}

TEST_F(EditorFrameTest, aViewOfAnotherWindowSystemIsRefused) {
    view.refused = "isPlatformTypeSupported";
    EXPECT_EQ(errorOf([&] { attach(); }),
              "the plug-in's editor does not know the windows of this system");
    EXPECT_EQ(log, (CallLog{"isPlatformTypeSupported Fake", "released"}));
}

TEST_F(EditorFrameTest, aViewThatRefusesToBeAttachedLosesItsFrame) {
    view.refused = "attached";
    EXPECT_EQ(errorOf([&] { attach(); }), "the VST3 plug-in answers attached with 'false'");
    EXPECT_EQ(log, (CallLog{"isPlatformTypeSupported Fake", "setFrame some", "attached Fake",
                            "setFrame none", "released"}));
}

#ifndef _WIN32
TEST_F(EditorFrameTest, offersTheRunLoopOfItsHost) {
    attach();
    const auto loop = U::cast<Linux::IRunLoop>(view.frame);
    EXPECT_EQ(loop.get(), &messages.runLoop());
    EXPECT_NE(U::cast<IPlugFrame>(view.frame), nullptr);
    EXPECT_EQ(U::cast<IPlugView>(view.frame), nullptr);
}
#endif
