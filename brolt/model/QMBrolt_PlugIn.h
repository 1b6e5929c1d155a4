// SPDX-License-Identifier: GPL-3.0-or-later
// The product's plug-in instance: owns the processor's state and the queue that brings it
// coefficient records, and runs the processor over each block.
//
// Threads. The audio thread calls a processing entry, which reads the queue and writes the state.
// Control threads push records into the queue. The analysis message reads the live state beside the
// audio thread and may mix two neighbouring blocks, which a display can bear; the meter reset
// writes single words that a running block may overwrite. Creating, destroying and resetting the
// state and discarding records happen only while no block runs.
#pragma once

#include "brolt/signal/Brolt.h"
#include "brolt/signal/QMCoefficientQueue.h"
#include "plugin-model/NoxPlugIn.h"

class QMBrolt_PlugIn : public NoxPlugIn {
public:
    /// Stereo when the type has two outputs, else mono. There is no processing state yet.
    QMBrolt_PlugIn(INoxPlugInType& type, INoxPlugInProcessingHost* host,
                   INoxPlugInEnvironment* environment);
    ~QMBrolt_PlugIn() override;

    [[nodiscard]] std::uint32_t analysisWordCount() const override;
    void receiveAnalysis(const Packet& packet) override;

    void createProcessingState() override;
    void destroyProcessingState() override;
    void resetProcessingState() override;
    void process(const NoxProcessBlock& input, const NoxProcessBlock& output) override;
    void processWithMeters(const NoxHostManagedBlock& block) override;
    void pushCoefficients(const Packet& packet) override;
    void discardPendingCoefficients() override;
    void handleMessage(const Packet& packet) override;
    [[nodiscard]] const void* processingData() const override;
    [[nodiscard]] std::size_t processingDataSize() const override;
    NoxResult dumpProcessingState() override;
    std::int32_t initialiseStateBuffer(void* buffer, std::size_t size) override;
    [[nodiscard]] std::int32_t analysisOffset(std::int32_t index) const override;
    [[nodiscard]] std::int32_t requestCounterOffset() const override;

    /// The record that the last processed block used; null before the first block. For whoever
    /// drives process on the same thread. [audio thread]
    [[nodiscard]] const Coefficients* coefficientsInUse() const { return inUse; }

private:
    static constexpr std::int32_t slotCount = 5;
    using Queue = QMCoefficientQueue<Coefficients, slotCount>;

    [[nodiscard]] bool isStereo() const { return outputCount() == 2; }

    template <int N>
    void run(BroltState<N>* state, const NoxProcessBlock& input, const NoxProcessBlock& output);

    std::unique_ptr<BroltState<1>> monoState;
    std::unique_ptr<BroltState<2>> stereoState;
    std::unique_ptr<QMCoefficientQueueInterface> queue;
    const Coefficients* inUse = nullptr;
};
