"""The files of the repository, as the checks see them."""
import functools
import os
import pathlib
import re
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[2]
INCLUDE = re.compile(r'^\s*#\s*include\s*(?P<quote>["<])(?P<name>[^">]+)[">]')


class Tree:
    """Every file that is or may become part of the repository; paths are relative to its root."""

    def __init__(self):
        listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                                cwd=ROOT, check=True, capture_output=True, text=True).stdout
        self.paths = sorted({pathlib.PurePosixPath(name) for name in listed.split("\0")
                             if name and (ROOT / name).is_file()})

    def cpp(self, *suffixes):
        """The C++ files, or those with the given suffixes."""
        return [path for path in self.paths if path.suffix in (suffixes or (".h", ".cpp"))]

    @functools.cache
    def text(self, path):
        """The text of a file, or None for a binary one."""
        try:
            return (ROOT / path).read_text(encoding="utf-8")
        except UnicodeDecodeError:
            return None

    @functools.cache
    def includes(self, path):
        """What a C++ file includes: (line number, "quoted" or "system", name)."""
        found = []
        for number, line in enumerate((self.text(path) or "").splitlines(), 1):
            match = INCLUDE.match(line)
            if match:
                kind = "quoted" if match["quote"] == '"' else "system"
                found.append((number, kind, match["name"]))
        return tuple(found)

    @functools.cache
    def resolve(self, path, name):
        """The repository's file that a quoted include means, or None."""
        known = self._known()
        for folder in (path.parent, pathlib.PurePosixPath("src"), pathlib.PurePosixPath("tests"),
                       pathlib.PurePosixPath("hosts"), pathlib.PurePosixPath(".")):
            candidate = pathlib.PurePosixPath(os.path.normpath(folder / name))
            if candidate in known:
                return candidate
        return None

    @functools.cache
    def _known(self):
        return frozenset(self.paths)
