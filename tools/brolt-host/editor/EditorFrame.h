// SPDX-License-Identifier: GPL-3.0-or-later
//
// A view in a window: attached for as long as this object lives. Also the frame through which the
// view asks for another size, and on Linux for the host's run loop.

#pragma once

#include "tools/brolt-host/editor/EditorView.h"
#include "tools/brolt-host/editor/EditorWindow.h"
#include "tools/brolt-host/vst3/HostMessages.h"

#include <pluginterfaces/base/funknownimpl.h>

using EditorFrameBase =
    Steinberg::U::ImplementsNonDestroyable<Steinberg::U::Directly<Steinberg::IPlugFrame>>;

class EditorFrame : public EditorFrameBase, private IEditorWindowListener {
public:
    /// Attaches the view to the window, which has the view's size, and shows the window. Window and
    /// messages must outlive this object. Throws HostError when the view refuses. [message thread]
    EditorFrame(EditorView editorView, EditorWindow& editorWindow, HostMessages& hostMessages);

    /// Takes the view out of the window and lets go of it. [message thread]
    ~EditorFrame() override;

    EditorFrame(const EditorFrame&) = delete;
    EditorFrame& operator=(const EditorFrame&) = delete;

    /// Resizes the window and then, unless it has that size already, the view.
    Steinberg::tresult PLUGIN_API resizeView(Steinberg::IPlugView* whose,
                                             Steinberg::ViewRect* wanted) override;

    /// On Linux the run loop as well.
    Steinberg::tresult PLUGIN_API queryInterface(const Steinberg::TUID interfaceID,
                                                 void** object) override;

private:
    void attach();
    [[nodiscard]] bool viewHas(ViewSize size) const;

    ViewSize possibleSize(ViewSize wanted) override;
    void contentResized(ViewSize size) override;

    EditorView view;
    EditorWindow& window;
    HostMessages& messages;
    bool isResizing = false;
};
