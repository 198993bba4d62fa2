"""Voice-Follow in the real program: it scrolls while somebody speaks, and only then."""

import json
import pathlib
import shutil
import subprocess
import time
import unittest

from desktop import App, Desktop, wait_until
from hearing import Listener
from sound import RATE, SoundServer, silence, speech

LISTENING = "VAD listening (VPIO, AEC on)"


class VoiceTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        with SoundServer() as sound:
            cls.sentence = speech("Good morning everybody, and welcome to this talk about the weather.",
                                  sound.scratch)

    def setUp(self):
        self.desktop = Desktop()
        self.addCleanup(self.desktop.close)
        App.set_defaults(self.desktop, onboardingSeenVersion=1, countdownSeconds=0, speed=100)
        folder = App.folder(self.desktop)
        folder.mkdir(parents=True, exist_ok=True)
        body = "\n".join(f"{'word ' * (1 + line * 7 % 5)}{line}" for line in range(400))
        (folder / "scripts.json").write_text(json.dumps([{
            "id": "6F9619FF-8B86-D011-B42D-00CF4FC964FF", "title": "Talk", "body": body, "createdAt": 8e8,
            "updatedAt": 8e8}]))
        self.sound = SoundServer(environment=self.desktop.environment)
        self.addCleanup(self.sound.close)

    def launch(self, awaited=LISTENING):
        app = App(self.desktop, "--voice", "--autostart")
        app.wait_for_log(awaited, seconds=60)
        app.window()
        time.sleep(1)
        return app

    def text(self, app):
        """What the lower half of the card shows: text alone, which moves or does not."""
        x, y, width, height = app.geometry()
        return self.desktop.screenshot().rows(x + 20, y + height // 2, width - 80, height // 2 - 40)

    def is_moving(self, app):
        before = self.text(app)
        time.sleep(0.25)
        return self.text(app) != before

    def messages(self, tag="VAD"):
        return [message for message in App.log_messages(self.desktop) if message.startswith(tag)]

    def say(self, samples):
        return self.sound.play((samples, "air"))[0]

    def wait_for_speaking(self, value, count=1):
        wait_until(lambda: len([line for line in self.messages() if f"speaking={value}" in line]) >= count,
                   what=f"speaking={value}")

    def assert_follows(self, app, already=0):
        """Returns the time from the first sound to the screenshot that shows the text moved."""
        self.assertFalse(self.is_moving(app))
        listener = Listener(self.sound)
        before = self.text(app)
        player = self.say(self.sentence + silence(0.4) + self.sentence)
        while self.text(app) == before:
            self.assertIsNone(player.poll(), "nothing moved for two sentences")
        moved = time.monotonic()
        self.wait_for_speaking(1, already + 1)
        self.assertTrue(self.is_moving(app))
        player.wait(30)
        self.wait_for_speaking(0, already + 1)
        self.sound.stop(listener.process)
        time.sleep(0.3)
        self.assertFalse(self.is_moving(app))
        delay = moved - listener.loud_blocks[0]
        print(f"from speech to motion, with the screenshot: {delay:.2f} s", flush=True)
        return delay

    def test_the_text_moves_while_somebody_speaks(self):
        self.sound.start_server()
        app = self.launch()

        self.assertLess(self.assert_follows(app), 1, "0.3 s, and what a busy machine takes for a frame and a screenshot")

        lines = self.messages()
        self.assertEqual(lines[0], LISTENING)
        self.assertRegex(lines[1], r"^VAD speaking=1 rms=0\.\d{4} thr=0\.0063$")
        self.assertRegex(lines[2], r"^VAD speaking=0 rms=0\.00\d\d thr=0\.0063$")
        self.assertEqual(len(lines), 3)
        self.assertEqual(app.quit(), 0)

    def test_the_chosen_microphone_is_followed_and_a_server_that_hangs_holds_neither_a_drag_nor_a_scroll(self):
        self.sound.modules = SoundServer.MODULES + ["module-null-sink sink_name=quiet",
                                                    "module-remap-source master=quiet.monitor source_name=headset"]
        self.sound.default_source = "headset"
        App.set_defaults(self.desktop, onboardingSeenVersion=1, countdownSeconds=0, speed=100, microphone="microphone",
                         microphoneName="Desk")
        self.sound.start_server()
        app = self.launch()

        self.sound.freeze()
        time.sleep(1.5)
        x, y, width, height = app.geometry()
        self.desktop.run("xdotool", "mousemove", str(x + 30), str(y + 100), "mousedown", "1", "mousemove", str(x + 100),
                         str(y + 250), "mousemove", str(x + 130), str(y + 300), "mouseup", "1")
        wait_until(lambda: app.geometry() == (x + 100, y + 200, width, height), 2, "the end of the drag")
        before = self.text(app)
        self.desktop.run("xdotool", "mousemove", str(x + 500), str(y + 300), "click", "5")
        wait_until(lambda: self.text(app) != before, 2, "the text to move")
        self.desktop.run("xdotool", "mousemove", "10", "880")
        self.sound.thaw()
        time.sleep(1)

        self.assert_follows(app)

    def test_a_process_named_like_a_meeting_application_holds_echo_cancellation(self):
        self.sound.start_server()
        app = self.launch()
        zoom = self.desktop.scratch / "zoom"
        shutil.copy("/usr/bin/sleep", zoom)
        meeting = self.desktop.start([str(zoom), "60"])
        started = time.monotonic()
        app.wait_for_log("VAD: dropping AEC (Zoom is open) — switching to raw mic tap")
        self.assertLess(time.monotonic() - started, 2.5)
        app.wait_for_log("VAD listening (raw mic, no AEC — Zoom is open)")
        self.assert_follows(app)

        meeting.terminate()
        meeting.wait()
        app.wait_for_log("VAD: environment clear — re-engaging AEC")
        self.assert_follows(app, already=1)

    def test_a_meeting_application_at_launch_means_the_raw_microphone(self):
        self.sound.start_server()
        zoom = self.desktop.scratch / "slack"
        shutil.copy("/usr/bin/sleep", zoom)
        self.desktop.start([str(zoom), "60"])
        time.sleep(0.3)

        self.launch("VAD listening (raw mic, no AEC — Slack is open)")

        self.assertEqual(self.messages()[0], "VAD: AEC held (Slack is open) — raw mic tap")

    def test_another_recorder_at_launch_means_the_raw_microphone(self):
        self.sound.start_server()
        self.sound.start(["parec", "--device=microphone"], stdout=subprocess.DEVNULL)
        wait_until(lambda: "parec" in self.sound.control("list", "source-outputs"), what="the recorder")

        self.launch("VAD listening (raw mic, no AEC — another app is using the microphone)")

        self.assertEqual(self.messages()[0], "VAD: AEC held (another app is using the microphone) — raw mic tap")

    def test_a_sound_server_that_restarts_in_the_middle_is_found_again(self):
        self.sound.start_server()
        app = self.launch()
        self.assert_follows(app)

        self.sound.stop_server()
        time.sleep(1)
        self.assertFalse(self.is_moving(app))
        self.sound.start_server()
        time.sleep(2)

        self.assert_follows(app, already=1)
        self.assertEqual(app.quit(), 0)

    def test_a_sound_server_that_comes_after_the_login_is_waited_for(self):
        app = self.launch("LAUNCH")
        time.sleep(3)
        self.assertFalse(self.is_moving(app))
        self.assertEqual(self.messages() + self.messages("VPIO"), [])

        self.sound.start_server()
        app.wait_for_log(LISTENING)
        time.sleep(1)

        self.assert_follows(app)
        self.assertEqual(app.quit(), 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
