# SPDX-License-Identifier: GPL-3.0-or-later
"""A person's hour: whole jobs by keys alone, each ending with the files as a careful author would have them."""
import os
import shutil

from desktop import wait_for
from moves import DIALOG, TAB, check, step
from scenarios.inserting import ELEMENT, TABLE, insert_picture


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


ARTICLE = b"""<html>
<head><title>Roses</title></head>
<body>
<h1>Roses</h1>
<p>They grow in every garden.</p>
<p><img src="roses.png" height="160" width="240"></p>
<table cellspacing="1" cellpadding="1" border="1" width="75%">
   <tr>
      <td>Name</td>
      <td>Colour</td>
      <td>Height</td>
   </tr>
   <tr>
      <td>Rose</td>
      <td>Red</td>
      <td>One metre</td>
   </tr>
   <tr>
      <td>Dog rose</td>
      <td>Pink</td>
      <td>Three metres</td>
   </tr>
</table>
<p>Cut them in <b>March</b>.</p>

</body>
</html>
"""


def an_article_is_written(tour):
    step("an article: words, a picture, a table that is filled by Tab, words behind it")
    program = tour.program
    shutil.copy(os.path.join(tour.folder, "eImages", "roses.png"), os.path.join(tour.site, "roses.png"))
    path = put(tour, "article.htm", ARTICLE.split(b"<p>They")[0] + b"</body>\n</html>\n")
    tour.open(path)
    program.key("ctrl+End", "Return")
    program.type("They grow in every garden.")
    program.key("Return")
    insert_picture(tour, os.path.join(tour.site, "roses.png"), "roses.png", "20-article")
    program.key("Return")
    program.click_on("Table")
    dialog = program.wait(TABLE, DIALOG)
    program.press("Insert", within=dialog)
    program.wait_gone(TABLE, DIALOG)
    # Whoever has made a table writes in it, from cell to cell.
    for word in ("Name", "Colour", "Height", "Rose", "Red", "One metre", "Dog rose", "Pink"):
        program.type(word)
        program.key("Tab")
    program.type("Three metres")
    program.key("Down")
    program.type("Cut them in ")
    program.key("ctrl+b")
    program.type("March")
    program.key("ctrl+b")
    program.type(".")
    program.shot("21-article")
    program.key("ctrl+s")
    becomes(path, ARTICLE)
    program.key("ctrl+F4")
    program.wait_gone("article.htm", TAB)


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
    step("a paragraph moves to a page in another folder by cut and paste, and its link leads where it led")
    program = tour.program
    os.makedirs(os.path.join(tour.site, "more"), exist_ok=True)
    here = put(tour, "here.htm",
               b'<html><body>\n<p>stays</p>\n<p>moves <a href="old.htm">on</a></p>\n</body></html>\n')
    there = put(tour, os.path.join("more", "there.htm"), b"<html><body>\n<p>waits</p>\n<hr>\n</body></html>\n")
    tour.open(there)
    program.key("ctrl+Home", "End")
    program.type(" ")
    tour.open(here)
    program.key("ctrl+End", "shift+Home", "ctrl+x", "BackSpace")
    program.key("ctrl+s")
    becomes(here, b"<html><body>\n<p>stays</p>\n</body></html>\n")
    program.key("ctrl+F4")
    program.wait_gone("here.htm", TAB)
    # The keyboard is in the page that came to the front, its caret where it was.
    program.key("ctrl+v", "ctrl+s")
    becomes(there, b'<html><body>\n<p>waits moves <a href="../old.htm">on</a></p>\n<hr>\n</body></html>\n')
    program.key("ctrl+F4")
    program.wait_gone("there.htm", TAB)


def twice(tour, path):
    """Everything is pressed, and pressed again at once; dialogs are opened and left."""
    program = tour.program
    for button in ("Bold", "Italic", "Underline", "Number", "Bullet"):
        program.press(button)
        program.press(button)
    for there, back in (("Indent", "Outdent"), ("Undo", "Redo"), ("Cut", "Copy")):
        program.press(there)
        program.press(back)
    for button, title in (("Image", ELEMENT), ("About", "About us...")):
        for _ in range(2):
            program.click_on(button)
            program.wait(title, DIALOG)
            program.key("Escape")
            program.wait_gone(title, DIALOG)
    for _ in range(2):
        program.key("ctrl+o")
        program.wait("Open", DIALOG)
        program.key("Escape")
        program.wait_gone("Open", DIALOG)
    # A file that is open already comes to the front and is opened once.
    for _ in range(2):
        tour.open(path)


def patience_is_lost(tour):
    step("views, dialogs and buttons are pressed over and over; what is typed lands in the page all the same")
    program = tour.program
    before = b"<html><body>\n<p>x</p>\n</body></html>\n"
    path = put(tour, "hurry.htm", before)
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
    becomes(path, before.replace(b"x", b"xabc"))
    twice(tour, path)
    check(program.names(TAB).count("hurry.htm") == 1, "the page was opened twice")
    program.type("d")
    program.key("ctrl+s", "ctrl+s")
    becomes(path, before.replace(b"x", b"xabcd"))
    program.key("ctrl+F4", "ctrl+F4")
    program.wait_gone("hurry.htm", TAB)
