# SPDX-License-Identifier: GPL-3.0-or-later
# blender -b -P controls.py -- NAME FOLDER
#
# Photographs the cap of a fader ("faderknob") or the bezel of a lamp button ("pushbutton"): the
# thing and the light on the panel, as arrays of numbers for single.py.
import math
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import numpy

import materials
import shapes
import stage

SAMPLES = 256

# The cap. Lengths in halves of its breadth; pixels of the picture.
CAP_PIXELS = (130, 190)
CAP_BODY = 110  # pixels across
CAP_HALF = 1.47  # half its length
CAP_CORNER = 0.13
CAP_TOP = 0.40
CAP_FOOT = -0.3
HOLLOW = 0.24  # depth
SHOULDER = 1.08  # from the middle to the highest place
LINE = 0.055  # half its width

# The bezel. Lengths in halves of the picture's side.
BEZEL_PIXELS = 256
BEZEL_OUTER = 0.93
BEZEL_INNER = 0.680  # the lamp's is 0.70: the bezel laps over its rim


def rounded_rectangle(half_width, half_length, corner, steps=10, along=40):
    """Right half first; enough points along the sides for them to follow the hollow."""
    points = [(0.0, -half_length)]
    for i in range(steps):
        a = 0.5 * math.pi * i / steps
        points.append((half_width - corner + corner * math.sin(a),
                       -half_length + corner - corner * math.cos(a)))
    side = half_length - corner
    lower = points + [(half_width, -side + side * i / along) for i in range(along)]
    upper = [(x, -y) for x, y in lower[::-1]]
    return shapes.mirrored(lower + [(half_width, 0.0)] + upper)


def _back(y):
    """The height of the cap's back: a finger's hollow between two shoulders that fall off."""
    t = min(1.0, abs(y) / SHOULDER)
    hollow = HOLLOW * 0.5 * (1.0 + math.cos(math.pi * t))
    slope = 0.50 * max(0.0, abs(y) - SHOULDER) ** 1.3
    return CAP_TOP - hollow - slope


def _cap_level(inset, down):
    """The outline drawn in, so far below the back."""
    def point(x, y):
        drawn = y * (1.0 - inset / CAP_HALF)
        return x * (1.0 - inset), drawn, _back(drawn) - down if down < CAP_TOP else CAP_FOOT
    return point


def cap():
    section = shapes.rounded([(0.02, -0.24, 0), (0.04, -0.045, 0.02), (0.15, 0.0, 0.06),
                              (0.5, 0.0, 0)], steps=8)[:-1]
    levels = [_cap_level(0.0, CAP_TOP)] + [_cap_level(x, -z) for x, z in section]
    body = materials.surface("cap", materials.BLACK, 0.36)
    materials.with_line(body, 2.0, -LINE, LINE, 0.020)
    outline = rounded_rectangle(1.0, CAP_HALF, CAP_CORNER)
    return stage.part("cap", shapes.bridged(shapes.loft(outline, levels), len(outline)), body)


def bezel():
    profile = shapes.rounded([(BEZEL_OUTER, -0.02, 0), (BEZEL_OUTER - 0.006, 0.035, 0.01),
                              (0.845, 0.073, 0.012), (0.80, 0.073, 0.012), (0.715, 0.030, 0.010),
                              (BEZEL_INNER, 0.022, 0.006), (BEZEL_INNER - 0.001, -0.02, 0)],
                             steps=6, support=0.003)
    points, faces = shapes.lathe(profile, 360)
    metal = materials.surface("bezel", (0.060, 0.061, 0.064), 0.33, metallic=1.0)
    return stage.part("bezel", (points, faces[:-1]), metal)


def views():
    side = 2.0 * CAP_PIXELS[0] / CAP_BODY
    return {"faderknob": (cap, CAP_PIXELS, (side, side * CAP_PIXELS[1] / CAP_PIXELS[0])),
            "pushbutton": (bezel, (BEZEL_PIXELS, BEZEL_PIXELS), (2.0, 2.0))}


def main(name, folder):
    stage.clear()
    build, pixels, size = views()[name]
    thing = stage.place(build())
    stage.light()
    stage.camera(*size)
    numpy.save(os.path.join(folder, name + ".body.npy"), stage.shoot(*pixels, SAMPLES))
    below = stage.shadow([thing], *pixels, SAMPLES)
    numpy.save(os.path.join(folder, name + ".light.npy"), below)


main(*sys.argv[sys.argv.index("--") + 1:])
