// SPDX-License-Identifier: GPL-3.0-or-later
//
// The rules between the layers, read off the include lines of a checkout.

#include "tests/layering/LayerCheck.h"

#include "tests/layering/IncludeLine.h"
#include "tests/layering/LayerTable.h"
#include "tests/sources/SourceFiles.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <optional>

namespace {

bool contains(const std::vector<std::string>& texts, const std::string& text) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

bool isTestFile(const std::string& path) {
    return path.starts_with("tests/") || path.find("/tests/") != std::string::npos;
}

// All of them, and nothing else in common use, have names without a suffix or a folder.
bool isStandardHeader(const std::string& header) {
    return std::all_of(header.begin(), header.end(), [](char c) {
        return std::islower(static_cast<unsigned char>(c)) != 0 ||
               std::isdigit(static_cast<unsigned char>(c)) != 0 || c == '_';
    });
}

bool namesJuce(std::string header) {
    std::transform(header.begin(), header.end(), header.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return header.find("juce") != std::string::npos;
}

// Of the plug-in interfaces the layer is made for.
bool isInterfaceHeader(const Layer& layer, const std::string& header) {
    return std::any_of(layer.interfaces.begin(), layer.interfaces.end(),
                       [&](const std::string& beginning) { return header.starts_with(beginning); });
}

// Why the file of this layer may not have this include line; nothing where it may.
std::optional<std::string> faultOf(const std::filesystem::path& root, const std::string& file,
                                   const Layer& layer, const IncludeLine& include) {
    const std::string& header = include.header;
    const bool toolkit = namesJuce(header);
    if (toolkit && !layer.toolkit) {
        return "the " + layer.name + " layer may not include JUCE (" + header + ")";
    }
    if (!include.quoted) {
        if (toolkit || layer.thirdParty || isTestFile(file) || isStandardHeader(header) ||
            contains(layer.platformHeaders, header) || isInterfaceHeader(layer, header)) {
            return std::nullopt;
        }
        return "<" + header + "> is not allowed to the " + layer.name + " layer";
    }
    if (!std::filesystem::is_regular_file(root / header)) {
        return "\"" + header + "\" names no file from the root";
    }
    // A path with .. in it would hide the layer it leads to.
    const std::string target = std::filesystem::path(header).lexically_normal().generic_string();
    if (isTestFile(target)) {
        // Benchmarks and fuzz targets measure against what the tests compare with.
        if (!isTestFile(file) && !file.starts_with("bench/") && !file.starts_with("fuzz/")) {
            return "\"" + header + "\" belongs to the tests";
        }
        if (target.starts_with("tests/support/")) {
            return std::nullopt;
        }
    }
    const Layer* const targetLayer = layerOf(target);
    if (targetLayer == nullptr) {
        return "\"" + header + "\" belongs to no layer";
    }
    const bool isSeen = contains(layer.sees, targetLayer->name) ||
                        (isTestFile(file) && contains(layer.testsSee, targetLayer->name));
    if (targetLayer != &layer && !isSeen) {
        return "the " + layer.name + " layer does not see the " + targetLayer->name + " layer (\"" +
               header + "\")";
    }
    return std::nullopt;
}

} // namespace

std::vector<std::string> checkLayers(const std::filesystem::path& root) {
    std::vector<std::string> faults;
    for (const std::string& file : findSourceFiles(root)) {
        const Layer* const layer = layerOf(file);
        if (layer == nullptr) {
            faults.push_back(file + ":1: belongs to no layer; see tests/layering/LayerTable.cpp");
            continue;
        }
        const std::vector<std::string> lines = readLines(root / file);
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const std::optional<IncludeLine> include = parseIncludeLine(lines[i]);
            if (!include) {
                continue;
            }
            if (const auto fault = faultOf(root, file, *layer, *include)) {
                faults.push_back(file + ":" + std::to_string(i + 1) + ": " + *fault);
            }
        }
    }
    return faults;
}
