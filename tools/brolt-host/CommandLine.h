// SPDX-License-Identifier: GPL-3.0-or-later
//
// The tool's options, as they were given: names of parameters and files are not looked at yet.

#pragma once

#include "tools/brolt-host/PlugInOptions.h"
#include "tools/brolt-host/SampleEncoding.h"
#include "tools/brolt-host/editor/EditorOptions.h"
#include "tools/brolt-host/state/StateOptions.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

struct RenderOptions {
    std::vector<std::filesystem::path> files; ///< IN and OUT, or inputs alone with an output folder
    std::optional<std::filesystem::path> outputFolder;
    std::vector<std::string> settings; ///< "ID=VALUE" each
    RenderStateOptions state;
    PlugInOptions plugIn;
    std::optional<std::filesystem::path> automation;
    std::int32_t blockSize = 512;
    std::optional<int> channels;
    SampleEncoding encoding = SampleEncoding::float32;
    std::optional<std::filesystem::path> trace;
    std::optional<std::filesystem::path> plot;
    bool quiet = false;
};

struct ParamsOptions {
    bool tabSeparated = false;
};

struct InfoOptions {
    PlugInOptions plugIn;
};

/// A text the user asked for: help or version.
struct TextRequest {
    std::string text;
};

using CommandLine =
    std::variant<RenderOptions, ParamsOptions, InfoOptions, PresetShowOptions, PresetListOptions,
                 PresetConvertOptions, EditorOptions, ScreenshotOptions, TextRequest>;

/// Throws HostError for options that are unknown, missing or impossible. [message thread]
CommandLine parseCommandLine(const std::vector<std::string>& arguments);
