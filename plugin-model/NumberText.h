// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers as text, the same under every locale: a host may switch the process to decimal commas,
// and a value text must still read "0.5".
#pragma once

#include <string>

namespace QM {

/// The text that "%.<significantDigits>g" gives in the C locale. [any thread]
std::string numberText(double value, int significantDigits = 6);

} // namespace QM
