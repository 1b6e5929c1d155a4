// SPDX-License-Identifier: GPL-3.0-or-later
// What explains the widgets of the product's editor: its help texts as tooltips.
#include "brolt/editor/tests/support/BroltEditorTest.h"
#include "brolt/editor/tests/support/EditorDesign.h"

#include <algorithm>

namespace {

class EditorHelp : public BroltEditorTest {
protected:
    static std::string textOf(FourCharCode id) {
        for (const EditorDesign::Help& help : EditorDesign::helpTexts()) {
            if (codeOf(help.id) == id)
                return help.text;
        }
        return "";
    }
};

TEST_F(EditorHelp, isShownWordByWordWhereThereIsAny) {
    for (const std::int32_t channels : {mono, stereo}) {
        open(channels);
        for (QMWidget* const widget : widgets()) {
            EXPECT_EQ(widget->getTooltip().toStdString(), textOf(widget->getWidgetID()))
                << fourCharText(widget->getWidgetID());
        }
    }
}

TEST_F(EditorHelp, isMissingFromLabelsBevelsLogoScalesAndUpdateLine) {
    open();
    for (const char* const id : {"osl1", "osl2", "foll", "outl", "wndl", "envl", "pitl", "mg1L",
                                 "mg2L", "bkgd", "logo", "mtcb", "UPDT"})
        EXPECT_TRUE(widget(std::string(id)).getTooltip().isEmpty()) << id;
}

TEST_F(EditorHelp, isTheSameForOneChannelAndForTwo) {
    open(mono);
    EXPECT_EQ(widget("metr").getTooltip(), "Output meter for Left Channel.");
}

} // namespace
