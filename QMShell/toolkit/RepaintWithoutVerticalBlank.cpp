// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/toolkit/RepaintWithoutVerticalBlank.h"

#ifdef _WIN32

#    include "QMShell/toolkit/VerticalBlankWatch.h"

#    include <juce_gui_basics/juce_gui_basics.h>

#    include <memory>
#    include <vector>

namespace {

constexpr int periodMs = 20;

std::vector<juce::ComponentPeer*> allPeers() {
    std::vector<juce::ComponentPeer*> peers;
    for (int i = 0; i < juce::ComponentPeer::getNumPeers(); ++i)
        peers.push_back(juce::ComponentPeer::getPeer(i));
    return peers;
}

/// The windows of this library and their blanks. One blank in any window counts: the toolkit then
/// paints.
class Watcher final : private juce::Timer, private juce::ComponentPeer::VBlankListener {
public:
    Watcher() { startTimer(periodMs); }

    ~Watcher() override {
        stopTimer();
        for (juce::ComponentPeer* const peer : allPeers())
            peer->removeVBlankListener(this);
    }

    Watcher(const Watcher&) = delete;
    Watcher& operator=(const Watcher&) = delete;

private:
    void onVBlank() override { watch.blankCame(juce::Time::getMillisecondCounter()); }

    void timerCallback() override {
        const std::vector<juce::ComponentPeer*> peers = allPeers();
        // Listening twice is listening once. A window cannot be told from one that was at the same
        // address before, so all are asked each time.
        for (juce::ComponentPeer* const peer : peers)
            peer->addVBlankListener(this);
        if (watch.haveBlanksStopped(juce::Time::getMillisecondCounter(), !peers.empty()))
            repaint(peers);
    }

    static void repaint(const std::vector<juce::ComponentPeer*>& peers) {
        // Painting may let messages through, and with them the end of a window.
        for (juce::ComponentPeer* const peer : peers)
            if (juce::ComponentPeer::isValidPeer(peer))
                peer->performAnyPendingRepaintsNow();
    }

    VerticalBlankWatch watch;
};

struct Shared {
    int users = 0;
    std::unique_ptr<Watcher> watcher;
};

Shared& shared() {
    static Shared one;
    return one;
}

} // namespace

RepaintWithoutVerticalBlank::RepaintWithoutVerticalBlank() {
    if (++shared().users == 1)
        shared().watcher = std::make_unique<Watcher>();
}

RepaintWithoutVerticalBlank::~RepaintWithoutVerticalBlank() {
    if (--shared().users == 0)
        shared().watcher.reset();
}

bool RepaintWithoutVerticalBlank::isWatching() {
    return shared().watcher != nullptr;
}

#else

RepaintWithoutVerticalBlank::RepaintWithoutVerticalBlank() = default;
RepaintWithoutVerticalBlank::~RepaintWithoutVerticalBlank() = default;

bool RepaintWithoutVerticalBlank::isWatching() {
    return false;
}

#endif
