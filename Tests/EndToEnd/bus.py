"""A session bus for a private desktop, and programs of a desktop on it: a tray host, a file manager, a mail program."""

import os
import stat
import threading

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402  (the version has to be asked for first)

from desktop import wait_until  # noqa: E402

CONFIGURATION = """<busconfig>
  <type>session</type>
  <listen>unix:tmpdir={folder}</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""
ITEM = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"
WATCHER = "org.kde.StatusNotifierWatcher"
WATCHER_XML = f"""<node><interface name="{WATCHER}">
  <method name="RegisterStatusNotifierItem"><arg name="service" type="s" direction="in"/></method>
  <method name="RegisterStatusNotifierHost"><arg name="service" type="s" direction="in"/></method>
  <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
  <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
  <property name="ProtocolVersion" type="i" access="read"/>
  <signal name="StatusNotifierItemRegistered"><arg type="s"/></signal>
  <signal name="StatusNotifierHostRegistered"/>
</interface></node>"""
FILE_MANAGER = "org.freedesktop.FileManager1"
FILE_MANAGER_XML = f"""<node><interface name="{FILE_MANAGER}">
  <method name="ShowItems"><arg type="as" direction="in"/><arg type="s" direction="in"/></method>
</interface></node>"""


class SessionBus:
    """A bus of the desktop's own, without anything that starts on demand. The desktop's programs find it. With an address, the
    bus is there already."""

    def __init__(self, desktop, address=None):
        self.address = address or self._start(desktop)
        self.loop = GLib.MainLoop()
        self.thread = threading.Thread(target=self.loop.run, daemon=True)
        self.thread.start()
        desktop.callback(self._stop)

    @staticmethod
    def _start(desktop):
        configuration = desktop.scratch / "bus.conf"
        configuration.write_text(CONFIGURATION.format(folder=desktop.scratch))
        read_end, write_end = os.pipe()
        desktop.start(["dbus-daemon", f"--config-file={configuration}", "--nofork",
                       f"--print-address={write_end}"], pass_fds=(write_end,))
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            address = pipe.readline().strip()
        desktop.environment["DBUS_SESSION_BUS_ADDRESS"] = address
        return address

    def _stop(self):
        self.loop.quit()
        self.thread.join(5)

    def connect(self):
        return Gio.DBusConnection.new_for_address_sync(
            self.address, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)


class Service:
    """One object with one interface under one name, whose methods are Python functions of the same names."""

    def __init__(self, bus, name, path, xml, **functions):
        self.connection = bus.connect()
        self.functions = functions
        interface = Gio.DBusNodeInfo.new_for_xml(xml).interfaces[0]
        self.connection.register_object(path, interface, self._call, self._get, None)
        self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
                  GLib.Variant("(su)", (name, 4)))

    def _call(self, connection, sender, path, interface, method, arguments, invocation):
        invocation.return_value(self.functions.get(method, lambda *words: None)(*arguments.unpack()))

    def _get(self, connection, sender, path, interface, name):
        return self.functions[name]()

    def call(self, name, path, interface, method, arguments=None):
        reply = self.connection.call_sync(name, path, interface, method, arguments, None,
                                          Gio.DBusCallFlags.NONE, 10_000, None)
        return reply.unpack()

    def close(self):
        self.connection.close_sync(None)


class TrayHost(Service):
    """A desktop's tray as status notifier items know it: the watcher and the host in one."""

    def __init__(self, bus):
        self.items = []
        super().__init__(
            bus, WATCHER, "/StatusNotifierWatcher", WATCHER_XML,
            RegisterStatusNotifierItem=self.items.append,
            IsStatusNotifierHostRegistered=lambda: GLib.Variant("b", True),
            RegisteredStatusNotifierItems=lambda: GLib.Variant("as", self.items),
            ProtocolVersion=lambda: GLib.Variant("i", 0))

    def item(self):
        """The item of the program under test."""
        return Item(self, wait_until(lambda: self.items, what="a status notifier item")[0])


class Item:
    """A status notifier item and its menu, as a desktop's panel reads and chooses them."""

    def __init__(self, host, name):
        self.host, self.name = host, name
        self.menu_path = self.property("Menu")

    def property(self, name):
        return self.host.call(self.name, "/StatusNotifierItem", "org.freedesktop.DBus.Properties", "Get",
                              GLib.Variant("(ss)", (ITEM, name)))[0]

    def click(self, x=0, y=0):
        self.host.call(self.name, "/StatusNotifierItem", ITEM, "Activate", GLib.Variant("(ii)", (x, y)))

    def open(self):
        """Opens the menu as a panel does, and returns its lines."""
        self.host.call(self.name, self.menu_path, MENU, "AboutToShow", GLib.Variant("(i)", (0,)))
        return self.lines()

    def lines(self):
        _, (_, _, children) = self.host.call(self.name, self.menu_path, MENU, "GetLayout",
                                             GLib.Variant("(iias)", (0, -1, [])))
        return [Line(self, child) for child in children]

    def line(self, title):
        """The line of that title, of any depth."""
        def search(lines):
            for line in lines:
                if line.title == title:
                    return line
                found = search(line.children)
                if found:
                    return found
            return None
        found = search(self.open())
        assert found, f"no line {title!r}"
        return found

    def choose(self, title):
        line = self.line(title)
        self.host.call(self.name, self.menu_path, MENU, "Event",
                       GLib.Variant("(isvu)", (line.id, "clicked", GLib.Variant("i", 0), 0)))


class Line:
    """One line of a menu on the bus."""

    def __init__(self, item, layout):
        self.id, properties, children = layout
        self.is_separator = properties.get("type") == "separator"
        self.title = "-" if self.is_separator else properties.get("label", "").replace("_", "")
        self.is_enabled = properties.get("enabled", True)
        self.is_checkable = properties.get("toggle-type", "") == "checkmark"
        self.is_checked = properties.get("toggle-state", 0) == 1
        self.shortcut = properties.get("shortcut", [])
        self.children = [Line(item, child) for child in children]


PORTAL = "org.freedesktop.portal.Desktop"
PORTAL_PATH = "/org/freedesktop/portal/desktop"
REGISTRY = "org.freedesktop.host.portal.Registry"
SHORTCUTS = "org.freedesktop.portal.GlobalShortcuts"
PORTAL_XML = f"""<node>
<interface name="{REGISTRY}">
  <method name="Register"><arg type="s" direction="in"/><arg type="a{{sv}}" direction="in"/></method>
</interface>
<interface name="{SHORTCUTS}">
  <method name="CreateSession"><arg type="a{{sv}}" direction="in"/><arg type="o" direction="out"/></method>
  <method name="BindShortcuts"><arg type="o" direction="in"/><arg type="a(sa{{sv}})" direction="in"/>
    <arg type="s" direction="in"/><arg type="a{{sv}}" direction="in"/><arg type="o" direction="out"/></method>
  <method name="ConfigureShortcuts"><arg type="o" direction="in"/><arg type="s" direction="in"/>
    <arg type="a{{sv}}" direction="in"/></method>
  <property name="version" type="u" access="read"/>
</interface></node>"""


class Portal:
    """A Wayland desktop's portal for global shortcuts, which serves only programs that have said who they are."""

    def __init__(self, bus):
        self.applications, self.sessions, self.calls, self.shortcuts = {}, {}, [], {}
        self.connection = bus.connect()
        for interface in Gio.DBusNodeInfo.new_for_xml(PORTAL_XML).interfaces:
            self.connection.register_object(PORTAL_PATH, interface, self._call, lambda *words: GLib.Variant("u", 2), None)
        self.connection.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
                                  GLib.Variant("(su)", (PORTAL, 4)), None, Gio.DBusCallFlags.NONE, 10_000, None)

    def _call(self, connection, sender, path, interface, method, arguments, invocation):
        self.calls.append(method)
        arguments = arguments.unpack()
        if method == "Register":
            if sender in self.applications:
                invocation.return_dbus_error("org.freedesktop.portal.Error.InvalidArgument", "Registered too late")
                return
            self.applications[sender] = arguments[0]
            invocation.return_value(None)
        elif not self.applications.setdefault(sender, None):
            invocation.return_dbus_error("org.freedesktop.portal.Error.NotAllowed", "An app id is required")
        elif method == "CreateSession":
            session = f"{PORTAL_PATH}/session/x/{arguments[0]['session_handle_token']}"
            self.sessions[session] = sender
            self._respond(sender, arguments[0], {"session_handle": GLib.Variant("s", session)}, invocation)
        elif self.sessions.get(arguments[0]) != sender:
            invocation.return_dbus_error("org.freedesktop.DBus.Error.AccessDenied", "Invalid session")
        elif method == "BindShortcuts":
            self.shortcuts = {name: properties["description"] for name, properties in arguments[1]}
            bound = [(name, {"trigger_description": GLib.Variant("s", "Press " + properties["preferred_trigger"])})
                     for name, properties in arguments[1]]
            self._respond(sender, arguments[3], {"shortcuts": GLib.Variant("a(sa{sv})", bound)}, invocation)
        else:
            invocation.return_value(None)

    def _respond(self, sender, options, results, invocation):
        request = f"{PORTAL_PATH}/request/{sender[1:].replace('.', '_')}/{options['handle_token']}"
        invocation.return_value(GLib.Variant("(o)", (request,)))
        self.connection.emit_signal(sender, request, "org.freedesktop.portal.Request", "Response",
                                    GLib.Variant("(ua{sv})", (0, results)))

    def activate(self, shortcut):
        session, sender = list(self.sessions.items())[-1]
        self.connection.emit_signal(sender, PORTAL_PATH, SHORTCUTS, "Activated",
                                    GLib.Variant("(osta{sv})", (session, shortcut, 1, {})))

    def close(self):
        self.connection.close_sync(None)


class FileManager(Service):
    """Remembers what it was asked to show."""

    def __init__(self, bus):
        self.shown = []
        super().__init__(bus, FILE_MANAGER, "/org/freedesktop/FileManager1", FILE_MANAGER_XML,
                         ShowItems=lambda uris, startup: self.shown.extend(uris))


SCREEN_SAVER = "org.freedesktop.ScreenSaver"
SCREEN_SAVER_XML = f"""<node><interface name="{SCREEN_SAVER}">
  <method name="Inhibit"><arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="u" direction="out"/></method>
  <method name="UnInhibit"><arg type="u" direction="in"/></method>
</interface></node>"""


class ScreenSaver(Service):
    """Blanks the display unless somebody keeps it on; remembers why they do."""

    def __init__(self, bus):
        self.reasons = []
        super().__init__(bus, SCREEN_SAVER, "/org/freedesktop/ScreenSaver", SCREEN_SAVER_XML,
                         Inhibit=lambda program, reason: self.reasons.append(reason) or GLib.Variant("(u)", (7,)))


class Opener:
    """Stands in for the programs that open addresses and folders, and remembers what was opened."""

    def __init__(self, desktop):
        folder = desktop.scratch / "bin"
        folder.mkdir()
        self.record = desktop.scratch / "opened"
        program = folder / "xdg-open"
        program.write_text(f'#!/bin/sh\nprintf "%s\\n" "$1" >> "{self.record}"\n')
        program.chmod(program.stat().st_mode | stat.S_IXUSR)
        desktop.environment["PATH"] = f"{folder}:{desktop.environment['PATH']}"

    def opened(self):
        return self.record.read_text().splitlines() if self.record.exists() else []
