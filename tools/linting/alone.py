"""Every source of the product includes what it needs itself; in a unit it could live on what its neighbours include."""
import re

from . import compiled
from .files import ROOT

FINDING = re.compile(r"^.*:\d+:\d+: (?:fatal )?error: .*$", re.MULTILINE)


class _Source:
    def __init__(self, path, arguments):
        self.sources = (path,)
        self.path = path
        self.arguments = arguments


def check(tree):
    return compiled.prepare() or compiled.problems_of(tree, "alone", _sources(tree), _problems, _kind)


def _sources(tree):
    for unit in compiled.units(tree):
        if len(unit.sources) > 1 and not unit.belongs_to("tests"):
            for path in unit.sources:
                yield _Source(path, unit.arguments)


def _problems(source):
    result = compiled.run(*source.arguments, "-fsyntax-only", str(ROOT / source.path))
    findings = [line.replace(f"{ROOT}/", "") for line in FINDING.findall(result.stderr)]
    return findings or ([] if result.returncode == 0 else [f"{source.path}: {result.stderr.strip()}"])


def _kind(source):
    return compiled.version("clang++") + " ".join(source.arguments).replace(str(ROOT), "").encode()
