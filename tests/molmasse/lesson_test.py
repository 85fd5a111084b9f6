#!/usr/bin/env python3
"""A lesson with the two real programs: the classroom's master, and the trainer with a pupil before it.

lesson_test.py TREE runs the programs of that installation tree. The teacher types commands into the master; the pupil
sees the trainer's screen and presses its keys (see remote_screen.py). What went over the network is read from the
trainer's log of the network, what was stored from the master, and from the trainer's own files when there is none.
"""
import os
import pathlib
import random
import shutil
import socket
import subprocess
import sys
import tempfile
import threading
import time
import unittest

from remote_screen import ESCAPE, RETURN, SHIFT, TAB, RemoteScreen

PATIENCE = 30  # seconds
TASKS = "[leicht] Leicht | Easy\nH2O | Wasser | water\n"
# The platform "vnc" has no font that a user has set, and the toolkit's own is large: nobody is warned of it here.
SETTINGS = r"""[software]
qv%20brunnhof\phial\config\largefontwarn=boolean:true
qv%20brunnhof\phial\config\screennamemru=list:|Lena:eule
qv%20brunnhof\phial\config\serverip=text:{address}
"""


def wait_until(holds, what, meanwhile=lambda: None, pause=0.2):
    """Does `meanwhile` again and again until the condition holds."""
    end = time.monotonic() + PATIENCE
    while not holds():
        if time.monotonic() > end:
            raise TimeoutError(f"waited in vain: {what}")
        meanwhile()
        time.sleep(pause)


def free_port():
    with socket.socket() as probe:
        probe.bind(("", 0))
        return probe.getsockname()[1]


READING_TIME = 1  # seconds; the trainer hears no press right behind a verdict


class Master:
    """The master's program and the teacher who types into it."""

    def __init__(self, tree, folder, address):
        self._said = []
        self.process = subprocess.Popen(
            [tree / "apps/Master/master", "--listen", address, "--udp", "0", "--database", folder / "class.sqlite"],
            env=environment(folder), text=True, encoding="utf-8",
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        threading.Thread(target=self._listen, daemon=True).start()
        wait_until(lambda: self._said, "the master begins")

    def type(self, command):
        self.process.stdin.write(command + "\n")
        self.process.stdin.flush()

    def tells(self, command, *words):
        """Types the command until a line of what the master says has all the words."""
        self._said.clear()
        wait_until(lambda: any(all(word in line for word in words) for line in list(self._said)),
                   f"{command} tells of {words}", meanwhile=lambda: self.type(command))

    def kill(self):
        self.process.kill()
        self.process.wait()

    def end(self):
        if self.process.poll() is None:
            self.type("quit")
        self.process.communicate(timeout=PATIENCE)

    def _listen(self):
        for line in self.process.stdout:
            self._said.append(line)


class Trainer:
    """The trainer's program and the pupil before it."""

    def __init__(self, tree, folder):
        self._log = folder / "programdata/QV Phial/Logs/network.log"
        self._log.unlink(missing_ok=True)
        port = free_port()
        self._complaints = folder / "trainer.err"
        with self._complaints.open("wb") as complaints:
            self.process = subprocess.Popen(
                [tree / "apps/Molmasse/molmasse"],
                env=environment(folder) | {"QT_QPA_PLATFORM": f"vnc:size=1000x760:port={port}"},
                stdout=subprocess.DEVNULL, stderr=complaints)
        self.screen = RemoteScreen(port)
        self.public = folder / "public/Documents/QV Phial/Highscores/Molmasse"

    def log(self):
        return self._log.read_text(encoding="utf-8-sig") if self._log.exists() else ""

    def has_sent(self, message, times=1):
        return self.log().count(f": {message}") >= times

    def solve(self):
        """The one task of the round, and on to its result."""
        self.screen.type("18,0")
        self.screen.press(RETURN)
        time.sleep(READING_TIME)
        self.screen.press(RETURN)

    def complaints(self):
        return self._complaints.read_text(encoding="utf-8", errors="replace")

    def end(self):
        """The pupil leaves; gives the program's result."""
        self.screen.settle()
        self.screen.press(ESCAPE)
        return self.process.wait(timeout=PATIENCE)

    def leave_alone(self):
        self.screen.close()
        self.process.kill()
        self.process.wait()


def environment(folder):
    kept = {name: os.environ[name] for name in ("PATH", "LD_LIBRARY_PATH", "ASAN_OPTIONS", "LSAN_OPTIONS")
            if name in os.environ}
    places = {name: str(folder / name.lower()) for name in ("HOME", "PUBLIC", "PROGRAMDATA", "APPDATA")}
    runtime = folder / "run"
    runtime.mkdir(mode=0o700, exist_ok=True)
    return kept | places | {"LANG": "de_DE.UTF-8", "XDG_CONFIG_HOME": str(folder / "config"),
                            "XDG_RUNTIME_DIR": str(runtime)}


def tree_with_one_task(tree, folder):
    """The installation with the trainer's tasks replaced, so that the pupil knows the answer."""
    own = folder / "tree"
    app = own / "apps/Molmasse"
    (app / "data").mkdir(parents=True)
    (app / "data/formeln.txt").write_text(TASKS, encoding="utf-8")
    shutil.copy2(tree / "apps/Molmasse/molmasse", app)
    (own / "QVStart.exe").touch()
    (own / "Resources").symlink_to(tree / "Resources")
    return own


class Lesson(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        # An address of this computer that no other master has.
        self.address = "127." + ".".join(str(random.randint(1, 254)) for _ in range(3))
        (self.folder / "config/qv-phial").mkdir(parents=True)
        (self.folder / "config/qv-phial/settings.ini").write_text(SETTINGS.format(address=self.address))
        self.tree = tree_with_one_task(TREE, self.folder)

    def start_master(self):
        master = Master(TREE, self.folder, self.address)
        self.addCleanup(master.end)
        return master

    def start_trainer(self):
        trainer = Trainer(self.tree, self.folder)
        self.addCleanup(trainer.leave_alone)
        return trainer

    def test_goes_from_the_log_on_to_the_list_of_the_class(self):
        master = self.start_master()
        master.type("set WELCOMEMESSAGE Guten Morgen!")
        pupil = self.start_trainer()

        # The greeting holds everything up until it is read.
        wait_until(lambda: pupil.has_sent("SERVER:PACK"), "the trainer learns the greeting")
        self.assertFalse(pupil.has_sent("SERVER:MODE"))
        wait_until(lambda: pupil.has_sent("SERVER:MODE"), "the pupil has read the greeting",
                   meanwhile=lambda: pupil.screen.press(RETURN))
        master.tells("pupils", "Lena")

        # No app is chosen yet: the trainer waits, and asks again by itself.
        wait_until(lambda: pupil.has_sent("SERVER:MODE", times=2), "the trainer asks again",
                   meanwhile=lambda: pupil.screen.press(RETURN), pause=1)
        self.assertFalse(pupil.has_sent("EVENT:ADD"))
        master.type("app Molmasse")
        wait_until(lambda: pupil.has_sent("EVENT:ADD"), "the round begins",
                   meanwhile=lambda: pupil.screen.press(RETURN), pause=1)
        master.tells("events", "Lena", "RUNDE BEGONNEN")

        pupil.screen.settle()
        pupil.solve()
        wait_until(lambda: pupil.has_sent("HIGHSCORE:SUBMIT"), "the result goes to the master")
        pupil.screen.settle()
        pupil.screen.press(RETURN)  # closes the box that tells the rank
        master.tells("events", "Lena", "RUNDE BEENDET")
        master.tells("results", "Lena", "Leicht", "10")
        master.tells("highscore HIGHSCORE", "Lena")

        pupil.screen.settle()
        for _ in range(3):  # from "again" back to the list
            pupil.screen.press(SHIFT, TAB)
        pupil.screen.press(RETURN)
        wait_until(lambda: pupil.has_sent("HIGHSCORE:GET"), "the list of the class opens")
        pupil.screen.settle()
        pupil.screen.press(ESCAPE)
        result = pupil.end()
        self.assertEqual(result, 0, pupil.complaints())
        self.assertTrue(pupil.has_sent("SERVER:LOGOFF"))
        master.tells("pupils", "Niemand")

    def test_keeps_a_result_whose_master_has_gone_on_this_computer(self):
        master = self.start_master()
        master.type("app Molmasse")
        pupil = self.start_trainer()
        wait_until(lambda: pupil.has_sent("EVENT:ADD"), "the round begins",
                   meanwhile=lambda: pupil.screen.press(RETURN), pause=1)
        master.tells("events", "Lena", "RUNDE BEGONNEN")
        pupil.screen.settle()
        master.kill()
        pupil.solve()
        best = pupil.public / "HIGHSCORE.qv-hsr"
        wait_until(best.exists, "the result is kept")
        pupil.screen.settle()
        pupil.screen.press(RETURN)  # closes the box that tells the rank
        events = pupil.public / "event.qv-log"
        wait_until(lambda: events.exists() and "RUNDE BEENDET" in events.read_bytes().decode("utf-8", "replace"),
                   "the end is noted")
        self.assertFalse(pupil.has_sent("HIGHSCORE:SUBMIT"))
        result = pupil.end()
        self.assertEqual(result, 0, pupil.complaints())

    def test_is_kept_on_this_computer_without_a_master(self):
        pupil = self.start_trainer()
        events, best = (pupil.public / name for name in ("event.qv-log", "HIGHSCORE.qv-hsr"))
        wait_until(events.exists, "the round begins", meanwhile=lambda: pupil.screen.press(RETURN), pause=1)
        pupil.screen.settle()
        pupil.solve()
        wait_until(best.exists, "the result is kept")
        pupil.screen.settle()
        pupil.screen.press(RETURN)
        wait_until(lambda: "RUNDE BEENDET" in events.read_bytes().decode("utf-8", "replace"), "the end is noted")
        result = pupil.end()
        self.assertEqual(result, 0, pupil.complaints())
        self.assertNotIn("LOGON:OK", pupil.log())


if __name__ == "__main__":
    TREE = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main()
