#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A first day with the installed program, in a home that holds nothing and with its sockets watched.

Usage: installed.py EXECUTABLE OUT_FOLDER
"""
import os
import re
import shutil
import sys
import tempfile

from desktop import Program, file_text, wait_for
from moves import Tour, check, step


class FirstDay(Tour):
    """A program that nobody told where its folder is."""

    def __init__(self, executable, out):
        self.out = out
        self.scratch = tempfile.mkdtemp(prefix="velor-home-")
        self.folder = os.path.join(self.scratch, ".local/share/velor-web-creator")
        self.sockets = os.path.join(out, "sockets.log")
        self.executable = os.path.join(self.scratch, "watched")
        with open(self.executable, "w", encoding="utf-8") as script:
            # Under -D the program, not strace, has the process that is started.
            script.write(f'#!/bin/sh\nexec strace -D -f --seccomp-bpf -qq -e trace=network -o "{self.sockets}" "{executable}"\n')
        os.chmod(self.executable, 0o755)
        self.program = None

    def start(self):
        home = {"HOME": self.scratch, "VELOR_PROGRAM_FOLDER": "", "XDG_CONFIG_HOME": "", "XDG_DATA_HOME": "",
                "XDG_CACHE_HOME": "", "XDG_STATE_HOME": ""}
        self.program = Program(self.executable, self.scratch, self.scratch, self.out, home)
        self.program.size_window(1280, 860)


def day(tour):
    step("the first start asks nothing and opens on the sample")
    tour.start()
    check(os.path.exists(os.path.join(tour.folder, "eThumbs.mdb")), "the sample catalogue is missing")
    site = file_text(os.path.join(tour.folder, "SiteConfig.ini"))
    check(site == f'"{tour.folder}"\r\n', f"SiteConfig.ini holds {site!r}")
    step("a sample page is opened, edited and saved")
    page = os.path.join(tour.folder, "Sites/Garden/Index.htm")
    before = file_text(page)
    tour.open(page)
    tour.program.type("Hello ")
    tour.program.shot("installed")
    tour.program.key("ctrl+s")
    wait_for(lambda: file_text(page) != before, "the page to be written")
    after = file_text(page)
    check(after.replace("Hello ", "", 1) == before, f"the page holds {after!r}")
    step("exit leaves nothing running")
    tour.program.open_popup(lambda: tour.program.key("alt+f"))
    tour.program.key("x")
    status = tour.program.wait_end()
    check(status == 0, f"the program ended with status {status}")
    step("nothing was sent to another machine")
    calls = file_text(tour.sockets).splitlines()
    check(any("AF_UNIX" in call for call in calls), "no socket was watched")
    sent = [call for call in calls if re.search(r"(connect|send\w*)\(.*AF_INET", call)]
    check(not sent, f"the program reached out: {sent}")


if __name__ == "__main__":
    program, out_folder = (os.path.abspath(argument) for argument in sys.argv[1:3])
    shutil.rmtree(out_folder, ignore_errors=True)
    os.makedirs(out_folder)
    first = FirstDay(program, out_folder)
    try:
        day(first)
    except Exception:
        if first.program is not None:
            first.program.shot("failure")
        raise
    finally:
        first.end()
