// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/RenderCommand.h"

#include "tools/brolt-host/Decibels.h"
#include "tools/brolt-host/ExitStatus.h"
#include "tools/brolt-host/FileRender.h"
#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/Messages.h"
#include "tools/brolt-host/ProductModel.h"
#include "tools/brolt-host/Utf8.h"
#include "tools/brolt-host/state/InstanceSettings.h"
#include "tools/brolt-host/state/StateFile.h"

#include <array>
#include <cstdio>
#include <map>
#include <memory>
#include <system_error>

namespace fs = std::filesystem;

namespace {

/// Two names of one file become the same text, whether the file exists or not.
fs::path comparable(const fs::path& path) {
    std::error_code error;
    const fs::path whole = fs::absolute(path, error);
    const fs::path canonical = fs::weakly_canonical(whole, error);
    return error ? whole.lexically_normal() : canonical;
}

void checkOutputsDiffer(const std::vector<RenderFiles>& all, const RenderStateOptions& state) {
    std::map<fs::path, fs::path> owners; // output to the file it comes from
    const auto claim = [&](const std::optional<fs::path>& output, const fs::path& owner) {
        if (!output)
            return;
        const auto [entry, isNew] = owners.try_emplace(comparable(*output), owner);
        if (!isNew) {
            throw HostError::ofFile(*output, "would be written twice, for " +
                                                 utf8FromPath(entry->second) + " and for " +
                                                 utf8FromPath(owner));
        }
    };
    claim(state.savedState, "--save-state");
    claim(state.savedPreset, "--save-preset");
    for (const RenderFiles& files : all) {
        for (const auto& extra : {files.trace, files.plot, state.savedState, state.savedPreset}) {
            if (extra && comparable(*extra) == comparable(files.input))
                throw HostError::ofFile(*extra, "is the input file");
        }
        claim(files.output, files.input);
        claim(files.trace, "--trace-records");
        claim(files.plot, "--plot");
    }
}

RenderPlan planOf(const RenderOptions& options) {
    RenderPlan plan;
    plan.records = readRecords(options.state);
    plan.settings = readSettings(options.settings);
    if (options.automation) {
        ProductModel product;
        plan.automation = readAutomation(*options.automation, product.parameters());
        plan.automationName = utf8FromPath(*options.automation);
        for (const std::string& notice : plan.automation.notices)
            printMessage(notice);
    }
    plan.blockSize = options.blockSize;
    plan.channels = options.channels;
    plan.encoding = options.encoding;
    plan.showProgress = !options.quiet;
    return plan;
}

void printNotices(const RenderPlan& plan, const RenderFiles& files, const RenderSummary& summary) {
    if (summary.changesAfterEnd > 0) {
        printMessage(plan.automationName + ": " + std::to_string(summary.changesAfterEnd) +
                     " of its changes lie behind the end of " + utf8FromPath(files.input) +
                     " and are left out");
    }
    if (summary.samplesBeyondFullScale > 0) {
        printMessage(utf8FromPath(files.output) + ": " +
                     std::to_string(summary.samplesBeyondFullScale) +
                     " samples are beyond full scale and were clipped");
    }
}

void printSummary(const RenderFiles& files, const RenderSummary& summary) {
    const double duration = static_cast<double>(summary.frames) / summary.sampleRate;
    std::array<char, 200> text{};
    std::snprintf(text.data(), text.size(),
                  "%.2f s, %s, %d Hz, peak %s, rendered %.0f times faster than real time", duration,
                  summary.channels == 1 ? "mono" : "stereo", summary.sampleRate,
                  peakText(static_cast<double>(summary.peak)).c_str(), duration / summary.seconds);
    std::printf("%s: %s\n", utf8FromPath(files.output).c_str(), text.data());
    std::fflush(stdout);
}

} // namespace

std::vector<RenderFiles> renderFilesOf(const RenderOptions& options) {
    std::vector<RenderFiles> all;
    if (options.outputFolder) {
        std::error_code ignored;
        if (!fs::is_directory(*options.outputFolder, ignored))
            throw HostError::ofFile(*options.outputFolder, "is not a folder");
        for (const fs::path& input : options.files) {
            fs::path output = *options.outputFolder / input.filename();
            all.push_back({input, output.replace_extension(".wav"), options.trace, options.plot});
        }
    } else {
        all.push_back({options.files.front(), options.files.back(), options.trace, options.plot});
    }
    checkOutputsDiffer(all, options.state);
    return all;
}

int runRenderCommand(const RenderOptions& options) {
    const std::vector<RenderFiles> all = renderFilesOf(options);
    const RenderPlan plan = planOf(options);
    const std::unique_ptr<RendererFactory> factory = makeRendererFactory(options.plugIn);
    saveSettings(plan, options.state);
    std::size_t failures = 0;
    for (const RenderFiles& files : all) {
        try {
            const RenderSummary summary = renderFile(*factory, plan, files);
            printNotices(plan, files, summary);
            if (!options.quiet)
                printSummary(files, summary);
        } catch (const HostError& error) {
            printMessage(error.what());
            ++failures;
        }
    }
    if (failures > 0 && all.size() > 1) {
        printMessage(std::to_string(failures) + " of " + std::to_string(all.size()) +
                     " files could not be rendered");
    }
    return failures == 0 ? ExitStatus::success : ExitStatus::badInput;
}
