// SPDX-License-Identifier: GPL-3.0-or-later
//
// An editor from its opening to its end, on a screen inside the test.

#include "tools/brolt-host/editor/EditorSession.h"

#include "tools/brolt-host/tests/HostTestKit.h"
#include "tools/brolt-host/tests/editor/FakeEditorScreen.h"
#include "tools/brolt-host/tests/vst3/FakeVst3PlugIn.h"

#include <gtest/gtest.h>

#include <chrono>

namespace {

class EditorSessionTest : public testing::Test {
protected:
    EditorSessionTest() {
        plugIn.makeView = [this] { return view.made(); };
    }

    void run() {
        const EditorPlace place{screen, messages, plugIn.effectClass(), "A Title"};
        runEditorSession(place, options, {}, LoopedInput(std::nullopt),
                         [this](const Vst3Edit& edit) { edits.push_back(edit); });
    }

    /// The window's user does that when the window looks for events.
    void whenOpen(const std::function<void(FakeEditorWindow&)>& action) {
        screen.whenOpened = [action](FakeEditorWindow& window) {
            window.whenDelivering = [action, &window] { action(window); };
        };
    }

    CallLog log;
    FakeEditorView view{log};
    FakeEditorScreen screen{log};
    FakeVst3PlugIn plugIn;
    HostMessages messages;
    ViewOptions options;
    std::vector<Vst3Edit> edits;
};

} // namespace

TEST_F(EditorSessionTest, lastsUntilTheUserClosesTheWindow) {
    whenOpen([](FakeEditorWindow& window) { window.closeIsRequested = true; });
    run();
    EXPECT_EQ(log, (CallLog{"window 'A Title' 320 x 200 fixed", "isPlatformTypeSupported Fake",
                            "setFrame some", "attached Fake", "window shown", "window deaf",
                            "removed", "setFrame none", "released", "window closed"}));
    EXPECT_EQ(plugIn.livingObjects, 0);
}

TEST_F(EditorSessionTest, lastsAsLongAsItWasTold) {
    options.seconds = 0.05;
    const auto begin = std::chrono::steady_clock::now();
    run();
    EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(50));
    EXPECT_EQ(log.back(), "window closed");
}

TEST_F(EditorSessionTest, opensTheFormAndSizeThatWereChosen) {
    options.generic = true;
    options.magnification = 200;
    view.isResizable = true;
    whenOpen([](FakeEditorWindow& window) { window.closeIsRequested = true; });
    run();
    EXPECT_EQ((CallLog{log.begin(), log.begin() + 3}),
              (CallLog{"showGenericEditor 1", "setMagnification 200",
                       "window 'A Title' 320 x 200 resizable"}));
}

TEST_F(EditorSessionTest, editsAreTold) {
    whenOpen([this](FakeEditorWindow& window) {
        plugIn.handler->beginEdit(103);
        plugIn.handler->performEdit(103, 0.25);
        plugIn.handler->endEdit(103);
        window.closeIsRequested = true;
    });
    run();
    EXPECT_EQ(edits, (std::vector<Vst3Edit>{{Vst3Edit::Kind::begin, 103, 0.0},
                                            {Vst3Edit::Kind::perform, 103, 0.25},
                                            {Vst3Edit::Kind::end, 103, 0.0}}));
}

TEST_F(EditorSessionTest, aPlugInThatRefusesToProcessEndsIt) {
    plugIn.refused = "process";
    EXPECT_EQ(errorOf([&] { run(); }), "the VST3 plug-in answers process with 'false'");
    EXPECT_EQ(plugIn.livingObjects, 0);
}

TEST_F(EditorSessionTest, aPlugInWithoutAnEditorOpensNoWindow) {
    plugIn.makeView = nullptr;
    EXPECT_EQ(errorOf([&] { run(); }), "the plug-in has no editor");
    EXPECT_EQ(log, CallLog{});
}
