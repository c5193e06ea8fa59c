#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Makes the alarm tone "Clock alert 1.aac": two bars of a small melody on struck bells.

    tools/tones/make_clock_alert.py data/sounds/ring-tones

Needs gst-launch-1.0 with voaacenc, aacparse and wavparse. The same input gives the same bytes.
"""
import array
import math
import pathlib
import subprocess
import sys
import tempfile
import wave

RATE = 44100
FRAME = 1024  # samples in an AAC frame
BEAT_FRAMES = 13  # a quaver, about 0.30 s
BEATS = 18  # melody and the rest in which the last bell dies away
DROPPED_FRAMES = 1  # what comes out of a decoder is that much shorter than what was encoded
PEAK = 0.80

# (beat, MIDI note, loudness): D major pentatonic, calm first, then climbing to a high bell that wakes.
MELODY = [
    (0, 74, 0.75), (1, 78, 0.65), (2, 81, 0.75), (3, 86, 0.80),
    (5, 83, 0.70), (6, 81, 0.70),
    (8, 76, 0.75), (9, 81, 0.70), (10, 83, 0.80), (11, 88, 0.85),
    (12, 90, 0.90), (13, 86, 0.75),
]
BASS = [(0, 50, 0.55), (4, 55, 0.45), (8, 57, 0.50), (12, 50, 0.55)]

# (ratio to the note, share, seconds until it fell to a third): a soft, slightly stretched bell.
PARTIALS = [(0.5, 0.18, 0.70), (1.0, 1.00, 0.55), (2.0, 0.42, 0.34), (3.01, 0.20, 0.20), (4.17, 0.12, 0.11),
            (5.43, 0.06, 0.06)]


def strike(samples, beat, note, loudness):
    """Adds one bell; a long soft attack keeps it gentle."""
    start = beat * BEAT_FRAMES * FRAME
    frequency = 440.0 * 2.0 ** ((note - 69) / 12.0)
    for ratio, share, fall in PARTIALS:
        step = 2.0 * math.pi * frequency * ratio / RATE
        decay = math.exp(-1.0 / (fall * RATE))
        level = loudness * share
        for index in range(start, len(samples)):
            attack = min(1.0, (index - start) / (0.006 * RATE))
            samples[index] += level * attack * math.sin(step * (index - start))
            level *= decay
            if level < 1e-4:
                break


def fade_out(samples, seconds):
    """Ends in silence, so that the loop joins silence to silence."""
    count = int(seconds * RATE)
    for index in range(count):
        samples[len(samples) - count + index] *= 0.5 + 0.5 * math.cos(math.pi * index / count)


def melody():
    samples = [0.0] * ((BEATS * BEAT_FRAMES + DROPPED_FRAMES) * FRAME)
    for beat, note, loudness in MELODY + BASS:
        strike(samples, beat, note, loudness)
    fade_out(samples, 0.35)
    scale = PEAK * 32767 / max(abs(value) for value in samples)
    return array.array("h", (round(value * scale) for value in samples))


def write_wave(path, samples):
    if sys.byteorder == "big":
        samples.byteswap()
    with wave.open(str(path), "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(samples.tobytes())


def encode(source, target):
    subprocess.run(
        ["gst-launch-1.0", "-q", "filesrc", f"location={source}", "!", "wavparse", "!", "audioconvert", "!",
         "voaacenc", "bitrate=96000", "!", "aacparse", "!", "audio/mpeg,stream-format=adts", "!", "filesink",
         f"location={target}"], check=True)


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    target = pathlib.Path(sys.argv[1]) / "Clock alert 1.aac"
    with tempfile.TemporaryDirectory() as folder:
        source = pathlib.Path(folder) / "melody.wav"
        write_wave(source, melody())
        encode(source, target)


if __name__ == "__main__":
    main()
