// SPDX-License-Identifier: GPL-3.0-or-later
// The toolkit's own parts as the look and feel draws them: legible, in the palette.

#include "widgets/drawing/QMLookAndFeel.h"

#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/drawing/WidgetStyle.h"
#include "widgets/drawing/tests/Rendering.h"

#include <algorithm>
#include <array>
#include <memory>

namespace {

const juce::String sentence =
    "The quick brown fox jumps over the lazy dog, and because one line is not enough for it, it "
    "goes on with that until the text is long enough for three or four of them. ";

class LooksAndFeels : public ToolkitTest {
protected:
    [[nodiscard]] double contrastOf(int textId, int backgroundId) const {
        return contrast(look->findColour(textId), look->findColour(backgroundId));
    }

    ~LooksAndFeels() override { look.reset(); }

    std::unique_ptr<QMLookAndFeel> look = std::make_unique<QMLookAndFeel>();
};

TEST(Contrast, isThatOfTheDefinition) {
    EXPECT_NEAR(contrast(juce::Colours::white, juce::Colours::black), 21.0, 0.01);
    EXPECT_NEAR(contrast(juce::Colour(0xff777777), juce::Colours::white), 4.48, 0.01);
}

TEST_F(LooksAndFeels, areLegible) {
    const std::array<std::array<int, 2>, 9> pairs = {{
        {juce::TooltipWindow::textColourId, juce::TooltipWindow::backgroundColourId},
        {juce::PopupMenu::textColourId, juce::PopupMenu::backgroundColourId},
        {juce::PopupMenu::headerTextColourId, juce::PopupMenu::backgroundColourId},
        {juce::PopupMenu::highlightedTextColourId, juce::PopupMenu::highlightedBackgroundColourId},
        {juce::TextEditor::textColourId, juce::TextEditor::backgroundColourId},
        {juce::ComboBox::textColourId, juce::ComboBox::backgroundColourId},
        {juce::AlertWindow::textColourId, juce::AlertWindow::backgroundColourId},
        {juce::TextButton::textColourOffId, juce::TextButton::buttonColourId},
        {juce::TextButton::textColourOnId, juce::TextButton::buttonOnColourId},
    }};
    for (const auto& [text, background] : pairs) {
        EXPECT_GE(contrastOf(text, background), 4.5) << text << " on " << background;
        EXPECT_TRUE(look->findColour(background).isOpaque()) << background;
    }
}

TEST_F(LooksAndFeels, keepSelectedTextLegible) {
    const juce::Colour behind =
        look->findColour(juce::TextEditor::backgroundColourId)
            .overlaidWith(look->findColour(juce::TextEditor::highlightColourId));
    EXPECT_GE(contrast(look->findColour(juce::TextEditor::highlightedTextColourId), behind), 4.5);
}

TEST_F(LooksAndFeels, wrapTooltips) {
    const juce::Rectangle<int> screen(1920, 1080);
    const juce::Rectangle<int> bounds =
        look->getTooltipBounds(sentence + sentence, {100, 100}, screen);
    EXPECT_LE(bounds.getWidth(), 400 + 2 * 8);
    EXPECT_GT(bounds.getWidth(), 250);
    EXPECT_GT(bounds.getHeight(), 40);
    EXPECT_TRUE(screen.contains(bounds));
    EXPECT_LT(look->getTooltipBounds("Short", {100, 100}, screen).getWidth(), 100);
}

TEST_F(LooksAndFeels, breakWhatHasNoBlankInTooltips) {
    const juce::String path = juce::String::repeatedString("/a-folder-with-a-long-name", 8);
    const juce::Rectangle<int> bounds = look->getTooltipBounds(path, {100, 100}, {1920, 1080});
    EXPECT_LE(bounds.getWidth(), 400 + 2 * 8);
    EXPECT_GT(bounds.getHeight(), 40);
}

TEST_F(LooksAndFeels, keepTooltipsOnTheScreen) {
    const juce::Rectangle<int> screen(0, 0, 800, 600);
    for (const juce::Point<int> mouse : {juce::Point(0, 0), {799, 0}, {0, 599}, {799, 599}}) {
        const juce::Rectangle<int> bounds = look->getTooltipBounds(sentence, mouse, screen);
        EXPECT_TRUE(screen.contains(bounds)) << mouse.toString();
        EXPECT_FALSE(bounds.contains(mouse)) << mouse.toString();
    }
}

TEST_F(LooksAndFeels, drawTooltipsWithTextOnTheirBackground) {
    const juce::Rectangle<int> bounds = look->getTooltipBounds(sentence, {100, 100}, {1920, 1080});
    const int width = bounds.getWidth();
    const int height = bounds.getHeight();
    const juce::Image image = rendered(width, height, juce::Colours::red, [&](juce::Graphics& g) {
        look->drawTooltip(g, sentence, width, height);
    });
    const juce::Colour background = look->findColour(juce::TooltipWindow::backgroundColourId);
    EXPECT_EQ(image.getPixelAt(3, 2), background);
    double best = 0.0;
    for (int y = 5; y < height - 5; ++y)
        for (int x = 8; x < width - 8; ++x)
            best = std::max(best, contrast(image.getPixelAt(x, y), background));
    EXPECT_GE(best, 4.5);
}

TEST_F(LooksAndFeels, useTheLibrarysFonts) {
    const juce::Typeface::Ptr plain =
        WidgetStyle::get().font(TypefaceStyle::plain).getTypefacePtr();
    const juce::Typeface::Ptr bold = WidgetStyle::get().font(TypefaceStyle::bold).getTypefacePtr();
    EXPECT_EQ(look->getPopupMenuFont().getTypefacePtr(), plain);
    EXPECT_FLOAT_EQ(look->getPopupMenuFont().getHeight(), 14.0F);
    EXPECT_EQ(look->getTypefaceForFont(juce::Font(20.0F)), plain);
    EXPECT_EQ(look->getTypefaceForFont(juce::Font(20.0F, juce::Font::bold)), bold);
}

TEST_F(LooksAndFeels, drawMenusInThePalette) {
    const juce::Image image = rendered(120, 60, juce::Colours::red, [this](juce::Graphics& g) {
        look->drawPopupMenuBackground(g, 120, 60);
        look->drawPopupMenuItem(g, {1, 2, 118, 20}, false, true, true, false, false, "Item", {},
                                nullptr, nullptr);
        look->drawPopupMenuItem(g, {1, 22, 118, 20}, false, false, true, false, false, "Item", {},
                                nullptr, nullptr);
        look->drawPopupMenuItem(g, {1, 42, 118, 10}, true, true, false, false, false, {}, {},
                                nullptr, nullptr);
    });
    EXPECT_EQ(image.getPixelAt(0, 30), juce::Colour(121, 135, 144));
    EXPECT_EQ(image.getPixelAt(115, 12), juce::Colour(121, 135, 144));
    // What cannot be chosen is not highlighted.
    EXPECT_EQ(image.getPixelAt(115, 32), juce::Colour(38, 57, 71));
    EXPECT_EQ(image.getPixelAt(60, 56), juce::Colour(38, 57, 71));
    // The separator's line, a third of white.
    EXPECT_TRUE(isNear(image.getPixelAt(60, 46), juce::Colour(103, 116, 126), 3) ||
                isNear(image.getPixelAt(60, 47), juce::Colour(103, 116, 126), 3));
}

TEST_F(LooksAndFeels, frameTextFields) {
    juce::TextEditor editor;
    editor.setLookAndFeel(look.get());
    editor.setBounds(0, 0, 60, 20);
    const juce::Image image = rendered(60, 20, juce::Colours::red, [&](juce::Graphics& g) {
        look->fillTextEditorBackground(g, 60, 20, editor);
        look->drawTextEditorOutline(g, 60, 20, editor);
    });
    EXPECT_EQ(image.getPixelAt(30, 10), juce::Colour(8, 25, 39));
    EXPECT_EQ(image.getPixelAt(0, 10), juce::Colour(50, 69, 83));
    editor.setLookAndFeel(nullptr);
}

TEST_F(LooksAndFeels, drawTheThumbOfAScrollBarWhereItIs) {
    juce::ScrollBar bar(true);
    bar.setLookAndFeel(look.get());
    const juce::Image image = rendered(12, 100, juce::Colours::white, [&](juce::Graphics& g) {
        look->drawScrollbar(g, bar, 0, 0, 12, 100, true, 30, 40, false, false);
    });
    EXPECT_TRUE(isNear(image.getPixelAt(6, 50), juce::Colour(121, 135, 144)));
    // A fifth of black over white.
    EXPECT_TRUE(isNear(image.getPixelAt(6, 10), juce::Colour::greyLevel(0.8F)));
    EXPECT_TRUE(isNear(image.getPixelAt(6, 90), juce::Colour::greyLevel(0.8F)));
    bar.setLookAndFeel(nullptr);
}

} // namespace
