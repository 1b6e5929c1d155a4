// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/model/QMBrolt_PlugIn.h"

#include "plugin-model/ControlMessages.h"
#include "services/Log.h"

#include <algorithm>
#include <cstring>

namespace {

/// Snapshot floats in front of the channels' triples.
constexpr std::size_t oscillatorFloats = 4;
constexpr std::size_t floatsPerChannel = 3;

template <int N>
void resetState(BroltState<N>* state) {
    if (state != nullptr)
        Brolt<N, float>::resetState(*state);
}

template <int N>
void handleControlMessage(BroltState<N>* state, const NoxBufferMessage& message) {
    if (state == nullptr)
        return;
    if (message.code == NoxMessage::analysisRequest && message.buffer != nullptr)
        Brolt<N, float>::copySnapshot(*state, static_cast<float*>(message.buffer));
    else if (message.code == NoxMessage::meterReset)
        Brolt<N, float>::resetMeters(*state);
}

/// Host memory of any alignment and history becomes a state block.
template <int N>
void initialiseBuffer(void* buffer, std::size_t size) {
    if (buffer == nullptr || size < sizeof(BroltState<N>))
        return;
    BroltState<N> fresh;
    Brolt<N, float>::initialiseState(fresh);
    std::memcpy(buffer, &fresh, sizeof fresh);
}

template <int N>
void runHostManaged(const NoxHostManagedBlock& block) {
    auto* state = static_cast<BroltState<N>*>(block.state);
    const auto* coefficients = static_cast<const Coefficients*>(block.coefficients);
    if (state == nullptr || coefficients == nullptr)
        return;
    Brolt<N, float>::process(*state, block.inputs, block.outputs, *coefficients, *block.frameCount);
    if (block.meterOutput == nullptr || *block.meterOutput == nullptr)
        return;
    float* peaks = *block.meterOutput;
    for (const OutputMeter& meter : state->outputMeters)
        *peaks++ = meter.peak;
    *peaks = 0.0F;
}

} // namespace

QMBrolt_PlugIn::QMBrolt_PlugIn(INoxPlugInType& type, INoxPlugInProcessingHost* host,
                               INoxPlugInEnvironment* environment)
    : NoxPlugIn(type, host, environment) {}

QMBrolt_PlugIn::~QMBrolt_PlugIn() = default;

std::uint32_t QMBrolt_PlugIn::analysisWordCount() const {
    return static_cast<std::uint32_t>(isStereo() ? BroltState<2>::snapshotLength
                                                 : BroltState<1>::snapshotLength);
}

void QMBrolt_PlugIn::receiveAnalysis(const Packet& packet) {
    resizeMeterRecords();
    const auto channels = static_cast<std::size_t>(outputCount());
    auto& records = meterRecords();
    std::vector<float> s(oscillatorFloats + floatsPerChannel * channels);
    if (records.size() <= channels || packet.length < s.size() * sizeof(float))
        return;
    std::memcpy(s.data(), packet.data, s.size() * sizeof(float));

    // values[0] is word 1 of a record.
    auto& oscillators = records[channels].values;
    oscillators[0] = s[0];
    oscillators[1] = s[2];
    oscillators[2] = s[1];
    oscillators[3] = s[3];
    for (std::size_t c = 0; c < channels; ++c) {
        const float* channel = s.data() + oscillatorFloats + floatsPerChannel * c;
        const float envelope = channel[0];
        const float meanSquare = channel[1];
        const float peak = channel[2];
        records[c].values[0] = peak * peak;
        records[c].values[2] = meanSquare;
        records[c].values[4] = envelope * envelope;
    }
}

void QMBrolt_PlugIn::createProcessingState() {
    if (isStereo())
        stereoState = std::make_unique<BroltState<2>>();
    else
        monoState = std::make_unique<BroltState<1>>();
    queue = std::make_unique<Queue>();
    inUse = nullptr;
}

void QMBrolt_PlugIn::destroyProcessingState() {
    stereoState.reset();
    monoState.reset();
    queue.reset();
    inUse = nullptr;
}

void QMBrolt_PlugIn::resetProcessingState() {
    if (isStereo())
        resetState(stereoState.get());
    else
        resetState(monoState.get());
}

template <int N>
void QMBrolt_PlugIn::run(BroltState<N>* state, const NoxProcessBlock& input,
                         const NoxProcessBlock& output) {
    if (state == nullptr)
        return;
    inUse = static_cast<const Coefficients*>(queue->current());
    Brolt<N, float>::process(*state, input.channels, output.channels, *inUse,
                             static_cast<std::int32_t>(input.frameCount));
}

void QMBrolt_PlugIn::process(const NoxProcessBlock& input, const NoxProcessBlock& output) {
    if (isStereo())
        run(stereoState.get(), input, output);
    else
        run(monoState.get(), input, output);
}

void QMBrolt_PlugIn::processWithMeters(const NoxHostManagedBlock& block) {
    if (isStereo())
        runHostManaged<2>(block);
    else
        runHostManaged<1>(block);
}

void QMBrolt_PlugIn::pushCoefficients(const Packet& packet) {
    if (queue != nullptr && packet.length == queue->recordSize())
        queue->push(packet.data);
}

void QMBrolt_PlugIn::discardPendingCoefficients() {
    if (queue != nullptr)
        queue->discardPending();
}

void QMBrolt_PlugIn::handleMessage(const Packet& packet) {
    NoxBufferMessage message{};
    if (packet.length < sizeof message.code)
        return;
    // A bare code is a whole message; its buffer then reads as null.
    std::memcpy(&message, packet.data, std::min<std::size_t>(packet.length, sizeof message));
    if (isStereo())
        handleControlMessage(stereoState.get(), message);
    else
        handleControlMessage(monoState.get(), message);
}

const void* QMBrolt_PlugIn::processingData() const {
    if (isStereo())
        return stereoState.get();
    return monoState.get();
}

std::size_t QMBrolt_PlugIn::processingDataSize() const {
    return isStereo() ? sizeof(BroltState<2>) : sizeof(BroltState<1>);
}

NoxResult QMBrolt_PlugIn::dumpProcessingState() {
    std::vector<std::byte> buffer(processingDataSize());
    const NoxResult result = readPlugInData(0, buffer.size(), buffer.data());
    if (result == NoxResultCode::noError)
        QM::log(QM::LogLevel::error, "buffer: %p", static_cast<void*>(buffer.data()));
    return result;
}

std::int32_t QMBrolt_PlugIn::initialiseStateBuffer(void* buffer, std::size_t size) {
    if (isStereo())
        initialiseBuffer<2>(buffer, size);
    else
        initialiseBuffer<1>(buffer, size);
    return 0;
}

std::int32_t QMBrolt_PlugIn::analysisOffset(std::int32_t index) const {
    if (index != 0)
        return -1;
    return static_cast<std::int32_t>(isStereo() ? offsetof(BroltState<2>, analysisSnapshot)
                                                : offsetof(BroltState<1>, analysisSnapshot));
}

std::int32_t QMBrolt_PlugIn::requestCounterOffset() const {
    return static_cast<std::int32_t>(isStereo() ? offsetof(BroltState<2>, snapshotRequest)
                                                : offsetof(BroltState<1>, snapshotRequest));
}
