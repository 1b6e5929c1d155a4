// SPDX-License-Identifier: GPL-3.0-or-later
// The plug-in as a VST3 host sees it: component, processor and controller in one object. It knows
// the product through the plug-in model alone. Its parts are in files of their own:
//   QMShellVST3.cpp             its life
//   QMShellVST3Buses.cpp        buses, arrangements, setting up
//   QMShellVST3Parameters.cpp   parameters
//   QMShellVST3Editing.cpp      what the editor does to the instance
//   QMShellVST3Process.cpp      processing
//   QMShellVST3State.cpp        state
//
// Threads. process runs on the audio thread and takes no lock, except in offline mode, where it
// sets parameters. Everything else that touches the instance holds the environment's control lock,
// since hosts' control threads, the message thread's check and offline processing come at the same
// time. The host is never called with the lock held, nor is the message thread waited for: both may
// want it. What may not run beside a block is kept apart by HostedInstance.
#pragma once

#include <public.sdk/source/vst/vstsinglecomponenteffect.h>

#include "QMShell/hosting/HostedInstance.h"
#include "QMShell/hosting/NoxPlugInEnvironment.h"
#include "QMShell/hosting/QMShellPlugInProcessingHost.h"
#include "QMShell/vst3/Vst3Product.h"

#include <atomic>
#include <mutex>
#include <optional>

class IHostRunLoop;
class IStateByteStream;
class IStateEntrySink;
class QMVstParameter;
class RepeatingCheck;
class ToolkitUse;

class QMShellVST3 final : public Steinberg::Vst::SingleComponentEffect {
public:
    using tresult = Steinberg::tresult;
    using int32 = Steinberg::int32;
    using ParamID = Steinberg::Vst::ParamID;
    using ParamValue = Steinberg::Vst::ParamValue;

    /// The product must outlive it. The host's context, as it gave it to the factory, may be null.
    /// [message thread]
    QMShellVST3(const Vst3Product& adaptedProduct, Steinberg::FUnknown* hostOfLibrary);
    ~QMShellVST3() override;

    // Its life. Everything in this class may be called before initialize and after terminate, and
    // then answers failure, 0 or nothing.

    tresult PLUGIN_API initialize(Steinberg::FUnknown* context) override;
    tresult PLUGIN_API terminate() override;

    // Buses and setting up: the host's control thread.

    tresult PLUGIN_API getBusInfo(Steinberg::Vst::MediaType type,
                                  Steinberg::Vst::BusDirection direction, int32 index,
                                  Steinberg::Vst::BusInfo& info) override;
    tresult PLUGIN_API activateBus(Steinberg::Vst::MediaType type,
                                   Steinberg::Vst::BusDirection direction, int32 index,
                                   Steinberg::TBool state) override;
    tresult PLUGIN_API setBusArrangements(Steinberg::Vst::SpeakerArrangement* inputs, int32 numIns,
                                          Steinberg::Vst::SpeakerArrangement* outputs,
                                          int32 numOuts) override;
    tresult PLUGIN_API getBusArrangement(Steinberg::Vst::BusDirection direction, int32 index,
                                         Steinberg::Vst::SpeakerArrangement& arrangement) override;
    tresult PLUGIN_API setupProcessing(Steinberg::Vst::ProcessSetup& setup) override;
    /// Does the same for both states: the instance starts over.
    tresult PLUGIN_API setActive(Steinberg::TBool state) override;
    tresult PLUGIN_API setProcessing(Steinberg::TBool state) override;
    Steinberg::uint32 PLUGIN_API getLatencySamples() override;
    Steinberg::uint32 PLUGIN_API getTailSamples() override;

    /// [audio thread]
    tresult PLUGIN_API process(Steinberg::Vst::ProcessData& data) override;

    // State: any thread of the host but the audio thread.

    tresult PLUGIN_API setState(Steinberg::IBStream* stream) override;
    tresult PLUGIN_API getState(Steinberg::IBStream* stream) override;
    /// The same as setState: hosts hand the component's state to its controller, too.
    tresult PLUGIN_API setComponentState(Steinberg::IBStream* stream) override;

    /// There is no state that only the controller has.
    tresult PLUGIN_API setEditorState(Steinberg::IBStream*) override {
        return Steinberg::kResultFalse;
    }

    tresult PLUGIN_API getEditorState(Steinberg::IBStream*) override {
        return Steinberg::kResultOk;
    }

    // Parameters: any thread of the host but the audio thread. A parameter is addressed by its
    // four-character identifier or by its index.

    int32 PLUGIN_API getParameterCount() override;
    tresult PLUGIN_API getParameterInfo(int32 index, Steinberg::Vst::ParameterInfo& info) override;
    tresult PLUGIN_API getParamStringByValue(ParamID id, ParamValue normalised,
                                             Steinberg::Vst::String128 text) override;
    tresult PLUGIN_API getParamValueByString(ParamID id, Steinberg::Vst::TChar* text,
                                             ParamValue& normalised) override;
    ParamValue PLUGIN_API normalizedParamToPlain(ParamID id, ParamValue normalised) override;
    ParamValue PLUGIN_API plainParamToNormalized(ParamID id, ParamValue plain) override;
    ParamValue PLUGIN_API getParamNormalized(ParamID id) override;
    /// kResultFalse, and nothing changes, for an unknown parameter or a value that is no number.
    tresult PLUGIN_API setParamNormalized(ParamID id, ParamValue normalised) override;

    /// Null for any name but "editor", and for a product without editors. [message thread]
    Steinberg::IPlugView* PLUGIN_API createView(Steinberg::FIDString name) override;

    Steinberg::Vst::Parameter* getParameterObject(ParamID id) override;

    // For the editor of the instance. [message thread], but where something else is said

    /// To be held for as long as the instance is used. [any thread but audio]
    [[nodiscard]] std::recursive_mutex& controlLock() { return environment.controlLock(); }

    /// With the control lock held; null without an instance. [any thread but audio]
    [[nodiscard]] INoxPlugIn* currentInstance() const { return hosted.get(); }

    /// Hz.
    [[nodiscard]] double sampleRate();

    /// Beats a minute.
    [[nodiscard]] double hostTempo() const { return tempo.load(std::memory_order_relaxed); }

    /// By the identifier, else taking it for an index; -1 when it is neither.
    [[nodiscard]] int32 indexOfParameter(ParamID id);

    struct EditedParameter {
        ParamID id; ///< as the host knows it
        ParamValue normalised;
    };

    /// Sets a parameter to what the host will make of a plain value. Answers what the host is to be
    /// told; nothing for an unknown parameter or a value that is no number.
    std::optional<EditedParameter> setFromEditor(ParamID id, double plain);

    OBJ_METHODS(QMShellVST3, Steinberg::Vst::SingleComponentEffect)

private:
    class EntryRestorer;

    /// The answer of an entry point that could not do its work.
    static constexpr tresult failed = Steinberg::kResultFalse;

    /// Does an entry point's work with the control lock held. What it throws ends here, with a line
    /// in the log; the answer is then `failure`.
    template <typename Answer, typename Work>
    Answer guarded(const char* entry, Answer failure, Work work) noexcept;

    [[nodiscard]] std::shared_ptr<IHostRunLoop> runLoopOf(Steinberg::FUnknown* context) const;
    tresult begin(Steinberg::FUnknown* context);
    void end() noexcept;
    void addBuses();
    void checkWhetherProcessingStopped() noexcept;

    [[nodiscard]] Steinberg::Vst::AudioBus* audioBus(Steinberg::Vst::BusDirection direction,
                                                     int32 index);
    bool applyMainArrangements(Steinberg::Vst::SpeakerArrangement input,
                               Steinberg::Vst::SpeakerArrangement output);
    bool applyArrangements(const Steinberg::Vst::SpeakerArrangement* inputs, int32 numIns,
                           const Steinberg::Vst::SpeakerArrangement* outputs, int32 numOuts);
    void matchInstanceToBuses();
    void startOver();
    void publishParameters();

    [[nodiscard]] int32 indexOf(ParamID id) const;
    [[nodiscard]] QMVstParameter* parameterAt(int32 index) const;
    void setPlainValue(int32 index, double plain);
    void refreshParameters();
    bool restore(IStateByteStream& stream, IStateEntrySink& sink);
    void applyLastPoints(Steinberg::Vst::IParameterChanges& changes);
    void applyOfflineChanges(Steinberg::Vst::IParameterChanges* changes) noexcept;

    const Vst3Product& product;
    Steinberg::IPtr<Steinberg::FUnknown> libraryContext;
    NoxPlugInEnvironment environment;
    QMShellPlugInProcessingHost processingHost;
    std::unique_ptr<INoxPlugInTypeGroup> typeGroup;
    HostedInstance hosted;
    std::atomic<double> tempo{120.0}; ///< beats a minute; written by the audio thread
    std::atomic<int32> processMode{Steinberg::Vst::kRealtime};
    bool isInitialised = false;

    std::unique_ptr<ToolkitUse> toolkit;
    std::unique_ptr<RepeatingCheck> check;
};
