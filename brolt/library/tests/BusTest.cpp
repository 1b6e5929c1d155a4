// SPDX-License-Identifier: GPL-3.0-or-later
// Buses and the layouts a host may ask for. Arrangements are sets of speakers; what counts is how
// many there are.
#include "brolt/library/tests/support/LibraryInstance.h"
#include "brolt/library/tests/support/ModelTwin.h"

using Steinberg::int32;
using Steinberg::kInvalidArgument;
using Steinberg::kNotImplemented;
using Steinberg::kResultFalse;
using Steinberg::kResultOk;
using Steinberg::tresult;
using Vst::SpeakerArrangement;
namespace Speakers = Steinberg::Vst::SpeakerArr;

namespace {

class Buses : public ::testing::Test {
protected:
    LibraryInstance instance;

    tresult arrange(std::vector<SpeakerArrangement> inputs,
                    std::vector<SpeakerArrangement> outputs) {
        return instance.processor().setBusArrangements(
            inputs.data(), static_cast<int32>(inputs.size()), outputs.data(),
            static_cast<int32>(outputs.size()));
    }

    SpeakerArrangement arrangement(Vst::BusDirection direction) {
        SpeakerArrangement answer = 0;
        EXPECT_EQ(instance.processor().getBusArrangement(direction, 0, answer), kResultOk);
        return answer;
    }

    Vst::BusInfo info(Vst::BusDirection direction) {
        Vst::BusInfo answer{};
        EXPECT_EQ(instance.component().getBusInfo(Vst::kAudio, direction, 0, answer), kResultOk);
        return answer;
    }

    void expectBuses(SpeakerArrangement input, SpeakerArrangement output,
                     const std::string& layout) {
        EXPECT_EQ(arrangement(Vst::kInput), input);
        EXPECT_EQ(arrangement(Vst::kOutput), output);
        EXPECT_EQ(textOf(info(Vst::kInput).name), layout + " In");
        EXPECT_EQ(textOf(info(Vst::kOutput).name), layout + " Out");
        const int channels = layout == "Mono" ? 1 : 2;
        EXPECT_EQ(info(Vst::kInput).channelCount, channels);
        EXPECT_EQ(info(Vst::kOutput).channelCount, channels);
    }

    void expectStereo() { expectBuses(Speakers::kStereo, Speakers::kStereo, "Stereo"); }

    void expectMono() { expectBuses(Speakers::kMono, Speakers::kMono, "Mono"); }
};

} // namespace

TEST_F(Buses, areOneStereoPairInEachDirectionAtFirst) {
    EXPECT_EQ(instance.component().getBusCount(Vst::kAudio, Vst::kInput), 1); // no sidechain
    EXPECT_EQ(instance.component().getBusCount(Vst::kAudio, Vst::kOutput), 1);
    expectStereo();
    for (const Vst::BusDirection direction : {Vst::kInput, Vst::kOutput}) {
        const Vst::BusInfo bus = info(direction);
        EXPECT_EQ(bus.mediaType, Vst::kAudio);
        EXPECT_EQ(bus.direction, direction);
        EXPECT_EQ(bus.busType, Vst::kMain);
        EXPECT_EQ(bus.flags, static_cast<unsigned>(Vst::BusInfo::kDefaultActive));
    }
}

TEST_F(Buses, carryNoEvents) {
    for (const Vst::BusDirection direction : {Vst::kInput, Vst::kOutput}) {
        Vst::BusInfo bus{};
        EXPECT_EQ(instance.component().getBusCount(Vst::kEvent, direction), 0);
        EXPECT_EQ(instance.component().getBusInfo(Vst::kEvent, direction, 0, bus),
                  kInvalidArgument);
        EXPECT_EQ(instance.component().activateBus(Vst::kEvent, direction, 0, true),
                  kInvalidArgument);
    }
}

TEST_F(Buses, beyondTheLastOneAreInvalid) {
    for (const int32 index : {-1, 1, 2, 1000, -1000}) {
        Vst::BusInfo bus{};
        EXPECT_EQ(instance.component().getBusInfo(Vst::kAudio, Vst::kInput, index, bus),
                  kInvalidArgument)
            << index;
        EXPECT_EQ(instance.component().getBusInfo(Vst::kAudio, Vst::kOutput, index, bus),
                  kInvalidArgument)
            << index;
        EXPECT_NE(instance.component().activateBus(Vst::kAudio, Vst::kInput, index, true),
                  kResultOk)
            << index;
        SpeakerArrangement answer = 0;
        EXPECT_EQ(instance.processor().getBusArrangement(Vst::kInput, index, answer), kResultFalse)
            << index;
        EXPECT_EQ(instance.processor().getBusArrangement(Vst::kOutput, index, answer), kResultFalse)
            << index;
    }
}

TEST_F(Buses, haveAnArrangementInTheTwoDirectionsOnly) {
    for (const Vst::BusDirection direction : {2, -1, 77}) {
        SpeakerArrangement answer = 0;
        EXPECT_EQ(instance.processor().getBusArrangement(direction, 0, answer), kInvalidArgument)
            << direction;
    }
}

TEST_F(Buses, areSwitchedOnAndOff) {
    for (const bool on : {true, false, true}) {
        EXPECT_EQ(instance.component().activateBus(Vst::kAudio, Vst::kInput, 0, on), kResultOk);
        EXPECT_EQ(instance.component().activateBus(Vst::kAudio, Vst::kOutput, 0, on), kResultOk);
    }
}

TEST_F(Buses, becomeMonoAndStereoAgain) {
    EXPECT_EQ(arrange({Speakers::kMono}, {Speakers::kMono}), kResultOk);
    expectMono();
    EXPECT_EQ(arrange({Speakers::kMono}, {Speakers::kMono}), kResultOk);
    expectMono();
    EXPECT_EQ(arrange({Speakers::kStereo}, {Speakers::kStereo}), kResultOk);
    expectStereo();
}

TEST_F(Buses, ofOneSpeakerBothTakeTheInputsArrangement) {
    EXPECT_EQ(arrange({Vst::kSpeakerL}, {Speakers::kMono}), kResultOk);
    expectBuses(Vst::kSpeakerL, Vst::kSpeakerL, "Mono");
}

TEST_F(Buses, ofTwoSpeakersTakeTheirOwnArrangements) {
    EXPECT_EQ(arrange({Speakers::kStereoSurround}, {Speakers::kStereo}), kResultOk);
    expectBuses(Speakers::kStereoSurround, Speakers::kStereo, "Stereo");
    EXPECT_EQ(arrange({Speakers::kStereo}, {Speakers::kStereoCenter}), kResultOk);
    expectBuses(Speakers::kStereo, Speakers::kStereoCenter, "Stereo");
}

TEST_F(Buses, ofFivePointOneAreRefusedAndLeaveStereo) {
    EXPECT_EQ(arrange({Speakers::k51}, {Speakers::k51}), kResultFalse);
    expectStereo();
    EXPECT_EQ(arrange({Speakers::kMono}, {Speakers::kMono}), kResultOk);
    EXPECT_EQ(arrange({Speakers::k51}, {Speakers::k51}), kResultFalse);
    expectStereo();
}

TEST_F(Buses, ofUnequalOrNoSpeakersAreRefusedAndLeaveStereo) {
    const std::vector<std::pair<SpeakerArrangement, SpeakerArrangement>> pairs{
        {Speakers::kMono, Speakers::kStereo},  {Speakers::kStereo, Speakers::kMono},
        {Speakers::kEmpty, Speakers::kEmpty},  {Speakers::kEmpty, Speakers::kStereo},
        {Speakers::kStereo, Speakers::kEmpty}, {Speakers::k30Cine, Speakers::k30Cine},
        {Speakers::kStereo, Speakers::k51},    {~SpeakerArrangement{0}, ~SpeakerArrangement{0}}};
    for (const auto& [input, output] : pairs) {
        ASSERT_EQ(arrange({Speakers::kMono}, {Speakers::kMono}), kResultOk);
        EXPECT_EQ(arrange({input}, {output}), kResultFalse) << input << " to " << output;
        expectStereo();
    }
}

TEST_F(Buses, inOtherNumbersAreRefusedAndNothingChanges) {
    constexpr SpeakerArrangement mono = Speakers::kMono;
    ASSERT_EQ(arrange({mono}, {mono}), kResultOk);
    EXPECT_EQ(arrange({}, {}), kResultFalse);
    EXPECT_EQ(arrange({mono}, {}), kResultFalse);
    EXPECT_EQ(arrange({}, {mono}), kResultFalse);
    EXPECT_EQ(arrange({mono}, {mono, mono}), kResultFalse);
    EXPECT_EQ(arrange({mono, mono}, {mono, mono}), kResultFalse);
    EXPECT_EQ(arrange({mono, mono, mono}, {mono}), kResultFalse);
    expectMono();
}

TEST_F(Buses, inNegativeNumbersOrNowhereAreRefused) {
    SpeakerArrangement stereo = Speakers::kStereo;
    Vst::IAudioProcessor& processor = instance.processor();
    EXPECT_NE(processor.setBusArrangements(&stereo, -1, &stereo, 1), kResultOk);
    EXPECT_NE(processor.setBusArrangements(&stereo, 1, &stereo, -1), kResultOk);
    EXPECT_NE(processor.setBusArrangements(nullptr, 1, &stereo, 1), kResultOk);
    EXPECT_NE(processor.setBusArrangements(&stereo, 1, nullptr, 1), kResultOk);
    EXPECT_EQ(processor.setBusArrangements(nullptr, 0, nullptr, 0), kResultFalse);
    expectStereo();
}

TEST_F(Buses, withASidechainOfUpToThreeSpeakersAreAccepted) {
    for (const SpeakerArrangement sidechain :
         {Speakers::kMono, Speakers::kStereo, Speakers::k30Cine}) {
        EXPECT_EQ(arrange({Speakers::kMono, sidechain}, {Speakers::kMono}), kResultOk) << sidechain;
        expectMono();
        EXPECT_EQ(arrange({Speakers::kStereo, sidechain}, {Speakers::kStereo}), kResultOk)
            << sidechain;
        expectStereo();
    }
}

TEST_F(Buses, withASidechainOfFourSpeakersAreRefused) {
    EXPECT_EQ(arrange({Speakers::kStereo, Speakers::k40Cine}, {Speakers::kStereo}), kResultFalse);
    EXPECT_EQ(arrange({Speakers::kStereo, Speakers::k51}, {Speakers::kStereo}), kResultFalse);
}

TEST_F(Buses, withASidechainBesideARefusedPairAreRefused) {
    EXPECT_EQ(arrange({Speakers::k51, Speakers::kMono}, {Speakers::k51}), kResultFalse);
    expectStereo();
}

TEST_F(Buses, thatBecomeMonoKeepTheSettings) {
    instance.set("gain", -7.5);
    instance.set("afre", 87.0);
    instance.set("osc2", 0.0);
    ASSERT_EQ(arrange({Speakers::kMono}, {Speakers::kMono}), kResultOk);
    EXPECT_NEAR(instance.plain("gain"), -7.5, 1e-9);
    EXPECT_NEAR(instance.plain("afre"), 87.0, 1e-9);
    EXPECT_EQ(instance.plain("osc2"), 0.0);
    ASSERT_EQ(arrange({Speakers::kStereo}, {Speakers::kStereo}), kResultOk);
    EXPECT_NEAR(instance.plain("gain"), -7.5, 1e-9);
}

// Saved states leave it out on purpose; but here it is the same session that goes on.
TEST_F(Buses, thatBecomeMonoKeepTheBypass) {
    instance.set("mbyp", 1.0);
    ASSERT_EQ(arrange({Speakers::kMono}, {Speakers::kMono}), kResultOk);
    EXPECT_EQ(instance.plain("mbyp"), 1.0);
    ASSERT_EQ(arrange({Speakers::kStereo}, {Speakers::kStereo}), kResultOk);
    EXPECT_EQ(instance.plain("mbyp"), 1.0);
}

TEST_F(Buses, thatBecomeMonoSoundMono) {
    instance.start({.channels = 1});
    ModelTwin twin(1);
    const Audio input = testAudio(1, 4000);
    EXPECT_TRUE(sameBits(instance.render(input), twin.render(input)));
}

TEST_F(Buses, thatChangeWhileActiveSoundAsChosen) {
    instance.start({.channels = 2});
    (void)instance.render(testAudio(2, 2000));
    ASSERT_EQ(instance.arrange(1), kResultOk);
    ModelTwin twin(1);
    const Audio input = testAudio(1, 4000, 5);
    EXPECT_TRUE(sameBits(instance.render(input), twin.render(input)));
}

TEST_F(Buses, thatAreArrangedAnewStartFromRest) {
    instance.start({.channels = 2});
    (void)instance.render(testAudio(2, 2000));
    ASSERT_EQ(instance.arrange(2), kResultOk);
    ModelTwin twin(2);
    const Audio input = testAudio(2, 4000, 5);
    EXPECT_TRUE(sameBits(instance.render(input), twin.render(input)));
}

TEST_F(Buses, haveNoRoutesModesOrSeparateController) {
    Steinberg::TUID id{};
    EXPECT_EQ(instance.component().getControllerClassId(id), kNotImplemented);
    EXPECT_EQ(instance.component().setIoMode(Vst::kSimple), kNotImplemented);
    EXPECT_EQ(instance.component().setIoMode(Vst::kOfflineProcessing), kNotImplemented);
    Vst::RoutingInfo from{};
    Vst::RoutingInfo to{};
    EXPECT_EQ(instance.component().getRoutingInfo(from, to), kNotImplemented);
}
