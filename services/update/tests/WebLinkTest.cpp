// SPDX-License-Identifier: GPL-3.0-or-later
// Links that go to the browser, and all the others.
#include "services/update/WebLink.h"

#include <gtest/gtest.h>

#include <string>

using QM::isWebLink;

TEST(WebLink, AddressesOfTheWebAre) {
    for (const char* link :
         {"https://quolm.example", "http://quolm.example/", "HTTPS://Quolm.Example/A?b=c&d=e#f",
          "https://quolm.example:8443/l/?l=prod&p=QMBRLT", "https://[2001:db8::1]/setup%20v2.exe",
          "https://quolm.example?l=(a);b!c*d+e,f~'g'@h"})
        EXPECT_TRUE(isWebLink(link)) << link;
}

TEST(WebLink, OtherSchemesAreNot) {
    for (const char* link :
         {"javascript:alert(1)", "file:///etc/passwd", "FILE://server/share/setup.exe",
          "ftp://quolm.example/", "mailto:help@quolm.example", "data:text/html,x",
          "httpsx://quolm.example/", "xhttps://quolm.example/", "C:/Windows/system32/calc.exe"})
        EXPECT_FALSE(isWebLink(link)) << link;
}

TEST(WebLink, NeedsAHost) {
    for (const char* link :
         {"", "https", "https:", "https:/quolm.example", "https://", "https:///a", "http://?a",
          "https://#a", "//quolm.example", "quolm.example"})
        EXPECT_FALSE(isWebLink(link)) << link;
}

TEST(WebLink, WithACharacterThatMeansSomethingToAShellIsNone) {
    for (const char* rest : {"$(calc)", "${HOME}", "`calc`", "\" && calc \"", "\\\"", "a|b", "<a>",
                             "a b", "a\nb", "a\tb", "^", "{a}", "\x7F", "\xC3\xA4"})
        EXPECT_FALSE(isWebLink(std::string("https://quolm.example/") + rest)) << rest;
    EXPECT_FALSE(isWebLink(std::string("https://quolm.example/a\0b", 25)));
    EXPECT_FALSE(isWebLink(" https://quolm.example/"));
}

TEST(WebLink, IsNoLongerThanBrowsersTake) {
    const std::string start = "https://quolm.example/";
    EXPECT_TRUE(isWebLink(start + std::string(2048 - start.size(), 'a')));
    EXPECT_FALSE(isWebLink(start + std::string(2049 - start.size(), 'a')));
}
