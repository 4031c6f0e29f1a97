// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The selection: what lies in it, how it is saved while elements change, where the caret is.
import { beside, keepsBlanks } from './beside.js';
import * as dom from './dom.js';
import {
  firstLeaf, isAtom, isEditable, isElement, isNeutral, isText, lastLeaf, nextNode,
} from './dom.js';

// States of longer selections are judged by their first texts, objects and breaks.
export const leafLimit = 2000;

// The inside of an island that is closed to editing is no place for a command.
/** @param {AnyNode} node */
function isClosed(node) {
  const host = (isElement(node) ? node : node.parentElement)?.closest('[contenteditable]');
  return host?.getAttribute('contenteditable').toLowerCase() === 'false';
}

// The selected range when it lies in the body, else null.
export function range() {
  const selection = document.getSelection();
  if (!isEditable() || !selection.rangeCount) return null;
  const selected = selection.getRangeAt(0);
  const { commonAncestorContainer } = selected;
  if (!document.body.contains(commonAncestorContainer)) return null;
  return isClosed(commonAncestorContainer) ? null : selected;
}

// The outermost point that nothing lies before or behind this one.
/**
 * @param {AnyNode} node
 * @param {number} offset
 * @param {(node: AnyNode, offset: number) => boolean} isAtEdge
 * @param {number} step
 * @returns {Point}
 */
function outwards(node, offset, isAtEdge, step) {
  while (node !== document.body && isAtEdge(node, offset)) {
    offset = indexOf(node) + step;
    node = node.parentNode;
  }
  return [node, offset];
}

/**
 * The one object that the range holds and nothing else, else null.
 * @param {PlainRange | null} selected
 * @returns {AnyNode}
 */
export function control(selected) {
  if (!selected || selected.collapsed) return null;
  const { startContainer, startOffset, endContainer, endOffset } = selected;
  const [start, from] = outwards(startContainer, startOffset,
    (node, offset) => offset === length(node), 1);
  const [end, to] = outwards(endContainer, endOffset, (node, offset) => offset === 0, 0);
  if (start !== end || isText(start)) return null;
  const stop = start.childNodes[to] ?? null;
  if (start.nodeName === 'TABLE') {
    // All that a table holds is the table.
    const isAll = !dom.shownFrom(start.childNodes[from - 1], 'previousSibling') &&
      !dom.shownFrom(stop, 'nextSibling');
    return isAll ? start : null;
  }
  let only = null;
  for (let node = start.childNodes[from]; node && node !== stop; node = node.nextSibling) {
    if (!dom.isShown(node)) continue;
    if (only) return null;
    only = node;
  }
  return only && dom.isObject(only) ? only : null;
}

/** @type {(range: PlainRange) => HTMLTableCellElement[] | null} */
let readCells = () => null;
/**
 * Has a function answer what cellsIn does.
 * @param {(range: PlainRange) => HTMLTableCellElement[] | null} read
 */
export const readCellsBy = (read) => { readCells = read; };
/**
 * The cells that a range selects as such, in the page's order: a rectangle of a table. null for a
 * range of text.
 * @param {PlainRange} selected
 */
export const cellsIn = (selected) => readCells(selected);

/** @param {AnyNode} node */
export function selectNode(node) {
  const index = indexOf(node);
  document.getSelection().setBaseAndExtent(node.parentNode, index, node.parentNode, index + 1);
}

export const points = () => {
  const { anchorNode, anchorOffset, focusNode, focusOffset } = document.getSelection();
  return { anchorNode, anchorOffset, focusNode, focusOffset };
};
// The engine may have to look for its selection's ends: they are asked for no more than needed.
/** @type {(keyof SelectionPoints)[]} */
const pointNames = ['anchorNode', 'anchorOffset', 'focusNode', 'focusOffset'];
/**
 * @param {SelectionPoints} one
 * @param {SelectionPoints} other
 */
export const samePoints = (one, other) => pointNames.every((name) => one[name] === other[name]);

/** @param {AnyNode} node */
export const length = (node) => (isText(node) ? node.length : node.childNodes.length);
/** @param {SelectionPoints} points */
export function select({ anchorNode, anchorOffset, focusNode, focusOffset }) {
  if (!anchorNode?.isConnected || !focusNode?.isConnected) return;
  document.getSelection().setBaseAndExtent(
    anchorNode, Math.min(anchorOffset, length(anchorNode)),
    focusNode, Math.min(focusOffset, length(focusNode)));
}
/**
 * @param {AnyNode} node
 * @param {number} offset
 */
export const setCaret = (node, offset) => document.getSelection().collapse(node, offset);

// What the engine would delete at the caret with Delete.
export function ahead() {
  const selected = document.getSelection();
  const saved = points();
  /** @type {any} */ (selected).modify('extend', 'forward', 'character');
  const { startContainer, startOffset, endContainer, endOffset } = selected.getRangeAt(0);
  select(saved);
  return { startContainer, startOffset, endContainer, endOffset };
}

// The first node of a range in document order, and the first one behind it.
/** @param {PlainRange} range */
function bounds({ startContainer, startOffset, endContainer, endOffset }) {
  const first = isText(startContainer) || !startContainer.hasChildNodes()
    ? startContainer
    : startContainer.childNodes[startOffset] || dom.nextSkippingChildren(startContainer);
  const stop = (isElement(endContainer) && endContainer.childNodes[endOffset]) ||
    dom.nextSkippingChildren(endContainer);
  return { first, stop };
}

/**
 * The leaves (texts, breaks, objects, empty elements) in a range, in document order.
 * @param {PlainRange | null} selected
 */
export function* leavesIn(selected) {
  const cells = cellsIn(selected);
  if (cells) {
    for (const cell of cells) {
      yield* leavesFrom(cell.firstChild ?? cell, dom.nextSkippingChildren(cell));
    }
    return;
  }
  const { first, stop } = bounds(selected);
  // A range that starts inside an object has all of that object.
  const object = first && dom.ancestor(first.parentNode, isAtom);
  yield* leavesFrom(object ?? first, stop);
}
/**
 * @param {AnyNode} first
 * @param {AnyNode} stop the first node behind them
 */
function* leavesFrom(first, stop) {
  for (let node = first; node && node !== stop; node = nextNode(node)) {
    if (!isNeutral(node) && (isAtom(node) || !node.firstChild)) yield node;
  }
}

/**
 * True where nothing but the white space at a line's edge is selected of a text.
 * @param {Text} text
 * @param {PlainRange} range
 */
export function showsNothing(text, { startContainer, startOffset, endContainer, endOffset }) {
  const from = text === startContainer ? startOffset : 0;
  const to = text === endContainer ? endOffset : text.length;
  const isAll = from === 0 && to === text.length;
  if (isAll || !/^[ \t\r\n]*$/.test(text.data.slice(from, to))) return false;
  const sides = [beside(text, from, 'previousSibling'), beside(text, to, 'nextSibling')];
  return sides.includes(null) && !keepsBlanks(text);
}

/**
 * The texts of a range of which at least one character is selected and that can be formatted, among
 * its first `most` leaves.
 * @param {PlainRange | null} selected
 * @param {number} [most]
 */
export function textsIn(selected, most = Infinity) {
  /** @type {Text[]} */
  const texts = [];
  if (!selected || selected.collapsed) return texts;
  let rest = most;
  for (const node of leavesIn(selected)) {
    if (rest-- <= 0) break;
    if (!dom.shownText(node) || dom.rawAt(node)) continue;
    if (node === selected.startContainer && selected.startOffset === node.length) continue;
    if (node === selected.endContainer && selected.endOffset === 0) continue;
    if (showsNothing(node, selected)) continue;
    texts.push(node);
  }
  return texts;
}

/** @param {AnyNode} node */
const isOpen = (node) =>
  isElement(node) && !isAtom(node) && !isNeutral(node) && !dom.isBreak(node);
// The engine counts faster than a script that would have to look at every child; the one range for
// it is kept, since all ranges are followed through every change of the document.
const counter = document.createRange();
/** @param {AnyNode} node */
export function indexOf(node) {
  counter.setStartBefore(node);
  return counter.startOffset;
}

// The last node of a line right before a point, where a block follows: a caret is in that line.
/**
 * @param {AnyNode} node
 * @param {number} offset
 */
function lineBefore(node, offset) {
  if (isText(node) && !dom.isIgnorable(node)) return null;
  const [before, after] = isText(node) ? [node.previousSibling, node.nextSibling]
    : [node.childNodes[offset - 1], node.childNodes[offset]];
  const last = dom.shownFrom(before, 'previousSibling');
  return last && !dom.isBlock(last) && dom.isBlock(dom.shownFrom(after, 'nextSibling'))
    ? last : null;
}

// The leaf at one end of a node, less the source's white space there: that goes when blocks do.
/** @type {(node: AnyNode, child: EdgeChild) => AnyNode} */
function shownEdge(node, child) {
  const side = child === 'firstChild' ? 'nextSibling' : 'previousSibling';
  const inner = isOpen(node) ? dom.shownFrom(node[child], side) : null;
  if (inner) return shownEdge(inner, child);
  return child === 'firstChild' ? firstLeaf(node) : lastLeaf(node);
}

// The anchor at a point. `inward` says which side a point between two nodes clings to: 'after',
// 'before', or 'line' for a caret.
/**
 * @param {AnyNode} node
 * @param {number} offset
 * @param {'after' | 'before' | 'line'} inward
 * @returns {Anchor}
 */
function anchorAt(node, offset, inward) {
  const last = inward === 'line' ? lineBefore(node, offset) : null;
  if (last) return anchorAt(last.parentNode, indexOf(last) + 1, 'before');
  if (isText(node)) return { node, offset };
  const after = node.childNodes[offset];
  const before = node.childNodes[offset - 1];
  const child = after && (inward !== 'before' || !before) ? after : before;
  if (!child) return { inside: node };
  const leaf = child === after ? shownEdge(after, 'firstChild') : shownEdge(before, 'lastChild');
  if (isText(leaf)) return { node: leaf, offset: child === after ? 0 : leaf.length };
  return isOpen(leaf) ? { inside: leaf } : { beside: leaf, side: child === after ? 0 : 1 };
}

/**
 * @param {Anchor} anchor
 * @returns {Point}
 */
export function pointOf(anchor) {
  if ('node' in anchor) return [anchor.node, Math.min(anchor.offset, anchor.node.length)];
  if ('cell' in anchor) {
    const cell = dom.successor(anchor.cell);
    return [cell, anchor.side ? cell.childNodes.length : 0];
  }
  if ('beside' in anchor) {
    const object = dom.successor(anchor.beside);
    return [object.parentNode, indexOf(object) + anchor.side];
  }
  return [dom.successor(anchor.inside), 0];
}

/**
 * The start of a node, as save() has it.
 * @param {AnyNode} node
 * @returns {Anchor}
 */
export const startOf = (node) => {
  const leaf = firstLeaf(node);
  if (isText(leaf)) return { node: leaf, offset: 0 };
  return leaf === node && dom.isBlock(node) && !isAtom(node)
    ? { inside: node } : { beside: leaf, side: 0 };
};
/**
 * The end of a node. An empty line's caret is before the break that holds it open.
 * @param {AnyNode} node
 * @returns {Anchor}
 */
export const endOf = (node) => {
  const leaf = lastLeaf(node);
  if (isText(leaf)) return { node: leaf, offset: leaf.length };
  return leaf === node && dom.isBlock(node) && !isAtom(node)
    ? { inside: node } : { beside: leaf, side: dom.isBreak(leaf) ? 0 : 1 };
};

/**
 * The selection as anchors.
 * @returns {SavedSelection}
 */
export function save() {
  const { anchorNode, anchorOffset, focusNode, focusOffset } = points();
  const selected = range();
  if (!selected) return null;
  const forward = selected.collapsed ||
    (anchorNode === selected.startContainer && anchorOffset === selected.startOffset);
  const object = control(selected);
  if (object) {
    const side = forward ? 0 : 1;
    return { anchor: { beside: object, side }, focus: { beside: object, side: 1 - side } };
  }
  if (cellsIn(selected)) {
    const side = forward ? 0 : 1;
    return { anchor: { cell: anchorNode, side }, focus: { cell: focusNode, side: 1 - side } };
  }
  if (selected.collapsed) {
    const caret = anchorAt(focusNode, focusOffset, 'line');
    return { anchor: caret, focus: { ...caret } };
  }
  return {
    anchor: anchorAt(anchorNode, anchorOffset, forward ? 'after' : 'before'),
    focus: anchorAt(focusNode, focusOffset, forward ? 'before' : 'after'),
  };
}

/**
 * The same where the selected range is one of cells; null for one of text.
 * @param {PlainRange} selected
 */
export const saveCells = (selected) => (cellsIn(selected) ? save() : null);

/** @param {SavedSelection} saved */
export function restore(saved) {
  if (!saved) return;
  const [anchorNode, anchorOffset] = pointOf(saved.anchor);
  const [focusNode, focusOffset] = pointOf(saved.focus);
  select({ anchorNode, anchorOffset, focusNode, focusOffset });
}

// The element that holds the start of the selection, or the selected object.
export function element() {
  const selected = range();
  if (!selected) return isEditable() ? document.body : null;
  const object = control(selected);
  if (object) return object;
  const { startContainer } = selected;
  return isElement(startContainer) ? startContainer : startContainer.parentElement;
}

/**
 * The element that text typed at the caret would be in.
 * @param {PlainRange} range
 */
export function caretElement({ startContainer, startOffset }) {
  if (isText(startContainer)) return startContainer.parentElement;
  const child = startContainer.childNodes[startOffset] || startContainer.lastChild;
  const leaf = child && firstLeaf(child);
  const inline = leaf && !dom.isBlock(leaf) && !isNeutral(leaf);
  return inline ? leaf.parentElement : startContainer;
}

// A page that was just loaded has its caret at the start.
export function ensure() {
  const { anchorNode } = document.getSelection();
  if (!isEditable() || document.body.contains(anchorNode)) return;
  let leaf = document.body;
  for (const node of leavesIn({ startContainer: leaf, startOffset: 0, endContainer: leaf,
    endOffset: leaf.childNodes.length })) {
    if (!dom.isShown(node)) continue;
    leaf = node;
    break;
  }
  if (isText(leaf) || isOpen(leaf)) setCaret(leaf, 0);
  else setCaret(leaf.parentNode, indexOf(leaf));
}

/**
 * The caret where something is dropped: x and y are CSS pixels of the viewport.
 * @param {number} x
 * @param {number} y
 */
export const setCaretAtPixel = (x, y) => {
  const caret = document.caretRangeFromPoint(x, y);
  if (caret && document.body?.contains(caret.startContainer)) {
    setCaret(caret.startContainer, caret.startOffset);
  }
};
