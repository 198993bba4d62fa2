"""The prompter follows a real slideshow in LibreOffice Impress."""

import subprocess
import time
import unittest

from desktop import SOURCES, App, Desktop, upward_shift, wait_until
from office import HIDDEN, SLIDES, WITHOUT_NOTES, Office, notes

# The dots of the slide chip.
GREEN = (48, 209, 88)
RED = (255, 69, 58)
HAS_CHIP = (SOURCES / "Sources/Orvello/Prompting/View/SlideChip.qml").exists()


def is_other(card, before):
    """Whether the card shows another text: more than what a pixel's rounding makes of the same one."""
    return sum(abs(a - b) for a, b in zip(card, before)) > sum(before) / 50


class SlideshowTest(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop()
        self.office = Office(self.desktop)
        self.addCleanup(self.office.kill)  # Also one that the prompter's helper has started.
        self.addCleanup(self.desktop.close)
        self.addCleanup(self.office.kill)
        # On an opaque card only the prompter itself changes what is seen of it; without Stealth Mode it warns of no
        # meeting application, which another test may have started.
        App.set_defaults(self.desktop, onboardingSeenVersion=1, backgroundOpacity=1.0, countdownSeconds=0,
                         impressAllowed=True, stealthMode=False)
        self.deck = self.desktop.scratch / "Quarterly talk.pptx"

    def start(self, *arguments, notes_of=notes):
        """LibreOffice, and the prompter with the deck's notes."""
        self.office.start()
        self.office.make_deck(self.deck, notes_of)
        self.start_prompter(*arguments)

    def start_prompter(self, *arguments):
        self.app = App(self.desktop, *arguments, environment={"ORVELLO_IMPORT_PPTX": str(self.deck)})
        self.app.wait_for_log(f"IMPORT_PPTX ok slides={SLIDES}")
        self.app.wait_for_log("SYNC active=1")
        self.area = self.app.shown()
        self.panel = self.app.window()

    def start_slideshow(self):
        slideshow = self.office.open(self.deck)
        self.forget_news()
        slideshow.start()
        self.wait_for_news("PRESENTING=1 app=LibreOffice Impress", 2.0)
        self.wait_for_news("SYNC slide=1", 15)  # LibreOffice has to listen first.
        return slideshow

    def wait_for_news(self, text, seconds):
        """Waits for a line that was not there before; what follows it are the next news."""
        def found():
            end = App.log_text(self.desktop).find(text, self.known) + len(text)
            return end >= self.known + len(text) and end
        self.known = wait_until(found, seconds, f"the log line {text!r}")

    def forget_news(self):
        self.known = len(App.log_text(self.desktop))

    def card(self):
        """The panel's text as it is on the screen: without its edges, where the status stands."""
        x, y, width, height = self.area
        return self.desktop.screenshot().rows(x + 40, y + 10, width - 80, height - 50)

    def dot(self):
        """The colour of the chip's dot, if there is one."""
        x, y, width, height = self.area
        screen = self.desktop.screenshot()
        for row in range(y + height - 50, y + height):
            for column in range(x + width // 2, x + width):
                pixel = screen.pixel(column, row)
                for color in (GREEN, RED):
                    if max(abs(a - b) for a, b in zip(pixel, color)) < 24:
                        return color
        return None

    def assert_chip(self, color):
        if HAS_CHIP:
            wait_until(lambda: self.dot() == color, 3.0, f"the chip's dot in {color}")

    def change(self, step, slide):
        """Changes the slide: it is known within a second, and its notes are on the card. Returns the card."""
        before = self.card()
        self.forget_news()
        step()
        self.wait_for_news(f"SYNC slide={slide}", 1.0)
        wait_until(lambda: is_other(self.card(), before), 1.0, f"the notes of slide {slide}")
        return self.settled_card()

    def settled_card(self):
        """The card once two pictures of it are the same: the first one may lack lines that are still to come."""
        cards = [self.card()]

        def is_settled():
            time.sleep(0.2)
            cards.append(self.card())
            return not is_other(cards[-1], cards[-2])
        wait_until(is_settled, what="the card to be drawn")
        return cards[-1]

    def assert_same(self, card, before):
        self.assertFalse(is_other(card, before))

    def test_the_notes_flip_with_the_slides(self):
        self.start()
        self.assert_chip(None)
        slideshow = self.start_slideshow()
        self.assert_chip(GREEN)

        first = self.card()
        second = self.change(slideshow.next, 2)
        ninth = self.change(lambda: slideshow.show(9), 9)
        empty = self.change(lambda: slideshow.show(WITHOUT_NOTES), WITHOUT_NOTES)
        self.change(slideshow.previous, WITHOUT_NOTES - 1)
        self.change(lambda: slideshow.show(HIDDEN - 1), HIDDEN - 1)
        self.assert_same(self.change(slideshow.next, HIDDEN + 1), ninth)  # Past the hidden one.
        self.assert_same(self.change(lambda: slideshow.show(2), 2), second)
        self.assert_same(self.change(slideshow.previous, 1), first)
        self.assertTrue(is_other(empty, second) and is_other(empty, ninth))

        # The end keeps the last slide's notes.
        last = self.change(lambda: slideshow.show(9), 9)
        slideshow.end()
        self.wait_for_news("PRESENTING=0 app=-", 3)
        self.assert_chip(None)
        time.sleep(1.0)
        self.assert_same(self.card(), last)
        self.assertEqual(self.app.quit(), 0)

    def test_every_slide_starts_at_the_top(self):
        # More lines than the card shows, no two alike.
        self.start("--autostart", notes_of=lambda slide: "\n".join(
            " ".join(["now"] * (1 + (slide * line) % 11)) for line in range(1, 30)))
        self.point(onto_card=True)  # The text holds.
        slideshow = self.start_slideshow()
        top = self.change(lambda: slideshow.show(9), 9)

        self.point(onto_card=False)
        time.sleep(1.0)
        self.point(onto_card=True)
        time.sleep(0.3)
        self.assertGreater(upward_shift(top, self.card(), 60), 10)

        self.change(lambda: slideshow.show(2), 2)
        self.assert_same(self.change(lambda: slideshow.show(9), 9), top)
        self.assertEqual(self.app.quit(), 0)

    def point(self, onto_card):
        x, y, width, height = self.area
        self.desktop.run("xdotool", "mousemove", str(x + width // 2),
                         str(y + height // 2 if onto_card else y + height + 200))

    def test_another_window_in_front_stops_it(self):
        self.start()
        slideshow = self.start_slideshow()
        third = self.change(lambda: slideshow.show(3), 3)
        window = self.desktop.run("xdotool", "getactivewindow").strip()

        self.desktop.start(["xmessage", "-geometry", "300x100+50+600", "Another window"])
        other = wait_until(self.find_other_window, what="the other window")
        self.desktop.run("xdotool", "windowactivate", other)
        self.wait_for_news("PRESENTING=0 app=-", 3)
        self.assert_chip(None)
        time.sleep(1.0)  # For the answer to a question that was on its way.
        slideshow.show(6)
        time.sleep(1.5)
        self.assert_same(self.card(), third)

        self.desktop.run("xdotool", "windowactivate", window)
        self.wait_for_news("PRESENTING=1 app=LibreOffice Impress", 3)
        self.wait_for_news("SYNC slide=6", 2)
        self.assert_chip(GREEN)
        self.assertEqual(self.app.quit(), 0)

    def find_other_window(self):
        result = subprocess.run(["xdotool", "search", "--onlyvisible", "--classname", "xmessage"],
                                env=self.desktop.environment, capture_output=True, text=True)
        return result.stdout.split()[0] if result.stdout.split() else None

    def test_the_death_of_libreoffice_leaves_the_prompter_usable(self):
        self.start()
        # Another LibreOffice, which does not let itself be asked, has nothing to do with it.
        other = Office(self.desktop, "other-office")
        self.addCleanup(other.kill)
        other.start("--headless")
        slideshow = self.start_slideshow()
        third = self.change(lambda: slideshow.show(3), 3)

        self.office.kill()
        self.wait_for_news("PRESENTING=0 app=-", 3)
        time.sleep(4.0)
        self.assertNotIn("SYNC denied", App.log_text(self.desktop))
        self.assertTrue(self.app.is_window_visible())
        self.assert_same(self.card(), third)
        self.assert_chip(None)

        # The next slideshow is followed again.
        self.office.start()
        slideshow = self.start_slideshow()
        self.change(lambda: slideshow.show(9), 9)
        self.assert_chip(GREEN)
        self.assertEqual(self.app.quit(), 0)

    def test_nothing_is_asked_without_consent(self):
        App.set_defaults(self.desktop, impressAllowed=False)
        self.start()
        slideshow = self.office.open(self.deck)
        self.forget_news()
        slideshow.start()
        self.app.wait_for_log("SYNC denied (Automation permission for Impress)", 10)
        self.assert_chip(RED)
        # Nothing appears before the audience, whatever is in front.
        self.desktop.start(["xmessage", "-geometry", "300x100+50+600", "Another window"])
        other = wait_until(self.find_other_window, what="the other window")
        self.desktop.run("xdotool", "windowactivate", other)
        self.wait_for_news("PRESENTING=0 app=-", 5)
        time.sleep(2.5)
        self.assertEqual(App.log_text(self.desktop).count("SYNC denied"), 1)
        self.assertEqual(len(self.app.windows()), 1)

        # After the slideshow the prompter asks.
        slideshow.end()
        box = self.wait_for_box()
        self.desktop.run("xdotool", "windowactivate", "--sync", str(box), "key", "Return")  # Allow.
        wait_until(lambda: self.app.windows() and self.wait_for_box() != box, what="the next box")

        self.forget_news()
        slideshow.start()
        self.wait_for_news("SYNC slide=1", 15)
        self.assert_chip(GREEN)
        self.assertEqual(self.app.quit(), 0)

    def wait_for_box(self):
        return wait_until(lambda: set(self.app.windows()) - {self.panel}, what="the box").pop()

    def test_a_click_on_the_editor_does_not_end_it(self):
        self.start()
        slideshow = self.office.open(self.deck)
        editor = wait_until(lambda: self.desktop.run_any(
            "xdotool", "search", "--onlyvisible", "--class", "libreoffice-impress").split(), what="the editor")[0]
        self.forget_news()
        slideshow.start()
        self.wait_for_news("PRESENTING=1 app=LibreOffice Impress", 5)
        self.wait_for_news("SYNC slide=1", 15)

        self.desktop.run("xdotool", "windowactivate", editor)
        time.sleep(2.5)
        self.assertNotIn("PRESENTING=0", App.log_text(self.desktop))
        self.change(lambda: slideshow.show(3), 3)
        slideshow.end()
        self.wait_for_news("PRESENTING=0 app=-", 5)
        self.assertEqual(self.app.quit(), 0)

    def test_the_file_gives_the_deck_s_notes(self):
        self.start()
        imported = App.library(self.desktop)[0]
        self.assertEqual([slide["notes"] for slide in imported["slides"]],
                         [notes(slide) for slide in range(1, SLIDES + 1)])
        self.assertEqual(self.app.quit(), 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
