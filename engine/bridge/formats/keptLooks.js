// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The formats of a text that is deleted: they wait at the caret (pending.js) for what is typed
// there next.
import { formats } from './formats.js';
import * as pending from './pending.js';
import * as dom from '../page/dom.js';
import * as selection from '../page/selection.js';

/**
 * A character format by its name.
 * @typedef {[name: string, value: FormatValue]} Look
 */

/**
 * The character formats that inline elements around a text give it, the innermost first.
 * @param {Text} text
 * @returns {Look[]}
 */
export function looksOf(text) {
  /** @type {AnyNode[]} */
  const around = [];
  for (let at = text.parentNode; !dom.isBlock(at); at = at.parentNode) around.push(at);
  /** @param {Format} format */
  const depth = (format) => around.findIndex((at) => format.carries(at));
  return Object.entries(formats).filter(([, format]) => depth(format) >= 0)
    .sort(([, one], [, other]) => depth(one) - depth(other))
    .map(([name, format]) => [name, format.read(around[depth(format)])]);
}

// The element that typed text would be in. The engine does not type into an inline one in which no
// text is left, as where that holds server code alone.
/** @param {PlainRange} caret */
function typedInto(caret) {
  let at = selection.caretElement(caret);
  while (dom.isInline(at) && !at.textContent.trim()) at = at.parentElement;
  return at;
}
/**
 * Has what is typed at the caret next get the formats that it would not have there.
 * @param {Look[]} looks
 */
export function waitAtCaret(looks) {
  const element = typedInto(selection.range());
  for (const [name, value] of looks) {
    const { read, same } = formats[name];
    if (!same(read(element), value)) pending.set(name, value);
  }
}

// A text that is about to be deleted, and its looks: where these go with it the engine would write
// them again as FONT, in any page.
/** @type {{ text: Text, looks: Look[] } | null} */
let deleted = null;

/**
 * Notes what is about to be deleted.
 * @param {StaticRange | PlainRange | null | undefined} target
 */
export function noteDeletion(target) {
  deleted = null;
  if (!target) return;
  const { startContainer, startOffset, endContainer, endOffset } = target;
  const text = dom.isText(startContainer) && startOffset < startContainer.length
    ? startContainer : endContainer;
  const isWhole = dom.isText(text) && !dom.isBlock(text.parentNode) &&
    (text !== startContainer || startOffset === 0) &&
    (text !== endContainer || endOffset === text.length);
  if (isWhole) deleted = { text, looks: looksOf(text) };
}

/** After the deletion: the formats of a text that is gone wait at the caret. */
export function keepLooksOfDeleted() {
  const gone = deleted;
  deleted = null;
  if (!gone || gone.text.isConnected || !selection.range()?.collapsed) return;
  // The engine forgets the looks that it keeps.
  selection.select(selection.points());
  waitAtCaret(gone.looks);
}
/**
 * A deletion of a range with its formats kept so.
 * @param {PlainRange} range
 * @param {() => void} remove
 */
export const keepingLooks = (range, remove) => () => {
  noteDeletion(range);
  remove();
  keepLooksOfDeleted();
};
