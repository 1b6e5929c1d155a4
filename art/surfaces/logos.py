# SPDX-License-Identifier: GPL-3.0-or-later
"""The maker's sign and the product's logo: inlaid letters that stand a little above the panel."""

from collections import namedtuple

import cairo
import numpy as np

import palette
import sign
from files import padded, png, save, save_layer, straight
from light import gloss, shade, shadow
from pixels import averaged, blurred, depth, lay, layer, mask, mixed, pixel_centres
from quantising import reduced

SIGN_SIDE = 160
SIGN_FINENESS = 4

WIDTH, HEIGHT = 492, 108  # design units
SCALE = 3
FINENESS = 2  # made so many times as large and reduced: chamfers are finer than pixels
FINE_SCALE = SCALE * FINENESS
EMBEDDED_BYTES = 71699
EMBEDDED_COLOURS = 256

NAME = (("QM", cairo.FONT_WEIGHT_NORMAL), (" ", cairo.FONT_WEIGHT_NORMAL),
        ("Brolt", cairo.FONT_WEIGHT_BOLD))
NAME_SIZE, NAME_BASE = 76.0, 68.0
NAME_LEFT, NAME_RIGHT = 138.0, 478.0
LINE = "LOW-FREQUENCY SYNTHESIZER"
LINE_SIZE, LINE_BASE = 13.0, 95.0
SIGN_LEFT, SIGN_TOP, SIGN_SIZE = 10.0, 5.0, 98.0
RULE_LEFT, RULE_TOP, RULE_BOTTOM, RULE_WIDTH = 121.0, 16.0, 94.0, 1.0

# Of letters and signs, in pixels before they are reduced.
CHAMFER, RISE = 5.0, 4.0
SHADOW_RISE, SHADOW_BLUR = 6.0, 4.2

Tone = namedtuple("Tone", "top bottom accent line shadow chamfer")
WHITE, GREY = (1, 1, 1), (0.53, 0.54, 0.56)
FOR_DARK = Tone(
    top=mixed(palette.IVORY, WHITE, 0.35), bottom=mixed(palette.IVORY, GREY, 0.45),
    accent=palette.GREEN_ON_DARK, line=mixed(palette.IVORY, GREY, 0.45),
    shadow=0.55, chamfer=1.0)
FOR_LIGHT = Tone(
    top=mixed(palette.INK, WHITE, 0.06), bottom=mixed(palette.INK, WHITE, 0.16),
    accent=palette.GREEN_ON_LIGHT, line=mixed(palette.INK, WHITE, 0.22),
    shadow=0.22, chamfer=1.6)


def raised(coverage, colour, tone):
    """A shape of metal with a fine chamfer, and its shadow on the panel."""
    inside = depth(coverage > 0.5, CHAMFER + 2)
    height = blurred(RISE * np.clip(inside / CHAMFER, 0, 1), 1.5)
    lit = mixed(1.0, shade(height), tone.chamfer)
    shine = 0.10 * tone.chamfer * gloss(height, 30)
    colours = np.clip(np.asarray(colour) * lit[..., None] + shine[..., None] - 0.02, 0, 1)
    return lay(shadow(coverage, SHADOW_RISE, SHADOW_BLUR, tone.shadow), layer(coverage, colours))


def graded(tone, height, width, top, bottom):
    """From the tone's upper colour to its lower, between two rows."""
    _, y = pixel_centres(width, height)
    return mixed(tone.top, tone.bottom, np.clip((y - top) / (bottom - top), 0, 1))


def at(draw, *place):
    """The same drawing elsewhere: right, down, side, in design units."""
    def placed(context):
        context.scale(FINE_SCALE, FINE_SCALE)
        context.translate(*place[:2])
        draw(context, *place[2:])
    return placed


def draw_name(context):
    context.scale(FINE_SCALE, FINE_SCALE)
    context.set_font_size(NAME_SIZE)
    room = NAME_RIGHT - NAME_LEFT
    spread = (room - run(context, NAME, 0, None)) / (sum(len(text) for text, _ in NAME) - 1)
    run(context, NAME, spread, (NAME_LEFT, NAME_BASE))
    context.fill()


def run(context, parts, spread, start):
    """Sets letters with space between them; without a start only measures."""
    x = 0.0
    for text, weight in parts:
        context.select_font_face("URW Gothic", cairo.FONT_SLANT_NORMAL, weight)
        for letter in text:
            if start:
                context.move_to(start[0] + x, start[1])
                context.text_path(letter)
            x += context.text_extents(letter).x_advance + spread
    return x


def draw_line(context):
    context.scale(FINE_SCALE, FINE_SCALE)
    context.set_font_size(LINE_SIZE)
    parts = ((LINE, cairo.FONT_WEIGHT_NORMAL),)
    spread = (NAME_RIGHT - 4 - NAME_LEFT - run(context, parts, 0, None)) / (len(LINE) - 1)
    run(context, parts, spread, (NAME_LEFT + 4, LINE_BASE))
    context.fill()


def draw_rule(context):
    """What keeps the sign's Q from being read as a letter of the name."""
    context.scale(FINE_SCALE, FINE_SCALE)
    context.rectangle(RULE_LEFT, RULE_TOP, RULE_WIDTH, RULE_BOTTOM - RULE_TOP)
    context.fill()


def logo(tone):
    width, height = WIDTH * FINE_SCALE, HEIGHT * FINE_SCALE

    def drawn(draw):
        return mask(width, height, draw)

    metal = graded(tone, height, width, 8 * FINE_SCALE, 96 * FINE_SCALE)
    place = (SIGN_LEFT, SIGN_TOP, SIGN_SIZE)
    letters = np.maximum(drawn(draw_name), drawn(at(sign.draw_ring, *place)))
    whole = lay(
        raised(letters, metal, tone),
        raised(drawn(at(sign.draw_tail, *place)), tone.accent, tone),
        shadow(drawn(draw_line), 4.0, 2.6, tone.shadow),
        layer(drawn(draw_line), tone.line),
        layer(0.45 * drawn(draw_rule), tone.line),
    )
    return averaged(whole, FINENESS)


def maker_sign():
    side = SIGN_SIDE * SIGN_FINENESS
    ring = mask(side, side, lambda context: sign.draw_ring(context, side))
    tail = mask(side, side, lambda context: sign.draw_tail(context, side))
    metal = graded(FOR_DARK, side, side, 0.1 * side, 0.85 * side)
    whole = lay(raised(ring, metal, FOR_DARK), raised(tail, FOR_DARK.accent, FOR_DARK))
    return averaged(whole, SIGN_FINENESS)


def make(resources):
    save_layer(resources / "QMLogo_Vertical_NoText_small.png", maker_sign())
    save_layer(resources / "BroltLogoForDark.png", logo(FOR_DARK))
    save_layer(resources / "BroltLogoForLight.png", logo(FOR_LIGHT))


def make_embedded(images):
    content = png(*reduced(straight(logo(FOR_DARK)), EMBEDDED_COLOURS))
    save(images / "BroltLogo.png", padded(content, EMBEDDED_BYTES))
