#!/usr/bin/env python3
"""Runs a program on an X11 desktop of its own, in memory, with a real window manager.

with_desktop.py [--manager openbox] [--screens 1920x1080,1024x600] PROGRAM ARGUMENT...

The screens stand side by side, the first one on the left. The desktop takes a free display number, has its own folders
for what runs and what is configured, and ends with the program, whose exit status is given back. `{desktop}` in an
argument of the manager, as in "icewm --config={desktop}/icewm", stands for those folders' place.
"""
import argparse
import contextlib
import os
import pathlib
import shlex
import subprocess
import sys
import tempfile
import time

PATIENCE = 20  # seconds


def size(text):
    width, height = text.split("x")
    return int(width), int(height)


def wait_until(holds, what):
    end = time.monotonic() + PATIENCE
    while not holds():
        if time.monotonic() > end:
            raise TimeoutError(f"waited in vain: {what}")
        time.sleep(0.02)


def started(stack, *command, **options):
    """A process that ends with the desktop."""
    process = stack.enter_context(subprocess.Popen(command, stdin=subprocess.DEVNULL, **options))
    stack.callback(process.terminate)
    return process


def start_server(stack, screens, log):
    """Starts the server on a free display; gives the display's name."""
    width, height = sum(w for w, _ in screens), max(h for _, h in screens)
    reader, writer = os.pipe()
    with open(reader, encoding="ascii") as told:
        started(stack, "Xvfb", "-displayfd", str(writer), "-nolisten", "tcp", "-noreset", "-screen", "0",
                f"{width}x{height}x24", pass_fds=[writer], stdout=log, stderr=log)
        os.close(writer)
        number = told.readline().strip()
    if not number:
        raise RuntimeError("the server does not start")
    return f":{number}"


def part_screens(screens, environment):
    left = 0
    for at, (width, height) in enumerate(screens):
        subprocess.run(["xrandr", "--setmonitor", f"part{at}", f"{width}/{width}x{height}/{height}+{left}+0",
                        "none" if at else "screen"], env=environment, check=True, stdout=subprocess.DEVNULL)
        left += width


def has_manager(environment):
    answer = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], env=environment, text=True,
                            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False).stdout
    return "window id" in answer


def run(manager, screens, command):
    with tempfile.TemporaryDirectory(prefix="desktop") as folder, contextlib.ExitStack() as stack:
        log = stack.enter_context(open(pathlib.Path(folder, "log"), "wb"))
        environment = os.environ | {"HOME": folder, "XDG_RUNTIME_DIR": folder, "XDG_CONFIG_HOME": folder,
                                    "QT_QPA_PLATFORM": "xcb", "LIBGL_ALWAYS_SOFTWARE": "1"}
        for name in ("WAYLAND_DISPLAY", "XAUTHORITY", "XDG_CURRENT_DESKTOP", "XDG_SESSION_TYPE"):
            environment.pop(name, None)
        environment["DISPLAY"] = start_server(stack, screens, log)
        if len(screens) > 1:
            part_screens(screens, environment)
        started(stack, *shlex.split(manager.replace("{desktop}", folder)), env=environment, stdout=log, stderr=log)
        wait_until(lambda: has_manager(environment), f"{manager} begins")
        return subprocess.run(command, env=environment, check=False).returncode


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--manager", default="openbox")
    parser.add_argument("--screens", default="1920x1080")
    parser.add_argument("command", nargs=argparse.REMAINDER)
    options = parser.parse_args()
    return run(options.manager, [size(screen) for screen in options.screens.split(",")], options.command)


if __name__ == "__main__":
    sys.exit(main())
