// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/FileRender.h"

#include "tools/brolt-host/AudioFileReader.h"
#include "tools/brolt-host/AudioFileWriter.h"
#include "tools/brolt-host/AutomationSchedule.h"
#include "tools/brolt-host/ChannelLayout.h"
#include "tools/brolt-host/Interruption.h"
#include "tools/brolt-host/OscillatorGains.h"
#include "tools/brolt-host/PeakMagnitude.h"
#include "tools/brolt-host/ProcessorInsight.h"
#include "tools/brolt-host/ProgressBar.h"
#include "tools/brolt-host/RecordTrace.h"
#include "tools/brolt-host/RenderHistory.h"
#include "tools/brolt-host/RenderPlot.h"
#include "tools/brolt-host/TwinRenderer.h"
#include "tools/brolt-host/Utf8.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <utility>

namespace {

/// Frames that are read, rendered and written at once: a whole number of blocks that stays in the
/// processor's cache where the blocks allow it.
std::int64_t chunkLength(std::int32_t blockSize) {
    constexpr std::int64_t wanted = 8192;
    return std::max<std::int64_t>(wanted / blockSize, 1) * blockSize;
}

class FileRender {
public:
    FileRender(RendererFactory& factory, const RenderPlan& renderPlan,
               const RenderFiles& renderFiles)
        : plan(renderPlan)
        , files(renderFiles)
        , reader(files.input)
        , channels(plan.channels.value_or(reader.channels()))
        , renderer(makeRenderer(factory))
        , insight(renderer->insight())
        , schedule(plan.automation.changes, reader.sampleRate())
        , writer(files.output, {channels, reader.sampleRate(), plan.encoding}, reader.frames())
        , chunk(chunkLength(plan.blockSize))
        , input(channels, chunk)
        , output(channels, chunk)
        , interleaved(static_cast<std::size_t>(chunk * std::max(channels, reader.channels()))) {
        if (files.trace)
            trace.emplace(*files.trace);
        if (files.plot) {
            plotFile.emplace(*files.plot);
            history.emplace(reader.frames(), reader.sampleRate());
        }
    }

    RenderSummary run() {
        const auto begin = std::chrono::steady_clock::now();
        {
            ProgressBar progress(utf8FromPath(files.input.filename()), reader.frames(),
                                 plan.showProgress);
            while (renderChunk())
                progress.update(position);
        }
        writer.finish();
        const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - begin;
        finish();
        return {position,
                channels,
                reader.sampleRate(),
                peak.value(),
                writer.samplesBeyondFullScale(),
                schedule.remaining(),
                elapsed.count()};
    }

private:
    /// One with a view into the processor where that is wanted.
    std::unique_ptr<Renderer> makeRenderer(RendererFactory& factory) const {
        auto made = factory.makeRenderer(channels, reader.sampleRate(), plan);
        const bool wantsInsight = files.trace || files.plot;
        if (!wantsInsight || made->insight() != nullptr)
            return made;
        return std::make_unique<TwinRenderer>(std::move(made), channels, reader.sampleRate(), plan);
    }

    bool renderChunk() {
        throwIfInterrupted();
        const std::int64_t frames = reader.read(interleaved.data(), chunk);
        if (frames == 0)
            return false;
        separateChannels(interleaved.data(), reader.channels(), frames, input);
        for (std::int64_t start = 0; start < frames; start += plan.blockSize)
            renderBlock(start, std::min<std::int64_t>(plan.blockSize, frames - start));
        renderer->betweenBlocks();
        if (history)
            history->noteLevels(input, output, position, frames);
        interleaveChannels(output, frames, interleaved.data());
        peak.note(interleaved.data(), static_cast<std::size_t>(frames * channels));
        writer.write(interleaved.data(), frames);
        position += frames;
        return true;
    }

    /// `start` counts from the beginning of the chunk.
    void renderBlock(std::int64_t start, std::int64_t frames) {
        const std::int64_t frame = position + start;
        for (const ParameterSetting& setting : schedule.settingsFor(frame, frames))
            renderer->setParameter(setting.index, setting.value);

        std::array<float*, 2> inputs{};
        std::array<float*, 2> outputs{};
        for (int c = 0; c < channels; ++c) {
            inputs[static_cast<std::size_t>(c)] = input.channel(c) + start;
            outputs[static_cast<std::size_t>(c)] = output.channel(c) + start;
        }
        renderer->process(inputs.data(), outputs.data(), static_cast<std::int32_t>(frames));

        if (trace && insight->recordInUse() != nullptr)
            trace->note(frame, *insight->recordInUse());
        if (history && history->wantsReading(frame + frames))
            history->noteOscillators(frame + frames, insight->readOscillators(),
                                     oscillatorGains(*renderer));
    }

    /// The audio is written: completes the files beside it. Everything is complete before the
    /// first file gets its name.
    void finish() {
        if (trace)
            trace->finish();
        if (plotFile) {
            drawRenderPlot(plotFile->temporaryPath(), *history,
                           plotCaption(plan, files, channels, reader.sampleRate()));
        }
        throwIfInterrupted();
        reader.close(); // the output may take its place
        writer.commit();
        if (trace)
            trace->commit();
        if (plotFile)
            plotFile->commit();
    }

    const RenderPlan& plan;
    const RenderFiles& files;
    AudioFileReader reader;
    int channels;
    std::unique_ptr<Renderer> renderer;
    ProcessorInsight* insight; ///< of the renderer
    AutomationSchedule schedule;
    AudioFileWriter writer;
    std::optional<RecordTrace> trace;
    std::optional<ReplacedFile> plotFile;
    std::optional<RenderHistory> history;
    std::int64_t chunk;
    ChannelBuffers input;
    ChannelBuffers output;
    std::vector<float> interleaved;
    PeakMagnitude peak;
    std::int64_t position = 0;
};

} // namespace

RenderSummary renderFile(RendererFactory& factory, const RenderPlan& plan,
                         const RenderFiles& files) {
    return FileRender(factory, plan, files).run();
}
