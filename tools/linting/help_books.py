"""From which texts the help books of the learning apps have been painted."""

import hashlib

APPS = ("molmasse", "puzzle", "formeln")
SUMS = "painted.txt"
"""The file beside an app's texts that tells their sums, since pictures differ with the fonts of a computer."""


def sums(folder):
    """A line for each text of a book."""
    return "".join(f"{hashlib.sha256(text.read_bytes()).hexdigest()}  {text.name}\n" for text in texts(folder))


def texts(folder):
    return [folder / f"{language}.txt" for language in ("de", "en")]
