#!/usr/bin/env python3
"""Draws the same scenes with both renderers and compares them pixel by pixel: compare_renderers.py GALLERY FOLDER

FOLDER gets the pictures of both, side by side.
"""

import os
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
GREY_LEVELS = 8
# Lines in both fades, rounded corners of every size, a chip with a dot, the largest and the narrowest text, and letters
# with an outline.
WORDS = ("slide chip", "est text", "outlined letters")


def pictures(gallery, folder, words, backend):
    sheet = folder / f"{words.replace(' ', '-')}-{backend}.html"
    environment = os.environ | {"QT_QUICK_BACKEND": backend}
    if backend == "opengl":
        del environment["QT_QUICK_BACKEND"]
    subprocess.run([ROOT / "tools" / "gallery", gallery, sheet, words], env=environment, check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return sorted(sheet.with_suffix("").glob("*.png"))


def bytes_of(picture):
    """What is seen of it over black and over white; the colour of what is hardly there counts as little."""
    over = [subprocess.run(["convert", picture, "-background", color, "-flatten", "-depth", "8", "rgb:-"], check=True,
                           capture_output=True).stdout for color in ("black", "white")]
    return b"".join(over)


def main(gallery, folder):
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    compared = failed = 0
    for words in WORDS:
        software = pictures(gallery, folder, words, "software")
        opengl = pictures(gallery, folder, words, "opengl")
        assert len(software) == len(opengl) > 0, (software, opengl)
        for one, other in zip(software, opengl):
            a, b = bytes_of(one), bytes_of(other)
            assert len(a) == len(b) and len(set(a)) > 2, f"{one}: other sizes, or nothing to see"
            compared += 1
            largest = max(abs(x - y) for x, y in zip(a, b))
            subprocess.run(["convert", one, other, "-append", folder / f"{words.replace(' ', '-')}-{one.name}"],
                           check=True)
            if largest > GREY_LEVELS:
                failed += 1
                print(f"{one} and {other} differ by {largest} grey levels")
    print(f"{compared} scenes compared, {failed} of them differ by more than {GREY_LEVELS} grey levels")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
