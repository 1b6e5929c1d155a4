// SPDX-License-Identifier: GPL-3.0-or-later
// Which links that come from outside may go to the user's browser.
#pragma once

#include <string_view>

namespace QM {

/// Whether a text is a complete address of the web, http or https with a host, and is made of the
/// characters of one alone. A dollar sign, which addresses may have, is refused as well: on Linux
/// the toolkit hands an address to a shell, between double quotes, where that would begin a
/// command. [any thread]
[[nodiscard]] bool isWebLink(std::string_view link);

} // namespace QM
