// SPDX-License-Identifier: GPL-3.0-or-later
// The current values of one plug-in instance's parameters: everybody who reads, changes, touches or
// brackets parameters does it through this interface. Questions about what a parameter is are
// answered by the set.
//
// One thread at a time changes values (the editor's, the host's control thread, MIDI); nothing here
// locks, and nothing here is for the audio thread, which only sees coefficient records.
#pragma once

#include "plugin-model/IQMParameterSet.h"
#include "plugin-model/IQMParameterValuesListener.h"
#include "plugin-model/Packet.h"
#include "plugin-model/QMParameterChanges.h"
#include "plugin-model/QMParameterQueries.h"
#include "plugin-model/QMParameterValuesCoefficientFlusher.h"
#include "plugin-model/records/IQMParameterRecords.h"
#include "plugin-model/snapshots/IQMParameterSnapshots.h"
#include "plugin-model/undo/IQMParameterUndo.h"

#include <cstdio>

namespace QM {

class IQMParameterValues : public QMParameterQueries,
                           public IQMParameterSnapshots,
                           public IQMParameterRecords,
                           public IQMParameterUndo {
public:
    [[nodiscard]] virtual IQMParameterSet& parameterSet() = 0;
    [[nodiscard]] virtual const IQMParameterSet& parameterSet() const = 0;

    // Values, in plain units.

    /// 0.0 for an index out of range.
    [[nodiscard]] virtual double getValue(std::int32_t index) const = 0;
    /// 0.0 for an unknown identifier.
    [[nodiscard]] virtual double getValueByID(FourCharCode id) const = 0;
    /// The main change entry: clamps, stores, records into the changes when there are any to fill,
    /// tells the listeners in their order. An index out of range does nothing. The parameter that
    /// stands for the blend, where there is one, moves the blend instead.
    virtual void setParameterValue(std::int32_t index, double value,
                                   QMParameterChanges* changes) = 0;
    /// The same for several parameters, in order, as one bracketed change.
    virtual void setParameterValues(std::int32_t count, const std::int32_t* indices,
                                    const double* values, QMParameterChanges* changes) = 0;
    /// Clamps into the parameter's range (not a number becomes the minimum) and stores, in the
    /// active snapshot as well, without telling anybody. True when the stored value changed; the
    /// changed flag is then set.
    virtual bool storeValue(std::int32_t index, double value) = 0;
    virtual void storeAndFlush(std::int32_t index, double value) = 0;
    /// Stores several values and flushes once.
    virtual void storeValuesAndFlush(std::int32_t count, const std::int32_t* indices,
                                     const double* values) = 0;
    /// Stores every value again and flushes: one complete coefficient packet.
    virtual void restoreAllAndFlush() = 0;

    // Brackets: between begin and end no flush happens; the outermost end flushes once.

    virtual void beginAccumulate() = 0;
    /// Throws std::logic_error "Unbalanced Accumulate/Flush Parameter Updates" without a begin.
    virtual void endAccumulate() = 0;

    // Coefficients.

    /// Hands the values to the flusher, unless there is none or a bracket is open.
    virtual void flush() = 0;
    /// Replaces the flusher; the previous one is destroyed.
    virtual void setFlusher(std::unique_ptr<QMParameterValuesCoefficientFlusher> flusher) = 0;
    virtual void generatePackets(PacketList& packets) = 0;
    virtual void generateSharcPackets(PacketList& packets) = 0;
    virtual void releasePackets(PacketList& packets) = 0;
    /// The flusher's status, or the default status without a flusher.
    [[nodiscard]] virtual std::uint32_t hostStatus() const = 0;
    virtual void setDefaultHostStatus(std::uint32_t status) = 0;

    // Gestures: holds of one parameter are counted, so that the editor, a control surface and
    // MIDI may hold it at once. From the first hold to the last one's end is one undo group, which
    // begins with the value before.

    virtual void beginTouch(std::int32_t index) = 0;
    virtual void endTouch(std::int32_t index) = 0;
    [[nodiscard]] virtual bool isTouched(std::int32_t index) const = 0;

    // Changed flags. An unknown identifier or index does nothing and tests false.

    [[nodiscard]] virtual bool testChangedFlag(std::int32_t index) const = 0;
    virtual void setChangedFlag(std::int32_t index) = 0;
    virtual void clearChangedFlag(std::int32_t index) = 0;
    [[nodiscard]] virtual bool testChangedFlagByID(FourCharCode id) const = 0;
    virtual void setChangedFlagByID(FourCharCode id) = 0;
    virtual void clearChangedFlagByID(FourCharCode id) = 0;

    // Surroundings.

    /// Hz.
    [[nodiscard]] virtual double sampleRate() const = 0;
    /// Takes a new rate over and reports the parameters that it changed (none in the base).
    virtual void setSampleRate(double rate, QMParameterChanges& changes) = 0;
    /// The parameter that stands for the blend of the snapshots; -1 when there is none.
    virtual void setBlendParameterIndex(std::int32_t index) = 0;
    /// While locked, the blend parameter does nothing.
    virtual void setBlendLocked(bool locked) = 0;
    [[nodiscard]] virtual bool enabled() const = 0;
    virtual void disable() = 0;

    // Listeners (not owned), told in the order in which they were added.

    virtual void addListener(IQMParameterValuesListener& listener) = 0;
    virtual void removeListener(IQMParameterValuesListener& listener) = 0;

    // Dumps for developers.

    /// Writes the current values as a table of defaults to a stream (standard error when null).
    virtual void dumpDefaultsTable(const char* name, std::FILE* stream) const = 0;
    /// Writes every value to the log at level 1.
    virtual void logValues() const = 0;
};

} // namespace QM
