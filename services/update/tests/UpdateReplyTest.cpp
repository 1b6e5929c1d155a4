// SPDX-License-Identifier: GPL-3.0-or-later
// Replies as the service sends them, and as it should never send them.
#include "services/update/UpdateReply.h"

#include <gtest/gtest.h>

using QM::readUpdateReply;
using QM::UpdateReply;

namespace {

constexpr const char* complete = R"({
    "updateAvailable": true,
    "updateVersion": "1.2.3",
    "updateURL": "https://quolm.example/setup.exe",
    "updateReleaseNotesURL": "https://quolm.example/notes",
    "currentReleaseNotesURL": "https://quolm.example/notes-1.0",
    "tipsAndTricksURL": "https://quolm.example/tips",
    "isbeta": true
})";

UpdateReply readOrDefault(std::string_view text) {
    return readUpdateReply(text).value_or(UpdateReply{});
}

/// An object that says nothing, of a length in bytes.
std::string emptyReplyOfLength(std::size_t length) {
    return "{" + std::string(length - 2, ' ') + "}";
}

} // namespace

TEST(UpdateReply, IsReadWithEverythingInIt) {
    UpdateReply expected;
    expected.updateAvailable = true;
    expected.isBeta = true;
    expected.version = "1.2.3";
    expected.installerLink = "https://quolm.example/setup.exe";
    expected.releaseNotesLink = "https://quolm.example/notes";
    expected.currentReleaseNotesLink = "https://quolm.example/notes-1.0";
    expected.tipsLink = "https://quolm.example/tips";
    EXPECT_EQ(readUpdateReply(complete), expected);
}

TEST(UpdateReply, WithoutAnUpdateTellsOfTheInstalledVersionAlone) {
    const UpdateReply reply = readOrDefault(R"({
        "updateAvailable": false, "isbeta": true, "updateVersion": "1.2.3",
        "updateURL": "https://quolm.example/setup.exe",
        "updateReleaseNotesURL": "https://quolm.example/notes",
        "currentReleaseNotesURL": "https://quolm.example/now",
        "tipsAndTricksURL": "https://quolm.example/tips"})");
    UpdateReply expected;
    expected.currentReleaseNotesLink = "https://quolm.example/now";
    expected.tipsLink = "https://quolm.example/tips";
    EXPECT_EQ(reply, expected);
}

TEST(UpdateReply, MayLackEveryKey) {
    EXPECT_EQ(readUpdateReply("{}"), UpdateReply{});
    EXPECT_EQ(readUpdateReply(R"({"updateVersion": "1.2.3", "somethingNew": [1, {}]})"),
              UpdateReply{});
    UpdateReply bare;
    bare.updateAvailable = true;
    EXPECT_EQ(readUpdateReply(R"({"updateAvailable": true})"), bare);
}

TEST(UpdateReply, AnUpdateIsAvailableWhenTheKeyIsTrueAndNothingLikeIt) {
    for (const char* value :
         {"1", "\"true\"", "\"YES\"", "null", "[true]", "{\"a\": true}", "1.0"}) {
        const std::string text =
            std::string(R"({"updateVersion": "2", "updateAvailable": )") + value + "}";
        ASSERT_TRUE(readUpdateReply(text)) << text;
        EXPECT_EQ(readOrDefault(text), UpdateReply{}) << text;
    }
}

TEST(UpdateReply, TextsOfAnotherTypeAreMissing) {
    UpdateReply bare;
    bare.updateAvailable = true;
    for (const char* value : {"1.2", "true", "null", "[\"1.2\"]", "{\"a\": \"1.2\"}"}) {
        std::string text = R"({"updateAvailable": true)";
        for (const char* key : {"updateVersion", "updateURL", "updateReleaseNotesURL",
                                "currentReleaseNotesURL", "tipsAndTricksURL"})
            text += std::string(", \"") + key + "\": " + value;
        text += R"(, "isbeta": "true"})";
        EXPECT_EQ(readUpdateReply(text), bare) << text;
    }
}

TEST(UpdateReply, WhatIsNoJsonObjectIsNone) {
    for (const char* text : {"", " ", "<html>Not found</html>", "true", "null", "12", "\"text\"",
                             "[{\"updateAvailable\": true}]", "{updateAvailable: true}",
                             "{\"updateAvailable\": true} {}", "{\"updateAvailable\": 1e999}",
                             "{\"updateVersion\": \"\xFF\"}"})
        EXPECT_EQ(readUpdateReply(text), std::nullopt) << text;
}

TEST(UpdateReply, CutShortAnywhereIsNone) {
    const std::string_view whole = complete;
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_EQ(readUpdateReply(whole.substr(0, length)), std::nullopt) << length;
}

TEST(UpdateReply, LargerThanAnyHonestOneIsNone) {
    EXPECT_EQ(readUpdateReply(emptyReplyOfLength(65536)), UpdateReply{});
    EXPECT_EQ(readUpdateReply(emptyReplyOfLength(65537)), std::nullopt);
}

TEST(UpdateReply, MayBeNestedAsDeepAsItsLengthAllows) {
    const std::size_t depth = 32000;
    const std::string text = "{\"updateAvailable\": true, \"a\": " + std::string(depth, '[') +
                             std::string(depth, ']') + "}";
    ASSERT_LT(text.size(), QM::largestUpdateReply);
    EXPECT_TRUE(readOrDefault(text).updateAvailable);
    EXPECT_EQ(readUpdateReply(std::string(QM::largestUpdateReply, '[')), std::nullopt);
}
