"""The direction of includes: hosts and adapter above the subsystems, these above visual, visual above core."""
import re

# Each may use those before it. The root and its sub-objects use all of them, since they hand them out; so do the
# frame's own dialogs.
SUBSYSTEMS = ("app", "chem", "term", "calc", "media", "results", "server", "mascot", "periodic", "dialogs", "desk")
ROOTS_OWN = re.compile(r"(cls_App\w*|StartUp|Session|frm_DialogUser)\.cpp$")
SYSTEM = ("core", "visual", *SUBSYSTEMS)
# What each folder of src/ may include besides itself. Subsystems reach each other through the root; their .cpp
# files may include earlier neighbours for that, their headers may not.
BELOW = {
    "core": (),
    "visual": ("core",),
    "headless": SYSTEM,
    "sealing": ("core",),
    "qt/base": (*SYSTEM, "sealing"),
    "qt/sound": SYSTEM,
    "qt/desktop": (*SYSTEM, "qt/base", "qt/sound"),
    **{subsystem: ("core", "visual") for subsystem in SUBSYSTEMS},
}


def check(tree):
    problems = []
    for path in tree.cpp():
        problems += [f"{path}:{line}: {what}" for line, what in _problems_of(tree, path)]
    return problems


def _problems_of(tree, path):
    if path.suffix == ".h" and "#pragma once" not in tree.text(path):
        yield 1, "a header begins with #pragma once"
    folder = _folder(path)
    for line, kind, name in tree.includes(path):
        if kind == "system":
            if _is_qt(name) and not _may_know_qt(path):
                yield line, f"<{name}> belongs to the adapter; use an interface of core or visual"
            continue
        target = tree.resolve(path, name)
        if folder is None or target is None:
            continue
        if target.parts[0] != "src":
            yield line, f'"{name}" lies outside src/'
        elif not _may_include(path, folder, _folder(target)):
            yield line, f'"{name}" is not below src/{folder}'
        elif target.relative_to("src").as_posix() != name:
            yield line, f'"{name}" is written from the folder src/: "{target.relative_to("src")}"'


def _folder(path):
    """The layer of a file below src/ ("core", "qt/base", ...), or None for one outside."""
    if path.parts[0] != "src" or len(path.parts) < 3:
        return None
    return "/".join(path.parts[1:3]) if path.parts[1] == "qt" and len(path.parts) > 3 else path.parts[1]


def _may_include(path, folder, target):
    below = BELOW.get(folder, ())
    if target == folder or target in below:
        return True
    if path.suffix != ".cpp" or folder not in SUBSYSTEMS or target not in SUBSYSTEMS:
        return False
    return SUBSYSTEMS.index(target) < SUBSYSTEMS.index(folder) or bool(ROOTS_OWN.fullmatch(path.name))


def _is_qt(name):
    return name.startswith("Q") or name.startswith("private/q")


def _may_know_qt(path):
    parts = path.parts
    return (parts[:2] in (("src", "qt"), ("tests", "qt"), ("tests", "consumer"), ("hosts", "master"),
                          ("tests", "master"))
            or parts[0] == "bench"
            or (parts[0] in ("hosts", "examples") and path.name == "main.cpp"))
