// SPDX-License-Identifier: GPL-3.0-or-later
//
// A top-level window on an X server.

#pragma once

#ifndef _WIN32

#    include "tools/brolt-host/editor/X11Screen.h"
#    include "tools/brolt-host/editor/XEmbedding.h"

#    include <pluginterfaces/base/funknownimpl.h>

class X11EditorWindow : public EditorWindow,
                        private Steinberg::U::ImplementsNonDestroyable<
                            Steinberg::U::Directly<Steinberg::Linux::IEventHandler>> {
public:
    /// Screen and messages must outlive the window. [message thread]
    X11EditorWindow(X11Screen& screen, HostMessages& hostMessages, const std::string& title,
                    ViewSize size, bool isResizable);
    ~X11EditorWindow() override;

    X11EditorWindow(const X11EditorWindow&) = delete;
    X11EditorWindow& operator=(const X11EditorWindow&) = delete;

    [[nodiscard]] void* nativeHandle() const override;
    [[nodiscard]] Steinberg::FIDString platformType() const override;
    void show(IEditorWindowListener* whom) override;
    void setContentSize(ViewSize size) override;
    void deliverEvents() override;

    [[nodiscard]] bool isCloseRequested() const override { return closeIsRequested; }

private:
    /// Of the connection, in the run loop.
    void PLUGIN_API onFDIsSet(int descriptor) override;

    [[nodiscard]] Window createWindow(ViewSize size) const;
    void setTitle(const X11Screen& screen, const std::string& title);
    void setProtocols();
    void setSizeHints(ViewSize size);
    void handle(const XEvent& event);
    void takeUserSize(ViewSize size);

    Display* display;
    HostMessages& messages;
    Atom protocols;
    Atom deleteWindow;
    bool isResizable;
    ViewSize contentSize;
    Window window;
    XEmbedding embedding;
    IEditorWindowListener* listener = nullptr;
    bool closeIsRequested = false;
};

#endif
