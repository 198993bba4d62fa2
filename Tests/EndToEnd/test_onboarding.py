"""The welcome tour of the real program: the first launch, the ways through it and out of it, with mouse and keys."""

import time
import unittest

from desktop import App, Desktop, wait_until

WIDTH, HEIGHT = 680, 580


class OnboardingTest(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop()
        self.addCleanup(self.desktop.close)

    def start(self, *arguments, page=None):
        environment = {"ORVELLO_ONBOARDING_PAGE": page} if page is not None else None
        self.app = App(self.desktop, *arguments, environment=environment)
        self.window = wait_until(lambda: self.desktop.windows_titled("Welcome to Orvello"), what="the tour")[0]
        wait_until(lambda: self.desktop.focused_window() == self.window, what="the keyboard")
        wait_until(lambda: self.page() is not None, what="the first frame")

    def frame(self):
        return self.desktop.frame(self.window)

    def page(self):
        """The number of the page by its dots; none while they change."""
        x, y, width, height = self.frame()
        picture = self.desktop.screenshot()
        row = [picture.pixel(px, y + height - 42) for px in range(x + width // 2 - 26, x + width // 2 + 26)]
        is_accent = [b > 200 and b - r > 60 for r, g, b in row]
        is_faint = [40 < r < 110 and abs(b - r) < 40 for r, g, b in row]
        if sum(is_accent) < 15 or not any(is_faint):
            return None
        first = is_accent.index(True)
        return {0: 0, 1: 1, 2: 2}.get(round(sum(is_faint[:first]) / 5))

    def wait_for_page(self, number):
        wait_until(lambda: self.page() == number, what=f"page {number}")

    def key(self, *names):
        self.desktop.run("xdotool", "key", "--delay", "50", *names)

    def click(self, x, y):
        left, top, _, _ = self.frame()
        self.desktop.run("xdotool", "mousemove", str(left + x), str(top + y), "click", "1")

    def prompter(self):
        return self.desktop.windows_titled("Orvello")

    def expect_that_it_comes_no_more(self):
        self.assertEqual(self.app.quit(), 0)
        self.app = App(self.desktop)
        wait_until(self.prompter, what="the prompter at once")
        time.sleep(0.5)
        self.assertEqual(self.desktop.windows_titled("Welcome to Orvello"), [])

    def expect_finished(self):
        wait_until(self.prompter, what="the prompter")
        self.assertEqual(self.desktop.windows_titled("Welcome to Orvello"), [])
        self.assertEqual(App.defaults(self.desktop)["onboardingSeenVersion"], 1)
        self.assertIsNone(self.app.process.poll())

    def test_the_first_launch_shows_the_tour_alone_and_the_second_the_prompter(self):
        self.start()
        self.assertEqual(self.frame()[2:], (WIDTH, HEIGHT))
        self.assertEqual(self.prompter(), [])
        self.assertEqual(self.page(), 0)

        self.key("Return")
        self.wait_for_page(1)
        self.assertEqual(self.prompter(), [])
        self.key("Return")
        self.wait_for_page(2)
        self.key("Return")
        self.expect_finished()
        self.expect_that_it_comes_no_more()

    def test_the_buttons_lead_through_it(self):
        self.start()
        self.click(600, 538)
        self.wait_for_page(1)
        self.click(506, 538)
        self.wait_for_page(0)
        self.click(600, 538)
        self.wait_for_page(1)
        self.click(600, 538)
        self.wait_for_page(2)
        self.assertEqual(self.prompter(), [])

        self.click(570, 538)

        self.expect_finished()

    def test_skipping_is_finishing(self):
        self.start()
        self.click(62, 538)
        self.expect_finished()

    def test_escape_is_finishing(self):
        self.start()
        self.key("Escape")
        self.expect_finished()

    def test_the_close_button_is_finishing(self):
        self.start()
        self.assertEqual(self.page(), 0)
        self.click(652, 28)
        self.expect_finished()
        self.expect_that_it_comes_no_more()

    def test_closing_by_the_window_manager_is_finishing(self):
        self.start()
        self.assertEqual(self.page(), 0)
        self.desktop.ask_window_manager_to_close("Welcome to Orvello")
        self.expect_finished()
        self.expect_that_it_comes_no_more()

    def test_a_tour_that_was_not_finished_comes_again(self):
        self.start()
        self.app.kill()

        self.start()

        self.assertEqual(self.prompter(), [])

    def test_it_opens_on_the_page_that_the_environment_names(self):
        for page, number in (("2", 2), ("+1", 1), ("9", 2), ("-4", 0), ("two", 0)):
            self.start(page=page)
            self.assertEqual(self.page(), number, page)
            self.app.kill()

    def test_the_background_moves_the_window(self):
        self.start()
        x, y, _, _ = self.frame()
        self.desktop.run("xdotool", "mousemove", str(x + 60), str(y + 60), "mousedown", "1")
        for step in range(1, 11):
            self.desktop.run("xdotool", "mousemove", str(x + 60 + 10 * step), str(y + 60 + 5 * step))
            time.sleep(0.03)
        self.desktop.run("xdotool", "mouseup", "1")

        wait_until(lambda: self.frame()[0] > x + 50 and self.frame()[1] > y + 20, what="the window to have moved")

    def test_it_speaks_of_zoom_only_where_it_is_installed(self):
        def card_is_shown():
            x, y, _, _ = self.frame()
            picture = self.desktop.screenshot()
            yellow = [picture.pixel(px, py) for py in range(y + 300, y + 420, 2) for px in range(x + 50, x + 80, 2)]
            return any(r > 200 and g > 160 and b < 140 for r, g, b in yellow)

        self.start(page="1")
        self.assertFalse(card_is_shown())
        self.app.kill()

        entries = self.desktop.data / "applications"
        entries.mkdir()
        (entries / "Zoom.desktop").write_text("[Desktop Entry]\nType=Application\nName=Zoom\nExec=zoom\n")
        self.start(page="1")
        wait_until(card_is_shown, what="the card")

    def test_on_demand_it_begins_anew(self):
        App.set_defaults(self.desktop, onboardingSeenVersion=1)
        self.start("--onboarding")
        self.assertEqual(self.page(), 0)
        self.assertEqual(self.prompter(), [])

        self.key("Escape")

        self.expect_finished()


if __name__ == "__main__":
    unittest.main(verbosity=2)
