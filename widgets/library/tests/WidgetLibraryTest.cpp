// SPDX-License-Identifier: GPL-3.0-or-later
// Every type code of the library and the class it makes.
#include "widgets/library/WidgetLibrary.h"
#include "services/preferences/PreferencesBaseFolder.h"
#include "services/tests/TemporaryDirectory.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/base/QMWidget.h"
#include "widgets/base/QMWidgetFactory.h"
#include "widgets/buttons/QM2PaneButton.h"
#include "widgets/buttons/QM3PaneButton.h"
#include "widgets/buttons/QM3PaneButton_SML.h"
#include "widgets/buttons/QMGraphicToggleButton.h"
#include "widgets/buttons/QMHelpToggleButton.h"
#include "widgets/buttons/QMListenToggleButton.h"
#include "widgets/buttons/QMPillToggleButton.h"
#include "widgets/buttons/QMRadioSelector.h"
#include "widgets/buttons/QMTextToggleButton.h"
#include "widgets/buttons/QMToggleButton.h"
#include "widgets/controls/QMFaderWidget.h"
#include "widgets/controls/QMHorizontalFaderWidget.h"
#include "widgets/controls/QMKnobStripWidget.h"
#include "widgets/controls/QMKnobWidget.h"
#include "widgets/controls/QMParameterReadoutWidget.h"
#include "widgets/history/QMMeterHistory.h"
#include "widgets/history/QMPitchHistory.h"
#include "widgets/menus/QMFlatMenuGridWidget.h"
#include "widgets/menus/QMFlatPopupMenuWidget.h"
#include "widgets/menus/QMPopupMenuWidget.h"
#include "widgets/meters/QMMeterCalibrationWidget.h"
#include "widgets/meters/QMMeterWidget.h"
#include "widgets/statics/QMBevelWidget.h"
#include "widgets/statics/QMDividerWidget.h"
#include "widgets/statics/QMImageWidget.h"
#include "widgets/statics/QMLabelWidget.h"
#include "widgets/update/QMUpdateCheckWidget.h"
#include "widgets/update/UpdateChecks.h"

#include <set>
#include <typeindex>
#include <typeinfo>

namespace {

using Items = QMWidgetFactory::Items;
using Readout = QMWidgetFactory::Readout;

struct Row {
    std::uint32_t code;
    std::type_index widget;
    Items items;
    Readout readout;
};

template <typename Widget>
Row row(std::uint32_t code, Items items = Items::none, Readout readout = Readout::none) {
    return {code, typeid(Widget), items, readout};
}

// clang-format off
const std::vector<Row>& rows() {
    static const std::vector<Row> table = {
        row<QMKnobWidget>             ( 0),
        row<QMKnobStripWidget>        ( 1, Items::none,     Readout::above),
        row<QMToggleButton>           ( 2),
        row<QMListenToggleButton>     ( 3),
        row<QMLabelWidget>            ( 6),
        row<QMPopupMenuWidget>        ( 8, Items::named),
        row<QMDividerWidget>          (11),
        row<QMBevelWidget>            (12),
        row<QMPopupMenuWidget>        (16, Items::named),
        row<QMMeterWidget>            (17),
        row<QMImageWidget>            (18),
        row<QMMeterCalibrationWidget> (19),
        row<QMFaderWidget>            (21, Items::none,     Readout::aboveFader),
        row<QMFlatPopupMenuWidget>    (22, Items::fromZero),
        row<QMFlatPopupMenuWidget>    (23, Items::fromZero),
        row<QMParameterReadoutWidget> (26),
        row<QM3PaneButton>            (27),
        row<QM3PaneButton_SML>        (28),
        row<QM2PaneButton>            (29),
        row<QMMeterHistory>           (30),
        row<QMKnobStripWidget>        (31, Items::none,     Readout::above),
        row<QMHelpToggleButton>       (32),
        row<QMUpdateCheckWidget>      (33),
        row<QMPitchHistory>           (36),
        row<QMTextToggleButton>       (37),
        row<QMToggleButton>           (38),
        row<QMGraphicToggleButton>    (45),
        row<QMPillToggleButton>       (46),
        row<QMPopupMenuWidget>        (47, Items::fromZero),
        row<QMRadioSelector>          (49, Items::named),
        row<QMFaderWidget>            (50, Items::none,     Readout::aboveFader),
        row<QMHorizontalFaderWidget>  (51),
        row<QMFlatMenuGridWidget>     (54, Items::fromZero),
    };
    return table;
}

// clang-format on

QMWidgetDescriptor descriptorOf(std::uint32_t code) {
    QMWidgetDescriptor descriptor;
    descriptor.widgetID = fourCharCode("test");
    descriptor.widgetType = code;
    descriptor.label = "Label";
    return descriptor;
}

} // namespace

class WidgetLibraryTest : public ToolkitTest {
protected:
    WidgetLibraryTest() {
        // Some widgets look at the preferences, which are not to be the user's.
        QM::setPreferencesBaseFolder(juce::File(juce::String(preferences.path().string())));
        addWidgetLibrary(factory);
        // Nobody is asked for updates.
        UpdateChecks::setFetch([](const auto&, const auto&) { return std::nullopt; });
    }

    void TearDown() override { UpdateChecks::setFetch(nullptr); }

    TemporaryDirectory preferences;
    QMWidgetFactory factory;
};

TEST_F(WidgetLibraryTest, EveryCodeOfTheTableMakesItsClass) {
    for (const Row& row : rows()) {
        const auto widget = factory.create(descriptorOf(row.code));
        ASSERT_NE(widget, nullptr) << row.code;
        const QMWidget& made = *widget;
        EXPECT_EQ(std::type_index(typeid(made)), row.widget) << row.code;
        EXPECT_EQ(factory.typeOf(row.code)->items, row.items) << row.code;
        EXPECT_EQ(factory.typeOf(row.code)->readout, row.readout) << row.code;
    }
}

TEST_F(WidgetLibraryTest, TheCodesThatMakeNothingMakeNothing) {
    for (const std::uint32_t code : {4U, 5U, 9U, 10U, 20U, 24U, 25U})
        EXPECT_EQ(factory.create(descriptorOf(code)), nullptr) << code;
}

/// Classes that products to come bring with them. When one arrives, its code moves to the table.
TEST_F(WidgetLibraryTest, NoCodeIsKnownBesideTheTableButThoseWhoseClassesAreToCome) {
    const std::set<std::uint32_t> toCome = {7,  13, 14, 15, 34, 35, 39, 40, 41,
                                            42, 43, 44, 48, 52, 53, 55, 56, 57};
    std::set<std::uint32_t> known;
    for (const Row& row : rows())
        known.insert(row.code);
    for (std::uint32_t code = 0; code < 100; ++code) {
        EXPECT_EQ(factory.typeOf(code) != nullptr, known.contains(code)) << code;
        EXPECT_FALSE(known.contains(code) && toCome.contains(code)) << code;
    }
    EXPECT_EQ(known.size() + toCome.size() + 7, 58U);
}

TEST_F(WidgetLibraryTest, ReadoutsAreMadeForControlsThatHaveOne) {
    const auto readout = factory.createReadout(descriptorOf(31));
    EXPECT_NE(dynamic_cast<QMParameterReadoutWidget*>(readout.get()), nullptr);
}
