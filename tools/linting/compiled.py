"""The tidy preset's build, which compiles nothing: how each source would be compiled, and what was found good before.

What was found good is not read again until a source, a header of this repository that it includes, or what it was read
with changes: a stamp named after the hash of all these lies in the user's cache, which all checkouts share.
"""
import concurrent.futures
import functools
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import time

from .files import ROOT

BUILD = ROOT / "build" / "tidy"
STAMPS = pathlib.Path(os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache") / "phial-lint"
STAMPS_KEPT_SECONDS = 30 * 24 * 3600
SOURCE_OF_UNIT = re.compile(r'^#include "(.+)"$', re.MULTILINE)


class Unit:
    """What one call of the compiler reads: a source, or a file made by the build that includes several."""

    def __init__(self, file, sources, arguments):
        self.file = file
        self.sources = sources
        self.arguments = arguments  # of the compiler, without the file and what is made of it

    def belongs_to(self, folder):
        return any(source.parts[0] == folder for source in self.sources)


def prepare():
    """Configures the build and lets it generate what sources include; returns the problems of that."""
    result = run("cmake", "--preset", "tidy")
    if result.returncode == 0:
        targets = run("ninja", "-C", str(BUILD), "-t", "targets", "all").stdout
        generators = re.findall(r"^(\w+_autogen): phony", targets, re.MULTILINE)
        result = run("ninja", "-C", str(BUILD), *generators) if generators else result
    return [] if result.returncode == 0 else [f"{BUILD.name}: {result.stdout}{result.stderr}"]


def units(tree):
    """What the build compiles of the repository's files, each file once."""
    known = {str(ROOT / path): path for path in tree.cpp(".cpp")}
    seen = set()
    for command in json.loads((BUILD / "compile_commands.json").read_text()):
        file = pathlib.Path(command["directory"], command["file"])
        names = [str(file)] if str(file) in known else SOURCE_OF_UNIT.findall(file.read_text())
        sources = tuple(known[name] for name in names if name in known)
        if sources and not seen.issuperset(sources):
            seen.update(sources)
            arguments = shlex.split(command["command"])
            yield Unit(file, sources, arguments[:arguments.index("-o")])


def problems_of(tree, name, jobs, read, kind):
    """Reads the jobs, of which each has `sources`, that were not found good before; returns what `read` finds in them.

    `kind(job)` gives the bytes beside the sources that decide what is found.
    """
    STAMPS.mkdir(parents=True, exist_ok=True)
    _forget_old_stamps()
    waiting = {job: STAMPS / _fingerprint(tree, name.encode() + kind(job), job.sources) for job in jobs}
    waiting = {job: stamp for job, stamp in waiting.items() if not stamp.exists()}
    print(f"lint: {name}: reading {sum(len(job.sources) for job in waiting)} files", flush=True)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = pool.map(lambda item: _read(read, *item), waiting.items())
        return sorted({problem for problems in results for problem in problems})


def _read(read, job, stamp):
    problems = read(job)
    if not problems:
        stamp.touch()
    return problems


def _fingerprint(tree, kind, sources):
    """A hash of the sources and all that they include of the repository."""
    digest = hashlib.sha256(kind)
    reached, open_ends = set(sources), list(sources)
    while open_ends:
        current = open_ends.pop()
        targets = {tree.resolve(current, name) for _, kind, name in tree.includes(current) if kind == "quoted"}
        open_ends += targets - reached - {None}
        reached |= targets - {None}
    for each in sorted(reached):
        digest.update(str(each).encode() + b"\0" + (tree.text(each) or "").encode() + b"\0")
    return digest.hexdigest()


def _forget_old_stamps():
    for stamp in STAMPS.iterdir():
        if time.time() - stamp.stat().st_mtime > STAMPS_KEPT_SECONDS:
            stamp.unlink(missing_ok=True)


@functools.cache
def version(tool):
    return run(tool, "--version").stdout.encode()


def run(*command):
    return subprocess.run(command, cwd=ROOT, capture_output=True, text=True)
