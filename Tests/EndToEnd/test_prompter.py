"""The panel and its card under a real pointer, and what the two logs say about Stealth Mode."""

import json
import re
import signal
import subprocess
import time
import unittest

from desktop import PROGRAM, App, Desktop, upward_shift, wait_until

GREEN = (48, 209, 88)
ORANGE = (255, 159, 10)
WALLPAPER = (0x28, 0x40, 0x60)


class PrompterTest(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop()
        self.addCleanup(self.desktop.close)
        App.set_defaults(self.desktop, onboardingSeenVersion=1, countdownSeconds=0)

    def write_library(self, **more):
        # Lines of different length, so that every position of the text looks different.
        words = "one thousand and twenty seven things to say about it".split()
        body = "\n".join(" ".join(words[:1 + (7 * i) % len(words)]) for i in range(200))
        folder = App.folder(self.desktop)
        folder.mkdir(parents=True, exist_ok=True)
        script = {"id": "6F9619FF-8B86-D011-B42D-00CF4FC964FF", "title": "Talk", "body": body,
                  "createdAt": 8e8, "updatedAt": 8e8} | more
        (folder / "scripts.json").write_text(json.dumps([script]))

    def mouse(self, *words):
        self.desktop.run("xdotool", *map(str, words))

    def dot(self, app):
        """The colour of the status badge's dot."""
        x, y, _, height = app.geometry()
        return self.desktop.screenshot().pixel(x + 6 + 8 + 4, y + height - 6 - 9)

    def text_rows(self, app):
        x, y, width, height = app.geometry()
        return self.desktop.screenshot().rows(x + 60, y + 24, width - 260, height - 70)  # Inside the fades.

    def stealth_log(self):
        """The stealth log's lines without their time stamps, which are checked here."""
        lines = (App.folder(self.desktop) / "stealth.log").read_text().splitlines()
        for line in lines:
            self.assertRegex(line, r"^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}Z ")
        return [line.split(" ", 1)[1] for line in lines]

    # Pointer

    def test_hovering_holds_the_text_and_leaving_lets_it_go_on_without_a_jump(self):
        self.write_library()
        self.mouse("mousemove", 10, 880)
        app = App(self.desktop, "--autostart")
        x, y, _, _ = app.shown()
        wait_until(lambda: self.dot(app) == GREEN, what="the text to scroll")

        self.mouse("mousemove", x + 400, y + 100)
        wait_until(lambda: self.dot(app) == ORANGE, what="the hover pause")
        held = self.text_rows(app)
        time.sleep(1.0)
        self.assertEqual(self.text_rows(app), held, "the text stands still")

        left = time.monotonic()
        self.mouse("mousemove", 10, 880)
        after = self.text_rows(app)
        passed = time.monotonic() - left
        shift = upward_shift(held, after, largest=60)
        self.assertLessEqual(shift, 25 * passed + 2, "the text goes on from where it was held")
        wait_until(lambda: self.dot(app) == GREEN, what="the text to scroll on")

    def test_the_wheel_moves_the_text_by_three_times_its_delta(self):
        self.write_library()
        app = App(self.desktop)
        x, y, _, _ = app.shown()
        self.mouse("mousemove", x + 400, y + 100)
        time.sleep(0.5)
        before = self.text_rows(app)

        self.mouse("click", 5)  # One notch down: a delta of ten points.
        time.sleep(0.5)
        down = self.text_rows(app)
        self.assertEqual(upward_shift(before, down, largest=90), 30)

        self.mouse("click", 4)
        time.sleep(0.5)
        self.assertEqual(self.text_rows(app), before)

    def test_a_panel_hidden_under_the_pointer_is_not_held_for_good(self):
        self.write_library()
        app = App(self.desktop, "--autostart")
        x, y, _, _ = app.shown()
        self.mouse("mousemove", x + 400, y + 100)
        wait_until(lambda: self.dot(app) == ORANGE, what="the hover pause")

        app.signal(signal.SIGUSR2)
        wait_until(lambda: not app.is_window_visible(), what="the panel to go")
        self.mouse("mousemove", 10, 880)
        app.signal(signal.SIGUSR2)
        app.shown()

        wait_until(lambda: self.dot(app) == GREEN, what="the text to scroll on")

    def test_a_panel_hidden_while_it_is_dragged_stays_where_it_is_shown_again(self):
        app = App(self.desktop)
        x, y, _, _ = app.shown()
        self.mouse("mousemove", x + 400, y + 100)
        self.mouse("mousedown", 1)
        self.addCleanup(self.mouse, "mouseup", 1)
        self.mouse("mousemove", x + 400, y + 200)
        dragged = wait_until(lambda: app.geometry()[1] != y and app.geometry(), what="the panel to move")

        app.signal(signal.SIGUSR2)
        wait_until(lambda: not app.is_window_visible(), what="the panel to go")
        self.mouse("mouseup", 1)
        app.signal(signal.SIGUSR2)
        app.shown()
        self.mouse("mousemove", x + 420, y + 230)
        time.sleep(0.5)

        self.assertEqual(app.geometry(), dragged)

    def test_the_chips_buttons_turn_the_slides_and_drag_nothing(self):
        self.write_library(deckSource="Deck.pptx", slides=[
            {"index": 1, "title": "Welcome", "notes": "A short note."},
            {"index": 2, "notes": "Another note, which is longer than the first one."}])
        app = App(self.desktop)
        x, y, width, height = app.shown()
        self.mouse("mousemove", 10, 880)
        time.sleep(0.5)
        first = self.text_rows(app)

        following = (x + width - 6 - 8 - 9, y + height - 6 - 9)
        self.mouse("mousemove", *following, "click", 1, "mousemove", 10, 880)
        wait_until(lambda: self.text_rows(app) != first, what="the second slide")
        second = self.text_rows(app)

        # At the last slide the button is inert; pulling at it moves nothing, either.
        self.mouse("mousemove", *following, "mousedown", 1, "mousemove", x, y + 300, "mousemove", x, y + 400,
                   "mouseup", 1, "mousemove", 10, 880)
        time.sleep(0.5)
        self.assertEqual(self.text_rows(app), second)
        self.assertEqual(app.geometry(), (x, y, width, height))

    # Screens

    def test_the_panel_keeps_its_place_on_a_second_screen_as_long_as_there_is_one(self):
        self.desktop.run("xrandr", "--setmonitor", "Left", "800/300x900/250+0+0", "screen")
        self.desktop.run("xrandr", "--setmonitor", "Right", "640/300x900/250+800+0", "none")
        app = App(self.desktop)
        self.assertEqual(app.shown(), (40, 6, 720, 200), "under the camera of the main screen")
        self.mouse("mousemove", 70, 106, "mousedown", 1, "mousemove", 400, 300, "mousemove", 950, 406,
                   "mouseup", 1)
        wait_until(lambda: app.geometry() == (920, 306, 720, 200), what="the end of the drag")
        time.sleep(0.3)
        app.quit()

        again = App(self.desktop)
        self.assertEqual(again.shown(), (920, 306, 720, 200))
        again.quit()

        self.desktop.run("xrandr", "--delmonitor", "Right")
        alone = App(self.desktop)
        x, _, width, height = alone.shown()
        self.assertEqual((width, height), (720, 200))
        self.assertLessEqual(x + width, 800)

    def test_the_panel_follows_its_screen_when_that_goes_and_comes_back(self):
        self.desktop.run("xrandr", "--setmonitor", "Left", "800/300x900/250+0+0", "screen")
        self.desktop.run("xrandr", "--setmonitor", "Right", "640/300x900/250+800+0", "none")
        app = App(self.desktop)
        app.shown()
        self.mouse("mousemove", 70, 106, "mousedown", 1, "mousemove", 400, 300, "mousemove", 950, 406,
                   "mouseup", 1)
        wait_until(lambda: app.geometry() == (920, 306, 720, 200), what="the end of the drag")
        time.sleep(0.3)

        self.desktop.run("xrandr", "--delmonitor", "Right")
        wait_until(lambda: app.geometry() == (80, 306, 720, 200), what="the panel to come to the screen that is left")
        self.desktop.run("xrandr", "--setmonitor", "Right", "640/300x900/250+800+0", "none")
        wait_until(lambda: app.geometry() == (920, 306, 720, 200), what="the panel to go back")

        app.signal(signal.SIGUSR2)
        wait_until(lambda: not app.is_window_visible(), what="the panel to go")
        self.desktop.run("xrandr", "--delmonitor", "Right")
        app.signal(signal.SIGUSR2)
        self.assertEqual(app.shown(), (80, 306, 720, 200))
        app.quit()
        self.assertEqual(App.defaults(self.desktop)["NSWindow Frame PrompterPanel"], "920 394 720 200 800 0 640 900")

    # Picture

    def test_the_text_dissolves_toward_the_top_and_the_bottom(self):
        self.write_library(body="\n".join(["█" * 40] * 20))
        App.set_defaults(self.desktop, backgroundOpacity=1.0)
        app = App(self.desktop)
        x, y, _, height = app.shown()
        self.mouse("mousemove", x + 400, y + 100, "click", "--repeat", 3, 5, "mousemove", 10, 880)
        time.sleep(0.7)

        picture = self.desktop.screenshot()

        lit = 0
        for row in range(1, height - 30):  # Between the hair line at the edge and the badge.
            middle = (row + 0.5) / height
            visibility = max(0.0, min(middle / 0.1, (1 - middle) / 0.18, 1.0))
            value = picture.pixel(x + 200, y + row)[1]
            # A row lies inside a line, between two, or on a line's edge.
            self.assertLessEqual(value, 255 * visibility + 6, f"row {row}")
            lit += value >= 255 * visibility - 6
        self.assertGreater(lit, 0.6 * (height - 30))

    def test_it_draws_nothing_while_it_is_paused_and_unchanged(self):
        self.write_library()
        self.mouse("mousemove", 10, 880)
        app = App(self.desktop, environment={"QT_LOGGING_RULES": "qt.scenegraph.time.renderloop.debug=true"})
        x, y, _, _ = app.shown()

        def frames():
            return (self.desktop.scratch / f"{PROGRAM.name}.log").read_text().lower().count("frame rendered")

        def rests():
            before = frames()
            time.sleep(0.5)
            return frames() == before
        wait_until(rests, what="the last frame of the launch")
        drawn = frames()
        self.assertGreater(drawn, 0)
        time.sleep(2.5)  # The watchdog has looked at the window, too.
        self.assertEqual(frames(), drawn)

        self.mouse("mousemove", x + 400, y + 100, "click", 5, "mousemove", 10, 880)
        wait_until(lambda: frames() > drawn, what="the text to move")
        wait_until(rests, what="the prompter to rest again")

    def test_without_a_compositor_its_corners_are_cut_off(self):
        with Desktop(compositor=False) as desktop:
            App.set_defaults(desktop, onboardingSeenVersion=1, backgroundOpacity=1.0)
            app = App(desktop)
            x, y, width, height = app.shown()

            picture = desktop.screenshot()

            for corner in ((x + 1, y + 1), (x + width - 2, y + 1), (x + 1, y + height - 2),
                           (x + width - 2, y + height - 2)):
                self.assertEqual(picture.pixel(*corner), WALLPAPER)
            self.assertLess(max(picture.pixel(x + width // 2, y + height - 3)), 60)
            self.assertEqual(picture.pixel(x + width // 2, y + height + 4), WALLPAPER, "no shadow, either")

    def test_its_shadow_darkens_what_is_around_it(self):
        app = App(self.desktop)
        x, y, width, height = app.shown()
        middle = x + width // 2
        below = lambda distance: self.desktop.screenshot().pixel(middle, y + height + distance)[2]  # noqa: E731
        wait_until(lambda: below(4) < 0.75 * WALLPAPER[2], what="the shadow")
        self.assertLess(below(4), below(14))
        self.assertLess(below(14), below(28))
        self.assertEqual(below(34), WALLPAPER[2])
        # It does not darken the card, and goes where the card goes.
        inside = self.desktop.screenshot().pixel(x + 14, y + height // 2)
        self.assertAlmostEqual(inside[2], round(0.28 * WALLPAPER[2]), delta=2)
        self.mouse("mousemove", x + 300, y + 100, "mousedown", 1, "mousemove", x + 300, y + 250,
                   "mousemove", x + 300, y + 400, "mouseup", 1)
        wait_until(lambda: app.geometry()[1] == y + 300, what="the drag")
        wait_until(lambda: below(4) == WALLPAPER[2] and below(304) < 0.75 * WALLPAPER[2], what="the shadow to follow")
        # The frame is that of the panel alone.
        self.assertEqual(app.geometry()[2:], (width, height))
        self.assertEqual(App.defaults(self.desktop)["NSWindow Frame PrompterPanel"].split()[2:4],
                         [str(width), str(height)])
        app.quit()
        wait_until(lambda: below(304) == WALLPAPER[2], what="the shadow to go")

    def test_a_click_on_the_shadow_goes_to_the_window_below(self):
        app = App(self.desktop)
        x, y, width, height = app.shown()

        def window_at(*place):
            self.mouse("mousemove", *place)
            return self.desktop.run("xdotool", "getmouselocation", "--shell").split("WINDOW=")[1].strip()

        desktop = window_at(10, 700)
        self.assertEqual(window_at(x + width // 2, y + height // 2), str(app.window()))
        for place in ((x + width // 2, y + height + 10), (x - 10, y + height // 2), (x + width + 10, y + 50)):
            self.assertEqual(window_at(*place), desktop)

    def test_its_shadow_and_hair_line_part_it_from_white_and_black_windows(self):
        app = App(self.desktop)
        x, y, width, height = app.shown()
        for color, parts in (("#ffffff", lambda edge, outside: outside < 200 and edge < outside),
                             ("#000000", lambda edge, outside: outside == 0 and edge > 30)):
            with self.subTest(color):
                self.desktop.run("hsetroot", "-solid", color)
                row = lambda: [self.desktop.screenshot().pixel(x + width // 2, y + height + line)[1]  # noqa: E731
                               for line in (-1, 4)]
                wait_until(lambda: parts(*row()), what="an edge that can be seen")

    def test_a_compositor_that_starts_later_makes_the_card_translucent(self):
        with Desktop(compositor=False) as desktop:
            App.set_defaults(desktop, onboardingSeenVersion=1, backgroundOpacity=0.3)
            app = App(desktop)
            x, y, width, height = app.shown()
            middle = (x + 14, y + height // 2)
            self.assertLess(max(desktop.screenshot().pixel(*middle)), 4)
            self.assertTrue(self.has_shape(desktop, app))

            desktop.start_compositor()

            wait_until(lambda: desktop.screenshot().pixel(*middle)[2] > 50, what="the wallpaper through the card")
            wait_until(lambda: not self.has_shape(desktop, app), what="whole corners")

            desktop.stop_compositor()

            wait_until(lambda: self.has_shape(desktop, app), what="corners that are cut off again")

    @staticmethod
    def has_shape(desktop, app):
        return "No window shape" not in desktop.run("xwininfo", "-shape", "-id", str(app.window()))

    # What others capture: the tour and the welcome script say so

    def share(self, desktop, x):
        """A shared window with its left edge there, beside or below the prompter, and what three programs make of it: one
        that copies the window through the server, one that copies its part of the screen, and one the whole screen."""
        desktop.start(["xterm", "-T", f"slides {x}", "-bg", "#ff00ff", "-fg", "#ff00ff", "-cr", "#ff00ff", "-b", "0",
                       "-geometry", f"60x12+{x}+60", "-e", "sleep", "60"])
        window = wait_until(lambda: desktop.windows_titled(f"slides {x}"), what="the shared window")[0]
        def is_painted():
            return self.colours(desktop, "-window", str(window))[1] > 0.1
        wait_until(is_painted, what="the shared window's content")
        text = desktop.run("xwininfo", "-id", str(window))
        left, top, width, height = (int(re.search(name + r": +(-?\d+)", text)[1]) for name in (
            "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        region = ("-window", "root", "-crop", f"{width}x{height}+{left}+{top}")
        return [self.colours(desktop, *source)[0] for source in (("-window", str(window)), region, ("-window", "root"))]

    @staticmethod
    def colours(desktop, *source):
        """Of what `import` captures: whether there is any but the shared window's in it, and how much has that one."""
        raw = subprocess.run(["import", "-silent", *source, "-depth", "8", "rgb:-"], env=desktop.environment, check=True,
                             capture_output=True, timeout=60).stdout
        pixels = [raw[i:i + 3] for i in range(0, len(raw), 3)]
        shared = sum(pixel == b"\xff\x00\xff" for pixel in pixels)
        return shared < len(pixels), shared / len(pixels)

    def test_a_shared_window_holds_the_prompter_only_where_it_lies_over_it_and_a_program_copies_the_screen(self):
        for compositor in (True, False):
            with self.subTest(compositor=compositor), Desktop(compositor=compositor) as desktop:
                App.set_defaults(desktop, onboardingSeenVersion=1, backgroundOpacity=1.0,
                                 **{"NSWindow Frame PrompterPanel": "600 600 720 200 0 0 1440 900 "})
                App(desktop).shown()

                # Beside it, only the whole screen has the prompter in it.
                self.assertEqual(self.share(desktop, 60), [False, False, True])
                # Under it, a copy of that part of the screen has it, too, and so has one of the window where no compositor
                # keeps what is in each.
                self.assertEqual(self.share(desktop, 700), [not compositor, True, True])

    # Stealth Mode

    def test_each_mechanism_is_logged_as_it_was_asked_for(self):
        for value, mode, sharing in ((None, "both", 0), ("shape", "shape", 1), ("flag", "flag", 0),
                                     ("Both", "Both", 0)):
            with self.subTest(value), Desktop() as desktop:
                self.desktop = desktop
                App.set_defaults(desktop, onboardingSeenVersion=1)
                app = App(desktop, environment={"ORVELLO_STEALTH": value} if value else None)
                wid = app.window()
                app.shown()
                app.quit()

                messages = [line for line in App.log_messages(desktop) if re.match("STEALTH|PANEL_UP", line)]
                first = f"STEALTH ON wid={wid} fresh=1 mode={mode} sckExcludeApplied=0"
                again = f"STEALTH ON wid={wid} fresh=0 mode={mode} sckExcludeApplied=0"
                # Built, shown, and told of the setting.
                self.assertEqual(messages, [
                    first, f"PANEL_UP frame={{{{360, 694}}, {{720, 200}}}} sharing={sharing} sckExclude=0", again,
                    again])
                self.assertEqual(self.stealth_log(), [
                    f"APPLY ON wid={wid} fresh=true mode={mode} shape=0",
                    f"APPLY ON wid={wid} fresh=false mode={mode} shape=0",
                    f"APPLY ON wid={wid} fresh=false mode={mode} shape=0"])

    def test_without_stealth_mode_every_application_is_off(self):
        app = App(self.desktop, "--no-stealth")
        app.shown()
        app.quit()

        lines = self.stealth_log()
        self.assertTrue(lines)
        for line in lines:
            self.assertRegex(line, r"^APPLY OFF wid=\d+ fresh=(true|false) mode=both shape=0$")

    def test_the_first_user_signal_toggles_stealth_mode_and_a_second_one_toggles_it_back(self):
        app = App(self.desktop)
        app.shown()
        applied = 3  # By the construction, the first show and the first delivery of the setting.
        wait_until(lambda: len(self.stealth_log()) == applied, what="the launch to end")

        app.signal(signal.SIGUSR1)
        app.wait_for_log("DEBUG stealth toggled -> 0")
        wait_until(lambda: len(self.stealth_log()) == applied + 1, what="the setting to be applied")
        self.assertRegex(self.stealth_log()[-1], "^APPLY OFF ")
        app.signal(signal.SIGUSR1)
        app.wait_for_log("DEBUG stealth toggled -> 1")
        wait_until(lambda: len(self.stealth_log()) == applied + 2, what="the setting to be applied again")
        self.assertRegex(self.stealth_log()[-1], "^APPLY ON ")

        toggles = [line for line in App.log_messages(self.desktop) if line.startswith("DEBUG stealth toggled")]
        self.assertEqual(toggles, ["DEBUG stealth toggled -> 0", "DEBUG stealth toggled -> 1"])
        self.assertEqual(App.defaults(self.desktop)["stealthMode"], True)


if __name__ == "__main__":
    unittest.main(verbosity=2)
