# SPDX-License-Identifier: GPL-3.0-or-later
# blender -b -P render.py -- NAME FOLDER SAMPLES [PIXELS EVERY]
#
# Photographs the knobs of one strip, all at once, and the light that reaches the panel below some
# of them, as arrays of numbers for sheet.py. SAMPLES are a pixel's. To look at a few knobs: PIXELS
# are those of a frame's side, EVERY leaves angles out.
import math
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import numpy

import knobs
import stage
import strips

CELL = 2.0 / strips.BODY  # a frame's side, in knob radii
SHADOW_SAMPLES = 1024  # of a pixel, in all angles together
MARGIN = 1  # rows and columns of knobs outside the picture, so that each knob has neighbours


def arrange(parts, angles, columns, rows):
    """A knob in every cell, those without an angle at rest."""
    placed = []
    for row in range(-MARGIN, rows + MARGIN):
        for column in range(-MARGIN, columns + MARGIN):
            inside = 0 <= row < rows and 0 <= column < columns
            index = row * columns + column
            turn = angles[index] if inside and index < len(angles) else 0.0
            where = ((column + 0.5 - columns / 2) * CELL, (rows / 2 - row - 0.5) * CELL, 0.0)
            placed += [stage.place(part, where, turn) for part in parts]
    return placed


def main(name, folder, samples, pixels=0, every=1):
    stage.clear()
    strip = strips.STRIPS[name]
    pixels = pixels or strip.pixels
    angles = strip.photographs()[::every]
    columns = min(strips.COLUMNS, len(angles))
    rows = math.ceil(len(angles) / columns)
    placed = arrange(knobs.MODELS[strip.model](), angles, columns, rows)
    stage.light()
    stage.camera(columns * CELL, rows * CELL)
    numpy.save(os.path.join(folder, name + ".body.npy"),
               stage.shoot(columns * pixels, rows * pixels, samples))
    # The shadow is that of what does not turn, found in knobs that stand at all angles.
    stage.camera(CELL, rows * CELL, (0.5 * (1 - columns) * CELL, 0.0))
    light = stage.shadow(placed, pixels, rows * pixels, max(64, SHADOW_SAMPLES // rows))
    numpy.save(os.path.join(folder, name + ".light.npy"), light)


arguments = sys.argv[sys.argv.index("--") + 1:]
main(arguments[0], arguments[1], *map(int, arguments[2:]))
