// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/QMParameterValues.h"

#include "plugin-model/AccumulateBracket.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <stdexcept>

namespace QM {

QMParameterValues::QMParameterValues(IQMParameterSet& parameterSet, double sampleRate)
    : set(parameterSet)
    , values(static_cast<std::size_t>(parameterSet.parameterCount()))
    , changedFlags(values.size())
    , touchCounts(values.size())
    , sampleRate_(sampleRate)
    , document(std::make_unique<nlohmann::json>()) {
    resetExcludedIDs();
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = set.defaultValue(static_cast<std::int32_t>(i));
}

QMParameterValues::~QMParameterValues() = default;

bool QMParameterValues::isValid(std::int32_t index) const {
    return index >= 0 && static_cast<std::size_t>(index) < values.size();
}

double QMParameterValues::getValue(std::int32_t index) const {
    return isValid(index) ? values[static_cast<std::size_t>(index)] : 0.0;
}

double QMParameterValues::getValueByID(FourCharCode id) const {
    return getValue(set.indexOfID(id));
}

void QMParameterValues::setParameterValue(std::int32_t index, double value,
                                          QMParameterChanges* changes) {
    if (!isValid(index))
        return;
    if (index == blendParameter) {
        moveBlendParameter(value, changes);
        return;
    }
    storeAndFlush(index, value);
    if (changes != nullptr)
        changes->record(index, getValue(index));
    tellListeners([&](IQMParameterValuesListener& listener) {
        listener.parameterValueSet(*this, index, getValue(index));
    });
}

void QMParameterValues::moveBlendParameter(double value, QMParameterChanges* changes) {
    if (blendLocked)
        return;
    values[static_cast<std::size_t>(blendParameter)] = value;
    if (changes != nullptr)
        changes->record(blendParameter, value);
    setBlend(static_cast<float>(value), static_cast<float>(value), changes);
}

void QMParameterValues::setParameterValues(std::int32_t count, const std::int32_t* indices,
                                           const double* plainValues, QMParameterChanges* changes) {
    AccumulateBracket bracket(*this);
    for (std::int32_t i = 0; i < count; ++i)
        setParameterValue(indices[i], plainValues[i], changes);
    bracket.close();
}

bool QMParameterValues::storeValue(std::int32_t index, double value) {
    if (!isValid(index))
        return false;
    const double minimum = set.minimum(index);
    // A comparison with not-a-number is false: it becomes the minimum.
    const double clamped = value >= minimum ? std::min(value, set.maximum(index)) : minimum;
    if (QMSnapshotTable::Snapshot* active = snapshots.activeOne())
        active->values[static_cast<std::size_t>(index)] = clamped;
    double& stored = values[static_cast<std::size_t>(index)];
    if (stored == clamped)
        return false;
    stored = clamped;
    changedFlags[static_cast<std::size_t>(index)] = true;
    return true;
}

void QMParameterValues::storeAndFlush(std::int32_t index, double value) {
    storeValue(index, value);
    flush();
}

void QMParameterValues::storeValuesAndFlush(std::int32_t count, const std::int32_t* indices,
                                            const double* plainValues) {
    for (std::int32_t i = 0; i < count; ++i)
        storeValue(indices[i], plainValues[i]);
    flush();
}

void QMParameterValues::restoreAllAndFlush() {
    for (std::size_t i = 0; i < values.size(); ++i)
        storeValue(static_cast<std::int32_t>(i), values[i]);
    flush();
}

void QMParameterValues::beginAccumulate() {
    ++accumulateDepth;
}

void QMParameterValues::endAccumulate() {
    if (accumulateDepth <= 0)
        throw std::logic_error("Unbalanced Accumulate/Flush Parameter Updates");
    if (--accumulateDepth == 0)
        flush();
}

void QMParameterValues::flush() {
    if (accumulateDepth == 0 && flusher != nullptr)
        flusher->flush(*this);
}

void QMParameterValues::setFlusher(
    std::unique_ptr<QMParameterValuesCoefficientFlusher> newFlusher) {
    flusher = std::move(newFlusher);
}

void QMParameterValues::generatePackets(PacketList&) {}

void QMParameterValues::generateSharcPackets(PacketList& packets) {
    releasePackets(packets);
}

void QMParameterValues::releasePackets(PacketList& packets) {
    packets.clear();
}

std::int32_t QMParameterValues::nextCoefficientVersion() {
    // Counted unsigned: a session may outlive two thousand million changes.
    coefficientVersion =
        static_cast<std::int32_t>(static_cast<std::uint32_t>(coefficientVersion) + 1u);
    return coefficientVersion;
}

std::uint32_t QMParameterValues::hostStatus() const {
    return flusher != nullptr ? flusher->hostStatus() : defaultHostStatus;
}

void QMParameterValues::beginTouch(std::int32_t index) {
    if (!isValid(index))
        return;
    std::int32_t& count = touchCounts[static_cast<std::size_t>(index)];
    if (count == 0) {
        beginUndoGesture(index);
        announceTouchStart(index);
    }
    ++count;
}

void QMParameterValues::endTouch(std::int32_t index) {
    if (!isValid(index))
        return;
    std::int32_t& count = touchCounts[static_cast<std::size_t>(index)];
    if (count == 1) {
        announceTouchEnd(index);
        undoManager_.endGroup();
    }
    --count;
}

bool QMParameterValues::isTouched(std::int32_t index) const {
    return isValid(index) && touchCounts[static_cast<std::size_t>(index)] != 0;
}

void QMParameterValues::announceTouchStart(std::int32_t index) {
    tellListeners(
        [&](IQMParameterValuesListener& listener) { listener.touchStarted(*this, index); });
}

void QMParameterValues::announceTouchEnd(std::int32_t index) {
    tellListeners([&](IQMParameterValuesListener& listener) { listener.touchEnded(*this, index); });
}

bool QMParameterValues::testChangedFlag(std::int32_t index) const {
    return isValid(index) && changedFlags[static_cast<std::size_t>(index)];
}

void QMParameterValues::setChangedFlag(std::int32_t index) {
    if (isValid(index))
        changedFlags[static_cast<std::size_t>(index)] = true;
}

void QMParameterValues::clearChangedFlag(std::int32_t index) {
    if (isValid(index))
        changedFlags[static_cast<std::size_t>(index)] = false;
}

bool QMParameterValues::testChangedFlagByID(FourCharCode id) const {
    return testChangedFlag(set.indexOfID(id));
}

void QMParameterValues::setChangedFlagByID(FourCharCode id) {
    setChangedFlag(set.indexOfID(id));
}

void QMParameterValues::clearChangedFlagByID(FourCharCode id) {
    clearChangedFlag(set.indexOfID(id));
}

void QMParameterValues::setSampleRate(double rate, QMParameterChanges&) {
    sampleRate_ = rate;
}

void QMParameterValues::addListener(IQMParameterValuesListener& listener) {
    listeners.push_back(&listener);
}

void QMParameterValues::removeListener(IQMParameterValuesListener& listener) {
    std::erase(listeners, &listener);
}

template <typename Notification>
void QMParameterValues::tellListeners(Notification notify) {
    // A listener may remove itself or others while it is told.
    const std::vector<IQMParameterValuesListener*> told = listeners;
    for (IQMParameterValuesListener* listener : told) {
        if (std::find(listeners.begin(), listeners.end(), listener) != listeners.end())
            notify(*listener);
    }
}

} // namespace QM
