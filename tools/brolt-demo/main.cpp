// SPDX-License-Identifier: GPL-3.0-or-later
//
// brolt-demo: makes the demonstration's input files and measures its results. scripts/demo calls
// it.

#include "tools/brolt-demo/BassLine.h"
#include "tools/brolt-demo/KickPattern.h"
#include "tools/brolt-demo/Pattern.h"
#include "tools/brolt-demo/SignalReport.h"
#include "tools/brolt-host/AudioFileWriter.h"
#include "tools/brolt-host/ExitStatus.h"
#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/Utf8.h"

#include <cstdio>

namespace {

void writeFile(const std::string& name, int channels, const std::vector<float>& interleaved) {
    const auto frames = static_cast<std::int64_t>(interleaved.size()) / channels;
    AudioFileWriter writer(pathFromUtf8(name), {channels, Pattern::sampleRate}, frames);
    writer.write(interleaved.data(), frames);
    writer.finish();
    writer.commit();
}

void runCommand(const std::vector<std::string>& arguments) {
    const std::string command = arguments.empty() ? "" : arguments[0];
    if (command == "kick" && arguments.size() == 3) {
        writeFile(arguments[2], 1, kickPattern(pathFromUtf8(arguments[1])));
    } else if (command == "bass" && arguments.size() == 2) {
        writeFile(arguments[1], 2, bassLine());
    } else if (command == "report" && arguments.size() >= 2) {
        std::vector<std::filesystem::path> files;
        for (std::size_t i = 1; i < arguments.size(); ++i)
            files.push_back(pathFromUtf8(arguments[i]));
        std::fputs(alignedTable(signalReport(files)).c_str(), stdout);
    } else {
        throw HostError("usage: brolt-demo kick KIT OUT.wav | bass OUT.wav | report FILE...");
    }
}

} // namespace

int main(int argc, char** argv) {
    try {
        runCommand(utf8Arguments(argc, argv));
        return ExitStatus::success;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "brolt-demo: %s\n", error.what());
        return ExitStatus::badInput;
    }
}
