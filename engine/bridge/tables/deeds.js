// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What the commands on tables do with the cells that are chosen, and where the caret is then.
import { chosenIn, rectangleChosen, selectCells } from './chosen.js';
import { deleteColumns, distributeColumns, insertColumn, moveColumns } from './columns.js';
import { gridOf, placesIn } from './grid.js';
import { canMerge, mergeCells, splitCell } from './merging.js';
import { deleteRows, insertRow, moveRows } from './rows.js';
import * as dom from '../page/dom.js';
import * as selection from '../page/selection.js';

/**
 * @typedef {import('./grid.js').Grid} Grid
 * @typedef {import('./grid.js').Rectangle} Rectangle
 */

/**
 * Puts the caret to a cell's start.
 * @param {Element} cell
 */
export function enterCell(cell) {
  const leaf = dom.firstLeaf(cell);
  if (dom.isText(leaf) || leaf === cell) selection.setCaret(leaf, 0);
  else selection.setCaret(leaf.parentNode, selection.indexOf(leaf));
}
/**
 * @param {HTMLTableElement} table
 * @param {number} row
 * @param {number} column
 */
function enterSlot(table, row, column) {
  const { slots, height } = gridOf(table);
  const line = slots[Math.min(row, height - 1)];
  const place = line[Math.min(column, line.length - 1)] ?? line.find(Boolean);
  if (place) enterCell(place.cell);
}

// The cells that are chosen now; null for none.
function chosenNow() {
  const range = selection.range();
  const chosen = chosenIn(range);
  return chosen && rectangleChosen(chosen, range);
}

/**
 * A deed on the cells that are chosen.
 * @param {(grid: Grid, rectangle: Rectangle) => void} deed
 */
const onCells = (deed) => () => {
  const chosen = chosenNow();
  if (chosen) deed(chosen.grid, chosen.rectangle);
};

/** @param {'before' | 'behind'} side */
export const rowInserted = (side) => onCells((grid, { top, left, bottom }) => {
  insertRow(grid, side === 'behind' ? bottom : top, side);
  enterSlot(grid.table, side === 'behind' ? bottom + 1 : top, left);
});
/** @param {'before' | 'behind'} side */
export const columnInserted = (side) => onCells((grid, { top, left, right }) => {
  insertColumn(grid, side === 'behind' ? right : left, side);
  enterSlot(grid.table, top, side === 'behind' ? right + 1 : left);
});

/**
 * Deletes rows; all of them with the table.
 * @param {Grid} grid
 * @param {Rectangle} rectangle
 * @param {(table: Element) => void} deleteTable
 */
function deleteRowsOrTable(grid, rectangle, deleteTable) {
  const { table, height } = grid;
  if (rectangle.bottom - rectangle.top + 1 === height) {
    deleteTable(table);
    return;
  }
  deleteRows(grid, rectangle);
  enterSlot(table, rectangle.top, rectangle.left);
}
/**
 * Deletes the rows of the chosen cells.
 * @param {(table: Element) => void} deleteTable
 */
export const rowsDeleted = (deleteTable) =>
  onCells((grid, rectangle) => deleteRowsOrTable(grid, rectangle, deleteTable));
/**
 * Deletes a row, or the rows of a section.
 * @param {Element} part
 * @param {(table: Element) => void} deleteTable
 */
export function deleteRowsOf(part, deleteTable) {
  const grid = gridOf(part.closest('TABLE'));
  const own = grid.rows.filter((row) => part.contains(row));
  const top = grid.rows.indexOf(own[0]);
  const rectangle = { top, bottom: top + own.length - 1, left: 0, right: 0 };
  if (own.length) deleteRowsOrTable(grid, rectangle, deleteTable);
}
/**
 * @param {(table: Element) => void} deleteTable
 */
export const columnsDeleted = (deleteTable) => onCells((grid, rectangle) => {
  const { table, width } = grid;
  if (rectangle.right - rectangle.left + 1 === width) {
    deleteTable(table);
    return;
  }
  deleteColumns(grid, rectangle);
  enterSlot(table, rectangle.top, rectangle.left);
});

export const cellsMerged = onCells((grid, rectangle) => {
  if (canMerge(grid, rectangle)) enterCell(mergeCells(grid, rectangle));
});
export const cellSplit = onCells((grid, rectangle) => {
  const [{ cell }] = placesIn(grid, rectangle);
  splitCell(grid, cell);
  enterCell(cell);
});

/** @param {-1 | 1} step */
export const rowsMoved = (step) => onCells((grid, rectangle) => {
  const saved = selection.save();
  moveRows(grid, rectangle, step);
  selection.restore(saved);
});
/** @param {-1 | 1} step */
export const columnsMoved = (step) => onCells((grid, rectangle) => {
  const saved = selection.save();
  moveColumns(grid, rectangle, step);
  selection.restore(saved);
});
export const columnsDistributed = onCells((grid) => distributeColumns(grid));

/**
 * Selects from the first to the last cell of a part of the table that the chosen cells are in.
 * @param {'cell' | 'row' | 'column'} part
 */
export const select = (part) => onCells((grid, chosen) => {
  const rectangle = { ...chosen };
  if (part === 'row') Object.assign(rectangle, { left: 0, right: grid.width - 1 });
  if (part === 'column') Object.assign(rectangle, { top: 0, bottom: grid.height - 1 });
  const places = placesIn(grid, rectangle);
  selectCells(places[0].cell, places.at(-1).cell);
});
export function selectTable() {
  const chosen = chosenIn(selection.range());
  if (chosen) selection.selectNode(chosen.table);
}

/**
 * True where the chosen cells are several.
 * @param {import('./chosen.js').Chosen | null} chosen
 */
export const areSeveral = (chosen) => Boolean(chosen) &&
  (chosen.first !== chosen.last || (!chosen.first && chosen.table.rows.length > 0));
