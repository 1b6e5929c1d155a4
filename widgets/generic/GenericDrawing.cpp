// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/generic/GenericDrawing.h"

#include "widgets/base/QMParentColorSource.h"

namespace {

struct TwoLines {
    juce::String first;
    juce::String second;
    float width = 0.0f; ///< of the longer one
};

/// Broken at the blank that leaves the shorter lines; all in the first where there is none.
TwoLines broken(const juce::String& text, const juce::Font& font) {
    TwoLines best{text, {}, font.getStringWidthFloat(text)};
    for (int blank = text.indexOfChar(' '); blank >= 0; blank = text.indexOfChar(blank + 1, ' ')) {
        const juce::String first = text.substring(0, blank);
        const juce::String second = text.substring(blank + 1);
        const float width =
            juce::jmax(font.getStringWidthFloat(first), font.getStringWidthFloat(second));
        if (width < best.width)
            best = {first, second, width};
    }
    return best;
}

void addCentredLine(juce::GlyphArrangement& glyphs, const juce::String& line,
                    const juce::Font& font, juce::Rectangle<float> area) {
    glyphs.addLineOfText(font, line, area.getCentreX() - font.getStringWidthFloat(line) / 2.0f,
                         area.getY() + font.getAscent());
}

} // namespace

namespace GenericDrawing {

const QMColorSource& coloursOf(const juce::Component& component) {
    static const QMParentColorSource otherwise;
    const auto* const source = component.findParentComponentOfClass<QMColorSource>();
    return source != nullptr ? *source : otherwise;
}

void drawPlate(juce::Graphics& g, juce::Rectangle<float> area, float magnification) {
    const float corner = 6.0f * magnification;
    const juce::Rectangle<float> plate = area.reduced(0.5f);
    g.setGradientFill(
        juce::ColourGradient::vertical(juce::Colours::black.withAlpha(0.26f), plate.getY(),
                                       juce::Colours::black.withAlpha(0.14f), plate.getBottom()));
    g.fillRoundedRectangle(plate, corner);
    g.setColour(juce::Colours::black.withAlpha(0.35f));
    g.drawRoundedRectangle(plate, corner, 1.0f);
    // Light from above catches the lower edge.
    g.setColour(juce::Colours::white.withAlpha(0.10f));
    g.fillRect(juce::Rectangle<float>(plate.getX() + corner, plate.getBottom() - 0.5f,
                                      plate.getWidth() - 2.0f * corner, 1.0f));
}

juce::GlyphArrangement fittedText(const juce::String& text, const juce::Font& font,
                                  juce::Rectangle<float> area, int lines) {
    constexpr float leastTextScale = 0.75f;
    juce::GlyphArrangement glyphs;
    const float lineHeight = font.getHeight();
    // The toolkit would rather squeeze a text than break it.
    const bool mayBreak = lines > 1 && font.getStringWidthFloat(text) > area.getWidth() &&
                          2.0f * lineHeight <= area.getHeight();
    if (const TwoLines two = broken(text, font); mayBreak && two.width <= area.getWidth()) {
        const juce::Rectangle<float> room =
            area.withSizeKeepingCentre(area.getWidth(), 2.0f * lineHeight);
        addCentredLine(glyphs, two.first, font, room);
        addCentredLine(glyphs, two.second, font, room.withTrimmedTop(lineHeight));
        return glyphs;
    }
    glyphs.addFittedText(font, text, area.getX(), area.getY(), area.getWidth(), area.getHeight(),
                         juce::Justification::centred, lines, leastTextScale);
    return glyphs;
}

} // namespace GenericDrawing
