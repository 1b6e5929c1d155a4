// SPDX-License-Identifier: GPL-3.0-or-later
//
// libjpeg's header as juce_graphics has to see it; nothing else finds this folder. JUCE includes it
// inside a namespace and expects that namespace to have a type boolean. Where Windows' headers have
// declared one already, libjpeg's takes theirs, which is the same byte, and declares none.

#pragma once

#ifdef __RPCNDR_H__
using ::boolean;
#endif

#include_next <jpeglib.h>
