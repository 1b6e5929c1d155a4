// SPDX-License-Identifier: GPL-3.0-or-later
// The instance that a host adapter runs: made anew for each channel layout its host chooses, with
// its settings carried across, brought to rest when the host starts over or goes away. The same for
// every plug-in interface.
//
// Threads. process runs on the audio thread. Everything else changes the instance and is called by
// one control thread at a time, which the adapter sees to; what may not run beside a block waits
// for it at the gate.
#pragma once

#include "QMShell/hosting/ProcessingActivity.h"
#include "QMShell/hosting/ProcessingGate.h"
#include "plugin-model/ProcessBlocks.h"

#include <cstdint>
#include <memory>

class INoxPlugIn;
class INoxPlugInProcessingHost;
class INoxPlugInTypeGroup;

class HostedInstance {
public:
    /// Host and group must outlive this. There is no instance yet.
    HostedInstance(INoxPlugInProcessingHost& host, INoxPlugInTypeGroup& group);
    ~HostedInstance();
    HostedInstance(const HostedInstance&) = delete;
    HostedInstance& operator=(const HostedInstance&) = delete;

    /// Null before the first layout. [message thread], or the host's control thread
    [[nodiscard]] INoxPlugIn* get() const { return instance.get(); }

    /// Makes the instance the one for 1 or 2 channels. An instance for another layout hands its
    /// complete state on, and whether it is bypassed, which states do not tell; its undo history
    /// goes with it. True when there is a new instance, which is not at rest yet.
    /// [message thread], or the host's control thread
    bool matchChannels(std::int32_t channels);

    /// Lets the instance go. [message thread], or the host's control thread
    void drop();

    /// Fresh processing state and then rest, as before a host's first block. Hz.
    /// [message thread], or the host's control thread
    void activate(double sampleRate);

    /// Rest: rate and coefficients of now, no pending coefficients, no sound left.
    /// [message thread], or the host's control thread
    void reset(double sampleRate);

    /// reset, once, when the host has stopped processing for longer than two blocks and a tenth of
    /// a second; never beside a block. True when it was reset. For a timer. [message thread]
    bool resetIfStopped(double sampleRate, std::int32_t blockSize);

    /// Runs one block and notes the time. Answers how many output channels it wrote: 0 when there
    /// is no instance, or it cannot be had now, or it needs more channels than the blocks have.
    /// [audio thread]
    std::int32_t process(const NoxProcessBlock& input, const NoxProcessBlock& output) noexcept;

private:
    void bringToRest(double sampleRate);

    INoxPlugInProcessingHost& host;
    INoxPlugInTypeGroup& group;
    std::unique_ptr<INoxPlugIn> instance;
    std::int32_t channelCount = 0; ///< in and out, of the type that the instance is of
    ProcessingGate gate;
    ProcessingActivity activity;
};
