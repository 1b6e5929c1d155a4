// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/library/tests/support/ProcessResources.h"

#ifdef _WIN32

#    include <windows.h>

#    include <tlhelp32.h>

namespace {

std::size_t countThreads() {
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 entry{};
    entry.dwSize = sizeof entry;
    std::size_t count = 0;
    for (BOOL more = Thread32First(snapshot, &entry); more != FALSE;
         more = Thread32Next(snapshot, &entry)) {
        if (entry.th32OwnerProcessID == GetCurrentProcessId())
            ++count;
    }
    CloseHandle(snapshot);
    return count;
}

} // namespace

ProcessResources ProcessResources::now() {
    DWORD handles = 0;
    GetProcessHandleCount(GetCurrentProcess(), &handles);
    return {countThreads(), handles, std::nullopt};
}

#else

#    include <filesystem>
#    include <iterator>

#    include <malloc.h>

namespace {

std::size_t countEntries(const char* folder) {
    const std::filesystem::directory_iterator entries(folder);
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

std::optional<std::size_t> allocatedBytes() {
#    if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    return std::nullopt;
#    else
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
#    endif
}

} // namespace

ProcessResources ProcessResources::now() {
    return {countEntries("/proc/self/task"), countEntries("/proc/self/fd"), allocatedBytes()};
}

#endif
