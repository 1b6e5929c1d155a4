// SPDX-License-Identifier: GPL-3.0-or-later
// The codes that a product's table of widgets names knobs, faders and readouts by.
#include "widgets/controls/ControlWidgetTypes.h"

#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/base/QMWidgetFactory.h"
#include "widgets/controls/QMFaderWidget.h"
#include "widgets/controls/QMHorizontalFaderWidget.h"
#include "widgets/controls/QMKnobStripWidget.h"
#include "widgets/controls/QMKnobWidget.h"
#include "widgets/controls/QMParameterReadoutWidget.h"

#include <typeinfo>

namespace {

struct OtherStyle final : QMWidgetStyleRecord {};

} // namespace

class ControlWidgetTypesTest : public ToolkitTest {
protected:
    ControlWidgetTypesTest() { addControlWidgetTypes(factory); }

    template <typename Widget>
    [[nodiscard]] bool makes(std::uint32_t code) const {
        QMWidgetDescriptor descriptor;
        descriptor.widgetType = code;
        const std::unique_ptr<QMWidget> made = factory.create(descriptor);
        return made != nullptr && typeid(*made) == typeid(Widget);
    }

    QMWidgetFactory factory;
};

TEST_F(ControlWidgetTypesTest, EachCodeHasItsClass) {
    EXPECT_TRUE(makes<QMKnobWidget>(0));
    EXPECT_TRUE(makes<QMKnobStripWidget>(1));
    EXPECT_TRUE(makes<QMKnobStripWidget>(31));
    EXPECT_TRUE(makes<QMFaderWidget>(21));
    EXPECT_TRUE(makes<QMFaderWidget>(50));
    EXPECT_TRUE(makes<QMHorizontalFaderWidget>(51));
    EXPECT_TRUE(makes<QMParameterReadoutWidget>(26));
    EXPECT_EQ(factory.typeOf(2), nullptr);
}

TEST_F(ControlWidgetTypesTest, StripsAndUprightFadersHaveReadouts) {
    using Readout = QMWidgetFactory::Readout;
    EXPECT_EQ(factory.typeOf(0)->readout, Readout::none);
    EXPECT_EQ(factory.typeOf(1)->readout, Readout::above);
    EXPECT_EQ(factory.typeOf(31)->readout, Readout::above);
    EXPECT_EQ(factory.typeOf(21)->readout, Readout::aboveFader);
    EXPECT_EQ(factory.typeOf(50)->readout, Readout::aboveFader);
    EXPECT_EQ(factory.typeOf(51)->readout, Readout::none);
    EXPECT_EQ(factory.typeOf(26)->readout, Readout::none);
    const std::unique_ptr<QMWidget> readout = factory.createReadout({});
    EXPECT_NE(dynamic_cast<QMParameterReadoutWidget*>(readout.get()), nullptr);
}

TEST_F(ControlWidgetTypesTest, AStripIsMadeWithItsStyleAndIgnoresOthers) {
    KnobStyleRecord style;
    style.knobType = 8;
    style.presentMask = KnobStyleRecord::hasKnobType;
    QMWidgetDescriptor descriptor;
    descriptor.widgetType = 31;
    descriptor.style = &style;
    const std::unique_ptr<QMWidget> styled = factory.create(descriptor);
    EXPECT_EQ(dynamic_cast<QMKnobStripWidget&>(*styled).getKnobType(), 8);
    const OtherStyle other;
    descriptor.style = &other;
    const std::unique_ptr<QMWidget> plain = factory.create(descriptor);
    EXPECT_EQ(dynamic_cast<QMKnobStripWidget&>(*plain).getKnobType(), 7);
}
