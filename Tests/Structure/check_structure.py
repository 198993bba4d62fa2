"""Holds the tree against what its papers and its CMake files say.

    check_structure.py paths      each path that ARCHITECTURE.md names exists
    check_structure.py includes   a folder includes only folders that its layer may see
    check_structure.py platforms  nothing outside Platform/ asks for an operating system
    check_structure.py library    nothing uses what the C++ library of macOS 13.0 lacks, and Linux has
    check_structure.py threads    ThreadSanitizer gets to see each unit test that starts a thread
    check_structure.py format     the sources are laid out as clang-format does it
    check_structure.py translations LUPDATE LANGUAGE...   each translation file has the texts of the sources and no
                                  others; those of the languages named are translated, every one
"""

import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

ROOT = pathlib.Path(__file__).resolve().parents[2]
SOURCES = ROOT / "Sources" / "Orvello"

# Which folders each folder may include, besides itself.
MAY_INCLUDE = {
    "Platform": set(),
    "Diagnostics": {"Platform"},
    "Settings": {"Platform", "Diagnostics"},
    "Library": {"Platform", "Diagnostics", "Presentations"},
    "Voice": {"Platform", "Diagnostics", "Settings"},
    "Presentations": {"Platform", "Diagnostics", "Settings", "Library", "Voice"},
    "Prompting": {"Platform", "Diagnostics", "Settings", "Library", "Voice", "Presentations"},
}
# The deck importer lies below the library, which calls it; the rest of its folder lies above.
LIBRARY_MAY_INCLUDE_OF_PRESENTATIONS = {"PptxImporter.h", "PresenterApp.h"}


def sources(*suffixes):
    listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], cwd=ROOT,
                            capture_output=True, text=True, check=True).stdout.splitlines()
    return [ROOT / name for name in listed if name.endswith(suffixes) and (ROOT / name).exists()]


def check_paths():
    text = (ROOT / "ARCHITECTURE.md").read_text()
    named = re.findall(r"`((?:Sources|Tests|Benchmarks|Resources|docs|tools)/[^`]*)`", text)
    assert named, "ARCHITECTURE.md names no path"
    return [f"ARCHITECTURE.md names {name}, which does not exist"
            for name in named if not (ROOT / name).exists()]


def is_adapter(path):
    relative = path.relative_to(SOURCES)
    return relative.parts[0] == "Platform" and (len(relative.parts) > 2 or path.suffix != ".h")


def check_includes():
    problems = []
    for path in sources(".h", ".cpp", ".mm"):
        if SOURCES not in path.parents or is_adapter(path):
            continue
        folder = path.relative_to(SOURCES).parts[0]
        if folder == "Shell":
            continue
        for target, rest in re.findall(r'#include "Orvello/(\w+)/([^"]+)"', path.read_text()):
            where = f"{path.relative_to(ROOT)} includes {target}/{rest}"
            if target == folder and "/" not in rest:
                continue
            if "/" in rest or target not in MAY_INCLUDE[folder]:
                problems.append(where)
            elif (folder, target) == ("Library", "Presentations") \
                    and rest not in LIBRARY_MAY_INCLUDE_OF_PRESENTATIONS:
                problems.append(where)
    return problems


def check_platforms():
    asks = re.compile(r"#\s*(?:if|ifdef|elif).*(?:__APPLE__|__linux__|__unix__|Q_OS_|_WIN32)")
    problems = []
    for path in sources(".h", ".cpp", ".mm"):
        if SOURCES in path.parents and "Platform" not in path.relative_to(SOURCES).parts \
                and asks.search(path.read_text()):
            problems.append(f"{path.relative_to(ROOT)} asks for an operating system")
    return problems


def check_library():
    # Numbers with a point as characters came with macOS 13.3, the others later.
    lacks = re.compile(r"std::(?:chars_format|jthread|stop_token|format\b|print(?:ln)?\b|pmr::)|from_chars<(?:double|float)>")
    problems = []
    for path in sources(".h", ".cpp", ".mm"):
        code = re.sub(r"//[^\n]*", "", path.read_text())
        if SOURCES in path.parents and "Linux" not in path.parts and lacks.search(code):
            problems.append(f"{path.relative_to(ROOT)} uses {lacks.search(code).group()}")
    return problems


def check_threads():
    starts_thread = re.compile(r"std::(?:thread|async)\b|\bQThread\b|\bpthread_create\b")
    problems = []
    for listing in sources("/CMakeLists.txt"):
        for name, call in re.findall(r"orvello_add_test\(\s*(\w+)([^)]*)\)", listing.read_text()):
            labels = re.search(r"LABELS\s+(\S+)", call)
            if labels and labels.group(1) != "unit":
                continue
            problems += [f"{source.relative_to(ROOT)} starts a thread, but {name} lacks the label unit-threads"
                         for source in (listing.parent / word for word in re.findall(r"\S+\.(?:cpp|h)", call))
                         if source.exists() and starts_thread.search(source.read_text())]
    return problems


def check_format():
    files = [str(path) for path in sources(".h", ".cpp", ".mm")]
    result = subprocess.run(["clang-format", "--dry-run", "--Werror", *files],
                            capture_output=True, text=True)
    return result.stderr.splitlines() if result.returncode else []


TRANSLATIONS = ROOT / "Resources" / "Translations"
# Forms that a language has for a number of things.
PLURAL_FORMS = {"de": 2, "es": 2, "fr": 2, "ja": 1, "pt_BR": 2, "zh_CN": 1}


def messages(file):
    """The messages of a .ts file by context and source text."""
    return {(context.findtext("name"), message.findtext("source")): message
            for context in xml.etree.ElementTree.parse(file).getroot().iter("context")
            for message in context.iter("message")}


def placeholders(text):
    """What stands for other texts, and what must stay as it is."""
    return sorted(set(re.findall(r"%n|%L?\d", text))), sorted(re.findall(r"</?\w+>", text)), text.count("\n")


def problems_of(language, source, message):
    """What is wrong with one message of a language that is complete."""
    translation = message.find("translation")
    if translation.get("type") is not None:
        return ["is unfinished"]
    forms = [form.text or "" for form in translation.iter("numerusform")] or [translation.text or ""]
    problems = []
    if message.get("numerus") == "yes" and len(forms) != PLURAL_FORMS[language]:
        problems.append(f"has {len(forms)} forms for numbers, not {PLURAL_FORMS[language]}")
    for form in forms:
        if not form.strip():
            problems.append("is empty")
        elif placeholders(form) != placeholders(source):
            problems.append(f"has other placeholders than the source: \"{form}\"")
        elif form[0].isspace() != source[0].isspace() or form[-1].isspace() != source[-1].isspace():
            problems.append("begins or ends with another blank than the source")
    return problems


def check_translations():
    lupdate, *complete = sys.argv[2:]
    with tempfile.TemporaryDirectory() as folder:
        extracted = pathlib.Path(folder) / "all.ts"
        subprocess.run([lupdate, "-silent", "-no-obsolete", "-I", str(ROOT / "Sources"), str(SOURCES), "-ts",
                        str(extracted)], check=True, capture_output=True)
        in_sources = messages(extracted).keys()
    assert in_sources, "the sources have no text to translate"
    files = sorted(TRANSLATIONS.glob("orvello_*.ts"))
    assert [file.stem for file in files] == [f"orvello_{language}" for language in sorted(PLURAL_FORMS)], files
    found = []
    for file in files:
        language = file.stem.removeprefix("orvello_")
        translated = messages(file)
        found += [f"{file.name} translates \"{source}\" of {context}, which no source says"
                  for context, source in sorted(translated.keys() - in_sources)]
        found += [f"{file.name} lacks \"{source}\" of {context}: run the target update-translations"
                  for context, source in sorted(in_sources - translated.keys())]
        if language in complete:
            found += [f"{file.name}: \"{source}\" of {context} {problem}"
                      for (context, source), message in translated.items()
                      for problem in problems_of(language, source, message)]
    return found


CHECKS = {"paths": check_paths, "includes": check_includes, "platforms": check_platforms,
          "library": check_library, "threads": check_threads, "format": check_format, "translations": check_translations}

if __name__ == "__main__":
    found = CHECKS[sys.argv[1]]()
    print("\n".join(found[:60]))
    sys.exit(bool(found))
