#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Listens to every tone that ships, by measuring what comes out of the decoder.

    test_tones.py FOLDER
"""
import array
import math
import pathlib
import subprocess
import sys
import tempfile
import unittest
import wave

FOLDER = pathlib.Path(sys.argv.pop())
SILENCE = "No sound"
WINDOW = 0.05  # seconds
QUIET = 10 ** (-45 / 20)
TONES = sorted(path for path in FOLDER.iterdir() if path.stem != SILENCE)


def decode(path):
    """Samples from -1 to 1, and how many there are in a second."""
    with tempfile.TemporaryDirectory() as folder:
        target = pathlib.Path(folder) / "tone.wav"
        subprocess.run(["gst-launch-1.0", "-q", "filesrc", f"location={path}", "!", "decodebin", "!", "audioconvert",
                        "!", "audio/x-raw,format=S16LE,channels=1", "!", "wavenc", "!", "filesink",
                        f"location={target}"], check=True)
        with wave.open(str(target)) as tone:
            samples = array.array("h", tone.readframes(tone.getnframes()))
            return [sample / 32768 for sample in samples], tone.getframerate()


def title(path):
    """Of an ID3v2.4 tag whose only frame is the title."""
    tag = path.read_bytes()[:256]
    if tag[:4] != b"ID3\x04" or tag[10:14] != b"TIT2":
        return None
    return tag[21:20 + tag[17]].decode()


def level(samples):
    return (sum(sample * sample for sample in samples) / len(samples)) ** 0.5


def levels(samples, rate):
    step = int(WINDOW * rate)
    return [level(samples[start:start + step]) for start in range(0, len(samples) - step, step)]


def decibels(amplitude):
    return 20 * math.log10(max(amplitude, 1e-9))


class Tones(unittest.TestCase):
    def test_thereIsADozenOfThem(self):
        self.assertGreaterEqual(len(TONES), 12)

    def test_eachIsSmallAndHasItsNameAsTitle(self):
        for path in TONES:
            with self.subTest(path.stem):
                self.assertEqual(path.suffix, ".aac")
                self.assertLess(path.stat().st_size, 400_000)
                self.assertEqual(title(path), path.stem)

    def test_eachIsHeardAllTheWayAndJoinsItsOwnBeginning(self):
        for path in TONES:
            with self.subTest(path.stem):
                samples, rate = decode(path)
                self.check_sound(path.stem, samples, rate)
                self.check_loop(samples, rate)

    def check_sound(self, name, samples, rate):
        seconds = len(samples) / rate
        peak = max(abs(sample) for sample in samples)
        # The loop: what is silent at the end goes on at the beginning.
        loud = [each > QUIET for each in levels(samples + samples, rate)]
        gap = longest = 0
        for is_loud in loud:
            gap = 0 if is_loud else gap + 1
            longest = max(longest, gap)
        print(f"{name}: {seconds:.1f} s, peak {decibels(peak):.1f} dB, mean {decibels(level(samples)):.1f} dB, "
              f"longest silence {longest * WINDOW:.2f} s")
        self.assertTrue(5 <= seconds <= 20, seconds)
        self.assertLess(peak, 0.98)
        self.assertGreater(peak, 0.5)
        self.assertGreater(decibels(level(samples)), -28)
        self.assertLess(longest * WINDOW, 1.0)

    def check_loop(self, samples, rate):
        edge = int(0.005 * rate)
        self.assertLess(max(abs(sample) for sample in samples[-edge:]), 0.01)
        self.assertLess(max(abs(sample) for sample in samples[:edge]), 0.01)

    def test_noSoundIsSilent(self):
        path = FOLDER / f"{SILENCE}.aac"
        # A title would hide the translated name.
        self.assertIsNone(title(path))
        samples, _ = decode(path)
        self.assertTrue(samples)
        self.assertLess(max(abs(sample) for sample in samples), 0.0005)


if __name__ == "__main__":
    unittest.main()
