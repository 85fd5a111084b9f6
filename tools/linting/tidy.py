"""clang-tidy over all sources: the product with .clang-tidy, the tests with tests/.clang-tidy.

The build puts several sources into one unit, so that headers are read and searched once for all of them.
"""
import re

from . import compiled
from .files import ROOT

FINDING = re.compile(r"^/.*:\d+:\d+: (?:error|warning): ")
# What only a unit of several sources brings about.
OF_UNITS = "-bugprone-suspicious-include"


def check(tree):
    return compiled.prepare() or compiled.problems_of(tree, "tidy", compiled.units(tree), _problems, _kind)


def _problems(unit):
    result = compiled.run("clang-tidy", "--quiet", "-p", str(compiled.BUILD), f"--config-file={_settings(unit)}",
                          f"--checks={OF_UNITS}", str(unit.file))
    findings = [line.replace(f"{ROOT}/", "") for line in result.stdout.splitlines() if FINDING.match(line)]
    if result.returncode != 0 and not findings:
        return [f"{unit.file}: clang-tidy failed: {result.stderr.strip()}"]
    return findings


def _kind(unit):
    return compiled.version("clang-tidy") + OF_UNITS.encode() + _settings(unit).read_bytes()


def _settings(unit):
    return ROOT / ("tests/.clang-tidy" if unit.belongs_to("tests") else ".clang-tidy")
