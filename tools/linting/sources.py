"""Every source file is built, and every fuzz target has inputs to begin with."""
import re

FUZZ_TARGET = re.compile(r"^ *phial_fuzz\((\w+)", re.MULTILINE)


def check(tree):
    lists = {path.parent: tree.text(path) for path in tree.paths if path.name == "CMakeLists.txt"}
    problems = [f"{path}:1: no CMakeLists.txt names this file"
                for path in tree.cpp(".cpp") if not _is_listed(path, lists)]
    for folder, text in lists.items():
        for name in FUZZ_TARGET.findall(text):
            corpus = folder / "corpus" / name
            if not any(corpus in path.parents for path in tree.paths):
                problems.append(f"{folder}/CMakeLists.txt:1: fuzz target {name} has no files in {corpus}")
    return problems


def _is_listed(path, lists):
    for folder in path.parents:
        text = lists.get(folder, "")
        name = path.relative_to(folder).as_posix()
        if re.search(rf"(?<![\w/.]){re.escape(name)}(?![\w.])", text) or path.stem in FUZZ_TARGET.findall(text):
            return True
    return False
