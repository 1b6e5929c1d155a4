// SPDX-License-Identifier: GPL-3.0-or-later
// The factory: codes with and without a class, and how families add theirs.
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/base/QMWidgetFactory.h"
#include "widgets/base/tests/support/PlainWidget.h"

using WidgetFactory = ToolkitTest;

TEST_F(WidgetFactory, ACodeWithoutAClassMakesNothing) {
    const QMWidgetFactory factory;
    QMWidgetDescriptor descriptor;
    descriptor.widgetType = 4;
    EXPECT_EQ(factory.create(descriptor), nullptr);
    EXPECT_EQ(factory.typeOf(4), nullptr);
    EXPECT_EQ(factory.createReadout(descriptor), nullptr);
}

TEST_F(WidgetFactory, AClassThatIsToldOfIsMadeFromItsDescriptor) {
    QMWidgetFactory factory;
    factory.add(21, {.create =
                         [](const QMWidgetDescriptor& descriptor) {
                             auto widget = std::make_unique<PlainWidget>(2);
                             widget->setName(descriptor.label);
                             return widget;
                         },
                     .readout = QMWidgetFactory::Readout::aboveFader});
    QMWidgetDescriptor descriptor;
    descriptor.widgetType = 21;
    descriptor.label = "Mix (dB)";
    const auto widget = factory.create(descriptor);
    ASSERT_NE(widget, nullptr);
    EXPECT_EQ(widget->getName(), "Mix (dB)");
    EXPECT_EQ(factory.typeOf(21)->readout, QMWidgetFactory::Readout::aboveFader);
    EXPECT_EQ(factory.typeOf(21)->items, QMWidgetFactory::Items::none);
}

TEST_F(WidgetFactory, ALaterTypeTakesTheCodeOver) {
    QMWidgetFactory factory;
    factory.add(
        2, {.create = [](const QMWidgetDescriptor&) { return std::make_unique<PlainWidget>(1); }});
    factory.add(
        2, {.create = [](const QMWidgetDescriptor&) { return std::make_unique<PlainWidget>(5); }});
    QMWidgetDescriptor descriptor;
    descriptor.widgetType = 2;
    EXPECT_EQ(factory.create(descriptor)->getNumParameterSlots(), 5u);
}
