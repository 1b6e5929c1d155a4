// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/drawing/WidgetStyle.h"

#include <cstddef>

namespace {

juce::Font libraryFont(TypefaceStyle style) {
    return juce::Font(libraryTypeface(style)).withHeight(WidgetStyle::fontHeight);
}

} // namespace

WidgetStyle* WidgetStyle::instance = nullptr;

WidgetStyle& WidgetStyle::get() {
    if (instance == nullptr)
        instance = new WidgetStyle;
    return *instance;
}

WidgetStyle::WidgetStyle()
    : derived(WidgetColours::derivedColours())
    , fonts{libraryFont(TypefaceStyle::plain), libraryFont(TypefaceStyle::bold),
            libraryFont(TypefaceStyle::italic)} {}

WidgetStyle::~WidgetStyle() {
    instance = nullptr;
}

juce::Colour WidgetStyle::colour(WidgetColours::PaletteIndex index) const {
    return WidgetColours::palette()[index];
}

juce::Colour WidgetStyle::colour(WidgetColours::DerivedIndex index) const {
    return derived[index];
}

const juce::Font& WidgetStyle::font(TypefaceStyle style) const {
    return fonts[static_cast<std::size_t>(style)];
}

juce::Font WidgetStyle::font(TypefaceStyle style, float height) const {
    return font(style).withHeight(height);
}
