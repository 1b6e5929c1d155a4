// SPDX-License-Identifier: GPL-3.0-or-later
//
// The part of an embedder in the XEmbed protocol, as far as plug-ins rely on it: the embedded
// window is told that it is one, when its top-level window becomes active, and what is typed there.
// It maps itself.

#pragma once

#ifndef _WIN32

#    include "tools/brolt-host/editor/X11Screen.h"

class XEmbedding {
public:
    /// The screen must outlive this object. [message thread]
    XEmbedding(const X11Screen& screen, Window embedderWindow);

    /// Looks at an event of the embedder's before others do. [message thread]
    void handle(const XEvent& event);

private:
    void embed(Window window);
    void tellFocus(bool hasFocus);
    void forwardKey(const XEvent& event);
    void send(long message, long detail, long data1, long data2);

    Display* display;
    Atom messageType;
    Window embedder;
    Window embedded = 0; ///< 0 while there is none
};

#endif
