# SPDX-License-Identifier: GPL-3.0-or-later
"""What assistive technology meets on the bus."""
import os

from desktop import Atspi, Program, wait_for
from moves import TAB, check, step

PAGE = """<html><head><title>Fruit</title></head><body><h1>Prices</h1>
<p>See <a href="old.htm">last year</a> too.</p>
<table border="1"><tr><td>Apples</td><td>12</td></tr></table></body></html>"""

# Roles and names of what a reader stops at in that page.
READ = (("heading", "Prices"), ("link", "last year"), ("table cell", "Apples"), ("table cell", "12"))


def below(node):
    yield node
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child is not None:
            yield from below(child)


def met(node):
    return {(part.get_role_name(), part.get_name()) for part in below(node)}


def pages_shown(program):
    return [node for node in program._walk(program.application)
            if node.get_role() == Atspi.Role.DOCUMENT_WEB and Program.has_state(node, Atspi.StateType.SHOWING)]


def is_read(program, what):
    """Waits until the one page in front has all of READ."""
    def told():
        pages = pages_shown(program)
        return len(pages) == 1 and set(READ) <= met(pages[0])
    wait_for(told, what)


def a_page_is_read_over_the_bus(tour):
    step("assistive technology reads pages, tabs, menus and notices, and meets nothing that is not seen")
    program = tour.program
    path = os.path.join(tour.site, "fruit.htm")
    for name, text in (("behind.htm", "<p>Behind</p>"), ("fruit.htm", PAGE)):
        with open(os.path.join(tour.site, name), "w", encoding="utf-8") as stream:
            stream.write(text)
        tour.open(os.path.join(tour.site, name))
    is_read(program, "the design view's text on the bus")
    check(Program.has_state(tour.tab("fruit.htm"), Atspi.StateType.SELECTED), "the tab in front is not selected")
    check(not Program.has_state(tour.tab("behind.htm"), Atspi.StateType.SELECTED), "a tab behind is selected")
    check(program.find("Offscreen") is None, "a window is told that is on no screen")

    program.open_popup(lambda: program.click(640, 600, 3))
    program.wait("Properties...", "menu item|menu")
    program.key("Escape")
    program.wait_gone("Properties...", "menu item|menu")
    program.open_popup(lambda: program.click_on("Text Color"))
    program.wait("Dark teal", "push button|button")
    program.key("Escape")
    program.wait_gone("Dark teal", "push button|button")

    program.click_on("About")
    program.wait("info@example.com", "link")
    program.key("Escape")
    program.wait_gone("About us...", "dialog")

    program.key("ctrl+End")
    program.type(" now")
    program.key("ctrl+s")
    program.wait(f"Saved {path}", "status bar")

    program.press("Preview", within=program.wait("fruit.htm", "frame"))
    program.wait("Done", "label", program.wait("fruit.htm, Preview", "frame"))
    is_read(program, "the preview's text on the bus")
    program.key("ctrl+F4")
    program.wait_gone("fruit.htm, Preview", "frame")
    for name in ("fruit.htm", "behind.htm"):
        program.key("ctrl+F4")
        program.wait_gone(name, TAB)
