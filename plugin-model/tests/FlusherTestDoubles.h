// SPDX-License-Identifier: GPL-3.0-or-later
// Test doubles around the flushers: an instance whose delivery entries are mocked, and values that
// generate scripted packets.
#pragma once

#include "plugin-model/NoxPlugIn.h"
#include "plugin-model/NoxPlugInType.h"
#include "plugin-model/NoxPlugInTypeGroup.h"
#include "plugin-model/QMParameterValues.h"
#include "plugin-model/tests/MockProcessingHost.h"
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
            if (bytes > 0) // an empty vector may have no address
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
    if (count > 0)
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
