"""What the running prompter costs, on the real program under Xvfb, drawn by the software renderer.

First the smoothness of a panel of 720 by 200 points: a minute of scrolling, with each moment at which Qt has shown a frame,
and ten seconds of standing still, in which there should be none. Limits: under 7 % of a core, under 1 % of the frames
later than 25 ms after the one before, and under 50 MB of proportional set size. The same with letters that need an outline,
with OpenGL on the processor, and both for the largest panel at scale 2.

For scripts of one thousand, one hundred thousand and one million words: the time from the start of the process to the
first frame, the processor time of ten seconds of scrolling and of ten seconds of standing still, and the resident memory.
"""

import json
import os
import pathlib
import re
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parents[1]
os.environ.setdefault("ORVELLO_PROGRAM", str(ROOT / "build" / "orvello"))
sys.path.insert(0, str(ROOT / "Tests" / "EndToEnd"))
from desktop import App, Desktop  # noqa: E402  (the path has to be set first)

SECONDS = 10
SMOOTH_SECONDS = 60
LATE = 0.025
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


def proportional_megabytes(pid):
    rollup = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text()
    return int(rollup.split("\nPss:")[1].split()[0]) / 1024


def share_of_a_core(pid, seconds=SECONDS):
    before, start = processor_seconds(pid), time.monotonic()
    time.sleep(seconds)
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


# Qt's own record of its frames, each with the seconds since the start of the process.
FRAME_LOG = {"QT_LOGGING_RULES": "qt.scenegraph.time.renderloop=true", "QT_MESSAGE_PATTERN": "%{time process} %{message}"}


def frames_shown(desktop):
    text = (desktop.scratch / "orvello.log").read_text()
    return [float(moment) for moment in re.findall(r"^ *([\d.]+) .*frame rendered", text, re.MULTILINE | re.IGNORECASE)]


def measure_smoothness(renderer, size=(720, 200), scale=1, seconds=SMOOTH_SECONDS, **defaults):
    width, height = size
    # With room for the pointer below the panel, on which it would hold the text.
    with Desktop(max(1440, width * scale), max(900, (height + 50) * scale)) as desktop:
        desktop.run("xdotool", "mousemove", "10", str(desktop.height - 10))
        write_script(desktop, 1_000)
        screen = (desktop.width // scale, desktop.height // scale)
        App.set_defaults(desktop, countdownSeconds=0, onboardingSeenVersion=1, slideSync=False, **defaults, **{
            "NSWindow Frame PrompterPanel": f"0 {screen[1] - height} {width} {height} 0 0 {screen[0]} {screen[1]}"})
        app = App(desktop, "--autostart", environment=FRAME_LOG | {
            "ORVELLO_RENDERER": renderer, "QT_SCALE_FACTOR": str(scale)})
        app.shown()
        time.sleep(2)
        before = len(frames_shown(desktop))
        share = share_of_a_core(app.process.pid, seconds)
        frames = frames_shown(desktop)[before:]
        memory = proportional_megabytes(app.process.pid)
        # The pointer on the panel holds the text.
        x, y, _, _ = app.geometry()
        desktop.run("xdotool", "mousemove", str(x + 300), str(y + 100))
        time.sleep(2)
        before = len(frames_shown(desktop))
        time.sleep(SECONDS)
        idle = len(frames_shown(desktop)) - before
        app.quit()
    gaps = [after - before for before, after in zip(frames, frames[1:])]
    late = sum(gap > LATE for gap in gaps) / len(gaps)
    rate = len(gaps) / (frames[-1] - frames[0])
    print(f"{renderer}, {width} x {height} points at scale {scale}{', outlined letters' if defaults else ''}: {rate:.1f} frames a second for {seconds} s, "
          f"{late:.2%} of them late (limit 1 %), {share:.1%} of a core (limit 7 %), {memory:.0f} MB (limit 50); "
          f"{idle} frames in {SECONDS} s of standing still (limit 0)", flush=True)


if __name__ == "__main__":
    measure_smoothness("software")
    measure_smoothness("software", textColorName="Pink")
    measure_smoothness("opengl", seconds=20)
    for each in ("software", "opengl"):
        measure_smoothness(each, size=(1600, 900), scale=2, seconds=20)
    for count in (1_000, 100_000, 1_000_000):
        measure(count)
