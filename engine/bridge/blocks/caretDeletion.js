// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Backspace and Delete at a caret where the engine would do it badly: at the edge of a paragraph,
// which is joined to its neighbour, and beside a picture, an island and the like.
import { breakIn, deleteBreak, emptiesBareLine } from './breaks.js';
import { deleteAroundComments, deleteBareLine, deleteToLine, isUntouched } from './deletion.js';
import {
  caretAt, cellOf, isAtEdge, isEmptyParagraph, sameUnit, showsAnything, spansUnits, unitAt,
} from './extent.js';
import { isItem, isListOf, itemOf } from './items.js';
import { dropBlock, dropEmptyBlocks, join } from './joining.js';
import * as lists from './lists.js';
import { keepingLooks } from '../formats/keptLooks.js';
import { joinAlike } from '../formats/merging.js';
import * as blanks from '../page/blanks.js';
import * as dom from '../page/dom.js';
import { beside, isBlank, isCommentBeside } from '../page/beside.js';
import * as selection from '../page/selection.js';
import { wholeSigns } from '../page/signs.js';
import { unitsIn } from '../page/units.js';
import { partedWords } from '../page/whitespace.js';

// True for an element without content that takes no room on the screen.
/** @param {AnyNode} node */
const isNothing = (node) => dom.isElement(node) && !dom.hasContent(node) &&
  node.getBoundingClientRect().height * node.getBoundingClientRect().width === 0;
// Drops what is nothing between two paragraphs, less what may be a link's target.
/**
 * @param {Unit} first
 * @param {Unit} second
 */
function dropNothings(first, second) {
  const range = document.createRange();
  range.setStartAfter(first.nodes.at(-1) ?? first.container);
  range.setEndBefore(second.nodes[0] ?? second.container);
  for (const leaf of [...selection.leavesIn(range)]) {
    if (isNothing(leaf) && dom.isBlock(leaf) && !leaf.id && !leaf.firstChild) leaf.remove();
  }
}

/**
 * The nearest shown leaf before or after a node, past boxes with a place of their own; null at the
 * edge of its cell or box.
 * @param {AnyNode} node
 * @param {Side} side
 */
export function leafBeside(node, side) {
  const cell = cellOf(node);
  for (let at = node; at && at !== cell; at = at.parentNode) {
    let near = dom.neighbour(at, side);
    while (isNothing(near) || dom.isOutOfFlow(near)) near = dom.neighbour(near, side);
    if (!near) continue;
    if (near.tagName === 'TABLE') return near;
    return side === 'previousSibling' ? shownEdge(near, 'lastChild', 'previousSibling')
      : shownEdge(near, 'firstChild', 'nextSibling');
  }
  return null;
}
// The outermost leaf that shows something, on one side of a node; a table is one thing.
/**
 * @param {AnyNode} node
 * @param {EdgeChild} child
 * @param {Side} side
 * @returns {AnyNode}
 */
function shownEdge(node, child, side) {
  const isWhole = node.tagName === 'TABLE' || dom.isAtom(node);
  const inner = isWhole ? null : dom.shownFrom(node[child], side);
  return inner ? shownEdge(inner, child, side) : node;
}

/**
 * The paragraph that a leaf is in.
 * @param {AnyNode} leaf
 */
export const unitOfLeaf = (leaf) =>
  (dom.isText(leaf) || dom.isBlock(leaf)
    ? unitAt(leaf, 0) : unitAt(leaf.parentNode, selection.indexOf(leaf)));

// Most carets stand beside a character: no edge is there, however long the paragraph.
/**
 * @param {PlainRange} caret
 * @param {Edge} side
 */
const isWithinText = ({ startContainer: node, startOffset: offset, collapsed }, side) =>
  collapsed && dom.isText(node) &&
  (side === 'start' ? node.data.slice(0, offset) : node.data.slice(offset)).trim() !== '';

// What is beside a caret; `isPast` where something that nobody sees (a hidden field) lies between.
// White space at a line's edge or behind a blank is not seen either.
/**
 * @param {PlainRange} caret
 * @param {Edge} side
 */
function seenBeside({ startContainer, startOffset }, side) {
  const [way, step] = side === 'start'
    ? /** @type {const} */ (['previousSibling', 0]) : /** @type {const} */ (['nextSibling', 1]);
  let found = beside(startContainer, startOffset, way);
  const other = beside(startContainer, startOffset,
    side === 'start' ? 'nextSibling' : 'previousSibling');
  const hidesBlank = other === null || isBlank(other);
  for (let isPast = false; ; isPast = true) {
    let at = found;
    while (isBlank(at)) at = beside(at.node, at.index + step, way);
    if (!at?.object) return { found, isPast };
    if (at.object.getClientRects().length) return { found: hidesBlank ? at : found, isPast };
    found = beside(at.object.parentNode, selection.indexOf(at.object) + step, way);
  }
}
// True where nothing but elements without content, as named places are, is between a caret and the
// edge of its paragraph: the engine would take them along.
/**
 * @param {Range} caret
 * @param {Unit} unit
 * @param {Edge} side
 */
function isBesideNothing(caret, { nodes }, side) {
  if (!nodes.length) return false;
  const rest = caret.cloneRange();
  if (side === 'start') rest.setStartBefore(nodes[0]);
  else rest.setEndAfter(nodes.at(-1));
  const leaves = [...selection.leavesIn(rest)]
    .filter((leaf) => dom.isShown(leaf) && !isUntouched(leaf, rest));
  return leaves.every((leaf) => dom.isInline(leaf) && !dom.isBreak(leaf) && isNothing(leaf));
}
/** @param {PlainRange} target */
function rangeOf({ startContainer, startOffset, endContainer, endOffset }) {
  const range = document.createRange();
  range.setStart(startContainer, startOffset);
  range.setEnd(endContainer, endOffset);
  return range;
}
/** @param {Neighbour} character */
function rangeOfCharacter({ node, index }) {
  const range = document.createRange();
  const isPair = /[\udc00-\udfff]/.test(node.data[index]);
  range.setStart(node, isPair ? index - 1 : index);
  range.setEnd(node, /[\ud800-\udbff]/.test(node.data[index]) ? index + 2 : index + 1);
  return range;
}
/** @param {Element} object */
function deleteObject(object) {
  const range = document.createRange();
  range.selectNode(object);
  deleteToLine(range);
}

// True where a range has all that is seen of a block, and something is there beside it that nobody
// sees: a hidden field or text, a named place.
/** @param {Range} range */
function leavesUnseen({ startContainer: text, startOffset, endContainer, endOffset }) {
  if (text !== endContainer || !dom.isText(text)) return false;
  if ((text.data.slice(0, startOffset) + text.data.slice(endOffset)).trim()) return false;
  const around = document.createRange();
  around.selectNodeContents(dom.blockOf(text));
  const leaves = [...selection.leavesIn(around)]
    .filter((leaf) => leaf !== text && dom.isShown(leaf));
  return leaves.length > 0 && leaves.every((leaf) => {
    if (dom.isInline(leaf) && !dom.isAtom(leaf)) return !dom.isBreak(leaf);
    around.selectNode(leaf);
    return !around.getClientRects().length;
  });
}

// What the engine would delete of one paragraph, where a comment is in it or beside it, or nothing
// that is seen would be left beside it: the engine would take that too. Null for anything else.
/**
 * @param {Range} caret
 * @param {PlainRange | null} target
 */
function besideUnseen(caret, target) {
  if (!target) return null;
  if (dom.blockOf(target.startContainer) !== dom.blockOf(target.endContainer)) return null;
  const range = rangeOf(target);
  const { startContainer, startOffset } = caret;
  const side = range.comparePoint(startContainer, startOffset);
  if (side < 0) range.setStart(startContainer, startOffset);
  if (side > 0) range.setEnd(startContainer, startOffset);
  const isBeside = isCommentBeside(range.startContainer, range.startOffset, 'previousSibling') ||
    isCommentBeside(range.endContainer, range.endOffset, 'nextSibling');
  return isBeside || dom.holdsComment(range) || leavesUnseen(range) ? range : null;
}

/**
 * What a deletion at a caret does where that is not left to the engine; null where it is.
 * @param {Range} range the caret
 * @param {Edge} side 'start' for Backspace, 'end' for Delete
 * @param {PlainRange | null} target what the engine would delete
 * @returns {(() => void) | null}
 */
export function deletionAtCaret(range, side, target) {
  const signs = wholeSigns(target);
  if (signs) return keepingLooks(signs, () => deleteToLine(signs));
  const visible = besideUnseen(range, target);
  if (visible) return keepingLooks(visible, () => deleteAroundComments(visible));
  if (emptiesBareLine(target)) {
    const line = rangeOf(target);
    return keepingLooks(line, () => deleteBareLine(line));
  }
  if (isWithinText(range, side)) return null;
  const unit = unitsIn(range)[0];
  if (!unit || !range.collapsed) return null;
  const { found, isPast } = seenBeside(range, side);
  if (found?.object) return () => deleteObject(found.object);
  if (isPast && found) {
    const character = rangeOfCharacter(found);
    return keepingLooks(character, () => deleteToLine(character));
  }
  const isEdge = isPast || isAtEdge(range, unit, side) || isBesideNothing(range, unit, side);
  if (isEdge) return deletionAtEdge(unit, side);
  const line = breakIn(target);
  return line && (() => deleteBreak(line));
}

// True where an empty line up to the start of the next one is all that is selected.
/**
 * @param {Range} range
 * @param {Unit | null} first the paragraph that it begins in
 */
function isEmptyLineAlone(range, first) {
  if (!first || !dom.isHollow(first.home)) return false;
  const { startContainer, endContainer, endOffset } = range;
  const last = unitAt(endContainer, endOffset);
  if (!last || sameUnit(first, last)) return false;
  if (cellOf(startContainer) !== cellOf(endContainer)) return false;
  const leaves = [...selection.leavesIn(range)]
    .filter((leaf) => dom.isShown(leaf) && !isUntouched(leaf, range));
  return leaves.length === 1 && isAtEdge(caretAt(endContainer, endOffset), last, 'start');
}

/**
 * What a deletion does where the line end between two paragraphs is all that is selected: an empty
 * line up to the start of the next one, or a paragraph's start with no paragraph before it in the
 * selection. Null elsewhere.
 * @param {Range} range the selected one
 */
export function deletionOfLineEnd(range) {
  if (selection.control(range)) return null;
  const { startContainer, startOffset, endContainer, endOffset } = range;
  const first = unitAt(startContainer, startOffset);
  if (isEmptyLineAlone(range, first)) return deletionAtEdge(first, 'end');
  if (spansUnits(range) || showsAnything(range)) return null;
  const unit = unitAt(endContainer, endOffset);
  const caret = caretAt(endContainer, endOffset);
  return unit && isAtEdge(caret, unit, 'start') ? deletionAtEdge(unit, 'start') : null;
}

// A rule or a closed block goes, and a list that held nothing else.
/** @param {AnyNode} atom */
function deleteAtom(atom) {
  const { parentNode } = atom;
  atom.remove();
  if (isListOf(parentNode)) dropEmptyBlocks(parentNode);
}

// The same at the edge of a paragraph.
/**
 * @param {Unit} unit
 * @param {Edge} side
 */
function deletionAtEdge(unit, side) {
  const back = side === 'start';
  if (back && startsItem(unit) && !holdsListBehindItem(unit)) {
    return () => lists.outdentItemOf(unit);
  }
  const edge = unit.block || (back ? unit.nodes[0] : unit.nodes.at(-1)) || unit.container;
  const leaf = leafBeside(edge, back ? 'previousSibling' : 'nextSibling');
  if (!leaf) return () => {};
  if (leaf.tagName === 'TABLE') return () => { if (!back) dropLineBefore(leaf, unit); };
  if (dom.isBlock(leaf) && dom.isAtom(leaf)) return () => deleteAtom(leaf);
  const other = unitOfLeaf(leaf);
  if (!other || sameUnit(unit, other)) return null;
  return back ? () => joinAtCaret(other, unit) : () => joinAtCaret(unit, other);
}

/**
 * Drops an empty line before a table. The caret goes to the line above that or, where none is, to
 * the table's first cell. Backspace leaves a line behind a table: held down, it would go on in a
 * cell.
 * @param {Element} table
 * @param {Unit} unit
 */
function dropLineBefore(table, unit) {
  const line = isEmptyParagraph(unit) ? unit.block : emptyLine(unit, 'end');
  if (!line || isItem(line)) return;
  const above = leafBeside(line, 'previousSibling');
  const { parentNode } = line;
  dropBlock(line);
  dropEmptyBlocks(parentNode);
  const cell = table.querySelector('td, th') ?? table;
  const anchor = above && !dom.isBlock(above) ? selection.endOf(above) : selection.startOf(cell);
  selection.setCaret(...selection.pointOf(anchor));
}

/**
 * True for the first paragraph of a list item.
 * @param {Unit} unit
 */
function startsItem(unit) {
  const item = itemOf(unit);
  if (!item) return false;
  const first = [...item.childNodes].find(dom.isShown);
  return !first || first === unit.nodes[0] || first === unit.block || item === unit.block;
}

// True in an item with a list in it, behind an item without one. It joins that item: the list in it
// would go a level up otherwise.
/** @param {Unit} unit */
function holdsListBehindItem(unit) {
  const item = itemOf(unit);
  const before = dom.neighbour(item, 'previousSibling');
  return isItem(before) && [...item.children].some(isListOf) &&
    ![...before.children].some(isListOf);
}

// The break that is an empty line of bare text, where the run begins or ends with one. An item's
// or a cell's only line is that item or cell.
/**
 * @param {Unit} unit
 * @param {Edge} side
 */
function emptyLine({ block, nodes, container }, side) {
  const [edge, inner] = side === 'start' ? nodes : [nodes.at(-1), nodes.at(-2)];
  if (block || isItem(container) || !dom.isBreak(edge)) return null;
  if (!dom.neighbour(edge, 'previousSibling') && !dom.neighbour(edge, 'nextSibling')) return null;
  return side === 'start' || !inner || dom.isBreak(inner) ? edge : null;
}

// Deletes the white space at the two edges that are about to meet, where it would show as a blank.
/**
 * @param {Unit} first
 * @param {Unit} second
 */
function trimEdges(first, second) {
  blanks.trimEdges(first.nodes.length ? dom.lastLeaf(first.nodes.at(-1)) : null,
    second.nodes.length ? dom.firstLeaf(second.nodes[0]) : null);
}

// A paragraph with the blank at its end that was typed there, or that parted words before Enter
// did: it shows once more text follows.
/** @param {Unit} unit */
function withBlank(unit) {
  const { block, container, home, object, nodes } = unit;
  const blank = /** @type {AnyNode} */ (nodes.at(-1)?.nextSibling);
  const isSeen = dom.isBlank(blank) && (blanks.wasTypedIn(blank) || partedWords(blank));
  return isSeen ? { block, container, home, object, nodes: [...nodes, blank] } : unit;
}

// True where bare text has the emptied paragraph before it for its own.
/**
 * @param {Unit} text
 * @param {AnyNode} emptied
 */
const isTakenBy = ({ block, container }, emptied) =>
  !block && emptied?.tagName === 'P' && emptied.parentNode === container;

// Joins two paragraphs and puts the caret between them. Where one of the two is an empty line it
// goes, and the other stays as it is.
/**
 * @param {Unit} first
 * @param {Unit} second
 */
function joinAtCaret(first, second) {
  dropNothings(first, second);
  first = withBlank(first);
  /** @type {AnyNode} */
  const above = emptyLine(first, 'end') ?? (isEmptyParagraph(first) ? first.block : null);
  const below = emptyLine(second, 'start') ?? (isEmptyParagraph(second) ? second.block : null);
  const isTaken = isTakenBy(second, above);
  const emptied = isTaken ? null : above ?? below;
  if (isTaken) above.replaceChildren();
  if (!emptied) {
    trimEdges(first, second);
    const [left, right] = [first.nodes.at(-1), second.nodes[0]];
    const caret = join(first, second);
    // What Enter cut in two is one again.
    if (left && left.nextSibling === right) joinAlike(left, right);
    selection.setCaret(...selection.pointOf(caret));
    return;
  }
  const { parentNode } = emptied;
  dropBlock(emptied);
  const caret = emptied === above ? selection.startOf(second.nodes[0] ?? second.container)
    : selection.endOf(first.nodes.at(-1) ?? first.container);
  dropEmptyBlocks(parentNode);
  selection.setCaret(...selection.pointOf(caret));
}
