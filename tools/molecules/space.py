"""Finds places in space for the atoms of a molecule, so that its bonds, angles and planes are as they should be and
atoms that are not bonded keep away from each other.

Some starts from places drawn by a fixed generator go downhill for a while; the one that has come lowest goes on until it
rests. They begin in a space of four dimensions, where chains do not get caught in each other and every atom can turn
into its mirror image, and are then pressed flat. The same molecule gives the same places.
"""

import math

STARTS = 16
FLATTENING = ((0.02, 250), (1.0, 150), (20.0, 100))  # how hard the fourth dimension is pressed, and for how many steps
STEPS_OF_A_START = 300
STEPS = 8000
AT_REST = 1e-6  # the longest step of an atom, in angstrom

BOND, ANGLE, PLANE, CHIRAL = 100.0, 20.0, 2.0, 10.0
REPULSION = 0.02
RADII = {"H": 1.0, "C": 1.5, "N": 1.4, "O": 1.4, "P": 1.7, "S": 1.7, "Cl": 1.7}
STRETCH = 0.5  # how much heavy atoms keep away from each other over a distance: chains lie stretched, rings as chairs
SHORTEST = 0.2  # distance that counts, so that atoms in one place fall apart
SMALLEST_VOLUME = 1.0  # that three bonds of a chiral atom span


def minus(a, b):
    return (a[0] - b[0], a[1] - b[1], a[2] - b[2])


def cross(a, b):
    return (a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0])


def dot(a, b):
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]


def unit(line):
    length = math.sqrt(dot(line, line))
    return (line[0] / length, line[1] / length, line[2] / length)


class Random:
    """Even numbers from 0 to 1, the same on every computer."""

    def __init__(self, seed):
        self.state = seed

    def next(self):
        self.state = (self.state * 6364136223846793005 + 1442695040888963407) % 2 ** 64
        return (self.state >> 11) / 2 ** 53


class Field:
    """The energy of a molecule, and its slope for each atom. Places have four coordinates."""

    def __init__(self, shape):
        atoms = shape.atoms
        self.distances = []  # two atoms, their distance, and how stiffly they hold it
        near = set()
        for one, other in shape.molecule.bonds:
            self.distances.append((one, other, shape.bond_length(one, other), BOND))
            near.add((one, other))
        for atom, one, other in shape.angles():
            pair = (min(one, other), max(one, other))
            if pair not in near:
                near.add(pair)
                left, right = shape.bond_length(atom, one), shape.bond_length(atom, other)
                angle = math.radians(shape.angle(atom, one, other))
                across = math.sqrt(left * left + right * right - 2 * left * right * math.cos(angle))
                self.distances.append((*pair, across, ANGLE))
        self.strangers = [(one, other, RADII[atoms[one].element] + RADII[atoms[other].element],
                           0 if "H" in (atoms[one].element, atoms[other].element) else STRETCH)
                          for other in range(len(atoms)) for one in range(other) if (one, other) not in near]
        self.volumes = [(*group, self._flat) for group in shape.planes()]
        self.volumes += [(number, *atom.neighbours[1:], self._left_handed if atom.chirality < 0 else self._right_handed)
                         for number, atom in enumerate(atoms) if atom.chirality]

    def pull(self, places, flattening=0.0):
        energy = 0.0
        slope = [[0.0, 0.0, 0.0, 2 * flattening * place[3]] for place in places]
        energy += sum(flattening * place[3] * place[3] for place in places)
        for one, other, wanted, stiffness in self.distances:
            length = self._distance(places, one, other)
            off = length - wanted
            energy += stiffness * off * off
            self._push(places, slope, one, other, 2 * stiffness * off / length)
        for one, other, reach, stretch in self.strangers:
            length = self._distance(places, one, other)
            share = REPULSION * (reach / length) ** 6
            apart = stretch / length
            energy += share + apart
            self._push(places, slope, one, other, -(6 * share + apart) / (length * length))
        for group in self.volumes:
            energy += self._volume(places, slope, *group)
        return energy, slope

    @staticmethod
    def _distance(places, one, other):
        return max(math.dist(places[one], places[other]), SHORTEST)

    @staticmethod
    def _push(places, slope, one, other, amount):
        for axis in range(4):
            along = amount * (places[one][axis] - places[other][axis])
            slope[one][axis] += along
            slope[other][axis] -= along

    @staticmethod
    def _volume(places, slope, origin, one, other, third, cost):
        """The cost of the volume that three atoms span from a fourth, in the first three dimensions."""
        a, b, c = (minus(places[atom], places[origin]) for atom in (one, other, third))
        sides = cross(b, c), cross(c, a), cross(a, b)
        energy, steepness = cost(dot(a, sides[0]))
        for atom, side in zip((one, other, third), sides):
            for axis in range(3):
                slope[atom][axis] += steepness * side[axis]
                slope[origin][axis] -= steepness * side[axis]
        return energy

    @staticmethod
    def _flat(volume):
        return PLANE * volume * volume, 2 * PLANE * volume

    @staticmethod
    def _right_handed(volume):
        short = max(0.0, SMALLEST_VOLUME - volume)
        return CHIRAL * short * short, -2 * CHIRAL * short

    @staticmethod
    def _left_handed(volume):
        energy, steepness = Field._right_handed(-volume)
        return energy, -steepness


def downhill(field, places, steps, flattening=0.0):
    """Moves the places towards the rest below them and gives the energy: steps grow while they lead down (FIRE)."""
    speed = [[0.0] * 4 for _ in places]
    step, inertia, good = 0.01, 0.1, 0
    energy, slope = field.pull(places, flattening)
    for _ in range(steps):
        power = -sum(v * s for one, other in zip(speed, slope) for v, s in zip(one, other))
        if power > 0:
            fast = math.sqrt(sum(v * v for one in speed for v in one))
            steep = math.sqrt(sum(s * s for one in slope for s in one)) or 1e-12
            for one, other in zip(speed, slope):
                for axis in range(4):
                    one[axis] = (1 - inertia) * one[axis] - inertia * fast / steep * other[axis]
            good += 1
            if good > 5:
                step, inertia = min(step * 1.1, 0.06), inertia * 0.99
        else:
            speed = [[0.0] * 4 for _ in places]
            step, inertia, good = step * 0.5, 0.1, 0
        longest = 0.0
        for place, one, other in zip(places, speed, slope):
            for axis in range(4):
                one[axis] -= step * other[axis]
                move = max(-0.2, min(0.2, step * one[axis]))
                place[axis] += move
                longest = max(longest, abs(move))
        energy, slope = field.pull(places, flattening)
        if longest < AT_REST:
            break
    return energy


def started(field, count, random):
    """The places to which one start has come, and their energy."""
    width = 1.2 * count ** 0.5
    places = [[width * (random.next() - 0.5) for _ in range(4)] for _ in range(count)]
    for flattening, steps in FLATTENING:
        downhill(field, places, steps, flattening)
    for place in places:
        place[3] = 0.0
    return downhill(field, places, STEPS_OF_A_START), places


def turned(places):
    """The same places with the first two atoms in one line along x, and their middle at the origin."""
    x = unit(minus(places[1], places[0]))
    beside = max((minus(place, places[0]) for place in places[2:]),
                 key=lambda line: dot(cross(x, line), cross(x, line)), default=x)
    z = cross(x, beside)
    z = unit(z) if dot(z, z) > 1e-6 else unit(cross(x, (0.3, 0.5, 0.8)))
    y = cross(z, x)
    placed = [[dot(minus(place, places[0]), axis) for axis in (x, y, z)] for place in places]
    middle = [sum(place[axis] for place in placed) / len(placed) for axis in range(3)]
    return [[place[axis] - middle[axis] for axis in range(3)] for place in placed]


def places(shape, seed=1):
    """A place for each atom, in angstrom."""
    field = Field(shape)
    random = Random(seed)
    best = min((started(field, len(shape.atoms), random) for _ in range(STARTS)), key=lambda start: round(start[0], 3))
    downhill(field, best[1], STEPS)
    return turned(best[1])
