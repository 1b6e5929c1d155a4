# SPDX-License-Identifier: GPL-3.0-or-later
# Inlays the line of a round knob: ivory or ink in a fine groove whose far edge catches the light.
import math

import numpy

LIGHT_FROM = -30.0  # degrees clockwise from the top, as stage.py has it
GROOVE = 0.018  # its width on either side of the colour, in knob radii
LIP = 0.024  # width of the edge that catches the light
DEPTH = 0.72  # how much the groove darkens
SHADE = 0.25  # how much the edge darkens that faces away


def _axes(size, degrees, radius):
    """Where each pixel of a frame is, across and along the line, in knob radii."""
    places = (numpy.arange(size) + 0.5 - 0.5 * size) / radius
    x, y = numpy.meshgrid(places, -places)
    turn = math.radians(degrees)
    return x * math.cos(turn) - y * math.sin(turn), x * math.sin(turn) + y * math.cos(turn)


def _beyond(line, across, along):
    """How far outside the line, to the side and to the ends; negative inside."""
    middle, reach = 0.5 * (line.first + line.last), 0.5 * (line.last - line.first)
    return numpy.abs(across) - line.half_width, numpy.abs(along - middle) - reach


def _covered(beyond, margin, radius):
    """How much of each pixel the line covers that is wider by the margin on every side."""
    x, y = beyond[0] - margin, beyond[1] - margin
    outside = numpy.hypot(numpy.maximum(x, 0.0), numpy.maximum(y, 0.0))
    distance = (outside + numpy.minimum(numpy.maximum(x, y), 0.0)) * radius
    return numpy.clip(0.5 - distance, 0.0, 1.0)


def _facing(line, beyond, across, along, degrees):
    """Of the groove's walls: 1 where one faces the light, -1 where it faces away. The wall that the
    light falls on is the one that lies away from it."""
    away = math.radians(LIGHT_FROM + 180.0 - degrees)
    ends = numpy.sign(along - 0.5 * (line.first + line.last)) * math.cos(away)
    return numpy.where(beyond[0] > beyond[1], numpy.sign(across) * math.sin(away), ends)


def inlay(colour, line, degrees, radius):
    """Onto a frame's colours (sRGB, 0 to 1); radius is the knob's, in pixels."""
    across, along = _axes(colour.shape[0], degrees, radius)
    beyond = _beyond(line, across, along)
    groove = _covered(beyond, GROOVE, radius)
    edge = _covered(beyond, GROOVE + LIP, radius) - groove
    facing = _facing(line, beyond, across, along, degrees)
    bright = (edge * numpy.maximum(facing, 0.0) * line.lip)[:, :, None]
    dark = edge * numpy.maximum(-facing, 0.0) * SHADE
    left = ((1.0 - dark) * (1.0 - DEPTH * groove))[:, :, None]
    ink = _covered(beyond, 0.0, radius)[:, :, None]
    colour = (colour + bright * (1.0 - colour)) * left
    return colour + ink * (numpy.array(line.colour) / 255.0 - colour)
