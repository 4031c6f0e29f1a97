// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Where line ends of the source stand beside blocks: before a block, or, where end tags are left
// out, at the end of the block before it.
import { keepsBlanks } from './beside.js';
import * as dom from './dom.js';
import { tail } from './whitespace.js';

/**
 * White space with a line end alone.
 * @param {AnyNode} node
 */
export const beginsLine = (node) => dom.isBlank(node) && node.data.includes('\n');
/**
 * The line end and the indentation before a node; null where it does not begin a line. A parser
 * takes the ones before a table's first row out of the rows' group.
 * @param {AnyNode} node
 * @returns {string | null}
 */
export function lineOf(node) {
  const { previousSibling: before, parentNode } = node;
  if (!before && dom.isRowGroup(parentNode)) return lineOf(parentNode);
  return dom.isText(before) ? /\n[ \t]*$/.exec(before.data)?.[0] ?? null : null;
}
/**
 * @param {AnyNode} node
 * @param {string} line
 */
export const lineBefore = (node, line) => node.before(document.createTextNode(line));

// Elements whose end tags may be left out.
const endless = /^(DD|DT|LI|P|TD|TH|TR)$/;
/**
 * The last of such elements that end together.
 * @param {AnyNode} node
 * @param {string} [tag] where to stop
 */
function lastEndless(node, tag) {
  while (node.tagName !== tag && node.lastElementChild === node.lastChild &&
      endless.test(node.lastChild?.tagName)) {
    node = node.lastChild;
  }
  return node;
}
/**
 * The white space with a line end that such a block ends in; null for none.
 * @param {AnyNode} block
 * @returns {{ text: Text, gap: string } | null}
 */
export function innerEnd(block) {
  if (!dom.isElement(block) || !endless.test(block.tagName)) return null;
  const { lastChild: text } = lastEndless(block);
  const gap = dom.isText(text) ? tail(text.data) : '';
  return gap.includes('\n') && !keepsBlanks(text) ? { text, gap } : null;
}
/** @param {string} gap */
const lastLine = (gap) => /\n[ \t]*$/.exec(gap)[0];
/**
 * The line that a block begins, be it the end of the one before it. Not so where it could be
 * without end tag too, and has the line end behind it.
 * @param {AnyNode} block
 */
export function lineAt(block) {
  const isEnded = endless.test(block.tagName) && beginsLine(block.nextSibling);
  const end = isEnded ? null : innerEnd(block.previousSibling);
  return lineOf(block) ?? (end ? lastLine(end.gap) : null);
}
/**
 * The line end and indentation of a list's end tag; null where it stands behind the last item.
 * @param {AnyNode} list
 */
export function endLineOf({ lastChild }) {
  if (beginsLine(lastChild)) return lastLine(lastChild.data);
  const end = innerEnd(lastChild);
  return end && lastLine(end.gap);
}

// The line of a block like another one, whose end has that gap. Cells in a row have none.
/**
 * @param {AnyNode} other
 * @param {string} gap
 */
const lineLike = (other, gap) => lineAt(other) ?? (dom.isCell(other) ? '' : lastLine(gap));
/**
 * @param {AnyNode} block
 * @param {Text} like the text that a line end stands in, of a block like it
 * @param {string} gap
 */
const endWith = (block, like, gap) => lastEndless(block, like.parentElement.tagName).append(gap);

/**
 * A block came between those without end tags, or is the second part of one: the line ends stay
 * between them. False where its neighbours are not so.
 * @param {AnyNode} block
 */
export function setBetweenEndless(block) {
  const { previousSibling: before, nextSibling: after } = block;
  if (!endless.test(block.tagName) || (after && !dom.isElement(after))) return false;
  const end = innerEnd(before);
  const own = innerEnd(block);
  if (end) return Boolean(own) || takeEnd(block, end);
  if (own && endless.test(before?.tagName)) endWith(before, own.text, lineLike(before, own.gap));
  else if (own && before && !lineOf(block)) lineBefore(block, lineLike(before, own.gap));
  return Boolean(own) || endBefore(block);
}
// The end of the block before it becomes its own: what follows keeps its line.
/**
 * @param {AnyNode} block
 * @param {{ text: Text, gap: string }} end
 */
function takeEnd(block, { text, gap }) {
  const { previousSibling: before, nextSibling: after } = block;
  // Where nothing else says so the line may be that of an end tag.
  if (!after && !dom.isCell(block) && lineAt(before) === null) return false;
  endWith(block, text, gap);
  text.replaceData(text.length - gap.length, gap.length, lineLike(before, gap));
  return true;
}
/** @param {AnyNode} block */
function endBefore(block) {
  const next = dom.isElement(block.previousSibling) ? null : innerEnd(block.nextSibling);
  if (next) endWith(block, next.text, lineLike(block, next.gap));
  return next !== null;
}
