# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks the delivered pictures: check.py ROOT LIST. Exit status 1 when something is wrong.

All there and nothing else, of their sizes, readable by the libraries the program uses, no texts or
dates in them, and small enough together.
"""

import io
import struct
import subprocess
import sys
from pathlib import Path

import cairo

MOST_BYTES = 16_000_000
# What says how the pixels look, and the filler of files that have a fixed size.
PNG_CHUNKS = {b"IHDR", b"PLTE", b"tRNS", b"IDAT", b"IEND", b"quOl"}
BIT_DEPTH, INTERLACED = 24, 28  # offsets in a PNG
SIGNATURE = 8


def listed(file):
    for line in file.read_text().splitlines():
        words = line.partition("#")[0].split()
        if words:
            numbers = [int(word) for word in words[1:]]
            yield words[0], numbers[:2], numbers[2:]


def png_chunks(content):
    place = SIGNATURE
    while place < len(content):
        (length,) = struct.unpack_from(">I", content, place)
        yield content[place + 4 : place + 8]
        place += length + 12


def png_size(content):
    # Cairo reads with libpng, as the program does.
    surface = cairo.ImageSurface.create_from_png(io.BytesIO(content))
    strange = set(png_chunks(content)) - PNG_CHUNKS
    if strange:
        raise ValueError(f"has chunks {sorted(strange)}")
    if content[BIT_DEPTH] != 8 or content[INTERLACED] != 0:
        raise ValueError("is not 8 bits deep and written row by row")
    return [surface.get_width(), surface.get_height()]


def webp_size(content):
    decoded = subprocess.run(["dwebp", "-pam", "-o", "-", "--", "-"], input=content,
                             capture_output=True, check=True).stdout
    head = decoded.partition(b"ENDHDR")[0].split()
    return [int(head[head.index(word) + 1]) for word in (b"WIDTH", b"HEIGHT")]


def problem_of(path, size, fixed_bytes):
    if not path.is_file():
        return "is missing"
    content = path.read_bytes()
    if fixed_bytes and len(content) != fixed_bytes[0]:
        return f"has {len(content)} bytes, not {fixed_bytes[0]}"
    try:
        found = webp_size(content) if path.suffix == ".webp" else png_size(content)
    except (ValueError, OSError, MemoryError, cairo.Error, subprocess.CalledProcessError) as error:
        return f"cannot be used: {error}"
    return f"is {found}, not {size}" if size and found != size else None


def problems(root, pictures):
    for name, size, fixed_bytes in pictures:
        problem = problem_of(root / name, size, fixed_bytes)
        if problem:
            yield f"{name} {problem}"
    names = {name for name, *_ in pictures}
    for folder in {Path(name).parent for name in names}:
        for path in sorted((root / folder).glob("*")):
            if str(folder / path.name) not in names:
                yield f"{folder / path.name} is not in the list"


def main():
    root, pictures = Path(sys.argv[1]), list(listed(Path(sys.argv[2])))
    found = list(problems(root, pictures))
    total = sum(path.stat().st_size for path in (root / "resources").glob("*"))
    if total > MOST_BYTES:
        found.append(f"resources: {total} bytes, more than {MOST_BYTES}")
    for line in found:
        print(line, file=sys.stderr)
    print(f"{len(pictures)} pictures, {total} bytes in resources, {len(found)} problems")
    sys.exit(1 if found else 0)


main()
