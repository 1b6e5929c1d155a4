// SPDX-License-Identifier: GPL-3.0-or-later
// A project's life from the first session to the second: what was saved sounds in a newly loaded
// library as it did before.
#include "brolt/library/tests/support/LibraryInstance.h"
#include "brolt/library/tests/support/ModelTwin.h"

#include <public.sdk/source/vst/hosting/parameterchanges.h>

#include <memory>

using Steinberg::int32;
using Steinberg::kResultOk;

namespace {

/// What the user and the automation do; the library's instance and the twin get the same.
constexpr double automatedGain = 0.375;
constexpr double automatedPitch = 0.8;

void chooseSettings(LibraryInstance& instance) {
    instance.set("afre", 180.0);
    instance.set("attk", 5.0);
    instance.set("osc2", 0.0);
    instance.set("wetd", 62.5);
}

/// A block of offline automation.
void automate(LibraryInstance& instance) {
    Vst::ParameterChanges changes;
    int32 index = 0;
    changes.addParameterData(14, index)->addPoint(0, 0.9, index);
    changes.addParameterData(14, index)->addPoint(200, automatedGain, index);
    changes.addParameterData(2, index)->addPoint(0, automatedPitch, index);
    (void)instance.render(testAudio(2, 512), 512, &changes);
}

struct Project {
    Bytes state;
    Audio rendered;
};

Project firstSession(const LoadedLibrary& library, const Audio& song) {
    LibraryInstance instance(LibraryInstance::Begin::initialised, library);
    instance.start({.channels = 1});
    (void)instance.render(testAudio(1, 3000));
    chooseSettings(instance);
    instance.stop();
    instance.start({.channels = 2, .mode = Vst::kOffline});
    automate(instance);
    instance.stop();
    Project project{instance.state(), {}};
    instance.start({.channels = 2, .mode = Vst::kOffline});
    project.rendered = instance.render(song, 777);
    return project;
}

Audio secondSession(const LoadedLibrary& library, const Bytes& state, const Audio& song) {
    LibraryInstance instance(LibraryInstance::Begin::initialised, library);
    EXPECT_EQ(instance.restore(state), kResultOk);
    instance.start({.channels = 2, .mode = Vst::kOffline});
    return instance.render(song, 777);
}

Audio twinsRender(const Audio& song) {
    ModelTwin twin;
    twin.set("afre", 180.0);
    twin.set("attk", 5.0);
    twin.set("osc2", 0.0);
    twin.set("wetd", 62.5);
    twin.setNormalised(14, automatedGain);
    twin.setNormalised(2, automatedPitch);
    twin.reset();
    return twin.render(song, 777);
}

} // namespace

TEST(ProjectLife, endsWhereItBegan) {
    LoadedLibrary::unloadShared();
    const Audio song = testAudio(2, 40000);
    Project project;
    {
        const LoadedLibrary library;
        project = firstSession(library, song);
    }
    EXPECT_FALSE(LoadedLibrary::isInProcess());
    {
        const LoadedLibrary library;
        EXPECT_TRUE(sameBits(secondSession(library, project.state, song), project.rendered));
    }
    EXPECT_TRUE(sameBits(project.rendered, twinsRender(song)));
}

TEST(ProjectLife, goesOnInTheOtherLayout) {
    const Audio song = testAudio(1, 20000);
    Bytes state;
    {
        LibraryInstance stereo;
        stereo.start({.channels = 2});
        chooseSettings(stereo);
        state = stereo.state();
    }
    LibraryInstance mono;
    mono.start({.channels = 1});
    ASSERT_EQ(mono.restore(state), kResultOk);
    mono.stop();
    mono.start({.channels = 1});
    ModelTwin twin(1);
    twin.set("afre", 180.0);
    twin.set("attk", 5.0);
    twin.set("osc2", 0.0);
    twin.set("wetd", 62.5);
    twin.reset();
    EXPECT_TRUE(sameBits(mono.render(song), twin.render(song)));
}
