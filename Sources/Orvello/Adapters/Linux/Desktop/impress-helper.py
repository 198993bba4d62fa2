#!/usr/bin/python3
"""Asks a running LibreOffice Impress about its slideshow and its deck, through UNO.

    impress-helper.py slide      prints the number of the slide on screen, 1-based
    impress-helper.py deck       prints the open deck: its name, then for every slide U+001E, the title, U+001F, the notes
    impress-helper.py allow      lets Orvello ask LibreOffice, from now on
    impress-helper.py disallow   takes that back
    impress-helper.py serve      does the same for every line of its input, answering with one line of JSON each

A failed command prints why on standard error and exits with 1. The texts mean what they mean for the other
presentation programs: NO_DOCUMENT when no presentation is open, and the error number -1743 when LibreOffice does not
let itself be asked.

Needs the distribution's python3-uno. ORVELLO_IMPRESS_PIPE names another connection than "orvello", and
ORVELLO_IMPRESS_PROFILE (a file URL) another LibreOffice profile than the user's; tests use them.
"""

import ctypes
import json
import math
import os
import pathlib
import shlex
import shutil
import signal
import subprocess
import sys
import time

PROCESSES = pathlib.Path("/proc")
PIPE = os.environ.get("ORVELLO_IMPRESS_PIPE", "orvello")
ACCEPT = f"pipe,name={PIPE};urp;"
RECORD_SEPARATOR = "\x1e"
UNIT_SEPARATOR = "\x1f"

# While LibreOffice starts, its windows may be there before it listens.
CONNECT_SECONDS = 3.0
START_SECONDS = 60.0
HAND_OVER_SECONDS = 2.0
# When LibreOffice dies, its slideshow seems to go on until the next look at the screen; and its process may take
# a while to end, or another LibreOffice may run that has nothing to do with it.
LOSS_SECONDS = 5.0
RETRY_SECONDS = 0.1

PR_SET_PDEATHSIG = 1  # <sys/prctl.h>

PRESENTATION = "com.sun.star.presentation.PresentationDocument"
TITLE_SHAPE = "com.sun.star.presentation.TitleTextShape"
NOTES_SHAPE = "com.sun.star.presentation.NotesShape"
CONNECTION_SETTING = "ooSetupConnectionURL"


class Failure(Exception):
    """What went wrong: words for the user, and the error number that a script would print."""

    def __init__(self, text, number=None):
        super().__init__(text if number is None else f"{text} ({number})")
        self.text = text


def no_document():
    return Failure("NO_DOCUMENT")


def no_slideshow():
    return Failure("No slideshow is running.", -1728)


def not_running():
    return Failure("LibreOffice isn't running.", -600)


def not_allowed():
    return Failure("LibreOffice does not let Orvello ask it.", -1743)


def load_uno():
    """The UNO bridge. Imported late, so that its absence is an answer like any other."""
    try:
        import uno
    except ImportError:
        raise Failure("To follow Impress, Orvello needs the package python3-uno. Install it and try again.",
                      -1743) from None
    return uno


def is_office_running():
    """Whether this user runs a LibreOffice that is alive."""
    for process in PROCESSES.iterdir():
        if not process.name.isdigit():
            continue
        try:
            if process.stat().st_uid != os.geteuid():
                continue
            name, _, rest = (process / "stat").read_text().partition("(")[2].rpartition(")")
            if name == "soffice.bin" and rest.split()[0] not in "ZX":
                return True
        except OSError:
            continue  # It ended meanwhile.
    return False


def connect():
    """LibreOffice's component context, or nothing when it does not listen."""
    local = load_uno().getComponentContext()
    resolver = local.ServiceManager.createInstanceWithContext("com.sun.star.bridge.UnoUrlResolver", local)
    try:
        return resolver.resolve(f"uno:pipe,name={PIPE};urp;StarOffice.ComponentContext")
    except Exception:
        return None


def wait_for_connection(seconds, is_worthwhile):
    """Tries for so many seconds, as long as there is something to wait for."""
    deadline = time.monotonic() + seconds
    while True:
        context = connect()
        if context is not None or not is_worthwhile() or time.monotonic() > deadline:
            return context
        time.sleep(RETRY_SECONDS)


def desktop_of(context):
    return context.ServiceManager.createInstanceWithContext("com.sun.star.frame.Desktop", context)


class Office:
    """The connection to LibreOffice, made at the first question and again after a loss."""

    def __init__(self):
        self._desktop = None
        self._lost_at = -math.inf

    def desktop(self):
        if self._desktop is None:
            self._desktop = desktop_of(self._context())
        return self._desktop

    def forget(self):
        """Ends the connection, as if there had been none."""
        self._desktop = None

    def _context(self):
        # Who let itself be asked and is gone has died, and refuses nothing.
        was_lost = time.monotonic() - self._lost_at < LOSS_SECONDS
        context = connect() if was_lost else wait_for_connection(CONNECT_SECONDS, is_office_running)
        if context is None:
            raise not_allowed() if is_office_running() and not was_lost else not_running()
        return context

    def presentations(self):
        """The open presentations, the one in front first."""
        desktop = self.desktop()
        documents = [desktop.getCurrentComponent()]
        components = desktop.getComponents().createEnumeration()
        while components.hasMoreElements():
            documents.append(components.nextElement())
        return [document for document in documents
                if hasattr(document, "supportsService") and document.supportsService(PRESENTATION)]

    def ask(self, question):
        """Does what QUESTIONS says, with a fresh connection if the old one turns out to be dead."""
        had_connection = self._desktop is not None
        try:
            return QUESTIONS[question](self)
        except Failure:
            raise
        except Exception:
            self._desktop = None
            self._lost_at = time.monotonic()
            if not had_connection:
                raise
        return QUESTIONS[question](self)


def current_slide(office):
    for document in office.presentations():
        controller = document.getPresentation().getController()
        slide = controller.getCurrentSlide() if controller else None
        if slide:
            return str(slide.Number)
    raise no_slideshow()


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


def open_deck(office):
    documents = office.presentations()
    if not documents:
        raise no_document()
    document = documents[0]
    record = [clean(deck_name(document))]
    pages = document.getDrawPages()
    for index in range(pages.getCount()):
        page = pages.getByIndex(index)
        title = clean(text_of(page, TITLE_SHAPE))
        notes = clean(text_of(page.getNotesPage(), NOTES_SHAPE))
        record.append(title + UNIT_SEPARATOR + notes)
    return RECORD_SEPARATOR.join(record)


# Letting Orvello in


def soffice(*arguments):
    """Runs LibreOffice's own program, which hands its arguments to a running LibreOffice."""
    program = shutil.which("soffice") or shutil.which("libreoffice")
    if not program:
        raise Failure("LibreOffice isn't installed.")
    profile = os.environ.get("ORVELLO_IMPRESS_PROFILE")
    options = [f"-env:UserInstallation={profile}"] if profile else []
    return subprocess.Popen(
        [program, *options, "--headless", "--norestore", "--nologo", "--nofirststartwizard", *arguments],
        stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, preexec_fn=end_with_parent)


def end_with_parent():
    """In the child: a LibreOffice without a window must not stay behind when Orvello quits meanwhile."""
    ctypes.CDLL(None).prctl(PR_SET_PDEATHSIG, signal.SIGTERM)


def change_setting(change):
    """Lets LibreOffice itself change its profile: the running one, or one that runs for this alone.

    Returns whether it goes on running.
    """
    uno = load_uno()
    process = soffice(f"--accept={ACCEPT}")
    context = wait_for_connection(START_SECONDS, lambda: True)
    if context is None:
        raise Failure("LibreOffice did not answer. Close it and try again.")
    node = uno.createUnoStruct("com.sun.star.beans.PropertyValue")
    node.Name, node.Value = "nodepath", "/org.openoffice.Setup/Office"
    provider = context.ServiceManager.createInstanceWithContext(
        "com.sun.star.configuration.ConfigurationProvider", context)
    settings = provider.createInstanceWithArguments(
        "com.sun.star.configuration.ConfigurationUpdateAccess", (node,))
    try:
        change(settings)
        settings.commitChanges()
    finally:
        # Who hands its arguments over ends by itself; who goes on is the LibreOffice that runs for this alone.
        was_running = has_ended(process, HAND_OVER_SECONDS)
        if not was_running:
            terminate(context)
            has_ended(process, START_SECONDS)
    return was_running


def has_ended(process, seconds):
    try:
        process.wait(seconds)
        return True
    except subprocess.TimeoutExpired:
        return False


def terminate(context):
    try:
        desktop_of(context).terminate()
    except Exception:
        pass  # The connection ends with LibreOffice.


def allow(_office):
    def change(settings):
        current = settings.getByName(CONNECTION_SETTING)
        if current not in ("", ACCEPT):
            raise Failure(f"LibreOffice already listens to another program ({current}).")
        settings.replaceByName(CONNECTION_SETTING, ACCEPT)

    change_setting(change)
    command = shlex.join([os.path.abspath(__file__), "disallow"])
    return f"Orvello may now follow Impress. Start the slideshow or the import again.\n\nTo take this back later: {command}"


def disallow(office):
    def change(settings):
        if settings.getByName(CONNECTION_SETTING) == ACCEPT:
            settings.replaceByName(CONNECTION_SETTING, "")

    goes_on = change_setting(change)
    if goes_on:
        has_ended(soffice(f"--unaccept={ACCEPT}"), START_SECONDS)
    office.forget()
    return "Orvello may no longer follow Impress."


# Questions and answers

QUESTIONS = {"slide": current_slide, "deck": open_deck, "allow": allow, "disallow": disallow}
FOR_THE_USER = ("allow", "disallow")


def reply(office, question):
    """The question's answer as an exit status, standard output and standard error."""
    try:
        if question not in QUESTIONS:
            raise Failure(f"Unknown question: {question}")
        return {"status": 0, "output": office.ask(question) + "\n", "error": ""}
    except Failure as failure:
        error = failure.text if question in FOR_THE_USER else str(failure)
        return {"status": 1, "output": "", "error": error}
    except Exception as error:  # Whatever LibreOffice throws while a document closes.
        return {"status": 1, "output": "", "error": f"{type(error).__name__}: {error}"}


def serve():
    office = Office()
    for line in sys.stdin:
        print(json.dumps(reply(office, line.strip())), flush=True)


def main(arguments):
    command = arguments[0] if len(arguments) == 1 else ""
    if command == "serve":
        serve()
        return 0
    if command not in QUESTIONS:
        print(__doc__, file=sys.stderr)
        return 2
    answer = reply(Office(), command)
    sys.stdout.write(answer["output"])
    if answer["error"]:
        print(answer["error"], file=sys.stderr)
    return answer["status"]


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
