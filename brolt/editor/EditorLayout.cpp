// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/editor/EditorLayout.h"

#include <array>

namespace {

// Design units. The areas of the help button and the size selector are kept free: products of the
// family that have these widgets have them there.
//
// A single meter stands between two scales, a scale between two meters.
// clang-format off
constexpr std::array<ZulControlAreaDescriptor, 37> mono{{
    //                    top  left width height
    {fourCharCode("bkgd"),   0,   0, 220, 679},
    {fourCharCode("bkgd"),   0, 220, 270, 290},
    {fourCharCode("bkgd"),   0, 490, 285, 290},
    {fourCharCode("bkgd"), 290, 220, 555, 236},
    {fourCharCode("bkgd"), 526, 220, 555, 153},
    {fourCharCode("logo"), 546, 251, 492, 108},
    {fourCharCode("UPDT"), 663, 436, 255,  12},
    {fourCharCode("foll"),  12, 265, 180,  16},
    {fourCharCode("outl"),  12, 490, 285,  16},
    {fourCharCode("osl1"),  12,  20,  80,  16},
    {fourCharCode("osl2"),  12, 120,  80,  16},
    {fourCharCode("envl"),  36, 241,  16, 124},
    {fourCharCode("pitl"), 156, 241,  16, 124},
    {fourCharCode("wndl"), 306, 246, 502,  16},
    {fourCharCode("wind"), 330, 246, 502, 173},
    {fourCharCode("mg1L"), 380,  10, 100,  12},
    {fourCharCode("mg2L"), 380, 110, 100,  12},
    {fourCharCode("afre"),  60,  20,  80, 100},
    {fourCharCode("sfre"), 180,  20,  80, 100},
    {fourCharCode("osc1"), 276,  30,  60,  60},
    {fourCharCode("mgan"), 360,  20,  80, 304},
    {fourCharCode("dafr"),  60, 120,  80, 100},
    {fourCharCode("dsfr"), 180, 120,  80, 100},
    {fourCharCode("osc2"), 276, 130,  60,  60},
    {fourCharCode("dmgn"), 360, 120,  80, 304},
    {fourCharCode("attk"),  60, 265,  80, 100},
    {fourCharCode("rlse"),  60, 365,  80, 100},
    {fourCharCode("patt"), 180, 265,  80, 100},
    {fourCharCode("prls"), 180, 365,  80, 100},
    {fourCharCode("wetd"),  60, 545,  80, 100},
    {fourCharCode("gain"), 180, 545,  80, 100},
    {fourCharCode("help"), 264, 674,  21,  21},
    {fourCharCode("smlB"), 264, 699,  21,  21},
    {fourCharCode("mtcb"),  36, 673,  20, 220},
    {fourCharCode("mtcb"),  36, 701,  20, 220},
    {fourCharCode("metr"),  36, 690,  14, 220},
    {},
}};

constexpr std::array<ZulControlAreaDescriptor, 37> stereo{{
    //                    top  left width height
    {fourCharCode("bkgd"),   0,   0, 220, 679},
    {fourCharCode("bkgd"),   0, 220, 270, 290},
    {fourCharCode("bkgd"),   0, 490, 285, 290},
    {fourCharCode("bkgd"), 290, 220, 555, 236},
    {fourCharCode("bkgd"), 526, 220, 555, 153},
    {fourCharCode("logo"), 546, 251, 492, 108},
    {fourCharCode("UPDT"), 663, 436, 255,  12},
    {fourCharCode("osl1"),  12,  20,  80,  16},
    {fourCharCode("osl2"),  12, 120,  80,  16},
    {fourCharCode("foll"),  12, 265, 180,  16},
    {fourCharCode("outl"),  12, 490, 285,  16},
    {fourCharCode("envl"),  36, 241,  16, 124},
    {fourCharCode("pitl"), 156, 241,  16, 124},
    {fourCharCode("wndl"), 306, 246, 502,  16},
    {fourCharCode("wind"), 330, 246, 502, 173},
    {fourCharCode("mg1L"), 380,  10, 100,  12},
    {fourCharCode("mg2L"), 380, 110, 100,  12},
    {fourCharCode("afre"),  60,  20,  80, 100},
    {fourCharCode("sfre"), 180,  20,  80, 100},
    {fourCharCode("osc1"), 276,  30,  60,  60},
    {fourCharCode("mgan"), 360,  20,  80, 304},
    {fourCharCode("dafr"),  60, 120,  80, 100},
    {fourCharCode("dsfr"), 180, 120,  80, 100},
    {fourCharCode("osc2"), 276, 130,  60,  60},
    {fourCharCode("dmgn"), 360, 120,  80, 304},
    {fourCharCode("attk"),  60, 265,  80, 100},
    {fourCharCode("rlse"),  60, 365,  80, 100},
    {fourCharCode("patt"), 180, 265,  80, 100},
    {fourCharCode("prls"), 180, 365,  80, 100},
    {fourCharCode("wetd"),  60, 545,  80, 100},
    {fourCharCode("gain"), 180, 545,  80, 100},
    {fourCharCode("help"), 264, 674,  21,  21},
    {fourCharCode("smlB"), 264, 699,  21,  21},
    {fourCharCode("mtcb"),  36, 687,  20, 220},
    {fourCharCode("metr"),  36, 676,  14, 220},
    {fourCharCode("mtr2"),  36, 704,  14, 220},
    {},
}};
// clang-format on

static_assert(mono.back().widgetID == 0 && stereo.back().widgetID == 0);

} // namespace

std::span<const ZulControlAreaDescriptor> QMBrolt::monoLayout() {
    return mono;
}

std::span<const ZulControlAreaDescriptor> QMBrolt::stereoLayout() {
    return stereo;
}
