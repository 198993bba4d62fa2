"""What `make deb` makes: a package without a fault, which asks for everything that it needs."""

import json
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

BUILD = pathlib.Path(os.environ["ORVELLO_BUILD"])
SOURCES = pathlib.Path(__file__).resolve().parents[2]
# Qt Quick Controls has them all in one module, but needs other modules for some of them.
OTHER_STYLES = ("Material", "Imagine", "Universal", "FluentWinUI3")


def output(*command):
    return subprocess.run([str(word) for word in command], check=True, capture_output=True, text=True, timeout=120).stdout


class DebTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        output(SOURCES / "tools/make-deb", BUILD)
        (cls.package,) = BUILD.glob("orvello_*.deb")
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        output("dpkg-deb", "--extract", cls.package, cls.folder.name)
        cls.files = pathlib.Path(cls.folder.name)

    def field(self, name):
        return output("dpkg-deb", "--field", self.package, name).strip()

    def depends(self):
        return {re.split("[ :(]", entry.strip())[0] for entry in self.field("Depends").split(",")}

    def test_lintian_finds_no_fault(self):
        result = subprocess.run(
            ["lintian", "--fail-on", "error,warning", "--display-info", "--tag-display-limit", "0", str(self.package)],
            capture_output=True, text=True, timeout=240)

        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)

    def test_the_program_is_hardened(self):
        program = self.files / "usr/bin/orvello"
        names = output("readelf", "--dyn-syms", "--wide", program)

        self.assertIn("__stack_chk_fail", names, "stacks are not guarded")
        self.assertRegex(names, r"\b__\w+_chk@", "buffers are not guarded")
        self.assertIn("DYN (Position-Independent Executable", output("readelf", "--file-header", program))
        self.assertRegex(output("readelf", "--dynamic", program), r"FLAGS.*\bNOW\b")
        self.assertIn("GNU_RELRO", output("readelf", "--program-headers", "--wide", program))

    def test_its_name_tells_version_and_architecture(self):
        architecture = output("dpkg", "--print-architecture").strip()

        self.assertEqual(self.package.name, f"orvello_{self.field('Version')}_{architecture}.deb")

    def test_asks_for_the_libraries_of_the_program(self):
        self.assertLessEqual({"libc6", "libexpat1", "libpulse0", "libxcb1"}, self.depends())
        self.assertTrue([name for name in self.depends() if name.startswith("libqt6quick6")])

    def test_asks_for_the_qml_modules_that_the_views_import(self):
        asked = {name for name in self.depends() if name.startswith("qml6-module-")}
        needed = self.packages_of_imports()

        self.assertEqual(asked - needed, set(), "not imported")
        # Newer distributions say of a module itself what it imports.
        self.assertEqual(needed - self.with_dependencies(asked), set(), "not asked for")

    @staticmethod
    def with_dependencies(packages):
        """The packages, and those of QML modules that come with them."""
        known, new = set(), set(packages)
        while new:
            known |= new
            new = set(re.findall(r"\bqml6-module-[a-z0-9-]+", output("dpkg-query", "--show", "--showformat=${Depends}\n", *new)))
            new -= known
        return known

    def packages_of_imports(self):
        system = pathlib.Path(os.environ["ORVELLO_IMPORT_PATH"])
        with tempfile.TemporaryDirectory() as folder:
            modules = pathlib.Path(folder) / "qml"
            shutil.copytree(system, modules, copy_function=os.symlink, ignore=shutil.ignore_patterns(*OTHER_STYLES))
            imports = json.loads(output(os.environ["ORVELLO_IMPORT_SCANNER"], "-rootPath", SOURCES / "Sources/Orvello",
                                        "-importPath", modules))
            found = {entry["name"]: entry.get("path") for entry in imports if entry["type"] == "module"}
            self.assertIn("QtQuick", found)
            manifests = [system / pathlib.Path(path).relative_to(modules) / "qmldir" for path in found.values() if path]
            manifests = [manifest for manifest in manifests if self.brings_something(manifest)]
            return {line.split(":")[0] for line in output("dpkg-query", "--search", *manifests).splitlines()}

    @staticmethod
    def brings_something(manifest):
        """A plugin or views: what is in Qt's libraries themselves has a manifest, too, but for development alone."""
        return re.search(r"^(optional )?plugin |\.qml$", manifest.read_text(), re.MULTILINE)

    def test_needs_no_libreoffice(self):
        wanted = self.field("Depends") + self.field("Recommends")

        self.assertNotIn("uno", wanted)
        self.assertNotIn("libreoffice", wanted)
        self.assertIn("python3-uno", self.field("Suggests"))

    def test_carries_what_policy_wants_and_nothing_else(self):
        documents = {path.name for path in (self.files / "usr/share/doc/orvello").iterdir()}

        self.assertEqual(documents, {"changelog.gz", "copyright"})
        self.assertTrue((self.files / "usr/share/man/man1/orvello.1.gz").exists())
        self.assertTrue((self.files / "usr/share/zsh/vendor-completions/_orvello").exists())
        self.assertEqual({path.name for path in self.files.iterdir()}, {"usr"})

    def test_the_history_begins_with_this_version(self):
        history = output("zcat", self.files / "usr/share/doc/orvello/changelog.gz")

        self.assertTrue(history.startswith(f"orvello ({self.field('Version')}) "), history)
        self.assertIn("\n  * ", history)


if __name__ == "__main__":
    unittest.main(verbosity=2)
