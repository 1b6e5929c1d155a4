# SPDX-License-Identifier: GPL-3.0-or-later
# sheet.py NAME FOLDER OUTPUT.webp
#
# Puts the knobs of render.py and their shadow together, inlays the lines, looks whether the strip
# is fit for use, and writes it.
import os
import subprocess
import sys

import numpy
from PIL import Image

import checks
import lines
import pictures
import strips

SHADOW = 0.70  # alpha where no light arrives
SHADOW_BLUR = 2.0  # pixels
FADE = 0.76, 0.97  # where the shadow ends, of half a frame's side
NOISE_OF_COLOUR = 4.0 / 255.0  # differences of this size are smoothed away
NOISE = 3.0  # levels of 255, of a pixel at an edge
# Levels: where pictures differ by less they stand still, where by more they move.
CHANGE = 0.6, 1.5


def cells(sheet, count):
    """The pictures of a sheet, by number."""
    columns = min(strips.COLUMNS, count)
    size = sheet.shape[1] // columns
    grid = sheet.reshape(-1, size, columns, size, sheet.shape[2]).swapaxes(1, 2)
    return grid.reshape(-1, size, size, sheet.shape[2])[:count].copy()


def _levels(linear):
    """About what they are in sRGB, of 255."""
    return 255.0 * numpy.sqrt(numpy.maximum(linear, 0.0))


def settled(body):
    """Where a knob differs from what most show there by no more than noise, it gets that: what does
    not turn stands quite still, and is stored once."""
    usual = numpy.median(body, axis=0)
    usual_levels = _levels(usual)
    for picture in body:
        differs = _levels(picture) - usual_levels
        # Noise cancels itself out in the neighbourhood, a change does not.
        change = numpy.abs(pictures.blur(differs, 1.5))
        strong = pictures.blur(numpy.abs(differs), 1.5) - NOISE
        change = numpy.maximum(change, strong).max(axis=2)
        moves = pictures.smooth_step(change, *CHANGE)[:, :, None]
        picture += (1.0 - moves) * (usual - picture)
    return body


def one_outline(body):
    """Every knob within the same outline: the noise of its edge would else be of 271 kinds."""
    usual = numpy.median(body[:, :, :, 3], axis=0)
    for picture in body:
        picture[:, :, :3] *= (usual / numpy.maximum(picture[:, :, 3], 1e-4))[:, :, None]
        picture[:, :, 3] = usual
    return body


def shadow(light, size):
    """The shadow's alpha, one for all frames: 0 before the border, so that none bleeds into the
    next frame, and in a circle, so that no square is seen."""
    usual = numpy.median(light.reshape(-1, size, size), axis=0)
    dark = numpy.clip(1.0 - pictures.blur(usual, SHADOW_BLUR), 0.0, 1.0)
    places = (numpy.arange(size) + 0.5) / size * 2.0 - 1.0
    return SHADOW * dark * (1.0 - pictures.smooth_step(numpy.hypot.outer(places, places), *FADE))


def frames(strip, folder, name):
    """Each frame's bytes, and the knob's alpha without its shadow."""
    body = cells(numpy.load(os.path.join(folder, name + ".body.npy")), len(strip.photographs()))
    if strip.flutes == 0:
        body = settled(one_outline(body))
    dark = shadow(numpy.load(os.path.join(folder, name + ".light.npy")), strip.pixels)
    radius = 0.5 * strip.pixels * strips.BODY
    for frame in range(strip.frames):
        picture = body[strip.photograph(frame)]
        alpha = numpy.clip(picture[:, :, 3], 0.0, 1.0)
        colour = pictures.calmed(pictures.developed(picture[:, :, :3], alpha), NOISE_OF_COLOUR)
        if strip.line:
            colour = lines.inlay(colour, strip.line, strip.angle(frame), radius)
        yield pictures.over_shadow(colour, alpha, dark * (1.0 - alpha)), alpha


def main(name, folder, output):
    strip = strips.STRIPS[name]
    size = strip.pixels
    sheet = numpy.zeros((strips.ROWS * size, strips.COLUMNS * size, 4), dtype=numpy.uint8)
    offsets = []
    for frame, (picture, alpha) in enumerate(frames(strip, folder, name)):
        offsets.append(checks.offset(alpha))
        row, column = divmod(frame, strips.COLUMNS)
        sheet[row * size:(row + 1) * size, column * size:(column + 1) * size] = picture
    checks.run(name, strip, sheet, offsets)
    plain = os.path.join(folder, name + ".png")
    Image.fromarray(sheet, "RGBA").save(plain, compress_level=1)
    subprocess.run(["cwebp", "-quiet", "-lossless", "-m", "6", "-q", "100", plain, "-o", output],
                   check=True)
    os.remove(plain)


main(*sys.argv[1:])
