# SPDX-License-Identifier: GPL-3.0-or-later
"""Pages made, typed in, saved, opened, closed."""
import os
import shutil
import stat

from desktop import Atspi, Program, file_text, wait_for
from moves import TAB, check, step


def a_new_page_is_typed_formatted_and_saved(tour):
    step("a new page is typed, made bold, saved")
    program = tour.program
    tour.new_page("Untitled 1")
    program.key("ctrl+a")
    program.type("Hello brave world")
    program.key("ctrl+shift+Left")
    program.press("Bold")
    wait_for(lambda: tour.pressed("Bold"), "Bold to be shown pressed")
    program.shot("02-bold")
    path = os.path.join(tour.site, "hello.htm")
    program.key("ctrl+s")
    tour.name_in_dialog(path)
    wait_for(lambda: os.path.exists(path), "the saved page")
    tour.tab("hello.htm")
    text = file_text(path, "big5")
    check("charset=big5" in text, "the new page lost its charset")
    check("Hello brave <B>world</B>" in text, f"the bold word is not in the page: {text!r}")
    check("\r\n" in text and "\n" not in text.replace("\r\n", ""), "line ends were mixed")
    shutil.copy(path, tour.out)


def commands_undo(tour):
    step("undo takes back, redo brings again")
    program = tour.program
    path = os.path.join(tour.site, "hello.htm")
    program.key("ctrl+End")
    program.type(" again")
    program.press("Undo")
    program.press("Redo")
    program.press("Undo")
    program.key("ctrl+s")
    wait_for(lambda: "again" not in file_text(path, "big5"), "the undone word to be absent")
    program.key("ctrl+y")
    program.key("ctrl+s")
    wait_for(lambda: "again" in file_text(path, "big5"), "the redone word on disk")


def a_page_of_another_charset_is_saved_under_a_new_name(tour):
    step("a windows-1252 page keeps its charset, line ends and every byte that was not edited")
    source = os.path.join(tour.site, "caf\u00e9 100% #1.html")
    before = ("<!DOCTYPE html>\n<html>\n<head><meta charset=windows-1252>\n<TITLE>Caf\u00e9</TITLE></head>\n"
              "<body bgcolor=white>\n<P>Na\u00efve <B>caf\u00e9</B>\n</body>\n</html>\n").encode("windows-1252")
    with open(source, "wb") as stream:
        stream.write(before)
    # xdotool types what the keyboard map has; the dialog finds the file by a plain copy's name.
    plain = os.path.join(tour.site, "cafe.html")
    shutil.copy(source, plain)
    tour.open(plain)
    untouched = os.path.join(tour.site, "untouched.htm")
    tour.save_as(untouched)
    with open(untouched, "rb") as stream:
        check(stream.read() == before, "saving an unedited page changed it")
    tour.program.shot("05-second-page")


def a_read_only_page_says_so(tour):
    step("a read-only page opens as such")
    path = os.path.join(tour.site, "locked.htm")
    with open(path, "wb") as stream:
        stream.write(b"<html><body><p>Locked</p></body></html>")
    os.chmod(path, stat.S_IRUSR)
    tour.open(path, "locked.htm (Read-Only)")
    page = tour.program.wait("locked.htm", "frame")
    edit = tour.program.wait("Edit HTML", "push button|toggle button|button", page)
    wait_for(lambda: not Program.has_state(edit, Atspi.StateType.ENABLED), "Edit HTML to be off")


def five_pages_are_the_limit(tour):
    step("the sixth page is refused")
    for caption in ("Untitled 4", "Untitled 5"):
        tour.new_page(caption)
    tour.program.shot("06-five-pages")
    tour.program.key("ctrl+n")
    tour.answer("Too many Pages are opened. Please close one or two File(s), and then try to open it.",
                "OK")


def closing_asks(tour):
    step("closing a changed page asks; Cancel keeps it, No drops the change")
    program = tour.program
    program.type("unsaved")
    question = "You have made changes to this document. Do you want to save it?"
    program.key("ctrl+F4")
    program.wait(question, "label")
    program.shot("07-closing-prompt")
    tour.answer(question, "Cancel")
    tour.tab("Untitled 5")
    program.key("ctrl+F4")
    tour.answer(question, "No")
    program.wait_gone("Untitled 5", TAB)
    step("an unchanged page closes unasked")
    program.key("ctrl+F4")
    program.wait_gone("Untitled 4", TAB)
