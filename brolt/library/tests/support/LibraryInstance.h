// SPDX-License-Identifier: GPL-3.0-or-later
// One plug-in of the loaded library in the hands of a host: made by the factory, initialised,
// driven through its interfaces, and put away in order, whatever the test did.
#pragma once

#include "brolt/library/tests/support/AudioBlock.h"
#include "brolt/library/tests/support/HostContext.h"
#include "brolt/library/tests/support/HostSession.h"
#include "brolt/library/tests/support/LoadedLibrary.h"
#include "brolt/library/tests/support/TestAudio.h"
#include "plugin-model/FourCharCode.h"
#include "presets/record/tests/support/ByteBuilder.h"

class LibraryInstance {
public:
    enum class Begin { created, initialised };

    /// Uses a context of its own when none is given.
    explicit LibraryInstance(Begin begin = Begin::initialised,
                             const LoadedLibrary& library = LoadedLibrary::shared(),
                             Steinberg::FUnknown* context = nullptr);
    /// Stops, terminates and lets go; it is a failure of the test when the object stays.
    ~LibraryInstance();
    LibraryInstance(const LibraryInstance&) = delete;
    LibraryInstance& operator=(const LibraryInstance&) = delete;

    [[nodiscard]] Vst::IComponent& component() { return *component_; }

    [[nodiscard]] Vst::IAudioProcessor& processor() { return *processor_; }

    [[nodiscard]] Vst::IEditController& controller() { return *controller_; }

    /// Another interface of the object; null where it has none.
    template <typename Interface>
    [[nodiscard]] Steinberg::FUnknownPtr<Interface> as() {
        return Steinberg::FUnknownPtr<Interface>(component_);
    }

    // Life.

    Steinberg::tresult initialise() { return component_->initialize(context_); }

    /// Arrangement, set-up, activation, start: what a host does before it plays.
    void start(const HostSession& session = {});
    /// The way back; the instance stays initialised.
    void stop();
    /// The answer to an arrangement of 1 or 2 channels in and out.
    Steinberg::tresult arrange(int channels);
    Steinberg::tresult setUp(const HostSession& session);

    // Parameters.

    /// In display units.
    void set(const char (&id)[5], double plain);
    void setNormalised(Vst::ParamID id, double value);

    [[nodiscard]] double normalised(Vst::ParamID id) { return controller().getParamNormalized(id); }

    [[nodiscard]] double plain(const char (&id)[5]);

    // Audio.

    Steinberg::tresult process(AudioBlock& block) { return processor().process(block.data); }

    /// In blocks of a size, the rest of the audio in a shorter last one. Looks at the guards.
    [[nodiscard]] Audio render(const Audio& input, int blockSize = 512,
                               Vst::IParameterChanges* changes = nullptr);

    // State.

    [[nodiscard]] Bytes state();
    Steinberg::tresult restore(const Bytes& bytes);

private:
    HostContext ownContext;
    Steinberg::FUnknown* context_;
    Steinberg::IPtr<Vst::IComponent> component_;
    Steinberg::FUnknownPtr<Vst::IAudioProcessor> processor_;
    Steinberg::FUnknownPtr<Vst::IEditController> controller_;
    bool started = false;
};
