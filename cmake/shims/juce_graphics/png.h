// SPDX-License-Identifier: GPL-3.0-or-later
//
// libpng's header as juce_graphics has to see it; nothing else finds this folder. Debian builds
// that module against the system's libpng, and its error callback then ends in
// setjmp(png_jmpbuf(p)): it marks a place to return to where it ought to return to one, libpng gets
// control back in the midst of an error, and the process dies over one damaged picture. JUCE itself
// hands its own jump buffer to libpng as the error pointer, so that png_jmpbuf, of which the
// callback is the only user, can do the jump. Included inside a namespace and extern "C".

#pragma once

#include_next <png.h>

inline jmp_buf* broltJumpOutOfPng(png_const_structrp png) {
    auto* const place = static_cast<jmp_buf*>(png_get_error_ptr(png));
    longjmp(*place, 1);
    return place;
}

#undef png_jmpbuf
#define png_jmpbuf(png) (*broltJumpOutOfPng(png))
