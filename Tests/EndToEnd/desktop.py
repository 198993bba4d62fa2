"""A private desktop to run the real program on: X server, window manager, compositor, scratch profile.

Everything is started here and stopped here, by process id, and lies under one scratch folder.
"""

import contextlib
import json
import os
import pathlib
import shutil
from signal import Signals
import subprocess
import tempfile
import time

from waiting import wait_until

PROGRAM = pathlib.Path(os.environ["ORVELLO_PROGRAM"]).resolve()
SOURCES = pathlib.Path(__file__).resolve().parents[2]


class Desktop(contextlib.ExitStack):
    """An X display of its own with openbox and picom, and a home folder of its own."""

    def __init__(self, width=1440, height=900, compositor=True):
        super().__init__()
        self.width, self.height, self.compositor = width, height, compositor
        self.scratch = pathlib.Path(tempfile.mkdtemp(prefix="orvello-desktop-"))
        self.callback(shutil.rmtree, self.scratch, ignore_errors=True)
        self.home = self.scratch / "home"
        self.data = self.home / "data"
        self.config = self.home / "config"
        runtime = self.scratch / "runtime"
        for folder in (self.data, self.config, runtime):
            folder.mkdir(parents=True)
        runtime.chmod(0o700)
        self.environment = {
            "PATH": os.environ["PATH"],
            "LANG": "C.UTF-8",
            "HOME": str(self.home),
            "XDG_DATA_HOME": str(self.data),
            "XDG_CONFIG_HOME": str(self.config),
            "XDG_CACHE_HOME": str(self.home / "cache"),
            "XDG_RUNTIME_DIR": str(runtime),
        }
        for name in ("ASAN_OPTIONS", "TSAN_OPTIONS", "UBSAN_OPTIONS"):
            if name in os.environ:
                self.environment[name] = os.environ[name]
        try:
            self._start_servers()
        except BaseException:
            self.close()
            raise

    def _start_servers(self):
        _, self.environment["DISPLAY"] = self.start_x_server()
        self.run("hsetroot", "-solid", "#284060")
        self.start(["openbox"])
        wait_until(lambda: "window" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"),
                   what="the window manager")
        if self.compositor:
            self.start_compositor()
        time.sleep(0.3)

    def start_x_server(self):
        """Starts an X server and returns its process and its display."""
        read_end, write_end = os.pipe()
        process = self.start(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", f"{self.width}x{self.height}x24",
             "-nolisten", "tcp", "-noreset"],
            pass_fds=(write_end,))
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            return process, ":" + pipe.readline().strip()

    def start_compositor(self):
        # Its whole screen at each frame: picom 12 leaves a hole where a menu opens over the prompter otherwise.
        self._compositor = self.start(["picom", "--backend", "xrender", "--no-use-damage"])

    def stop_compositor(self):
        self._stop(self._compositor)

    def start_session_bus(self):
        """Gives the desktop a session bus of its own, for what is started from now on."""
        read_end, write_end = os.pipe()
        self.start(["dbus-daemon", "--session", "--nofork", f"--print-address={write_end}"], pass_fds=(write_end,))
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            self.environment["DBUS_SESSION_BUS_ADDRESS"] = pipe.readline().strip()

    def start(self, command, environment=None, **options):
        """Starts a process that ends with the desktop at the latest."""
        log = open(self.scratch / f"{pathlib.Path(command[0]).name}.log", "ab")
        self.callback(log.close)
        process = subprocess.Popen(
            command, env=self.environment | (environment or {}), stdout=log, stderr=log,
            stdin=subprocess.DEVNULL, **options)
        self.callback(self._stop, process)
        return process

    @staticmethod
    def _stop(process):
        if process.poll() is None:
            process.terminate()
            try:
                process.wait(10)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()

    def run(self, *command, **options):
        """Runs a command on the desktop and returns what it printed."""
        return subprocess.run(
            command, env=self.environment, check=True, capture_output=True, text=True, timeout=60,
            **options).stdout

    def run_any(self, *command, **options):
        """The same for commands that fail when they find nothing."""
        return subprocess.run(command, env=self.environment, capture_output=True, text=True, timeout=60,
                              **options).stdout

    def screenshot(self, path=None):
        """The whole screen as (width, height, RGB bytes); also as a file, if a path is given."""
        if path:
            self.run("import", "-silent", "-window", "root", str(path))
        raw = subprocess.run(
            ["import", "-silent", "-window", "root", "-depth", "8", "rgb:-"], env=self.environment,
            check=True, capture_output=True, timeout=60).stdout
        assert len(raw) == self.width * self.height * 3
        return Picture(self.width, self.height, raw)

    def windows_titled(self, title):
        """The visible windows with exactly this title."""
        found = self.run_any("xdotool", "search", "--onlyvisible", "--name", f"^{title}$")
        return [int(line) for line in found.split()]

    def frame(self, window):
        """The window's (x, y, width, height) on the screen."""
        text = self.run("xdotool", "getwindowgeometry", "--shell", str(window))
        values = dict(line.split("=") for line in text.split())
        return tuple(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))

    def focused_window(self):
        return int(self.run("xdotool", "getwindowfocus").strip())

    def ask_window_manager_to_close(self, title):
        """Closes the window as a user does. Openbox loses a key of its own now and then, on a busy machine."""
        def is_gone():
            windows = self.windows_titled(title)
            if windows:
                self.run_any("xdotool", "windowactivate", "--sync", str(windows[0]), "key", "alt+F4")
                time.sleep(1)
            return not windows
        wait_until(is_gone, what=f"the end of {title!r}")


class Picture:
    """Pixels of a screenshot."""

    def __init__(self, width, height, rgb):
        self.width, self.height, self.rgb = width, height, rgb

    def pixel(self, x, y):
        at = (y * self.width + x) * 3
        return tuple(self.rgb[at:at + 3])

    def rows(self, x, y, width, height):
        """For each row of a rectangle the sum of its green values: a profile of the text lines in it."""
        profile = []
        for row in range(y, y + height):
            start = (row * self.width + x) * 3
            profile.append(sum(self.rgb[start + 1:start + width * 3:3]))
        return profile


def upward_shift(before, after, largest):
    """By how many rows the profile `after` shows the text further up than `before`: the best-matching whole number."""
    def difference(shift):
        pairs = list(zip(before[shift:], after))
        return sum(abs(a - b) for a, b in pairs) / len(pairs)

    return min(range(largest + 1), key=difference)


class App:
    """The real program on a desktop."""

    def __init__(self, desktop, *arguments, environment=None, folder=None):
        self.desktop = desktop
        self.process = desktop.start([str(PROGRAM), *arguments], environment, cwd=folder)

    @staticmethod
    def run(desktop, *arguments, environment=None, folder=None):
        """A start that ends by itself: its exit status and what it says on standard error."""
        result = subprocess.run([str(PROGRAM), *arguments], env=desktop.environment | (environment or {}), cwd=folder,
                                capture_output=True, text=True, timeout=60)
        return result.returncode, result.stderr

    # Files

    @staticmethod
    def folder(desktop):
        return desktop.data / "Orvello"

    @staticmethod
    def log_text(desktop):
        try:
            return (App.folder(desktop) / "logs" / "orvello.log").read_text()
        except FileNotFoundError:
            return ""

    @staticmethod
    def log_messages(desktop):
        """The log's lines without their time stamps."""
        return [line.split(" ", 1)[1] for line in App.log_text(desktop).splitlines() if " " in line]

    @staticmethod
    def marker(desktop):
        return App.folder(desktop) / "logs" / "session.marker"

    @staticmethod
    def library(desktop):
        return json.loads((App.folder(desktop) / "scripts.json").read_text())

    @staticmethod
    def set_defaults(desktop, **values):
        path = desktop.config / "Orvello" / "app.orvello.json"
        path.parent.mkdir(parents=True, exist_ok=True)
        old = json.loads(path.read_text()) if path.exists() else {}
        path.write_text(json.dumps(old | values))

    @staticmethod
    def defaults(desktop):
        return json.loads((desktop.config / "Orvello" / "app.orvello.json").read_text())

    # Process

    def wait_for_log(self, text, seconds=15.0):
        wait_until(lambda: text in self.log_text(self.desktop) or self._check_alive(), seconds,
                   f"the log line {text!r}")

    def _check_alive(self):
        if self.process.poll() is not None:
            log = self.desktop.scratch / f"{PROGRAM.name}.log"
            raise AssertionError(f"the program ended ({self.process.returncode}):\n{log.read_text()}")
        return False

    def windows(self):
        """The program's X windows that are on screen, without the panel's shadow."""
        self._check_alive()
        windows = self._search("--onlyvisible", "--pid", str(self.process.pid))
        shadow = self._search("--name", "^Orvello shadow$")
        return [window for window in windows if window not in shadow]

    def _search(self, *what):
        return [int(line) for line in self.desktop.run_any("xdotool", "search", *what).split()]

    def window(self):
        """The X window of the panel, once it is on screen."""
        return wait_until(self.windows, what="the panel")[0]

    def shown(self):
        """The panel's (x, y, width, height) once its first frame is on the screen."""
        def painted():
            x, y, width, height = self.geometry()
            # The card darkens the background; its left margin never holds text.
            is_dark = max(self.desktop.screenshot().pixel(x + 14, y + height // 2)) < 60
            return is_dark and (x, y, width, height)
        return wait_until(painted, what="the first frame")

    def is_window_visible(self):
        return bool(self._search("--onlyvisible", "--pid", str(self.process.pid)))

    def geometry(self):
        """The panel's (x, y, width, height) on the screen."""
        return self.desktop.frame(self.window())

    def signal(self, number):
        self.process.send_signal(number)

    def quit(self, number=int(Signals.SIGTERM)):
        """Quits the program and returns its exit status."""
        self.process.send_signal(number)
        return self.process.wait(15)

    def kill(self):
        self.process.kill()
        self.process.wait()
