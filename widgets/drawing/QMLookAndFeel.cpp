// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/drawing/QMLookAndFeel.h"

#include "widgets/drawing/TooltipLayout.h"
#include "widgets/drawing/WidgetStyle.h"

namespace {

using juce::Colour;

template <typename Index>
Colour colour(Index index) {
    return WidgetStyle::get().colour(index);
}

TypefaceStyle styleOf(const juce::Font& font) {
    if (font.isBold())
        return TypefaceStyle::bold;
    return font.isItalic() ? TypefaceStyle::italic : TypefaceStyle::plain;
}

constexpr int scrollbarWidth = 12;

} // namespace

QMLookAndFeel::QMLookAndFeel() {
    setMenuColours();
    setTextColours();
    setWindowColours();
}

void QMLookAndFeel::setMenuColours() {
    setColour(juce::PopupMenu::backgroundColourId, colour(WidgetColours::menu));
    setColour(juce::PopupMenu::textColourId, colour(WidgetColours::strongText));
    setColour(juce::PopupMenu::headerTextColourId, colour(WidgetColours::text));
    setColour(juce::PopupMenu::highlightedBackgroundColourId, colour(WidgetColours::highlight));
    setColour(juce::PopupMenu::highlightedTextColourId, colour(WidgetColours::invertedText));
    setColour(juce::ComboBox::backgroundColourId, colour(WidgetColours::depth));
    setColour(juce::ComboBox::buttonColourId, colour(WidgetColours::panel));
    setColour(juce::ComboBox::textColourId, colour(WidgetColours::text));
    setColour(juce::ComboBox::arrowColourId, colour(WidgetColours::text));
    setColour(juce::ComboBox::outlineColourId, colour(WidgetColours::frame));
    setColour(juce::ComboBox::focusedOutlineColourId, colour(WidgetColours::strongText));
}

void QMLookAndFeel::setTextColours() {
    setColour(juce::TextEditor::backgroundColourId, colour(WidgetColours::depth));
    setColour(juce::TextEditor::textColourId, colour(WidgetColours::strongText));
    setColour(juce::TextEditor::highlightColourId, colour(WidgetColours::selection));
    setColour(juce::TextEditor::highlightedTextColourId, colour(WidgetColours::strongText));
    setColour(juce::TextEditor::outlineColourId, colour(WidgetColours::panel));
    setColour(juce::TextEditor::focusedOutlineColourId, colour(WidgetColours::highlight));
    setColour(juce::TextEditor::shadowColourId, juce::Colours::transparentBlack);
    setColour(juce::CaretComponent::caretColourId, colour(WidgetColours::strongText));
    setColour(juce::Label::textColourId, colour(WidgetColours::text));
    setColour(juce::ListBox::backgroundColourId, colour(WidgetColours::depth));
    setColour(juce::ListBox::textColourId, colour(WidgetColours::text));
    setColour(juce::TreeView::selectedItemBackgroundColourId, colour(WidgetColours::selection));
    setColour(juce::TreeView::linesColourId, colour(WidgetColours::frame));
}

void QMLookAndFeel::setWindowColours() {
    setColour(juce::ScrollBar::thumbColourId, colour(WidgetColours::frame));
    setColour(juce::TooltipWindow::backgroundColourId, colour(WidgetColours::depth));
    setColour(juce::TooltipWindow::textColourId, colour(WidgetColours::text));
    setColour(juce::TooltipWindow::outlineColourId, colour(WidgetColours::frame));
    using Lasso = juce::LassoComponent<juce::Component*>;
    setColour(Lasso::lassoFillColourId, colour(WidgetColours::highlight).withAlpha(0.25F));
    setColour(Lasso::lassoOutlineColourId, colour(WidgetColours::text));
    setColour(juce::AlertWindow::backgroundColourId, colour(WidgetColours::panel));
    setColour(juce::AlertWindow::textColourId, colour(WidgetColours::strongText));
    setColour(juce::AlertWindow::outlineColourId, colour(WidgetColours::frame));
    setColour(juce::TextButton::buttonColourId, colour(WidgetColours::raisedPanel));
    setColour(juce::TextButton::buttonOnColourId, colour(WidgetColours::highlight));
    setColour(juce::TextButton::textColourOffId, colour(WidgetColours::strongText));
    setColour(juce::TextButton::textColourOnId, colour(WidgetColours::invertedText));
    setColour(juce::ResizableWindow::backgroundColourId, colour(WidgetColours::panel));
}

juce::Typeface::Ptr QMLookAndFeel::getTypefaceForFont(const juce::Font& font) {
    if (font.getTypefaceName() != juce::Font::getDefaultSansSerifFontName())
        return LookAndFeel_V3::getTypefaceForFont(font);
    return WidgetStyle::get().font(styleOf(font)).getTypefacePtr();
}

void QMLookAndFeel::drawPopupMenuBackground(juce::Graphics& g, int width, int height) {
    g.fillAll(findColour(juce::PopupMenu::backgroundColourId));
    g.setColour(colour(WidgetColours::frame));
    g.drawRect(0, 0, width, height);
}

void QMLookAndFeel::drawPopupMenuItem(juce::Graphics& g, const juce::Rectangle<int>& area,
                                      bool isSeparator, bool isActive, bool isHighlighted,
                                      bool isTicked, bool hasSubMenu, const juce::String& text,
                                      const juce::String& shortcutKeyText,
                                      const juce::Drawable* icon, const juce::Colour* textColour) {
    // The toolkit draws separators for bright menus, and highlights what cannot be chosen.
    if (isSeparator)
        drawSeparator(g, area);
    else
        LookAndFeel_V3::drawPopupMenuItem(g, area, false, isActive, isHighlighted && isActive,
                                          isTicked, hasSubMenu, text, shortcutKeyText, icon,
                                          textColour);
}

void QMLookAndFeel::drawSeparator(juce::Graphics& g, juce::Rectangle<int> area) const {
    g.setColour(findColour(juce::PopupMenu::textColourId).withAlpha(0.3F));
    g.fillRect(area.withSizeKeepingCentre(area.getWidth() - 10, 1));
}

juce::Font QMLookAndFeel::getPopupMenuFont() {
    return WidgetStyle::get().font(TypefaceStyle::plain);
}

void QMLookAndFeel::drawTextEditorOutline(juce::Graphics& g, int width, int height,
                                          juce::TextEditor& editor) {
    if (!editor.isEnabled())
        return;
    const bool isFocused = editor.hasKeyboardFocus(true) && !editor.isReadOnly();
    g.setColour(editor.findColour(isFocused ? juce::TextEditor::focusedOutlineColourId
                                            : juce::TextEditor::outlineColourId));
    g.drawRect(0, 0, width, height);
}

void QMLookAndFeel::drawScrollbar(juce::Graphics& g, juce::ScrollBar& bar, int x, int y, int width,
                                  int height, bool isVertical, int thumbStart, int thumbSize,
                                  bool isMouseOver, bool isMouseDown) {
    const juce::Rectangle<int> slot(x, y, width, height);
    g.setColour(juce::Colours::black.withAlpha(0.2F));
    g.fillRect(slot);
    if (thumbSize <= 0)
        return;
    const juce::Rectangle<float> thumb = (isVertical ? slot.withY(thumbStart).withHeight(thumbSize)
                                                     : slot.withX(thumbStart).withWidth(thumbSize))
                                             .toFloat()
                                             .reduced(2.0F);
    const Colour thumbColour = bar.findColour(juce::ScrollBar::thumbColourId);
    g.setColour(isMouseOver || isMouseDown ? thumbColour.brighter(0.4F) : thumbColour);
    g.fillRoundedRectangle(thumb, juce::jmin(thumb.getWidth(), thumb.getHeight()) / 2.0F);
}

int QMLookAndFeel::getDefaultScrollbarWidth() {
    return scrollbarWidth;
}

void QMLookAndFeel::drawCallOutBoxBackground(juce::CallOutBox& box, juce::Graphics& g,
                                             const juce::Path& path, juce::Image& shadow) {
    if (shadow.isNull()) {
        shadow = juce::Image(juce::Image::ARGB, juce::jmax(1, box.getWidth()),
                             juce::jmax(1, box.getHeight()), true);
        juce::Graphics onto(shadow);
        juce::DropShadow(juce::Colours::black.withAlpha(0.6F), 8, {0, 2}).drawForPath(onto, path);
    }
    g.setColour(juce::Colours::black);
    g.drawImageAt(shadow, 0, 0);
    g.setColour(colour(WidgetColours::menu));
    g.fillPath(path);
    g.setColour(colour(WidgetColours::frame));
    g.strokePath(path, juce::PathStrokeType(1.0F));
}

juce::Rectangle<int> QMLookAndFeel::getTooltipBounds(const juce::String& text,
                                                     juce::Point<int> screenPosition,
                                                     juce::Rectangle<int> parentArea) {
    return TooltipLayout(text, juce::Colours::black, tooltipTextWidth)
        .boundsAt(screenPosition, parentArea);
}

void QMLookAndFeel::drawTooltip(juce::Graphics& g, const juce::String& text, int width,
                                int height) {
    const juce::Rectangle<int> area(width, height);
    g.fillAll(findColour(juce::TooltipWindow::backgroundColourId));
    g.setColour(findColour(juce::TooltipWindow::outlineColourId));
    g.drawRect(area);
    TooltipLayout(text, findColour(juce::TooltipWindow::textColourId), tooltipTextWidth)
        .draw(g, area);
}

juce::Font QMLookAndFeel::getLabelFont(juce::Label& label) {
    // What a label was given is its own; the toolkit's default is not.
    const juce::Font font = label.getFont();
    if (font.getTypefaceName() != juce::Font::getDefaultSansSerifFontName())
        return font;
    return WidgetStyle::get().font(styleOf(font), font.getHeight());
}

juce::Font QMLookAndFeel::getComboBoxFont(juce::ComboBox& box) {
    const float height = static_cast<float>(box.getHeight()) * 0.85F;
    return WidgetStyle::get().font(TypefaceStyle::plain,
                                   juce::jmin(WidgetStyle::fontHeight, height));
}

juce::Font QMLookAndFeel::getTextButtonFont(juce::TextButton&, int buttonHeight) {
    const float height = static_cast<float>(buttonHeight) * 0.6F;
    return WidgetStyle::get().font(TypefaceStyle::plain,
                                   juce::jmin(WidgetStyle::fontHeight, height));
}

juce::Font QMLookAndFeel::getAlertWindowTitleFont() {
    return WidgetStyle::get().font(TypefaceStyle::bold, 16.0F);
}

juce::Font QMLookAndFeel::getAlertWindowMessageFont() {
    return WidgetStyle::get().font(TypefaceStyle::plain);
}

juce::Font QMLookAndFeel::getAlertWindowFont() {
    return WidgetStyle::get().font(TypefaceStyle::plain, 12.0F);
}
