# SPDX-License-Identifier: GPL-3.0-or-later
"""Source, shown and edited."""
import os

from desktop import Atspi, Program, file_text, wait_for
from moves import step


def the_source_is_shown(tour):
    step("View HTML shows the source")
    tour.program.press("View HTML")
    tour.program.shot("03-source")
    tour.program.press("Design")


def column(program):
    """The caret's column in the source editor, by its status bar."""
    places = [name for name in program.names("label") if ", Column " in name]
    return int(places[0].split("Column ")[1]) if places else 0


def the_source_is_edited_applied_and_taken_back(tour):
    step("the source is edited and applied; undo takes it back")
    program = tour.program
    path = os.path.join(tour.site, "hello.htm")
    program.press("Edit HTML", within=program.wait("hello.htm", "frame"))
    program.wait("Apply to Document")
    program.key("ctrl+f")
    find = program.wait("Find", "text")
    wait_for(lambda: Program.has_state(find, Atspi.StateType.FOCUSED), "the find box's focus")
    program.type("brave")
    program.shot("04-source-editor")
    found = column(program)
    program.key("Escape")
    program.type("bold new")
    wait_for(lambda: column(program) == found + len("bold new") - len("brave"), "the typed words")
    program.press("Apply to Document")
    copy = os.path.join(tour.site, "helloTMP.htm")
    wait_for(lambda: "bold new" in file_text(copy, "big5"), "the applied words in the temporary copy")
    program.key("ctrl+F4")
    program.wait_gone("Apply to Document")
    program.key("ctrl+s")
    wait_for(lambda: "Hello bold new <B>world" in file_text(path, "big5"), "the applied words on disk")
    program.press("Undo")
    program.key("ctrl+s")
    wait_for(lambda: "Hello brave <B>world" in file_text(path, "big5"), "the old words on disk")
