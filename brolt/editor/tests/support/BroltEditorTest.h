// SPDX-License-Identifier: GPL-3.0-or-later
// The product's editor as its users have it: on an instance, with its pictures and typefaces. There
// is no screen and no network.
#pragma once

#include "brolt/editor/QMBroltUI.h"
#include "brolt/editor/tests/support/BundledFiles.h"
#include "brolt/editor/tests/support/DisplayTime.h"
#include "brolt/editor/tests/support/ProductInstance.h"
#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/base/QMWidget.h"
#include "widgets/controls/QMParameterReadoutWidget.h"
#include "widgets/images/ResourceFolder.h"
#include "widgets/ui/tests/support/PreferencesFolder.h"
#include "widgets/ui/tests/support/ProbeHost.h"
#include "widgets/update/UpdateChecks.h"

#include <optional>
#include <string>
#include <vector>

constexpr std::int32_t mono = 1;
constexpr std::int32_t stereo = 2;

class BroltEditorTest : public ToolkitTest {
protected:
    BroltEditorTest() {
        setResourceFolder(bundledFiles());
        UpdateChecks::setFetch([](const QM::UpdateParameters&, const std::stop_token&) {
            return std::optional<std::string>();
        });
    }

    ~BroltEditorTest() override {
        close();
        setResourceFolder({});
        UpdateChecks::setFetch(nullptr);
    }

    /// As on a screen without an end.
    QMBroltUI& open(std::int32_t channels = stereo) {
        close();
        instance.emplace(channels);
        editor.emplace(instance->get(), &host);
        editor->setClock([] { return static_cast<double>(displayTime()) * 0.001; });
        editor->setupAfterCreation();
        return *editor;
    }

    QMBroltUI& openAt(std::int32_t percent, std::int32_t channels = stereo) {
        open(channels).setScalePercent(percent);
        return *editor;
    }

    void close() {
        editor.reset();
        instance.reset();
    }

    /// 40 to 250.
    [[nodiscard]] static std::vector<std::int32_t> steps() {
        std::vector<std::int32_t> percents;
        for (std::int32_t percent = 40; percent <= 250; percent += 10)
            percents.push_back(percent);
        return percents;
    }

    template <typename Widget = QMWidget>
    [[nodiscard]] Widget& widget(FourCharCode id) const {
        return dynamic_cast<Widget&>(*editor->widgetOfID(id));
    }

    template <typename Widget = QMWidget>
    [[nodiscard]] Widget& widget(const std::string& id) const {
        return widget<Widget>(codeOf(id));
    }

    [[nodiscard]] QMParameterReadoutWidget& readoutOf(const std::string& id) const {
        return widget<QMParameterReadoutWidget>(QMBroltUI::readoutID(codeOf(id)));
    }

    /// Those of the editor, in the order of their making.
    [[nodiscard]] std::vector<QMWidget*> widgets() const {
        std::vector<QMWidget*> all;
        for (juce::Component* const child : editor->getChildren()) {
            if (auto* const made = dynamic_cast<QMWidget*>(child))
                all.push_back(made);
        }
        return all;
    }

    [[nodiscard]] static FourCharCode codeOf(const std::string& id) {
        FourCharCode code = 0;
        for (const char character : id)
            code = code << 8 | static_cast<std::uint8_t>(character);
        return code;
    }

    void tickAfter(std::int64_t milliseconds) {
        displayTime() += milliseconds;
        editor->tick();
    }

    /// The displays follow an editor's second tick and those after it.
    void beginTicking() {
        tickAfter(30);
        tickAfter(30);
    }

    /// What the whole editor shows.
    [[nodiscard]] juce::Image picture() {
        return editor->createComponentSnapshot(editor->getLocalBounds());
    }

    [[nodiscard]] static juce::Image pictureOf(juce::Component& component) {
        return component.createComponentSnapshot(component.getLocalBounds());
    }

    juce::PropertiesFile& preferences = emptyShellStore();
    ProbeHost host;
    std::optional<ProductInstance> instance;
    std::optional<QMBroltUI> editor;
};
