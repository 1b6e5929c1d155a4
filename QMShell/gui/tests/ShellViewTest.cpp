// SPDX-License-Identifier: GPL-3.0-or-later
// The view in a host's window: which editor it shows, its layout, its ticks.
#include "QMShell/gui/QMShell_ViewComponent.h"
#include "QMShell/gui/tests/support/FakeUI.h"
#include "QMShell/gui/tests/support/TestHolder.h"
#include "tests/support/toolkit/ToolkitTest.h"

namespace {

using Calls = std::vector<std::string>;

class FakeHeader final : public QMShellViewHeader {
public:
    explicit FakeHeader(int height) { setSize(10, height); }

    [[nodiscard]] std::int32_t minimumWidth() const override { return 500; }

    void setPlugIn(INoxPlugIn* newOne) override { plugIn = newOne; }

    void setUI(IQMPlugInUI* newOne) override { ui = newOne; }

    void parameterChanged(std::int32_t index) override { changed.push_back(index); }

    INoxPlugIn* plugIn = nullptr;
    IQMPlugInUI* ui = nullptr;
    std::vector<std::int32_t> changed;
};

class ShellView : public ToolkitTest {
protected:
    QMPlugInUIFactory factory() {
        return [this](INoxPlugIn& plugIn, IQMPlugInUIHost* host,
                      PlugInUINumber number) -> std::unique_ptr<IQMPlugInUI> {
            made.push_back(number);
            if (number == PlugInUINumber::product && !hasProductUI)
                return nullptr;
            return std::make_unique<FakeUI>(plugIn, host, uiSize);
        };
    }

    static FakeUI& uiOf(const QMShell_ViewComponent& view) {
        return dynamic_cast<FakeUI&>(*view.ui());
    }

    HostedPlugIn hosted;
    TestHolder holder{hosted, factory()};
    std::vector<PlugInUINumber> made;
    bool hasProductUI = true;
    juce::Rectangle<int> uiSize{930, 815};
};

} // namespace

TEST_F(ShellView, ItShowsTheProductsEditorAsLargeAsThatIs) {
    const QMShell_ViewComponent& view = *holder.createView();
    EXPECT_EQ(made, std::vector{PlugInUINumber::product});
    EXPECT_EQ(view.getLocalBounds(), juce::Rectangle<int>(930, 815));
    EXPECT_EQ(uiOf(view).setups, 1);
    EXPECT_EQ(view.plugIn(), hosted.get());
}

TEST_F(ShellView, AProductWithoutAnEditorHasTheGenericOne) {
    hasProductUI = false;
    QMShell_ViewComponent& view = *holder.createView();
    EXPECT_EQ(made, (std::vector{PlugInUINumber::product, PlugInUINumber::generic}));
    EXPECT_NE(view.ui(), nullptr);
}

TEST_F(ShellView, TheGenericEditorCanBeAskedForAndGoesAgain) {
    QMShell_ViewComponent& view = *holder.createView();
    view.showUI(PlugInUINumber::generic);
    EXPECT_EQ(made.back(), PlugInUINumber::generic);
    EXPECT_EQ(FakeUI::alive().size(), 1u);
    view.showUI(PlugInUINumber::generic);
    EXPECT_EQ(made.size(), 2u);
    view.showUI(PlugInUINumber::product);
    EXPECT_EQ(made.back(), PlugInUINumber::product);
}

TEST_F(ShellView, TheEditorSizesTheViewAndTheHostHears) {
    QMShell_ViewComponent& view = *holder.createView();
    uiOf(view).grow(775, 679);
    EXPECT_EQ(view.getLocalBounds(), juce::Rectangle<int>(775, 679));
    EXPECT_EQ(holder.calls, Calls{"size 679 775"});
    EXPECT_TRUE(view.setUIArea({775, 679}));
    EXPECT_EQ(holder.calls.size(), 1u) << "the same size again is no news";
    view.setExtraWidth(100);
    EXPECT_EQ(view.getWidth(), 875);
    EXPECT_EQ(holder.calls.back(), "size 679 875");
    EXPECT_EQ(uiOf(view).getParentComponent()->getParentComponent()->getWidth(), 775);
}

TEST_F(ShellView, AHeaderStandsAboveAndWidensANarrowEditor) {
    uiSize = {400, 300};
    auto owned = std::make_unique<FakeHeader>(80);
    FakeHeader& header = *owned;
    QMShell_ViewComponent view(holder, factory(), std::move(owned));
    EXPECT_EQ(view.getLocalBounds(), juce::Rectangle<int>(500, 380));
    EXPECT_EQ(header.getBounds(), juce::Rectangle<int>(500, 80));
    EXPECT_EQ(header.plugIn, hosted.get());
    EXPECT_EQ(header.ui, view.ui());
    view.parameterChanged(7);
    EXPECT_EQ(header.changed, std::vector<std::int32_t>{7});
    view.closeUI();
    EXPECT_EQ(header.ui, nullptr);
    EXPECT_TRUE(FakeUI::alive().empty());
}

TEST_F(ShellView, AnInstanceThatWasReplacedGetsAnotherEditorWithTheNextTick) {
    QMShell_ViewComponent& view = *holder.createView();
    const FakeUI* const first = &uiOf(view);
    view.tick();
    EXPECT_EQ(&uiOf(view), first);
    EXPECT_EQ(first->ticks, 1);
    hosted.setChannels(1);
    EXPECT_FALSE(view.ui()->belongsTo(hosted.get()));
    view.tick();
    EXPECT_EQ(made.size(), 2u);
    EXPECT_EQ(FakeUI::alive().size(), 1u);
    EXPECT_EQ(view.plugIn(), hosted.get());
    EXPECT_TRUE(view.ui()->belongsTo(hosted.get()));
}

TEST_F(ShellView, WithoutAnInstanceThereIsNoEditorUntilThereIsOneAgain) {
    QMShell_ViewComponent& view = *holder.createView();
    hosted.drop();
    view.tick();
    EXPECT_EQ(view.ui(), nullptr);
    EXPECT_EQ(view.plugIn(), nullptr);
    hosted.setChannels(2);
    view.tick();
    ASSERT_NE(view.ui(), nullptr);
    EXPECT_TRUE(view.ui()->belongsTo(hosted.get()));
}

TEST_F(ShellView, ItsTimerTicksTheEditor) {
    const QMShell_ViewComponent& view = *holder.createView();
    EXPECT_TRUE(runLoopUntil([&] { return uiOf(view).ticks >= 3; }));
}

TEST_F(ShellView, ParametersCanBeSetByName) {
    QMShell_ViewComponent& view = *holder.createView();
    INoxPlugIn& plugIn = *hosted.get();
    EXPECT_EQ(view.setParameterByName("MasterBypassID", 1.0), 1);
    EXPECT_EQ(plugIn.parameterValue(0), 1.0);
    EXPECT_EQ(view.setParameterByName("gainOfTheOutput", -6.0), 1);
    EXPECT_EQ(plugIn.parameterValue(plugIn.indexOfID(fourCharCode("gain"))), -6.0);
    EXPECT_EQ(view.setParameterByName("abBl", 0.5), 0);
    EXPECT_EQ(view.setParameterByName("", 0.5), 0);
    hosted.drop();
    EXPECT_EQ(view.setParameterByName("gain", 0.0), 0);
}

TEST_F(ShellView, HelpIsTheHoldersBusiness) {
    QMShell_ViewComponent& view = *holder.createView();
    view.ui()->setHelpEnabled(true);
    view.setHelpEnabled(false);
    EXPECT_EQ(holder.calls, (Calls{"help on", "help off"}));
}

TEST_F(ShellView, ASmallerWindowIsFilledAndTellsNobody) {
    QMShell_ViewComponent& view = *holder.createView();
    view.setSize(300, 200);
    EXPECT_TRUE(holder.calls.empty());
    EXPECT_EQ(uiOf(view).getWidth(), 930);
    EXPECT_EQ(view.getChildComponent(0)->getBounds(), juce::Rectangle<int>(300, 200));
}
