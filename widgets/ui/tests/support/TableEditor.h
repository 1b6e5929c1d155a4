// SPDX-License-Identifier: GPL-3.0-or-later
// A product's editor as tests need one: tables given to it, everything to be seen.
#pragma once

#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/ui/QMTessalyPluginUI.h"
#include "widgets/ui/tests/support/BroltInstance.h"
#include "widgets/ui/tests/support/PreferencesFolder.h"
#include "widgets/ui/tests/support/ProbeHost.h"
#include "widgets/ui/tests/support/ProbeWidgets.h"

#include <list>
#include <optional>
#include <string>
#include <vector>

class TableEditor final : public QMTessalyPluginUI {
public:
    TableEditor(INoxPlugIn& plugIn, IQMPlugInUIHost* uiHost, const Tables& editorTables)
        : QMTessalyPluginUI(plugIn, uiHost, ProbeTypes::factory(), editorTables) {
        setInitialMagnification(1.0F);
    }

    using QMPlugInUI::setInitialMagnification;
    using QMPlugInUI::setSizeKey;
    using QMWidgetPluginUI::buildWidgets;
    using QMWidgetPluginUI::placeWidget;
    using QMWidgetPluginUI::setHeaderHeight;
    using QMWidgetPluginUI::setReadoutHeight;

    template <typename Widget>
    [[nodiscard]] Widget& widget(const char (&id)[5]) const {
        return dynamic_cast<Widget&>(*widgetOfID(fourCharCode(id)));
    }

    [[nodiscard]] ProbeControl& control(const char (&id)[5]) const {
        return widget<ProbeControl>(id);
    }

    std::optional<double> onlyAccepted; ///< what every value becomes
    bool refuses = false;
    std::vector<std::pair<std::int32_t, double>> writtenByUI;
    bool wasWriting = false;
    QMGenericParameterTarget* generic = nullptr;
    juce::Image background;

protected:
    std::optional<double> acceptedValue(std::int32_t index, double value) override {
        if (refuses)
            return {};
        return onlyAccepted ? onlyAccepted : QMTessalyPluginUI::acceptedValue(index, value);
    }

    void parameterChangedFromUI(std::int32_t index, double value) override {
        writtenByUI.emplace_back(index, value);
        wasWriting = isWritingFromUI();
    }

    QMGenericParameterTarget* genericTarget(std::int32_t) override { return generic; }

    juce::Image backgroundImage() override { return background; }

    juce::String backgroundName() const override { return "TestBackground"; }
};

/// An instance, a host around the editor, and tables to be filled before open.
class EditorTest : public ToolkitTest {
protected:
    /// Shows one parameter; several calls make several widgets.
    void describe(const char (&id)[5], std::uint32_t type, std::vector<FourCharCode> parameters,
                  const char* label = "Label", std::vector<FourCharCode> displays = {}) {
        lists.push_back(std::move(parameters));
        const std::vector<FourCharCode>& parameterIDs = lists.back();
        lists.push_back(std::move(displays));
        QMWidgetDescriptor descriptor;
        descriptor.widgetID = fourCharCode(id);
        descriptor.widgetType = type;
        descriptor.label = label;
        descriptor.parameterIDs = parameterIDs;
        descriptor.displayIDs = lists.back();
        descriptors.push_back(descriptor);
    }

    void place(const char (&id)[5], juce::Rectangle<int> area) {
        areas.push_back(
            {fourCharCode(id), area.getY(), area.getX(), area.getWidth(), area.getHeight()});
    }

    /// A control of one parameter under the parameter's name.
    void addControl(const char (&id)[5], juce::Rectangle<int> area,
                    std::uint32_t type = ProbeTypes::toggle) {
        describe(id, type, {fourCharCode(id)});
        place(id, area);
    }

    /// A button with states and without a parameter.
    void addButton(const char (&id)[5]) {
        describe(id, ProbeTypes::states, {});
        place(id, {500, 500, 20, 20});
    }

    /// The editor before its widgets are built.
    TableEditor& create() {
        editor.emplace(instance.get(), &host, QMWidgetPluginUI::Tables{areas, descriptors, help});
        return *editor;
    }

    TableEditor& open() {
        create().setupAfterCreation();
        return *editor;
    }

    BroltInstance instance;
    ProbeHost host;
    ProbeController controller;
    std::list<std::vector<FourCharCode>> lists;
    std::vector<QMWidgetDescriptor> descriptors;
    std::vector<ZulControlAreaDescriptor> areas;
    std::vector<QMWidgetHelpEntry> help;
    std::optional<TableEditor> editor;
};
