// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The selection as numbers, which hold in a fresh parse of the same document.
import { isText } from './dom.js';
import * as selection from './selection.js';

/**
 * @param {Node} node
 * @param {number} offset
 * @returns {NodePath}
 */
function path(node, offset) {
  const numbers = [];
  /** @param {AnyNode} child */
  const mergedIndexOf = (child) => {
    let index = 0;
    for (let at = child.previousSibling; at; at = at.previousSibling) {
      if (!isText(at) || !isText(at.nextSibling)) index++;
    }
    return index;
  };
  if (isText(node)) {
    for (let at = node.previousSibling; isText(at); at = at.previousSibling) offset += at.length;
    numbers.unshift(offset);
  } else {
    const child = node.childNodes[offset];
    numbers.unshift(child ? mergedIndexOf(child) : node.childNodes.length);
  }
  for (let at = node; at.parentNode && at !== document.documentElement; at = at.parentNode) {
    numbers.unshift(mergedIndexOf(at));
  }
  return numbers;
}

/**
 * @param {NodePath} numbers
 * @returns {Point}
 */
function resolve(numbers) {
  /** @type {Node} */
  let node = document.documentElement;
  for (const index of numbers.slice(0, -1)) {
    if (!node.childNodes.length) break;
    node = node.childNodes[Math.min(index, node.childNodes.length - 1)];
  }
  return [node, Math.min(numbers.at(-1) ?? 0, selection.length(node))];
}

/** @returns {{ start: NodePath, end: NodePath }} */
export const selectionPaths = () => {
  const { anchorNode, anchorOffset, focusNode, focusOffset } = selection.points();
  /**
   * @param {AnyNode} node
   * @param {number} offset
   */
  const at = (node, offset) => (node ? path(node, offset) : []);
  return { start: at(anchorNode, anchorOffset), end: at(focusNode, focusOffset) };
};

/**
 * @param {NodePath} start
 * @param {NodePath} end
 */
export const restorePaths = (start, end) => {
  if (!start?.length || !end?.length) return;
  const [anchorNode, anchorOffset] = resolve(start);
  const [focusNode, focusOffset] = resolve(end);
  selection.select({ anchorNode, anchorOffset, focusNode, focusOffset });
};
