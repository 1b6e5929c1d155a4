// SPDX-License-Identifier: GPL-3.0-or-later
//
// The editor command: the plug-in's editor in a window, as workstations show it.

#pragma once

#include "tools/brolt-host/RenderPlan.h"
#include "tools/brolt-host/editor/EditorOptions.h"

/// What the shown instance starts from. Throws HostError. [message thread]
RenderPlan planOfView(const ViewOptions& options);

/// Shows the editor until it is closed. Answers the program's exit status. Throws HostError, also
/// where there is no screen, and Interrupted. [message thread]
int runEditorCommand(const EditorOptions& options);
