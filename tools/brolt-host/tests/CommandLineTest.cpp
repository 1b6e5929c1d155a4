// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/brolt-host/CommandLine.h"
#include "tools/brolt-host/RenderCommand.h"

#include "tools/brolt-host/tests/HostTestKit.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

RenderOptions renderOptions(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "render");
    return std::get<RenderOptions>(parseCommandLine(arguments));
}

std::string error(std::vector<std::string> arguments) {
    return errorOf([&] { parseCommandLine(arguments); });
}

std::string renderError(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"render", "in.wav", "out.wav"});
    return error(arguments);
}

} // namespace

TEST(CommandLine, aRenderNeedsNoMoreThanTwoFiles) {
    const RenderOptions options = renderOptions({"in.wav", "out.wav"});
    EXPECT_THAT(options.files, ElementsAre("in.wav", "out.wav"));
    EXPECT_EQ(options.blockSize, 512);
    EXPECT_EQ(options.channels, std::nullopt);
    EXPECT_EQ(options.encoding, SampleEncoding::float32);
    EXPECT_EQ(options.plugIn.form, PlugInForm::vst3);
    EXPECT_FALSE(options.quiet);
}

TEST(CommandLine, everyOptionArrives) {
    const RenderOptions options = renderOptions(
        {"--set",           "gain=-6", "--set=sfre=45", "in.wav", "--automate", "a.txt",
         "--block",         "64",      "--channels",    "2",      "--bits",     "24",
         "--trace-records", "t.txt",   "--plot",        "p.png",  "--format",   "model",
         "--quiet",         "out.wav"});
    EXPECT_THAT(options.files, ElementsAre("in.wav", "out.wav"));
    EXPECT_THAT(options.settings, ElementsAre("gain=-6", "sfre=45"));
    EXPECT_EQ(options.automation, "a.txt");
    EXPECT_EQ(options.blockSize, 64);
    EXPECT_EQ(options.channels, 2);
    EXPECT_EQ(options.encoding, SampleEncoding::pcm24);
    EXPECT_EQ(options.trace, "t.txt");
    EXPECT_EQ(options.plot, "p.png");
    EXPECT_EQ(options.plugIn.form, PlugInForm::model);
    EXPECT_TRUE(options.quiet);
}

TEST(CommandLine, filesMayHaveTheNamesOfCommandsAndOptions) {
    EXPECT_THAT(renderOptions({"params", "info"}).files, ElementsAre("params", "info"));
    EXPECT_THAT(renderOptions({"--", "--set", "-o"}).files, ElementsAre("--set", "-o"));
}

TEST(CommandLine, blockSizesAreWholeNumbersFromOne) {
    EXPECT_EQ(renderOptions({"a", "b", "--block", "1"}).blockSize, 1);
    EXPECT_EQ(renderOptions({"a", "b", "--block", "1048576"}).blockSize, 1048576);
    for (const char* text : {"0", "-1", "1048577", "1.5", "x", "nan", "99999999999999999999"}) {
        EXPECT_EQ(renderError({"--block", text}),
                  "--block " + std::string(text) + ": must be a whole number from 1 to 1048576");
    }
}

TEST(CommandLine, impossibleOptionsAreRefused) {
    EXPECT_EQ(renderError({"--channels", "3"}), "--channels 3: must be 1 or 2");
    EXPECT_EQ(renderError({"--bits", "8"}), "--bits 8: must be float, 24 or 16");
    EXPECT_THAT(renderError({"--frobnicate"}), HasSubstr("--frobnicate"));
    EXPECT_THAT(renderError({"--set"}), HasSubstr("--set"));
    EXPECT_THAT(renderError({"third.wav"}), HasSubstr("one input and one output file"));
    EXPECT_THAT(error({"render", "in.wav"}), HasSubstr("one input and one output file"));
    EXPECT_NE(error({"render"}), "no error");
    EXPECT_NE(error({}), "no error");
    EXPECT_THAT(error({"frobnicate"}), HasSubstr("unknown command 'frobnicate'"));
    EXPECT_NE(error({"params", "more"}), "no error");
}

TEST(CommandLine, theOtherCommands) {
    EXPECT_FALSE(std::get<ParamsOptions>(parseCommandLine({"params"})).tabSeparated);
    EXPECT_TRUE(std::get<ParamsOptions>(parseCommandLine({"params", "--tsv"})).tabSeparated);
    EXPECT_TRUE(std::holds_alternative<InfoOptions>(parseCommandLine({"info"})));
    EXPECT_EQ(std::get<TextRequest>(parseCommandLine({"--version"})).text,
              "brolt-host 4.0.2.157\n");
}

TEST(CommandLine, helpTellsTheOptionsOfItsCommand) {
    EXPECT_THAT(std::get<TextRequest>(parseCommandLine({"--help"})).text, HasSubstr("render"));
    const std::string help = std::get<TextRequest>(parseCommandLine({"render", "--help"})).text;
    for (const char* option :
         {"--set", "--automate", "--block", "--channels", "--bits", "--plot", "--trace-records",
          "--format", "--plugin", "--mode", "--quiet", "--out-dir"})
        EXPECT_THAT(help, HasSubstr(option));
}

TEST(RenderFiles, inABatchEachInputKeepsItsNameInTheOutputFolder) {
    const TemporaryFolder folder;
    RenderOptions options;
    options.files = {"a/kick.flac", "b/snare.wav"};
    options.outputFolder = folder.path();
    const std::vector<RenderFiles> files = renderFilesOf(options);
    ASSERT_EQ(files.size(), 2U);
    EXPECT_EQ(files[0].input, "a/kick.flac");
    EXPECT_EQ(files[0].output, folder / "kick.wav");
    EXPECT_EQ(files[1].output, folder / "snare.wav");
}

TEST(RenderFiles, twoResultsOfOneNameAreRefused) {
    const TemporaryFolder folder;
    RenderOptions options;
    options.files = {"a/kick.flac", "b/kick.wav"};
    options.outputFolder = folder.path();
    EXPECT_THAT(errorOf([&] { renderFilesOf(options); }),
                HasSubstr("would be written twice, for a/kick.flac and for b/kick.wav"));
}

TEST(RenderFiles, aTraceOrPlotInPlaceOfTheResultIsRefused) {
    RenderOptions options;
    options.files = {"in.wav", "out.wav"};
    options.plot = "./out.wav";
    EXPECT_THAT(errorOf([&] { renderFilesOf(options); }), HasSubstr("would be written twice"));
}

TEST(RenderFiles, aTraceOrPlotInPlaceOfTheInputIsRefused) {
    RenderOptions options;
    options.files = {"in.wav", "out.wav"};
    options.trace = "./in.wav";
    EXPECT_EQ(errorOf([&] { renderFilesOf(options); }), "./in.wav: is the input file");
}

TEST(RenderFiles, aMissingOutputFolderIsRefused) {
    RenderOptions options;
    options.files = {"in.wav"};
    options.outputFolder = "no/such/folder";
    EXPECT_EQ(errorOf([&] { renderFilesOf(options); }), "no/such/folder: is not a folder");
}
