#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Makes the tones that ship, each with its title as a tag, and the silent "No sound", whose name is translated.

    tools/tones/make_tones.py data/sounds/ring-tones [TITLE]...

Needs gst-launch-1.0 with voaacenc, aacparse and wavparse; takes about a minute. The same input gives the same bytes.
"""
import array
import pathlib
import subprocess
import sys
import tempfile
import wave

from synthesis import RATE, add_room, fade_out
from tunes import BELL, TUNES, Tune

FRAME = 1024  # samples in an AAC frame
DROPPED_FRAMES = 1  # what comes out of a decoder is that much shorter than what was encoded
PEAK = 0.80
LOUDER = 1.3
SOFTER = 0.7
SEMITONES = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}

# Two bars of a small melody: D major pentatonic, calm first, then climbing to a high bell that wakes.
ALERT = Tune("Clock alert 1", 13, 18, [
    (BELL, 1, 0.75, "D5 F#5? A5 D6 . B5 A5 . E5 A5 B5 E6 F#6 D6"),
    (BELL, 4, 0.50, "D3 G3 A3 D3"),
], room=0.0)


def midi(name):
    octave = int(name[-1])
    return 12 * (octave + 1) + SEMITONES[name[0]] + name.count("#")


def play(samples, beat, part):
    voice, step, loudness, notes = part
    for place, chord in enumerate(notes.split()):
        if chord == ".":
            continue
        accent = LOUDER if chord.endswith("!") else SOFTER if chord.endswith("?") else 1.0
        for note in chord.rstrip("!?").split("+"):
            voice.strike(samples, round(place * step * beat * FRAME), midi(note), loudness * accent)


def perform(tune):
    samples = [0.0] * ((tune.beats * tune.beat + DROPPED_FRAMES) * FRAME)
    for part in tune.parts:
        play(samples, tune.beat, part)
    if tune.room:
        add_room(samples, tune.room)
    fade_out(samples, tune.fade)
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


def title_tag(title):
    """An ID3v2.4 tag with nothing but the title."""
    text = b"\x03" + title.encode()
    frame = b"TIT2" + synchsafe(len(text)) + b"\x00\x00" + text
    return b"ID3\x04\x00\x00" + synchsafe(len(frame)) + frame


def synchsafe(number):
    return bytes((number >> shift) & 0x7F for shift in (21, 14, 7, 0))


def encode(samples, title, target):
    with tempfile.TemporaryDirectory() as folder:
        source = pathlib.Path(folder) / "tone.wav"
        encoded = pathlib.Path(folder) / "tone.aac"
        write_wave(source, samples)
        subprocess.run(
            ["gst-launch-1.0", "-q", "filesrc", f"location={source}", "!", "wavparse", "!", "audioconvert", "!",
             "voaacenc", "bitrate=96000", "!", "aacparse", "!", "audio/mpeg,stream-format=adts", "!", "filesink",
             f"location={encoded}"], check=True)
        target.write_bytes((title_tag(title) if title else b"") + encoded.read_bytes())


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    folder = pathlib.Path(sys.argv[1])
    wanted = sys.argv[2:]
    for tune in [ALERT, *TUNES]:
        if not wanted or tune.title in wanted:
            encode(perform(tune), tune.title, folder / f"{tune.title}.aac")
    if not wanted or "No sound" in wanted:
        encode(array.array("h", bytes(2 * 44 * FRAME)), None, folder / "No sound.aac")


if __name__ == "__main__":
    main()
