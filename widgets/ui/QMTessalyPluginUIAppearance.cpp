// SPDX-License-Identifier: GPL-3.0-or-later
// The looks that the user chose: from the preferences to the widgets, and to the other editors.
#include "services/preferences/EditorPreferences.h"
#include "widgets/controls/QMKnobStripWidget.h"
#include "widgets/images/ResourceImages.h"
#include "widgets/statics/QMBevelWidget.h"
#include "widgets/ui/QMTessalyPluginUI.h"
#include "widgets/ui/appearance/AppearanceKeys.h"

#include <unordered_map>

namespace {

/// The editor's own widgets of a class, not those inside other widgets.
template <typename Widget, typename Act>
void forEachWidget(const juce::Component& editor, const Act& act) {
    for (juce::Component* const child : editor.getChildren()) {
        if (auto* const widget = dynamic_cast<Widget*>(child))
            act(*widget);
    }
}

} // namespace

// Opening.

// Where the mode's own key and the item differ the key counts: every change of the mode is kept
// under it.
void QMTessalyPluginUI::applyAppearance() {
    preferences.load();
    if (const std::optional<std::int32_t> kept = preferences.keptBackgroundMode())
        changeBackgroundMode(*kept);
    applyChanged();
    if (getBackgroundMode() == EditorBackground::unset)
        changeBackgroundMode(QM::defaultBackgroundMode);
    if (preferences.isKept())
        storeListener.emplace([this] { followStore(); });
    appearanceChanged();
}

// Changes.

std::vector<QM::PreferenceGroup>& QMTessalyPluginUI::preferenceGroups() {
    return preferences.groups();
}

void QMTessalyPluginUI::itemChanged(QM::PreferenceItem& item) {
    if (preferences.find(item.key()) != &item)
        return;
    preferences.keep(item);
    if (applyChanged())
        appearanceChanged();
}

void QMTessalyPluginUI::resetToDefaults() {
    preferences.resetToDefaults();
    if (applyChanged())
        appearanceChanged();
}

void QMTessalyPluginUI::followStore() {
    preferences.load();
    bool changed = applyChanged();
    if (const std::optional<std::int32_t> kept = preferences.keptBackgroundMode())
        changed = changeBackgroundMode(*kept) || changed;
    if (changed)
        appearanceChanged();
}

void QMTessalyPluginUI::preferenceChanged(const juce::String& key) {
    const QM::PreferenceItem* const item = preferences.find(key.toStdString());
    if (item == nullptr)
        return;
    apply(*item);
    appearanceChanged();
}

bool QMTessalyPluginUI::applyChanged() {
    const std::vector<const QM::PreferenceItem*> changed = preferences.takeChanged();
    for (const QM::PreferenceItem* const item : changed)
        apply(*item);
    return !changed.empty();
}

// What becomes of each item.

QMTessalyPluginUI::Action QMTessalyPluginUI::actionFor(const std::string& key) {
    namespace Keys = AppearanceKeys;
    using UI = QMTessalyPluginUI;
    static const std::unordered_map<std::string, Action, PreferenceKeyHash> actions{
        {Keys::textColour, &UI::applyTextColour},
        {Keys::background, &UI::applyBackground},
        {Keys::baseColour, &UI::applyBaseColour},
        {Keys::topBrightness, &UI::applyTopBrightness},
        {Keys::bottomBrightness, &UI::applyBottomBrightness},
        {Keys::showBevels, &UI::applyBevels},
        {Keys::knobType, &UI::applyKnobType},
        {Keys::showRings, &UI::applyRings},
        {Keys::ringWidth, &UI::applyRingWidth},
    };
    return actions.at(key);
}

void QMTessalyPluginUI::apply(const QM::PreferenceItem& item) {
    (this->*actionFor(item.key()))(item);
}

/// The default is a colour for readouts, whose ground is always dark. Captions stand on the panel,
/// light or dark; they take a colour when the user has chosen one.
void QMTessalyPluginUI::applyTextColour(const QM::PreferenceItem& item) {
    const bool isDefault = item.value() == item.defaultValue();
    setTextColour(juce::Colour(item.colourValue().argb),
                  isDefault ? Captions::legible : Captions::coloured);
}

void QMTessalyPluginUI::applyBackground(const QM::PreferenceItem& item) {
    const std::int32_t mode = item.integerValue();
    if (EditorBackground::isMode(mode))
        changeBackgroundMode(mode);
    else if (getBackgroundMode() != EditorBackground::unset)
        preferences.setBackgroundItem(getBackgroundMode());
}

void QMTessalyPluginUI::applyBaseColour(const QM::PreferenceItem& item) {
    if (background.setBaseColour(juce::Colour(item.colourValue().argb)))
        showBackground();
}

void QMTessalyPluginUI::applyTopBrightness(const QM::PreferenceItem& item) {
    if (background.setTopBrightness(item.floatValue()))
        showBackground();
}

void QMTessalyPluginUI::applyBottomBrightness(const QM::PreferenceItem& item) {
    if (background.setBottomBrightness(item.floatValue()))
        showBackground();
}

void QMTessalyPluginUI::applyBevels(const QM::PreferenceItem& item) {
    const bool shown = item.booleanValue();
    forEachWidget<QMBevelWidget>(*this, [shown](QMBevelWidget& bevel) { bevel.setVisible(shown); });
}

void QMTessalyPluginUI::applyKnobType(const QM::PreferenceItem& item) {
    const std::int32_t type = item.integerValue();
    forEachWidget<QMKnobStripWidget>(*this,
                                     [type](QMKnobStripWidget& knob) { knob.setKnobType(type); });
}

void QMTessalyPluginUI::applyRings(const QM::PreferenceItem& item) {
    const bool shown = item.booleanValue();
    forEachWidget<QMKnobStripWidget>(
        *this, [shown](QMKnobStripWidget& knob) { knob.setShowRings(shown); });
}

void QMTessalyPluginUI::applyRingWidth(const QM::PreferenceItem& item) {
    const double width = AppearanceLimits::limited(item.floatValue(), AppearanceLimits::ringWidth);
    forEachWidget<QMKnobStripWidget>(
        *this, [width](QMKnobStripWidget& knob) { knob.setRingWidth(width); });
}

// The background.

void QMTessalyPluginUI::setBackgroundMode(std::int32_t mode) {
    if (changeBackgroundMode(mode))
        appearanceChanged();
}

bool QMTessalyPluginUI::changeBackgroundMode(std::int32_t mode) {
    const auto load = [this](const juce::String& fileName) { return loadBackground(fileName); };
    if (!background.setMode(mode, load))
        return false;
    showBackground();
    preferences.keepBackgroundMode(mode);
    return true;
}

/// The widgets, too: what is legible on it may be another colour.
void QMTessalyPluginUI::showBackground() {
    setBaseColour(background.getPanelColour());
    repaint();
}

juce::Image QMTessalyPluginUI::loadBackground(const juce::String& fileName) {
    return loadResourceImage(fileName);
}

void QMTessalyPluginUI::paint(juce::Graphics& g) {
    if (background.isDrawn())
        background.draw(g, getLocalBounds());
    else
        QMWidgetPluginUI::paint(g);
}
