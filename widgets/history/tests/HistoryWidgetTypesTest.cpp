// SPDX-License-Identifier: GPL-3.0-or-later
// The factory's codes of histories.
#include "widgets/history/HistoryWidgetTypes.h"

#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/base/QMWidgetFactory.h"
#include "widgets/history/QMMeterHistory.h"
#include "widgets/history/QMPitchHistory.h"
#include "widgets/statics/ImageStyleRecord.h"
#include "widgets/statics/tests/PictureOf.h"

using HistoryWidgetTypes = ToolkitTest;

TEST_F(HistoryWidgetTypes, CreateHistoriesOfPitchesAndLevels) {
    QMWidgetFactory factory;
    addHistoryWidgetTypes(factory);
    const ImageStyleRecord style(imageOf(juce::Colours::blue, 20, 10));
    const auto created = [&](std::uint32_t code, const QMWidgetStyleRecord* withStyle = nullptr) {
        QMWidgetDescriptor descriptor;
        descriptor.widgetType = code;
        descriptor.style = withStyle;
        return factory.create(descriptor);
    };
    EXPECT_NE(dynamic_cast<QMMeterHistory*>(created(30).get()), nullptr);
    EXPECT_EQ(created(17), nullptr);

    const auto plain = created(36);
    const auto styled = created(36, &style);
    const auto* const plainHistory = dynamic_cast<QMPitchHistory*>(plain.get());
    const auto* const styledHistory = dynamic_cast<QMPitchHistory*>(styled.get());
    ASSERT_NE(plainHistory, nullptr);
    ASSERT_NE(styledHistory, nullptr);
    EXPECT_FALSE(plainHistory->usesStyleImage());
    EXPECT_TRUE(styledHistory->usesStyleImage());
    EXPECT_FALSE(styledHistory->usesWindowImage());
    EXPECT_EQ(styledHistory->getHistoryLength(), 3.0);
}
