"""The helper that asks LibreOffice Impress, before a LibreOffice that is a few objects."""

import contextlib
import importlib.util
import io
import pathlib
import sys
import tempfile
import types
import unittest

HELPER = pathlib.Path(__file__).parents[4] / "Sources/Orvello/Adapters/Linux/Desktop/impress-helper.py"


def load_helper():
    found = importlib.util.spec_from_file_location("impress_helper", HELPER)
    module = importlib.util.module_from_spec(found)
    found.loader.exec_module(module)
    return module


class Disposed(Exception):
    """What the bridge raises once LibreOffice is gone."""


class FakeOffice:
    """One LibreOffice with one deck, whose slideshow shows `slide`; None without a slideshow."""

    def __init__(self):
        self.is_alive = True
        self.listens = True
        self.slide = 1

    def resolve(self, _address):
        if not (self.is_alive and self.listens):
            raise Exception("couldn't connect to pipe")
        return types.SimpleNamespace(ServiceManager=self)

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
        controller = types.SimpleNamespace(
            getCurrentSlide=lambda: types.SimpleNamespace(Number=self.slide)) if self.slide else None
        return types.SimpleNamespace(getController=lambda: controller)


class ImpressHelperTest(unittest.TestCase):
    def setUp(self):
        self.helper = load_helper()
        self.libreoffice = FakeOffice()
        self.clock = 1000.0
        self.helper.time = types.SimpleNamespace(monotonic=lambda: self.clock, sleep=self.sleep)
        self.processes = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.helper.PROCESSES = self.processes
        self.commands = []
        self.helper.soffice = self.run_office
        self.add_process(10)
        self.install_uno()
        self.office = self.helper.Office()

    def enterContext(self, context):  # unittest has it from Python 3.11 on.
        value = context.__enter__()
        self.addCleanup(context.__exit__, None, None, None)
        return value

    def install_uno(self):
        local = types.SimpleNamespace(ServiceManager=types.SimpleNamespace(
            createInstanceWithContext=lambda _name, _context: types.SimpleNamespace(
                resolve=lambda address: self.libreoffice.resolve(address))))
        before = sys.modules.get("uno")
        sys.modules["uno"] = types.SimpleNamespace(getComponentContext=lambda: local)
        self.addCleanup(lambda: sys.modules.update(uno=before) if before else sys.modules.pop("uno"))

    def sleep(self, seconds):
        self.clock += seconds

    def run_office(self, *arguments):
        self.commands.append(arguments)
        return types.SimpleNamespace(wait=lambda _seconds: 0)

    def add_process(self, number, name="soffice.bin", state="S"):
        folder = self.processes / str(number)
        folder.mkdir(exist_ok=True)
        (folder / "stat").write_text(f"{number} ({name}) {state} 1 1")

    def remove_process(self, number):
        (self.processes / str(number) / "stat").unlink()
        (self.processes / str(number)).rmdir()

    def ask(self, question="slide"):
        return self.helper.reply(self.office, question)

    def assert_refused(self, answer):
        self.assertEqual(answer["status"], 1)
        self.assertIn("-1743", answer["error"])

    def assert_not_running(self, answer):
        self.assertEqual(answer["status"], 1)
        self.assertIn("-600", answer["error"])

    def kill(self):
        self.libreoffice.is_alive = False
        self.remove_process(10)

    def test_it_answers_with_the_slide(self):
        self.libreoffice.slide = 7
        self.assertEqual(self.ask(), {"status": 0, "output": "7\n", "error": ""})

    def test_a_libreoffice_that_does_not_listen_refuses(self):
        self.libreoffice.listens = False
        self.assert_refused(self.ask())

    def test_it_waits_a_while_for_a_libreoffice_that_starts(self):
        self.libreoffice.listens = False

        def start_listening(seconds):
            self.clock += seconds
            self.libreoffice.listens = self.clock > 1002.0

        self.helper.time.sleep = start_listening
        self.assertEqual(self.ask()["status"], 0)

    def test_nobody_refuses_when_nothing_runs(self):
        self.kill()
        self.assert_not_running(self.ask())
        self.assertEqual(self.clock, 1000.0)

    def test_a_dead_process_does_not_refuse(self):
        self.libreoffice.listens = False
        for state in "ZX":
            self.add_process(10, state=state)
            self.assert_not_running(self.ask())

    def test_another_program_does_not_refuse(self):
        self.kill()
        self.add_process(11, name="soffice")
        self.add_process(12, name="a (b) soffice.bin")
        self.assert_not_running(self.ask())

    def test_death_is_no_refusal(self):
        self.ask()
        self.kill()
        self.assert_not_running(self.ask())

    def test_death_is_no_refusal_by_the_process_that_is_still_dying(self):
        self.ask()
        self.libreoffice.is_alive = False
        self.assert_not_running(self.ask())

    def test_death_is_no_refusal_by_another_libreoffice(self):
        """The slideshow's window seems to be there until the next look at the screen."""
        self.ask()
        self.add_process(20)
        self.kill()
        for _ in range(4):
            self.assert_not_running(self.ask())
            self.clock += 0.5

    def test_death_is_told_at_once(self):
        self.ask()
        self.add_process(20)
        self.kill()
        self.ask()
        self.assertEqual(self.clock, 1000.0)

    def test_the_next_libreoffice_is_asked_at_once(self):
        self.ask()
        self.kill()
        self.ask()
        self.libreoffice = FakeOffice()
        self.libreoffice.slide = 4
        self.add_process(30)
        self.assertEqual(self.ask()["output"], "4\n")

    def test_the_next_libreoffice_may_refuse(self):
        self.ask()
        self.kill()
        self.ask()
        self.add_process(30)
        self.clock += 10.0
        self.assert_refused(self.ask())

    def test_a_lost_connection_is_made_again_within_the_question(self):
        self.ask()
        self.libreoffice.is_alive = False
        self.office._desktop = self.libreoffice
        self.libreoffice = FakeOffice()
        self.libreoffice.slide = 3
        self.assertEqual(self.ask()["output"], "3\n")

    def test_what_was_taken_back_is_a_refusal_at_once(self):
        self.ask()
        self.libreoffice.listens = False
        self.helper.change_setting = lambda _change: True
        self.assertEqual(self.ask("disallow")["status"], 0)
        self.assertEqual(self.commands, [("--unaccept=pipe,name=orvello;urp;",)])
        self.assert_refused(self.ask())

    def test_nothing_is_started_to_stop_a_libreoffice_that_does_not_run(self):
        """It would be one that waits for ever, for a window that nobody opens."""
        self.helper.change_setting = lambda _change: False
        self.assertEqual(self.ask("disallow")["status"], 0)
        self.assertEqual(self.commands, [])

    def test_a_slideshow_that_is_over_is_no_refusal(self):
        self.libreoffice.slide = None
        answer = self.ask()
        self.assertEqual(answer["status"], 1)
        self.assertIn("-1728", answer["error"])

    def test_it_says_which_package_is_missing(self):
        sys.modules["uno"] = None
        for question in ("slide", "allow"):
            answer = self.ask(question)
            self.assertEqual(answer["status"], 1)
            self.assertIn("package python3-uno", answer["error"])
            self.assertEqual("-1743" in answer["error"], question == "slide")
        self.assertEqual(self.commands, [])

    def test_it_serves_question_after_question(self):
        sys.stdin = io.StringIO("slide\nnonsense\n")
        self.addCleanup(setattr, sys, "stdin", sys.__stdin__)
        with contextlib.redirect_stdout(io.StringIO()) as printed:
            self.helper.serve()
        self.assertEqual(
            printed.getvalue(), '{"status": 0, "output": "1\\n", "error": ""}\n'
                                '{"status": 1, "output": "", "error": "Unknown question: nonsense"}\n')


if __name__ == "__main__":
    unittest.main(verbosity=2)
