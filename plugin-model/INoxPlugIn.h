// SPDX-License-Identifier: GPL-3.0-or-later
// One plug-in instance as hosts, adapters and the editor see it, by role. An instance is driven
// from the host's control threads and the message thread, one at a time; only the processing
// entries run on the audio thread, which hears of parameters through coefficient records alone.
#pragma once

#include "plugin-model/INoxPlugInSnapshots.h"
#include "plugin-model/INoxPlugInState.h"
#include "plugin-model/INoxPlugInUndo.h"
#include "plugin-model/IQMParameterValues.h"
#include "plugin-model/NoxMeterRecord.h"
#include "plugin-model/NoxRuntimeArchitecture.h"
#include "plugin-model/NoxSlotRecord.h"
#include "plugin-model/NoxTransport.h"
#include "plugin-model/Packet.h"
#include "plugin-model/ProcessBlocks.h"
#include "plugin-model/ResultCodes.h"

#include <array>
#include <memory>
#include <string>

class INoxPlugInEnvironment;
class INoxPlugInProcessingHost;
class INoxPlugInType;
class INoxPlugInTypeGroup;
class NoxParameterController;
class QMIOConnectionController;

/// Who it is and where it lives.
class INoxPlugInIdentity {
public:
    virtual ~INoxPlugInIdentity() = default;

    [[nodiscard]] virtual INoxPlugInType* type() const = 0;
    [[nodiscard]] virtual INoxPlugInTypeGroup* group() const = 0;
    [[nodiscard]] virtual FourCharCode typeCodeOfInstance() const = 0;
    [[nodiscard]] virtual INoxPlugInEnvironment* environment() const = 0;
    virtual void setEnvironment(INoxPlugInEnvironment* environment) = 0;
    [[nodiscard]] virtual INoxPlugInProcessingHost* processingHost() const = 0;
    /// Moves the instance to another host, or to none: the previous host's buffers and flusher go,
    /// the new host's rate is taken and one complete coefficient packet is flushed.
    virtual void setProcessingHost(INoxPlugInProcessingHost* host) = 0;
    /// The host's runtime architecture; 0 without a host.
    [[nodiscard]] virtual std::int32_t hostKind() const = 0;
    [[nodiscard]] virtual std::uint64_t remoteInstanceID() const = 0;
    virtual void setRemoteInstanceID(std::uint64_t id) = 0;

    [[nodiscard]] virtual std::string displayName() const = 0;
    virtual void setDisplayName(const std::string& text) = 0;
    [[nodiscard]] virtual std::string shortName() const = 0;
    virtual void setShortName(const std::string& text) = 0;
    [[nodiscard]] virtual std::string description() const = 0;
    virtual void setDescription(const std::string& text) = 0;
};

/// Rate, connections and slots.
class INoxPlugInIO {
public:
    virtual ~INoxPlugInIO() = default;

    /// Hz. Tells the environment, and of parameters that change with the rate.
    virtual void setSampleRate(const double* rate) = 0;
    [[nodiscard]] virtual double sampleRate() const = 0;
    virtual void setBlockSize(std::int32_t frames) = 0;
    /// Samples by which the output comes later than the input.
    [[nodiscard]] virtual std::int32_t latency() const = 0;
    /// Whole seconds for which sound goes on after the input has ended; negative for ever.
    [[nodiscard]] virtual std::int32_t tailSeconds() const = 0;

    /// unsupportedIOConfiguration when the type does not know the pair.
    virtual NoxResult setIOConfiguration(std::int32_t inputs, std::int32_t outputs) = 0;
    [[nodiscard]] virtual std::int32_t inputCount() const = 0;
    [[nodiscard]] virtual std::int32_t outputCount() const = 0;
    /// An input or output out of range does nothing.
    virtual void connectInput(std::int32_t input, std::int32_t slot) = 0;
    virtual void connectOutput(std::int32_t output, std::int32_t slot) = 0;
    /// -1 when never connected or out of range.
    [[nodiscard]] virtual std::int32_t inputSlot(std::int32_t input) const = 0;
    [[nodiscard]] virtual std::int32_t outputSlot(std::int32_t output) const = 0;
    /// The connected slot is not the host's default one.
    [[nodiscard]] virtual bool inputSlotDiffers(std::int32_t input) const = 0;
    [[nodiscard]] virtual bool outputSlotDiffers(std::int32_t output) const = 0;

    virtual void setSlotNumber(std::int32_t slot) = 0;
    /// Null for an instance that was not told a slot.
    [[nodiscard]] virtual const NoxSlotRecord* slotRecord() const = 0;
    [[nodiscard]] virtual bool isOwnSlot(std::int32_t slot) const = 0;

    [[nodiscard]] virtual std::unique_ptr<QMIOConnectionController>
    createIOConnectionController(NoxRuntimeArchitecture architecture) = 0;
    virtual void
    setIOConnectionController(std::unique_ptr<QMIOConnectionController> controller) = 0;
    [[nodiscard]] virtual QMIOConnectionController* ioConnectionController() const = 0;
};

/// Memory near the processor, owned by the instance until it leaves its host.
class INoxPlugInRemoteMemory {
public:
    virtual ~INoxPlugInRemoteMemory() = default;

    /// Null without a host or memory.
    virtual void* allocateRemoteBuffer(std::size_t size, const char* name) = 0;
    virtual void freeRemoteBuffer(void* address) = 0;
    /// noHostAvailable without a host, as the two below.
    virtual NoxResult writeRemoteBuffer(void* address, std::size_t offset, std::size_t length,
                                        const void* source) = 0;
    virtual NoxResult readRemoteBuffer(void* address, std::size_t offset, std::size_t length,
                                       void* destination) = 0;
    /// Bytes of the processing state.
    virtual NoxResult readPlugInData(std::size_t offset, std::size_t length, void* destination) = 0;
    /// Nothing unless an analysis buffer is wanted.
    virtual void allocateAnalysisBuffer() = 0;
    virtual void freeAnalysisBuffer() = 0;
};

/// Analysis values and the meter records made of them.
class INoxPlugInMeters {
public:
    virtual ~INoxPlugInMeters() = default;

    /// 32-bit words of one analysis snapshot; 0 when there is none.
    [[nodiscard]] virtual std::uint32_t analysisWordCount() const = 0;
    /// Fills a packet with one snapshot from the running processor.
    virtual void fetchAnalysis(Packet& packet) = 0;
    /// Moves a snapshot into the meter records.
    virtual void receiveAnalysis(const Packet& packet) = 0;
    /// Fetches and receives; called on each tick of an open editor.
    virtual void updateMeters() = 0;
    [[nodiscard]] virtual std::int32_t meterRecordCount() const = 0;
    virtual void resizeMeterRecords() = 0;
    /// Null out of range.
    virtual const NoxMeterRecord* meterRecord(std::int32_t index) = 0;
    /// Copies at most capacity records; answers how many.
    virtual std::int32_t copyMeterRecords(NoxMeterRecord* destination, std::int32_t capacity) = 0;
};

/// Parameters. Questions out of range get neutral answers; see IQMParameterSet.
class INoxPlugInParameters : public QM::QMParameterQueries {
public:
    /// Null for a type without a parameter set.
    [[nodiscard]] virtual QM::IQMParameterValues* parameterValues() const = 0;
    /// Null for a type without a parameter set.
    [[nodiscard]] virtual const QM::IQMParameterSet* parameterSet() const = 0;
    [[nodiscard]] virtual bool isBypassParameterIndex(std::int32_t index) const = 0;

    /// Plain units.
    [[nodiscard]] virtual double parameterValue(std::int32_t index) const = 0;
    [[nodiscard]] virtual double normalisedValue(std::int32_t index) const = 0;
    /// An index out of range is logged and dropped.
    virtual void setParameterValue(std::int32_t index, double value,
                                   QM::QMParameterChanges* changes = nullptr) = 0;
    virtual void setNormalisedValue(std::int32_t index, double normalised) = 0;
    /// Stores and flushes past the values object's listeners; the environment is told.
    virtual void storeAndFlush(std::int32_t index, double value) = 0;
    virtual void beginAccumulate() = 0;
    virtual void endAccumulate() = 0;
    virtual void beginTouch(std::int32_t index) = 0;
    virtual void endTouch(std::int32_t index) = 0;
    [[nodiscard]] virtual bool isTouched(std::int32_t index) const = 0;
    [[nodiscard]] virtual bool testChangedFlag(std::int32_t index) const = 0;
    virtual void clearChangedFlag(std::int32_t index) = 0;
    /// Told by an adapter once its host can see the instance's parameters.
    virtual void parametersPublished() = 0;
    /// With a non-null argument: flushes one complete coefficient packet again.
    virtual void refresh(const void* argument) = 0;

    /// Created on first request and kept; null for an index or identifier that does not exist.
    virtual NoxParameterController* controllerOfIndex(std::int32_t index) = 0;
    virtual NoxParameterController* controllerOfID(FourCharCode id) = 0;

    virtual void logParameterValues() const = 0;
    /// To the standard error stream.
    virtual void dumpDefaultsTable(const char* name) const = 0;
};

/// Signal processing and the road of coefficients and messages to it.
class INoxPlugInProcessing {
public:
    virtual ~INoxPlugInProcessing() = default;

    virtual void createProcessingState() = 0;
    virtual void destroyProcessingState() = 0;
    /// Must not run beside a processing entry.
    virtual void resetProcessingState() = 0;

    /// Local entry: runs one block. [audio thread]
    virtual void process(const NoxProcessBlock& input, const NoxProcessBlock& output) = 0;
    /// Entry for hosts that own coefficient and state memory. [audio thread]
    virtual void processWithMeters(const NoxHostManagedBlock& block) = 0;

    virtual void pushCoefficients(const Packet& packet) = 0;
    /// Must not run beside a processing entry.
    virtual void discardPendingCoefficients() = 0;
    /// Control messages; unknown codes are ignored.
    virtual void handleMessage(const Packet& packet) = 0;
    virtual void generatePackets(PacketList& packets) = 0;
    virtual void releasePackets(PacketList& packets) = 0;

    /// The processing state for reading back; null without one.
    [[nodiscard]] virtual const void* processingData() const = 0;
    /// Bytes of it; 0 without a product's processor.
    [[nodiscard]] virtual std::size_t processingDataSize() const = 0;
    /// Reads the state back through the host and logs where it was put.
    virtual NoxResult dumpProcessingState() = 0;
    /// Initialises a state block in a host's memory when it is large enough; answers 0.
    virtual std::int32_t initialiseStateBuffer(void* buffer, std::size_t size) = 0;
    /// Byte offset of analysis area index in the state block; -1 when there is none.
    [[nodiscard]] virtual std::int32_t analysisOffset(std::int32_t index) const = 0;
    /// Byte offset of the snapshot request counter in the state block; -1 when there is none.
    [[nodiscard]] virtual std::int32_t requestCounterOffset() const = 0;
    [[nodiscard]] virtual std::uint8_t stateFlag() const = 0;
    virtual void setStateFlag(std::uint8_t flag) = 0;
};

/// Where the host plays. Values for the instance's own use; the environment has the host's.
class INoxPlugInTransport {
public:
    virtual ~INoxPlugInTransport() = default;

    [[nodiscard]] virtual NoxTransportPosition transportPosition() const = 0;
    virtual void setTransportPosition(const NoxTransportPosition& position) = 0;
    /// Beats a minute.
    [[nodiscard]] virtual double tempo() const = 0;
    [[nodiscard]] virtual NoxTimeSignature timeSignature() const = 0;
    /// Three positions of the host's that the instance may be told; -1 where unknown.
    [[nodiscard]] virtual std::array<std::int64_t, 3> markPositions() const = 0;
};

class INoxPlugIn : public INoxPlugInIdentity,
                   public INoxPlugInIO,
                   public INoxPlugInRemoteMemory,
                   public INoxPlugInMeters,
                   public INoxPlugInParameters,
                   public INoxPlugInState,
                   public INoxPlugInSnapshots,
                   public INoxPlugInUndo,
                   public INoxPlugInProcessing,
                   public INoxPlugInTransport {};
