#!/usr/bin/env python3
"""The voice engine for hours: soak_voice.py [MINUTES], two hours unless told. `make soak`

Every minute has silence, speech and a change of path, and every fifth a restart of the server. It fails when a sentence
is missed, when the gate opens for silence, or when memory, descriptors or the log grow.
"""

import pathlib
import sys
import time

from sound import KIND, Probe, SoundServer, silence, speech

MAY_GROW = 4096  # KiB of memory, from the fifth minute to the last.
MAY_LOG = 2000  # Bytes a minute, which has about ten lines.


class Measured:
    def __init__(self, probe, sound):
        process = pathlib.Path(f"/proc/{probe.process.pid}")
        status = dict(line.split(":", 1) for line in (process / "status").read_text().splitlines())
        self.memory = int(status["VmRSS"].split()[0])
        self.descriptors = len(list((process / "fd").iterdir()))
        self.log = sum(file.stat().st_size for file in (sound.scratch / "probe-home/Orvello/logs").glob("orvello.log*"))

    def __str__(self):
        return f"{self.memory} KiB, {self.descriptors} descriptors, {self.log} bytes of log"


def minute(number, sound, probe, sentence):
    begun = time.monotonic()
    time.sleep(15)
    assert probe.share_of_speaking(begun + 1, time.monotonic()) == 0, "the gate opened for silence"
    for path in ("app us.zoom.xos Zoom", "noapp"):
        since = time.monotonic()
        sound.play((sentence, "air"))[0].wait(60)
        probe.wait_for("VAD speaking=1", since=since)
        probe.wait_for("VAD speaking=0", since=since)
        probe.command(path)
        time.sleep(7)
    if number % 5 == 4:
        sound.stop_server()
        time.sleep(2)
        sound.start_server()
        time.sleep(3)
    time.sleep(max(0.0, begun + 60 - time.monotonic()))


def main():
    minutes = int(sys.argv[1]) if len(sys.argv) > 1 else 120
    with SoundServer() as sound:
        sentence = speech("And now I would like to say a few words about the weather.", sound.scratch) + silence(0.2)
        sound.start_server()
        probe = Probe(sound)
        probe.command("start")
        probe.wait_for("VAD listening")
        first = None
        for number in range(minutes):
            minute(number, sound, probe, sentence)
            now = Measured(probe, sound)
            first = now if number == min(4, minutes // 2) else first
            print(f"{KIND}, minute {number + 1}: {now}", flush=True)
        assert now.memory - first.memory < MAY_GROW, f"memory grew from {first}"
        assert now.descriptors <= first.descriptors, f"descriptors grew from {first}"
        assert now.log - first.log <= MAY_LOG * minutes, f"the log grew from {first}"
        sound.stop(probe.process)


if __name__ == "__main__":
    main()
