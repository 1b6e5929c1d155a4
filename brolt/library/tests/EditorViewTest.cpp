// SPDX-License-Identifier: GPL-3.0-or-later
// The editor's view as far as it needs no window: what it answers, its size, what it holds.
#include "brolt/library/tests/support/EditorView.h"
#include "brolt/library/tests/support/EditorWindow.h"
#include "brolt/library/tests/support/HostFrame.h"
#include "brolt/library/tests/support/LibraryInstance.h"

#include <pluginterfaces/gui/iplugviewcontentscalesupport.h>

#include <set>

using Steinberg::FIDString;
using Steinberg::kInvalidArgument;
using Steinberg::kResultFalse;
using Steinberg::kResultOk;
using Steinberg::ViewRect;

namespace {

constexpr FIDString foreignTypes[] = {"NSView",
                                      "UIView",
                                      "hwnd",
                                      "",
                                      "X11EmbedWindow",
#ifdef _WIN32
                                      Steinberg::kPlatformTypeX11EmbedWindowID
#else
                                      Steinberg::kPlatformTypeHWND
#endif
};

class EditorViewTest : public ::testing::Test {
protected:
    LibraryInstance instance;
    EditorView view{instance.controller()};

    Steinberg::IPlugView& plugView() { return view.plugView(); }
};

} // namespace

TEST_F(EditorViewTest, isMadeForTheNameEditor) {
    const auto another = Steinberg::owned(instance.controller().createView("editor"));
    EXPECT_NE(another.get(), nullptr);
    EXPECT_NE(another.get(), &plugView());
}

TEST_F(EditorViewTest, knowsTheWindowsOfThisPlatformAlone) {
#ifdef _WIN32
    EXPECT_EQ(plugView().isPlatformTypeSupported("HWND"), kResultOk);
#else
    EXPECT_EQ(plugView().isPlatformTypeSupported("X11EmbedWindowID"), kResultOk);
#endif
    for (const FIDString type : foreignTypes)
        EXPECT_EQ(plugView().isPlatformTypeSupported(type), kResultFalse) << type;
    EXPECT_EQ(plugView().isPlatformTypeSupported(nullptr), kResultFalse);
}

TEST_F(EditorViewTest, isNotAttachedWithoutAParentOrToForeignWindows) {
    int someWindow = 0;
    EXPECT_EQ(plugView().attached(nullptr, EditorWindow::platformType()), kResultFalse);
    for (const FIDString type : foreignTypes)
        EXPECT_EQ(plugView().attached(&someWindow, type), kResultFalse) << type;
    EXPECT_EQ(plugView().attached(&someWindow, nullptr), kResultFalse);
    EXPECT_EQ(plugView().attached(nullptr, nullptr), kResultFalse);
}

TEST_F(EditorViewTest, mayBeRemovedWithoutHavingBeenAttached) {
    EXPECT_EQ(plugView().removed(), kResultOk);
    EXPECT_EQ(plugView().removed(), kResultOk);
    EXPECT_GT(view.size().width, 0);
    EXPECT_EQ(plugView().removed(), kResultOk);
}

TEST_F(EditorViewTest, leavesWheelKeysAndFocusToTheWindowSystem) {
    EXPECT_EQ(plugView().onWheel(1.0F), kResultFalse);
    EXPECT_EQ(plugView().onKeyDown('a', 0, 0), kResultFalse);
    EXPECT_EQ(plugView().onKeyUp('a', 0, 0), kResultFalse);
    EXPECT_EQ(plugView().onFocus(1), kResultFalse);
    EXPECT_EQ(plugView().onFocus(0), kResultFalse);
}

TEST_F(EditorViewTest, isNotResizedByTheHost) {
    EXPECT_EQ(plugView().canResize(), kResultFalse);
    ViewRect wish(0, 0, 333, 222);
    EXPECT_EQ(plugView().checkSizeConstraint(&wish), kResultFalse);
}

TEST_F(EditorViewTest, hasItsSizeFromTheUserAndNotFromTheScreensScale) {
    const auto scale = view.as<Steinberg::IPlugViewContentScaleSupport>();
    ASSERT_TRUE(scale);
    const EditorSize before = view.size();
    EXPECT_EQ(scale->setContentScaleFactor(2.0F), kResultFalse);
    EXPECT_EQ(view.size(), before);
}

// Size.

TEST_F(EditorViewTest, tellsItsSizeFromTheOrigin) {
    ViewRect rect(11, 12, 13, 14);
    ASSERT_EQ(plugView().getSize(&rect), kResultOk);
    EXPECT_EQ(rect.left, 0);
    EXPECT_EQ(rect.top, 0);
    // Room for two rows of controls at least.
    EXPECT_GT(rect.right, 300);
    EXPECT_GT(rect.bottom, 200);
    EXPECT_EQ(plugView().getSize(nullptr), kInvalidArgument);
    EXPECT_EQ(plugView().onSize(nullptr), kInvalidArgument);
}

TEST_F(EditorViewTest, tellsItsSizeFromTheOriginWhereverItIs) {
    const EditorSize wanted{view.size().width + 50, view.size().height + 40};
    ASSERT_EQ(view.giveSize(wanted, {17, 23}), kResultOk);
    ViewRect rect;
    ASSERT_EQ(plugView().getSize(&rect), kResultOk);
    EXPECT_EQ(rect.left, 0);
    EXPECT_EQ(rect.top, 0);
    EXPECT_EQ(view.size(), wanted);
}

TEST_F(EditorViewTest, keepsItsSizeWhereTheHostsIsLessThanThreePixelsOff) {
    const EditorSize own = view.size();
    for (const int width : {-2, -1, 0, 1, 2}) {
        for (const int height : {-2, 0, 2}) {
            EXPECT_EQ(view.giveSize({own.width + width, own.height + height}), kResultOk);
            EXPECT_EQ(view.size(), own) << width << ", " << height;
        }
    }
}

TEST_F(EditorViewTest, takesTheHostsSizeWhereEitherSideIsThreePixelsOff) {
    const EditorSize own = view.size();

    struct Difference {
        int width;
        int height;
    };

    for (const Difference& each : {Difference{3, 0},
                                   {-3, 0},
                                   {0, 3},
                                   {0, -3},
                                   {3, 2},
                                   {2, -3},
                                   {3, 3},
                                   {100, 1},
                                   {-100, -100}}) {
        ASSERT_EQ(view.giveSize(own), kResultOk);
        ASSERT_EQ(view.giveSize(own), kResultOk);
        const EditorSize wanted{own.width + each.width, own.height + each.height};
        EXPECT_EQ(view.giveSize(wanted), kResultOk);
        EXPECT_EQ(view.size(), wanted) << each.width << ", " << each.height;
    }
}

TEST_F(EditorViewTest, measuresTheDifferenceFromItsSizeNow) {
    const EditorSize own = view.size();
    // Two pixels and two more: the second is four off the size that it still has.
    EXPECT_EQ(view.giveSize({own.width + 2, own.height}), kResultOk);
    EXPECT_EQ(view.giveSize({own.width + 4, own.height}), kResultOk);
    EXPECT_EQ(view.size(), (EditorSize{own.width + 4, own.height}));
    EXPECT_EQ(view.giveSize({own.width + 2, own.height}), kResultOk);
    EXPECT_EQ(view.size(), (EditorSize{own.width + 4, own.height}));
}

TEST_F(EditorViewTest, survivesSizesThatNoEditorHas) {
    (void)view.size();
    for (const EditorSize size : {EditorSize{0, 0}, {1, 1}, {-5, -5}, {4000, 3}})
        EXPECT_EQ(view.giveSize(size), kResultOk);
    EXPECT_EQ(view.giveSize({640, 480}), kResultOk);
    EXPECT_EQ(view.size(), (EditorSize{640, 480}));
}

TEST_F(EditorViewTest, doesNotAskForTheSizeThatTheHostGives) {
    HostFrame frame;
    const EditorSize own = view.size();
    ASSERT_EQ(plugView().setFrame(&frame), kResultOk);
    EXPECT_EQ(view.giveSize(own), kResultOk);
    EXPECT_EQ(view.giveSize({own.width + 1, own.height}), kResultOk);
    EXPECT_EQ(view.giveSize({own.width + 60, own.height + 70}), kResultOk);
    EXPECT_TRUE(frame.requests.empty());
    EXPECT_EQ(plugView().setFrame(nullptr), kResultOk);
}

TEST_F(EditorViewTest, asksItsFrameForAnotherSizeAndTakesIt) {
    HostFrame frame;
    const EditorSize own = view.size();
    ASSERT_EQ(plugView().setFrame(&frame), kResultOk);
    ASSERT_EQ(view.magnify(60), kResultOk);
    ASSERT_FALSE(frame.requests.empty());
    EXPECT_EQ(frame.requests.back(), view.size());
    // It opens at 120 percent.
    EXPECT_NEAR(view.size().width, 0.5 * own.width, 1.0);
    EXPECT_NEAR(view.size().height, 0.5 * own.height, 1.0);
    EXPECT_EQ(plugView().setFrame(nullptr), kResultOk);
}

// The frame.

TEST_F(EditorViewTest, holdsItsFrameUntilItGetsAnother) {
    for (const HostFrame::Loop loop : {HostFrame::Loop::none, HostFrame::Loop::lent}) {
        HostFrame first(loop);
        HostFrame second(loop);
        EXPECT_EQ(plugView().setFrame(&first), kResultOk);
        EXPECT_GE(first.references(), 1U);
        EXPECT_EQ(plugView().setFrame(&first), kResultOk);
        EXPECT_EQ(plugView().setFrame(&second), kResultOk);
        EXPECT_TRUE(first.isLetGo());
        EXPECT_GE(second.references(), 1U);
        EXPECT_EQ(plugView().setFrame(nullptr), kResultOk);
        EXPECT_TRUE(second.isLetGo());
        EXPECT_EQ(plugView().setFrame(nullptr), kResultOk);
    }
}

TEST_F(EditorViewTest, holdsNoMoreOfAFrameThatItIsGivenTwice) {
    HostFrame frame(HostFrame::Loop::none);
    EXPECT_EQ(plugView().setFrame(&frame), kResultOk);
    const Steinberg::uint32 held = frame.references();
    EXPECT_EQ(plugView().setFrame(&frame), kResultOk);
    EXPECT_EQ(frame.references(), held);
    EXPECT_EQ(plugView().setFrame(nullptr), kResultOk);
    EXPECT_EQ(frame.references(), 0U);
}

TEST_F(EditorViewTest, letsGoOfItsFrameWhenItGoes) {
    HostFrame frame;
    {
        EditorView another(instance.controller());
        EXPECT_EQ(another.plugView().setFrame(&frame), kResultOk);
        EXPECT_GE(frame.references(), 1U);
    }
    EXPECT_TRUE(frame.isLetGo());
}

#ifndef _WIN32
TEST_F(EditorViewTest, worksInTheLoopOfItsFrameAndWithoutItAfterwards) {
    HostFrame frame;
    ASSERT_EQ(plugView().setFrame(&frame), kResultOk);
    EXPECT_GT(frame.loop.descriptors() + frame.loop.timers(), 0U);
    const EditorPicture before = view.picture();
    instance.set("gain", 12.0);
    EXPECT_TRUE(frame.driveUntil([&] { return view.picture() != before; }));
    ASSERT_EQ(plugView().setFrame(nullptr), kResultOk);
    const EditorPicture between = view.picture();
    instance.set("gain", -12.0);
    HostFrame nobody(HostFrame::Loop::none);
    EXPECT_TRUE(nobody.driveUntil([&] { return view.picture() != between; }));
}

TEST_F(EditorViewTest, doesWithoutTheLoopOfAFrameThatRefuses) {
    HostFrame frame;
    frame.loop.refuses = true;
    ASSERT_EQ(plugView().setFrame(&frame), kResultOk);
    const EditorPicture before = view.picture();
    instance.set("gain", 12.0);
    EXPECT_TRUE(frame.driveUntil([&] { return view.picture() != before; }));
    EXPECT_EQ(frame.loop.calls, 0);
    ASSERT_EQ(plugView().setFrame(nullptr), kResultOk);
    EXPECT_TRUE(frame.isLetGo());
}
#endif

// Parameters.

// The bypass is the host's business and has no control.
TEST_F(EditorViewTest, findsEveryParameterButTheBypassAndNamesItByItsIndex) {
    std::set<Vst::ParamID> found;
    const EditorSize size = view.size();
    for (int y = 0; y < size.height; y += 4) {
        for (int x = 0; x < size.width; x += 4) {
            if (const auto id = view.parameterAt({x, y}))
                found.insert(*id);
        }
    }
    std::set<Vst::ParamID> all;
    for (Vst::ParamID id = 1; id < 15; ++id)
        all.insert(id);
    EXPECT_EQ(found, all);
}

TEST_F(EditorViewTest, findsNoParameterBesideTheControls) {
    const EditorSize size = view.size();
    for (const EditorPoint point : {EditorPoint{0, 0},
                                    {-1, -1},
                                    {size.width, size.height},
                                    {size.width - 1, 0},
                                    {100000, 10},
                                    {-100000, 10}})
        EXPECT_EQ(view.parameterAt(point), std::nullopt) << point.x << ", " << point.y;
}

TEST_F(EditorViewTest, findsParametersWhereTheyAreAtAnotherSize) {
    const EditorPoint place = view.areasOf(1).at(0).centre();
    ASSERT_EQ(view.magnify(60), kResultOk);
    const EditorPoint smaller{place.x * 60 / 100, place.y * 60 / 100};
    EXPECT_EQ(view.parameterAt(smaller), 1U);
    EXPECT_NE(view.parameterAt(place), 1U);
}

// Several views, and life.

TEST_F(EditorViewTest, ofOneInstanceThereMayBeTwo) {
    EditorView second(instance.controller());
    EXPECT_EQ(second.size(), view.size());
    EXPECT_TRUE(second.picture() == view.picture());
    const EditorPicture before = view.picture();
    instance.set("gain", 12.0);
    HostFrame nobody(HostFrame::Loop::none);
    EXPECT_TRUE(nobody.driveUntil([&] { return view.picture() != before; }));
    EXPECT_TRUE(nobody.driveUntil([&] { return second.picture() == view.picture(); }));
    ASSERT_EQ(second.magnify(60), kResultOk);
    EXPECT_NE(second.size(), view.size());
}

TEST_F(EditorViewTest, ofOneInstanceShowsNothingOfAnother) {
    LibraryInstance other;
    EditorView second(other.controller());
    const EditorPicture before = second.picture();
    EXPECT_TRUE(before == view.picture());
    const EditorPicture mine = view.picture();
    instance.set("afre", 300.0);
    HostFrame nobody(HostFrame::Loop::none);
    EXPECT_TRUE(nobody.driveUntil([&] { return view.picture() != mine; }));
    EXPECT_TRUE(second.picture() == before);
    other.set("afre", 300.0);
    EXPECT_TRUE(nobody.driveUntil([&] { return second.picture() == view.picture(); }));
}

TEST(EditorViewLife, outlivesTheEndOfTheInstanceAndTheComponent) {
    const LoadedLibrary& library = LoadedLibrary::shared();
    HostContext context;
    auto component = library.create<Vst::IComponent>(kVstAudioEffectClass);
    ASSERT_EQ(component->initialize(context.unknown()), kResultOk);
    {
        EditorView view(*Steinberg::FUnknownPtr<Vst::IEditController>(component));
        const EditorSize size = view.size();
        ASSERT_EQ(component->terminate(), kResultOk);
        EXPECT_EQ(view.size(), size);
        EXPECT_EQ(view.as<IQMEditorPicture>()->refreshDisplays(), kResultOk);
        (void)view.picture();
        (void)view.parameterAt({size.width / 2, size.height / 2});
        component = nullptr;
        (void)view.size();
        (void)view.picture();
        EXPECT_EQ(view.giveSize({700, 500}), kResultOk);
        EXPECT_EQ(view.plugView().removed(), kResultOk);
    }
    EXPECT_EQ(context.references(), 0U);
}

TEST(EditorViewLife, beginsAgainWithTheInstance) {
    LibraryInstance instance;
    {
        EditorView view(instance.controller());
        const EditorPicture before = view.picture();
        ASSERT_EQ(instance.component().terminate(), kResultOk);
        EXPECT_EQ(view.as<IQMEditorPicture>()->refreshDisplays(), kResultOk);
        ASSERT_EQ(instance.initialise(), kResultOk);
        EXPECT_EQ(view.as<IQMEditorPicture>()->refreshDisplays(), kResultOk);
        EXPECT_EQ(view.areasOf(1).size(), 1U);
        EXPECT_TRUE(view.picture() == before);
    }
}

TEST(EditorViewLife, mayBeginBeforeTheInstanceDoes) {
    LibraryInstance instance(LibraryInstance::Begin::created);
    {
        EditorView view(instance.controller());
        (void)view.size();
        EXPECT_EQ(view.parameterAt({100, 100}), std::nullopt);
        ASSERT_EQ(instance.initialise(), kResultOk);
        EXPECT_EQ(view.as<IQMEditorPicture>()->refreshDisplays(), kResultOk);
        EXPECT_EQ(view.areasOf(1).size(), 1U);
    }
}
