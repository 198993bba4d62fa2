"""A private Wayland session to run the real program on: sway without a screen, with XWayland.

sway refuses to run as root, so whoever is root starts the session as nobody. The test itself is a Wayland client: it has a
pointer of its own and looks at the screen as the compositor shows it, with what it needs of the protocols spoken here.
"""

import json
import mmap
import os
import pathlib
import shutil
import socket
import struct
import time

from desktop import PROGRAM, Desktop, Picture
from waiting import wait_until

NOBODY = 65534
LEFT_BUTTON = 0x110

CONFIG = """
xwayland force
output HEADLESS-1 resolution {width}x{height} scale {scale} background #284060 solid_color
default_border none
focus_follows_mouse no
for_window [app_id="foot"] fullscreen enable
exec sh -c 'echo $DISPLAY $WAYLAND_DISPLAY > {ready}.new && mv {ready}.new {ready}'
"""


class Sway(Desktop):
    """The size is that of the screen in device pixels."""

    def __init__(self, width=1440, height=900, scale=1):
        self.scale = scale
        super().__init__(width, height, compositor=False)

    def _start_servers(self):
        ready = self.scratch / "ready"
        config = self.scratch / "sway.config"
        config.write_text(CONFIG.format(width=self.width, height=self.height, scale=self.scale, ready=ready))
        self.give_to_session()
        self.environment |= {"WLR_BACKENDS": "headless", "WLR_RENDERER": "pixman", "WLR_LIBINPUT_NO_DEVICES": "1",
                             "SHELL": "/bin/sh"}
        sway = self.start(["sway", "--config", str(config)])
        try:
            wait_until(lambda: ready.exists() or sway.poll() is not None, what="sway")
            x_display, wayland_display = ready.read_text().split()
        except (AssertionError, OSError):
            raise AssertionError(f"sway did not start:\n{(self.scratch / 'sway.log').read_text()}") from None
        self.environment |= {"DISPLAY": x_display, "WAYLAND_DISPLAY": wayland_display}
        runtime = pathlib.Path(self.environment["XDG_RUNTIME_DIR"])
        self.environment["SWAYSOCK"] = str(next(runtime.glob("sway-ipc.*.sock")))
        self.client = WaylandClient(runtime / wayland_display)
        self.callback(self.client.close)

    def give_to_session(self):
        """Lets the session's user have all that was put into its folders."""
        if os.getuid() == 0:
            for path in (self.scratch, *self.scratch.rglob("*")):
                os.chown(path, NOBODY, NOBODY, follow_symlinks=False)

    @staticmethod
    def _as_user():
        return {"user": NOBODY, "group": NOBODY, "extra_groups": []} if os.getuid() == 0 else {}

    def start(self, command, environment=None, **options):
        if os.getuid() == 0 and command[0] == str(PROGRAM):
            # It may lie in a folder that is for root alone.
            command = [shutil.copy(PROGRAM, self.scratch / PROGRAM.name), *command[1:]]
        self.give_to_session()
        return super().start(command, environment, **({"cwd": "/"} | {k: v for k, v in options.items() if v is not None}),
                             **self._as_user())

    def run(self, *command, **options):
        return super().run(*command, **({"cwd": "/"} | options), **self._as_user())

    def run_any(self, *command, **options):
        return super().run_any(*command, **({"cwd": "/"} | options), **self._as_user())

    def screenshot(self, path=None):
        return self.client.screenshot()

    def tree(self):
        return json.loads(self.run("swaymsg", "-t", "get_tree"))

    def focused(self):
        """What has the keyboard, by the name of its program."""
        def find(node):
            if node["focused"]:
                return node.get("app_id") or (node.get("window_properties") or {}).get("class") or node["name"]
            return next(filter(None, map(find, node["nodes"] + node["floating_nodes"])), None)
        return find(self.tree())

    def open_full_screen_terminal(self, color):
        self.start(["foot", "-o", f"colors.background={color}", "-o", "csd.preferred=none", "sleep", "600"])
        wait_until(lambda: self.focused() == "foot", what="the terminal")


class WaylandClient:
    """As much of a client as it takes to move a pointer and to see the screen."""

    INTERFACES = {"wl_shm": 1, "wl_output": 1, "zwlr_screencopy_manager_v1": 1, "zwlr_virtual_pointer_manager_v1": 1}
    DISPLAY, REGISTRY = 1, 2

    def __init__(self, path):
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.settimeout(15)
        self.socket.connect(str(path))
        self.last_id = self.REGISTRY
        self.received = b""
        self.events = []
        self._send(self.DISPLAY, 1, struct.pack("=I", self.REGISTRY))
        self._roundtrip()
        self.objects = {}
        for _, _, body in [event for event in self.events if event[:2] == (self.REGISTRY, 0)]:
            name, length = struct.unpack_from("=II", body)
            interface = body[8:8 + length - 1].decode()
            if interface in self.INTERFACES:
                self.objects[interface] = self._new_id()
                text = interface.encode() + b"\0"
                self._send(self.REGISTRY, 0, struct.pack("=II", name, len(text)) + text + bytes(-len(text) % 4)
                           + struct.pack("=II", self.INTERFACES[interface], self.objects[interface]))
        self.pointer = self._new_id()
        self._send(self.objects["zwlr_virtual_pointer_manager_v1"], 0, struct.pack("=II", 0, self.pointer))
        self._roundtrip()

    def close(self):
        self.socket.close()

    # The pointer, in device pixels of a screen of that size

    def move(self, x, y, width, height):
        # X learns of a motion with the next one, as if the pointer never rested.
        for near in (2, 1, 0):
            self._send(self.pointer, 1, struct.pack("=IIIII", self._time(), x - near, y, width, height))
            self._send(self.pointer, 4)
            self._roundtrip()
            time.sleep(0.03)

    def press(self, is_down):
        self._send(self.pointer, 2, struct.pack("=III", self._time(), LEFT_BUTTON, is_down))
        self._send(self.pointer, 4)
        self._roundtrip()

    def screenshot(self):
        frame, pool, buffer = self._new_id(), self._new_id(), self._new_id()
        self._send(self.objects["zwlr_screencopy_manager_v1"], 0, struct.pack("=III", frame, 0, self.objects["wl_output"]))
        pixel_format, width, height, stride = struct.unpack("=IIII", self._wait_for(frame, 0))
        assert pixel_format in (0, 1), f"pixels of the format {pixel_format:#x}"
        memory = os.memfd_create("picture")
        try:
            os.ftruncate(memory, stride * height)
            self._send(self.objects["wl_shm"], 0, struct.pack("=Ii", pool, stride * height), memory)
            self._send(pool, 0, struct.pack("=IiiiiI", buffer, 0, width, height, stride, pixel_format))
            self._send(frame, 0, struct.pack("=I", buffer))
            self._wait_for(frame, 2)
            with mmap.mmap(memory, stride * height) as pixels:
                rows = [pixels[y * stride:y * stride + 4 * width] for y in range(height)]
        finally:
            os.close(memory)
        for each, opcode in ((frame, 1), (buffer, 0), (pool, 1)):
            self._send(each, opcode)
        blue_green_red = b"".join(rows)
        colors = bytearray(3 * width * height)
        for channel in range(3):
            colors[channel::3] = blue_green_red[2 - channel::4]
        return Picture(width, height, bytes(colors))

    # The protocol

    @staticmethod
    def _time():
        return int(time.monotonic() * 1000) & 0xFFFFFFFF

    def _new_id(self):
        self.last_id += 1
        return self.last_id

    def _send(self, target, opcode, body=b"", descriptor=None):
        message = struct.pack("=II", target, (8 + len(body)) << 16 | opcode) + body
        if descriptor is None:
            self.socket.sendall(message)
        else:
            socket.send_fds(self.socket, [message], [descriptor])

    def _read(self):
        """The next event: whose, which, and its arguments."""
        def enough(size):
            while len(self.received) < size:
                part = self.socket.recv(65536)
                assert part, "sway has closed the connection"
                self.received += part
        enough(8)
        source, word = struct.unpack_from("=II", self.received)
        size, opcode = word >> 16, word & 0xFFFF
        enough(size)
        body, self.received = self.received[8:size], self.received[size:]
        assert (source, opcode) != (self.DISPLAY, 0), f"sway does not understand: {body}"
        self.events.append((source, opcode, body))
        return self.events[-1]

    def _wait_for(self, source, opcode):
        while True:
            event = self._read()
            if event[:2] == (source, opcode):
                return event[2]

    def _roundtrip(self):
        callback = self._new_id()
        self._send(self.DISPLAY, 0, struct.pack("=I", callback))
        self._wait_for(callback, 0)
