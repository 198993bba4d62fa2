"""The settings window of the real program, worked with mouse and keys: what is changed in it is stored and in effect at once."""

import http.server
import json
import re
import threading
import time
import unittest

from bus import SessionBus, TrayHost
from desktop import App, Desktop, wait_until
from sound import SoundServer, speech

WIDTH, HEIGHT = 500, 780

CHECKS = ["automatic checks", "Check Now"]
# The controls in the order in which the Tab key reaches them.
CONTROLS = ["fontSize", "speed", "textColorName", "backgroundOpacity", "voiceFollow", "voiceSensitivity",
            "test of the voice", "countdownSeconds", "slideshowPauseKey", "slideSync", "way to Impress", "stealthMode", *CHECKS,
            "words a minute", "keep my pace", "time on the prompter"]
# The sliders of the first section: rows of 42 points below its header.
SLIDER_ROWS = {"fontSize": 59, "speed": 101, "backgroundOpacity": 185}
SLIDER_LEFT, SLIDER_RIGHT = 236, 462


class SettingsWindowTest(unittest.TestCase):
    height = 900

    def setUp(self):
        self.desktop = Desktop(width=1920, height=self.height)
        self.addCleanup(self.desktop.close)
        App.set_defaults(self.desktop, onboardingSeenVersion=1, SUEnableAutomaticChecks=False)
        bus = SessionBus(self.desktop)
        self.host = TrayHost(bus)

    def start(self, *arguments):
        self.app = App(self.desktop, *arguments)
        self.item = self.host.item()
        self.panel = self.frame(wait_until(lambda: self.desktop.windows_titled("Orvello"), what="the prompter")[0])

    def open(self):
        """Opens the settings by the menu, with the keyboard, and moves them out from under the prompter."""
        self.item.choose("Settings…")
        self.window = wait_until(lambda: self.desktop.windows_titled("Orvello Settings"), what="the settings")[0]
        wait_until(lambda: self.desktop.focused_window() == self.window, what="the keyboard")
        self.opened_at = self.frame(self.window)
        self.desktop.run("xdotool", "windowmove", str(self.window), "20", str(self.opened_at[1]))
        wait_until(lambda: self.frame(self.window)[0] == 20, what="the window to have moved")
        x, y, width, height = self.frame(self.window)
        wait_until(lambda: min(self.desktop.screenshot().pixel(x + 8, y + height - 5)) > 200, what="the first frame")
        self.focus = -1
        return x, y, width, height

    def frame(self, window):
        """The (x, y, width, height) of the window's content on the screen, without its title bar."""
        text = self.desktop.run("xwininfo", "-id", str(window))
        values = dict(line.strip().split(":", 1) for line in text.splitlines() if ":" in line)
        return tuple(int(values[name]) for name in (
            "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))

    def mouse(self, *words):
        self.desktop.run("xdotool", *map(str, words))

    def key(self, *names):
        self.desktop.run("xdotool", "key", "--delay", "30", *names)

    def go_to(self, control):
        """Gives the control the keyboard."""
        # Without a feed there is nothing to check, and nothing to switch.
        target = [name for name in CONTROLS if hasattr(self, "feed") or name not in CHECKS].index(control)
        self.key(*["Tab"] * (target - self.focus), *["shift+Tab"] * (self.focus - target))
        self.focus = target
        time.sleep(0.2)

    def drag_slider(self, name, to_x):
        x, y, _, _ = self.frame(self.window)
        row = y + SLIDER_ROWS[name]
        self.mouse("mousemove", x + (SLIDER_LEFT + SLIDER_RIGHT) // 2, row, "mousedown", 1)
        for step in range(1, 9):
            self.mouse("mousemove", x + 349 + (to_x - 349) * step // 8, row)
        self.mouse("mouseup", 1)

    def wait_for(self, key, value):
        wait_until(lambda: App.defaults(self.desktop).get(key) == value,
                   what=f"{key} = {value} in {App.defaults(self.desktop)}")

    def card(self):
        """The pixels of the prompter that can hold its text."""
        x, y, width, height = self.panel
        picture = self.desktop.screenshot()
        return [picture.pixel(px, py) for py in range(y + 30, y + height - 40) for px in range(x + 60, x + width - 60, 2)]

    def stands_still(self):
        before = self.card()
        time.sleep(0.7)
        return self.card() == before

    # What the window is

    def test_it_opens_beside_the_prompter_of_its_size_and_stays_so(self):
        self.start()
        self.open()
        x, y, width, height = self.opened_at

        self.assertEqual((width, height), (WIDTH, HEIGHT))
        left, _, panel_width, _ = self.panel
        self.assertTrue(x + width <= left or x >= left + panel_width, f"{self.opened_at} beside {self.panel}")
        self.assertTrue(0 <= x <= self.desktop.width - width and 0 < y <= self.desktop.height - height)
        hints = self.desktop.run("xprop", "-id", str(self.window), "WM_NORMAL_HINTS")
        self.assertIn(f"minimum size: {WIDTH} by {HEIGHT}", hints)
        self.assertIn(f"maximum size: {WIDTH} by {HEIGHT}", hints)

    def test_closing_hides_it_and_the_menu_brings_it_back(self):
        self.start()
        self.open()
        self.desktop.ask_window_manager_to_close("Orvello Settings")
        self.assertIsNone(self.app.process.poll())

        self.open()
        self.key("ctrl+w")
        wait_until(lambda: not self.desktop.windows_titled("Orvello Settings"), what="it to go again")

    # What is changed in it

    def test_the_sliders_reach_their_bounds_by_mouse(self):
        self.start()
        self.open()
        small = self.card()

        self.drag_slider("fontSize", 490)
        self.wait_for("fontSize", 64)
        wait_until(lambda: self.card() != small, what="a larger text")
        self.drag_slider("fontSize", 210)
        self.wait_for("fontSize", 16)
        self.drag_slider("speed", 490)
        self.wait_for("speed", 240)
        self.drag_slider("speed", 210)
        self.wait_for("speed", 15)

    def test_the_opacity_is_in_effect_at_once(self):
        self.start()
        self.open()
        x, y, _, height = self.panel
        behind = lambda: max(self.desktop.screenshot().pixel(x + 14, y + height // 2))

        self.drag_slider("backgroundOpacity", 490)
        self.wait_for("backgroundOpacity", 1)
        wait_until(lambda: behind() < 6, what="an opaque card")
        self.drag_slider("backgroundOpacity", 210)
        self.wait_for("backgroundOpacity", 0.15)
        wait_until(lambda: behind() > 60, what="a clear card")

    def test_the_speed_is_in_effect_at_once(self):
        App.set_defaults(self.desktop, countdownSeconds=0, speed=15)
        self.start("--autostart")
        self.open()
        self.mouse("mousemove", 1900, 880)
        self.assertFalse(self.stands_still())

        self.go_to("speed")
        self.key("End")
        self.wait_for("speed", 240)

        # At 15 points a second it would take most of a minute.
        wait_until(self.stands_still, seconds=15, what="the end of the text")

    def test_the_colour_is_picked_with_the_mouse(self):
        self.start()
        x, y, _, _ = self.open()

        self.mouse("mousemove", x + 385, y + 143, "click", 1)
        time.sleep(0.5)
        self.key("Home", "Return")

        self.wait_for("textColorName", "Cyan")
        wait_until(lambda: any(b - r > 100 for r, g, b in self.card()), what="a cyan text")

    def test_stealth_mode_is_in_effect_at_once(self):
        self.start()
        x, y, width, height = self.panel
        badge = lambda: any(
            r > 200 and g < 110 for r, g, b in (self.desktop.screenshot().pixel(px, y + height - 15)
                                                for px in range(x + 60, x + width)))
        self.open()
        self.assertTrue(badge(), "the card says that recordings show it")

        self.go_to("stealthMode")
        self.key("space")
        self.wait_for("stealthMode", False)
        wait_until(lambda: not badge(), what="the badge to go")
        self.key("space")
        self.wait_for("stealthMode", True)
        wait_until(badge, what="the badge to come back")

    def test_slide_tracking_is_in_effect_at_once(self):
        folder = App.folder(self.desktop)
        folder.mkdir(parents=True)
        slides = [{"index": 1, "title": "Welcome", "notes": "Good morning."}, {"index": 2, "notes": "Second."}]
        (folder / "scripts.json").write_text(json.dumps([{
            "id": "6F9619FF-8B86-D011-B42D-00CF4FC964FF", "title": "Deck", "body": "Good morning.",
            "createdAt": 8e8, "updatedAt": 8e8, "slides": slides, "deckSource": "Deck.pptx"}]))
        self.start()
        x, y, width, height = self.panel
        # Where the slide chip is.
        corner = lambda: self.desktop.screenshot().rows(x + width - 60, y + height - 26, 50, 20)
        self.app.wait_for_log("SYNC active=1")
        self.open()
        with_chip = corner()

        self.go_to("slideSync")
        self.key("space")
        self.wait_for("slideSync", False)
        self.app.wait_for_log("SYNC active=0")
        wait_until(lambda: corner() != with_chip, what="the chip to go")
        self.key("space")
        self.wait_for("slideSync", True)
        wait_until(lambda: corner() == with_chip, what="the chip to come back")

    def test_the_plain_key_is_in_effect_at_the_next_slideshow(self):
        def present(news):
            """A slideshow is any window over the whole screen that says it is one of the presenter's."""
            before = App.log_text(self.desktop)
            slideshow = self.desktop.start(["xterm", "-name", "soffice", "-fullscreen", "-e", "sleep", "60"])
            wait_until(lambda: news in App.log_text(self.desktop)[len(before):], what=news)
            slideshow.terminate()
            slideshow.wait(10)
            wait_until(lambda: "PRESENTING=0" in App.log_text(self.desktop)[len(before):], what="the end of it")
            return App.log_text(self.desktop)[len(before):]
        self.start()
        self.open()

        self.go_to("slideshowPauseKey")
        self.key("space")
        self.wait_for("slideshowPauseKey", False)
        self.assertNotIn("plain-P", present("PRESENTING=1"))

        wait_until(lambda: self.desktop.focused_window() == self.window, what="the keyboard")
        self.key("space")
        self.wait_for("slideshowPauseKey", True)
        self.assertIn("plain-P disarmed", present("plain-P armed (slideshow)"))

    def test_the_sensitivity_is_in_effect_at_once(self):
        sound = SoundServer(environment=self.desktop.environment)
        self.addCleanup(sound.close)
        sound.start_server()
        self.start()
        self.open()
        self.go_to("voiceFollow")
        self.key("space")
        self.wait_for("voiceFollow", True)
        self.app.wait_for_log("VAD listening")

        def threshold():
            """What a voice has to exceed, as the next speaker finds it."""
            before = len(App.log_text(self.desktop))
            news = lambda: re.findall(r"speaking=(\d) rms=\S+ thr=(\S+)", App.log_text(self.desktop)[before:])
            sound.play((speech("Good morning everybody.", sound.scratch), "air"))
            wait_until(lambda: len(news()) >= 2 and news()[-1][0] == "0", what="speech and the silence after it")
            return news()[0]
        self.assertEqual(threshold(), ("1", "0.0063"))

        self.go_to("voiceSensitivity")
        self.key("End")
        self.wait_for("voiceSensitivity", 1)
        self.assertEqual(threshold(), ("1", "0.0016"))

    def test_the_countdown_is_picked_and_counts(self):
        App.set_defaults(self.desktop, countdownSeconds=4)
        self.start()
        self.open()
        self.go_to("countdownSeconds")
        self.assertEqual(App.defaults(self.desktop)["countdownSeconds"], 4, "opening changes nothing")

        self.key("Down")
        self.wait_for("countdownSeconds", 0)
        self.key("Down", "Down", "Down")
        self.wait_for("countdownSeconds", 10)

        standing = self.card()
        self.item.choose("Start Scrolling  (Alt+Super+P)")
        wait_until(lambda: self.card() != standing, what="the countdown")

    def test_the_pace_in_words_and_the_time_are_in_effect_at_once(self):
        self.start()
        self.open()
        self.go_to("words a minute")
        self.key("Down")
        slower = wait_until(lambda: App.defaults(self.desktop).get("speed"), what="the speed of that pace")
        self.assertTrue(20 < slower < 25, slower)
        self.go_to("keep my pace")
        self.key("space")
        pace = wait_until(lambda: App.defaults(self.desktop).get("keptPace"), what="the pace")
        # Larger letters go by faster, so that the words do not.
        self.go_to("fontSize")
        self.key("End")
        self.wait_for("fontSize", 64)
        wait_until(lambda: App.defaults(self.desktop)["speed"] > 2 * slower, what="the speed of larger letters")
        self.assertAlmostEqual(App.defaults(self.desktop)["keptPace"], pace)

        without = self.time_on_the_card()
        self.go_to("time on the prompter")
        self.key("Down")
        self.wait_for("cardTime", "left")
        wait_until(lambda: self.time_on_the_card() != without, what="the time beside the status")

    def time_on_the_card(self):
        """The pixels beyond the level beam."""
        x, y, _, height = self.panel
        picture = self.desktop.screenshot()
        return [picture.pixel(px, py) for py in range(y + height - 24, y + height - 6) for px in range(x + 124, x + 200)]

    def test_a_change_survives_a_kill(self):
        self.start()
        self.open()
        self.drag_slider("fontSize", 490)
        self.wait_for("fontSize", 64)
        self.app.kill()

        self.assertEqual(App.defaults(self.desktop)["fontSize"], 64)


class CheckNowTest(SettingsWindowTest):
    """Against an update feed that takes its time."""

    def setUp(self):
        super().setUp()
        self.answers = threading.Event()
        self.requests = 0
        test = self

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                test.requests += 1
                test.answers.wait(60)
                self.send_response(404)
                self.end_headers()

            def log_message(self, *words):
                pass

        server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        threading.Thread(target=server.serve_forever, daemon=True).start()
        self.addCleanup(server.server_close)
        self.addCleanup(server.shutdown)
        self.addCleanup(self.answers.set)
        self.feed = f"http://127.0.0.1:{server.server_port}/feed"

    def darkest_of_button(self):
        """The colour of the words Check Now, at the bottom right once the window has scrolled to the button."""
        x, y, width, height = self.frame(self.window)
        picture = self.desktop.screenshot()
        return min(max(picture.pixel(px, py)) for px in range(x + width - 100, x + width - 40)
                   for py in range(y + height - 46, y + height - 18))

    def test_it_is_grey_while_a_check_runs(self):
        self.start("-OrvelloAppcastURL", self.feed)
        self.open()
        self.go_to("Check Now")
        wait_until(lambda: self.darkest_of_button() < 60, what="a button that can be pressed")

        self.key("space")

        wait_until(lambda: self.requests == 1, what="the check")
        wait_until(lambda: self.darkest_of_button() > 100, what="a grey button")
        self.answers.set()
        self.app.wait_for_log("UPDATES aborted: ")
        wait_until(lambda: self.darkest_of_button() < 60, what="the button again")
        self.assertNotIn("SULastCheckTime", App.defaults(self.desktop), "what could not be read is no check")


    def test_automatic_checks_begin_and_end_at_once(self):
        self.answers.set()
        self.start("-OrvelloAppcastURL", self.feed)
        self.open()
        time.sleep(1)
        self.assertEqual(self.requests, 0)

        self.go_to("automatic checks")
        self.key("space")
        self.wait_for("SUEnableAutomaticChecks", True)
        wait_until(lambda: self.requests == 1, what="the check that is due")

        self.key("space")
        self.wait_for("SUEnableAutomaticChecks", False)


class LowScreenTest(SettingsWindowTest):
    height = 600

    def test_it_fits_and_scrolls(self):
        self.start()

        x, y, width, height = self.open()

        self.assertEqual(width, WIDTH)
        self.assertLessEqual(y + height, 600)
        self.assertGreaterEqual(y, 0)
        before = self.desktop.screenshot().rows(x + 20, y + 20, width - 60, height - 40)
        self.go_to("stealthMode")
        wait_until(lambda: self.desktop.screenshot().rows(x + 20, y + 20, width - 60, height - 40) != before,
                   what="it to scroll")
        self.key("space")
        self.wait_for("stealthMode", False)


def load_tests(loader, tests, pattern):
    """Each test once, not again in the classes that only lend its tools."""
    suite = unittest.TestSuite(loader.loadTestsFromTestCase(SettingsWindowTest))
    suite.addTest(CheckNowTest("test_it_is_grey_while_a_check_runs"))
    suite.addTest(CheckNowTest("test_automatic_checks_begin_and_end_at_once"))
    suite.addTest(LowScreenTest("test_it_fits_and_scrolls"))
    return suite


if __name__ == "__main__":
    unittest.main(verbosity=2)
