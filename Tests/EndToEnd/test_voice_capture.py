"""The voice engine on a real sound server: speech, echo, other programs, and what it costs."""

import os
import pathlib
import re
import subprocess
import time
import unittest

from hearing import HearingTest, Listener
from sound import RATE, PausingRecorder, SoundServer, mixed, scaled, silence
from waiting import wait_until


class VoiceCaptureTest(HearingTest):
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

    # Cost

    def test_silence_costs_less_than_two_percent_of_a_core(self):
        probe = self.listening(self.sound())
        time.sleep(4)
        used = -self.processor_seconds(probe)
        time.sleep(10)
        used += self.processor_seconds(probe)
        print(f"idle cost with voice processing: {used * 10:.2f} % of a core", flush=True)
        self.assertLess(used * 10, 2.0)

    @staticmethod
    def processor_seconds(probe):
        fields = pathlib.Path(f"/proc/{probe.process.pid}/stat").read_text().rpartition(")")[2].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


if __name__ == "__main__":
    unittest.main(verbosity=2)
