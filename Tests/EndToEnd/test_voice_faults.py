"""What can go wrong under a prompter that follows somebody who speaks: each fault ends in following again.

A chosen few run with the tests, all of them with ORVELLO_FAULTS=all (`make faults`).
"""

import array
import os
import pathlib
import time
import unittest

from sound import KIND, RATE, Probe, Recorders, SoundServer, speech
from waiting import wait_until

ALL = os.environ.get("ORVELLO_FAULTS") == "all"
TALK = "And now I would like to say a few words about the weather in the mountains this year, and about the lakes below."

# How soon it follows again once the cause has gone, and how soon the gate shuts when nothing is heard any longer.
FOLLOWS_WITHIN = 3.0
SHUTS_WITHIN = 2.0


def rare(test):
    """One that runs only with all the others."""
    return test if ALL else None


class VoiceFaultsTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        with SoundServer() as sound:
            samples = speech(TALK, sound.scratch)
        cls.talk = array.array("h", [max(-32768, min(32767, int(value * 32767))) for value in samples]).tobytes()

    def setUp(self):
        self.sound = SoundServer()
        self.addCleanup(self.sound.close)
        self.sound.start_server()
        self.probe = Probe(self.sound)
        self.probe.command("start")
        self.probe.wait_for("VAD listening (VPIO, AEC on)")
        self.speak()
        wait_until(self.is_speaking, 5, "speech")
        self.before = self.held()

    def speak(self):
        """Somebody who does not stop, into the air."""
        recording = self.sound.scratch / "talk.raw"
        if not recording.exists():
            recording.write_bytes(self.talk * 20)
        self.speaker = self.sound.start(
            ["pacat", "--raw", "--format=s16le", f"--rate={RATE}", "--channels=1", "--device=air", "--latency-msec=30",
             str(recording)])

    def is_speaking(self):
        return "speaking=1" in self.probe.answer("state")

    def held(self):
        """Descriptors and threads of the program."""
        process = pathlib.Path(f"/proc/{self.probe.process.pid}")
        return len(list((process / "fd").iterdir())), len(list((process / "task").iterdir()))

    def streams(self):
        return self.sound.control("list", "source-outputs").count('application.name = "Orvello"')

    def assert_shuts(self, since):
        closed = self.probe.wait_for("VAD speaking=0", SHUTS_WITHIN + 1, since)
        self.assertLess(closed - since, SHUTS_WITHIN, "the text moves although nobody is heard")

    def assert_stays_shut(self, since):
        """Nobody is heard from a moment on, but for the time that the gate takes to shut."""
        self.assertEqual(self.probe.share_of_speaking(since + SHUTS_WITHIN, time.monotonic()), 0)

    def assert_recovers(self, gone=None):
        """The cause is gone, since now unless told."""
        gone = gone or time.monotonic()
        wait_until(self.is_speaking, FOLLOWS_WITHIN, "following again")
        print(f"follows after {time.monotonic() - gone:.2f} s", end=" ", flush=True)
        self.sound.stop(self.speaker)
        self.assert_shuts(time.monotonic())
        descriptors, threads = self.held()
        self.assertLessEqual(descriptors, self.before[0])
        self.assertLessEqual(threads, self.before[1])
        wait_until(lambda: self.streams() <= 2, what="no stream too many")

    # The server

    def freeze(self, seconds):
        self.sound.freeze()
        frozen = time.monotonic()
        if seconds > SHUTS_WITHIN:
            self.assert_shuts(frozen)
        time.sleep(max(0.0, frozen + seconds - time.monotonic()))
        if seconds > SHUTS_WITHIN:
            self.assert_stays_shut(frozen)
        self.sound.thaw()
        gone = time.monotonic()
        if seconds < 0.5:
            time.sleep(1)
            self.assertEqual(self.probe.share_of_speaking(frozen, time.monotonic()), 1, "a hiccup stops no text")
        self.assert_recovers(gone)

    @rare
    def test_a_server_that_hangs_for_a_third_of_a_second(self):
        self.freeze(0.3)

    @rare
    def test_a_server_that_hangs_for_a_second(self):
        self.freeze(1)

    def test_a_server_that_hangs_for_three_seconds(self):
        self.freeze(3)

    @rare
    def test_a_server_that_hangs_for_ten_seconds(self):
        self.freeze(10)

    def test_a_server_that_dies_and_is_started_again(self):
        self.sound.kill_server()
        killed = time.monotonic()
        self.assert_shuts(killed)
        self.sound.start_server()
        self.assert_stays_shut(killed)
        self.speak()
        self.assert_recovers()

    @rare
    def test_a_server_that_comes_back_without_a_source(self):
        self.sound.stop_server()
        stopped = time.monotonic()
        modules, source = self.sound.modules, self.sound.default_source
        self.sound.modules, self.sound.default_source = modules[:2], None
        self.sound.start_server()
        self.speak()
        time.sleep(4)
        self.assert_stays_shut(stopped)
        self.sound.modules, self.sound.default_source = modules, source
        self.plug_in("microphone")
        self.assert_recovers()

    # The microphone

    def plug_in(self, source, master="air.monitor"):
        self.sound.control("load-module", "module-remap-source", f"master={master}", f"source_name={source}")
        wait_until(lambda: f"\t{source}\t" in self.sound.control("list", "short", "sources"), what=source)
        self.sound.control("set-default-source", source)

    def unplug(self):
        module, = [line.split("\t")[0] for line in self.sound.control("list", "short", "modules").splitlines()
                   if "source_name=microphone" in line]
        self.sound.control("unload-module", module)

    @rare
    def test_a_microphone_that_is_unplugged_and_plugged_in_again(self):
        self.unplug()
        self.assert_shuts(time.monotonic())
        self.plug_in("microphone")
        self.assert_recovers()

    def test_a_microphone_that_comes_back_under_another_name(self):
        self.unplug()
        self.assert_shuts(time.monotonic())
        self.plug_in("headset")
        self.assert_recovers()

    def test_a_microphone_that_is_chosen_goes_and_comes_back(self):
        self.sound.control("load-module", "module-null-sink", "sink_name=quiet")
        self.plug_in("headset", master="quiet.monitor")
        self.assert_shuts(time.monotonic())
        self.probe.command("microphone microphone")
        wait_until(self.is_speaking, FOLLOWS_WITHIN, "the chosen microphone")
        self.unplug()
        self.assert_shuts(time.monotonic())
        self.sound.control("load-module", "module-remap-source", "master=air.monitor", "source_name=microphone")
        self.assert_recovers()

    def change_format(self, rate, channels):
        """Another microphone takes the place of the first, of a format of its own, and hears the same voice."""
        self.sound.control("load-module", "module-null-sink", "sink_name=booth", f"rate={rate}", f"channels={channels}")
        self.sound.stop(self.speaker)
        self.plug_in("headset", master="booth.monitor")
        self.assert_shuts(time.monotonic())
        self.speaker = self.sound.start(
            ["pacat", "--raw", "--format=s16le", f"--rate={RATE}", "--channels=1", "--device=booth", "--latency-msec=30",
             str(self.sound.scratch / "talk.raw")])
        self.assert_recovers()

    def test_a_microphone_of_8_kilohertz_with_six_channels(self):
        self.change_format(8000, 6)

    @rare
    def test_microphones_of_every_other_rate(self):
        for rate in (16000, 44100, 96000, 192000):
            with self.subTest(rate=rate):
                self.change_format(rate, 2)
                self.tearDownAndSetUp()

    @rare
    def test_microphones_of_one_to_eight_channels(self):
        for channels in (1, 2, 3, 4, 5, 7, 8):
            with self.subTest(channels=channels):
                self.change_format(48000, channels)
                self.tearDownAndSetUp()

    def tearDownAndSetUp(self):
        self.doCleanups()
        self.setUp()

    @rare
    def test_a_sink_that_is_suspended(self):
        for sink in ("speakers", "air"):
            self.sound.control("suspend-sink", sink, "1")
        if KIND == "pulseaudio":  # PipeWire resumes what is in use.
            self.assert_shuts(time.monotonic())
        for sink in ("speakers", "air"):
            self.sound.control("suspend-sink", sink, "0")
        self.assert_recovers()

    @rare
    def test_two_hundred_streams_that_record(self):
        crowd = Recorders(self.sound, "microphone", 200)
        self.probe.wait_for("VAD listening (raw mic, no AEC — another app is using the microphone)", 10)
        crowd.stop()
        self.probe.wait_for("VAD: environment clear — re-engaging AEC", 15)
        self.assert_recovers()


if __name__ == "__main__":
    unittest.main(verbosity=2)
