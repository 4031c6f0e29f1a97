// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Which table and which of its cells a selection means: the cell at the caret; from one cell to
// another one all of the rectangle between; all of a table that is selected as a whole. A range
// from the very start of a cell to the very end of one selects *cells*: formats, deletions and the
// clipboard mean the rectangle then too, not the text in between.
import { cellIn, gridOf, placeOf, placesIn, rectangleOf, wholeOf } from './grid.js';
import { hasAdditions } from '../page/additions.js';
import * as dom from '../page/dom.js';
import * as selection from '../page/selection.js';

/**
 * `first` and `last` are the cells at the selection's ends; null where it is in none.
 * @typedef {{ table: HTMLTableElement, first: HTMLTableCellElement | null,
 *   last: HTMLTableCellElement | null }} Chosen
 */

/** @param {AnyNode} table */
const cellsOf = (table) => /** @type {HTMLTableCellElement[]} */ (
  [...table.querySelectorAll('TD, TH')].filter((cell) => cell.closest('TABLE') === table));
/**
 * @param {AnyNode} table
 * @param {HTMLTableCellElement} cell
 */
function cellBefore(table, cell) {
  const cells = cellsOf(table);
  return cells[cells.indexOf(cell) - 1];
}

// The cell at an end of a range: also where that is between cells or rows.
/**
 * @param {AnyNode} table
 * @param {AnyNode} node
 * @param {number} offset
 * @param {Edge} edge
 */
function cellAt(table, node, offset, edge) {
  const inside = cellIn(table, node);
  if (inside || !table.contains(node)) return inside;
  const cells = cellsOf(table);
  const point = document.createRange();
  point.setStart(node, offset);
  const behind = cells.find((cell) => point.comparePoint(cell, 0) > 0);
  const index = behind ? cells.indexOf(behind) : cells.length;
  return cells[edge === 'start' ? index : index - 1] ?? null;
}

// True where an end of a range lies before all that a cell shows: that cell is not meant.
/**
 * @param {AnyNode} cell
 * @param {PlainRange} range
 */
function endsBefore(cell, { endContainer, endOffset }) {
  if (endOffset !== 0 || !dom.hasContent(cell)) return false;
  let node = endContainer;
  for (; node !== cell; node = node.parentNode) {
    if (dom.neighbour(node, 'previousSibling')) return false;
  }
  return true;
}

/**
 * The table and cells that a selection means; null where it is in no table. Costs no more than the
 * way up from its ends, except at ends between cells.
 * @param {Range | null} range
 * @returns {Chosen | null}
 */
export function chosenIn(range) {
  if (!range) return null;
  const object = selection.control(range);
  if (object?.tagName === 'TABLE') return { table: object, first: null, last: null };
  const { commonAncestorContainer: common, startContainer, endContainer } = range;
  const around = dom.isElement(common) ? common : common.parentElement;
  const part = around.closest('TD, TH, CAPTION, TABLE');
  const table = /** @type {HTMLTableElement | null} */ (part?.closest('TABLE') ?? null);
  if (!table || !document.body.contains(table)) return null;
  if (part.tagName === 'CAPTION') return { table, first: null, last: null };
  if (part !== table) {
    const cell = /** @type {HTMLTableCellElement} */ (part);
    return { table, first: cell, last: cell };
  }
  const first = cellAt(table, startContainer, range.startOffset, 'start');
  const last = cellAt(table, endContainer, range.endOffset, 'end');
  if (!first || !last) return { table, first: null, last: null };
  const isUntouched = first !== last && endsBefore(last, range);
  return { table, first, last: isUntouched ? cellBefore(table, last) : last };
}

/**
 * The rectangle of chosen cells; all of the table where it is selected as a whole. null in a table
 * without cells, and where the selection is in its caption.
 * @param {Chosen} chosen
 * @param {Range} range
 */
export function rectangleChosen({ table, first, last }, range) {
  const grid = gridOf(table);
  if (!grid.places.length) return null;
  if (first) {
    const ends = [placeOf(grid, first), placeOf(grid, last)];
    return { grid, rectangle: rectangleOf(grid, ends) };
  }
  return selection.control(range) === table ? { grid, rectangle: wholeOf(grid) } : null;
}

/** @param {AnyNode} node */
const isCell = (node) => dom.isElement(node) && /^(TD|TH)$/.test(node.tagName);
/**
 * The rectangle of cells that a range selects as such; null for a range of text.
 * @param {PlainRange} range
 */
export function cellsSelected({ startContainer, startOffset, endContainer, endOffset }) {
  if (startOffset !== 0 || !isCell(startContainer) || !isCell(endContainer)) return null;
  if (!hasAdditions() || endOffset !== endContainer.childNodes.length) return null;
  const [first, last] = /** @type {HTMLTableCellElement[]} */ ([startContainer, endContainer]);
  const table = first.closest('TABLE');
  const isOne = first === last;
  if (table !== last.closest('TABLE') || (isOne && !endOffset)) return null;
  const grid = gridOf(/** @type {HTMLTableElement} */ (table));
  return { grid, rectangle: rectangleOf(grid, [placeOf(grid, first), placeOf(grid, last)]) };
}

/**
 * Selects the cells of the rectangle from one cell to another one.
 * @param {Element} from
 * @param {Element} to where the selection goes on from
 */
export function selectCells(from, to) {
  const isBack = Boolean(from.compareDocumentPosition(to) & Node.DOCUMENT_POSITION_PRECEDING);
  const [start, end] = isBack ? [from.childNodes.length, 0] : [0, to.childNodes.length];
  document.getSelection().setBaseAndExtent(from, start, to, end);
}

selection.readCellsBy((range) => {
  const found = cellsSelected(range);
  const isObject = found && range.startContainer === range.endContainer && selection.control(range);
  return found && !isObject ? placesIn(found.grid, found.rectangle).map(({ cell }) => cell) : null;
});
