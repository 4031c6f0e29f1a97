// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The page's text as it reads: lines without markup, and the way back from a character of a line to
// the text node that has it.
import { keepsBlanks } from '../page/beside.js';
import * as dom from '../page/dom.js';

// Of what is read for the part in sight.
const mostSteps = 500;      // nodes passed on the way back to a line's start
const longestLine = 20000;  // UTF-16 code units

/** @param {Element} element */
const displayOf = (element) => getComputedStyle(element).display;

/**
 * Appends a text to a line. White space that shows as one blank is one.
 * @param {TextLine} line
 * @param {Text} node
 * @param {(text: Text) => boolean} keeps whether it shows white space as it stands
 */
function append(line, node, keeps) {
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
  const isAtBlank = () => line.text === '' || line.text.endsWith(' ');
  const isDoubled = /^[ \t\r\n\f]/.test(data) && isAtBlank();
  if ((!isDoubled && !/[\t\r\n\f]| {2}/.test(data)) || keeps(node)) {
    add(data, 0);
    return;
  }
  if (isDoubled && !/[^ \t\r\n\f]/.test(data)) return;
  for (const { 0: part, index } of data.matchAll(/[ \t\r\n\f]+|[^ \t\r\n\f]+/g)) {
    if (!/[ \t\r\n\f]/.test(part[0])) add(part, index);
    else if (!isAtBlank()) add(' ', index);
  }
}

// True for what ends the line before it and begins another one behind it.
/**
 * @param {AnyNode} node
 * @param {string} [display] its own
 */
const isOwnLine = (node, display) => dom.isElement(node) &&
  (!/^(inline|contents)$/.test(display ?? displayOf(node)) || dom.isBlock(node) ||
    dom.isBreak(node) || dom.isAtom(node));

// Where the line begins that a node is in; sooner where that would be far to look for.
/** @param {AnyNode} node */
function lineStart(node) {
  let at = node;
  for (let steps = 0; at !== document.body && steps < mostSteps; steps++) {
    const before = at.previousSibling;
    if (before ? isOwnLine(before) : isOwnLine(at.parentNode)) return at;
    at = before ?? at.parentNode;
  }
  return at === document.body ? at.firstChild : at;
}

/**
 * The lines of the page's text in document order. A line ends with its block, at a break and at an
 * object. What is not shown, and what is in an object, is in none.
 * @param {{ first: AnyNode, last: AnyNode }} [sight] reads the lines with these nodes and those
 *   between them only; no longer lines than `longestLine`
 * @returns {TextLine[]}
 */
export function readLines(sight) {
  /** @type {TextLine[]} */
  const lines = [];
  /** @type {TextLine} */
  let line = { text: '', pieces: [] };
  const isTooLong = () => sight && line.text.length > longestLine;
  const endLine = () => {
    if (line.text.trim() && !isTooLong()) lines.push(line);
    line = { text: '', pieces: [] };
  };
  // Of the elements that were entered. To ask for a style is most of what reading a page takes.
  /** @type {Map<Element, boolean>} */
  const ownLines = new Map();
  /** @type {{ parent: Node | null, keeps: boolean }} */
  let blanks = { parent: null, keeps: false };
  /** @param {Text} text */
  const keeps = (text) => {
    const parent = text.parentNode;
    if (blanks.parent !== parent) blanks = { parent, keeps: keepsBlanks(text) };
    return blanks.keeps;
  };
  // Answers whether what is in the node is to be read.
  /** @param {AnyNode} node */
  const enter = (node) => {
    if (dom.isText(node)) {
      if (!(sight && node.length > longestLine)) append(line, node, keeps);
      return false;
    }
    if (dom.isNeutral(node)) return false;
    const display = displayOf(node);
    if (display === 'none') return false;
    const isOwn = isOwnLine(node, display);
    ownLines.set(node, isOwn);
    if (isOwn) endLine();
    return !isOwn || !dom.isAtom(node);
  };
  /** @param {AnyNode} node */
  const leave = (node) => {
    const isOwn = ownLines.get(node);
    if (isOwn ?? (!dom.isNeutral(node) && isOwnLine(node))) endLine();
  };
  /** @param {AnyNode} node */
  const isBehind = (node) => sight?.last?.compareDocumentPosition(node) ===
    Node.DOCUMENT_POSITION_FOLLOWING;

  if (!dom.isEditable()) return lines;
  const { body } = document;
  let node = sight && sight.first !== body ? lineStart(sight.first) : body.firstChild;
  while (node && !(isBehind(node) && (!line.text || isTooLong()))) {
    if (enter(node) && node.firstChild) {
      node = node.firstChild;
      continue;
    }
    leave(node);
    while (!node.nextSibling && node.parentNode !== body) {
      node = node.parentNode;
      leave(node);
    }
    node = node.nextSibling;
  }
  endLine();
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

/**
 * The place of a point in lines: a line's number and an index in it, those of the first character
 * at the point or behind it.
 * @param {TextLine[]} lines
 * @param {AnyNode} node
 * @param {number} offset
 * @returns {[line: number, index: number]}
 */
export function placeIn(lines, node, offset) {
  const point = document.createRange();
  point.setStart(node, offset);
  point.collapse(true);
  for (let line = 0; line < lines.length; line += 1) {
    const { text, pieces } = lines[line];
    for (let index = 0; index < pieces.length; index += 1) {
      const { node: piece, at, offset: from } = pieces[index];
      const end = pieces[index + 1]?.at ?? text.length;
      if (piece === node && offset <= from + end - at) {
        return [line, at + Math.max(0, offset - from)];
      }
      if (piece !== node && point.comparePoint(piece, 0) > 0) return [line, at];
    }
  }
  return [lines.length, 0];
}
