// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures that are part of the library itself: an editor has them even where the bundle has lost
// its files. The build makes the bytes from brolt/editor/images/. [any thread]
#pragma once

#include <span>

namespace QMBrolt {

/// The product's logo for dark panels; a whole PNG file.
[[nodiscard]] std::span<const unsigned char> logoPng();

/// What lies behind the traces of the pitch history; a whole PNG file.
[[nodiscard]] std::span<const unsigned char> historyBackdropPng();

} // namespace QMBrolt
