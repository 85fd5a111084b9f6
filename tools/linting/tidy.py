"""clang-tidy over the product's source files in the tidy preset's build; tests are held to the compilers' warnings.

A file that was found good is not read again until it, a header of this repository that it includes, the checks or
the tool change: a stamp named after the hash of all these lies in the user's cache, which all checkouts share.
"""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import subprocess

from .files import ROOT

BUILD = ROOT / "build" / "tidy"
STAMPS = pathlib.Path(os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache") / "phial-lint"
FINDING = re.compile(r"^/.*:\d+:\d+: (?:error|warning): ")


def check(tree):
    failure = _prepare_build()
    if failure:
        return failure
    STAMPS.mkdir(parents=True, exist_ok=True)
    settings = (ROOT / ".clang-tidy").read_bytes() + _run("clang-tidy", "--version").stdout.encode()

    waiting = {path: STAMPS / _fingerprint(tree, path, settings) for path in _compiled(tree)}
    waiting = {path: stamp for path, stamp in waiting.items() if not stamp.exists()}
    print(f"lint: tidy: reading {len(waiting)} changed files", flush=True)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = pool.map(lambda item: _check_file(*item), waiting.items())
        return sorted({problem for problems in results for problem in problems})


def _prepare_build():
    """Configures the build and lets it generate what sources include; returns the problems of that."""
    steps = [["cmake", "--preset", "tidy"]]
    result = _run(*steps[0])
    if result.returncode == 0:
        targets = _run("ninja", "-C", str(BUILD), "-t", "targets", "all").stdout
        generators = re.findall(r"^(\w+_autogen): phony", targets, re.MULTILINE)
        result = _run("ninja", "-C", str(BUILD), *generators) if generators else result
    return [] if result.returncode == 0 else [f"tidy: {result.stdout}{result.stderr}"]


def _compiled(tree):
    """The repository's files among the commands of the build."""
    known = {ROOT / path: path for path in tree.cpp(".cpp") if not str(path).startswith("tests/")}
    commands = json.loads((BUILD / "compile_commands.json").read_text())
    files = (pathlib.Path(command["directory"], command["file"]) for command in commands)
    return sorted({known[file] for file in files if file in known})


def _fingerprint(tree, path, settings):
    digest = hashlib.sha256(settings)
    reached, open_ends = {path}, [path]
    while open_ends:
        current = open_ends.pop()
        targets = {tree.resolve(current, name) for _, kind, name in tree.includes(current) if kind == "quoted"}
        open_ends += targets - reached - {None}
        reached |= targets - {None}
    for each in sorted(reached):
        digest.update(str(each).encode() + b"\0" + (tree.text(each) or "").encode() + b"\0")
    return digest.hexdigest()


def _check_file(path, stamp):
    result = _run("clang-tidy", "--quiet", "-p", str(BUILD), str(ROOT / path))
    findings = [line.replace(f"{ROOT}/", "") for line in result.stdout.splitlines() if FINDING.match(line)]
    if result.returncode == 0 and not findings:
        stamp.touch()
        return []
    return findings or [f"{path}: clang-tidy failed: {result.stderr.strip()}"]


def _run(*command):
    return subprocess.run(command, cwd=ROOT, capture_output=True, text=True)
