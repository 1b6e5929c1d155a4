// SPDX-License-Identifier: GPL-3.0-or-later
//
// Which form is driven, and which options go with it.

#include "tools/brolt-host/CommandLine.h"

#include "tools/brolt-host/tests/HostTestKit.h"

#include <gtest/gtest.h>

namespace {

PlugInOptions rendered(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"render", "in.wav", "out.wav"});
    return std::get<RenderOptions>(parseCommandLine(arguments)).plugIn;
}

PlugInOptions informed(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "info");
    return std::get<InfoOptions>(parseCommandLine(arguments)).plugIn;
}

std::string renderError(const std::vector<std::string>& arguments) {
    return errorOf([&] { rendered(arguments); });
}

} // namespace

TEST(PlugInCommandLine, theBundleBesideTheProgramIsDrivenUnlessOtherwiseSaid) {
    const PlugInOptions options = rendered({});
    EXPECT_EQ(options.form, PlugInForm::vst3);
    EXPECT_EQ(options.bundle, std::nullopt);
    EXPECT_EQ(options.mode, Vst3Mode::realtime);
}

TEST(PlugInCommandLine, formBundleAndModeAreChosen) {
    EXPECT_EQ(rendered({"--format", "model"}).form, PlugInForm::model);
    const PlugInOptions options =
        rendered({"--format", "vst3", "--plugin", "a/B.vst3", "--mode", "offline"});
    EXPECT_EQ(options.form, PlugInForm::vst3);
    EXPECT_EQ(options.bundle, "a/B.vst3");
    EXPECT_EQ(options.mode, Vst3Mode::offline);
    EXPECT_EQ(rendered({"--mode", "realtime"}).mode, Vst3Mode::realtime);
}

TEST(PlugInCommandLine, aViewIntoTheProcessorChangesNothingAboutTheForm) {
    EXPECT_EQ(rendered({"--plot", "p.png"}).form, PlugInForm::vst3);
    EXPECT_EQ(rendered({"--trace-records", "t.txt", "--format", "model"}).form, PlugInForm::model);
}

TEST(PlugInCommandLine, namesThatAreNoneAreRefused) {
    EXPECT_EQ(renderError({"--format", "vst2"}), "--format vst2: is not available in this build");
    EXPECT_EQ(renderError({"--format", "tape"}), "--format tape: must be vst3 or model");
    EXPECT_EQ(renderError({"--mode", "slow"}), "--mode slow: must be realtime or offline");
}

TEST(PlugInCommandLine, optionsOfTheBundleAreRefusedForTheModel) {
    EXPECT_EQ(renderError({"--format", "model", "--mode", "offline"}),
              "--mode offline: is for --format vst3 alone");
    EXPECT_EQ(renderError({"--format", "model", "--plugin", "B.vst3"}),
              "--plugin B.vst3: is for --format vst3 alone");
}

TEST(PlugInCommandLine, infoTellsOfTheBundleOrOfTheModelAlone) {
    EXPECT_EQ(informed({}).form, PlugInForm::vst3);
    EXPECT_EQ(informed({"--format", "model"}).form, PlugInForm::model);
    EXPECT_EQ(informed({"--plugin", "B.vst3"}).bundle, "B.vst3");
    EXPECT_NE(errorOf([] { informed({"--mode", "offline"}); }), "no error");
}
