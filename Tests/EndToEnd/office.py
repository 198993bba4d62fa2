"""A private LibreOffice on a private desktop, driven through a connection that is not the one under test."""

import contextlib

import os
import pathlib
import signal

import uno

from desktop import wait_until

SLIDES = 12
WITHOUT_NOTES = 5
HIDDEN = 8


def title(slide):
    return f"Title {slide}"


def notes(slide):
    """What the deck's slides have for notes."""
    return "" if slide == WITHOUT_NOTES else f"Notes of slide {slide}.\nSecond line — größer {slide}."


def value(name, content):
    pair = uno.createUnoStruct("com.sun.star.beans.PropertyValue")
    pair.Name, pair.Value = name, content
    return pair


class Office:
    """LibreOffice with a profile of its own. `interface` is one of those that it can have: gen, gtk3, kf5."""

    def __init__(self, desktop, name="office", interface="gen"):
        self.desktop = desktop
        self.interface = interface
        self.profile = (desktop.scratch / f"{name}-profile").as_uri()
        self.own_pipe = f"{desktop.scratch.name}-{name}"  # No test may meet the LibreOffice of another.
        self.context = None

    def start(self, *arguments):
        self.desktop.start(
            ["soffice", f"-env:UserInstallation={self.profile}", "--norestore", "--nologo",
             "--nofirststartwizard", f"--accept=pipe,name={self.own_pipe};urp;", *arguments],
            {"SAL_USE_VCLPLUGIN": self.interface})
        self.context = wait_until(self._connect, 120, "LibreOffice")

    def _connect(self):
        local = uno.getComponentContext()
        resolver = local.ServiceManager.createInstanceWithContext(
            "com.sun.star.bridge.UnoUrlResolver", local)
        try:
            return resolver.resolve(f"uno:pipe,name={self.own_pipe};urp;StarOffice.ComponentContext")
        except Exception:
            return None

    def _desktop(self):
        return self.context.ServiceManager.createInstanceWithContext(
            "com.sun.star.frame.Desktop", self.context)

    def quit(self):
        try:
            self._desktop().terminate()
        except Exception:
            pass  # The connection ends with LibreOffice.
        wait_until(lambda: not self.process_ids(), 30, "LibreOffice's end")

    def kill(self):
        left = self.sockets()
        for process in self.process_ids():
            os.kill(process, signal.SIGKILL)
        for path in left:  # LibreOffice would remove them.
            with contextlib.suppress(FileNotFoundError):
                os.unlink(path)

    def signal(self, number):
        for process in self.process_ids():
            os.kill(process, number)

    def sockets(self):
        """The paths that this LibreOffice listens on."""
        own = set()
        for process in self.process_ids():
            with contextlib.suppress(OSError):
                own |= {os.readlink(descriptor) for descriptor in pathlib.Path(f"/proc/{process}/fd").iterdir()}
        lines = [line.split(None, 7) for line in pathlib.Path("/proc/net/unix").read_text().splitlines()]
        return [line[7] for line in lines if len(line) == 8 and f"socket:[{line[6]}]" in own and line[7][0] == "/"
                and line[3] == "00010000"]

    def settings(self):
        """What its profile says, as it was written last."""
        path = pathlib.Path(self.profile.removeprefix("file://")) / "user/registrymodifications.xcu"
        return path.read_text() if path.exists() else ""

    def process_ids(self):
        """The processes of this LibreOffice alone, by its profile."""
        found = []
        for folder in pathlib.Path("/proc").iterdir():
            try:
                if folder.name.isdigit() and self.profile.encode() in (folder / "cmdline").read_bytes() \
                        and (folder / "comm").read_text().strip() == "soffice.bin":
                    found.append(int(folder.name))
            except OSError:
                continue
        return found

    # Documents

    def make_deck(self, path, notes_of=notes, title_of=title):
        """A deck of twelve slides as a .pptx file, one without notes and one hidden."""
        document = self._desktop().loadComponentFromURL(
            "private:factory/simpress", "_blank", 0, (value("Hidden", True),))
        pages = document.getDrawPages()
        while pages.getCount() < SLIDES:
            pages.insertNewByIndex(pages.getCount())
        for number in range(1, SLIDES + 1):
            page = pages.getByIndex(number - 1)
            page.Layout = 1  # Title and text.
            self._fill(page, "com.sun.star.presentation.TitleTextShape", title_of(number))
            self._fill(page.getNotesPage(), "com.sun.star.presentation.NotesShape", notes_of(number))
        pages.getByIndex(HIDDEN - 1).Visible = False
        document.storeToURL(path.as_uri(), (value("FilterName", "Impress MS PowerPoint 2007 XML"),))
        document.close(True)

    @staticmethod
    def _fill(page, kind, text):
        shapes = [page.getByIndex(index) for index in range(page.getCount())]
        for shape in shapes:
            if shape.getShapeType() == kind and text:
                shape.setString(text)

    def close_documents(self):
        """Ends every slideshow and closes every document."""
        documents = self._desktop().getComponents().createEnumeration()
        found = []
        while documents.hasMoreElements():
            found.append(documents.nextElement())
        for document in found:
            if hasattr(document, "getPresentation"):
                document.getPresentation().end()
        for document in found:
            if hasattr(document, "close"):  # The window that offers documents has none.
                document.close(True)

    def open_drawing(self):
        self._desktop().loadComponentFromURL("private:factory/sdraw", "_blank", 0, ())

    def open(self, path):
        document = self._desktop().loadComponentFromURL(path.as_uri(), "_blank", 0, ())
        return Slideshow(document)


class Slideshow:
    """One open presentation."""

    def __init__(self, document):
        self.document = document

    def start(self, **properties):
        """With what the slideshow's settings call `properties`."""
        for name, content in properties.items():
            setattr(self.document.getPresentation(), name, content)
        self.document.getPresentation().start()
        wait_until(self.controller, what="the slideshow")

    def controller(self):
        return self.document.getPresentation().getController()

    def show(self, slide):
        """Jumps to a slide, 1-based in the deck; LibreOffice counts what it shows from 0, hidden ones left out."""
        self.controller().gotoSlide(self.document.getDrawPages().getByIndex(slide - 1))

    def add_custom_show(self, name, slides):
        shows = self.document.getCustomPresentations()
        show = shows.createInstance()
        for place, slide in enumerate(slides):
            show.insertByIndex(place, self.document.getDrawPages().getByIndex(slide - 1))
        shows.insertByName(name, show)

    def next(self):
        self.controller().gotoNextSlide()

    def previous(self):
        self.controller().gotoPreviousSlide()

    def end(self):
        self.document.getPresentation().end()
