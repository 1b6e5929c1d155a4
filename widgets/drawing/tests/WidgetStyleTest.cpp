// SPDX-License-Identifier: GPL-3.0-or-later
// The palette, the fonts, and where the typeface comes from.

#include "widgets/drawing/WidgetStyle.h"

#include "services/tests/LogCapture.h"
#include "services/tests/TemporaryDirectory.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/drawing/FontFile.h"
#include "widgets/images/ResourceFolder.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace {

using FontBytes = std::vector<std::uint8_t>;

TEST(WidgetColours, areThoseOfTheTable) {
    const std::array<std::array<int, 3>, 9> table = {{{50, 69, 83},
                                                      {8, 25, 39},
                                                      {72, 72, 72},
                                                      {121, 135, 144},
                                                      {121, 135, 144},
                                                      {38, 57, 71},
                                                      {255, 255, 255},
                                                      {179, 187, 188},
                                                      {8, 25, 39}}};
    ASSERT_EQ(WidgetColours::palette().size(), table.size());
    for (std::size_t i = 0; i < table.size(); ++i) {
        const juce::Colour colour = WidgetColours::palette()[i];
        EXPECT_EQ(colour.getRed(), table[i][0]) << i;
        EXPECT_EQ(colour.getGreen(), table[i][1]) << i;
        EXPECT_EQ(colour.getBlue(), table[i][2]) << i;
        EXPECT_EQ(colour.getAlpha(), 255) << i;
    }
}

TEST(WidgetColours, deriveFourThatDiffer) {
    std::set<std::uint32_t> different;
    for (const juce::Colour colour : WidgetColours::derivedColours())
        different.insert(colour.getARGB());
    EXPECT_EQ(different.size(), 4U);
}

TEST(WidgetColours, areReadFromSixOrEightDigits) {
    EXPECT_EQ(WidgetColours::fromHexText(WidgetColours::editorDefault).getARGB(), 0xff333333);
    EXPECT_EQ(WidgetColours::fromHexText(WidgetColours::ledLit).getARGB(), 0xff959a00);
    EXPECT_EQ(WidgetColours::fromHexText(WidgetColours::ledUnlit).getARGB(), 0xff404b00);
    EXPECT_EQ(WidgetColours::fromHexText("80112233").getARGB(), 0x80112233);
}

FontBytes contentOf(const juce::File& file) {
    juce::MemoryBlock block;
    EXPECT_TRUE(file.loadFileAsData(block));
    const auto* const bytes = static_cast<const std::uint8_t*>(block.getData());
    return {bytes, bytes + block.getSize()};
}

/// A font of this machine, of not more than a megabyte; empty where there is none.
FontBytes anyFont() {
#ifdef _WIN32
    const juce::File folder =
        juce::File::getSpecialLocation(juce::File::windowsSystemDirectory).getSiblingFile("Fonts");
#else
    const juce::File folder("/usr/share/fonts");
#endif
    for (const juce::File& file : folder.findChildFiles(juce::File::findFiles, true, "*.ttf;*.otf"))
        if (file.getSize() < 1024 * 1024 && isWholeFont(contentOf(file)))
            return contentOf(file);
    return {};
}

class WidgetStyles : public ToolkitTest {
protected:
    WidgetStyles() { setResourceFolder(juce::File(folder.path().string())); }

    ~WidgetStyles() override { setResourceFolder({}); }

    static bool systemHasIt() {
        return juce::Font::findAllTypefaceNames().contains("Century Gothic", true);
    }

    static juce::String defaultSans() {
        return juce::Font::getDefaultTypefaceForFont(
                   juce::Font(juce::Font::getDefaultSansSerifFontName(), 14.0F, juce::Font::plain))
            ->getName();
    }

    static void write(const char* name, const FontBytes& font) {
        ASSERT_TRUE(resourceFile(name).replaceWithData(font.data(), font.size()));
    }

private:
    TemporaryDirectory folder;
};

TEST_F(WidgetStyles, haveThreeFontsOfOneHeight) {
    for (const TypefaceStyle style :
         {TypefaceStyle::plain, TypefaceStyle::bold, TypefaceStyle::italic}) {
        const juce::Font& font = WidgetStyle::get().font(style);
        EXPECT_FLOAT_EQ(font.getHeight(), 14.0F);
        EXPECT_NE(font.getTypefacePtr(), nullptr);
        EXPECT_FLOAT_EQ(WidgetStyle::get().font(style, 22.0F).getHeight(), 22.0F);
    }
}

TEST_F(WidgetStyles, areSharedUntilTheToolkitGoes) {
    WidgetStyle* const first = &WidgetStyle::get();
    EXPECT_EQ(&WidgetStyle::get(), first);
    const juce::Typeface::Ptr typeface = first->font(TypefaceStyle::plain).getTypefacePtr();
    EXPECT_GT(typeface->getReferenceCount(), 1);
    shutDownToolkit();
    // The style and the toolkit's own caches have let go: this is the last one.
    EXPECT_EQ(typeface->getReferenceCount(), 1);
    startToolkit();
    EXPECT_FLOAT_EQ(WidgetStyle::get().font(TypefaceStyle::plain).getHeight(), 14.0F);
}

TEST_F(WidgetStyles, useTheToolkitsSansSerifWhereThereIsNothingElse) {
    if (systemHasIt())
        GTEST_SKIP() << "this machine has the typeface";
    EXPECT_EQ(libraryTypeface(TypefaceStyle::plain)->getName(), defaultSans());
}

TEST_F(WidgetStyles, useTheSystemsTypefaceWhereThereIsOne) {
    if (!systemHasIt())
        GTEST_SKIP() << "this machine does not have the typeface";
    EXPECT_EQ(libraryTypeface(TypefaceStyle::plain)->getName(), "Century Gothic");
}

TEST_F(WidgetStyles, useTheFileOfTheResourceFolder) {
    const FontBytes font = anyFont();
    if (font.empty() || systemHasIt())
        GTEST_SKIP() << "this machine has no font to stand for the library's, or has that";
    const juce::String name =
        juce::Typeface::createSystemTypefaceFor(font.data(), font.size())->getName();
    for (const auto& [style, file] :
         {std::pair(TypefaceStyle::plain, "URWGothic-Book.otf"),
          std::pair(TypefaceStyle::bold, "URWGothic-Demi.otf"),
          std::pair(TypefaceStyle::italic, "URWGothic-BookOblique.otf")}) {
        write(file, font);
        const juce::Typeface::Ptr typeface = libraryTypeface(style);
        EXPECT_EQ(typeface->getName(), name) << file;
        EXPECT_GT(typeface->getStringWidth("Width"), 0.0F) << file;
        ASSERT_TRUE(resourceFile(file).deleteFile());
    }
}

TEST_F(WidgetStyles, refuseADamagedFileAndSaySo) {
    if (systemHasIt())
        GTEST_SKIP() << "this machine has the typeface";
    const LogCapture log(QM::LogLevel::error);
    write("URWGothic-Book.otf", FontBytes(2000, 'x'));
    EXPECT_EQ(libraryTypeface(TypefaceStyle::plain)->getName(), defaultSans());
    EXPECT_EQ(log.messages(),
              "Font " + resourceFile("URWGothic-Book.otf").getFullPathName().toStdString() +
                  ": damaged\n");
}

TEST(FontFile, isRefusedWhenAnythingInItChanged) {
    const FontBytes font = anyFont();
    if (font.empty())
        GTEST_SKIP() << "this machine has no font";
    EXPECT_TRUE(isWholeFont(font));
    const std::size_t tablesEnd = 12 + 16 * static_cast<std::size_t>(font[5]);
    FontBytes damaged = font;
    // The directory but for names of tables that need not be there, then some of the content.
    for (std::size_t i = 12 + 4; i < tablesEnd; i += 16) {
        damaged[i] ^= 1;
        EXPECT_FALSE(isWholeFont(damaged)) << i;
        damaged[i] ^= 1;
    }
    for (const std::size_t part : {4, 3, 2})
        EXPECT_FALSE(isWholeFont(std::span(font).first(font.size() / part))) << part;
}

/// Two bytes or four, the higher first.
void append(FontBytes& bytes, std::uint32_t number, int count) {
    for (int i = count - 1; i >= 0; --i)
        bytes.push_back(static_cast<std::uint8_t>(number >> (8 * i)));
}

struct FullName {
    std::uint32_t platform;
    char letter;
};

/// A table of names with these full names, of one letter each.
FontBytes tableOfNames(const std::vector<FullName>& names) {
    FontBytes table;
    append(table, 0, 2);
    append(table, static_cast<std::uint32_t>(names.size()), 2);
    append(table, static_cast<std::uint32_t>(6 + 12 * names.size()), 2);
    for (std::uint32_t i = 0; i < names.size(); ++i) {
        for (const std::uint32_t number : {names[i].platform, 0U, 0U, 4U, 1U, i})
            append(table, number, 2);
    }
    for (const FullName& name : names)
        table.push_back(static_cast<std::uint8_t>(name.letter));
    return table;
}

/// A font of the tables it needs and one more, that is whole as far as names and sums go. Tables
/// that are not given are empty.
FontBytes fontWith(const std::map<std::string, FontBytes>& contents) {
    const std::array<std::string, 7> tags = {"OS/2", "cmap", "head", "hhea",
                                             "hmtx", "maxp", "name"};
    FontBytes font = {'O', 'T', 'T', 'O', 0, 7, 0, 0, 0, 0, 0, 0};
    FontBytes tables;
    for (const std::string& tag : tags) {
        const auto given = contents.find(tag);
        const FontBytes content = given == contents.end() ? FontBytes{} : given->second;
        std::uint32_t sum = 0;
        for (std::size_t i = 0; i < content.size(); ++i)
            sum += static_cast<std::uint32_t>(content[i]) << (24 - 8 * (i % 4));
        font.insert(font.end(), tag.begin(), tag.end());
        append(font, sum, 4);
        append(font, static_cast<std::uint32_t>(12 + tags.size() * 16 + tables.size()), 4);
        append(font, static_cast<std::uint32_t>(content.size()), 4);
        tables.insert(tables.end(), content.begin(), content.end());
    }
    font.insert(font.end(), tables.begin(), tables.end());
    return font;
}

/// What the last bytes of the font become.
FontBytes madeAlike(FontBytes font, std::size_t lengthAtTheEnd) {
    EXPECT_TRUE(isWholeFont(font));
    makeAlikeOnAllSystems(font);
    EXPECT_TRUE(isWholeFont(font));
    return {font.end() - static_cast<std::ptrdiff_t>(lengthAtTheEnd), font.end()};
}

/// The lengths of the full names, in their order.
std::vector<int> lengthsOfFullNames(const std::vector<FullName>& names) {
    const FontBytes before = tableOfNames(names);
    const FontBytes after = madeAlike(fontWith({{"name", before}}), before.size());
    std::vector<int> lengths;
    for (std::size_t i = 0; i < names.size(); ++i)
        lengths.push_back(after[6 + 12 * i + 9]);
    return lengths;
}

TEST(FontFile, isLeftWithTheFullNameForWindows) {
    EXPECT_EQ(lengthsOfFullNames({{1, 'm'}, {3, 'w'}}), (std::vector{0, 1}));
    EXPECT_EQ(lengthsOfFullNames({{1, 'm'}, {1, 'n'}, {3, 'w'}}), (std::vector{0, 0, 1}));
    EXPECT_EQ(lengthsOfFullNames({{1, 'm'}}), (std::vector{1}));
    EXPECT_EQ(lengthsOfFullNames({{3, 'w'}}), (std::vector{1}));
}

TEST(FontFile, mayPromiseMoreNamesThanItHas) {
    FontBytes names = tableOfNames({{3, 'w'}, {1, 'm'}});
    names[3] = 200;
    EXPECT_EQ(madeAlike(fontWith({{"name", names}}), names.size())[6 + 12 + 9], 0);
    EXPECT_EQ(madeAlike(fontWith({{"name", {0, 0}}}), 2), (FontBytes{0, 0}));
}

/// hhea is the last table with content here: version, ascent, descent.
FontBytes measuresAfter(std::uint32_t windowsAscent, std::uint32_t windowsDescent) {
    FontBytes windows(74);
    append(windows, windowsAscent, 2);
    append(windows, windowsDescent, 2);
    const FontBytes measures = {0, 1, 0, 0, 1, 2, 3, 4};
    return madeAlike(fontWith({{"OS/2", windows}, {"hhea", measures}}), measures.size());
}

TEST(FontFile, takesTheMeasuresForWindows) {
    // 952 is 0x03b8; -286 is 0xfee2.
    EXPECT_EQ(measuresAfter(952, 286), (FontBytes{0, 1, 0, 0, 0x03, 0xb8, 0xfe, 0xe2}));
    EXPECT_EQ(measuresAfter(952, 0), (FontBytes{0, 1, 0, 0, 0x03, 0xb8, 0, 0}));
    EXPECT_EQ(measuresAfter(0, 286), (FontBytes{0, 1, 0, 0, 1, 2, 3, 4}));
    EXPECT_EQ(measuresAfter(40000, 286), (FontBytes{0, 1, 0, 0, 1, 2, 3, 4}));
    EXPECT_EQ(madeAlike(fontWith({{"hhea", {0, 1, 0, 0, 1, 2, 3, 4}}}), 4),
              (FontBytes{1, 2, 3, 4}));
}

TEST(FontFile, isRefusedWhenItIsNone) {
    EXPECT_FALSE(isWholeFont({}));
    EXPECT_FALSE(isWholeFont(FontBytes(5)));
    EXPECT_FALSE(isWholeFont(FontBytes(1000)));
    // An OpenType file of no tables, and one of more than it has room for.
    EXPECT_FALSE(isWholeFont(FontBytes{'O', 'T', 'T', 'O', 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_FALSE(isWholeFont(FontBytes{'O', 'T', 'T', 'O', 255, 255, 0, 0, 0, 0, 0, 0}));
}

} // namespace
