// SPDX-License-Identifier: GPL-3.0-or-later
//
// The X library's headers. Their short macros would damage whatever is included behind them; the
// ones that others use as names are taken back here.

#pragma once

#ifndef _WIN32

#    include <X11/Xatom.h>
#    include <X11/Xlib.h>
#    include <X11/Xutil.h>

#    undef Bool
#    undef None
#    undef Status
#    undef Success

#endif
