"""Layout of the C++ sources: clang-format has the last word."""
import re
import subprocess

from .files import ROOT

WARNING = re.compile(r"^(?P<place>[^:]+:\d+):\d+: (?:error|warning): ")


def check(tree):
    paths = [str(path) for path in tree.cpp()]
    if not paths:
        return []
    result = subprocess.run(["clang-format", "--dry-run", "-Werror", *paths],
                            cwd=ROOT, capture_output=True, text=True)
    places = (WARNING.match(line) for line in result.stderr.splitlines())
    lines = dict.fromkeys(place["place"] for place in places if place)
    problems = [f"{line}: not laid out as clang-format does" for line in lines]
    if result.returncode != 0 and not problems:
        problems = [f"clang-format: {result.stderr.strip()}"]
    return problems
