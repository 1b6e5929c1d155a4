# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes PNG files that hold pixels and nothing else: the same pictures make the same bytes."""

import struct
import zlib
from pathlib import Path

import numpy as np

SIGNATURE = b"\x89PNG\r\n\x1a\n"
CHUNK_FRAME = 12  # bytes of length, name and check sum around a chunk's content
INDEXED, COLOUR, COLOUR_AND_ALPHA = 3, 2, 6  # kinds of pixels


def bytes_of(values):
    return np.rint(np.clip(values, 0, 1) * 255).astype(np.uint8)


def straight(picture):
    """A premultiplied layer as bytes with straight alpha."""
    alpha = np.clip(picture[..., 3:], 0, 1)
    seen = np.rint(alpha * 255) > 0
    colour = np.where(seen, picture[..., :3] / np.maximum(alpha, 1e-6), 0)
    return bytes_of(np.dstack([colour, alpha]))


def chunk(name, content):
    body = name + content
    return struct.pack(">I", len(content)) + body + struct.pack(">I", zlib.crc32(body))


def paeth(left, above, corner):
    """The neighbour nearest to left + above - corner, the format's fourth guess."""
    guess = left + above - corner
    far = [np.abs(guess - near) for near in (left, above, corner)]
    nearest = np.where(far[1] <= far[2], above, corner)
    return np.where((far[0] <= far[1]) & (far[0] <= far[2]), left, nearest)


def filtered(rows, step):
    """The rows as differences to a guess, in each of the format's five ways."""
    values = rows.astype(np.int16)
    left, above, corner = (np.zeros_like(values) for _ in range(3))
    left[:, step:] = values[:, :-step]
    above[1:] = values[:-1]
    corner[1:, step:] = values[:-1, :-step]
    guesses = (np.zeros_like(values), left, above, (left + above) // 2, paeth(left, above, corner))
    return [(values - guess).astype(np.uint8) for guess in guesses]


def with_kinds(ways, kinds):
    """Each row in the way chosen for it, its number in front."""
    rows = [bytes([kind]) + ways[kind][y].tobytes() for y, kind in enumerate(kinds)]
    return b"".join(rows)


def deflated(rows, step):
    """The smallest of: every row the same way, or each as its differences are smallest."""
    ways = filtered(rows, step)
    sizes = [np.abs(way.view(np.int8).astype(np.int32)).sum(axis=1) for way in ways]
    choices = [[kind] * len(rows) for kind in range(len(ways))] + [np.argmin(sizes, axis=0)]
    contents = [with_kinds(ways, kinds) for kinds in choices]
    # A quick look tells which is worth the thorough one.
    return deflate(min(contents, key=lambda content: len(zlib.compress(content, 3))))


def deflate(content):
    results = []
    for strategy in (zlib.Z_DEFAULT_STRATEGY, zlib.Z_FILTERED):
        packer = zlib.compressobj(9, zlib.DEFLATED, 15, 9, strategy)
        results.append(packer.compress(content) + packer.flush())
    return min(results, key=len)


def png(pixels, palette=None):
    """A PNG file of bytes: height x width x 3 or 4, or of indexes into a palette of RGBA."""
    height, width = pixels.shape[:2]
    step = 1 if palette is not None else pixels.shape[2]
    kind = {1: INDEXED, 3: COLOUR, 4: COLOUR_AND_ALPHA}[step]
    parts = [SIGNATURE, chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, kind, 0, 0, 0))]
    if palette is not None:
        parts.append(chunk(b"PLTE", palette[:, :3].tobytes()))
        parts.append(chunk(b"tRNS", palette[:, 3].tobytes()))
    rows = pixels.reshape(height, width * step)
    return b"".join(parts + [chunk(b"IDAT", deflated(rows, step)), chunk(b"IEND", b"")])


def padded(content, size):
    """Of exactly this size, through a private chunk that readers skip."""
    room = size - len(content) - CHUNK_FRAME
    if room < 0:
        raise ValueError(f"{len(content)} bytes leave no room for a chunk below {size}")
    end = len(chunk(b"IEND", b""))
    return content[:-end] + chunk(b"quOl", bytes(room)) + content[-end:]


def save(path, content):
    path = Path(path)
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(content)


def save_layer(path, picture):
    save(path, png(straight(picture)))
