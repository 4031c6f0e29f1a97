// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Cells as they are made and changed: a new one like one that is there, its spans, its content.
import { takeDeclaration } from '../formats/declarations.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import { dropLine } from '../page/sourceLines.js';

/**
 * @param {Element} element
 * @param {string} name
 */
export function takeAttribute(element, name) {
  if (!element.hasAttribute(name)) return;
  history.attributesOf(element);
  element.removeAttribute(name);
}

/**
 * Writes a cell's span; one is said by no attribute.
 * @param {HTMLTableCellElement} cell
 * @param {'rowspan' | 'colspan'} name
 * @param {number} span
 */
export function setSpan(cell, name, span) {
  if ((name === 'rowspan' ? cell.rowSpan : cell.colSpan) === span) return;
  if (span === 1) takeAttribute(cell, name);
  else cell.setAttribute(name, String(span));
}

/** @param {HTMLElement} element */
export function takeWidth(element) {
  takeAttribute(element, 'width');
  if (element.style.width) takeDeclaration(element, 'width');
}

// What is a cell's own and not of those like it. A heading of one row or column heads that.
const own = ['rowspan', 'colspan', 'headers', 'abbr'];
/** @param {HTMLTableCellElement} cell */
const hasOwnScope = (cell) => cell.tagName !== 'TH' || !/^(row|col)$/i.test(cell.scope);
/**
 * An empty cell like the given one, with one slot.
 * @param {HTMLTableCellElement} cell
 * @param {string} [tag]
 * @returns {HTMLTableCellElement}
 */
export function cellLike(cell, tag = cell.tagName) {
  const made = dom.rename(dom.twin(cell), tag);
  for (const name of own) made.removeAttribute(name);
  if (hasOwnScope(made)) made.removeAttribute('scope');
  made.append(dom.create('BR'));
  return made;
}

/**
 * A cell is no heading any more: the table's cells that name it as theirs name another one.
 * @param {Element} table
 * @param {string} id
 * @param {string} instead its id; empty for none
 */
export function exchangeHeading(table, id, instead) {
  for (const cell of table.querySelectorAll('[headers]')) {
    const names = cell.getAttribute('headers').split(/\s+/).filter(Boolean);
    if (!names.includes(id)) continue;
    const left = new Set(names.map((name) => (name === id ? instead : name)).filter(Boolean));
    if (left.size) cell.setAttribute('headers', [...left].join(' '));
    else takeAttribute(cell, 'headers');
  }
}

/**
 * Takes a row, cell, section or column out, with the line of the source that it stands on.
 * @param {Element} element
 */
export function takeOut(element) {
  const table = element.closest('TABLE');
  dropLine(element);
  element.remove();
  const ids = [element, ...element.querySelectorAll('[id]')].map(({ id }) => id).filter(Boolean);
  for (const id of ids) exchangeHeading(table, id, '');
}

/**
 * True for a cell that shows nothing but an empty line.
 * @param {Element} cell
 */
export const isEmpty = (cell) => dom.isHollow(cell) ||
  (/^[\s\u00a0]*$/.test(cell.textContent) && !cell.querySelector('img, table, hr, input, object'));
