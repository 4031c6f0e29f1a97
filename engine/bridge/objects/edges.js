// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The edges between a table's columns: a person drags one, and the columns on both sides share
// their width anew. While that goes on it is shown by animations that stand still; its end writes
// the widths where the page has them, as one step of the history.
import * as boxes from './boxes.js';
import { setEdge } from './frame.js';
import * as objects from './objects.js';
import { adoptSheet } from './overlay.js';
import { hasAdditions } from '../page/additions.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';
import { putWidth, widthBearers } from '../tables/columns.js';
import { gridOf, placeOf } from '../tables/grid.js';

const reach = 4;   // pixels beside an edge where a press is on it, a quarter of the cell at most
const slack = 3;   // pixels before a press becomes a drag
const least = 10;  // pixels of a column's width

const pointer = new CSSStyleSheet();
pointer.replaceSync('table, table * { cursor: col-resize !important }');
const tablePointer = new CSSStyleSheet();
tablePointer.replaceSync('html, body { cursor: e-resize !important }');

/**
 * A column: `cell` has its width, `bearers` are the elements that say it.
 * @typedef {{ cell: HTMLElement, bearers: HTMLElement[], width: number, fresh: number }} Column
 * @typedef {{ table: HTMLTableElement, columns: Column[], before: Column[] }} ColumnEdge
 */

// The cell that is at a position or right beside it.
/**
 * @param {number} x
 * @param {number} y
 */
function cellNear(x, y) {
  for (const dx of [0, -reach, reach]) {
    // In the gap between cells that is the table, which may lie in a cell itself.
    const found = document.elementFromPoint(x + dx, y)?.closest('TABLE, TD, TH');
    if (found && found.tagName !== 'TABLE') return /** @type {HTMLTableCellElement} */ (found);
  }
  return null;
}

/**
 * @param {import('../tables/grid.js').Grid} grid
 * @param {number} column
 * @returns {Column | null}
 */
function columnOf(grid, column) {
  const bearers = widthBearers(grid, column);
  const place = grid.places.find((each) => each.column === column && each.width === 1);
  if (!bearers.length || !place) return null;
  const { width } = objects.measure(place.cell);
  return { cell: place.cell, bearers, width, fresh: width };
}

/**
 * The edge of a cell that a position is on; null for none.
 * @param {HTMLElement} cell
 * @param {number} x
 */
function sideAt(cell, x) {
  const { left, right } = boxes.boxOf(cell);
  const within = Math.min(reach, (right - left) / 4);
  if (right - x <= within && x - right <= reach) return 'right';
  return x - left <= within && left - x <= reach ? 'left' : null;
}

// The table and the number of the column behind the edge that the pointer is on; null for none. At
// the table's right edge, which is dragged as an object's is (gestures.js), that is no column.
/** @param {MouseEvent} event */
function edgeAt(event) {
  const { clientX: x, clientY: y } = event;
  if (!dom.isEditable() || !hasAdditions() || objects.selected()) return null;
  const cell = cellNear(x, y);
  if (!cell || !document.body.contains(cell) || cell.closest('[contenteditable=false i]')) {
    return null;
  }
  const side = sideAt(cell, x);
  if (!side) return null;
  const isRight = side === 'right';
  const table = cell.closest('TABLE');
  const grid = gridOf(/** @type {HTMLTableElement} */ (table));
  const { column, width } = placeOf(grid, cell);
  const isEnd = isRight === (getComputedStyle(table).direction === 'ltr');
  const behind = isEnd ? column + width : column;
  const isOuter = behind >= grid.width;
  if (behind === 0) return null;
  const found = objects.objectAt(event);
  const isGap = found === table && !objects.isMovable(table);
  const isFree = isOuter ? found === (isRight ? table : null) : found === null || isGap;
  return isFree ? { grid, behind, isOuter } : null;
}

/**
 * A drag, or a press before it is one. `sign` is -1 in a table that runs from right to left.
 * @type {{ from: number, moved: boolean, sign: number, columns: Column[],
 *   previews: Animation[] } | null}
 */
let drag = null;

/** @param {MouseEvent} event */
function press(event) {
  cancel();
  const edge = event.button === 0 && !event.shiftKey ? edgeAt(event) : null;
  if (!edge || edge.isOuter) return;
  const { grid, behind } = edge;
  const columns = [columnOf(grid, behind - 1), columnOf(grid, behind)];
  if (!columns.every(Boolean)) return;
  event.preventDefault();
  document.body.focus({ preventScroll: true });
  const sign = getComputedStyle(grid.table).direction === 'ltr' ? 1 : -1;
  drag = { from: event.clientX, moved: false, sign, columns, previews: [] };
}

// What padding and borders add to the width that an element says.
/** @param {HTMLElement} bearer */
const aroundOf = (bearer) => (bearer.tagName === 'COL' ? 0 : objects.measure(bearer).aroundWidth);

/** @param {MouseEvent} event */
function show(event) {
  const { columns: [one, other], from, sign } = drag;
  const by = sign * (event.clientX - from) / objects.measure(one.cell).scale.x;
  const most = one.width + other.width - least;
  one.fresh = Math.min(Math.max(one.width + by, least), Math.max(most, least));
  other.fresh = one.width + other.width - one.fresh;
  stop();
  for (const { bearers, fresh } of drag.columns) {
    for (const bearer of bearers) {
      const width = `${Math.max(0, fresh - aroundOf(bearer))}px`;
      const preview = bearer.animate({ width: [width, width] }, { duration: 1, fill: 'both' });
      preview.pause();
      drag.previews.push(preview);
    }
  }
  const { left, right } = boxes.boxOf(one.cell);
  const { top, bottom } = boxes.boxOf(one.cell.closest('TABLE'));
  const widths = drag.columns.map(({ cell }) => Math.round(objects.measure(cell).width));
  setEdge({ x: sign > 0 ? right : left, top, bottom, text: widths.join(' | ') });
}
function stop() {
  for (const preview of drag.previews) preview.cancel();
  drag.previews = [];
}

/** @param {MouseEvent} event */
function move(event) {
  if (drag && !(event.buttons & 1)) cancel();
  if (!drag) {
    const edge = event.buttons ? null : edgeAt(event);
    adoptSheet(pointer, edge !== null && !edge.isOuter);
    adoptSheet(tablePointer, edge?.isOuter ?? false);
    return;
  }
  event.preventDefault();
  if (!drag.moved && Math.abs(event.clientX - drag.from) < slack) return;
  drag.moved = true;
  show(event);
}

function cancel() {
  if (!drag) return;
  stop();
  drag = null;
  setEdge(null);
}

/** @param {MouseEvent} event */
function release({ clientX, clientY }) {
  if (!drag) return;
  const { columns, moved } = drag;
  // A column does not become narrower than what it holds: what is seen is what is written.
  for (const column of columns) column.fresh = objects.measure(column.cell).width;
  cancel();
  if (!moved) {
    selection.setCaretAtPixel(clientX, clientY);
  } else if (columns.some(({ fresh, width }) => Math.abs(fresh - width) >= 0.5)) {
    history.step('drag', () => columns.forEach(write));
  }
}
/** @param {Column} column */
function write({ bearers, width, fresh }) {
  const sizes = bearers.map((bearer) => fresh - aroundOf(bearer));
  bearers.forEach((bearer, index) => {
    const isSaid = bearer.style.width || bearer.hasAttribute('width');
    if (isSaid) objects.writeSize(bearer, 'width', sizes[index], fresh / width);
    else putWidth(bearer, `${Math.round(sizes[index])}px`);
  });
}

/** @param {KeyboardEvent} event */
function keyDown(event) {
  if (!drag || event.key !== 'Escape') return;
  cancel();
  event.preventDefault();
  event.stopImmediatePropagation();
}

/** Begins to listen on a document that was loaded; before the gestures on cells and objects do. */
export function listenToEdges() {
  drag = null;
  adoptSheet(pointer, false);
  adoptSheet(tablePointer, false);
  document.addEventListener('mousedown', press, true);
  document.addEventListener('mousemove', move, true);
  document.addEventListener('mouseup', release, true);
  document.addEventListener('keydown', keyDown, true);
  addEventListener('blur', cancel);
}
