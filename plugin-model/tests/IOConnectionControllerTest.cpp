// SPDX-License-Identifier: GPL-3.0-or-later
// Both connection controllers: what they tell the host and how they fill a block.
#include "plugin-model/DspIOConnectionController.h"
#include "plugin-model/QMSharcIOConnectionController.h"
#include "plugin-model/tests/MockProcessingHost.h"
#include "plugin-model/tests/TestPlugInModel.h"

#include <gtest/gtest.h>

#include <cstring>

using ::testing::_;
using ::testing::InSequence;
using ::testing::Pointee;
using ::testing::Ref;
using ::testing::Return;

namespace {

constexpr std::uint64_t id = 0x1122334455667788u;

class IOConnectionControllerTest : public ::testing::Test {
protected:
    TestTypeGroup group;
    NiceProcessingHost host{NoxArchitecture::nativeUndelivered};
    TestPlugIn plugIn{group.testType(), nullptr, nullptr};
    DspIOConnectionController dsp{plugIn};
    QMSharcIOConnectionController sharc{plugIn, 1, 2, 3};

    void attach() {
        plugIn.setRemoteInstanceID(id);
        plugIn.setProcessingHost(&host);
    }

    /// The host answers every request with words that say where they come from.
    void answerWithOffsets() {
        ON_CALL(host, fetchInputCopy)
            .WillByDefault([](INoxPlugIn&, std::uint64_t, std::uint32_t offset, std::uint32_t count,
                              void* destination) {
                for (std::uint32_t i = 0; i < count; ++i)
                    static_cast<std::uint32_t*>(destination)[i] = 100 + offset + i;
                return NoxResultCode::noHostAvailable;
            });
    }

    static std::vector<std::uint32_t> wordsOf(const Packet& packet) {
        std::vector<std::uint32_t> words(packet.wordCount());
        std::memcpy(words.data(), packet.data, words.size() * sizeof(std::uint32_t));
        return words;
    }

    static void fill(Packet& packet, unsigned char byte) {
        std::memset(packet.data, byte, packet.length);
    }

    static void* wordAt(Packet& packet, std::size_t word) {
        return static_cast<std::uint32_t*>(packet.data) + word;
    }
};

constexpr std::uint32_t old = 0x77777777u;

} // namespace

TEST_F(IOConnectionControllerTest, withoutPairsOneRequestAsksForTheWholeBlock) {
    attach();
    Packet block(Packet::messageKind, 40);
    EXPECT_CALL(host, fetchInputCopy(Ref(plugIn), id, 0, 10, block.data)).Times(2);
    dsp.transfer(block, 0, nullptr);
    sharc.transfer(block, 0, nullptr);
}

TEST_F(IOConnectionControllerTest, aLengthIsCutToWholeWords) {
    attach();
    Packet block(Packet::messageKind, 43);
    EXPECT_CALL(host, fetchInputCopy(Ref(plugIn), id, 0, 10, block.data)).Times(2);
    dsp.transfer(block, 0, nullptr);
    sharc.transfer(block, 0, nullptr);
}

TEST_F(IOConnectionControllerTest, theDspControllerAnnouncesNoCode) {
    attach();
    Packet block(Packet::messageKind, 8);
    const InSequence inOrder;
    EXPECT_CALL(host, announceTransfer(0, Ref(plugIn), id, 0, nullptr));
    EXPECT_CALL(host, fetchInputCopy);
    dsp.transfer(block, 0, nullptr);
}

TEST_F(IOConnectionControllerTest, theSharcControllerAnnouncesItsTransferCode) {
    attach();
    Packet block(Packet::messageKind, 8);
    {
        const InSequence inOrder;
        EXPECT_CALL(host, announceTransfer(0, Ref(plugIn), id, 1, Pointee(3)));
        EXPECT_CALL(host, fetchInputCopy);
        EXPECT_CALL(host, announceTransfer(0, Ref(plugIn), id, 1, Pointee(33)));
        EXPECT_CALL(host, fetchInputCopy);
    }
    sharc.transfer(block, 0, nullptr);
    sharc.setTransferCode(33);
    sharc.transfer(block, 0, nullptr);
}

TEST_F(IOConnectionControllerTest, pairsAreRequestedInTheirOrderEachToItsPlace) {
    attach();
    Packet block(Packet::messageKind, 40);
    const std::array<QMTransferPair, 2> pairs{{{6, 3}, {1, 2}}};
    const InSequence inOrder;
    for (int i = 0; i < 2; ++i) {
        EXPECT_CALL(host, fetchInputCopy(Ref(plugIn), id, 6, 3, wordAt(block, 6)));
        EXPECT_CALL(host, fetchInputCopy(Ref(plugIn), id, 1, 2, wordAt(block, 1)));
    }
    dsp.transfer(block, 2, pairs.data());
    sharc.transfer(block, 2, pairs.data());
}

TEST_F(IOConnectionControllerTest, theDspControllerZeroesWhatNoPairCovers) {
    attach();
    answerWithOffsets();
    Packet block(Packet::messageKind, 40);
    fill(block, 0x77);
    const std::array<QMTransferPair, 2> pairs{{{6, 3}, {1, 2}}};
    dsp.transfer(block, 2, pairs.data());
    EXPECT_EQ(wordsOf(block), (std::vector<std::uint32_t>{0, 101, 102, 0, 0, 0, 106, 107, 108, 0}));
}

TEST_F(IOConnectionControllerTest, theSharcControllerLeavesWhatNoPairCovers) {
    attach();
    answerWithOffsets();
    Packet block(Packet::messageKind, 16);
    fill(block, 0x77);
    const QMTransferPair pair{1, 2};
    sharc.transfer(block, 1, &pair);
    EXPECT_EQ(wordsOf(block), (std::vector<std::uint32_t>{old, 101, 102, old}));
}

TEST_F(IOConnectionControllerTest, theDspControllerZeroesWholeWordsOnly) {
    attach();
    Packet block(Packet::messageKind, 7);
    fill(block, 0x77);
    const QMTransferPair pair{0, 1};
    dsp.transfer(block, 1, &pair);
    const auto* bytes = static_cast<const unsigned char*>(block.data);
    const std::vector<unsigned char> seen(bytes, bytes + 7);
    EXPECT_EQ(seen, (std::vector<unsigned char>{0, 0, 0, 0, 0x77, 0x77, 0x77}));
}

TEST_F(IOConnectionControllerTest, aPairThatPassesTheBlocksEndIsCut) {
    attach();
    answerWithOffsets();
    Packet block(Packet::messageKind, 16);
    constexpr std::uint32_t huge = 0xFFFFFFFFu;
    const std::array<QMTransferPair, 4> pairs{{{2, 9}, {4, 1}, {huge, huge}, {1, 0}}};
    EXPECT_CALL(host, fetchInputCopy(_, _, 2, 2, wordAt(block, 2))).Times(2);
    dsp.transfer(block, 4, pairs.data());
    sharc.transfer(block, 4, pairs.data());
    EXPECT_EQ(wordsOf(block), (std::vector<std::uint32_t>{0, 0, 102, 103}));
}

TEST_F(IOConnectionControllerTest, withoutAHostTheBlockStaysAsItIs) {
    Packet block(Packet::messageKind, 8);
    fill(block, 0x77);
    const QMTransferPair pair{0, 1};
    dsp.transfer(block, 0, nullptr);
    dsp.transfer(block, 1, &pair);
    sharc.transfer(block, 0, nullptr);
    sharc.transfer(block, 1, &pair);
    EXPECT_EQ(wordsOf(block), (std::vector<std::uint32_t>{old, old}));
    sharc.inputConnected(0, 1);
    sharc.outputConnected(0, 1);
}

namespace {

/// What a connection sends: three words.
std::vector<std::int32_t> connectionWords(std::uint32_t count, const void* words) {
    std::vector<std::int32_t> result(count);
    std::memcpy(result.data(), words, count * sizeof(std::int32_t));
    return result;
}

} // namespace

TEST_F(IOConnectionControllerTest, theSharcControllerSendsEachConnectionAsThreeWords) {
    attach();
    std::vector<std::vector<std::int32_t>> sent;
    EXPECT_CALL(host, sendCoefficients(3, Ref(plugIn), id, 3, _))
        .Times(4)
        .WillRepeatedly(
            [&](std::uint32_t, INoxPlugIn&, std::uint64_t, std::uint32_t count, const void* words) {
                sent.push_back(connectionWords(count, words));
                return NoxResultCode::noError;
            });
    sharc.inputConnected(4, 5);
    sharc.outputConnected(6, -7);
    sharc.setInputCode(11);
    sharc.setOutputCode(12);
    sharc.inputConnected(1, 2);
    sharc.outputConnected(3, 4);
    EXPECT_EQ(sent, (std::vector<std::vector<std::int32_t>>{
                        {1, 4, 5}, {2, 6, -7}, {11, 1, 2}, {12, 3, 4}}));
}

TEST_F(IOConnectionControllerTest, theDspControllerTellsNothingOfConnectionsAndCodes) {
    attach();
    EXPECT_CALL(host, sendCoefficients).Times(0);
    EXPECT_CALL(host, sendMessage).Times(0);
    dsp.inputConnected(0, 1);
    dsp.outputConnected(0, 1);
    dsp.setInputCode(1);
    dsp.setOutputCode(2);
    dsp.setTransferCode(3);
    Packet block(Packet::messageKind, 8);
    EXPECT_CALL(host, announceTransfer(0, Ref(plugIn), id, 0, nullptr));
    dsp.transfer(block, 0, nullptr);
}

TEST_F(IOConnectionControllerTest, anInstanceOnASharcHostSendsItsConnections) {
    NiceProcessingHost sharcHost(NoxArchitecture::sharc);
    ON_CALL(sharcHost, defaultOutputSlot).WillByDefault(Return(5));
    plugIn.setRemoteInstanceID(id);
    plugIn.setProcessingHost(&sharcHost);
    std::vector<std::vector<std::int32_t>> sent;
    EXPECT_CALL(sharcHost, sendCoefficients(3, Ref(plugIn), id, 3, _))
        .WillRepeatedly(
            [&](std::uint32_t, INoxPlugIn&, std::uint64_t, std::uint32_t count, const void* words) {
                sent.push_back(connectionWords(count, words));
                return NoxResultCode::noError;
            });
    plugIn.connectInput(1, 8);
    plugIn.connectOutput(2, 5);
    plugIn.connectOutput(2, 6);
    EXPECT_EQ(sent, (std::vector<std::vector<std::int32_t>>{{1, 1, 8}, {2, 2, 6}}));
    plugIn.setProcessingHost(nullptr);
}
