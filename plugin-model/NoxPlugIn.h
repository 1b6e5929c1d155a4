// SPDX-License-Identifier: GPL-3.0-or-later
// Base of every plug-in instance. It keeps the instance's books (host, connections, meter records,
// remote buffers, texts) and passes questions on: about values to the values object, about
// parameters and names to the type, about remote memory to the processing host. A product derives
// from it and adds the signal processing.
//
// It holds no lock. Everything but the two processing entries runs on one control thread at a time;
// the product keeps the processing entries apart from parameters with its coefficient queue.
#pragma once

#include "plugin-model/INoxPlugIn.h"
#include "plugin-model/NoxParameterController.h"
#include "plugin-model/QMIOConnectionController.h"

#include <nlohmann/json_fwd.hpp>

#include <array>
#include <set>
#include <utility>
#include <vector>

namespace QM {
struct ParameterStateRecord;
}

class NoxPlugIn : public INoxPlugIn,
                  public QM::IQMParameterValuesUndoHandler,
                  private QM::IQMParameterValuesListener {
public:
    /// Created by its type; the host may be null, as may the environment. The type must outlive
    /// the instance.
    NoxPlugIn(INoxPlugInType& type, INoxPlugInProcessingHost* host,
              INoxPlugInEnvironment* environment);
    ~NoxPlugIn() override;
    NoxPlugIn(const NoxPlugIn&) = delete;
    NoxPlugIn& operator=(const NoxPlugIn&) = delete;

    // Identity.
    [[nodiscard]] INoxPlugInType* type() const override { return type_; }

    [[nodiscard]] INoxPlugInTypeGroup* group() const override;

    [[nodiscard]] FourCharCode typeCodeOfInstance() const override { return typeCode; }

    [[nodiscard]] INoxPlugInEnvironment* environment() const override { return environment_; }

    void setEnvironment(INoxPlugInEnvironment* environment) override { environment_ = environment; }

    [[nodiscard]] INoxPlugInProcessingHost* processingHost() const override { return host_; }

    void setProcessingHost(INoxPlugInProcessingHost* host) override;
    [[nodiscard]] std::int32_t hostKind() const override;

    [[nodiscard]] std::uint64_t remoteInstanceID() const override { return remoteID; }

    void setRemoteInstanceID(std::uint64_t id) override { remoteID = id; }

    [[nodiscard]] std::string displayName() const override { return displayName_; }

    void setDisplayName(const std::string& text) override { displayName_ = text; }

    [[nodiscard]] std::string shortName() const override { return shortName_; }

    void setShortName(const std::string& text) override { shortName_ = text; }

    [[nodiscard]] std::string description() const override { return description_; }

    void setDescription(const std::string& text) override { description_ = text; }

    // Rate, connections and slots.
    void setSampleRate(const double* rate) override;

    [[nodiscard]] double sampleRate() const override { return sampleRate_; }

    void setBlockSize(std::int32_t) override {}

    [[nodiscard]] std::int32_t latency() const override { return 0; }

    [[nodiscard]] std::int32_t tailSeconds() const override { return 0; }

    NoxResult setIOConfiguration(std::int32_t inputCountWanted,
                                 std::int32_t outputCountWanted) override;
    [[nodiscard]] std::int32_t inputCount() const override;
    [[nodiscard]] std::int32_t outputCount() const override;
    void connectInput(std::int32_t input, std::int32_t slot) override;
    void connectOutput(std::int32_t output, std::int32_t slot) override;
    [[nodiscard]] std::int32_t inputSlot(std::int32_t input) const override;
    [[nodiscard]] std::int32_t outputSlot(std::int32_t output) const override;
    [[nodiscard]] bool inputSlotDiffers(std::int32_t input) const override;
    [[nodiscard]] bool outputSlotDiffers(std::int32_t output) const override;

    void setSlotNumber(std::int32_t slot) override { slot_.index = slot; }

    [[nodiscard]] const NoxSlotRecord* slotRecord() const override;
    [[nodiscard]] bool isOwnSlot(std::int32_t slot) const override;
    [[nodiscard]] std::unique_ptr<QMIOConnectionController>
    createIOConnectionController(NoxRuntimeArchitecture architecture) override;
    void setIOConnectionController(std::unique_ptr<QMIOConnectionController> controller) override;
    [[nodiscard]] QMIOConnectionController* ioConnectionController() const override;

    // Remote memory.
    void* allocateRemoteBuffer(std::size_t size, const char* name) override;
    void freeRemoteBuffer(void* address) override;
    NoxResult writeRemoteBuffer(void* address, std::size_t offset, std::size_t length,
                                const void* source) override;
    NoxResult readRemoteBuffer(void* address, std::size_t offset, std::size_t length,
                               void* destination) override;
    NoxResult readPlugInData(std::size_t offset, std::size_t length, void* destination) override;
    void allocateAnalysisBuffer() override;
    void freeAnalysisBuffer() override;

    // Meters.
    [[nodiscard]] std::uint32_t analysisWordCount() const override { return 0; }

    void fetchAnalysis(Packet& packet) override;

    void receiveAnalysis(const Packet&) override {}

    void updateMeters() override;
    [[nodiscard]] std::int32_t meterRecordCount() const override;
    void resizeMeterRecords() override;
    const NoxMeterRecord* meterRecord(std::int32_t index) override;
    std::int32_t copyMeterRecords(NoxMeterRecord* destination, std::int32_t capacity) override;

    // Parameters.
    [[nodiscard]] QM::IQMParameterValues* parameterValues() const override;
    [[nodiscard]] const QM::IQMParameterSet* parameterSet() const override;
    [[nodiscard]] bool isBypassParameterIndex(std::int32_t index) const override;
    [[nodiscard]] double parameterValue(std::int32_t index) const override;
    [[nodiscard]] double normalisedValue(std::int32_t index) const override;
    void setParameterValue(std::int32_t index, double value,
                           QM::QMParameterChanges* changes = nullptr) override;
    void setNormalisedValue(std::int32_t index, double normalised) override;
    void storeAndFlush(std::int32_t index, double value) override;
    void beginAccumulate() override;
    void endAccumulate() override;
    void beginTouch(std::int32_t index) override;
    void endTouch(std::int32_t index) override;
    [[nodiscard]] bool isTouched(std::int32_t index) const override;
    [[nodiscard]] bool testChangedFlag(std::int32_t index) const override;
    void clearChangedFlag(std::int32_t index) override;

    void parametersPublished() override {}

    void refresh(const void* argument) override;
    NoxParameterController* controllerOfIndex(std::int32_t index) override;
    NoxParameterController* controllerOfID(FourCharCode id) override;
    void logParameterValues() const override;
    void dumpDefaultsTable(const char* name) const override;

    // Processing: nothing in the base.
    void createProcessingState() override {}

    void destroyProcessingState() override {}

    void resetProcessingState() override {}

    void process(const NoxProcessBlock&, const NoxProcessBlock&) override {}

    void processWithMeters(const NoxHostManagedBlock&) override {}

    void pushCoefficients(const Packet&) override {}

    void discardPendingCoefficients() override {}

    void handleMessage(const Packet&) override {}

    void generatePackets(PacketList& packets) override;
    void releasePackets(PacketList& packets) override;

    [[nodiscard]] const void* processingData() const override { return nullptr; }

    [[nodiscard]] std::size_t processingDataSize() const override { return 0; }

    NoxResult dumpProcessingState() override { return 0; }

    std::int32_t initialiseStateBuffer(void*, std::size_t) override { return 0; }

    [[nodiscard]] std::int32_t analysisOffset(std::int32_t) const override { return -1; }

    [[nodiscard]] std::int32_t requestCounterOffset() const override { return -1; }

    [[nodiscard]] std::uint8_t stateFlag() const override { return stateFlag_; }

    void setStateFlag(std::uint8_t flag) override { stateFlag_ = flag; }

    // Transport.
    [[nodiscard]] NoxTransportPosition transportPosition() const override { return position; }

    void setTransportPosition(const NoxTransportPosition& newOne) override { position = newOne; }

    [[nodiscard]] double tempo() const override { return tempo_; }

    [[nodiscard]] NoxTimeSignature timeSignature() const override { return timeSignature_; }

    [[nodiscard]] std::array<std::int64_t, 3> markPositions() const override { return marks; }

    // State.
    [[nodiscard]] bool supportsGenericPresets() const override;
    [[nodiscard]] bool canApplyGenericPreset(const QMGenericPreset& record) const override;
    [[nodiscard]] QMGenericPreset getStateRecord(StateExtent extent) const override;
    bool applyStateRecord(const QMGenericPreset& record) override;
    void adaptStateRecord(QMGenericPreset& record) const override;
    [[nodiscard]] bool equalsStateRecord(const QMGenericPreset& record) const override;
    [[nodiscard]] std::vector<std::byte> getParameterState() const override;
    [[nodiscard]] std::vector<std::byte> getFactoryState() const override;
    bool applyParameterState(std::span<const std::byte> bytes) override;
    [[nodiscard]] std::unique_ptr<NoxPlugInSnapshot> captureSettings() const override;
    bool restoreSettings(const NoxPlugInSnapshot& settings) override;
    [[nodiscard]] SettingLocator currentPresetLocator() const override;
    void setCurrentPresetLocator(const SettingLocator& locator) override;
    [[nodiscard]] std::uint64_t currentPresetId() const override;
    void setCurrentPresetId(std::uint64_t id) override;
    void updateParameterControllerMapFromProperty() override;

    // Snapshots.
    [[nodiscard]] std::int32_t snapshotCount() const override;
    [[nodiscard]] bool isSnapshotPopulated(std::int32_t snapshot) const override;
    [[nodiscard]] std::int32_t activeSnapshot() const override;
    [[nodiscard]] std::string snapshotName(std::int32_t snapshot) const override;
    void selectSnapshot(std::int32_t snapshot, QM::SnapshotMode mode) override;
    void loadSnapshotFromPreset(std::int32_t snapshot, const QMGenericPreset& record) override;
    void copySnapshot(std::int32_t from, std::int32_t to) override;
    void setBlend(float x, float y) override;
    [[nodiscard]] float blendValue(std::int32_t axis) const override;
    void beginBlendGesture() override;
    void endBlendGesture() override;

    // Undo.
    void undo() override;
    void redo() override;
    [[nodiscard]] bool canUndo() const override;
    [[nodiscard]] bool canRedo() const override;
    void clearUndo() override;
    void clearRedo() override;
    void clearUndoAndRedo() override;
    [[nodiscard]] std::string undoMenuText() const override;
    [[nodiscard]] std::string redoMenuText() const override;

    // Replays of recorded steps, which reach the environment like any other change.
    void replayParameterValue(std::int32_t index, double value) override;
    void replayRecord(const QMGenericPreset& record) override;
    void replayBlendAmount(float x) override;

protected:
    /// What the product says to a channel pair that its type supports; 0 accepts.
    virtual NoxResult ioConfigurationHook(std::int32_t, std::int32_t) { return 0; }

    /// Called after a state, a preset or a snapshot was applied; nothing in the base.
    virtual void postApplicationHook() {}

    /// Whether refresh keeps an analysis buffer on the host.
    void setWantsAnalysisBuffer(bool wanted) { wantsAnalysisBuffer = wanted; }

    [[nodiscard]] std::vector<NoxMeterRecord>& meterRecords() { return meterRecords_; }

private:
    [[nodiscard]] const QM::IQMParameterSet* queriedSet() const override { return parameterSet(); }

    [[nodiscard]] std::unique_ptr<QMParameterValuesCoefficientFlusher>
    createFlusher(NoxRuntimeArchitecture architecture);
    void detachFromHost();
    void announceSampleRate();
    void fullRefresh();
    void refreshWithoutValues();
    void touchStarted(QM::IQMParameterValues& values, std::int32_t index) override;
    void touchEnded(QM::IQMParameterValues& values, std::int32_t index) override;

    void parameterValueSet(QM::IQMParameterValues&, std::int32_t, double) override {}

    [[nodiscard]] bool isParameterIndex(std::int32_t index) const;
    /// Makes the change and tells the environment when the value is another one afterwards.
    template <typename Change>
    void changeParameter(std::int32_t index, Change change);
    /// Makes a change of snapshots and finishes it like any application of state.
    template <typename Change>
    void changeSnapshots(Change change);
    void tellChanges(const QM::QMParameterChanges& changes);
    void finishApplication(const QM::QMParameterChanges& changes);

    using ControllerSource =
        std::pair<NoxParameterController*, std::unique_ptr<QMGenericEventSource>>;
    /// The event sources that the controller map of an extension document describes.
    [[nodiscard]] std::vector<ControllerSource>
    createEventSources(const nlohmann::json& extensionDocument);

    [[nodiscard]] QM::ParameterStateRecord ownStateRecord(std::vector<double> values) const;
    bool takeDefaultValues(std::span<const std::byte> bytes);

    double sampleRate_ = 44100.0;
    INoxPlugInProcessingHost* host_;
    INoxPlugInEnvironment* environment_;
    INoxPlugInType* type_;
    FourCharCode typeCode;
    std::uint64_t remoteID = 0;
    std::vector<double> defaultValues; ///< used only without a values object
    std::uint8_t stateFlag_ = 0;
    NoxSlotRecord slot_{-1};

    struct Connection {
        std::int32_t slot = -1;
        bool differs = false;
    };

    std::vector<Connection> inputs;
    std::vector<Connection> outputs;

    std::unique_ptr<QM::QMParameterValues> values_;
    std::unique_ptr<QMIOConnectionController> ioConnectionController_;
    std::vector<NoxMeterRecord> meterRecords_;
    std::string displayName_;
    std::string shortName_;
    std::string description_;
    NoxTransportPosition position;
    double tempo_ = 120.0;
    NoxTimeSignature timeSignature_;
    std::array<std::int64_t, 3> marks{-1, -1, -1};
    std::set<void*> remoteBuffers;
    void* analysisBuffer = nullptr;
    bool wantsAnalysisBuffer = false;
    std::vector<std::unique_ptr<NoxParameterController>> controllers;

    /// A locator that was set; it holds for as long as the preset is the one it was set for.
    struct ChosenLocator {
        bool isSet = false;
        SettingLocator locator;
        std::uint64_t presetId = 0;
    };

    ChosenLocator chosenLocator;
};
