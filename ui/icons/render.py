#!/usr/bin/env python3
"""Renders the drawings of this folder into wordhawk.ico and copy_hand.cur, with rsvg-convert.
Run it after a change to a drawing and commit the result; the build takes the rendered files."""

import struct
import subprocess
from pathlib import Path

HERE = Path(__file__).resolve().parent
# Below 48 pixels the fine drawing turns to mud.
SIZES = {16: "wordhawk-small", 20: "wordhawk-small", 24: "wordhawk-small", 32: "wordhawk-small",
         48: "wordhawk", 64: "wordhawk", 256: "wordhawk"}
CURSOR_SIZES = (32, 48, 64)
# Of the finger's tip, in parts of the drawing's 32.
HOT_SPOT = (9, 2)


def png(drawing, size):
    return subprocess.run(["rsvg-convert", "-w", str(size), "-h", str(size), HERE / f"{drawing}.svg"],
                          check=True, capture_output=True).stdout


def bitmap(png_bytes, size):
    """The image as a 32-bit bitmap with an empty mask: what readers before PNG understand."""
    pixels = subprocess.run(["convert", "png:-", "-depth", "8", "bgra:-"], input=png_bytes, check=True,
                            capture_output=True).stdout
    rows = [pixels[row * size * 4:(row + 1) * size * 4] for row in range(size)]
    header = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, 0, 0, 0, 0, 0)
    mask_row = (size + 31) // 32 * 4
    return header + b"".join(reversed(rows)) + bytes(mask_row * size)


def write(name, kind, images):
    """`images`: size, bytes, and the two numbers that stand for planes and depth, or the hot spot."""
    offset = 6 + 16 * len(images)
    head = struct.pack("<HHH", 0, kind, len(images))
    body = b""
    for size, data, first, second in images:
        head += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, first, second, len(data),
                            offset + len(body))
        body += data
    (HERE / name).write_bytes(head + body)


def main():
    icons = []
    for size, drawing in SIZES.items():
        image = png(drawing, size)
        icons.append((size, image if size == 256 else bitmap(image, size), 1, 32))
    write("wordhawk.ico", 1, icons)
    write("copy_hand.cur", 2, [(size, bitmap(png("copy_hand", size), size),
                                HOT_SPOT[0] * size // 32, HOT_SPOT[1] * size // 32)
                               for size in CURSOR_SIZES])


if __name__ == "__main__":
    main()
