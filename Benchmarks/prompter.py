"""What the running prompter costs, on the real program under Xvfb with software OpenGL.

For scripts of one thousand, one hundred thousand and one million words: the time from the start of the process to the
first frame, the processor time of ten seconds of scrolling and of ten seconds of standing still, and the resident memory.
A desktop with a graphics processor does better; the comparison between the lengths holds anywhere.
"""

import json
import os
import pathlib
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parents[1]
os.environ.setdefault("ORVELLO_PROGRAM", str(ROOT / "build" / "orvello"))
sys.path.insert(0, str(ROOT / "Tests" / "EndToEnd"))
from desktop import App, Desktop  # noqa: E402  (the path has to be set first)

SECONDS = 10
SENTENCE = "We look into the lens and say what we came to say, one sentence after the other.".split()


def write_script(desktop, words):
    body, line = [], []
    for number in range(words):
        line.append(SENTENCE[number % len(SENTENCE)])
        if len(line) == 64:
            body.append(" ".join(line))
            line = []
    body.append(" ".join(line))
    folder = App.folder(desktop)
    folder.mkdir(parents=True)
    (folder / "scripts.json").write_text(json.dumps([{
        "id": "6F9619FF-8B86-D011-B42D-00CF4FC964FF", "title": "Long", "body": "\n\n".join(body),
        "createdAt": 8e8, "updatedAt": 8e8}]))


def processor_seconds(pid):
    fields = pathlib.Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def resident_megabytes(pid):
    status = pathlib.Path(f"/proc/{pid}/status").read_text()
    return int(status.split("VmRSS:")[1].split()[0]) / 1024


def share_of_a_core(pid):
    before, start = processor_seconds(pid), time.monotonic()
    time.sleep(SECONDS)
    return (processor_seconds(pid) - before) / (time.monotonic() - start)


def measure(words):
    with Desktop() as desktop:
        write_script(desktop, words)
        App.set_defaults(desktop, countdownSeconds=0, onboardingSeenVersion=1, slideSync=False)
        start = time.monotonic()
        app = App(desktop, "--autostart")
        app.shown()
        first_frame = time.monotonic() - start
        time.sleep(8)  # Until the longest text is laid out.
        scrolling = share_of_a_core(app.process.pid)
        memory = resident_megabytes(app.process.pid)
        app.quit()

        app = App(desktop)
        app.shown()
        time.sleep(8)
        still = share_of_a_core(app.process.pid)
        app.quit()
    print(f"{words:>9} words: first frame seen after {first_frame:.2f} s; scrolling {scrolling:.0%} of a core, "
          f"standing still {still:.1%}; {memory:.0f} MB resident", flush=True)


if __name__ == "__main__":
    for count in (1_000, 100_000, 1_000_000):
        measure(count)
