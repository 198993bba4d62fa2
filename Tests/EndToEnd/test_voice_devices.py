"""The voice engine on a real sound server that comes late, goes, hangs, and changes its devices."""

import re
import socket
import subprocess
import time
import unittest

from hearing import HearingTest
from sound import KIND, Probe, SoundServer
from waiting import wait_until

# Microphones::Trouble
NO_ANSWER, REFUSED, NO_MICROPHONE, MUTED, WITHHELD = 1, 2, 3, 4, 5


def only_pulseaudio(test):
    return test if KIND == "pulseaudio" else None


class VoiceDevicesTest(HearingTest):
    def test_a_server_that_comes_late_is_waited_for(self):
        sound = SoundServer()
        self.addCleanup(sound.close)
        probe = Probe(sound)
        probe.command("start")
        time.sleep(3.5)
        self.assertIn(f"trouble={NO_ANSWER}", probe.answer("state"))
        self.assertFalse([message for message in probe.messages() if message.startswith(("VAD", "VPIO"))])

        sound.start_server()
        up = time.monotonic()
        probe.wait_for("VAD listening (VPIO, AEC on)")
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
        time.sleep(4)
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
        stalls = self.stalls(probe)
        if max(stalls) >= 0.02:  # The machine's fault is no other's the next time.
            stalls = list(map(min, stalls, self.stalls(probe)))
        self.assertIn("listening=1", probe.answer("state"))
        self.assertIn(f"trouble={NO_ANSWER}", probe.answer("state"))
        sound.stop(player)
        sound.thaw()
        time.sleep(1)
        self.assert_hears(sound, probe)
        self.assertLess(max(stalls), 0.02)

    @staticmethod
    def stalls(probe):
        """How long the main loop stood still at most, after each of some commands."""
        result = []
        for command in ("app us.zoom.xos Zoom", "stop", "start", "stop", "noapp", "start"):
            probe.command(command)
            time.sleep(1.2)
            result.append(float(probe.answer("stall").split()[1]))
        print("longest stalls of the main loop:", *(f"{stall * 1000:.1f} ms" for stall in result), flush=True)
        return result

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

        # This program's recording alone, as the mixer offers it.
        own = self.stream(sound, "Voice-Follow")
        sound.control("set-source-output-mute", own, "1")
        wait_until(lambda: f"trouble={MUTED}" in probe.answer("state"), what="the trouble")
        sound.control("set-source-output-mute", own, "0")
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
        if KIND == "pulseaudio":  # PipeWire's sources deliver silence for what they do not get.
            wait_until(lambda: f"trouble={WITHHELD}" in probe.answer("state"), what="the trouble")
        sound.control("set-default-source", "microphone")
        wait_until(lambda: "trouble=0" in probe.answer("state"), what="the end of the trouble")

    def test_a_server_that_hangs_is_not_said_to_withhold_the_microphone(self):
        sound = self.sound()
        probe = self.listening(sound)
        self.assert_hears(sound, probe)
        sound.freeze()
        troubles = []
        while f"{NO_ANSWER}" not in troubles and len(troubles) < 60:
            time.sleep(0.1)
            troubles.append(re.search(r"trouble=(\d)", probe.answer("state"))[1])
        sound.thaw()
        self.assertEqual(sorted(set(troubles)), ["0", f"{NO_ANSWER}"])
        wait_until(lambda: "trouble=0" in probe.answer("state"), what="the end of the trouble")

    def test_the_process_numbers_of_sandboxes_confuse_nobody(self):
        """In a sandbox a program has a small number, which another may have, too."""
        sound = self.sound()
        probe = Probe(sound, environment={"PULSE_PROP": "application.process.id=2"})
        probe.command("start")
        probe.wait_for("VAD listening (VPIO, AEC on)")
        wait_until(lambda: 'application.process.id = "2"' in sound.control("list", "source-outputs"), what="its number")
        time.sleep(2.5)
        self.assertIn("aec=1", probe.answer("state"))

        sound.start(["parec", "--device=microphone", f"--property=application.process.id={probe.process.pid}"],
                    stdout=subprocess.DEVNULL)
        probe.wait_for("VAD: dropping AEC (another app is using the microphone)")

    @only_pulseaudio  # The stand-in lets in whoever reaches it.
    def test_a_server_that_refuses_is_said_to(self):
        with socket.socket() as free:
            free.bind(("127.0.0.1", 0))
            port = free.getsockname()[1]
        sound = self.sound(modules=SoundServer.MODULES + [f"module-native-protocol-tcp port={port} listen=127.0.0.1"])
        cookie = sound.scratch / "cookie"
        cookie.write_bytes(bytes(256))
        probe = Probe(sound, environment={"PULSE_SERVER": f"tcp:127.0.0.1:{port}", "PULSE_COOKIE": str(cookie)})
        probe.command("start")
        wait_until(lambda: f"trouble={REFUSED}" in probe.answer("state"), what="the refusal")

        cookie.write_bytes((sound.scratch / ".config/pulse/cookie").read_bytes())
        probe.wait_for("VAD listening (VPIO, AEC on)")
        wait_until(lambda: "trouble=0" in probe.answer("state"), what="the end of the trouble")


if __name__ == "__main__":
    unittest.main(verbosity=2)
