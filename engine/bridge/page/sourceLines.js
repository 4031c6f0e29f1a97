// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The lines of the source. A block that was made begins on a line of its own where its neighbours
// do, with their indentation; what stood there before stays where it is. In a page without line
// ends between its blocks there are none beside new ones either.
import * as dom from './dom.js';
import * as history from './history.js';

/** @param {AnyNode} node */
const holdsItems = (node) => dom.isElement(node) &&
  /^(DIR|DL|MENU|OL|TABLE|TBODY|TFOOT|THEAD|UL)$/.test(node.tagName);

// The line end and the indentation before a node; null where it does not begin a line. A parser
// takes the ones before a table's first row out of the rows' group.
/**
 * @param {AnyNode} node
 * @returns {string | null}
 */
function lineOf(node) {
  const { previousSibling: before, parentNode } = node;
  if (!before && /^(TBODY|TFOOT|THEAD)$/.test(parentNode.tagName)) return lineOf(parentNode);
  return dom.isText(before) ? /\n[ \t]*$/.exec(before.data)?.[0] ?? null : null;
}
/**
 * @param {AnyNode} node
 * @param {string} line
 */
const lineBefore = (node, line) => node.before(document.createTextNode(line));

// The line that a new block's neighbours tell it to have; null where they stand in a row.
/** @param {AnyNode} node */
function lineFor(node) {
  for (const side of dom.sides) {
    const other = dom.neighbour(node, side);
    if (other && !dom.isBlock(other)) return null;
    const line = other && lineOf(other);
    if (line) return line;
  }
  return null;
}

// A step of indentation, as the block stands to what it lies in.
/**
 * @param {AnyNode} block
 * @param {string} line
 */
function stepOf(block, line) {
  const outer = lineOf(block.parentNode);
  return outer && line.startsWith(outer) ? line.slice(outer.length) : '';
}

// Items and rows on lines of their own, one step further in, and the end of what holds them.
/**
 * @param {AnyNode} list
 * @param {string} line
 */
function setItems(list, line) {
  const step = stepOf(list, line);
  for (const item of [...list.children]) {
    if (!lineOf(item)) lineBefore(item, line + step);
    if (holdsItems(item)) setItems(item, line + step);
  }
  if (list.lastElementChild === list.lastChild) list.append(line);
}

// The cells of a row, as those of the row beside it.
/** @param {AnyNode} row */
function setCells(row) {
  const like = dom.neighbour(row, 'previousSibling') ?? dom.neighbour(row, 'nextSibling');
  const line = like?.tagName === 'TR' && like.cells[0] && lineOf(like.cells[0]);
  if (!line || row.firstElementChild !== row.firstChild) return;
  for (const cell of row.cells) lineBefore(cell, line);
  if (dom.isBlank(like.lastChild)) row.append(like.lastChild.data);
}

/** @param {AnyNode} block */
function set(block) {
  const own = lineOf(block);
  const line = own ?? lineFor(block);
  if (!line || block.parentNode.closest('PRE, LISTING, XMP')) return;
  if (!own) lineBefore(block, line);
  // What it came in before had that line.
  if (own && dom.isBlock(block.nextSibling)) lineBefore(block.nextSibling, line);
  if (holdsItems(block)) setItems(block, line);
  if (block.tagName === 'TR') setCells(block);
}

/** @param {AnyNode} node */
const beginsLine = (node) => dom.isBlank(node) && node.data.includes('\n');

/**
 * A block goes, or what holds others and leaves them where it stood: the lines that were its own go
 * with it.
 * @param {AnyNode} block
 */
export function dropLine(block) {
  const { previousSibling: before, nextSibling: after } = block;
  if (beginsLine(before) && beginsLine(after)) before.remove();
}
/** @param {AnyNode} holder */
export function dropInnerLines(holder) {
  const { firstChild, lastChild, previousSibling, nextSibling } = holder;
  if (beginsLine(firstChild) && beginsLine(previousSibling)) firstChild.remove();
  if (beginsLine(lastChild) && (!nextSibling || beginsLine(nextSibling))) lastChild.remove();
}

// The blocks among what the changes put in that were not in the page before them.
/** @param {{ added?: AnyNode[], removed?: AnyNode[] }[]} changes */
function made(changes) {
  const known = new Map();
  /**
   * @param {AnyNode} node
   * @param {boolean} isNew
   */
  const note = (node, isNew) => {
    if (dom.isElement(node) && !known.has(node)) known.set(node, isNew);
  };
  for (const { added = [], removed = [] } of changes) {
    removed.forEach((node) => note(node, false));
    added.forEach((node) => note(node, true));
  }
  return [...known].filter(([node, isNew]) => isNew && node.isConnected && dom.isBlock(node))
    .map(([node]) => node);
}

history.completeStepsBy((changes) => made(changes).forEach(set));
