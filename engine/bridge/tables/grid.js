// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The grid of a table: which slots each cell takes, as browsers lay them out. A *place* is a cell
// with its slots; a *rectangle* of slots has its four sides in it. Row spans end with the section
// that they begin in. Where a page's cells overlap, the first one has the slot.
import * as dom from '../page/dom.js';

/**
 * @typedef {{ cell: HTMLTableCellElement, row: number, column: number, height: number,
 *   width: number }} Place
 * @typedef {{ top: number, left: number, bottom: number, right: number }} Rectangle
 * @typedef {{ table: HTMLTableElement, rows: HTMLTableRowElement[], places: Place[],
 *   slots: Place[][], height: number, width: number }} Grid
 */

/**
 * The last row of the section that a row is in, by their indexes.
 * @param {HTMLTableRowElement[]} rows
 * @param {number} index
 */
function sectionEnd(rows, index) {
  let end = index;
  while (rows[end + 1]?.parentNode === rows[index].parentNode) end++;
  return end;
}

/**
 * @param {HTMLTableElement} table
 * @returns {Grid}
 */
export function gridOf(table) {
  const rows = [...table.rows];
  /** @type {Place[][]} */
  const slots = rows.map(() => []);
  /** @type {Place[]} */
  const places = [];
  rows.forEach((row, at) => {
    const last = sectionEnd(rows, at);
    let column = 0;
    for (const cell of row.cells) {
      while (slots[at][column]) column++;
      const height = Math.min(cell.rowSpan || Infinity, last - at + 1);
      let width = 1;
      while (width < cell.colSpan && !slots[at][column + width]) width++;
      const place = { cell, row: at, column, height, width };
      places.push(place);
      for (let y = at; y < at + height; y++) {
        for (let x = column; x < column + width; x++) slots[y][x] = place;
      }
    }
  });
  const width = slots.reduce((most, { length }) => Math.max(most, length), 0);
  return { table, rows, places, slots, height: rows.length, width };
}

/**
 * @param {Grid} grid
 * @param {Element} cell
 */
export const placeOf = (grid, cell) => grid.places.find((place) => place.cell === cell);

/** @param {Grid} grid */
export const wholeOf = ({ height, width }) =>
  ({ top: 0, left: 0, bottom: height - 1, right: width - 1 });

/**
 * The least rectangle that holds two places and cuts no cell.
 * @param {Grid} grid
 * @param {Place[]} wanted
 * @returns {Rectangle}
 */
export function rectangleOf(grid, wanted) {
  const all = { top: Infinity, left: Infinity, bottom: -1, right: -1 };
  /** @param {Place} place */
  const take = ({ row, column, height, width }) => {
    all.top = Math.min(all.top, row);
    all.left = Math.min(all.left, column);
    all.bottom = Math.max(all.bottom, row + height - 1);
    all.right = Math.max(all.right, column + width - 1);
  };
  wanted.forEach(take);
  for (let before = ''; before !== JSON.stringify(all);) {
    before = JSON.stringify(all);
    placesIn(grid, all).forEach(take);
  }
  return all;
}

/**
 * The places that have a slot in a rectangle, in the order of the page.
 * @param {Grid} grid
 * @param {Rectangle} rectangle
 */
export function placesIn({ slots }, { top, left, bottom, right }) {
  /** @type {Set<Place>} */
  const found = new Set();
  for (let y = top; y <= bottom; y++) {
    for (let x = left; x <= right; x++) if (slots[y][x]) found.add(slots[y][x]);
  }
  return [...found];
}

/**
 * True where no cell reaches over the rectangle's sides.
 * @param {Grid} grid
 * @param {Rectangle} rectangle
 */
export const isClosed = (grid, { top, left, bottom, right }) =>
  placesIn(grid, { top, left, bottom, right }).every(({ row, column, height, width }) =>
    row >= top && column >= left && row + height - 1 <= bottom && column + width - 1 <= right);

/**
 * True where the rows of a rectangle are in one section.
 * @param {Grid} grid
 * @param {Rectangle} rectangle
 */
export const isInSection = ({ rows }, { top, bottom }) =>
  rows[top].parentNode === rows[bottom].parentNode && sectionEnd(rows, top) >= bottom;

/**
 * What a cell that begins in that slot comes in before: the row's next cell, else the white space
 * at its end; null where there is neither.
 * @param {Grid} grid
 * @param {number} row
 * @param {number} column
 */
export const nodeBehind = ({ rows, places }, row, column) =>
  places.find((place) => place.row === row && place.column >= column)?.cell ??
  rows[row].lastElementChild?.nextSibling ?? null;

/**
 * The cell of a table that a node is in; null for none.
 * @param {AnyNode} table
 * @param {AnyNode} node
 * @returns {HTMLTableCellElement | null}
 */
export function cellIn(table, node) {
  let cell = (dom.isElement(node) ? node : node.parentElement)?.closest('TD, TH');
  while (cell && cell.closest('TABLE') !== table) cell = cell.parentElement.closest('TD, TH');
  return /** @type {HTMLTableCellElement | null} */ (cell ?? null);
}
