// SPDX-License-Identifier: GPL-3.0-or-later
//
// The options of editor and screenshot.

#include "tools/brolt-host/CommandLine.h"

#include "tools/brolt-host/tests/HostTestKit.h"

#include <gtest/gtest.h>

namespace {

EditorOptions editorOptions(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "editor");
    return std::get<EditorOptions>(parseCommandLine(arguments));
}

ScreenshotOptions screenshotOptions(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"screenshot", "out.png"});
    return std::get<ScreenshotOptions>(parseCommandLine(arguments));
}

std::string editorError(const std::vector<std::string>& arguments) {
    return errorOf([&] { editorOptions(arguments); });
}

std::string screenshotError(const std::vector<std::string>& arguments) {
    return errorOf([&] { screenshotOptions(arguments); });
}

} // namespace

TEST(EditorCommandLine, anEditorNeedsNoOptions) {
    const EditorOptions options = editorOptions({});
    EXPECT_EQ(options.view.input, std::nullopt);
    EXPECT_EQ(options.view.blockSize, 512);
    EXPECT_EQ(options.view.channels, std::nullopt);
    EXPECT_EQ(options.view.magnification, std::nullopt);
    EXPECT_EQ(options.view.seconds, std::nullopt);
    EXPECT_EQ(options.view.plugIn.bundle, std::nullopt);
    EXPECT_FALSE(options.view.generic);
    EXPECT_FALSE(options.printEdits);
}

TEST(EditorCommandLine, everyOptionArrives) {
    const EditorOptions options =
        editorOptions({"--set",      "gain=-6",     "--set=sfre=45", "--preset", "p.qmpreset",
                       "--state",    "s.vst3state", "--block",       "64",       "in.wav",
                       "--channels", "1",           "--scale",       "150",      "--seconds",
                       "0.5",        "--generic",   "--plugin",      "B.vst3",   "--print-edits"});
    EXPECT_EQ(options.view.settings, (std::vector<std::string>{"gain=-6", "sfre=45"}));
    EXPECT_EQ(options.view.state.preset, "p.qmpreset");
    EXPECT_EQ(options.view.state.state, "s.vst3state");
    EXPECT_EQ(options.view.input, "in.wav");
    EXPECT_EQ(options.view.blockSize, 64);
    EXPECT_EQ(options.view.channels, 1);
    EXPECT_EQ(options.view.magnification, 150);
    EXPECT_EQ(options.view.seconds, 0.5);
    EXPECT_EQ(options.view.plugIn.bundle, "B.vst3");
    EXPECT_TRUE(options.view.generic);
    EXPECT_TRUE(options.printEdits);
}

TEST(EditorCommandLine, whatIsForFilesThatAreRenderedIsUnknown) {
    for (const char* option : {"--save-state", "--save-preset", "--bits", "--automate", "--format"})
        EXPECT_NE(editorError({option, "x"}), "no error") << option;
    EXPECT_NE(editorError({"one.wav", "two.wav"}), "no error");
}

TEST(EditorCommandLine, scalesAreWholePercent) {
    EXPECT_EQ(editorOptions({"--scale", "1"}).view.magnification, 1);
    EXPECT_EQ(editorOptions({"--scale", "1000"}).view.magnification, 1000);
    for (const char* text : {"0", "-100", "1001", "112.5", "large", "nan"}) {
        EXPECT_EQ(editorError({"--scale", text}),
                  "--scale " + std::string(text) +
                      ": must be a whole number of percent from 1 to 1000");
    }
}

TEST(EditorCommandLine, timesAreAboveNothing) {
    EXPECT_EQ(editorOptions({"--seconds", "86400"}).view.seconds, 86400.0);
    for (const char* text : {"0", "-1", "86401", "soon", "inf"}) {
        EXPECT_EQ(editorError({"--seconds", text}),
                  "--seconds " + std::string(text) +
                      ": must be a number above 0 and at most 86400");
    }
}

TEST(EditorCommandLine, blocksAndChannelsAreThoseOfRender) {
    EXPECT_EQ(editorError({"--block", "0"}), "--block 0: must be a whole number from 1 to 1048576");
    EXPECT_EQ(screenshotError({"--channels", "3"}), "--channels 3: must be 1 or 2");
}

TEST(ScreenshotCommandLine, needsAFileToWrite) {
    EXPECT_EQ(screenshotOptions({}).output, "out.png");
    EXPECT_NE(errorOf([] { parseCommandLine({"screenshot"}); }), "no error");
}

TEST(ScreenshotCommandLine, itsInputIsAnOption) {
    const ScreenshotOptions options =
        screenshotOptions({"--input", "in.wav", "--seconds", "2", "--generic", "--scale", "75"});
    EXPECT_EQ(options.view.input, "in.wav");
    EXPECT_EQ(options.view.seconds, 2.0);
    EXPECT_EQ(options.view.magnification, 75);
    EXPECT_TRUE(options.view.generic);
    EXPECT_NE(screenshotError({"in.wav"}), "no error");
    EXPECT_NE(screenshotError({"--print-edits"}), "no error");
}

TEST(ScreenshotCommandLine, aLengthWithoutASoundIsRefused) {
    EXPECT_EQ(screenshotError({"--seconds", "2"}),
              "screenshot: --seconds is a length of --input, which is not given");
}
