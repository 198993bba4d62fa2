"""The voice engine on a real sound server: speech, echo, other programs, strange and failing sources."""

import os
import pathlib
import re
import subprocess
import threading
import time
import unittest

from sound import KIND, RATE, PausingRecorder, Probe, SoundServer, mixed, scaled, silence, speech
from waiting import wait_until

FAR_END = ("The quick brown fox jumps over the lazy dog, while the band plays a slow song in the garden behind the "
           "house. Nobody had expected that so many people would come, and yet the chairs were not enough for half "
           "of them. After the second song the rain began, and everybody ran to the tents. There they stood.")
# Microphones::Trouble
NO_ANSWER, NO_MICROPHONE, MUTED = 1, 3, 4

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
        while data := os.read(self.process.stdout.fileno(), 4096):
            values = memoryview(data[:len(data) // 2 * 2]).cast("h")
            if max(map(abs, values), default=0) > 1000:
                self.loud_blocks.append(time.monotonic())


class VoiceCaptureTest(unittest.TestCase):
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

    # Speech

    def test_silence_is_not_speech(self):
        probe = self.listening(self.sound())
        time.sleep(3)
        heard = [message for message in probe.messages() if message.startswith("VAD")]
        self.assertEqual(heard, ["VAD listening (VPIO, AEC on)"])

    def test_the_gate_follows_speech_on_both_paths(self):
        sound = self.sound()
        probe = self.listening(sound)
        self.follow_speech(sound, probe)
        recorder = self.record(sound)
        probe.wait_for("VAD listening (raw mic")
        self.follow_speech(sound, probe)
        sound.stop(recorder)

    def follow_speech(self, sound, probe):
        time.sleep(1)
        listener = Listener(sound)
        time.sleep(0.5)
        since = time.monotonic()
        # Constant speech-loud noise, so that its start and its pauses are exact: 2 s, 0.5 s of pause, 1 s.
        tone = [0.1 if index // 60 % 2 else -0.1 for index in range(2 * RATE)]
        self.say(sound, tone + silence(0.5) + tone[:RATE])
        time.sleep(1.5)
        begin, end = listener.loud_blocks[0], listener.loud_blocks[-1]

        opened = probe.wait_for("VAD speaking=1 rms=0.", since=since)
        closed = probe.wait_for("VAD speaking=0 rms=0.0", since=since)

        self.assertLess(opened - begin, 0.3)
        self.assertGreater(closed, end)
        self.assertLess(closed - end, 1.0)
        transitions = [text for moment, text in probe.lines() if moment >= since and "speaking=" in text]
        self.assertEqual(len(transitions), 2, "the pause must be bridged")
        self.assertTrue(all(text.endswith("thr=0.0063") for text in transitions), transitions)

    def test_real_speech_opens_the_gate_once(self):
        sound = self.sound()
        probe = self.listening(sound)
        self.assert_hears(sound, probe)

    # Echo

    def echo(self):
        """The far end's copy in the air: 12 dB lower, 40 ms later."""
        return silence(0.04) + scaled(self.far_end, -12)

    def play_echo(self, sound, air):
        players = sound.play((self.far_end, "speakers"), (air, "air"))
        begin = time.monotonic()
        for player in players:
            player.wait(60)
        return begin + 5, begin + len(self.far_end) / RATE

    def test_echo_keeps_the_gate_shut_with_voice_processing(self):
        sound = self.sound()
        probe = self.listening(sound)
        begin, end = self.play_echo(sound, self.echo())
        share = probe.share_of_speaking(begin, end)
        print(f"open through echo, voice processing: {share:.1%}", flush=True)
        self.assertLessEqual(share, 0.05)

    def test_echo_of_a_call_on_another_sink_keeps_the_gate_shut(self):
        """A meeting program plays where its own settings say; music goes on where the desktop's say."""
        modules = SoundServer.MODULES + ["module-null-sink sink_name=other rate=48000 channels=2"]
        sound = self.sound(modules=modules, default_sink="other")
        # A null sink that nobody hears plays in steps of two seconds, and its echo would come before it.
        Listener(sound, "speakers.monitor")
        probe = self.listening(sound)
        begin, end = self.play_echo(sound, self.echo())
        share = probe.share_of_speaking(begin, end)
        print(f"open through echo of another sink than the default: {share:.1%}", flush=True)
        self.assertLessEqual(share, 0.05)

        music = scaled(list(reversed(self.far_end)), -6)
        air = mixed(self.echo(), silence(0.03) + scaled(music, -12))
        players = sound.play((self.far_end, "speakers"), (music, "other"), (air, "air"))
        begin = time.monotonic()
        for player in players:
            player.wait(60)
        share = probe.share_of_speaking(begin + 5, begin + len(self.far_end) / RATE)
        print(f"open through the echo of two sinks at a time: {share:.1%}", flush=True)
        self.assertLessEqual(share, 0.05)

    def test_echo_opens_the_gate_on_the_raw_path(self):
        sound = self.sound()
        probe, _ = self.hold(sound)
        begin, end = self.play_echo(sound, self.echo())
        share = probe.share_of_speaking(begin, end)
        print(f"open through echo, raw: {share:.1%}", flush=True)
        self.assertGreater(share, 0.5)

    def test_near_end_speech_opens_the_gate_through_the_echo_on_both_paths(self):
        for path in ("voice processing", "raw"):
            with self.subTest(path):
                sound = self.sound()
                probe = self.listening(sound) if path != "raw" else self.hold(sound)[0]
                air = mixed(self.echo(), silence(8) + scaled(self.near_end, 3))
                begin, _ = self.play_echo(sound, air)
                share = probe.share_of_speaking(begin + 3, begin + 3 + len(self.near_end) / RATE)
                print(f"open for speech over echo, {path}: {share:.1%}", flush=True)
                self.assertGreater(share, 0.5)

    # Other programs

    def test_another_recorder_drops_echo_cancellation_until_the_fifth_clear_tick(self):
        sound = self.sound()
        probe = self.listening(sound)
        recorder = self.record(sound)
        recording = time.monotonic()
        dropped = probe.wait_for(
            "VAD: dropping AEC (another app is using the microphone) — switching to raw mic tap")
        self.assertLess(dropped - recording, 2.0)
        probe.wait_for("VAD listening (raw mic, no AEC — another app is using the microphone)")
        self.assert_hears(sound, probe)

        sound.stop(recorder)
        left = time.monotonic()
        back = probe.wait_for("VAD: environment clear — re-engaging AEC", seconds=10)
        self.assertTrue(3.9 < back - left < 6.2, back - left)
        self.assertIn("aec=1", probe.answer("state"))
        self.assert_hears(sound, probe)

    def test_recorders_of_sinks_do_not_count(self):
        sound = self.sound()
        probe = self.listening(sound)
        self.record(sound, "speakers.monitor")
        self.record(sound, "air.monitor")
        time.sleep(3)
        self.assertIn("aec=1", probe.answer("state"))

    def test_a_recorder_counts_only_while_it_is_not_paused(self):
        sound = self.sound()
        probe = self.listening(sound)
        recorder = PausingRecorder(sound, "microphone")
        self.assertEqual(self.recorders(sound)[os.getpid()], ["yes"])
        time.sleep(3)
        self.assertIn("aec=1", probe.answer("state"))

        recorder.record(True)
        recording = time.monotonic()
        dropped = probe.wait_for("VAD: dropping AEC (another app is using the microphone)", since=recording)
        self.assertLess(dropped - recording, 2.0)

        recorder.record(False)
        probe.wait_for("VAD: environment clear — re-engaging AEC", seconds=10)

    def test_its_own_recording_does_not_count(self):
        sound = self.sound()
        probe = self.listening(sound)
        time.sleep(3)
        self.assertEqual(self.recorders(sound), {probe.process.pid: ["no", "no"]})
        self.assertIn("aec=1", probe.answer("state"))

        probe.command("app us.zoom.xos Zoom")
        probe.wait_for("VAD listening (raw mic, no AEC — Zoom is open)")
        probe.command("noapp")
        probe.wait_for("VAD: environment clear — re-engaging AEC", seconds=10)
        self.assertNotIn("another app", "".join(probe.messages()))

    @staticmethod
    def recorders(sound):
        """For each process that the server knows to record: whether its streams are paused."""
        outputs = sound.control("list", "source-outputs").split("Source Output #")
        paused = [re.search(r"Corked: (\w+)", output) for output in outputs]
        processes = [re.search(r'application.process.id = "(\d+)"', output) for output in outputs]
        result = {}
        for process, is_paused in zip(processes, paused):
            if process:
                result.setdefault(int(process[1]), []).append(is_paused[1])
        return result

    def test_a_microphone_that_is_a_monitor_can_be_in_use_too(self):
        sound = self.sound(default_source="air.monitor")
        probe = self.listening(sound)
        self.record(sound, "speakers.monitor")
        time.sleep(3)
        self.assertIn("aec=1", probe.answer("state"))

        self.record(sound, "air.monitor")
        probe.wait_for("VAD: dropping AEC (another app is using the microphone)")

    def test_nothing_but_two_record_streams_is_added_to_the_server(self):
        sound = self.sound()
        kinds = ("modules", "sinks", "sources", "sink-inputs")
        before = [sound.control("list", "short", kind).count("\n") for kind in kinds]
        outputs = sound.control("list", "short", "source-outputs").count("\n")
        self.listening(sound)
        after = [sound.control("list", "short", kind).count("\n") for kind in kinds]
        self.assertEqual(after, before)
        self.assertEqual(sound.control("list", "short", "source-outputs").count("\n"), outputs + 2)

    def test_a_meeting_application_holds_echo_cancellation(self):
        sound = self.sound()
        probe = self.listening(sound)
        probe.command("app us.zoom.xos Zoom")
        probe.wait_for("VAD: dropping AEC (Zoom is open) — switching to raw mic tap")
        probe.command("noapp")
        probe.wait_for("VAD: environment clear — re-engaging AEC", seconds=10)

    def test_stopping_leaves_no_stream(self):
        sound = self.sound()
        probe = self.listening(sound)
        for _ in range(20):
            probe.command("stop")
            probe.command("start")
        probe.command("stop")
        probe.answer("state")
        wait_until(lambda: "Orvello" not in sound.control("list", "source-outputs"), seconds=30,
                   what="no stream in\n" + sound.control("list", "source-outputs"))

    # The server and its devices

    def test_a_server_that_comes_late_is_waited_for(self):
        sound = SoundServer()
        self.addCleanup(sound.close)
        probe = Probe(sound)
        probe.command("start")
        probe.wait_for("VAD listening (VPIO, AEC on)")
        self.assertIn(f"trouble={NO_ANSWER}", probe.answer("state"))

        sound.start_server()
        up = time.monotonic()
        wait_until(lambda: "trouble=0" in probe.answer("state"), what="the microphone")
        self.assertLess(time.monotonic() - up, 3)
        self.assert_hears(sound, probe)
        self.assertNotIn("no usable", "".join(probe.messages()))

    def test_the_first_choice_of_path_waits_for_the_server(self):
        sound = self.sound()
        self.record(sound)
        sound.freeze()
        probe = Probe(sound)
        probe.command("start")
        time.sleep(1)
        sound.thaw()
        probe.wait_for("VAD: AEC held (another app is using the microphone) — raw mic tap")
        self.assertNotIn("VAD listening (VPIO, AEC on)", probe.messages())

    def test_a_server_without_a_source_has_no_usable_input_device(self):
        """The monitor of a loudspeaker, which it offers in place of one, would scroll to the other side's voice."""
        sound = self.sound(modules=SoundServer.MODULES[:2], default_source=None)
        probe = Probe(sound)
        probe.command("start")
        probe.wait_for("VAD: no usable input device")
        self.assertTrue([message for message in probe.messages() if message.startswith("VPIO: enable input failed")])
        self.assertIn(f"trouble={NO_MICROPHONE}", probe.answer("state"))

    def test_a_monitor_is_no_microphone_once_the_microphone_is_gone(self):
        sound = self.sound()
        probe = self.listening(sound)
        self.assert_hears(sound, probe)
        self.unplug(sound, "microphone")
        wait_until(lambda: f"trouble={NO_MICROPHONE}" in probe.answer("state"), what="the end of the microphone")

        since = time.monotonic()
        for player in sound.play((self.sentence, "speakers"), (self.sentence, "air")):
            player.wait(60)
        probe.command("app us.zoom.xos Zoom")
        probe.wait_for("VAD listening (raw mic, no AEC — Zoom is open)")
        for player in sound.play((self.sentence, "speakers"), (self.sentence, "air")):
            player.wait(60)
        self.assertEqual(probe.share_of_speaking(since, time.monotonic()), 0)

        self.plug_in(sound, "microphone")
        wait_until(lambda: "trouble=0" in probe.answer("state"), what="the microphone")
        self.assert_hears(sound, probe)

    def unplug(self, sound, source):
        module, = [line.split("\t")[0] for line in sound.control("list", "short", "modules").splitlines()
                   if f"source_name={source}" in line]
        sound.control("unload-module", module)

    def plug_in(self, sound, source):
        sound.control("load-module", "module-remap-source", "master=air.monitor", f"source_name={source}",
                      "channels=1")

    def test_a_server_restart_in_the_middle_is_survived_on_both_paths(self):
        for path in ("voice processing", "raw"):
            with self.subTest(path):
                sound = self.sound()
                probe = self.listening(sound)
                if path == "raw":
                    probe.command("app us.zoom.xos Zoom")
                    probe.wait_for("VAD listening (raw mic, no AEC — Zoom is open)")
                self.assert_hears(sound, probe)
                player, = sound.play((self.far_end, "air"))
                spoken = time.monotonic()
                probe.wait_for("VAD speaking=1", since=spoken)

                stopping = time.monotonic()
                sound.stop_server()
                stopped = time.monotonic()
                closed = probe.wait_for("VAD speaking=0", since=stopping)
                self.assertLess(closed - stopped, 1.5, "nobody speaks into a microphone that is away")
                sound.stop(player)
                sound.start_server()
                time.sleep(2)
                self.assert_hears(sound, probe)

    def test_a_server_that_hangs_never_holds_the_main_loop(self):
        sound = self.sound()
        probe = self.listening(sound)
        probe.answer("stall")
        player, = sound.play((self.far_end, "air"))
        spoken = time.monotonic()
        probe.wait_for("VAD speaking=1", since=spoken)
        sound.freeze()
        frozen = time.monotonic()
        probe.wait_for("VAD speaking=0", since=frozen)
        stalls = []
        for command in ("app us.zoom.xos Zoom", "stop", "start", "stop", "noapp", "start"):
            probe.command(command)
            time.sleep(1.2)
            stalls.append(float(probe.answer("stall").split()[1]))
        print("longest stalls of the main loop:", *(f"{stall * 1000:.1f} ms" for stall in stalls), flush=True)
        self.assertIn("listening=1", probe.answer("state"))
        self.assertIn(f"trouble={NO_ANSWER}", probe.answer("state"))
        sound.stop(player)
        sound.thaw()
        time.sleep(1)
        self.assert_hears(sound, probe)
        self.assertLess(sorted(stalls)[-2], 0.02, "one may be the fault of a busy machine")

    def test_a_change_of_path_on_a_hanging_server_still_follows_afterwards(self):
        sound = self.sound()
        probe = self.listening(sound)
        sound.freeze()
        probe.command("app us.zoom.xos Zoom")
        probe.wait_for("VAD listening (raw mic, no AEC — Zoom is open)")
        time.sleep(2)
        sound.thaw()
        self.assert_hears(sound, probe)

    def test_a_server_that_is_away_says_nothing_about_other_programs(self):
        """Five clear ticks bring echo cancellation back; an unknown environment is not a clear one."""
        sound = self.sound()
        probe, _ = self.hold(sound)
        sound.stop_server()
        time.sleep(7)
        self.assertIn("listening=1 aec=0", probe.answer("state"))
        self.assertNotIn("VAD: environment clear — re-engaging AEC", probe.messages())

        sound.start_server()
        probe.wait_for("VAD: environment clear — re-engaging AEC", seconds=12)
        self.assert_hears(sound, probe)

    def test_the_user_changes_the_default_source(self):
        modules = SoundServer.MODULES + ["module-null-sink sink_name=quiet",
                                         "module-remap-source master=quiet.monitor source_name=headset"]
        sound = self.sound(modules=modules, default_source="headset")
        for path in ("voice processing", "raw"):
            with self.subTest(path):
                sound.control("set-default-source", "headset")
                probe = self.listening(sound)
                if path == "raw":
                    probe.command("app us.zoom.xos Zoom")
                    probe.wait_for("VAD listening (raw mic")
                self.say(sound, self.sentence)
                self.assertNotIn("speaking=1", "".join(probe.messages()))

                sound.control("set-default-source", "microphone")
                time.sleep(1)
                self.assert_hears(sound, probe)
                probe.command("stop")
                probe.answer("state")

    def test_the_microphone_is_unplugged_and_plugged_in_again(self):
        sound = self.sound()
        probe = self.listening(sound)
        player, = sound.play((self.far_end, "air"))
        spoken = time.monotonic()
        probe.wait_for("VAD speaking=1", since=spoken)
        self.unplug(sound, "microphone")
        probe.wait_for("VAD speaking=0", since=time.monotonic() - 0.1)
        sound.stop(player)

        self.plug_in(sound, "microphone")
        sound.control("set-default-source", "microphone")
        time.sleep(2)
        self.assert_hears(sound, probe)

    def test_a_stream_stays_where_the_user_put_it(self):
        """In the server's mixer, on another microphone than the default: a new default sink does not matter."""
        modules = SoundServer.MODULES + ["module-null-sink sink_name=other rate=48000 channels=2",
                                         "module-null-sink sink_name=quiet",
                                         "module-remap-source master=quiet.monitor source_name=headset"]
        sound = self.sound(modules=modules, default_source="headset")
        for path in ("voice processing", "raw"):
            with self.subTest(path):
                probe = self.listening(sound)
                if path == "raw":
                    probe.command("app us.zoom.xos Zoom")
                    probe.wait_for("VAD listening (raw mic")
                wait_until(lambda: "Voice-Follow" in sound.control("list", "source-outputs"), what="the stream")
                time.sleep(0.5)
                sound.control("move-source-output", self.stream(sound, "Voice-Follow"), "microphone")
                time.sleep(0.5)
                self.assert_hears(sound, probe)
                reference = None if path == "raw" else self.stream(sound, "Echo reference")

                sound.control("set-default-source", "microphone")
                sound.control("set-default-source", "headset")
                time.sleep(0.5)
                if reference:
                    self.assertEqual(self.stream(sound, "Echo reference"), reference)
                sound.control("set-default-sink", "other")
                time.sleep(1)
                self.assert_hears(sound, probe)
                sound.control("set-default-sink", "speakers")
                probe.command("stop")
                probe.answer("state")

    @staticmethod
    def stream(sound, name):
        """The number of the one stream of this name."""
        outputs = sound.control("list", "source-outputs").split("Source Output #")
        number, = [output.split("\n")[0] for output in outputs if f'media.name = "{name}"' in output]
        return number

    def test_a_microphone_that_is_muted_is_named(self):
        sound = self.sound()
        probe = self.listening(sound)
        self.assert_hears(sound, probe)
        sound.control("set-source-mute", "microphone", "1")
        wait_until(lambda: f"trouble={MUTED}" in probe.answer("state"), what="the trouble")
        self.assertIn("heard=Remapped ", probe.answer("state"))
        sound.control("set-source-mute", "microphone", "0")
        wait_until(lambda: "trouble=0" in probe.answer("state"), what="the end of the trouble")

    def test_sources_of_every_format_are_heard(self):
        for rate, channels, form in ((8000, 1, "u8"), (192000, 6, "float32le")):
            with self.subTest(f"{rate} Hz, {channels} channels, {form}"):
                air = f"module-null-sink sink_name=air rate={rate} channels={channels} format={form}"
                microphone = "module-remap-source master=air.monitor source_name=microphone"  # In the air's own format.
                sound = self.sound(modules=[SoundServer.MODULES[0], air, microphone])
                # PipeWire's remapped sources have the format of its graph; there the air's monitor is the one.
                name = "microphone" if KIND == "pulseaudio" else "air.monitor"
                self.assertRegex(sound.control("list", "short", "sources"), rf"\t{name}\t.* {channels}ch {rate}Hz")
                sound.control("set-default-source", name)
                probe = self.listening(sound)
                self.assert_hears(sound, probe)
                probe.command("app us.zoom.xos Zoom")
                probe.wait_for("VAD listening (raw mic")
                self.assert_hears(sound, probe)

    def test_samples_that_are_no_numbers_do_not_poison_the_detector(self):
        air = "module-null-sink sink_name=air rate=48000 channels=1 format=float32le"
        sound = self.sound(modules=[SoundServer.MODULES[0], air, SoundServer.MODULES[2]])
        for path in ("voice processing", "raw"):
            with self.subTest(path):
                probe = self.listening(sound)
                if path == "raw":
                    probe.command("app us.zoom.xos Zoom")
                    probe.wait_for("VAD listening (raw mic")
                broken = sound.scratch / "broken.raw"
                broken.write_bytes((b"\x00\x00\xc0\x7f" + b"\x00\x00\x80\x7f" + b"\x00\x00\x80\xff") * 16000)
                for sink in ("air", "speakers"):
                    sound.start(["pacat", "--raw", "--format=float32le", "--rate=48000", "--channels=1",
                                 f"--device={sink}", str(broken)]).wait(20)
                time.sleep(2)
                self.assertIn("speaking=0", probe.answer("state"))
                self.assert_hears(sound, probe)
                self.assertLess(float(probe.answer("state").rpartition("=")[2]), 1.0)
                probe.command("stop")
                probe.answer("state")

    def test_a_source_without_data_is_silence(self):
        sound = self.sound()
        probe = self.listening(sound)
        self.assert_hears(sound, probe)
        sound.play((self.far_end, "air"))
        spoken = time.monotonic()
        probe.wait_for("VAD speaking=1", since=spoken)

        sound.control("load-module", "module-pipe-source", "source_name=dry", f"file={sound.scratch}/dry")
        sound.control("set-default-source", "dry")
        changed = time.monotonic()
        closed = probe.wait_for("VAD speaking=0", since=changed)

        self.assertLess(closed - changed, 2.0)
        self.assertIn("listening=1", probe.answer("state"))

    # Cost

    def test_silence_costs_less_than_three_percent_of_a_core(self):
        probe = self.listening(self.sound())
        time.sleep(4)
        used = -self.processor_seconds(probe)
        time.sleep(10)
        used += self.processor_seconds(probe)
        print(f"idle cost with voice processing: {used * 10:.2f} % of a core", flush=True)
        self.assertLess(used * 10, 3.0)

    @staticmethod
    def processor_seconds(probe):
        fields = pathlib.Path(f"/proc/{probe.process.pid}/stat").read_text().rpartition(")")[2].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


if __name__ == "__main__":
    unittest.main(verbosity=2)
