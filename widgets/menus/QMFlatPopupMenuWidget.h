// SPDX-License-Identifier: GPL-3.0-or-later
// A flat menu: the present item as text, with an arrow where there is something to choose; a click
// opens the menu. [message thread]
#pragma once

#include "widgets/buttons/QMTrackedMultistateButtonWidget.h"
#include "widgets/menus/FlatMenuLayout.h"

#include <optional>

class QMFlatPopupMenuWidget : public QMTrackedMultistateButtonWidget {
public:
    QMFlatPopupMenuWidget() = default;

    void setOptions(const FlatMenuOptions& newOptions);

    [[nodiscard]] const FlatMenuOptions& getOptions() const { return options; }

    /// Without one the text is drawn in what is legible on the panel.
    void setOwnColour(std::optional<juce::Colour> colour);
    /// Without one it is the library's, as high as the widget allows.
    void setOwnFont(std::optional<juce::Font> font);

    [[nodiscard]] bool isArrowActive() const;

    /// Where things are now.
    [[nodiscard]] FlatMenuLayout currentLayout() const;

    void openMenu();

    void paint(juce::Graphics& g) override;
    void mouseDown(const juce::MouseEvent& event) override;
    /// Opens the menu.
    bool activate() override;

    [[nodiscard]] int getIdealWidth() const override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

protected:
    [[nodiscard]] juce::AccessibilityRole accessibleRole() const override;
    [[nodiscard]] juce::Font textFont() const override;

    /// Of the menu.
    [[nodiscard]] virtual int menuColumns() const;

private:
    [[nodiscard]] juce::Colour textColour() const;
    [[nodiscard]] float shownTextWidth() const;
    void choose(int item);

    FlatMenuOptions options;
    std::optional<juce::Colour> ownColour;
    std::optional<juce::Font> ownFont;
};
