#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Screenshots of every window of the program, idle and with the pointer on a control, for one
palette and scale, on the whole screen.

Usage: screenshots.py RUN_FOLDER OUT_FOLDER light|dark|contrast SCALE_PERCENT [SESSION...]
Sessions are recovery, start, main, pictures, manual, words, objects, properties, names, projects and readme; without any, all of them.
"""
import math
import os
import shutil
import struct
import subprocess
import sys
import tempfile
import zlib

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tour"))
from desktop import Atspi, Program, TourError, run, wait_for  # noqa: E402


def screen():
    """The size of the virtual desktop."""
    return [int(length) for length in run("xdotool", "getdisplaygeometry").split()]


# The colours of a desktop for people who need high contrast, as the desktop's file has them.
CONTRAST = "".join(f"[Colors:{part}]\nBackgroundNormal=0,0,0\nBackgroundAlternate=0,0,0\n"
                   "ForegroundNormal=255,255,255\nForegroundInactive=255,255,255\n"
                   "ForegroundLink=255,255,0\nForegroundVisited=255,255,0\n\n"
                   for part in ("Window", "View", "Button", "Tooltip"))
CONTRAST += "[Colors:Selection]\nBackgroundNormal=0,255,255\nForegroundNormal=0,0,0\n"


def palette_settings(palette, scratch):
    """The environment in which the program has the palette; a desktop's own is found in its file."""
    if palette != "contrast":
        return {"VELOR_PALETTE": palette}
    with open(os.path.join(scratch, "kdeglobals"), "w", encoding="utf-8") as colours:
        colours.write(CONTRAST)
    return {"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true", "KDE_SESSION_VERSION": "5"}


# Installed fonts under names that Chinese, Japanese and Arabic ones have.
FONT_NAMES = {"DejaVu Sans Mono": "\u5b8b\u4f53\u7e41\u9ad4\u660e\u671d", "C059": "\u6e38\u30b4\u30b7\u30c3\u30af",
              "DejaVu Serif": "\u0627\u0644\u062e\u0637 \u0627\u0644\u0639\u0631\u0628\u064a Naskh"}


def font_settings(scratch):
    """The environment in which fonts have the names of FONT_NAMES."""
    rules = "".join(f'<match target="scan"><test name="family"><string>{name}</string></test>'
                    f'<edit name="family" mode="assign"><string>{other}</string></edit></match>'
                    for name, other in FONT_NAMES.items())
    path = os.path.join(scratch, "fonts.conf")
    with open(path, "w", encoding="utf-8") as settings:
        settings.write(f"<fontconfig><dir>/usr/share/fonts</dir><cachedir>{scratch}/font-cache</cachedir>"
                       f"<include>/etc/fonts/conf.d</include>{rules}</fontconfig>")
    return {"FONTCONFIG_FILE": path}


class Photographer:
    """Takes the program through its windows; pictures are numbered in the order of the tour."""

    def __init__(self, program, name, factor):
        self.program = program
        self.name = name
        self.factor = factor
        self.count = 0
        self.windows = len(program.visible_windows())

    def shot(self, what):
        """Once what it shows has settled; a caret or the About box never quite does."""
        self.count += 1
        last = None
        for _ in range(6):
            with open(self.program.shot(f"{self.name}-{self.count:02}-{what}"), "rb") as picture:
                before, last = last, picture.read()
            if last == before:
                break

    def hover(self, name, role=None, within=None):
        self.program.hover(self.program.wait(name, role, within))

    def click(self, name, role="push button|toggle button|button|check box"):
        """By the pointer: a press through the accessibility bus would wait for the dialog's end."""
        self.hover(name, role)
        self.program.button(1)

    def list_of(self, name):
        """Drops an editable box's list down, by its button at the right end."""
        box = self.program.wait(name, "combo box")
        self.program.hover(box, across=0.95)
        self.program.button(1)

    def away(self):
        """Moves the pointer over the page, above the status bar's button."""
        width, height = screen()
        self.program.move(int(width - 10 * self.factor), int(height - 60 * self.factor))

    def dialog(self, opener, what, hovered):
        """Opens a dialog, shows it idle and hovered, and closes it by Escape."""
        opener()
        self.program.wait(*hovered)
        self.shot(what)
        self.hover(*hovered)
        self.shot(what + "-hovered")
        self.away()
        self.close(what)

    def popup(self, opener, what, *further):
        self.away()
        wait_for(self.is_alone, "tooltips to go")
        self.program.open_popup(opener)
        for key in further:
            self.program.key(key)
        self.shot(what)
        self.close(what)

    def is_alone(self):
        """Whether the main window is all that is on the screen."""
        return len(self.program.visible_windows()) <= self.windows

    def command(self, name):
        """Runs a command that has no key."""
        def run_command():
            self.program.key("ctrl+shift+p")
            self.program.wait("Commands", "list")
            self.program.type(name)
            self.program.key("Return")
        return run_command

    def close(self, what):
        def closed():
            if self.is_alone():
                return True
            self.program.key("Escape")
            return False
        wait_for(closed, f"{what} to close")


def page_widths(photos):
    """What is in front, as wide as a phone."""
    program = photos.program
    program.key("ctrl+shift+m")
    photos.click("412 pixels wide")
    photos.away()
    photos.shot("page-widths")
    program.key("ctrl+shift+m")


def main_window(photos):
    program = photos.program
    photos.shot("no-page")
    photos.hover("Block Format", "combo box")
    photos.shot("no-page-combo-hovered")
    for number in range(1, 6):
        program.key("ctrl+n")
        program.wait(f"Untitled {number}", "page tab")
    program.type("A page that somebody is writing")
    program.key("shift+ctrl+Left")
    program.press("Bold")
    photos.away()
    photos.shot("five-pages")
    photos.hover("Bold")
    photos.shot("five-pages-button-hovered")
    page_widths(photos)
    middle = int(500 * photos.factor)
    photos.popup(lambda: program.click(middle, middle, 3), "context-menu", "Down", "Down")
    photos.popup(lambda: program.key("alt+f"), "file-menu", "Down")
    photos.popup(lambda: program.key("alt+v"), "view-menu", "Right", "Down")
    photos.popup(lambda: program.key("alt+t"), "tools-menu", "h")
    photos.popup(lambda: photos.click("Text Color"), "colour-palette", "Down")
    photos.popup(lambda: photos.click("Block Format", "combo box"), "combo-list")
    photos.popup(lambda: photos.list_of("Font"), "font-list", "Down")


OBJECTS = """<!DOCTYPE html PUBLIC "-//W3C//DTD HTML 4.01 Transitional//EN">
<html><head><title>Objects</title></head><body>
<img alt="Picture" width="160" height="100" style="position: absolute; left: 40px; top: 20px"
src="data:image/svg+xml,%3Csvg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 16 10'%3E%3Crect
 width='16' height='10' fill='%23cfe3c2'/%3E%3Cpath d='M0 10L5 3l4 5 3-3 4 5' fill='%235b8c5a'/%3E%3C/svg%3E">
<table cellpadding="6" width="300" style="position: absolute; left: 240px; top: 20px">
<tr><td>Apples</td><td>12</td></tr><tr><td>Pears</td><td>7</td></tr></table>
<div style="position: absolute; left: 600px; top: 20px; width: 200px; height: 100px; background:
 #f4ead2">A box with a place of its own</div>
<div style="position: absolute; left: 40px; top: 160px; width: 700px">
<h2><a name="top"></a>Details</h2><!-- a comment -->
<p>A line<br>and another, <!-- inside -->with a comment.</p><script>var x = 1;</script>
<p>A paragraph.</p><p>Another one.</p>
<form action="x"><p><input value="A field"> <input type="submit" value="Send"></p></form></div>
</body></html>
"""


CELLS = """<!DOCTYPE html>
<html><head><title>Cells</title></head><body style="margin: 20px">
<table border="1" cellpadding="8" style="border-collapse: collapse">
<tr><th width="150">Fruit</th><th width="150">Boxes</th><th width="150">Price</th></tr>
<tr><td>Apples</td><td>12</td><td>3.50</td></tr>
<tr><td>Pears</td><td>7</td><td>4.20</td></tr>
<tr><td>Plums</td><td>21</td><td>2.90</td></tr></table>
</body></html>
"""


PROPERTIES = """<!DOCTYPE html>
<html lang="en"><head><title>Prices</title></head><body style="margin: 20px">
<p><a href="prices.htm">Prices</a></p>
<p><img alt="A tea pot" width="120" height="60" src="data:image/svg+xml,%3Csvg xmlns='http://www.w3.org/2000/svg'
 viewBox='0 0 4 2'%3E%3Crect width='4' height='2' fill='%235b8c5a'/%3E%3C/svg%3E"></p>
<table border="1" cellpadding="8"><tr><td>Apples</td><td>12</td></tr><tr><td>Pears</td><td>7</td></tr></table>
</body></html>
"""


def properties(photos):
    """Every window of properties on every tab, and the page's menu with each of its menus."""
    program = photos.program
    path = os.path.join(program.folder, "prices.htm")
    with open(path, "w", encoding="utf-8") as page:
        page.write(PROPERTIES)
    open_file(program, path, "prices.htm")
    view = program.wait(role="document web")
    place = Atspi.Component.get_extents(view, Atspi.CoordType.SCREEN)

    def select(x, y, name):
        program.click(int((place.x + x) * photos.factor), int((place.y + y) * photos.factor))
        program.wait(name)

    def window(name, *tabs):
        what = name.lower().replace(" ", "-")
        photos.dialog(photos.command(name), what, ("Cancel",))
        for tab in tabs:
            photos.dialog(lambda tab=tab: photos.command(name)() or photos.click(tab, "page tab"),
                          f"{what}-{tab.lower()}", ("Cancel",))

    select(40, 25, "A")
    window("Page Properties", "Appearance")
    window("Hyperlink Properties")
    window("Fonts Properties")
    window("Get Element TagName")
    select(60, 80, "IMG")
    window("Image Properties", "Appearance")
    select(60, 150, "TD")
    window("Table Properties")
    window("Table Cell Properties")
    photos.dialog(photos.command("Insert Custom HTML"), "insert-custom-html", ("Cancel",))
    for what, keys in (("properties", ["Down"] * 4), ("table", ["Up"] * 3), ("absolute", ["Up"] * 2)):
        photos.popup(lambda: program.key("Menu"), f"menu-{what}", *keys, "Right")


def open_file(program, path, caption):
    program.key("ctrl+o")
    dialog = program.wait(None, "dialog|file chooser")
    wait_for(lambda: program.has_state(program.wait(role="text", within=dialog),
                                       Atspi.StateType.FOCUSED), "the name box's focus")
    program.key("ctrl+a")
    program.type(path)
    program.key("Return")
    program.wait(caption, "page tab")


def readme(photos):
    """Three pages of the sample, one with bold words: the picture of the project's first page."""
    program = photos.program
    for name in ("Garden/Files/Roses.htm", "OldTown/Files/Market.htm", "Lighthouse/Files/Home.htm"):
        open_file(program, os.path.join(program.folder, "Sites", name), os.path.basename(name))
    program.key("ctrl+Home", "Down", "Down", *["ctrl+Right"] * 8, "Right", *["ctrl+shift+Right"] * 2)
    program.press("Bold")
    program.wait("B")
    photos.away()
    photos.shot("lighthouse")


def objects(photos):
    """A read-only page, selected objects with their handles, a box on its way over the grid with
    its guides, the details, selected cells, an edge between columns on its way."""
    program = photos.program
    photos.dialog(lambda: program.key("ctrl+o"), "file-dialog", ("Cancel",))

    def open_page(name, mode, caption, markup=OBJECTS):
        path = os.path.join(program.folder, name)
        with open(path, "w", encoding="utf-8") as page:
            page.write(markup)
        os.chmod(path, mode)
        open_file(program, path, caption)

    open_page("locked.htm", 0o444, "locked.htm (Read-Only)")
    photos.shot("read-only")
    open_page("objects.htm", 0o644, "objects.htm")
    view = program.wait(role="document web")
    place = Atspi.Component.get_extents(view, Atspi.CoordType.SCREEN)

    def at(x, y):
        """A place of the page on the screen."""
        return int((place.x + x) * photos.factor), int((place.y + y) * photos.factor)

    def select(x, y, tag):
        program.click(*at(x, y))
        program.wait(tag)

    select(100, 60, "IMG")
    photos.shot("picture")
    photos.dialog(photos.command("Image Properties"), "image-properties", ("Loading:", "combo box"))
    select(100, 60, "IMG")
    select(241, 40, "TABLE")
    photos.shot("table")
    photos.dialog(photos.command("Table Properties"), "table-properties", ("Align:", "combo box"))
    select(700, 60, "DIV")
    photos.shot("box")
    program.hold(*at(700, 60))
    program.move(*at(660, 90))
    program.move(*at(640, 110))
    # The guides draw it to the right edge of the text and to the picture's middle.
    edge = at(540.5, 75)
    wait_for(lambda: program.colour(*edge) != program.colour(*at(560, 75)), "the box on the grid")
    photos.shot("box-on-grid")
    program.release()
    program.key("ctrl+z")
    program.press("Show Detail", within=program.wait("objects.htm", "frame"))
    photos.away()
    wait_for(lambda: program.colour(*at(40.5, 167)) != program.colour(*at(900, 400)), "the details")
    photos.shot("details")
    program.press("Show Detail", within=program.wait("objects.htm", "frame"))
    open_page("cells.htm", 0o644, "cells.htm", CELLS)
    plain = program.colour(*at(150, 85))
    program.hold(*at(60, 75))
    program.move(*at(200, 90))
    program.move(*at(260, 120))
    program.release()
    wait_for(lambda: program.colour(*at(150, 85)) != plain, "the selected cells")
    photos.shot("cells")
    program.click(*at(60, 75))
    program.hold(*at(188, 75))
    program.move(*at(210, 75))
    program.move(*at(230, 75))
    photos.shot("column-edge")
    program.release()
    program.key("ctrl+z")


def write_picture(path, width, height):
    """A PNG file: hills under a sky."""
    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

    rows = bytearray()
    for y in range(height):
        rows.append(0)
        for x in range(width):
            is_hill = y > height * (0.6 + 0.15 * math.sin(9 * x / width))
            rows += bytes((91, 140 - 60 * y // height, 90) if is_hill else (150 + 80 * y // height, 200, 235))
    with open(path, "wb") as picture:
        picture.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)) +
                      chunk(b"IDAT", zlib.compress(bytes(rows))) + chunk(b"IEND", b""))


def pictures(photos):
    """The bar of a picture that is larger than shown, and the window that crops it."""
    program = photos.program
    write_picture(os.path.join(program.folder, "hills.png"), 900, 600)
    path = os.path.join(program.folder, "hills.htm")
    with open(path, "w", encoding="utf-8") as page:
        page.write("<!DOCTYPE html><title>Hills</title><body style='margin: 0'>"
                   "<img src=hills.png width=240 height=160>")
    open_file(program, path, "hills.htm")
    place = Atspi.Component.get_extents(program.wait(role="document web"), Atspi.CoordType.SCREEN)
    program.click(int((place.x + 100) * photos.factor), int((place.y + 80) * photos.factor))
    program.wait("Fit File to Size")
    photos.away()
    photos.shot("fitting-bar")
    photos.command("Crop and Turn Picture")()
    program.wait("Part of the picture that stays")
    program.key("ctrl+shift+Left", "ctrl+shift+Left", "ctrl+shift+Up", "ctrl+Right")
    photos.shot("crop")
    # The bar behind it has such a button too.
    photos.hover("Turn Right", "push button", program.wait("Crop and Turn hills.png", "dialog"))
    program.button(1)
    photos.shot("crop-turned")
    photos.click("OK", "push button")
    program.wait("Undo")
    photos.shot("cropped")


def dialogs(photos):
    program = photos.program

    def item(*keys):
        return lambda: program.open_popup(lambda: program.key(keys[0])) or program.key(*keys[1:])

    def tab_of(opener, tab):
        return lambda: photos.click(opener) or photos.click(tab, "page tab")

    def refused(opener, *keys):
        """A dialog that says why it does not close."""
        return lambda: opener() or program.wait("Cancel") and program.key(*keys)

    def tab_of_mail():
        item("alt+i", "Down", "Return")()
        photos.click("Link to a E-mail Address")

    photos.dialog(lambda: photos.click("Image"), "image-dialog", ("Browse...",))
    photos.dialog(refused(lambda: photos.click("Image"), "Return"), "image-dialog-refused", ("OK",))
    photos.dialog(tab_of("Image", "Appearance"), "image-dialog-appearance", ("Alignment:", "combo box"))
    photos.dialog(item("alt+i", "Down", "Return"), "link-dialog", ("Target Frame:", "combo box"))
    photos.dialog(tab_of("Project Manager", "Web Pages"), "project-pages", ("Open", "push button"))
    photos.dialog(tab_of_mail, "mail-prompt", ("OK",))
    photos.dialog(lambda: photos.click("Table"), "table-dialog", ("Cancel",))
    photos.dialog(refused(lambda: photos.click("Table"), "9", "9", "Tab", *"9999", "Return"),
                  "table-dialog-refused", ("Cancel",))
    photos.dialog(lambda: program.key("ctrl+shift+p"), "find-command", ("Commands", "list"))
    photos.dialog(photos.command("Page Properties"), "page-properties", ("Direction:", "combo box"))
    photos.dialog(lambda: photos.command("Page Properties")() or photos.click("Appearance", "page tab"),
                  "page-properties-appearance", ("Browse: Background picture",))
    photos.dialog(photos.command("Fonts Properties"), "fonts-properties", ("Code", "check box"))
    photos.dialog(photos.command("Drives"), "drives", ("Cancel",))
    photos.dialog(item("alt+t", "s"), "settings", ("Cancel",))
    photos.dialog(lambda: photos.click("Project Manager"), "project-manager", ("Open", "push button"))
    photos.dialog(lambda: photos.click("About"), "about-box", ("Close",))
    photos.dialog(lambda: program.key("ctrl+o"), "message-box", ("OK",))


def words(photos):
    """The windows and bars for words and paper, by the keys and the list of commands."""
    program = photos.program

    def command(name):
        def run():
            program.key("ctrl+shift+p")
            program.wait("Words of the command", "text")
            program.type(name)
            program.key("Return")
        return run

    program.key("ctrl+n")
    program.wait("Untitled 1", "page tab")
    program.type("A page with a wrod in it that nobody knows")
    program.key("ctrl+h")
    program.type("a")
    photos.shot("find-bar")
    program.key("Escape")
    program.key("F7")
    program.wait("Change to", "combo box")
    photos.shot("spelling-bar")
    program.key("Escape")
    page = program.wait("Untitled 1", "frame")
    program.press("View HTML", within=page)
    program.key("F7")
    program.wait("Next", "push button", program.wait("Spelling", "panel|frame"))
    photos.shot("view-html-spelling")
    program.key("Escape", "ctrl+Home")
    photos.shot("view-html-waves")
    program.press("Edit HTML", within=page)
    program.key("F7")
    program.wait("Change to", "combo box")
    program.key("Escape")
    photos.popup(lambda: program.key("ctrl+period"), "source-word", "Down")
    program.key("ctrl+F4")
    program.press("Design", within=page)
    photos.popup(lambda: photos.click("Words and characters"), "word-counts", "Down")
    photos.dialog(command("Shortcuts"), "shortcuts", ("Reset All", "push button"))
    photos.dialog(command("Insert Character"), "character", ("Cancel",))
    photos.dialog(command("New from Template"), "new-page", ("Cancel",))
    photos.dialog(lambda: program.key("ctrl+p"), "print", ("Close", "push button"))


def modes(photos):
    program = photos.program
    page = program.wait("Untitled 5", "frame")
    for mode in ("View HTML", "Edit HTML"):
        program.press(mode, within=page)
        photos.shot(mode.lower().replace(" ", "-"))
    program.wait("HTML source", within=page)
    program.key("ctrl+h")
    program.wait("Replace with", "text")
    program.type("page")
    photos.shot("edit-html-find-bar")
    middle = int(500 * photos.factor)
    program.key("Escape", "ctrl+End")
    program.type("<!-- not applied yet -->")
    photos.shot("edit-html-unapplied")
    program.key("ctrl+z")
    photos.popup(lambda: program.click(middle, middle, 3), "source-context-menu", "Down")
    program.key("ctrl+F4")
    program.press("Preview", within=page)
    photos.shot("preview")
    page_widths(photos)
    photos.popup(lambda: program.click(middle, middle, 3), "preview-context-menu", "Down")
    program.key("ctrl+F4")
    photos.dialog(lambda: program.key("ctrl+F4"), "close-prompt", ("Yes", "push button"))


def narrow(photos):
    """The narrowest window: what does not fit stands in the bars' overflow menus."""
    program = photos.program
    page = program.wait("Untitled 5", "frame")
    program.press("Design", within=page)
    program.size_window(int(480 * photos.factor), screen()[1])
    photos.away()
    photos.shot("narrow")
    edge = int(470 * photos.factor), int(85 * photos.factor)
    photos.popup(lambda: program.click(*edge), "narrow-formats")
    program.press("Preview", within=page)
    page_widths(photos)
    program.key("ctrl+F4")


NAMES = """<!DOCTYPE html>
<html lang="ar" dir="rtl"><head><meta charset="utf-8"><title>\u0635\u0641\u062d\u0629</title></head><body>
<h2>\u0645\u0631\u062d\u0628\u0627 Web \u0628\u0643\u0645</h2>
<p><font face="%s">\u0647\u0630\u0647 \u0635\u0641\u062d\u0629 123 \u0639\u0631\u0628\u064a\u0629.</font></p></body></html>
"""


def names(photos):
    """Fonts, pages and folders whose names are Chinese, Japanese and Arabic."""
    program = photos.program
    folder = os.path.join(program.folder, "\u0645\u0648\u0642\u0639\u064a \u6211\u7684\u7f51\u7ad9")
    os.makedirs(folder)
    pages = []
    for name, font in zip(("\u0635\u0641\u062d\u0629 \u0639\u0631\u0628\u064a\u0629 1.htm", "\u9996\u9875 index.htm"),
                          ("\u0627\u0644\u062e\u0637 \u0627\u0644\u0639\u0631\u0628\u064a Naskh", "\u5b8b\u4f53\u7e41\u9ad4\u660e\u671d")):
        pages.append(os.path.join(folder, name))
        with open(pages[-1], "w", encoding="utf-8") as page:
            page.write(NAMES % font)
    for path in pages:
        subprocess.run([os.path.join(os.path.dirname(program.executable), "velor-open"), path],
                       env=program.environment, check=True, timeout=30)
        program.wait(os.path.basename(path), "page tab")
        program.key("ctrl+End")
        photos.away()
        photos.shot("page")
    photos.popup(lambda: photos.list_of("Font"), "font-list", "Home")
    photos.popup(lambda: program.key("alt+t"), "recent-files", "r")
    program.key("ctrl+o")
    program.wait("Cancel")
    photos.shot("file-dialog")
    photos.close("file-dialog")


def manual(photos):
    """The manual's window with a chapter and with words that were looked for."""
    program = photos.program
    program.key("F1")
    program.wait("Velor Web Creator Manual", "dialog")
    photos.shot("window")
    program.key("ctrl+f")
    program.type("picture size")
    program.wait("Places found", "list")
    program.key("Return")
    photos.shot("search")


def home(scratch):
    """A home folder that somebody might have."""
    folder = os.path.join(scratch, "home")
    for name in ("Documents", "Pictures/Garden", "Pictures/Old Town", "Web Sites/Harbour Notes"):
        os.makedirs(os.path.join(folder, name), exist_ok=True)
    return folder


MANY_PAGES = 40


def projects(photos):
    """A project with many pages, its page chooser, and the picker for one whose folder is gone."""
    program = photos.program

    def manager(*keys):
        photos.click("Project Manager")
        program.wait("Open", "push button")
        program.key(*keys, "Return")

    manager("Home")
    program.wait("Home.htm", "page tab")
    photos.away()
    photos.popup(lambda: photos.click("Project pages", "combo box"), "page-chooser", "Down", "Down")
    manager("End")
    program.wait("Web path not found please provide the path", "label")
    photos.shot("moved-site")
    program.key("alt+y")
    program.wait("Path", "text", program.wait("Select Folder", "dialog|frame|window"))
    photos.shot("project-folder-picker")
    photos.close("project-folder-picker")


def add_pages(run_folder, folder):
    """Gives the project that the list begins with as many pages as a large site has."""
    statements = [f"Insert into Page (PageId, ProjectId, PageName, TPath, Path) values ({100 + number}, 2, "
                  f"'Page {number} of many', '', '')" for number in range(1, MANY_PAGES + 1)]
    subprocess.run([os.path.join(run_folder, "velor-catalogue"),
                    os.path.join(folder, "eThumbs.mdb"), *statements], check=True, stdout=subprocess.DEVNULL)


def start_up(photos):
    """The question and the folder picker of a start without an image folder."""
    photos.shot("question")
    photos.click("Yes", "push button")
    photos.hover("Ok", "push button")
    photos.shot("folder-picker-hovered")
    photos.away()
    photos.shot("folder-picker")


def main(run_folder, out, palette, scale, *wanted):
    factor = int(scale) / 100

    def session(name, left_out, *scenes):
        scratch = tempfile.mkdtemp(prefix="velor-shots-")
        folder = os.path.join(scratch, "program")
        shutil.copytree(run_folder, folder, ignore=shutil.ignore_patterns(
            "velor-*", "*.ini", "Temp*.htm", *left_out))
        if projects in scenes:
            add_pages(run_folder, folder)
        program = Program(os.path.join(run_folder, "velor-web-creator"), folder, scratch, out,
                          {"QT_SCALE_FACTOR": str(factor), "HOME": home(scratch),
                           **palette_settings(palette, scratch), **(font_settings(scratch) if names in scenes else {})})
        photos = Photographer(program, f"{palette}-{scale}-{name}", factor)
        try:
            if start_up not in scenes:
                program.size_window(*screen())
            for scene in scenes:
                scene(photos)
        except TourError:
            photos.shot("failed")
            raise
        finally:
            program.kill()
            shutil.rmtree(scratch, ignore_errors=True)

    def recovery():
        """A run that is killed with unsaved pages, and the bar of the next."""
        scratch = tempfile.mkdtemp(prefix="velor-shots-")
        folder = os.path.join(scratch, "program")
        shutil.copytree(run_folder, folder, ignore=shutil.ignore_patterns(
            "velor-*", "*.ini", "Temp*.htm"))

        def start():
            return Program(os.path.join(run_folder, "velor-web-creator"), folder, scratch, out,
                           {"QT_SCALE_FACTOR": str(factor), **palette_settings(palette, scratch)})

        def journals():
            return [name for _, _, names in os.walk(os.path.join(scratch, "velor-web-creator"))
                    for name in names if name.endswith(".page")]

        program = start()
        try:
            for number in (1, 2):
                program.key("ctrl+n")
                program.wait(f"Untitled {number}", "page tab")
                program.type("Words that nobody saved")
                wait_for(lambda: len(journals()) == number, "the journal")
            program.kill()
            program = start()
            program.size_window(*screen())
            photos = Photographer(program, f"{palette}-{scale}-recovery", factor)
            program.wait("Restore Untitled 1", "push button|button")
            photos.shot("bar")
            program.click_on("Restore Untitled 1")
            program.wait("Untitled 1", "page tab")
            photos.shot("restored")
        finally:
            program.kill()
            shutil.rmtree(scratch, ignore_errors=True)

    sessions = {
        "recovery": recovery,
        "start": lambda: session("start", ("eImages",), start_up),
        "main": lambda: session("main", (), main_window, dialogs, modes, narrow),
        "pictures": lambda: session("pictures", (), pictures),
        "manual": lambda: session("manual", (), manual),
        "words": lambda: session("words", (), words),
        "objects": lambda: session("objects", (), objects),
        "properties": lambda: session("properties", (), properties),
        "names": lambda: session("names", (), names),
        "projects": lambda: session("projects", (), projects),
        "readme": lambda: session("readme", (), readme),
    }
    for name in wanted or sessions:
        sessions[name]()


if __name__ == "__main__":
    main(*(os.path.abspath(argument) for argument in sys.argv[1:3]), *sys.argv[3:])
