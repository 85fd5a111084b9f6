"""Reads structural formulas in SMILES, as far as school compounds need it, with every hydrogen made an atom.

Understood: C, N, O, P, S, Cl without brackets; brackets with an element, @ or @@, hydrogens and a charge; the bonds =
and #; branches; ring digits. Aromatic rings are written with their double bonds.
"""

from dataclasses import dataclass, field

VALENCES = {"Cl": (1,), "C": (4,), "N": (3,), "O": (2,), "P": (3, 5), "S": (2, 4, 6)}
ORDERS = {"=": 2, "#": 3}


@dataclass
class Atom:
    """`neighbours` stand in the order of the text, which is what `chirality` (-1 for @, 1 for @@) refers to."""
    element: str
    charge: int = 0
    hydrogens: int | None = None  # as told in brackets; else what the valence leaves
    chirality: int = 0
    neighbours: list[int] = field(default_factory=list)


class Molecule:
    """Atoms, and the order of each bond by the pair of its atoms, the lower number first."""

    def __init__(self):
        self.atoms = []
        self.bonds = {}

    def order(self, one, other):
        """0 for atoms that are not bonded."""
        return self.bonds.get((min(one, other), max(one, other)), 0)

    def join(self, one, other, order):
        self.bonds[min(one, other), max(one, other)] = order

    def formula(self):
        """How many atoms of each element."""
        elements = [atom.element for atom in self.atoms]
        return {element: elements.count(element) for element in elements}


class Reader:
    """One walk over one text."""

    def __init__(self, text):
        self.text = text
        self.at = 0
        self.molecule = Molecule()
        self.previous = None
        self.order = 1    # of the next bond
        self.around = []  # atoms at which branches began
        self.rings = {}   # digit: atom, and the ring's place among its neighbours

    def read(self):
        while self.at < len(self.text):
            sign = self.text[self.at]
            if sign == "[" or sign.isalpha():
                self.take_atom()
                continue
            self.at += 1
            if sign == "(":
                self.around.append(self.previous)
            elif sign == ")":
                self.previous = self.around.pop()
            elif sign in ORDERS:
                self.order = ORDERS[sign]
            elif sign.isdigit():
                self.take_ring(sign)
            else:
                raise ValueError(f"{self.text}: what is {sign}?")
        if self.rings or self.around:
            raise ValueError(f"{self.text}: a ring or a branch is open")
        self.add_missing_hydrogens()
        return self.molecule

    def take_atom(self):
        atom = self.bracket() if self.text[self.at] == "[" else self.bare()
        number = len(self.molecule.atoms)
        self.molecule.atoms.append(atom)
        if self.previous is not None:
            self.molecule.atoms[self.previous].neighbours.append(number)
            atom.neighbours.append(self.previous)
            self.connect(self.previous, number)
        for _ in range(atom.hydrogens or 0):
            self.add_hydrogen(number)
        self.previous = number

    def bare(self):
        element = next((name for name in VALENCES if self.text.startswith(name, self.at)), None)
        if element is None:
            raise ValueError(f"{self.text}: no atom at {self.at}")
        self.at += len(element)
        return Atom(element)

    def bracket(self):
        end = self.text.index("]", self.at)
        inside = self.text[self.at + 1:end]
        self.at = end + 1
        element, rest = inside[:1], inside[1:]
        chirality = 1 if rest.startswith("@@") else -1 if rest.startswith("@") else 0
        rest = rest.lstrip("@")
        hydrogens = rest.count("H")
        charge = {"": 0, "+": 1, "-": -1}[rest.replace("H", "")]
        return Atom(element, charge, hydrogens, chirality)

    def connect(self, one, other):
        self.molecule.join(one, other, self.order)
        self.order = 1

    def take_ring(self, digit):
        atom = self.molecule.atoms[self.previous]
        if digit not in self.rings:
            self.rings[digit] = (self.previous, len(atom.neighbours))
            atom.neighbours.append(None)  # known when the ring closes
            return
        other, place = self.rings.pop(digit)
        self.connect(other, self.previous)
        self.molecule.atoms[other].neighbours[place] = self.previous
        atom.neighbours.append(other)

    def add_hydrogen(self, number):
        hydrogen = len(self.molecule.atoms)
        self.molecule.atoms.append(Atom("H", hydrogens=0, neighbours=[number]))
        self.molecule.atoms[number].neighbours.append(hydrogen)
        self.molecule.join(number, hydrogen, 1)

    def add_missing_hydrogens(self):
        for number, atom in enumerate(list(self.molecule.atoms)):
            if atom.hydrogens is None:
                used = sum(self.molecule.order(number, other) for other in atom.neighbours)
                valence = next(valence for valence in VALENCES[atom.element] if valence >= used)
                for _ in range(valence - used):
                    self.add_hydrogen(number)


def read(text):
    return Reader(text).read()
