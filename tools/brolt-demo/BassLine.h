// SPDX-License-Identifier: GPL-3.0-or-later
//
// A bass line made of nothing: plucked notes with falling overtones, in stereo, four bars long. Its
// notes are high for a bass, so that there is something to put under them.

#pragma once

#include <vector>

/// Two channels, interleaved, at Pattern::sampleRate, Pattern::frameCount() frames of them.
/// [any thread]
std::vector<float> bassLine();
