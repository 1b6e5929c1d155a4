// SPDX-License-Identifier: GPL-3.0-or-later
//
// A recorded kick drum, played four bars long.

#pragma once

#include <filesystem>
#include <vector>

/// Mono samples at Pattern::sampleRate, Pattern::frameCount() of them. `kit` is a folder with
/// recordings "Kick-Soft", "Kick-Med", "Kick-Hard" and "Kick-Hardest" (.wav or .flac, mono or
/// stereo) at that rate. Throws HostError when one is missing or unfit. [message thread]
std::vector<float> kickPattern(const std::filesystem::path& kit);
