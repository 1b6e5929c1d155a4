// SPDX-License-Identifier: GPL-3.0-or-later
// The engineering display shared by continuous parameters: "1k", "0.5m", "440 Hz".
#pragma once

#include <cstddef>

struct NoxPlugInParameter;

namespace QM {

/// Value without unit: "%gk" from 1000, "%g" above 0.001, "%gm" above 1e-6, "%gµ" below, "0" for
/// zero. The prefix is chosen by magnitude; the text is cut to the buffer. [any thread]
void formatEngineering(const NoxPlugInParameter& parameter, double value, char* buffer,
                       std::size_t size);

/// The same with the parameter's unit behind a blank: "%g k%s", "%g %s", "%g m%s". The micro form
/// has no blank ("%gµ%s"): sessions and presets of users show it that way, so it stays.
/// [any thread]
void formatEngineeringWithUnit(const NoxPlugInParameter& parameter, double value, char* buffer,
                               std::size_t size);

} // namespace QM
