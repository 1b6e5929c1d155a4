# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes the pictures: build.py RESOURCES EMBEDDED. What is in a folder already is replaced."""

import importlib
import sys
import time
from pathlib import Path

FAMILIES = ("readout", "buttons", "icons", "display", "logos", "panels")


def main():
    resources, embedded = (Path(name) for name in sys.argv[1:3])
    for name in sys.argv[3:] or FAMILIES:
        begun = time.monotonic()
        family = importlib.import_module(name)
        family.make(resources)
        if hasattr(family, "make_embedded"):
            family.make_embedded(embedded)
        print(f"{name}: {time.monotonic() - begun:.1f} s")


main()
