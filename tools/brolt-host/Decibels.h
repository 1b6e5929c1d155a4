// SPDX-License-Identifier: GPL-3.0-or-later
//
// Levels as people read them.

#pragma once

#include <string>

/// 20 log10 of a linear amplitude; minus infinity for 0. [any thread]
double decibels(double linear);

/// [any thread]
double linearFromDecibels(double level);

/// A peak with one decimal: "-3.1 dBFS", "silence" for 0, "not a number" for that. [any thread]
std::string peakText(double linear);
