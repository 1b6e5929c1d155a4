// SPDX-License-Identifier: GPL-3.0-or-later
// How the toolkit's own parts look in an editor: menus, text fields, scroll bars, call-outs and
// tooltips in the palette and the fonts of WidgetStyle. [message thread]
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

class QMLookAndFeel : public juce::LookAndFeel_V3 {
public:
    /// The width that tooltips wrap at, in pixels; margins come on top.
    static constexpr int tooltipTextWidth = 400;

    QMLookAndFeel();

    /// The toolkit's placeholder for a sans serif stands for the library's typeface.
    juce::Typeface::Ptr getTypefaceForFont(const juce::Font& font) override;

    void drawPopupMenuBackground(juce::Graphics& g, int width, int height) override;
    void drawPopupMenuItem(juce::Graphics& g, const juce::Rectangle<int>& area, bool isSeparator,
                           bool isActive, bool isHighlighted, bool isTicked, bool hasSubMenu,
                           const juce::String& text, const juce::String& shortcutKeyText,
                           const juce::Drawable* icon, const juce::Colour* textColour) override;
    juce::Font getPopupMenuFont() override;

    void drawTextEditorOutline(juce::Graphics& g, int width, int height,
                               juce::TextEditor& editor) override;

    void drawScrollbar(juce::Graphics& g, juce::ScrollBar& bar, int x, int y, int width, int height,
                       bool isVertical, int thumbStart, int thumbSize, bool isMouseOver,
                       bool isMouseDown) override;
    int getDefaultScrollbarWidth() override;

    void drawCallOutBoxBackground(juce::CallOutBox& box, juce::Graphics& g, const juce::Path& path,
                                  juce::Image& shadow) override;

    juce::Rectangle<int> getTooltipBounds(const juce::String& text, juce::Point<int> screenPosition,
                                          juce::Rectangle<int> parentArea) override;
    void drawTooltip(juce::Graphics& g, const juce::String& text, int width, int height) override;

    juce::Font getLabelFont(juce::Label& label) override;
    juce::Font getComboBoxFont(juce::ComboBox& box) override;
    juce::Font getTextButtonFont(juce::TextButton& button, int buttonHeight) override;
    juce::Font getAlertWindowTitleFont() override;
    juce::Font getAlertWindowMessageFont() override;
    juce::Font getAlertWindowFont() override;

private:
    void setMenuColours();
    void setTextColours();
    void setWindowColours();
    void drawSeparator(juce::Graphics& g, juce::Rectangle<int> area) const;
};
