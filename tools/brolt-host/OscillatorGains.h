// SPDX-License-Identifier: GPL-3.0-or-later
//
// How loud the oscillators are set, for the picture of a render.

#pragma once

#include "tools/brolt-host/Renderer.h"

#include <array>

/// Mix gains of both oscillators as linear factors, 0 for one that is disabled. [message thread]
std::array<double, 2> oscillatorGains(const Renderer& renderer);
