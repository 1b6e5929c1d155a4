// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/PngFile.h"

#include "tools/brolt-host/HostError.h"

#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STB_IMAGE_WRITE_STATIC
#define STBI_WRITE_NO_STDIO
#include <stb/stb_image_write.h>

#include <cerrno>
#include <fstream>

namespace {

void writeToStream(void* stream, void* data, int size) {
    static_cast<std::ofstream*>(stream)->write(static_cast<const char*>(data), size);
}

} // namespace

void writePngFile(const std::filesystem::path& file, int width, int height,
                  const std::vector<std::uint8_t>& pixels) {
    constexpr int colours = 3;
    errno = 0;
    std::ofstream stream(file, std::ios::binary);
    const int made = stbi_write_png_to_func(writeToStream, &stream, width, height, colours,
                                            pixels.data(), width * colours);
    stream.close();
    if (made == 0 || !stream)
        throw HostError::ofFile(file, errno != 0 ? errno : EIO);
}
