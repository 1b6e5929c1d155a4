// SPDX-License-Identifier: GPL-3.0-or-later
//
// Drives an instance through the VST3 interface in the order of a workstation: set up, given the
// project's state, activated, then block after block with parameter changes.

#pragma once

#include "tools/brolt-host/PlugInOptions.h"
#include "tools/brolt-host/RenderPlan.h"
#include "tools/brolt-host/Renderer.h"
#include "tools/brolt-host/vst3/HostMessages.h"
#include "tools/brolt-host/vst3/Vst3Instance.h"

#include <pluginterfaces/vst/ivstprocesscontext.h>
#include <public.sdk/source/vst/hosting/parameterchanges.h>

#include <chrono>
#include <mutex>
#include <vector>

class INoxPlugIn;

class Vst3Renderer : public Renderer {
public:
    /// The plan's records and settings become a project's state, which the plug-in gets before it
    /// is activated. `hostMessages` must outlive the renderer. Throws HostError for every answer
    /// of the plug-in that is not OK, as the operations below do.
    Vst3Renderer(const Vst3EffectClass& effect, HostMessages& hostMessages, Vst3Mode processMode,
                 int channels, double sampleRate, const RenderPlan& plan);

    ~Vst3Renderer() override;

    /// In realtime mode at once, through the edit controller. In offline mode the next block
    /// carries the change, at its first frame.
    void setParameter(std::int32_t index, double value) override;

    /// What the controller says; in offline mode a change is seen after its block.
    [[nodiscard]] double parameter(std::int32_t index) const override;

    void process(float** inputs, float** outputs, std::int32_t frames) override;

    /// Lets the plug-in's timers and messages have their turn.
    void betweenBlocks() override;

    /// For what a workstation does on its window's thread while another one processes: views, and
    /// reading values.
    [[nodiscard]] Steinberg::Vst::IEditController& controller() const {
        return instance.controller();
    }

    /// From now on the values of the controller's edits go into the blocks, as a workstation
    /// returns them to the processor, and every edit is told to the observer. To be called before
    /// another thread begins to process. [message thread]
    void observeEdits(Vst3ComponentHandler::Observer observer);

private:
    using Clock = std::chrono::steady_clock;

    /// See Vst3Instance: the other constructor can then be left on its way.
    Vst3Renderer(const Vst3EffectClass& effect, HostMessages& hostMessages, Vst3Mode processMode,
                 int channels, double sampleRate);

    void readParameterIDs();
    void setUp(std::int32_t blockSize);
    void restoreSettings(const RenderPlan& plan);
    void activate();

    [[nodiscard]] Steinberg::Vst::ParamID idOf(std::int32_t index) const;
    void setThroughController(std::int32_t index, double value);
    void takeEditedValues();

    HostMessages& messages;
    Vst3Instance instance;
    Vst3Mode mode;
    int channelCount;
    std::vector<Steinberg::Vst::ParamID> ids; ///< of the parameters, by index
    Steinberg::Vst::ProcessContext context{};
    Steinberg::Vst::ParameterChanges changes;        ///< for the next block
    Steinberg::Vst::ParameterChanges ignoredChanges; ///< that the plug-in reports
    std::mutex editsMutex;
    std::vector<Vst3Edit> editedValues; ///< for the next block, guarded by the mutex
    Clock::time_point lastBlock;
    bool isActive = false;
    bool isProcessing = false;
};
