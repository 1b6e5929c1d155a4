// SPDX-License-Identifier: GPL-3.0-or-later
//
// The info command: what the product is, and what its plug-in says of itself.

#pragma once

#include "tools/brolt-host/CommandLine.h"

/// Prints the product, then the plug-in in the form that is asked for. Answers the program's exit
/// status. Throws HostError when the plug-in cannot be loaded; the product is printed by then.
/// [message thread]
int runInfoCommand(const InfoOptions& options);
