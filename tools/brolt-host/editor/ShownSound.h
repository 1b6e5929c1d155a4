// SPDX-License-Identifier: GPL-3.0-or-later
//
// A view's displays after some sound. It takes as long as the sound: displays show when things
// happened, by the clock.

#pragma once

#include "tools/brolt-host/RenderPlan.h"
#include "tools/brolt-host/Renderer.h"
#include "tools/brolt-host/editor/EditorView.h"
#include "tools/brolt-host/editor/LoopedInput.h"

#include <optional>

/// Runs the input through the renderer once, all of it or its first seconds, and lets the view's
/// displays follow after each 30 ms of sound and at its end. The renderer must be made for the plan
/// and the input. Throws HostError and Interrupted. [message thread]
void playToView(EditorView& view, Renderer& renderer, LoopedInput input, const RenderPlan& plan,
                const std::optional<double>& seconds);
