"""A screen reader finds the prompter's text, its state and its buttons, and can press them."""

import json
import re
import shutil
import time
import unittest

from bus import Portal, SessionBus
from desktop import App, Desktop, wait_until

SLIDES = [{"index": 1, "title": "Welcome", "notes": "Good morning."},
          {"index": 2, "notes": "The second slide."}]

# Runs on the private desktop: prints the accessible objects of the program as JSON, or presses the one of that name.
READER = r"""
import json, sys
import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi
Atspi.init()
found = []
def walk(node):
    states = node.get_state_set()
    found.append({"role": node.get_role_name(), "name": node.get_name(), "description": node.get_description(),
                  "showing": states.contains(Atspi.StateType.SHOWING),
                  "enabled": states.contains(Atspi.StateType.ENABLED)})
    if len(sys.argv) > 1 and node.get_name() == sys.argv[1]:
        node.get_action_iface().do_action(0)
    for i in range(node.get_child_count()):
        child = node.get_child_at_index(i)
        if child:
            walk(child)
desktop = Atspi.get_desktop(0)
for i in range(desktop.get_child_count()):
    walk(desktop.get_child_at_index(i))
print(json.dumps(found))
"""


class AccessibilityTest(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop()
        self.addCleanup(self.desktop.close)
        self.desktop.start_session_bus()
        self.desktop.run("gdbus", "call", "--session", "--dest", "org.a11y.Bus", "--object-path", "/org/a11y/bus",
                         "--method", "org.freedesktop.DBus.Properties.Set", "org.a11y.Status", "IsEnabled", "<true>")
        App.set_defaults(self.desktop, onboardingSeenVersion=1)

    def read(self, *press):
        printed = self.desktop.run("/usr/bin/python3", "-c", READER, *press)
        return [node for node in json.loads(printed) if node["showing"]]

    def names(self, role):
        return [node["name"] for node in self.read() if node["role"] == role]

    @staticmethod
    def buttons(nodes):
        """Whether they can be pressed, by their names."""
        return {node["name"]: node["enabled"] for node in nodes if "button" in node["role"]}

    def write_deck(self):
        folder = App.folder(self.desktop)
        folder.mkdir(parents=True, exist_ok=True)
        (folder / "scripts.json").write_text(json.dumps([{
            "id": "6F9619FF-8B86-D011-B42D-00CF4FC964FF", "title": "Deck", "body": "Good morning.",
            "createdAt": 8e8, "updatedAt": 8e8, "slides": SLIDES, "deckSource": "Deck.pptx"}]))

    def test_the_text_the_state_and_the_buttons_are_there(self):
        self.write_deck()
        app = App(self.desktop)
        app.shown()
        wait_until(lambda: "Good morning." in self.names("label"), what="the text")

        nodes = self.read()

        pane = next(node for node in nodes if node["name"] == "Prompter")
        self.assertEqual(pane["description"], "paused")
        self.assertIn({"role": "label", "name": "paused", "description": "Status", "showing": True, "enabled": True},
                      nodes)
        self.assertIn("Slide 1 / 2", [node["name"] for node in nodes])
        self.assertEqual(self.buttons(nodes), {"Fold the badge to an eye": True, "Previous slide": False,
                                               "Next slide": True})
        self.assertIn("VISIBLE IN RECORDINGS", [node["name"] for node in nodes])

    def test_the_buttons_can_be_pressed(self):
        self.write_deck()
        app = App(self.desktop)
        app.shown()
        wait_until(lambda: "Good morning." in self.names("label"), what="the text")

        self.read("Next slide")

        wait_until(lambda: "The second slide." in self.names("label"), what="the next slide")
        nodes = self.read()
        self.assertIn("Slide 2 / 2", [node["name"] for node in nodes])
        self.assertEqual(self.buttons(nodes), {"Fold the badge to an eye": True, "Previous slide": True,
                                               "Next slide": False})

        self.read("Fold the badge to an eye")
        nodes = wait_until(lambda: [node for node in self.read() if node["name"] == "Show the badge in full"] and self.read(),
                           what="the eye")
        self.assertIn("VISIBLE IN RECORDINGS", [node["name"] for node in nodes])
        self.assertTrue(App.defaults(self.desktop)["recordingBadgeFolded"])
        self.read("Next slide")
        self.assertIn("Slide 2 / 2", [node["name"] for node in self.read()])

    def key_rows(self):
        """What the settings say about the keys, once the window is there."""
        App(self.desktop, "--settings")
        wait_until(lambda: self.desktop.windows_titled("Orvello Settings"), what="the settings")
        def rows(): # The window scrolls: they need not be in sight.
            printed = json.loads(self.desktop.run("/usr/bin/python3", "-c", READER))
            return [node["name"] for node in printed if re.match(r"[^.]*: (Press A|A)(lt|LT)\+", node["name"])]
        wait_until(rows, what="the keys")
        return rows

    def test_the_settings_show_the_keys_that_the_portal_has_assigned(self):
        self.desktop.environment["WAYLAND_DISPLAY"] = "wayland-of-nobody"
        portal = Portal(SessionBus(self.desktop, self.desktop.environment["DBUS_SESSION_BUS_ADDRESS"]))
        self.addCleanup(portal.close)

        rows = self.key_rows()
        wait_until(lambda: rows()[:1] == ["Start / pause scrolling: Press ALT+LOGO+p"], what="the portal's keys")
        self.assertEqual(rows(), ["Start / pause scrolling: Press ALT+LOGO+p",
                                  "Speed up / down: Press ALT+LOGO+Up  /  Press ALT+LOGO+Down", "Back to top: Press ALT+LOGO+r",
                                  "Show / hide prompter: Press ALT+LOGO+h"], "no key is named that is not the portal's")

    def test_the_settings_say_which_key_another_program_has(self):
        folder = self.desktop.config / "openbox"
        folder.mkdir()
        with open("/etc/xdg/openbox/rc.xml", encoding="utf-8") as file:
            settings = file.read()
        (folder / "rc.xml").write_text(settings.replace(
            "<keyboard>", '<keyboard><keybind key="A-W-h"><action name="ShowMenu"><menu>none</menu></action></keybind>', 1))
        self.desktop.run("openbox", "--reconfigure")
        time.sleep(0.5)

        rows = self.key_rows()()
        self.assertEqual(rows, ["Start / pause scrolling: Alt+Super+P", "Speed up / down: Alt+Super+↑  /  Alt+Super+↓",
                                "Back to top: Alt+Super+R", "Show / hide prompter: Alt+Super+H (another program has it)"])

    def test_the_countdown_is_there_and_nothing_speaks_of_a_gray_box_here(self):
        zoom = self.desktop.scratch / "zoom"
        shutil.copy("/usr/bin/sleep", zoom)
        self.desktop.start([str(zoom), "120"])
        # A slideshow is any window over the whole screen that says it is one of the presenter's.
        self.desktop.start(["xterm", "-name", "soffice", "-fullscreen", "-e", "sleep", "120"])
        App.set_defaults(self.desktop, countdownSeconds=10)
        app = App(self.desktop, "--autostart")
        app.shown()

        def countdown():
            return [node["name"] for node in self.read() if node["description"] == "Countdown"]
        seconds = wait_until(countdown, what="the countdown")
        self.assertIn(seconds[0], [str(number) for number in range(1, 11)])

        app.wait_for_log("PRESENTING=1 app=LibreOffice Impress")
        self.desktop.run("xdotool", "key", "alt+super+p")
        wait_until(lambda: not countdown(), what="the end of the countdown")
        shown = [node["name"] for node in self.read() if node["showing"]]
        self.assertIn("VISIBLE IN RECORDINGS", shown)
        self.assertEqual([name for name in shown if "gray" in name], [])

    def test_the_settings_say_whether_the_opacity_has_an_effect(self):
        app = App(self.desktop, "--settings")
        app.shown()
        wait_until(lambda: "Session" in self.names("label"), what="the settings")
        note = lambda: [name for name in self.names("label") if name.startswith("The opacity has no effect")]  # noqa: E731
        self.assertEqual(note(), [])

        self.desktop.stop_compositor()
        wait_until(note, what="the note")

        self.desktop.start_compositor()
        wait_until(lambda: not note(), what="the note to go")


if __name__ == "__main__":
    unittest.main(verbosity=2)
