# SPDX-License-Identifier: GPL-3.0-or-later
"""The glossy frame of readouts: two caps and a middle that is stretched between them.

The program fills a dark rectangle first and writes the value on top. It draws 18 to 90 pixels high
and picks pixels rather than averaging them, so nothing here is finer than seven pixels.
"""

import numpy as np

from files import save_layer
from pixels import lay, layer, mixed, pixel_centres, rounded_box, step

HEIGHT = 128
CAP, MIDDLE = 48, 64
RADIUS = 17
EDGE = 6.5  # width of the panel's edge around the frame: the outermost pixel when 18 are drawn
RIM = 6.5  # width of the metal rim inside it


def frame():
    width = 2 * CAP + MIDDLE
    x, y = pixel_centres(width, HEIGHT)
    out = rounded_box(x, y, width, HEIGHT, RADIUS)
    down = y / HEIGHT
    # Softened at the corners alone: along the sides the border of the picture cuts it.
    body = 1 - step(out, 0.5, 5)
    window = 1 - step(out, -EDGE - RIM, 2.5)
    rim = (1 - step(out, -EDGE, 3)) * (1 - window)
    edge = body * (1 - rim) * (1 - window)
    return lay(
        layer(body * np.clip(edge, 0, 1) * mixed(0.62, 0.30, down), (0, 0, 0)),
        layer(edge * 0.30 * step(down, 0.80, 0.4), (1, 1, 1)),
        layer(rim, mixed((0.085, 0.09, 0.095), (0.27, 0.28, 0.29), down**1.4)),
        glass(out, down, window),
    )


def glass(out, down, window):
    """The shadow of the rim and the reflection of the light, over what shines through."""
    inside = np.clip(-out - EDGE - RIM, 0, None)
    under = np.clip(1 - inside / 16, 0, 1) ** 2 * mixed(0.75, 0.10, step(down, 0.45, 0.9))
    reflection = mixed(0.150, 0.055, down / 0.5) * (1 - step(down, 0.485, 0.05))
    reflection = reflection * step(inside, 5, 8)
    glow = 0.045 * step(down, 0.92, 0.35)
    return lay(
        layer(window * under, (0, 0, 0)),
        layer(window * reflection, (0.93, 0.97, 1.0)),
        layer(window * glow, (0.9, 0.95, 1.0)),
    )


def make(resources):
    picture = frame()
    parts = {"left": (0, CAP), "middle": (CAP, CAP + MIDDLE), "right": (CAP + MIDDLE, None)}
    for name, (start, end) in parts.items():
        save_layer(resources / f"oglossywindow{name}.png", picture[:, start:end])
