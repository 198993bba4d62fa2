"""The status menu where desktops show it: on the session bus, in an X11 tray, or without either on the prompter."""

import re
import time
import unittest
import urllib.parse

from bus import FileManager, Opener, ScreenSaver, SessionBus, TrayHost
from desktop import App, Desktop, wait_until

TITLES = ["Start Scrolling  (Alt+Super+P)", "Back to Top", "-", "Voice-Follow Scrolling", "Slide Tracking", "Stealth Mode",
          "Hide Prompter  (Alt+Super+H)", "-", "Scripts…", "Settings…", "Welcome Tour…", "Check for Updates…", "Help", "-",
          "Quit Orvello"]


class BusMenuTest(unittest.TestCase):
    """A desktop with a host of status notifier items."""

    def setUp(self):
        self.desktop = Desktop()
        self.addCleanup(self.desktop.close)
        App.set_defaults(self.desktop, onboardingSeenVersion=1, countdownSeconds=0)
        self.bus = SessionBus(self.desktop)
        self.host = TrayHost(self.bus)

    def start(self, *arguments):
        self.app = App(self.desktop, *arguments)
        self.item = self.host.item()
        self.app.window()

    def checked(self):
        return [line.title for line in self.item.open() if line.is_checked]

    def wait_for_title(self, title):
        wait_until(lambda: title in [line.title for line in self.item.open()], what=f"the line {title!r}")

    def test_the_lines_are_those_of_the_menu(self):
        self.start()

        lines = self.item.open()

        self.assertEqual([line.title for line in lines], TITLES)
        self.assertEqual([line.title for line in lines if line.is_checkable],
                         ["Voice-Follow Scrolling", "Slide Tracking", "Stealth Mode"])
        self.assertEqual(self.checked(), ["Slide Tracking", "Stealth Mode"])
        self.assertEqual([line.title for line in lines if line.shortcut], ["Quit Orvello"])
        self.assertEqual(lines[-1].shortcut, [["Control", "Q"]])
        help_lines = self.item.line("Help").children
        self.assertEqual([line.title for line in help_lines],
                         ["Contact Support…", "Reveal Log Files", "-", "Orvello 1.0.0 (1)"])
        self.assertEqual([line.is_enabled for line in help_lines if not line.is_separator],
                         [True, True, False])

    def test_the_item_has_an_icon_and_a_name(self):
        self.start()

        self.assertEqual(self.item.property("Title"), "Orvello")
        self.assertEqual(self.item.property("Status"), "Active")
        self.assertTrue(self.item.property("IconPixmap") or self.item.property("IconName"))

    def test_the_modes_toggle_and_keep_their_marks(self):
        self.start()
        for title, key, after in (("Stealth Mode", "stealthMode", False), ("Slide Tracking", "slideSync", False),
                                  ("Voice-Follow Scrolling", "voiceFollow", True)):
            self.item.choose(title)
            wait_until(lambda: App.defaults(self.desktop).get(key) == after, what=f"{key} = {after}")
            self.assertEqual(title in self.checked(), after)

            self.item.choose(title)
            wait_until(lambda: App.defaults(self.desktop).get(key) != after, what=f"{key} back")
            self.assertEqual(title in self.checked(), not after)

    def test_scrolling_starts_pauses_and_goes_back_to_the_top(self):
        self.start()

        self.item.choose("Start Scrolling  (Alt+Super+P)")
        self.wait_for_title("Pause Scrolling  (Alt+Super+P)")
        self.item.choose("Pause Scrolling  (Alt+Super+P)")
        self.wait_for_title("Start Scrolling  (Alt+Super+P)")
        self.item.choose("Back to Top")

        self.assertIsNone(self.app.process.poll())

    def test_the_display_stays_on_while_the_text_scrolls(self):
        saver = ScreenSaver(self.bus)
        self.start()
        time.sleep(0.5)
        self.assertEqual(saver.reasons, [])

        self.item.choose("Start Scrolling  (Alt+Super+P)")

        wait_until(lambda: saver.reasons == ["The prompter is being read"], what="the request")

    def test_the_prompter_hides_and_shows(self):
        self.start()

        self.item.choose("Hide Prompter  (Alt+Super+H)")
        wait_until(lambda: not self.app.is_window_visible(), what="the prompter to go")
        self.wait_for_title("Show Prompter  (Alt+Super+H)")
        self.item.choose("Show Prompter  (Alt+Super+H)")
        wait_until(self.app.is_window_visible, what="the prompter to come back")

    def test_the_prompter_is_put_back_under_the_camera_and_stays_there(self):
        self.start()
        self.desktop.run("xdotool", "mousemove", "400", "100", "mousedown", "1", "mousemove", "300", "400",
                         "mousemove", "200", "500", "mouseup", "1")
        wait_until(lambda: self.app.geometry()[:2] == (160, 406), what="the end of the drag")

        # Right click; the line is the second from below, above a separator.
        self.desktop.run("xdotool", "mousemove", "400", "500", "click", "3", "sleep", "1", "key", "Up", "Up", "Return")
        wait_until(lambda: self.app.geometry() == (360, 6, 720, 200), what="the prompter to go back")
        self.app.quit()
        self.assertEqual(App.defaults(self.desktop)["NSWindow Frame PrompterPanel"], "360 694 720 200 0 0 1440 900")

    def test_each_window_opens_once_and_comes_to_the_front_with_the_keyboard(self):
        self.start()
        for line, title in (("Scripts…", "Scripts"), ("Settings…", "Orvello Settings")):
            self.item.choose(line)
            window = wait_until(lambda: self.desktop.windows_titled(title), what=title)[0]
            wait_until(lambda: self.desktop.focused_window() == window, what="the keyboard")
            self.item.choose(line)
            time.sleep(0.5)
            self.assertEqual(self.desktop.windows_titled(title), [window])

        self.item.choose("Scripts…")
        wait_until(lambda: self.desktop.focused_window() == self.desktop.windows_titled("Scripts")[0],
                   what="the scripts in front of the settings")

    def test_help_writes_a_letter_and_shows_the_log(self):
        opener = Opener(self.desktop)
        manager = FileManager(self.bus)
        self.start()

        self.item.choose("Contact Support…")
        letter = wait_until(opener.opened, what="the letter")[0]
        address, _, query = letter.partition("?")
        self.assertRegex(address, r"^mailto:.+@.+$")
        fields = urllib.parse.parse_qs(query)
        self.assertEqual(fields["subject"], ["Orvello 1.0.0 (1)"])
        self.assertRegex(fields["body"][0], "^\n\n—\nOrvello 1\\.0\\.0 \\(1\\), (?!macOS).+\nIf something went wrong, "
                         "attach the log: Orvello menu → Help → Reveal Log Files\\.$")

        self.item.choose("Reveal Log Files")
        shown = wait_until(lambda: manager.shown, what="the file manager")
        self.assertEqual(shown, [(App.folder(self.desktop) / "logs" / "orvello.log").as_uri()])

    def test_without_a_file_manager_the_folder_opens(self):
        opener = Opener(self.desktop)
        self.start()

        self.item.choose("Reveal Log Files")

        opened = wait_until(opener.opened, what="the folder")
        self.assertEqual(opened, [(App.folder(self.desktop) / "logs").as_uri()])

    def test_quit_ends_the_session_cleanly(self):
        self.start()

        self.item.choose("Quit Orvello")

        self.assertEqual(self.app.process.wait(15), 0)
        self.assertEqual(App.log_messages(self.desktop)[-1], "QUIT clean")
        self.assertFalse(App.marker(self.desktop).exists())

    def test_a_click_opens_the_menu_at_the_pointer(self):
        self.start()
        self.desktop.run("xdotool", "mousemove", "700", "600")
        before = self.desktop.screenshot()

        self.item.click(700, 600)

        wait_until(lambda: self.desktop.screenshot().pixel(740, 640) != before.pixel(740, 640), what="the menu")

    def test_the_tour_opens_and_finishing_it_leaves_the_prompter(self):
        self.start()
        panel = self.app.window()

        self.item.choose("Welcome Tour…")

        tour, = wait_until(lambda: self.desktop.windows_titled("Welcome to Orvello"), what="the tour")
        wait_until(lambda: sorted(self.app.windows()) == sorted([panel, tour]), what="the prompter beside the tour")

        # Its buttons take a press once it has been drawn. The close button lies below the prompter here.
        x, y, _, _ = self.desktop.frame(tour)
        wait_until(lambda: self.desktop.screenshot().pixel(x + 560, y + 538)[2] > 150, what="the tour's first frame")
        self.desktop.run("xdotool", "mousemove", str(x + 62), str(y + 538), "click", "1")

        wait_until(lambda: self.app.windows() == [panel], what="the prompter alone")


class LateTrayTest(unittest.TestCase):
    """Desktops without a tray, or whose tray appears later."""

    def setUp(self):
        self.desktop = Desktop()
        self.addCleanup(self.desktop.close)
        App.set_defaults(self.desktop, onboardingSeenVersion=1)
        self.bus = SessionBus(self.desktop)

    def start(self):
        self.app = App(self.desktop)
        self.app.shown()
        self.app.wait_for_log("TRAY this desktop shows no status items")

    def is_menu_open(self, x, y):
        """Menus are light, the desktop and the prompter are dark."""
        return min(self.desktop.screenshot().pixel(x + 12, y + 3)) > 200

    def test_a_right_click_on_the_prompter_opens_the_menu(self):
        self.start()
        x, y, width, height = self.app.geometry()

        self.desktop.run("xdotool", "mousemove", str(x + 200), str(y + 90), "click", "3")

        wait_until(lambda: self.is_menu_open(x + 200, y + 90), what="the menu")
        # The last line is Quit.
        self.desktop.run("xdotool", "key", "Up", "Return")
        self.assertEqual(self.app.process.wait(15), 0)
        self.assertEqual(App.log_messages(self.desktop)[-1], "QUIT clean")

    def test_a_second_start_opens_the_menu_and_ends(self):
        self.start()
        self.desktop.run("xdotool", "mousemove", "300", "500")

        second = App(self.desktop)

        self.assertEqual(second.process.wait(15), 0)
        wait_until(lambda: self.is_menu_open(300, 500), what="the menu")
        self.desktop.run("xdotool", "key", "Escape")
        self.assertEqual(self.app.quit(), 0)
        self.assertEqual(App.log_text(self.desktop).count("LAUNCH "), 1, "the second start is no session")

    def test_a_host_that_comes_later_gets_the_item(self):
        self.start()

        host = TrayHost(self.bus)

        self.assertEqual([line.title for line in host.item().open()], TITLES)

    def test_an_x11_tray_that_comes_later_gets_the_icon(self):
        self.start()

        start_trayer(self.desktop)

        self.app.wait_for_log("TRAY status item shown")
        wait_until(lambda: tray_icon(self.desktop), what="the icon")


def start_trayer(desktop):
    return desktop.start(["trayer", "--edge", "bottom", "--align", "right", "--widthtype", "request", "--height", "32",
                          "--transparent", "true", "--alpha", "0", "--tint", "0xf0f0f0"])


def tray_icon(desktop):
    """The place of the icon in the only tray: (x, y, width, height) on the screen."""
    tree = desktop.run("xwininfo", "-root", "-tree")
    for line in tree.splitlines():
        if '("orvello"' in line.lower() and "x" in line:
            size, position = line.split()[-2:]
            width, height = (int(part) for part in size.split("+")[0].split("x"))
            x, y = (int(part) for part in re.findall(r"\+(-?\d+)", position))
            if y > desktop.height - 40:
                return x, y, width, height
    return None


class TrayMenuTest(unittest.TestCase):
    """A desktop with an X11 tray."""

    def setUp(self):
        self.desktop = Desktop()
        self.addCleanup(self.desktop.close)
        App.set_defaults(self.desktop, onboardingSeenVersion=1, countdownSeconds=0)
        start_trayer(self.desktop)
        time.sleep(0.5)
        self.app = App(self.desktop)
        self.app.shown()
        self.app.wait_for_log("TRAY status item shown")
        self.x, self.y, self.width, self.height = wait_until(lambda: tray_icon(self.desktop), what="the icon")

    def open(self, button):
        """Clicks the icon and waits for the menu, which opens above it."""
        at = (self.x + self.width // 2, self.y + self.height // 2)
        before = self.desktop.screenshot()
        self.desktop.run("xdotool", "mousemove", *map(str, at), "click", str(button))
        wait_until(lambda: self.desktop.screenshot().pixel(at[0] - 30, self.y - 60)
                   != before.pixel(at[0] - 30, self.y - 60), what="the menu")
        time.sleep(0.2)

    def is_prompter_visible(self):
        """By its size: the icon is a window of the same name."""
        return "720x200" in self.desktop.run_any("sh", "-c", "for window in $(xdotool search --onlyvisible --name "
                                                 "'^Orvello$'); do xdotool getwindowgeometry $window; done")

    def choose(self, number):
        """Chooses a line by its number, as the arrow keys count: without separators."""
        self.desktop.run("xdotool", "key", *["Down"] * number, "Return")

    def test_the_icon_is_drawn(self):
        def colours():
            picture = self.desktop.screenshot()
            return {picture.pixel(x, y) for x in range(self.x, self.x + self.width)
                    for y in range(self.y, self.y + self.height)}

        wait_until(lambda: len(colours()) > 3, what="the icon")

    def test_either_button_opens_the_menu_and_lines_can_be_chosen(self):
        for button in (1, 3):
            self.open(button)
            self.choose(6)
            wait_until(lambda: not self.is_prompter_visible(), what="the prompter to go")
            self.open(button)
            self.choose(6)
            wait_until(self.is_prompter_visible, what="the prompter to come back")

    def test_modes_toggle(self):
        self.open(1)
        self.choose(5)
        wait_until(lambda: App.defaults(self.desktop).get("stealthMode") is False, what="Stealth Mode off")

    def test_quit_ends_the_session_cleanly(self):
        self.open(3)
        self.desktop.run("xdotool", "key", "Up", "Return")

        self.assertEqual(self.app.process.wait(15), 0)
        self.assertEqual(App.log_messages(self.desktop)[-1], "QUIT clean")


if __name__ == "__main__":
    unittest.main(verbosity=2)
