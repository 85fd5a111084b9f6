"""A canvas of flat colours on which smooth shapes are painted."""

import math

SIDE = 96
"""Width and height of an avatar in pixels; shapes are placed in these units, y downward."""

_FINE = 4  # samples across a pixel
_MOST_COLOURS = 255


class Canvas:
    """Paints shapes one upon the other, sampled finely, and averages the samples at the end."""

    def __init__(self):
        self._size = SIDE * _FINE
        self._rows = [[None] * self._size for _ in range(self._size)]

    def polygon(self, points, colour):
        """A filled figure; colour is (red, green, blue)."""
        corners = [(x * _FINE, y * _FINE) for x, y in points]
        edges = list(zip(corners, corners[1:] + corners[:1]))
        top = max(0, math.floor(min(y for _, y in corners)))
        bottom = min(self._size, math.ceil(max(y for _, y in corners)) + 1)
        for row in range(top, bottom):
            middle = row + 0.5
            crossings = sorted(
                x1 + (middle - y1) * (x2 - x1) / (y2 - y1)
                for (x1, y1), (x2, y2) in edges
                if (y1 <= middle) != (y2 <= middle)
            )
            for left, right in zip(crossings[::2], crossings[1::2]):
                start = max(0, round(left))
                end = min(self._size, round(right))
                if end > start:
                    self._rows[row][start:end] = [colour] * (end - start)

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
        averaged = [self._pixel(x, y) for y in range(SIDE) for x in range(SIDE)]
        numbers, palette = _number_colours(averaged)
        return palette, [0 if colour is None else numbers[colour] for colour in averaged]

    def _pixel(self, x, y):
        """The mean of the painted samples; None where less than half of them are painted."""
        samples = [
            sample
            for row in self._rows[y * _FINE : (y + 1) * _FINE]
            for sample in row[x * _FINE : (x + 1) * _FINE]
            if sample is not None
        ]
        if len(samples) * 2 < _FINE * _FINE:
            return None
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
