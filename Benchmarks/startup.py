"""From the start of the process to the first frame of the prompter, under Xvfb, drawn by the software renderer.

Cold: right after the kernel was told to forget the files of the program and of its libraries. Warm: after several starts.
The phases come from outside: what the dynamic loader says of itself, the moments of the first lines of the log, and the
moment when the card's pixels are on the screen, looked at every millisecond.
"""

import ctypes
import datetime
import os
import pathlib
import re
import statistics
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parents[1]
os.environ.setdefault("ORVELLO_PROGRAM", str(ROOT / "build" / "orvello"))
sys.path.insert(0, str(ROOT / "Tests" / "EndToEnd"))
from bus import SessionBus  # noqa: E402  (the path has to be set first)
from desktop import App, Desktop, PROGRAM  # noqa: E402

WARM_STARTS = 15
COLD_STARTS = 3
TARGET_MILLISECONDS = 110


class Screen:
    """Looks at single pixels of a display, each look a fraction of a millisecond."""

    def __init__(self, display):
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self.x11.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
        self.x11.XGetImage.restype = ctypes.c_void_p
        self.x11.XGetImage.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_int, ctypes.c_uint,
                                       ctypes.c_uint, ctypes.c_ulong, ctypes.c_int]
        self.x11.XGetPixel.restype = ctypes.c_ulong
        self.x11.XGetPixel.argtypes = [ctypes.c_void_p, ctypes.c_int, ctypes.c_int]
        self.x11.XDestroyImage.argtypes = [ctypes.c_void_p]
        self.display = self.x11.XOpenDisplay(display.encode())
        self.root = self.x11.XDefaultRootWindow(self.display)

    def pixel(self, x, y):
        image = self.x11.XGetImage(self.display, self.root, x, y, 1, 1, 0xFFFFFF, 2)
        value = self.x11.XGetPixel(image, 0, 0)
        self.x11.XDestroyImage(image)
        return value


def libraries(program):
    """Every file that the loader maps, and the program."""
    printed = subprocess.run(["ldd", str(program)], capture_output=True, text=True, check=True).stdout
    return [str(program), *re.findall(r"=> (/\S+)", printed)]


def forget(files):
    """Has the kernel drop its copies of these files, as far as nobody else has them mapped."""
    for name in files:
        descriptor = os.open(name, os.O_RDONLY)
        os.posix_fadvise(descriptor, 0, 0, os.POSIX_FADV_DONTNEED)
        os.close(descriptor)


def log_moment(desktop, text):
    """When the last line with this text was logged, in seconds since 1970."""
    for line in reversed(App.log_text(desktop).splitlines()):
        if text in line:
            return datetime.datetime.fromisoformat(line.split(" ", 1)[0].replace("Z", "+00:00")).timestamp()
    raise AssertionError(f"no line {text!r}")


def start(desktop, screen, place):
    """Starts the program once. Returns the moments of LAUNCH, PANEL_UP and the first frame, in milliseconds."""
    before = screen.pixel(*place)
    began = time.time()
    app = App(desktop)
    while screen.pixel(*place) == before:
        if time.time() - began > 30:
            raise AssertionError("no first frame within 30 s")
        time.sleep(0.001)
    seen = time.time()
    time.sleep(0.3)
    moments = [log_moment(desktop, "LAUNCH ") - began, log_moment(desktop, "PANEL_UP ") - began, seen - began]
    app.quit()
    return [1000 * moment for moment in moments]


def loader_milliseconds(desktop):
    """What the dynamic loader takes: the program ends at once when it is asked for its version."""
    began = time.monotonic()
    desktop.run(str(PROGRAM), "--version")
    return 1000 * (time.monotonic() - began)


def report(name, starts):
    launch, panel, frame = (statistics.median(column) for column in zip(*starts))
    print(f"{name}: first frame after {frame:.0f} ms (median of {len(starts)}; best {min(s[2] for s in starts):.0f} ms)\n"
          f"    until the log is open, loading included {launch:5.0f} ms\n"
          f"    application object, services, view      {panel - launch:5.0f} ms\n"
          f"    window, first frame                     {frame - panel:5.0f} ms", flush=True)
    return frame


def measure():
    # Without a compositor, which would add its own time to each frame.
    with Desktop(compositor=False) as desktop:
        SessionBus(desktop)
        App.set_defaults(desktop, onboardingSeenVersion=1)
        screen = Screen(desktop.environment["DISPLAY"])
        place = (desktop.width // 2 - 360 + 14, 106)  # The card's left margin never holds text.
        start(desktop, screen, place)

        cold = []
        for _ in range(COLD_STARTS):
            forget(libraries(PROGRAM))
            cold.append(start(desktop, screen, place))
        report("Cold", cold)
        warm = [start(desktop, screen, place) for _ in range(WARM_STARTS + 2)][2:]
        frame = report("Warm", warm)
        loaders = [loader_milliseconds(desktop) for _ in range(WARM_STARTS)]
        print(f"    of which loading and linking alone      {statistics.median(loaders):5.0f} ms (orvello --version)")
        print(f"Target: {TARGET_MILLISECONDS} ms warm, {'met' if frame <= TARGET_MILLISECONDS else 'missed'}")


if __name__ == "__main__":
    measure()
