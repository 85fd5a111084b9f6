#!/usr/bin/env python3
"""The installed avatars are those that tools/make_avatars draws, and are what the dialog expects."""

import pathlib
import struct
import subprocess
import sys
import tempfile
import unittest

TREE = pathlib.Path(__file__).resolve().parents[2]
INSTALLED = TREE / "resources" / "avatar"


def files(folder):
    return {file.name: file.read_bytes() for file in folder.iterdir()}


class Avatars(unittest.TestCase):
    def test_are_what_the_generator_draws(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, TREE / "tools" / "make_avatars", folder], check=True)
            self.assertEqual(files(pathlib.Path(folder)), files(INSTALLED))

    def test_are_at_least_twenty_four_and_all_distinct(self):
        self.assertGreaterEqual(len(set(files(INSTALLED).values())), 24)

    def test_have_lower_case_keys_of_letters(self):
        for file in INSTALLED.iterdir():
            self.assertEqual(file.suffix, ".gif")
            self.assertRegex(file.stem, "^[a-z]+$")

    def test_have_the_size_and_a_see_through_colour(self):
        for name, data in files(INSTALLED).items():
            self.assertEqual(data[:6], b"GIF89a", name)
            self.assertEqual(struct.unpack("<HH", data[6:10]), (96, 96), name)
            self.assertIn(b"\x21\xf9\x04\x01", data, name)


if __name__ == "__main__":
    unittest.main()
