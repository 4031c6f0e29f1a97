#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks that every text of the program has a translation in each language, and that it fits.

Usage: translations.py [--update]    --update brings the files in resources/translations up to date;
texts that are new in them wait for their translation (type="unfinished").
"""
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as Xml
from pathlib import Path

FOLDER = Path("resources/translations")
LUPDATE = "/usr/lib/qt6/bin/lupdate"
# Texts that look like words and are none that a person reads in the program's language.
OWN = re.compile(
    r"^(HTML Files? |Data Source=|Lucida Console|Untitled New Page|Not allowed to load|"
    r"Create |Select |Update | where | Order by |SQLite |MMMM |Example |Exampletown|\d |"
    r"site links|CR LF|px solid|document\.|velor\.)"
)
LITERAL = re.compile(r'QStringLiteral\(\s*"((?:[^"\\\n]|\\.)*)"')
SENTENCE = re.compile(r"[A-Za-z]{2,} [a-z]{2,}")


def sources():
    names = subprocess.run(
        ["git", "ls-files", "*.cpp", "*.h"], capture_output=True, text=True, check=True
    ).stdout.split()
    return [name for name in names if not name.startswith(("tests/", "bench/", "tools/"))]


def update(files):
    result = subprocess.run(
        [LUPDATE, "-silent", "-no-obsolete", "-locations", "none", "-tr-function-alias", "tr+=Mark",
         "-I", ".", *sources(), "-ts", *map(str, files)],
        capture_output=True, text=True, check=True)
    return [line for line in result.stderr.splitlines() if "Qualifying" not in line]


def messages(path):
    """(context, source) -> (translations, finished), of a translation's source."""
    found = {}
    for context in Xml.parse(path).getroot().iter("context"):
        name = context.findtext("name")
        for message in context.iter("message"):
            translation = message.find("translation")
            forms = [form.text or "" for form in translation.iter("numerusform")]
            found[name, message.findtext("source")] = (
                forms or [translation.text or ""], translation.get("type") != "unfinished")
    return found


def marks(text):
    return sorted(re.findall(r"%(?:L?\d|n)", text))


def faults(path, known, current):
    """What is wrong in one translation: `known` as it stands, `current` as the program needs it."""
    for key in current.keys() - known.keys():
        yield f"{path}: not there: {key[1]!r}"
    for key in known.keys() - current.keys():
        yield f"{path}: no longer in the program: {key[1]!r}"
    for (context, source), (forms, finished) in known.items():
        if not context.startswith("velor::"):
            yield f"{path}: {source!r} has the context {context!r}"
        for form in forms:
            if not finished or not form:
                yield f"{path}: not translated: {source!r}"
            elif marks(form) != marks(source):
                yield f"{path}: other placeholders: {source!r}: {form!r}"
            elif len(re.findall("&(?=[^ &])", form)) > len(re.findall("&(?=[^ &])", source)):
                yield f"{path}: other keys for Alt: {source!r}: {form!r}"
            elif source.count("|") != form.count("|"):
                yield f"{path}: other file patterns: {source!r}: {form!r}"


def unmarked():
    """Sentences that no translation can reach."""
    for name in sources():
        text = Path(name).read_text(encoding="utf-8")
        for match in LITERAL.finditer(text):
            words = match.group(1)
            if SENTENCE.search(words) and not OWN.search(words) and not words.lstrip().startswith("<"):
                line = text.count("\n", 0, match.start()) + 1
                yield f"{name}:{line}: goes not through Words::tr: {words!r}"


def main():
    files = sorted(FOLDER.glob("*.ts"))
    if "--update" in sys.argv:
        print("\n".join(update(files)))
        return 0
    found = list(unmarked())
    with tempfile.TemporaryDirectory() as folder:
        copies = [Path(folder) / path.name for path in files]
        for path, copy in zip(files, copies):
            copy.write_bytes(path.read_bytes())
        found += update(copies)
        for path, copy in zip(files, copies):
            found += sorted(set(faults(path, messages(path), messages(copy))))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
