// SPDX-License-Identifier: GPL-3.0-or-later
//
// Writes pictures.

#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

/// A PNG file of a picture with rows from the top and three bytes (red, green, blue) a pixel.
/// Throws HostError when it cannot be written. The file is written as it stands: give a
/// ReplacedFile's temporary path. [message thread]
void writePngFile(const std::filesystem::path& file, int width, int height,
                  const std::vector<std::uint8_t>& pixels);
