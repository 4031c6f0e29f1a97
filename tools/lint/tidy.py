#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs clang-tidy over C++ files, many files in one unit.

Most of clang-tidy's time goes into the toolkit's headers. So the files of a folder are read as one
unit, with the options of all. Files that cannot be read together (two of them have a private name in
common, or one has errors) are told by a quick look and go into further units.

usage: tidy.py [--jobs N] [--analyze] BUILD FILE...
    BUILD      a configured build folder (compile_commands.json)
    --analyze  the static analyser too; it takes as long as all other checks together
"""
import argparse
import json
import os
import re
import shlex
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

MOST_FILES = 40
# Looks at no more than the preprocessor does, so that only the compiler's own errors are found.
QUICK_LOOK = "--checks=-*,modernize-deprecated-headers"
ERROR = re.compile(r"^(/[^:\n]+):\d+:\d+: error: .*\[clang-diagnostic-error", re.MULTILINE)


def options_by_file(build):
    """The compiler's options of each source file, without what differs from target to target."""
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as text:
        commands = json.load(text)
    options = {}
    for entry in commands:
        words = shlex.split(entry["command"])[1:]
        output = words.index("-o")
        del words[output : output + 2]
        words = [w for w in words if w != "-c" and w != entry["file"] and "_autogen/" not in w]
        if "-Winvalid-pch" in words:  # the compiler's precompiled headers say nothing to another one
            words.remove("-Winvalid-pch")
            headers = words.index("-include")
            del words[headers : headers + 2]
        own = options[os.path.realpath(entry["file"])] = []
        for word in words:  # an option and its value become one word
            if own and own[-1] == "-isystem":
                own[-1] += word
            else:
                own.append(word)
    return options


def definitions(words):
    """The values of the macros that options define."""
    return dict((w[2:].split("=", 1) + [""])[:2] for w in words if w.startswith("-D"))


def groups(files, options):
    """Lists of files of one folder whose options do not contradict each other, with all of these."""
    found = {}
    for file in files:
        path = os.path.realpath(file)
        if path not in options:
            continue
        own = definitions(options[path])
        of_folder = found.setdefault(file.split("/")[0], [])
        for words, paths in of_folder:
            values = definitions(words)
            if len(paths) < MOST_FILES and all(values.get(name, own[name]) == own[name] for name in own):
                break
        else:
            words, paths = [], []
            of_folder.append((words, paths))
        words.extend(w for w in options[path] if w not in words)
        paths.append(path)
    return [group for of_folder in found.values() for group in of_folder]


def stand_in_for_moc(path, folder):
    """moc's output is not there before a build, and not ours to check."""
    with open(path, encoding="utf-8") as text:
        for name in re.findall(r'#include "(\w+\.moc)"', text.read()):
            open(os.path.join(folder, name), "w", encoding="utf-8").close()


def clang_tidy(checks, words, paths, folder):
    """Lets clang-tidy read the files as one unit. A unit lies outside the tree's configuration,
    which is therefore named; warnings (-w) are the build's matter."""
    unit = paths[0]
    if len(paths) > 1:
        unit = os.path.join(folder, "unit-%s-%d.cpp" % (re.sub(r"\W", "_", paths[0]), len(paths)))
        with open(unit, "w", encoding="utf-8") as text:
            text.writelines('#include "%s"\n' % path for path in paths)
    command = ["clang-tidy", "--quiet", "--config-file=.clang-tidy", *checks, unit]
    command += ["--", "-w", "-ferror-limit=0", *words, "-I" + folder]
    return subprocess.run(command, capture_output=True, text=True, check=False)


def units(words, paths, folder):
    """The files in lists that can be read together."""
    while len(paths) > 1:
        wrong = set(ERROR.findall(clang_tidy([QUICK_LOOK], words, paths, folder).stdout))
        later = [path for path in paths if path in wrong]
        if not wrong:
            break
        if not later or len(later) == len(paths):  # the fault is the first file's, or a header's
            later = paths[1:]
        yield [path for path in paths if path not in later]
        paths = later
    yield paths


def check(checks, words, paths, folder):
    """What clang-tidy says about the files, as a list of messages."""
    messages = []
    for path in paths:
        stand_in_for_moc(path, folder)
    waiting = list(units(words, paths, folder))
    while waiting:
        together = waiting.pop()
        ended = clang_tidy(checks, words, together, folder)
        said = ended.stdout.strip()
        wrong = set(ERROR.findall(said)) if len(together) > 1 else set()
        if wrong:  # the quick look sees no error behind another one
            alone = [path for path in together if path in wrong] or together
            rest = [path for path in together if path not in alone]
            waiting += [[path] for path in alone] + ([rest] if rest else [])
        elif said:
            messages += re.split(r"\n(?=/)", said)
        elif ended.returncode != 0:
            messages.append(ended.stderr)
    return messages


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--analyze", action="store_true")
    parser.add_argument("build")
    parser.add_argument("files", nargs="+")
    given = parser.parse_args()

    folder = os.path.realpath(os.path.join(given.build, "lint"))
    os.makedirs(folder, exist_ok=True)
    checks = ["--checks=clang-analyzer-*"] if given.analyze else []
    work = sorted(groups(given.files, options_by_file(given.build)), key=lambda g: -len(g[1]))
    messages = {}
    with ThreadPoolExecutor(given.jobs) as pool:
        for found in pool.map(lambda g: check(checks, *g, folder), work):
            for message in found:
                messages.setdefault(message.splitlines()[0].replace(os.getcwd() + "/", ""), message)
    for _, message in sorted(messages.items()):
        print(message.replace(os.getcwd() + "/", ""))
    print("clang-tidy: %d files, %d findings" % (sum(len(p) for _, p in work), len(messages)))
    return 1 if messages else 0


if __name__ == "__main__":
    sys.exit(main())
