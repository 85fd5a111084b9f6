#!/usr/bin/env python3
"""The installed sounds are those that tools/make_sounds makes, and fit to be heard."""

import math
import pathlib
import re
import struct
import subprocess
import sys
import tempfile
import unittest
import wave

TREE = pathlib.Path(__file__).resolve().parents[2]
INSTALLED = TREE / "resources" / "sfx"
FULL_SCALE = 32768
FEWEST = {"correct": 6, "wrong": 4, "click": 2, "say": 4, "reward": 5, "result": 2}


def decibels(amplitude):
    return 20 * math.log10(amplitude / FULL_SCALE)


def files(folder):
    return {str(file.relative_to(folder)): file.read_bytes() for file in folder.rglob("*.*")}


class Sound:
    def __init__(self, path):
        with wave.open(str(path)) as file:
            self.shape = file.getnchannels(), file.getsampwidth(), file.getframerate()
            self.samples = struct.unpack(f"<{file.getnframes()}h", file.readframes(file.getnframes()))
        self.seconds = len(self.samples) / self.shape[2]
        self.peak = max(map(abs, self.samples))

    def loudness(self):
        """Of the loudest 0.4 seconds, in decibels; what is shorter has silence around it."""
        window = int(0.4 * self.shape[2])
        loudest = current = 0
        for at, sample in enumerate(self.samples):
            current += sample ** 2 - (self.samples[at - window] ** 2 if at >= window else 0)
            loudest = max(loudest, current)
        return decibels(math.sqrt(loudest / window))


class Sounds(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.sounds = {path: Sound(path) for path in sorted(INSTALLED.glob("*/*.wav"))}

    def each(self):
        for path, sound in self.sounds.items():
            with self.subTest(f"{path.parent.name}/{path.name}"):
                yield sound

    def test_are_what_the_generator_makes(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, TREE / "tools" / "make_sounds", folder], check=True)
            self.assertEqual(files(pathlib.Path(folder)), files(INSTALLED))

    def test_are_there_for_each_category(self):
        found = {name: len(list((INSTALLED / name).glob("*.wav"))) for name in FEWEST}
        self.assertEqual({name for name, count in found.items() if count < FEWEST[name]}, set(), found)
        self.assertEqual({path.name for path in INSTALLED.iterdir()}, set(FEWEST))

    def test_have_titles_that_can_be_shown(self):
        for path in self.sounds:
            self.assertRegex(path.stem, re.compile("[A-Za-z]+"))

    def test_take_no_more_than_two_megabytes(self):
        self.assertLessEqual(sum(path.stat().st_size for path in self.sounds), 2_000_000)

    def test_are_waves_of_one_channel_and_16_bits(self):
        for sound in self.each():
            self.assertEqual(sound.shape, (1, 2, 44100))

    def test_begin_within_two_milliseconds(self):
        for sound in self.each():
            begin = next(at for at, sample in enumerate(sound.samples) if abs(sample) > sound.peak / 100)
            self.assertLess(begin / 44100, 0.002)

    def test_end_in_silence(self):
        for sound in self.each():
            self.assertEqual(sound.samples[-1], 0)
            self.assertLess(max(map(abs, sound.samples[-44:])), sound.peak / 100)

    def test_have_peaks_below_3_decibels(self):
        for sound in self.each():
            self.assertLessEqual(decibels(sound.peak), -3)

    def test_have_no_steady_part(self):
        for sound in self.each():
            self.assertLess(abs(sum(sound.samples) / len(sound.samples)), sound.peak / 1000)

    def test_do_not_jump(self):
        # The steepest tone that is played this loud, well below 2 kHz.
        for sound in self.each():
            jump = max(abs(one - other) for one, other in zip(sound.samples, sound.samples[1:]))
            self.assertLess(jump, sound.peak / 2)

    def test_are_about_as_loud_as_the_others_of_their_category(self):
        for name in FEWEST:
            loudness = [sound.loudness() for path, sound in self.sounds.items() if path.parent.name == name]
            self.assertLessEqual(max(loudness) - min(loudness), 2, name)

    def test_of_the_end_of_a_work_last_two_to_four_seconds(self):
        for path, sound in self.sounds.items():
            if path.parent.name == "reward":
                self.assertTrue(2 <= sound.seconds <= 4, path)

    def test_of_a_wrong_answer_fall(self):
        for path, sound in self.sounds.items():
            if path.parent.name == "wrong":
                third = len(sound.samples) // 3
                begin, end = (crossings(part) for part in (sound.samples[300:300 + third // 2], sound.samples[-third:]))
                self.assertLess(end, 0.9 * begin, path)


def crossings(samples):
    """How often a tone goes through zero, for each sample."""
    return sum(one < 0 <= other for one, other in zip(samples, samples[1:])) / len(samples)


if __name__ == "__main__":
    unittest.main()
