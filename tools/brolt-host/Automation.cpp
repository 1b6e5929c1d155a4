// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/Automation.h"

#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/InputFile.h"
#include "tools/brolt-host/Utf8.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <string_view>

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF"; // some editors begin UTF-8 files with it
constexpr std::string_view blanks = " \t\r";

std::vector<std::string_view> wordsOf(std::string_view line) {
    line = line.substr(0, line.find('#'));
    std::vector<std::string_view> words;
    for (;;) {
        const std::size_t begin = line.find_first_not_of(blanks);
        if (begin == std::string_view::npos)
            return words;
        const std::size_t end = std::min(line.find_first_of(blanks, begin), line.size());
        words.push_back(line.substr(begin, end - begin));
        line.remove_prefix(end);
    }
}

double parseSeconds(std::string_view text) {
    const std::optional<double> seconds = parseNumber(text);
    if (!seconds)
        throw HostError("'" + std::string(text) + "' is not a time in seconds");
    if (*seconds < 0.0)
        throw HostError("the time " + std::string(text) + " s lies before the beginning");
    return *seconds;
}

/// The first value outside its parameter's range, and how many follow it.
struct Clamped {
    std::string firstNotice;
    int more = 0;
};

std::vector<std::string> noticesOf(const std::map<std::int32_t, Clamped>& clampedByIndex) {
    std::vector<std::string> notices;
    for (const auto& [index, clamped] : clampedByIndex) {
        std::string notice = clamped.firstNotice;
        if (clamped.more > 0)
            notice += " (and " + std::to_string(clamped.more) + " more of this parameter)";
        notices.push_back(notice);
    }
    return notices;
}

} // namespace

Automation parseAutomation(const std::string& text, const std::string& name,
                           const QM::IQMParameterSet& parameters) {
    Automation automation;
    std::map<std::int32_t, Clamped> clampedByIndex;
    std::istringstream stream(text.starts_with(byteOrderMark) ? text.substr(byteOrderMark.size())
                                                              : text);
    int lineNumber = 0;
    for (std::string line; std::getline(stream, line);) {
        const std::string place = name + ":" + std::to_string(++lineNumber) + ": ";
        const std::vector<std::string_view> words = wordsOf(line);
        if (words.empty())
            continue;
        try {
            constexpr std::size_t wordsOfChange = 3;
            if (words.size() != wordsOfChange)
                throw HostError("a line reads: seconds ID value");
            const double seconds = parseSeconds(words[0]);
            const ParameterSetting setting = parseSetting(parameters, words[1], words[2]);
            automation.changes.push_back({seconds, setting.index, setting.value});
            if (!setting.clampNotice.empty()) {
                const auto [entry, isFirst] =
                    clampedByIndex.try_emplace(setting.index, Clamped{place + setting.clampNotice});
                entry->second.more += isFirst ? 0 : 1;
            }
        } catch (const HostError& error) {
            throw HostError(place + error.what());
        }
    }
    std::stable_sort(
        automation.changes.begin(), automation.changes.end(),
        [](const AutomationChange& a, const AutomationChange& b) { return a.seconds < b.seconds; });
    automation.notices = noticesOf(clampedByIndex);
    return automation;
}

Automation readAutomation(const std::filesystem::path& file,
                          const QM::IQMParameterSet& parameters) {
    checkInputFile(file);
    std::ifstream stream(file, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    if (stream.bad())
        throw HostError::ofFile(file, "cannot be read");
    return parseAutomation(text, utf8FromPath(file), parameters);
}
