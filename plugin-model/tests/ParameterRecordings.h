// SPDX-License-Identifier: GPL-3.0-or-later
// Test doubles that note, in one common list, what a values object tells its surroundings.
#pragma once

#include "plugin-model/QMParameterValues.h"

#include <functional>
#include <sstream>
#include <string>
#include <vector>

namespace parameterTest {

/// Events in the order in which they happened, as short texts.
using Events = std::vector<std::string>;

/// Notes "NAME set INDEX VALUE", "NAME touched INDEX" and "NAME released INDEX".
class RecordingListener : public QM::IQMParameterValuesListener {
public:
    RecordingListener(std::string listenerName, Events& eventList)
        : name(std::move(listenerName))
        , events(eventList) {}

    void parameterValueSet(QM::IQMParameterValues&, std::int32_t index, double value) override {
        std::ostringstream text;
        text << name << " set " << index << ' ' << value;
        events.push_back(text.str());
        if (whenSet)
            whenSet();
    }

    void touchStarted(QM::IQMParameterValues&, std::int32_t index) override {
        events.push_back(name + " touched " + std::to_string(index));
        if (whenTouched)
            whenTouched();
    }

    void touchEnded(QM::IQMParameterValues&, std::int32_t index) override {
        events.push_back(name + " released " + std::to_string(index));
    }

    std::function<void()> whenSet;
    std::function<void()> whenTouched;

private:
    std::string name;
    Events& events;
};

/// What became of a RecordingFlusher. The values object owns the flusher, so the record has to
/// outlive the values.
struct FlushRecord {
    int flushes = 0;
    int destroyed = 0;
    std::uint32_t status = 0;
    std::function<void(QM::QMParameterValues&)> whenFlushed;
};

class RecordingFlusher : public QMParameterValuesCoefficientFlusher {
public:
    explicit RecordingFlusher(FlushRecord& flushRecord)
        : record(flushRecord) {}

    ~RecordingFlusher() override { ++record.destroyed; }

    RecordingFlusher(const RecordingFlusher&) = delete;
    RecordingFlusher& operator=(const RecordingFlusher&) = delete;

    void flush(QM::QMParameterValues& values) override {
        ++record.flushes;
        if (record.whenFlushed)
            record.whenFlushed(values);
    }

    [[nodiscard]] std::uint32_t hostStatus() const override { return record.status; }

private:
    FlushRecord& record;
};

} // namespace parameterTest
