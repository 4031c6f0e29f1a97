# SPDX-License-Identifier: GPL-3.0-or-later
"""The preview."""
import os

from desktop import file_text, wait_for
from moves import TAB, check, step


def write_linking_page(tour, name, target):
    """A page that is all one link."""
    with open(os.path.join(tour.site, name), "w", encoding="utf-8") as stream:
        stream.write(f'<html><head></head><body><p><a href="{target}" style="display:block;height:500px">'
                     f"To {target}</a></p></body></html>")


def preview_shows_link(tour, target):
    """Waits until the preview tells the address of the link under the pointer."""
    def told():
        tour.program.move(640, 450)
        tour.program.move(645, 455)
        return any(name.endswith("/" + target) for name in tour.program.names("label"))
    wait_for(told, f"the preview to show the link to {target}")


def the_preview_walks_through_pages(tour):
    step("the preview shows unsaved edits, goes back and forward, refreshes, stops, and only hides")
    program = tour.program
    path = os.path.join(tour.site, "first.htm")
    write_linking_page(tour, "first.htm", "second.htm")
    write_linking_page(tour, "second.htm", "third.htm")
    tour.open(path)
    program.key("ctrl+Home")
    program.type("Unsaved ")
    program.press("Preview", within=program.wait("first.htm", "frame"))
    preview = program.wait("first.htm, Preview", "frame")
    program.wait("Done", "label", preview)
    program.shot("08-preview")
    check("Unsaved" in file_text(os.path.join(tour.site, "firstTMP.htm")), "the preview is not of the edited page")
    check("Unsaved" not in file_text(path), "the preview saved the page")
    preview_shows_link(tour, "second.htm")
    program.click(640, 450)
    preview_shows_link(tour, "third.htm")
    program.shot("09-preview-second-page")
    program.press("Back", within=preview)
    preview_shows_link(tour, "second.htm")
    program.press("Forward", within=preview)
    preview_shows_link(tour, "third.htm")
    write_linking_page(tour, "second.htm", "changed.htm")
    program.press("Refresh", within=preview)
    preview_shows_link(tour, "changed.htm")
    program.press("Stop", within=preview)
    program.key("ctrl+F4")
    program.wait_gone("first.htm, Preview", "frame")
    program.press("Preview", within=program.wait("first.htm", "frame"))
    preview_shows_link(tour, "second.htm")
    program.key("ctrl+F4")
    program.wait_gone("first.htm, Preview", "frame")
    program.key("ctrl+s")
    wait_for(lambda: "Unsaved" in file_text(path), "the edit on disk")
    program.key("ctrl+F4")
    program.wait_gone("first.htm", TAB)
