#!/usr/bin/env python3
"""The mascot's installed pictures are those that tools/make_mascot draws, and a face can be read on them."""

import pathlib
import struct
import subprocess
import sys
import tempfile
import unittest
import zlib

TREE = pathlib.Path(__file__).resolve().parents[2]
INSTALLED = TREE / "resources" / "gfx"
NAMES = [f"atom_{part}{suffix}.png" for part in ("head", "electron", "mask") for suffix in ("", "@2x", "@3x")]

SHEET = TREE / "docs" / "pictures" / "mascot.png"

INKS = {"eyes": (0, 0, 0), "astonished eyes": (0, 0, 255), "mouth": (50, 0, 0)}
ANGRY = (255, 0, 0)  # cannot have more than 4 on white


def lines_of(data):
    """Width, height, kind and the lines of a PNG file, however they are packed."""
    length = struct.unpack(">I", data[33:37])[0]
    return *struct.unpack(">II", data[16:24]), data[24:26], zlib.decompress(data[41:41 + length])


def decode(path):
    """Width, height and the bytes of each row, as red, green, blue, alpha."""
    width, height, kind, lines = lines_of(path.read_bytes())
    assert kind == b"\x08\x06", path
    step = 1 + 4 * width
    rows, above = [], bytes(4 * width)
    for row in range(height):
        line = lines[row * step:(row + 1) * step]
        assert line[0] == 2, "each row less the one above"
        above = bytes((part + other) & 255 for part, other in zip(line[1:], above))
        rows.append(above)
    return width, height, rows


def pixel(rows, x, y):
    return tuple(rows[y][4 * x:4 * x + 4])


def luminance(colour):
    parts = (part / 255 for part in colour[:3])
    red, green, blue = (p / 12.92 if p <= 0.04045 else ((p + 0.055) / 1.055) ** 2.4 for p in parts)
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def contrast(one, other):
    high, low = sorted((luminance(one), luminance(other)), reverse=True)
    return (high + 0.05) / (low + 0.05)


def ground():
    """The pixels on which eyes and mouth are painted in any mood."""
    _, _, rows = decode(INSTALLED / "atom_head.png")
    for y in range(100):
        for x in range(100):
            near_eye = any((x - ex) ** 2 + (y - 31) ** 2 <= 9 ** 2 for ex in (34, 66))
            at_mouth = ((x - 51) / 15) ** 2 + ((y - 62) / 8) ** 2 <= 1
            if near_eye or at_mouth:
                yield pixel(rows, x, y)


class Pictures(unittest.TestCase):
    def test_are_what_the_generator_draws(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, TREE / "tools" / "make_mascot", folder], check=True)
            drawn = sorted(path.name for path in pathlib.Path(folder).iterdir())
            self.assertEqual(drawn, sorted([*NAMES, SHEET.name]))
            for name in NAMES:
                self.assertEqual(decode(pathlib.Path(folder) / name), decode(INSTALLED / name), name)
            sheet = (pathlib.Path(folder) / SHEET.name).read_bytes()
            self.assertEqual(lines_of(sheet), lines_of(SHEET.read_bytes()), "the sheet of docs/pictures is another one")

    def test_have_their_sizes_at_each_ratio(self):
        for part, edge in (("head", 100), ("electron", 11), ("mask", 11)):
            for ratio, suffix in ((1, ""), (2, "@2x"), (3, "@3x")):
                self.assertEqual(decode(INSTALLED / f"atom_{part}{suffix}.png")[:2], (edge * ratio, edge * ratio))

    def test_are_see_through_around_their_shapes(self):
        for name in NAMES:
            width, height, rows = decode(INSTALLED / name)
            corners = [pixel(rows, x, y)[3] for x in (0, width - 1) for y in (0, height - 1)]
            self.assertEqual(corners, [255] * 4 if "mask" in name else [0] * 4, name)
            middle = pixel(rows, width // 2, height // 2)
            self.assertEqual(middle[3], 255, name)

    def test_the_mask_is_black_where_the_electron_is(self):
        for suffix in ("", "@2x", "@3x"):
            width, height, electron = decode(INSTALLED / f"atom_electron{suffix}.png")
            _, _, mask = decode(INSTALLED / f"atom_mask{suffix}.png")
            for y in range(height):
                for x in range(width):
                    part = 0 if pixel(electron, x, y)[3] >= 128 else 255
                    self.assertEqual(pixel(mask, x, y), (part, part, part, 255))

    def test_eyes_and_mouth_stand_out_from_the_face(self):
        for colour in ground():
            self.assertEqual(colour[3], 255)
            for name, ink in INKS.items():
                self.assertGreaterEqual(contrast(ink, colour), 4.5, (name, colour))
            self.assertGreaterEqual(contrast(ANGRY, colour), 3, colour)

    def test_an_electron_is_seen_on_paper_and_in_the_dark(self):
        for name in ("atom_electron.png", "atom_electron@3x.png"):
            width, height, rows = decode(INSTALLED / name)
            middle = pixel(rows, width // 2, height // 2)
            for there in ((255, 255, 255), (246, 249, 252), (15, 28, 41), (0, 0, 0)):
                self.assertGreaterEqual(contrast(middle, there), 3, there)


if __name__ == "__main__":
    unittest.main()
