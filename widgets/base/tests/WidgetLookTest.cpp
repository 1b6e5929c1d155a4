// SPDX-License-Identifier: GPL-3.0-or-later
// Colours, names, selection, painting and what a screen reader hears.
#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/base/QMParentColorSource.h"
#include "widgets/base/QMWidgetNotificationTarget.h"
#include "widgets/base/tests/support/PlainWidget.h"
#include "widgets/base/tests/support/RecordingController.h"
#include "widgets/notifications/QMNotificationCenter.h"

namespace {

class ColouredPanel final : public juce::Component, public QMParentColorSource {
public:
    ColouredPanel() { setSize(100, 100); }
};

class ValueTaker final : public QMWidget {
public:
    ValueTaker()
        : QMWidget(2) {}

    void setParameterValue(std::uint32_t slot, double value, bool notify) override {
        taken = {slot, value};
        notified = notify;
    }

    std::pair<std::uint32_t, double> taken{99, 0.0};
    bool notified = true;
};

} // namespace

using WidgetLook = ToolkitTest;

TEST_F(WidgetLook, WithoutAColourSourceAboveTheBaseIsLightGreyAndWhatIsStrongOnItBlack) {
    const PlainWidget widget;
    EXPECT_EQ(widget.getBaseColour(), juce::Colour(208, 208, 208));
    EXPECT_EQ(widget.getContrastColourStrong(), juce::Colours::black);
}

TEST_F(WidgetLook, ContrastColoursAreLaidOverTheBaseAtTheirStrengths) {
    ColouredPanel panel;
    PlainWidget widget;
    panel.addAndMakeVisible(widget);
    panel.setBaseColour(juce::Colour(40, 60, 80));
    EXPECT_EQ(widget.getBaseColour(), juce::Colour(40, 60, 80));
    EXPECT_EQ(widget.getContrastColourStrong(), juce::Colours::white);
    // 40 + (255 - 40) * 0.85 = 222.75 and so on; 40 + 215 * 0.5 = 147.5.
    const juce::Colour normal = widget.getContrastColour();
    EXPECT_NEAR(normal.getRed(), 222, 2);
    EXPECT_NEAR(normal.getGreen(), 225, 2);
    EXPECT_NEAR(normal.getBlue(), 228, 2);
    const juce::Colour weak = widget.getContrastColourWeak();
    EXPECT_NEAR(weak.getRed(), 147, 2);
    EXPECT_NEAR(weak.getBlue(), 167, 2);
}

TEST_F(WidgetLook, TheNearestColourSourceCounts) {
    ColouredPanel outer;
    ColouredPanel inner;
    juce::Component between;
    PlainWidget widget;
    outer.addAndMakeVisible(inner);
    inner.addAndMakeVisible(between);
    between.addAndMakeVisible(widget);
    outer.setBaseColour(juce::Colours::red);
    inner.setBaseColour(juce::Colours::blue);
    EXPECT_EQ(widget.getBaseColour(), juce::Colours::blue);
}

TEST_F(WidgetLook, AWidgetThatDrawsNothingItselfShowsAFrame) {
    QMWidget widget;
    widget.setSize(10, 8);
    juce::Image picture(juce::Image::ARGB, 10, 8, true);
    juce::Graphics g(picture);
    g.setColour(juce::Colours::red);
    widget.paint(g);
    EXPECT_EQ(picture.getPixelAt(0, 0), juce::Colours::red);
    EXPECT_EQ(picture.getPixelAt(9, 7), juce::Colours::red);
    EXPECT_EQ(picture.getPixelAt(1, 1).getAlpha(), 0);
}

TEST_F(WidgetLook, SelectionTogglesAndIsKept) {
    PlainWidget widget;
    QMSelectable& selectable = widget;
    EXPECT_TRUE(selectable.isSelectable());
    selectable.toggleSelected();
    EXPECT_TRUE(selectable.isSelected());
    selectable.toggleSelected();
    EXPECT_FALSE(selectable.isSelected());
    EXPECT_EQ(selectable.getComponent(), &widget);
}

TEST_F(WidgetLook, AScreenReaderHearsNameTextAndRangeAndWritesAsOneGesture) {
    PlainWidget widget(1, true);
    RecordingController controller;
    widget.editable = true;
    widget.setName("Attack");
    widget.setParameter(0, fourCharCode("attk"));
    widget.setSlotMinimum(0, 1.0, false);
    widget.setSlotMaximum(0, 100.0, false);
    widget.setParameterController(&controller);
    widget.setUseController(true);
    const auto handler = static_cast<QMWidget&>(widget).createAccessibilityHandler();
    ASSERT_NE(handler, nullptr);
    EXPECT_EQ(handler->getRole(), juce::AccessibilityRole::slider);
    EXPECT_EQ(handler->getTitle(), "Attack");
    EXPECT_TRUE(handler->getActions().contains(juce::AccessibilityActionType::focus));
    juce::AccessibilityValueInterface* const value = handler->getValueInterface();
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(value->getCurrentValueAsString(), "7 Hz");
    EXPECT_EQ(value->getCurrentValue(), 7.0);
    EXPECT_EQ(value->getRange().getMinimumValue(), 1.0);
    EXPECT_EQ(value->getRange().getMaximumValue(), 100.0);
    value->setValue(1000.0);
    value->setValueAsString("2,5");
    EXPECT_EQ(controller.calls,
              (std::vector<std::string>{"begin attk", "set attk 100", "end attk", "begin attk",
                                        "set attk 2.5", "end attk"}));
    widget.setWidgetEnabled(false);
    EXPECT_TRUE(value->isReadOnly());
}

TEST_F(WidgetLook, ANotificationWithAValueReachesTheSlotOfItsNumber) {
    ValueTaker widget;
    QMNotificationCenter centre;
    QMWidgetNotificationTarget target(widget);
    centre.registerTarget(target);
    centre.postNotification(5, {.index = 1, .value = 42.0});
    EXPECT_EQ(widget.taken, std::make_pair(1u, 42.0));
    EXPECT_FALSE(widget.notified);
    centre.unregisterTarget(target);
}
