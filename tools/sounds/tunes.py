"""The sounds of the installation: which notes each has, how long it lasts, and how loud its category is.

In a tune a word is a beat: notes joined by "+" sound together, "." leaves the beat to what rings, and "/" ahead of
notes puts them between two beats, half a beat later than the one before.
"""

import math
from dataclasses import dataclass


@dataclass(frozen=True)
class Category:
    """A folder of sounds."""
    loudness: float  # root of the mean square in the loudest 0.4 seconds; 1 is full scale
    tunes: dict


@dataclass(frozen=True)
class Tune:
    instrument: str
    beat: float     # seconds
    seconds: float  # in all
    notes: str


CATEGORIES = {
    # What the pupil did was right: something rises. The names are shown.
    "correct": Category(0.1, {
        "Bravo": Tune("bell", 0.09, 0.75, "C5 E5 G5 C6"),
        "Cool": Tune("marimba", 0.12, 0.65, "G4 C5 . E5+G5"),
        "Super": Tune("bell", 0.11, 0.7, "E5 G5 C6"),
        "Top": Tune("bell", 0.13, 0.6, "G5 C6+E6"),
        "Wow": Tune("marimba", 0.1, 0.7, "C5 G5 E5 C6 G5+E6"),
        "Yeah": Tune("bell", 0.08, 0.75, "F5 A5 C6 F6+A5"),
    }),
    # It was not: a third falls, softly. The names are shown.
    "wrong": Category(0.075, {
        "Hm": Tune("marimba", 0.18, 0.6, "G4 E4"),
        "Oh": Tune("marimba", 0.2, 0.6, "A4 F4"),
        "Oops": Tune("marimba", 0.15, 0.55, "F4 D4"),
        "Sorry": Tune("marimba", 0.22, 0.65, "E4 C4"),
    }),
    # A key has been pressed.
    "click": Category(0.02, {
        "tick": Tune("wood", 0.05, 0.06, "D6"),
        "tock": Tune("wood", 0.05, 0.06, "A5"),
    }),
    # Syllables of the mascot.
    "say": Category(0.055, {
        "ba": Tune("marimba", 0.1, 0.14, "D5"),
        "bi": Tune("marimba", 0.1, 0.14, "A5"),
        "bo": Tune("marimba", 0.1, 0.14, "F5"),
        "bu": Tune("marimba", 0.1, 0.14, "C5"),
    }),
    # Hymns for a work that is done. The names are shown.
    "reward": Category(0.1, {
        "Carillon": Tune("bell", 0.2, 2.3, "G5 E5 F5 D5 E5 C5 D5 C5+E5+G5"),
        "Fanfare": Tune("bell", 0.2, 2.2, "C5 /C5 /C5 E5+G5 C5+E5 G5 . C5+E5+G5+C6"),
        "Gloria": Tune("bell", 0.32, 2.5, "C5+E5+G5 F5+A5+C6 G5+B5+D6 C5+G5+E6+C6"),
        "Polka": Tune("marimba", 0.16, 2.1, "C5 /E5 G5 /E5 F5 /A5 G5 . G5 /F5 E5 /D5 C5+E5 . C5+G5+C6"),
        "Serenade": Tune("marimba", 0.2, 2.4, "G4+C5 E5 G5 F5+A4 E5 D5 E5+C5 . C5+E5+G5+C6"),
    }),
    # The result of a round is shown.
    "result": Category(0.1, {
        "Coda": Tune("bell", 0.4, 1.6, "F4+A4+C5 C4+E4+G4+C5"),
        "Finale": Tune("bell", 0.1, 1.7, "C4 E4 G4 C5 E5 G5 C5+E5+G5+C6"),
    }),
}


def placed_notes(tune):
    """Each note of a tune with the time in seconds at which it begins, and its loudness: the more sound together, the
    softer is each."""
    beat = -1.0
    for word in tune.notes.split():
        beat = beat + 0.5 if word.startswith("/") else float(int(beat) + 1) if beat >= 0 else 0.0
        if word != ".":
            notes = word.lstrip("/").split("+")
            for note in notes:
                yield note, beat * tune.beat, 1 / math.sqrt(len(notes))
