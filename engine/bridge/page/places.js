// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The caret's place in terms that the page's source has too: an element's name, its number among
// those of that name, and an offset in its text.
import * as dom from './dom.js';
import * as history from './history.js';
import * as selection from './selection.js';

// A longer way up tells nothing more.
const mostElements = 8;

/**
 * @param {AnyNode} element
 * @param {PlainRange} range
 */
function offsetIn(element, { startContainer, startOffset }) {
  const before = document.createRange();
  before.setStart(element, 0);
  before.setEnd(startContainer, startOffset);
  return before.toString().length;
}

/** @returns {SourcePlace[]} */
export const caretPlaces = () => {
  const range = selection.range();
  const places = [];
  for (let at = selection.element(); range && at; at = at.parentElement) {
    const name = at.localName;
    const ordinal = [...document.getElementsByTagName(name)].indexOf(at);
    // A selected object lies behind the range's start.
    const offset = at.contains(range.startContainer) ? offsetIn(at, range) : 0;
    places.push({ name, ordinal, offset });
    if (places.length === mostElements) break;
  }
  return places;
};

/**
 * @param {AnyNode} element
 * @param {number} offset
 */
function putCaret(element, offset) {
  const texts = dom.textsUnder(element);
  for (const text of texts) {
    if (offset <= text.length) return selection.setCaret(text, offset);
    offset -= text.length;
  }
  const last = texts.at(-1);
  if (last) return selection.setCaret(last, last.length);
  const object = !element.hasChildNodes() && dom.isAtom(element);
  if (object) selection.selectNode(element);
  else selection.setCaret(element, 0);
}

/** @param {SourcePlace[]} places */
export const showPlace = (places) => {
  for (const { name, ordinal, offset } of places) {
    const element = document.getElementsByTagName(name)[ordinal];
    if (!element || !dom.isEditable() || !document.body.contains(element)) continue;
    history.finish();
    putCaret(element, offset);
    element.scrollIntoView({ block: 'nearest' });
    const box = document.getSelection().getRangeAt(0).getBoundingClientRect();
    const seen = box.top >= 0 && box.bottom <= innerHeight;
    if (box.height && !seen) scrollBy(0, box.top - innerHeight / 3);
    return;
  }
};
