"""Every window opens clear of the prompter and inside the screen, title bar and all, on the screens that people have."""

import re
import unittest

from desktop import App, Desktop, wait_until

SCREENS = {
    "1280 x 720": ((1280, 720), 1, None),
    "1366 x 768": ((1366, 768), 1, None),
    "1920 x 1080 at 1.5": ((1920, 1080), 1.5, None),
    "1366 x 768, the largest prompter": ((1366, 768), 1, (1600, 900)),
    "1920 x 1080 at 1.5, the largest prompter": ((1920, 1080), 1.5, (1600, 900)),
}
TITLES = {"--settings": "Orvello Settings", "--scripts": "Scripts", "--onboarding": "Welcome to Orvello"}


class ScreensTest(unittest.TestCase):
    def frame(self, desktop, window):
        """The window's (left, top, right, bottom) on the screen, with what the window manager puts around it."""
        text = desktop.run("xwininfo", "-id", str(window))
        left, top, width, height = (int(re.search(name + r": +(-?\d+)", text)[1]) for name in (
            "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        extents = re.findall(r"\d+", desktop.run("xprop", "-id", str(window), "_NET_FRAME_EXTENTS").partition("=")[2])
        west, east, north, south = map(int, extents) if extents else (0, 0, 0, 0)
        return left - west, top - north, left + width + east, top + height + south

    def rested(self, desktop, window):
        """The same once it does not change any more: a window manager may move what it shows first."""
        last = None
        def rests():
            nonlocal last
            before, last = last, self.frame(desktop, window)
            return before == last
        wait_until(rests, what="the window to rest")
        return last

    def open(self, screen, *windows):
        """Starts the program with these windows and returns their frames, and that of the prompter if there is one."""
        size, scale, panel = SCREENS[screen]
        desktop = Desktop(*size)
        self.addCleanup(desktop.close)
        App.set_defaults(desktop, onboardingSeenVersion=1)
        if panel:
            App.set_defaults(desktop, **{"NSWindow Frame PrompterPanel": f"0 0 {panel[0]} {panel[1]} 0 0 {size[0]} {size[1]} "})
        App(desktop, *windows, environment={"QT_SCALE_FACTOR": str(scale)})
        ids = [wait_until(lambda: desktop.windows_titled(TITLES[name]), what=name)[0] for name in windows]
        frames = [self.rested(desktop, window) for window in ids]
        prompter = desktop.windows_titled("Orvello")
        return desktop, frames, self.frame(desktop, prompter[0]) if prompter else None

    def expect_in_reach(self, desktop, frames, prompter):
        for left, top, right, bottom in frames:
            self.assertTrue(0 <= left and 0 <= top and right <= desktop.width and bottom <= desktop.height,
                            f"{(left, top, right, bottom)} is inside of {desktop.width} x {desktop.height}")
            if prompter:
                self.assertTrue(right <= prompter[0] or left >= prompter[2] or bottom <= prompter[1] or top >= prompter[3],
                                f"{(left, top, right, bottom)} is clear of the prompter at {prompter}")

    def test_each_window_opens_in_reach_and_clear_of_the_prompter(self):
        for screen in SCREENS:
            # Before the tour is over there is no prompter.
            for windows in (["--settings", "--scripts"], ["--onboarding"]):
                with self.subTest(screen=screen, windows=windows):
                    desktop, frames, prompter = self.open(screen, *windows)
                    self.expect_in_reach(desktop, frames, prompter)
                    desktop.close()

    def test_the_prompter_steps_aside_where_there_is_no_place_beside_it_and_comes_back(self):
        desktop, frames, prompter = self.open("1366 x 768, the largest prompter", "--scripts")
        self.assertIsNone(prompter)
        desktop.ask_window_manager_to_close("Scripts")
        wait_until(lambda: desktop.windows_titled("Orvello"), what="the prompter to come back")


if __name__ == "__main__":
    unittest.main(verbosity=2)
