#!/usr/bin/env python3
"""Makes the sounds that the program offers for the end of a check, from nothing but sine waves.

Run in this folder after changing a sound; the files are kept in the repository."""

import math
import struct
import wave

RATE = 22050

# Each note: start in seconds, pitch in hertz, seconds until it has all but faded, loudness.
SOUNDS = {
    "Bell": [(0.00, 880.0, 0.60, 0.50), (0.00, 1760.0, 0.35, 0.18), (0.00, 2637.0, 0.20, 0.10)],
    "Chime": [(0.00, 659.3, 0.35, 0.40), (0.12, 830.6, 0.35, 0.40), (0.24, 987.8, 0.45, 0.45)],
    "Done": [(0.00, 523.3, 0.18, 0.45), (0.11, 784.0, 0.40, 0.45)],
    "Tick": [(0.00, 1318.5, 0.08, 0.50), (0.00, 2093.0, 0.04, 0.20)],
}


def loudness(since, length, peak):
    """Swells within five thousandths of a second, then fades evenly for the ear."""
    if since < 0 or since > length:
        return 0.0
    return peak * min(1.0, since / 0.005) * math.exp(-5.0 * since / length)


def samples(notes):
    end = max(start + length for start, _, length, _ in notes)
    for i in range(int(end * RATE)):
        now = i / RATE
        level = sum(loudness(now - start, length, peak) * math.sin(2 * math.pi * pitch * (now - start))
                    for start, pitch, length, peak in notes)
        yield int(32000 * max(-1.0, min(1.0, level)))


def main():
    for name, notes in SOUNDS.items():
        with wave.open(f"{name}.wav", "wb") as out:
            out.setnchannels(1)
            out.setsampwidth(2)
            out.setframerate(RATE)
            out.writeframes(b"".join(struct.pack("<h", level) for level in samples(notes)))


if __name__ == "__main__":
    main()
