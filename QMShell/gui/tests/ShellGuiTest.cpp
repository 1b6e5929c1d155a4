// SPDX-License-Identifier: GPL-3.0-or-later
// The GUI holder's views, and the controller that passes on to it.
#include "QMShell/gui/GenericEditor.h"
#include "QMShell/gui/QMShellParameterController.h"
#include "QMShell/gui/QMShell_ViewComponent.h"
#include "QMShell/gui/tests/support/FakeUI.h"
#include "QMShell/gui/tests/support/TestHolder.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/ui/IQMPlugInUI.h"

namespace {

std::unique_ptr<IQMPlugInUI> noUI(INoxPlugIn&, IQMPlugInUIHost*, PlugInUINumber) {
    return nullptr;
}

using Calls = std::vector<std::string>;

class ShellGui : public ToolkitTest {
protected:
    HostedPlugIn hosted;
    TestHolder holder{hosted, noUI};
};

} // namespace

TEST_F(ShellGui, TheViewItMakesIsItsOwnAndGoesWhenAnotherIsSet) {
    const juce::Component::SafePointer<QMShell_ViewComponent> own(holder.createView());
    EXPECT_TRUE(holder.ownsView());
    EXPECT_EQ(holder.view(), own.getComponent());
    auto given = std::make_unique<QMShell_ViewComponent>(holder, noUI);
    const juce::Component::SafePointer<QMShell_ViewComponent> watched(given.get());
    holder.setView(given.get());
    EXPECT_EQ(own.getComponent(), nullptr);
    EXPECT_FALSE(holder.ownsView());
    holder.setView(nullptr);
    EXPECT_NE(watched.getComponent(), nullptr) << "that one is somebody else's";
}

TEST_F(ShellGui, AViewItOwnsGoesWithIt) {
    juce::Component::SafePointer<QMShell_ViewComponent> own;
    {
        TestHolder shortLived(hosted, noUI);
        own = shortLived.createView();
        ASSERT_NE(own.getComponent(), nullptr);
    }
    EXPECT_EQ(own.getComponent(), nullptr);
}

TEST_F(ShellGui, TheControllerPassesEverythingOn) {
    QMShellParameterController controller(holder);
    const FourCharCode afre = fourCharCode("afre");
    controller.updateCoefficients();
    controller.beginParameterGesture(afre);
    controller.setParameterValue(afre, 99.5);
    controller.endParameterGesture(afre);
    EXPECT_FLOAT_EQ(controller.parameterValue(afre), 0.25f);
    const juce::ModifierKeys right(juce::ModifierKeys::rightButtonModifier);
    EXPECT_FALSE(controller.handleParameterMouseDown(afre, right));
    holder.takesPresses = true;
    EXPECT_TRUE(controller.handleParameterMouseDown(afre, right));
    EXPECT_EQ(holder.calls, (Calls{"coefficients", "begin afre", "set afre 99.5", "end afre",
                                   "press afre right", "press afre right"}));
}

TEST_F(ShellGui, TheControllersFlagIsKeptAndChangesNothing) {
    QMShellParameterController controller(holder);
    EXPECT_EQ(controller.flag(), 0);
    controller.setFlag(200);
    EXPECT_EQ(controller.flag(), 200);
    EXPECT_TRUE(holder.calls.empty());
}

TEST_F(ShellGui, AnEnvironmentMakesTheGenericEditorOfAnInstance) {
    EXPECT_EQ(hosted.environment.createGenericEditor(*hosted.get(), nullptr), nullptr);
    PlugInUINumber asked = PlugInUINumber::product;
    hosted.environment.setGenericEditorFactory(
        genericEditorsOf([&](INoxPlugIn& plugIn, IQMPlugInUIHost* host,
                             PlugInUINumber number) -> std::unique_ptr<IQMPlugInUI> {
            EXPECT_EQ(host, nullptr);
            asked = number;
            return std::make_unique<FakeUI>(plugIn, nullptr, juce::Rectangle<int>(640, 480));
        }));
    const std::shared_ptr<IQMPlugInUI> ui =
        hosted.environment.createGenericEditor(*hosted.get(), nullptr);
    ASSERT_NE(ui, nullptr);
    EXPECT_EQ(asked, PlugInUINumber::generic);
    EXPECT_EQ(dynamic_cast<FakeUI&>(*ui).setups, 1);
    EXPECT_TRUE(ui->belongsTo(hosted.get()));
    EXPECT_EQ(ui->component().getWidth(), 640);
}
