// SPDX-License-Identifier: GPL-3.0-or-later
//
// The view that a plug-in's edit controller makes, before and beside any window: its size, its
// form, pictures of it.

#pragma once

#include "QMShell/extensions/IQMEditorPicture.h"
#include "tools/brolt-host/editor/EditorOptions.h"
#include "tools/brolt-host/editor/ViewSize.h"

#include <pluginterfaces/gui/iplugview.h>
#include <pluginterfaces/vst/ivsteditcontroller.h>

#include <cstdint>
#include <vector>

class EditorView {
public:
    /// Throws HostError when the plug-in has no editor. [message thread]
    explicit EditorView(Steinberg::Vst::IEditController& controller);

    [[nodiscard]] Steinberg::IPlugView& plugView() const { return *view; }

    /// Form and size as the options say. To be called before there is a window. Throws HostError
    /// when the editor has no other ones. [message thread]
    void choose(const ViewOptions& options);

    /// Throws HostError for a size that no picture and no window has. [message thread]
    [[nodiscard]] ViewSize size() const;

    /// Lets the displays follow the sound once. Throws HostError. [message thread]
    void refreshDisplays();

    /// The whole view: rows from the top, red, green and blue a pixel. Throws HostError when the
    /// view does not draw without a window. [message thread]
    [[nodiscard]] std::vector<std::uint8_t> picture();

private:
    Steinberg::IPtr<Steinberg::IPlugView> view;
    Steinberg::IPtr<IQMEditorPicture> extension; ///< null in a view that is none of ours
};
