// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/editor/ShownSound.h"

#include "tools/brolt-host/Interruption.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <thread>

namespace {

std::int64_t framesOf(double seconds, int sampleRate) {
    return std::max<std::int64_t>(std::llround(seconds * sampleRate), 1);
}

void processBlock(Renderer& renderer, ChannelBuffers& buffers, std::int32_t frames) {
    std::array<float*, 2> channels{};
    for (int c = 0; c < buffers.channelCount(); ++c)
        channels[static_cast<std::size_t>(c)] = buffers.channel(c);
    renderer.process(channels.data(), channels.data(), frames);
}

} // namespace

void playToView(EditorView& view, Renderer& renderer, LoopedInput input, const RenderPlan& plan,
                const std::optional<double>& seconds) {
    constexpr double refreshInterval = 0.03; // seconds
    const std::int64_t interval = framesOf(refreshInterval, input.sampleRate());
    const std::int64_t end =
        seconds ? std::min(framesOf(*seconds, input.sampleRate()), input.frames()) : input.frames();
    ChannelBuffers buffers(plan.channels.value_or(input.channels()), plan.blockSize);
    const auto begin = std::chrono::steady_clock::now();
    std::int64_t nextRefresh = interval;
    for (std::int64_t position = 0; position < end;) {
        throwIfInterrupted();
        const auto frames =
            static_cast<std::int32_t>(std::min<std::int64_t>(plan.blockSize, end - position));
        input.read(buffers, frames);
        processBlock(renderer, buffers, frames);
        position += frames;
        // A large block holds several: what falls in a display falls by the refresh.
        for (; nextRefresh <= position; nextRefresh += interval) {
            const std::chrono::duration<double> elapsed(static_cast<double>(nextRefresh) /
                                                        input.sampleRate());
            std::this_thread::sleep_until(begin + elapsed);
            view.refreshDisplays();
        }
    }
    view.refreshDisplays();
}
