// SPDX-License-Identifier: GPL-3.0-or-later
//
// An open libsndfile handle, and the one way to open it that works with any file name on both
// platforms. For the reader's and the writer's bodies alone: nothing else sees the library.

#pragma once

#ifdef _WIN32
#    define ENABLE_SNDFILE_WINDOWS_PROTOTYPES 1
#endif
#include <sndfile.h>

#include <filesystem>
#include <memory>
#include <string>

struct SoundFileCloser {
    void operator()(SNDFILE* file) const { sf_close(file); }
};

using SoundFile = std::unique_ptr<SNDFILE, SoundFileCloser>;

/// `mode` is SFM_READ or SFM_WRITE. Null when the library refuses; soundFileError(nullptr) then
/// tells why. [message thread]
SoundFile openSoundFile(const std::filesystem::path& path, int mode, SF_INFO& info);

/// The library's reason without its full stop. [message thread]
std::string soundFileError(SNDFILE* file);
