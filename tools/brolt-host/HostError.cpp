// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/HostError.h"

#include "tools/brolt-host/Utf8.h"

#include <system_error>

HostError HostError::ofFile(const std::filesystem::path& path, const std::string& reason) {
    return HostError(utf8FromPath(path) + ": " + reason);
}

HostError HostError::ofFile(const std::filesystem::path& path, int systemError) {
    return ofFile(path, std::generic_category().message(systemError));
}
