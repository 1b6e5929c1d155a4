// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/ProgramPath.h"

#ifdef _WIN32
#    include <windows.h>

#    include <string>
#else
#    include <system_error>
#endif

std::filesystem::path programPath() {
#ifdef _WIN32
    constexpr std::size_t longestPath = 1 << 15; // of the system, in characters
    std::wstring path(longestPath, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
#else
    std::error_code ignored;
    return std::filesystem::read_symlink("/proc/self/exe", ignored);
#endif
}
