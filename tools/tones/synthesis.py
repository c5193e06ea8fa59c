# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Struck, plucked and sung sounds, added into a list of samples."""
import math

RATE = 44100


class Voice:
    """An instrument: each partial is (ratio to the note, share, seconds until it fell to a third)."""

    def __init__(self, partials, attack=0.006):
        self.partials = partials
        self.attack = attack
        self.struck = {}

    def strike(self, samples, start, note, loudness):
        """Adds one note from the sample "start" on; what would sound after the end is lost."""
        if note not in self.struck:
            self.struck[note] = self._note(440.0 * 2.0 ** ((note - 69) / 12.0))
        sound = self.struck[note]
        for index in range(min(len(sound), len(samples) - start)):
            samples[start + index] += loudness * sound[index]

    def _note(self, frequency):
        longest = max(fall for _, _, fall in self.partials)
        sound = [0.0] * int(9 * longest * RATE)
        for ratio, share, fall in self.partials:
            if frequency * ratio > 0.4 * RATE:
                continue
            step = 2.0 * math.pi * frequency * ratio / RATE
            decay = math.exp(-1.0 / (fall * RATE))
            level = share
            for index, value in enumerate(sound):
                sound[index] = value + level * math.sin(step * index)
                level *= decay
                if level < 1e-4:
                    break
        rise = int(self.attack * RATE)
        for index in range(min(rise, len(sound))):
            sound[index] *= 0.5 - 0.5 * math.cos(math.pi * index / rise)
        return sound


class Whistle:
    """A bird: a tone that glides by a fifth and back while it swells and dies away."""

    def __init__(self, seconds, glide=7.0):
        self.seconds = seconds
        self.glide = glide

    def strike(self, samples, start, note, loudness):
        count = int(self.seconds * RATE)
        phase = 0.0
        for index in range(min(count, len(samples) - start)):
            part = index / count
            bend = self.glide * math.sin(math.pi * part) ** 2
            phase += 2.0 * math.pi * 440.0 * 2.0 ** ((note + bend - 69) / 12.0) / RATE
            swell = math.sin(math.pi * part) ** 2
            samples[start + index] += loudness * swell * (math.sin(phase) + 0.12 * math.sin(2.0 * phase))


def add_room(samples, share):
    """Lets the sound hang in the air a little: four echoes that feed themselves."""
    wet = [0.0] * len(samples)
    for delay, feedback in ((1557, 0.70), (1617, 0.69), (1491, 0.71), (1277, 0.72)):
        line = [0.0] * delay
        damped = 0.0
        place = 0
        for index, value in enumerate(samples):
            echo = line[place]
            damped += 0.45 * (echo - damped)
            line[place] = value + feedback * damped
            place = place + 1 if place + 1 < delay else 0
            wet[index] += echo
    for index, value in enumerate(wet):
        samples[index] += 0.25 * share * value


def fade_out(samples, seconds):
    """Ends in silence, so that the loop joins silence to silence."""
    count = int(seconds * RATE)
    for index in range(count):
        samples[len(samples) - count + index] *= 0.5 + 0.5 * math.cos(math.pi * index / count)
