// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Rows that come, go and move. A cell that reaches over the place of a new row grows; of one that
// reaches into rows that go, the rest stays.
import { nodeBehind, gridOf, isClosed, isInSection, wholeOf } from './grid.js';
import { cellLike, setSpan, takeOut, takeWidth } from './making.js';
import * as dom from '../page/dom.js';
import { moveBehind } from '../page/sourceLines.js';

/**
 * @typedef {import('./grid.js').Grid} Grid
 * @typedef {import('./grid.js').Rectangle} Rectangle
 */

// A row of headings alone: what is put in below it in the same section is no heading.
/** @param {HTMLTableRowElement} row */
const isHeadRow = (row) => (/** @type {Element} */ (row.parentNode)).tagName !== 'THEAD' &&
  [...row.cells].every(({ tagName }) => tagName === 'TH') && row.cells.length > 1;

/**
 * Inserts a row before or behind the row `at`; answers its cells.
 * @param {Grid} grid
 * @param {number} at
 * @param {'before' | 'behind'} side
 */
export function insertRow({ rows, slots, width }, at, side) {
  const like = rows[at];
  const beyond = side === 'behind' ? at + 1 : at - 1;
  const tag = side === 'behind' && isHeadRow(like) ? 'TD' : undefined;
  const row = dom.twin(like);
  for (let x = 0; x < width; x++) {
    const place = slots[at][x];
    // A hole of the page stays one.
    if (!place) continue;
    const { cell, column, height, width: wide } = place;
    if (slots[beyond]?.[x] === place) {
      setSpan(cell, 'rowspan', height + 1);
      x = column + wide - 1;
    } else {
      row.append(cellLike(cell, tag));
      // A wide cell's width is none of the columns'.
      if (wide > 1) takeWidth(row.cells[row.cells.length - 1]);
    }
  }
  if (side === 'behind') like.after(row);
  else like.before(row);
  return [...row.cells];
}

/**
 * Deletes the rows of a rectangle; not all of a table.
 * @param {Grid} grid
 * @param {Rectangle} rectangle
 */
export function deleteRows(grid, { top, bottom }) {
  const { rows, places } = grid;
  for (const { cell, row, column, height } of places) {
    const end = row + height - 1;
    if (row > bottom || end < top) continue;
    const left = height - (Math.min(end, bottom) - Math.max(row, top) + 1);
    if (!left) continue;
    setSpan(cell, 'rowspan', left);
    // It begins in a row that goes: the rest of it stands in the first one that stays.
    if (row >= top) rows[bottom + 1].insertBefore(cell, nodeBehind(grid, bottom + 1, column));
  }
  for (const row of rows.slice(top, bottom + 1)) {
    const section = /** @type {Element} */ (row.parentNode);
    takeOut(row);
    if (dom.isRowGroup(section) && !section.firstElementChild) takeOut(section);
  }
}

/**
 * True where the rectangle's rows can change places with the row above or below.
 * @param {Grid} grid
 * @param {Rectangle} rectangle
 * @param {-1 | 1} step
 */
export function canMoveRows(grid, { top, bottom }, step) {
  const beyond = step < 0 ? top - 1 : bottom + 1;
  if (!grid.rows[beyond]) return false;
  const { left, right } = wholeOf(grid);
  const both = { top: Math.min(top, beyond), bottom: Math.max(bottom, beyond), left, right };
  return isInSection(grid, both) && isClosed(grid, { top, bottom, left, right }) &&
    isClosed(grid, { top: beyond, bottom: beyond, left, right });
}

/**
 * Moves the rectangle's rows up (-1) or down (1) by one.
 * @param {Grid} grid
 * @param {Rectangle} rectangle
 * @param {-1 | 1} step
 */
export function moveRows(grid, rectangle, step) {
  if (!canMoveRows(grid, rectangle, step)) return;
  const { rows } = grid;
  const { top, bottom } = rectangle;
  if (step < 0) moveBehind(rows[bottom], [rows[top - 1]]);
  else moveBehind(rows[bottom + 1], rows.slice(top, bottom + 1));
}

/**
 * The behind-last row for Tab in the last cell.
 * @param {HTMLTableElement} table
 */
export function appendRow(table) {
  const grid = gridOf(table);
  return insertRow(grid, grid.height - 1, 'behind');
}
