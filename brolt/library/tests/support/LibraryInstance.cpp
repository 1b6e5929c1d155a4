// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/library/tests/support/LibraryInstance.h"

#include "brolt/library/tests/support/HostStream.h"

#include <algorithm>
#include <stdexcept>

using Steinberg::kResultOk;
using Steinberg::tresult;

LibraryInstance::LibraryInstance(Begin begin, const LoadedLibrary& library,
                                 Steinberg::FUnknown* context)
    : context_(context != nullptr ? context : ownContext.unknown())
    , component_(library.create<Vst::IComponent>(kVstAudioEffectClass))
    , processor_(component_)
    , controller_(component_) {
    if (!component_ || !processor_ || !controller_)
        throw std::runtime_error("the factory made no single-component effect");
    if (begin == Begin::initialised) {
        EXPECT_EQ(initialise(), kResultOk);
    }
}

LibraryInstance::~LibraryInstance() {
    if (started)
        stop();
    controller_->setComponentHandler(nullptr);
    component_->terminate();
    controller_ = nullptr;
    processor_ = nullptr;
    EXPECT_EQ(component_.take()->release(), 0U) << "somebody still holds the object";
    EXPECT_EQ(ownContext.references(), 0U) << "somebody still holds the host's context";
}

tresult LibraryInstance::arrange(int channels) {
    Vst::SpeakerArrangement input =
        channels == 1 ? Vst::SpeakerArr::kMono : Vst::SpeakerArr::kStereo;
    Vst::SpeakerArrangement output = input;
    return processor().setBusArrangements(&input, 1, &output, 1);
}

tresult LibraryInstance::setUp(const HostSession& session) {
    Vst::ProcessSetup setup{session.mode, Vst::kSample32, session.mostFrames, session.sampleRate};
    return processor().setupProcessing(setup);
}

void LibraryInstance::start(const HostSession& session) {
    EXPECT_EQ(arrange(session.channels), kResultOk);
    EXPECT_EQ(setUp(session), kResultOk);
    EXPECT_EQ(component().activateBus(Vst::kAudio, Vst::kInput, 0, true), kResultOk);
    EXPECT_EQ(component().activateBus(Vst::kAudio, Vst::kOutput, 0, true), kResultOk);
    EXPECT_EQ(component().setActive(true), kResultOk);
    processor().setProcessing(true); // many plug-ins have no answer to this
    started = true;
}

void LibraryInstance::stop() {
    processor().setProcessing(false);
    EXPECT_EQ(component().setActive(false), kResultOk);
    started = false;
}

void LibraryInstance::set(const char (&id)[5], double plainValue) {
    const FourCharCode code = fourCharCode(id);
    setNormalised(code, controller().plainParamToNormalized(code, plainValue));
}

void LibraryInstance::setNormalised(Vst::ParamID id, double value) {
    EXPECT_EQ(controller().setParamNormalized(id, value), kResultOk) << id;
}

double LibraryInstance::plain(const char (&id)[5]) {
    const FourCharCode code = fourCharCode(id);
    return controller().normalizedParamToPlain(code, normalised(code));
}

Audio LibraryInstance::render(const Audio& input, int blockSize, Vst::IParameterChanges* changes) {
    Audio output(input.size());
    const auto frames = static_cast<int>(input.at(0).size());
    for (int at = 0; at < frames; at += blockSize) {
        const int count = std::min(blockSize, frames - at);
        AudioBlock block(static_cast<int>(input.size()), count);
        block.data.inputParameterChanges = changes;
        for (std::size_t c = 0; c < input.size(); ++c)
            std::copy_n(input[c].begin() + at, count, block.input(static_cast<int>(c)).begin());
        EXPECT_EQ(process(block), kResultOk);
        EXPECT_TRUE(block.guardsAreIntact()) << "in the block at " << at;
        for (std::size_t c = 0; c < input.size(); ++c) {
            const std::span<float> done = block.output(static_cast<int>(c));
            output[c].insert(output[c].end(), done.begin(), done.end());
        }
    }
    return output;
}

Bytes LibraryInstance::state() {
    HostStream stream;
    EXPECT_EQ(component().getState(&stream), kResultOk);
    return stream.bytes;
}

tresult LibraryInstance::restore(const Bytes& bytes) {
    HostStream stream(bytes);
    return component().setState(&stream);
}
