# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
"""The tones that ship, from gentle to insistent.

A part is a voice, the length of its steps in beats, how loud it is, and its notes: each step is a note ("F#5"), a chord
("C4+E4") or a rest ("."); "!" after it makes it louder, "?" softer.
"""
import dataclasses

from synthesis import Voice, Whistle

BELL = Voice([(0.5, 0.18, 0.70), (1.0, 1.00, 0.55), (2.0, 0.42, 0.34), (3.01, 0.20, 0.20), (4.17, 0.12, 0.11),
              (5.43, 0.06, 0.06)])
CHURCH = Voice([(0.5, 0.45, 1.10), (1.0, 1.00, 0.80), (1.19, 0.35, 0.60), (1.5, 0.20, 0.45), (2.0, 0.50, 0.40),
                (2.52, 0.14, 0.22), (4.02, 0.10, 0.12)], 0.003)
PAD = Voice([(0.998, 0.50, 0.85), (1.002, 0.50, 0.85), (2.0, 0.18, 0.60), (3.0, 0.06, 0.40)], 0.35)
WARM = Voice([(1.0, 1.00, 0.80), (2.0, 0.30, 0.45), (3.0, 0.12, 0.25), (14.0, 0.05, 0.05)], 0.008)
CELESTA = Voice([(1.0, 1.00, 0.45), (3.0, 0.22, 0.18), (4.0, 0.14, 0.12), (10.1, 0.05, 0.03)], 0.003)
COMB = Voice([(1.0, 1.00, 0.50), (2.0, 0.10, 0.30), (5.8, 0.16, 0.10), (6.27, 0.08, 0.06)], 0.002)
THUMB = Voice([(1.0, 1.00, 0.38), (2.0, 0.14, 0.20), (5.4, 0.20, 0.05), (8.9, 0.07, 0.02)], 0.003)
WOOD = Voice([(1.0, 1.00, 0.22), (3.93, 0.32, 0.07), (9.2, 0.12, 0.025)], 0.002)
GLASS = Voice([(1.0, 1.00, 0.75), (2.32, 0.22, 0.40), (4.25, 0.10, 0.22)], 0.040)
PLUCK = Voice([(1.0, 1.00, 0.20), (2.0, 0.55, 0.13), (3.0, 0.34, 0.09), (4.0, 0.20, 0.06), (5.0, 0.12, 0.05),
               (6.0, 0.08, 0.04)], 0.002)
BASS = Voice([(1.0, 1.00, 0.32), (2.0, 0.40, 0.20), (3.0, 0.12, 0.10)], 0.006)
BEEP = Voice([(1.0, 1.00, 0.10), (2.0, 0.20, 0.07), (3.0, 0.30, 0.06), (5.0, 0.10, 0.05)], 0.004)
HORN = Voice([(1.0, 1.00, 0.26), (2.0, 0.75, 0.24), (3.0, 0.50, 0.22), (4.0, 0.32, 0.18), (5.0, 0.18, 0.15),
              (6.0, 0.10, 0.12)], 0.018)
CHIRP = Whistle(0.11)
CALL = Whistle(0.24, 4.0)


@dataclasses.dataclass
class Tune:
    title: str
    beat: int  # frames of 1024 samples
    beats: int
    parts: list
    room: float = 0.5
    fade: float = 0.35  # seconds


TUNES = [
    Tune("First Light", 30, 16, [
        (PAD, 4, 0.50, "D4+A4+F#5 B3+F#4+D5 G3+D4+B4 A3+E4 "),
        (CELESTA, 0.5, 0.34, ". . A5 . . F#5 . . D5 . . F#5 . . . . . . B5 . . D6 . . A5 . . . E5 . ."),
        (WARM, 2, 0.30, "D3 . B2 . G2 . A2 ."),
    ], room=0.9, fade=0.5),
    Tune("Dewdrops", 14, 24, [
        (CELESTA, 1, 0.80, "E6? B5 . G#5? . E6 F#6? . B5 . C#6? G#5 . B5? . E6 . G#6? F#6 . E6? B5 . ."),
        (GLASS, 8, 0.35, "E4+B4 C#4+G#4 A3+E4"),
        (GLASS, 4, 0.15, ". E5 . G#5 . ."),
    ], room=0.9),
    Tune("Glass Garden", 19, 20, [
        (GLASS, 1, 0.60, "C5 . G5 . E5 D5 . A5 . F5 E5 . C6 . G5 F5? . D5 . ."),
        (GLASS, 5, 0.40, "C4+G4 D4+A4 A3+E4 G3+D4"),
        (CELESTA, 2.5, 0.16, ". G6 . A6 . C7 . ."),
    ], room=0.8, fade=0.5),
    Tune("Music Box", 11, 36, [
        (COMB, 1, 0.75, "G5 . B5 D6 . B5 C6 . A5 G5 . . E5 . G5 C6 . G5 B5 . G5 D5 . . "
                        "A5 . C6 E6 . D6 D6? . B5 G5 . ."),
        (COMB, 3, 0.42, "G4 D4 C4 G4 C4 E4 G4 D4 A4 D4 G4 G4"),
        (COMB, 1, 0.22, ". B4+D5 . . B4+D5 . . E5 . . B4 . . G4 . . E5 . . B4 . . D5 . . C5 . . F#5 . . D5 . . . ."),
    ], room=0.6),
    Tune("Harbour", 17, 24, [
        (WARM, 3, 0.42, "F3+A3+C4+E4 D3+F3+A3+C4 G3+A#3+D4+F4 C3+G3+A#3+E4 F3+A3+C4+E4 A#2+D4+F4+A4 C3+G3+C4+E4 ."),
        (WARM, 1, 0.60, "A4 . C5 F5 . E5 D5 . A#4 G4 . C5 A4! . C5 D5 . F5 E5? C5 . . . ."),
    ], room=0.7, fade=0.6),
    Tune("Thumb Piano", 9, 48, [
        (THUMB, 1, 0.70, "A4 . E5 . C5 . A5 G5 . E5 . D5 C5 . D5 . G4 . D5 . B4 . G5 E5 . D5 . B4 A4 . B4 . "
                         "F4 . C5 . A4 . E5 D5 . C5 . A4 G4 . . ."),
        (THUMB, 2, 0.50, "A3 . . E4 A3 . . . G3 . . D4 G3 . . . F3 . . C4 G3 . . ."),
    ], room=0.5),
    Tune("Morning Birds", 12, 30, [
        (CHIRP, 0.5, 0.55, "C7 . C7? . E7 . . . . G7? G7 . . . . . D7 D7? D7 . . . . . . . A6 . C7 . "
                           "E7? . . . . . G7 G7 G7? . . . . . . C7 . E7? . . C7 . D7? . . . . ."),
        (CALL, 1, 0.50, ". . . A6 . . . . E6 G6 . . A6 . . . C7 . . . A6 G6 . . . . E6 . . ."),
        (PAD, 6, 0.55, "C4+G4+E5 A3+E4+C5 F3+C4+A4 G3+D4+B4 C4+G4"),
    ], room=0.8, fade=0.5),
    Tune("Marimba Steps", 8, 48, [
        (WOOD, 1, 0.80, "D5 . F#5 A5 . F#5 D5 . E5 . G5 B5 . G5 E5 . F#5 . A5 D6 . A5 F#5 . E5 C#5 . E5 A4 . . . "
                        "D5 . F#5 A5 . B5 A5 . G5 F#5 . E5 D5! . . ."),
        (WOOD, 2, 0.60, "D4 A4 . A3 E4 B4 . B3 D4 A4 . F#4 A3 E4 . A3 D4 A4 . D4 A3 A3 D4 ."),
    ], room=0.45),
    Tune("Village Bells", 13, 28, [
        (CHURCH, 1, 0.70, "G5! F#5 E5 D5 C5 B4 A4 G4 G5! E5 F#5 C5 D5 A4 B4 G4 F#5! G5 D5 E5 B4 C5 G4 A4 G4! . . ."),
    ], room=0.7, fade=0.7),
    Tune("Courier", 5, 64, [
        (PLUCK, 1, 0.70, "E5 E5? B5 E5? D6 E5? B5 A5 E5 E5? B5 E5? A5 G5 F#5 G5 "
                         "C5 C5? G5 C5? B5 C5? G5 F#5 D5 D5? A5 D5? C6 B5 A5 F#5 "
                         "E5 E5? B5 E5? E6! E5? D6 B5 C6 C5? B5 C5? A5 G5 F#5 E5 "
                         "A5 A4? E5 A4? C6 B5 A5 G5 F#5! . D#5! . B4! . . ."),
        (BASS, 2, 0.75, "E3 . E3 E3 . E3 G3 . C3 . C3 C3 D3 . D3 . E3 . E3 E3 C3 . C3 . A2 . A2 A2 B2 B2 B2 ."),
    ], room=0.3, fade=0.2),
    Tune("Reveille", 10, 40, [
        (HORN, 1, 0.60, "G4 . C5 C5 E5 C5 G4 . G4 C5 E5 . C5 E5 G5! . . E5 C5 . G4 . C5 C5 E5 C5 G4 G4 C5 E5 G5! . "
                        "E5 C5 G4! . C5! . . ."),
        (BASS, 2, 0.50, "C3 C3 G3 . C3 C3 G3 G3 C3 . C3 C3 G3 . C3 G3 C3 G3 C3 ."),
    ], room=0.5),
    Tune("Pulse", 4, 64, [
        (BEEP, 1, 0.80, "A5 A5 A5 A5 . . . . A5 A5 A5 A5 . . . . C6 C6 C6 C6 . . . . C6 C6 C6 C6 . . . . "
                        "A5! A5! A5! A5! . . A5 A5 A5! A5! A5! A5! . . . . "
                        "E6! E6! E6! E6! . . E6 E6 E6! E6! E6! E6! . . . ."),
        (BASS, 4, 0.55, "A3 A3 A3 A3 F3 F3 F3 F3 A3 A3 A3 A3 E3 E3 E3 E3"),
    ], room=0.2, fade=0.25),
]
