// SPDX-License-Identifier: GPL-3.0-or-later
// Reading back what users type for a value and what the engineering display shows of one.
#pragma once

#include <optional>
#include <string_view>

namespace QM {

/// The number at the beginning of a text, in plain units: "440", "-0,5", "1.5k", "20 m", "3µ". A
/// decimal comma counts as a point. One of the prefixes k (or K), M, m, µ (or u) may follow, blanks
/// between; whatever comes after is left alone. Nothing when the text begins with no number or the
/// number is beyond a double. The locale does not matter. [any thread]
[[nodiscard]] std::optional<double> parseValueText(std::string_view text);

} // namespace QM
