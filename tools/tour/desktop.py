# SPDX-License-Identifier: GPL-3.0-or-later
"""A virtual desktop, and the program driven from outside on it.

Keys and pointer go through xdotool, controls are found and read through the accessibility bus.
Nothing here sleeps for a fixed time: every step waits for a condition, with a limit.
"""
import os
import signal
import subprocess
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

LIMIT = 20.0  # seconds a condition may take on a busy machine


class TourError(AssertionError):
    pass


def wait_for(condition, what, limit=LIMIT):
    """Polls until the condition gives something true, and returns it."""
    end = time.monotonic() + limit
    while True:
        try:
            result = condition()
        except GLib.Error:  # an accessible that went away between two calls
            result = None
        if result:
            return result
        if time.monotonic() > end:
            raise TourError(f"waited {limit:.0f} s in vain for {what}")
        time.sleep(0.02)


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout.strip()


class Program:
    """One run of the editor."""

    def __init__(self, executable, program_folder, settings_folder, shots, environment=None):
        self.shots = shots
        self.folder = program_folder
        os.makedirs(shots, exist_ok=True)
        env = dict(os.environ)
        env.update({
            "VELOR_PROGRAM_FOLDER": program_folder,
            "XDG_CONFIG_HOME": settings_folder,
            "XDG_DATA_HOME": settings_folder,
            "XDG_CACHE_HOME": settings_folder,
            "XDG_STATE_HOME": settings_folder,
            "VELOR_NO_ERROR_BOX": "1",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "QT_QPA_PLATFORM": "xcb",
            "QT_QUICK_BACKEND": "software",
            "LC_ALL": "C.UTF-8",
        })
        if os.geteuid() == 0:
            env["QTWEBENGINE_DISABLE_SANDBOX"] = "1"
        env.update(environment or {})
        self.environment = env
        self.executable = executable
        self.scale = float(env.get("QT_SCALE_FACTOR", "1"))
        self.log = open(os.path.join(shots, "program.log"), "a", encoding="utf-8")
        self.process = subprocess.Popen([executable], env=env, stdout=self.log, stderr=self.log)
        self.application = wait_for(self._application, "the program on the accessibility bus")
        self.window_id = wait_for(self._window, "the main window")

    def _application(self):
        desktop = Atspi.get_desktop(0)
        for index in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(index)
            if child is not None and child.get_process_id() == self.process.pid:
                return child
        if self.process.poll() is not None:
            raise TourError(f"the program ended with status {self.process.returncode}")
        return None

    def _window(self):
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid",
                                str(self.process.pid), "--name", "Velor Web Creator"],
                               capture_output=True, text=True).stdout.split()
        return found[0] if found else None

    # Finding controls.
    def _walk(self, node, depth=0):
        if node is None or depth > 40:
            return
        yield node
        if node.get_role() == Atspi.Role.DOCUMENT_WEB:
            return  # the page itself is checked on disk, not here
        for index in range(node.get_child_count()):
            yield from self._walk(node.get_child_at_index(index), depth + 1)

    def find(self, name=None, role=None, within=None, showing=True):
        """The first control of that name and role, or None."""
        for node in self._walk(within or self.application):
            try:
                if name is not None and node.get_name() != name:
                    continue
                if role is not None and node.get_role_name() not in role.split("|"):
                    continue
                if showing and not node.get_state_set().contains(Atspi.StateType.SHOWING):
                    continue
                return node
            except GLib.Error:
                continue
        return None

    def wait(self, name=None, role=None, within=None):
        return wait_for(lambda: self.find(name, role, within), f"{role or 'control'} {name!r}")

    def wait_gone(self, name, role=None):
        wait_for(lambda: self.find(name, role) is None, f"{name!r} to go away")

    def names(self, role):
        return [node.get_name() for node in self._walk(self.application)
                if node.get_role_name() == role]

    @staticmethod
    def has_state(node, state):
        return node.get_state_set().contains(state)

    def press(self, name, role="push button|toggle button|button|check box", within=None):
        """Presses a button as a person who uses no mouse would."""
        node = self.wait(name, role, within)
        wait_for(lambda: self.has_state(node, Atspi.StateType.ENABLED), f"{name!r} to be enabled")
        actions = [Atspi.Action.get_action_name(node, i)
                   for i in range(Atspi.Action.get_n_actions(node))]
        for wanted in ("Press", "Toggle", "click", "SetFocus"):
            if wanted in actions:
                Atspi.Action.do_action(node, actions.index(wanted))
                return
        raise TourError(f"{name!r} offers no action among {actions}")

    @staticmethod
    def text(node):
        return Atspi.Text.get_text(node, 0, -1)

    # Keys and pointer.
    def key(self, *keys):
        for key in keys:
            run("xdotool", "key", "--clearmodifiers", key)

    def type(self, text):
        run("xdotool", "type", "--clearmodifiers", "--delay", "12", text)

    def move(self, x, y):
        run("xdotool", "mousemove", str(x), str(y))

    def click(self, x, y, button=1):
        run("xdotool", "mousemove", str(x), str(y), "click", str(button))

    def click_on(self, name, role="push button|toggle button|button", within=None):
        """Clicks a control: for what opens a dialog, where pressing it would wait for the dialog's end."""
        self.hover(self.wait(name, role, within))
        self.button(1)

    def button(self, number):
        run("xdotool", "click", str(number))

    def hold(self, x, y):
        run("xdotool", "mousemove", str(x), str(y), "mousedown", "1")

    def release(self):
        run("xdotool", "mouseup", "1")

    def hover(self, node, across=0.5):
        """Puts the pointer on a control, where a person would; `across` is the share of its width."""
        place = Atspi.Component.get_extents(node, Atspi.CoordType.SCREEN)
        # The bridge tells device-independent pixels.
        self.move(round((place.x + place.width * across) * self.scale),
                  round((place.y + place.height / 2) * self.scale))

    def visible_windows(self):
        """The windows of the program on the screen; pop-up menus are windows too."""
        return subprocess.run(["xdotool", "search", "--onlyvisible", "--class",
                               "velor-web-creator"], capture_output=True, text=True).stdout.split()

    def open_popup(self, action):
        """Carries out `action` and waits for the menu that it pops up."""
        before = len(self.visible_windows())
        action()
        wait_for(lambda: len(self.visible_windows()) > before, "a menu to pop up")

    def activate(self):
        """Gives the main window the keyboard. When two dialogs close at once, the window manager
        may leave it to nobody."""
        run("xdotool", "windowactivate", "--sync", self.window_id)

    def title(self):
        return run("xdotool", "getwindowname", self.window_id)

    def size_window(self, width, height):
        run("xdotool", "windowsize", "--sync", self.window_id, str(width), str(height))
        run("xdotool", "windowmove", "--sync", self.window_id, "0", "0")

    def shot(self, name):
        path = os.path.join(self.shots, name + ".png")
        run("import", "-window", "root", path)
        return path

    def colour(self, x, y):
        """What the screen shows at a place."""
        return run("import", "-window", "root", "-crop", f"1x1+{x}+{y}", "-depth", "8", "txt:-")

    # The end.
    def wait_end(self):
        wait_for(lambda: self.process.poll() is not None, "the program to end")
        self.log.close()
        return self.process.returncode

    def kill(self):
        if self.process.poll() is None:
            self.process.send_signal(signal.SIGKILL)
            self.process.wait()
        self.log.close()


def file_text(path, encoding="utf-8"):
    with open(path, "rb") as stream:
        return stream.read().decode(encoding)
