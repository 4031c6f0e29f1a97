// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Deleting what is selected. Two words are kept apart here and in the modules beside this one: what
// a person asks for is *deleted*; what that leaves empty or needless (a block, a break, an inline
// element, a line of the source) is *dropped*.
import { cellOf, narrowed, showsAnything, spansUnits, unitAt } from './extent.js';
import { dropEmptyBlocks, join } from './joining.js';
import { beside, isBlank, keepsBlanks } from '../page/beside.js';
import * as blanks from '../page/blanks.js';
import * as dom from '../page/dom.js';
import { dropEmptyInline, holdOpen, lineElement } from '../page/lines.js';
import * as selection from '../page/selection.js';
import { takeInSigns } from '../page/signs.js';
import { splitText } from '../page/standIns.js';
import { gapAt } from '../page/units.js';
import { enterCell } from '../tables/deeds.js';
import { isEmpty } from '../tables/making.js';
import { gapFrom } from '../page/whitespace.js';

// A row in which no cell begins, or a column.
/** @param {AnyNode} node */
const isTablePart = (node) => /^(COL|COLGROUP|TBODY|TFOOT|THEAD|TR)$/.test(node.nodeName);

// Across table cells only contents go; the cells, rows and columns stay.
/** @param {Range} range */
function deleteLeaves(range) {
  const { startContainer, startOffset, endContainer, endOffset } = range;
  const blocks = new Set();
  for (const leaf of [...selection.leavesIn(range)]) {
    if (!dom.isShown(leaf) || dom.isCell(leaf) || isTablePart(leaf)) continue;
    const { parentNode } = leaf;
    const block = dom.blockOf(parentNode);
    // Its line is empty already.
    if (dom.isBreak(leaf) && dom.isHollow(block)) continue;
    blocks.add(block);
    const from = leaf === startContainer ? startOffset : 0;
    if (dom.isText(leaf)) {
      leaf.deleteData(from, (leaf === endContainer ? endOffset : leaf.length) - from);
      dropEmptyInline(leaf);
    } else {
      leaf.remove();
      dropEmptyInline(parentNode);
    }
  }
  blocks.forEach(holdOpen);
}

// Deletes within one paragraph.
/** @param {Range} range */
function deleteInParagraph(range) {
  const block = dom.blockOf(range.startContainer);
  if (dom.isHollow(block)) return;
  const { startContainer, startOffset, endContainer } = range;
  const [first, second] = [lineElement(startContainer), lineElement(endContainer)];
  range.deleteContents();
  if (!block.contains(range.startContainer)) {
    range.setStart(startContainer, startOffset);
    range.collapse(true);
  }
  if (first && second && first !== second && !first.contains(second) && !second.contains(first)) {
    first.append(...second.childNodes);
    second.remove();
    range.setStart(startContainer, startOffset);
    range.collapse(true);
  }
  dropEmptyInline(startContainer);
  dropEmptyInline(endContainer);
  holdOpen(block);
  holdItemOpen(block, range);
}

// An item whose own line is left empty before the list in it has that line still, where the range
// has been.
/**
 * @param {AnyNode} item
 * @param {Range} range
 */
function holdItemOpen(item, range) {
  const first = item.tagName === 'LI' && item.isConnected
    ? dom.shownFrom(item.firstChild, 'nextSibling') : null;
  const { startContainer, startOffset } = range;
  if (!dom.isList(first) || range.comparePoint(item, selection.indexOf(first)) < 0) return;
  const line = dom.create('BR');
  /** @type {AnyNode} */
  let next = first;
  if (startContainer === item) next = item.childNodes[startOffset];
  else if (dom.isText(startContainer) && startContainer.parentNode === item) {
    if (startOffset === 0) next = startContainer;
    else if (startOffset < startContainer.length) next = splitText(startContainer, startOffset);
  }
  item.insertBefore(line, next);
  range.setStartBefore(line);
  range.collapse(true);
}

// The one object or closed island that is all that is selected; null for anything else.
/** @param {Range} range */
function thingIn(range) {
  const object = selection.control(range);
  if (object) return object;
  const leaves = [];
  for (const leaf of selection.leavesIn(range)) {
    if (!dom.isShown(leaf) || isUntouched(leaf, range)) continue;
    leaves.push(leaf);
    if (leaves.length > 1) return null;
  }
  return dom.isIsland(leaves[0]) ? leaves[0] : null;
}
/**
 * True for a text at an end of the range of which nothing is selected.
 * @param {AnyNode} leaf
 * @param {Range} range
 */
export const isUntouched = (leaf, range) =>
  (leaf === range.startContainer && dom.isText(leaf) && range.startOffset === leaf.length) ||
  (leaf === range.endContainer && range.endOffset === 0);

// `rest` becomes the range where the thing was.
/**
 * @param {AnyNode} thing
 * @param {Range} rest
 */
function deleteThing(thing, rest) {
  rest.setStartBefore(thing);
  rest.setEndAfter(thing);
  const { parentNode } = thing;
  const block = dom.blockOf(parentNode);
  thing.remove();
  dropEmptyInline(parentNode);
  holdOpen(block);
  holdItemOpen(block, rest);
}

// What began before a table or a rule joins nothing: the caret is where the rest begins.
/**
 * @param {Range} rest
 * @param {Unit} unit
 */
function setToStart(rest, unit) {
  const [node] = unit.nodes.filter((each) => each.isConnected);
  if (!node && !unit.container.isConnected) return;
  rest.setStart(...selection.pointOf(selection.startOf(node ?? unit.container)));
  rest.collapse(true);
}

// The break that a point is right behind, the start of its line; null for none.
/**
 * @param {AnyNode} node
 * @param {number} offset
 */
function breakBefore(node, offset) {
  const before = dom.isText(node)
    ? offset === 0 && node.previousSibling : node.childNodes[offset - 1];
  return dom.isBreak(before) ? before : null;
}

// Comments at the edges of the range leave it: nobody sees server code there.
/** @param {Range} range */
function leaveEdgeComments(range) {
  const { startContainer, startOffset, endContainer, endOffset } = range;
  if (dom.isText(startContainer) && startOffset === startContainer.length) {
    const { nextSibling } = startContainer;
    for (let at = nextSibling; dom.isComment(at); at = at.nextSibling) range.setStartAfter(at);
  }
  if (dom.isText(endContainer) && endOffset === 0) {
    const { previousSibling } = endContainer;
    for (let at = previousSibling; dom.isComment(at); at = at.previousSibling) {
      range.setEndBefore(at);
    }
  }
}

// Deletes from one paragraph into another and joins what is left of the two. `rest` becomes the
// range where the caret will be.
/**
 * @param {Range} range
 * @param {Range} rest
 */
function deleteAcross(range, rest) {
  const { startContainer, startOffset, endContainer, endOffset } = range;
  const first = unitAt(startContainer, startOffset);
  const second = unitAt(endContainer, endOffset);
  rest.setStart(startContainer, startOffset);
  rest.collapse(true);
  if (!first || !second || cellOf(startContainer) !== cellOf(endContainer)) {
    deleteLeaves(range);
    return;
  }
  const begins = first.container === startContainer ||
    first.nodes.some((node) => node.contains(startContainer));
  const line = breakBefore(startContainer, startOffset);
  const mark = document.createTextNode('');
  if (first.nodes.length) first.nodes[0].before(mark);
  else first.container.prepend(mark);
  if (begins && range.comparePoint(mark, 0) === 0) range.setStartAfter(mark);
  leaveEdgeComments(range);
  range.deleteContents();
  dropEmptyInline(startContainer);
  dropEmptyInline(endContainer);
  if (begins && second.container.isConnected) join(first, second, mark, line);
  else dropEmptyBlocks(dom.blockOf(endContainer));
  mark.remove();
  holdOpen(first.container);
  holdOpen(second.block);
  if (!begins) setToStart(rest, second);
  else if (!first.container.contains(rest.startContainer)) rest.setStart(first.container, 0);
  if (begins && first.container.isConnected) holdItemOpen(first.container, rest);
}

// White space behind a break begins a line and shows nothing: where the break goes it goes along.
/** @param {Range} range */
function takeInLineStart(range) {
  const { endContainer, endOffset } = range;
  const next = beside(endContainer, endOffset, 'nextSibling');
  if (!isBlank(next) || keepsBlanks(next.node)) return;
  const last = [...selection.leavesIn(range)]
    .filter((leaf) => dom.isShown(leaf) && !isUntouched(leaf, range)).at(-1);
  if (dom.isBreak(last)) {
    range.setEnd(next.node, next.index + gapFrom(next, 'nextSibling').length);
  }
}

/**
 * Deletes what is in the range, whatever it spans, and leaves the selection to the caller. Answers
 * the range where that was.
 * @param {Range} range
 * @returns {Range}
 */
export function deleteRange(range) {
  const thing = thingIn(range);
  const inner = narrowed(range);
  // Moves along with what changes around it.
  const rest = inner.cloneRange();
  if (!thing) takeInSigns(rest);
  if (!thing) takeInLineStart(rest);
  if (thing) deleteThing(thing, rest);
  else if (spansUnits(range)) deleteAcross(rest.cloneRange(), rest);
  else deleteInParagraph(rest);
  holdLastLine(rest);
  return rest;
}

// The last line of a paragraph that is empty behind a break needs one of its own to be a line.
/** @param {Range} rest */
function holdLastLine(rest) {
  const { startContainer: node, startOffset: offset } = rest;
  const before = dom.isText(node) ? offset === 0 && node.previousSibling
    : node.childNodes[offset - 1];
  const last = before && dom.lastLeaf(before);
  const block = dom.blockOf(node);
  const isBehind = dom.isBreak(last) && dom.blockOf(last) === block;
  if (!isBehind || lineElement(last) !== lineElement(node)) return;
  const behind = document.createRange();
  behind.setStart(node, offset);
  behind.setEndAfter(block);
  for (const leaf of selection.leavesIn(behind)) {
    if (!dom.isShown(leaf)) continue;
    if (dom.blockOf(leaf) === block) return;
    break;
  }
  const line = dom.create('BR');
  rest.insertNode(line);
  rest.setStartBefore(line);
  rest.collapse(true);
}

/**
 * Deletes what is in the range and puts the caret at the point that is left, even where no line is:
 * for a caller that makes a line there (gapAt). Cells that are selected stay; the caret is in the
 * first of them.
 * @param {Range} range
 */
export function deleteToPoint(range) {
  const cells = selection.cellsIn(range);
  if (!cells) deletePart(range);
  else for (const cell of cells.reverse()) emptyCell(cell);
}
/** @param {Element} cell */
function emptyCell(cell) {
  const range = document.createRange();
  range.selectNodeContents(cell);
  if (isEmpty(cell)) enterCell(cell);
  else deletePart(range);
}
/** @param {Range} range */
function deletePart(range) {
  if (cellOf(range.startContainer) !== cellOf(range.endContainer) && !showsAnything(range)) {
    selection.setCaret(range.startContainer, range.startOffset);
    return;
  }
  blanks.watch();
  const { startContainer, startOffset } = deleteRange(range);
  selection.setCaret(startContainer, startOffset);
  blanks.watched({ inputType: 'delete' });
}

/**
 * Deletes what is in a range within one paragraph, less the comments in it: at a caret nobody means
 * server code, which is not seen. White space goes as the one blank that it shows.
 * @param {Range} range
 */
export function deleteAroundComments(range) {
  const { endContainer, endOffset } = range;
  if (!range.toString().trim() && dom.isText(endContainer) && !keepsBlanks(endContainer)) {
    const rest = { node: endContainer, index: endOffset };
    range.setEnd(endContainer, endOffset + gapFrom(rest, 'nextSibling').length);
  }
  blanks.watch();
  const block = dom.blockOf(range.startContainer);
  deleteLeaves(range);
  holdItemOpen(block, range);
  holdLastLine(range);
  selection.setCaret(range.startContainer, range.startOffset);
  blanks.watched({ inputType: 'delete' });
}

/**
 * Deletes all that is seen of a line of bare text. The line stays as an empty one, behind the
 * source's white space that it begins with.
 * @param {Range} range
 */
export function deleteBareLine(range) {
  blanks.watch();
  const { startContainer } = range;
  range.deleteContents();
  dropEmptyInline(startContainer);
  const line = dom.create('BR');
  range.insertNode(line);
  selection.setCaret(line.parentNode, selection.indexOf(line));
  blanks.watched({ inputType: 'delete' });
}

// True where nothing but text of one block is in the range. A line of that stays as an empty one.
/** @param {Range} range */
function isBareLine(range) {
  if (selection.control(range)) return false;
  const block = dom.blockOf(range.commonAncestorContainer);
  const leaves = [...selection.leavesIn(range)].filter(dom.isShown);
  return leaves.some(dom.isText) &&
    leaves.every((leaf) => !dom.isBlock(leaf) && dom.blockOf(leaf) === block);
}

/**
 * Deletes what is in the range and puts the caret into a line: the one that is left or, where none
 * is, the one behind or before it.
 * @param {Range} range
 */
export function deleteToLine(range) {
  const isLine = isBareLine(range);
  deleteToPoint(range);
  const [node, offset] = gapAt(selection.range()) ?? [];
  if (!node) return;
  if (isLine) {
    const line = dom.create('BR');
    node.insertBefore(line, node.childNodes[offset] ?? null);
    selection.setCaret(node, offset);
    return;
  }
  const next = dom.shownFrom(node.childNodes[offset], 'nextSibling');
  const previous = dom.shownFrom(node.childNodes[offset - 1], 'previousSibling');
  /** @param {AnyNode} block */
  const enters = (block) =>
    dom.isElement(block) && !dom.isAtom(block) && block.tagName !== 'TABLE';
  /** @type {Point[]} */
  const lines = [];
  if (enters(next)) lines.push(selection.pointOf(selection.startOf(next)));
  if (enters(previous)) lines.push(selection.pointOf(selection.endOf(previous)));
  // What is pasted into text without markup could not come back as it was.
  const line = lines.find(([text]) => !dom.rawAt(text));
  if (line) selection.setCaret(...line);
}
