"""The helper that asks LibreOffice Impress, before a LibreOffice that is a few objects and processes that are files."""

import contextlib
import importlib.util
import io
import json
import os
import pathlib
import queue
import signal
import socket
import subprocess
import sys
import tempfile
import time
import types
import unittest
from unittest import mock

HELPER = pathlib.Path(__file__).parents[4] / "Sources/Orvello/Adapters/Linux/Desktop/impress-helper.py"
NOBODY = 65534


def load_helper():
    found = importlib.util.spec_from_file_location("impress_helper", HELPER)
    module = importlib.util.module_from_spec(found)
    found.loader.exec_module(module)
    return module


class Disposed(Exception):
    """What the bridge raises once LibreOffice is gone."""


class Slide:
    """A page that is an empty container, as a slide without shapes is."""

    def __init__(self, number):
        self.Number = number

    def __len__(self):
        return 0


class FakeOffice:
    """One LibreOffice with one deck, whose slideshow shows `slide`; None without a slideshow."""

    def __init__(self):
        self.is_alive = True
        self.slide = 1
        self.titles = ["Welcome", "Results"]
        self.reads = 0  # How often all slides were looked at.
        self.RuntimeUID = "1"

    def createInstanceWithContext(self, _name, _context):
        return self

    # The desktop, and its one document

    def getCurrentComponent(self):
        if not self.is_alive:
            raise Disposed("Binary URP bridge disposed")
        return self

    def getComponents(self):
        return types.SimpleNamespace(
            createEnumeration=lambda: types.SimpleNamespace(hasMoreElements=lambda: False))

    def supportsService(self, _name):
        return True

    def getPresentation(self):
        controller = types.SimpleNamespace(getCurrentSlide=lambda: Slide(self.slide)) if self.slide else None
        return types.SimpleNamespace(getController=lambda: controller)

    def getTitle(self):
        return "Talk.odp"

    def hasLocation(self):
        return True

    def getDrawPages(self):
        def page(index):
            self.reads += index == 0
            shape = types.SimpleNamespace(
                getShapeType=lambda: "com.sun.star.presentation.TitleTextShape",
                IsEmptyPresentationObject=False, getString=lambda: self.titles[index])
            notes = types.SimpleNamespace(getCount=lambda: 0)
            return types.SimpleNamespace(
                getCount=lambda: 1, getByIndex=lambda _: shape, getNotesPage=lambda: notes)
        return types.SimpleNamespace(getCount=lambda: len(self.titles), getByIndex=page)


class ImpressHelperTest(unittest.TestCase):
    def setUp(self):
        self.helper = load_helper()
        self.libreoffice = FakeOffice()
        self.clock = 1000.0
        self.helper.time = types.SimpleNamespace(monotonic=lambda: self.clock, sleep=self.sleep)
        self.scratch = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.processes = self.helper.PROCESSES = self.scratch / "proc"
        self.processes.mkdir()
        self.sockets = self.helper.SOCKETS = self.scratch / "tmp"
        self.sockets.mkdir()
        self.requests = []  # What was handed over, to whom.
        self.listens = True  # At the request, that is.
        self.helper.Process.hand_over = lambda process, argument, _seconds=0: self.hand_over(process, argument)
        before = os.environ.get("DISPLAY")
        os.environ["DISPLAY"] = ":7"
        self.addCleanup(lambda: os.environ.update(DISPLAY=before) if before else os.environ.pop("DISPLAY"))
        os.environ.pop("WAYLAND_DISPLAY", None)
        self.install_uno()
        self.add_process(10)
        self.office = self.helper.Office()

    def enterContext(self, context):  # unittest has it from Python 3.11 on.
        value = context.__enter__()
        self.addCleanup(context.__exit__, None, None, None)
        return value

    def install_uno(self):
        local = types.SimpleNamespace(ServiceManager=types.SimpleNamespace(
            createInstanceWithContext=lambda _name, _context: types.SimpleNamespace(resolve=self.resolve)))
        before = sys.modules.get("uno")
        sys.modules["uno"] = types.SimpleNamespace(getComponentContext=lambda: local)
        self.addCleanup(lambda: sys.modules.update(uno=before) if before else sys.modules.pop("uno"))

    def sleep(self, seconds):
        self.clock += seconds

    def add_process(self, number, name="soffice.bin", state="S", arguments=(), environment=None, tmp=None):
        folder = self.processes / str(number)
        folder.mkdir(exist_ok=True)
        (folder / "stat").write_text(f"{number} ({name}) {state} 1 1")
        (folder / "cmdline").write_text("\0".join(["/opt/office/program/soffice.bin", *arguments, ""]))
        (folder / "environ").write_text("".join(
            f"{key}={content}\0" for key, content in {"DISPLAY": ":7", **(environment or {})}.items()))
        if not (folder / "exe").is_symlink():
            (folder / "exe").symlink_to("/opt/office/program/soffice.bin")
            (folder / "root").mkdir()
        root = (folder / "root").joinpath(*self.sockets.parts[1:])
        if not root.exists():
            root.parent.mkdir(parents=True, exist_ok=True)
            root.symlink_to(tmp or self.sockets)

    def remove_process(self, number):
        (self.processes / str(number)).rename(self.scratch / f"gone-{number}")

    def hand_over(self, process, argument):
        self.requests.append((process.folder.name, argument.partition("=")[0]))
        name = argument.partition("name=")[2].partition(";")[0]
        path = self.sockets / f"OSL_PIPE_{os.geteuid()}_{name}"
        if argument.startswith("--accept") and self.listens:
            self.listener = socket.socket(socket.AF_UNIX)
            self.addCleanup(self.listener.close)
            self.listener.bind(str(path))
        elif argument.startswith("--unaccept"):
            path.unlink(missing_ok=True)

    def resolve(self, address):
        name = address.partition("name=")[2].partition(";")[0]
        if not (self.sockets / f"OSL_PIPE_{os.geteuid()}_{name}").exists():
            raise Exception("couldn't connect to pipe")
        return types.SimpleNamespace(ServiceManager=self.libreoffice)

    def ask(self, question="slide"):
        return self.helper.reply(self.office, question)

    def open(self):
        self.assertEqual(self.ask("open"), {"status": 0, "output": "\n", "error": ""})

    def assert_failed(self, answer, word):
        self.assertEqual(answer["status"], 1)
        self.assertIn(word, answer["error"])

    def doors(self):
        return list(self.sockets.iterdir())

    # What it is asked

    def test_it_answers_with_the_slide(self):
        self.open()
        self.libreoffice.slide = 7
        self.assertEqual(self.ask(), {"status": 0, "output": "7\n", "error": ""})

    def test_a_slideshow_that_is_over_is_no_refusal(self):
        self.open()
        self.libreoffice.slide = None
        self.assert_failed(self.ask(), "-1728")

    def test_it_says_which_package_is_missing(self):
        sys.modules["uno"] = None
        self.assert_failed(self.ask("open"), "package python3-uno")
        self.assert_failed(self.ask("open"), "-1743")
        self.assertEqual(self.requests, [])
        self.assertEqual(self.doors(), [])

    def test_it_answers_question_after_question_by_their_numbers(self):
        lines = queue.Queue()
        for line in ("1 open\n", "2 slide\n", "3 nonsense\n", None):
            lines.put(line)
        with contextlib.redirect_stdout(io.StringIO()) as printed:
            self.helper.answer_all(self.office, lines)
        answers = [json.loads(line) for line in printed.getvalue().splitlines()]
        self.assertEqual([(answer["id"], answer["output"]) for answer in answers],
                         [("1", "\n"), ("2", "1\n"), ("3", "")])

    # The way in

    def test_the_door_is_shut_behind_it(self):
        self.open()
        self.assertEqual(self.doors(), [])
        self.open()
        self.assertEqual(self.requests, [("10", "--accept")])
        self.office.close()
        self.assertEqual(self.requests, [("10", "--accept"), ("10", "--unaccept")])

    def test_every_door_has_another_name(self):
        first, second = (self.helper.Door(None).name for _ in range(2))
        self.assertNotEqual(first, second)
        self.assertRegex(first, r"^orvello-\d+-[0-9a-f]{32}/door$")

    def test_only_this_user_can_come_to_the_door(self):
        seen = []
        before = self.resolve
        self.resolve = lambda address: seen.extend(
            (folder.stat().st_mode & 0o777, folder.stat().st_uid) for folder in self.doors()) or before(address)
        self.install_uno()
        self.open()
        self.assertEqual(seen, [(0o700, os.geteuid())])

    def test_it_uses_no_folder_that_is_there_already(self):
        self.helper.secrets = types.SimpleNamespace(token_hex=lambda _count: "guessed")
        prepared = self.sockets / f"OSL_PIPE_{os.geteuid()}_orvello-{os.getpid()}-guessed"
        prepared.mkdir()
        self.assert_failed(self.ask("open"), "FileExistsError")
        self.assertEqual(self.requests, [])
        self.assertTrue(prepared.exists())

    def test_it_says_nothing_to_what_is_not_a_socket_of_its_own(self):
        door = self.helper.Door(None)
        door.socket.parent.mkdir(mode=0o700)
        door.socket.write_text("")
        with self.assertRaisesRegex(self.helper.Failure, "does not belong"):
            door.check()
        door.socket.unlink()
        with socket.socket(socket.AF_UNIX) as listener:
            listener.bind(str(door.socket))
            door.check()
            door.socket.parent.chmod(0o750)
            with self.assertRaisesRegex(self.helper.Failure, "open to others"):
                door.check()

    def test_it_says_nothing_to_another_user(self):
        door = self.helper.Door(None)
        door.socket.parent.mkdir(mode=0o700)
        with socket.socket(socket.AF_UNIX) as listener:
            listener.bind(str(door.socket))
            own = os.geteuid()
            for place, readers in (("folder", [NOBODY]), ("socket", [own, NOBODY])):
                with self.subTest(place), mock.patch.object(os, "geteuid", side_effect=readers):
                    with self.assertRaisesRegex(self.helper.Failure, "does not belong"):
                        door.check()
            door.check()

    def test_another_user_cannot_come_in(self):
        self.scratch.chmod(0o755)
        self.sockets.chmod(0o1777)
        door = self.helper.Door(None)
        door.socket.parent.mkdir(mode=0o700)
        with socket.socket(socket.AF_UNIX) as listener:
            listener.bind(str(door.socket))
            listener.listen()
            attempt = ("import socket, sys\n"
                       "try: socket.socket(socket.AF_UNIX).connect(sys.argv[1]); print('in')\n"
                       "except PermissionError: print('refused')\n")
            self.assertEqual(door.socket.parent.stat().st_mode & 0o777, 0o700)
            own = os.geteuid()
            # Only root can be somebody else as well; for others, the folder's mode is what shows it.
            for user, result in [(own, "in")] + ([(NOBODY, "refused")] if own == 0 else []):
                ran = subprocess.run([sys.executable, "-c", attempt, str(door.socket)],
                                     user=user if own == 0 else None, group=user if own == 0 else None,
                                     capture_output=True, text=True)
                self.assertEqual(ran.stdout.strip(), result, ran.stderr)

    def test_a_libreoffice_that_does_not_come_keeps_its_folder(self):
        """It would otherwise look for it without a pause once it comes."""
        self.listens = False
        self.assert_failed(self.ask("open"), "did not answer")
        self.assertEqual([folder.stat().st_mode & 0o777 for folder in self.doors()], [0o700])
        self.assertLess(self.clock, 1013.0)
        self.office.close()
        self.assertEqual(self.requests[-1], ("10", "--unaccept"))
        self.assertEqual(self.doors(), [])

    def test_the_next_helper_sweeps_what_a_killed_one_left(self):
        stale = self.sockets / f"OSL_PIPE_{os.geteuid()}_orvello-999-abc"
        stale.mkdir(mode=0o700)
        living = self.sockets / f"OSL_PIPE_{os.geteuid()}_orvello-888-abc"
        living.mkdir(mode=0o700)
        self.add_process(888, name="python3", arguments=["impress-helper.py"])
        self.helper.sweep()
        self.assertEqual(set(self.doors()), {stale, living})  # The LibreOffice may yet come to it.

        (stale / "door").touch()
        self.helper.sweep()
        self.assertEqual(self.requests, [("10", "--unaccept")])
        self.assertEqual(self.doors(), [living])
        self.remove_process(888)
        self.remove_process(10)
        self.helper.sweep()
        self.assertEqual(self.doors(), [])

    # Which LibreOffice

    def test_nobody_is_asked_when_nothing_runs(self):
        self.remove_process(10)
        self.assert_failed(self.ask("open"), "-600")

    def test_a_dead_process_is_not_asked(self):
        for state in "ZX":
            self.add_process(10, state=state)
            self.assert_failed(self.ask("open"), "-600")

    def test_only_a_libreoffice_is_asked(self):
        self.remove_process(10)
        self.add_process(11, name="soffice")
        self.add_process(12, name="a (b) soffice.bin")
        self.assert_failed(self.ask("open"), "-600")
        self.assertEqual(self.requests, [])

    def test_another_user_s_libreoffice_is_not_asked(self):
        with mock.patch.object(os, "geteuid", return_value=NOBODY):
            self.assert_failed(self.ask("open"), "-600")
        self.assertEqual(self.requests, [])

    def test_a_libreoffice_on_another_screen_or_without_one_is_not_asked(self):
        self.add_process(10, environment={"DISPLAY": ":70"})
        self.add_process(11, arguments=["--headless"])
        self.add_process(12, environment={"DISPLAY": ":7.0"})
        self.open()
        self.assertEqual(self.requests, [("12", "--accept")])

    def test_it_names_the_sandbox_that_it_cannot_reach(self):
        elsewhere = self.scratch / "its-own-tmp"
        elsewhere.mkdir()
        for number, (environment, kind) in enumerate(
                [({"FLATPAK_ID": "org.libreoffice.LibreOffice", "DISPLAY": ":99"}, "Flatpak"),
                 ({"SNAP_NAME": "libreoffice"}, "Snap"), ({}, "container")]):
            self.remove_process(10 + number)
            self.add_process(11 + number, environment=environment, tmp=elsewhere)
            answer = self.ask("open")
            self.assert_failed(answer, "-1743")
            self.assertIn(f"runs in a sandbox ({kind})", answer["error"])
        self.assertEqual(self.requests, [])
        self.assertEqual(self.doors(), [])

    def test_an_appimage_is_a_libreoffice_like_any_other(self):
        self.add_process(10, environment={"APPIMAGE": "/home/me/LibreOffice.AppImage"})
        self.open()

    def test_death_is_told_and_the_next_libreoffice_found(self):
        self.open()
        self.libreoffice.is_alive = False
        self.remove_process(10)
        self.assert_failed(self.ask(), "-600")
        self.libreoffice = FakeOffice()
        self.libreoffice.slide = 4
        self.add_process(30)
        self.open()
        self.assertEqual(self.ask()["output"], "4\n")

    def test_the_deck_that_is_presented_is_read_once(self):
        self.open()
        talk = "Talk\x1eWelcome\x1f\x1eResults\x1f\n"
        self.assertEqual(self.ask("presented")["output"], talk)
        self.assertEqual(self.ask("presented")["output"], talk)
        self.assertEqual(self.libreoffice.reads, 1)

        # Another number of slides, or another document of the same name.
        self.libreoffice.titles.append("End")
        self.assertEqual(self.ask("presented")["output"], "Talk\x1eWelcome\x1f\x1eResults\x1f\x1eEnd\x1f\n")
        self.libreoffice.titles[0], self.libreoffice.RuntimeUID = "Hello", "2"
        self.assertIn("Hello", self.ask("presented")["output"])
        self.libreoffice.slide = None
        self.assert_failed(self.ask("presented"), "-1728")

    def test_a_lost_connection_is_made_anew(self):
        self.open()
        self.office.doors[0].desktop = types.SimpleNamespace(getCurrentComponent=lambda: 1 / 0)
        self.assert_failed(self.ask(), "ZeroDivisionError")
        self.open()
        self.assertEqual(self.ask()["output"], "1\n")
        self.assertEqual(self.requests, [("10", "--accept"), ("10", "--unaccept"), ("10", "--accept")])

    def test_the_death_of_one_leaves_the_other(self):
        self.open()
        self.add_process(20)
        self.open()
        self.assertEqual(self.requests, [("10", "--accept"), ("20", "--accept")])
        self.remove_process(10)
        self.office.doors[0].desktop = types.SimpleNamespace(getCurrentComponent=lambda: 1 / 0)
        self.assertEqual(self.ask()["output"], "1\n")

    # What former versions left

    def profile(self, content):
        before = os.environ.get("XDG_CONFIG_HOME")
        os.environ["XDG_CONFIG_HOME"] = str(self.scratch)
        self.addCleanup(lambda: os.environ.update(XDG_CONFIG_HOME=before) if before
                        else os.environ.pop("XDG_CONFIG_HOME"))
        path = self.scratch / "libreoffice/4/user/registrymodifications.xcu"
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(content)
        path.chmod(0o600)
        return path

    ITEM = ('<item oor:path="/org.openoffice.Setup/Office"><prop oor:name="ooSetupConnectionURL" oor:op="fuse">'
            "<value>{}</value></prop></item>\n")

    def test_it_takes_back_what_a_former_version_wrote(self):
        self.remove_process(10)
        path = self.profile("<a/>\n" + self.ITEM.format("pipe,name=orvello;urp;") + "<b/>\n")
        self.assertEqual(self.ask("take-back")["status"], 0)
        self.assertEqual(path.read_text(), "<a/>\n<b/>\n")
        self.assertEqual(path.stat().st_mode & 0o777, 0o600)

    def test_it_leaves_other_programs_settings_and_a_profile_in_use_alone(self):
        other = self.ITEM.format("pipe,name=other;urp;")
        path = self.profile(other)
        self.assertEqual(self.ask("take-back")["status"], 0)
        self.assertEqual(path.read_text(), other)

        own = self.ITEM.format("pipe,name=orvello;urp;")
        path = self.profile(own)
        self.assert_failed(self.ask("take-back"), "is running")
        self.assertEqual(path.read_text(), own)


def has_ended(process):
    """Also while nobody has asked yet how it ended, which is up to the machine's first process."""
    try:
        return pathlib.Path(f"/proc/{process}/stat").read_text().rpartition(")")[2].split()[0] in "ZX"
    except OSError:
        return True


class MessengerTest(unittest.TestCase):
    """What hands an argument over, before real processes."""

    def setUp(self):
        self.helper = load_helper()
        self.scratch = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(lambda: subprocess.run(["rm", "-r", str(self.scratch)], check=True))
        self.note = self.scratch / "note"

    def process(self, script, is_alive=True, takes_requests=True):
        program = self.scratch / "soffice"
        program.write_text("#!/bin/sh\n" + script)
        program.chmod(0o755)
        process = self.helper.Process.__new__(self.helper.Process)
        process.arguments = ["/opt/soffice.bin", "-env:UserInstallation=file:///my/profile", "--writer"]
        process.environment = {"PATH": os.environ["PATH"], "NOTE": str(self.note)}
        process.program = lambda: program
        process.is_alive = lambda: is_alive
        process.takes_requests = lambda: takes_requests
        return process

    def test_it_goes_to_the_profile_of_the_libreoffice_that_runs(self):
        self.process('echo "$@" > "$NOTE"').hand_over("--accept=x")
        self.assertEqual(self.note.read_text(),
                         "-env:UserInstallation=file:///my/profile --headless --invisible --norestore --nologo "
                         "--nofirststartwizard --accept=x\n")

    def test_nothing_is_started_where_nobody_takes_requests(self):
        for state in ({"is_alive": False}, {"takes_requests": False}):
            with self.assertRaisesRegex(self.helper.Failure, "-600"):
                self.process('touch "$NOTE"', **state).hand_over("--accept=x")
        self.assertFalse(self.note.exists())

    def test_one_that_became_a_libreoffice_itself_ends_with_all_that_it_started(self):
        process = self.process('sleep 1000 & echo $! $$ > "$NOTE"; wait')
        with self.assertRaisesRegex(self.helper.Failure, "did not answer"):
            process.hand_over("--accept=x", 0.5)
        for started in self.note.read_text().split():
            for _ in range(500):
                if has_ended(started):
                    break
                time.sleep(0.02)
            self.assertTrue(has_ended(started))

    def test_a_child_that_it_leaves_ends_with_it(self):
        self.process('sleep 1000 & echo $! > "$NOTE"').hand_over("--accept=x")
        started = self.note.read_text().strip()
        deadline = time.monotonic() + 5
        while not has_ended(started) and time.monotonic() < deadline:
            time.sleep(0.02)
        self.assertTrue(has_ended(started))


class ServeTest(unittest.TestCase):
    """The program as Orvello starts it."""

    def test_it_ends_with_its_input_also_while_it_is_asked(self):
        # A question that hangs: nothing answers in a thread that sleeps.
        script = ("import importlib.util, sys, time\n"
                  f"found = importlib.util.spec_from_file_location('h', {str(HELPER)!r})\n"
                  "h = importlib.util.module_from_spec(found); found.loader.exec_module(h)\n"
                  "h.QUESTIONS['open'] = lambda office: time.sleep(1000)\n"
                  "h.main(['serve'])\n")
        helper = subprocess.Popen([sys.executable, "-c", script], stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        helper.stdin.write(b"1 open\n")
        helper.stdin.flush()
        helper.stdin.close()
        self.assertEqual(helper.wait(10), 0)
        helper.stdout.close()

    def test_it_can_be_run(self):
        self.assertTrue(os.access(HELPER, os.X_OK))
        self.assertEqual(subprocess.run([HELPER], capture_output=True).returncode, 2)


if __name__ == "__main__":
    unittest.main(verbosity=2)
