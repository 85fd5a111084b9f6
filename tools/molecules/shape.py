"""What the parts of a molecule look like: lengths of bonds, angles, what lies in a plane.

Lengths are rounded means of measured ones, in angstrom: CRC Handbook of Chemistry and Physics, sections "Bond Lengths
and Angles in Gas-Phase Molecules" and "Bond Lengths in Crystalline Organic Compounds".
"""

import itertools

# Molecules that are what they are: their one bond.
SMALL = {("H", "H"): 0.741, ("O", "O"): 1.208, ("N", "N"): 1.098, ("Cl", "Cl"): 1.988, ("Cl", "H"): 1.275}

HYDROGEN = {"C": 1.09, "N": 1.01, "O": 0.96, "S": 1.34}

# Elements, order, and how many neighbours the first and the second have at least and at most, if that matters.
CARBON_SINGLE = {(4, 4): 1.53, (3, 4): 1.50, (3, 3): 1.46, (2, 4): 1.46}
AROMATIC = 1.395

SINGLE = {("C", "N"): 1.47, ("C", "O"): 1.42, ("C", "S"): 1.82, ("C", "Cl"): 1.77, ("O", "O"): 1.475,
          ("O", "P"): 1.57, ("O", "S"): 1.57, ("N", "O"): 1.40}
# The same where a double bond stands beside.
CONJUGATED = {("C", "N"): 1.37, ("C", "O"): 1.35, ("C", "Cl"): 1.73, ("N", "O"): 1.40}
DOUBLE = {("C", "C"): 1.34, ("C", "N"): 1.31, ("C", "O"): 1.21, ("N", "O"): 1.21, ("O", "P"): 1.48, ("O", "S"): 1.43}
TRIPLE = {("C", "C"): 1.203, ("C", "O"): 1.128, ("C", "N"): 1.157}

TETRAHEDRAL = 109.5
# Angles at atoms with lone pairs, by element and number of neighbours.
BENT = {("O", 2): 107.0, ("N", 3): 107.0, ("S", 2): 98.0}


class Shape:
    """Reads off one molecule what its geometry aims at."""

    def __init__(self, molecule):
        self.molecule = molecule
        self.atoms = molecule.atoms
        self.rings = self._rings()

    def _rings(self):
        """The rings of five and six atoms, each as a set."""
        rings = set()
        for start in range(len(self.atoms)):
            paths = [(start,)]
            for _ in range(6):
                rings |= {frozenset(path) for path in paths
                          if len(path) in (5, 6) and start in self.atoms[path[-1]].neighbours}
                paths = [(*path, after) for path in paths for after in self.atoms[path[-1]].neighbours
                         if after not in path]
        return rings

    def has_double_bond(self, atom):
        return any(self.molecule.order(atom, other) == 2 for other in self.atoms[atom].neighbours)

    def is_linear(self, atom):
        orders = [self.molecule.order(atom, other) for other in self.atoms[atom].neighbours]
        return len(orders) == 2 and (3 in orders or orders.count(2) == 2) and self.atoms[atom].element == "C"

    def is_conjugated(self, atom):
        """Whether an atom without a double bond of its own stands beside one that has it."""
        return any(self.has_double_bond(other) and self.atoms[other].element in ("C", "N")
                   for other in self.atoms[atom].neighbours)

    def is_planar(self, atom):
        """Whether the three neighbours of an atom lie in one plane with it."""
        kind = self.atoms[atom]
        if len(kind.neighbours) != 3:
            return False
        return self.has_double_bond(atom) and kind.element != "P" or kind.element == "N" and self.is_conjugated(atom)

    def is_aromatic(self, one, other):
        return any(one in ring and other in ring and len(ring) == 6 and
                   all(self.has_double_bond(atom) and self.atoms[atom].element == "C" and
                       any(self.molecule.order(atom, mate) == 2 for mate in ring) for atom in ring)
                   for ring in self.rings)

    def bond_length(self, one, other):
        elements = tuple(sorted((self.atoms[one].element, self.atoms[other].element)))
        order = self.molecule.order(one, other)
        if len(self.atoms) == 2 and elements in SMALL:
            return SMALL[elements]
        if "H" in elements:
            return HYDROGEN[elements[0] if elements[1] == "H" else elements[1]]
        if order == 3:
            return TRIPLE[elements]
        if elements == ("N", "O") and -1 in (self.atoms[one].charge, self.atoms[other].charge):
            return DOUBLE[elements]  # it shares the double bond beside
        if self.is_aromatic(one, other):
            return AROMATIC
        if order == 2:
            linear = self.is_linear(one) or self.is_linear(other)
            return 1.16 if linear and elements == ("C", "O") else DOUBLE[elements]
        if elements == ("C", "C"):
            return CARBON_SINGLE[tuple(sorted(len(self.atoms[atom].neighbours) for atom in (one, other)))]
        carbon_or_nitrogen = one if self.atoms[one].element == elements[0] else other
        beside = self.has_double_bond(carbon_or_nitrogen) and elements[0] in ("C", "N")
        return CONJUGATED[elements] if beside and elements in CONJUGATED else SINGLE[elements]

    def angle(self, atom, one, other):
        """Between the bonds of an atom to two of its neighbours, in degrees."""
        kind = self.atoms[atom]
        if self.is_linear(atom):
            return 180.0
        five = [ring for ring in self.rings if len(ring) == 5 and atom in ring]
        if five and (self.is_planar(atom) or self.has_double_bond(atom)):
            inside = any(one in ring and other in ring for ring in five)
            return 108.0 if inside else 126.0
        if self.is_planar(atom) or self.has_double_bond(atom) and kind.element in ("C", "N"):
            return 120.0
        if kind.element == "S" and self.has_double_bond(atom) and len(kind.neighbours) == 2:
            return 119.5
        hydrogens = sum(self.atoms[other].element == "H" for other in (one, other))
        if kind.element == "O" and hydrogens == 2:
            return 104.5
        if kind.element == "O" and hydrogens == 0:
            return 115.0 if self.is_conjugated(atom) else 112.0
        return BENT.get((kind.element, len(kind.neighbours)), TETRAHEDRAL)

    def angles(self):
        """Each angle as its atom and two neighbours."""
        for number, atom in enumerate(self.atoms):
            for one, other in itertools.combinations(atom.neighbours, 2):
                yield number, one, other

    def planes(self):
        """Groups of four atoms that lie in one plane."""
        for number, atom in enumerate(self.atoms):
            if self.is_planar(number):
                yield (number, *atom.neighbours)
        for one, other in self.molecule.bonds:
            if self.keeps_flat(one, other):
                for before in self.atoms[one].neighbours:
                    for behind in self.atoms[other].neighbours:
                        if before != other and behind != one:
                            yield one, other, before, behind

    def keeps_flat(self, one, other):
        """Whether nothing turns about the bond: a double one, or one between parts that share their electrons."""
        if self.is_linear(one) or self.is_linear(other):
            return False
        if "S" in (self.atoms[one].element, self.atoms[other].element):
            return False
        if "P" in (self.atoms[one].element, self.atoms[other].element):
            return False
        return all(self.has_double_bond(atom) or self.shares_pair(atom, mate)
                   for atom, mate in ((one, other), (other, one)))

    def shares_pair(self, atom, mate):
        """Whether a nitrogen or oxygen has part in the double bond beside it."""
        kind = self.atoms[atom]
        if not self.has_double_bond(mate) or kind.element not in ("N", "O"):
            return False
        bulky = sum(self.atoms[other].element != "H" for other in kind.neighbours) > 1
        at_ring = any(len(ring) == 6 and mate in ring and atom not in ring for ring in self.rings)
        return not (kind.element == "O" and bulky and at_ring)
