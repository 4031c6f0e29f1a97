# SPDX-License-Identifier: GPL-3.0-or-later
"""What scenarios are made of."""
import os
import shutil
import tempfile

from desktop import Atspi, Program, TourError, wait_for

TAB = "page tab"
DIALOG = "dialog|alert|file chooser"
WINDOW = "dialog|frame|window"


def step(text):
    print(f"tour: {text}", flush=True)


def check(condition, what):
    if not condition:
        raise TourError(what)


class Tour:
    """A program of one's own in a scratch folder, and the small moves that every scenario uses."""

    def __init__(self, run_folder, out):
        self.run_folder = run_folder
        self.out = out
        self.scratch = tempfile.mkdtemp(prefix="velor-tour-")
        self.folder = os.path.join(self.scratch, "program")
        self.settings = os.path.join(self.scratch, "settings")
        self.site = os.path.join(self.scratch, "my pages")
        for folder in (self.settings, self.site):
            os.makedirs(folder)
        shutil.copytree(run_folder, self.folder, ignore=shutil.ignore_patterns("velor-*", "*.ini", "Temp*.htm"))
        self.executable = os.path.join(run_folder, "velor-web-creator")
        self.program = None

    def start(self):
        self.program = Program(self.executable, self.folder, self.settings, self.out,
                               {"HOME": self.folder})
        self.program.size_window(1280, 860)

    def tab(self, caption):
        return self.program.wait(caption, TAB)

    def new_page(self, caption):
        self.program.key("ctrl+n")
        self.tab(caption)

    def name_in_dialog(self, path, title=None, replace=False):
        """Types a path into the file dialog in front, or the one of that title, and accepts it, the
        question about a file that is there already too."""
        box = self.program.wait(role="text", within=self.program.wait(title, DIALOG))
        wait_for(lambda: Program.has_state(box, Atspi.StateType.FOCUSED), "the name box's focus")
        self.program.key("ctrl+a")
        self.program.type(path)
        self.program.key("Return")
        if replace:
            wait_for(lambda: self.program.find(f"{os.path.basename(path)} already exists.\nDo you want to replace it?"),
                     "the question about the file that is there")
            self.program.key("alt+y")
        wait_for(lambda: self.program.find(title, DIALOG) is None, "the file dialog to close")

    def save_as(self, path):
        self.program.key("F12")
        self.name_in_dialog(path)
        wait_for(lambda: os.path.exists(path), f"{path} to be written")

    def open(self, path, caption=None):
        self.program.key("ctrl+o")
        self.name_in_dialog(path)
        self.tab(caption or os.path.basename(path))

    def pressed(self, button):
        node = self.program.wait(button, "push button|toggle button|button|check box")
        states = node.get_state_set()
        return states.contains(Atspi.StateType.PRESSED) or states.contains(Atspi.StateType.CHECKED)

    def answer(self, text, button):
        """Answers the message box that shows `text`."""
        self.program.wait(text, "label")
        self.program.press(button)
        self.program.wait_gone(text, "label")

    def carry_out(self, scenarios):
        """Runs them one after the other, and ends. What fails is photographed."""
        try:
            for scenario in scenarios:
                scenario(self)
        except Exception:
            if self.program is not None:
                self.program.shot("failure")
            raise
        finally:
            self.end()

    def end(self):
        """Whatever state the tour is in."""
        if self.program is not None:
            self.program.kill()
        shutil.rmtree(self.scratch, ignore_errors=True)
