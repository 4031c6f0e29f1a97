// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Another document in the place of this one, as one step of the history: the old nodes wait there
// to be brought back.
import * as pending from '../formats/pending.js';
import { isEditable } from '../page/dom.js';
import * as history from '../page/history.js';
import { restorePaths, selectionPaths } from '../page/paths.js';
import * as selection from '../page/selection.js';
import { serialize } from '../page/serialize.js';
import { work } from '../page/working.js';
import { schedulePush } from './pace.js';

// Which original a document came from, by its root: undo brings the old root back and with it the
// original that its bytes are owed to.
const generations = new WeakMap();
export const shownGeneration = () => generations.get(document.documentElement) ?? 0;

// A policy that a page states holds for as long as the page is there.
const policy = 'meta[http-equiv="content-security-policy" i]';

const exchangeable = (fresh) =>
  isEditable() && fresh.body?.tagName === 'BODY' && fresh.compatMode === document.compatMode &&
  ![document, fresh].some((page) => page.querySelector(policy));

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
 * Gives the page another address, so that its links resolve against it; whether that was possible.
 * @param {string} address
 */
export const moveTo = (address) => {
  try {
    globalThis.history.replaceState(null, '', address);
    return true;
  } catch {
    return false;
  }
};

// Answers the new document's text, or '' where only a load can put it here. A document that is
// this one already leaves no step.
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
