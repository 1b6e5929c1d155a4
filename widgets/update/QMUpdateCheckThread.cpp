// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/update/QMUpdateCheckThread.h"

#include <utility>

QMUpdateCheckThread::QMUpdateCheckThread(UpdateFetch howToFetch, QM::UpdateParameters whatToAsk,
                                         std::function<void()> onReply)
    : juce::Thread("QM Update Check")
    , fetch(std::move(howToFetch))
    , parameters(std::move(whatToAsk))
    , tellOwner(std::move(onReply)) {}

QMUpdateCheckThread::~QMUpdateCheckThread() {
    askToStop();
    waitForEnd(-1);
}

void QMUpdateCheckThread::askToStop() {
    signalThreadShouldExit();
    stop.request_stop();
}

void QMUpdateCheckThread::run() {
    reply = ask();
    if (reply)
        tellOwner();
}

std::optional<QM::UpdateReply> QMUpdateCheckThread::ask() const {
    try {
        const std::optional<std::string> text = fetch(parameters, stop.get_token());
        return text ? QM::readUpdateReply(*text) : std::nullopt;
    } catch (...) {
        return std::nullopt; // out of memory, out of threads: no reply is no loss
    }
}
