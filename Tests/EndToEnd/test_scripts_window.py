"""The scripts window with real mouse and keys: after each step the file and the active script are what the user sees."""

import os
import pathlib
import re
import shutil
import time
import unittest
import zipfile

from bus import SessionBus, TrayHost
from desktop import App, Desktop, SOURCES, wait_until

DRAG_SOURCE = pathlib.Path(os.environ["ORVELLO_DRAG_SOURCE"]).resolve()
DECK = SOURCES / "Tests" / "Presentations" / "Decks" / "Samples" / "talk.pptx"
SEARCH_FIELD = 40 # Its height with its margins, above the list.
FILE_DIALOG = "Choose a presentation — Orvello imports its speaker notes."


def write_deck_without_notes(path):
    """The slides of a deck without what ties their notes to them."""
    with zipfile.ZipFile(DECK) as deck, zipfile.ZipFile(path, "w") as silent:
        for name in deck.namelist():
            if not name.startswith("ppt/slides/_rels/"):
                silent.writestr(name, deck.read(name))


class ScriptsWindow:
    """The window, as somebody before the screen has it."""

    def __init__(self, desktop, host):
        self.desktop = desktop
        self.app = App(desktop)
        self.item = host.item()
        self.app.window()
        self.open()

    def open(self):
        self.item.choose("Scripts…")
        self.id = wait_until(lambda: self.desktop.windows_titled("Scripts"), what="the scripts window")[0]
        wait_until(lambda: self.desktop.focused_window() == self.id, what="the keyboard")
        time.sleep(0.5)

    # Hands

    def key(self, *names):
        self.desktop.run("xdotool", "key", "--clearmodifiers", *names)

    def type(self, text):
        self.desktop.run("xdotool", "type", "--clearmodifiers", "--delay", "15", text)

    def click(self, x, y):
        """At a place in the window; negative ones count from its right and bottom edges."""
        left, top, width, height = self.geometry()
        self.desktop.run("xdotool", "mousemove", str(left + x % width), str(top + y % height), "click", "1")
        time.sleep(0.1)

    def answer_alert(self):
        """With its button, which is as far from its bottom edge as its text is from its left one."""
        screen = self.desktop.screenshot()
        left, top, width, height = self.geometry()
        x, middle = width // 2 - 170, height // 2
        face = screen.pixel(left + x, top + middle)
        bottom = next(y for y in range(middle, height) if screen.pixel(left + x, top + y) != face)
        self.click(width // 2 + 120, bottom - 32)

    def row(self, number):
        self.click(60, 18 + SEARCH_FIELD + 25 * number) # The height of rows without slides.

    def text(self):
        self.click(-200, 200)

    def choose_file(self, path, shortcut="ctrl+o", dialog=FILE_DIALOG):
        """Through the file dialog, with the keyboard. It belongs to this window, and is in front of it."""
        self.key(shortcut)
        opened = wait_until(lambda: self.desktop.windows_titled(dialog), what="the file dialog")[0]
        owner = self.desktop.run("xprop", "-id", str(opened), "WM_TRANSIENT_FOR")
        assert int(owner.split()[-1], 16) == self.id, f"{owner} is not {self.id:#x}"
        wait_until(lambda: self.desktop.focused_window() == opened, what="the keyboard in the dialog")
        time.sleep(0.5)
        self.key("ctrl+a")
        self.type(str(path))
        self.key("Return")
        wait_until(lambda: not self.desktop.windows_titled(dialog), what="the file dialog to go")
        wait_until(lambda: self.desktop.focused_window() == self.id, what="the keyboard")

    # Eyes

    def geometry(self):
        """Without the frame. Not by xdotool, which counts the frame twice."""
        text = self.desktop.run("xwininfo", "-id", str(self.id))
        return tuple(int(re.search(name + r": +(-?\d+)", text)[1])
                     for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))

    def pixel(self, x, y):
        """At a place in the window; negative ones count from its right and bottom edges."""
        left, top, width, height = self.geometry()
        return self.desktop.screenshot().pixel(left + x % width, top + y % height)

    def shows_alert(self):
        """An alert dims what is behind it: the empty right of the editor."""
        return 0 < max(self.pixel(-10, 100)) < 250

    def wait_for_first_frame(self):
        wait_until(lambda: min(self.pixel(-10, 100)) == 255, what="an editor")

    def titles(self):
        return [script["title"] for script in App.library(self.desktop)]

    def active(self):
        """The active script, as the files have it."""
        scripts = App.library(self.desktop)
        active = App.defaults(self.desktop).get("activeScriptID")
        return next((script for script in scripts if script["id"] == active), None)

    def wait_for_titles(self, *titles):
        wait_until(lambda: self.titles() == list(titles), what=f"the titles {titles}, not {self.titles()}")

    def wait_for_active(self, seconds=15.0, **values):
        def holds():
            script = self.active()
            return script and all(script[name] == value for name, value in values.items())
        try:
            wait_until(holds, seconds)
        except AssertionError:
            raise AssertionError(f"the active script is {str(self.active())[:300]}, not {str(values)[:300]}")


class ScriptsWindowTest(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop()
        self.addCleanup(self.desktop.close)
        App.set_defaults(self.desktop, onboardingSeenVersion=1)
        self.host = TrayHost(SessionBus(self.desktop))

    def start(self):
        return ScriptsWindow(self.desktop, self.host)

    def test_it_opens_below_the_panel_with_its_size_and_title(self):
        window = self.start()
        x, y, width, height = window.geometry()

        self.assertEqual((width, height), (720, 480))
        self.assertAlmostEqual(x + width / 2, self.desktop.width / 2, delta=20)
        top, panel_height = window.app.geometry()[1::2]
        self.assertGreater(y - 20, top + panel_height, "its title bar is clear of the panel")

    def test_a_library_is_made_written_and_kept(self):
        window = self.start()
        window.wait_for_active(title="Welcome to Orvello")

        window.click(18, -18) # The plus.
        window.wait_for_titles("Untitled", "Welcome to Orvello")
        window.wait_for_active(title="Untitled", body="")

        window.type("Talk")
        window.wait_for_active(title="Talk")
        window.key("Return")
        window.type("Hello all")
        window.key("Return")
        window.type("Thank you")
        window.wait_for_active(title="Talk", body="Hello all\nThank you")

        window.row(1)
        window.wait_for_active(title="Welcome to Orvello")
        window.row(0)
        window.wait_for_active(title="Talk")

        window.key("ctrl+n")
        window.type("Second")
        window.wait_for_titles("Second", "Talk", "Welcome to Orvello")
        window.row(2)
        window.wait_for_active(title="Welcome to Orvello")
        window.click(50, -18) # The minus.
        window.wait_for_titles("Second", "Talk")
        window.wait_for_active(title="Second")
        window.row(1)
        window.wait_for_active(title="Talk")
        before = App.library(self.desktop)
        self.assertEqual(window.app.quit(), 0)
        self.host.items.clear()

        again = self.start()
        self.assertEqual(App.library(self.desktop), before)
        again.wait_for_active(title="Talk", body="Hello all\nThank you")
        again.text()
        again.key("ctrl+End")
        again.type("!")
        again.wait_for_active(body="Hello all\nThank you!")

    def test_the_last_script_can_go_and_then_nothing_is_typed(self):
        window = self.start()
        window.key("Delete")
        window.wait_for_titles()
        self.assertNotIn("activeScriptID", App.defaults(self.desktop))

        window.text()
        window.type("lost")
        window.click(-200, 20)
        window.type("lost")
        time.sleep(0.5)
        self.assertEqual(window.titles(), [])

        window.key("ctrl+n")
        window.wait_for_titles("Untitled")

    def test_a_key_that_is_held_removes_one_script_and_undo_brings_it_back(self):
        window = self.start()
        names = [f"Script {number}" for number in range(5)]
        for name in names:
            window.key("ctrl+n")
            window.type(name)
        titles = names[::-1] + ["Welcome to Orvello"]
        window.wait_for_titles(*titles)
        window.row(0)
        window.wait_for_active(title="Script 4")

        self.desktop.run("xdotool", "keydown", "Delete")
        time.sleep(1.5)
        self.desktop.run("xdotool", "keyup", "Delete")
        window.wait_for_titles(*titles[1:])
        self.desktop.run("xdotool", "keydown", "BackSpace")
        time.sleep(1)
        self.desktop.run("xdotool", "keyup", "BackSpace")
        self.assertEqual(window.titles(), titles[1:])

        window.key("ctrl+z")
        window.wait_for_titles(*titles)
        window.wait_for_active(title="Script 4")

        window.key("Tab", "Tab") # To the minus.
        for held in ("Return", "space"):
            before = window.titles()
            self.desktop.run("xdotool", "keydown", held)
            time.sleep(1.2)
            self.desktop.run("xdotool", "keyup", held)
            window.wait_for_titles(*before[1:])

    def test_scripts_are_found_and_put_in_order_with_keys(self):
        window = self.start()
        for name, body in (("One", "apples"), ("Two", "pears"), ("Three", "apples and pears")):
            window.key("ctrl+n")
            window.type(name)
            window.key("Return")
            window.type(body)
        window.wait_for_active(title="Three", body="apples and pears")

        window.row(0)
        window.key("alt+Down")
        window.wait_for_titles("Two", "Three", "One", "Welcome to Orvello")
        window.key("alt+Down", "alt+Down", "alt+Down", "alt+Up")
        window.wait_for_titles("Two", "One", "Three", "Welcome to Orvello")

        window.key("ctrl+f")
        window.type("APPLES")
        window.key("Return", "Up", "Up")
        window.wait_for_active(title="One")
        window.key("Down", "Down", "Down")
        window.wait_for_active(title="Three")
        window.key("ctrl+d")
        window.wait_for_titles("Two", "One", "Three", "Three copy", "Welcome to Orvello")

    def test_scripts_are_put_in_order_with_the_mouse(self):
        window = self.start()
        for name in ("Three", "Two", "One"):
            window.key("ctrl+n")
            window.type(name)
        window.wait_for_titles("One", "Two", "Three", "Welcome to Orvello")
        window.row(0)
        window.wait_for_active(title="One")
        left, top, width, height = window.geometry()
        centre = [top + 18 + SEARCH_FIELD + 25 * row for row in range(4)]

        def drag(start, end):
            """Returns whether the row that would make way was marked meanwhile."""
            unmarked = self.desktop.screenshot()
            self.desktop.run("xdotool", "mousemove", str(left + 60), str(centre[start]), "mousedown", "1")
            for step in range(1, 11):
                self.desktop.run("xdotool", "mousemove", str(left + 60),
                                 str(centre[start] + (centre[end] - centre[start]) * step // 10))
                time.sleep(0.03)
            time.sleep(0.3)
            marked = self.desktop.screenshot()
            self.desktop.run("xdotool", "mouseup", "1")
            upper_edge = [(left + 120, y) for y in range(centre[end] - 24, centre[end])]
            return any(marked.pixel(*place) != unmarked.pixel(*place) for place in upper_edge)

        self.assertTrue(drag(0, 2))
        window.wait_for_titles("Two", "Three", "One", "Welcome to Orvello")
        window.wait_for_active(title="One")
        self.assertTrue(drag(3, 1))
        window.wait_for_titles("Two", "Welcome to Orvello", "Three", "One")
        drag(1, 1)
        self.assertEqual(window.titles(), ["Two", "Welcome to Orvello", "Three", "One"])

    def test_a_damaged_library_is_kept_and_its_copy_brought_back(self):
        window = self.start()
        window.key("ctrl+n")
        window.type("Precious")
        window.wait_for_titles("Precious", "Welcome to Orvello")
        self.assertEqual(window.app.quit(), 0)
        self.host.items.clear()
        library = self.desktop.data / "Orvello" / "scripts.json"
        library.write_bytes(b"")

        again = self.start()
        self.assertEqual(again.titles(), ["Welcome to Orvello"])
        again.click(-170, 24) # The banner's first button.
        again.wait_for_titles("Welcome to Orvello", "Precious", "Welcome to Orvello")

    def test_a_save_that_fails_is_tried_again(self):
        window = self.start()
        window.wait_for_first_frame()
        window.key("ctrl+n")
        window.wait_for_titles("Untitled", "Welcome to Orvello")
        folder = self.desktop.data / "Orvello"
        library = folder / "scripts.json"
        library.unlink()
        library.mkdir() # Nothing can be saved there.

        window.type("Talk")
        wait_until(lambda: window.pixel(5, 5)[0] - window.pixel(5, 5)[2] > 20, what="the amber banner")
        library.rmdir()
        wait_until(library.exists, what="another attempt")
        window.wait_for_titles("Talk", "Welcome to Orvello")
        wait_until(lambda: window.pixel(5, 5)[0] - window.pixel(5, 5)[2] < 20, what="the banner to go")

    def test_undoing_never_crosses_to_another_script(self):
        window = self.start()
        for name in ("One", "Two"):
            window.key("ctrl+n")
            window.type(name)
            window.key("Return")
            window.type(f"Body of {name}")
        window.wait_for_active(title="Two", body="Body of Two")

        window.row(1)
        window.text()
        window.key(*["ctrl+z"] * 30)
        window.wait_for_active(title="One", body="")
        self.assertEqual(App.library(self.desktop)[0]["body"], "Body of Two")
        window.row(0)
        window.text()
        window.key(*["ctrl+shift+z"] * 30)
        window.row(1)
        window.wait_for_active(title="One", body="")
        self.assertEqual(App.library(self.desktop)[0]["body"], "Body of Two")
        window.text()
        window.key(*["ctrl+shift+z"] * 30)
        window.wait_for_active(title="One", body="Body of One")
        window.row(0)
        window.text()
        window.key("End")
        window.type("!")
        window.wait_for_active(title="Two", body="Body of Two!")
        self.assertEqual(App.library(self.desktop)[1]["body"], "Body of One")

    def test_a_deck_is_imported_through_the_file_dialog_with_the_keyboard_alone(self):
        deck = self.desktop.scratch / "Quarterly review.pptx"
        shutil.copy(DECK, deck)
        window = self.start()

        window.key("Tab", "Tab", "Tab", "space") # To the import menu.
        time.sleep(0.3)
        window.key("Down", "Return")
        wait_until(lambda: self.desktop.windows_titled(FILE_DIALOG), what="the file dialog")
        time.sleep(0.5)
        window.key("Escape")
        wait_until(lambda: not self.desktop.windows_titled(FILE_DIALOG), what="the file dialog to go")
        self.assertEqual(window.titles(), ["Welcome to Orvello"])

        window.choose_file(deck)
        window.wait_for_titles("Quarterly review", "Welcome to Orvello")
        window.wait_for_active(title="Quarterly review", deckSource="Quarterly review.pptx")
        body = window.active()["body"]

        window.click(-200, 250)
        window.type("x")
        window.key("BackSpace", "ctrl+v", "shift+Tab", "shift+Tab", "End")  # Past the button that reads the file.
        window.type(" 2")
        window.wait_for_active(title="Quarterly review 2", body=body)

    def test_the_prompter_begins_at_the_line_of_the_cursor(self):
        App.set_defaults(self.desktop, speed=10.0, countdownSeconds=0.0)
        window = self.start()
        window.wait_for_first_frame()
        window.key("ctrl+n")
        window.key("Return")
        window.key(*["m", "Return"] * 12)
        window.type("MMMMMMMM")
        window.key("Return", *["m", "Return"] * 6)
        window.wait_for_active(body="m\n" * 12 + "MMMMMMMM\n" + "m\n" * 6)
        x, y, width, height = window.app.geometry()
        self.desktop.run("xdotool", "mousemove", "10", "880")

        def has_long_line():
            """Whether the long line is near the card's top: its end is right of where a short one ends."""
            rows = self.desktop.screenshot().rows(x + width // 8, y + height // 8, width // 2, height // 3)
            return max(rows) > 2 * base
        base = max(self.desktop.screenshot().rows(x + width // 8, y + height // 8, width // 2, height // 3))
        self.assertFalse(has_long_line())

        window.key(*["Up"] * 7, "ctrl+Return")
        wait_until(has_long_line, what="the long line at the top")
        wait_until(lambda: not has_long_line(), 30, "the text to scroll on")
        self.assertEqual(window.active()["body"].count("\n"), 19, "the key writes nothing")

    def test_scripts_are_exported_as_text_and_markdown(self):
        window = self.start()
        window.wait_for_first_frame()
        for title, body in (("One", "First line"), ("Two", "Second text")):
            window.key("ctrl+n")
            window.type(title)
            window.key("Return")
            window.type(body)
        window.wait_for_active(title="Two", body="Second text")

        text = self.desktop.scratch / "two"
        window.choose_file(text, "ctrl+e", "Export this script")
        wait_until(text.with_suffix(".txt").exists, what="the text")
        self.assertEqual(text.with_suffix(".txt").read_text(), "Second text\n")

        markdown = self.desktop.scratch / "all.md"
        window.choose_file(markdown, "ctrl+shift+e", "Export 3 scripts")
        wait_until(markdown.exists, what="the Markdown")
        self.assertTrue(markdown.read_text().startswith("# Two\n\nSecond text\n\n\n# One\n\nFirst line\n\n\n# Welcome"))

    def test_alerts_are_answered_with_keys_and_mouse(self):
        broken = self.desktop.scratch / "broken.pptx"
        broken.write_text("This is no package.")
        silent = self.desktop.scratch / "Silent.pptx"
        write_deck_without_notes(silent)
        window = self.start()
        window.wait_for_first_frame()

        notes = self.desktop.scratch / "notes.txt"
        notes.write_text("No deck.")
        window.choose_file(notes) # Typed past the dialog's filter.
        wait_until(window.shows_alert, what="that this is no presentation")
        window.key("Return")
        wait_until(lambda: not window.shows_alert(), what="the alert to go")

        window.choose_file(broken)
        wait_until(window.shows_alert, what="that the import failed")
        window.type("xyz")
        window.key("Return")
        wait_until(lambda: not window.shows_alert(), what="the alert to go")
        self.assertEqual(window.titles(), ["Welcome to Orvello"])
        self.assertNotIn("xyz", window.active()["body"])

        window.choose_file(silent)
        wait_until(window.shows_alert, what="that there are no notes")
        window.wait_for_active(title="Silent", deckSource="Silent.pptx")
        self.assertEqual({slide["notes"] for slide in window.active()["slides"]}, {""})
        time.sleep(0.5)
        window.answer_alert()
        wait_until(lambda: not window.shows_alert(), what="the alert to go")
        window.key("ctrl+n")
        window.wait_for_titles("Untitled", "Silent", "Welcome to Orvello")

    def test_decks_are_dropped_on_the_window(self):
        deck, notes = self.desktop.scratch / "Dropped.pptx", self.desktop.scratch / "notes.txt"
        shutil.copy(DECK, deck)
        notes.write_text("No deck.")
        window = self.start()
        window.wait_for_first_frame()
        x, y, width, height = window.geometry()
        edge = window.pixel(1, 200)

        def drag(*files):
            """Drags the files over the window and returns how its edge looks, and what became of them."""
            log = self.desktop.scratch / f"{DRAG_SOURCE.name}.log"
            log.unlink(missing_ok=True)
            # It stays: what was dropped is asked of it afterwards.
            self.desktop.start([str(DRAG_SOURCE), "40", "500", *map(str, files)])
            wait_until(lambda: "ready" in log.read_text(), what="the files")
            self.desktop.run("xdotool", "mousemove", "80", "540", "mousedown", "1")
            for step in range(1, 9):
                self.desktop.run("xdotool", "mousemove", str(80 + (x + width // 2 - 80) * step // 8),
                                 str(540 + (y + height // 2 - 540) * step // 8))
            time.sleep(0.5)
            looks = window.pixel(1, 200)
            self.desktop.run("xdotool", "mouseup", "1")
            outcome = wait_until(lambda: log.read_text().split()[1:], what="the end of the drag")
            return looks, outcome[0]

        looks, outcome = drag(notes)
        self.assertEqual(outcome, "copied")
        self.assertNotEqual(looks, edge)
        wait_until(window.shows_alert, what="that this is no presentation")
        window.key("Return")
        wait_until(lambda: not window.shows_alert(), what="the alert to go")
        looks, outcome = drag(deck)
        self.assertEqual(outcome, "copied")
        self.assertNotEqual(looks, edge)
        window.wait_for_titles("Dropped", "Welcome to Orvello")
        window.wait_for_active(title="Dropped", deckSource="Dropped.pptx")
        wait_until(lambda: window.pixel(1, 200) == edge, what="the edge as it was")

    def test_a_megabyte_is_pasted(self):
        window = self.start()
        window.key("ctrl+n")
        window.key("Return")
        # Grown by copying it, because there is no other program to copy from.
        window.type("The text of a long talk, which has a good many words.")
        window.key("Return")
        body = "The text of a long talk, which has a good many words.\n"
        while len(body) < 1_000_000:
            window.key("ctrl+a", "ctrl+c", "ctrl+v", "ctrl+v")
            body += body
            window.wait_for_active(body=body)
        window.key("ctrl+a", "ctrl+c", "ctrl+n", "Return")
        window.wait_for_active(body="")

        start = time.monotonic()
        window.key("ctrl+v")
        window.wait_for_active(body=body)
        print(f"{len(body)} characters were on the disk {time.monotonic() - start:.2f} s after the key press")
        window.type("Hello")
        window.wait_for_active(body=body + "Hello")
        window.key("ctrl+z", "ctrl+z")
        window.wait_for_active(body="")

    def test_closing_only_hides_it(self):
        window = self.start()
        window.text()
        window.key("ctrl+End")
        window.type("abc")
        wait_until(lambda: window.active()["body"].endswith("abc"), what="the typed text")
        body = window.active()["body"]

        window.key("ctrl+w")
        wait_until(lambda: not self.desktop.windows_titled("Scripts"), what="the window to go")
        window.open()
        window.text()
        window.key("ctrl+z")

        wait_until(lambda: window.active()["body"] != body, what="the undone text")


if __name__ == "__main__":
    unittest.main(verbosity=2)
