"""The prompter in a Wayland session, through XWayland: seen, dragged, resized and restored above native windows."""

import unittest

from desktop import App, wait_until
from wayland import Sway

RED = (0xC0, 0, 0)


class WaylandTest(unittest.TestCase):
    def session(self, **options):
        desktop = Sway(**options)
        self.addCleanup(desktop.close)
        desktop.start_session_bus()
        App.set_defaults(desktop, onboardingSeenVersion=1, countdownSeconds=0)
        return desktop

    @staticmethod
    def shown(desktop, app, behind):
        """The panel's place in device pixels, once it darkens what is behind it there."""
        def painted():
            x, y, width, height = (int(length * desktop.scale) for length in app.geometry())
            seen = desktop.screenshot().pixel(x + int(14 * desktop.scale), y + height // 2)
            return max(abs(seen[i] - 0.28 * behind[i]) for i in range(3)) < 4 and (x, y, width, height)
        return wait_until(painted, what="the card")

    def drag(self, desktop, start, end):
        """With the session's own pointer, in device pixels."""
        size = (desktop.width, desktop.height)
        desktop.client.move(*start, *size)
        desktop.client.press(True)
        for step in (1, 2, 3):
            desktop.client.move(*(a + (b - a) * step // 3 for a, b in zip(start, end)), *size)
        desktop.client.press(False)
        desktop.client.move(desktop.width - 5, desktop.height - 5, *size)

    def test_it_is_above_a_full_screen_native_window_and_leaves_it_the_keyboard(self):
        desktop = self.session()
        app = App(desktop)
        place = self.shown(desktop, app, (0x28, 0x40, 0x60))
        self.assertEqual(place, (360, 6, 720, 200))

        desktop.open_full_screen_terminal("c00000")

        wait_until(lambda: desktop.screenshot().pixel(700, 600) == RED, what="the full screen")
        self.assertEqual(self.shown(desktop, app, RED), place)
        self.drag(desktop, (600, 100), (600, 400))
        wait_until(lambda: app.geometry() == (360, 306, 720, 200), what="the drag")
        self.assertEqual(self.shown(desktop, app, RED), (360, 306, 720, 200))
        self.assertEqual(desktop.focused(), "foot")

    def test_it_is_resized_and_comes_back_where_it_was(self):
        desktop = self.session()
        app = App(desktop)
        self.shown(desktop, app, (0x28, 0x40, 0x60))
        self.drag(desktop, (600, 100), (500, 300))
        wait_until(lambda: app.geometry() == (260, 206, 720, 200), what="the drag")
        self.drag(desktop, (260 + 717, 206 + 197), (260 + 617, 206 + 297))
        wait_until(lambda: app.geometry() == (260, 206, 620, 300), what="the new size")
        app.quit()

        again = App(desktop)

        self.assertEqual(self.shown(desktop, again, (0x28, 0x40, 0x60)), (260, 206, 620, 300))

    def test_its_place_counts_in_the_points_of_a_scaled_screen(self):
        for scale in (1.5, 2):
            with self.subTest(scale):
                desktop = self.session(width=1920, height=1200, scale=scale)
                desktop.open_full_screen_terminal("c00000")
                app = App(desktop)
                x, y, width, height = self.shown(desktop, app, RED)

                self.assertEqual((x + width // 2, y), (960, int(6 * scale)))
                self.assertEqual((width, height), (720 * scale, 200 * scale))
                self.drag(desktop, (960, int(100 * scale)), (960, int(150 * scale)))
                wait_until(lambda: app.geometry()[1] == 56, what="the drag")
                desktop.close()

    def test_it_says_that_no_portal_holds_its_keys(self):
        desktop = self.session()
        app = App(desktop)

        app.wait_for_log("HOTKEY no portal holds the keys: ")


if __name__ == "__main__":
    unittest.main(verbosity=2)
