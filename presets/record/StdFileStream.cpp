// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/record/StdFileStream.h"

#include "presets/record/Utf8Path.h"

#include <filesystem>
#include <limits>
#include <system_error>

namespace fs = std::filesystem;

namespace {

std::FILE* openPlainFile(const std::string& text, const char* mode) {
    try {
        const fs::path path = pathFromUtf8(text);
        std::error_code error;
        const fs::file_status status = fs::status(path, error);
        if (fs::exists(status) && !fs::is_regular_file(status))
            return nullptr;
#ifdef _WIN32
        return _wfopen(path.c_str(),
                       std::wstring(mode, mode + std::char_traits<char>::length(mode)).c_str());
#else
        return std::fopen(path.c_str(), mode);
#endif
    } catch (const std::exception&) {
        return nullptr; // text that is no path
    }
}

} // namespace

StdFileStream::StdFileStream(std::FILE* handle)
    : file(handle) {}

StdFileStream::StdFileStream(const std::string& path, const char* mode)
    : file(openPlainFile(path, mode)) {}

bool StdFileStream::write(std::int32_t size, const void* bytes) {
    if (file == nullptr || size < 0)
        return true;
    const auto count = static_cast<std::size_t>(size);
    return std::fwrite(bytes, 1, count, file.get()) != count;
}

bool StdFileStream::read(std::int32_t size, void* destination) {
    if (file == nullptr || size < 0)
        return true;
    const auto count = static_cast<std::size_t>(size);
    return std::fread(destination, 1, count, file.get()) != count;
}

std::int32_t StdFileStream::tell() const {
    const long position = file != nullptr ? std::ftell(file.get()) : -1;
    return position <= std::numeric_limits<std::int32_t>::max()
               ? static_cast<std::int32_t>(position)
               : -1;
}

std::int32_t StdFileStream::size() const {
    const std::int32_t position = tell();
    if (position < 0 || std::fseek(file.get(), 0, SEEK_END) != 0)
        return -1;
    const std::int32_t end = tell();
    std::fseek(file.get(), position, SEEK_SET);
    return end;
}

std::int32_t StdFileStream::seek(std::int32_t position) {
    if (file != nullptr)
        std::fseek(file.get(), position, SEEK_SET);
    return tell();
}

bool StdFileStream::close() {
    if (file == nullptr)
        return true;
    const bool failed = std::ferror(file.get()) != 0;
    return std::fclose(file.release()) != 0 || failed;
}
