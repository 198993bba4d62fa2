"""How the program starts: its command line, its signals, a second start, the former product's data, the update check."""

import http.server
import json
import os
import pathlib
import signal
import subprocess
import threading
import time
import unittest

from bus import Opener, SessionBus
from desktop import App, Desktop, PROGRAM, SOURCES, wait_until

DECK_TOOL = SOURCES / "Tests" / "Support" / "make-deck"
NO_BUS = {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nowhere/at/all"}


def make_deck(folder, name):
    folder.mkdir(exist_ok=True)
    subprocess.run(["/usr/bin/python3", str(DECK_TOOL), "--slides", "2", "--output", str(folder / name)], check=True,
                   timeout=180, capture_output=True)
    return folder / name


class LaunchTest(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop()
        self.addCleanup(self.desktop.close)
        App.set_defaults(self.desktop, onboardingSeenVersion=1, countdownSeconds=0)

    def messages(self):
        return App.log_messages(self.desktop)


class SwitchesTest(LaunchTest):
    def test_the_first_launch_shows_the_tour_and_finishing_it_the_prompter(self):
        App.set_defaults(self.desktop, onboardingSeenVersion=0)
        app = App(self.desktop)
        wait_until(lambda: self.desktop.windows_titled("Welcome to Orvello"), what="the tour")
        self.assertEqual(self.desktop.windows_titled("Orvello"), [])

        self.desktop.ask_window_manager_to_close("Welcome to Orvello")

        wait_until(lambda: self.desktop.windows_titled("Orvello"), what="the prompter")
        self.assertEqual(self.desktop.windows_titled("Welcome to Orvello"), [])
        self.assertEqual(app.quit(), 0)
        again = App(self.desktop)
        again.shown()
        self.assertEqual(self.desktop.windows_titled("Welcome to Orvello"), [], "it was seen")

    def test_a_tour_that_a_quit_cut_short_comes_again(self):
        App.set_defaults(self.desktop, onboardingSeenVersion=0)
        for number in (signal.SIGTERM, signal.SIGINT):
            app = App(self.desktop)
            wait_until(lambda: self.desktop.windows_titled("Welcome to Orvello"), what="the tour")
            time.sleep(0.5)  # The signal handlers come last in the launch.

            self.assertEqual(app.quit(number), 0)

            self.assertEqual(App.defaults(self.desktop).get("onboardingSeenVersion", 0), 0)
            self.assertEqual(self.messages()[-1], "QUIT clean")
        App(self.desktop)
        wait_until(lambda: self.desktop.windows_titled("Welcome to Orvello"), what="the tour once more")
        self.assertEqual(self.desktop.windows_titled("Orvello"), [])

    def test_all_switches_together(self):
        feed = Feed(self, "2", "1.1")
        App(self.desktop, "--no-stealth", "--onboarding", "--check-updates", "--voice", "--autostart",
            "-OrvelloAppcastURL", feed.url)

        wait_until(lambda: self.desktop.windows_titled("Welcome to Orvello"), what="the tour")
        wait_until(lambda: "UPDATES found 1.1 (2)" in self.messages(), what="the check")
        wait_until(lambda: App.defaults(self.desktop).get("voiceFollow") is True, what="the setting")
        # The offer has the prompter's title, the prompter itself waits for the end of the tour.
        offer = wait_until(lambda: self.desktop.windows_titled("Orvello"), what="the offer")
        self.assertEqual(len(offer), 1)
        self.desktop.ask_window_manager_to_close("Welcome to Orvello")
        wait_until(lambda: len(self.desktop.windows_titled("Orvello")) == 2, what="the prompter")
        launch = [line for line in self.messages() if line.startswith(("PANEL_UP", "UPDATES"))]
        self.assertIn(" sharing=1 ", launch[0])
        self.assertEqual(launch[1:], [f"UPDATES started auto=0 feed={feed.url}", "UPDATES found 1.1 (2)"])
        self.assertFalse([line for line in self.messages() if line.startswith("STEALTH ON")])

    def test_onboarding_shows_the_tour_again(self):
        App(self.desktop, "--onboarding")

        wait_until(lambda: self.desktop.windows_titled("Welcome to Orvello"), what="the tour")
        time.sleep(0.5)
        self.assertEqual(self.desktop.windows_titled("Orvello"), [])

    def test_no_stealth_leaves_the_prompter_capturable(self):
        app = App(self.desktop, "--no-stealth")
        app.shown()

        wait_until(lambda: any(line.startswith("PANEL_UP") and "sharing=1" in line for line in self.messages()),
                   what="a capturable panel")

    def test_voice_turns_voice_follow_on(self):
        app = App(self.desktop, "--voice")
        app.shown()

        wait_until(lambda: App.defaults(self.desktop).get("voiceFollow") is True, what="the setting")

    def test_autostart_scrolls(self):
        app = App(self.desktop, "--autostart")
        x, y, width, height = app.shown()
        text = lambda: self.desktop.screenshot().rows(x + 60, y + 30, width - 120, height - 80)
        before = text()

        wait_until(lambda: text() != before, what="the text to move")

    def test_check_updates_checks(self):
        App(self.desktop, "--check-updates")

        wait_until(lambda: "UPDATES aborted: There is no valid update feed. (4)" in self.messages(),
                   what="the check")
        wait_until(lambda: self.desktop.windows_titled("Orvello"), what="what came of it")

    def test_the_focus_stays_where_it_was(self):
        self.desktop.start(["xterm", "-T", "notes", "-e", "sleep", "60"])
        notes = wait_until(lambda: self.desktop.windows_titled("notes"), what="the notes")[0]
        self.desktop.run("xdotool", "windowactivate", "--sync", str(notes))
        app = App(self.desktop)
        app.shown()
        time.sleep(0.5)

        self.assertEqual(self.desktop.focused_window(), notes)


    def test_the_windows_that_a_start_asks_for_open(self):
        App(self.desktop, "--scripts", "--settings")

        wait_until(lambda: self.desktop.windows_titled("Scripts"), what="the scripts window")
        wait_until(lambda: self.desktop.windows_titled("Orvello Settings"), what="the settings window")


class FilesTest(LaunchTest):
    def titles(self):
        return [script["title"] for script in App.library(self.desktop)]

    def test_a_deck_is_imported_by_its_path_from_the_callers_folder(self):
        folder = make_deck(self.desktop.scratch / "my talks", "Quarterly review.pptx").parent

        app = App(self.desktop, "Quarterly review.pptx", folder=folder)

        app.wait_for_log("IMPORT_PPTX ok slides=2 file=Quarterly review.pptx")
        wait_until(lambda: self.titles()[0] == "Quarterly review", what="the deck")

    def test_a_deck_is_imported_by_its_address(self):
        deck = make_deck(self.desktop.scratch / "my talks", "Größe.pptx")

        app = App(self.desktop, deck.as_uri())

        app.wait_for_log("IMPORT_PPTX ok slides=2 file=Größe.pptx")

    def test_mistakes_are_named_and_nothing_is_done(self):
        (self.desktop.scratch / "notes.txt").write_text("x")
        (self.desktop.scratch / "broken.pptx").write_text("x")
        for argument, complaint in (
                ("--autostrat", "orvello: unknown option --autostrat; did you mean --autostart?"),
                ("-fontSize", "orvello: -fontSize is neither an option nor a preference with a value"),
                ("notes.txt", "orvello: notes.txt is not a deck (.pptx or .odp)"),
                ("gone.pptx", 'orvello: there is no file "gone.pptx"'),
                ("https://example.com/talk.pptx", "orvello: https://example.com/talk.pptx is no address that Orvello opens"),
                ("broken.pptx", "broken.pptx: The file could not be opened as a PowerPoint package.")):
            with self.subTest(argument):
                status, text = App.run(self.desktop, "--voice", argument, folder=self.desktop.scratch)

                self.assertEqual(status, 2)
                self.assertIn(complaint, text)
        self.assertFalse(App.folder(self.desktop).exists())


class SignalsTest(LaunchTest):
    def expect_a_clean_end(self, app):
        wait_until(lambda: app.process.poll() is not None, what="the end")
        self.assertEqual(self.messages()[-1], "QUIT clean")
        self.assertEqual([path.name for path in (App.folder(self.desktop) / "logs").iterdir()], ["orvello.log"])

    def test_a_hang_up_is_an_ordinary_quit(self):
        app = App(self.desktop)
        app.shown()

        self.assertEqual(app.quit(signal.SIGHUP), 0)

        self.expect_a_clean_end(app)

    def test_closing_its_terminal_is_an_ordinary_quit(self):
        terminal = self.desktop.start(["xterm", "-e", str(PROGRAM)])
        wait_until(lambda: [line for line in self.messages() if line.startswith("PANEL_UP")], what="the prompter")

        terminal.kill()

        wait_until(lambda: self.messages()[-1] == "QUIT clean", what="the clean end")
        wait_until(lambda: not App.marker(self.desktop).exists(), what="the marker to go")

    def test_nobody_who_reads_what_it_says_is_no_obstacle(self):
        read_end, write_end = os.pipe()
        process = subprocess.Popen([str(PROGRAM)], env=self.desktop.environment, stdout=write_end, stderr=write_end)
        self.addCleanup(process.kill)
        os.close(write_end)
        wait_until(lambda: self.desktop.windows_titled("Orvello"), what="the prompter")
        os.close(read_end)

        process.send_signal(signal.SIGHUP)

        self.assertEqual(process.wait(15), 0)
        self.assertEqual(self.messages()[-1], "QUIT clean")

    def test_the_end_of_its_x_server_is_a_clean_end(self):
        for renderer in ("software", "opengl"):
            with self.subTest(renderer):
                server, display = self.desktop.start_x_server()
                app = App(self.desktop, environment={"DISPLAY": display, "ORVELLO_RENDERER": renderer})
                app.wait_for_log("PANEL_UP")
                time.sleep(1.0)

                server.kill()

                self.expect_a_clean_end(app)
                self.assertNotIn("CRASH", App.log_text(self.desktop))

    def test_the_first_user_signal_toggles_stealth_mode(self):
        app = App(self.desktop)
        app.shown()

        app.signal(signal.SIGUSR1)
        app.wait_for_log("DEBUG stealth toggled -> 0")
        self.assertIs(App.defaults(self.desktop)["stealthMode"], False)
        app.signal(signal.SIGUSR1)
        app.wait_for_log("DEBUG stealth toggled -> 1")

        self.assertIs(App.defaults(self.desktop)["stealthMode"], True)
        self.assertEqual(len([line for line in self.messages() if "stealth toggled" in line]), 2)
        self.assertIsNone(app.process.poll())

    def test_the_second_user_signal_hides_and_shows(self):
        app = App(self.desktop)
        app.shown()

        app.signal(signal.SIGUSR2)
        wait_until(lambda: not app.is_window_visible(), what="the prompter to go")
        app.signal(signal.SIGUSR2)
        wait_until(app.is_window_visible, what="the prompter to come back")


class RenderersTest(LaunchTest):
    def test_without_graphics_hardware_opengl_is_not_even_loaded(self):
        app = App(self.desktop)
        app.shown()

        mapped = pathlib.Path(f"/proc/{app.process.pid}/maps").read_text()

        self.assertNotIn("swrast", mapped)
        self.assertNotIn("LLVM", mapped)

    def test_a_renderer_that_cannot_start_makes_way_for_the_other(self):
        app = App(self.desktop, "--autostart",
                  environment={"ORVELLO_RENDERER": "opengl", "QT_XCB_GL_INTEGRATION": "none"})
        app.wait_for_log("starting again with software")
        wait_until(lambda: len([line for line in self.messages() if line.startswith("PANEL_UP")]) == 2,
                   what="the second process's panel")

        app.shown()

        self.assertIsNone(app.process.poll())
        messages = self.messages()
        change = next(i for i, line in enumerate(messages) if line.startswith("RENDERER opengl failed: "))
        self.assertEqual(messages[change + 1], "QUIT clean")
        self.assertTrue(messages[change + 2].startswith("LAUNCH Orvello "))
        self.assertEqual(app.quit(), 0)
        self.assertEqual(self.messages()[-1], "QUIT clean")

    def test_where_neither_renderer_can_start_it_says_so_and_leaves_no_marker(self):
        status, said = App.run(self.desktop, environment={
            "ORVELLO_RENDERER": "opengl", "ORVELLO_FAILED_RENDERER": "software", "QT_XCB_GL_INTEGRATION": "none"})

        self.assertEqual(status, 1)
        self.assertIn("LAUNCH failed: neither software nor opengl can draw here: ", said)
        self.assertFalse(App.marker(self.desktop).exists())


class SecondStartTest(LaunchTest):
    def setUp(self):
        super().setUp()
        SessionBus(self.desktop)

    def test_its_addresses_reach_the_one_that_runs(self):
        app = App(self.desktop, "orvello://first")
        app.wait_for_log("URL ignored: orvello://first")
        app.shown()

        second = App(self.desktop, "orvello://hello?to=you", "orvello:again")

        self.assertEqual(second.process.wait(15), 0)
        app.wait_for_log("URL ignored: orvello://hello?to=you")
        app.wait_for_log("URL ignored: orvello:again")
        self.assertEqual(len([line for line in self.messages() if line.startswith("LAUNCH")]), 1)
        self.assertTrue(App.marker(self.desktop).exists(), "the session goes on")

    def test_many_starts_at_once_leave_one(self):
        starts = [App(self.desktop, f"orvello:{number}") for number in range(5)]

        wait_until(lambda: sum(app.process.poll() is None for app in starts) == 1, what="four of five to end")
        wait_until(lambda: len([line for line in self.messages() if line.startswith("URL ignored")]) == 5,
                   what="all five addresses")
        self.assertEqual(len([line for line in self.messages() if line.startswith("LAUNCH")]), 1)
        self.assertEqual({app.process.poll() for app in starts}, {None, 0})

    def test_a_start_beside_one_that_does_not_answer_fails(self):
        app = App(self.desktop)
        app.shown()
        app.signal(signal.SIGSTOP)
        self.addCleanup(app.signal, signal.SIGCONT)

        second = App(self.desktop)

        self.assertEqual(second.process.wait(30), 1)

    def test_its_files_reach_the_one_that_runs(self):
        app = App(self.desktop)
        app.shown()
        folder = make_deck(self.desktop.scratch / "talks", "late.pptx").parent
        make_deck(folder, "by variable.pptx")

        self.assertEqual(App.run(self.desktop, "late.pptx", folder=folder), (0, ""))
        app.wait_for_log("IMPORT_PPTX ok slides=2 file=late.pptx")
        variable = {"ORVELLO_IMPORT_PPTX": "by variable.pptx"}
        self.assertEqual(App.run(self.desktop, "--autostart", folder=folder, environment=variable), (0, ""))

        app.wait_for_log("IMPORT_PPTX ok slides=2 file=by variable.pptx")
        self.assertEqual([script["title"] for script in App.library(self.desktop)][:2], ["by variable", "late"])
        self.assertEqual(App.defaults(self.desktop)["activeScriptID"], App.library(self.desktop)[0]["id"])

    def test_it_says_what_the_one_that_runs_cannot_do(self):
        app = App(self.desktop)
        app.shown()
        (self.desktop.scratch / "broken.pptx").write_text("x")

        status, text = App.run(self.desktop, "--no-stealth", "-textColorName", "Yellow", "--scripts",
                               folder=self.desktop.scratch, environment={"ORVELLO_IMPORT_PPTX": "broken.pptx"})

        self.assertEqual(status, 3)
        self.assertEqual(text.splitlines(), [
            f"orvello: {self.desktop.scratch}/broken.pptx: The file could not be opened as a PowerPoint package.",
            "orvello: --no-stealth counts only at the launch: quit the Orvello that runs first",
            "orvello: -textColorName Yellow counts only at the launch: quit the Orvello that runs first"])
        wait_until(lambda: self.desktop.windows_titled("Scripts"), what="what it can do")

    def test_a_mistake_does_not_reach_the_one_that_runs(self):
        app = App(self.desktop)
        app.shown()

        status, text = App.run(self.desktop, "--scripts", "--sittings")

        self.assertEqual(status, 2)
        self.assertIn("did you mean --settings?", text)
        self.assertEqual(self.desktop.windows_titled("Scripts"), [])

    def test_one_runs_on_each_display(self):
        app = App(self.desktop)
        app.shown()
        _, display = self.desktop.start_x_server()

        other = App(self.desktop, environment={"DISPLAY": display})

        wait_until(lambda: len([line for line in self.messages() if line.startswith("PANEL_UP")]) == 2,
                   what="two of them")
        self.assertEqual(App.run(self.desktop, environment={"DISPLAY": display + ".0"}), (0, ""))
        self.assertEqual(other.quit(), 0)
        self.assertIsNone(app.process.poll())

    def test_one_runs_where_there_is_no_bus(self):
        for first_sees_it in (False, True):
            with self.subTest(first_sees_it=first_sees_it):
                app = App(self.desktop, environment=None if first_sees_it else NO_BUS)
                try:
                    app.shown()

                    status, text = App.run(self.desktop, "--voice", environment=NO_BUS)

                    self.assertEqual(status, 1)
                    self.assertIn("Orvello is running already", text)
                finally:
                    app.kill()  # Which leaves the lock file behind.
        App(self.desktop, environment=NO_BUS).shown()

    def test_preferences_are_read_when_no_other_writes_them_any_more(self):
        first = App(self.desktop)
        first.shown()
        first.signal(signal.SIGSTOP)
        second = App(self.desktop)
        time.sleep(1.0)  # It waits for the first to answer.

        App.set_defaults(self.desktop, onboardingSeenVersion=0)
        first.kill()

        wait_until(lambda: self.desktop.windows_titled("Welcome to Orvello"), what="what the first wrote last")
        self.assertIsNone(second.process.poll())

    def test_the_switches_of_a_start_during_the_launch_count(self):
        starts = [App(self.desktop, "orvello:first"), App(self.desktop, "--onboarding")]

        wait_until(lambda: sum(app.process.poll() is None for app in starts) == 1, what="one of two to end")
        wait_until(lambda: self.desktop.windows_titled("Welcome to Orvello"), what="the tour")
        wait_until(lambda: "URL ignored: orvello:first" in self.messages(), what="the address")

    def test_after_the_end_of_the_first_the_next_one_runs(self):
        first = App(self.desktop)
        first.shown()
        self.assertEqual(first.quit(), 0)

        second = App(self.desktop)

        second.shown()
        self.assertEqual(second.quit(), 0)

    def test_a_kill_does_not_keep_the_next_one_from_running(self):
        first = App(self.desktop)
        first.shown()
        first.kill()

        App(self.desktop).shown()


class MigrationTest(LaunchTest):
    def setUp(self):
        super().setUp()
        (self.desktop.config / "Orvello" / "app.orvello.json").unlink()

    def write_former(self):
        domain = self.desktop.config / "Orvello" / "app.drumlin.mac.json"
        domain.write_text(json.dumps({"ghostMode": False, "speed": 33.5, "onboardingSeenVersion": 1}))
        folder = self.desktop.data / "Drumlin"
        folder.mkdir()
        script = {"id": "6F9619FF-8B86-D011-B42D-00CF4FC964FF", "title": "Welcome to Drumlin", "body": "old",
                  "createdAt": 8e8, "updatedAt": 8e8}
        other = script | {"id": "7F9619FF-8B86-D011-B42D-00CF4FC964FF", "title": "My talk", "body": "mine"}
        (folder / "scripts.json").write_text(json.dumps([other, script]))

    def test_settings_and_scripts_of_the_former_product_come_along_once(self):
        self.write_former()

        app = App(self.desktop)
        app.shown()

        defaults = App.defaults(self.desktop)
        self.assertIs(defaults["stealthMode"], False)
        self.assertEqual(defaults["speed"], 33.5)
        self.assertIs(defaults["migratedFromDrumlin"], True)
        self.assertNotIn("ghostMode", defaults)
        library = App.library(self.desktop)
        self.assertEqual([script["title"] for script in library], ["My talk", "Welcome to Orvello"])
        self.assertEqual(library[0]["body"], "mine")
        self.assertTrue(library[1]["body"].startswith("Welcome to Orvello. This is your private"))
        messages = self.messages()
        at = messages.index("MIGRATE copied 3 preference keys from app.drumlin.mac")
        self.assertEqual(messages[at + 1], "MIGRATE copied Application Support/Drumlin -> Orvello")
        self.assertTrue(any(line.startswith("STEALTH OFF") for line in messages[at:]), "read after the migration")
        self.assertTrue(messages[0].startswith("LAUNCH "), "the log moved along")

        self.assertEqual(app.quit(), 0)
        App(self.desktop).shown()
        self.assertEqual(len([line for line in self.messages() if line.startswith("MIGRATE")]), 2)

    def test_new_users_are_marked_too(self):
        App(self.desktop)

        wait_until(lambda: App.defaults(self.desktop).get("migratedFromDrumlin") is True
                   if (self.desktop.config / "Orvello" / "app.orvello.json").exists() else None, what="the marker")
        self.assertFalse([line for line in self.messages() if line.startswith("MIGRATE")])


class Feed:
    """An update feed on this machine."""

    def __init__(self, test, version, display_version):
        items = (f'<rss xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle"><channel><item>'
                 f"<sparkle:version>{version}</sparkle:version>"
                 f"<sparkle:shortVersionString>{display_version}</sparkle:shortVersionString>"
                 f"<link>https://example.com/download</link></item></channel></rss>").encode()

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                self.send_response(200)
                self.send_header("Content-Length", str(len(items)))
                self.end_headers()
                self.wfile.write(items)

            def log_message(self, *words):
                pass

        server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        threading.Thread(target=server.serve_forever, daemon=True).start()
        test.addCleanup(server.server_close)
        test.addCleanup(server.shutdown)
        self.url = f"http://127.0.0.1:{server.server_port}/feed"


class UpdatesTest(LaunchTest):
    def check(self, version, display_version, *arguments):
        self.opener = Opener(self.desktop)
        self.feed = Feed(self, version, display_version)
        self.app = App(self.desktop, "-OrvelloAppcastURL", self.feed.url, "--check-updates", *arguments)
        self.app.wait_for_log(f"UPDATES started auto=0 feed={self.feed.url}")

    def dialog(self):
        """The update's window, which is on top and has the keyboard."""
        def found():
            windows = [window for window in self.desktop.windows_titled("Orvello")
                       if window != self.app.window() and self.desktop.focused_window() == window]
            return windows
        return wait_until(found, what="the dialog with the keyboard")[0]

    def test_no_newer_version(self):
        App.set_defaults(self.desktop, SUEnableAutomaticChecks=False)
        self.check("1", "1.0.0")

        self.app.wait_for_log("UPDATES up to date (Orvello is up to date.)")
        time.sleep(0.5)
        self.assertNotIn("UPDATES aborted", App.log_text(self.desktop))
        self.dialog()

    def test_a_newer_version_is_offered_and_installing_opens_its_page(self):
        App.set_defaults(self.desktop, SUEnableAutomaticChecks=False)
        self.check("2", "1.1")
        self.app.wait_for_log("UPDATES found 1.1 (2)")
        self.dialog()

        self.desktop.run("xdotool", "key", "Return")

        self.app.wait_for_log("UPDATES user chose install for 1.1")
        self.app.wait_for_log("UPDATES installing 1.1 (2)")
        self.assertEqual(wait_until(self.opener.opened, what="the page"), ["https://example.com/download"])

    def test_escape_is_later(self):
        App.set_defaults(self.desktop, SUEnableAutomaticChecks=False)
        self.check("2", "1.1")
        self.dialog()

        self.desktop.run("xdotool", "key", "Escape")

        self.app.wait_for_log("UPDATES user chose later for 1.1")
        self.assertEqual(self.opener.opened(), [])

    def test_the_first_run_question_is_asked_once_and_takes_no_keyboard(self):
        self.desktop.start(["xterm", "-T", "notes", "-e", "sleep", "60"])
        notes = wait_until(lambda: self.desktop.windows_titled("notes"), what="the notes")[0]
        self.desktop.run("xdotool", "windowactivate", "--sync", str(notes))
        feed = Feed(self, "1", "1.0.0")
        app = App(self.desktop, "-OrvelloAppcastURL", feed.url)
        app.shown()
        question = wait_until(lambda: len(self.desktop.windows_titled("Orvello")) == 2, what="the question")
        self.assertTrue(question)
        time.sleep(0.5)
        self.assertEqual(self.desktop.focused_window(), notes)

        window = next(each for each in self.desktop.windows_titled("Orvello") if self.is_dialog(each))
        self.desktop.run("xdotool", "windowactivate", "--sync", str(window), "key", "Return")

        wait_until(lambda: App.defaults(self.desktop).get("SUEnableAutomaticChecks") is True, what="the answer")
        app.wait_for_log("UPDATES up to date")
        app.wait_for_log("UPDATES next check in 24h")
        self.assertEqual(app.quit(), 0)
        again = App(self.desktop, "-OrvelloAppcastURL", feed.url)
        again.wait_for_log("UPDATES started auto=1")
        again.shown()
        time.sleep(0.5)
        self.assertEqual(len(self.desktop.windows_titled("Orvello")), 1)

    def is_dialog(self, window):
        return "_NET_WM_WINDOW_TYPE_DIALOG" in self.desktop.run("xprop", "-id", str(window), "_NET_WM_WINDOW_TYPE")


if __name__ == "__main__":
    unittest.main(verbosity=2)
