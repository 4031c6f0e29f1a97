// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The lines of the source. A block that was made begins on a line of its own where its neighbours
// do, with their indentation; what stood there before stays where it is. In a page without line
// ends between its blocks there are none beside new ones either.
import { keepsBlanks } from './beside.js';
import * as dom from './dom.js';
import {
  beginsLine, endLineOf, innerEnd, lineAt, lineBefore, lineOf, setBetweenEndless,
} from './lineEnds.js';
import * as history from './history.js';
import * as selection from './selection.js';
import { shiftStandIns, splitText } from './standIns.js';

/** @param {AnyNode} node */
const holdsItems = (node) => dom.isElement(node) &&
  /^(DIR|DL|MENU|OL|TABLE|TBODY|TFOOT|THEAD|UL)$/.test(node.tagName);

// The blocks that a step has made.
/** @type {Set<AnyNode>} */
let fresh = new Set();
// What stands behind those of a parent that have no lines yet; found once, however many they are.
/** @type {Map<Node, AnyNode>} */
const behind = new Map();
/** @param {AnyNode} block */
function behindFresh(block) {
  if (!behind.has(block.parentNode)) {
    let at = block;
    while (fresh.has(at) && !lineAt(at)) at = dom.neighbour(at, 'nextSibling');
    behind.set(block.parentNode, at);
  }
  return behind.get(block.parentNode);
}
// Many come in order, by one paste; the engine would compare them along all of their siblings.
const mostToSort = 50;
/** @param {Set<AnyNode>} blocks */
const inOrder = (blocks) => (blocks.size > mostToSort ? [...blocks]
  : [...blocks].sort((one, other) =>
    (one.compareDocumentPosition(other) & Node.DOCUMENT_POSITION_FOLLOWING ? -1 : 1)));

// The line that a new block's neighbours tell it to have; null where they stand in a row.
/** @param {AnyNode} node */
function lineByNeighbours(node) {
  if (dom.isList(node) && node.parentNode.tagName === 'LI') return lineOfSublist(node.parentNode);
  for (const side of dom.sides) {
    const next = dom.neighbour(node, side);
    const other = side === 'nextSibling' && fresh.has(next) ? behindFresh(next) : next;
    if (other && !dom.isBlock(other)) return null;
    const line = other && lineAt(other);
    if (line) return line;
  }
  if (!dom.isBlock(dom.neighbour(node, 'previousSibling'))) return null;
  return beginsLine(node.nextSibling) ? endLineOf({ lastChild: node.nextSibling })
    : lineWithin(node.parentNode);
}
// Where a cell or division has blocks that were made alone: one step further in than that. Cells
// are in a row.
/** @param {AnyNode} holder */
function lineWithin(holder) {
  if (holder.tagName === 'TR') return null;
  const line = lineOf(holder);
  const isAllNew = line && [...holder.children].every((each) => fresh.has(each));
  return isAllNew ? line + stepOf(holder, line) : null;
}
/** @param {AnyNode} holder */
const lineOfParts = (holder) => [...holder.children].map(lineAt).find(Boolean) ?? endLineOf(holder);
/** @param {AnyNode} node */
const lineOfItems = (node) => (holdsItems(node) ? lineOfParts(node) : null);
// A list in an item stands one step further in than that.
/** @param {AnyNode} item */
function lineOfSublist(item) {
  const line = lineOf(item);
  return line && line + stepOf(item, line);
}

// A step of indentation, as the block stands to what it lies in.
/**
 * @param {AnyNode} block
 * @param {string} line
 */
function stepOf(block, line) {
  const { parentNode } = block;
  const outer = lineOf(parentNode) ?? endLineOf(parentNode);
  return outer && line.startsWith(outer) ? line.slice(outer.length) : '';
}

// Items and rows on lines of their own, one step further in, and the end of what holds them. The
// tags of a part of a table stand on the lines of its rows and of the table's end.
/**
 * @param {AnyNode} list
 * @param {string} line
 * @param {string} step
 */
function setItems(list, line, step) {
  const items = [...list.children];
  const areNew = items.every((item) => fresh.has(item));
  for (const item of items) {
    const own = lineAt(item);
    if (!own) lineBefore(item, line + step);
    else if (own === line && areNew && beginsLine(item.previousSibling)) {
      item.previousSibling.appendData(step);
    }
    if (dom.isRowGroup(item)) setItems(item, item.nextElementSibling ? line + step : line, step);
    else if (holdsItems(item)) setItems(item, line + step, stepOf(item, line + step));
  }
  if (!endLineOf(list) && !dom.isRowGroup(list.lastElementChild)) list.append(line);
}

// The cells of a row, as those of the row beside it.
/** @param {AnyNode} row */
function setCells(row) {
  const like = dom.neighbour(row, 'previousSibling') ?? dom.neighbour(row, 'nextSibling');
  const line = like?.tagName === 'TR' && like.cells[0] && lineOf(like.cells[0]);
  if (!line || row.firstElementChild !== row.firstChild) return;
  const isEndless = innerEnd(like.cells[1]?.previousSibling);
  for (const cell of row.cells) {
    if (isEndless && cell.previousSibling) cell.previousSibling.append(line);
    else lineBefore(cell, line);
  }
  if (dom.isBlank(like.lastChild)) row.append(like.lastChild.data);
}

// A list that was made in an item on a line of its own: the item's end is on one too.
/** @param {AnyNode} list */
function setEndOfItem(list) {
  const { parentNode, nextSibling } = list;
  if (!dom.isList(list) || parentNode.tagName !== 'LI' || nextSibling) return;
  parentNode.append(lineOf(parentNode) ?? '');
}
// True where the line end behind a list is the end of its last item, or that behind a quote the end
// of its last paragraph.
/** @param {AnyNode} block */
const endsInItem = (block) => (holdsItems(block) || block.tagName === 'BLOCKQUOTE') &&
  innerEnd(block.lastChild) !== null;

/**
 * @param {AnyNode} block
 * @param {boolean} isInPlace it stands where something of the page stood
 */
function set(block, isInPlace) {
  if (!setBetweenEndless(block)) setOnLine(block, isInPlace);
  if (block.tagName === 'TR') setCells(block);
}
/**
 * @param {AnyNode} block
 * @param {boolean} isInPlace
 */
function setOnLine(block, isInPlace) {
  const own = lineAt(block);
  const around = own ?? lineByNeighbours(block);
  const line = around ?? lineOfItems(block);
  if (!line || block.parentNode.closest('PRE, LISTING, XMP')) return;
  // What was the first thing in its container on no line of its own gets none.
  const isFirst = isInPlace && !block.previousSibling && !holdsItems(block.parentNode);
  if (!own && !isFirst) lineBefore(block, line);
  // What it came in before had that line, or its last item has taken the line's end in.
  const hasTaken = endsInItem(block);
  if ((own || hasTaken) && dom.isBlock(block.nextSibling)) lineBefore(block.nextSibling, line);
  // The items' own line is no step further out than these.
  if (holdsItems(block)) setItems(block, line, around ? stepOf(block, line) : '');
  if (!own || hasTaken) setEndOfItem(block);
}

/**
 * A block goes, or what holds others and leaves them where it stood: the lines that were its own go
 * with it.
 * @param {AnyNode} block
 */
export function dropLine(block) {
  const { previousSibling: before, nextSibling: after } = block;
  if (!beginsLine(after)) return;
  if (beginsLine(before)) before.remove();
  else if (!before && lineOf(block)) after.remove();
}
/**
 * What the items of a list hold is about to stand where the list stands: the lines of the list and
 * of its items go.
 * @param {AnyNode} list
 */
export function dropInnerLines(list) {
  const line = endLineOf(list);
  for (const item of list.children) dropItemLines(item);
  dropEdgeLines(list, line);
}
/**
 * The lines at the edges of what goes from around its content go, and those between are as `line`.
 * @param {AnyNode} holder
 * @param {string | null} [line] the one of its end tag
 */
export function dropEdgeLines(holder, line = endLineOf(holder)) {
  const { firstChild, lastChild } = holder;
  for (const edge of new Set([firstChild, lastChild])) if (beginsLine(edge)) edge.remove();
  if (!line) return;
  for (const node of [...holder.childNodes].filter(beginsLine)) {
    if (dom.isBlock(node.previousSibling) || dom.isBlock(node.nextSibling)) node.data = line;
  }
}
// Blocks in an item stay on the lines that they have there, where the item has one too.
/** @param {AnyNode} item */
function dropItemLines(item) {
  if (![...item.children].some(dom.isBlock)) return;
  const { firstChild, lastChild, parentNode: list } = item;
  const [isFirst, isLast] = dom.sides.map((side) => !dom.neighbour(item, side));
  if (beginsLine(lastChild) && (isLast || beginsLine(item.nextSibling))) lastChild.remove();
  if (!beginsLine(firstChild) || !dom.isBlock(dom.neighbour(firstChild, 'nextSibling'))) return;
  const lines = [item.previousSibling, isFirst ? list.previousSibling : null].filter(beginsLine);
  for (const line of lines) {
    line.data = line.data.replace(/\n[ \t]*$/, '');
    if (!line.length) line.remove();
  }
  if (isFirst && !lines.length) firstChild.remove();
}

/**
 * A list or quote was cut in two: where it is set out over lines both parts are.
 * @param {AnyNode} first
 * @param {AnyNode} second
 */
export function setCutList(first, second) {
  const line = endLineOf(second);
  const end = line ? innerEnd(first.lastChild) : null;
  if (end) {
    second.prepend(lineOfParts(first) ?? '');
    end.text.replaceData(end.text.length - end.gap.length, end.gap.length, line);
  }
  if (!line || !beginsLine(first.lastChild)) return;
  second.prepend(first.lastChild);
  first.append(line);
  first.after(line);
}

/**
 * Joins a list with the one behind it. Of the lines between their items one is left.
 * @param {AnyNode} first
 * @param {AnyNode} second
 */
export function joinLists(first, second) {
  const end = first.lastChild;
  const lines = [end];
  for (let at = first.nextSibling; at !== second; at = at.nextSibling) lines.push(at);
  lines.push(second.firstChild);
  const line = lines.filter(beginsLine).at(-1);
  const own = lineOf(first.lastElementChild);
  if (line && line !== second.firstChild && own) line.data = own;
  for (const each of lines) if (beginsLine(each) && each !== line) each.remove();
  dom.absorb(first, second);
  if (beginsLine(end) && end !== line && !beginsLine(first.lastChild)) first.append(end);
}

/**
 * Moves items to the end of another list, each on a line as the ones that are there.
 * @param {AnyNode} list
 * @param {AnyNode[]} items
 */
export function moveToEnd(list, items) {
  const line = list.lastElementChild && lineOf(list.lastElementChild);
  const end = beginsLine(list.lastChild) ? list.lastChild : null;
  for (const item of items) {
    dropLine(item);
    list.insertBefore(item, end);
    if (line) lineBefore(item, line);
  }
}
/**
 * Moves items behind another one, each on a line as that one.
 * @param {AnyNode} item
 * @param {AnyNode[]} items
 */
export function moveBehind(item, items) {
  const line = lineOf(item);
  items.forEach(dropLine);
  item.after(...items);
  if (line) for (const each of items) lineBefore(each, line);
}
/**
 * Removes a list with the lines that it had in its item.
 * @param {AnyNode} list
 */
export function removeList(list) {
  const { previousSibling, nextSibling } = list;
  const isLast = beginsLine(nextSibling) && !nextSibling.nextSibling;
  if (beginsLine(previousSibling)) previousSibling.remove();
  if (isLast) nextSibling.remove();
  list.remove();
}

// The blocks among what the changes put in that were not in the page before them, and those of them
// that stand where something of the page stood, and those that were put around what stood there.
/** @param {{ target?: AnyNode, added?: AnyNode[], removed?: AnyNode[] }[]} changes */
function made(changes) {
  const known = new Map();
  const replaced = new Set();
  const takenFrom = new Map();
  /**
   * @param {AnyNode} node
   * @param {boolean} isNew
   */
  const note = (node, isNew) => {
    if (dom.isElement(node) && !known.has(node)) known.set(node, isNew);
  };
  for (const { target, added = [], removed = [] } of changes) {
    for (const node of removed) {
      note(node, false);
      if (!takenFrom.has(node)) takenFrom.set(node, target);
    }
    for (const node of added) {
      note(node, true);
      if (removed.some(dom.isElement)) replaced.add(node);
    }
  }
  const blocks = new Set([...known].filter(([node, isNew]) =>
    isNew && node.isConnected && dom.isBlock(node)).map(([node]) => node));
  const inPlace = new Set([...blocks].filter((block) => replaced.has(block) ||
    [...block.childNodes].some((child) => takenFrom.get(child) === block.parentNode)));
  /**
   * @param {AnyNode} block
   * @param {AnyNode[]} [nodes]
   */
  const isAround = (block, nodes = []) =>
    nodes.some((node) => !dom.isBlock(node) && !dom.isBlank(node) &&
      takenFrom.get(node)?.contains(block));
  const around = new Set(changes
    .filter(({ target, added }) => blocks.has(target) && isAround(target, added))
    .map(({ target }) => target));
  // A node whose block was joined with the one that it is in now.
  /** @param {AnyNode} node */
  const isJoined = (node) => takenFrom.has(node) && !takenFrom.get(node).contains(node);
  return { blocks, inPlace, around, isJoined };
}

// The line end of a text goes behind a block. Who had selected from that line end on has selected
// from the end of the line on.
/**
 * @param {Text} end
 * @param {AnyNode} last
 */
function moveEndBehind(end, last) {
  const was = selection.points();
  const length = end.data.replace(/[ \t\n]+$/, '').length;
  last.after(splitText(end, length));
  const { anchorNode, anchorOffset, focusNode, focusOffset } = was;
  if (anchorNode !== end && focusNode !== end) return;
  const points = selection.points();
  if (anchorNode === end) Object.assign(points, { anchorNode, anchorOffset });
  if (focusNode === end) Object.assign(points, { focusNode, focusOffset });
  selection.select(points);
}

// Bare text became a block. The line that it began on is the block's own, and the end of its last
// line stays behind the block, or behind the last of those that it was cut into.
/**
 * @param {AnyNode} block
 * @param {ReturnType<typeof made>} changes
 */
function leaveLines(block, { blocks, isJoined }) {
  const first = dom.firstLeaf(block);
  if (!dom.isText(first) || keepsBlanks(first)) return;
  let top = block;
  while (blocks.has(top.parentNode) && top.parentNode.firstChild === top) top = top.parentNode;
  const [lead = ''] = /^[ \t\n]*\n[ \t]*(?=[^ \t\n])/.exec(first.data) ?? [];
  if (lead) {
    const old = first.data;
    lineBefore(top, lead);
    first.deleteData(0, lead.length);
    shiftStandIns(new Map([[first, old]]));
  }
  let last = top;
  for (let at = top; blocks.has(at); at = at.nextSibling) last = at;
  const isEmpty = last !== top && dom.isHollow(last);
  const end = dom.lastLeaf(isEmpty ? last.previousSibling : last);
  if (!dom.isText(end) || !/[^ \t\n][ \t]*\n[ \t\n]*$/.test(end.data)) return;
  if (dom.ancestor(end, isJoined, (node) => node === last)) return;
  moveEndBehind(end, last);
}

history.completeStepsBy((changes) => {
  const found = made(changes);
  const { blocks, inPlace, around } = found;
  if (!blocks.size) return;
  const range = selection.range();
  const cells = range && selection.saveCells(range);
  for (const block of around) leaveLines(block, found);
  fresh = blocks;
  for (const block of inOrder(blocks)) {
    if (!dom.isCell(block) || !blocks.has(block.parentNode)) set(block, inPlace.has(block));
  }
  fresh = new Set();
  behind.clear();
  // Cells are selected up to their last node, a line end that has come too.
  selection.restore(cells);
});
