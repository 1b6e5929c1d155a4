// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/BreadcrumbOrder.h"

#include "presets/manager/QMPresetFolder.h"

#include <gtest/gtest.h>

#include <clocale>

namespace {

using Names = std::vector<std::string>;

Names sorted(const Names& names) {
    QMPresetFolder root({.displayName = "R"});
    std::vector<QMPresetItem*> presets;
    for (const std::string& name : names)
        presets.push_back(&root.addPreset(std::make_unique<QMPresetItem>(
            QMPresetItem::Origin{.displayName = name, .parent = &root})));
    sortByBreadcrumb(presets);
    Names answer;
    for (const QMPresetItem* preset : presets)
        answer.push_back(preset->displayName());
    return answer;
}

} // namespace

TEST(BreadcrumbOrder, capitalsCountAsSmallLetters) {
    EXPECT_EQ(sorted({"b", "A", "C", "aB", "AA"}), (Names{"A", "AA", "aB", "b", "C"}));
}

TEST(BreadcrumbOrder, theUnderscoreComesBeforeLettersOfEitherKind) {
    // '_' is 95: after 'Z' (90) and before 'a' (97), which is what both letters count as.
    EXPECT_EQ(sorted({"Z", "_", "a"}), (Names{"_", "a", "Z"}));
}

TEST(BreadcrumbOrder, bytesBeyondAsciiComeFirstInTheirOwnOrder) {
    // As signed numbers: 0xC3 is -61, 0xC4 is -60, 'a' is 97.
    EXPECT_EQ(sorted({"a", "\xC4\x80", " ", "\xC3\xA4"}),
              (Names{"\xC3\xA4", "\xC4\x80", " ", "a"}));
}

TEST(BreadcrumbOrder, aTextComesBeforeThoseItBegins) {
    EXPECT_EQ(sorted({"kick 2", "kick", "kick 10"}), (Names{"kick", "kick 10", "kick 2"}));
}

TEST(BreadcrumbOrder, whatDiffersInCapitalsOnlyStaysInOrder) {
    EXPECT_EQ(sorted({"kick", "KICK", "Kick"}), (Names{"kick", "KICK", "Kick"}));
    EXPECT_EQ(sorted({"Kick", "KICK", "kick"}), (Names{"Kick", "KICK", "kick"}));
}

TEST(BreadcrumbOrder, theFactoryTreeComesBeforeTheUsers) {
    QMPresetFolder root({.displayName = "R"});
    QMPresetItem user({.displayName = "a", .parent = &root});
    QMPresetItem factory({.displayName = "z", .parent = &root, .isFactory = true});
    std::vector<QMPresetItem*> presets = {&user, &factory};
    sortByBreadcrumb(presets);
    EXPECT_EQ(presets, (std::vector<QMPresetItem*>{&factory, &user}));
}

TEST(BreadcrumbOrder, theLanguageOfTheHostHasNoSay) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    // In Latin-1 0xC4 is a capital whose small letter is 0xE4. Where the machine has none of these
    // languages the order is asked for in its own.
    for (const char* locale : {"de_DE.ISO-8859-1", "de_DE", "tr_TR", ""})
        if (std::setlocale(LC_ALL, locale) != nullptr)
            break;
    EXPECT_EQ(sorted({"\xE4 1", "\xC4 2", "I", "i"}), (Names{"\xC4 2", "\xE4 1", "I", "i"}));
    std::setlocale(LC_ALL, before.c_str());
}
