// SPDX-License-Identifier: GPL-3.0-or-later
// The list of parameter changes that one operation made: the command context of a change. An
// operation that may change many parameters fills one; the plug-in instance passes it on to the
// environment, so that listeners hear of the changes in one call.
#pragma once

#include <cstdint>
#include <vector>

namespace QM {

class QMParameterChanges {
public:
    /// Notes that a parameter has a new plain value. Order is kept; an index may come twice.
    void record(std::int32_t index, double value) {
        indices_.push_back(index);
        values_.push_back(value);
    }

    void clear() {
        indices_.clear();
        values_.clear();
    }

    [[nodiscard]] bool empty() const { return indices_.empty(); }

    [[nodiscard]] std::int32_t count() const { return static_cast<std::int32_t>(indices_.size()); }

    [[nodiscard]] const std::int32_t* indices() const { return indices_.data(); }

    [[nodiscard]] const double* values() const { return values_.data(); }

private:
    std::vector<std::int32_t> indices_;
    std::vector<double> values_;
};

} // namespace QM
