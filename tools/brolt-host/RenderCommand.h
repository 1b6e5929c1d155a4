// SPDX-License-Identifier: GPL-3.0-or-later
//
// The render command: understands its options and goes through its files.

#pragma once

#include "tools/brolt-host/CommandLine.h"
#include "tools/brolt-host/RenderPlan.h"

/// Which files to make of which. Throws HostError when the output folder is none, when two
/// results would be one file or one would take the place of an input. [message thread]
std::vector<RenderFiles> renderFilesOf(const RenderOptions& options);

/// Renders every file; one that fails is told and does not keep the others back. Answers the
/// program's exit status. Throws HostError for options that are wrong for all files, and
/// Interrupted. [message thread]
int runRenderCommand(const RenderOptions& options);
