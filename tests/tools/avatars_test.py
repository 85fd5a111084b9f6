#!/usr/bin/env python3
"""The installed avatars are those that tools/make_avatars draws, and are what the dialog expects."""

import pathlib
import struct
import subprocess
import sys
import tempfile
import unittest
import zlib

TREE = pathlib.Path(__file__).resolve().parents[2]
INSTALLED = TREE / "resources" / "avatar"


def files(folder, ending="gif"):
    return {file.name: file.read_bytes() for file in folder.glob(f"*.{ending}")}


def unpacked(data):
    """What a PNG file holds before it is compressed, which each library does in its own way."""
    parts = []
    at = 8
    while at < len(data):
        (length,) = struct.unpack(">I", data[at : at + 4])
        kind, held = data[at + 4 : at + 8], data[at + 8 : at + 8 + length]
        parts.append((kind, zlib.decompress(held) if kind == b"IDAT" else held))
        at += 12 + length
    return parts


def finer(folder):
    return {name: unpacked(data) for name, data in files(folder, "png").items()}


class Avatars(unittest.TestCase):
    def test_are_what_the_generator_draws(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, TREE / "tools" / "make_avatars", folder], check=True)
            self.assertEqual(files(pathlib.Path(folder)), files(INSTALLED))
            self.assertTrue(finer(pathlib.Path(folder)) == finer(INSTALLED), "finer pictures differ")  # pixels tell nobody

    def test_each_have_a_picture_three_times_as_fine(self):
        self.assertEqual({f"{name[:-4]}@3x.png" for name in files(INSTALLED)}, set(files(INSTALLED, "png")))
        for name, data in files(INSTALLED, "png").items():
            self.assertEqual(struct.unpack(">II", data[16:24]), (3 * 96, 3 * 96), name)

    def test_have_finer_pictures_that_cost_little(self):
        self.assertLess(sum(map(len, files(INSTALLED, "png").values())), 150_000)

    def test_are_at_least_twenty_four_and_all_distinct(self):
        self.assertGreaterEqual(len(set(files(INSTALLED).values())), 24)

    def test_have_lower_case_keys_of_letters(self):
        for name in files(INSTALLED):
            self.assertRegex(name, "^[a-z]+[.]gif$")

    def test_have_the_size_and_a_see_through_colour(self):
        for name, data in files(INSTALLED).items():
            self.assertEqual(data[:6], b"GIF89a", name)
            self.assertEqual(struct.unpack("<HH", data[6:10]), (96, 96), name)
            self.assertIn(b"\x21\xf9\x04\x01", data, name)


if __name__ == "__main__":
    unittest.main()
