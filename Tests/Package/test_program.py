"""The program finds what belongs to it, where it is installed and in the build folder: helper, typeface, translations."""

import configparser
import json
import os
import pathlib
import shlex
import subprocess
import sys
import time
import unittest
import xml.etree.ElementTree

SOURCES = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(SOURCES / "Tests/EndToEnd"))

from desktop import PROGRAM, App, Desktop, wait_until  # noqa: E402

HELPER = pathlib.Path(os.environ["ORVELLO_HELPER"])
SLIDES = [{"index": 1, "notes": "Good morning."}, {"index": 2, "notes": "The second slide."}]
DESKTOP_ENTRY = SOURCES / "Resources/Linux/app.orvello.Orvello.desktop"
# How text is drawn, as the system says, but no folder with fonts.
NO_FONTS = """<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig><include ignore_missing="yes">/etc/fonts/conf.d</include></fontconfig>"""

# Prints the names of all accessible objects.
READER = r"""
import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi
Atspi.init()
def walk(node):
    print(node.get_name())
    for i in range(node.get_child_count()):
        child = node.get_child_at_index(i)
        if child:
            walk(child)
desktop = Atspi.get_desktop(0)
for i in range(desktop.get_child_count()):
    walk(desktop.get_child_at_index(i))
"""


class ProgramTest(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop()
        self.addCleanup(self.desktop.close)
        App.set_defaults(self.desktop, onboardingSeenVersion=1, backgroundOpacity=1.0)

    def write_library(self):
        folder = App.folder(self.desktop)
        folder.mkdir(parents=True)
        (folder / "scripts.json").write_text(json.dumps([{
            "id": "6F9619FF-8B86-D011-B42D-00CF4FC964FF", "title": "Deck", "body": "Good morning.",
            "createdAt": 8e8, "updatedAt": 8e8, "slides": SLIDES, "deckSource": "Deck.pptx"}]))

    def test_starts_its_helper_when_a_slideshow_begins(self):
        self.write_library()
        App.set_defaults(self.desktop, impressAllowed=True)
        app = App(self.desktop)
        app.shown()
        # What looks like a slideshow of LibreOffice is enough for the prompter to ask.
        self.desktop.start(["xterm", "-name", "soffice", "-class", "soffice", "-fullscreen", "-e", "sleep", "600"])
        app.wait_for_log("PRESENTING=1 app=LibreOffice Impress")

        helper = wait_until(lambda: self.child_of(app.process.pid), what="the helper")

        self.assertEqual(pathlib.Path(helper[1]).resolve(), HELPER.resolve())
        time.sleep(1)
        self.assertEqual(self.child_of(app.process.pid), helper, "it ends at once where Python finds no file")
        self.assertEqual(app.quit(), 0)

    @staticmethod
    def child_of(parent):
        """The arguments of the process's child that is a Python program."""
        listed = subprocess.run(["ps", "-o", "args=", "--ppid", str(parent)], capture_output=True, text=True).stdout
        return next((line.split() for line in listed.splitlines() if "python3" in line), None)

    def choose_action(self, name):
        """Does what a desktop does when the action of the desktop entry is chosen."""
        entry = configparser.ConfigParser(interpolation=None)
        entry.read(DESKTOP_ENTRY)
        program, *arguments = shlex.split(entry[f"Desktop Action {name}"]["Exec"])
        self.assertEqual(program, PROGRAM.name)
        self.assertEqual(self.desktop.start([str(PROGRAM), *arguments]).wait(30), 0)

    def test_does_what_the_actions_of_its_desktop_entry_say(self):
        self.desktop.start_session_bus()
        App.set_defaults(self.desktop, countdownSeconds=0)
        app = App(self.desktop)
        x, y, width, height = app.shown()
        text = lambda: self.desktop.screenshot().rows(x + 20, y + 26, width - 40, height - 70)

        resting = text()
        self.choose_action("toggle")
        wait_until(lambda: text() != resting, what="the text to move")
        self.choose_action("toggle")
        self.choose_action("scripts")
        wait_until(lambda: self.desktop.windows_titled("Scripts"), what="the scripts window")
        self.choose_action("settings")
        wait_until(lambda: self.desktop.windows_titled("Orvello Settings"), what="the settings window")

        self.assertEqual(app.quit(), 0)

    def test_brings_its_typeface(self):
        self.write_library()
        with_fonts = self.text_on_the_card({})
        empty = self.desktop.scratch / "no-fonts.conf"
        empty.write_text(NO_FONTS)

        self.assertEqual(self.text_on_the_card({"FONTCONFIG_FILE": str(empty)}), with_fonts)

    def text_on_the_card(self, environment):
        app = App(self.desktop, environment=environment)
        x, y, width, height = app.shown()
        # Below the badge and above the status, which are in the desktop's typeface.
        profile = lambda: self.desktop.screenshot().rows(x + 20, y + 26, width - 40, height - 70)
        text = wait_until(lambda: max(rows := profile()) > 2 * min(rows) and rows, what="the text")
        self.assertEqual(app.quit(), 0)
        return text

    def test_speaks_the_language_of_the_user(self):
        # They all come the same way, so one of them tells.
        first = min((SOURCES / "Resources/Translations").glob("*.ts"))
        tree = xml.etree.ElementTree.parse(first).getroot()

        self.assert_shown(tree.get("language"), self.translated(tree))

    @staticmethod
    def translated(tree):
        """What this language says differently."""
        return {message.findtext("translation") for message in tree.iter("message")
                if message.findtext("translation") != message.findtext("source")}

    def assert_shown(self, language, texts):
        self.assertGreater(len(texts), 0)
        with Desktop() as desktop:
            desktop.start_session_bus()
            desktop.run("gdbus", "call", "--session", "--dest", "org.a11y.Bus", "--object-path", "/org/a11y/bus",
                        "--method", "org.freedesktop.DBus.Properties.Set", "org.a11y.Status", "IsEnabled", "<true>")
            App(desktop, "--onboarding", environment={"LANG": f"{language}.UTF-8"})

            wait_until(lambda: texts & set(desktop.run("/usr/bin/python3", "-c", READER).splitlines()),
                       what=f"one of {texts}")


if __name__ == "__main__":
    print(f"the program at {PROGRAM}", file=sys.stderr)
    unittest.main(verbosity=2)
