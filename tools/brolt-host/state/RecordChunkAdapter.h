// SPDX-License-Identifier: GPL-3.0-or-later
//
// Makes and reads VST 2 chunks of a settings record without a VST 2 plug-in.

#pragma once

#include "QMShell/state/IStateEntrySink.h"
#include "QMShell/state/IVst2ChunkAdapter.h"
#include "plugin-model/IQMParameterSet.h"
#include "tools/brolt-host/state/RecordState.h"

class RecordChunkAdapter : public IVst2ChunkAdapter, public IStateEntrySink {
public:
    /// Neither is owned.
    RecordChunkAdapter(RecordState& chunkState, const QM::IQMParameterSet& parameterSet)
        : state(chunkState)
        , parameters(parameterSet) {}

    [[nodiscard]] INoxPlugInState* chunkInstance() const override { return &state; }

    [[nodiscard]] std::size_t chunkSize() const override;
    [[nodiscard]] void* allocateChunk(std::size_t size) override;
    void freeChunk(void* chunk) override;
    [[nodiscard]] FourCharCode productWord() const override;
    [[nodiscard]] FourCharCode vst2UniqueId() const override;

    [[nodiscard]] std::uint32_t recordBlockFlag() const override { return 1; }

    [[nodiscard]] std::int32_t vst2ParameterCount() const override;
    [[nodiscard]] FourCharCode parameterIdentifier(std::int32_t index) const override;
    [[nodiscard]] float vst2Value(std::int32_t index) const override;
    [[nodiscard]] std::int32_t parameterIndex(FourCharCode identifier) const override;

    /// Stored values pass as they are.
    [[nodiscard]] double plainValueOfStored(std::int32_t, double stored) const override {
        return stored;
    }

    void setPlainValue(std::int32_t index, double plain) override;

    void parameterRestored(FourCharCode) override {}

    void refreshHostView() override {}

    void restoreParameter(FourCharCode identifier, double storedValue) override;

private:
    RecordState& state;
    const QM::IQMParameterSet& parameters;
};
