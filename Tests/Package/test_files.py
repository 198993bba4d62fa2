"""What `make install` puts below a prefix: the right files, which say the same as the program."""

import os
import pathlib
import re
import stat
import subprocess
import tempfile
import unittest

BUILD = pathlib.Path(os.environ["ORVELLO_BUILD"])
ROOT = pathlib.Path(os.environ["ORVELLO_ROOT"])
SOURCES = pathlib.Path(__file__).resolve().parents[2]
USR = ROOT / "usr"
SHARE = USR / "share"
SIZES = [16, 22, 24, 32, 48, 64, 128, 256, 512]


def output(*command, **options):
    return subprocess.run([str(word) for word in command], check=True, capture_output=True, text=True, timeout=60,
                          **options).stdout


def help_lines():
    """The entries of the help, each as (section, name, text)."""
    section, found = None, []
    for line in output(USR / "bin/orvello", "--help").splitlines():
        if line and not line.startswith(" ") and line.endswith(":"):
            section = line[:-1]
        elif section and line.startswith("  "):
            name, text = re.split("  +", line.strip(), maxsplit=1)
            found.append((section, name, text))
    return found


def switches():
    return [name for _, name, _ in help_lines() if re.fullmatch("--[a-z-]+", name)]


class FilesTest(unittest.TestCase):
    def test_nothing_is_forgotten(self):
        expected = {
            "bin/orvello", "libexec/orvello/impress-helper.py", "share/applications/app.orvello.Orvello.desktop",
            "share/metainfo/app.orvello.Orvello.metainfo.xml", "share/man/man1/orvello.1", "share/doc/orvello/copyright",
            "share/bash-completion/completions/orvello", "share/zsh/site-functions/_orvello",
            "share/icons/hicolor/scalable/apps/app.orvello.Orvello.svg"}
        expected |= {f"share/icons/hicolor/{size}x{size}/apps/app.orvello.Orvello.png" for size in SIZES}

        self.assertEqual({str(path.relative_to(USR)) for path in ROOT.rglob("*") if path.is_file()}, expected)

    def test_programs_can_be_executed_and_nothing_else(self):
        programs = {path.name for path in ROOT.rglob("*") if path.is_file() and path.stat().st_mode & stat.S_IXUSR}

        self.assertEqual(programs, {"orvello", "impress-helper.py"})

    def test_the_program_says_its_version(self):
        newest = re.search(r'<release version="([^"]+)"', (SHARE / "metainfo/app.orvello.Orvello.metainfo.xml").read_text())

        self.assertRegex(output(USR / "bin/orvello", "--version"), rf"^Orvello {re.escape(newest[1])} \(\d+\)\n$")

    def test_the_licences_of_program_and_typeface_are_whole(self):
        text = (SHARE / "doc/orvello/copyright").read_text()
        plain = " ".join(line.strip() for line in text.splitlines() if line.strip() != ".")

        for licence, ending in ("LICENSE", "SOFTWARE."), ("Resources/Fonts/OFL.txt", "IN THE FONT SOFTWARE."):
            words = (SOURCES / licence).read_text()
            paragraph = words[words.index("Permission is hereby granted" if licence == "LICENSE" else "PREAMBLE"):]
            self.assertTrue(paragraph.rstrip().endswith(ending))
            self.assertIn(" ".join(paragraph.split()), " ".join(plain.split()))


class DesktopEntryTest(unittest.TestCase):
    TEXT = (SHARE / "applications/app.orvello.Orvello.desktop").read_text()

    def commands(self):
        return re.findall(r"^Exec=(.*)$", self.TEXT, re.MULTILINE)

    def test_starts_the_program_with_switches_that_it_knows(self):
        self.assertGreater(len(self.commands()), 0)
        for command in self.commands():
            program, *arguments = command.split()
            self.assertEqual(program, "orvello")
            for argument in arguments:
                self.assertTrue(argument in switches() or argument in ("%F", "%U"), argument)

    def test_every_action_has_a_group(self):
        named = re.search(r"^Actions=(.*);$", self.TEXT, re.MULTILINE)

        self.assertEqual(named[1].split(";") if named else [], re.findall(r"^\[Desktop Action (.*)\]$", self.TEXT, re.MULTILINE))

    def test_its_icon_is_there_in_every_size(self):
        self.assertIn("\nIcon=app.orvello.Orvello\n", self.TEXT)
        for size in SIZES:
            picture = SHARE / f"icons/hicolor/{size}x{size}/apps/app.orvello.Orvello.png"
            self.assertEqual(output("identify", "-format", "%wx%h", picture), f"{size}x{size}")


class ReferenceTest(unittest.TestCase):
    """The man page and the completions against what the program says in its help."""

    def test_the_manual_has_no_fault(self):
        result = subprocess.run(
            ["man", "--warnings", "--encoding=UTF-8", "--troff-device=utf8", "--ditroff", "--local-file",
             str(SHARE / "man/man1/orvello.1")],
            env=os.environ | {"LC_ALL": "C.UTF-8", "MANROFFSEQ": "", "MANWIDTH": "80"}, capture_output=True, timeout=60)

        self.assertEqual((result.returncode, result.stderr.decode()), (0, ""))

    def test_the_manual_says_what_the_help_says(self):
        page = output("man", "--local-file", SHARE / "man/man1/orvello.1",
                      env=os.environ | {"LC_ALL": "C.UTF-8", "MANWIDTH": "400", "MAN_KEEP_FORMATTING": ""})
        # Justified lines have wider spaces, and quotation marks and dashes have shapes.
        page = " ".join(page.replace("‐", "-").replace("−", "-").split())

        self.assertGreater(len(help_lines()), 10)
        for _, name, text in help_lines():
            self.assertIn(f"{name} {text}", page)

    def complete_in_bash(self, word):
        script = SHARE / "bash-completion/completions/orvello"
        return output("bash", "-c", f"source {script}; COMP_WORDS=(orvello {word}); COMP_CWORD=1; _orvello;"
                      "printf '%s\\n' \"${COMPREPLY[@]}\"").split()

    def test_bash_completes_every_switch(self):
        self.assertEqual(sorted(self.complete_in_bash("--")), sorted(switches()))
        self.assertEqual(self.complete_in_bash("--vers"), ["--version"])

    def test_bash_completes_decks_and_folders(self):
        with tempfile.TemporaryDirectory() as folder:
            for name in "one.pptx", "two.PPTX", "three.odt":
                (pathlib.Path(folder) / name).touch()
            (pathlib.Path(folder) / "talks").mkdir()

            offered = {pathlib.Path(path).name for path in self.complete_in_bash(folder + "/")}

        self.assertEqual(offered, {"one.pptx", "two.PPTX", "talks"})

    def test_zsh_describes_every_switch(self):
        script = SHARE / "zsh/site-functions/_orvello"
        # What the function hands to zsh's own one for command lines.
        described = output("zsh", "-f", "-c", f"_arguments() {{ print -rl -- $@ }}; source {script}").splitlines()

        texts = {name: text for _, name, text in help_lines() if name in switches()}
        self.assertGreater(len(texts), 5)
        self.assertTrue(script.read_text().startswith("#compdef orvello\n"))
        for name, text in texts.items():
            self.assertIn(f"{name}[{text}]", [line.replace("\\", "") for line in described])


class IconTest(unittest.TestCase):
    def test_the_pictures_are_the_drawings(self):
        with tempfile.TemporaryDirectory() as folder:
            output(SOURCES / "tools/draw-icons", folder)
            drawn = sorted(path for path in pathlib.Path(folder).rglob("*.png"))
            self.assertEqual(len(drawn), len(SIZES) + 2)
            for picture in drawn:
                kept = SOURCES / "Resources" / picture.relative_to(folder)
                # Versions of the renderer differ in single pixels at edges, drawings in areas.
                result = subprocess.run(["compare", "-metric", "RMSE", picture, kept, "null:"], capture_output=True,
                                        text=True, timeout=60)
                difference = float(re.search(r"\(([\d.e-]+)\)", result.stderr)[1])
                self.assertLess(difference, 0.02, picture.name)


class UninstallTest(unittest.TestCase):
    def test_takes_away_what_was_installed_and_nothing_else(self):
        with tempfile.TemporaryDirectory() as folder:
            prefix, install = "/opt/prompter", SOURCES / "tools/install"
            theirs = pathlib.Path(folder) / "opt/prompter/share/applications/other.desktop"
            theirs.parent.mkdir(parents=True)
            theirs.write_text("theirs")
            output(install, BUILD, prefix, folder)
            self.assertTrue((theirs.parent / "app.orvello.Orvello.desktop").exists())

            output(install, "--remove", BUILD, prefix, folder)

            left = {path for path in pathlib.Path(folder).rglob("*") if path.is_file()}
            self.assertEqual(left, {theirs})
            self.assertFalse((theirs.parents[1] / "icons").exists())


if __name__ == "__main__":
    unittest.main(verbosity=2)
