// SPDX-License-Identifier: GPL-3.0-or-later
// Test doubles around the flushers: an instance whose delivery entries are mocked, a processing host
// that is mocked whole, and values that generate scripted packets.
#pragma once

#include "plugin-model/INoxPlugInProcessingHost.h"
#include "plugin-model/NoxPlugIn.h"
#include "plugin-model/NoxPlugInType.h"
#include "plugin-model/NoxPlugInTypeGroup.h"
#include "plugin-model/QMParameterValues.h"
#include "plugin-model/tests/ParameterTestTable.h"

#include <gmock/gmock.h>

#include <cstring>

namespace flusherTest {

class TypeGroup : public NoxPlugInTypeGroup {
public:
    TypeGroup()
        : NoxPlugInTypeGroup(nullptr, {}) {}

    [[nodiscard]] FourCharCode manufacturerCode() const override { return 0; }
    [[nodiscard]] std::string manufacturerName() const override { return {}; }
    [[nodiscard]] std::vector<std::string> names() const override { return {}; }

protected:
    std::unique_ptr<INoxPlugInType> createType(FourCharCode) override { return nullptr; }
};

/// A type without parameters, for instances that need one.
struct Type {
    TypeGroup group;
    NoxPlugInType type{group, nullptr, {}, nullptr};
};

/// An instance without a host of its own: processingHost is the test's to answer.
class PlugIn : private Type, public NoxPlugIn {
public:
    PlugIn()
        : NoxPlugIn(Type::type, nullptr, nullptr) {
        setRemoteInstanceID(0x123456789ABCDEF0u);
    }

    MOCK_METHOD(INoxPlugInProcessingHost*, processingHost, (), (const, override));
    MOCK_METHOD(void, pushCoefficients, (const Packet&), (override));
    MOCK_METHOD(void, handleMessage, (const Packet&), (override));
};

class Host : public INoxPlugInProcessingHost {
public:
    MOCK_METHOD(const char*, className, (), (const, override));
    MOCK_METHOD(const char*, hostLabel, (), (const, override));
    MOCK_METHOD(void, setEnvironment, (INoxPlugInEnvironment*), (override));
    MOCK_METHOD(INoxPlugInEnvironment*, environment, (), (const, override));
    MOCK_METHOD(NoxRuntimeArchitecture, runtimeArchitecture, (), (const, override));
    MOCK_METHOD(std::uint32_t, hostWord, (), (const, override));
    MOCK_METHOD(void, setHostFlag, (), (override));
    MOCK_METHOD(void, clearHostFlag, (), (override));
    MOCK_METHOD(bool, hostFlag, (), (const, override));
    MOCK_METHOD(void, beginNotifications, (), (override));
    MOCK_METHOD(void, endNotifications, (), (override));
    MOCK_METHOD(void, postNotification, (INoxPlugInNotificationTarget&, std::uint64_t), (override));
    MOCK_METHOD(void, setSampleRate, (const double*), (override));
    MOCK_METHOD(double, sampleRate, (), (const, override));
    MOCK_METHOD(void, setBlockSize, (std::int32_t), (override));
    MOCK_METHOD(std::int32_t, blockSize, (), (const, override));
    MOCK_METHOD(float*, scratchBufferA, (), (override));
    MOCK_METHOD(float*, scratchBufferB, (), (override));
    MOCK_METHOD(NoxResult, instantiate, (INoxPlugIn&), (override));
    MOCK_METHOD(NoxResult, testInstantiatePlugIn, (INoxPlugIn&), (override));
    MOCK_METHOD(NoxResult, removePlugIn, (INoxPlugIn*), (override));
    MOCK_METHOD(std::int32_t, slotCount, (), (const, override));
    MOCK_METHOD(const NoxSlotRecord*, slotInfo, (std::int32_t), (const, override));
    MOCK_METHOD(INoxPlugIn*, plugInAt, (std::int32_t), (const, override));
    MOCK_METHOD(std::int32_t, defaultInputSlot, (std::int32_t), (const, override));
    MOCK_METHOD(std::int32_t, defaultOutputSlot, (std::int32_t), (const, override));
    MOCK_METHOD(void*, allocateRemoteBlock, (std::size_t, const char*), (override));
    MOCK_METHOD(void, freeRemoteBlock, (void*), (override));
    MOCK_METHOD(NoxResult, writeRemoteBlock, (void*, std::size_t, std::size_t, const void*),
                (override));
    MOCK_METHOD(NoxResult, readRemoteBlock, (void*, std::size_t, std::size_t, void*), (override));
    MOCK_METHOD(NoxResult, readPlugInData,
                (INoxPlugIn&, std::uint64_t, std::size_t, std::size_t, void*), (override));
    MOCK_METHOD(NoxResult, sendCoefficients,
                (std::uint32_t, INoxPlugIn&, std::uint64_t, std::uint32_t, const void*),
                (override));
    MOCK_METHOD(NoxResult, sendMessage,
                (std::uint32_t, INoxPlugIn&, std::uint64_t, std::uint32_t, const void*),
                (override));
    MOCK_METHOD(NoxResult, announceTransfer,
                (std::uint32_t, INoxPlugIn&, std::uint64_t, std::int32_t, const std::int32_t*),
                (override));
    MOCK_METHOD(NoxResult, fetchInputCopy,
                (INoxPlugIn&, std::uint64_t, std::uint32_t, std::uint32_t, void*), (override));
    MOCK_METHOD(NoxResult, fetchAnalysisData, (INoxPlugIn&, std::uint64_t, void*), (override));
};

class Values : public QM::QMParameterValues {
public:
    explicit Values(parameterTest::Set& testSet)
        : QMParameterValues(testSet, 44100.0) {}

    MOCK_METHOD(void, generatePackets, (PacketList&), (override));
    MOCK_METHOD(void, generateSharcPackets, (PacketList&), (override));
    MOCK_METHOD(void, releasePackets, (PacketList&), (override));
};

/// A packet to generate: its kind and its payload in words.
struct Script {
    std::uint32_t kind;
    std::vector<std::uint32_t> words;
};

/// An action that appends the scripted packets to a list.
inline auto append(std::vector<Script> scripts) {
    return [scripts = std::move(scripts)](PacketList& list) {
        for (const Script& each : scripts) {
            const std::size_t bytes = each.words.size() * sizeof(std::uint32_t);
            list.push_back(std::make_unique<Packet>(each.kind, bytes));
            std::memcpy(list.back()->data, each.words.data(), bytes);
        }
    };
}

/// An action that empties the list.
inline auto empty() {
    return [](PacketList& list) { list.clear(); };
}

inline std::vector<std::uint32_t> wordsAt(const void* data, std::size_t count) {
    std::vector<std::uint32_t> words(count);
    std::memcpy(words.data(), data, count * sizeof(std::uint32_t));
    return words;
}

MATCHER_P2(IsPacket, kind, words, "") {
    return arg.kind == kind && arg.length == words.size() * sizeof(std::uint32_t) &&
           wordsAt(arg.data, words.size()) == words;
}

/// Matches an address by the words found there.
MATCHER_P(PointsToWords, words, "") {
    return wordsAt(arg, words.size()) == words;
}

} // namespace flusherTest
