// SPDX-License-Identifier: GPL-3.0-or-later
// The framework's values object. A product derives from it to turn its values into coefficient
// packets.
#pragma once

#include "plugin-model/IQMParameterValues.h"

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

    void setUndoHandler(IQMParameterValuesUndoHandler* handler) override { undoHandler = handler; }

    void replayParameterValue(std::int32_t index, double value) override;

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
    IQMParameterValuesUndoHandler* undoHandler = nullptr;
};

} // namespace QM
