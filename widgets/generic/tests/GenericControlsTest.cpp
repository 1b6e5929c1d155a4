// SPDX-License-Identifier: GPL-3.0-or-later
// Which control a parameter gets, and that it is set up for it.
#include "widgets/generic/GenericControls.h"

#include "plugin-model/ParameterTaper.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/buttons/QMTextToggleButton.h"
#include "widgets/controls/QMKnobStripWidget.h"
#include "widgets/controls/QMParameterReadoutWidget.h"
#include "widgets/generic/tests/support/ExamplePlugIn.h"
#include "widgets/menus/QMPopupMenuWidget.h"

#include <limits>

using namespace ExamplePlugIn;

namespace {

class GenericControls : public ToolkitTest {
protected:
    static constexpr FourCharCode id = fourCharCode("parm");

    static GenericParameter number(double minimum, double maximum, double step,
                                   std::int32_t taper = NoxTaper::linear) {
        GenericParameter made = parameter(id, "Number", "", minimum, maximum, minimum, taper);
        made.step = step;
        return made;
    }
};

} // namespace

TEST_F(GenericControls, TwoValuesAreAToggleSeveralAMenuOthersAKnob) {
    EXPECT_EQ(genericControlKind(choice(id, "Mode", {"Off", "On"})), GenericControlKind::toggle);
    EXPECT_EQ(genericControlKind(number(0, 1, 1, NoxTaper::stepped)), GenericControlKind::toggle);
    EXPECT_EQ(genericControlKind(choice(id, "Mode", {"A", "B", "C"})), GenericControlKind::menu);
    EXPECT_EQ(genericControlKind(number(1, 16, 1, NoxTaper::stepped)), GenericControlKind::menu);
    EXPECT_EQ(genericControlKind(number(0, 127, 1, NoxTaper::stepped)), GenericControlKind::knob);
    EXPECT_EQ(genericControlKind(number(0, 1, 0.01)), GenericControlKind::knob);
    EXPECT_EQ(genericControlKind(number(5, 5, 1, NoxTaper::stepped)), GenericControlKind::knob);
    EXPECT_EQ(genericControlKind(
                  number(0, std::numeric_limits<double>::infinity(), 1, NoxTaper::stepped)),
              GenericControlKind::knob);
}

TEST_F(GenericControls, AToggleShowsTheNameOfItsValueAndWritesTheEndsOfTheRange) {
    GenericParameter parameter = choice(id, "Mode", {"Narrow", "Wide"}, 1.0);
    parameter.minimum = 3.0;
    parameter.maximum = 4.0;
    parameter.value = 4.0;
    const auto control = makeGenericControl(parameter);
    ASSERT_NE(dynamic_cast<QMTextToggleButton*>(control.get()), nullptr);
    EXPECT_EQ(control->getDisplayText(), "Wide");
    EXPECT_EQ(control->getSlotValue(0), 4.0);
    control->setParameterValue(0, 3.0, false);
    EXPECT_EQ(control->getDisplayText(), "Narrow");
    EXPECT_EQ(control->getSlotValue(0), 3.0);
    EXPECT_EQ(control->getParameterID(0), id);
    EXPECT_EQ(makeGenericReadout(parameter, *control), nullptr);
}

TEST_F(GenericControls, ASwitchWithoutNamesIsOffOrOn) {
    const auto control = makeGenericControl(number(0, 1, 1, NoxTaper::stepped));
    EXPECT_EQ(control->getDisplayText(), "Off");
    control->setParameterValue(0, 1.0, false);
    EXPECT_EQ(control->getDisplayText(), "On");
}

TEST_F(GenericControls, AMenuHasTheNamesFromTheMinimumOn) {
    GenericParameter parameter = choice(id, "Shape", {"Sine", "Saw", "Square"});
    parameter.minimum = 1.0;
    parameter.maximum = 3.0;
    parameter.value = 2.0;
    const auto control = makeGenericControl(parameter);
    const auto* const menu = dynamic_cast<QMPopupMenuWidget*>(control.get());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->getItems(), juce::StringArray({"Sine", "Saw", "Square"}));
    EXPECT_EQ(menu->getDisplayText(), "Saw");
    EXPECT_EQ(menu->getSlotValue(0), 2.0);
}

TEST_F(GenericControls, ValuesWithoutANameAreNumbers) {
    GenericParameter parameter = number(-2, 2, 1, NoxTaper::stepped);
    EXPECT_EQ(genericValueTexts(parameter), juce::StringArray({"-2", "-1", "0", "1", "2"}));
    parameter.valueNames = {"Low", "", "Middle"};
    EXPECT_EQ(genericValueTexts(parameter), juce::StringArray({"Low", "-1", "Middle", "1", "2"}));
}

TEST_F(GenericControls, AKnobHasRangeDefaultAndValue) {
    GenericParameter parameter = ExamplePlugIn::parameter(id, "Release", "ms", 5.0, 1000.0, 140.0,
                                                          NoxTaper::stretchedLogarithmic);
    parameter.value = 250.0;
    const auto control = makeGenericControl(parameter);
    ASSERT_NE(dynamic_cast<QMKnobStripWidget*>(control.get()), nullptr);
    EXPECT_EQ(control->getSlotMinimum(0), 5.0);
    EXPECT_EQ(control->getSlotMaximum(0), 1000.0);
    EXPECT_EQ(control->getSlotDefault(0), 140.0);
    EXPECT_NEAR(control->getSlotValue(0), 250.0, 0.01);
    EXPECT_EQ(control->getParameterID(0), id);
}

TEST_F(GenericControls, AKnobTravelsAsTheHostDoes) {
    for (const std::int32_t taper :
         {NoxTaper::linear, NoxTaper::logarithmic, NoxTaper::stretchedLogarithmic}) {
        for (const auto& [minimum, maximum] : {std::pair{1.0, 440.0}, {-60.0, 6.0}, {0.0, 1.0}}) {
            const auto control = makeGenericControl(number(minimum, maximum, 0.0, taper));
            auto& knob = dynamic_cast<QMKnobStripWidget&>(*control);
            NoxPlugInParameter host{};
            host.minimum = minimum;
            host.maximum = maximum;
            host.taper = taper;
            for (const double travel : {0.0, 0.1, 0.25, 0.5, 0.75, 1.0}) {
                knob.setParameterValue(0, QM::normalisedToPlain(host, travel), false);
                EXPECT_NEAR(knob.getValue(), travel, 1e-5) << taper << ' ' << minimum;
            }
        }
    }
}

TEST_F(GenericControls, AReadoutBelongsToItsKnobAndShowsTheSame) {
    const GenericParameter parameter =
        ExamplePlugIn::parameter(id, "Gain", "dB", -24.0, 24.0, -6.5);
    const auto control = makeGenericControl(parameter);
    const auto readout = makeGenericReadout(parameter, *control);
    ASSERT_NE(readout, nullptr);
    EXPECT_EQ(readout->getDisplayText(), "-6.50");
    EXPECT_EQ(readout->getParameterID(0), id);
    control->setParameterValue(0, 3.0, false);
    EXPECT_EQ(readout->getDisplayText(), "3.00");
    EXPECT_FALSE(readout->canTakeKeyboardFocus());
}

TEST_F(GenericControls, NumbersAreShownInTheStepsOfTheParameter) {
    const GenericParameter whole = number(0, 500, 1.0);
    const auto control = makeGenericControl(whole);
    const auto readout = makeGenericReadout(whole, *control);
    control->setParameterValue(0, 41.7, false);
    EXPECT_EQ(readout->getDisplayText(), "42");
}

TEST_F(GenericControls, TooltipsTellNameAndRange) {
    EXPECT_EQ(genericTooltip(parameters()[1]), "Osc 1 Attack Frequency: 1 to 440 Hz");
    EXPECT_EQ(genericTooltip(parameters()[0]), "Master Bypass: Engaged or Bypass");
    EXPECT_EQ(genericTooltip(choice(id, "Shape", {"Sine", "Saw", "Square"})),
              "Shape: Sine, Saw or Square");
    EXPECT_EQ(genericTooltip(number(1, 16, 1, NoxTaper::stepped)), "Number: 1 to 16");
    EXPECT_EQ(genericTooltip(number(0, 0.5, 0.01)), "Number: 0 to 0.5");
}

TEST_F(GenericControls, KeysMoveByRoundNumbers) {
    // Fiftieths of the ranges: 8.78, 1.32, 0.02, 0.96
    EXPECT_DOUBLE_EQ(genericKeyStep(number(1, 440, 0.01)), 5.0);
    EXPECT_DOUBLE_EQ(genericKeyStep(number(-60, 6, 0.01)), 1.0);
    EXPECT_DOUBLE_EQ(genericKeyStep(number(0, 1, 0.0)), 0.02);
    EXPECT_DOUBLE_EQ(genericKeyStep(number(-24, 24, 0.01)), 0.5);
    EXPECT_DOUBLE_EQ(genericKeyStep(number(0, 10, 1, NoxTaper::stepped)), 1.0);
    EXPECT_DOUBLE_EQ(genericKeyStep(number(3, 3, 0.01)), 1.0);
    EXPECT_DOUBLE_EQ(genericKeyStep(number(0, std::numeric_limits<double>::infinity(), 0.01)), 1.0);
}

TEST_F(GenericControls, EveryControlIsNamedForAScreenReaderAndExplained) {
    for (const GenericParameter& parameter : parameters()) {
        const auto control = makeGenericControl(parameter);
        EXPECT_EQ(control->getTitle(), parameter.name);
        EXPECT_EQ(control->getName(), parameter.name);
        EXPECT_EQ(control->getTooltip(), genericTooltip(parameter));
        EXPECT_TRUE(control->canTakeKeyboardFocus());
    }
}
