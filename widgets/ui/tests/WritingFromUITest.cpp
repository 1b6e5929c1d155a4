// SPDX-License-Identifier: GPL-3.0-or-later
// What the user does, on its way from the widgets to the plug-in and the host: values and gestures.
#include "widgets/ui/tests/support/TableEditor.h"

#include <cmath>

namespace {

class WritingFromUI : public EditorTest {
protected:
    WritingFromUI() {
        addControl("gain", {0, 0, 100, 100});
        addControl("afre", {0, 130, 100, 100}, ProbeTypes::knob);
    }

    /// The editor in a window, at magnification 1.
    void show() {
        open().setMagnification(1.0F);
        window.emplace(*editor);
    }

    void TearDown() override {
        window.reset();
        editor.reset();
    }

    using Calls = std::vector<std::string>;

    std::optional<TestWindow> window;
};

TEST_F(WritingFromUI, setsTheInstanceThroughTheEditorWithoutAController) {
    show();
    window->press({10.0F, 50.0F});
    window->dragTo({12.0F, 50.0F});
    EXPECT_EQ(instance.value("gain"), 12.0);
    window->release();
    EXPECT_EQ(editor->writtenByUI, (std::vector<std::pair<std::int32_t, double>>{{14, 12.0}}));
    EXPECT_TRUE(editor->wasWriting);
    EXPECT_FALSE(editor->isWritingFromUI());
}

TEST_F(WritingFromUI, goesToTheControllerWhereThereIsOne) {
    host.controller = &controller;
    show();
    window->press({10.0F, 50.0F});
    window->dragTo({12.0F, 50.0F});
    window->release();
    EXPECT_EQ(controller.calls, (Calls{"begin gain", "set gain 12", "end gain"}));
    EXPECT_TRUE(editor->writtenByUI.empty());
}

TEST_F(WritingFromUI, makesOneUndoGroupOfAGesture) {
    show();
    window->press({10.0F, 50.0F});
    EXPECT_TRUE(instance.isTouched("gain"));
    window->dragTo({12.0F, 50.0F});
    window->dragTo({20.0F, 50.0F});
    window->release();
    EXPECT_FALSE(instance.isTouched("gain"));
    EXPECT_EQ(instance.value("gain"), 20.0);
    instance.get().undo();
    EXPECT_EQ(instance.value("gain"), 0.0);
    EXPECT_FALSE(instance.get().canUndo());
    EXPECT_EQ(editor->control("gain").values[0], 0.0) << "shows what undo brought";
}

TEST_F(WritingFromUI, holdsTheParameterWithAControllerToo) {
    host.controller = &controller;
    show();
    window->press({10.0F, 50.0F});
    EXPECT_TRUE(instance.isTouched("gain"));
    window->release();
    EXPECT_FALSE(instance.isTouched("gain"));
}

TEST_F(WritingFromUI, countsHoldsOfAControlAndItsReadout) {
    show();
    auto& readout = editor->widget<ProbeReadout>("Afre");
    readout.beginTouch(0);
    editor->control("afre").beginTouch(0);
    readout.endTouch(0);
    EXPECT_TRUE(instance.isTouched("afre"));
    editor->control("afre").endTouch(0);
    EXPECT_FALSE(instance.isTouched("afre"));
}

TEST_F(WritingFromUI, keepsTheReadoutUpToDateWhileItsControlIsHeld) {
    show();
    window->press({10.0F, 180.0F});
    window->dragTo({77.0F, 180.0F});
    EXPECT_EQ(instance.value("afre"), 77.0);
    EXPECT_EQ(editor->widget<ProbeReadout>("Afre").values[0], 77.0);
    window->release();
}

TEST_F(WritingFromUI, endsTheHoldOfAnEditorThatGoesInTheMiddle) {
    host.controller = &controller;
    show();
    window->press({10.0F, 50.0F});
    ASSERT_TRUE(instance.isTouched("gain"));
    editor.reset();
    EXPECT_FALSE(instance.isTouched("gain"));
    EXPECT_EQ(controller.calls, (Calls{"begin gain", "end gain"}));
    window->release();
    EXPECT_EQ(controller.calls.size(), 2U);
}

TEST_F(WritingFromUI, endsNothingASecondTimeWhenItGoes) {
    host.controller = &controller;
    show();
    window->press({10.0F, 50.0F});
    window->release();
    editor.reset();
    EXPECT_EQ(controller.calls, (Calls{"begin gain", "end gain"}));
}

TEST_F(WritingFromUI, bearsAnInstanceThatGoesInTheMiddleOfAGesture) {
    host.controller = &controller;
    show();
    window->press({10.0F, 50.0F});
    instance.remove();
    window->dragTo({12.0F, 50.0F});
    window->release();
    EXPECT_EQ(editor->control("gain").values[0], 12.0);
    editor.reset();
    EXPECT_EQ(controller.calls, (Calls{"begin gain", "set gain 12", "end gain"}));
}

TEST_F(WritingFromUI, tellsTheHostThenTheInstanceThenTheEditor) {
    host.controller = &controller;
    open().setParameterFromUI(14, 5.0);
    EXPECT_EQ(controller.calls, Calls{"set gain 5"});
    EXPECT_EQ(instance.value("gain"), 5.0);
    EXPECT_EQ(editor->control("gain").values[0], 5.0);
    EXPECT_EQ(host.changes, std::vector<std::int32_t>{14});
    EXPECT_EQ(editor->writtenByUI, (std::vector<std::pair<std::int32_t, double>>{{14, 5.0}}));
}

TEST_F(WritingFromUI, bringsAValueIntoTheParametersRange) {
    open().setParameterFromUI(14, 1e9);
    EXPECT_EQ(editor->writtenByUI.back().second, 24.0);
    editor->setParameterFromUI(14, -1e9);
    EXPECT_EQ(editor->writtenByUI.back().second, -24.0);
}

TEST_F(WritingFromUI, refusesParametersThatThereAreNotAndValuesThatAreNoNumbers) {
    host.controller = &controller;
    open();
    editor->setParameterFromUI(-1, 1.0);
    editor->setParameterFromUI(15, 1.0);
    editor->setParameterFromUI(14, std::nan(""));
    editor->setParameterFromUI(14, HUGE_VAL);
    EXPECT_TRUE(controller.calls.empty());
    EXPECT_TRUE(editor->writtenByUI.empty());
}

TEST_F(WritingFromUI, letsTheEditorConvertOrRefuseAValue) {
    open().onlyAccepted = 7.0;
    editor->setParameterFromUI(14, 1.0);
    EXPECT_EQ(instance.value("gain"), 7.0);
    editor->refuses = true;
    editor->setParameterFromUI(14, 2.0);
    EXPECT_EQ(instance.value("gain"), 7.0);
    EXPECT_EQ(editor->writtenByUI.size(), 1U);
}

/// Wants every press.
class Greedy final : public QMGenericParameterTarget {
public:
    double parameterValue(FourCharCode) const override { return 99.0; }

    void setParameterValue(FourCharCode, double) override { ADD_FAILURE(); }

    bool takesClick(FourCharCode) override { return true; }
};

TEST_F(WritingFromUI, asksTheGenericTargetAboutAPressButWritesToTheParameter) {
    Greedy greedy;
    describe("curv", ProbeTypes::threeSlots,
             {fourCharCode("attk"), fourCharCode("rlse"), fourCharCode("patt")});
    place("curv", {200, 0, 50, 50});
    create().generic = &greedy;
    editor->setupAfterCreation();
    editor->setMagnification(1.0F);
    window.emplace(*editor);
    window->press({10.0F, 50.0F});
    window->dragTo({12.0F, 50.0F});
    window->release();
    EXPECT_EQ(editor->control("gain").clicksTaken, 1);
    EXPECT_EQ(instance.value("gain"), 12.0);
    window->click({210.0F, 20.0F});
    EXPECT_EQ(editor->control("curv").clicksTaken, 0) << "with three parameters there is none";
}

TEST_F(WritingFromUI, worksForAnInstanceWithoutAnEnvironmentAndWithoutAHost) {
    QMBrolt_PlugInTypeGroup group(nullptr);
    const std::unique_ptr<INoxPlugIn> alone = group.typeOfIndex(0)->createInstance();
    TableEditor ui(*alone, nullptr, {areas, descriptors, help});
    ui.setupAfterCreation();
    ui.setParameterFromUI(14, 5.0);
    EXPECT_EQ(alone->parameterValue(14), 5.0);
    EXPECT_EQ(ui.control("gain").values[0], 5.0);
    ui.setHelpEnabled(true);
    ui.tick();
}

} // namespace
