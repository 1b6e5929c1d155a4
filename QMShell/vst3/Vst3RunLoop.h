// SPDX-License-Identifier: GPL-3.0-or-later
// The run loop of a VST3 host on Linux, lent to the toolkit.
#pragma once

#include "QMShell/toolkit/IHostRunLoop.h"

#include <pluginterfaces/base/funknown.h>

#include <memory>

/// Null when the host's context offers none, and on Windows. [message thread]
std::shared_ptr<IHostRunLoop> runLoopOfHost(Steinberg::FUnknown* context);
