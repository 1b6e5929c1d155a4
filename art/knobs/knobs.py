# SPDX-License-Identifier: GPL-3.0-or-later
# The knobs, put together from their parts. Lengths in knob radii.
import math

import materials
import shapes
import stage
from strips import COARSE_FLUTES, FLUTES

SEGMENTS = 256


def _smooth(value):
    t = max(0.0, min(1.0, value))
    return t * t * (3 - 2 * t)


# The product's knob: a skirt, and on it a bar that ends in a beak.

TAIL, TIP = -0.74, 0.955


def _skirt():
    """A shallow dome inside a groove, and around it a chamfer that catches the key light."""
    rim = [(1.0, 0.0, 0), (0.988, 0.085, 0.016), (0.915, 0.111, 0.006)]
    groove = [(0.907, 0.088, 0.003), (0.899, 0.111, 0.003)]
    dome = [(0.885 * (1.0 - t / 24), 0.114 + 0.113 * (1.0 - (1.0 - t / 24) ** 2), 0)
            for t in range(24)]
    profile = shapes.rounded(rim + groove + dome + [(0.004, 0.227, 0)], support=0.001)
    return shapes.lathe(profile, SEGMENTS)


def _beak_outline():
    half = shapes.bezier((0.0, TAIL), (0.19, TAIL), (0.335, -0.52), (0.34, -0.24), 28)
    half += shapes.bezier((0.34, -0.24), (0.346, 0.06), (0.15, 0.40), (0.108, 0.80), 48)
    half += shapes.bezier((0.108, 0.80), (0.098, 0.90), (0.06, TIP), (0.0, TIP), 14)
    return shapes.mirrored(half + [(0.0, TIP)])


TOP, FOOT = 0.54, 0.05  # heights at the bar's widest point
WAIST = 0.34  # half its width there
CHAMFER = 0.05  # how far down the chamfer reaches


def _beak_height(y):
    return TOP - 0.25 * _smooth((y + 0.1) / (TIP + 0.1))


def _beak_level(inset, z):
    """The outline drawn in as the point (inset, z) of the section at the waist tells."""
    taper = min(1.0, inset / WAIST)
    deep = TOP - z

    def point(x, y):
        near_tip = _smooth(y / TIP)
        chamfer = CHAMFER * (1.0 - 0.6 * near_tip)
        top = _beak_height(y)
        if deep <= CHAMFER:
            height = top - chamfer * deep / CHAMFER
        else:
            rest = (deep - CHAMFER) / (TOP - CHAMFER - FOOT)
            height = top - chamfer - (top - chamfer - FOOT) * rest
        ends = 0.11 * max(0.0, y / TIP) ** 2 - 0.30 * max(0.0, y / TAIL) ** 2
        return x * (1.0 - taper), y - min(taper, 0.5) * ends, height

    return point


def _beak():
    section = shapes.rounded([(0.0, FOOT, 0), (0.075, TOP - CHAMFER, 0.02), (0.19, TOP, 0.06),
                              (WAIST, TOP, 0)], steps=6)
    return shapes.loft(_beak_outline(), [_beak_level(x, z) for x, z in section])


def chickenhead():
    black = materials.surface("skirt", materials.BLACK, 0.40)
    body = materials.surface("beak", (0.016, 0.016, 0.017), 0.33)
    materials.with_line(body, 0.049, -0.16, 0.885, 0.012)
    return [stage.part("skirt", _skirt(), black), stage.part("beak", _beak(), body)]


# Round knobs: they look the same again when turned by one flute, so that a few photographs do for
# all frames, and the line is inlaid afterwards.


def _fluted(profile, flutes, depth):
    """Turned, with flutes cut down its side, which run out where the profile ends."""
    last = len(profile) - 1
    fade = [min(1.0, 4.0 * (last - index) / last) for index in range(len(profile))]

    def cut(index, angle):
        return depth * fade[index] * (0.5 - 0.5 * math.cos(flutes * angle))

    return shapes.lathe(profile, flutes * 12, cut)


def _open(mesh):
    """Without the disc that closes it."""
    return mesh[0], mesh[1][:-1]


def _flange(material):
    profile = shapes.rounded([(1.0, 0.0, 0), (0.994, 0.045, 0.01), (0.93, 0.068, 0.01),
                              (0.80, 0.075, 0)], support=0.003)
    return stage.part("flange", _open(shapes.lathe(profile, SEGMENTS)), material)


def _knurled(tone, finish):
    side = [(0.945, 0.06), (0.925, 0.20), (0.905, 0.32), (0.892, 0.38), (0.88, 0.405),
            (0.868, 0.42)]
    crown = shapes.rounded([(0.875, 0.40, 0), (0.862, 0.425, 0.01), (0.80, 0.445, 0.01),
                            (0.775, 0.445, 0.008), (0.76, 0.43, 0.008), (0.74, 0.43, 0)],
                           steps=5, support=0.002)
    top = [(0.745, 0.43), (0.4, 0.424), (0.004, 0.42)]
    metal = materials.surface("grip", tone, finish, metallic=1.0)
    brushed = materials.turned("top", tone, finish, 0.78, 0.10)
    return [_flange(metal),
            stage.part("grip", _open(_fluted(side, FLUTES, 0.034)), metal),
            stage.part("crown", _open(shapes.lathe(crown, SEGMENTS)), metal),
            stage.part("top", shapes.lathe(top, SEGMENTS), brushed)]


def _brushed(tone, finish):
    side = shapes.rounded([(1.0, 0.0, 0), (0.985, 0.31, 0.03), (0.90, 0.35, 0.012),
                           (0.885, 0.35, 0.004), (0.87, 0.34, 0.006), (0.86, 0.34, 0)],
                          steps=6, support=0.003)
    rim = shapes.lathe(side, SEGMENTS)
    dish = [(0.865 * (1.0 - t / 12), 0.34 - 0.03 * (1.0 - (1.0 - t / 12) ** 2))
            for t in range(12)]
    top = shapes.lathe(dish + [(0.004, 0.31)], SEGMENTS)
    metal = materials.surface("rim", tone, finish * 0.8, metallic=1.0)
    brushed = materials.turned("top", tone, finish, 0.82, 0.14)
    return [stage.part("rim", _open(rim), metal), stage.part("top", top, brushed)]


def _channel_strip():
    side = [(0.955, 0.06), (0.92, 0.20), (0.88, 0.33), (0.855, 0.375), (0.82, 0.405), (0.78, 0.43)]
    collar = shapes.rounded([(0.79, 0.42, 0), (0.775, 0.44, 0.008), (0.735, 0.45, 0.006),
                             (0.72, 0.44, 0)], steps=5, support=0.002)
    cap = [(0.722, 0.42, 0), (0.712, 0.47, 0.018)]
    cap += [(0.68 * (1.0 - t / 12), 0.485 + 0.05 * (1.0 - (1.0 - t / 12) ** 2), 0)
            for t in range(12)]
    cap = shapes.rounded(cap + [(0.004, 0.535, 0)], support=0.002)
    metal = materials.surface("grip", MEDIUM, 0.34, metallic=1.0)
    neutral = materials.surface("cap", (0.050, 0.051, 0.053), 0.42)
    black = materials.surface("flange", materials.BLACK, 0.40)
    return [_flange(black),
            stage.part("grip", _open(_fluted(side, COARSE_FLUTES, 0.05)), metal),
            stage.part("collar", _open(shapes.lathe(collar, SEGMENTS)), metal),
            stage.part("cap", shapes.lathe(cap, SEGMENTS), neutral)]


LIGHT = (0.70, 0.70, 0.71)
MEDIUM = (0.40, 0.405, 0.415)
DARK = (0.105, 0.107, 0.112)

MODELS = {
    "chickenhead": chickenhead,
    "knurled light": lambda: _knurled(LIGHT, 0.30),
    "knurled medium": lambda: _knurled(MEDIUM, 0.32),
    "knurled dark": lambda: _knurled(DARK, 0.32),
    "brushed light": lambda: _brushed(LIGHT, 0.30),
    "brushed dark": lambda: _brushed(DARK, 0.32),
    "channel strip": _channel_strip,
}
