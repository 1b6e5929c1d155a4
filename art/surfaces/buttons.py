# SPDX-License-Identifier: GPL-3.0-or-later
"""Push buttons: satin caps, dark, pressed and lit; and the round ones of help and close."""

import cairo
import numpy as np

import palette
from files import save_layer
from light import gloss, shade
from pixels import blurred, lay, layer, mask, mixed, pixel_centres, rounded_box, step

WIDTH, HEIGHT = 120, 80
RADIUS = 15
GAP = 4  # between the panel and the cap
CHAMFER = 7

ROUND = 84  # side of a round button's picture
ROUND_CLOSE = 64


def well(out, down):
    """The opening in the panel: its upper edge is dark, its lower edge catches the light."""
    body = 1 - step(out, -0.5, 1)
    inner = 1 - step(out, -2, 1.2)
    return lay(
        layer(body * mixed(0.50, 0.0, step(down, 0.75, 0.5)), (0, 0, 0)),
        layer(body * 0.26 * step(down, 0.86, 0.28), (1, 1, 1)),
        layer(inner, (0.035, 0.037, 0.04)),
    )


def cap_height(out, rise):
    """A plateau with a rounded chamfer, and a face that is the least bit hollow."""
    inside = np.clip(-(out + GAP) / CHAMFER, 0, 1)
    return rise * np.sqrt(1 - (1 - inside) ** 2)


def cap(out, down, colour, rise):
    height = blurred(np.pad(cap_height(out, rise), 6, mode="edge"), 0.8)[6:-6, 6:-6]
    matt = shade(height) * mixed(1.07, 0.90, down)
    colours = np.asarray(colour) * matt[..., None] + 0.13 * (gloss(height, 60) - 0.02)[..., None]
    return layer(1 - step(out, -GAP, 1), np.clip(colours, 0, 1))


def push_button(colour, pressed=False, lit=False):
    x, y = pixel_centres(WIDTH, HEIGHT)
    out = rounded_box(x, y, WIDTH, HEIGHT, RADIUS)
    down = y / HEIGHT
    top = cap(out, down, colour, 1.6 if pressed else 4.2)
    face = top[..., 3]
    inside = np.clip(-out - GAP, 0, None)
    layers = [well(out, down), top]
    if lit:
        # Light from below, through the cap: strongest in its middle, blocked by its walls.
        glow = np.exp(-(((x - WIDTH / 2) / 46) ** 2) - ((y - HEIGHT / 2) / 28) ** 2)
        walls = np.clip(1 - inside / 14, 0, 1) ** 2
        layers.append(layer(face * 0.30 * walls, mixed(colour, (0, 0, 0), 0.85)))
        layers.append(layer(face * 0.42 * glow, mixed(colour, (1, 1, 1), 0.30)))
    if pressed:
        under = np.clip(1 - inside / 13, 0, 1) ** 2 * mixed(0.62, 0.12, step(down, 0.4, 0.7))
        layers.append(layer(face * under, (0, 0, 0)))
    return lay(*layers)


def round_button(side, draw, colour, glow):
    """A black disc with a line drawing inlaid; glow is how much light the drawing spreads."""
    x, y = pixel_centres(side, side)
    scale = side / ROUND
    out = np.hypot(x - side / 2, y - side / 2) - side / 2
    down = y / side
    inside = np.clip(-(out + GAP * scale) / (CHAMFER * scale), 0, 1)
    height = blurred(3.2 * scale * np.sqrt(1 - (1 - inside) ** 2), 0.8)
    base = mixed(palette.ANODISED, (0, 0, 0), 0.1)
    colours = base * shade(height)[..., None] * 1.25 + 0.22 * gloss(height, 40)[..., None]
    drawing = mask(side, side, lambda context: draw(context, side))
    return lay(
        well(out, down),
        layer(1 - step(out, -GAP * scale, 1), np.clip(colours, 0, 1)),
        layer(glow * np.clip(blurred(drawing, 5 * scale), 0, 1) * (out < -2), colour),
        layer(drawing, colour),
    )


def draw_question(context, side):
    context.set_line_width(0.055 * side)
    context.arc(side / 2, side / 2, 0.345 * side, 0, 2 * np.pi)
    context.stroke()
    context.select_font_face("URW Gothic", cairo.FONT_SLANT_NORMAL, cairo.FONT_WEIGHT_BOLD)
    context.set_font_size(0.52 * side)
    box = context.text_extents("?")
    context.move_to(side / 2 - box.x_bearing - box.width / 2,
                    side / 2 - box.y_bearing - box.height / 2)
    context.text_path("?")
    context.fill()


def draw_cross(context, side):
    context.set_line_width(0.085 * side)
    context.set_line_cap(cairo.LINE_CAP_ROUND)
    near, far = 0.345 * side, 0.655 * side
    for start, end in (((near, near), (far, far)), ((far, near), (near, far))):
        context.move_to(*start)
        context.line_to(*end)
    context.stroke()


def make(resources):
    save_layer(resources / "QMButton.png", push_button(palette.CAP))
    save_layer(resources / "QMButton_Pressed.png", push_button(palette.CAP_PRESSED, pressed=True))
    for name, colour in palette.CAPS_LIT.items():
        save_layer(resources / f"QMButton_{name}.png", push_button(colour, lit=True))
    unlit = mixed(palette.ANODISED, palette.IVORY, 0.88)
    lit = mixed(palette.GREEN_ON_DARK, (1, 1, 1), 0.12)
    save_layer(resources / "HelpButtonOff.png", round_button(ROUND, draw_question, unlit, 0))
    save_layer(resources / "HelpButtonOn.png", round_button(ROUND, draw_question, lit, 0.9))
    save_layer(resources / "closebutton.png", round_button(ROUND_CLOSE, draw_cross, unlit, 0))
