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
 * @param {Point} point
 */
function offsetIn(element, [node, offset]) {
  const before = document.createRange();
  before.setStart(element, 0);
  before.setEnd(node, offset);
  return before.toString().length;
}

// The place of a point in or beside an element, in terms of the elements around it.
/**
 * @param {AnyNode} element
 * @param {Point} point
 * @returns {SourcePlace[]}
 */
function placesOf(element, point) {
  const places = [];
  for (let at = element; at && places.length < mostElements; at = at.parentElement) {
    const name = at.localName;
    const ordinal = [...document.getElementsByTagName(name)].indexOf(at);
    // A selected object lies behind the range's start.
    const offset = at.contains(point[0]) ? offsetIn(at, point) : 0;
    places.push({ name, ordinal, offset });
  }
  return places;
}

/** The place of the caret, or of the selection's start. */
export const caretPlaces = () => {
  const range = selection.range();
  return range ? placesOf(selection.element(), [range.startContainer, range.startOffset]) : [];
};

/** The place of the selection's end; none for a caret. */
export const endPlaces = () => {
  const range = selection.range();
  if (!range || range.collapsed) return [];
  const { endContainer, endOffset } = range;
  const element = dom.isElement(endContainer) ? endContainer : endContainer.parentElement;
  return placesOf(element, [endContainer, endOffset]);
};

// The point in an element before which so much of its text stands; null where it has no text.
/**
 * @param {AnyNode} element
 * @param {number} offset
 * @returns {Point | null}
 */
function pointIn(element, offset) {
  const texts = dom.textsUnder(element);
  for (const text of texts) {
    if (offset <= text.length) return [text, offset];
    offset -= text.length;
  }
  const last = texts.at(-1);
  return last ? [last, last.length] : null;
}

/**
 * @param {AnyNode} element
 * @param {number} offset
 */
function putCaret(element, offset) {
  const point = pointIn(element, offset);
  const object = !element.hasChildNodes() && dom.isAtom(element);
  if (point) selection.setCaret(...point);
  else if (object) selection.selectNode(element);
  else selection.setCaret(element, 0);
}

// The first of places that the document has, with its element; undefined for none.
/** @param {SourcePlace[]} places */
const firstOf = (places) => places
  .map(({ name, ordinal, offset }) =>
    ({ element: document.getElementsByTagName(name)[ordinal], offset }))
  .find(({ element }) => element && document.body.contains(element));

/**
 * Scrolls the selection into sight, which lies in an element.
 * @param {Element} element
 */
export function showSelection(element) {
  element.scrollIntoView({ block: 'nearest' });
  const box = document.getSelection().getRangeAt(0).getBoundingClientRect();
  const seen = box.top >= 0 && box.bottom <= innerHeight;
  if (box.height && !seen) scrollBy(0, box.top - innerHeight / 3);
}

/**
 * Puts the caret to the first of the places that the document has, or selects from there to the
 * first of those of the end.
 * @param {SourcePlace[]} places
 * @param {SourcePlace[]} [end]
 */
export const showPlace = (places, end = []) => {
  const start = dom.isEditable() ? firstOf(places) : undefined;
  if (!start) return;
  history.finish();
  putCaret(start.element, start.offset);
  const last = firstOf(end);
  const point = last && pointIn(last.element, last.offset);
  if (point) document.getSelection().extend(...point);
  showSelection(start.element);
};
