// SPDX-License-Identifier: GPL-3.0-or-later
// The coefficient packet that the product's values generate. The expected words were worked out
// with 60 decimal digits from the formulas, rounded to single precision where the arithmetic
// rounds.
#include "brolt/model/QMBrolt_ParameterValues.h"

#include "brolt/model/QMBrolt_ParametersSet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

namespace {

using Words = std::array<std::uint32_t, 18>;

constexpr std::size_t outputGainWord = 0;
constexpr std::size_t wetMixWord = 1;
constexpr std::size_t osc1GainWord = 2;
constexpr std::size_t osc2GainWord = 3;
constexpr std::size_t versionWord = 5;
constexpr std::uint32_t one = 0x3F800000; // 1.0F

constexpr Words defaultRecord{0x3f800000, 0x3f800000, 0x3f800000, 0x3e809bcc, 0x472c4400,
                              0x00000002, 0x3f7ffdfd, 0x3f7fe931, 0x3f7ffbfa, 0x3a83126f,
                              0x3cd318a1, 0x39c37efd, 0x3cd318a1, 0x39c37efd, 0x3f7de425,
                              0x3f7ebc49, 0x3f7bc6df, 0x3f7d7809};

struct Setting {
    const char (&id)[5];
    double value;
};

// No two of one kind are the same, so that a value that goes to another's field is found out.
constexpr Setting otherSettings[] = {
    {"afre", 440.0}, {"sfre", 20.0},  {"mgan", 6.0},  {"dafr", 300.0},
    {"dsfr", 77.5},  {"dmgn", -3.5},  {"attk", 1.25}, {"rlse", 1000.0},
    {"patt", 5.0},   {"prls", 37.31}, {"wetd", 37.5}, {"gain", -24.0},
};

constexpr Words otherRecord{0x3d813855, 0x3ec00000, 0x3fff64c2, 0x3f2b1896, 0x472c4400, 0x00000002,
                            0x3f7ffdfd, 0x3f7fe931, 0x3f7ffbfa, 0x3a83126f, 0x3d279122, 0x385afd9e,
                            0x3c2a3363, 0x3ab74c4e, 0x3f76ade0, 0x3f7f943e, 0x3f79a825, 0x3f7e5db6};

class CoefficientPacket : public testing::Test {
protected:
    void store(const Setting& setting) {
        values->storeValue(set.indexOfID(fourCharCode(setting.id)), setting.value);
    }

    Words generated() {
        PacketList packets;
        values->generatePackets(packets);
        Words words{};
        EXPECT_EQ(packets.size(), 1u);
        EXPECT_EQ(packets[0]->kind, 0u);
        EXPECT_EQ(packets[0]->length, 72u);
        std::memcpy(words.data(), packets[0]->data, sizeof words);
        return words;
    }

    QM::QMBrolt_ParametersSet set{1};
    std::unique_ptr<QM::QMParameterValues> values = set.createParameterValues();
};

} // namespace

TEST_F(CoefficientPacket, ofTheDefaultsIsTheKnownRecord) {
    EXPECT_EQ(generated(), defaultRecord);
}

TEST_F(CoefficientPacket, isTheSameForStereo) {
    QM::QMBrolt_ParametersSet stereo(2);
    values = stereo.createParameterValues();
    EXPECT_EQ(generated(), defaultRecord);
    values.reset(); // before its set
}

TEST_F(CoefficientPacket, bringsEveryParameterToItsField) {
    for (const Setting& setting : otherSettings)
        store(setting);
    EXPECT_EQ(generated(), otherRecord);
}

TEST_F(CoefficientPacket, doesNotDependOnTheOrderOfTheChanges) {
    std::vector<const Setting*> order;
    for (const Setting& setting : otherSettings)
        order.push_back(&setting);
    std::reverse(order.begin(), order.end());
    for (const Setting* setting : order)
        store(*setting);
    EXPECT_EQ(generated(), otherRecord);

    std::rotate(order.begin(), order.begin() + 5, order.end());
    values = set.createParameterValues();
    for (const Setting* setting : order)
        values->setParameterValue(set.indexOfID(fourCharCode(setting->id)), setting->value,
                                  nullptr);
    EXPECT_EQ(generated(), otherRecord);
}

TEST_F(CoefficientPacket, countsItsVersionFromTwo) {
    for (std::uint32_t version = 2; version < 10; ++version) {
        Words expected = defaultRecord;
        expected[versionWord] = version;
        EXPECT_EQ(generated(), expected);
    }
}

TEST_F(CoefficientPacket, versionsAreCountedForEachValuesObjectApart) {
    generated();
    generated();
    values = set.createParameterValues();
    EXPECT_EQ(generated()[versionWord], 2u);
}

TEST_F(CoefficientPacket, replacesWhatIsInTheList) {
    PacketList packets;
    packets.push_back(std::make_unique<Packet>(1u, 4u));
    packets.push_back(std::make_unique<Packet>(0u, 8u));
    values->generatePackets(packets);
    ASSERT_EQ(packets.size(), 1u);
    EXPECT_EQ(packets[0]->kind, 0u);
    EXPECT_EQ(packets[0]->length, 72u);
    values->generatePackets(packets);
    ASSERT_EQ(packets.size(), 1u);
    values->releasePackets(packets);
    EXPECT_TRUE(packets.empty());
}

TEST_F(CoefficientPacket, thereIsNoSharcSet) {
    PacketList packets;
    packets.push_back(std::make_unique<Packet>(0u, 72u));
    values->generateSharcPackets(packets);
    EXPECT_TRUE(packets.empty());
    EXPECT_EQ(generated()[versionWord], 2u);
}

TEST_F(CoefficientPacket, underBypassPassesTheInputWhateverTheGains) {
    for (const Setting& setting : otherSettings)
        store(setting);
    store({"mbyp", 1.0});
    Words expected = otherRecord;
    expected[outputGainWord] = one;
    expected[wetMixWord] = 0;
    EXPECT_EQ(generated(), expected) << "everything else follows the parameters";
}

TEST_F(CoefficientPacket, hasNoGainForAnOscillatorThatIsOff) {
    for (const Setting& setting : otherSettings)
        store(setting);
    store({"osc1", 0.0});
    Words expected = otherRecord;
    expected[osc1GainWord] = 0;
    EXPECT_EQ(generated(), expected);

    store({"osc2", 0.0});
    expected[osc2GainWord] = 0;
    expected[versionWord] = 3;
    EXPECT_EQ(generated(), expected);

    store({"osc1", 1.0});
    expected[osc1GainWord] = otherRecord[osc1GainWord];
    expected[versionWord] = 4;
    EXPECT_EQ(generated(), expected);
}

TEST_F(CoefficientPacket, takesASwitchAsOnUnlessItIsExactlyZero) {
    store({"osc1", 1e-300});
    store({"osc2", 0.25});
    EXPECT_EQ(generated(), defaultRecord);
    store({"mbyp", 1e-300});
    Words expected = defaultRecord;
    expected[wetMixWord] = 0;
    expected[versionWord] = 3;
    EXPECT_EQ(generated(), expected);
}

TEST_F(CoefficientPacket, takesValuesInSinglePrecision) {
    // The single-precision neighbour of 33.3333333333, divided by 100, is 3eaaaaaa; the division in
    // double precision would have given 3eaaaaab.
    store({"wetd", 33.3333333333});
    EXPECT_EQ(generated()[wetMixWord], 0x3eaaaaaau);
}

TEST_F(CoefficientPacket, isComputedFor44100HertzWhateverTheRate) {
    QM::QMParameterChanges changes;
    values->setSampleRate(96000.0, changes);
    EXPECT_EQ(generated(), defaultRecord);
}

TEST_F(CoefficientPacket, staysFiniteForAnythingThatIsSet) {
    for (const double value :
         {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()}) {
        for (std::int32_t i = 0; i < 15; ++i)
            values->setParameterValue(i, value, nullptr);
        Words words = generated();
        for (std::size_t i = 0; i < words.size(); ++i) {
            constexpr std::uint32_t exponentBits = 0x7F800000;
            EXPECT_NE(words[i] & exponentBits, exponentBits) << value << ", word " << i;
        }
    }
}
