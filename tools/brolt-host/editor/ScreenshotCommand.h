// SPDX-License-Identifier: GPL-3.0-or-later
//
// The screenshot command: a picture of the plug-in's editor without any window.

#pragma once

#include "tools/brolt-host/editor/EditorOptions.h"

/// Writes the picture and prints its size. Answers the program's exit status. Throws HostError and
/// Interrupted; the file is as it was then. [message thread]
int runScreenshotCommand(const ScreenshotOptions& options);
