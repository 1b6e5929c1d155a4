// SPDX-License-Identifier: GPL-3.0-or-later
// What the environment answers about time, and which of the host's providers a request asks.
#include "QMShell/hosting/NoxPlugInEnvironment.h"
#include "plugin-model/tests/TestPlugInModel.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstring>
#include <set>

namespace {

using Words = std::array<std::uint64_t, 8>;
constexpr std::uint64_t allSet = 0xFFFFFFFFFFFFFFFFu;

Words ask(NoxPlugInEnvironment& environment, std::uint64_t request) {
    NoxTimeInfo info{};
    info.flags = request;
    environment.getTimeInfo(info);
    Words words{};
    std::memcpy(words.data(), &info, sizeof info);
    return words;
}

constexpr std::uint64_t bitsOf(double value) {
    return std::bit_cast<std::uint64_t>(value);
}

constexpr std::uint64_t signature(std::uint64_t numerator, std::uint64_t denominator) {
    return denominator << 32 | numerator;
}

const Words untold{bitsOf(1.0), 0, bitsOf(120.0), allSet, allSet, allSet, signature(4, 4), 0};

/// Providers that say that they were asked. Answers differ from every initial value.
class EnvironmentProviders : public ::testing::Test {
protected:
    NoxPlugInEnvironment environment;
    std::multiset<int> asked;

    void installAll() { installInto(environment); }

    void installInto(NoxPlugInEnvironment& target) {
        NoxHostDescription& host = target.hostDescription();
        host.enabled = true;
        host.sampleRate = [this] { return note(0), 96000.0; };
        host.tempo = [this] { return note(1), 90.5; };
        host.valuePairFG = [this] {
            note(2);
            return std::pair<std::uint64_t, std::uint64_t>(21, 22);
        };
        host.timeSignature = [this] { return note(3), NoxTimeSignature{7, 8}; };
        host.position = [this] { return note(4), std::uint64_t{41}; };
        host.valueE = [this] { return note(5), std::uint64_t{51}; };
        for (int bit = 0; bit < 5; ++bit)
            host.transportFlags[static_cast<std::size_t>(bit)] = [this, bit] {
                note(6 + bit);
                return bit % 2 == 0 ? 3u : 2u; // bits 0, 2 and 4 by their low bit
            };
    }

private:
    void note(int provider) { asked.insert(provider); }
};

} // namespace

TEST(EnvironmentTime, startsWithItsInitialValues) {
    NoxPlugInEnvironment environment;
    EXPECT_EQ(ask(environment, 0), untold);
}

TEST(EnvironmentTime, theAnswerDoesNotKeepTheRequestBits) {
    NoxPlugInEnvironment environment;
    EXPECT_EQ(ask(environment, allSet), untold);
}

TEST(EnvironmentTime, everySetterFillsItsWords) {
    NoxPlugInEnvironment environment;
    TestTypeGroup group;
    TestPlugIn plugIn(group.testType(), nullptr, nullptr);
    const double rate = 48000.0;
    environment.sampleRateSet(plugIn, &rate); // without a listener
    environment.setPosition(0x123456789ABCDEFu);
    environment.setTempo(133.25);
    environment.setValueE(5);
    environment.setValueF(6);
    environment.setValueG(7);
    environment.setTimeSignature(3, 8);
    EXPECT_EQ(ask(environment, 0), (Words{bitsOf(48000.0), 0x123456789ABCDEFu, bitsOf(133.25), 5, 6,
                                          7, signature(3, 8), 0}));
    environment.setValuesFG(66, 77);
    EXPECT_EQ(ask(environment, 0)[4], 66u);
    EXPECT_EQ(ask(environment, 0)[5], 77u);
}

TEST(EnvironmentTime, everyFlagHasItsBit) {
    NoxPlugInEnvironment environment;
    for (std::uint32_t bit = 0; bit < 5; ++bit) {
        environment.setTransportFlag(bit, true);
        EXPECT_EQ(ask(environment, 0)[7], 1u << bit);
        environment.setTransportFlag(bit, false);
        EXPECT_EQ(ask(environment, 0)[7], 0u);
    }
    for (std::uint32_t bit = 0; bit < 5; ++bit)
        environment.setTransportFlag(bit, true);
    EXPECT_EQ(ask(environment, 0)[7], 0x1Fu);
    environment.setTransportFlag(2, false);
    EXPECT_EQ(ask(environment, 0)[7], 0x1Bu);
}

TEST(EnvironmentTime, thereAreFiveFlags) {
    NoxPlugInEnvironment environment;
    for (const std::uint32_t bit : {5u, 6u, 31u, 32u, 63u, 64u, 0xFFFFFFFFu})
        environment.setTransportFlag(bit, true);
    EXPECT_EQ(ask(environment, 0), untold);
}

TEST_F(EnvironmentProviders, areNotAskedWhileTheDescriptionIsNotEnabled) {
    installAll();
    environment.hostDescription().enabled = false;
    EXPECT_EQ(ask(environment, allSet), untold);
    EXPECT_TRUE(asked.empty());
}

TEST_F(EnvironmentProviders, rateAndPositionAreAskedAlways) {
    installAll();
    Words expected = untold;
    expected[0] = bitsOf(96000.0);
    expected[1] = 41;
    EXPECT_EQ(ask(environment, 0), expected);
    EXPECT_EQ(asked, (std::multiset<int>{0, 4}));
}

TEST_F(EnvironmentProviders, everyRequestBitAsksItsOwn) {
    struct Row {
        std::uint64_t request;
        std::multiset<int> providers;
        std::vector<std::pair<std::size_t, std::uint64_t>> words;
    };

    const std::vector<Row> rows{
        {0x20, {0, 4, 6, 7, 8, 9, 10}, {{7, 0x15}}}, {0x40, {0, 4, 5}, {{3, 51}}},
        {0x80, {0, 2, 4}, {{4, 21}, {5, 22}}},       {0x100, {0, 1, 4}, {{2, bitsOf(90.5)}}},
        {0x200, {0, 3, 4}, {{6, signature(7, 8)}}},
    };
    for (const Row& row : rows) {
        NoxPlugInEnvironment fresh;
        asked.clear();
        installInto(fresh);
        Words expected = untold;
        expected[0] = bitsOf(96000.0);
        expected[1] = 41;
        for (const auto& [word, value] : row.words)
            expected[word] = value;
        EXPECT_EQ(ask(fresh, row.request), expected) << row.request;
        EXPECT_EQ(asked, row.providers) << row.request;
    }
}

TEST_F(EnvironmentProviders, bitsWithoutAMeaningAskNobody) {
    installAll();
    ask(environment, ~std::uint64_t{0x3E0});
    EXPECT_EQ(asked, (std::multiset<int>{0, 4}));
}

TEST_F(EnvironmentProviders, allBitsAskEveryProviderOnceAndTheAnswersStay) {
    installAll();
    const Words expected{bitsOf(96000.0), 41, bitsOf(90.5), 51, 21, 22, signature(7, 8), 0x15};
    EXPECT_EQ(ask(environment, 0x3E0), expected);
    EXPECT_EQ(asked, (std::multiset<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    environment.hostDescription().enabled = false;
    EXPECT_EQ(ask(environment, 0), expected);
}

TEST_F(EnvironmentProviders, thatAreNotInstalledLeaveTheirFields) {
    environment.hostDescription().enabled = true;
    environment.setTempo(77.0);
    environment.setTransportFlag(1, true);
    Words expected = untold;
    expected[2] = bitsOf(77.0);
    expected[7] = 2;
    EXPECT_EQ(ask(environment, allSet), expected);
}

TEST_F(EnvironmentProviders, aFlagProviderClearsItsFlagAndNoOther) {
    environment.hostDescription().enabled = true;
    for (std::uint32_t bit = 0; bit < 5; ++bit)
        environment.setTransportFlag(bit, true);
    environment.hostDescription().transportFlags[3] = [] { return 0xFFFFFFFEu; };
    EXPECT_EQ(ask(environment, 0x20)[7], 0x17u);
}

TEST_F(EnvironmentProviders, aDescriptionCanBeSetAsAWhole) {
    installAll();
    NoxHostDescription replacement;
    replacement.enabled = true;
    replacement.tempo = [] { return 60.0; };
    environment.setHostDescription(replacement);
    Words expected = untold;
    expected[2] = bitsOf(60.0);
    EXPECT_EQ(ask(environment, allSet), expected);
    EXPECT_TRUE(asked.empty());
}

TEST(EnvironmentTable, answersZeroForAnAbsentKey) {
    NoxPlugInEnvironment environment;
    EXPECT_EQ(environment.getValue(0), 0u);
    environment.setValue(0, 5);
    environment.setValue(0xFFFFFFFFu, 0xFFFFFFFEu);
    EXPECT_EQ(environment.getValue(0), 5u);
    EXPECT_EQ(environment.getValue(0xFFFFFFFFu), 0xFFFFFFFEu);
    EXPECT_EQ(environment.getValue(1), 0u);
    environment.setValue(0, 6);
    EXPECT_EQ(environment.getValue(0), 6u);
    environment.eraseValue(0);
    environment.eraseValue(0);
    EXPECT_EQ(environment.getValue(0), 0u);
    EXPECT_EQ(environment.getValue(0xFFFFFFFFu), 0xFFFFFFFEu);
}
