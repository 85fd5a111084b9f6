"""clang-tidy over all sources in the tidy preset's build: the product with .clang-tidy, the tests with tests/.clang-tidy.

The build puts several sources into one unit, so that headers are read and searched once for all of them. A unit that was
found good is not read again until one of its sources, a header of this repository that it includes, the checks or the
tool change: a stamp named after the hash of all these lies in the user's cache, which all checkouts share.
"""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import subprocess
import time

from .files import ROOT

BUILD = ROOT / "build" / "tidy"
STAMPS = pathlib.Path(os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache") / "phial-lint"
STAMPS_KEPT_SECONDS = 30 * 24 * 3600
FINDING = re.compile(r"^/.*:\d+:\d+: (?:error|warning): ")
SOURCE_OF_UNIT = re.compile(r'^#include "(.+)"$', re.MULTILINE)
# What only a unit of several sources brings about.
OF_UNITS = "-bugprone-suspicious-include"


class Unit:
    """A file that clang-tidy reads: a source, or one made by the build that includes several."""

    def __init__(self, file, sources):
        self.file = file
        self.sources = sources
        is_test = any(str(source).startswith("tests/") for source in sources)
        self.settings = ROOT / ("tests/.clang-tidy" if is_test else ".clang-tidy")

    def problems(self):
        """What clang-tidy finds."""
        result = _run("clang-tidy", "--quiet", "-p", str(BUILD), f"--config-file={self.settings}", f"--checks={OF_UNITS}",
                      str(self.file))
        findings = [line.replace(f"{ROOT}/", "") for line in result.stdout.splitlines() if FINDING.match(line)]
        if result.returncode != 0 and not findings:
            return [f"{self.file}: clang-tidy failed: {result.stderr.strip()}"]
        return findings

    def fingerprint(self, tree, tool):
        """A hash of everything that decides what clang-tidy finds."""
        digest = hashlib.sha256(tool + OF_UNITS.encode() + self.settings.read_bytes())
        reached, open_ends = set(self.sources), list(self.sources)
        while open_ends:
            current = open_ends.pop()
            targets = {tree.resolve(current, name) for _, kind, name in tree.includes(current) if kind == "quoted"}
            open_ends += targets - reached - {None}
            reached |= targets - {None}
        for each in sorted(reached):
            digest.update(str(each).encode() + b"\0" + (tree.text(each) or "").encode() + b"\0")
        return digest.hexdigest()


def check(tree):
    failure = _prepare_build()
    if failure:
        return failure
    STAMPS.mkdir(parents=True, exist_ok=True)
    _forget_old_stamps()
    tool = _run("clang-tidy", "--version").stdout.encode()
    waiting = {unit: STAMPS / unit.fingerprint(tree, tool) for unit in _units(tree)}
    waiting = {unit: stamp for unit, stamp in waiting.items() if not stamp.exists()}
    print(f"lint: tidy: reading {sum(len(unit.sources) for unit in waiting)} changed files and their neighbours", flush=True)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = pool.map(lambda item: _check_unit(*item), waiting.items())
        return sorted({problem for problems in results for problem in problems})


def _prepare_build():
    """Configures the build and lets it generate what sources include; returns the problems of that."""
    result = _run("cmake", "--preset", "tidy")
    if result.returncode == 0:
        targets = _run("ninja", "-C", str(BUILD), "-t", "targets", "all").stdout
        generators = re.findall(r"^(\w+_autogen): phony", targets, re.MULTILINE)
        result = _run("ninja", "-C", str(BUILD), *generators) if generators else result
    return [] if result.returncode == 0 else [f"tidy: {result.stdout}{result.stderr}"]


def _forget_old_stamps():
    for stamp in STAMPS.iterdir():
        if time.time() - stamp.stat().st_mtime > STAMPS_KEPT_SECONDS:
            stamp.unlink(missing_ok=True)


def _units(tree):
    """What the build compiles of the repository's files, each file once."""
    known = {str(ROOT / path): path for path in tree.cpp(".cpp")}
    seen = set()
    for command in json.loads((BUILD / "compile_commands.json").read_text()):
        file = pathlib.Path(command["directory"], command["file"])
        names = [str(file)] if str(file) in known else SOURCE_OF_UNIT.findall(file.read_text())
        sources = tuple(known[name] for name in names if name in known)
        if sources and not seen.issuperset(sources):
            seen.update(sources)
            yield Unit(file, sources)


def _check_unit(unit, stamp):
    problems = unit.problems()
    if not problems:
        stamp.touch()
    return problems


def _run(*command):
    return subprocess.run(command, cwd=ROOT, capture_output=True, text=True)
