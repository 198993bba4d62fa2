#!/usr/bin/python3
"""Asks a running LibreOffice Impress about its slideshow and its deck, through UNO.

    impress-helper.py serve   answers the questions that come as lines of its input, until that ends

A line is a number, a blank and a question. The answer is a line of JSON with the same number as "id", and what a
script would have left: its exit "status", its "output" and its "error". The questions:

    open        has the LibreOffice on this screen listen to this program alone
    slide       the number of the slide on screen, 1-based
    deck        the deck that is presented, else the one in front: its name, then for every slide U+001E, the title, U+001F, the notes
    presented   the same of the deck that is being presented, without the notes
    take-back   takes the permission back that former versions wrote into LibreOffice's profile

Errors mean what they mean for the other presentation programs: NO_DOCUMENT when no presentation is open, and the
number -1743 when LibreOffice cannot be asked at all.

LibreOffice is found by its process, and is asked to listen by its own program, which hands its arguments over to the
LibreOffice that runs. It listens on a socket with a random name in a folder that only this user may enter. As soon as
it has been reached, socket and folder are removed, so that nobody else can come in; and when this program ends,
LibreOffice is asked to listen no longer. Nothing is written into its profile.

Needs the distribution's python3-uno.
"""

import json
import os
import pathlib
import queue
import re
import secrets
import signal
import stat
import subprocess
import sys
import threading
import time

PROCESSES = pathlib.Path("/proc")
SOCKETS = pathlib.Path("/tmp")  # Where UNO looks for the sockets that it calls pipes.
RECORD_SEPARATOR = "\x1e"
UNIT_SEPARATOR = "\x1f"

LISTEN_SECONDS = 12.0  # How long LibreOffice may take before it listens; it may be busy.
HAND_OVER_SECONDS = 5.0
GOODBYE_SECONDS = 2.0
RETRY_SECONDS = 0.02

PRESENTATION = "com.sun.star.presentation.PresentationDocument"
TITLE_SHAPE = "com.sun.star.presentation.TitleTextShape"
NOTES_SHAPE = "com.sun.star.presentation.NotesShape"

# What former versions wrote into the profile, for good.
FORMER_NAME = "orvello"
FORMER_SETTING = "ooSetupConnectionURL"
FORMER_VALUE = f"pipe,name={FORMER_NAME};urp;"


class Failure(Exception):
    """What went wrong: words for the user, and the error number that a script would print."""

    def __init__(self, text, number=None):
        super().__init__(text if number is None else f"{text} ({number})")


def no_document():
    return Failure("NO_DOCUMENT")


def no_slideshow():
    return Failure("No slideshow is running.", -1728)


def not_running():
    return Failure("LibreOffice isn't running.", -600)


def no_answer():
    return Failure("LibreOffice did not answer.", -1712)


def closed(kind):
    return Failure(f"This LibreOffice runs in a sandbox ({kind}) that Orvello cannot reach. "
                   "Import the presentation's file instead, and step through the slides by hand.", -1743)


def load_uno():
    """The UNO bridge. Imported late, so that its absence is an answer like any other."""
    try:
        import uno
    except ImportError:
        raise Failure("To follow Impress, Orvello needs the package python3-uno. Install it and try again.",
                      -1743) from None
    return uno


# The LibreOffice that runs


class Process:
    """A running LibreOffice, by what the system knows of it."""

    def __init__(self, folder):
        self.folder = folder
        self.arguments = self._strings("cmdline")
        self.environment = dict(line.split("=", 1) for line in self._strings("environ") if "=" in line)

    def _strings(self, name):
        return (self.folder / name).read_bytes().decode(errors="surrogateescape").split("\0")[:-1]

    def is_alive(self):
        return is_office(self.folder)

    def is_visible_here(self):
        """Whether its windows are on the screen that this program's parent is on."""
        if "--headless" in self.arguments:
            return False
        if self.kind() == "Flatpak":
            return True  # Its display has another name inside.
        return any(name in os.environ and display(os.environ[name]) == display(self.environment.get(name, ""))
                   for name in ("WAYLAND_DISPLAY", "DISPLAY"))

    def kind(self):
        """The kind of package that it came in, by its name; nothing for a LibreOffice that was just installed."""
        if "FLATPAK_ID" in self.environment or (self.folder / "root/.flatpak-info").exists():
            return "Flatpak"
        if "SNAP_NAME" in self.environment or str(self.program()).startswith("/snap/"):
            return "Snap"
        if "APPIMAGE" in self.environment:
            return "AppImage"
        return None

    def program(self):
        """Its own program in its own folder, which may be another one than that in the PATH."""
        return pathlib.Path(os.readlink(self.folder / "exe")).with_name("soffice")

    def has_our_sockets(self):
        """Whether what it calls /tmp is what is called so here."""
        try:
            return (self.folder / f"root{SOCKETS}").samefile(SOCKETS)
        except OSError:
            return False

    def takes_requests(self):
        """Whether it listens to programs that hand their arguments over. Without that, one would start for itself."""
        own = set()
        for descriptor in (self.folder / "fd").iterdir():
            try:
                own.add(os.readlink(descriptor))
            except OSError:
                continue
        for line in (PROCESSES / "net/unix").read_text(errors="surrogateescape").splitlines()[1:]:
            fields = line.split(None, 7)
            if len(fields) == 8 and "_SingleOfficeIPC_" in fields[7] and f"socket:[{fields[6]}]" in own:
                return True
        return False

    def hand_over(self, argument, seconds=HAND_OVER_SECONDS):
        """Gives it one more argument. What is started for that ends here in any case, and is all that is ended."""
        if not self.is_alive() or not self.takes_requests():
            raise not_running()
        profile = [argument for argument in self.arguments if argument.startswith("-env:")]
        messenger = subprocess.Popen(
            [self.program(), *profile, "--headless", "--invisible", "--norestore", "--nologo", "--nofirststartwizard",
             argument],
            env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            start_new_session=True)
        try:
            messenger.wait(seconds)
        except subprocess.TimeoutExpired:
            raise no_answer() from None
        finally:
            # A messenger that found nobody would be a LibreOffice by now.
            try:
                os.killpg(messenger.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
            messenger.wait()


def display(name):
    """A display's name without the number of its screen."""
    return re.sub(r"(:\d+)\.\d+$", r"\1", name)


def is_office(process):
    """Whether this is a LibreOffice of this user that is alive."""
    try:
        if process.stat().st_uid != os.geteuid():
            return False
        name, _, rest = (process / "stat").read_text(errors="replace").partition("(")[2].rpartition(")")
        return name == "soffice.bin" and rest.split()[0] not in "ZX"
    except OSError:
        return False  # It ended meanwhile.


def offices_here():
    """Every LibreOffice that this user has on this screen."""
    found = []
    for folder in PROCESSES.iterdir():
        if not folder.name.isdigit() or not is_office(folder):
            continue
        try:
            process = Process(folder)
            if process.is_visible_here():
                found.append(process)
        except OSError:
            continue  # It ended meanwhile.
    return found


# The way in


def must_be_own(path, is_kind):
    """Nothing is said to what another user made, or could have."""
    status = path.lstat()
    if not is_kind(status.st_mode) or status.st_uid != os.geteuid():
        raise Failure(f"{path} does not belong to this user.")
    return status


class Door:
    """A connection to one LibreOffice that nobody else can use."""

    def __init__(self, process):
        self.process = process
        self.name = f"orvello-{os.getpid()}-{secrets.token_hex(16)}/door"
        self.socket = SOCKETS / f"OSL_PIPE_{os.geteuid()}_{self.name}"
        self.desktop = None
        self._was_asked = False

    def open(self):
        """Goes on waiting when LibreOffice has been asked before and did not come."""
        load_uno()
        if not self._was_asked:
            # Fails when there is such a folder: it cannot be one that somebody else has prepared.
            self.socket.parent.mkdir(mode=0o700)
        try:
            self._have_it_listen()
            self.check()
            self.desktop = self._connect()
        finally:
            if self.socket.exists() or not self._was_asked:
                self.remove()
            # Otherwise the folder stays for now. A LibreOffice that comes to the request later and does not find the
            # folder would try again and again, at the cost of a whole processor.

    def _have_it_listen(self):
        if not self._was_asked:
            self._was_asked = True
            self.process.hand_over(f"--accept=pipe,name={self.name};urp;")
        deadline = time.monotonic() + LISTEN_SECONDS
        while not self.socket.exists():
            if not self.process.is_alive():
                self._was_asked = False
                raise not_running()
            if time.monotonic() > deadline:
                raise no_answer()
            time.sleep(RETRY_SECONDS)

    def check(self):
        folder = must_be_own(self.socket.parent, stat.S_ISDIR)
        if stat.S_IMODE(folder.st_mode) & 0o077:
            raise Failure(f"{self.socket.parent} is open to others.")
        must_be_own(self.socket, stat.S_ISSOCK)

    def _connect(self):
        context = resolve(self.name, LISTEN_SECONDS)
        return context.ServiceManager.createInstanceWithContext("com.sun.star.frame.Desktop", context)

    def remove(self):
        for remove, path in ((os.unlink, self.socket), (os.rmdir, self.socket.parent)):
            try:
                remove(path)
            except OSError:
                pass  # LibreOffice removes its socket when it ends.

    def close(self):
        """LibreOffice listens no longer, and throws out who has come in."""
        if self._was_asked:
            try:
                self.process.hand_over(f"--unaccept=pipe,name={self.name};urp;", GOODBYE_SECONDS)
            except (Failure, OSError):
                return  # It has ended, or does not answer: then the folder stays, see above.
        self.desktop = None
        self.remove()


def resolve(name, seconds):
    """The component context of the LibreOffice behind a socket that is there: it may just not listen yet."""
    local = load_uno().getComponentContext()
    resolver = local.ServiceManager.createInstanceWithContext("com.sun.star.bridge.UnoUrlResolver", local)
    deadline = time.monotonic() + seconds
    while True:
        try:
            return resolver.resolve(f"uno:pipe,name={name};urp;StarOffice.ComponentContext")
        except Exception:
            if time.monotonic() > deadline:
                raise no_answer() from None
            time.sleep(RETRY_SECONDS)


def sweep():
    """Removes what helpers left behind that were killed."""
    for folder in SOCKETS.glob(f"OSL_PIPE_{os.geteuid()}_orvello-*-*"):
        name = folder.name.partition(f"_{os.geteuid()}_")[2] + "/door"
        socket = folder / "door"
        try:
            must_be_own(folder, stat.S_ISDIR)
            if is_helper(PROCESSES / name.split("-")[1]):
                continue
            if socket.exists():
                for process in offices_here():
                    process.hand_over(f"--unaccept=pipe,name={name};urp;", GOODBYE_SECONDS)
                socket.unlink(missing_ok=True)
            elif any(map(is_office, PROCESSES.iterdir())):
                continue  # It may yet come to the request, see Door.open().
            folder.rmdir()
        except (Failure, OSError):
            continue


def is_helper(process):
    try:
        return b"impress-helper" in (process / "cmdline").read_bytes()
    except OSError:
        return False


class Office:
    """Every LibreOffice that has been reached."""

    def __init__(self):
        self.doors = []
        self.outline = (None, "")  # Of the deck that was presented last, with what tells it from others.

    def open(self):
        """Reaches those that are not reached yet. Fails when there is none."""
        self._forget_the_dead()
        problems = []
        for process in offices_here():
            try:
                self._reach(process)
            except Failure as failure:
                problems.append(failure)
        if not any(door.desktop for door in self.doors):
            raise problems[0] if problems else not_running()

    def _reach(self, process):
        if not process.has_our_sockets():
            raise closed(process.kind() or "container")
        door = next((door for door in self.doors if door.process.folder == process.folder), None)
        if door is None:
            door = Door(process)
            self.doors.append(door)
        if door.desktop is None:
            door.open()

    def _forget_the_dead(self):
        for door in [door for door in self.doors if not door.process.is_alive()]:
            door.remove()
            self.doors.remove(door)

    def close(self):
        for door in self.doors:
            door.close()
        self.doors = []

    def presentations(self):
        """The open presentations, the one in front first. A LibreOffice that is gone has none."""
        documents = []
        for door in [door for door in self.doors if door.desktop]:
            try:
                documents += presentations_in(door.desktop)
            except Exception:
                # A connection that is lost is made anew; a document that was just closing costs no more than that.
                self.doors.remove(door)
                door.close()
                if door.process.is_alive():
                    raise
        if not any(door.desktop for door in self.doors):
            raise not_running()
        return documents


def presentations_in(desktop):
    documents = [desktop.getCurrentComponent()]
    components = desktop.getComponents().createEnumeration()
    while components.hasMoreElements():
        documents.append(components.nextElement())
    return [document for document in documents
            if hasattr(document, "supportsService") and document.supportsService(PRESENTATION)]


# Questions and answers


def slideshow_in(office):
    """The document that is being presented, and its slideshow."""
    for document in office.presentations():
        controller = document.getPresentation().getController()
        if controller is not None:
            return document, controller
    raise no_slideshow()


def current_slide(office):
    _, controller = slideshow_in(office)
    slide = controller.getCurrentSlide()
    # Not "if slide": a slide without shapes is an empty container.
    if slide is None:
        raise no_slideshow()
    return str(slide.Number)


def text_of(page, kind):
    """The text of the page's first placeholder of this kind."""
    for index in range(page.getCount()):
        shape = page.getByIndex(index)
        if shape.getShapeType() == kind:
            return "" if shape.IsEmptyPresentationObject else shape.getString()
    return ""


def deck_name(document):
    """The file's name without its extension, or the window's name for the deck."""
    title = document.getTitle()
    return pathlib.PurePath(title).stem if document.hasLocation() else title


def clean(text):
    """Without the characters that structure the record."""
    return text.replace(RECORD_SEPARATOR, "").replace(UNIT_SEPARATOR, "")


def record_of(document, has_notes):
    record = [clean(deck_name(document))]
    pages = document.getDrawPages()
    for index in range(pages.getCount()):
        page = pages.getByIndex(index)
        notes = clean(text_of(page.getNotesPage(), NOTES_SHAPE)) if has_notes else ""
        record.append(clean(text_of(page, TITLE_SHAPE)) + UNIT_SEPARATOR + notes)
    return RECORD_SEPARATOR.join(record)


def open_deck(office):
    documents = office.presentations()
    if not documents:
        raise no_document()
    presented = [document for document in documents if document.getPresentation().getController() is not None]
    return record_of((presented or documents)[0], has_notes=True)


def presented_deck(office):
    """Asked after each slide, but read once: a large deck keeps LibreOffice busy for a moment."""
    document, _ = slideshow_in(office)
    deck = (document.RuntimeUID, document.getTitle(), document.getDrawPages().getCount())
    if office.outline[0] != deck:
        office.outline = (deck, record_of(document, has_notes=False))
    return office.outline[1]


def open_office(office):
    office.open()
    return ""


# What former versions left


def former_profile():
    """The settings of the profile that LibreOffice uses unless it is told otherwise."""
    config = os.environ.get("XDG_CONFIG_HOME") or os.path.expanduser("~/.config")
    return pathlib.Path(config) / "libreoffice/4/user/registrymodifications.xcu"


FORMER_ITEM = re.compile(
    rb'[ \t]*<item oor:path="/org\.openoffice\.Setup/Office"><prop oor:name="' + FORMER_SETTING.encode()
    + rb'" oor:op="fuse"><value>' + re.escape(FORMER_VALUE.encode()) + rb"</value></prop></item>\r?\n?")


def take_back(_office):
    """A LibreOffice that runs would write its settings over a changed file: it changes them itself."""
    socket = SOCKETS / f"OSL_PIPE_{os.geteuid()}_{FORMER_NAME}"
    if socket.exists():
        take_back_from_running(socket)
    profile = former_profile()
    content = profile.read_bytes() if profile.exists() else b""
    if not FORMER_ITEM.search(content):
        return ""
    if any(map(is_office, PROCESSES.iterdir())):
        raise Failure("LibreOffice is running.")
    mode = stat.S_IMODE(profile.stat().st_mode)
    changed = profile.with_name(f".{profile.name}.orvello")
    changed.write_bytes(FORMER_ITEM.sub(b"", content))
    changed.chmod(mode)
    os.replace(changed, profile)
    return ""


def take_back_from_running(socket):
    must_be_own(socket, stat.S_ISSOCK)
    uno = load_uno()
    context = resolve(FORMER_NAME, GOODBYE_SECONDS)
    node = uno.createUnoStruct("com.sun.star.beans.PropertyValue")
    node.Name, node.Value = "nodepath", "/org.openoffice.Setup/Office"
    provider = context.ServiceManager.createInstanceWithContext(
        "com.sun.star.configuration.ConfigurationProvider", context)
    settings = provider.createInstanceWithArguments(
        "com.sun.star.configuration.ConfigurationUpdateAccess", (node,))
    if settings.getByName(FORMER_SETTING) == FORMER_VALUE:
        settings.replaceByName(FORMER_SETTING, "")
        settings.commitChanges()
    for process in offices_here():
        process.hand_over(f"--unaccept={FORMER_VALUE}")


QUESTIONS = {"open": open_office, "slide": current_slide, "deck": open_deck, "presented": presented_deck,
             "take-back": take_back}


def reply(office, question):
    """The question's answer as an exit status, standard output and standard error."""
    try:
        if question not in QUESTIONS:
            raise Failure(f"Unknown question: {question}")
        return {"status": 0, "output": QUESTIONS[question](office) + "\n", "error": ""}
    except Failure as failure:
        return {"status": 1, "output": "", "error": str(failure)}
    except Exception as error:  # Whatever LibreOffice throws while a document closes.
        return {"status": 1, "output": "", "error": f"{type(error).__name__}: {error}"}


def answer_all(office, lines):
    """In a thread of its own: a LibreOffice that hangs must not keep this program from ending."""
    sweep()
    for line in iter(lines.get, None):
        number, _, question = line.strip().partition(" ")
        print(json.dumps({"id": number, **reply(office, question)}), flush=True)


def serve():
    office, lines = Office(), queue.Queue()
    worker = threading.Thread(target=answer_all, args=(office, lines), daemon=True)
    worker.start()
    for line in sys.stdin:
        lines.put(line)
    # The end of the input is the end of the slideshow, or of Orvello.
    lines.put(None)
    worker.join(GOODBYE_SECONDS)
    office.close()
    sys.stdout.flush()
    os._exit(0)


def main(arguments):
    if arguments != ["serve"]:
        print(__doc__, file=sys.stderr)
        return 2
    serve()
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
