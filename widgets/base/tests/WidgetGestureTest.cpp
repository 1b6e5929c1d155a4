// SPDX-License-Identifier: GPL-3.0-or-later
// Gestures of a widget: who hears of the first and the last, and what happens to one too many.
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/base/tests/support/PlainWidget.h"
#include "widgets/base/tests/support/RecordingController.h"

namespace {

using Calls = std::vector<std::string>;

class TouchedTarget final : public QMGenericParameterTarget {
public:
    [[nodiscard]] double parameterValue(FourCharCode) const override { return 0.0; }

    void setParameterValue(FourCharCode, double) override {}

    void beginTouch(FourCharCode id) override { calls.push_back("begin " + fourCharText(id)); }

    void endTouch(FourCharCode id) override { calls.push_back("end " + fourCharText(id)); }

    Calls calls;
};

class WidgetGesture : public ToolkitTest {
protected:
    WidgetGesture() {
        widget.setParameter(0, fourCharCode("afre"));
        widget.setParameter(1, fourCharCode("sfre"));
        widget.addParameterTarget(&target);
        widget.setParameterController(&controller);
        widget.setUseController(true);
        widget.setGestureListener(
            [this](std::uint32_t slot, QMWidget::GesturePhase phase, QMWidget& which) {
                EXPECT_EQ(&which, &widget);
                controller.calls.push_back(
                    (phase == QMWidget::GesturePhase::begin ? "heard begin " : "heard end ") +
                    std::to_string(slot));
            });
    }

    PlainWidget widget{2};
    TouchedTarget target;
    RecordingController controller;
};

} // namespace

TEST_F(WidgetGesture, NestedTouchesAreOneGestureThatEndsWithTheLast) {
    widget.beginTouch(0);
    widget.beginTouch(0);
    EXPECT_EQ(controller.calls, (Calls{"begin afre", "heard begin 0"}));
    EXPECT_EQ(widget.getTouchCount(), 2);
    widget.endTouch(0);
    EXPECT_EQ(controller.calls.size(), 2u);
    EXPECT_TRUE(widget.isTouched(0));
    widget.endTouch(0);
    EXPECT_EQ(controller.calls, (Calls{"begin afre", "heard begin 0", "end afre", "heard end 0"}));
    EXPECT_FALSE(widget.isTouched(0));
    EXPECT_EQ(widget.outputFlushes, 1);
    EXPECT_TRUE(target.calls.empty());
}

TEST_F(WidgetGesture, SlotsAreTouchedEachForItself) {
    widget.beginTouch(1);
    EXPECT_FALSE(widget.isTouched(0));
    EXPECT_TRUE(widget.isTouched(1));
    EXPECT_TRUE(widget.isTouched(9)) << "beyond the slots the whole widget counts";
    widget.endTouch(1);
    EXPECT_FALSE(widget.isTouched(9));
    EXPECT_EQ(controller.calls, (Calls{"begin sfre", "heard begin 1", "end sfre", "heard end 1"}));
}

TEST_F(WidgetGesture, WithoutAControllerInUseTheTargetHearsOfIt) {
    widget.setUseController(false);
    widget.beginTouch(0);
    widget.endTouch(0);
    EXPECT_EQ(target.calls, (Calls{"begin afre", "end afre"}));
    EXPECT_EQ(controller.calls, (Calls{"heard begin 0", "heard end 0"}));
}

TEST_F(WidgetGesture, AnEndWithoutABeginIsPrintedAndTellsNobody) {
    testing::internal::CaptureStdout();
    widget.endTouch(0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Error: param[0] touches = -1\nError: widget touches = -1\n");
    EXPECT_TRUE(controller.calls.empty());
    EXPECT_EQ(widget.getTouchCount(), -1) << "a diagnosis, not a repair";
}

TEST_F(WidgetGesture, APressBelongsToTheFirstTargetThatWantsItElseToTheHost) {
    class LearningTarget final : public QMGenericParameterTarget {
    public:
        [[nodiscard]] double parameterValue(FourCharCode) const override { return 0.0; }

        void setParameterValue(FourCharCode, double) override {}

        bool takesClick(FourCharCode) override { return learns; }

        bool learns = true;
    } learning;

    widget.addParameterTarget(&learning);
    const juce::MouseEvent press(juce::Desktop::getInstance().getMainMouseSource(), {},
                                 juce::ModifierKeys(juce::ModifierKeys::rightButtonModifier), 0.0f,
                                 0.0f, 0.0f, 0.0f, 0.0f, &widget, &widget, juce::Time(), {},
                                 juce::Time(), 1, false);
    EXPECT_TRUE(widget.pressIsTaken(press));
    EXPECT_TRUE(controller.calls.empty());
    learning.learns = false;
    EXPECT_FALSE(widget.pressIsTaken(press));
    controller.takesPresses = true;
    EXPECT_TRUE(widget.pressIsTaken(press));
    EXPECT_EQ(controller.calls, (Calls{"press afre", "press afre"}));
}
