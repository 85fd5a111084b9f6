#!/usr/bin/env python3
"""The installed pH scale is the one that tools/make_ph_strip draws, and goes through the indicator's colours."""

import colorsys
import pathlib
import struct
import subprocess
import sys
import tempfile
import unittest
import zlib

TREE = pathlib.Path(__file__).resolve().parents[2]
INSTALLED = TREE / "resources" / "gfx" / "ph.png"


def rows():
    """The colour of each row, which must be the same from edge to edge."""
    data = INSTALLED.read_bytes()
    width, height = struct.unpack(">II", data[16:24])
    length = struct.unpack(">I", data[33:37])[0]
    lines = zlib.decompress(data[41:41 + length])
    step = 1 + 3 * width
    for row in range(height):
        line = lines[row * step:(row + 1) * step]
        assert line == b"\0" + line[1:4] * width
        yield tuple(line[1:4])


class Scale(unittest.TestCase):
    def test_is_what_the_generator_draws(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, TREE / "tools" / "make_ph_strip", folder], check=True)
            self.assertEqual((pathlib.Path(folder) / "resources" / "gfx" / "ph.png").read_bytes(), INSTALLED.read_bytes())

    def test_has_a_row_for_each_tenth_from_0_to_14(self):
        self.assertEqual(len(list(rows())), 141)

    def test_goes_from_red_by_way_of_green_to_violet(self):
        hues = [360 * colorsys.rgb_to_hsv(*(part / 255 for part in colour))[0] for colour in rows()]
        hue = {pH: hues[10 * pH] for pH in range(15)}
        self.assertTrue(all(hue[pH] < 10 or hue[pH] > 345 for pH in (0, 1, 2)), hue)
        self.assertTrue(all(10 < hue[pH] < 60 for pH in (3, 4, 5, 6)), hue)
        self.assertTrue(90 < hue[7] < 150, hue)
        self.assertTrue(all(180 < hue[pH] < 240 for pH in (8, 9, 10, 11)), hue)
        self.assertTrue(all(240 < hue[pH] < 300 for pH in (12, 13, 14)), hue)

    def test_never_jumps(self):
        colours = list(rows())
        for one, other in zip(colours, colours[1:]):
            self.assertLessEqual(max(abs(a - b) for a, b in zip(one, other)), 16)


if __name__ == "__main__":
    unittest.main()
