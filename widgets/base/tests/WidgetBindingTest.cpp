// SPDX-License-Identifier: GPL-3.0-or-later
// Slots of a widget: binding, ranges, values, states.
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/base/tests/support/PlainWidget.h"
#include "widgets/base/tests/support/RecordingController.h"

#include <utility>

namespace {

constexpr FourCharCode afre = fourCharCode("afre");
constexpr FourCharCode sfre = fourCharCode("sfre");

class KnowingTarget final : public QMGenericParameterTarget {
public:
    [[nodiscard]] double parameterValue(FourCharCode id) const override {
        asked = id;
        return id == afre ? 100.0 : -1.0;
    }

    void setParameterValue(FourCharCode id, double value) override { written = {id, value}; }

    mutable FourCharCode asked = 0;
    std::pair<FourCharCode, double> written{0, 0.0};
};

} // namespace

using WidgetBinding = ToolkitTest;

TEST_F(WidgetBinding, ABoundSlotKnowsItsParameterAndTheParameterItsSlot) {
    PlainWidget widget(3);
    widget.setParameter(1, afre);
    EXPECT_EQ(widget.getParameterID(1), afre);
    EXPECT_EQ(widget.getSlotOfParameter(afre), 1);
    EXPECT_EQ(widget.getParameterID(0), 0xFFFFFFFFu);
    EXPECT_EQ(widget.getParameterID(2), 0xFFFFFFFFu);
    EXPECT_EQ(widget.getParameterID(3), 0xFFFFFFFFu);
    EXPECT_EQ(widget.getSlotOfParameter(sfre), -1);
}

TEST_F(WidgetBinding, TheHighestSlotEverBoundIsRemembered) {
    PlainWidget widget(4);
    EXPECT_EQ(widget.getHighestBoundSlot(), 0u);
    widget.setParameter(2, afre);
    widget.setParameter(0, sfre);
    EXPECT_EQ(widget.getHighestBoundSlot(), 3u);
}

TEST_F(WidgetBinding, AWidgetWithoutSlotsIgnoresBindingAndTouching) {
    PlainWidget widget(0);
    RecordingController controller;
    widget.setParameterController(&controller);
    widget.setUseController(true);
    widget.setParameter(0, afre);
    EXPECT_EQ(widget.getParameterID(0), QMWidget::noParameter);
    EXPECT_EQ(widget.getHighestBoundSlot(), 0u);
    widget.beginTouch(0);
    EXPECT_EQ(widget.getTouchCount(), 0);
    EXPECT_FALSE(widget.isTouched(0));
    EXPECT_TRUE(controller.calls.empty());
}

TEST_F(WidgetBinding, BindingBeyondTheSlotsIsIgnored) {
    PlainWidget widget(2);
    widget.setParameter(2, afre);
    EXPECT_EQ(widget.getSlotOfParameter(afre), -1);
    EXPECT_EQ(widget.getHighestBoundSlot(), 0u);
}

TEST_F(WidgetBinding, RebindingAfterTheSlotCountHasChangedClearsStatesAndFlags) {
    PlainWidget widget(2);
    widget.setParameter(0, afre);
    widget.setSlotState(0, true, 0xFF00FF00);
    widget.setSlotState(1, true, 7);
    ASSERT_TRUE(widget.getSlotFlag(1));
    widget.setSlotCount(3);
    widget.setParameter(2, sfre);
    for (std::uint32_t slot = 0; slot < 3; ++slot) {
        EXPECT_FALSE(widget.getSlotFlag(slot)) << slot;
        EXPECT_EQ(widget.getSlotState(slot), 0u) << slot;
    }
    EXPECT_EQ(widget.getParameterID(0), QMWidget::noParameter);
    EXPECT_EQ(widget.getParameterID(2), sfre);
    EXPECT_EQ(widget.getSlotOfParameter(afre), -1);
}

TEST_F(WidgetBinding, ASlotWithoutRangeHasZeroZeroAndOne) {
    PlainWidget widget(8);
    EXPECT_EQ(widget.getSlotDefault(5), 0.0);
    EXPECT_EQ(widget.getSlotMinimum(5), 0.0);
    EXPECT_EQ(widget.getSlotMaximum(5), 1.0);
    widget.setSlotMaximum(2, 440.0, false);
    EXPECT_EQ(widget.getSlotMaximum(2), 440.0);
    EXPECT_EQ(widget.getSlotMaximum(5), 1.0);
    EXPECT_EQ(widget.getSlotMaximum(100), 1.0);
    widget.setSlotMinimum(2, -60.0, false);
    widget.setSlotDefault(2, 3.0, false);
    EXPECT_EQ(widget.getSlotMinimum(2), -60.0);
    EXPECT_EQ(widget.getSlotDefault(2), 3.0);
}

TEST_F(WidgetBinding, ValuesAreReadFromTheFirstTargetAlsoForSlotsThatThereAreNot) {
    PlainWidget widget(1);
    EXPECT_EQ(widget.getParameterValue(0), 0.0);
    KnowingTarget first;
    KnowingTarget second;
    widget.addParameterTarget(&first);
    widget.addParameterTarget(&second);
    widget.addParameterTarget(&first);
    EXPECT_EQ(widget.parameterTargets().size(), 2u);
    widget.setParameter(0, afre);
    EXPECT_EQ(widget.readParameterValue(0), 100.0);
    EXPECT_EQ(widget.getParameterValue(4), -1.0);
    EXPECT_EQ(first.asked, QMWidget::noParameter);
    EXPECT_EQ(second.asked, 0u);
    widget.removeParameterTarget(&first);
    EXPECT_EQ(widget.parameterTarget(), &second);
}

TEST_F(WidgetBinding, AValueIsWrittenOnlyWithNotifyAndFlushesWhatIsPendingBefore) {
    PlainWidget widget(1);
    KnowingTarget target;
    widget.addParameterTarget(&target);
    widget.setParameterValue(0, 5.0, true); // not bound yet
    EXPECT_EQ(target.written.first, 0u);
    widget.setParameter(0, afre);
    widget.setParameterValue(0, 5.0, false);
    EXPECT_EQ(target.written.first, 0u);
    EXPECT_EQ(widget.outputFlushes, 0);
    widget.writeDisplayValue(0, 5.0, true);
    EXPECT_EQ(target.written, std::make_pair(afre, 5.0));
    EXPECT_EQ(widget.outputFlushes, 1);
}

TEST_F(WidgetBinding, AValueGoesToTheControllerWhenTheWidgetUsesIt) {
    PlainWidget widget(1);
    KnowingTarget target;
    RecordingController controller;
    widget.addParameterTarget(&target);
    widget.setParameter(0, afre);
    widget.setParameterController(&controller);
    widget.setParameterValue(0, 5.0, true);
    EXPECT_EQ(target.written.second, 5.0);
    EXPECT_TRUE(controller.calls.empty());
    widget.setUseController(true);
    widget.setParameterValue(0, 6.0, true);
    EXPECT_EQ(target.written.second, 5.0);
    EXPECT_EQ(controller.calls, std::vector<std::string>{"set afre 6"});
}

TEST_F(WidgetBinding, ClearingTheDeferFlagFlushesOnce) {
    PlainWidget widget;
    widget.setDeferUpdates(false);
    EXPECT_EQ(widget.flushes, 0);
    widget.setDeferUpdates(true);
    widget.setDeferUpdates(true);
    EXPECT_TRUE(widget.isDeferringUpdates());
    EXPECT_EQ(widget.flushes, 0);
    widget.setDeferUpdates(false);
    EXPECT_EQ(widget.flushes, 1);
}
