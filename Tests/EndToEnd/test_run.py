"""What `make run DECK=...` does with the program that it built."""

import os
import subprocess
import tempfile
import unittest

from desktop import Desktop, SOURCES


def run(deck, environment):
    """The status of tools/run, and what it says."""
    result = subprocess.run([str(SOURCES / "tools" / "run"), deck], env=environment, capture_output=True, text=True,
                            timeout=120)
    return result.returncode, result.stderr


class UnreadableDeckTest(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.file = os.path.join(scratch.name, "talk.pptx")
        with open(self.file, "w", encoding="ascii") as file:
            file.write("no deck")

    def refuses(self, environment):
        environment = environment | {"ORVELLO_PROGRAM": os.environ["ORVELLO_PROGRAM"]}
        status, words = run(self.file, environment)
        self.assertNotEqual(status, 0)
        self.assertIn(f"{self.file}: The file could not be opened as a PowerPoint package.", words)

        status, words = run(self.file + ".missing", environment)
        self.assertNotEqual(status, 0)
        self.assertIn(f"there is no file {self.file}.missing", words)

    def test_is_refused_on_a_display(self):
        desktop = Desktop(compositor=False)
        self.addCleanup(desktop.close)
        self.refuses(desktop.environment)

    def test_is_refused_without_one(self):
        self.refuses({"PATH": os.environ["PATH"], "LANG": "C.UTF-8"})


if __name__ == "__main__":
    unittest.main()
