// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/Utf8.h"

#ifdef _WIN32
#    include <windows.h>

#    include <shellapi.h>
#endif

std::vector<std::string> utf8Arguments(int argc, const char* const* argv) {
    std::vector<std::string> arguments;
#ifdef _WIN32
    static_cast<void>(argc);
    static_cast<void>(argv);
    int count = 0;
    wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 1; wide != nullptr && i < count; ++i)
        arguments.push_back(utf8FromPath(std::filesystem::path(wide[i])));
    LocalFree(wide);
#else
    for (int i = 1; i < argc; ++i)
        arguments.emplace_back(argv[i]);
#endif
    return arguments;
}

std::optional<std::filesystem::path> optionalPath(const std::string& text) {
    if (text.empty())
        return std::nullopt;
    return pathFromUtf8(text);
}
