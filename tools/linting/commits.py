"""Subjects of commits read "area: imperative sentence"."""
import re
import subprocess

from .files import ROOT

# What stood before the rule was checked stays as it is.
CHECKED_SINCE = "2be614d5e01689db703c50a8a26a9cee1024847c"
LONGEST = 72
OTHER_AREAS = {"build", "tests", "docs", "tools", "bench", "resources", "examples"}
SUBJECT = re.compile(r"(?P<area>[a-z_]+): \S.*[^.\s]")


def check(tree):
    areas = OTHER_AREAS | {path.parts[1] for path in tree.paths if path.parts[0] in ("src", "hosts") and len(path.parts) > 2}
    return [f"{commit}: {what}: {subject}" for commit, subject in _subjects() for what in _problems_of(subject, areas)]


def _subjects():
    """The commits to check; none in a checkout whose history does not reach back so far."""
    listed = subprocess.run(["git", "log", "--no-merges", "--format=%h%x09%s", f"{CHECKED_SINCE}..HEAD"],
                            cwd=ROOT, capture_output=True, text=True)
    return [line.split("\t", 1) for line in listed.stdout.splitlines()] if listed.returncode == 0 else []


def _problems_of(subject, areas):
    match = SUBJECT.fullmatch(subject)
    if not match:
        yield 'the subject is not "area: imperative sentence"'
    elif match["area"] not in areas:
        yield f"{match['area']} is no folder of src/ or hosts/, nor one of {', '.join(sorted(OTHER_AREAS))}"
    if len(subject) > LONGEST:
        yield f"the subject has more than {LONGEST} characters"
