// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Columns that come, go, move and share the width. The COL elements of a page go along.
import { nodeBehind, isClosed, wholeOf } from './grid.js';
import { cellLike, setSpan, takeAttribute, takeOut, takeWidth } from './making.js';
import { putDeclaration } from '../formats/declarations.js';
import * as dom from '../page/dom.js';

/**
 * @typedef {import('./grid.js').Grid} Grid
 * @typedef {import('./grid.js').Rectangle} Rectangle
 */

// The COL elements, and COLGROUPs without any, each with its first column and their number.
/** @param {HTMLTableElement} table */
function bearers(table) {
  const found = [];
  let column = 0;
  const groups = [...table.children].filter(({ tagName }) => tagName === 'COLGROUP');
  for (const group of groups) {
    const cols = [...group.children].filter(({ tagName }) => tagName === 'COL');
    for (const bearer of cols.length ? cols : [group]) {
      const element = /** @type {HTMLTableColElement} */ (bearer);
      found.push({ element, column, width: element.span });
      column += element.span;
    }
  }
  return found;
}
/**
 * @param {HTMLTableColElement} element
 * @param {number} span
 */
function setColSpan(element, span) {
  if (span === 1) takeAttribute(element, 'span');
  else element.setAttribute('span', String(span));
}

/**
 * @param {HTMLTableElement} table
 * @param {number} at
 * @param {'before' | 'behind'} side
 */
function insertBearer(table, at, side) {
  const like = bearers(table).find(({ column, width }) => at >= column && at < column + width);
  if (!like) return;
  const { element, width } = like;
  if (width > 1 || element.tagName === 'COLGROUP') setColSpan(element, width + 1);
  else if (side === 'behind') element.after(dom.twin(element));
  else element.before(dom.twin(element));
}

/**
 * Inserts a column before or behind the column `at`; answers its cells by their rows, null where a
 * cell that was there grew.
 * @param {Grid} grid
 * @param {number} at
 * @param {'before' | 'behind'} side
 */
export function insertColumn(grid, at, side) {
  const { table, rows, slots, height } = grid;
  const beyond = side === 'behind' ? at + 1 : at - 1;
  const fresh = side === 'behind' ? at + 1 : at;
  /** @type {(HTMLTableCellElement | null)[]} */
  const made = rows.map(() => null);
  for (let y = 0; y < height; y++) {
    const place = slots[y][at];
    // A hole of the page stays one.
    if (!place) continue;
    if (slots[y][beyond] === place) {
      if (y === place.row) setSpan(place.cell, 'colspan', place.width + 1);
    } else {
      made[y] = cellLike(place.cell);
      takeWidth(made[y]);
    }
  }
  made.forEach((cell, y) => {
    if (cell) rows[y].insertBefore(cell, nodeBehind(grid, y, fresh));
  });
  insertBearer(table, at, side);
  return made;
}

/**
 * Deletes the columns of a rectangle; not all of a table.
 * @param {Grid} grid
 * @param {Rectangle} rectangle
 */
export function deleteColumns({ table, places }, { left, right }) {
  for (const { cell, column, width } of places) {
    const end = column + width - 1;
    if (column > right || end < left) continue;
    const rest = width - (Math.min(end, right) - Math.max(column, left) + 1);
    if (rest) setSpan(cell, 'colspan', rest);
    else takeOut(cell);
  }
  for (const { element, column, width } of bearers(table)) {
    const gone = Math.min(column + width - 1, right) - Math.max(column, left) + 1;
    if (gone <= 0) continue;
    if (gone < width) setColSpan(element, width - gone);
    else takeOut(element);
  }
}

/**
 * True where the rectangle's columns can change places with the one before or behind.
 * @param {Grid} grid
 * @param {Rectangle} rectangle
 * @param {-1 | 1} step
 */
export function canMoveColumns(grid, { left, right }, step) {
  const beyond = step < 0 ? left - 1 : right + 1;
  if (beyond < 0 || beyond >= grid.width) return false;
  const { top, bottom } = wholeOf(grid);
  const isWhole = grid.slots.every((row) => row.length === grid.width);
  return isWhole && isClosed(grid, { top, bottom, left, right }) &&
    isClosed(grid, { top, bottom, left: beyond, right: beyond });
}

/**
 * Moves the rectangle's columns left (-1) or right (1) by one.
 * @param {Grid} grid
 * @param {Rectangle} rectangle
 * @param {-1 | 1} step
 */
export function moveColumns(grid, rectangle, step) {
  if (!canMoveColumns(grid, rectangle, step)) return;
  const { left, right } = rectangle;
  const [from, to] = step < 0 ? [left - 1, right] : [right + 1, left];
  for (let y = 0; y < grid.height; y++) {
    const moved = grid.slots[y][from];
    const block = grid.places.filter(({ row, column }) =>
      row === y && column >= left && column <= right).map(({ cell }) => cell);
    if (moved.row !== y || !block.length) continue;
    // The cells change places; what stands between them stays.
    if (step < 0) putInPlaces([moved.cell, ...block], [...block, moved.cell]);
    else putInPlaces([...block, moved.cell], [moved.cell, ...block]);
  }
  const cols = bearers(grid.table);
  const plain = cols.every(({ element, width }) => width === 1 && element.tagName === 'COL');
  if (plain && cols[from] && cols[to]) {
    if (step < 0) cols[to].element.after(cols[from].element);
    else cols[to].element.before(cols[from].element);
  }
}

// Puts `cells` into the places that the cells of `order` have now, so that the white space between
// them stays.
/**
 * @param {Element[]} order
 * @param {Element[]} cells
 */
function putInPlaces(order, cells) {
  const marks = order.map((cell) => {
    const mark = document.createTextNode('');
    cell.before(mark);
    return mark;
  });
  marks.forEach((mark, index) => mark.replaceWith(cells[index]));
}
/**
 * Writes a width in the page's dialect, where the element has one in its spelling.
 * @param {HTMLElement} element
 * @param {string} width "25%" or "120px"
 */
export function putWidth(element, width) {
  const styled = element.style.width || (!element.hasAttribute('width') && dom.writesStyles());
  if (styled) putDeclaration(element, 'width', width);
  else element.setAttribute('width', width.replace(/px$/, ''));
}

/** @param {HTMLElement} element */
const saysWidth = (element) => element.style.width !== '' || element.hasAttribute('width');
/**
 * The elements that say a column's width, or are to say it: its COL, else its cells that do, else
 * the first one of them. None where all of its cells reach over other columns too.
 * @param {Grid} grid
 * @param {number} at
 * @returns {HTMLElement[]}
 */
export function widthBearers({ table, places }, at) {
  const cells = places.filter(({ column, width }) => column === at && width === 1)
    .map(({ cell }) => cell);
  const said = cells.filter(saysWidth);
  const col = bearers(table).find(({ element, column, width }) =>
    column === at && width === 1 && element.tagName === 'COL')?.element;
  if (col && (saysWidth(col) || !said.length)) return [col, ...said];
  return said.length ? said : cells.slice(0, 1);
}

/**
 * Gives all columns the same width: to the COL elements where the table has them, else to the cells
 * of its first row.
 * @param {Grid} grid
 */
export function distributeColumns({ table, places, width }) {
  const share = Math.floor(100 / width);
  const cols = bearers(table);
  const isByCols = cols.reduce((sum, each) => sum + each.width, 0) === width;
  for (const { cell, row, width: wide } of places) {
    if (row === 0 && !isByCols) putWidth(cell, `${share * wide}%`);
    else takeWidth(cell);
  }
  if (isByCols) for (const { element } of cols) putWidth(element, `${share}%`);
}
