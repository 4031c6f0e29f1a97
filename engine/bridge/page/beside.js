// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The characters beside a point, in its line: across inline elements, up to a block or a break.
import * as dom from './dom.js';

/**
 * What is beside a point in its line; null at the line's edge.
 * @param {Node} node
 * @param {number} offset
 * @param {Side} side
 * @returns {Neighbour | null}
 */
export function beside(node, offset, side) {
  const back = side === 'previousSibling';
  let at = node;
  if (dom.isText(node)) {
    const index = back ? offset - 1 : offset;
    if (index >= 0 && index < node.length) return { node, index };
  } else {
    const child = node.childNodes[back ? offset - 1 : offset];
    const inner = child && edge(child, back);
    if (child) return inner === undefined ? beside(child, 0, side) : inner;
  }
  while (!at[side]) {
    if (dom.isBlock(at)) return null;
    at = at.parentNode;
  }
  if (dom.isBlock(at)) return null;
  at = at[side];
  const found = edge(at, back);
  return found === undefined ? beside(at, back ? 0 : Infinity, side) : found;
}
/**
 * The outermost character of a node; undefined where the node has none.
 * @param {AnyNode} node
 * @param {boolean} back
 * @returns {Neighbour | null | undefined}
 */
export function edge(node, back) {
  if (dom.isBlock(node) || dom.isBreak(node)) return null;
  if (dom.isNeutral(node) && !dom.isText(node)) return undefined;
  if (dom.isText(node)) {
    return node.length ? { node, index: back ? node.length - 1 : 0 } : undefined;
  }
  if (dom.isAtom(node)) return { object: node };
  const child = back ? node.lastChild : node.firstChild;
  for (let at = child; at; at = back ? at.previousSibling : at.nextSibling) {
    const found = edge(at, back);
    if (found !== undefined) return found;
  }
  return undefined;
}
/** @param {Neighbour | null} character */
export const charAt = (character) => (character?.node ? character.node.data[character.index] : '');
/** @param {Neighbour | null} character */
export const isBlank = (character) => /[ \t\r\n]/.test(charAt(character));

/**
 * White space that HTML shows as it stands.
 * @param {AnyNode} text
 */
export const keepsBlanks = (text) =>
  /^(pre|break)/.test(getComputedStyle(text.parentNode).whiteSpace);

/**
 * True where nothing but blanks is left in the line, from a character on.
 * @param {Neighbour | null} character
 * @param {Side} side
 */
function hasNoMore(character, side) {
  const step = side === 'nextSibling' ? 1 : 0;
  let at = character;
  while (isBlank(at)) at = beside(at.node, at.index + step, side);
  return at === null;
}
/**
 * True where nothing but blanks follows in the line.
 * @param {Neighbour | null} character
 */
export const endsLine = (character) => hasNoMore(character, 'nextSibling');
/**
 * True where nothing but blanks stands before it in the line.
 * @param {Neighbour | null} character
 */
export const beginsLine = (character) => hasNoMore(character, 'previousSibling');

/**
 * True where nothing but blanks is between a point and a comment on that side of it, in its block.
 * @param {AnyNode} node
 * @param {number} offset
 * @param {Side} side
 */
export function isCommentBeside(node, offset, side) {
  const isAhead = side === 'nextSibling';
  const walker = document.createTreeWalker(dom.blockOf(node));
  const step = () => /** @type {AnyNode} */ (isAhead ? walker.nextNode() : walker.previousNode());
  if (dom.isText(node)) {
    if ((isAhead ? node.data.slice(offset) : node.data.slice(0, offset)).trim()) return false;
    walker.currentNode = node;
  } else {
    // A step from this one comes to what is beside the point.
    const child = node.childNodes[isAhead ? offset - 1 : offset];
    walker.currentNode = child ? edgeLeaf(child, isAhead) : node;
    if (!child && (isAhead ? offset > 0 : node.firstChild)) return false;
  }
  for (let at = step(); at; at = step()) {
    if (dom.isComment(at)) return true;
    const isOpen = dom.isInline(at) && !dom.isAtom(at) && !dom.isBreak(at);
    if (!isOpen && !dom.isBlank(at)) return false;
  }
  return false;
}
/**
 * @param {AnyNode} node
 * @param {boolean} isAhead
 */
function edgeLeaf(node, isAhead) {
  let at = node;
  while (isAhead && at.lastChild) at = at.lastChild;
  return at;
}
