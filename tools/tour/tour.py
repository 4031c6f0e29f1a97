#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A tour of the real program, driven from outside; checks what it leaves on disk.

Usage: tour.py RUN_FOLDER OUT_FOLDER
RUN_FOLDER holds the executable, the sample catalogue, eImages and the sample sites; it is copied, never
changed. OUT_FOLDER receives the screenshots and the saved pages.
"""
import os
import shutil
import sys

from moves import Tour
from scenarios import hours, inserting, pages, preview, projects, reading, source, start_and_exit

# Each begins with the program as the one before it left it.
SCENARIOS = (
    start_and_exit.first_start_asks_nothing,
    pages.a_new_page_is_typed_formatted_and_saved,
    pages.commands_undo,
    source.the_source_is_shown,
    source.the_source_is_edited_applied_and_taken_back,
    pages.a_page_of_another_charset_is_saved_under_a_new_name,
    pages.a_read_only_page_says_so,
    pages.five_pages_are_the_limit,
    pages.closing_asks,
    preview.the_preview_walks_through_pages,
    reading.a_page_is_read_over_the_bus,
    inserting.pictures_and_tables_are_inserted,
    hours.an_article_is_written,
    hours.an_old_page_is_repaired,
    hours.text_moves_between_pages,
    hours.patience_is_lost,
    projects.a_project_that_moved_is_found_again_and_edited,
    start_and_exit.the_systems_end_closes_dialogs,
    start_and_exit.exit_ends_everything,
)


if __name__ == "__main__":
    run_folder, out_folder = (os.path.abspath(argument) for argument in sys.argv[1:3])
    shutil.rmtree(out_folder, ignore_errors=True)
    os.makedirs(out_folder)
    Tour(run_folder, out_folder).carry_out(SCENARIOS)
    print(f"tour: done; screenshots and the saved page lie in {out_folder}")
