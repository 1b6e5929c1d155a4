// SPDX-License-Identifier: GPL-3.0-or-later
// The frame of the editor that every product has: what it tells its content of the plug-in, how it
// connects the content's widgets, its size.
#include "plugin-model/NoxPlugInParameter.h"
#include "widgets/ui/QMPlugInGenericUI.h"
#include "widgets/ui/tests/support/TableEditor.h"

namespace {

using Area = juce::Rectangle<int>;

constexpr const char* sizeKey = "TEST_GENERIC";

/// One control for each parameter, one display for each meter; a row of 20 design units for each
/// parameter, at widths below 300 pixels two.
class ProbeContent final : public juce::Component, public IGenericEditorContent {
public:
    explicit ProbeContent(GenericEditorDescription toShow)
        : description(std::move(toShow)) {
        for (const GenericParameter& parameter : description.parameters) {
            controls.push_back(std::make_unique<ProbeControl>());
            controls.back()->setParameter(0, parameter.id);
            controls.back()->setParameterValue(0, parameter.value, false);
            addAndMakeVisible(*controls.back());
        }
        for (const GenericMeter& meter : description.meters) {
            displays.push_back(std::make_unique<ProbeDisplay>());
            displays.back()->bindMeterRecord(0, meter.id, meter.kind, meter.record);
            addAndMakeVisible(*displays.back());
        }
    }

    juce::Component& component() override { return *this; }

    std::vector<QMWidget*> parameterWidgets() override {
        std::vector<QMWidget*> all;
        for (const auto& control : controls)
            all.push_back(control.get());
        return all;
    }

    std::vector<QMWidget*> displayWidgets() override {
        std::vector<QMWidget*> all;
        for (const auto& display : displays)
            all.push_back(display.get());
        return all;
    }

    void setMagnification(float factor) override { magnification = factor; }

    Area preferredSize() const override { return {0, 0, 400, heightOfRows()}; }

    int heightFor(int width) const override {
        const float height = static_cast<float>(heightOfRows()) * magnification;
        return static_cast<int>(height) * (width < 300 ? 2 : 1);
    }

    void resized() override {
        for (std::size_t i = 0; i < controls.size(); ++i)
            controls[i]->setBounds(0, static_cast<int>(i) * 20, 50, 20);
    }

    GenericEditorDescription description;
    std::vector<std::unique_ptr<ProbeControl>> controls;
    std::vector<std::unique_ptr<ProbeDisplay>> displays;
    float magnification = 1.0F;

private:
    int heightOfRows() const { return 20 * static_cast<int>(controls.size()); }
};

class GenericUI : public EditorTest {
protected:
    QMPlugInGenericUI& openGeneric() {
        ui.emplace(
            instance.get(), &host,
            [this](const GenericEditorDescription& description) {
                auto made = std::make_unique<ProbeContent>(description);
                content = made.get();
                return made;
            },
            sizeKey);
        ui->setupAfterCreation();
        return *ui;
    }

    const GenericParameter& parameter(const char (&id)[5]) {
        return content->description.parameters.at(static_cast<std::size_t>(instance.index(id)));
    }

    ProbeControl& control(const char (&id)[5]) {
        return *content->controls.at(static_cast<std::size_t>(instance.index(id)));
    }

    juce::PropertiesFile& preferences = emptyShellStore();
    std::optional<QMPlugInGenericUI> ui;
    ProbeContent* content = nullptr;
};

TEST_F(GenericUI, describesEveryParameter) {
    instance.set("rlse", 20.0);
    openGeneric();
    ASSERT_EQ(content->description.parameters.size(), 15U);
    EXPECT_EQ(content->description.productName, "QM Brolt");
    const GenericParameter& release = parameter("rlse");
    EXPECT_EQ(release.id, fourCharCode("rlse"));
    EXPECT_EQ(release.name, "Envelope Release");
    EXPECT_EQ(release.unit, "ms");
    EXPECT_EQ(release.group, "");
    EXPECT_EQ(release.minimum, 5.0);
    EXPECT_EQ(release.maximum, 1000.0);
    EXPECT_EQ(release.defaultValue, 140.0);
    EXPECT_EQ(release.value, 20.0);
    EXPECT_EQ(release.taper, NoxTaper::stretchedLogarithmic);
    EXPECT_EQ(release.step, 0.01);
    EXPECT_TRUE(release.valueNames.isEmpty());
    EXPECT_FALSE(release.isBypass);
}

TEST_F(GenericUI, describesSwitchesAndTheBypass) {
    openGeneric();
    EXPECT_EQ(parameter("osc1").valueNames, juce::StringArray("Disabled", "Enabled"));
    EXPECT_EQ(parameter("osc1").taper, NoxTaper::stepped);
    EXPECT_EQ(parameter("mbyp").valueNames, juce::StringArray("Engaged", "Bypass"));
    EXPECT_TRUE(parameter("mbyp").isBypass);
}

TEST_F(GenericUI, describesTheMetersAndRefreshesTheirRecords) {
    openGeneric();
    const std::vector<GenericMeter>& meters = content->description.meters;
    ASSERT_EQ(meters.size(), 3U);
    EXPECT_EQ(meters[1].name, "OutR");
    EXPECT_EQ(meters[1].id, fourCharCode("out2"));
    EXPECT_EQ(meters[1].kind, 1U);
    EXPECT_EQ(meters[2].kind, 6U);
    instance.metered().analysis[9] = 3.0F;
    ui->setClock([] { return 1.0; });
    ui->tick();
    ui->tick();
    EXPECT_EQ(meters[1].record->values[0], 9.0F);
    EXPECT_EQ(content->displays[2]->ticks, 1);
}

TEST_F(GenericUI, connectsTheControlsInBothDirections) {
    openGeneric();
    instance.set("gain", 6.0);
    EXPECT_EQ(control("gain").values[0], 6.0);
    control("gain").beginTouch(0);
    EXPECT_TRUE(instance.isTouched("gain"));
    control("gain").setParameterValue(0, 4.0, true);
    control("gain").endTouch(0);
    EXPECT_EQ(instance.value("gain"), 4.0);
    EXPECT_FALSE(instance.isTouched("gain"));
}

TEST_F(GenericUI, goesToTheControllerWhereThereIsOne) {
    host.controller = &controller;
    openGeneric();
    control("gain").setParameterValue(0, 4.0, true);
    EXPECT_EQ(controller.calls, std::vector<std::string>{"set gain 4"});
}

TEST_F(GenericUI, findsTheParameterUnderAPoint) {
    openGeneric();
    ui->setVisible(true);
    EXPECT_EQ(ui->parameterAt({10, 30}), 1);
    EXPECT_EQ(ui->parameterAt({10, 290}), 14);
    EXPECT_EQ(ui->parameterAt({200, 30}), -1);
}

TEST_F(GenericUI, opensAtTheSizeItsContentLikesAndKeepsNothing) {
    openGeneric();
    EXPECT_EQ(ui->getDesignSize(), Area(0, 0, 400, 300));
    EXPECT_EQ(ui->getLocalBounds(), Area(0, 0, 400, 300));
    EXPECT_EQ(host.areas, std::vector<Area>{Area(0, 0, 400, 300)});
    EXPECT_FALSE(preferences.containsKey(sizeKey));
}

TEST_F(GenericUI, keepsTheSizeThatTheUserChose) {
    openGeneric().setScalePercent(150);
    EXPECT_EQ(preferences.getIntValue(sizeKey), 150);
    EXPECT_EQ(content->magnification, 1.5F);
    EXPECT_EQ(ui->getLocalBounds(), Area(0, 0, 600, 450));
    openGeneric();
    EXPECT_EQ(content->magnification, 1.5F);
    EXPECT_EQ(ui->getScaledSize(), Area(0, 0, 600, 450));
    EXPECT_EQ(host.areas.back(), Area(0, 0, 600, 450));
}

TEST_F(GenericUI, takesNoStoredSizeThatIsNone) {
    preferences.setValue(sizeKey, -20);
    EXPECT_EQ(openGeneric().getMagnification(), 1.0F);
}

TEST_F(GenericUI, cutsAMagnificationToTheScreen) {
    host.available = {0, 0, 800, 1000};
    openGeneric().setMagnification(2.5F);
    EXPECT_EQ(ui->getMagnification(), 2.0F);
}

TEST_F(GenericUI, fillsAnySizeThatItIsGiven) {
    openGeneric().setSize(500, 350);
    EXPECT_EQ(content->getBounds().getWidth(), 500);
    EXPECT_EQ(content->getBounds().getHeight(), 350);
}

TEST_F(GenericUI, scrollsWhereItsContentIsHigher) {
    openGeneric().setSize(400, 200);
    auto& viewport = dynamic_cast<juce::Viewport&>(*ui->getChildComponent(0));
    EXPECT_TRUE(viewport.getVerticalScrollBar().isVisible());
    EXPECT_FALSE(viewport.getHorizontalScrollBar().isVisible());
    EXPECT_EQ(content->getHeight(), 300);
    EXPECT_EQ(content->getWidth(), viewport.getMaximumVisibleWidth());
    ui->setSize(290, 200);
    EXPECT_EQ(content->getHeight(), 600) << "as high as the narrower content needs";
}

TEST_F(GenericUI, goesWhileAControlIsHeldAndWhileTheInstanceIsGone) {
    openGeneric();
    control("gain").beginTouch(0);
    ui.reset();
    EXPECT_FALSE(instance.isTouched("gain"));
    openGeneric();
    instance.remove();
    ui->tick();
    ui.reset();
}

TEST_F(GenericUI, printsALayoutWithoutEntries) {
    EXPECT_EQ(openGeneric().layoutDump(),
              "static const\nZulControlAreaDescriptor = control_areas[] = {\n};\n");
}

} // namespace
