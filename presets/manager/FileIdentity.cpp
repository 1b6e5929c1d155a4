// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/FileIdentity.h"

#ifdef _WIN32
#    include "presets/record/Utf8Path.h"

#    include <windows.h>

std::optional<FileIdentity> fileIdentity(const std::string& path) {
    constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    // Folders want the backup semantics to be opened at all.
    const HANDLE handle = CreateFileW(pathFromUtf8(path).c_str(), 0, shareAll, nullptr,
                                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return std::nullopt;
    BY_HANDLE_FILE_INFORMATION information = {};
    const bool known = GetFileInformationByHandle(handle, &information) != 0;
    CloseHandle(handle);
    if (!known)
        return std::nullopt;
    constexpr int bitsOfLow = 32;
    return FileIdentity(information.dwVolumeSerialNumber,
                        std::uint64_t{information.nFileIndexHigh} << bitsOfLow |
                            information.nFileIndexLow);
}

#else
#    include <sys/stat.h>

std::optional<FileIdentity> fileIdentity(const std::string& path) {
    struct stat information = {};
    if (stat(path.c_str(), &information) != 0)
        return std::nullopt;
    return FileIdentity(information.st_dev, information.st_ino);
}
#endif
