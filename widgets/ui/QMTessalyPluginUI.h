// SPDX-License-Identifier: GPL-3.0-or-later
// What the editors of one family of products have in common: a size that is remembered, and, where
// a product's tables have them, a size selector ('smlB') and a help button ('help'); and looks that
// the user chooses, which all open editors of the product follow.
//
// The looks are a group of preferences, kept in the shell store under the product code. Without a
// product code they are the defaults, and kept nowhere. [message thread]
#pragma once

#include "services/preferences/IPreferencesProvider.h"
#include "widgets/ui/QMWidgetPluginUI.h"
#include "widgets/ui/appearance/AppearanceOffers.h"
#include "widgets/ui/appearance/AppearancePreferences.h"
#include "widgets/ui/appearance/EditorBackground.h"
#include "widgets/ui/appearance/ShellStoreListener.h"

#include <optional>

class QMTessalyPluginUI : public QMWidgetPluginUI, public QM::IPreferencesProvider {
public:
    static constexpr FourCharCode sizeSelectorID = fourCharCode("smlB");
    static constexpr FourCharCode helpButtonID = fourCharCode("help");

    /// As for QMWidgetPluginUI.
    QMTessalyPluginUI(INoxPlugIn& plugIn, IQMPlugInUIHost* uiHost, QMWidgetFactory widgetFactory,
                      const Tables& editorTables, const AppearanceOffers& offers = {});

    /// Builds the widgets, then gives the editor the looks and the size that the user chose. Twice
    /// is once.
    void setupAfterCreation() override;

    // QM::IPreferencesProvider.

    [[nodiscard]] std::vector<QM::PreferenceGroup>& preferenceGroups() override;
    void itemChanged(QM::PreferenceItem& item) override;
    void resetToDefaults() override;

    // Looks.

    /// Shows what the item of this key says; nothing for a key that the product does not offer.
    void preferenceChanged(const juce::String& key) override;

    /// EditorBackground::Mode; -1 before the editor was set up.
    [[nodiscard]] std::int32_t getBackgroundMode() const { return background.getMode(); }

    /// Also kept for the next editor. Nothing for the mode that it has, or for a number that is
    /// none.
    void setBackgroundMode(std::int32_t mode);

    [[nodiscard]] const EditorBackground& getBackground() const { return background; }

    void paint(juce::Graphics& g) override;

protected:
    /// The product's own step when its widgets are there, before they are seen.
    virtual void widgetsBuilt() {}

    /// The looks are others than before. Also called when the editor opens, with its widgets built.
    virtual void appearanceChanged() {}

    /// A picture of brushed metal by its file's name; null where there is none.
    [[nodiscard]] virtual juce::Image loadBackground(const juce::String& fileName);

    [[nodiscard]] juce::Image backgroundImage() override { return background.getImage(); }

    [[nodiscard]] juce::String backgroundName() const override { return background.getImageName(); }

private:
    using Action = void (QMTessalyPluginUI::*)(const QM::PreferenceItem&);

    void setUpSizeSelector(QMWidget& selector, std::int32_t stored);
    void setUpHelpButton(QMWidget& button);

    void applyAppearance();
    void followStore();
    bool applyChanged();
    void apply(const QM::PreferenceItem& item);
    [[nodiscard]] static Action actionFor(const std::string& key);
    void applyBackground(const QM::PreferenceItem& item);
    void applyTextColour(const QM::PreferenceItem& item);
    void applyBaseColour(const QM::PreferenceItem& item);
    void applyTopBrightness(const QM::PreferenceItem& item);
    void applyBottomBrightness(const QM::PreferenceItem& item);
    void applyBevels(const QM::PreferenceItem& item);
    void applyKnobType(const QM::PreferenceItem& item);
    void applyRings(const QM::PreferenceItem& item);
    void applyRingWidth(const QM::PreferenceItem& item);

    bool changeBackgroundMode(std::int32_t mode);
    void showBackground();

    AppearancePreferences preferences;
    EditorBackground background;
    std::optional<ShellStoreListener> storeListener; ///< while it is open
};
