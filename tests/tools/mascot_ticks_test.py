#!/usr/bin/env python3
"""The table of the mascot's ticks is what its rules make, told once more in few words.

Usage: mascot_ticks_test.py [--write]    (--write: makes tests/vectors/mascot_ticks.txt anew)

Each row of the table is one tick of 10,000, every 40th and each one around what the host does: what is painted of the
eyes and of the first electron, and the properties behind the tick. MascotTicksTest.cpp does the same to the mascot.
"""

import math
import pathlib
import sys
import unittest

TABLE = pathlib.Path(__file__).resolve().parents[1] / "vectors" / "mascot_ticks.txt"
TICKS = 10_000
AHEAD = -100

# What the host does before a tick: a property and its value, "say" or "wrong" with the length of a text, "click".
DEEDS = {
    1: ("EYEBLINKING", 20), 2: ("EYEMOVE", 5), 501: ("say", 5), 1001: ("MOOD", 1), 1501: ("say", 44),
    2001: ("MOOD", 2), 2501: ("wrong", 30), 3001: ("MOOD", 3), 3501: ("say", 10), 3520: ("wrong", 10),
    4001: ("MOOD", 4), 5001: ("MOOD", 5), 6001: ("MOOD", 6), 7001: ("MOOD", 0), 7101: ("EYEMOVE", 3),
    7501: ("ORBSPEED", -35), 8001: ("EYEMOVE", 4), 8501: ("say", 60), 8503: ("MOOD", 4), 8510: ("MOOD", 0),
    9001: ("EYEDIRECTION", 725), 9002: ("EYEMOVE", 0), 9501: ("wrong", 200), 9510: ("click", 0), 9601: ("EYESIZE", 9),
}

MOODS = {  # ORBSPEED, EYEBLINKING, EYEMOVE, EYESIZE, MOUTHOPEN, MOUTHSIZE
    1: (10, 3, 1, 4, 1.0, 8), 2: (10, 1, 0, 4, 0, 15), 3: (30, 10, 5, 7, -2.0, 12),
    4: (-20, 30, 4, 6, 8.0, 8), 5: (10, 10, 5, 8, 20.0, 8), 6: (30, 10, 2, 5, 0.2, 6),
}
LOOK = ("ORBSPEED", "EYEBLINKING", "EYEMOVE", "EYESIZE", "MOUTHOPEN", "MOUTHSIZE", "EYEDIRECTION")
POINTER = (50, 400)  # in the control


def numbers():
    """The random numbers, over and over."""
    while True:
        for at in range(1009):
            yield (at * 7919 + at % 13 * 1049) % 10007 / 10007


class Mascot:
    def __init__(self):
        self.random = numbers()
        self.p = dict(ORBSPEED=10, EYEBLINKING=3, EYEMOVE=0, EYESIZE=4, MOUTHOPEN=0, MOUTHSIZE=10, EYEDIRECTION=0, MOOD=0)
        self.phase = 0.0
        self.eyes = [0, 0]
        self.remembered = 0
        self.blinking = False
        self.saved = None
        self.mode = self.last_mode = 0
        self.time = 0.0
        self.cancelled = False
        self.redraw()  # it comes into sight

    def do(self, deed, value):
        if deed == "click":
            self.cancelled = True
        elif deed in ("say", "wrong"):
            self.cancelled = False
            self.mode = 1 if deed == "say" else 2
            time = value / 5.5
            time = 1.5 * time if time < 30 else time
            self.time = max(time, 4.0)
        elif deed == "MOOD":
            self.mood(value)
        else:
            self.p[deed] = value
            if deed == "EYESIZE":
                self.remembered = value
            self.redraw()

    def save(self):
        if self.saved is None:
            self.saved = {name: self.p[name] for name in LOOK}
            if self.p["EYESIZE"] == 0 and self.remembered:
                self.saved["EYESIZE"] = self.remembered

    def mood(self, value):
        if value == self.p["MOOD"]:
            return
        if value == 0:
            self.restore()
        else:
            self.save()
            self.p.update(zip(LOOK, MOODS[value] + (AHEAD,)))
        self.remembered = self.p["EYESIZE"]
        self.p["MOOD"] = value
        self.redraw()

    def restore(self):
        self.p.update(self.saved)
        if not self.mode:
            self.saved = None

    def tick(self):
        if self.mode:
            self.time -= 0.1
            if self.time <= 0 or self.cancelled:
                self.time, self.cancelled, self.mode = 0, False, 0
        if self.mode != self.last_mode:
            if self.mode:
                self.save()
                self.mood(2 if self.mode == 1 else 3)
            elif self.saved:
                self.restore()
                self.remembered = self.p["EYESIZE"]
                self.p["MOOD"] = 0
                self.redraw()
        if self.mode:
            self.p["MOUTHOPEN"] = next(self.random) * 3 + 1
            self.p["MOUTHSIZE"] = round(next(self.random) * 8 + 5)
        self.last_mode = self.mode
        self.phase += 6.28318 / 100 / 10 * self.p["ORBSPEED"]
        if self.blinking:
            self.blinking = False
            self.p["EYESIZE"] = 0
        elif next(self.random) * 100 < self.p["EYEBLINKING"]:
            self.remembered = self.p["EYESIZE"]
            self.p["EYESIZE"] = 0
            self.blinking = True
        self.redraw()
        if not self.blinking and self.remembered:
            self.p["EYESIZE"] = self.remembered

    def redraw(self):
        if self.phase < 0:
            self.phase += 6.28318
        elif self.phase > 6.28318:
            self.phase -= 6.28318
        if self.p["EYEDIRECTION"] != AHEAD:
            self.p["EYEDIRECTION"] -= 360 * (self.p["EYEDIRECTION"] >= 360)
            self.p["EYEDIRECTION"] += 360 * (self.p["EYEDIRECTION"] < 0)
        self.turn_eyes()
        self.p["MOUTHOPEN"] = min(5, max(-3, self.p["MOUTHOPEN"]))
        self.p["MOUTHSIZE"] = min(15, max(1, self.p["MOUTHSIZE"]))
        self.painted = self.p["EYESIZE"]

    def turn_eyes(self):
        move = self.p["EYEMOVE"]
        if move == 1:
            self.eyes = [towards(POINTER[0] - x, POINTER[1] - 31) for x in (34, 66)]
        elif move == 2:
            self.eyes = [angle + 30 - 360 * (angle + 30 >= 360) for angle in self.eyes]
        elif move == 3:
            self.eyes = [angle - 30 + 360 * (angle - 30 < 0) for angle in self.eyes]
        elif move == 4:
            self.eyes = [round(next(self.random) * 360), round(next(self.random) * 360)]
        elif move == 5:
            if next(self.random) < 0.03:
                self.eyes = [AHEAD if next(self.random) < 0.6 else round(next(self.random) * 360)] * 2
        else:
            self.eyes = [self.p["EYEDIRECTION"]] * 2

    def eye_places(self):
        radius = self.painted
        if radius <= 0:
            return "closed"
        offsets = [None if angle == AHEAD else
                   tuple(round(f(angle * 2 * 3.14159 / 360) * (6 - radius / 2)) for f in (math.cos, math.sin))
                   for angle in self.eyes]
        left = offsets[0] or (0, 0)
        right = offsets[1] or left
        return f"r{radius} {34 + left[0]},{31 + left[1]} {66 + right[0]},{31 + right[1]}"

    def electron(self):
        return f"{round(math.cos(self.phase) * 40 + 44.5)},{round(math.sin(self.phase) * 40 + 39.5)}"


def towards(dx, dy):
    if dx == 0:
        return 90 if dy > 0 else 270
    distance = round(math.hypot(dx, dy))
    cosine = dx / distance
    turn = (0 if cosine == 1 else 3.14159 if cosine == -1 else
            math.atan(-cosine / math.sqrt(1 - cosine * cosine)) + 2 * math.atan(1))
    angle = round(turn * 360 / 6.28318)
    return 360 - angle if dy < 0 else angle


def table():
    lines = ["# Made by tests/tools/mascot_ticks_test.py --write: tick, what the host does before it, eyes and first",
             "# electron as painted, then MOOD, EYESIZE, MOUTHOPEN, MOUTHSIZE and BUBBLETIME behind it."]
    mascot = Mascot()
    near = {at + step for at in DEEDS for step in (0, 1, 2)}
    for tick in range(1, TICKS + 1):
        deed = DEEDS.get(tick)
        if deed:
            mascot.do(*deed)
        mascot.tick()
        if tick % 40 == 0 or tick in near:
            p = mascot.p
            lines.append(" | ".join((f"tick{tick}", f"{deed[0]} {deed[1]}" if deed else '""', mascot.eye_places(),
                                     mascot.electron(), str(p["MOOD"]), str(p["EYESIZE"]), f"{p['MOUTHOPEN']:.6f}",
                                     str(p["MOUTHSIZE"]), f"{mascot.time:.6f}")))
    return "\n".join(lines) + "\n"


class Table(unittest.TestCase):
    def test_is_what_the_rules_make(self):
        self.assertEqual(TABLE.read_text(encoding="utf-8"), table())


if __name__ == "__main__":
    if "--write" in sys.argv:
        TABLE.write_text(table(), encoding="utf-8")
    else:
        unittest.main()
