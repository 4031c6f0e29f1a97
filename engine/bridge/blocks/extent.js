// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// How far a deletion goes: the paragraphs that a selection begins and ends in, and whether a point
// is at the edge of one. Nothing here changes the document.
import * as dom from '../page/dom.js';
import { keepsBlanks } from '../page/beside.js';
import * as selection from '../page/selection.js';
import { readUnits, unitsIn } from '../page/units.js';

/**
 * A caret as a range.
 * @param {Node} node
 * @param {number} offset
 * @returns {PlainRange}
 */
export const caretAt = (node, offset) => ({
  startContainer: node, startOffset: offset, endContainer: node, endOffset: offset, collapsed: true,
});

/**
 * The paragraph that a caret at this point would be in; null where no line is.
 * @param {Node} node
 * @param {number} offset
 * @returns {Unit | null}
 */
export const unitAt = (node, offset) => readUnits(unitsIn(caretAt(node, offset)))[0] ?? null;

/**
 * @param {Unit | null} one
 * @param {Unit | null} other
 */
export const sameUnit = (one, other) =>
  one === other || Boolean(one && other && one.container === other.container &&
    one.nodes[0] === other.nodes[0]);

/** @param {AnyNode} node */
const isApart = (node) => dom.isCell(node) || dom.isOutOfFlow(node);
/**
 * The table cell, or the box with a place of its own, around a node, else the body: nothing is
 * joined across their edges.
 * @param {AnyNode} node
 */
export const cellOf = (node) => dom.ancestor(node, isApart) || document.body;

/**
 * True for a paragraph that is nothing but an empty line.
 * @param {Unit} unit
 */
export const isEmptyParagraph = (unit) => Boolean(unit.block) && dom.isHollow(unit.block);

// The same range with all of what is closed that it begins or ends in.
/** @param {Range} range */
function withClosed(range) {
  const [first, last] = [range.startContainer, range.endContainer]
    .map((node) => dom.ancestor(node, dom.isAtom));
  if (!first && !last) return range;
  const result = range.cloneRange();
  if (first) result.setStartBefore(first);
  if (last) result.setEndAfter(last);
  return result;
}

/**
 * What of a selected range is meant: what is closed as a whole; of a range that shows something in
 * one table cell only, and begins or ends outside of that, what is in the cell.
 * @param {Range} selected
 */
export function meant(selected) {
  const range = withClosed(selected);
  const { startContainer, endContainer } = range;
  if (selection.control(range) || cellOf(startContainer) === cellOf(endContainer)) return range;
  const leaves = [...selection.leavesIn(range)].filter(dom.isShown);
  const [cell, ...others] = new Set(leaves.map(cellOf));
  if (!cell || others.length) return range;
  const part = range.cloneRange();
  if (!cell.contains(startContainer)) part.setStart(cell, 0);
  if (!cell.contains(endContainer)) part.setEnd(cell, cell.childNodes.length);
  return part;
}

/**
 * The same range with its ends in the blocks that it takes in, so that what stands behind a block
 * that is selected as a whole stays out of it. A range over all of the page, or over one object, is
 * answered as it is.
 * @param {Range} range
 * @returns {Range}
 */
export function narrowed(range) {
  const { startContainer, startOffset, endContainer, endOffset } = range;
  const { body } = document;
  const all = startContainer === body && endContainer === body && startOffset === 0 &&
    endOffset === body.childNodes.length;
  if (all || selection.control(range)) return range;
  const result = meant(range).cloneRange();
  /** @param {AnyNode} node */
  const enters = (node) => dom.isElement(node) && dom.isBlock(node) && !dom.isAtom(node) &&
    node.tagName !== 'TABLE' && node.hasChildNodes();
  const first = () => result.startContainer.childNodes[result.startOffset];
  const last = () => result.endContainer.childNodes[result.endOffset - 1];
  while (enters(first())) result.setStart(first(), 0);
  // The source's line end behind a paragraph is not of it.
  const line = dom.isText(result.endContainer) ? result.endContainer : last();
  if (dom.isIgnorable(line) && enters(line.previousSibling)) result.setEndBefore(line);
  while (enters(last())) result.setEnd(last(), last().childNodes.length);
  excludeNextParagraph(result);
  return result.collapsed ? range : result;
}

// Whole paragraphs that were selected by three clicks end at the start of the one behind them.
/** @param {Range} range */
function excludeNextParagraph(range) {
  const { startContainer, startOffset, endContainer, endOffset } = range;
  const first = unitAt(startContainer, startOffset);
  const behind = unitAt(endContainer, endOffset);
  if (!first || !behind || sameUnit(first, behind)) return;
  if (!isAtEdge(caretAt(startContainer, startOffset), first, 'start')) return;
  if (!isAtEdge(caretAt(endContainer, endOffset), behind, 'start')) return;
  const leaf = [...selection.leavesIn(range)]
    .filter((each) => dom.isShown(each) && !behind.nodes.some((node) => node.contains(each)))
    .at(-1);
  if (dom.isText(leaf)) range.setEnd(leaf, leaf.length);
  else if (leaf) range.setEndAfter(leaf);
  // Cells as such have more in them than the text that was selected.
  if (selection.cellsIn(range)) range.setEnd(endContainer, endOffset);
}

/**
 * Moves the selection's ends as `narrowed` says.
 * @param {Range} range the selected one
 */
export function narrowSelection(range) {
  if (range.collapsed) return;
  const { startContainer, startOffset, endContainer, endOffset } = narrowed(range);
  document.getSelection().setBaseAndExtent(startContainer, startOffset, endContainer, endOffset);
}

/**
 * True when the range begins in one paragraph and ends in another.
 * @param {Range} range
 */
export function spansUnits(range) {
  if (range.collapsed || selection.control(range)) return false;
  const { startContainer, startOffset, endContainer, endOffset } = narrowed(range);
  return !sameUnit(unitAt(startContainer, startOffset), unitAt(endContainer, endOffset));
}

// True when something in the range shows. White space does not: the range ends at the edge of a
// paragraph.
/** @param {PlainRange} range */
export function showsAnything(range) {
  const { startContainer, startOffset, endContainer, endOffset } = range;
  for (const leaf of selection.leavesIn(range)) {
    if (!dom.isShown(leaf)) continue;
    if (!dom.isText(leaf)) return true;
    const from = leaf === startContainer ? startOffset : 0;
    const text = leaf.data.slice(from, leaf === endContainer ? endOffset : leaf.length);
    if (text !== '' && (keepsBlanks(leaf) || /[^ \t\n]/.test(text))) return true;
  }
  return false;
}

/**
 * True when nothing shows between a range and the start or end of the paragraph that it is in.
 * @param {PlainRange} range
 * @param {Unit} unit
 * @param {Edge} side
 */
export function isAtEdge(range, unit, side) {
  const [first, last] = [unit.nodes[0], unit.nodes.at(-1)];
  if (!first) return true;
  const { indexOf } = selection;
  const { startContainer, startOffset, endContainer, endOffset } = range;
  // Beside a comment at the edge.
  const paragraph = document.createRange();
  paragraph.setStartBefore(first);
  paragraph.setEndAfter(last);
  const beyond = paragraph.comparePoint(startContainer, startOffset);
  if (beyond === (side === 'start' ? -1 : 1)) return true;
  const rest = { startContainer, startOffset, endContainer, endOffset };
  if (side === 'start') {
    Object.assign(rest, { startContainer: first.parentNode, startOffset: indexOf(first) });
  } else {
    // The break at a line's end is no part of it.
    const behind = dom.isBreak(last) ? 0 : 1;
    Object.assign(rest, { endContainer: last.parentNode, endOffset: indexOf(last) + behind });
  }
  return !showsAnything(rest) || dom.isHollow(unit.home);
}
