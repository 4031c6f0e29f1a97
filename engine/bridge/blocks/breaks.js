// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Deleting the break between two lines of one paragraph. The engine would take a blank along that
// parted words before the break did, and leave a break that shows nothing any more.
import { beginsLine, beside, endsLine, keepsBlanks } from '../page/beside.js';
import * as blanks from '../page/blanks.js';
import * as dom from '../page/dom.js';
import { dropEmptyInline } from '../page/lines.js';
import * as selection from '../page/selection.js';
import { unitAt } from './extent.js';
import { tail } from '../page/whitespace.js';

// True where something of a leaf is seen in the range.
/**
 * @param {AnyNode} leaf
 * @param {PlainRange} range
 */
function shows(leaf, { startContainer, startOffset, endContainer, endOffset }) {
  if (!dom.isText(leaf)) return dom.isBlock(leaf) || dom.isBreak(leaf) || dom.isAtom(leaf);
  const from = leaf === startContainer ? startOffset : 0;
  const text = leaf.data.slice(from, leaf === endContainer ? endOffset : leaf.length);
  return keepsBlanks(leaf) ? text !== '' : /[^ \t\r\n]/.test(text);
}

/**
 * The break that is all that a deletion takes; null for anything else.
 * @param {PlainRange | null} target
 * @returns {Element | null}
 */
export function breakIn(target) {
  if (!target) return null;
  const [leaf, ...others] = [...selection.leavesIn(target)].filter((each) => shows(each, target));
  return !others.length && dom.isBreak(leaf) ? leaf : null;
}

/**
 * True where a deletion takes all that is seen of a line of bare text with a block behind it, or
 * with one before it alone: the engine would leave no line there, and go on in that block.
 * @param {PlainRange | null} target
 */
export function emptiesBareLine(target) {
  const text = target?.startContainer;
  if (!dom.isText(text) || target.endContainer !== text || keepsBlanks(text)) return false;
  const { startOffset, endOffset } = target;
  if (/[^ \t\r\n]/.test(text.data.slice(0, startOffset) + text.data.slice(endOffset))) return false;
  const isLine = beginsLine(beside(text, 0, 'previousSibling')) &&
    endsLine(beside(text, text.length, 'nextSibling'));
  const unit = isLine ? unitAt(text, 0) : null;
  if (!unit?.nodes.at(-1)?.contains(text) || unit.block) return false;
  return dom.isBlock(dom.neighbour(unit.nodes.at(-1), 'nextSibling') ??
    dom.neighbour(unit.nodes[0], 'previousSibling'));
}

// The break that is all of a paragraph behind a point: it holds an empty line open.
/**
 * @param {Unit} unit
 * @param {Element} line
 */
function heldBehind({ nodes }, line) {
  const rest = document.createRange();
  rest.setStartAfter(line);
  rest.setEndAfter(nodes.at(-1));
  const [leaf, ...others] = [...selection.leavesIn(rest)].filter((each) => shows(each, rest));
  return !others.length && dom.isBreak(leaf) ? leaf : null;
}

/**
 * The break that ends the line of a point, less where it is all that holds that line open at the
 * end of a paragraph; null for none.
 * @param {Node} node
 * @param {number} offset
 * @returns {AnyNode}
 */
export function breakBehind(node, offset) {
  const block = dom.blockOf(node);
  const rest = document.createRange();
  rest.setStart(node, offset);
  rest.setEnd(block, block.childNodes.length);
  let line = null;
  for (const leaf of selection.leavesIn(rest)) {
    if (!shows(leaf, rest)) continue;
    if (line && dom.blockOf(leaf) === block) return line;
    if (line) break;
    if (!dom.isBreak(leaf)) return null;
    line = leaf;
  }
  return beside(node, offset, 'previousSibling') ? line : null;
}

/**
 * Drops a break with the inline elements that held nothing else.
 * @param {Element | null} line
 */
export function dropBreak(line) {
  const parentNode = line?.parentNode;
  line?.remove();
  if (parentNode) dropEmptyInline(parentNode);
}

/**
 * Deletes a break: its two lines become one, with the caret between them. A break that held an
 * empty line open goes along.
 * @param {Element} line
 */
export function deleteBreak(line) {
  const { parentNode } = line;
  const index = selection.indexOf(line);
  const before = beside(parentNode, index, 'previousSibling');
  const after = beside(parentNode, index + 1, 'nextSibling');
  const unit = unitAt(parentNode, index);
  const isEmpty = endsLine(after);
  const held = unit && before && isEmpty ? heldBehind(unit, line) : null;
  blanks.watch();
  if (before && !isEmpty) {
    blanks.trimEdges(before.node ?? before.object, after.node ?? after.object);
  }
  dropBreak(held);
  dropBreak(line);
  if (before?.node) {
    const { data } = before.node;
    // The source's white space at the end of a line stays behind the caret.
    selection.setCaret(before.node, data.length - (isEmpty ? tail(data).length : 0));
  } else if (before) {
    selection.setCaret(...selection.pointOf(selection.endOf(before.object)));
  } else {
    selection.setCaret(parentNode, index);
  }
  blanks.watched({ inputType: 'delete' });
}
