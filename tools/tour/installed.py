#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A first day with the installed program, in a home that holds nothing and with its sockets watched.

Usage: installed.py OUT_FOLDER
"""
import glob
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile

from gi.repository import Gio, GLib

from desktop import Program, file_text, run, wait_for
from moves import Tour, check, step
from session import SessionManager


INSTALLED = "/usr/bin/velor-web-creator"
KEPT_AT_EXIT = 6  # kind of a journal's record


def velor_open_begun(tour, arguments, folder):
    return subprocess.Popen([os.path.join(os.path.dirname(INSTALLED), "velor-open"), *arguments], cwd=folder,
                            env=tour.program.environment, stderr=subprocess.PIPE, text=True)


def velor_open(tour, arguments, folder):
    """Its exit status, and what it said."""
    running = velor_open_begun(tour, arguments, folder)
    said = running.communicate(timeout=60)[1]
    return running.returncode, said


def ask_on_bus(name, place, interface, method, parameters):
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    bus.call_sync(name, place, interface, method, parameters, None, Gio.DBusCallFlags.NONE, -1, None)


def ask_as_desktop(method, parameters):
    ask_on_bus("com.velor.WebCreator", "/com/velor/WebCreator", "org.freedesktop.Application", method, parameters)


def titles(tour):
    return [subprocess.run(["xdotool", "getwindowname", window], capture_output=True, text=True, check=False).stdout
            for window in tour.program.visible_windows()]


def end_started(tour):
    """Ends the program that another one started, and waits for that."""
    window = wait_for(tour.program.visible_windows, "the window of the program")[0]
    started = int(run("xdotool", "getwindowpid", window))
    os.kill(started, signal.SIGTERM)
    wait_for(lambda: not os.path.exists(f"/proc/{started}"), "the program to end")


class FirstDay(Tour):
    """A program that nobody told where its folder is."""

    def __init__(self, out):
        self.out = out
        self.scratch = tempfile.mkdtemp(prefix="velor-home-")
        self.folder = os.path.join(self.scratch, ".local/share/velor-web-creator")
        self.sockets = os.path.join(out, "sockets.log")
        self.executable = os.path.join(self.scratch, "watched")
        with open(self.executable, "w", encoding="utf-8") as script:
            # Under -D the program, not strace, has the process that is started.
            script.write(f'#!/bin/sh\nexec strace -D -f --seccomp-bpf -qq -e trace=network -A -o "{self.sockets}" "{INSTALLED}"\n')
        os.chmod(self.executable, 0o755)
        self.session = SessionManager(self.scratch)
        self.program = None

    def journal_records(self):
        """The kinds of the records in the journals of unsaved pages; recovery/JournalFormat.cpp has their form."""
        kinds = []
        for path in glob.glob(os.path.join(self.scratch, ".local/state/velor-web-creator/recovery/*/*.page")):
            with open(path, "rb") as file:
                records = file.read().split(b"\n", 1)[1]
            while len(records) > 16:
                kinds.append(records[16])
                records = records[16 + int.from_bytes(records[:8], sys.byteorder):]
        return kinds

    def start(self):
        home = {"HOME": self.scratch, "SESSION_MANAGER": self.session.address, "VELOR_PROGRAM_FOLDER": "", "XDG_CONFIG_HOME": "", "XDG_DATA_HOME": "",
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
    step("F1 shows the installed manual")
    tour.program.key("F1")
    tour.program.wait("Design view", "list item")
    tour.program.shot("manual")
    tour.program.key("Escape")
    tour.program.wait_gone("Velor Web Creator Manual", "dialog")
    tour.program.activate()
    step("velor-open opens pages in the program that runs")
    pages = os.path.join(tour.scratch, "my pages")
    os.makedirs(pages)
    names = ["a b#1%20.htm", "ä.htm", "third.html", "fourth.htm", "fifth.htm"]
    for name in names:
        with open(os.path.join(pages, name), "w", encoding="utf-8") as file:
            file.write("<html><body>\n<p>One\n<p>Two\n</body></html>\n")
    check(velor_open(tour, names[:3], pages) == (0, ""), "three pages")
    for name in names[:3]:
        tour.tab(name)
    check(velor_open(tour, ["none.htm"], pages)[0] == 1, "a page that is not there opened")
    check("none.htm" in velor_open(tour, ["none.htm"], pages)[1], "the sentence names the page")
    check(velor_open(tour, ["--line", "x", "a.htm"], pages)[0] == 2, "a line that is no number was taken")
    check(velor_open(tour, ["--line", "3", names[0]], pages) == (0, ""), "a line of a page that is open")
    tour.program.wait("Line 3, Column 1", "label")
    tour.program.shot("source-line")

    step("a second start brings the program to the front and ends")
    run("xdotool", "windowminimize", tour.program.window_id)
    wait_for(lambda: tour.program.window_id not in tour.program.visible_windows(), "the window to be minimised")
    check(subprocess.run([INSTALLED], env=tour.program.environment, timeout=60, check=False).returncode == 0,
          "the second start failed")
    wait_for(lambda: run("xdotool", "getactivewindow").strip() == tour.program.window_id, "the window to come to the front")

    step("the sixth page says once that there are too many")
    late = velor_open_begun(tour, names[3:], pages)
    tour.answer("Too many Pages are opened. Please close one or two File(s), and then try to open it.", "OK")
    sentences = late.communicate(timeout=60)[1]
    check(late.returncode == 1 and names[4] in sentences and names[3] not in sentences, f"it said {sentences!r}")

    step("the end of the session keeps what was typed, and may be called off")
    tour.program.type("kept ")
    wait_for(tour.journal_records, "the journal of what was typed")
    check(KEPT_AT_EXIT not in tour.journal_records(), "the page was kept too early")
    tour.session.ask_to_save()
    check(KEPT_AT_EXIT in tour.journal_records(), "the program kept nothing at the session's end")
    tour.session.call_off()
    step("the end of the terminal keeps what was typed")
    tour.program.process.send_signal(signal.SIGHUP)
    status = tour.program.wait_end()
    check(status == 0, f"the program ended with status {status}")
    tour.start()
    tour.program.wait("Restore all pages", "push button|button")
    tour.program.shot("kept")

    step("the desktop opens pages and calls actions")
    ask_as_desktop("Open", GLib.Variant("(asa{sv})", ([f"file://{pages}/fifth.htm"], {})))
    tour.tab("fifth.htm")
    ask_as_desktop("ActivateAction", GLib.Variant("(sava{sv})", ("project-manager", [], {})))
    tour.program.wait("Web Site Project Manager", "dialog|frame|window")
    tour.program.shot("project-manager")
    tour.program.key("Escape")
    tour.program.wait_gone("Web Site Project Manager", "dialog|frame|window")
    ask_as_desktop("ActivateAction", GLib.Variant("(sava{sv})", ("recent-files", [], {})))
    tour.program.wait("Recent Files", "dialog")
    tour.program.shot("recent-files")
    tour.program.key("Escape")
    tour.program.wait_gone("Recent Files", "dialog")

    step("exit leaves nothing running")
    tour.program.open_popup(lambda: tour.program.key("alt+f"))
    tour.program.key("x")
    status = tour.program.wait_end()
    check(status == 0, f"the program ended with status {status}")
    step("velor-open starts the program where none runs")
    check(velor_open(tour, [names[2]], pages) == (0, ""), "no program was started")
    end_started(tour)
    step("the desktop starts the program where none runs, and it opens the page")
    ask_on_bus("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "UpdateActivationEnvironment",
               GLib.Variant("(a{ss})", (tour.program.environment,)))
    page = GLib.filename_to_uri(os.path.join(pages, names[0]))
    ask_as_desktop("Open", GLib.Variant("(asa{sv})", ([page], {})))
    wait_for(lambda: any(names[0] in title for title in titles(tour)), "the page's window")
    end_started(tour)
    step("nothing was sent to another machine")
    calls = file_text(tour.sockets).splitlines()
    check(any("AF_UNIX" in call for call in calls), "no socket was watched")
    sent = [call for call in calls if re.search(r"(connect|send\w*)\(.*AF_INET", call)]
    check(not sent, f"the program reached out: {sent}")


if __name__ == "__main__":
    out_folder = os.path.abspath(sys.argv[1])
    shutil.rmtree(out_folder, ignore_errors=True)
    os.makedirs(out_folder)
    FirstDay(out_folder).carry_out([day])
