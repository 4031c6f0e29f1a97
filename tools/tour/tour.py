#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A tour of the real program, driven from outside; checks what it leaves on disk.

Usage: tour.py RUN_FOLDER OUT_FOLDER
RUN_FOLDER holds the executable, the sample catalogue, eImages and the sample sites; it is copied, never
changed. OUT_FOLDER receives the screenshots and the saved pages.
"""
import os
import shutil
import stat
import subprocess
import sys
import tempfile

from desktop import Atspi, Program, TourError, file_text, wait_for

MENU = "menu item"
TAB = "page tab"
DIALOG = "dialog|alert|file chooser"
WINDOW = "dialog|frame|window"


def step(text):
    print(f"tour: {text}", flush=True)


def check(condition, what):
    if not condition:
        raise TourError(what)


class Tour:
    def __init__(self, run_folder, out):
        self.run_folder = run_folder
        self.out = out
        self.scratch = tempfile.mkdtemp(prefix="velor-tour-")
        self.folder = os.path.join(self.scratch, "program")
        self.settings = os.path.join(self.scratch, "settings")
        self.site = os.path.join(self.scratch, "my pages")
        for folder in (self.settings, self.site):
            os.makedirs(folder)
        shutil.copytree(run_folder, self.folder, ignore=shutil.ignore_patterns("velor-*", "*.ini", "Temp*.htm"))
        self.executable = os.path.join(run_folder, "velor-web-creator")
        self.program = None

    def start(self):
        self.program = Program(self.executable, self.folder, self.settings, self.out,
                               {"HOME": self.folder})
        self.program.size_window(1280, 860)

    # Small moves that every scenario uses.
    def tab(self, caption):
        return self.program.wait(caption, TAB)

    def new_page(self, caption):
        self.program.key("ctrl+n")
        self.tab(caption)

    def name_in_dialog(self, path, title=None, replace=False):
        """Types a path into the file dialog in front, or the one of that title, and accepts it, the
        question about a file that is there already too."""
        box = self.program.wait(role="text", within=self.program.wait(title, DIALOG))
        wait_for(lambda: Program.has_state(box, Atspi.StateType.FOCUSED), "the name box's focus")
        self.program.key("ctrl+a")
        self.program.type(path)
        self.program.key("Return")
        if replace:
            wait_for(lambda: self.program.find(f"{os.path.basename(path)} already exists.\nDo you want to replace it?"),
                     "the question about the file that is there")
            self.program.key("alt+y")
        wait_for(lambda: self.program.find(title, DIALOG) is None, "the file dialog to close")

    def save_as(self, path):
        self.program.key("F12")
        self.name_in_dialog(path)
        wait_for(lambda: os.path.exists(path), f"{path} to be written")

    def open(self, path, caption=None):
        self.program.key("ctrl+o")
        self.name_in_dialog(path)
        self.tab(caption or os.path.basename(path))

    def pressed(self, button):
        node = self.program.wait(button, "push button|toggle button|button|check box")
        states = node.get_state_set()
        return states.contains(Atspi.StateType.PRESSED) or states.contains(Atspi.StateType.CHECKED)

    def answer(self, text, button):
        """Answers the message box that shows `text`."""
        self.program.wait(text, "label")
        self.program.press(button)
        self.program.wait_gone(text, "label")

    def menu(self, *path):
        """Opens a menu by its mnemonic keys: menu("alt+f", "x")."""
        self.program.key(*path)

    # Scenarios.
    def first_start_asks_nothing(self):
        step("the first start asks nothing and writes both location files")
        self.start()
        self.program.shot("01-no-page")
        site = file_text(os.path.join(self.folder, "SiteConfig.ini"))
        check(site == f'"{self.folder}"\r\n', f"SiteConfig.ini holds {site!r}")
        images = file_text(os.path.join(self.folder, "SiteImgConfig.ini"))
        check(images == f'"{self.folder}/eImages"\r\n', f"SiteImgConfig.ini holds {images!r}")

    def a_new_page_is_typed_formatted_and_saved(self):
        step("a new page is typed, made bold, saved")
        program = self.program
        self.new_page("Untitled 1")
        program.key("ctrl+a")
        program.type("Hello brave world")
        program.key("ctrl+shift+Left")
        program.press("Bold")
        wait_for(lambda: self.pressed("Bold"), "Bold to be shown pressed")
        program.shot("02-bold")
        path = os.path.join(self.site, "hello.htm")
        program.key("ctrl+s")
        self.name_in_dialog(path)
        wait_for(lambda: os.path.exists(path), "the saved page")
        self.tab("hello.htm")
        text = file_text(path, "big5")
        check("charset=big5" in text, "the new page lost its charset")
        check("Hello brave <b>world</b>" in text, f"the bold word is not in the page: {text!r}")
        check("\r\n" in text and "\n" not in text.replace("\r\n", ""), "line ends were mixed")
        shutil.copy(path, self.out)

    def commands_undo(self):
        step("undo takes back, redo brings again")
        program = self.program
        path = os.path.join(self.site, "hello.htm")
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

    def the_source_is_shown(self):
        step("View HTML shows the source")
        self.program.press("View HTML")
        self.program.shot("03-source")
        self.program.press("Design")

    def the_source_is_edited_applied_and_taken_back(self):
        step("the source is edited and applied; undo takes it back")
        program = self.program
        path = os.path.join(self.site, "hello.htm")
        program.press("Edit HTML", within=program.wait("hello.htm", "frame"))
        program.wait("Apply to Document")
        program.key("ctrl+f")
        find = program.wait("Find", "text")
        wait_for(lambda: Program.has_state(find, Atspi.StateType.FOCUSED), "the find box's focus")
        program.type("brave")
        program.shot("07-source-editor")
        program.key("Escape")
        program.type("bold new")
        wait_for(lambda: any(name.endswith("Column 18") for name in program.names("label")), "the typed words")
        program.press("Apply to Document")
        copy = os.path.join(self.site, "helloTMP.htm")
        wait_for(lambda: "bold new" in file_text(copy, "big5"), "the applied words in the temporary copy")
        program.key("ctrl+F4")
        program.wait_gone("Apply to Document")
        program.key("ctrl+s")
        wait_for(lambda: "Hello bold new <b>world" in file_text(path, "big5"), "the applied words on disk")
        program.press("Undo")
        program.key("ctrl+s")
        wait_for(lambda: "Hello brave <b>world" in file_text(path, "big5"), "the old words on disk")

    def a_page_of_another_charset_is_saved_under_a_new_name(self):
        step("a windows-1252 page keeps its charset, line ends and every byte that was not edited")
        source = os.path.join(self.site, "caf\u00e9 100% #1.html")
        before = ("<!DOCTYPE html>\n<html>\n<head><meta charset=windows-1252>\n<TITLE>Caf\u00e9</TITLE></head>\n"
                  "<body bgcolor=white>\n<P>Na\u00efve <B>caf\u00e9</B>\n</body>\n</html>\n").encode("windows-1252")
        with open(source, "wb") as stream:
            stream.write(before)
        # xdotool types what the keyboard map has; the dialog finds the file by a plain copy's name.
        plain = os.path.join(self.site, "cafe.html")
        shutil.copy(source, plain)
        self.open(plain)
        untouched = os.path.join(self.site, "untouched.htm")
        self.save_as(untouched)
        with open(untouched, "rb") as stream:
            check(stream.read() == before, "saving an unedited page changed it")
        self.program.shot("04-second-page")

    def a_read_only_page_says_so(self):
        step("a read-only page opens as such")
        path = os.path.join(self.site, "locked.htm")
        with open(path, "wb") as stream:
            stream.write(b"<html><body><p>Locked</p></body></html>")
        os.chmod(path, stat.S_IRUSR)
        self.open(path, "locked.htm (Read-Only)")
        page = self.program.wait("locked.htm", "frame")
        edit = self.program.wait("Edit HTML", "push button|toggle button|button", page)
        wait_for(lambda: not Program.has_state(edit, Atspi.StateType.ENABLED), "Edit HTML to be off")

    def five_pages_are_the_limit(self):
        step("the sixth page is refused")
        for caption in ("Untitled 4", "Untitled 5"):
            self.new_page(caption)
        self.program.shot("05-five-pages")
        self.program.key("ctrl+n")
        self.answer("Too many Pages are opened. Please close one or two File(s), and then try to open it.",
                    "OK")

    def closing_asks(self):
        step("closing a changed page asks; Cancel keeps it, No drops the change")
        program = self.program
        program.type("unsaved")
        question = "You have made changes to this document. Do you want to save it?"
        program.key("ctrl+F4")
        program.wait(question, "label")
        program.shot("06-closing-prompt")
        self.answer(question, "Cancel")
        self.tab("Untitled 5")
        program.key("ctrl+F4")
        self.answer(question, "No")
        program.wait_gone("Untitled 5", TAB)
        step("an unchanged page closes unasked")
        program.key("ctrl+F4")
        program.wait_gone("Untitled 4", TAB)

    # Inserting. The two dialogs by their titles.
    ELEMENT = "Element Information..."
    TABLE = "Table Editor"

    def box_text(self, label, dialog):
        return Program.text(self.program.wait(label, "text", dialog))

    def insert_picture(self, picture, link, shot):
        """Chooses a picture in the element dialog, checks the link and puts it into the page."""
        program = self.program
        program.click_on("Image")
        dialog = program.wait(self.ELEMENT, DIALOG)
        source = program.wait("Image Source:", "text", dialog)
        wait_for(lambda: Program.has_state(source, Atspi.StateType.FOCUSED), "the source box's focus")
        program.click_on("Browse...", within=dialog)
        self.name_in_dialog(picture, "Open")
        wait_for(lambda: self.box_text("Image Source:", dialog) == link, f"the link {link}")
        program.wait("240 \u00d7 160 pixels", "label", dialog)
        program.shot(shot + "-general")
        program.click_on("Appearance", TAB, dialog)
        program.wait("Border thickness:", "text", dialog)
        program.shot(shot + "-appearance")
        program.click_on("General", TAB, dialog)
        program.wait("Image Source:", "text", dialog)
        program.press("OK", within=dialog)
        program.wait_gone(self.ELEMENT, DIALOG)

    def pictures_and_tables_are_inserted(self):
        step("a picture and a table are inserted into a saved page, in one undo step each")
        program = self.program
        picture = os.path.join(self.site, "images", "roses.png")
        os.makedirs(os.path.dirname(picture))
        shutil.copy(os.path.join(self.folder, "eImages", "roses.png"), picture)
        path = os.path.join(self.site, "inserted.htm")
        with open(path, "w", encoding="utf-8") as stream:
            stream.write("<html><head></head><body>\n<p>Roses</p>\n</body></html>\n")
        self.open(path)
        program.key("ctrl+End")
        self.insert_picture(picture, "images/roses.png", "09-picture")
        tag = ('<img src="images/roses.png" alt="" lowsrc="" border="0" hspace="0" vspace="0" '
               'height="141" width="211">')
        program.key("ctrl+s")
        wait_for(lambda: f"<p>Roses{tag}</p>" in file_text(path), "the picture in the file")
        program.press("Undo")
        program.key("ctrl+s")
        wait_for(lambda: "<p>Roses</p>" in file_text(path), "the picture taken back in one step")
        program.press("Redo")
        program.click_on("Table")
        dialog = program.wait(self.TABLE, DIALOG)
        check(self.box_text("# Of Columns:", dialog) == "3", "the table dialog's columns")
        program.shot("10-table")
        program.press("Insert", within=dialog)
        program.wait_gone(self.TABLE, DIALOG)
        program.key("ctrl+s")
        wait_for(lambda: file_text(path).count("<td>") == 9, "the table in the file")
        text = file_text(path)
        check(tag in text and '<table align="Left" cellspacing="1" cellpadding="1" border="1" width="75%">' in text,
              f"the inserted elements are not whole: {text!r}")
        program.shot("11-inserted")
        shutil.copy(path, self.out)
        program.press("Preview", within=program.wait("inserted.htm", "frame"))
        program.wait("Done", "label", program.wait("Preview", "frame"))
        program.shot("12-inserted-preview")
        program.key("ctrl+F4")
        program.wait_gone("Preview", "frame")
        self.hyperlink_page()
        program.key("ctrl+F4")
        program.wait_gone("inserted.htm", TAB)

        step("a picture in a page without a file is linked absolutely")
        program.key("ctrl+n")
        wait_for(lambda: any(name.startswith("Untitled") for name in program.names(TAB)), "the new page")
        self.insert_picture(picture, "file:///" + picture, "13-picture-unsaved")
        caption = next(name for name in program.names(TAB) if name.startswith("Untitled"))
        program.press("Preview", within=program.wait(caption, "frame"))
        program.wait("Done", "label", program.wait("Preview", "frame"))
        copy = os.path.join(self.folder, caption.replace("Untitled ", "Temp") + ".htm")
        check(f'src="file:///{picture}"' in file_text(copy, "big5"), "the absolute link is not in the page")
        program.shot("15-picture-unsaved-preview")
        program.key("ctrl+F4")
        program.wait_gone("Preview", "frame")
        program.key("ctrl+F4")
        self.answer("You have made changes to this document. Do you want to save it?", "No")
        program.wait_gone(caption, TAB)

    def hyperlink_page(self):
        """The hyperlink page can be filled and changes nothing."""
        program = self.program
        program.open_popup(lambda: program.key("alt+i"))
        program.key("Down", "Return")
        dialog = program.wait(self.ELEMENT, DIALOG)
        program.wait("Anchor Element Href:", "text", dialog)
        program.shot("14-hyperlink")
        program.key("Escape")
        program.wait_gone(self.ELEMENT, DIALOG)

    def write_linking_page(self, name, target):
        """A page that is all one link."""
        with open(os.path.join(self.site, name), "w", encoding="utf-8") as stream:
            stream.write(f'<html><head></head><body><p><a href="{target}" style="display:block;height:500px">'
                         f"To {target}</a></p></body></html>")

    def preview_shows_link(self, target):
        """Waits until the preview tells the address of the link under the pointer."""
        def told():
            self.program.move(640, 450)
            self.program.move(645, 455)
            return any(name.endswith("/" + target) for name in self.program.names("label"))
        wait_for(told, f"the preview to show the link to {target}")

    def the_preview_walks_through_pages(self):
        step("the preview shows unsaved edits, goes back and forward, refreshes, stops, and only hides")
        program = self.program
        path = os.path.join(self.site, "first.htm")
        self.write_linking_page("first.htm", "second.htm")
        self.write_linking_page("second.htm", "third.htm")
        self.open(path)
        program.key("ctrl+Home")
        program.type("Unsaved ")
        program.press("Preview", within=program.wait("first.htm", "frame"))
        preview = program.wait("Preview", "frame")
        program.wait("Done", "label", preview)
        program.shot("07-preview")
        check("Unsaved" in file_text(os.path.join(self.site, "firstTMP.htm")), "the preview is not of the edited page")
        check("Unsaved" not in file_text(path), "the preview saved the page")
        self.preview_shows_link("second.htm")
        program.click(640, 450)
        self.preview_shows_link("third.htm")
        program.shot("08-preview-second-page")
        program.press("Back", within=preview)
        self.preview_shows_link("second.htm")
        program.press("Forward", within=preview)
        self.preview_shows_link("third.htm")
        self.write_linking_page("second.htm", "changed.htm")
        program.press("Refresh", within=preview)
        self.preview_shows_link("changed.htm")
        program.press("Stop", within=preview)
        program.key("ctrl+F4")
        program.wait_gone("Preview", "frame")
        program.press("Preview", within=program.wait("first.htm", "frame"))
        self.preview_shows_link("second.htm")
        program.key("ctrl+F4")
        program.wait_gone("Preview", "frame")
        program.key("ctrl+s")
        wait_for(lambda: "Unsaved" in file_text(path), "the edit on disk")
        program.key("ctrl+F4")
        program.wait_gone("first.htm", TAB)
    def catalogue(self, statement):
        """The rows of a statement on the catalogue, without the header line."""
        tool = os.path.join(self.run_folder, "velor-catalogue")
        output = subprocess.run([tool, os.path.join(self.folder, "eThumbs.mdb"), statement],
                                check=True, capture_output=True, text=True).stdout
        return output.splitlines()[1:]

    def a_project_that_moved_is_found_again_and_edited(self):
        step("a project's moved folder is asked for, written into the catalogue, its home page edited")
        # A program of its own: the tab of a page that is saved is found by the page's number.
        self.start()
        program = self.program
        program.click_on("Project Manager")
        manager = program.wait("Web Site Project Manager", WINDOW)
        program.shot("07-project-manager")
        rows = program.wait("Select the Project and open it.", "tree|table|tree table", manager)
        wait_for(lambda: Program.has_state(rows, Atspi.StateType.FOCUSED), "the list's focus")
        program.key("End", "Return")
        program.wait("Web path not found please provide the path", "label")
        program.shot("08-moved-site")
        program.key("alt+y")
        picker = program.wait("Select Folder", WINDOW)
        tree = program.wait("Folder", "tree|table|tree table", picker)
        wait_for(lambda: Program.has_state(tree, Atspi.StateType.FOCUSED), "the folder list's focus")
        # The picker begins at the home folder, which is the program folder here.
        program.key("End", "Right", "Right", "Down")
        chosen = program.wait("Lighthouse", "tree item|table cell", picker)
        wait_for(lambda: Program.has_state(chosen, Atspi.StateType.SELECTED), "the site's folder to be chosen")
        program.shot("09-folder-picker")
        program.key("Return")
        self.tab("Home.htm")
        folder = os.path.join(self.folder, "Sites", "Lighthouse")
        logic = folder.replace("/", "\\")
        for statement in ("Select Path from Project where IdProject = '3'",
                          "Select distinct TPath from Page where ProjectId = '3'",
                          "Select PPath from CustomCD where ProjectId = '3'"):
            check(self.catalogue(statement) == [logic],
                  f"{statement} gives {self.catalogue(statement)}, not {logic}")
        others = self.catalogue("Select Path from Project where IdProject <> '3'")
        check(logic not in others and len(others) == 2, f"other projects were changed: {others}")

        home = os.path.join(folder, "Files", "Home.htm")
        program.key("ctrl+Home")
        program.type("See ")
        # The first save of a project's page asks for its name.
        program.key("ctrl+s")
        self.name_in_dialog(home, replace=True)
        wait_for(lambda: "See The Lighthouse</h1>" in file_text(home), "the edited home page")
        for kept in ('charset=utf-8', '<img src="Images/lighthouse.png"', '<a href="Keepers.htm">The keepers</a>'):
            check(kept in file_text(home), f"{kept} is no longer in the home page")
        program.activate()
        program.shot("10-project-page")

    def exit_ends_everything(self):
        step("exit ends the program without questions and leaves no temporary copy")
        self.program.type("never saved")
        self.program.open_popup(lambda: self.program.key("alt+f"))
        self.program.key("x")
        status = self.program.wait_end()
        check(status == 0, f"the program ended with status {status}")
        left = [name for folder, _, names in os.walk(self.scratch) for name in names
                if "TMP.htm" in name or name.startswith("Temp")]
        check(not left, f"temporary copies were left behind: {left}")

    def run(self):
        try:
            for scenario in (self.first_start_asks_nothing,
                             self.a_new_page_is_typed_formatted_and_saved,
                             self.commands_undo,
                             self.the_source_is_shown,
                             self.the_source_is_edited_applied_and_taken_back,
                             self.a_page_of_another_charset_is_saved_under_a_new_name,
                             self.a_read_only_page_says_so,
                             self.five_pages_are_the_limit,
                             self.closing_asks,
                             self.the_preview_walks_through_pages,
                             self.pictures_and_tables_are_inserted,
                             self.exit_ends_everything,
                             self.a_project_that_moved_is_found_again_and_edited,
                             self.exit_ends_everything):
                scenario()
        except Exception:
            if self.program is not None:
                self.program.shot("failure")
            raise
        finally:
            if self.program is not None:
                self.program.kill()
            shutil.rmtree(self.scratch, ignore_errors=True)


if __name__ == "__main__":
    run_folder, out_folder = (os.path.abspath(argument) for argument in sys.argv[1:3])
    shutil.rmtree(out_folder, ignore_errors=True)
    os.makedirs(out_folder)
    Tour(run_folder, out_folder).run()
    print(f"tour: done; screenshots and the saved page lie in {out_folder}")
