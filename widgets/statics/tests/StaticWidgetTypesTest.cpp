// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/statics/StaticWidgetTypes.h"

#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/base/QMWidgetFactory.h"
#include "widgets/statics/ImageStyleRecord.h"
#include "widgets/statics/QMBevelWidget.h"
#include "widgets/statics/QMDividerWidget.h"
#include "widgets/statics/QMImageWidget.h"
#include "widgets/statics/QMLabelWidget.h"

namespace {

class StaticTypesTest : public ToolkitTest {
protected:
    StaticTypesTest() { addStaticWidgetTypes(factory); }

    template <typename Widget>
    bool makes(std::uint32_t code) const {
        QMWidgetDescriptor descriptor;
        descriptor.widgetType = code;
        return dynamic_cast<Widget*>(factory.create(descriptor).get()) != nullptr;
    }

    QMWidgetFactory factory;
};

} // namespace

TEST_F(StaticTypesTest, EachCodeMakesItsClass) {
    EXPECT_TRUE(makes<QMLabelWidget>(6));
    EXPECT_TRUE(makes<QMDividerWidget>(11));
    EXPECT_TRUE(makes<QMBevelWidget>(12));
    EXPECT_TRUE(makes<QMImageWidget>(18));
}

TEST_F(StaticTypesTest, NoneHasParametersOrTakesTheKeyboard) {
    for (const std::uint32_t code : {6U, 11U, 12U, 18U}) {
        QMWidgetDescriptor descriptor;
        descriptor.widgetType = code;
        const std::unique_ptr<QMWidget> widget = factory.create(descriptor);
        EXPECT_EQ(widget->getNumParameterSlots(), 0U) << code;
        EXPECT_FALSE(widget->canTakeKeyboardFocus()) << code;
    }
}

TEST_F(StaticTypesTest, APictureComesFromTheDescriptor) {
    const ImageStyleRecord style(juce::Image(juce::Image::RGB, 7, 5, true));
    QMWidgetDescriptor descriptor;
    descriptor.widgetType = 18;
    descriptor.style = &style;
    const std::unique_ptr<QMWidget> widget = factory.create(descriptor);
    const auto* const picture = dynamic_cast<QMImageWidget*>(widget.get());
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->getImage().getWidth(), 7);
}
