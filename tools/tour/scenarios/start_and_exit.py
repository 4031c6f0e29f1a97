# SPDX-License-Identifier: GPL-3.0-or-later
"""Starting and ending."""
import os

from desktop import file_text
from moves import DIALOG, check, step


def first_start_asks_nothing(tour):
    step("the first start asks nothing and writes both location files")
    tour.start()
    if os.geteuid() == 0:  # the engine has no sandbox for the superuser
        tour.program.wait("The browser engine's sandbox is off: preview only pages that you trust.", "status bar")
    tour.program.shot("01-no-page")
    site = file_text(os.path.join(tour.folder, "SiteConfig.ini"))
    check(site == f'"{tour.folder}"\r\n', f"SiteConfig.ini holds {site!r}")
    images = file_text(os.path.join(tour.folder, "SiteImgConfig.ini"))
    check(images == f'"{tour.folder}/eImages"\r\n', f"SiteImgConfig.ini holds {images!r}")


def the_systems_end_closes_dialogs(tour):
    step("a request to end closes an open dialog and keeps what was typed")
    tour.program.type("kept ")
    tour.program.key("F12")
    tour.program.wait(None, DIALOG)
    tour.program.process.terminate()
    status = tour.program.wait_end()
    check(status == 0, f"the program ended with status {status}")
    tour.start()
    tour.program.press("Restore all pages")
    tour.tab("Home.htm")


def exit_ends_everything(tour):
    step("exit ends the program without questions and leaves no temporary copy")
    tour.program.type("never saved")
    tour.program.open_popup(lambda: tour.program.key("alt+f"))
    tour.program.key("x")
    status = tour.program.wait_end()
    check(status == 0, f"the program ended with status {status}")
    left = [name for folder, _, names in os.walk(tour.scratch) for name in names
            if "TMP.htm" in name or name.startswith("Temp")]
    check(not left, f"temporary copies were left behind: {left}")
