// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The picture that the program asks a question about, in a box beside it.

/** @type {() => Element | null} */
let find = () => null;

/**
 * Sets how that picture is found; it may come into the page later.
 * @param {() => Element | null} finder
 */
export function askAbout(finder) { find = finder; }

/** Where it is in the viewport: left, top, width, height; nothing for none. */
export function placeOfAsked() {
  const box = find()?.getBoundingClientRect();
  return box ? [box.left, box.top, box.width, box.height].map(Math.round) : [];
}
