// SPDX-License-Identifier: GPL-3.0-or-later
// The question on its way over the network: a form posted through the toolkit's stream, which is
// the system's own HTTP client.
#pragma once

#include "services/update/UpdateRequest.h"

#include <optional>
#include <stop_token>
#include <string>

/// Posts a form and returns the body of the reply; nothing where the address cannot be reached, the
/// reply is not a plain success or larger than an update reply may be, ten seconds have passed, or
/// it is asked to stop. Asked to stop, it returns in about a second, later where the system looks
/// up the host's name, which nothing can interrupt. [any thread but message and audio]
[[nodiscard]] std::optional<std::string> postToService(const std::string& address,
                                                       const QM::UpdateParameters& parameters,
                                                       const std::stop_token& stop);
