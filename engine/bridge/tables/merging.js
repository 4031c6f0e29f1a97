// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Cells that become one, and one that becomes several.
import { nodeBehind, gridOf, isInSection, placeOf, placesIn } from './grid.js';
import { insertColumn } from './columns.js';
import { cellLike, exchangeHeading, isEmpty, setSpan, takeOut } from './making.js';
import { deleteRows } from './rows.js';
import * as dom from '../page/dom.js';

/**
 * @typedef {import('./grid.js').Grid} Grid
 * @typedef {import('./grid.js').Rectangle} Rectangle
 */

// Moves what a cell shows behind what the other one does, on a line of its own.
/**
 * @param {Element} into
 * @param {Element} from
 */
function moveContent(into, from) {
  if (isEmpty(from)) return;
  if (isEmpty(into)) {
    into.replaceChildren(...from.childNodes);
    return;
  }
  const last = dom.shownFrom(into.lastChild, 'previousSibling');
  const first = dom.shownFrom(from.firstChild, 'nextSibling');
  const isParted = dom.isBlock(last) || dom.isBlock(first) || dom.isBreak(last);
  if (!isParted) into.append(dom.create('BR'));
  else if (dom.isBreak(last) && dom.isBlock(first)) last.remove();
  into.append(...from.childNodes);
}

/**
 * True where the rectangle is more than one cell, all in one section and without holes.
 * @param {Grid} grid
 * @param {Rectangle} rectangle
 */
export function canMerge(grid, rectangle) {
  const { top, left, bottom, right } = rectangle;
  const isFull = grid.slots.slice(top, bottom + 1).every((row) => {
    for (let x = left; x <= right; x++) if (!row[x]) return false;
    return true;
  });
  return isFull && isInSection(grid, rectangle) && placesIn(grid, rectangle).length > 1;
}

/**
 * Makes one cell of a rectangle; answers it.
 * @param {Grid} grid
 * @param {Rectangle} rectangle
 */
export function mergeCells(grid, rectangle) {
  const { top, left, bottom, right } = rectangle;
  const [{ cell }, ...others] = placesIn(grid, rectangle);
  for (const { cell: other } of others) {
    moveContent(cell, other);
    if (other.id) exchangeHeading(grid.table, other.id, cell.id);
    takeOut(other);
  }
  setSpan(cell, 'colspan', right - left + 1);
  setSpan(cell, 'rowspan', bottom - top + 1);
  // A row in which no cell begins any more shows nothing.
  for (let row = bottom; row > top; row--) {
    const now = gridOf(grid.table);
    if (!now.rows[row].cells.length) deleteRows(now, { top: row, bottom: row, left: 0, right: 0 });
  }
  return cell;
}

/**
 * Makes several cells of one that has several slots; any other one becomes two side by side. The
 * first of them has the content.
 * @param {Grid} grid
 * @param {HTMLTableCellElement} cell
 */
export function splitCell(grid, cell) {
  const place = placeOf(grid, cell);
  const { row, column, height, width } = place;
  if (height * width === 1) {
    splitInTwo(grid, place);
    return;
  }
  setSpan(cell, 'rowspan', 1);
  setSpan(cell, 'colspan', 1);
  for (let y = row; y < row + height; y++) {
    const behind = y === row ? cell.nextSibling : nodeBehind(grid, y, column);
    const count = y === row ? width - 1 : width;
    for (let made = 0; made < count; made++) {
      grid.rows[y].insertBefore(cellLike(cell), behind ?? null);
    }
  }
}

// A column comes in behind the cell; all others of the cell's column take its slots over.
/**
 * @param {Grid} grid
 * @param {import('./grid.js').Place} place
 */
function splitInTwo(grid, { cell, column }) {
  const made = insertColumn(grid, column, 'behind');
  const now = gridOf(grid.table);
  made.forEach((fresh, row) => {
    const before = now.slots[row][column];
    if (!fresh || before.cell === cell) return;
    fresh.remove();
    if (before.row === row) setSpan(before.cell, 'colspan', before.width + 1);
  });
}
