#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Screenshots of every window of the program, idle and with the pointer on a control, for one
palette and scale.

Usage: screenshots.py RUN_FOLDER OUT_FOLDER light|dark SCALE_PERCENT
"""
import os
import shutil
import sys
import tempfile

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tour"))
from desktop import Program, TourError, wait_for  # noqa: E402


class Photographer:
    """Takes the program through its windows; pictures are numbered in the order of the tour."""

    def __init__(self, program, name, factor):
        self.program = program
        self.name = name
        self.factor = factor
        self.count = 0
        self.windows = len(program.visible_windows())

    def shot(self, what):
        """Once what it shows has settled; a caret or the About box never quite does."""
        self.count += 1
        last = None
        for _ in range(6):
            with open(self.program.shot(f"{self.name}-{self.count:02}-{what}"), "rb") as picture:
                before, last = last, picture.read()
            if last == before:
                break

    def hover(self, name, role=None, within=None):
        self.program.hover(self.program.wait(name, role, within))

    def click(self, name, role="push button|toggle button|button|check box"):
        """By the pointer: a press through the accessibility bus would wait for the dialog's end."""
        self.hover(name, role)
        self.program.button(1)

    def list_of(self, name):
        """Drops an editable box's list down, by its button at the right end."""
        box = self.program.wait(name, "combo box")
        self.program.hover(box, across=0.95)
        self.program.button(1)

    def away(self):
        self.program.move(int(1270 * self.factor), int(810 * self.factor))

    def dialog(self, opener, what, hovered):
        """Opens a dialog, shows it idle and hovered, and closes it by Escape."""
        opener()
        self.program.wait(*hovered)
        self.shot(what)
        self.hover(*hovered)
        self.shot(what + "-hovered")
        self.away()
        self.close(what)

    def popup(self, opener, what, *further):
        self.away()
        wait_for(self.is_alone, "tooltips to go")
        self.program.open_popup(opener)
        for key in further:
            self.program.key(key)
        self.shot(what)
        self.close(what)

    def is_alone(self):
        """Whether the main window is all that is on the screen."""
        return len(self.program.visible_windows()) <= self.windows

    def close(self, what):
        def closed():
            if self.is_alone():
                return True
            self.program.key("Escape")
            return False
        wait_for(closed, f"{what} to close")


def main_window(photos):
    program = photos.program
    photos.shot("no-page")
    photos.hover("Block Format", "combo box")
    photos.shot("no-page-combo-hovered")
    for number in range(1, 6):
        program.key("ctrl+n")
        program.wait(f"Untitled {number}", "page tab")
    program.type("A page that somebody is writing")
    program.key("shift+ctrl+Left")
    program.press("Bold")
    photos.away()
    photos.shot("five-pages")
    photos.hover("Bold")
    photos.shot("five-pages-button-hovered")
    middle = int(500 * photos.factor)
    photos.popup(lambda: program.click(middle, middle, 3), "context-menu", "Down", "Down")
    photos.popup(lambda: program.key("alt+f"), "file-menu", "Down")
    photos.popup(lambda: program.key("alt+v"), "view-menu", "Right", "Down")
    photos.popup(lambda: photos.click("Text Color"), "colour-palette", "Down")
    photos.popup(lambda: photos.click("Block Format", "combo box"), "combo-list")
    photos.popup(lambda: photos.list_of("Font"), "font-list", "Down")


def dialogs(photos):
    program = photos.program

    def item(*keys):
        return lambda: program.open_popup(lambda: program.key(keys[0])) or program.key(*keys[1:])

    def tab_of(opener, tab):
        return lambda: photos.click(opener) or photos.click(tab, "page tab")

    photos.dialog(lambda: photos.click("Image"), "image-dialog", ("Browse...",))
    photos.dialog(tab_of("Image", "Appearance"), "image-dialog-appearance", ("Alignment:", "combo box"))
    photos.dialog(item("alt+i", "Down", "Return"), "link-dialog", ("Target Frame:", "combo box"))
    photos.dialog(tab_of("Project Manager", "Web Pages"), "project-pages", ("Open", "push button"))
    photos.dialog(lambda: photos.click("Table"), "table-dialog", ("Cancel",))
    photos.dialog(lambda: photos.click("Project Manager"), "project-manager", ("Open", "push button"))
    photos.dialog(lambda: photos.click("About"), "about-box", ("Close",))
    photos.dialog(lambda: program.key("ctrl+o"), "message-box", ("OK",))


def modes(photos):
    program = photos.program
    page = program.wait("Untitled 5", "frame")
    for mode in ("View HTML", "Edit HTML"):
        program.press(mode, within=page)
        photos.shot(mode.lower().replace(" ", "-"))
    program.wait("HTML source", within=page)
    program.key("ctrl+h")
    program.wait("Replace with", "text")
    program.type("page")
    photos.shot("edit-html-find-bar")
    program.key("Escape", "ctrl+F4")
    program.press("Preview", within=page)
    photos.shot("preview")
    program.key("ctrl+F4")
    photos.dialog(lambda: program.key("ctrl+F4"), "close-prompt", ("Yes", "push button"))


def home(scratch):
    """A home folder that somebody might have."""
    folder = os.path.join(scratch, "home")
    for name in ("Documents", "Pictures/Garden", "Pictures/Old Town", "Web Sites/Harbour Notes"):
        os.makedirs(os.path.join(folder, name), exist_ok=True)
    return folder


def start_up(photos):
    """The question and the folder picker of a start without an image folder."""
    photos.shot("question")
    photos.click("Yes", "push button")
    photos.hover("Ok", "push button")
    photos.shot("folder-picker-hovered")
    photos.away()
    photos.shot("folder-picker")


def main(run_folder, out, palette, scale):
    factor = int(scale) / 100

    def session(name, left_out, *scenes):
        scratch = tempfile.mkdtemp(prefix="velor-shots-")
        folder = os.path.join(scratch, "program")
        shutil.copytree(run_folder, folder, ignore=shutil.ignore_patterns(
            "velor-*", "*.ini", "Temp*.htm", *left_out))
        program = Program(os.path.join(run_folder, "velor-web-creator"), folder, scratch, out,
                          {"VELOR_PALETTE": palette, "QT_SCALE_FACTOR": str(factor), "HOME": home(scratch)})
        photos = Photographer(program, f"{palette}-{scale}-{name}", factor)
        try:
            if main_window in scenes:
                program.size_window(int(1280 * factor), int(820 * factor))
            for scene in scenes:
                scene(photos)
        except TourError:
            photos.shot("failed")
            raise
        finally:
            program.kill()
            shutil.rmtree(scratch, ignore_errors=True)

    session("start", ("eImages",), start_up)
    session("main", (), main_window, dialogs, modes)


if __name__ == "__main__":
    main(*(os.path.abspath(argument) for argument in sys.argv[1:3]), *sys.argv[3:5])
