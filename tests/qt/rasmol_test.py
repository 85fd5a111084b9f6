#!/usr/bin/env python3
"""The installed viewer RasMol shows a model of the installation on a real screen.

Usage: rasmol_test.py PROGRAM MODELS    (PROGRAM: molecule_viewer, MODELS: the folder with the models and their table)
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

PROGRAM, MODELS = (pathlib.Path(path).resolve() for path in sys.argv[1:3])
PATIENCE = 60  # seconds for a program to appear


class Screen:
    """A screen in memory. What runs on it ends with it."""

    def __init__(self):
        reading, writing = os.pipe()
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-screen", "0", "800x600x24"],
                                       pass_fds=[writing], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as number:
            self.name = ":" + number.readline().strip()

    def close(self):
        self.server.terminate()
        self.server.wait()

    def windows(self):
        return subprocess.run(["xwininfo", "-display", self.name, "-root", "-tree"], stdout=subprocess.PIPE, text=True,
                              check=True).stdout

    def shows(self, title):
        """Whether a window of that title appears."""
        end = time.monotonic() + PATIENCE
        while f'"{title}' not in self.windows():
            if time.monotonic() > end:
                return False
            time.sleep(0.1)
        return True


class RasMol(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.tree = pathlib.Path(folder.name) / "tree"
        self.data = self.tree / "apps" / "rasmol" / "data"
        shutil.copytree(MODELS, self.data)
        (self.tree / "Resources").mkdir()
        (self.tree / "QVStart.exe").write_text("marker")
        self.home = pathlib.Path(folder.name) / "home"
        self.home.mkdir()
        self.screen = Screen()
        self.addCleanup(self.screen.close)

    def run_program(self, compound):
        environment = os.environ | {"DISPLAY": self.screen.name, "QT_QPA_PLATFORM": "offscreen", "HOME": str(self.home),
                                    "XDG_DATA_HOME": str(self.home), "PUBLIC": str(self.home)}
        return subprocess.run([PROGRAM, self.tree, compound], env=environment, timeout=PATIENCE, check=False).returncode

    def test_shows_the_model_of_the_installation(self):
        self.assertEqual(self.run_program("Methan"), 0)
        self.assertTrue(self.screen.shows("RasMol - methane.pdb"), self.screen.windows())
        self.assertEqual((self.data / "qv.scr").read_bytes(),
                         b"load methane.pdb\r\nspacefill 120\r\nwireframe 40\r\ndots on\r\n")

    def test_finds_its_script_beside_a_protected_installation(self):
        (self.data / "qv.scr").mkdir()  # nobody can write this file
        self.assertEqual(self.run_program("C2H5OH"), 0)
        self.assertTrue(self.screen.shows("RasMol - ethanol.pdb"), self.screen.windows())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
