// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/editor/tests/support/DrawnText.h"

#include <algorithm>
#include <cmath>

namespace {

/// A renderer that takes notes.
class GlyphRecorder final : public juce::LowLevelGraphicsSoftwareRenderer {
public:
    using LowLevelGraphicsSoftwareRenderer::LowLevelGraphicsSoftwareRenderer;

    void drawGlyph(int number, const juce::AffineTransform& place) override {
        if (stack->clip != nullptr)
            note(number, stack->transform.getTransformWith(place));
        LowLevelGraphicsSoftwareRenderer::drawGlyph(number, place);
    }

    std::vector<DrawnGlyph> glyphs;

private:
    void note(int number, const juce::AffineTransform& place) {
        const juce::Font& font = getFont();
        juce::Path outline;
        font.getTypefacePtr()->getOutlineForGlyph(number, outline);
        if (outline.isEmpty())
            return;
        const auto size = juce::AffineTransform::scale(font.getHeight() * font.getHorizontalScale(),
                                                       font.getHeight());
        DrawnGlyph& glyph = glyphs.emplace_back();
        glyph.number = number;
        glyph.font = font;
        glyph.ink = outline.getBoundsTransformed(size.followedBy(place));
        glyph.clip = stack->clip->getClipBounds();
        glyph.baseline = juce::Point<float>().transformedBy(place);
    }
};

std::vector<int> visibleGlyphs(const juce::Font& font, const juce::String& text) {
    juce::Array<int> numbers;
    juce::Array<float> offsets;
    font.getGlyphPositions(text.removeCharacters(" "), numbers, offsets);
    return {numbers.begin(), numbers.end()};
}

std::string rounded(float number) {
    return juce::String(number, 2).toStdString();
}

/// How far ink reaches beyond a rectangle.
float excess(juce::Rectangle<float> ink, juce::Rectangle<float> room) {
    return std::max({room.getX() - ink.getX(), room.getY() - ink.getY(),
                     ink.getRight() - room.getRight(), ink.getBottom() - room.getBottom()});
}

bool isOneLine(const std::vector<DrawnGlyph>& glyphs) {
    const auto same = [&](auto coordinate) {
        return std::all_of(glyphs.begin(), glyphs.end(), [&](const DrawnGlyph& glyph) {
            return std::abs(coordinate(glyph) - coordinate(glyphs.front())) < 0.01F;
        });
    };
    return same([](const DrawnGlyph& glyph) { return glyph.baseline.y; }) ||
           same([](const DrawnGlyph& glyph) { return glyph.baseline.x; });
}

} // namespace

std::vector<DrawnGlyph> glyphsDrawnBy(juce::Component& component) {
    if (component.getLocalBounds().isEmpty())
        return {};
    const juce::Image image(juce::Image::ARGB, component.getWidth(), component.getHeight(), true);
    GlyphRecorder recorder(image);
    juce::Graphics graphics(recorder);
    component.paintEntireComponent(graphics, true);
    return recorder.glyphs;
}

juce::Rectangle<float> inkOf(const std::vector<DrawnGlyph>& glyphs) {
    juce::Rectangle<float> all;
    for (const DrawnGlyph& glyph : glyphs)
        all = all.isEmpty() ? glyph.ink : all.getUnion(glyph.ink);
    return all;
}

std::string flawsOf(const std::vector<DrawnGlyph>& glyphs, const juce::String& text,
                    juce::Rectangle<int> bounds) {
    // A pixel at the edge of a letter is half covered; less of it than that is not missed.
    constexpr float tolerance = 0.5F;
    if (glyphs.empty())
        return "nothing drawn";
    std::string flaws;
    std::vector<int> numbers;
    for (const DrawnGlyph& glyph : glyphs)
        numbers.push_back(glyph.number);
    if (numbers != visibleGlyphs(glyphs.front().font, text))
        flaws += "not all of its letters; ";
    const float squeeze = glyphs.front().font.getHorizontalScale();
    if (squeeze != 1.0F)
        flaws += "squeezed to " + rounded(squeeze) + "; ";
    if (!isOneLine(glyphs))
        flaws += "more than one line; ";
    juce::Rectangle<int> room = bounds;
    for (const DrawnGlyph& glyph : glyphs)
        room = room.getIntersection(glyph.clip);
    const float cut = excess(inkOf(glyphs), room.toFloat());
    if (cut > tolerance)
        flaws += "cut by " + rounded(cut) + " pixels; ";
    return flaws;
}
