// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Links as a format of text: which link the selection is in, and how one is put on a stretch of
// text, changed and taken off. No link comes to stand in another one.
import { beside, charAt } from '../page/beside.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';
import { applyFormat } from './inline.js';

/** @typedef {[name: string, value: string][]} Attributes */

/**
 * The link that an element is in, or is; null for none.
 * @param {Element | null} element
 * @returns {AnyNode}
 */
const linkAround = (element) => element?.closest('a[href]') ?? null;

/**
 * The link of the selection: around the object, the first selected text or the caret.
 * @param {View} view
 */
export function linkOf({ range, object, elements }) {
  if (!range) return null;
  return linkAround(object ?? elements()[0] ?? selection.caretElement(range));
}

/**
 * Sets attributes of an element; an empty value takes the attribute off.
 * @param {Element} element
 * @param {Attributes} attributes
 */
export function setAttributes(element, attributes) {
  for (const [name, value] of attributes) {
    if (value === (element.getAttribute(name) ?? '')) continue;
    if (value) {
      element.setAttribute(name, value);
    } else {
      history.attributesOf(element);
      element.removeAttribute(name);
    }
  }
}

// What makes an element a link; the rest stays with its name.
const ofLinks = ['href', 'target', 'title', 'rel', 'hreflang', 'type', 'ping', 'download'];
/**
 * Takes the link off an element. What names a place in the page goes on naming it.
 * @param {AnyNode} link
 */
export function takeOff(link) {
  if (link.id || link.hasAttribute('name')) setAttributes(link, ofLinks.map((name) => [name, '']));
  else dom.unwrap(link);
}

/** @param {Attributes} attributes */
const make = (attributes) =>
  dom.create('A', Object.fromEntries(attributes.filter(([, value]) => value)));
// All that a link says, as one text; '' for no link.
/** @param {AnyNode} link */
const said = (link) => (link
  ? JSON.stringify([...link.attributes].map(({ name, value }) => [name, value])) : '');

// Links with these attributes; text outside of links has the value ''.
/**
 * @param {Attributes} attributes
 * @returns {Format}
 */
const linkWith = (attributes) => ({
  tags: ['A'],
  property: '',
  read: (element) => said(linkAround(element)),
  same: (one, other) => one === other,
  write: (value) => (value ? make(attributes) : null),
  carries: (element) => dom.isElement(element) && element.matches('a[href]'),
  shell(link) {
    const shell = dom.twin(link);
    shell.removeAttribute('name');
    return shell;
  },
  strip: takeOff,
  parse: (value) => value,
  inAttribute: (value) => value,
});

// Names of places around the selected text stand before it: a link within one would be a link in a
// link.
function emptyNames() {
  const saved = selection.save();
  const around = selection.textsIn(selection.range()).map(({ parentElement }) => parentElement);
  const names = around.map((element) => element.closest('a:not([href])'));
  for (const anchor of new Set(names)) anchor?.after(...anchor.childNodes);
  selection.restore(saved);
}

/**
 * Makes one link of the text of the selected range, or takes the links off it without attributes.
 * @param {Attributes} attributes
 */
export function linkText(attributes) {
  const format = linkWith(attributes);
  if (attributes.length) emptyNames();
  applyFormat(format, '', selection.range());
  if (attributes.length) applyFormat(format, said(make(attributes)), selection.range());
}

/**
 * Makes a link of an object.
 * @param {AnyNode} object
 * @param {Attributes} attributes
 */
export function linkObject(object, attributes) {
  dom.wrap([object], make(attributes));
  selection.selectNode(object);
}

// The characters of a run of letters and digits beside the caret, in reading order.
/**
 * @param {Node} node
 * @param {number} offset
 * @param {Side} side
 */
function lettersBeside(node, offset, side) {
  const letters = [];
  const step = side === 'nextSibling' ? 1 : 0;
  // Longer ones are no words.
  for (let at = beside(node, offset, side);
    /[\p{L}\p{M}\p{N}_'\u2019-]|[\ud800-\udfff]/u.test(charAt(at)) && letters.length < 200;
    at = beside(at.node, at.index + step, side)) letters.push(at);
  return step ? letters : letters.reverse();
}

/**
 * The word at the caret, and how many characters of it are before the caret; null for none.
 * @param {Range} range
 * @returns {{ word: Range, before: number } | null}
 */
export function wordAt({ startContainer, startOffset }) {
  const left = lettersBeside(startContainer, startOffset, 'previousSibling');
  const letters = [...left, ...lettersBeside(startContainer, startOffset, 'nextSibling')];
  const text = letters.map(charAt).join('');
  // Languages without blanks have several words in a run.
  const words = [...new Intl.Segmenter(undefined, { granularity: 'word' }).segment(text)];
  const at = words.reverse().find(({ index, segment, isWordLike }) =>
    isWordLike && index <= left.length && left.length <= index + segment.length);
  if (!at) return null;
  const word = document.createRange();
  const last = letters[at.index + at.segment.length - 1];
  word.setStart(letters[at.index].node, letters[at.index].index);
  word.setEnd(last.node, last.index + 1);
  return { word, before: left.length - at.index };
}

/**
 * Puts the caret behind so many characters of the selected text.
 * @param {number} count
 */
export function setCaretWithin(count) {
  for (const text of selection.textsIn(selection.range())) {
    if (count <= text.length) {
      selection.setCaret(text, count);
      return;
    }
    count -= text.length;
  }
}
