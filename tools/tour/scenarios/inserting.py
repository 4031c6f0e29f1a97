# SPDX-License-Identifier: GPL-3.0-or-later
"""Pictures, tables, links."""
import os
import shutil

from desktop import Atspi, Program, file_text, wait_for
from moves import DIALOG, TAB, check, step

# The two dialogs by their titles.
ELEMENT = "Element Information..."
TABLE = "Table Editor"


def box_text(tour, label, dialog):
    return Program.text(tour.program.wait(label, "text", dialog))


def insert_picture(tour, picture, link, shot):
    """Chooses a picture in the element dialog, checks the link and puts it into the page."""
    program = tour.program
    program.click_on("Image")
    dialog = program.wait(ELEMENT, DIALOG)
    source = program.wait("Image Source:", "text", dialog)
    wait_for(lambda: Program.has_state(source, Atspi.StateType.FOCUSED), "the source box's focus")
    program.click_on("Browse...", within=dialog)
    tour.name_in_dialog(picture, "Open")
    wait_for(lambda: box_text(tour, "Image Source:", dialog) == link, f"the link {link}")
    program.wait("240 \u00d7 160 pixels", "label", dialog)
    program.shot(shot + "-general")
    program.click_on("Appearance", TAB, dialog)
    program.wait("Border thickness:", "text", dialog)
    program.shot(shot + "-appearance")
    program.click_on("General", TAB, dialog)
    program.wait("Image Source:", "text", dialog)
    program.press("OK", within=dialog)
    program.wait_gone(ELEMENT, DIALOG)


def hyperlink_page(tour):
    """The hyperlink page comes up, and Escape changes nothing."""
    program = tour.program
    program.open_popup(lambda: program.key("alt+i"))
    program.key("Down", "Return")
    dialog = program.wait(ELEMENT, DIALOG)
    program.wait("Anchor Element Href:", "text", dialog)
    program.shot("14-hyperlink")
    program.key("Escape")
    program.wait_gone(ELEMENT, DIALOG)


def pictures_and_tables_are_inserted(tour):
    step("a picture and a table are inserted into a saved page, in one undo step each")
    program = tour.program
    picture = os.path.join(tour.site, "images", "roses.png")
    os.makedirs(os.path.dirname(picture))
    shutil.copy(os.path.join(tour.folder, "eImages", "roses.png"), picture)
    path = os.path.join(tour.site, "inserted.htm")
    with open(path, "w", encoding="utf-8") as stream:
        stream.write("<html><head></head><body>\n<p>Roses</p>\n</body></html>\n")
    tour.open(path)
    program.key("ctrl+End")
    insert_picture(tour, picture, "images/roses.png", "10-picture")
    tag = '<img src="images/roses.png" height="160" width="240">'
    program.key("ctrl+s")
    wait_for(lambda: f"<p>Roses{tag}</p>" in file_text(path), "the picture in the file")
    program.press("Undo")
    program.key("ctrl+s")
    wait_for(lambda: "<p>Roses</p>" in file_text(path), "the picture taken back in one step")
    program.press("Redo")
    program.click_on("Table")
    dialog = program.wait(TABLE, DIALOG)
    check(box_text(tour, "# Of Columns:", dialog) == "3", "the table dialog's columns")
    program.shot("11-table")
    program.press("Insert", within=dialog)
    program.wait_gone(TABLE, DIALOG)
    program.key("ctrl+s")
    wait_for(lambda: file_text(path).count("<td>") == 9, "the table in the file")
    text = file_text(path)
    check(tag in text and '<table cellspacing="1" cellpadding="1" border="1" width="75%">' in text,
          f"the inserted elements are not whole: {text!r}")
    program.shot("12-inserted")
    shutil.copy(path, tour.out)
    program.press("Preview", within=program.wait("inserted.htm", "frame"))
    program.wait("Done", "label", program.wait("inserted.htm, Preview", "frame"))
    program.shot("13-inserted-preview")
    program.key("ctrl+F4")
    program.wait_gone("inserted.htm, Preview", "frame")
    hyperlink_page(tour)
    program.key("ctrl+F4")
    program.wait_gone("inserted.htm", TAB)

    step("a picture in a page without a file is linked absolutely")
    program.key("ctrl+n")
    wait_for(lambda: any(name.startswith("Untitled") for name in program.names(TAB)), "the new page")
    insert_picture(tour, picture, "file:///" + picture, "15-picture-unsaved")
    caption = next(name for name in program.names(TAB) if name.startswith("Untitled"))
    program.press("Preview", within=program.wait(caption, "frame"))
    program.wait(f"Outside of the site and not shown: {picture}", "label",
                 program.wait(f"{caption}, Preview", "frame"))
    copy = os.path.join(tour.folder, caption.replace("Untitled ", "Temp") + ".htm")
    check(f'src="file:///{picture}"' in file_text(copy, "big5"), "the absolute link is not in the page")
    program.shot("16-picture-unsaved-preview")
    program.key("ctrl+F4")
    program.wait_gone(f"{caption}, Preview", "frame")
    program.key("ctrl+F4")
    tour.answer("You have made changes to this document. Do you want to save it?", "No")
    program.wait_gone(caption, TAB)
