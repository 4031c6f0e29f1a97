// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Rectangles of cells on the clipboard: copied as a table of their own, put into other cells.
import * as dom from '../page/dom.js';
import * as selection from '../page/selection.js';
import { cellsSelected, chosenIn, rectangleChosen, selectCells } from '../tables/chosen.js';
import { fillCells } from '../tables/filling.js';
import { gridOf } from '../tables/grid.js';
import { takeWidth } from '../tables/making.js';
import { linesOf } from './paste.js';

/**
 * @typedef {import('../tables/grid.js').Grid} Grid
 * @typedef {import('../tables/grid.js').Rectangle} Rectangle
 */

/**
 * A table of the rectangle's cells.
 * @param {Grid} grid
 * @param {Rectangle} rectangle
 */
function tableOf({ table, rows, places, width }, { top, left, bottom, right }) {
  const copy = dom.twin(table);
  if (right - left + 1 < width) takeWidth(copy);
  /** @type {AnyNode} */
  let section = null;
  for (let y = top; y <= bottom; y++) {
    const parent = rows[y].parentNode;
    if (y === top || parent !== rows[y - 1].parentNode) {
      section = parent === table ? copy : parent.cloneNode(false);
      if (section !== copy) copy.append(section);
    }
    const row = rows[y].cloneNode(false);
    section.append(row);
    for (const { cell, row: at, column } of places) {
      if (at === y && column >= left && column <= right) {
        /** @type {Element} */ (row).append(cell.cloneNode(true));
      }
    }
  }
  return copy;
}

// A cell's text in one line of a spreadsheet's table.
/** @param {Element} cell */
const lineOf = (cell) => linesOf(cell).join(' ').replace(/[\s\u00a0]+/g, ' ').trim();
/**
 * @param {Grid} grid
 * @param {Rectangle} rectangle
 */
function textOf({ slots }, { top, left, bottom, right }) {
  const lines = [];
  for (let y = top; y <= bottom; y++) {
    const texts = [];
    for (let x = left; x <= right; x++) {
      const place = slots[y][x];
      const begins = place && place.row === y && place.column === x;
      texts.push(begins ? lineOf(place.cell) : '');
    }
    lines.push(texts.join('\t'));
  }
  return lines.join('\n');
}

/**
 * What is copied of cells that are selected as such: a table, and its text with tabs; null for a
 * range of text.
 * @param {Range} range
 */
export function copiedCells(range) {
  if (!selection.cellsIn(range)) return null;
  const { grid, rectangle } = cellsSelected(range);
  return { table: tableOf(grid, rectangle), text: textOf(grid, rectangle) };
}

/**
 * The table that is all of a fragment; null where it is anything else.
 * @param {DocumentFragment} fragment
 * @returns {HTMLTableElement | null}
 */
function onlyTable(fragment) {
  /** @type {AnyNode[]} */
  const shown = [...fragment.childNodes].filter((node) => dom.isShown(node) && !dom.isBlank(node));
  return shown.length === 1 && shown[0].tagName === 'TABLE' ? shown[0] : null;
}

/**
 * What a fragment that is a table does to the cells at the selection, as a function to call: they
 * take the contents of its cells. null where no cells are selected, unless cells were copied
 * (`isCells`) and the caret is in one.
 * @param {DocumentFragment} fragment
 * @param {Range} range
 * @param {boolean} isCells
 * @returns {(() => void) | null}
 */
export function fillingOf(fragment, range, isCells) {
  const table = onlyTable(fragment);
  const isWanted = table && (isCells || selection.cellsIn(range));
  const chosen = isWanted ? chosenIn(range) : null;
  const found = chosen?.first ? rectangleChosen(chosen, range) : null;
  const source = found ? gridOf(table) : null;
  if (!source?.places.length) return null;
  return () => {
    const [first, last] = fillCells(found.grid, found.rectangle, source);
    selectCells(first, last);
  };
}

/**
 * True where what is pasted as text goes into selected cells: it has the form of a table then.
 * @param {PlainRange} range
 * @param {string} text
 */
export const takesTable = (range, text) => selection.cellsIn(range) !== null && /[\t\n]/.test(text);
