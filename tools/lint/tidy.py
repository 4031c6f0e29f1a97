#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs clang-tidy over C++ files, many files in one unit.

Most of clang-tidy's time goes into the toolkit's headers. So the files of a folder that are
compiled alike are read as one unit. Files that cannot be read together (two of them have a private
name in common) are read in two halves, and so on down to a single file, whose errors are its own.

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

MOST_FILES = 24
CLASH = "clang-diagnostic-error"


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
        options[os.path.realpath(entry["file"])] = tuple(words)
    return options


def groups(files, options):
    """Lists of files of one folder that are compiled alike."""
    found = {}
    for file in files:
        path = os.path.realpath(file)
        if path in options:
            found.setdefault((options[path], file.split("/")[0]), []).append(path)
    for (words, _), paths in found.items():
        for start in range(0, len(paths), MOST_FILES):
            yield words, paths[start : start + MOST_FILES]


def stand_in_for_moc(path, folder):
    """moc's output is not there before a build, and not ours to check."""
    with open(path, encoding="utf-8") as text:
        for name in re.findall(r'#include "(\w+\.moc)"', text.read()):
            open(os.path.join(folder, name), "w", encoding="utf-8").close()


def check(words, paths, folder, checks):
    """What clang-tidy says about the files, as a list of messages."""
    unit = paths[0]
    for path in paths:
        stand_in_for_moc(path, folder)
    if len(paths) > 1:
        unit = os.path.join(folder, "unit-%s.cpp" % re.sub(r"\W", "_", paths[0] + str(len(paths))))
        with open(unit, "w", encoding="utf-8") as text:
            text.writelines('#include "%s"\n' % path for path in paths)
    command = ["clang-tidy", "--quiet", *checks, unit, "--", "-w", *words, "-I" + folder]
    ended = subprocess.run(command, capture_output=True, text=True, check=False)
    if len(paths) > 1 and CLASH in ended.stdout:
        middle = len(paths) // 2
        return check(words, paths[:middle], folder, checks) + check(
            words, paths[middle:], folder, checks
        )
    if ended.returncode != 0 and not ended.stdout.strip():
        return [ended.stderr]
    return re.split(r"\n(?=/)", ended.stdout.strip()) if ended.stdout.strip() else []


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--analyze", action="store_true")
    parser.add_argument("build")
    parser.add_argument("files", nargs="+")
    given = parser.parse_args()

    folder = os.path.realpath(os.path.join(given.build, "lint"))
    os.makedirs(folder, exist_ok=True)
    # Warnings (-w) are the build's matter. A unit lies outside the tree's configuration, which is therefore named.
    checks = ["--config-file=.clang-tidy"]
    if given.analyze:
        checks.append("--checks=clang-analyzer-*")
    work = sorted(groups(given.files, options_by_file(given.build)), key=lambda g: -len(g[1]))
    messages = {}
    with ThreadPoolExecutor(given.jobs) as pool:
        for found in pool.map(lambda g: check(*g, folder, checks), work):
            for message in found:
                messages.setdefault(message.splitlines()[0].replace(os.getcwd() + "/", ""), message)
    for _, message in sorted(messages.items()):
        print(message.replace(os.getcwd() + "/", ""))
    print("clang-tidy: %d files, %d findings" % (sum(len(p) for _, p in work), len(messages)))
    return 1 if messages else 0


if __name__ == "__main__":
    sys.exit(main())
