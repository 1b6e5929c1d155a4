# SPDX-License-Identifier: GPL-3.0-or-later
"""The maker's sign: a Q whose tail is one slow cycle of a wave that dies away."""

from math import cos, exp, pi, sin

import cairo
import numpy as np

SIDE = 160.0  # units of the drawing
CENTRE = (70.0, 77.0)
RADIUS = 57.0
RING_STROKE = 12.5
TAIL_STROKE = 10.0
GAP = 7.0  # between the ring and the tail that crosses it

# The wave: where it begins, its axis, how far it goes and how high it swings.
START = (37.0, 93.0)
LENGTH = 119.0
SLOPE = 0.20  # radians, down to the right
SWING = 22.0
DECAY = 0.35


def tail(context):
    """The wave as a path, in the units of the drawing."""
    for share in np.linspace(0, 1, 97):
        along = share * LENGTH
        aside = -SWING * sin(2 * pi * share) * exp(-DECAY * share)
        context.line_to(START[0] + along * cos(SLOPE) - aside * sin(SLOPE),
                        START[1] + along * sin(SLOPE) + aside * cos(SLOPE))


def prepared(context, side):
    context.scale(side / SIDE, side / SIDE)
    context.set_line_join(cairo.LINE_JOIN_ROUND)


def draw_ring(context, side):
    """The Q's ring, open where the tail goes through. Leaves nothing but the drawing."""
    context.save()
    prepared(context, side)
    context.set_line_width(RING_STROKE)
    context.arc(*CENTRE, RADIUS, 0, 2 * pi)
    context.stroke()
    context.set_operator(cairo.OPERATOR_CLEAR)
    context.set_line_width(TAIL_STROKE + 2 * GAP)
    tail(context)
    context.stroke()
    context.restore()


def draw_tail(context, side):
    context.save()
    prepared(context, side)
    context.set_line_width(TAIL_STROKE)
    tail(context)
    context.stroke()
    context.restore()
