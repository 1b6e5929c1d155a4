// SPDX-License-Identifier: GPL-3.0-or-later
// From tables to widgets: which are made, where they stand, what they are bound to.
#include "widgets/ui/tests/support/TableEditor.h"

namespace {

using Area = juce::Rectangle<int>;

class TableBuilding : public EditorTest {
protected:
    [[nodiscard]] static int childrenOf(const TableEditor& ui) {
        return ui.getNumChildComponents();
    }
};

TEST_F(TableBuilding, makesOneWidgetForEachAreaAndNoneWithoutAnArea) {
    describe("bkgd", ProbeTypes::label, {});
    describe("logo", ProbeTypes::label, {});
    place("bkgd", {0, 0, 10, 10});
    place("bkgd", {10, 0, 10, 10});
    const TableEditor& ui = open();
    ASSERT_EQ(childrenOf(ui), 2);
    EXPECT_EQ(ui.getChildComponent(0)->getBounds(), Area(0, 0, 12, 12)) << "at 120 percent";
    EXPECT_EQ(ui.getChildComponent(1)->getBounds(), Area(12, 0, 12, 12));
    EXPECT_EQ(ui.widgetOfID(fourCharCode("bkgd")), ui.getChildComponent(1));
    EXPECT_EQ(ui.widgetOfID(fourCharCode("logo")), nullptr);
}

TEST_F(TableBuilding, leavesAnAreaEmptyWithoutADescriptorOrAClass) {
    describe("none", ProbeTypes::nothing, {});
    place("none", {0, 0, 10, 10});
    place("help", {20, 0, 10, 10});
    EXPECT_EQ(childrenOf(open()), 0);
}

TEST_F(TableBuilding, stopsAtTheTablesTerminators) {
    describe("labl", ProbeTypes::label, {});
    descriptors.emplace_back();
    describe("late", ProbeTypes::label, {});
    place("late", {0, 0, 10, 10});
    place("labl", {0, 0, 10, 10});
    areas.emplace_back();
    place("labl", {50, 0, 10, 10});
    EXPECT_EQ(childrenOf(open()), 1);
}

TEST_F(TableBuilding, buildsOnce) {
    addControl("gain", {0, 0, 10, 10});
    TableEditor& ui = open();
    ui.setupAfterCreation();
    EXPECT_EQ(childrenOf(ui), 1);
}

TEST_F(TableBuilding, bindsAControlToItsParameter) {
    addControl("gain", {10, 20, 30, 40});
    instance.set("gain", 7.5);
    const ProbeControl& control = open().control("gain");
    EXPECT_EQ(control.getWidgetID(), fourCharCode("gain"));
    EXPECT_EQ(control.getParameterID(0), fourCharCode("gain"));
    EXPECT_EQ(control.getSlotMinimum(0), -24.0);
    EXPECT_EQ(control.getSlotMaximum(0), 24.0);
    EXPECT_EQ(control.getSlotDefault(0), 0.0);
    EXPECT_EQ(control.values[0], 7.5);
    EXPECT_EQ(control.resolutions.at(0), 0.01);
    EXPECT_EQ(control.scales.at(0), 1.0);
    EXPECT_EQ(control.readParameterValue(0), 7.5);
    EXPECT_EQ(control.getDesignArea(), Area(10, 20, 30, 40));
    EXPECT_TRUE(control.isVisible());
}

TEST_F(TableBuilding, bindsTheSlotsOfAControlWithSeveralParameters) {
    describe("curv", ProbeTypes::threeSlots,
             {fourCharCode("attk"), placeholderID, fourCharCode("rlse"), fourCharCode("gain")});
    place("curv", {0, 0, 10, 10});
    const TableEditor& ui = open();
    const ProbeControl& control = ui.control("curv");
    EXPECT_EQ(control.values, (std::vector<double>{2.0, 0.0, 140.0}));
    EXPECT_EQ(control.getParameterID(1), QMWidget::noParameter);
    const ParameterWidgets::Map& map = ui.widgetsByParameter();
    ASSERT_EQ(map.size(), 2U);
    EXPECT_EQ(map.find(instance.index("rlse"))->second.slot, 2U);
}

TEST_F(TableBuilding, leavesASlotUnboundForAParameterThatThereIsNot) {
    describe("what", ProbeTypes::toggle, {fourCharCode("what")});
    place("what", {0, 0, 10, 10});
    const TableEditor& ui = open();
    EXPECT_EQ(ui.control("what").getParameterID(0), QMWidget::noParameter);
    EXPECT_EQ(ui.control("what").parameterTarget(), nullptr);
    EXPECT_TRUE(ui.widgetsByParameter().empty());
    EXPECT_TRUE(ui.getParameterWidgets().empty());
}

TEST_F(TableBuilding, namesAWidgetByItsLabelOrElseByItsParameter) {
    describe("afre", ProbeTypes::toggle, {fourCharCode("afre")}, "Atk. Freq");
    describe("sfre", ProbeTypes::toggle, {fourCharCode("sfre")}, "");
    describe("osc1", ProbeTypes::flatMenu, {fourCharCode("osc1")}, "Stands beside it");
    place("afre", {0, 0, 10, 10});
    place("sfre", {0, 0, 10, 10});
    place("osc1", {0, 0, 10, 10});
    const TableEditor& ui = open();
    EXPECT_EQ(ui.control("afre").getName(), "Atk. Freq");
    EXPECT_EQ(ui.control("sfre").getName(), "Osc 1 Sustain Frequency");
    EXPECT_EQ(ui.control("osc1").getName(), "");
}

TEST_F(TableBuilding, listsTheTextsOfAParameterWithNamedValues) {
    instance.set("osc1", 0.0);
    addControl("osc1", {0, 0, 10, 10}, ProbeTypes::menu);
    addControl("osc2", {0, 0, 10, 10}, ProbeTypes::flatMenu);
    const TableEditor& ui = open();
    EXPECT_EQ(ui.control("osc1").items, juce::StringArray("Disabled", "Enabled"));
    EXPECT_EQ(ui.control("osc1").selectedItem, 0);
    EXPECT_EQ(ui.control("osc2").items, juce::StringArray("Disabled", "Enabled"));
    EXPECT_EQ(ui.control("osc2").selectedItem, 1);
}

TEST_F(TableBuilding, beginsAListFromTheMinimumOrFromNought) {
    // 5 to 1000, at 140.
    addControl("rlse", {0, 0, 10, 10}, ProbeTypes::menu);
    addControl("prls", {0, 0, 10, 10}, ProbeTypes::flatMenu);
    const TableEditor& ui = open();
    EXPECT_EQ(ui.control("rlse").items.size(), 996);
    EXPECT_EQ(ui.control("rlse").selectedItem, 135);
    EXPECT_EQ(ui.control("prls").selectedItem, 140);
}

TEST_F(TableBuilding, putsAReadoutDirectlyAboveItsControl) {
    addControl("afre", {20, 60, 80, 100}, ProbeTypes::knob);
    TableEditor& ui = create();
    ui.setReadoutHeight(15);
    ui.setTextColour(juce::Colours::orange);
    ui.buildWidgets();
    const auto& readout = ui.widget<ProbeReadout>("Afre");
    EXPECT_EQ(ui.control("afre").readout(), &readout);
    EXPECT_EQ(readout.getDesignArea(), Area(20, 45, 80, 15));
    EXPECT_EQ(readout.colour, juce::Colours::orange);
    EXPECT_EQ(readout.getParameterID(0), fourCharCode("afre"));
    EXPECT_EQ(readout.values[0], 100.0);
    EXPECT_GT(ui.getIndexOfChildComponent(&readout),
              ui.getIndexOfChildComponent(&ui.control("afre")));
}

TEST_F(TableBuilding, putsAReadoutOverAFaderALittleWider) {
    addControl("mgan", {20, 360, 80, 304}, ProbeTypes::fader);
    TableEditor& ui = create();
    ui.setReadoutHeight(15);
    ui.setInitialMagnification(1.2F);
    ui.buildWidgets();
    // 9 pixels are 7.5 units: the top is at 352.5, cut off.
    EXPECT_EQ(ui.widget<ProbeReadout>("Mgan").getDesignArea(), Area(17, 352, 86, 15));
}

TEST_F(TableBuilding, givesTheTextColourToReadoutsAndLabelsThatAreThere) {
    addControl("afre", {20, 60, 80, 100}, ProbeTypes::knob);
    describe("osl1", ProbeTypes::label, {});
    place("osl1", {0, 0, 10, 10});
    TableEditor& ui = open();
    ui.setTextColour(juce::Colours::hotpink);
    EXPECT_EQ(ui.widget<ProbeReadout>("Afre").colour, juce::Colours::hotpink);
    EXPECT_EQ(ui.widget<ProbeStatic>("osl1").colour, juce::Colours::hotpink);
}

TEST_F(TableBuilding, bindsDisplaysToMeterRecordsSlotBySlot) {
    describe("metr", ProbeTypes::meter, {}, "Output",
             {fourCharCode("out2"), placeholderID, fourCharCode("what"), fourCharCode("ptch")});
    place("metr", {0, 0, 10, 10});
    TableEditor& ui = open();
    const auto& display = ui.widget<ProbeDisplay>("metr");
    ASSERT_EQ(display.bindings.size(), 2U);
    EXPECT_EQ(display.bindings.at(0).id, fourCharCode("out2"));
    EXPECT_EQ(display.bindings.at(0).kind, 1U);
    EXPECT_EQ(display.bindings.at(1).id, fourCharCode("ptch"));
    EXPECT_EQ(display.bindings.at(1).kind, 6U);
    EXPECT_EQ(ui.getParameterWidgets(),
              std::vector<QMWidget*>{ui.widgetOfID(fourCharCode("metr"))});
}

TEST_F(TableBuilding, listsWidgetsWithParametersAndThoseThatAskForIt) {
    addControl("gain", {0, 0, 10, 10});
    describe("osl1", ProbeTypes::label, {});
    describe("osl2", ProbeTypes::label, {});
    descriptors.back().keepInList = true;
    place("osl1", {0, 0, 10, 10});
    place("osl2", {0, 0, 10, 10});
    const TableEditor& ui = open();
    EXPECT_EQ(ui.getParameterWidgets(),
              (std::vector<QMWidget*>{&ui.control("gain"), ui.widgetOfID(fourCharCode("osl2"))}));
}

TEST_F(TableBuilding, explainsTheWidgetsThatHaveAHelpText) {
    addControl("gain", {0, 0, 10, 10});
    addControl("wetd", {0, 0, 10, 10});
    help = {{fourCharCode("gain"), "Sets the gain."}, {0, nullptr}, {fourCharCode("wetd"), "Late"}};
    const TableEditor& ui = open();
    EXPECT_EQ(ui.control("gain").getTooltip(), "Sets the gain.");
    EXPECT_EQ(ui.control("wetd").getTooltip(), "");
}

TEST_F(TableBuilding, movesEverythingBelowAHeaderAndThreeButtonsIntoIt) {
    addControl("gain", {10, 20, 30, 40});
    addButton("help");
    addButton("smlB");
    addButton("grph");
    TableEditor& ui = create();
    ui.setHeaderHeight(30);
    ui.buildWidgets();
    EXPECT_EQ(ui.control("gain").getDesignArea(), Area(10, 50, 30, 40));
    EXPECT_EQ(ui.widgetOfID(fourCharCode("help"))->getDesignArea(), Area(4, 3, 24, 24));
    EXPECT_EQ(ui.widgetOfID(fourCharCode("smlB"))->getDesignArea(), Area(32, 3, 24, 24));
    EXPECT_EQ(ui.widgetOfID(fourCharCode("grph"))->getDesignArea(), Area(60, 3, 24, 24));
    EXPECT_EQ(ui.getHeaderButtonsRight(), 92); // 3 * 24 + 20
    EXPECT_EQ(ui.getDesignSize(), Area(0, 0, 84, 90));
}

TEST_F(TableBuilding, remembersHowFarTheLastHeaderButtonReaches) {
    addButton("smlB");
    TableEditor& ui = create();
    ui.setHeaderHeight(30);
    ui.buildWidgets();
    EXPECT_EQ(ui.getHeaderButtonsRight(), 64);
}

TEST_F(TableBuilding, dumpsTheLayoutTableItWasBuiltFrom) {
    // As product tables are: controls with readouts, areas of one kind, a part beyond the rest.
    addControl("afre", {20, 60, 80, 100}, ProbeTypes::knob);
    addControl("osc1", {30, 276, 60, 60});
    describe("bkgd", ProbeTypes::label, {});
    place("bkgd", {0, 0, 220, 679});
    place("bkgd", {220, 0, 270, 290});
    std::string printed;
    TableEditor& ui = open();
    ui.setMagnification(1.0F);
    ui.setLayoutPrinter([&printed](const std::string& text) { printed += text; });
    ui.dumpLayout();
    EXPECT_EQ(printed, "static const\n"
                       "ZulControlAreaDescriptor = control_areas[] = {\n"
                       "\t{'afre', {  60,   20,   80,  100}},\n"
                       "\t{'osc1', { 276,   30,   60,   60}},\n"
                       "\t{'bkgd', {   0,    0,  220,  679}},\n"
                       "\t{'bkgd', {   0,  220,  270,  290}},\n"
                       "};\n");
}

TEST_F(TableBuilding, dumpsWhatIsOnTheScreenInDesignUnits) {
    addControl("osc1", {7, 3, 4, 9});
    TableEditor& ui = open();
    // Pixels 8, 4 to 13, 14; see the placement's own test.
    ASSERT_EQ(ui.getMagnification(), 1.2F);
    EXPECT_NE(ui.layoutDump().find("\t{'osc1', {   3,    6,    5,    9}},\n"), std::string::npos);
}

} // namespace
