"""How soon sounds are heard, beside paplay, and what playing takes, on a server of sounds of our own."""

import contextlib
import os
import pathlib
import statistics
import subprocess
import tempfile
import threading
import time
from dataclasses import dataclass

import startup_cost

RATE = 44100
FRAME = 4  # bytes: two channels of 16 bits
ROUNDS = 15
VOICES_SECONDS = 5


@dataclass
class Cost:
    """Seconds from the call to the first sample at the loudspeaker, and the share of a processor for four voices."""
    ours: list
    paplay: list
    voices: float


class Loudspeaker:
    """What is heard, with the time at which each piece came."""

    def __init__(self, environment):
        self.process = subprocess.Popen(["parec", "-d", "heard.monitor", "--format=s16le", f"--rate={RATE}", "--channels=2",
                                         "--latency-msec=5"], env=environment, stdout=subprocess.PIPE)
        self.loud = None  # when the first sample came that is not silent
        self.thread = threading.Thread(target=self.listen, daemon=True)
        self.thread.start()

    def listen(self):
        while data := os.read(self.process.stdout.fileno(), 65536):
            if self.loud is None and data.strip(b"\0"):
                self.loud = time.monotonic()

    def wait(self):
        end = time.monotonic() + 10
        while self.loud is None and time.monotonic() < end:
            time.sleep(0.001)
        return self.loud

    def close(self):
        self.process.kill()
        self.process.wait()


@contextlib.contextmanager
def server():
    """The environment of a server of sounds with one loudspeaker that nobody hears."""
    with tempfile.TemporaryDirectory() as home:
        places = startup_cost.home_environment(home)
        environment = places | {"PULSE_SERVER": f"unix:{home}/socket", "PULSE_RUNTIME_PATH": places["XDG_RUNTIME_DIR"]}
        process = subprocess.Popen(
            ["pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--realtime=no", "--high-priority=no",
             "--use-pid-file=no", "-L", f"module-native-protocol-unix auth-anonymous=1 socket={home}/socket",
             "-L", f"module-null-sink sink_name=heard rate={RATE} channels=2 norewinds=1"],
            env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            while subprocess.run(["pactl", "info"], env=environment, check=False, capture_output=True).returncode:
                time.sleep(0.05)
            yield environment
        finally:
            process.kill()
            process.wait()


def heard_after(loudspeaker, play):
    """Seconds from the start, which `play` tells, to the first sample."""
    time.sleep(1.2)  # until it is silent
    loudspeaker.loud = None
    begin = play()
    return loudspeaker.wait() - begin


def measure(program, wave):
    with server() as environment:
        player = subprocess.Popen([program], env=environment, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)

        def ask(line):
            player.stdin.write(line + "\n")
            player.stdin.flush()
            return float(player.stdout.readline())

        def paplay():
            begin = time.monotonic()
            subprocess.run(["paplay", str(wave)], env=environment, check=True)
            return begin

        player.stdout.readline()
        loudspeaker = Loudspeaker(environment)
        path = str(wave).replace("/", "\\")
        ask(f"play {path}")
        time.sleep(1)
        ours, others = [], []
        for _ in range(ROUNDS):
            ours.append(heard_after(loudspeaker, lambda: ask(f"play {path}")))
            others.append(heard_after(loudspeaker, paplay))
        loudspeaker.close()
        voices = ask(f"voices {path}") / VOICES_SECONDS
        player.stdin.close()
        player.wait()
    return Cost(ours, others, voices)


def median(seconds):
    return f"{1e3 * statistics.median(seconds):.0f} ms ({1e3 * min(seconds):.0f} to {1e3 * max(seconds):.0f})"
