# SPDX-License-Identifier: GPL-3.0-or-later
"""The family's colours: sRGB, 0 to 1. Change one here and call art/make surfaces."""


def rgb(red, green, blue):
    """A colour from its usual numbers, 0 to 255."""
    return (red / 255, green / 255, blue / 255)


# Inlaid and printed lines on dark metal, and the same on light metal.
IVORY = rgb(236, 232, 220)
INK = rgb(34, 36, 40)

# The accent of signs and lit pictures, calmer than the traces' pure green.
GREEN_ON_DARK = rgb(84, 194, 122)
GREEN_ON_LIGHT = rgb(22, 116, 66)

# Brushed panels: mean grey, and the tint of all metal, which is a trace cooler than grey.
PANEL_DARK = 0.238
PANEL_LIGHT = 0.665
METAL_TINT = (0.985, 1.0, 1.026)

# Black anodised metal, and the satin caps of buttons. A cap carries white or black text, whichever
# stands out from the panel, and so is as far from the one as from the other.
ANODISED = rgb(38, 40, 43)
CAP = rgb(116, 118, 121)
CAP_PRESSED = rgb(121, 123, 126)
CAPS_LIT = {
    "Red": rgb(190, 56, 46),
    "Blue": rgb(78, 138, 206),
    "Green": rgb(72, 174, 96),
    "Yellow": rgb(222, 184, 66),
}

# Glass of displays: its depth at the top and the bottom, and what is etched into it.
GLASS_TOP = rgb(9, 12, 15)
GLASS_BOTTOM = rgb(20, 25, 30)
ETCHING = rgb(150, 176, 198)
