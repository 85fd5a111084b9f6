"""A canvas of flat colours on which smooth shapes are painted."""

import math

SIDE = 96
"""Width and height of an avatar in pixels; shapes are placed in these units, y downward."""

_FINE = 4  # samples across a pixel
_FINE_ENOUGH = 2  # the same where pixels are smaller than a unit
_MOST_COLOURS = 255


class Canvas:
    """Paints shapes one upon the other, sampled finely, and averages the samples at the end."""

    def __init__(self, scale=1):
        """`scale` is how many pixels each unit takes; `side` then is the width and height in pixels."""
        self.side = SIDE * scale
        self._samples = _FINE if scale == 1 else _FINE_ENOUGH
        self._fine = self._samples * scale
        self._size = SIDE * self._fine
        self._rows = [[None] * self._size for _ in range(self._size)]

    def polygon(self, points, colour):
        """A filled figure; colour is (red, green, blue)."""
        corners = [(x * self._fine, y * self._fine) for x, y in points]
        for row, crossings in self._crossings(corners).items():
            crossings.sort()
            for left, right in zip(crossings[::2], crossings[1::2]):
                start = max(0, round(left))
                end = min(self._size, round(right))
                if end > start:
                    self._rows[row][start:end] = [colour] * (end - start)

    def _crossings(self, corners):
        """Where the figure's edges cross the middle of each row."""
        crossings = {}
        for (x1, y1), (x2, y2) in zip(corners, corners[1:] + corners[:1]):
            top, bottom = sorted((y1, y2))
            for row in range(max(0, math.ceil(top - 0.5)), min(self._size, math.ceil(bottom - 0.5))):
                crossings.setdefault(row, []).append(x1 + (row + 0.5 - y1) * (x2 - x1) / (y2 - y1))
        return crossings

    def ellipse(self, x, y, rx, ry, colour, turn=0):
        """An ellipse around (x, y), turned by degrees clockwise."""
        self.polygon(ellipse_points(x, y, rx, ry, turn), colour)

    def circle(self, x, y, radius, colour):
        self.ellipse(x, y, radius, radius, colour)

    def box(self, left, top, right, bottom, colour, radius=0):
        """A rectangle, its corners rounded."""
        if radius <= 0:
            self.polygon([(left, top), (right, top), (right, bottom), (left, bottom)], colour)
            return
        points = []
        for cx, cy, start in (
            (right - radius, bottom - radius, 0),
            (left + radius, bottom - radius, 90),
            (left + radius, top + radius, 180),
            (right - radius, top + radius, 270),
        ):
            points += arc_points(cx, cy, radius, start, start + 90)
        self.polygon(points, colour)

    def line(self, points, width, colour):
        """A stroke with round ends through the points."""
        half = width / 2
        for (x1, y1), (x2, y2) in zip(points, points[1:]):
            length = math.hypot(x2 - x1, y2 - y1) or 1
            dx, dy = (y1 - y2) / length * half, (x2 - x1) / length * half
            self.polygon([(x1 + dx, y1 + dy), (x2 + dx, y2 + dy), (x2 - dx, y2 - dy), (x1 - dx, y1 - dy)], colour)
        for x, y in points:
            self.circle(x, y, half, colour)

    def arc(self, x, y, radius, start, end, width, colour):
        """A stroke along a circle, from one angle to the other; 0 is right, 90 is down."""
        self.line(arc_points(x, y, radius, start, end), width, colour)

    def picture(self):
        """Colours and pixels as `gif.encode` takes them."""
        averaged = self._averaged(self._colour)
        numbers, palette = _number_colours(averaged)
        return palette, [0 if colour is None else numbers[colour] for colour in averaged]

    def soft_picture(self):
        """Pixels as `png.encode` takes them, with soft edges."""
        return self._averaged(self._soft_colour)

    def _averaged(self, average):
        """A value for each pixel, from the samples across it."""
        averages = _Averages(average)
        steps = range(self._samples)
        pixels = []
        for top in range(0, self._size, self._samples):
            across = (self._rows[top + down][right :: self._samples] for down in steps for right in steps)
            pixels += [averages[samples] for samples in zip(*across)]
        return pixels

    @staticmethod
    def _colour(painted, total):
        """The mean of the painted samples; None where less than half of them are painted."""
        return None if len(painted) * 2 < total else _mean(painted)

    @staticmethod
    def _soft_colour(painted, total):
        return _mean(painted) + (round(255 * len(painted) / total),) if painted else (0, 0, 0, 0)


class _Averages(dict):
    """What `average` makes of samples, worked out once for each set of them: most pixels lie within a shape."""

    def __init__(self, average):
        super().__init__()
        self._average = average

    def __missing__(self, samples):
        painted = [sample for sample in samples if sample is not None]
        self[samples] = self._average(painted, len(samples))
        return self[samples]


def _mean(samples):
    return tuple(round(sum(part) / len(samples)) for part in zip(*samples))


def arc_points(x, y, radius, start, end):
    steps = 12
    angles = (math.radians(start + (end - start) * i / steps) for i in range(steps + 1))
    return [(x + radius * math.cos(a), y + radius * math.sin(a)) for a in angles]


def ellipse_points(x, y, rx, ry, turn=0):
    steps = 64
    c, s = math.cos(math.radians(turn)), math.sin(math.radians(turn))
    points = []
    for i in range(steps):
        px, py = rx * math.cos(2 * math.pi * i / steps), ry * math.sin(2 * math.pi * i / steps)
        points.append((x + px * c - py * s, y + px * s + py * c))
    return points


def _number_colours(averaged):
    """Numbers for the colours; rare ones share that of the nearest frequent one when there are too many."""
    counts = {}
    for colour in averaged:
        if colour is not None:
            counts[colour] = counts.get(colour, 0) + 1
    ordered = sorted(counts, key=lambda colour: (-counts[colour], colour))
    palette = ordered[:_MOST_COLOURS]
    numbers = {colour: at + 1 for at, colour in enumerate(palette)}
    for colour in ordered[_MOST_COLOURS:]:
        numbers[colour] = 1 + min(
            range(len(palette)), key=lambda at: sum((a - b) ** 2 for a, b in zip(palette[at], colour))
        )
    return numbers, palette
