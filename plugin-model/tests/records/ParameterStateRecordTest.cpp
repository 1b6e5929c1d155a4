// SPDX-License-Identifier: GPL-3.0-or-later
// The flat form of the values, against bytes put together by hand.
#include "plugin-model/records/ParameterStateRecord.h"
#include "plugin-model/tests/StateTestKit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>

namespace {

using namespace stateTest;
using QM::ParameterStateRecord;
using Bytes = std::vector<std::byte>;

/// The record byte by byte, in either order.
class Encoder {
public:
    explicit Encoder(bool bigEndian)
        : swapped(bigEndian) {}

    void word(std::uint32_t value) { number(value, 4); }

    void real(double value) { number(std::bit_cast<std::uint64_t>(value), 8); }

    void zeros(std::size_t count) { bytes.resize(bytes.size() + count); }

    Bytes bytes;

private:
    void number(std::uint64_t value, std::size_t size) {
        for (std::size_t i = 0; i < size; ++i) {
            const std::size_t place = swapped ? size - 1 - i : i;
            bytes.push_back(static_cast<std::byte>(value >> (8 * place)));
        }
    }

    bool swapped;
};

Bytes encoded(bool bigEndian, const std::vector<double>& values, std::uint32_t version = 0,
              FourCharCode type = typeCode) {
    Encoder encoder(bigEndian);
    encoder.word(static_cast<std::uint32_t>(280 + 8 * values.size()));
    encoder.word(version);
    encoder.word(type);
    encoder.word(maker);
    encoder.word(bigEndian ? 1 : 0);
    encoder.zeros(276 - 20);
    encoder.word(static_cast<std::uint32_t>(values.size()));
    for (const double value : values)
        encoder.real(value);
    return encoder.bytes;
}

class StateRecord : public testing::Test {
protected:
    State state;
    Values& values = state.values;
    const std::vector<double> stored{1.0, 7.5, 30.0, 0.25};
};

TEST_F(StateRecord, hasItsFixedLayout) {
    state.setAll(stored);
    EXPECT_EQ(values.makeStateRecord(), encoded(false, stored));
}

TEST_F(StateRecord, isAppliedByIndexButForTheBypass) {
    QM::QMParameterChanges changes;
    ASSERT_TRUE(values.applyStateRecord(encoded(false, stored), &changes));
    EXPECT_EQ(values.all(), (std::vector{0.0, 7.5, 30.0, 0.25}));
    EXPECT_EQ(changes.count(), 3);
    EXPECT_EQ(values.undoManager().undoDescription(), "Set Preset");
    values.undoManager().undo();
    EXPECT_EQ(values.getValue(levelIndex), 5.0);
}

TEST_F(StateRecord, isTakenInTheOtherByteOrderToo) {
    ASSERT_TRUE(values.applyStateRecord(encoded(true, stored), nullptr));
    EXPECT_EQ(values.all(), (std::vector{0.0, 7.5, 30.0, 0.25}));
}

TEST_F(StateRecord, withFewerOrMoreValuesSetsThoseThereAre) {
    ASSERT_TRUE(values.applyStateRecord(encoded(false, {0.0, 9.0}), nullptr));
    EXPECT_EQ(values.all(), (std::vector{0.0, 9.0, 20.0, 0.5}));
    ASSERT_TRUE(values.applyStateRecord(encoded(false, {0.0, 8.0, 40.0, 0.75, 5.0, 6.0}), nullptr));
    EXPECT_EQ(values.all(), (std::vector{0.0, 8.0, 40.0, 0.75}));
}

TEST_F(StateRecord, ofAnotherTypeOrALaterVersionIsRefused) {
    EXPECT_FALSE(values.applyStateRecord(encoded(false, stored, 1), nullptr));
    EXPECT_FALSE(values.applyStateRecord(encoded(false, stored, 0, fourCharCode("ELSE")), nullptr));
    EXPECT_TRUE(values.acceptsStateRecord(encoded(false, stored)));
    EXPECT_EQ(values.getValue(levelIndex), 5.0);
    EXPECT_FALSE(values.undoManager().canUndo());
}

TEST_F(StateRecord, cutOffAtAnyByteIsRefused) {
    const Bytes whole = encoded(false, stored);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
        EXPECT_FALSE(values.applyStateRecord(cut, nullptr)) << length;
    }
    EXPECT_EQ(values.getValue(levelIndex), 5.0);
}

TEST_F(StateRecord, thatPromisesMoreThanItHoldsIsRefused) {
    Bytes longer = encoded(false, stored);
    longer[0] = std::byte{0xFF};
    EXPECT_FALSE(ParameterStateRecord::of(longer));
    Bytes counting = encoded(false, stored);
    std::fill_n(counting.begin() + 276, 4, std::byte{0xFF});
    EXPECT_FALSE(ParameterStateRecord::of(counting));
    Bytes shorter = encoded(false, stored);
    shorter[0] = std::byte{16};
    shorter[1] = std::byte{0};
    EXPECT_FALSE(ParameterStateRecord::of(shorter));
}

TEST_F(StateRecord, mayBeFollowedByOtherBytes) {
    Bytes longer = encoded(false, stored);
    longer.resize(longer.size() + 100);
    EXPECT_TRUE(values.acceptsStateRecord(longer));
}

} // namespace
