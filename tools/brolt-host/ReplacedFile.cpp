// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/ReplacedFile.h"

#include "tools/brolt-host/HostError.h"

#include <fcntl.h>
#ifdef _WIN32
#    include <io.h>
#    include <share.h>
#    include <sys/stat.h>
#else
#    include <unistd.h>
#endif

#include <array>
#include <cerrno>
#include <charconv>
#include <random>
#include <string>
#include <system_error>

namespace fs = std::filesystem;

namespace {

/// 0, or the error number.
int createNew(const fs::path& path) {
#ifdef _WIN32
    int file = -1;
    const int error = _wsopen_s(&file, path.c_str(), _O_CREAT | _O_EXCL | _O_WRONLY | _O_BINARY,
                                _SH_DENYNO, _S_IREAD | _S_IWRITE);
    if (error != 0)
        return error;
    _close(file);
#else
    constexpr mode_t readAndWrite = 0666; // the user's mask takes away what is not wanted
    const int file = open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, readAndWrite);
    if (file < 0)
        return errno;
    close(file);
#endif
    return 0;
}

/// Independent of the target's name, which may be as long as names can be.
std::string temporaryName(std::random_device& random) {
    constexpr int hexadecimal = 16;
    std::array<char, 16> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                   static_cast<std::uint32_t>(random()), hexadecimal);
    return ".brolt-host-" + std::string(digits.data(), end.ptr) + ".tmp";
}

void checkExistingTarget(const fs::path& given, const fs::path& path) {
    std::error_code ignored;
    const fs::file_status status = fs::status(path, ignored);
    if (!fs::exists(status))
        return;
    if (fs::is_directory(status))
        throw HostError::ofFile(given, "is a folder");
    if (!fs::is_regular_file(status))
        throw HostError::ofFile(given, "is not a regular file");
    constexpr fs::perms anyWrite =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    if ((status.permissions() & anyWrite) == fs::perms::none)
        throw HostError::ofFile(given, "is write-protected");
}

fs::path behindLinks(const fs::path& path) {
    std::error_code error;
    const fs::path resolved = fs::is_symlink(path, error) ? fs::canonical(path, error) : path;
    return error || resolved.empty() ? path : resolved;
}

} // namespace

ReplacedFile::ReplacedFile(const fs::path& target)
    : givenTarget(target)
    , finalPath(behindLinks(target)) {
    if (!finalPath.has_filename())
        throw HostError::ofFile(target, "is not a file name");
    checkExistingTarget(target, finalPath);

    const fs::path folder = finalPath.parent_path();
    std::error_code ignored;
    if (!folder.empty() && !fs::is_directory(folder, ignored))
        throw HostError::ofFile(target, "its folder does not exist");

    std::random_device random;
    int error = EEXIST;
    while (error == EEXIST) {
        temporary = folder / temporaryName(random);
        error = createNew(temporary);
    }
    if (error != 0)
        throw HostError::ofFile(target, error);
}

ReplacedFile::~ReplacedFile() {
    std::error_code ignored;
    if (!committed)
        fs::remove(temporary, ignored);
}

void ReplacedFile::commit() {
    std::error_code error;
    const fs::file_status previous = fs::status(finalPath, error);
    if (fs::exists(previous))
        fs::permissions(temporary, previous.permissions(), error);
    fs::rename(temporary, finalPath, error);
    if (error)
        throw HostError::ofFile(givenTarget, error.message());
    committed = true;
}
