// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the user can put right: a bad value, a file that cannot be read or written.

#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

/// The message is one line and says what is wrong with what; main prints it and ends with status 2.
class HostError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;

    /// "<path>: <reason>". [any thread]
    static HostError ofFile(const std::filesystem::path& path, const std::string& reason);

    /// The same with the reason of a system error number (errno's values). [any thread]
    static HostError ofFile(const std::filesystem::path& path, int systemError);
};
