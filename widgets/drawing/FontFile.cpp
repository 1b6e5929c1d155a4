// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/drawing/FontFile.h"

#include <algorithm>
#include <array>

namespace {

using Bytes = std::span<const std::uint8_t>;

// The file begins with a kind and the number of its tables; then comes, for each table, its name,
// check sum, place and length.
constexpr std::size_t countOffset = 4;
constexpr std::size_t directoryOffset = 12;
constexpr std::size_t entrySize = 16;

constexpr std::uint32_t named(const char (&name)[5]) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < 4; ++i)
        number = number << 8 | static_cast<std::uint8_t>(name[i]);
    return number;
}

constexpr std::uint32_t trueTypeOutlines = 0x00010000;
constexpr std::uint32_t postScriptOutlines = named("OTTO");
constexpr std::array neededTables = {named("cmap"), named("head"), named("hhea"),
                                     named("hmtx"), named("maxp"), named("name")};

std::uint32_t bigEndian(Bytes data, std::size_t offset) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < 4; ++i)
        number = number << 8 | data[offset + i];
    return number;
}

struct Table {
    std::uint32_t name;
    std::uint32_t checkSum;
    std::size_t offset;
    std::size_t length;
};

Table tableAt(Bytes data, std::size_t index) {
    const std::size_t entry = directoryOffset + index * entrySize;
    return {.name = bigEndian(data, entry),
            .checkSum = bigEndian(data, entry + 4),
            .offset = bigEndian(data, entry + 8),
            .length = bigEndian(data, entry + 12)};
}

/// The sum of the table's words; the last is filled up with zeros.
std::uint32_t sumOf(Bytes content, bool isHead) {
    // The third word of head balances the whole file and is left out of the table's own sum.
    constexpr std::size_t balance = 8;
    std::uint32_t sum = 0;
    for (std::size_t i = 0; i < content.size(); ++i)
        sum += static_cast<std::uint32_t>(content[i]) << (24 - 8 * (i % 4));
    if (isHead && content.size() >= balance + 4)
        sum -= bigEndian(content, balance);
    return sum;
}

bool isWhole(Bytes data, const Table& table) {
    if (table.offset > data.size() || table.length > data.size() - table.offset)
        return false;
    return sumOf(data.subspan(table.offset, table.length), table.name == named("head")) ==
           table.checkSum;
}

void writeBigEndian(std::span<std::uint8_t> place, std::uint32_t number) {
    for (std::size_t i = 0; i < 4; ++i)
        place[i] = static_cast<std::uint8_t>(number >> (24 - 8 * i));
}

std::size_t numberOfTables(Bytes font) {
    return bigEndian(font, countOffset) >> 16;
}

// The table of names begins with its version and the number of records. A record is the platform,
// encoding and language of a text, what it names, its length and its place.
constexpr std::size_t namesOffset = 6;
constexpr std::size_t nameSize = 12;
constexpr std::size_t nameLengthOffset = 8;
constexpr std::uint32_t fullName = 4;
constexpr std::uint32_t macintosh = 1;
constexpr std::uint32_t windows = 3;

std::uint32_t twoBytes(Bytes data, std::size_t offset) {
    return static_cast<std::uint32_t>(data[offset]) << 8 | data[offset + 1];
}

void writeTwoBytes(std::span<std::uint8_t> data, std::size_t offset, std::uint32_t number) {
    data[offset] = static_cast<std::uint8_t>(number >> 8);
    data[offset + 1] = static_cast<std::uint8_t>(number);
}

/// Calls the function with the record of each full name of the platform.
template <typename Function>
void forEachFullName(std::span<std::uint8_t> names, std::uint32_t platform, Function function) {
    if (names.size() < namesOffset)
        return;
    const std::size_t count = twoBytes(names, 2);
    for (std::size_t i = 0; i < count && names.size() >= namesOffset + (i + 1) * nameSize; ++i) {
        const std::span<std::uint8_t> record = names.subspan(namesOffset + i * nameSize, nameSize);
        if (twoBytes(record, 0) == platform && twoBytes(record, 6) == fullName)
            function(record);
    }
}

void leaveFullNameOfWindows(std::span<std::uint8_t> names) {
    bool isThere = false;
    forEachFullName(names, windows, [&](std::span<std::uint8_t> record) {
        isThere = isThere || twoBytes(record, nameLengthOffset) != 0;
    });
    if (!isThere)
        return;
    forEachFullName(names, macintosh, [](std::span<std::uint8_t> record) {
        writeTwoBytes(record, nameLengthOffset, 0);
    });
}

// Of OS/2, unsigned and both positive; of hhea, where the descent is negative.
constexpr std::size_t windowsAscentOffset = 74;
constexpr std::size_t windowsDescentOffset = 76;
constexpr std::size_t ascentOffset = 4;
constexpr std::size_t descentOffset = 6;

void takeMeasures(std::span<std::uint8_t> measures, Bytes windowsMeasures) {
    if (measures.size() < descentOffset + 2 || windowsMeasures.size() < windowsDescentOffset + 2)
        return;
    const std::uint32_t ascent = twoBytes(windowsMeasures, windowsAscentOffset);
    const std::uint32_t descent = twoBytes(windowsMeasures, windowsDescentOffset);
    constexpr std::uint32_t largest = 0x7fff;
    if (ascent == 0 || ascent > largest || descent > largest)
        return;
    writeTwoBytes(measures, ascentOffset, ascent);
    writeTwoBytes(measures, descentOffset, 0x10000 - descent);
}

/// A table by name; empty where there is none.
std::span<std::uint8_t> find(std::span<std::uint8_t> font, std::uint32_t name) {
    for (std::size_t i = 0; i < numberOfTables(font); ++i) {
        const Table table = tableAt(font, i);
        if (table.name == name)
            return font.subspan(table.offset, table.length);
    }
    return {};
}

/// Lets the function change a table, if there is one, and puts its check sum right. Not for head.
template <typename Function>
void edit(std::span<std::uint8_t> font, std::uint32_t name, Function change) {
    for (std::size_t i = 0; i < numberOfTables(font); ++i) {
        const Table table = tableAt(font, i);
        if (table.name != name)
            continue;
        const std::span<std::uint8_t> content = font.subspan(table.offset, table.length);
        change(content);
        const std::size_t checkSumOffset = directoryOffset + i * entrySize + 4;
        writeBigEndian(font.subspan(checkSumOffset, 4), sumOf(content, false));
    }
}

} // namespace

bool isWholeFont(Bytes data) {
    if (data.size() < directoryOffset)
        return false;
    const std::uint32_t kind = bigEndian(data, 0);
    const std::size_t count = numberOfTables(data);
    if ((kind != trueTypeOutlines && kind != postScriptOutlines) ||
        data.size() < directoryOffset + count * entrySize)
        return false;
    std::size_t found = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const Table table = tableAt(data, i);
        if (!isWhole(data, table))
            return false;
        if (std::find(neededTables.begin(), neededTables.end(), table.name) != neededTables.end())
            ++found;
    }
    return found == neededTables.size();
}

void makeAlikeOnAllSystems(std::span<std::uint8_t> font) {
    edit(font, named("name"), leaveFullNameOfWindows);
    const std::span<std::uint8_t> windowsMeasures = find(font, named("OS/2"));
    edit(font, named("hhea"),
         [&](std::span<std::uint8_t> measures) { takeMeasures(measures, windowsMeasures); });
}
