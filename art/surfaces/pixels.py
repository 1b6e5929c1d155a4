# SPDX-License-Identifier: GPL-3.0-or-later
"""Pictures as arrays: masks drawn with cairo, layers laid over each other, blur and distance.

A layer is height x width x 4, floats, premultiplied, so that laying over and averaging are sums.
"""

import cairo
import numpy as np

FINENESS = 4  # samples per pixel and direction of what cairo draws


def mask(width, height, draw, fineness=FINENESS):
    """How much of each pixel draw(context) covers, 0 to 1."""
    surface = cairo.ImageSurface(cairo.FORMAT_A8, width * fineness, height * fineness)
    context = cairo.Context(surface)
    context.scale(fineness, fineness)
    context.set_antialias(cairo.ANTIALIAS_BEST)
    options = cairo.FontOptions()
    options.set_hint_style(cairo.HINT_STYLE_NONE)
    options.set_hint_metrics(cairo.HINT_METRICS_OFF)
    context.set_font_options(options)
    draw(context)
    surface.flush()
    stride = surface.get_stride()
    rows = np.frombuffer(surface.get_data(), np.uint8).reshape(height * fineness, stride)
    return averaged(rows[:, : width * fineness] / 255.0, fineness)


def averaged(samples, fineness):
    """The samples of an array fineness times as large, averaged into pixels."""
    height, width = samples.shape[0] // fineness, samples.shape[1] // fineness
    cells = samples.reshape(height, fineness, width, fineness, *samples.shape[2:])
    return cells.mean(axis=(1, 3))


def layer(coverage, colour):
    """A layer of a colour, or of an array of colours, where the coverage lets it."""
    colours = np.broadcast_to(np.asarray(colour, float), coverage.shape + (3,))
    return np.dstack([colours * coverage[..., None], coverage])


def lay(*layers):
    """The layers over each other, the first one at the bottom."""
    result = layers[0]
    for upper in layers[1:]:
        result = upper + result * (1 - upper[..., 3:])
    return result


def blurred(values, sigma):
    """Gaussian blur; beyond the border there is nothing."""
    reach = max(1, int(np.ceil(3 * sigma)))
    kernel = np.exp(-0.5 * (np.arange(-reach, reach + 1) / sigma) ** 2)
    kernel /= kernel.sum()
    for axis in (0, 1):
        padding = [(0, 0), (0, 0)]
        padding[axis] = (reach, reach)
        padded = np.pad(values, padding)
        length = values.shape[axis]
        values = sum(weight * padded.take(range(k, k + length), axis)
                     for k, weight in enumerate(kernel))
    return values


def shifted(values, right, down):
    """The values moved by whole pixels; what comes in is 0."""
    result = np.zeros_like(values)
    height, width = values.shape[:2]
    top, left = max(0, down), max(0, right)
    bottom, end = min(height, height + down), min(width, width + right)
    result[top:bottom, left:end] = values[top - down : bottom - down, left - right : end - right]
    return result


def depth(inside, reach):
    """Distance of each pixel of a shape to its outside, in pixels, at most reach."""
    along = np.where(inside, float(reach), 0.0)
    for _ in range(2):  # from the top, then from the bottom
        for row in range(1, len(along)):
            np.minimum(along[row], along[row - 1] + 1, out=along[row])
        along = along[::-1]
    squares = along**2
    result = squares.copy()
    for step in range(1, int(reach) + 1):
        for direction in (-step, step):
            # Beyond the border counts as inside: shapes do not touch it.
            moved = np.roll(squares, direction, axis=1) + step * step
            np.minimum(result, moved, out=result)
    return np.sqrt(np.minimum(result, reach * reach))


def rounded_box(x, y, width, height, radius):
    """Signed distance of points to a rounded box at the origin: negative inside."""
    across = np.abs(x - width / 2) - width / 2 + radius
    down = np.abs(y - height / 2) - height / 2 + radius
    outside = np.hypot(np.maximum(across, 0), np.maximum(down, 0))
    return outside + np.minimum(np.maximum(across, down), 0) - radius


def pixel_centres(width, height):
    """x and y of the centres of all pixels."""
    return np.meshgrid(np.arange(width) + 0.5, np.arange(height) + 0.5)


def step(values, edge, softness):
    """0 below the edge, 1 above, smooth over the softness around it."""
    t = np.clip((values - edge) / softness + 0.5, 0, 1)
    return t * t * (3 - 2 * t)


def mixed(first, second, share):
    """Between two numbers, colours or arrays; share 0 is the first."""
    share = np.asarray(share, float)
    if share.ndim and np.ndim(first) == 1:
        share = share[..., None]
    return np.asarray(first, float) * (1 - share) + np.asarray(second, float) * share
