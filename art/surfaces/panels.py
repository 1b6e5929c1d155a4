# SPDX-License-Identifier: GPL-3.0-or-later
"""The panels of the editor: aluminium, brushed from side to side, dark and light."""

import numpy as np

import palette
from files import bytes_of, png, save
from pixels import pixel_centres

WIDTH, HEIGHT = 1550, 1358  # twice the editor's design size

# Grain: length of the strokes and how much they show. A real brush leaves all lengths.
GRAIN = ((2, 0.22), (9, 0.26), (40, 0.42), (160, 0.62), (600, 0.50), (2400, 0.30))
BAND = 24  # rows; what is wider looks like stripes
SCRATCHES = 5200


def strokes(random, length):
    """Rows of noise smeared sideways into strokes of about this length; deviation 1."""
    room = 4 * min(length, WIDTH)
    noise = random.standard_normal((HEIGHT, WIDTH + 2 * room))
    along = np.arange(noise.shape[1])
    along = np.minimum(along, noise.shape[1] - along)
    spectrum = np.fft.rfft(noise, axis=1) * np.fft.rfft(np.exp(-along / length))
    smeared = np.fft.irfft(spectrum, noise.shape[1], axis=1)[:, room : room + WIDTH]
    return smeared / smeared.std()


def scratches(random):
    """Single strokes that went deeper: few, of any length, fading at their ends."""
    field = np.zeros((HEIGHT + 1, WIDTH))
    x = np.arange(WIDTH)
    for _ in range(SCRATCHES):
        centre, length = random.uniform(-100, WIDTH + 100), np.exp(random.uniform(3, 6.3))
        strength = random.exponential(1.0) * random.choice((-1.0, 1.0))
        row, between = random.integers(HEIGHT), random.random()
        first, last = int(max(0, centre - length)), int(min(WIDTH, centre + length))
        if last <= first:
            continue
        profile = strength * (1 - ((x[first:last] - centre) / length) ** 2) ** 2
        field[row, first:last] += (1 - between) * profile
        field[row + 1, first:last] += between * profile
    return field[:HEIGHT]


def grain(seed):
    """The brushed texture, deviation about 1."""
    random = np.random.default_rng(seed)
    field = sum(share * strokes(random, length) for length, share in GRAIN)
    # A bristle is wider than a pixel: neighbouring rows know of each other.
    field = 0.8 * field + 0.35 * np.roll(field, 1, axis=0)
    field -= 0.6 * blurred_down(field, BAND)
    return field / field.std() + 0.5 * scratches(random)


def blurred_down(field, rows):
    """The mean of so many rows around each; the field goes on at the top where it ends below."""
    sums = np.cumsum(np.concatenate([field[-rows:], field, field[:rows]]), axis=0)
    return (sums[2 * rows :] - sums[: -2 * rows]) / (2 * rows)


def sheen():
    """A broad light from above left. Brushed metal draws it out across the strokes."""
    x, y = pixel_centres(WIDTH, HEIGHT)
    x, y = x / WIDTH, y / HEIGHT
    band = np.exp(-(((x - 0.34) / 0.30) ** 2)) + 0.28 * np.exp(-(((x - 0.88) / 0.16) ** 2))
    fall = 1 - 0.62 * y
    corners = ((x - 0.5) ** 2 + (y - 0.5) ** 2) / 0.5
    return 0.20 * band * fall + 0.05 * (0.5 - y) - 0.10 * corners**1.5


def panel(grey, contrast, seed):
    """The panel's colours; their mean is the grey asked for."""
    light = sheen()
    values = grey * (1 + light - light.mean()) + contrast * grain(seed)
    return values[..., None] * np.asarray(palette.METAL_TINT)


def save_panel(path, *look):
    save(path, png(bytes_of(panel(*look))))


def make(resources):
    save_panel(resources / "UIBackgroundDark.png", palette.PANEL_DARK, 0.0125, 11)
    save_panel(resources / "UIBackground.png", palette.PANEL_LIGHT, 0.0190, 12)
