// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/update/UpdateWidgetTypes.h"

#include "widgets/base/QMWidgetFactory.h"
#include "widgets/update/tests/support/UpdateTest.h"

namespace {

class UpdateTypesTest : public UpdateTest {
protected:
    [[nodiscard]] std::unique_ptr<QMWidget> make() const {
        QMWidgetDescriptor descriptor;
        descriptor.widgetType = 33;
        descriptor.label = "Update Check";
        return factory.create(descriptor);
    }

    QMWidgetFactory factory;
};

} // namespace

TEST_F(UpdateTypesTest, TheCodeMakesAWidgetThatAsksWithoutAName) {
    addUpdateWidgetTypes(factory);
    const auto widget = make();
    EXPECT_NE(dynamic_cast<QMUpdateCheckWidget*>(widget.get()), nullptr);
    EXPECT_EQ(widget->getNumParameterSlots(), 0U);
    ASSERT_TRUE(service.waitForQuestions(1));
    EXPECT_EQ(service.getQuestions()[0][1], (QM::UpdateParameter{"product", "Tessaly"}));
}

TEST_F(UpdateTypesTest, AProductCanPutItsNameInPlace) {
    addUpdateWidgetTypes(factory);
    addUpdateWidgetTypes(factory, "Brolt");
    const auto widget = make();
    ASSERT_TRUE(service.waitForQuestions(1));
    EXPECT_EQ(service.getQuestions()[0][1], (QM::UpdateParameter{"product", "Brolt"}));
}
