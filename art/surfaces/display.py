# SPDX-License-Identifier: GPL-3.0-or-later
"""Dark displays behind glass: the empty one, and the pitch history's with its grid."""

import cairo
import numpy as np

import palette
from files import padded, png, save, save_layer, straight
from pixels import lay, layer, mask, mixed, pixel_centres, rounded_box, step
from quantising import reduced

WIDTH, HEIGHT = 502, 173  # design units
RADIUS = 5.0
EDGE, RIM = 1.0, 2.0  # of the panel around the display, of its metal rim

# The grid of the pitch history, in design units.
ZERO_LINE, TOP_LINE, TOP_HERTZ = 153.0, 20.0, 440
HERTZ_STEP, LABEL_STEP = 55, 110
SECONDS, SECONDS_STEP = 3.0, 0.5
LABELS = 24.0  # width of the column the labels stand in
LINE = 0.8

BACKDROP_SCALE = 3  # enough for 250 percent
BACKDROP_COLOURS = 256
BACKDROP_BYTES = 14086


def display(scale):
    """The glass with its rim. Every row is even from side to side, which keeps files small, and
    opaque but for those at the corners and the bottom, which makes drawing fast.
    """
    width, height = round(WIDTH * scale), round(HEIGHT * scale)
    x, y = pixel_centres(width, height)
    out = rounded_box(x, y, width, height, RADIUS * scale) / scale
    down = y / height
    soft = 1 / scale
    body = 1 - step(out, 0, soft)
    inner = 1 - step(out, -EDGE, soft)
    window = 1 - step(out, -EDGE - RIM, soft)
    return lay(
        layer(body * (1 - 0.9 * step(down, 0.965, 0.035)), mixed(0.025, 0.07, down)[..., None]),
        layer(body * 0.22 * step(down, 0.975, 0.03), (1, 1, 1)),
        layer(inner, mixed((0.075, 0.08, 0.085), (0.235, 0.245, 0.255), down**1.5)),
        layer(window, mixed(palette.GLASS_TOP, palette.GLASS_BOTTOM, down)),
    )


def glare(picture, scale):
    """Shadow below the rim and reflection on the glass, over whatever lies behind it."""
    height, width = picture.shape[:2]
    x, y = pixel_centres(width, height)
    out = rounded_box(x, y, width, height, RADIUS * scale) / scale
    window = 1 - step(out, -EDGE - RIM, 1 / scale)
    inside = np.clip(-out - EDGE - RIM, 0, None)
    under = np.clip(1 - inside / 7, 0, 1) ** 2 * mixed(0.7, 0.15, step(y / height, 0.4, 0.8))
    # Its lower edge is a shallow arc.
    arc = y / scale + 16 * ((x / width - 0.42) ** 2)
    reflection = mixed(0.075, 0.028, y / scale / 62) * (1 - step(arc, 62, 2.5))
    reflection = reflection * step(inside, 1.6, 1.6)
    return lay(
        picture,
        layer(window * under, (0, 0, 0)),
        layer(window * reflection, (0.9, 0.96, 1.0)),
    )


def line_of(hertz):
    """Height of a frequency in the display."""
    return ZERO_LINE + (TOP_LINE - ZERO_LINE) * hertz / TOP_HERTZ


def draw_grid(context, scale, strong):
    """Lines on whole pixels: those with a label, or those between."""
    left, right = LABELS, WIDTH - EDGE - RIM
    thickness = max(1, round(LINE * scale))
    for hertz in range(0, TOP_HERTZ + 1, HERTZ_STEP):
        if (hertz % LABEL_STEP == 0) == strong:
            y = round(line_of(hertz) * scale - thickness / 2)
            context.rectangle(left * scale, y, (right - left) * scale, thickness)
    for tick in range(1, round(SECONDS / SECONDS_STEP)):
        if (tick * SECONDS_STEP % 1 == 0) == strong:
            x = round((tick * SECONDS_STEP / SECONDS * (WIDTH - 1)) * scale - thickness / 2)
            context.rectangle(x, (EDGE + RIM) * scale, thickness,
                              (HEIGHT - 2 * (EDGE + RIM)) * scale)
    context.fill()


def draw_labels(context, scale):
    context.select_font_face("URW Gothic", cairo.FONT_SLANT_NORMAL, cairo.FONT_WEIGHT_NORMAL)
    context.set_font_size(8 * scale)
    labels = [(str(hertz), line_of(hertz)) for hertz in range(0, TOP_HERTZ + 1, LABEL_STEP)]
    labels.append(("Hz", ZERO_LINE + 10))
    for text, middle in labels:
        right = LABELS - 3.5
        box = context.text_extents(text)
        context.move_to(right * scale - box.x_advance, (middle + 2.9) * scale)
        context.text_path(text)
    context.fill()


def backdrop(scale):
    ground = display(scale)
    height, width = ground.shape[:2]
    etched = [
        layer(opacity * mask(width, height, draw), palette.ETCHING)
        for opacity, draw in (
            (0.10, lambda context: draw_grid(context, scale, False)),
            (0.20, lambda context: draw_grid(context, scale, True)),
            (0.70, lambda context: draw_labels(context, scale)),
        )
    ]
    return glare(lay(ground, *etched), scale)


def make(resources):
    save_layer(resources / "UI_DIsplayWindow.png", glare(display(2), 2))


def make_embedded(images):
    content = png(*reduced(straight(backdrop(BACKDROP_SCALE)), BACKDROP_COLOURS))
    save(images / "BroltHistoryBackdrop.png", padded(content, BACKDROP_BYTES))
