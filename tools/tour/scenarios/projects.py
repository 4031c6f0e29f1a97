# SPDX-License-Identifier: GPL-3.0-or-later
"""Web-site projects."""
import os
import subprocess

from desktop import Atspi, Program, file_text, wait_for
from moves import WINDOW, check, step


def catalogue(tour, statement):
    """The rows of a statement on the catalogue, without the header line."""
    tool = os.path.join(tour.run_folder, "velor-catalogue")
    output = subprocess.run([tool, os.path.join(tour.folder, "eThumbs.mdb"), statement],
                            check=True, capture_output=True, text=True).stdout
    return output.splitlines()[1:]


def a_project_that_moved_is_found_again_and_edited(tour):
    step("a project's moved folder is asked for, written into the catalogue, its home page edited")
    program = tour.program
    program.click_on("Project Manager")
    manager = program.wait("Web Site Project Manager", WINDOW)
    program.shot("17-project-manager")
    rows = program.wait("Select the Project and open it.", "tree|table|tree table", manager)
    wait_for(lambda: Program.has_state(rows, Atspi.StateType.FOCUSED), "the list's focus")
    program.key("End", "Return")
    program.wait("Web path not found please provide the path", "label")
    program.shot("18-moved-site")
    program.key("alt+y")
    picker = program.wait("Select Folder", WINDOW)
    tree = program.wait("Folder", "tree|table|tree table", picker)
    wait_for(lambda: Program.has_state(tree, Atspi.StateType.FOCUSED), "the folder list's focus")
    # The tree begins at the nearest folder of the old path that is there; a typed path leads anywhere.
    site = os.path.join(tour.folder, "Sites", "Lighthouse")
    box = program.wait("Path", "text", picker)
    Atspi.Component.grab_focus(box)
    wait_for(lambda: Program.has_state(box, Atspi.StateType.FOCUSED), "the path box's focus")
    program.key("ctrl+a")
    program.type(site)
    wait_for(lambda: Program.has_state(program.wait("Ok", "button|push button", picker),
                                       Atspi.StateType.ENABLED), "the folder to be taken")
    program.shot("19-folder-picker")
    program.key("Return")
    tour.tab("Home.htm")
    folder = os.path.join(tour.folder, "Sites", "Lighthouse")
    logic = folder.replace("/", "\\")
    for statement in ("Select Path from Project where IdProject = '3'",
                      "Select distinct TPath from Page where ProjectId = '3'",
                      "Select PPath from CustomCD where ProjectId = '3'"):
        check(catalogue(tour, statement) == [logic],
              f"{statement} gives {catalogue(tour, statement)}, not {logic}")
    others = catalogue(tour, "Select Path from Project where IdProject <> '3'")
    check(logic not in others and len(others) == 2, f"other projects were changed: {others}")

    home = os.path.join(folder, "Files", "Home.htm")
    program.key("ctrl+Home")
    program.type("See ")
    # The first save of a project's page asks for its name.
    program.key("ctrl+s")
    tour.name_in_dialog(home, replace=True)
    wait_for(lambda: "See The Lighthouse</h1>" in file_text(home), "the edited home page")
    for kept in ('charset=utf-8', '<img src="Images/lighthouse.png"', '<a href="Keepers.htm">The keepers</a>'):
        check(kept in file_text(home), f"{kept} is no longer in the home page")
    program.activate()
    program.shot("20-project-page")
