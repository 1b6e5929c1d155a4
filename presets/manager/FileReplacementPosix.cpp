// SPDX-License-Identifier: GPL-3.0-or-later
// Putting a file in another's place where rename() does it in one step.
#ifndef _WIN32
#    include "presets/manager/FileReplacement.h"

#    include <cerrno>
#    include <fcntl.h>
#    include <sys/stat.h>
#    include <system_error>
#    include <unistd.h>

namespace fs = std::filesystem;

namespace FileReplacement {

namespace {

Answer answerOfErrno() {
    switch (errno) {
    case EACCES:
    case EPERM:
    case EROFS:
    case EBUSY: // a file that something is mounted on
    case EXDEV:
        return Answer::Refused;
    default:
        return Answer::Failed;
    }
}

} // namespace

fs::path resolveLinks(const fs::path& path) {
    constexpr int mostLinks = 40; // as many as the system itself follows
    fs::path current = path;
    std::error_code error;
    for (int i = 0; i < mostLinks && fs::is_symlink(fs::symlink_status(current, error)); ++i) {
        const fs::path target = fs::read_symlink(current, error);
        if (error)
            break;
        current = target.is_absolute() ? target : current.parent_path() / target;
    }
    return current;
}

bool isMeantToBeWritten(const fs::path& file) {
    constexpr fs::perms anybody =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    return fs::is_regular_file(status) && (status.permissions() & anybody) != fs::perms::none;
}

std::FILE* openForUpdate(const fs::path& file) {
    return std::fopen(file.c_str(), "r+be");
}

Answer create(const fs::path& path, std::FILE*& file) {
    constexpr mode_t asFopen = S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
    const int descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, asFopen);
    if (descriptor < 0)
        return answerOfErrno();
    file = fdopen(descriptor, "wb");
    if (file != nullptr)
        return Answer::Done;
    close(descriptor);
    unlink(path.c_str());
    return Answer::Failed;
}

Answer copyRights(std::FILE* newFile, const fs::path& oldFile) {
    constexpr mode_t permissionBits = 07777;
    const int descriptor = fileno(newFile);
    struct stat from = {};
    struct stat to = {};
    if (stat(oldFile.c_str(), &from) != 0 || fstat(descriptor, &to) != 0)
        return Answer::Failed;
    if ((from.st_uid != to.st_uid || from.st_gid != to.st_gid) &&
        fchown(descriptor, from.st_uid, from.st_gid) != 0)
        return Answer::Refused;
    // After the owner: a change of owner clears bits.
    if (from.st_mode != to.st_mode && fchmod(descriptor, from.st_mode & permissionBits) != 0)
        return Answer::Refused;
    return Answer::Done;
}

bool flushToMedium(std::FILE* file) {
    return std::fflush(file) == 0 && fsync(fileno(file)) == 0;
}

Answer replace(const fs::path& newFile, const fs::path& oldFile) {
    return rename(newFile.c_str(), oldFile.c_str()) == 0 ? Answer::Done : answerOfErrno();
}

void flushFolderToMedium(const fs::path& folder) {
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    // Not every file system can; the file's content is safe already.
    static_cast<void>(fsync(descriptor));
    close(descriptor);
}

} // namespace FileReplacement
#endif
