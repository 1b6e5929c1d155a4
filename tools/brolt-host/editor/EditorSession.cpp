// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/editor/EditorSession.h"

#include "tools/brolt-host/Interruption.h"
#include "tools/brolt-host/editor/EditorFrame.h"
#include "tools/brolt-host/editor/PlaybackThread.h"
#include "tools/brolt-host/vst3/Vst3Renderer.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

/// The moment to close the window by itself; the end of all time for nothing.
Clock::time_point endOf(const std::optional<double>& seconds) {
    if (!seconds)
        return Clock::time_point::max();
    return Clock::now() +
           std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(*seconds));
}

void keepOpen(EditorWindow& window, HostMessages& messages, PlaybackThread& playback,
              Clock::time_point end) {
    constexpr milliseconds longestWait(100); // until Ctrl-C and a failed thread are seen
    while (!window.isCloseRequested() && Clock::now() < end) {
        throwIfInterrupted();
        playback.throwIfFailed();
        window.deliverEvents();
        const Clock::duration left = end - Clock::now();
        messages.waitAndDeliver(
            left < longestWait ? std::max(std::chrono::ceil<milliseconds>(left), milliseconds(0))
                               : longestWait);
    }
}

} // namespace

void runEditorSession(const EditorPlace& place, const ViewOptions& options, const RenderPlan& plan,
                      LoopedInput input, Vst3ComponentHandler::Observer observer) {
    const int channels = plan.channels.value_or(input.channels());
    Vst3Renderer renderer(place.effect, place.messages, Vst3Mode::realtime, channels,
                          input.sampleRate(), plan);
    renderer.observeEdits(std::move(observer));
    PlaybackThread playback(renderer, std::move(input), channels, plan.blockSize);

    EditorView view(renderer.controller());
    view.choose(options);
    const bool isResizable = view.plugView().canResize() == Steinberg::kResultTrue;
    const auto window =
        place.screen.openWindow(place.messages, place.title, view.size(), isResizable);
    const EditorFrame frame(std::move(view), *window, place.messages);
    keepOpen(*window, place.messages, playback, endOf(options.seconds));
}
