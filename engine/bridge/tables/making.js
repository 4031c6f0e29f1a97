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

// What is a cell's own and not of those like it.
const own = ['rowspan', 'colspan', 'headers', 'abbr', 'scope'];
/**
 * An empty cell like the given one, with one slot.
 * @param {HTMLTableCellElement} cell
 * @param {string} [tag]
 * @returns {HTMLTableCellElement}
 */
export function cellLike(cell, tag = cell.tagName) {
  const made = dom.rename(dom.twin(cell), tag);
  for (const name of own) made.removeAttribute(name);
  made.append(dom.create('BR'));
  return made;
}

/**
 * Takes a row, cell, section or column out, with the line of the source that it stands on.
 * @param {Element} element
 */
export function takeOut(element) {
  dropLine(element);
  element.remove();
}

/**
 * True for a cell that shows nothing but an empty line.
 * @param {Element} cell
 */
export const isEmpty = (cell) => dom.isHollow(cell) ||
  (/^[\s\u00a0]*$/.test(cell.textContent) && !cell.querySelector('img, table, hr, input, object'));
