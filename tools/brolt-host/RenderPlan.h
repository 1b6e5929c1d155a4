// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the render command does to each file, once its options are understood.

#pragma once

#include "presets/record/QMGenericPreset.h"
#include "tools/brolt-host/Automation.h"
#include "tools/brolt-host/SampleEncoding.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// The same for every file of a batch.
struct RenderPlan {
    std::vector<QMGenericPreset> records;   ///< applied first, one after the other
    std::vector<ParameterSetting> settings; ///< from the beginning on
    Automation automation;
    std::string automationName; ///< the automation file, for messages
    std::int32_t blockSize = 512;
    std::optional<int> channels; ///< 1 or 2; nothing takes as many as the file has
    SampleEncoding encoding = SampleEncoding::float32;
    bool showProgress = true;
};

struct RenderFiles {
    std::filesystem::path input;
    std::filesystem::path output;
    std::optional<std::filesystem::path> trace;
    std::optional<std::filesystem::path> plot;
};
