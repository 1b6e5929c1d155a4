// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/InputFile.h"

#include "tools/brolt-host/HostError.h"

#include <cerrno>
#include <fstream>
#include <system_error>

namespace fs = std::filesystem;

void checkInputFile(const fs::path& file) {
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (status.type() == fs::file_type::not_found)
        throw HostError::ofFile(file, "no such file");
    if (status.type() == fs::file_type::none)
        throw HostError::ofFile(file, error.message());
    if (fs::is_directory(status))
        throw HostError::ofFile(file, "is a folder");
    if (!fs::is_regular_file(status))
        throw HostError::ofFile(file, "is not a regular file");
    errno = 0;
    const std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw HostError::ofFile(file, errno != 0 ? errno : EIO);
}
