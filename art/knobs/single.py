# SPDX-License-Identifier: GPL-3.0-or-later
# single.py NAME FOLDER OUTPUT.png
#
# Puts the cap or the bezel of controls.py over its shadow, the bezel's glass into its opening, and
# writes the picture.
import os
import sys

import numpy
from PIL import Image

import pictures

SHADOW = 0.70  # alpha where no light arrives
SHADOW_IN_OPENING = 0.45  # weaker: a lamp shines through it
SHADOW_BLUR = 1.6  # pixels
FADE = 0.08  # part of a side over which the shadow ends
REFLECTION = 0.13  # alpha of white, at the top of the glass
GLASS = 0.66  # its radius, of half the side


def _shadow(light, strength):
    height, width = light.shape
    edge = numpy.minimum.outer(pictures.border(height, FADE), pictures.border(width, FADE))
    return strength * edge * numpy.clip(1.0 - pictures.blur(light, SHADOW_BLUR), 0.0, 1.0)


def faderknob(body, light):
    alpha = numpy.clip(body[:, :, 3], 0.0, 1.0)
    dark = _shadow(light, SHADOW) * (1.0 - alpha)
    return pictures.over_shadow(pictures.developed(body[:, :, :3], alpha), alpha, dark)


def _reflection(x, y):
    """A window's light in the upper part of the glass: bright at its edge, bounded below by a wide
    curve."""
    inside = 1.0 - pictures.smooth_step(numpy.hypot(x, y), GLASS - 0.05, GLASS)
    above = pictures.smooth_step(numpy.hypot(x, y + 1.05), 1.02, 1.12)
    rise = pictures.smooth_step(y, -0.10, GLASS)
    return REFLECTION * inside * above * rise


def pushbutton(body, light):
    side = body.shape[0]
    places = (numpy.arange(side) + 0.5) / side * 2.0 - 1.0
    x, y = numpy.meshgrid(places, -places)
    alpha = numpy.clip(body[:, :, 3], 0.0, 1.0)
    open_part = numpy.hypot(x, y) < 0.8
    dark = _shadow(light, numpy.where(open_part, SHADOW_IN_OPENING, SHADOW)) * (1.0 - alpha)
    white = _reflection(x, y) * (1.0 - alpha)
    # The ring and the reflection together, both above the shadow.
    colour = pictures.developed(body[:, :, :3], alpha)
    above = alpha + white
    colour = colour * alpha[:, :, None] + white[:, :, None]
    colour = colour / numpy.maximum(above, 1e-4)[:, :, None]
    return pictures.over_shadow(colour, above, dark * (1.0 - white))


def main(name, folder, output):
    body = numpy.load(os.path.join(folder, name + ".body.npy"))
    light = numpy.load(os.path.join(folder, name + ".light.npy"))
    image = {"faderknob": faderknob, "pushbutton": pushbutton}[name](body, light)
    Image.fromarray(image, "RGBA").save(output, optimize=True)


main(*sys.argv[1:])
