// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/drawing/TooltipLayout.h"

#include "widgets/drawing/WidgetStyle.h"

#include <cmath>

namespace {

constexpr float fontHeight = 13.0F;
constexpr int marginX = 8;
constexpr int marginY = 5;
constexpr int besideMouseX = 24; ///< to the right of the pointer's tip, past the pointer
constexpr int besideMouseY = 6;

/// The word in pieces that fit; the toolkit breaks lines at blanks alone.
juce::StringArray fittingPieces(juce::String word, const juce::Font& font, float width) {
    juce::StringArray pieces;
    while (font.getStringWidthFloat(word) > width && word.length() > 1) {
        int length = 1;
        while (font.getStringWidthFloat(word.substring(0, length + 1)) <= width)
            ++length;
        pieces.add(word.substring(0, length));
        word = word.substring(length);
    }
    pieces.add(word);
    return pieces;
}

juce::String withLongWordsBroken(const juce::String& text, const juce::Font& font, float width) {
    juce::StringArray lines = juce::StringArray::fromLines(text);
    for (juce::String& line : lines) {
        juce::StringArray words = juce::StringArray::fromTokens(line, " ", "");
        for (juce::String& word : words)
            word = fittingPieces(word, font, width).joinIntoString("\n");
        line = words.joinIntoString(" ");
    }
    return lines.joinIntoString("\n");
}

} // namespace

TooltipLayout::TooltipLayout(const juce::String& text, juce::Colour textColour, int maximumWidth) {
    const juce::Font font = WidgetStyle::get().font(TypefaceStyle::plain, fontHeight);
    const auto width = static_cast<float>(maximumWidth);
    juce::AttributedString attributed;
    attributed.append(withLongWordsBroken(text, font, width), font, textColour);
    layout.createLayoutWithBalancedLineLengths(attributed, width);
}

juce::Rectangle<int> TooltipLayout::boundsAt(juce::Point<int> mouse,
                                             juce::Rectangle<int> parentArea) const {
    const bool isLeft = mouse.x > parentArea.getCentreX();
    const bool isAbove = mouse.y > parentArea.getCentreY();
    const int x = isLeft ? mouse.x - width() - besideMouseX / 2 : mouse.x + besideMouseX;
    const int y = isAbove ? mouse.y - height() - besideMouseY : mouse.y + besideMouseY;
    return juce::Rectangle<int>(x, y, width(), height()).constrainedWithin(parentArea);
}

void TooltipLayout::draw(juce::Graphics& g, juce::Rectangle<int> area) const {
    layout.draw(g, area.reduced(marginX, marginY).toFloat());
}

int TooltipLayout::width() const {
    return static_cast<int>(std::ceil(layout.getWidth())) + 2 * marginX;
}

int TooltipLayout::height() const {
    return static_cast<int>(std::ceil(layout.getHeight())) + 2 * marginY;
}
