"""The main job on the real program: a deck's notes scroll in the floating prompter."""

import json
import os
import shutil
import signal
import subprocess
import time
import unittest

from desktop import App, Desktop, PROGRAM, SOURCES, upward_shift, wait_until

DECK_TOOL = SOURCES / "Tests" / "Support" / "make-deck"


def write_library(desktop, body, title="Talk"):
    folder = App.folder(desktop)
    folder.mkdir(parents=True, exist_ok=True)
    script = {"id": "6F9619FF-8B86-D011-B42D-00CF4FC964FF", "title": title, "body": body,
              "createdAt": 8e8, "updatedAt": 8e8}
    (folder / "scripts.json").write_text(json.dumps([script]))


class FoundationTest(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop()
        self.addCleanup(self.desktop.close)
        # The tour is not what these tests are about.
        App.set_defaults(self.desktop, onboardingSeenVersion=1)

    def test_first_run_makes_the_welcome_script(self):
        app = App(self.desktop)
        app.window()

        library = wait_until(lambda: (App.folder(self.desktop) / "scripts.json").exists()
                             and App.library(self.desktop))

        self.assertEqual([script["title"] for script in library], ["Welcome to Orvello"])
        self.assertTrue(library[0]["body"].startswith(
            "Welcome to Orvello. This is your private teleprompter.\n\n"))
        self.assertEqual(App.defaults(self.desktop)["activeScriptID"], library[0]["id"])

    def test_a_deck_in_the_environment_is_imported_on_top(self):
        deck = self.desktop.scratch / "Quarterly review.pptx"
        subprocess.run(
            ["/usr/bin/python3", str(DECK_TOOL), "--slides", "5", "--without-notes", "4",
             "--output", str(deck)], check=True, timeout=180, capture_output=True)

        app = App(self.desktop, environment={"ORVELLO_IMPORT_PPTX": str(deck)})
        app.wait_for_log("IMPORT_PPTX ok slides=5 file=Quarterly review.pptx")

        titles = lambda: [script["title"] for script in App.library(self.desktop)]
        wait_until(lambda: titles() == ["Quarterly review", "Welcome to Orvello"],
                   what="the deck on top of the library")
        imported = App.library(self.desktop)[0]
        self.assertEqual(imported["deckSource"], "Quarterly review.pptx")
        self.assertEqual([slide["index"] for slide in imported["slides"]], [1, 2, 3, 4, 5])
        self.assertEqual(imported["slides"][3]["notes"], "")
        self.assertIn("(no notes)", imported["body"])
        self.assertEqual(App.defaults(self.desktop)["activeScriptID"], imported["id"])

    def test_an_unreadable_deck_is_reported_and_the_launch_goes_on(self):
        deck = self.desktop.scratch / "broken.pptx"
        deck.write_bytes(b"no package at all")

        app = App(self.desktop, environment={"ORVELLO_IMPORT_PPTX": str(deck)})

        app.wait_for_log("IMPORT_PPTX failed: The file could not be opened as a PowerPoint package.")
        app.window()

    def test_the_text_moves_at_the_set_speed(self):
        # Lines of different length, so that every position of the text looks different.
        words = "one thousand and twenty seven things to say about it".split()
        body = "\n".join(" ".join(words[:1 + (7 * i) % len(words)]) for i in range(200))
        write_library(self.desktop, body)
        App.set_defaults(self.desktop, countdownSeconds=0, onboardingSeenVersion=1)
        app = App(self.desktop, "--autostart")
        x, y, width, height = app.shown()
        time.sleep(1.0)
        area = (x + 60, y + 24, width - 120, height - 70)  # Inside the fades.

        shots = []
        for _ in range(2):
            before = time.monotonic()
            picture = self.desktop.screenshot()
            shots.append(((before + time.monotonic()) / 2, picture.rows(*area)))
            time.sleep(2.0)

        (start, first), (end, second) = shots
        shift = upward_shift(first, second, largest=100)
        speed = shift / (end - start)
        self.assertAlmostEqual(speed, 25.0, delta=25.0 * 0.05)

    def test_a_kill_leaves_the_marker_and_the_next_launch_reports_it(self):
        first = App(self.desktop)
        first.wait_for_log("LAUNCH ")
        wait_until(App.marker(self.desktop).exists, what="the marker")
        marker = App.marker(self.desktop).read_text()
        self.assertRegex(
            marker, rf"^1\.0\.0 \(1\) pid {first.process.pid} started \d{{4}}-\d\d-\d\dT[\d:.]+Z$")
        first.window()
        first.kill()

        second = App(self.desktop)

        second.wait_for_log(f"PREVIOUS_SESSION did not end cleanly: {marker}")
        second.window()
        self.assertEqual(second.quit(), 0)

    def test_termination_and_interruption_are_ordinary_quits(self):
        for number in (signal.SIGTERM, signal.SIGINT):
            app = App(self.desktop)
            app.window()
            time.sleep(0.2)

            self.assertEqual(app.quit(number), 0)

            self.assertFalse(App.marker(self.desktop).exists())
            self.assertEqual(App.log_messages(self.desktop)[-1], "QUIT clean")

    def test_the_panel_stands_under_the_camera(self):
        app = App(self.desktop)

        self.assertEqual(app.shown(), ((1440 - 720) // 2, 6, 720, 200))

    def test_the_panel_is_above_a_full_screen_window_and_leaves_it_the_focus(self):
        app = App(self.desktop)
        x, y, width, height = app.shown()
        other = self.desktop.start(["xterm", "-fullscreen", "-bg", "white", "-e", "sleep", "60"])
        window = int(wait_until(
            lambda: subprocess.run(["xdotool", "search", "--onlyvisible", "--class", "xterm"],
                                   env=self.desktop.environment, capture_output=True,
                                   text=True).stdout.split(),
            what="the other window")[0])
        self.desktop.run("xdotool", "windowactivate", "--sync", str(window))
        # Full-screen, focused and raised again: the panel must still be on top.
        self.desktop.run("xdotool", "windowraise", str(window))
        time.sleep(0.5)
        self.assertEqual(other.poll(), None)

        picture = self.desktop.screenshot()

        self.assertEqual(picture.pixel(5, 500), (255, 255, 255), "the other window fills the screen")
        self.assertLess(
            max(picture.pixel(x + 14, y + height // 2)), 200, "the card is on top of it")
        self.assertEqual(self.desktop.focused_window(), window)
        self.desktop.run("xdotool", "mousemove", str(x + 30), str(y + 30), "click", "1")
        time.sleep(0.3)
        self.assertEqual(self.desktop.focused_window(), window, "a click leaves the focus alone")

    def test_the_panel_is_on_every_workspace(self):
        app = App(self.desktop)
        x, y, width, height = app.shown()

        self.desktop.run("xdotool", "set_num_desktops", "3")
        self.desktop.run("xdotool", "set_desktop", "2")
        time.sleep(0.5)

        background = self.desktop.screenshot().pixel(5, 5)
        card = self.desktop.screenshot().pixel(x + 14, y + height // 2)
        self.assertNotEqual(card, background)

    def test_dragging_and_resizing_are_kept_for_the_next_launch(self):
        app = App(self.desktop)
        app.shown()
        self.drag(app, start=(30, 100), by=(-200, 300))
        x, y, width, height = app.geometry()
        self.assertEqual((x, y, width, height), (160, 306, 720, 200))
        self.drag(app, start=(width - 2, height - 2), by=(120, 60))
        self.assertEqual(app.geometry(), (160, 306, 840, 260))
        self.drag(app, start=(2, 130), by=(600, 0))
        self.assertEqual(app.geometry(), (660, 306, 340, 260), "no narrower than the minimum")
        self.assertEqual(app.quit(), 0)

        again = App(self.desktop)

        self.assertEqual(again.shown(), (660, 306, 340, 260))

    def drag(self, app, start, by):
        x, y, _, _ = app.geometry()
        mouse = lambda *words: self.desktop.run("xdotool", *map(str, words))
        mouse("mousemove", x + start[0], y + start[1], "mousedown", 1)
        for step in range(1, 11):
            mouse("mousemove", x + start[0] + by[0] * step // 10, y + start[1] + by[1] * step // 10)
        mouse("mouseup", 1)
        time.sleep(0.3)

    def test_a_frame_saved_on_a_screen_that_is_gone_comes_back(self):
        App.set_defaults(self.desktop, **{
            "NSWindow Frame PrompterPanel": "3000 694 720 200 1920 0 2560 1440 "})

        app = App(self.desktop)

        x, y, width, height = app.shown()
        self.assertEqual((width, height), (720, 200))
        self.assertLessEqual(x + width, self.desktop.width)

    def test_the_second_user_signal_hides_and_shows_the_panel(self):
        app = App(self.desktop)
        app.window()

        app.signal(signal.SIGUSR2)
        wait_until(lambda: not app.is_window_visible(), what="the panel to go")
        app.signal(signal.SIGUSR2)
        wait_until(app.is_window_visible, what="the panel to come back")

        self.assertIsNone(app.process.poll())

    def test_an_argument_pair_shadows_a_preference_for_this_run_only(self):
        app = App(self.desktop, "-textColorName", "Green")
        x, y, width, height = app.shown()

        def greenest():
            picture = self.desktop.screenshot()
            return max(green - red for red, green, _ in (
                picture.pixel(px, y + row) for row in range(40, 120) for px in range(x + 40, x + width - 40)))
        wait_until(lambda: greenest() > 80, what="green text, which comes after the card")

        self.assertEqual(app.quit(), 0)
        self.assertNotIn("textColorName", App.defaults(self.desktop))

    def test_a_number_out_of_range_harms_nothing_in_any_preference(self):
        write_library(self.desktop, "Hello all. " * 500)
        keys = ["fontSize", "textColorName", "backgroundOpacity", "speed", "stealthMode", "voiceFollow", "voiceSensitivity",
                "microphone", "microphoneName", "countdownSeconds", "slideshowPauseKey", "slideSync", "activeScriptID",
                "onboardingSeenVersion", "SUEnableAutomaticChecks", "SULastCheckTime", "SUSkippedVersion",
                "migratedFromDrumlin", "ghostMode"]
        for number in (1e300, -1e300, 1e-300, 2 ** 63, -(2 ** 63) - 1):
            with self.subTest(number=number):
                # A frame is kept as a text.
                App.set_defaults(self.desktop, **{key: number for key in keys},
                                 **{"NSWindow Frame PrompterPanel": f"{number} {number} {number} {number} 0 0 1440 900 "})
                if number < 1:
                    App.set_defaults(self.desktop, onboardingSeenVersion=1) # Else the tour comes first.
                app = App(self.desktop, "--settings", "--scripts", "--autostart")
                wait_until(lambda: self.desktop.windows_titled("Orvello Settings"), what="the settings")
                wait_until(lambda: self.desktop.windows_titled("Scripts"), what="the scripts")
                x, y, width, height = self.desktop.frame(wait_until(
                    lambda: self.desktop.windows_titled("Orvello"), what="the prompter")[0])
                self.assertTrue(340 <= width <= 1600 and 130 <= height <= 900, (width, height))
                self.assertTrue(-width < x < self.desktop.width and -height < y < self.desktop.height, (x, y))
                time.sleep(0.5)
                self.assertEqual(app.quit(), 0)
                self.assertNotIn("CRASH", App.log_text(self.desktop))

    def test_all_that_a_session_leaves_is_for_the_users_eyes_alone(self):
        self.addCleanup(os.umask, os.umask(0))
        self.desktop.data.rmdir()
        shutil.rmtree(self.desktop.config)
        app = App(self.desktop, "--scripts", "--no-stealth", "--onboarding")
        wait_until(lambda: self.desktop.windows_titled("Scripts"), what="the scripts")
        app.signal(signal.SIGUSR1) # The other log has a line about it.
        stealth_log = App.folder(self.desktop) / "stealth.log"
        wait_until(stealth_log.exists, what="the log of Stealth Mode")
        self.assertEqual(app.quit(), 0)

        left = [path for folder in (self.desktop.data, self.desktop.config) for path in (folder, *folder.rglob("*"))]
        self.assertGreater(len([path for path in left if path.is_file()]), 4)
        self.assertEqual([(str(path), oct(path.stat().st_mode)) for path in left if path.stat().st_mode & 0o077], [])

    def test_help_and_version_print_and_leave_no_session(self):
        for switch, text in (("--help", "Usage: orvello"), ("--version", "Orvello 1.0.0 (1)")):
            printed = self.desktop.run(str(PROGRAM), switch)

            self.assertIn(text, printed)
        self.assertFalse(App.folder(self.desktop).exists())

    def test_without_a_display_the_program_says_so_and_ends(self):
        environment = self.desktop.environment | {"DISPLAY": ":4711"}

        result = subprocess.run([str(PROGRAM)], env=environment, capture_output=True, text=True,
                                timeout=30)

        self.assertEqual(result.returncode, 1)
        self.assertIn("needs an X11 display", result.stderr)
        self.assertFalse(App.marker(self.desktop).exists())

    def test_a_read_only_library_folder_leaves_the_program_running(self):
        # A file stands where the folder should be: nobody, root included, can write below it.
        (self.desktop.data / "Orvello").write_text("in the way")

        app = App(self.desktop)

        app.window()
        self.assertEqual(app.quit(), 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
