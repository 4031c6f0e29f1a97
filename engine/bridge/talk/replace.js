// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Puts another document in the place of this one, as one step of the history, which keeps the old
// nodes. Each document has a *generation*, a number that the program gave it.
import * as pending from '../formats/pending.js';
import { isEditable } from '../page/dom.js';
import * as history from '../page/history.js';
import { restorePaths, selectionPaths } from '../page/paths.js';
import * as selection from '../page/selection.js';
import { serialize } from '../page/serialize.js';
import { work } from '../page/working.js';
import { schedulePush } from './pace.js';

// By root element: undo brings the old root back and with it the generation, by which the program
// knows the file's text that belongs to it.
const generations = new WeakMap();
/** The generation of the document that is shown; 0 for the one that was loaded. */
export const shownGeneration = () => generations.get(document.documentElement) ?? 0;

// A security policy that a page states holds until another page is loaded.
const policy = 'meta[http-equiv="content-security-policy" i]';

// True for a document that can take this one's place without a load.
/** @param {Document} fresh */
const exchangeable = (fresh) =>
  isEditable() && fresh.body?.tagName === 'BODY' && fresh.compatMode === document.compatMode &&
  ![document, fresh].some((page) => page.querySelector(policy));

/** @param {Document} fresh */
function exchange(fresh) {
  const { start, end } = selectionPaths();
  const { scrollX, scrollY } = globalThis;
  for (const node of [...document.childNodes]) node.remove();
  for (const node of [...fresh.childNodes]) document.append(node);
  document.body.focus({ preventScroll: true });
  restorePaths(start, end);
  selection.ensure();
  scrollTo(scrollX, scrollY);
}

/**
 * Gives the page another address without a load, so that its links resolve against that.
 * @param {string} address
 * @returns {boolean} whether that was possible
 */
export const moveTo = (address) => {
  try {
    globalThis.history.replaceState(null, '', address);
    return true;
  } catch {
    return false;
  }
};

/**
 * Puts the document that a text is parsed to in the place of this one; the caret stays where it
 * was. One that serializes as this one does only gives it its generation.
 * @param {string} text
 * @param {number} generation
 * @returns {string} the new document's text; empty where only a load can put it here
 */
export const replaceDocument = (text, generation) => {
  const fresh = new DOMParser().parseFromString(text, 'text/html');
  if (!exchangeable(fresh)) return '';
  history.finish();
  const html = serialize(fresh);
  if (html !== serialize()) {
    work(() => history.step('replace', () => exchange(fresh)));
    pending.clear();
  }
  generations.set(document.documentElement, generation);
  schedulePush();
  return html;
};
