// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/SoundFile.h"

SoundFile openSoundFile(const std::filesystem::path& path, int mode, SF_INFO& info) {
#ifdef _WIN32
    return SoundFile(sf_wchar_open(path.c_str(), mode, &info));
#else
    return SoundFile(sf_open(path.c_str(), mode, &info));
#endif
}

std::string soundFileError(SNDFILE* file) {
    std::string text = sf_strerror(file);
    while (text.ends_with('.') || text.ends_with(' '))
        text.pop_back();
    return text;
}
