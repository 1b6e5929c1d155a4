// SPDX-License-Identifier: GPL-3.0-or-later
// How the reply of the maker's service is got: over the network, or whatever a test puts in its
// place.
#pragma once

#include "services/update/UpdateRequest.h"

#include <functional>
#include <optional>
#include <stop_token>
#include <string>

/// Called on a thread of its own, once for each question. Returns the text of the reply, as it
/// came, nothing where there is none. Asked to stop, it returns as soon as it can.
using UpdateFetch = std::function<std::optional<std::string>(const QM::UpdateParameters& parameters,
                                                             const std::stop_token& stop)>;
