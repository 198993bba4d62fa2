#!/usr/bin/env python3
"""Speech by several voices, in several noises: how soon the voice gate opens for it, and how long it is open for nothing.

WebRTC's own detector of voices, with the gate's hangover, judges the same signals. `make speech`
"""

import array
import os
import pathlib
import random
import subprocess
import tempfile
import time

from sound import RATE, recording, silence, speech

VOICES = ["en-us+m3", "en-gb+f2", "en-us+f4", "en-gb+m7", "de+f3", "fr+m2", "es+f1", "pt-br+m4"]
SENTENCES = {"en": "Good morning everybody, and welcome. Let us look at the figures of the last three months.",
             "de": "Guten Morgen, und herzlich willkommen. Sehen wir uns die Zahlen der letzten Monate an.",
             "fr": "Bonjour à tous, et bienvenue. Regardons ensemble les chiffres des trois derniers mois.",
             "es": "Buenos días a todos, y bienvenidos. Veamos juntos las cifras de los últimos meses.",
             "pt": "Bom dia a todos, e bem-vindos. Vamos olhar os números dos últimos três meses."}
# A woman who names loudspeakers, recorded: alsa-utils brings it.
RECORDINGS = sorted(pathlib.Path("/usr/share/sounds/alsa").glob("*_*.wav"))
SENSITIVITIES = [0.1, 0.25, 0.5, 0.6, 0.75, 0.9, 1.0]
LEVEL = 0.03  # A voice at arm's length of a laptop's microphone.
PAUSE = 3.0
BLOCK = 0.02
SOON, HANGOVER = 0.3, 0.7


def spoken(scratch):
    """All voices in turn, with pauses, and when each speaks."""
    samples, times = silence(PAUSE), []
    for words in [*(speech(SENTENCES[voice[:2]], scratch, voice=voice, level=LEVEL) for voice in VOICES),
                  *(recording(path, level=LEVEL) for path in RECORDINGS)]:
        begin = len(samples) / RATE
        samples += words
        times.append((begin, len(samples) / RATE))
        samples += silence(PAUSE)
    return samples, times


def in_noise(samples, decibels):
    """With a room's noise, which falls towards the treble, so many decibels below the voice."""
    if decibels is None:
        return samples
    rng, low, noise = random.Random(1), 0.0, []
    for _ in samples:
        low += 0.1 * (rng.gauss(0, 1) - low)
        noise.append(low)
    rms = (sum(value * value for value in noise) / len(noise)) ** 0.5
    factor = LEVEL * 10 ** (-decibels / 20) / rms
    return [voice + factor * value for voice, value in zip(samples, noise)]


def with_hangover(decisions):
    result, until = [], -1.0
    for block, decision in enumerate(decisions):
        until = block * BLOCK + HANGOVER if decision else until
        result.append(block * BLOCK <= until)
    return result


def judged(decisions, times):
    """(the share of the sentences that open the gate soon, the share of speech and of silence for which it is open)."""
    def is_open(moment):
        return decisions[min(int(moment / BLOCK), len(decisions) - 1)]

    soon = sum(any(is_open(begin + step * BLOCK) for step in range(int(SOON / BLOCK) + 1)) for begin, _ in times)
    talk = [is_open(begin + step * BLOCK) for begin, end in times for step in range(int((end - begin) / BLOCK))]
    pauses = zip([0.0] + [end + HANGOVER + 0.1 for _, end in times], [begin for begin, _ in times])
    quiet = [is_open(begin + step * BLOCK) for begin, end in pauses for step in range(int((end - begin) / BLOCK))]
    return soon / len(times), sum(talk) / len(talk), sum(quiet) / len(quiet)


def main():
    with tempfile.TemporaryDirectory() as scratch:
        samples, times = spoken(scratch)
        print(f"{len(VOICES)} sentences by as many synthetic voices, {len(RECORDINGS)} short ones by a human one, "
              f"{len(samples) / RATE:.0f} s, {time.strftime('%Y-%m-%d')}")
        print(f"{'':24}{'heard within 0.3 s':>20}{'open for speech':>18}{'open for nothing':>18}")
        for decibels in (None, 20, 10, 5):
            path = os.path.join(scratch, "signal.raw")
            with open(path, "wb") as file:
                file.write(array.array("h", [max(-32768, min(32767, int(value * 32767)))
                                             for value in in_noise(samples, decibels)]).tobytes())
            lines = subprocess.run([os.environ["ORVELLO_SPEECH_JUDGE"], path, *map(str, SENSITIVITIES)], check=True,
                                   capture_output=True, text=True).stdout.split()
            print("in silence" if decibels is None else f"noise {decibels} dB below the voice")
            for column, name in enumerate([f"  sensitivity {value:.2f}" for value in SENSITIVITIES] + ["  WebRTC"]):
                decisions = [line[column] == "1" for line in lines]
                if column == len(SENSITIVITIES):
                    decisions = with_hangover(decisions)
                soon, talk, quiet = judged(decisions, times)
                print(f"{name:24}{soon:>20.0%}{talk:>18.1%}{quiet:>18.1%}")


if __name__ == "__main__":
    main()
