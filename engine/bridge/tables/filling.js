// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// A table's contents put into the cells of another one, which grows for them. The cells that are
// there keep what is said of them; spans become those of the contents.
import { gridOf, isInSection, nodeBehind, placesIn } from './grid.js';
import { insertColumn } from './columns.js';
import { cellLike, isEmpty, setSpan, takeOut } from './making.js';
import { splitCell } from './merging.js';
import { deleteRows, insertRow } from './rows.js';
import { keepsBlanks } from '../page/beside.js';
import * as dom from '../page/dom.js';

/**
 * @typedef {import('./grid.js').Grid} Grid
 * @typedef {import('./grid.js').Place} Place
 * @typedef {import('./grid.js').Rectangle} Rectangle
 */

// Gives a table so many rows and columns at least.
/**
 * @param {HTMLTableElement} table
 * @param {number} height
 * @param {number} width
 */
function grow(table, height, width) {
  const missing = height - table.rows.length;
  if (missing > 0) insertRow(gridOf(table), table.rows.length - 1, 'behind');
  const last = table.rows[table.rows.length - 1];
  for (let made = 1; made < missing; made++) {
    const row = last.cloneNode(true);
    last.after(row);
  }
  for (let grid = gridOf(table); grid.width < width; grid = gridOf(table)) {
    insertColumn(grid, grid.width - 1, 'behind');
  }
}

// Puts a cell into each slot of the rectangle that has none, and before it in its row.
/**
 * @param {HTMLTableElement} table
 * @param {Rectangle} rectangle
 */
function fillHoles(table, { top, bottom, right }) {
  let grid = gridOf(table);
  const [{ cell: any }] = grid.places;
  for (let y = top; y <= bottom; y++) {
    for (let x = 0; x <= right; x++) {
      if (grid.slots[y][x]) continue;
      const like = grid.slots[y][x - 1]?.cell ?? any;
      grid.rows[y].insertBefore(cellLike(like), nodeBehind(grid, y, x));
      grid = gridOf(table);
    }
  }
}

// Takes out what a cell holds. The source's line end before the next tag stays.
/** @param {HTMLTableCellElement} cell */
function empty(cell) {
  const last = cell.lastChild;
  const isLine = dom.isText(last) && !keepsBlanks(last);
  const [line = ''] = (isLine && /[ \t]*\n[ \t\n]*$/.exec(last.data)) || [];
  cell.replaceChildren(...[line].filter(Boolean));
}

/**
 * Puts a copy of a cell's content into an empty one.
 * @param {Element} cell
 * @param {Element} from
 */
function takeContent(cell, from) {
  if (isEmpty(from)) {
    cell.prepend(dom.create('BR'));
    return;
  }
  const copy = document.createDocumentFragment();
  copy.append(...[...from.childNodes].map((node) => node.cloneNode(true)));
  dom.dropTakenIds(copy);
  cell.prepend(copy);
}

/**
 * Puts the contents of a table's cells into the cells of another one, from the rectangle's first
 * slot on; a single content into all of the rectangle. Answers the first and the last of the cells.
 * @param {Grid} grid
 * @param {Rectangle} rectangle
 * @param {Grid} source
 * @returns {[HTMLTableCellElement, HTMLTableCellElement]}
 */
export function fillCells(grid, rectangle, source) {
  const { table } = grid;
  if (source.places.length === 1) {
    const cells = placesIn(grid, rectangle).map(({ cell }) => cell);
    cells.forEach(empty);
    for (const cell of cells) takeContent(cell, source.places[0].cell);
    return [cells[0], cells.at(-1)];
  }
  const { top, left } = rectangle;
  const area = { top, left, bottom: top + source.height - 1, right: left + source.width - 1 };
  grow(table, area.bottom + 1, area.right + 1);
  fillHoles(table, area);
  for (const { cell, height, width } of placesIn(gridOf(table), area)) {
    if (height * width > 1) splitCell(gridOf(table), cell);
  }
  const now = gridOf(table);
  // What goes has its ids no more.
  for (const { row, column } of source.places) {
    empty(now.slots[top + row][left + column].cell);
  }
  for (const place of source.places) putIn(now, place, top + place.row, left + place.column);
  const ends = [now.slots[top][left].cell, lastIn(now, area)];
  // A row in which no cell begins any more shows nothing.
  for (let row = area.bottom; row > top; row--) {
    if (!table.rows[row].cells.length) {
      deleteRows(gridOf(table), { top: row, bottom: row, left: 0, right: 0 });
    }
  }
  return /** @type {[HTMLTableCellElement, HTMLTableCellElement]} */ (ends);
}

// The last cell of a rectangle that is still there.
/**
 * @param {Grid} grid
 * @param {Rectangle} area
 */
const lastIn = (grid, area) =>
  placesIn(grid, area).map(({ cell }) => cell).findLast((cell) => cell.isConnected);

// Puts a cell's content and spans into the cell that begins in a slot; the others of its slots go.
// A span ends with the section.
/**
 * @param {Grid} grid of cells with one slot each
 * @param {Place} place
 * @param {number} top
 * @param {number} left
 */
function putIn(grid, { cell, height, width }, top, left) {
  let bottom = top + height - 1;
  while (!isInSection(grid, { top, bottom, left, right: left })) bottom--;
  const taken = { top, left, bottom, right: left + width - 1 };
  const [first, ...others] = placesIn(grid, taken);
  takeContent(first.cell, cell);
  for (const other of others) takeOut(other.cell);
  setSpan(first.cell, 'rowspan', bottom - top + 1);
  setSpan(first.cell, 'colspan', width);
}
