// SPDX-License-Identifier: GPL-3.0-or-later
// Hosts told by the path of their program.

#include "QMShell/toolkit/HostKind.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

struct Example {
    const char* path;
    int kind;
};

TEST(HostKind, isToldByNameOrPathWhateverTheCase) {
    const std::vector<Example> examples = {
        {R"(C:\Program Files\Ableton\Live 6.0.11.exe)", 1},
        {R"(C:\Ableton\live 7.0.exe)", 2},
        {R"(C:\Ableton\Live 8.4.exe)", 3},
        {R"(C:\ProgramData\Ableton\Ableton Live 11 Suite.exe)", 4},
        {R"(C:\Adobe\Adobe Audition CC.exe)", 5},
        {R"(C:\Adobe\Adobe Premiere Pro.exe)", 6},
        {R"(C:\Emagic\Logic.exe)", 7},
        {R"(C:\Program Files\Bitwig Studio\Bitwig Host.exe)", 9},
        {R"(C:\Cakewalk\SONAR 8 Producer\SONARPDR.exe)", 10},
        {R"(C:\Cakewalk\SONAR X3\SONARPDR.exe)", 11},
        {R"(C:\Blackmagic Design\Resolve.exe)", 12},
        {R"(C:\Avid\Pro Tools\ProTools.exe)", 13},
        {R"(C:\MOTU\Digital Performer 11\DP.exe)", 14},
        {R"(C:\Merging Technologies\VirtualStudio.exe)", 18},
        {R"(C:\Muse\rm-host.exe)", 19},
        {R"(C:\Program Files\REAPER (x64)\reaper.exe)", 20},
        {R"(C:\Renoise\Renoise.exe)", 21},
        {R"(C:\Steinberg\Cubase4.exe)", 22},
        {R"(C:\Steinberg\Cubase5.exe)", 23},
        {R"(C:\Steinberg\VSTBridgeApp.exe)", 24},
        {R"(C:\Steinberg\Cubase6.exe)", 25},
        {R"(C:\Steinberg\Cubase7.exe)", 26},
        {R"(C:\Steinberg\Nuendo 12\host.exe)", 32},
        {R"(C:\Steinberg\WaveLab 5\w.exe)", 33},
        {R"(C:\Steinberg\WaveLab 6\w.exe)", 34},
        {R"(C:\Steinberg\WaveLab 7\w.exe)", 35},
        {R"(C:\Steinberg\VST3PluginTestHost.exe)", 38},
        {R"(C:\PreSonus\Studio One 6\s.exe)", 39},
        {R"(C:\Tracktion 3\t.exe)", 40},
        {R"(C:\T\Tracktion.exe)", 41},
        {R"(C:\V\VST_Scanner.exe)", 42},
        {"/opt/bitwig studio/BitwigPluginHost", 9},
        {"/usr/local/bin/reaper", 20},
    };
    for (const Example& example : examples)
        EXPECT_EQ(hostKindOfPath(example.path), example.kind) << example.path;
}

TEST(HostKind, tellsCubase8FromLaterOnes) {
    EXPECT_EQ(hostKindOfPath(R"(C:\S\Cubase8.exe)"), 27);
    EXPECT_EQ(hostKindOfPath(R"(C:\S\Cubase9.exe)"), 28);
}

TEST(HostKind, looksAtWavelabsFolderBeforeItsName) {
    EXPECT_EQ(hostKindOfPath(R"(C:\Steinberg\Wavelab 8\WaveLab.exe)"), 36);
    EXPECT_EQ(hostKindOfPath(R"(C:\Steinberg\WaveLab.exe)"), 37);
}

TEST(HostKind, takesNamesThatBeginWithFLAndOneBridgeInItsOwnSpelling) {
    EXPECT_EQ(hostKindOfPath(R"(C:\I\FLStudio.exe)"), 16);
    EXPECT_EQ(hostKindOfPath(R"(C:\I\fl64.exe)"), 16);
    EXPECT_EQ(hostKindOfPath(R"(C:\I\ilbridge.exe)"), 16);
    EXPECT_EQ(hostKindOfPath(R"(C:\I\ILBridge.exe)"), 0);
}

TEST(HostKind, needsTheBlankBehindLive) {
    EXPECT_EQ(hostKindOfPath(R"(C:\A\Live 6.exe)"), 1);
    EXPECT_EQ(hostKindOfPath(R"(C:\A\LiveRecorder.exe)"), 0);
}

TEST(HostKind, takesTheFirstTestThatMatches) {
    // Both "ProTools" and "Logic" would match.
    EXPECT_EQ(hostKindOfPath("/x/ProTools Logic"), 13);
    // The folder's name is no file name.
    EXPECT_EQ(hostKindOfPath("/Logic/other"), 0);
    EXPECT_EQ(hostKindOfPath(""), 0);
}

TEST(HostKind, ofThisTestIsUnknown) {
    EXPECT_EQ(hostKind(), 0);
}

TEST(HostDisplayName, isTheReportsSpelling) {
    const std::vector<std::string> names = {
        "Unknown",
        "Ableton Live 6",
        "Ableton Live 7",
        "Ableton Live 8",
        "Ableton Live",
        "Adobe Audition",
        "Adobe Premiere",
        "Apple Logic",
        "Unknown",
        "Bitwig Studio",
        "Cakewalk Sonar 8",
        "Cakewalk Sonar",
        "DaVinci Resolve",
        "ProTools",
        "DigitalPerformer",
        "Final Cut",
        "FruityLoops",
        "Magix Samplitude",
        "Pyramix",
        "Muse Receptor",
        "Reaper",
        "Renoise",
        "Steinberg Cubase 4",
        "Steinberg Cubase 5",
        "Steinberg Cubase 5 Bridged",
        "Steinberg Cubase 6",
        "Steinberg Cubase 7",
        "Steinberg Cubase 8",
        "Steinberg Cubase",
        "Steinberg Nuendo 3",
        "Steinberg Nuendo 4",
        "Steinberg Nuendo 5",
        "Steinberg Nuendo",
        "Steinberg Wavelab 5",
        "Steinberg Wavelab 6",
        "Steinberg Wavelab 7",
        "Steinberg Wavelab 8",
        "Steinberg Wavelab",
        "Steinberg TestHost",
        "Studio One",
        "Tracktion 3",
        "Tracktion",
        "VBVSTScanner",
        "WaveBurner",
        "NoxConsole3d",
    };
    ASSERT_EQ(names.size(), 45U);
    for (std::size_t kind = 0; kind < names.size(); ++kind)
        EXPECT_EQ(hostDisplayName(static_cast<int>(kind)), names[kind]) << kind;
    for (const int kind : {-1, 45, 1000})
        EXPECT_STREQ(hostDisplayName(kind), "Unknown") << kind;
}

TEST(HostHelp, isGivenToTheHostsThatNeedIt) {
    for (int kind = -1; kind <= 50; ++kind) {
        const bool wavelab = kind >= 33 && kind <= 37;
        EXPECT_EQ(wantsEditorBoundsAgain(kind), wavelab) << kind;
        EXPECT_EQ(wantsEditorSizeAgain(kind), wavelab || kind == 12 || kind == 14) << kind;
    }
}

} // namespace
