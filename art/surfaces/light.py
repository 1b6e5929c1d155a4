# SPDX-License-Identifier: GPL-3.0-or-later
"""The one light of the family, and what it makes of a surface given by its height.

The key light stands at 11 o'clock, 50 degrees above the panel; a weak cool one fills from below
right. A surface that lies flat has the shade 1.
"""

from math import cos, radians, sin

import numpy as np

from pixels import blurred, layer, shifted

CLOCK = radians(30)  # from the top towards the left
ELEVATION = radians(50)
KEY = np.array([-sin(CLOCK) * cos(ELEVATION), -cos(CLOCK) * cos(ELEVATION), sin(ELEVATION)])
FILL = np.array([0.45, 0.65, 0.61])
AMBIENT = 0.3
FILL_STRENGTH = 0.16


def normals(height):
    """Of a surface whose height is in pixels; x to the right, y down, z to the eye."""
    down, right = np.gradient(height)
    steepness = np.sqrt(right**2 + down**2 + 1)
    return np.dstack([-right, -down, np.ones_like(height)]) / steepness[..., None]


def shade(height):
    """Brightness of a matt surface."""
    facing = normals(height)
    key = np.clip(facing @ KEY, 0, None) / KEY[2]
    fill = np.clip(facing @ FILL, 0, None) / FILL[2]
    return AMBIENT + (1 - AMBIENT - FILL_STRENGTH) * key + FILL_STRENGTH * fill


def gloss(height, sharpness):
    """Strength of the reflection of the key light, 0 to 1."""
    half = KEY + np.array([0, 0, 1])
    half /= np.linalg.norm(half)
    return np.clip(normals(height) @ half, 0, 1) ** sharpness


def shadow(coverage, rise, softness, opacity):
    """The shadow of a shape that stands off its ground by some pixels."""
    right = round(rise * sin(CLOCK))
    down = round(rise * cos(CLOCK))
    return layer(opacity * blurred(shifted(coverage, right, down), softness), (0, 0, 0))
