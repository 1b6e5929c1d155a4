# SPDX-License-Identifier: GPL-3.0-or-later
"""Finds the few colours that stand for all of a picture, so that it fits into a small file."""

import numpy as np

ROUNDS = 24


def reduced(pixels, count):
    """Indexes, and the palette they point into: at most count colours, RGBA with straight alpha."""
    colours, where, often = np.unique(pixels.reshape(-1, 4), axis=0, return_inverse=True,
                                      return_counts=True)
    points = premultiplied(colours)
    centres = points[chosen(points, often, count)]
    for _ in range(ROUNDS):
        nearest = nearest_of(points, centres)
        centres = means(points, often, nearest, centres)
    nearest = nearest_of(points, centres)
    used, nearest = np.unique(nearest, return_inverse=True)
    return ordered(straight(centres[used]), nearest[where].reshape(pixels.shape[:2]))


def premultiplied(colours):
    points = colours.astype(float)
    points[:, :3] *= points[:, 3:] / 255
    return points


def straight(points):
    colour = points[:, :3] * 255 / np.maximum(points[:, 3:], 1e-6)
    alpha = np.rint(points[:, 3:])
    return np.rint(np.clip(np.hstack([colour * (alpha > 0), alpha]), 0, 255)).astype(np.uint8)


def chosen(points, often, count):
    """Colours to begin with: again and again the one that is served worst so far."""
    first = int(np.argmax(often))
    picks, distance = [first], np.full(len(points), np.inf)
    weight = often**0.75
    while len(picks) < min(count, len(points)):
        away = ((points - points[picks[-1]]) ** 2).sum(axis=1)
        distance = np.minimum(distance, away)
        picks.append(int(np.argmax(distance * weight)))
    return picks


def nearest_of(points, centres):
    square = (centres**2).sum(axis=1)
    return np.argmin(square - 2 * points @ centres.T, axis=1)


def means(points, often, nearest, centres):
    weight = np.bincount(nearest, often, len(centres))
    sums = [np.bincount(nearest, often * column, len(centres)) for column in points.T]
    found = np.stack(sums, axis=1) / np.maximum(weight, 1)[:, None]
    return np.where(weight[:, None] > 0, found, centres)


def ordered(palette, indexes):
    """Neighbours in colour get neighbouring numbers, which packs better."""
    order = np.lexsort((palette.astype(int).sum(axis=1), palette[:, 3]))
    place = np.argsort(order)
    return place[indexes].astype(np.uint8), palette[order]
