#!/usr/bin/env python3
"""The installed molecule models are those that tools/make_molecules makes, and tools/check_molecules notices wrong ones."""

import math
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

TREE = pathlib.Path(__file__).resolve().parents[2]
INSTALLED = TREE / "resources" / "rasmol"
TABLE = "moleküle2.txt"

# What another computer's arithmetic may change, in angstrom.
ROUNDING = 0.003


def atoms(path):
    """Element and place of each atom."""
    return [(line[76:78].strip(), tuple(float(line[at:at + 8]) for at in (30, 38, 46)))
            for line in path.read_text().splitlines() if line.startswith("HETATM")]


def check(tree):
    """What the check says of a tree."""
    return subprocess.run([sys.executable, TREE / "tools" / "check_molecules", tree], stdout=subprocess.PIPE,
                          text=True, check=False).stdout


class Models(unittest.TestCase):
    def test_are_what_the_generator_makes(self):
        made = ["water", "co2", "ethene", "methanol"]
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, TREE / "tools" / "make_molecules", folder, "--only", *made], check=True,
                           stderr=subprocess.DEVNULL)
            new = pathlib.Path(folder) / "resources" / "rasmol"
            self.assertEqual((new / TABLE).read_bytes(), (INSTALLED / TABLE).read_bytes())
            for file in made:
                for (element, place), (other, there) in zip(atoms(new / f"{file}.pdb"),
                                                            atoms(INSTALLED / f"{file}.pdb"), strict=True):
                    self.assertEqual(element, other)
                    self.assertLess(math.dist(place, there), ROUNDING, file)

    def test_hold(self):
        self.assertEqual(check(TREE), "")

    def test_have_the_hand_of_natural_alanine(self):
        # Seen from the hydrogen, carboxyl group, rest and nitrogen stand clockwise.
        places = atoms(INSTALLED / "alanine.pdb")
        elements = [element for element, _ in places]
        near = {one: [other for other in range(len(places))
                      if other != one and math.dist(places[one][1], places[other][1]) < 1.65] for one in range(len(places))}
        middle = next(at for at in near if sorted(elements[other] for other in near[at]) == ["C", "C", "H", "N"])
        carboxyl = next(at for at in near[middle] if "O" in (elements[other] for other in near[at]))
        rest = next(at for at in near[middle] if elements[at] == "C" and at != carboxyl)
        nitrogen = next(at for at in near[middle] if elements[at] == "N")
        a, b, c = ([p - q for p, q in zip(places[at][1], places[middle][1])] for at in (carboxyl, rest, nitrogen))
        volume = (a[0] * (b[1] * c[2] - b[2] * c[1]) + a[1] * (b[2] * c[0] - b[0] * c[2]) + a[2] * (b[0] * c[1] - b[1] * c[0]))
        self.assertGreater(volume, 0)


class Check(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.tree = pathlib.Path(folder.name)
        self.models = self.tree / "resources" / "rasmol"
        shutil.copytree(INSTALLED, self.models)

    def change(self, file, old, new):
        path = self.models / file
        text = path.read_text()
        self.assertIn(old, text)
        path.write_text(text.replace(old, new, 1))
        return check(self.tree)

    def test_notices_a_wrong_length(self):
        place = next(line for line in (self.models / "water.pdb").read_text().splitlines() if line.startswith("HETATM    2"))
        moved = place[:30] + f"{float(place[30:38]) + 0.06:8.3f}" + place[38:]
        self.assertIn("water: H 2 and O 1", self.change("water.pdb", place, moved))

    def test_notices_a_wrong_order(self):
        self.assertIn("no length is known", self.change("methane.pdb", "CONECT    2    1", "CONECT    2    1    1"))

    def test_notices_a_bond_that_is_missing(self):
        said = self.change("methane.pdb", "CONECT    2    1\n", "")
        self.assertIn("is told one way only", said)

    def test_notices_atoms_in_each_other(self):
        text = (self.models / "ethane.pdb").read_text()
        places = [line for line in text.splitlines() if line.startswith("HETATM") and line.endswith(" H")]
        said = self.change("ethane.pdb", places[-1][30:54], places[0][30:54])
        self.assertIn("apart without a bond", said)

    def test_notices_a_wrong_formula(self):
        self.assertIn("its model", self.change(TABLE, "CH@4\tmethane", "CH@3\tmethane"))

    def test_notices_what_is_missing_and_left_over(self):
        (self.models / "methane.pdb").rename(self.models / "marsh.pdb")
        said = check(self.tree)
        self.assertIn("Methan has no model methane", said)
        self.assertIn("marsh: the table does not tell of it", said)

    def test_notices_too_many(self):
        for number in range(61):
            shutil.copy(self.models / "water.pdb", self.models / f"water{number}.pdb")
        self.assertIn("not 1 to 60", check(self.tree))


if __name__ == "__main__":
    unittest.main()
