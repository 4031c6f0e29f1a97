// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// How a person selects cells: a press in one cell that is drawn into another one of the same table,
// a press with Shift in another one, Shift and an arrow key beyond what a cell holds.
import * as objects from './objects.js';
import { hasAdditions } from '../page/additions.js';
import * as dom from '../page/dom.js';
import * as selection from '../page/selection.js';
import { selectCells } from '../tables/chosen.js';
import { enterCell } from '../tables/deeds.js';
import { cellIn, gridOf, placeOf, rectangleOf } from '../tables/grid.js';

/**
 * @param {AnyNode} node
 * @returns {HTMLTableCellElement | null}
 */
const cellAround = (node) => dom.ancestor(node, (at) => /^(TD|TH)$/.test(at.nodeName));
/**
 * @param {Element} cell
 * @returns {HTMLTableElement | null}
 */
const tableOf = (cell) => cell.closest('TABLE');

// The two cells of one table that two nodes are in: of the innermost table that has both in cells
// of its own. null where they are in the same cell, or in no table together.
/**
 * @param {Node} from
 * @param {Node} to
 */
function cellsApart(from, to) {
  for (let cell = cellAround(from); cell; cell = cellAround(cell.parentNode)) {
    const table = tableOf(cell);
    const other = table && table.contains(to) ? cellIn(table, to) : null;
    if (other) return other === cell ? null : { from: cell, to: other };
  }
  return null;
}

// The cells that are selected as such now; null for none.
function cellsNow() {
  const range = selection.range();
  return range && !range.collapsed ? selection.cellsIn(range) : null;
}

/**
 * A press in a cell: `anchor` is where the engine has put the caret, `selects` whether cells were
 * selected since.
 * @type {{ cell: Element, anchor: Point | null, selects: boolean } | null}
 */
let pressed = null;

/** @param {MouseEvent} event */
function press(event) {
  pressed = null;
  endsDrag = false;
  const { target, button, shiftKey, clientX, clientY } = event;
  if (event.defaultPrevented || !dom.isEditable() || !hasAdditions()) return;
  const cell = target instanceof Element ? cellAround(target) : null;
  if (!cell) return;
  const isSelected = cellsNow()?.some((each) => each.contains(cell)) ?? false;
  // The engine would put the caret beside the cells for the menu, outside of its own range.
  if (button === 2 && isSelected) event.preventDefault();
  if (button !== 0 || objects.objectAt(event)) return;
  const apart = shiftKey ? cellsApart(selection.points().anchorNode, cell) : null;
  if (apart) {
    event.preventDefault();
    document.body.focus({ preventScroll: true });
    selectCells(apart.from, apart.to);
    pressed = { cell: apart.from, anchor: [apart.from, 0], selects: true };
    return;
  }
  // Else the engine would begin to drag what is selected.
  if (isSelected && !shiftKey) selection.setCaretAtPixel(clientX, clientY);
  pressed = { cell, anchor: null, selects: false };
}

/** @param {MouseEvent} event */
function move(event) {
  if (!pressed || !(event.buttons & 1) || !pressed.cell.isConnected) {
    pressed = null;
    return;
  }
  const { anchorNode, anchorOffset } = selection.points();
  pressed.anchor ??= [anchorNode, anchorOffset];
  const under = document.elementFromPoint(event.clientX, event.clientY);
  const apart = under && cellsApart(pressed.cell, under);
  const isBetween = under && !apart && !pressed.cell.contains(under) &&
    tableOf(pressed.cell).contains(under);
  if (!apart && !pressed.selects) return;
  // The engine is not to select the text between the cells.
  event.preventDefault();
  if (isBetween) return;
  pressed.selects = true;
  if (apart) {
    selectCells(apart.from, apart.to);
    return;
  }
  const caret = document.caretRangeFromPoint(event.clientX, event.clientY);
  if (!caret || !document.body.contains(caret.startContainer)) return;
  document.getSelection().setBaseAndExtent(
    ...pressed.anchor, caret.startContainer, caret.startOffset);
}
// A press in one cell that ends in another one makes a click on what is around both, which is none
// on the table.
let endsDrag = false;
function release() {
  endsDrag = pressed?.selects ?? false;
  pressed = null;
}
/** @param {MouseEvent} event */
function click(event) {
  if (endsDrag) event.stopImmediatePropagation();
  endsDrag = false;
}

/** @type {Map<string, [x: number, y: number]>} */
const ways = new Map([
  ['ArrowLeft', [-1, 0]], ['ArrowRight', [1, 0]], ['ArrowUp', [0, -1]], ['ArrowDown', [0, 1]],
]);
/** @type {Record<string, [direction: string, granularity: string]>} */
const strides = {
  ArrowLeft: ['left', 'character'], ArrowRight: ['right', 'character'],
  ArrowUp: ['backward', 'line'], ArrowDown: ['forward', 'line'],
};

// Selects from `anchor` to the next cell beyond `focus` that makes another rectangle; false where
// the table ends.
/**
 * @param {Element} anchor
 * @param {Element} focus
 * @param {string} key
 */
function selectOnwards(anchor, focus, key) {
  const table = tableOf(focus);
  const grid = gridOf(table);
  const [from, at] = [placeOf(grid, anchor), placeOf(grid, focus)];
  const [right, down] = ways.get(key);
  const across = getComputedStyle(table).direction === 'rtl' ? -right : right;
  /** @param {import('../tables/grid.js').Place} place */
  const reached = (place) => JSON.stringify(rectangleOf(grid, [from, place]));
  for (let { row, column } = at; ;) {
    [row, column] = [row + down, column + across];
    const next = grid.slots[row]?.[column];
    if (!next) return false;
    if (reached(next) === reached(at)) continue;
    selectCells(anchor, next.cell);
    return true;
  }
}

/**
 * What Shift and an arrow key do in a table: from the end of what a cell holds they select the cell
 * and the next one, from there on cell by cell. False where the engine is to do as it does.
 * @param {string} key
 */
export function extendCells(key) {
  const range = selection.range();
  if (!range || !hasAdditions()) return false;
  const before = selection.points();
  const { anchorNode, focusNode } = before;
  if (cellsNow()) {
    selectOnwards(cellAround(anchorNode), cellAround(focusNode), key);
    return true;
  }
  const cell = cellAround(anchorNode);
  if (!cell || !cell.contains(focusNode)) return false;
  const [direction, granularity] = strides[key];
  /** @type {any} */ (document.getSelection()).modify('extend', direction, granularity);
  if (cell.contains(document.getSelection().focusNode)) return true;
  selection.select(before);
  return selectOnwards(cell, cell, key);
}

/** Puts the caret into the cell that the selection of cells goes on from; false where none is. */
export function leaveCells() {
  if (!cellsNow()) return false;
  enterCell(cellAround(selection.points().focusNode));
  return true;
}

/** Begins to listen on a document that was loaded; before the gestures on objects do. */
export function listenToCells() {
  pressed = null;
  document.addEventListener('mousedown', press, true);
  document.addEventListener('mousemove', move, true);
  document.addEventListener('mouseup', release, true);
  document.addEventListener('click', click, true);
}
