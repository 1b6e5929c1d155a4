// SPDX-License-Identifier: GPL-3.0-or-later
// The framework's values object. A product derives from it to turn its values into coefficient
// packets. Its roles are in files of their own: values and brackets in QMParameterValues.cpp,
// snapshots, records and undo in the ParameterValues…cpp files of those folders.
#pragma once

#include "plugin-model/IQMParameterValues.h"
#include "plugin-model/snapshots/QMSnapshotTable.h"
#include "plugin-model/undo/ZulUndoManager.h"

#include <vector>

namespace QM {

class QMParameterValues : public IQMParameterValues {
public:
    /// Every value starts at its default. The set is not owned and must outlive the values.
    QMParameterValues(IQMParameterSet& parameterSet, double sampleRate);
    ~QMParameterValues() override;
    QMParameterValues(const QMParameterValues&) = delete;
    QMParameterValues& operator=(const QMParameterValues&) = delete;

    [[nodiscard]] IQMParameterSet& parameterSet() override { return set; }

    [[nodiscard]] const IQMParameterSet& parameterSet() const override { return set; }

    [[nodiscard]] double getValue(std::int32_t index) const override;
    [[nodiscard]] double getValueByID(FourCharCode id) const override;
    void setParameterValue(std::int32_t index, double value, QMParameterChanges* changes) override;
    void setParameterValues(std::int32_t count, const std::int32_t* indices,
                            const double* plainValues, QMParameterChanges* changes) override;
    bool storeValue(std::int32_t index, double value) override;
    void storeAndFlush(std::int32_t index, double value) override;
    void storeValuesAndFlush(std::int32_t count, const std::int32_t* indices,
                             const double* plainValues) override;
    void restoreAllAndFlush() override;

    void beginAccumulate() override;
    void endAccumulate() override;

    void flush() override;
    void setFlusher(std::unique_ptr<QMParameterValuesCoefficientFlusher> newFlusher) override;
    /// Produces nothing; a product overrides it.
    void generatePackets(PacketList& packets) override;
    void generateSharcPackets(PacketList& packets) override;
    void releasePackets(PacketList& packets) override;
    /// Counts one more coefficient packet and returns its version. The first is 2.
    std::int32_t nextCoefficientVersion();
    [[nodiscard]] std::uint32_t hostStatus() const override;

    void setDefaultHostStatus(std::uint32_t status) override { defaultHostStatus = status; }

    void beginTouch(std::int32_t index) override;
    /// An end without a begin counts to -1 and announces nothing; the next begin then announces
    /// nothing either. Hosts that send unpaired ends rely on the count as it is.
    void endTouch(std::int32_t index) override;
    [[nodiscard]] bool isTouched(std::int32_t index) const override;

    [[nodiscard]] bool testChangedFlag(std::int32_t index) const override;
    void setChangedFlag(std::int32_t index) override;
    void clearChangedFlag(std::int32_t index) override;
    [[nodiscard]] bool testChangedFlagByID(FourCharCode id) const override;
    void setChangedFlagByID(FourCharCode id) override;
    void clearChangedFlagByID(FourCharCode id) override;

    [[nodiscard]] double sampleRate() const override { return sampleRate_; }

    void setSampleRate(double rate, QMParameterChanges& changes) override;

    [[nodiscard]] bool enabled() const override { return enabled_; }

    void disable() override { enabled_ = false; }

    void addListener(IQMParameterValuesListener& listener) override;
    void removeListener(IQMParameterValuesListener& listener) override;

    void setBlendParameterIndex(std::int32_t index) override { blendParameter = index; }

    void setBlendLocked(bool locked) override { blendLocked = locked; }

    // Snapshots.
    void setSnapshotCount(std::int32_t count) override;

    [[nodiscard]] std::int32_t snapshotCount() const override { return snapshots.count(); }

    [[nodiscard]] bool isSnapshotPopulated(std::int32_t snapshot) const override;

    [[nodiscard]] std::int32_t activeSnapshot() const override { return snapshots.active; }

    [[nodiscard]] std::string snapshotName(std::int32_t snapshot) const override;
    [[nodiscard]] double snapshotValue(std::int32_t snapshot, std::int32_t index) const override;
    [[nodiscard]] std::uint64_t snapshotPresetId(std::int32_t snapshot) const override;
    void selectSnapshot(std::int32_t snapshot, SnapshotMode mode,
                        QMParameterChanges* changes) override;
    void loadSnapshotFromPreset(std::int32_t snapshot, const QMGenericPreset& record,
                                QMParameterChanges* changes) override;
    void copySnapshot(std::int32_t from, std::int32_t to, QMParameterChanges* changes) override;
    [[nodiscard]] bool snapshotsAreEqual(std::int32_t first, std::int32_t second) const override;
    void setBlend(float x, float y, QMParameterChanges* changes) override;

    [[nodiscard]] float blendCoordinate(bool second) const override {
        return second ? snapshots.blendY : snapshots.blendX;
    }

    void beginBlendGesture() override;
    void endBlendGesture() override;

    // Records.
    [[nodiscard]] QMGenericPreset makeRecord(StateExtent extent) const override;
    [[nodiscard]] bool acceptsRecord(const QMGenericPreset& record) const override;
    bool applyRecord(const QMGenericPreset& record, QMParameterChanges* changes) override;
    [[nodiscard]] bool equalsRecord(const QMGenericPreset& record) const override;
    [[nodiscard]] std::vector<std::byte> makeStateRecord() const override;
    [[nodiscard]] bool acceptsStateRecord(std::span<const std::byte> bytes) const override;
    bool applyStateRecord(std::span<const std::byte> bytes, QMParameterChanges* changes) override;

    [[nodiscard]] const nlohmann::json& extensionDocument() const override { return *document; }

    void setExtensionDocument(nlohmann::json newDocument) override;

    [[nodiscard]] std::uint64_t currentPresetId() const override { return currentPreset; }

    void setCurrentPresetId(std::uint64_t id) override { currentPreset = id; }

    [[nodiscard]] const std::set<FourCharCode>& excludedIDs() const override { return excluded; }

    void excludeID(FourCharCode id) override { excluded.insert(id); }

    void resetExcludedIDs() override;
    [[nodiscard]] bool matchesFirstCode(FourCharCode code) const override;
    [[nodiscard]] bool matchesSecondCode(FourCharCode code) const override;
    [[nodiscard]] bool isNotAboveVersion(std::uint32_t version) const override;

    /// Maker and product that records are stamped with; 0 takes the set's codes.
    [[nodiscard]] virtual FourCharCode manufacturerCode() const { return 0; }

    [[nodiscard]] virtual FourCharCode productCode() const { return 0; }

    /// Word of its own that a product may give its records.
    [[nodiscard]] virtual std::uint32_t valuesTag() const { return 0; }

    // Undo.
    [[nodiscard]] ZulUndoManager& undoManager() override { return undoManager_; }

    [[nodiscard]] const ZulUndoManager& undoManager() const override { return undoManager_; }

    void setUndoHandler(IQMParameterValuesUndoHandler* handler) override { undoHandler = handler; }

    void replayParameterValue(std::int32_t index, double value) override;
    void replayPreset(const QMGenericPreset& record, std::int32_t activeSnapshot,
                      std::uint64_t presetId) override;
    void replayBlendAmount(float x) override;

    void dumpDefaultsTable(const char* name, std::FILE* stream) const override;
    void logValues() const override;

protected:
    /// Called when the first hold of a parameter begins and when the last one ends; tells the
    /// listeners.
    virtual void announceTouchStart(std::int32_t index);
    virtual void announceTouchEnd(std::int32_t index);

private:
    [[nodiscard]] const IQMParameterSet* queriedSet() const override { return &set; }

    [[nodiscard]] bool isValid(std::int32_t index) const;
    template <typename Notification>
    void tellListeners(Notification notify);
    void moveBlendParameter(double value, QMParameterChanges* changes);

    /// Makes the changes of an applied snapshot, blend or record as one bracket.
    void applyValues(std::span<const std::int32_t> indices, std::span<const double> plainValues,
                     QMParameterChanges* changes);
    void applySnapshotValues(const std::vector<double>& plainValues, QMParameterChanges* changes);
    void recallSnapshot(std::int32_t snapshot, QMParameterChanges* changes);
    void storeSnapshot(std::int32_t snapshot);
    void selectBlend(QMParameterChanges* changes);
    [[nodiscard]] std::vector<double> blendedValues() const;
    [[nodiscard]] double blendedValue(std::int32_t index, double a, double b) const;
    [[nodiscard]] bool isExcluded(FourCharCode id, std::int32_t index) const;
    void takeDocumentOver(const nlohmann::json& newDocument);

    void beginUndoGesture(std::int32_t index);
    void recordParameterCommand(std::int32_t index);
    void recordPresetCommand();
    void recordBlendCommand();
    void recordPendingBlendCommand();

    IQMParameterSet& set;
    std::unique_ptr<QMParameterValuesCoefficientFlusher> flusher;
    bool enabled_ = true;
    std::int32_t accumulateDepth = 0;
    std::vector<double> values;
    std::vector<bool> changedFlags;
    std::vector<std::int32_t> touchCounts;
    double sampleRate_;
    std::int32_t coefficientVersion = 1;
    std::uint32_t defaultHostStatus = 1024;
    std::vector<IQMParameterValuesListener*> listeners;
    std::int32_t blendParameter = -1;
    bool blendLocked = false;

    QMSnapshotTable snapshots;
    bool applyingBlend = false;       ///< only while blended values are being applied
    bool blendGesturePending = false; ///< a group is open in which no blend was recorded yet
    std::uint64_t currentPreset = 0;
    std::unique_ptr<nlohmann::json> document; ///< never null itself; it may hold a null document
    std::set<FourCharCode> excluded;
    ZulUndoManager undoManager_;
    IQMParameterValuesUndoHandler* undoHandler = nullptr;
};

} // namespace QM
