"""Texts refer only to what a reader of the repository has: no documents, folders or machines outside it."""
import re

# The brackets keep these patterns from finding themselves.
OUTSIDE = (
    (re.compile(r"\bParts? \d+\.\d", re.IGNORECASE), "a chapter of some document"),
    (re.compile(r"\bsp[e]c(?:s|ification|ifications)?\b", re.IGNORECASE), "a document outside the repository"),
    (re.compile(r"(?<![\w/])[/]work[/]|\.\./sha[r]ed\b"), "a folder outside the repository"),
    (re.compile(r"\bTO[D]O\b|\bFIX[M]E\b"), "work that belongs into an issue"),
)


def check(tree):
    problems = []
    for path in tree.paths:
        problems += [f"{path}:1: the name points at {what}" for pattern, what in OUTSIDE if pattern.search(str(path))]
        for number, line in enumerate((tree.text(path) or "").splitlines(), 1):
            problems += [f"{path}:{number}: points at {what}: {line.strip()[:100]}"
                         for pattern, what in OUTSIDE if pattern.search(line)]
    return problems
