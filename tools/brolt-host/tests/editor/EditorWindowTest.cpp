// SPDX-License-Identifier: GPL-3.0-or-later
//
// Windows on a real screen, or on the one that the tests are given.

#include "tools/brolt-host/editor/EditorScreen.h"

#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/tests/editor/WindowUser.h"

#include <gtest/gtest.h>
#include <pluginterfaces/gui/iplugview.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <vector>

namespace {

/// Allows 800 x 600 at most.
class Listener : public IEditorWindowListener {
public:
    ViewSize possibleSize(ViewSize wanted) override {
        return {std::min(wanted.width, 800), std::min(wanted.height, 600)};
    }

    void contentResized(ViewSize size) override { sizes.push_back(size); }

    std::vector<ViewSize> sizes;
};

class EditorWindowTest : public testing::Test {
protected:
    void SetUp() override {
        try {
            screen = openEditorScreen();
        } catch (const HostError& error) {
            GTEST_SKIP() << error.what();
        }
    }

    void open(bool isResizable) {
        window = screen->openWindow(messages, "Z\xc3\xbcrich", {400, 300}, isResizable);
        user = makeWindowUser(*window);
        window->show(&listener);
        waitFor([this] { return user->seesWindow(); });
    }

    void TearDown() override {
        user.reset();
        window.reset();
        screen.reset();
    }

    /// Keeps the window alive until it is so, or for longer than anything here takes.
    bool waitFor(const std::function<bool()>& condition) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (!condition() && std::chrono::steady_clock::now() < end) {
            window->deliverEvents();
            messages.waitAndDeliver(std::chrono::milliseconds(5));
        }
        return condition();
    }

    HostMessages messages;
    std::unique_ptr<EditorScreen> screen;
    std::unique_ptr<EditorWindow> window;
    std::unique_ptr<WindowUser> user;
    Listener listener;
};

} // namespace

TEST_F(EditorWindowTest, hasTitleSizeAndTheFormThatViewsAreHanded) {
    open(false);
    EXPECT_EQ(user->title(), "Z\xc3\xbcrich");
    EXPECT_EQ(user->contentSize(), (ViewSize{400, 300}));
    EXPECT_TRUE(user->seesWindow());
    EXPECT_NE(window->nativeHandle(), nullptr);
#ifdef _WIN32
    EXPECT_STREQ(window->platformType(), "HWND");
#else
    EXPECT_STREQ(window->platformType(), "X11EmbedWindowID");
#endif
}

TEST_F(EditorWindowTest, onlyAResizableOneHasAnEdgeToDrag) {
    open(false);
    EXPECT_FALSE(user->mayResize());
    open(true);
    EXPECT_TRUE(user->mayResize());
}

TEST_F(EditorWindowTest, stillHasNoEdgeToDragInAnotherSize) {
    open(false);
    window->setContentSize({500, 200});
    EXPECT_TRUE(waitFor([this] { return user->contentSize() == ViewSize{500, 200}; }));
    EXPECT_FALSE(user->mayResize());
    EXPECT_TRUE(listener.sizes.empty());
}

TEST_F(EditorWindowTest, theUsersSizeIsTold) {
    open(true);
    user->drag({640, 480});
    EXPECT_TRUE(waitFor([this] { return !listener.sizes.empty(); }));
    EXPECT_EQ(listener.sizes.back(), (ViewSize{640, 480}));
    EXPECT_EQ(user->contentSize(), (ViewSize{640, 480}));
}

TEST_F(EditorWindowTest, theUserIsHeldToWhatIsPossible) {
    open(true);
    user->drag({900, 500});
    EXPECT_TRUE(waitFor([this] { return user->contentSize() == ViewSize{800, 500}; }));
    EXPECT_TRUE(waitFor([this] { return !listener.sizes.empty(); }));
    EXPECT_EQ(listener.sizes.back(), (ViewSize{800, 500}));
}

TEST_F(EditorWindowTest, theCloseButtonIsARequestAndClosesNothing) {
    open(false);
    EXPECT_FALSE(window->isCloseRequested());
    user->clickClose();
    EXPECT_TRUE(waitFor([this] { return window->isCloseRequested(); }));
    EXPECT_TRUE(user->seesWindow());
}
