// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Signs of template languages in text: `{{ name }}`, `{% if %}`, `${x}`. Half of one means nothing,
// and often breaks the page when its template is filled in. So a deletion takes a sign as a whole,
// and what is put in at a caret within one goes behind it.
import * as dom from './dom.js';
import * as selection from './selection.js';

// UTF-16 units, as page/text/TemplateSigns has it; what goes on for longer is no sign.
const longest = 2048;

// None of them holds what begins another of its kind: that one was left open.
/**
 * @param {string} open
 * @param {string} close
 */
const between = (open, close) => `${open}(?:(?!${open}|${close})[^])*${close}`;
const braces = '[^{}]{1,2048}\\}';
const forms = new RegExp([
  between('\\{\\{!--', '--\\}\\}'),
  between('\\{\\{\\{\\{', '\\}\\}\\}\\}'),
  between('\\{\\{\\{', '\\}\\}\\}'),
  between('\\{\\{', '\\}\\}'),
  between('\\{%', '%\\}'),
  between('\\{#', '#\\}'),
  `\\[\\[[$#*@~]\\{${braces}\\]\\]`,
  `\\[\\([$#*@~]\\{${braces}\\)\\]`,
  `\\$!?\\{${braces}`,
  `#\\{${braces}`,
  '</?[#@][a-zA-Z][^<>]*>',
].join('|'), 'g');

let areWhole = true;

/**
 * Whether signs are kept whole.
 * @param {boolean} on
 */
export function setWholeSigns(on) { areWhole = on; }

/**
 * The signs in a text.
 * @param {string} text
 * @returns {{ start: number, end: number }[]}
 */
export function signsIn(text) {
  if (!/[{<]/.test(text)) return [];
  return [...text.matchAll(forms)].map(({ index: start, 0: { length } }) =>
    ({ start, end: start + length }));
}

// The sign that a point is within, as offsets; null for none. Its edges are outside of it.
/**
 * @param {AnyNode} node
 * @param {number} offset
 */
function signAround(node, offset) {
  if (!areWhole || !dom.isText(node)) return null;
  const from = Math.max(0, offset - longest);
  const near = node.data.slice(from, offset + longest);
  if (!/[{<]/.test(near)) return null;
  for (const { index, 0: { length } } of near.matchAll(forms)) {
    const [start, end] = [from + index, from + index + length];
    if (start >= offset) return null;
    if (end > offset) return { start, end };
  }
  return null;
}

/**
 * Moves the ends of a range that lie within signs to their edges.
 * @param {Range} range
 */
export function takeInSigns(range) {
  const { startContainer, startOffset, endContainer, endOffset, collapsed } = range;
  if (collapsed) return;
  const first = signAround(startContainer, startOffset);
  const last = signAround(endContainer, endOffset);
  if (first) range.setStart(startContainer, first.start);
  if (last) range.setEnd(endContainer, last.end);
}

/**
 * What a deletion of a part of a sign has to delete; null where it cuts no sign.
 * @param {PlainRange | null | undefined} target what would be deleted
 * @returns {Range | null}
 */
export function wholeSigns(target) {
  if (!target) return null;
  const { startContainer, startOffset, endContainer, endOffset } = target;
  if (!signAround(startContainer, startOffset) && !signAround(endContainer, endOffset)) return null;
  const range = document.createRange();
  range.setStart(startContainer, startOffset);
  range.setEnd(endContainer, endOffset);
  takeInSigns(range);
  return range;
}

// Where typing went on to: a sign that is being written has its end behind the caret by chance.
/** @type {TextAnchor | null} */
let typedTo = null;

/** Notes that text was typed up to the caret. */
export function noteTyped() {
  const { anchorNode, anchorOffset } = selection.points();
  typedTo = dom.isText(anchorNode) ? { node: anchorNode, offset: anchorOffset } : null;
}

/**
 * The offset at which something may be put in at a point: behind the sign that it is within.
 * @param {AnyNode} node
 * @param {number} offset
 */
export const outsideSigns = (node, offset) => signAround(node, offset)?.end ?? offset;

/** Moves a caret within a sign behind it: something is about to be put in there. */
export function leaveSign() {
  const { anchorNode, anchorOffset, focusNode, focusOffset } = selection.points();
  if (anchorNode !== focusNode || anchorOffset !== focusOffset) return;
  if (typedTo?.node === anchorNode && typedTo.offset === anchorOffset) return;
  const offset = outsideSigns(anchorNode, anchorOffset);
  if (offset !== anchorOffset) selection.setCaret(anchorNode, offset);
}
