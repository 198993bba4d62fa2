"""The system-wide keys, pressed while another program has the keyboard."""

import json
import time
import unittest

from bus import Portal, SessionBus
from desktop import App, Desktop, wait_until

# Places on an American keyboard as the server numbers them, so that no layout has a say.
ALT, SUPER, NUM_LOCK = 64, 133, 77
P, UP, DOWN, R, H = 33, 111, 116, 27, 43


def write_script(desktop):
    folder = App.folder(desktop)
    folder.mkdir(parents=True, exist_ok=True)
    body = "\n".join(f"Line {number} of what there is to say" for number in range(400))
    (folder / "scripts.json").write_text(json.dumps([{
        "id": "6F9619FF-8B86-D011-B42D-00CF4FC964FF", "title": "Talk", "body": body, "createdAt": 8e8,
        "updatedAt": 8e8}]))


class Typed:
    """Another program with a text field: a terminal that keeps what is typed into it."""

    def __init__(self, desktop, title="notes", name="xterm", full_screen=False):
        self.desktop = desktop
        self.file = desktop.scratch / f"typed-{title}"
        command = f"stty raw -echo; exec cat > {self.file}"
        self.process = desktop.start(
            ["xterm", "-name", name, "-T", title, *(["-fullscreen"] if full_screen else []), "-e", "sh", "-c", command])
        self.window = wait_until(lambda: desktop.windows_titled(title), what=title)[0]
        wait_until(self.file.exists, what="the terminal")
        self.focus()

    def focus(self):
        self.desktop.run("xdotool", "windowactivate", "--sync", str(self.window))
        wait_until(lambda: self.desktop.focused_window() == self.window, what="the keyboard")

    def text(self):
        return self.file.read_text()

    def close(self):
        self.process.terminate()
        self.process.wait(10)


class HotKeyCase(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop()
        self.addCleanup(self.desktop.close)
        write_script(self.desktop)
        App.set_defaults(self.desktop, onboardingSeenVersion=1, countdownSeconds=0, speed=60, slideSync=False)

    def start(self):
        self.app = App(self.desktop)
        self.app.shown()

    def press(self, key, *modifiers):
        codes = [str(code) for code in (*modifiers, key)]
        self.desktop.run("xdotool", *sum((["keydown", code] for code in codes), []),
                         *sum((["keyup", code] for code in reversed(codes)), []))

    def combination(self, key):
        self.press(key, ALT, SUPER)

    def text_on_card(self):
        x, y, width, height = self.app.geometry()
        return self.desktop.screenshot().rows(x + 60, y + 30, width - 120, height - 80)

    def is_moving(self):
        before = self.text_on_card()
        time.sleep(0.3)
        return self.text_on_card() != before

    def wait_for(self, moving):
        wait_until(lambda: self.is_moving() == moving, what="the text to move" if moving else "the text to stand")


class CombinationsTest(HotKeyCase):
    def setUp(self):
        super().setUp()
        self.other = Typed(self.desktop)
        self.start()
        self.other.focus()

    def speed(self):
        return App.defaults(self.desktop)["speed"]

    def exercise(self):
        self.combination(P)
        self.wait_for(moving=True)
        self.combination(P)
        self.wait_for(moving=False)

        before = self.text_on_card()
        self.combination(R)
        wait_until(lambda: self.text_on_card() != before, what="the top of the script")

        speed = self.speed()
        self.combination(UP)
        wait_until(lambda: self.speed() == speed + 10, what="a higher speed")
        self.combination(DOWN)
        wait_until(lambda: self.speed() == speed, what="the old speed")

        self.combination(H)
        wait_until(lambda: not self.app.is_window_visible(), what="the prompter to go")
        self.combination(H)
        wait_until(self.app.is_window_visible, what="the prompter to come back")

        self.assertEqual(self.other.text(), "", "none of it was typed")
        self.assertEqual(self.desktop.focused_window(), self.other.window)

    def test_they_work_while_another_program_has_the_keyboard(self):
        self.exercise()

    def test_they_work_with_num_lock(self):
        self.press(NUM_LOCK)
        try:
            self.exercise()
        finally:
            self.press(NUM_LOCK)

    def test_they_keep_their_places_under_another_layout(self):
        self.desktop.run("setxkbmap", "ru")
        time.sleep(0.5)

        self.combination(P)

        self.wait_for(moving=True)

    def test_speed_keys_stay_inside_their_bounds(self):
        for _ in range(20):
            self.combination(UP)
        wait_until(lambda: self.speed() == 240, what="the highest speed")
        for _ in range(25):
            self.combination(DOWN)
        wait_until(lambda: self.speed() == 15, what="the lowest speed")


class TakenKeysTest(HotKeyCase):
    def test_a_key_that_another_program_owns_is_survived_and_logged(self):
        folder = self.desktop.config / "openbox"
        folder.mkdir()
        source = "/etc/xdg/openbox/rc.xml"
        with open(source, encoding="utf-8") as file:
            settings = file.read()
        (folder / "rc.xml").write_text(settings.replace(
            "<keyboard>", '<keyboard><keybind key="A-W-h"><action name="ShowMenu"><menu>none</menu></action></keybind>', 1))
        self.desktop.run("openbox", "--reconfigure")
        time.sleep(0.5)

        self.start()

        self.app.wait_for_log("HOTKEY Alt+Super+H belongs to another program")
        self.combination(P)
        self.wait_for(moving=True)


class PortalTest(HotKeyCase):
    """A Wayland session, as far as the keys go: what the user presses is told by the desktop's portal."""

    def setUp(self):
        super().setUp()
        self.desktop.environment["WAYLAND_DISPLAY"] = "wayland-of-nobody"
        self.bus = SessionBus(self.desktop)

    def connect(self):
        portal = Portal(self.bus)
        self.addCleanup(portal.close)
        return portal

    def wait_until_bound(self, portal):
        wait_until(lambda: portal.shortcuts, what="the keys in the portal")
        self.assertEqual(portal.calls[:3], ["Register", "CreateSession", "BindShortcuts"])
        self.assertIn("app.orvello.Orvello", portal.applications.values())

    def test_the_keys_are_the_portals(self):
        portal = self.connect()
        self.start()
        self.wait_until_bound(portal)
        self.assertEqual(portal.shortcuts, {
            "toggle": "Start or pause scrolling", "faster": "Scroll faster", "slower": "Scroll more slowly",
            "restart": "Go back to the top of the script", "hide": "Show or hide the prompter"})

        portal.activate("toggle")
        self.wait_for(moving=True)
        portal.activate("hide")
        wait_until(lambda: not self.app.is_window_visible(), what="the prompter to go")

    def test_a_portal_that_restarts_gets_the_keys_again(self):
        portal = Portal(self.bus)
        self.start()
        self.wait_until_bound(portal)

        portal.close()
        self.app.wait_for_log("HOTKEY no portal holds the keys: it has ended")
        self.combination(P)
        self.wait_for(moving=True)
        portal = self.connect()
        self.wait_until_bound(portal)

        portal.activate("toggle")
        self.wait_for(moving=False)


class PlainKeyTest(HotKeyCase):
    """A slideshow is any window over the whole screen that says it is one of the presenter's."""

    def setUp(self):
        super().setUp()
        self.notes = Typed(self.desktop)
        self.start()

    def start_slideshow(self):
        self.slideshow = Typed(self.desktop, title="slideshow", name="soffice", full_screen=True)
        self.app.wait_for_log("plain-P armed (slideshow)", 5)

    def disarmed(self):
        return App.log_text(self.desktop).count("plain-P disarmed")

    def test_it_types_before_and_after_a_slideshow_and_pauses_during_one(self):
        self.notes.focus()
        self.press(P)
        wait_until(lambda: self.notes.text() == "p", what="the letter")

        self.start_slideshow()
        self.press(P)
        self.wait_for(moving=True)
        self.press(P)
        self.wait_for(moving=False)
        self.assertEqual(self.slideshow.text(), "")

        self.slideshow.close()
        wait_until(lambda: self.disarmed() == 1, 5, "the key to be given back")
        self.notes.focus()
        self.press(P)
        wait_until(lambda: self.notes.text() == "pp", what="the letter")
        self.assertFalse(self.is_moving())

    def test_switching_to_another_program_during_a_slideshow_gives_the_key_back(self):
        self.start_slideshow()

        self.notes.focus()

        wait_until(lambda: self.disarmed() == 1, 5, "the key to be given back")
        self.press(P)
        wait_until(lambda: self.notes.text() == "p", what="the letter")

    def test_it_stays_a_letter_while_the_setting_is_off(self):
        self.assertEqual(self.app.quit(), 0)
        App.set_defaults(self.desktop, slideshowPauseKey=False)
        self.start()
        slideshow = Typed(self.desktop, title="slideshow", name="soffice", full_screen=True)
        self.app.wait_for_log("PRESENTING=1 app=LibreOffice Impress", 5)

        self.press(P)

        wait_until(lambda: slideshow.text() == "p", what="the letter")
        self.assertNotIn("plain-P", App.log_text(self.desktop))


if __name__ == "__main__":
    unittest.main(verbosity=2)
