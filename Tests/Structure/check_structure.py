"""Holds the tree against what its papers and its CMake files say.

    check_structure.py paths      each path that the papers name exists
    check_structure.py graph GRAPH          the arrows of CMake's graph run down, and no others are in the sources
    check_structure.py walls COMMANDS ROOTS  the compiler finds no header that a library does not name
    check_structure.py platforms  nothing outside Adapters/ asks for an operating system
    check_structure.py library    nothing uses what the C++ library of macOS 13.0 lacks, and Linux has
    check_structure.py threads    ThreadSanitizer gets to see each unit test that starts a thread
    check_structure.py format     the sources are laid out as clang-format 14 does it
    check_structure.py translations LUPDATE   each translation file has the texts of the sources and no others,
                                  every one translated
"""

import json
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

ROOT = pathlib.Path(__file__).resolve().parents[2]
SOURCES = ROOT / "Sources" / "Orvello"

# Where programs link the adapters, which open windows, devices and connections.
MAY_LINK_ADAPTERS = ("Sources/Orvello/Adapters/", "Sources/Orvello/Shell/App", "Tests/Adapters", "Tests/EndToEnd", "Tests/MacOS",
                     "Benchmarks")


def sources(*suffixes):
    listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], cwd=ROOT,
                            capture_output=True, text=True, check=True).stdout.splitlines()
    return [ROOT / name for name in listed if name.endswith(suffixes) and (ROOT / name).exists()]


def check_paths():
    problems = []
    for paper in ("ARCHITECTURE.md", "CONTRIBUTING.md", "docs/decisions.md", "docs/macos.md"):
        named = re.findall(r"`((?:Sources|Tests|Benchmarks|Resources|docs|tools|cmake)/[^`*… ]*)", (ROOT / paper).read_text())
        assert named, f"{paper} names no path"
        problems += [f"{paper} names {name}, which does not exist" for name in named if not (ROOT / name).exists()]
    return problems


def read_graph(path):
    """What CMake wrote of each target: its folder, its name, and the names of the libraries that it depends on."""
    lines = [re.fullmatch(r"(\S+) ([^:]+):(.*)", line) for line in pathlib.Path(path).read_text().splitlines()]
    targets = [(line.group(1), line.group(2), line.group(3).split()) for line in lines]
    libraries = {name: (folder.removeprefix("Sources/Orvello/"), depends) for folder, name, depends in targets
                 if folder.startswith("Sources/") and name != "orvello"}
    assert len(libraries) > 20, "CMake's graph is empty"
    return libraries, targets


def check_picture(libraries):
    """The picture of ARCHITECTURE.md: each library once, above all that it depends on."""
    picture = re.search(r"CMake's graph. -->\n```\n(.*?)```", (ROOT / "ARCHITECTURE.md").read_text(), re.DOTALL).group(1)
    folders = {folder for folder, _ in libraries.values()}
    line_of, problems = {}, []
    for number, line in enumerate(picture.splitlines()):
        for word in re.findall(r"[\w/]+", line):
            if word in line_of and word in folders:
                problems.append(f"ARCHITECTURE.md draws {word} twice")
            elif "/" in word and not (SOURCES / word).is_dir():
                problems.append(f"ARCHITECTURE.md draws {word}, which does not exist")
            line_of[word] = number
    for folder, depends in libraries.values():
        if folder not in line_of:
            problems.append(f"ARCHITECTURE.md does not draw {folder}")
            continue
        problems += [f"ARCHITECTURE.md draws {folder} no higher than {libraries[other][0]}, on which it depends" for other in depends
                     if line_of.get(libraries[other][0], -1) <= line_of[folder]]
    return problems


def check_graph():
    libraries, targets = read_graph(sys.argv[2])
    problems = []

    # No cycles: take away what depends on nothing that is left, until nothing is.
    left = dict(libraries)
    while ready := [name for name, (_, depends) in left.items() if not any(other in left for other in depends)]:
        for name in ready:
            del left[name]
    problems += [f"{folder} is part of a cycle" for folder, _ in left.values()]

    problems += [f"Foundation depends on {other}" for other in libraries["Foundation"][1]]
    is_adapter = lambda name: name.startswith("Adapters")
    problems += [f"{name} in {folder} links {other}" for folder, name, depends in targets for other in depends
                 if is_adapter(other) and not folder.startswith(MAY_LINK_ADAPTERS)]
    problems += [f"{folder} links {other}" for name, (folder, depends) in libraries.items() for other in depends
                 if is_adapter(other) and not is_adapter(name)]

    problems += check_picture(libraries)

    # What is named but not included would draw arrows that are not there. Headers are followed, as the compiler does.
    by_folder = {folder: set(depends) for folder, depends in libraries.values()}
    name_of = {folder: name for name, (folder, _) in libraries.items()}
    includes = {}
    for path in sources(".h", ".cpp", ".mm", ".h.in"):
        if SOURCES in path.parents:
            names = re.findall(r'#(?:include|import) "(?:Orvello/([^"]+)|Version[.]h)"', path.read_text())
            includes[str(path.relative_to(SOURCES))] = [name or "Shell/Launch/Version.h.in" for name in names]
    for folder, depends in by_folder.items():
        seen, waiting = set(), [name for name in includes if str(pathlib.PurePath(name).parent) == folder]
        while waiting:
            name = waiting.pop()
            if name not in seen:
                seen.add(name)
                waiting += includes.get(name, [])
        used = {name_of[str(pathlib.PurePath(name).parent)] for name in seen} - {name_of[folder]}
        problems += [f"{folder} names {other}, of which it includes nothing" for other in sorted(depends - used - {"ShellViews"})]
        problems += [f"{folder} includes from {other}, which it does not name" for other in sorted(used - depends)]
    return problems


def check_walls():
    """Asks the compiler itself, with each library's own flags, for a header of each library that it does not name."""
    commands, roots = json.loads(pathlib.Path(sys.argv[2]).read_text()), pathlib.Path(sys.argv[3])
    libraries, _ = read_graph(roots.parent / "graph.txt")
    header = {name: sorted((SOURCES / folder).glob("*.h"))[0].relative_to(SOURCES) for name, (folder, _) in libraries.items()
              if (SOURCES / folder).glob("*.h") and name in (path.name for path in roots.iterdir())}
    problems = []
    with tempfile.TemporaryDirectory() as scratch:
        probe = pathlib.Path(scratch) / "probe.cpp"
        for name, (folder, depends) in libraries.items():
            flags = next((entry for entry in commands
                          if pathlib.Path(entry["file"]).parent == SOURCES / folder), None)
            if flags is None:
                continue # Headers alone, or another platform's.
            words = shlex.split(flags["command"])
            words = words[next(i for i, word in enumerate(words) if "/" in word and "ccache" not in word):words.index("-o")]
            options = ("-MT", "-MF", "-include") # With the word after it; a precompiled header is no wall.
            words = [word for i, word in enumerate(words) if word not in ("-MD", *options) and words[i - 1] not in options]

            def complaint(*lines):
                probe.write_text("\n".join(lines) + "\n")
                return subprocess.run([*words, "-fsyntax-only", str(probe)], cwd=flags["directory"], capture_output=True, text=True).stderr

            lines = [f'#if {"!" if other in (name, *depends) else ""}__has_include("Orvello/{path}")\n#error wrong {other}\n#endif'
                     for other, path in header.items()]
            problems += [f"{folder} {'does not see' if other in (name, *depends) else 'sees'} {other}"
                         for other in sorted(set(re.findall(r"#error wrong (\w+)", complaint(*lines))))]
            if name == "Foundation":
                for other, is_found in (("Foundation", True), ("LibraryStore", False)):
                    answer = complaint(f'#include "Orvello/{header[other]}"')
                    if ("No such file" in answer or "not found" in answer) == is_found or is_found == bool(answer):
                        problems.append(f"{folder} on an include of {header[other]}: {answer}")
    return problems


def check_platforms():
    asks = re.compile(r"#\s*(?:if|ifdef|elif).*(?:__APPLE__|__linux__|__unix__|Q_OS_|_WIN32)")
    problems = []
    for path in sources(".h", ".cpp", ".mm"):
        if SOURCES in path.parents and "Adapters" not in path.relative_to(SOURCES).parts \
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
    result = subprocess.run(["clang-format-14", "--dry-run", "--Werror", *files],
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
    """What is wrong with one message of a language."""
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
    lupdate = sys.argv[2]
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
        found += [f"{file.name}: \"{source}\" of {context} {problem}"
                  for (context, source), message in translated.items()
                  for problem in problems_of(language, source, message)]
    return found


CHECKS = {"paths": check_paths, "graph": check_graph, "walls": check_walls, "platforms": check_platforms,
          "library": check_library, "threads": check_threads, "format": check_format, "translations": check_translations}

if __name__ == "__main__":
    found = CHECKS[sys.argv[1]]()
    print("\n".join(found[:60]))
    sys.exit(bool(found))
