// SPDX-License-Identifier: GPL-3.0-or-later
// Editors with widgets of the library, side by side and sharing a shell store.
#pragma once

#include "widgets/buttons/ButtonWidgetTypes.h"
#include "widgets/controls/ControlWidgetTypes.h"
#include "widgets/controls/QMKnobStripWidget.h"
#include "widgets/controls/QMParameterReadoutWidget.h"
#include "widgets/statics/QMBevelWidget.h"
#include "widgets/statics/QMLabelWidget.h"
#include "widgets/statics/StaticWidgetTypes.h"
#include "widgets/ui/tests/support/TableEditor.h"

#include <map>
#include <memory>

class AppearanceEditor final : public QMTessalyPluginUI {
public:
    static constexpr const char* productCode = "QMTST";

    AppearanceEditor(INoxPlugIn& plugIn, IQMPlugInUIHost* uiHost, const Tables& editorTables,
                     const AppearanceOffers& offers, const char* code = productCode)
        : QMTessalyPluginUI(plugIn, uiHost, library(), editorTables, offers) {
        setProductCode(code);
        setInitialMagnification(1.0F);
        inside.addAndMakeVisible(innerKnob);
        inside.addAndMakeVisible(innerBevel);
    }

    ~AppearanceEditor() override { disconnect(); }

    int looksChanged = 0;
    juce::StringArray loaded; ///< names of backgrounds
    std::map<juce::String, juce::Image> backgrounds;
    /// What the product itself does to its widgets when they are there.
    std::function<void(AppearanceEditor&)> atFirst;

    // One level further down: no business of the editor's.
    juce::Component inside;
    QMKnobStripWidget innerKnob;
    QMBevelWidget innerBevel;

    template <typename Widget>
    [[nodiscard]] Widget& widget(const char (&id)[5]) const {
        return dynamic_cast<Widget&>(*widgetOfID(fourCharCode(id)));
    }

    [[nodiscard]] QMKnobStripWidget& knob() const { return widget<QMKnobStripWidget>("gain"); }

    [[nodiscard]] QMBevelWidget& bevel() const { return widget<QMBevelWidget>("bkgd"); }

    [[nodiscard]] QMLabelWidget& label() const { return widget<QMLabelWidget>("osl1"); }

    [[nodiscard]] QMParameterReadoutWidget& readout() const {
        return dynamic_cast<QMParameterReadoutWidget&>(
            *widgetOfID(readoutID(fourCharCode("gain"))));
    }

    [[nodiscard]] QM::PreferenceItem& item(const char* key) {
        return *preferenceGroups().front().find(key);
    }

    /// As the preferences panel.
    void choose(const char* key, const QM::PreferenceValue& value) {
        QM::PreferenceItem& chosen = item(key);
        EXPECT_TRUE(chosen.setValue(value)) << key;
        itemChanged(chosen);
    }

protected:
    void widgetsBuilt() override {
        addAndMakeVisible(inside);
        if (atFirst)
            atFirst(*this);
    }

    void appearanceChanged() override { ++looksChanged; }

    juce::Image loadBackground(const juce::String& fileName) override {
        loaded.add(fileName);
        return backgrounds[fileName];
    }

private:
    static QMWidgetFactory library() {
        QMWidgetFactory made;
        addStaticWidgetTypes(made);
        addControlWidgetTypes(made);
        addButtonWidgetTypes(made);
        return made;
    }
};

/// A bevel of 200 x 100 units, on it a knob with its readout, a label and a toggle. The shell store
/// is empty at first.
class AppearanceTest : public EditorTest {
protected:
    AppearanceTest() {
        describe("bkgd", 12, {});
        place("bkgd", {0, 0, 200, 100});
        describe("gain", 31, {fourCharCode("gain")});
        place("gain", {10, 30, 50, 60});
        describe("afre", 31, {fourCharCode("afre")});
        place("afre", {70, 30, 50, 60});
        describe("osl1", 6, {}, "Osc 1");
        place("osl1", {130, 10, 60, 20});
        describe("osc1", 2, {fourCharCode("osc1")}, "Ena");
        place("osc1", {130, 40, 40, 40});
    }

    [[nodiscard]] static AppearanceOffers rings() { return {.offerRingOptions = true}; }

    [[nodiscard]] static AppearanceOffers everything() {
        return {.offerRingOptions = true, .offerKnobType = true};
    }

    AppearanceEditor& make(const AppearanceOffers& offers,
                           const char* code = AppearanceEditor::productCode) {
        return *editors.emplace_back(std::make_unique<AppearanceEditor>(
            instance.get(), &host, QMWidgetPluginUI::Tables{areas, descriptors, help}, offers,
            code));
    }

    AppearanceEditor& openEditor(const AppearanceOffers& offers) {
        AppearanceEditor& made = make(offers);
        made.setupAfterCreation();
        return made;
    }

    AppearanceEditor& openEditor() { return openEditor(rings()); }

    /// In the shell store, under the product code.
    void store(const char* key, const juce::var& value) {
        preferences.setValue("QMTST_" + juce::String(key), value);
    }

    [[nodiscard]] juce::String stored(const char* key) const {
        return preferences.getValue("QMTST_" + juce::String(key), "nothing");
    }

    static juce::Image pictureOf(juce::Component& component) {
        const juce::Image picture(juce::Image::RGB, component.getWidth(), component.getHeight(),
                                  true, juce::SoftwareImageType());
        juce::Graphics g(picture);
        component.paintEntireComponent(g, true);
        return picture;
    }

    /// The editor's background, without what stands on it.
    static juce::Image backgroundOf(AppearanceEditor& ui) {
        const juce::Image picture(juce::Image::RGB, ui.getWidth(), ui.getHeight(), true,
                                  juce::SoftwareImageType());
        juce::Graphics g(picture);
        ui.paint(g);
        return picture;
    }

    static juce::Colour topOf(const juce::Image& picture) { return picture.getPixelAt(7, 0); }

    static juce::Colour bottomOf(const juce::Image& picture) {
        return picture.getPixelAt(7, picture.getHeight() - 1);
    }

    juce::PropertiesFile& preferences = emptyShellStore();
    std::vector<std::unique_ptr<AppearanceEditor>> editors;
};
