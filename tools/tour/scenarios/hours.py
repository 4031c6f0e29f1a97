# SPDX-License-Identifier: GPL-3.0-or-later
"""A person's hour: whole jobs by keys alone, each ending with the files as a careful author would have them."""
import os

from desktop import wait_for
from moves import TAB, check, step


def put(tour, name, content):
    path = os.path.join(tour.site, name)
    with open(path, "wb") as stream:
        stream.write(content)
    return path


def content(path):
    with open(path, "rb") as stream:
        return stream.read()


def becomes(path, wanted):
    """The file holds exactly these bytes, at the latest when a save has had its time."""
    try:
        wait_for(lambda: content(path) == wanted, path)
    except Exception:
        check(False, f"{path} holds {content(path)!r}, not {wanted!r}")


def an_old_page_is_repaired(tour):
    step("an old page is repaired: a word in design view, a tag in the source, every other byte as it was")
    program = tour.program
    before = (b"<HTML>\r\n<HEAD><TITLE>Bread</TITLE></HEAD>\r\n<BODY BGCOLOR=white>\r\n"
              b"<P>Fresh bred\r\n<FONT SIZE=4>every day</FONT>\r\n</BODY>\r\n</HTML>\r\n")
    path = put(tour, "old.htm", before)
    tour.open(path)
    program.key("ctrl+Home", "ctrl+Right")
    program.key("Right", "Right", "Right", "Right")
    program.type("a")
    program.key("ctrl+s")
    first = before.replace(b"bred", b"bread")
    becomes(path, first)
    program.press("Edit HTML", within=program.wait("old.htm", "frame"))
    program.wait("Apply to Document")
    program.key("ctrl+f")
    program.type("day")
    program.key("Escape")
    program.type("morning")
    # One key saves what is seen: the source is applied first.
    program.key("ctrl+s")
    becomes(path, first.replace(b"every day", b"every morning"))
    program.key("ctrl+F4")
    program.wait_gone("Apply to Document")
    program.key("ctrl+F4")
    program.wait_gone("old.htm", TAB)


def text_moves_between_pages(tour):
    step("a paragraph moves from one page to another by cut, tab and paste")
    program = tour.program
    here = put(tour, "here.htm", b"<html><body>\n<p>stays</p>\n<p>moves</p>\n</body></html>\n")
    there = put(tour, "there.htm", b"<html><body>\n<p>waits </p>\n</body></html>\n")
    tour.open(there)
    program.key("ctrl+End")
    tour.open(here)
    program.key("ctrl+End", "shift+Home", "ctrl+x")
    program.key("ctrl+s")
    wait_for(lambda: b"moves" not in content(here), "the words to be gone here")
    program.key("ctrl+F4")
    program.wait_gone("here.htm", TAB)
    # The keyboard is in the page that came to the front, its caret where it was.
    program.key("ctrl+v")
    program.key("ctrl+s")
    wait_for(lambda: b"moves" in content(there), "the words to be there")
    check(content(there).startswith(b"<html><body>\n<p>waits"), "the page around the words changed")
    program.key("ctrl+F4")
    program.wait_gone("there.htm", TAB)


def patience_is_lost(tour):
    step("views are opened and closed over and over; what is typed lands in the page all the same")
    program = tour.program
    path = put(tour, "hurry.htm", b"<html><body>\n<p>x</p>\n</body></html>\n")
    tour.open(path)
    program.key("ctrl+End")
    for letter in "abc":
        for button, gone in (("Edit HTML", "hurry.htm, HTML source"), ("Preview", "hurry.htm, Preview")):
            program.press(button, within=program.wait("hurry.htm", "frame"))
            program.wait(gone, "frame")
            program.key("ctrl+F4")
            program.wait_gone(gone, "frame")
        program.type(letter)
    program.key("ctrl+s", "ctrl+s")
    becomes(path, b"<html><body>\n<p>xabc</p>\n</body></html>\n")
    program.key("ctrl+F4")
    program.wait_gone("hurry.htm", TAB)
