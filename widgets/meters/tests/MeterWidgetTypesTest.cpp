// SPDX-License-Identifier: GPL-3.0-or-later
// The factory's codes of meters.
#include "widgets/meters/MeterWidgetTypes.h"

#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/base/QMWidgetFactory.h"
#include "widgets/meters/QMMeterCalibrationWidget.h"
#include "widgets/meters/QMMeterWidget.h"

using MeterWidgetTypes = ToolkitTest;

TEST_F(MeterWidgetTypes, CreateMetersAndTheirScales) {
    QMWidgetFactory factory;
    addMeterWidgetTypes(factory);
    const auto created = [&](std::uint32_t code) {
        QMWidgetDescriptor descriptor;
        descriptor.widgetType = code;
        return factory.create(descriptor);
    };
    EXPECT_NE(dynamic_cast<QMMeterWidget*>(created(17).get()), nullptr);
    EXPECT_NE(dynamic_cast<QMMeterCalibrationWidget*>(created(19).get()), nullptr);
    EXPECT_EQ(created(30), nullptr);
}
