// SPDX-License-Identifier: GPL-3.0-or-later
//
// The formulas, literally: every operation in single precision and from left to right.

#include "brolt/signal/tests/reference/ReferenceBrolt.h"

#include <cmath>
#include <cstring>
#include <xmmintrin.h>

namespace {

constexpr int levelDetectorAt = 24;
constexpr int pitchDetectorAt = 32;
constexpr int oscillator1At = 40;
constexpr int oscillator2At = 68;
constexpr int versionSeenAt = 96;
constexpr int metersAt = 100;
constexpr int meterBytes = 28;

float recordReal(const void* record, int byteOffset) {
    float value = 0.0F;
    std::memcpy(&value, static_cast<const unsigned char*>(record) + byteOffset, 4);
    return value;
}

int32_t recordInteger(const void* record, int byteOffset) {
    int32_t value = 0;
    std::memcpy(&value, static_cast<const unsigned char*>(record) + byteOffset, 4);
    return value;
}

} // namespace

ReferenceBrolt::ReferenceBrolt(int channelCount)
    : channels(channelCount)
    , requestAt(metersAt + meterBytes * channelCount)
    , servedAt(requestAt + 4)
    , snapshotAt(requestAt + 8)
    , firstBlockAt(snapshotAt + 4 * (4 + 3 * channelCount))
    , poleAt(firstBlockAt + 4)
    , stepAt(firstBlockAt + 8)
    , state(channelCount == 1 ? 176 : 216) {
    initialise();
}

void ReferenceBrolt::initialise() {
    state.assign(state.size(), 0);
    for (const int oscillator : {oscillator1At, oscillator2At}) {
        setReal(oscillator + 4, 1.0F);
        setReal(oscillator + 8, 0.5F);
        setReal(oscillator + 12, 3.0F);
        setReal(oscillator + 16, 0.5F);
        setReal(oscillator + 20, 3.0F);
        setReal(oscillator + 24, 1.0F);
    }
    setInteger(versionSeenAt, -1);
    for (int c = 0; c < channels; ++c) {
        const int meter = metersAt + meterBytes * c;
        setReal(meter + 12, 0.99999F);
        setReal(meter + 16, 0.9999F);
        setReal(meter + 20, 0.9999F);
        setInteger(meter + 24, 4);
    }
    state[static_cast<std::size_t>(firstBlockAt)] = 1;
    setReal(poleAt, 0.999F);
    setReal(stepAt, 1.0F - 0.999F);
}

void ReferenceBrolt::process(const float* const* inputs, float* const* outputs, const void* record,
                             int32_t frameCount) {
    const unsigned int caller = _mm_getcsr();
    _mm_setcsr(caller | 0x8040U);
    processFlushed(inputs, outputs, record, frameCount);
    _mm_setcsr(caller);
}

[[gnu::noinline]] void ReferenceBrolt::processFlushed(const float* const* inputs,
                                                      float* const* outputs, const void* record,
                                                      int32_t frameCount) {
    const std::size_t frames = frameCount > 0 ? static_cast<std::size_t>(frameCount) : 0;

    if (state[static_cast<std::size_t>(firstBlockAt)] != 0) {
        for (int gain = 0; gain < 4; ++gain)
            setReal(4 * gain, recordReal(record, 4 * gain));
        state[static_cast<std::size_t>(firstBlockAt)] = 0;
    }

    if (recordInteger(record, 20) != integer(versionSeenAt)) {
        for (int c = 0; c < channels; ++c) {
            const int meter = metersAt + meterBytes * c;
            setReal(meter + 12, recordReal(record, 28));
            setReal(meter + 16, recordReal(record, 32));
            setReal(meter + 20, recordReal(record, 24));
        }
        setInteger(versionSeenAt, recordInteger(record, 20));
    }

    std::vector<float> detection(frames);
    for (std::size_t i = 0; i < frames; ++i) {
        detection[i] = std::fabs(inputs[0][i]);
        if (channels == 2) {
            const float right = std::fabs(inputs[1][i]);
            if (!(detection[i] > right))
                detection[i] = right;
        }
    }

    const std::vector<float> level =
        runDetector(levelDetectorAt, detection, recordReal(record, 40), recordReal(record, 44));
    const std::vector<float> pitch =
        runDetector(pitchDetectorAt, detection, recordReal(record, 48), recordReal(record, 52));

    float lastS1 = 0.0F;
    float lastS2 = 0.0F;
    const std::vector<float> osc1 =
        runOscillator(oscillator1At, pitch, recordReal(record, 56), recordReal(record, 60), lastS1);
    const std::vector<float> osc2 =
        runOscillator(oscillator2At, pitch, recordReal(record, 64), recordReal(record, 68), lastS2);
    setReal(16, lastS1);
    setReal(20, lastS2);

    const float pole = real(poleAt);
    const float step = real(stepAt);
    const float start[4] = {real(0), real(4), real(8), real(12)};
    float g[4] = {start[0], start[1], start[2], start[3]};
    for (int c = 0; c < channels; ++c) {
        for (int gain = 0; gain < 4; ++gain)
            g[gain] = start[gain];
        for (std::size_t i = 0; i < frames; ++i) {
            outputs[c][i] = ((g[3] * osc2[i] + g[2] * osc1[i]) * g[1] * level[i] +
                             (1.0F - g[1]) * inputs[c][i]) *
                            g[0];
            for (int gain = 0; gain < 4; ++gain)
                g[gain] = pole * g[gain] + step * recordReal(record, 4 * gain);
        }
    }
    for (int gain = 0; gain < 4; ++gain) {
        if (start[gain] == g[gain])
            setReal(4 * gain, recordReal(record, 4 * gain));
        else
            setReal(4 * gain, g[gain]);
    }

    for (int c = 0; c < channels; ++c)
        runMeter(metersAt + meterBytes * c, frames == 0 ? nullptr : outputs[c], frameCount);

    if (integer(requestAt) != integer(servedAt)) {
        const std::vector<float> values = snapshot();
        for (std::size_t i = 0; i < values.size(); ++i)
            setReal(snapshotAt + 4 * static_cast<int>(i), values[i]);
        setInteger(servedAt, integer(requestAt));
    }
}

std::vector<float> ReferenceBrolt::runDetector(int at, const std::vector<float>& input,
                                               float attack, float release) {
    std::vector<float> envelope;
    envelope.reserve(input.size());
    for (const float a : input) {
        const float d = a - real(at);
        const bool rising = d > 0.0F;
        if (rising)
            setInteger(at + 4, integer(at + 4) + 1);
        else
            setInteger(at + 4, integer(at + 4) - 1);
        const int32_t direction = integer(at + 4);
        if ((rising && direction > 0) || (!rising && direction <= 0)) {
            float moved = real(at) + (rising ? attack : release) * d;
            if (!(moved > 0.0F))
                moved = 0.0F;
            setReal(at, moved);
        }
        envelope.push_back(real(at));
    }
    if (integer(at + 4) > 800)
        setInteger(at + 4, 800);
    if (integer(at + 4) < -800)
        setInteger(at + 4, -800);
    return envelope;
}

std::vector<float> ReferenceBrolt::runOscillator(int at, const std::vector<float>& pitch,
                                                 float attackT, float sustainT, float& lastS) {
    const float normScale = real(at + 8);
    const float normTarget = real(at + 12);
    const float polyScale = real(at + 16);
    const float polyOffset = real(at + 20);
    const float limit = real(at + 24);
    float x = real(at);
    float y = real(at + 4);
    float s = 0.0F;

    std::vector<float> output;
    output.reserve(pitch.size());
    for (const float e : pitch) {
        float t = sustainT + e * (attackT - sustainT);
        if (!(t > -limit))
            t = -limit;
        if (!(t < limit))
            t = limit;
        s = (polyOffset - t * t) * (polyScale * t);
        const float c = std::sqrt(1.0F - s * s);
        output.push_back(x);
        const float rotatedX = c * y + s * x;
        const float rotatedY = s * y - c * x;
        const float g = (normTarget - (rotatedX * rotatedX + rotatedY * rotatedY)) * normScale;
        x = rotatedX * g;
        y = rotatedY * g;
    }
    setReal(at, x);
    setReal(at + 4, y);
    lastS = s;
    return output;
}

void ReferenceBrolt::runMeter(int at, const float* samples, int32_t frameCount) {
    const float envelopeCoefficient = real(at + 12);
    const float meanSquareCoefficient = real(at + 16);
    const float peakDecay = real(at + 20);
    for (int32_t i = 0; i < frameCount; ++i) {
        const float x = samples[i];
        const float decayed = peakDecay * real(at + 8);
        setReal(at + 8, std::fabs(x) > decayed ? std::fabs(x) : decayed);
        setReal(at + 4,
                meanSquareCoefficient * real(at + 4) + (1.0F - meanSquareCoefficient) * (x * x));
        setReal(at, real(at) + (std::fabs(x) - real(at)) * (1.0F - envelopeCoefficient));
    }
}

void ReferenceBrolt::reset() {
    resetMeters();
    state[static_cast<std::size_t>(firstBlockAt)] = 1;
    setReal(16, 0.0F);
    setReal(20, 0.0F);
    for (const int detector : {levelDetectorAt, pitchDetectorAt}) {
        setReal(detector, 0.0F);
        setInteger(detector + 4, 0);
    }
    for (const int oscillator : {oscillator1At, oscillator2At}) {
        setReal(oscillator, 0.0F);
        setReal(oscillator + 4, 1.0F);
    }
}

void ReferenceBrolt::resetMeters() {
    for (int c = 0; c < channels; ++c) {
        for (int field = 0; field < 3; ++field)
            setReal(metersAt + meterBytes * c + 4 * field, 0.0F);
    }
}

void ReferenceBrolt::requestSnapshot(int32_t request) {
    setInteger(requestAt, request);
}

std::vector<float> ReferenceBrolt::snapshot() const {
    const float level = real(levelDetectorAt);
    std::vector<float> values{real(16), real(20), real(8) == 0.0F ? 0.0F : level,
                              real(12) == 0.0F ? 0.0F : level};
    for (int c = 0; c < channels; ++c) {
        for (int field = 0; field < 3; ++field)
            values.push_back(real(metersAt + meterBytes * c + 4 * field));
    }
    return values;
}

bool ReferenceBrolt::holdsFloat(int byteOffset) const {
    if (byteOffset == levelDetectorAt + 4 || byteOffset == pitchDetectorAt + 4)
        return false;
    if (byteOffset == versionSeenAt || byteOffset == requestAt || byteOffset == servedAt)
        return false;
    if (byteOffset >= metersAt && byteOffset < requestAt)
        return (byteOffset - metersAt) % meterBytes != 24;
    return byteOffset != firstBlockAt;
}

float ReferenceBrolt::real(int byteOffset) const {
    return recordReal(state.data(), byteOffset);
}

int32_t ReferenceBrolt::integer(int byteOffset) const {
    return recordInteger(state.data(), byteOffset);
}

void ReferenceBrolt::setReal(int byteOffset, float value) {
    std::memcpy(state.data() + byteOffset, &value, 4);
}

void ReferenceBrolt::setInteger(int byteOffset, int32_t value) {
    std::memcpy(state.data() + byteOffset, &value, 4);
}
