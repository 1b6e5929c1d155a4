// SPDX-License-Identifier: GPL-3.0-or-later
// What hosts sort plug-ins by in their menus.
#pragma once

#include <cstdint>
#include <string>

/// "Instrument" or "Fx" and what else a type's category bits say, joined by "|". [any thread]
[[nodiscard]] std::string vst3SubCategories(std::uint32_t categoryBits);
