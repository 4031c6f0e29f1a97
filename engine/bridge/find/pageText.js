// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The page's text as it reads: lines without markup, and the way back from a character of a line to
// the text node that has it.
import { keepsBlanks } from '../page/beside.js';
import * as dom from '../page/dom.js';

/** @param {Element} element */
const displayOf = (element) => getComputedStyle(element).display;

/**
 * Appends a text to a line. White space that shows as one blank is one.
 * @param {TextLine} line
 * @param {Text} node
 */
function append(line, node) {
  const { data } = node;
  const { pieces } = line;
  /**
   * @param {string} text
   * @param {number} offset
   */
  const add = (text, offset) => {
    pieces.push({ node, at: line.text.length, offset });
    line.text += text;
  };
  const isDoubled = /^[ \t\r\n\f]/.test(data) && /(^| )$/.test(line.text);
  if ((!isDoubled && !/[\t\r\n\f]| {2}/.test(data)) || keepsBlanks(node)) {
    add(data, 0);
    return;
  }
  for (const { 0: part, index } of data.matchAll(/[ \t\r\n\f]+|[^ \t\r\n\f]+/g)) {
    if (!/[ \t\r\n\f]/.test(part[0])) add(part, index);
    else if (!/(^| )$/.test(line.text)) add(' ', index);
  }
}

/**
 * The lines of the page's text in document order. A line ends with its block, at a break and at an
 * object. What is not shown, and what is in an object, is in none.
 * @returns {TextLine[]}
 */
export function readLines() {
  /** @type {TextLine[]} */
  const lines = [];
  /** @type {TextLine} */
  let line = { text: '', pieces: [] };
  const endLine = () => {
    if (line.text.trim()) lines.push(line);
    line = { text: '', pieces: [] };
  };
  /** @param {AnyNode} node */
  const read = (node) => {
    if (dom.isText(node)) append(line, node);
    if (!dom.isElement(node) || dom.isNeutral(node)) return;
    const display = displayOf(node);
    if (display === 'none') return;
    const isOwnLine = dom.isBlock(node) || dom.isBreak(node) || dom.isAtom(node) ||
      !/^(inline|contents)$/.test(display);
    if (isOwnLine) endLine();
    if (!dom.isAtom(node)) node.childNodes.forEach(read);
    if (isOwnLine) endLine();
  };
  if (dom.isEditable()) read(document.body);
  return lines;
}

// The piece that a character of a line is in.
/**
 * @param {TextLine} line
 * @param {number} index
 */
function pieceAt({ pieces }, index) {
  let [low, high] = [0, pieces.length - 1];
  while (low < high) {
    const middle = Math.ceil((low + high) / 2);
    if (pieces[middle].at <= index) low = middle;
    else high = middle - 1;
  }
  return pieces[low];
}

/**
 * The point before a character of a line.
 * @param {TextLine} line
 * @param {number} index
 * @returns {TextAnchor}
 */
export function pointBefore(line, index) {
  const { node, at, offset } = pieceAt(line, index);
  return { node, offset: offset + index - at };
}

/**
 * The point behind a character of a line.
 * @param {TextLine} line
 * @param {number} index
 * @returns {TextAnchor}
 */
export function pointBehind(line, index) {
  const { node, offset } = pointBefore(line, index);
  return { node, offset: offset + 1 };
}
