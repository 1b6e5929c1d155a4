// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/drawing/LibraryTypeface.h"

#include "services/Log.h"
#include "widgets/drawing/FontFile.h"
#include "widgets/images/ResourceFolder.h"

#include <cstdint>

namespace {

/// Any height will do: a typeface is made for all of them.
constexpr float anyHeight = 14.0F;

constexpr juce::int64 largestFontFile = 16 * 1024 * 1024;

int fontFlags(TypefaceStyle style) {
    switch (style) {
    case TypefaceStyle::plain:
        break;
    case TypefaceStyle::bold:
        return juce::Font::bold;
    case TypefaceStyle::italic:
        return juce::Font::italic;
    }
    return juce::Font::plain;
}

const char* fileName(TypefaceStyle style) {
    switch (style) {
    case TypefaceStyle::plain:
        break;
    case TypefaceStyle::bold:
        return "URWGothic-Demi.otf";
    case TypefaceStyle::italic:
        return "URWGothic-BookOblique.otf";
    }
    return "URWGothic-Book.otf";
}

juce::Typeface::Ptr fromSystem(TypefaceStyle style) {
    if (!juce::Font::findAllTypefaceNames().contains(LibraryTypeface::name, true))
        return nullptr;
    return juce::Typeface::createSystemTypefaceFor(
        juce::Font(LibraryTypeface::name, anyHeight, fontFlags(style)));
}

juce::Typeface::Ptr fromFile(const juce::File& file) {
    juce::MemoryBlock content;
    if (!file.existsAsFile())
        return nullptr;
    if (file.getSize() > largestFontFile || !file.loadFileAsData(content) ||
        !isWholeFont({static_cast<const std::uint8_t*>(content.getData()), content.getSize()})) {
        QM::log(QM::LogLevel::error, "Font %s: damaged\n", file.getFullPathName().toRawUTF8());
        return nullptr;
    }
    makeAlikeOnAllSystems({static_cast<std::uint8_t*>(content.getData()), content.getSize()});
    return juce::Typeface::createSystemTypefaceFor(content.getData(), content.getSize());
}

} // namespace

juce::Typeface::Ptr libraryTypeface(TypefaceStyle style) {
    if (juce::Typeface::Ptr typeface = fromSystem(style))
        return typeface;
    if (juce::Typeface::Ptr typeface = fromFile(resourceFile(fileName(style))))
        return typeface;
    return juce::Font::getDefaultTypefaceForFont(
        juce::Font(juce::Font::getDefaultSansSerifFontName(), anyHeight, fontFlags(style)));
}
