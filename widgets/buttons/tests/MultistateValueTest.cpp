// SPDX-License-Identifier: GPL-3.0-or-later
// The values of buttons with states: which state a value is, who hears of it, what is shown.
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/buttons/IQMTrackedButtonListener.h"
#include "widgets/buttons/QMTrackedMultistateButtonWidget.h"
#include "widgets/buttons/tests/RecordingTarget.h"
#include "widgets/buttons/tests/RepaintCounter.h"

#include <limits>

namespace {

class MultistateValueTest : public ToolkitTest {
protected:
    MultistateValueTest() {
        button.setItems({"Small", "Medium", "Large"}, 0);
        button.setSize(60, 20);
        button.setParameter(0, RecordingTarget::parameter);
        button.addParameterTarget(&target);
    }

    RecordingTarget target;
    QMTrackedMultistateButtonWidget button;
};

struct ValueListener final : IQMTrackedButtonListener {
    void buttonValueChanged(QMTrackedMultistateButtonWidget&, double value) override {
        values.push_back(value);
    }

    std::vector<double> values;
};

} // namespace

TEST_F(MultistateValueTest, AValueIsTheStateOfItsWholePart) {
    button.setParameterValue(0, 1.9, false);
    EXPECT_EQ(button.getState(), 1);
    button.setParameterValue(0, 2.0, false);
    EXPECT_EQ(button.getState(), 2);
}

TEST_F(MultistateValueTest, ValuesBeyondTheStatesBeginAgain) {
    button.setParameterValue(0, 2.0, false);
    // 120 = 40 x 3.
    button.setParameterValue(0, 120.0, false);
    EXPECT_EQ(button.getState(), 0);
    // 100 = 33 x 3 + 1, 84 = 28 x 3.
    button.setParameterValue(0, 100.0, false);
    EXPECT_EQ(button.getState(), 1);
    button.setParameterValue(0, 84.0, false);
    EXPECT_EQ(button.getState(), 0);
}

TEST_F(MultistateValueTest, MinusOneIsTheLastState) {
    button.setParameterValue(0, -1.0, false);
    EXPECT_EQ(button.getState(), 2);
    button.setParameterValue(0, -2.0, false);
    EXPECT_EQ(button.getState(), 1);
    button.setParameterValue(0, -3.0, false);
    EXPECT_EQ(button.getState(), 0);
}

TEST_F(MultistateValueTest, ValuesFarBelowZeroAreStatesToo) {
    button.setParameterValue(0, -4.0, false);
    EXPECT_EQ(button.getState(), 2);
    // 3 x 10^18 is three times a whole number; -3 x 10^18 - 1 is not to be had in this precision.
    button.setParameterValue(0, -3.0e18, false);
    EXPECT_EQ(button.getState(), 0);
}

TEST_F(MultistateValueTest, WhatIsNoNumberChangesNothing) {
    button.setParameterValue(0, 1.0, false);
    button.setParameterValue(0, std::numeric_limits<double>::quiet_NaN(), true);
    button.setParameterValue(0, std::numeric_limits<double>::infinity(), true);
    EXPECT_EQ(button.getState(), 1);
    EXPECT_EQ(target.takeNotes(), "");
}

TEST_F(MultistateValueTest, AnotherSlotIsNobodysState) {
    button.setParameterValue(1, 2.0, true);
    EXPECT_EQ(button.getState(), 0);
    EXPECT_EQ(target.takeNotes(), "");
    EXPECT_EQ(button.getSlotValue(1), 0.0);
}

TEST_F(MultistateValueTest, WithoutStatesValuesDoNothing) {
    QMTrackedMultistateButtonWidget without;
    without.setParameter(0, RecordingTarget::parameter);
    without.addParameterTarget(&target);
    without.setParameterValue(0, 1.0, true);
    EXPECT_EQ(without.getState(), 0);
    EXPECT_EQ(target.takeNotes(), "");
}

TEST_F(MultistateValueTest, AValueThatIsShownIsNotWritten) {
    button.setParameterValue(0, 1.0, false);
    EXPECT_EQ(target.takeNotes(), "");
    EXPECT_EQ(button.getSlotValue(0), 1.0);
}

TEST_F(MultistateValueTest, AValueThatIsSetIsWrittenOnceAndTold) {
    ValueListener listener;
    std::vector<double> told;
    button.setListener(&listener);
    button.setChangeCallback(
        [&](QMTrackedMultistateButtonWidget&, double value) { told.push_back(value); });
    // 5 is state 2, and that is what is written.
    button.setParameterValue(0, 5.0, true);
    button.setParameterValue(0, 2.0, true);
    EXPECT_EQ(target.takeNotes(), "2 ");
    EXPECT_EQ(listener.values, std::vector<double>{2.0});
    EXPECT_EQ(told, std::vector<double>{2.0});
}

TEST_F(MultistateValueTest, AMapTranslatesBothWays) {
    button.setValueMap({[](int state) { return 10.0 * state; },
                        [](double value) { return static_cast<int>(value) / 10; }});
    button.setParameterValue(0, 20.0, true);
    EXPECT_EQ(button.getState(), 2);
    EXPECT_EQ(button.getSlotValue(0), 20.0);
    EXPECT_EQ(target.takeNotes(), "20 ");
    // State 3 of a map begins again as well.
    button.setParameterValue(0, 30.0, false);
    EXPECT_EQ(button.getState(), 0);
    button.setValueMap({[](int state) { return static_cast<double>(state); },
                        [](double) { return std::numeric_limits<int>::min(); }});
    // -2147483648 = -715827883 x 3 + 1.
    button.setParameterValue(0, 0.0, false);
    EXPECT_EQ(button.getState(), 1);
}

TEST_F(MultistateValueTest, ItemsMakeTheStatesAndTheirTexts) {
    button.setItems({"Off", "Low", "Mid", "High"}, 3);
    EXPECT_EQ(button.getStateCount(), 4);
    EXPECT_EQ(button.getState(), 3);
    EXPECT_EQ(button.getDisplayText(), "High");
    EXPECT_EQ(target.takeNotes(), "");
    button.setItems({"Off", "On"}, 7);
    EXPECT_EQ(button.getState(), 1);
    button.setItems({}, 0);
    EXPECT_EQ(button.getStateCount(), 0);
    EXPECT_EQ(button.getDisplayText(), "");
}

TEST_F(MultistateValueTest, FewerStatesShowTheFirstWhenThePresentOneIsGone) {
    button.setParameterValue(0, 2.0, false);
    button.setStateCount(2);
    EXPECT_EQ(button.getState(), 0);
}

TEST_F(MultistateValueTest, TheHelpIsThatOfTheItemWhereThereIsOne) {
    button.setTooltip("How large everything is.");
    button.setItemHelpTexts({"For small screens.", "", "For the blind."});
    EXPECT_EQ(button.getTooltip(), "For small screens.");
    button.setParameterValue(0, 1.0, false);
    EXPECT_EQ(button.getTooltip(), "How large everything is.");
    button.setParameterValue(0, 2.0, false);
    EXPECT_EQ(button.getTooltip(), "For the blind.");
}

TEST_F(MultistateValueTest, DeferredUpdatesAreTakenAtOnceAndPaintedTogether) {
    button.setVisible(true);
    RepaintCounter& counter = RepaintCounter::on(button);
    button.setDeferUpdates(true);
    button.setParameterValue(0, 1.0, false);
    button.setParameterValue(0, 2.0, false);
    EXPECT_EQ(button.getState(), 2);
    EXPECT_EQ(counter.repaints, 0);
    button.setDeferUpdates(false);
    EXPECT_EQ(counter.repaints, 1);
    // Nothing new, nothing to paint.
    button.setDeferUpdates(true);
    button.setParameterValue(0, 2.0, false);
    button.setDeferUpdates(false);
    EXPECT_EQ(counter.repaints, 1);
}

TEST_F(MultistateValueTest, AButtonMayGoWhenItIsToldOfItsValue) {
    auto shortLived = std::make_unique<QMTrackedMultistateButtonWidget>();
    shortLived->setItems({"A", "B"}, 0);
    shortLived->setChangeCallback(
        [&](QMTrackedMultistateButtonWidget&, double) { shortLived.reset(); });
    shortLived->setParameterValue(0, 1.0, true);
    EXPECT_EQ(shortLived, nullptr);
}

TEST_F(MultistateValueTest, ItsIdealWidthHoldsTheWidestItem) {
    const int narrow = button.getIdealWidth();
    button.setItems({"Small", "Medium", "A great deal larger than that"}, 0);
    EXPECT_GT(button.getIdealWidth(), narrow + 40);
}
