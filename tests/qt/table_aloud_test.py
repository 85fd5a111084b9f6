#!/usr/bin/env python3
"""What a screen reader meets in the periodic table, asked from outside by the interface of the desktop.

Usage: table_aloud_test.py PROGRAM ELEMENTS    (PROGRAM: table_window, ELEMENTS: the file of elements), on a desktop and a
session bus of its own, by the Python that Debian's pyatspi belongs to.
"""

import os
import select
import subprocess
import sys
import time
import unittest

import pyatspi

PROGRAM, ELEMENTS = sys.argv[1:3]
PATIENCE = 60  # seconds


def eventually(attempt, what):
    """What the attempt gives as soon as that is something."""
    end = time.monotonic() + PATIENCE
    while True:
        try:
            found = attempt()
        except (LookupError, RuntimeError, NotImplementedError):
            found = None
        except Exception as error:  # the bus has errors of its own, while the program begins
            if type(error).__module__.split(".")[0] not in ("gi", "GLib"):
                raise
            found = None
        if found:
            return found
        if time.monotonic() > end:
            raise TimeoutError(f"waited in vain: {what}")
        time.sleep(0.05)


def children(part):
    return [part.getChildAtIndex(index) for index in range(part.childCount)]


def find_role(part, role):
    if part.getRole() == role:
        return part
    return next((found for child in children(part) if child and (found := find_role(child, role))), None)


class Table(unittest.TestCase):
    def show(self, *arguments):
        environment = os.environ | {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        self.program = subprocess.Popen([PROGRAM, ELEMENTS, *arguments], stdout=subprocess.PIPE, text=True,
                                        env=environment)
        self.addCleanup(self.end)
        self.table = eventually(self.find_table, "the table is told to screen readers")

    def end(self):
        self.program.terminate()
        self.program.communicate(timeout=PATIENCE)

    def find_table(self):
        if self.program.poll() is not None:
            self.fail(f"the program has ended with {self.program.returncode}")
        own = (app for app in pyatspi.Registry.getDesktop(0) if app and app.get_process_id() == self.program.pid)
        return next((found for app in own if (found := find_role(app, pyatspi.ROLE_TABLE))), None)

    def told(self):
        """The next line that the program tells."""
        ready, _, _ = select.select([self.program.stdout], [], [], PATIENCE)
        self.assertTrue(ready, "the program tells nothing")
        return self.program.stdout.readline().strip()

    def part(self, name):
        return next(part for part in children(self.table) if part.name == name)

    @staticmethod
    def press(part):
        action = part.queryAction()
        names = [action.getName(index) for index in range(action.nActions)]
        action.doAction(names.index("Press"))

    def test_it_has_a_cell_for_each_element(self):
        self.show("de")
        cells = children(self.table)
        self.assertEqual(len(cells), 118)
        self.assertEqual({cell.getRole() for cell in cells}, {pyatspi.ROLE_TABLE_CELL})
        self.assertEqual(cells[7].name, "Sauerstoff, O, 8, 16,0 Gramm pro Mol, Gas")
        self.assertEqual(cells[79].name, "Quecksilber, Hg, 80, 200,6 Gramm pro Mol, Flüssigkeit")
        self.assertEqual(len({cell.name for cell in cells}), 118)

    def test_it_has_rows_and_columns(self):
        self.show("de")
        grid = self.table.queryTable()
        self.assertEqual((grid.nRows, grid.nColumns), (9, 18))
        self.assertTrue(grid.getAccessibleAt(2, 16).name.startswith("Chlor, "))
        self.assertTrue(grid.getAccessibleAt(7, 4).name.startswith("Cer"))

    def test_it_speaks_english(self):
        self.show("en")
        self.assertEqual(self.table.getChildAtIndex(7).name, "Oxygen, O, 8, 16.0 grams per mole, gas")

    def test_a_press_is_a_click(self):
        self.show("de")
        self.press(self.table.getChildAtIndex(25))
        self.assertEqual(self.told(), "click Fe")

    def test_the_cursor_has_the_focus(self):
        self.show("de")
        eventually(lambda: self.table.getChildAtIndex(0).getState().contains(pyatspi.STATE_FOCUSED),
                   "hydrogen has the focus")

    def test_tiles_are_taken_and_put_down(self):
        self.show("de", "O", "Cl")
        self.assertEqual(self.table.childCount, 120)
        self.assertEqual(self.table.getChildAtIndex(16).name, "Gruppe 17, Periode 3, leer")
        tile = self.part("Cl, noch nicht eingeordnet")
        self.assertFalse(tile.getState().contains(pyatspi.STATE_PRESSED))
        self.press(tile)
        eventually(lambda: tile.getState().contains(pyatspi.STATE_PRESSED), "the tile is taken")
        self.press(self.part("Gruppe 17, Periode 3, leer"))
        self.assertEqual(self.told(), "dropped Cl on Cl")
        eventually(lambda: tile.name == "Cl auf Gruppe 17, Periode 3", "the tile tells where it lies")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
