// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What of a table's looks in other programs' markup stays: where it and its cells stand, and how
// wide it and its columns are.
import { putDeclaration } from '../formats/declarations.js';
import * as dom from '../page/dom.js';
import { setSide, setWidth, sideOf, widthOf } from './looks.js';

// The widths of a table's columns, empty for one that has none: those of its COLs, else those of
// its first row's cells.
/** @param {HTMLTableElement} table */
function columnWidths(table) {
  /** @type {NodeListOf<any>} */
  const columns = table.querySelectorAll(
    ':scope > col, :scope > colgroup, :scope > colgroup > col');
  /**
   * @param {any} element
   * @param {number} count
   */
  const times = (element, count) => Array(Math.min(count, 1000)).fill(widthOf(element));
  const said = [...columns].filter((column) => !column.firstElementChild)
    .flatMap((column) => times(column, column.span));
  if (said.some(Boolean)) return said;
  return [...table.rows[0]?.cells ?? []]
    .flatMap((cell) => (cell.colSpan > 1 ? Array(cell.colSpan).fill('') : times(cell, 1)));
}

// The width of columns together; empty where they do not add up.
/** @param {string[]} widths */
function together(widths) {
  const units = new Set(widths.map((width) => (width.endsWith('%') ? '%' : '')));
  if (widths.includes('') || units.size !== 1) return '';
  return String(widths.reduce((sum, width) => sum + parseFloat(width), 0)) + [...units][0];
}

// Columns of one width have none. A table whose columns have theirs needs none but a share.
/**
 * @param {HTMLTableElement} from
 * @param {HTMLTableElement} to
 */
function setWidths(from, to) {
  const widths = columnWidths(from);
  const differ = new Set(widths.filter(Boolean)).size > 1;
  const own = widthOf(from);
  if (own && (!differ || own.endsWith('%'))) setWidth(to, own);
  if (!differ) return;
  let at = 0;
  for (const cell of to.rows[0]?.cells ?? []) {
    const width = together(widths.slice(at, at + cell.colSpan));
    if (width) setWidth(cell, width);
    at += cell.colSpan;
  }
}

/**
 * Gives a new table the looks of the one that it is made of. `side` is where that stands.
 * @param {HTMLTableElement} from
 * @param {HTMLTableElement} to
 * @param {string} side
 */
export function setTableLooks(from, to, side) {
  const border = Number(from.getAttribute('border') ?? (from.hasAttribute('border') ? 1 : 0));
  if (border) to.setAttribute('border', String(border));
  if (!dom.writesStyles()) {
    for (const name of ['cellpadding', 'cellspacing']) {
      const value = from.getAttribute(name);
      if (value !== null) to.setAttribute(name, value);
    }
  }
  setWidths(from, to);
  const isAuto = from.style.marginLeft === 'auto' && from.style.marginRight === 'auto';
  if (side !== 'center' && !isAuto && sideOf(from) !== 'center') return;
  if (!dom.writesStyles()) to.setAttribute('align', 'center');
  else for (const name of ['margin-left', 'margin-right']) putDeclaration(to, name, 'auto');
}

// Where the content of a cell or row stands: in the middle without a word. Spreadsheets say of
// every cell in its style that it stands below.
/** @param {HTMLElement} element */
function heightOf(element) {
  const said = element.getAttribute('valign')?.toLowerCase() ?? '';
  if (/^(top|bottom)$/.test(said)) return said;
  return element.style.verticalAlign === 'top' ? 'top' : '';
}
/**
 * @param {Element} element
 * @param {string} place
 */
function setHeight(element, place) {
  if (dom.writesStyles()) putDeclaration(element, 'vertical-align', place);
  else element.setAttribute('valign', place);
}
// What is said of new cells, for their row.
/** @type {WeakMap<Element, string>} */
const heights = new WeakMap();

/**
 * @param {HTMLTableCellElement} from
 * @param {HTMLTableCellElement} to
 */
export function setCellLooks(from, to) {
  for (const name of ['colspan', 'rowspan']) {
    const value = from.getAttribute(name);
    if (Number(value) > 1) to.setAttribute(name, value);
  }
  const side = sideOf(from);
  const isUsual = side === (from.tagName === 'TH' ? 'center' : 'left');
  if (side && !isUsual) setSide(to, side);
  heights.set(to, heightOf(from));
}

/**
 * Says of a row what all of its cells say.
 * @param {HTMLElement} from
 * @param {Element} to
 */
export function setRowLooks(from, to) {
  const cells = [...to.children];
  const said = new Set(cells.map((cell) => heights.get(cell) || heightOf(from)));
  if (said.size === 1 && cells.length) {
    const [place] = said;
    if (place) setHeight(to, place);
    return;
  }
  for (const cell of cells) {
    const place = heights.get(cell) || heightOf(from);
    if (place) setHeight(cell, place);
  }
}
