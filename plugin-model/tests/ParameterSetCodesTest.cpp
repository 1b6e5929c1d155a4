// SPDX-License-Identifier: GPL-3.0-or-later
// Identifiers, the codes that settings are recognised by, and meters.
#include "plugin-model/tests/ParameterTestTable.h"
#include "plugin-model/tests/ParameterTextProbe.h"

#include <gtest/gtest.h>

using parameterTest::outOfRange;
using parameterTest::textWritten;

namespace {

constexpr FourCharCode maker = fourCharCode("Make");
constexpr FourCharCode product = fourCharCode("Prod");
constexpr FourCharCode other = fourCharCode("Othr");

} // namespace

TEST(FourCharCode, hasItsFirstCharacterInTheMostSignificantByte) {
    EXPECT_EQ(fourCharCode("gain"), 0x6761696Eu);
    EXPECT_EQ(fourCharText(0x6761696Eu), "gain");
    EXPECT_EQ(fourCharText(fourCharCode("out ")), "out ");
    EXPECT_EQ(fourCharCode("\xff\xfe\x80\x01"), 0xFFFE8001u);
    EXPECT_EQ(fourCharText(0xFFFE8001u), "\xff\xfe\x80\x01");
}

TEST(QMParameterSetCodes, anIdentifierLeadsToItsIndexAndBack) {
    const parameterTest::Set set;
    EXPECT_EQ(set.indexOfID(fourCharCode("levl")), 0);
    EXPECT_EQ(set.indexOfID(fourCharCode("mode")), 1);
    EXPECT_EQ(set.indexOfID(fourCharCode("time")), 2);
    EXPECT_EQ(set.indexOfID(fourCharCode("swit")), 3);
    EXPECT_EQ(set.indexOfID(fourCharCode("stry")), 4);
    EXPECT_EQ(set.idOfIndex(4), fourCharCode("stry"));
}

TEST(QMParameterSetCodes, anUnknownIdentifierHasTheIndexMinusOne) {
    const parameterTest::Set set;
    for (const FourCharCode id :
         {0u, 0xFFFFFFFFu, fourCharCode("LEVL"), fourCharCode("lvel"), fourCharCode("mtrL")})
        EXPECT_EQ(set.indexOfID(id), -1) << id;
}

TEST(QMParameterSetCodes, theLaterOfTwoRecordsWithTheSameIdentifierIsFound) {
    std::array<NoxPlugInParameter, 3> table{parameterTest::parameters()[0],
                                            parameterTest::parameters()[1],
                                            parameterTest::parameters()[2]};
    table[2].id = table[0].id;
    const QM::QMParameterSet set(table, {}, {}, 1);
    EXPECT_EQ(set.indexOfID(table[0].id), 2);
    EXPECT_EQ(set.idOfIndex(0), set.idOfIndex(2));
}

TEST(QMParameterSetCodes, acceptsNoPairAtFirst) {
    const parameterTest::Set set;
    EXPECT_EQ(set.firstCode(), 0u);
    EXPECT_EQ(set.secondCode(), 0u);
    EXPECT_FALSE(set.acceptsPair(0, 0));
    EXPECT_FALSE(set.acceptsPair(maker, product));
}

TEST(QMParameterSetCodes, acceptsThePairsThatWereAdded) {
    parameterTest::Set set;
    set.addAcceptedPair(maker, product);
    set.addAcceptedPair(maker, product);
    set.addAcceptedPair(maker, other);
    EXPECT_TRUE(set.acceptsPair(maker, product));
    EXPECT_TRUE(set.acceptsPair(maker, other));
    EXPECT_FALSE(set.acceptsPair(product, maker));
    EXPECT_FALSE(set.acceptsPair(other, product));
    EXPECT_FALSE(set.acceptsPair(maker, 0));
}

TEST(QMParameterSetCodes, addingAPairIsNotTakingItAsTheSetsOwn) {
    parameterTest::Set set;
    set.addAcceptedPair(maker, product);
    EXPECT_EQ(set.firstCode(), 0u);
    EXPECT_EQ(set.secondCode(), 0u);
}

TEST(QMParameterSetCodes, aPairWithAZeroIsNotAccepted) {
    parameterTest::Set set;
    set.addAcceptedPair(0, product);
    set.addAcceptedPair(maker, 0);
    set.addAcceptedPair(0, 0);
    EXPECT_FALSE(set.acceptsPair(0, product));
    EXPECT_FALSE(set.acceptsPair(maker, 0));
    EXPECT_FALSE(set.acceptsPair(0, 0));
}

TEST(QMParameterSetCodes, theSetsOwnPairIsAcceptedOnceBothCodesAreSet) {
    parameterTest::Set firstThenSecond;
    firstThenSecond.setFirstCode(maker);
    EXPECT_EQ(firstThenSecond.firstCode(), maker);
    EXPECT_FALSE(firstThenSecond.acceptsPair(maker, 0));
    firstThenSecond.setSecondCode(product);
    EXPECT_EQ(firstThenSecond.secondCode(), product);
    EXPECT_TRUE(firstThenSecond.acceptsPair(maker, product));

    parameterTest::Set secondThenFirst;
    secondThenFirst.setSecondCode(product);
    secondThenFirst.setFirstCode(maker);
    EXPECT_TRUE(secondThenFirst.acceptsPair(maker, product));
}

TEST(QMParameterSetCodes, anEarlierOwnPairStaysAccepted) {
    parameterTest::Set set;
    set.setFirstCode(maker);
    set.setSecondCode(product);
    set.setSecondCode(other);
    EXPECT_EQ(set.secondCode(), other);
    EXPECT_TRUE(set.acceptsPair(maker, product));
    EXPECT_TRUE(set.acceptsPair(maker, other));
}

TEST(QMParameterSetCodes, codesWithTheTopBitAreOrdinaryCodes) {
    parameterTest::Set set;
    set.addAcceptedPair(0xFFFFFFFFu, 0x80000000u);
    EXPECT_TRUE(set.acceptsPair(0xFFFFFFFFu, 0x80000000u));
    EXPECT_FALSE(set.acceptsPair(0x80000000u, 0xFFFFFFFFu));
}

TEST(QMParameterSetCodes, identifierListsAreStoredAndReplaced) {
    parameterTest::Set set;
    EXPECT_TRUE(set.idListMap().empty());
    const QM::IQMParameterSet::IDListMap* address = &set.idListMap();

    set.addIDList(maker, {1, 2, 3});
    set.addIDList(product, {});
    set.addIDList(maker, {9});

    EXPECT_EQ(&set.idListMap(), address);
    ASSERT_EQ(set.idListMap().size(), 2u);
    EXPECT_EQ(set.idListMap().at(maker), std::vector<std::uint32_t>{9});
    EXPECT_TRUE(set.idListMap().at(product).empty());
}

TEST(QMParameterSetMeters, areAnsweredByIndex) {
    const parameterTest::Set set;
    ASSERT_EQ(set.meterCount(), 2);
    EXPECT_EQ(set.meterID(0), fourCharCode("mtrL"));
    EXPECT_EQ(set.meterID(1), fourCharCode("mtrR"));
    const auto name = [&](std::int32_t meter, std::size_t size) {
        return textWritten([&](char* b, std::size_t n) { set.copyMeterName(meter, b, n); }, size);
    };
    EXPECT_EQ(name(0, 64), "Left");
    EXPECT_EQ(name(1, 64), "Right");
    EXPECT_EQ(name(1, 4), "Rig");
    EXPECT_EQ(name(1, 0), parameterTest::untouched);

    const NoxMeterDescriptor* right = set.meterDescriptor(1);
    ASSERT_NE(right, nullptr);
    EXPECT_STREQ(right->name, "Right");
    EXPECT_EQ(right->id, fourCharCode("mtrR"));
    EXPECT_EQ(right->channel, 1u);
    EXPECT_EQ(right->kind, 6u);
}

TEST(QMParameterSetMeters, areFoundByIdentifier) {
    const parameterTest::Set set;
    EXPECT_EQ(set.indexOfMeterID(fourCharCode("mtrL")), 0);
    EXPECT_EQ(set.indexOfMeterID(fourCharCode("mtrR")), 1);
    EXPECT_EQ(set.indexOfMeterID(fourCharCode("levl")), -1);
    EXPECT_EQ(set.indexOfMeterID(0), -1);
}

TEST(QMParameterSetMeters, giveNeutralAnswersForIndicesOutOfRange) {
    const parameterTest::Set set;
    for (const std::int32_t meter : {-1, 2, outOfRange[3], outOfRange[4]}) {
        EXPECT_EQ(set.meterID(meter), 0u);
        EXPECT_EQ(set.meterDescriptor(meter), nullptr);
        EXPECT_EQ(textWritten([&](char* b, std::size_t n) { set.copyMeterName(meter, b, n); }), "");
    }
}
