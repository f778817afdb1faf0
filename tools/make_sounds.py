#!/usr/bin/env python3
"""Makes the sounds in data/sounds: checks, dice, wins and the calls of two stick persons.

Everything but the voices is figured here: struck bodies as decaying partials, felt and shuffles as
filtered noise. The voices come from espeak-ng. Needs the Debian packages python3 and espeak-ng; run
it from anywhere, the files are written over the ones in the tree. The same run makes the same files.
"""

import array
import io
import math
import pathlib
import random
import shutil
import subprocess
import wave

RATE = 22050
OUT = pathlib.Path(__file__).resolve().parent.parent / "data" / "sounds"


def silence(seconds):
    return [0.0] * int(seconds * RATE)


def add(track, sound, at, gain=1.0):
    """Mixes `sound` into `track` at `at` seconds; the track grows as needed."""
    start = int(at * RATE)
    if len(track) < start + len(sound):
        track.extend([0.0] * (start + len(sound) - len(track)))
    for k, value in enumerate(sound):
        track[start + k] += gain * value


def low_pass(sound, frequency):
    keep = math.exp(-2 * math.pi * frequency / RATE)
    state, result = 0.0, []
    for value in sound:
        state = keep * state + (1 - keep) * value
        result.append(state)
    return result


def high_pass(sound, frequency):
    return [value - low for value, low in zip(sound, low_pass(sound, frequency))]


def noise_burst(dice, seconds, decay, low, high):
    """Noise that rises in half a millisecond and dies away, between two frequencies."""
    rise = 0.0005 * RATE
    raw = [dice.uniform(-1, 1) * min(1, k / rise) * math.exp(-k / (decay * RATE))
           for k in range(int(seconds * RATE))]
    return high_pass(low_pass(low_pass(raw, high), high), low)


def struck(dice, partials, seconds):
    """A struck body: partials of (frequency, gain, decay in seconds), each a little off."""
    total = [0.0] * int(seconds * RATE)
    rise = 0.0004 * RATE
    for frequency, gain, decay in partials:
        step = 2 * math.pi * frequency * dice.uniform(0.97, 1.03) / RATE
        phase, fall = dice.uniform(0, 2 * math.pi), decay * dice.uniform(0.8, 1.2) * RATE
        for k in range(len(total)):
            total[k] += gain * min(1, k / rise) * math.exp(-k / fall) * math.sin(phase + step * k)
    return total


CERAMIC = [(2450, 0.8, 0.012), (3720, 1.0, 0.016), (5350, 0.7, 0.011), (6900, 0.45, 0.008),
           (8600, 0.25, 0.005)]
CLAY = [(1350, 0.9, 0.009), (2120, 1.0, 0.010), (3180, 0.5, 0.007), (4600, 0.2, 0.004)]


def clack(dice, partials):
    """One check against another: the bodies ring, their faces scrape for an instant."""
    sound = struck(dice, partials, 0.11)
    add(sound, noise_burst(dice, 0.03, 0.004, 1200, 7000), 0, 1.6)
    return sound


def checks(dice, partials):
    """Checks put down: two to four clacks, each closer and weaker than the one before."""
    track, at, gain, gap = silence(0.16), 0.004, 1.0, dice.uniform(0.045, 0.075)
    for _ in range(dice.randint(2, 4)):
        add(track, clack(dice, partials), at, gain)
        at, gain, gap = at + gap, gain * dice.uniform(0.4, 0.65), gap * dice.uniform(0.55, 0.8)
    # The felt below takes a part of the first blow.
    add(track, noise_burst(dice, 0.08, 0.014, 90, 420), 0.004, 2.2)
    return track


def shower(dice):
    """Checks pouring out over checks, first a few, then many, then the last that spin out."""
    track = silence(2.2)
    for _ in range(90):
        at = min(1.85, max(0.0, dice.gauss(0.75, 0.42)))
        add(track, clack(dice, CERAMIC if dice.random() < 0.8 else CLAY), at, dice.uniform(0.15, 0.6))
    for k in range(7):
        add(track, clack(dice, CERAMIC), 1.75 + 0.05 * k * 0.9**k, 0.35 * 0.75**k)
    return track


DIE = [(1750, 0.5, 0.006), (2900, 0.8, 0.007), (4300, 0.5, 0.005), (6100, 0.25, 0.003)]


def bounce(dice, hardness):
    """A die on felt: a dull thump, and the hard little body heard above it."""
    sound = noise_burst(dice, 0.14, 0.022, 70, 330)
    sound = [3.2 * value for value in sound]
    add(sound, struck(dice, [(165, 0.7, 0.03), (240, 0.4, 0.02)], 0.14), 0, 0.5)
    add(sound, struck(dice, DIE, 0.05), 0, 0.5 * hardness)
    add(sound, noise_burst(dice, 0.04, 0.005, 700, 3200), 0, 0.9 * hardness)
    return sound


def throw(dice, hardness):
    """Two dice thrown: they land, hit the rubber of the wall, knock together and roll out."""
    track = silence(0.75)
    for lag in (0.0, dice.uniform(0.018, 0.035)):
        at, gain, gap = 0.01 + lag, 1.0, dice.uniform(0.10, 0.13)
        while at < 0.66:
            add(track, bounce(dice, hardness * dice.uniform(0.7, 1.2)), at, gain)
            at, gain, gap = at + gap, gain * dice.uniform(0.6, 0.78), gap * dice.uniform(0.74, 0.9)
            gap = max(gap, 0.03)
            if gain < 0.07:
                break
    add(track, struck(dice, DIE, 0.06), dice.uniform(0.2, 0.3), 0.9 * hardness)
    add(track, struck(dice, DIE, 0.06), dice.uniform(0.36, 0.46), 0.45 * hardness)
    roll = noise_burst(dice, 0.5, 0.2, 150, 900)
    add(track, roll, 0.12, 0.35)
    return track


def bell(dice):
    """Three soft bells, rising."""
    track = silence(1.7)
    for k, tone in enumerate((659.3, 830.6, 987.8)):
        partials = [(tone, 1.0, 0.42), (tone * 2.0, 0.45, 0.26), (tone * 2.76, 0.25, 0.14),
                    (tone * 5.4, 0.1, 0.05)]
        exact = random.Random(k)
        exact.uniform = lambda low, high: (low + high) / 2
        add(track, struck(exact, partials, 1.2), 0.005 + 0.13 * k, 0.7)
        add(track, noise_burst(dice, 0.02, 0.003, 1500, 6000), 0.005 + 0.13 * k, 0.25)
    return track


CALLS = {
    1: "Seven out! Line away.", 2: "Aces! Craps two.", 3: "Ace deuce! Craps three.",
    4: "Four! Little Joe.", 5: "Five! No field five.", 6: "Six! The number is six.",
    7: "Seven! Front line winner.", 8: "Eight! The number is eight.",
    9: "Nine! Center field nine.", 10: "Ten! The number is ten.", 11: "Yo! Eleven.",
    12: "Twelve! Box cars.", 13: "The hard way! Hard four.", 14: "The hard way! Hard six.",
    15: "The hard way! Hard eight.", 16: "The hard way! Hard ten.",
    17: "Coming out! Bet the line.", 18: "New game! Good luck, everybody.",
}
# Name, voice, words a minute, pitch.
STICK_PERSONS = (("Frank", "en-us+m3", 192, 46), ("Grace", "en-us+f3", 196, 54))


def closed_up(sound):
    """Cuts what is silent at both ends, and pauses within down to a breath: a call is quick."""
    window, breath = RATE // 100, 7
    result, quiet = [], breath
    for start in range(0, len(sound), window):
        part = sound[start:start + window]
        quiet = quiet + 1 if max(abs(value) for value in part) < 0.012 else 0
        if quiet <= breath:
            result.extend(part)
    return result[:len(result) - window * min(quiet, breath)]


def spoken(text, voice, speed, pitch):
    made = subprocess.run(
        ["espeak-ng", "-v", voice, "-s", str(speed), "-p", str(pitch), "--stdout", text],
        check=True, capture_output=True).stdout
    with wave.open(io.BytesIO(made)) as source:
        assert (source.getframerate(), source.getnchannels()) == (RATE, 1)
        # The header of a stream does not know its length: take what is there.
        samples = array.array("h", source.readframes(len(made) // 2))
    dry = high_pass(closed_up([value / 32768 for value in samples]), 110)
    dry = [math.tanh(2.2 * value) / 2.2 for value in dry]
    # A room around the voice: a few early echoes, each duller than the one before.
    wet, echo = list(dry), dry
    for delay, gain in ((0.017, 0.22), (0.029, 0.16), (0.043, 0.11), (0.071, 0.06)):
        echo = low_pass(echo, 3800)
        add(wet, echo, delay, gain)
    return wet


def write(path, sound, peak, drive=1.0):
    """Writes a sound at a peak, with its ends faded so that it neither starts nor stops at once.

    A drive above 1 rounds off the hardest blows, so that the body of the sound comes forward.
    """
    sound = high_pass(sound, 40)
    top = max(abs(value) for value in sound)
    sound = [math.tanh(drive * value / top) for value in sound]
    top = max(abs(value) for value in sound)
    fade = min(len(sound) // 4, int(0.02 * RATE))
    for k in range(fade):
        sound[-1 - k] *= k / fade
    for k in range(20):
        sound[k] *= k / 20
    samples = array.array("h", (round(32767 * peak * value / top) for value in sound))
    path.parent.mkdir(parents=True, exist_ok=True)
    with wave.open(str(path), "wb") as target:
        target.setnchannels(1)
        target.setsampwidth(2)
        target.setframerate(RATE)
        target.writeframes(samples.tobytes())


def main():
    shutil.rmtree(OUT, ignore_errors=True)
    dice = random.Random(1)
    for k in range(1, 7):
        write(OUT / "Ceramic.chp" / f"{k:02}.wav", checks(dice, CERAMIC), 0.6, 1.6)
        write(OUT / "Clay.chp" / f"{k:02}.wav", checks(dice, CLAY), 0.6, 1.6)
    for k in range(1, 5):
        write(OUT / "Felt.dce" / f"{k:02}.wav", throw(dice, 0.6), 0.6, 2.2)
        write(OUT / "soft.dce" / f"{k:02}.wav", throw(dice, 0.2), 0.26, 1.6)
    write(OUT / "Chips.win", shower(dice), 0.6, 1.8)
    write(OUT / "Bells.win", bell(dice), 0.55)
    for name, voice, speed, pitch in STICK_PERSONS:
        for number, text in CALLS.items():
            write(OUT / f"{name}.stk" / f"{number:02}.wav", spoken(text, voice, speed, pitch), 0.75)


if __name__ == "__main__":
    main()
