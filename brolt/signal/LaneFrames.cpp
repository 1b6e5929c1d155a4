// SPDX-License-Identifier: GPL-3.0-or-later
//
// The loop through the five stages. What is exact about each is told in its own file (lanes/).

#include "brolt/signal/LaneFrames.h"

#include "brolt/signal/lanes/DetectorLanes.h"
#include "brolt/signal/lanes/MeterLanes.h"
#include "brolt/signal/lanes/MixLanes.h"
#include "brolt/signal/lanes/RotationLanes.h"

#include <type_traits>

namespace {

using lanes::Floats;

constexpr int32_t group = lanes::count;

/// Which stages a turn of the loop runs: the loop fills at the beginning and drains at the end.
struct Stages {
    bool detect;
    bool polynomial;
    bool rotate;
    bool mix;
    bool meter;
};

/// Groups that the mix lies behind the detectors.
constexpr int32_t mixLag = 3;

template <int N>
class Pipeline {
public:
    BROLT_ALWAYS_INLINE Pipeline(const BlockChains<N>& chains, const float* const* in,
                                 float* const* out, const Coefficients& k,
                                 const BlockConstants& constants)
        : detectors(chains.levelDetector, chains.pitchDetector,
                    _mm_setr_ps(k.levelAttack, k.pitchAttack, 0.0F, 0.0F),
                    _mm_setr_ps(k.levelRelease, k.pitchRelease, 0.0F, 0.0F))
        , polynomial1(k.osc1AttackT, k.osc1SustainT)
        , polynomial2(k.osc2AttackT, k.osc2SustainT)
        , rotation(chains.oscillator1, chains.oscillator2)
        , gains(chains.gains, constants.targets, constants.smoothing)
        , meters(chains.outputMeters[0], chains.outputMeters[N - 1]) {
        for (int channel = 0; channel < N; ++channel) {
            inputs[channel] = in[channel];
            outputs[channel] = out[channel];
        }
    }

    BROLT_ALWAYS_INLINE void run(int32_t frames) {
        if (gains.rest())
            runStages<false>(frames);
        else
            runStages<true>(frames);
    }

    BROLT_ALWAYS_INLINE void store(BlockChains<N>& chains) const {
        detectors.store(chains.levelDetector, chains.pitchDetector);
        rotation.store(chains.oscillator1, chains.oscillator2);
        gains.store(chains.gains);
        for (int channel = 0; channel < N; ++channel)
            meters.store(chains.outputMeters[static_cast<std::size_t>(channel)], channel);
        // The last frame is the last lane of the last group; carried at half.
        chains.osc1LastSine = 2.0F * lanes::Array(lastHalfSine1).lane[group - 1];
        chains.osc2LastSine = 2.0F * lanes::Array(lastHalfSine2).lane[group - 1];
    }

private:
    template <bool moving>
    BROLT_ALWAYS_INLINE void runStages(int32_t frames) {
        turn<Stages{true, false, false, false, false}, moving>(0);
        turn<Stages{true, true, false, false, false}, moving>(group);
        turn<Stages{true, true, true, false, false}, moving>(2 * group);
        turn<Stages{true, true, true, true, false}, moving>(3 * group);
        for (int32_t at = 4 * group; at < frames; at += group)
            turn<Stages{true, true, true, true, true}, moving>(at);
        turn<Stages{false, true, true, true, true}, moving>(frames);
        turn<Stages{false, false, true, true, true}, moving>(frames + group);
        turn<Stages{false, false, false, true, true}, moving>(frames + 2 * group);
        turn<Stages{false, false, false, false, true}, moving>(frames + 3 * group);
    }

    [[nodiscard]] BROLT_ALWAYS_INLINE Floats detectionInput(int32_t at) const {
        Floats detection = lanes::magnitude(_mm_loadu_ps(inputs[0] + at));
        if constexpr (N == 2)
            detection = _mm_max_ps(detection, lanes::magnitude(_mm_loadu_ps(inputs[1] + at)));
        return detection;
    }

    /// One turn: each stage works on the group that the stage before it worked on a turn ago, and
    /// takes what was handed to it before that stage hands over again. `at` is the first frame of
    /// the detectors' group.
    template <Stages stages, bool moving>
    BROLT_ALWAYS_INLINE void turn(int32_t at) {
        lanes::MeterNews news;
        if constexpr (stages.meter)
            news = lanes::meterNews(mixed[0], mixed[N - 1]);
        if constexpr (stages.mix)
            mixGroup<moving>(at - mixLag * group);
        Floats detection;
        if constexpr (stages.detect)
            detection = detectionInput(at);

        Floats tones[group];
        Floats levels[group];
        const auto frame = [&](auto index) __attribute__((always_inline)) {
            constexpr int j = decltype(index)::value;
            if constexpr (stages.rotate)
                tones[j] = rotation.template turn<j>(steps);
            if constexpr (stages.detect)
                levels[j] = detectors.follow(lanes::broadcast<j>(detection));
            if constexpr (stages.meter)
                meters.template follow<j>(news);
        };
        frame(std::integral_constant<int, 0>{});
        frame(std::integral_constant<int, 1>{});
        frame(std::integral_constant<int, 2>{});
        frame(std::integral_constant<int, 3>{});

        if constexpr (stages.rotate)
            collectTones(tones);
        if constexpr (stages.polynomial)
            computeSteps();
        if constexpr (stages.detect)
            collectLevels(levels);
    }

    template <bool moving>
    BROLT_ALWAYS_INLINE void mixGroup(int32_t at) {
        if constexpr (moving) {
            const Floats gains0 = gains.step();
            const Floats gains1 = gains.step();
            const Floats gains2 = gains.step();
            const Floats gains3 = gains.step();
            writeOutputs(
                lanes::GainLanes::mix(gains0, gains1, gains2, gains3, osc1, osc2, levelOfTones),
                at);
        } else {
            writeOutputs(gains.mix(osc1, osc2, levelOfTones), at);
        }
    }

    BROLT_ALWAYS_INLINE void computeSteps() {
        Floats cosine1;
        Floats cosine2;
        polynomial1.evaluate(pitch, lastHalfSine1, cosine1);
        polynomial2.evaluate(pitch, lastHalfSine2, cosine2);
        steps = lanes::pairSteps(lastHalfSine1, lastHalfSine2, cosine1, cosine2);
        levelOfSteps = level;
    }

    /// Each channel's input is read when the channels before it are written, as in the plain order:
    /// an output may be another channel's input.
    BROLT_ALWAYS_INLINE void writeOutputs(const lanes::MixedTones& tones, int32_t at) {
        for (int channel = 0; channel < N; ++channel) {
            mixed[channel] = lanes::mixInput(tones, _mm_loadu_ps(inputs[channel] + at));
            _mm_storeu_ps(outputs[channel] + at, mixed[channel]);
        }
    }

    /// From (oscillator 1, oscillator 2) of each frame to four frames of each oscillator.
    BROLT_ALWAYS_INLINE void collectTones(const Floats* tones) {
        const Floats frames01 = _mm_unpacklo_ps(tones[0], tones[1]);
        const Floats frames23 = _mm_unpacklo_ps(tones[2], tones[3]);
        osc1 = _mm_mul_ps(lanes::all(0.5F), _mm_movelh_ps(frames01, frames23));
        osc2 = _mm_mul_ps(lanes::all(0.5F), _mm_movehl_ps(frames23, frames01));
        levelOfTones = levelOfSteps;
    }

    BROLT_ALWAYS_INLINE void collectLevels(const Floats* levels) {
        const Floats frames01 = _mm_unpacklo_ps(levels[0], levels[1]);
        const Floats frames23 = _mm_unpacklo_ps(levels[2], levels[3]);
        level = _mm_movelh_ps(frames01, frames23);
        pitch = _mm_movehl_ps(frames23, frames01);
    }

    lanes::DetectorLanes detectors;
    lanes::StepPolynomial polynomial1;
    lanes::StepPolynomial polynomial2;
    lanes::RotationLanes rotation;
    lanes::GainLanes gains;
    lanes::MeterLanes meters;
    const float* inputs[N];
    float* outputs[N];

    // What a stage hands to the next, four frames each.
    Floats level;
    Floats pitch;
    lanes::StepPairs steps;
    Floats levelOfSteps;
    Floats osc1;
    Floats osc2;
    Floats levelOfTones;
    Floats mixed[N];
    Floats lastHalfSine1;
    Floats lastHalfSine2;
};

} // namespace

template <int N>
int32_t runFramesInLanes(BlockChains<N>& chains, const float* const* inputs, float* const* outputs,
                         const Coefficients& coefficients, const BlockConstants& constants,
                         int32_t frameCount) noexcept {
    const int32_t frames = frameCount - frameCount % group;
    Pipeline<N> pipeline(chains, inputs, outputs, coefficients, constants);
    pipeline.run(frames);
    pipeline.store(chains);
    return frames;
}

template int32_t runFramesInLanes<1>(BlockChains<1>&, const float* const*, float* const*,
                                     const Coefficients&, const BlockConstants&, int32_t) noexcept;
template int32_t runFramesInLanes<2>(BlockChains<2>&, const float* const*, float* const*,
                                     const Coefficients&, const BlockConstants&, int32_t) noexcept;
