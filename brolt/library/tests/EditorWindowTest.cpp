// SPDX-License-Identifier: GPL-3.0-or-later
// The view in a host's window: that it is there, follows sizes, hands on what is not for it, and
// asks the host for its menu.
#include "brolt/library/tests/support/AttachedEditor.h"
#include "brolt/library/tests/support/EditRecorder.h"

#include <pluginterfaces/vst/ivstcontextmenu.h>

#include <memory>

using Steinberg::kNotImplemented;
using Steinberg::kResultOk;
using Steinberg::tresult;
using Heard = EditorWindow::HeardKey;

namespace {

constexpr Vst::ParamID attackFrequency = 1;

/// A host's menu of a parameter that notes where it was opened.
class HostMenu : public HostObject<Vst::IContextMenu> {
public:
    std::vector<EditorPoint> places;

    Steinberg::int32 PLUGIN_API getItemCount() override { return 0; }

    tresult PLUGIN_API getItem(Steinberg::int32, Item&, Vst::IContextMenuTarget**) override {
        return kNotImplemented;
    }

    tresult PLUGIN_API addItem(const Item&, Vst::IContextMenuTarget*) override {
        return kNotImplemented;
    }

    tresult PLUGIN_API removeItem(const Item&, Vst::IContextMenuTarget*) override {
        return kNotImplemented;
    }

    tresult PLUGIN_API popup(Steinberg::UCoord x, Steinberg::UCoord y) override {
        places.push_back({x, y});
        return kResultOk;
    }
};

/// The handler of a host that has menus, or knows of them and has none.
class MenuHost : public HostObject<Vst::IComponentHandler, Vst::IComponentHandler3> {
public:
    HostMenu menu;
    bool hasMenu = true;
    Steinberg::IPlugView* view = nullptr;
    std::vector<Vst::ParamID> asked;
    int edits = 0;

    Vst::IContextMenu* PLUGIN_API createContextMenu(Steinberg::IPlugView* whose,
                                                    const Vst::ParamID* id) override {
        view = whose;
        asked.push_back(*id);
        if (!hasMenu)
            return nullptr;
        menu.addRef();
        return &menu;
    }

    tresult PLUGIN_API beginEdit(Vst::ParamID) override { return noteEdit(); }

    tresult PLUGIN_API performEdit(Vst::ParamID, Vst::ParamValue) override { return noteEdit(); }

    tresult PLUGIN_API endEdit(Vst::ParamID) override { return noteEdit(); }

    tresult PLUGIN_API restartComponent(Steinberg::int32) override { return kResultOk; }

private:
    tresult noteEdit() {
        ++edits;
        return kResultOk;
    }
};

class EditorInWindow : public ::testing::Test {
protected:
    std::unique_ptr<LibraryInstance> instance;
    std::unique_ptr<AttachedEditor> editor;
    MenuHost menuHost;
    EditRecorder plainHost;

    void SetUp() override {
        if (const std::string reason = EditorWindow::obstacleToInput(); !reason.empty())
            GTEST_SKIP() << reason;
        instance = std::make_unique<LibraryInstance>();
        editor = std::make_unique<AttachedEditor>(*instance);
    }

    ~EditorInWindow() override {
        editor.reset();
        instance.reset();
        EXPECT_EQ(menuHost.references(), 0U);
        EXPECT_EQ(menuHost.menu.references(), 0U);
        EXPECT_EQ(plainHost.references(), 0U);
    }

    EditorPoint knob() { return editor->view.areasOf(attackFrequency).at(0).centre(); }

    bool clickRight(EditorPoint point) { return editor->click(point, EditorWindow::Button::right); }

    ::testing::AssertionResult hears(const std::vector<Heard>& keys) {
        if (editor->driveUntil([&] { return editor->window.heardKeys() == keys; }))
            return ::testing::AssertionSuccess();
        auto result = ::testing::AssertionFailure() << "the host heard";
        for (const Heard& each : editor->window.heardKeys())
            result << ' ' << static_cast<int>(each.key) << (each.isDown ? " down" : " up");
        return result;
    }
};

} // namespace

TEST_F(EditorInWindow, isAChildAsLargeAsTheView) {
    EXPECT_EQ(editor->window.children(), 1U);
    EXPECT_TRUE(
        editor->driveUntil([&] { return editor->window.childSize() == editor->view.size(); }));
}

TEST_F(EditorInWindow, followsTheSizeThatTheHostGives) {
    const EditorSize own = editor->view.size();
    ASSERT_EQ(editor->view.giveSize({own.width + 40, own.height + 30}), kResultOk);
    EXPECT_TRUE(editor->driveUntil([&] {
        return editor->window.childSize() == EditorSize{own.width + 40, own.height + 30};
    }));
}

TEST_F(EditorInWindow, growsWithTheEditor) {
    ASSERT_EQ(editor->view.magnify(60), kResultOk);
    EXPECT_FALSE(editor->frame.requests.empty());
    EXPECT_EQ(editor->frame.requests.back(), editor->view.size());
    EXPECT_TRUE(
        editor->driveUntil([&] { return editor->window.childSize() == editor->view.size(); }));
}

TEST_F(EditorInWindow, comesBackAfterItWasRemoved) {
    Steinberg::IPlugView& view = editor->view.plugView();
    const EditorPicture before = editor->view.picture();
    for (int i = 0; i < 3; ++i) {
        ASSERT_EQ(view.removed(), kResultOk);
        EXPECT_EQ(editor->window.children(), 0U);
        ASSERT_EQ(view.attached(editor->window.handle(), EditorWindow::platformType()), kResultOk);
        EXPECT_TRUE(editor->driveUntil([&] { return editor->window.showsChild(); }));
    }
    EXPECT_TRUE(editor->view.picture() == before);
}

TEST_F(EditorInWindow, movesToAnotherWindowOfTheHosts) {
    EditorWindow second(editor->view.size());
    Steinberg::IPlugView& view = editor->view.plugView();
    ASSERT_EQ(view.removed(), kResultOk);
    ASSERT_EQ(view.attached(second.handle(), EditorWindow::platformType()), kResultOk);
    EXPECT_TRUE(editor->driveUntil([&] { return second.showsChild(); }));
    EXPECT_EQ(editor->window.children(), 0U);
    EXPECT_EQ(view.removed(), kResultOk);
    EXPECT_EQ(second.children(), 0U);
}

// Keys.

TEST_F(EditorInWindow, survivesAHostThatDestroysItsWindowFirst) {
    Steinberg::IPlugView& view = editor->view.plugView();
    const EditorPoint place = knob();
    const EditorSize size = editor->view.size();
    for (int i = 0; i < 3; ++i) {
        ASSERT_EQ(view.removed(), kResultOk);
        auto window = std::make_unique<EditorWindow>(size);
        ASSERT_EQ(view.attached(window->handle(), EditorWindow::platformType()), kResultOk);
        ASSERT_TRUE(editor->driveUntil([&] { return window->showsChild(); }));
        window->press(place);
        window.reset();
        EXPECT_EQ(editor->view.size(), size);
        if (i > 0)
            editor->frame.drive();
    }
    ASSERT_EQ(view.removed(), kResultOk);
    editor->frame.drive();
    // And is as good as before in the next.
    ASSERT_EQ(view.attached(editor->window.handle(), EditorWindow::platformType()), kResultOk);
    EXPECT_TRUE(editor->driveUntil([&] { return editor->window.showsChild(); }));
    EXPECT_EQ(editor->view.size(), size);
}

TEST_F(EditorInWindow, handsTheSpaceBarToTheHost) {
    editor->type(EditorKey::space);
    EXPECT_TRUE(hears({{EditorKey::space, true}, {EditorKey::space, false}}));
}

TEST_F(EditorInWindow, handsTheSpaceBarToTheHostFromAControlAsWell) {
    (void)editor->click(knob());
    editor->type(EditorKey::space);
    EXPECT_TRUE(hears({{EditorKey::space, true}, {EditorKey::space, false}}));
}

TEST_F(EditorInWindow, handsOtherKeysToTheHostOnceEach) {
    for (const EditorKey key : {EditorKey::up, EditorKey::enter, keyOfDigit('7')})
        editor->type(key);
    EXPECT_TRUE(hears({{EditorKey::up, true},
                       {EditorKey::up, false},
                       {EditorKey::enter, true},
                       {EditorKey::enter, false},
                       {keyOfDigit('7'), true},
                       {keyOfDigit('7'), false}}));
}

TEST_F(EditorInWindow, keepsTheKeysOfAControlFromTheHost) {
    instance->controller().setComponentHandler(&plainHost);
    const EditorPoint place = knob();
    // The window manager may give the keyboard to some other window: once more then.
    for (int attempt = 0; attempt < 20 && plainHost.lines.empty(); ++attempt) {
        if (!clickRight(place))
            continue;
        for (const EditorKey key : {keyOfDigit('9'), keyOfDigit('0'), EditorKey::enter})
            editor->type(key);
        (void)editor->driveUntil([&] { return plainHost.lines.size() >= 3; },
                                 std::chrono::milliseconds(500));
    }
    EXPECT_EQ(plainHost.lines.size(), 3U);
    EXPECT_NEAR(instance->plain("afre"), 90.0, 1e-3);
    // What comes behind them has come; they have not, but for word that they are up again.
    editor->type(EditorKey::space);
    EXPECT_TRUE(editor->driveUntil([&] {
        const std::vector<Heard> keys = editor->window.heardKeys();
        return !keys.empty() && keys.back() == Heard{EditorKey::space, false};
    }));
    for (const Heard& each : editor->window.heardKeys())
        EXPECT_TRUE(each.key == EditorKey::space || !each.isDown) << static_cast<int>(each.key);
}

// The host's menu.

TEST_F(EditorInWindow, opensTheHostsMenuAtTheMouse) {
    instance->controller().setComponentHandler(&menuHost);
    const EditorPoint place = knob();
    (void)clickRight(place);
    ASSERT_TRUE(editor->driveUntil([&] { return !menuHost.menu.places.empty(); }));
    EXPECT_EQ(menuHost.view, &editor->view.plugView());
    EXPECT_EQ(menuHost.asked, std::vector<Vst::ParamID>{attackFrequency});
    ASSERT_EQ(menuHost.menu.places.size(), 1U);
    EXPECT_EQ(menuHost.menu.places[0].x, place.x);
    EXPECT_EQ(menuHost.menu.places[0].y, place.y);
    EXPECT_EQ(menuHost.menu.references(), 0U);
    EXPECT_EQ(menuHost.edits, 0);
}

TEST_F(EditorInWindow, opensNoMenuForAnotherButton) {
    instance->controller().setComponentHandler(&menuHost);
    const EditorPoint place = knob();
    editor->window.press(place);
    editor->window.release(place);
    EXPECT_TRUE(editor->driveUntil([&] { return menuHost.edits == 2; }));
    EXPECT_TRUE(menuHost.asked.empty());
}

TEST_F(EditorInWindow, keepsTheRightButtonFromAControlWhoseMenuIsOpen) {
    instance->controller().setComponentHandler(&menuHost);
    (void)clickRight(knob());
    ASSERT_TRUE(editor->driveUntil([&] { return !menuHost.menu.places.empty(); }));
    // A control that had got it would take the keyboard, and an arrow key for its own.
    editor->type(EditorKey::up);
    EXPECT_TRUE(hears({{EditorKey::up, true}, {EditorKey::up, false}}));
    EXPECT_EQ(menuHost.edits, 0);
}

TEST_F(EditorInWindow, leavesTheRightButtonToTheControlWhereTheHostHasNoMenu) {
    menuHost.hasMenu = false;
    instance->controller().setComponentHandler(&menuHost);
    const EditorPoint place = knob();
    // The window manager may give the keyboard to some other window: once more then.
    for (int attempt = 0; attempt < 20 && menuHost.edits == 0; ++attempt) {
        if (!clickRight(place))
            continue;
        editor->type(EditorKey::up);
        (void)editor->driveUntil([&] { return menuHost.edits >= 3; },
                                 std::chrono::milliseconds(500));
    }
    EXPECT_EQ(menuHost.edits, 3); // begun, performed, ended
    EXPECT_FALSE(menuHost.asked.empty());
}

TEST_F(EditorInWindow, leavesTheRightButtonToTheControlWhereTheHostKnowsNoMenus) {
    instance->controller().setComponentHandler(&plainHost);
    const EditorPoint place = knob();
    for (int attempt = 0; attempt < 20 && plainHost.lines.empty(); ++attempt) {
        if (!clickRight(place))
            continue;
        editor->type(EditorKey::up);
        (void)editor->driveUntil([&] { return plainHost.lines.size() >= 3; },
                                 std::chrono::milliseconds(500));
    }
    ASSERT_EQ(plainHost.lines.size(), 3U);
    EXPECT_EQ(plainHost.lines.front(), "begin 1");
    EXPECT_EQ(plainHost.lines.back(), "end 1");
}

TEST_F(EditorInWindow, opensNoMenuWithoutAHandler) {
    instance->controller().setComponentHandler(nullptr);
    (void)clickRight(knob());
    editor->type(EditorKey::space);
    EXPECT_TRUE(hears({{EditorKey::space, true}, {EditorKey::space, false}}));
}
