"""The prompter follows a real slideshow in LibreOffice Impress."""

import time
import unittest

from desktop import App, Desktop, wait_until
from office import HIDDEN, SLIDES, WITHOUT_NOTES, Office


class SlideshowTest(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop()
        self.addCleanup(self.desktop.close)
        App.set_defaults(self.desktop, onboardingSeenVersion=1)
        self.office = Office(self.desktop)
        self.addCleanup(self.office.kill)
        self.office.start(f"--accept=pipe,name={self.office.pipe};urp;")
        self.deck = self.desktop.scratch / "Quarterly talk.pptx"
        self.office.make_deck(self.deck)
        self.app = App(self.desktop, environment=self.office.environment()
                       | {"ORVELLO_IMPORT_PPTX": str(self.deck)})
        self.app.wait_for_log(f"IMPORT_PPTX ok slides={SLIDES}")
        self.app.wait_for_log("SYNC active=1")

    def start_slideshow(self):
        slideshow = self.office.open(self.deck)
        slideshow.start()
        began = time.monotonic()
        self.app.wait_for_log("PRESENTING=1 app=LibreOffice Impress")
        self.assertLess(time.monotonic() - began, 2.0)
        self.app.wait_for_log("SYNC slide=1", 3)
        return slideshow

    def card(self):
        """The panel's text as it is on the screen."""
        x, y, width, height = self.app.geometry()
        return self.desktop.screenshot().rows(x, y, width, height)

    def assert_follows(self, slide, before):
        """The slide is known within a second, and another text is on the card."""
        self.app.wait_for_log(f"SYNC slide={slide}", 1.0)
        wait_until(lambda: self.card() != before, 1.0, f"the notes of slide {slide}")

    def test_the_notes_flip_with_the_slides(self):
        slideshow = self.start_slideshow()
        for step, slide in ((slideshow.next, 2), (lambda: slideshow.show(9), 9),
                            (lambda: slideshow.show(WITHOUT_NOTES), WITHOUT_NOTES),
                            (slideshow.previous, WITHOUT_NOTES - 1),
                            (lambda: slideshow.show(HIDDEN - 1), HIDDEN - 1)):
            before = self.card()
            step()
            self.assert_follows(slide, before)

        slideshow.end()
        self.app.wait_for_log("PRESENTING=0 app=-", 3)
        self.assertEqual(self.app.quit(), 0)

    def test_the_death_of_libreoffice_leaves_the_prompter_usable(self):
        slideshow = self.start_slideshow()
        before = self.card()
        slideshow.show(3)
        self.assert_follows(3, before)

        self.office.kill()
        self.app.wait_for_log("PRESENTING=0 app=-", 3)

        self.assertNotIn("SYNC denied", App.log_text(self.desktop))
        self.assertTrue(self.app.is_window_visible())
        self.assertEqual(self.app.quit(), 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
