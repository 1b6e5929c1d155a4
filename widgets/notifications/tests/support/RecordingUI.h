// SPDX-License-Identifier: GPL-3.0-or-later
// A plug-in UI that writes down what it hears.
#pragma once

#include "widgets/notifications/IQMPlugInUIParameters.h"

#include <utility>
#include <vector>

class RecordingUI final : public IQMPlugInUIParameters {
public:
    using Change = std::pair<std::int32_t, double>;

    void parameterChanged(std::int32_t index, double value) override {
        singles.emplace_back(index, value);
    }

    void parametersChanged(std::int32_t count, const std::int32_t* indices,
                           const double* values) override {
        std::vector<Change> batch;
        for (std::int32_t i = 0; i < count; ++i)
            batch.emplace_back(indices[i], values[i]);
        batches.push_back(batch);
    }

    void setParameterFromUI(std::int32_t index, double value) override {
        written.emplace_back(index, value);
    }

    [[nodiscard]] std::int32_t parameterIndex(FourCharCode id) const override {
        return id == known ? 3 : -1;
    }

    [[nodiscard]] double parameterValue(std::int32_t index) const override {
        return index == 3 ? 60.0 : 0.0;
    }

    static constexpr FourCharCode known = fourCharCode("sfre"); ///< index 3, at 60

    std::vector<Change> singles;
    std::vector<std::vector<Change>> batches;
    std::vector<Change> written;
};
