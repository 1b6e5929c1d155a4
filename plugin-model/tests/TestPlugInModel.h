// SPDX-License-Identifier: GPL-3.0-or-later
// A small product for tests of the plug-in model: a group with a two-in, three-out type, three
// parameters, two meters, and instances that show what reaches their product side.
//
// Its values object makes two packets a flush (a coefficient record of two words and a message) and
// a SHARC set of one packet of one word, and moves 'chrl' when the rate is told.
#pragma once

#include "plugin-model/NoxPlugIn.h"
#include "plugin-model/NoxPlugInType.h"
#include "plugin-model/NoxPlugInTypeGroup.h"
#include "plugin-model/QMParameterSet.h"
#include "plugin-model/QMParameterValues.h"

#include <array>
#include <cstring>
#include <functional>
#include <utility>
#include <vector>

/// A call of a parameter's change hook: (option, index).
using TestHookCall = std::pair<std::uint32_t, std::int32_t>;

class TestPlugIn : public NoxPlugIn {
public:
    using NoxPlugIn::NoxPlugIn;
    using NoxPlugIn::setWantsAnalysisBuffer;

    void pushCoefficients(const Packet& packet) override {
        pushedLengths.push_back(packet.length);
        onPush();
    }

    void handleMessage(const Packet& packet) override { messageLengths.push_back(packet.length); }

    [[nodiscard]] std::uint32_t analysisWordCount() const override { return analysisWords; }

    [[nodiscard]] std::int32_t meterRecordCount() const override {
        return meterCount >= 0 ? meterCount : NoxPlugIn::meterRecordCount();
    }

    void receiveAnalysis(const Packet& packet) override {
        received.resize(packet.wordCount());
        std::memcpy(received.data(), packet.data, received.size() * sizeof(float));
    }

    std::vector<NoxMeterRecord>& records() { return meterRecords(); }

    std::vector<std::uint64_t> pushedLengths;
    std::vector<std::uint64_t> messageLengths;
    std::function<void()> onPush = [] {};
    std::vector<TestHookCall> hookCalls;
    std::uint32_t analysisWords = 0;
    std::int32_t meterCount = -1; ///< negative: as many as the type says
    std::vector<float> received;
    NoxResult hookResult = NoxResultCode::noError; ///< of the channel configuration

protected:
    NoxResult ioConfigurationHook(std::int32_t, std::int32_t) override { return hookResult; }
};

class TestValues : public QM::QMParameterValues {
public:
    explicit TestValues(QM::IQMParameterSet& parameterSet)
        : QMParameterValues(parameterSet, 44100.0) {}

    ~TestValues() override { onDestruction(); }

    void generatePackets(PacketList& packets) override {
        releasePackets(packets);
        packets.push_back(std::make_unique<Packet>(Packet::coefficientKind, 8));
        packets.push_back(std::make_unique<Packet>(Packet::messageKind, 12));
    }

    void generateSharcPackets(PacketList& packets) override {
        releasePackets(packets);
        packets.push_back(std::make_unique<Packet>(Packet::messageKind, 4));
    }

    void setSampleRate(double rate, QM::QMParameterChanges& changes) override {
        QMParameterValues::setSampleRate(rate, changes);
        if (rateMovesAParameter)
            changes.record(2, 77.0);
    }

    bool rateMovesAParameter = false;
    std::function<void()> onDestruction = [] {};
};

inline void testChangeHook(INoxPlugIn& plugIn, std::uint32_t option, std::int32_t index) {
    dynamic_cast<TestPlugIn&>(plugIn).hookCalls.emplace_back(option, index);
}

// clang-format off
inline constexpr std::array<NoxPlugInParameter, 3> testParameters{{
    // name    names    unit text    with unit min  max    default taper             step  factor id                    grp sub hook            opt1 2  unit 0 curve opt3
    {"Alfa",   nullptr, "Hz", nullptr, nullptr, 0.0, 10.0,  5.0,   NoxTaper::linear,  0.5,  1.0,   fourCharCode("alfa"), 0,  0,  testChangeHook, 11,  0, 8,   0, 0.0, 0},
    {"Bravo",  nullptr, "",   nullptr, nullptr, 0.0, 1.0,   1.0,   NoxTaper::stepped, 1.0,  1.0,   fourCharCode("brvo"), 0,  0,  nullptr,        22,  0, 2,   0, 0.0, 0},
    {"Charly", nullptr, "%",  nullptr, nullptr, 1.0, 100.0, 10.0,  NoxTaper::linear,  0.01, 1.0,   fourCharCode("chrl"), 0,  0,  testChangeHook, 33,  0, 3,   0, 0.0, 0},
}};
inline constexpr std::array<NoxMeterDescriptor, 2> testMeters{{
    {"First",  fourCharCode("mtr1"), 0, 1},
    {"Second", fourCharCode("mtr2"), 0, 6},
}};

// clang-format on

class TestSet : public QM::QMParameterSet {
public:
    TestSet()
        : QMParameterSet(testParameters, {}, testMeters, 1) {}

    std::unique_ptr<QM::QMParameterValues> createParameterValues() override {
        return std::make_unique<TestValues>(*this);
    }
};

/// How much of a type there is.
enum class TestTypeKind { complete, withoutValues, withoutSet };

class TestType : public NoxPlugInType {
public:
    TestType(INoxPlugInTypeGroup& group, INoxPlugInEnvironment* environment, FourCharCode code,
             TestTypeKind typeKind, NoxPlugInTypeFields typeFields = {})
        : NoxPlugInType(group, environment, withChannels(std::move(typeFields), code),
                        typeKind == TestTypeKind::withoutSet ? nullptr
                                                             : std::make_unique<TestSet>())
        , kind(typeKind) {}

    std::unique_ptr<INoxPlugIn> createInstance() override {
        return std::make_unique<TestPlugIn>(*this, nullptr, environment());
    }

    std::unique_ptr<QM::QMParameterValues> createParameterValues() override {
        return kind == TestTypeKind::complete ? NoxPlugInType::createParameterValues() : nullptr;
    }

    void forgetInstance(const INoxPlugIn& instance) override {
        onForget(instance);
        NoxPlugInType::forgetInstance(instance);
    }

    std::unique_ptr<INoxPlugInImplementation> createImplementation(std::int32_t isa) override {
        implementationsAsked.push_back(isa);
        return isa == 3 ? std::make_unique<INoxPlugInImplementation>() : nullptr;
    }

    std::function<void(const INoxPlugIn&)> onForget = [](const INoxPlugIn&) {};
    std::vector<std::int32_t> implementationsAsked;

private:
    static NoxPlugInTypeFields withChannels(NoxPlugInTypeFields fields, FourCharCode code) {
        fields.typeCode = code;
        fields.inputConfigurationCodes = {4, 5};
        fields.outputConfigurationCodes = {6, 7, 8};
        return fields;
    }

    TestTypeKind kind;
};

class TestTypeGroup : public NoxPlugInTypeGroup {
public:
    explicit TestTypeGroup(INoxPlugInEnvironment* environment = nullptr,
                           TestTypeKind typeKind = TestTypeKind::complete,
                           NoxPlugInTypeFields typeFields = {})
        : NoxPlugInTypeGroup(environment, {fourCharCode("TST1"), fourCharCode("TST2")})
        , kind(typeKind)
        , fields(std::move(typeFields)) {}

    [[nodiscard]] FourCharCode manufacturerCode() const override { return fourCharCode("TMkr"); }

    [[nodiscard]] std::string manufacturerName() const override { return "Test Maker"; }

    [[nodiscard]] std::vector<std::string> names() const override { return {"One", "Two"}; }

    TestType& testType(std::int32_t index = 0) {
        return dynamic_cast<TestType&>(*typeOfIndex(index));
    }

    int typesCreated = 0;

protected:
    std::unique_ptr<INoxPlugInType> createType(FourCharCode code) override {
        ++typesCreated;
        return std::make_unique<TestType>(*this, environment(), code, kind, fields);
    }

private:
    TestTypeKind kind;
    NoxPlugInTypeFields fields;
};
