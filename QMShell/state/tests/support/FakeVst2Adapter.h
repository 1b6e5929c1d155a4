// SPDX-License-Identifier: GPL-3.0-or-later
// A VST 2 adapter with three parameters that are as they stand, which notes what it is told.
#pragma once

#include "QMShell/state/IVst2ChunkAdapter.h"
#include "QMShell/state/Vst2Chunk.h"

#include <cstdlib>
#include <cstring>
#include <utility>
#include <vector>

class FakeVst2Adapter : public IVst2ChunkAdapter {
public:
    explicit FakeVst2Adapter(INoxPlugInState* state)
        : instance(state) {}

    INoxPlugInState* instance;
    std::vector<FourCharCode> identifiers = {fourCharCode("mbyp"), fourCharCode("afre"),
                                             fourCharCode("gain")};
    std::vector<float> vst2Values = {0.0F, 0.25F, 0.1F};
    std::uint32_t blockFlag = 1;
    bool outOfMemory = false;

    // What it was told.
    std::vector<std::pair<std::int32_t, double>> set;
    std::vector<FourCharCode> restored;
    int refreshes = 0;
    int allocations = 0;
    int frees = 0;

    [[nodiscard]] INoxPlugInState* chunkInstance() const override { return instance; }

    [[nodiscard]] std::size_t chunkSize() const override {
        return vst2ChunkSize(vst2ParameterCount(), instance);
    }

    /// Memory full of another's bytes.
    [[nodiscard]] void* allocateChunk(std::size_t size) override {
        if (outOfMemory)
            return nullptr;
        ++allocations;
        void* const memory = std::malloc(size);
        if (memory != nullptr)
            std::memset(memory, 0xA5, size);
        return memory;
    }

    void freeChunk(void* chunk) override {
        ++frees;
        std::free(chunk);
    }

    [[nodiscard]] FourCharCode productWord() const override { return fourCharCode("BRLT"); }

    [[nodiscard]] FourCharCode vst2UniqueId() const override { return fourCharCode("qmBR"); }

    [[nodiscard]] std::uint32_t recordBlockFlag() const override { return blockFlag; }

    [[nodiscard]] std::int32_t vst2ParameterCount() const override {
        return static_cast<std::int32_t>(identifiers.size());
    }

    [[nodiscard]] FourCharCode parameterIdentifier(std::int32_t index) const override {
        return identifiers.at(static_cast<std::size_t>(index));
    }

    [[nodiscard]] float vst2Value(std::int32_t index) const override {
        return vst2Values.at(static_cast<std::size_t>(index));
    }

    [[nodiscard]] std::int32_t parameterIndex(FourCharCode identifier) const override {
        for (std::size_t i = 0; i < identifiers.size(); ++i)
            if (identifiers[i] == identifier)
                return static_cast<std::int32_t>(i);
        return -1;
    }

    /// A hundred for one, so that a test sees that it was asked.
    [[nodiscard]] double plainValueOfStored(std::int32_t, double stored) const override {
        return stored * 100.0;
    }

    void setPlainValue(std::int32_t index, double plain) override {
        set.emplace_back(index, plain);
    }

    void parameterRestored(FourCharCode identifier) override { restored.push_back(identifier); }

    void refreshHostView() override { ++refreshes; }
};
