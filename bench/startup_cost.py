"""What starting a program costs, by starting it many times."""

import os
import pathlib
import resource
import statistics
import subprocess
import tempfile
import time
from dataclasses import dataclass

WARM_UPS = 3
ROUNDS = 60


@dataclass
class Cost:
    """Medians in seconds: by the wall clock and in processor time."""
    wall: float
    processor: float


def measure(programs):
    """The cost of each program in the order given. They take turns, so that whatever else the machine does meets
    all of them; a home of their own keeps the user's settings out."""
    with tempfile.TemporaryDirectory() as home:
        environment = home_environment(home)
        for program in WARM_UPS * programs:
            start(program, environment)
        runs = [[start(program, environment) for program in programs] for _ in range(ROUNDS)]
    return [Cost(*map(statistics.median, zip(*own))) for own in zip(*runs)]


def home_environment(home):
    runtime = pathlib.Path(home, "runtime")
    runtime.mkdir(mode=0o700)
    places = {"HOME": home, "PUBLIC": f"{home}/public", "XDG_RUNTIME_DIR": str(runtime)}
    kept = {name: value for name, value in os.environ.items() if not name.startswith(("XDG_", "APPDATA"))}
    return kept | places | {"QT_QPA_PLATFORM": "offscreen"}


def start(program, environment):
    """Wall and processor time of one run."""
    used_before = children_time()
    began = time.perf_counter()
    subprocess.run([program], env=environment, check=True)
    return time.perf_counter() - began, children_time() - used_before


def children_time():
    usage = resource.getrusage(resource.RUSAGE_CHILDREN)
    return usage.ru_utime + usage.ru_stime
