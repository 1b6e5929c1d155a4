// SPDX-License-Identifier: GPL-3.0-or-later
// The product's instance behind a VST 2 chunk, without a host.
#pragma once

#include "QMShell/state/IVst2ChunkAdapter.h"
#include "brolt/model/QMBrolt_PlugIn.h"

class InstanceVst2Adapter : public IVst2ChunkAdapter {
public:
    explicit InstanceVst2Adapter(QMBrolt_PlugIn& instance)
        : plugIn(instance) {}

    int restored = 0;

    [[nodiscard]] INoxPlugInState* chunkInstance() const override;
    [[nodiscard]] std::size_t chunkSize() const override;
    [[nodiscard]] void* allocateChunk(std::size_t size) override;
    void freeChunk(void* chunk) override;
    [[nodiscard]] FourCharCode productWord() const override;
    [[nodiscard]] FourCharCode vst2UniqueId() const override;
    [[nodiscard]] std::uint32_t recordBlockFlag() const override;
    [[nodiscard]] std::int32_t vst2ParameterCount() const override;
    [[nodiscard]] FourCharCode parameterIdentifier(std::int32_t index) const override;
    [[nodiscard]] float vst2Value(std::int32_t index) const override;
    [[nodiscard]] std::int32_t parameterIndex(FourCharCode identifier) const override;
    [[nodiscard]] double plainValueOfStored(std::int32_t index, double stored) const override;
    void setPlainValue(std::int32_t index, double plain) override;
    void parameterRestored(FourCharCode identifier) override;
    void refreshHostView() override;

private:
    QMBrolt_PlugIn& plugIn;
};
