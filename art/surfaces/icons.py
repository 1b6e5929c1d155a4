# SPDX-License-Identifier: GPL-3.0-or-later
"""Line drawings: kinds of filters, lock and power, and the loudspeakers of listen buttons."""

from math import pi

import cairo
import numpy as np

import palette
from files import save_layer
from pixels import lay, layer, mask

FILTER_WIDTH, FILTER_HEIGHT = 96, 64
FILTER_LINE = 6.5
SIGN = 64  # side of lock and power
SPEAKER = 96
DIM = 0.62  # opacity of what is off


def rise(x, centre, width):
    return 0.5 + 0.5 * np.tanh((x - centre) / width)


# Gain over frequency, both from 0 to 1; and the gain down to which the drawing is filled.
FILTERS = {
    "Bell": (lambda x: 0.16 + 0.78 * np.exp(-(((x - 0.5) / 0.155) ** 2)), 0.16),
    "Notch": (lambda x: 0.80 - 0.76 * np.exp(-(((x - 0.5) / 0.085) ** 2)), 0.0),
    "Hipass": (lambda x: 0.74 * (1 - np.exp(-((x + 0.02) / 0.26) ** 2.6)) + 0.04, 0.0),
    "Lopass": (lambda x: 0.74 * (1 - np.exp(-((1.02 - x) / 0.26) ** 2.6)) + 0.04, 0.0),
    "Loshelf": (lambda x: 0.16 + 0.70 * rise(-x, -0.47, 0.115), 0.16),
    "Hishelf": (lambda x: 0.16 + 0.70 * rise(x, 0.53, 0.115), 0.16),
    "Band": (lambda x: 0.04 + 0.84 * rise(x, 0.27, 0.085) * rise(-x, -0.73, 0.085), 0.0),
}


def trace(context, gain):
    """The curve as a path, with a margin for the line's own width."""
    margin = FILTER_LINE / 2 + 2
    for share in np.linspace(0, 1, 97):
        x = margin + share * (FILTER_WIDTH - 2 * margin)
        context.line_to(x, FILTER_HEIGHT - margin - gain(share) * (FILTER_HEIGHT - 2 * margin))


def filter_icon(gain, rest):
    def line(context):
        context.set_line_width(FILTER_LINE)
        context.set_line_cap(cairo.LINE_CAP_ROUND)
        context.set_line_join(cairo.LINE_JOIN_ROUND)
        trace(context, gain)
        context.stroke()

    def area(context):
        margin = FILTER_LINE / 2 + 2
        level = FILTER_HEIGHT - margin - rest * (FILTER_HEIGHT - 2 * margin)
        trace(context, gain)
        context.line_to(FILTER_WIDTH - margin, level)
        context.line_to(margin, level)
        context.close_path()
        context.fill()

    return lay(
        layer(0.22 * mask(FILTER_WIDTH, FILTER_HEIGHT, area), palette.IVORY),
        layer(mask(FILTER_WIDTH, FILTER_HEIGHT, line), palette.IVORY),
    )


def draw_lock(context):
    context.set_line_width(6)
    context.arc(32, 23, 11, pi, 2 * pi)
    context.line_to(43, 31)
    context.move_to(21, 23)
    context.line_to(21, 31)
    context.stroke()
    left, top, right, bottom, radius = 12, 29, 52, 57, 5
    context.arc(right - radius, top + radius, radius, -pi / 2, 0)
    context.arc(right - radius, bottom - radius, radius, 0, pi / 2)
    context.arc(left + radius, bottom - radius, radius, pi / 2, pi)
    context.arc(left + radius, top + radius, radius, pi, 1.5 * pi)
    context.close_path()
    context.fill()
    # The keyhole is left out.
    context.set_operator(cairo.OPERATOR_CLEAR)
    context.arc(32, 40, 4.6, 0, 2 * pi)
    context.rectangle(30, 40, 4, 11)
    context.fill()


def draw_power(context):
    context.set_line_width(6.5)
    context.set_line_cap(cairo.LINE_CAP_ROUND)
    context.arc(32, 35, 21, -pi / 2 + 0.66, 1.5 * pi - 0.66)
    context.stroke()
    context.move_to(32, 8)
    context.line_to(32, 31)
    context.stroke()


def draw_speaker(context):
    context.set_line_width(6.5)
    context.set_line_join(cairo.LINE_JOIN_ROUND)
    for point in ((12, 36), (25, 36), (44, 19), (44, 77), (25, 60), (12, 60)):
        context.line_to(*point)
    context.close_path()
    context.stroke()


def draw_sound(context):
    context.set_line_width(6.5)
    context.set_line_cap(cairo.LINE_CAP_ROUND)
    for radius in (16, 31):
        context.new_sub_path()
        context.arc(48, 48, radius, -0.25 * pi, 0.25 * pi)
    context.stroke()


def speaker_icon(line, accent, is_on):
    speaker = mask(SPEAKER, SPEAKER, draw_speaker)
    sound = mask(SPEAKER, SPEAKER, draw_sound)
    if is_on:
        return lay(layer(speaker, line), layer(sound, accent))
    return lay(layer(DIM * speaker, line), layer(0.35 * DIM * sound, line))


def make(resources):
    for name, (gain, rest) in FILTERS.items():
        save_layer(resources / f"{name}.png", filter_icon(gain, rest))
    for name, draw in (("Lock", draw_lock), ("Power", draw_power)):
        save_layer(resources / f"{name}.png", layer(mask(SIGN, SIGN, draw), palette.IVORY))
    # "Light" is the drawing, not the panel: light lines are for dark panels.
    for tone, line, accent in (
        ("Light", palette.IVORY, palette.GREEN_ON_DARK),
        ("", palette.INK, palette.GREEN_ON_LIGHT),
    ):
        for name, is_on in (("Off", False), ("On", True)):
            save_layer(resources / f"SpeakerButtonIcon{tone}{name}.png",
                       speaker_icon(line, accent, is_on))
