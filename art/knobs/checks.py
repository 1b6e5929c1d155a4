# SPDX-License-Identifier: GPL-3.0-or-later
# Whether a strip is fit for use: knobs in the middle of their frames, nothing over the border, and
# no frame brighter or darker than its neighbours. Ends the program where not.
import sys

import numpy

import strips

LARGEST_STEP = 0.5  # levels of 255 between neighbouring frames
LARGEST_FLICKER = 0.12  # levels between a frame and its neighbours' mean
LARGEST_OFFSET = 0.02  # pixels


def cell(sheet, frame, size):
    row, column = divmod(frame, strips.COLUMNS)
    return sheet[row * size:(row + 1) * size, column * size:(column + 1) * size]


def _brightness(strip, sheet):
    """The mean of each frame's knob."""
    places = numpy.arange(strip.pixels) + 0.5 - 0.5 * strip.pixels
    inside = numpy.hypot.outer(places, places) < 0.5 * strip.pixels * strips.BODY - 1.0
    weights = numpy.array([0.2126, 0.7152, 0.0722])
    return numpy.array([(cell(sheet, frame, strip.pixels)[inside][:, :3] @ weights).mean()
                        for frame in range(strip.frames)])


def offset(alpha):
    """How far the middle of a knob, without its shadow, is from its frame's, in pixels."""
    places = numpy.arange(alpha.shape[0]) + 0.5 - 0.5 * alpha.shape[0]
    return max(abs(alpha.sum(axis) @ places) for axis in (0, 1)) / alpha.sum()


def _at_border(strip, sheet):
    size = strip.pixels
    grid = sheet[:, :, 3]
    return max(grid[::size].max(), grid[size - 1::size].max(),
               grid[:, ::size].max(), grid[:, size - 1::size].max())


def run(name, strip, sheet, offsets):
    bright = _brightness(strip, sheet)
    step = numpy.abs(numpy.diff(bright)).max()
    flicker = numpy.abs(bright[1:-1] - 0.5 * (bright[:-2] + bright[2:])).max()
    largest_offset = max(offsets)
    print(f"{name}: brightness {bright.min():.2f} to {bright.max():.2f}, largest step {step:.3f}, "
          f"flicker {flicker:.3f}; off the middle by {largest_offset:.3f} pixels")
    if step > LARGEST_STEP or flicker > LARGEST_FLICKER:
        sys.exit(f"{name}: neighbouring frames are not equally bright")
    if largest_offset > LARGEST_OFFSET:
        sys.exit(f"{name}: a knob is not in the middle of its frame")
    if _at_border(strip, sheet) > 0:
        sys.exit(f"{name}: a frame's border is not transparent")
    for frame in range(strip.frames, strips.COLUMNS * strips.ROWS):
        if cell(sheet, frame, strip.pixels).any():
            sys.exit(f"{name}: an unused frame is not transparent")
