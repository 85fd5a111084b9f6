"""The data tables: every tools/check_<table> is a program that compares one and prints what differs."""
import os
import subprocess

from .files import ROOT


def check(tree):
    problems = []
    for path in tree.paths:
        if path.parts[0] == "tools" and path.name.startswith("check_") and os.access(ROOT / path, os.X_OK):
            result = subprocess.run([ROOT / path], cwd=ROOT, capture_output=True, text=True)
            if result.returncode != 0:
                lines = (result.stdout + result.stderr).splitlines()
                problems += [f"{path}: {line}" for line in lines or [f"ended with {result.returncode}"]]
    return problems
