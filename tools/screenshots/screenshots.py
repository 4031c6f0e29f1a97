#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Screenshots of the main window for one palette and scale.

Usage: screenshots.py RUN_FOLDER OUT_FOLDER light|dark SCALE_PERCENT
"""
import os
import shutil
import sys
import tempfile

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tour"))
from desktop import Program  # noqa: E402


def main(run_folder, out, palette, scale):
    scratch = tempfile.mkdtemp(prefix="velor-shots-")
    folder = os.path.join(scratch, "program")
    shutil.copytree(run_folder, folder, ignore=shutil.ignore_patterns("velor-*", "*.ini", "Temp*.htm"))
    factor = int(scale) / 100
    program = Program(os.path.join(run_folder, "velor-web-creator"), folder, scratch, out,
                      {"VELOR_PALETTE": palette, "QT_SCALE_FACTOR": str(factor)})
    name = f"{palette}-{scale}-"
    try:
        program.size_window(int(1280 * factor), int(820 * factor))
        program.shot(name + "1-no-page")
        for number in range(1, 6):
            program.key("ctrl+n")
            program.wait(f"Untitled {number}", "page tab")
        program.type("A page that somebody is writing")
        program.key("shift+ctrl+Left")
        program.press("Bold")
        program.shot(name + "2-five-pages")
        program.open_popup(lambda: program.click(int(500 * factor), int(500 * factor), 3))
        program.key("Down", "Down")
        program.shot(name + "3-context-menu")
        program.key("Escape")
        program.open_popup(lambda: program.key("alt+v"))
        program.shot(name + "4-view-menu")
        program.key("Escape", "Escape")
        page = program.wait("Untitled 5", "frame")
        program.press("View HTML", within=page)
        program.shot(name + "5-source-view")
        program.press("Preview", within=page)
        program.wait("Done", "label")
        program.shot(name + "6-preview")
        program.key("ctrl+F4")
        program.wait_gone("Preview", "frame")
        for shot, menu, title in (("7-picture", "alt+i", "Element Information..."),
                                  ("8-table", "alt+a", "Table Editor")):
            program.open_popup(lambda: program.key(menu))
            program.key("Return")
            dialog = program.wait(title, "dialog")
            program.shot(name + shot)
            if shot == "7-picture":
                program.key("ctrl+Tab")
                program.wait("Border thickness:", "text", dialog)
                program.shot(name + shot + "-appearance")
            program.key("Escape")
            program.wait_gone(title, "dialog")
        program.press("Edit HTML", within=page)
        program.wait("Apply to Document")
        program.key("ctrl+h")
        program.type("meta")
        program.shot(name + "9-source-editor")
        program.click_on("Project Manager")
        program.wait("Select the Project and open it.", "label")
        program.shot(name + "10-project-manager")
    finally:
        program.kill()
        shutil.rmtree(scratch, ignore_errors=True)


if __name__ == "__main__":
    main(*(os.path.abspath(argument) for argument in sys.argv[1:3]), *sys.argv[3:5])
