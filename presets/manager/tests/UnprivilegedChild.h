// SPDX-License-Identifier: GPL-3.0-or-later
// A child process for what a test cannot do to itself: give up the superuser's rights, for whom no
// file is read-only, or work under a limit on the size of files.
#pragma once

#ifndef _WIN32

#    include <filesystem>
#    include <functional>

/// Runs the body in a child; true when it answered true. Where the test runs as the superuser the
/// child becomes somebody without rights first.
bool inUnprivilegedChild(const std::function<bool()>& body);

/// Runs the body in a child whose files cannot grow beyond a number of bytes: writing more fails as
/// on a full disk. True when it answered true.
bool inChildWithFullDisk(unsigned long largestFile, const std::function<bool()>& body);

/// Makes the unprivileged child the owner; as an ordinary user one is the owner already.
void giveToUnprivilegedChild(const std::filesystem::path& path);

#endif
