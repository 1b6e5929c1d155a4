// SPDX-License-Identifier: GPL-3.0-or-later
// Putting a file in another's place on Windows.
#ifdef _WIN32
#    include "presets/manager/FileReplacement.h"

#    include <cerrno>
#    include <fcntl.h>
#    include <io.h>
#    include <sys/stat.h>
#    include <windows.h>

namespace fs = std::filesystem;

namespace FileReplacement {

namespace {

Answer answerOfLastError() {
    switch (GetLastError()) {
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
    case ERROR_NOT_SAME_DEVICE:
    case ERROR_NOT_SUPPORTED:
    case ERROR_INVALID_FUNCTION:
        return Answer::Refused;
    default:
        return Answer::Failed;
    }
}

bool isTaken(const fs::path& path) {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

/// Replacing a link would replace the link itself and not the file it leads to.
bool isLink(const fs::path& path) {
    WIN32_FIND_DATAW data = {};
    const HANDLE search = FindFirstFileW(path.c_str(), &data);
    if (search == INVALID_HANDLE_VALUE)
        return false;
    FindClose(search);
    return (data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
           data.dwReserved0 == IO_REPARSE_TAG_SYMLINK;
}

bool replaceOnce(const fs::path& newFile, const fs::path& oldFile) {
    // Keeps attributes, access rights and the time of creation; what it cannot keep is no reason to
    // fail. The other call serves file systems that know no replacing, and places still empty.
    constexpr DWORD tolerant =
        REPLACEFILE_IGNORE_MERGE_ERRORS | 4 /* REPLACEFILE_IGNORE_ACL_ERRORS */;
    if (isTaken(oldFile) &&
        ReplaceFileW(oldFile.c_str(), newFile.c_str(), nullptr, tolerant, nullptr, nullptr) != 0)
        return true;
    return MoveFileExW(newFile.c_str(), oldFile.c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

} // namespace

fs::path resolveLinks(const fs::path& path) {
    return path;
}

bool isMeantToBeWritten(const fs::path& file) {
    const DWORD attributes = GetFileAttributesW(file.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) == 0;
}

std::FILE* openForUpdate(const fs::path& file) {
    return _wfopen(file.c_str(), L"r+bN");
}

Answer create(const fs::path& path, std::FILE*& file) {
    const int descriptor =
        _wopen(path.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT,
               _S_IREAD | _S_IWRITE);
    if (descriptor < 0)
        return errno == EACCES ? Answer::Refused : Answer::Failed;
    file = _wfdopen(descriptor, L"wb");
    if (file != nullptr)
        return Answer::Done;
    _close(descriptor);
    DeleteFileW(path.c_str());
    return Answer::Failed;
}

Answer copyRights(std::FILE*, const fs::path& oldFile) {
    // The replacing does it.
    return isLink(oldFile) ? Answer::Refused : Answer::Done;
}

bool flushToMedium(std::FILE* file) {
    return std::fflush(file) == 0 && _commit(_fileno(file)) == 0;
}

Answer replace(const fs::path& newFile, const fs::path& oldFile) {
    // A virus scanner, an indexer or another instance may have the file open for a moment.
    constexpr int mostTries = 10;
    constexpr DWORD pause = 10; // milliseconds
    for (int i = 0; i < mostTries; ++i) {
        if (replaceOnce(newFile, oldFile))
            return Answer::Done;
        if (GetLastError() != ERROR_SHARING_VIOLATION)
            break;
        Sleep(pause);
    }
    return answerOfLastError();
}

void flushFolderToMedium(const fs::path&) {
    // Names go with the file here.
}

} // namespace FileReplacement
#endif
