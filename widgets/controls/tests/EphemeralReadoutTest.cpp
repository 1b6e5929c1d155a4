// SPDX-License-Identifier: GPL-3.0-or-later
// The value that floats beside a control while it is moved.
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/controls/QMEphemeralReadout.h"
#include "widgets/controls/QMKnobWidget.h"
#include "widgets/controls/tests/support/ControlPanel.h"

#include <memory>

namespace {

using Floating = juce::Component::SafePointer<QMEphemeralReadout>;

} // namespace

class EphemeralReadoutTest : public ToolkitTest {
protected:
    EphemeralReadoutTest() { shown.control.setShowEphemeralReadout(true); }

    bool hasGone(const Floating& floating) {
        return runLoopUntil([&] { return floating == nullptr; });
    }

    QMKnobWidget& knob() { return shown.control; }

    ControlInWindow<QMKnobWidget> shown;
};

TEST_F(EphemeralReadoutTest, StandsCentredTwoPixelsBelowOrAboveTheControl) {
    // 100 + 81 / 2 - 35 / 2 = 100 + 40 - 17.
    const juce::Rectangle<int> control(100, 200, 81, 90);
    EXPECT_EQ(QMEphemeralReadout::placement(control, 35, 20, true),
              juce::Rectangle<int>(123, 292, 35, 20));
    EXPECT_EQ(QMEphemeralReadout::placement(control, 35, 20, false),
              juce::Rectangle<int>(123, 178, 35, 20));
}

TEST_F(EphemeralReadoutTest, AppearsWithAPressFollowsTheDragAndFadesAfterIt) {
    shown.window->press(knob());
    const Floating floating(knob().getEphemeralReadout());
    ASSERT_NE(floating, nullptr);
    EXPECT_EQ(floating->getParentComponent(), &shown.panel);
    EXPECT_EQ(floating->getText(), "0.50");
    EXPECT_EQ(floating->getY(), knob().getBottom() + 2);
    shown.window->dragBy(0.0f, -25.0f);
    EXPECT_EQ(floating->getText(), "0.60");
    EXPECT_EQ(floating->getAlpha(), 1.0f);
    shown.window->release();
    EXPECT_EQ(knob().getEphemeralReadout(), nullptr);
    ASSERT_NE(floating, nullptr);
    const auto start = juce::Time::getMillisecondCounter();
    ASSERT_TRUE(hasGone(floating));
    EXPECT_GE(juce::Time::getMillisecondCounter() - start, 490u);
}

TEST_F(EphemeralReadoutTest, CanStandAbove) {
    knob().setEphemeralBelow(false);
    shown.window->press(knob());
    ASSERT_NE(knob().getEphemeralReadout(), nullptr);
    EXPECT_EQ(knob().getEphemeralReadout()->getBottom(), knob().getY() - 2);
}

TEST_F(EphemeralReadoutTest, AppearsWithTheWheelAndFadesAfterThePause) {
    shown.window->wheel(knob(), 0.0f, 0.5f);
    const Floating floating(knob().getEphemeralReadout());
    ASSERT_NE(floating, nullptr);
    EXPECT_EQ(floating->getText(), "0.51");
    shown.window->wheel(knob(), 0.0f, 0.5f);
    EXPECT_EQ(knob().getEphemeralReadout(), floating);
    EXPECT_EQ(floating->getText(), "0.52");
    EXPECT_TRUE(hasGone(floating));
}

TEST_F(EphemeralReadoutTest, DoesNotAppearWhereItIsNotWanted) {
    knob().setShowEphemeralReadout(false);
    shown.window->press(knob());
    shown.window->wheel(knob(), 0.0f, 0.5f);
    EXPECT_EQ(knob().getEphemeralReadout(), nullptr);
}

TEST_F(EphemeralReadoutTest, TakesNoClicks) {
    shown.window->press(knob());
    ASSERT_NE(knob().getEphemeralReadout(), nullptr);
    const juce::Point<int> inside = knob().getEphemeralReadout()->getBounds().getCentre();
    EXPECT_EQ(shown.panel.getComponentAt(inside), &shown.panel);
}

TEST_F(EphemeralReadoutTest, GoesWithItsControl) {
    auto going = std::make_unique<QMKnobWidget>();
    going->setShowEphemeralReadout(true);
    going->setBounds(10, 10, 50, 50);
    shown.panel.addAndMakeVisible(*going);
    shown.window->press(*going);
    const Floating floating(going->getEphemeralReadout());
    ASSERT_NE(floating, nullptr);
    going.reset();
    EXPECT_EQ(floating, nullptr);
}

TEST_F(EphemeralReadoutTest, DeletesItselfWhenItsParentIsGone) {
    auto parent = std::make_unique<juce::Component>();
    parent->setSize(100, 100);
    QMKnobWidget knob2;
    parent->addAndMakeVisible(knob2);
    const Floating floating(new QMEphemeralReadout(knob2, 1.0f, true));
    floating->showText("1", knob2);
    floating->startFading();
    parent.reset();
    ASSERT_NE(floating, nullptr);
    EXPECT_TRUE(hasGone(floating));
}

TEST_F(EphemeralReadoutTest, AParentMayDeleteIt) {
    juce::Component parent;
    QMKnobWidget knob2;
    parent.addAndMakeVisible(knob2);
    const Floating floating(new QMEphemeralReadout(knob2, 1.0f, true));
    parent.removeChildComponent(&knob2);
    parent.deleteAllChildren();
    EXPECT_EQ(floating, nullptr);
}

TEST_F(EphemeralReadoutTest, GoesWithTheToolkit) {
    juce::Component parent;
    QMKnobWidget knob2;
    parent.addAndMakeVisible(knob2);
    const Floating floating(new QMEphemeralReadout(knob2, 1.0f, true));
    shown.window.reset();
    shutDownToolkit();
    EXPECT_EQ(floating, nullptr);
    startToolkit();
    shown.window.emplace(shown.panel);
}

TEST_F(EphemeralReadoutTest, IsDrawnOverWhatIsBelow) {
    shown.window->press(knob());
    const QMEphemeralReadout* const floating = knob().getEphemeralReadout();
    ASSERT_NE(floating, nullptr);
    const juce::Image picture = shown.window->picture();
    const juce::Colour corner = picture.getPixelAt(floating->getX() + 2, floating->getBottom() - 3);
    // The panel's 87 shows through a fifth.
    EXPECT_NEAR(corner.getRed(), 0.8 * 24 + 0.2 * 87, 3.0);
}
