# SPDX-License-Identifier: GPL-3.0-or-later
# What strips there are, and how a strip is laid out. Read by the programs that run inside Blender
# and by those that do not.
from dataclasses import dataclass

COLUMNS, ROWS = 16, 17
TRAVEL = 270.0  # degrees, half of it on either side of the top
BODY = 0.73  # a knob's diameter, of a frame's side

FLUTES, COARSE_FLUTES = 72, 24  # around a knurled knob, and around the channel strip's


@dataclass(frozen=True)
class Line:
    """An inlaid line, in knob radii and bytes of colour."""
    half_width: float
    first: float
    last: float
    colour: tuple
    lip: float  # how bright the edge is that the light falls on


@dataclass(frozen=True)
class Strip:
    model: str
    frames: int = 271
    pixels: int = 128  # of a frame's side
    flutes: int = 0  # the knob looks the same after 1 / flutes of a turn; 0: it is no round knob
    phases: int = 1  # photographs of that part of a turn; without flutes there is one a frame
    line: Line = None

    def angle(self, frame):
        """Degrees clockwise from the top."""
        return TRAVEL * (frame / (self.frames - 1) - 0.5)

    def photographs(self):
        """The angles to be photographed."""
        if self.flutes == 0:
            return [self.angle(frame) for frame in range(self.frames)]
        return [360.0 / self.flutes * phase / self.phases for phase in range(self.phases)]

    def photograph(self, frame):
        """Which of them shows this frame."""
        if self.flutes == 0:
            return frame
        return round(self.angle(frame) * self.flutes / 360.0 * self.phases) % self.phases


IVORY = (240, 234, 216)
INK = (18, 18, 19)


def _on_metal(first, last, colour, lip):
    return Line(0.040, first, last, colour, lip)


STRIPS = {
    "qm_knob_70_black_128": Strip("chickenhead", pixels=192),
    "knobs_alpha_128": Strip("knurled medium", frames=270, flutes=FLUTES, phases=20,
                             line=_on_metal(0.26, 0.69, INK, 0.55)),
    "knob_array_light": Strip("knurled light", flutes=FLUTES, phases=5,
                              line=_on_metal(0.26, 0.69, INK, 0.8)),
    "knob_array_dark": Strip("knurled dark", flutes=FLUTES, phases=5,
                             line=_on_metal(0.26, 0.69, IVORY, 0.25)),
    "knob_array_brushed": Strip("brushed light", flutes=1, line=_on_metal(0.36, 0.82, INK, 0.8)),
    "medium_knob_array_dark": Strip("brushed dark", flutes=1,
                                    line=_on_metal(0.36, 0.82, IVORY, 0.25)),
    "medium_knob_array": Strip("channel strip", flutes=COARSE_FLUTES, phases=15,
                               line=_on_metal(0.26, 0.69, IVORY, 0.25)),
}
