// SPDX-License-Identifier: GPL-3.0-or-later
// What tests of the product's instance need: an instance of either type, a host that runs it in
// process, audio buffers, and records as its parameters make them.
#pragma once

#include "brolt/model/QMBrolt_PlugIn.h"
#include "brolt/model/QMBrolt_PlugInTypeGroup.h"
#include "plugin-model/ControlMessages.h"
#include "plugin-model/tests/StubProcessingHost.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

/// Copies analysis words and processing data as a host does that runs instances in this process.
class InProcessHost : public StubProcessingHost {
public:
    NoxResult fetchInputCopy(INoxPlugIn& plugIn, std::uint64_t, std::uint32_t, std::uint32_t,
                             void* destination) override {
        const Packet message(Packet::messageKind, sizeof(NoxBufferMessage));
        const NoxBufferMessage content{0x1000000, 0, destination};
        std::memcpy(message.data, &content, sizeof content);
        plugIn.handleMessage(message);
        return 6;
    }

    NoxResult readPlugInData(INoxPlugIn& plugIn, std::uint64_t, std::size_t offset,
                             std::size_t length, void* destination) override {
        const auto* data = static_cast<const std::byte*>(plugIn.processingData());
        if (data == nullptr)
            return 9;
        std::memcpy(destination, data + offset, length);
        return 0;
    }
};

/// One block of N channels, input and output apart, and the views that the entries take.
template <int N>
class TestBlock {
public:
    explicit TestBlock(std::size_t frames, float value = 0.0F) {
        for (std::size_t c = 0; c < N; ++c) {
            input[c].assign(frames, value);
            output[c].assign(frames, untouched);
        }
        frameCount = static_cast<std::int32_t>(frames);
    }

    TestBlock(std::size_t frames, std::mt19937& random)
        : TestBlock(frames) {
        std::uniform_real_distribution<float> sample(-1.0F, 1.0F);
        for (auto& channel : input) {
            for (float& value : channel)
                value = sample(random);
        }
    }

    [[nodiscard]] NoxProcessBlock inputBlock() { return block(input, inputs); }

    [[nodiscard]] NoxProcessBlock outputBlock() { return block(output, outputs); }

    /// The host-managed view; the meter output goes to peaks.
    [[nodiscard]] NoxHostManagedBlock managed(const Coefficients* coefficients, void* state) {
        (void)inputBlock();
        (void)outputBlock();
        NoxHostManagedBlock view{};
        view.inputs = inputs.data();
        view.outputs = outputs.data();
        view.frameCount = &frameCount;
        view.coefficients = coefficients;
        view.state = state;
        if (meters)
            meterPointer = peaks.data();
        view.meterOutput = &meterPointer;
        return view;
    }

    [[nodiscard]] bool outputIsUntouched() const {
        for (const auto& channel : output) {
            for (const float value : channel) {
                if (value != untouched)
                    return false;
            }
        }
        return true;
    }

    static constexpr float untouched = 123.0F;
    std::array<std::vector<float>, N> input;
    std::array<std::vector<float>, N> output;
    std::array<float*, N> inputs{};
    std::array<float*, N> outputs{};
    std::int32_t frameCount = 0;
    std::array<float, 4> peaks{untouched, untouched, untouched, untouched};
    bool meters = true; ///< false: the meter output pointer is null
    float* meterPointer = nullptr;

private:
    static NoxProcessBlock block(std::array<std::vector<float>, N>& channels,
                                 std::array<float*, N>& pointers) {
        for (std::size_t c = 0; c < N; ++c)
            pointers[c] = channels[c].data();
        return {static_cast<std::int64_t>(channels[0].size()), N, 0, pointers.data()};
    }
};

/// An instance of the mono (1) or stereo (2) type, without a host and without a processing state.
template <int N>
struct PlugInUnderTest {
    QMBrolt_PlugInTypeGroup group{nullptr};
    QMBrolt_PlugIn plugIn{*group.typeOfIndex(N - 1), nullptr, nullptr};

    /// The next record of the parameters in force.
    [[nodiscard]] Coefficients nextRecord() {
        PacketList packets;
        plugIn.generatePackets(packets);
        Coefficients record;
        EXPECT_EQ(packets.size(), 1u);
        EXPECT_EQ(packets.at(0)->length, sizeof record);
        std::memcpy(&record, packets.at(0)->data, sizeof record);
        return record;
    }

    void push(const Coefficients& record) {
        const Packet packet(Packet::coefficientKind, sizeof record);
        std::memcpy(packet.data, &record, sizeof record);
        plugIn.pushCoefficients(packet);
    }

    /// Sets a parameter by its identifier.
    void set(const char (&parameter)[5], double value) {
        const auto index = plugIn.parameterSet()->indexOfID(fourCharCode(parameter));
        ASSERT_GE(index, 0) << parameter;
        plugIn.setParameterValue(index, value);
    }

    void process(TestBlock<N>& block) { plugIn.process(block.inputBlock(), block.outputBlock()); }

    [[nodiscard]] const BroltState<N>& state() const {
        return *static_cast<const BroltState<N>*>(plugIn.processingData());
    }

    void send(std::uint32_t code, void* buffer) {
        const Packet packet(Packet::messageKind, sizeof(NoxBufferMessage));
        const NoxBufferMessage content{code, 0, buffer};
        std::memcpy(packet.data, &content, sizeof content);
        plugIn.handleMessage(packet);
    }
};

/// The layouts as types, for tests that hold for both.
using BothLayouts =
    ::testing::Types<std::integral_constant<int, 1>, std::integral_constant<int, 2>>;

struct LayoutName {
    template <typename Channels>
    static std::string GetName(int) {
        return Channels::value == 1 ? "mono" : "stereo";
    }
};

/// The bytes of an image, for comparisons that see every bit.
template <typename Image>
std::vector<unsigned char> bytesOf(const Image& image) {
    std::vector<unsigned char> bytes(sizeof image);
    std::memcpy(bytes.data(), &image, sizeof image);
    return bytes;
}

/// Equal bit for bit.
inline bool sameBits(const std::vector<float>& a, const std::vector<float>& b) {
    return a.size() == b.size() &&
           (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(float)) == 0);
}
