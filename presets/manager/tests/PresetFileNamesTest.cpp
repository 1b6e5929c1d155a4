// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/PresetFileNames.h"

#include <gtest/gtest.h>

using namespace PresetFileNames;

TEST(PresetFileNames, aDisplayNameEndsBeforeTheFirstExtension) {
    EXPECT_EQ(displayNameOf("Kick.qmpreset"), "Kick");
    EXPECT_EQ(displayNameOf("Kick.qmpreset.bak"), "Kick");
    EXPECT_EQ(displayNameOf("Kick.qmpreset.qmpreset"), "Kick");
    EXPECT_EQ(displayNameOf("Kick.qmpresets"), "Kick");
    EXPECT_EQ(displayNameOf(".qmpreset"), "");
}

TEST(PresetFileNames, aNameWithoutTheExtensionIsTheDisplayName) {
    for (const char* name : {"Kick", "Kick.QMPRESET", "Kick.qmprese", "qmpreset", ""})
        EXPECT_EQ(displayNameOf(name), name);
}

TEST(PresetFileNames, namesThatLeadElsewhereAreNotUsable) {
    for (const std::string& name :
         {std::string(), std::string("."), std::string(".."), std::string("a/b"), std::string("/"),
          std::string("../a"), std::string("a\\b"), std::string("..\\a"), std::string("a\0b", 3)})
        EXPECT_FALSE(isUsable(name)) << name;
}

TEST(PresetFileNames, everyOtherNameIsUsable) {
    for (const char* name : {"Kick", "Kick copy", "...", ".hidden", "a.b", "Kick.qmpresets", "-",
                             "\xE4\xBD\x8E\xE9\x9F\xB3", "808 (2)", "CONGA", "COM0", "console.x"}) {
#ifdef _WIN32
        if (std::string_view(name) == "...")
            continue; // ends with a full stop
#endif
        EXPECT_TRUE(isUsable(name)) << name;
    }
}

TEST(PresetFileNames, whatWindowsTakesForSomethingElseIsNotUsableThere) {
    for (const char* name : {"a:b", "a|b", "a?", "a*", "a<b", "a>b", "a\"b", "a\nb", "a.", "a ",
                             "CON", "nul", "Aux.x", "COM1", "lpt9.txt", "PRN .x"}) {
#ifdef _WIN32
        EXPECT_FALSE(isUsable(name)) << name;
#else
        EXPECT_TRUE(isUsable(name)) << name;
#endif
    }
}

TEST(PresetFileNames, temporaryNamesAreRecognisedAndShort) {
    EXPECT_EQ(temporary(0x0123456789ABCDEFu), ".qm-0123456789abcdef.tmp");
    EXPECT_EQ(temporary(0), ".qm-0000000000000000.tmp");
    EXPECT_TRUE(isTemporary(temporary(0xFFFFFFFFFFFFFFFFu)));
    EXPECT_LE(temporary(1).size(), 32u);
    EXPECT_EQ(temporary(1).find(extension), std::string::npos);
}

TEST(PresetFileNames, namesLikeTemporaryOnesAreNotTaken) {
    for (const char* name :
         {".qm-0123456789abcdeg.tmp", ".qm-0123456789ABCDEF.tmp", ".qm-0123456789abcde.tmp",
          ".qm-0123456789abcdef0.tmp", "qm-0123456789abcdef.tmpp", ".qm-0123456789abcdef.tmp.x",
          ".qm-0123456789abcdef.tmpx", "x.qm-0123456789abcdef.tm", ""})
        EXPECT_FALSE(isTemporary(name)) << name;
}
