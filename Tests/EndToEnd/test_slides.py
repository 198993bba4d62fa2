"""A real slideshow in LibreOffice Impress leads the services that follow slides."""

import json
import os
import queue
import random
import statistics
import subprocess
import threading
import time
import unittest

from desktop import PROGRAM, Desktop, wait_until
from office import HIDDEN, SLIDES, WITHOUT_NOTES, Office, notes, title

HELPER = os.environ["ORVELLO_IMPRESS_HELPER"]
EMPTY = "(No speaker notes on this slide)"
CHANGES = int(os.environ.get("ORVELLO_SLIDE_CHANGES", "50"))


def prompt(slide):
    return notes(slide) or EMPTY


class Follower:
    """The services in a process of their own, as lines of JSON."""

    def __init__(self, desktop, office, deck):
        self.process = subprocess.Popen(
            [str(PROGRAM), HELPER, str(deck)], env=desktop.environment | office.environment(),
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, bufsize=1)
        self.lines = queue.Queue()
        threading.Thread(target=self._read, daemon=True).start()

    def _read(self):
        for line in self.process.stdout:
            self.lines.put((time.monotonic(), json.loads(line)))

    def wait_for(self, key, seconds, condition=lambda content: True):
        """The moment and the content of the next line with this key whose content is as wanted."""
        deadline = time.monotonic() + seconds
        seen = []
        while True:
            try:
                moment, line = self.lines.get(timeout=max(0.0, deadline - time.monotonic()))
            except queue.Empty:
                raise AssertionError(f"no {key} within {seconds} s; only {seen}") from None
            seen.append(line)
            if key in line and condition(line[key]):
                return moment, line[key]

    def silence(self):
        """What was said since the last look."""
        said = []
        while not self.lines.empty():
            said.append(self.lines.get()[1])
        return said

    def tell(self, command):
        print(command, file=self.process.stdin, flush=True)

    def stop(self):
        self.process.stdin.close()
        status = self.process.wait(15)
        self.process.stdout.close()
        return status


class SlidesTest(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop()
        self.office = Office(self.desktop)
        self.addCleanup(self.office.kill)  # Also one that the helper has started.
        self.addCleanup(self.desktop.close)
        self.addCleanup(self.office.kill)

    def helper(self, command):
        return subprocess.run(
            ["/usr/bin/python3", HELPER, command], capture_output=True, text=True, timeout=120,
            env=self.desktop.environment | self.office.environment())

    def start_office(self, *arguments):
        """LibreOffice that listens for Orvello, with the deck of these tests."""
        self.office.start(f"--accept=pipe,name={self.office.pipe};urp;", *arguments)
        self.deck = self.desktop.scratch / "Quarterly talk.pptx"
        self.office.make_deck(self.deck)

    def start_following(self):
        follower = Follower(self.desktop, self.office, self.deck)
        self.addCleanup(follower.process.kill)
        return follower

    def start_slideshow(self):
        slideshow = self.office.open(self.deck)
        slideshow.start()
        return slideshow

    def assert_shows(self, follower, slide, seconds=1.0):
        follower.wait_for("text", seconds, lambda text: text == prompt(slide))

    def test_both_imports_give_the_same_notes(self):
        self.start_office()
        self.office.open(self.deck)
        follower = self.start_following()
        _, from_file = follower.wait_for("file", 10)
        follower.tell("import")
        _, live = follower.wait_for("live", 10)

        expected = [[slide, title(slide), notes(slide)] for slide in range(1, SLIDES + 1)]
        self.assertEqual(live, expected)
        self.assertEqual(from_file, expected)
        self.assertEqual(follower.stop(), 0)

    def test_a_slideshow_leads_the_prompter(self):
        self.start_office()
        follower = self.start_following()
        follower.wait_for("text", 10, lambda text: text == prompt(1))

        slideshow = self.start_slideshow()
        began = time.monotonic()
        moment, presenting = follower.wait_for("presenting", 10)
        self.assertTrue(presenting)
        self.assertLess(moment - began, 2.0)
        follower.wait_for("state", 3, lambda state: state == "Live")

        slideshow.next()
        self.assert_shows(follower, 2)
        slideshow.next()
        self.assert_shows(follower, 3)
        slideshow.previous()
        self.assert_shows(follower, 2)
        slideshow.show(WITHOUT_NOTES)
        self.assert_shows(follower, WITHOUT_NOTES)
        slideshow.show(HIDDEN - 1)
        self.assert_shows(follower, HIDDEN - 1)
        slideshow.next()  # Past the hidden one.
        self.assert_shows(follower, HIDDEN + 1)

        slideshow.end()
        follower.wait_for("presenting", 3, lambda presenting: not presenting)
        follower.wait_for("state", 3, lambda state: state == "Manual")
        time.sleep(1.5)
        self.assertEqual(follower.silence(), [])
        self.assertEqual(follower.stop(), 0)

    def test_another_window_in_front_stops_it(self):
        self.start_office()
        follower = self.start_following()
        self.start_slideshow()
        follower.wait_for("state", 10, lambda state: state == "Live")
        slideshow_window = self.desktop.run("xdotool", "getactivewindow").strip()

        other = self.desktop.start(["xmessage", "-geometry", "300x100+50+50", "Another window"])
        window = wait_until(lambda: self.find_window("xmessage"), what="the other window")
        self.desktop.run("xdotool", "windowactivate", window)
        follower.wait_for("presenting", 5, lambda presenting: not presenting)
        follower.wait_for("state", 3, lambda state: state == "Manual")

        other.terminate()
        self.desktop.run("xdotool", "windowactivate", slideshow_window)
        follower.wait_for("presenting", 5, lambda presenting: presenting)
        follower.wait_for("state", 3, lambda state: state == "Live")
        self.assertEqual(follower.stop(), 0)

    def find_window(self, name):
        result = subprocess.run(["xdotool", "search", "--onlyvisible", "--classname", name],
                                env=self.desktop.environment, capture_output=True, text=True)
        return result.stdout.split()[0] if result.stdout.split() else None

    def test_it_survives_the_death_of_libreoffice(self):
        self.start_office()
        follower = self.start_following()
        slideshow = self.start_slideshow()
        follower.wait_for("state", 10, lambda state: state == "Live")
        slideshow.show(3)
        self.assert_shows(follower, 3)

        self.office.kill()
        follower.wait_for("presenting", 5, lambda presenting: not presenting)
        follower.wait_for("state", 5, lambda state: state == "Manual")
        time.sleep(1.0)
        self.assertEqual([line for line in follower.silence() if "text" in line or "advice" in line], [])

        # The next slideshow is followed again.
        self.start_office()
        self.start_slideshow()
        follower.wait_for("state", 15, lambda state: state == "Live")
        self.assertEqual(follower.stop(), 0)

    def test_libreoffice_is_asked_only_once_it_allows_it(self):
        self.office.start()
        self.deck = self.desktop.scratch / "Quarterly talk.pptx"
        self.office.make_deck(self.deck)
        follower = self.start_following()
        slideshow = self.start_slideshow()
        follower.wait_for("state", 10, lambda state: state == "Denied")
        slideshow.end()
        follower.wait_for("advice", 5)
        follower.tell("import")
        _, message = follower.wait_for("live", 10)
        self.assertIn("permission denied", message)
        follower.wait_for("advice", 1)

        follower.tell("allow")
        follower.wait_for("allowed", 30, lambda message: "may now follow" in message)
        slideshow.start()
        follower.wait_for("state", 5, lambda state: state == "Live")

        # It lasts: LibreOffice listens from its next start on, until the user takes it back.
        slideshow.end()
        self.office.quit()
        self.assertEqual(self.helper("slide").returncode, 1)
        self.office.start()
        self.office.open(self.deck)
        wait_until(lambda: self.helper("deck").returncode == 0, what="the deck")
        self.assertEqual(self.helper("disallow").returncode, 0)
        self.office.quit()
        self.office.start()
        self.assertIn("-1743", self.helper("deck").stderr)
        self.assertEqual(follower.stop(), 0)

    def test_it_is_allowed_and_taken_back_without_a_running_libreoffice(self):
        for command in ("allow", "disallow"):
            answer = self.helper(command)
            self.assertEqual((answer.returncode, answer.stderr), (0, ""))

    def test_no_libreoffice_stays_behind_a_helper_that_is_killed(self):
        allowing = subprocess.Popen(
            ["/usr/bin/python3", HELPER, "allow"], env=self.desktop.environment | self.office.environment(),
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_until(self.office.process_ids, 20, "LibreOffice")
        allowing.kill()
        allowing.wait()
        wait_until(lambda: not self.office.process_ids(), 20, "LibreOffice's end")

    def test_the_helper_says_when_no_presentation_is_open(self):
        self.start_office("--writer")
        wait_until(lambda: "NO_DOCUMENT" in self.helper("deck").stderr, what="NO_DOCUMENT")
        self.assertEqual(self.helper("slide").returncode, 1)
        self.assertIn("-1728", self.helper("slide").stderr)

    def test_the_delay_from_slide_to_text(self):
        self.start_office()
        follower = self.start_following()
        slideshow = self.start_slideshow()
        follower.wait_for("state", 10, lambda state: state == "Live")
        chance = random.Random(1)
        slide, delays = 1, []
        for _ in range(CHANGES):
            slide = chance.choice([other for other in range(1, SLIDES + 1) if other not in (slide, HIDDEN)])
            time.sleep(chance.uniform(0.0, 0.5))
            began = time.monotonic()
            slideshow.show(slide)
            moment, _ = follower.wait_for("text", 3, lambda text: text == prompt(slide))
            delays.append(moment - began)
        print(f"slide to text over {CHANGES} changes: median {statistics.median(delays) * 1000:.0f} ms, "
              f"worst {max(delays) * 1000:.0f} ms")
        self.assertLess(max(delays), 1.0)
        self.assertEqual(follower.stop(), 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
