"""What the tests of the voice engine have in common: speech to play, an engine that listens, a microphone in use."""

import os
import subprocess
import threading
import time
import unittest

from sound import RATE, Probe, SoundServer, speech
from waiting import wait_until

FAR_END = ("The quick brown fox jumps over the lazy dog, while the band plays a slow song in the garden behind the "
           "house. Nobody had expected that so many people would come, and yet the chairs were not enough for half "
           "of them. After the second song the rain began, and everybody ran to the tents. There they stood.")
NEAR_END = "And now I would like to say a few words about the weather in the mountains this year."


class Listener:
    """Notes when the air became loud and silent: what the gate is measured against. It hears a monitor, which does
    not count as a use of the microphone."""

    def __init__(self, sound, source="air.monitor"):
        self.loud_blocks = []
        self.process = sound.start(
            ["parec", f"--device={source}", "--latency-msec=10", "--format=s16le", "--rate=48000", "--channels=1",
             "--raw"], stdout=subprocess.PIPE)
        threading.Thread(target=self._listen, daemon=True).start()

    def _listen(self):
        with self.process.stdout as samples:
            while data := os.read(samples.fileno(), 4096):
                self._note(data)

    def _note(self, data):
        values = memoryview(data[:len(data) // 2 * 2]).cast("h")
        if max(map(abs, values), default=0) > 1000:
            self.loud_blocks.append(time.monotonic())


class HearingTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        with SoundServer() as sound:
            cls.far_end = speech(FAR_END, sound.scratch, level=0.1)[:15 * RATE]
            cls.near_end = speech(NEAR_END, sound.scratch, voice="en-us+f3", level=0.1)
            cls.sentence = cls.near_end[:2 * RATE]

    def sound(self, **options):
        sound = SoundServer(**options)
        self.addCleanup(sound.close)
        sound.start_server()
        return sound

    def listening(self, sound, path="VAD listening (VPIO, AEC on)"):
        probe = Probe(sound)
        probe.command("start")
        probe.wait_for(path)
        return probe

    def hold(self, sound):
        """A running engine on the raw path, because another program records."""
        recorder = self.record(sound)
        probe = Probe(sound)
        time.sleep(0.5)
        probe.command("start")
        probe.wait_for("VAD listening (raw mic, no AEC — another app is using the microphone)")
        return probe, recorder

    def record(self, sound, source="microphone"):
        recorder = sound.start(["parec", f"--device={source}"], stdout=subprocess.DEVNULL)
        wait_until(lambda: "parec" in sound.control("list", "source-outputs"), what="the recorder")
        return recorder

    def say(self, sound, samples):
        for player in sound.play((samples, "air")):
            player.wait(60)

    def assert_hears(self, sound, probe):
        since = time.monotonic()
        self.say(sound, self.sentence)
        probe.wait_for("VAD speaking=1", since=since)
        probe.wait_for("VAD speaking=0", since=since)
