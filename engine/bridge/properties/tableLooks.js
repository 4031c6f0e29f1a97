// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What reaches from a table into its cells: border, padding and the gaps between them. Old pages
// say each by one attribute of the TABLE; styles say it of the table and of every cell.
import { eitherWay, inPixels, put, said, widthOfLine, withoutPixels } from './fields.js';

/**
 * @param {AnyNode} table
 * @returns {AnyNode[]}
 */
const cellsOf = (table) => [...table.rows].flatMap((row) => [...row.cells]);

// What all cells say alike; empty where they do not.
/**
 * @param {AnyNode} table
 * @param {string} property
 */
function saidByCells(table, property) {
  const values = new Set(cellsOf(table).map((cell) => said(cell, property)));
  return values.size === 1 ? [...values][0] : '';
}

// What a cell gets along with the table's border.
const OfCells = '1px solid';
const widthOf = (/** @type {AnyNode} */ table) => widthOfLine(said(table, 'border'));
export const border = eitherWay('border', widthOf, (table, value) => {
  const width = value === '0' ? '' : value;
  put(table, 'border', width && `${inPixels(width)} solid`);
  for (const cell of cellsOf(table)) {
    if (said(cell, 'border') === (width ? '' : OfCells)) put(cell, 'border', width && OfCells);
  }
});

export const padding = eitherWay('cellpadding',
  (table) => withoutPixels(saidByCells(table, 'padding')),
  (table, value) => cellsOf(table).forEach((cell) => put(cell, 'padding', inPixels(value))));

const collapses = (/** @type {AnyNode} */ table) =>
  said(table, 'border-collapse').toLowerCase() === 'collapse';
export const gaps = eitherWay('cellspacing',
  (table) => (collapses(table) ? '0' : withoutPixels(said(table, 'border-spacing'))),
  (table, value) => {
    if (value === '0' || collapses(table)) {
      put(table, 'border-collapse', value === '0' ? 'collapse' : '');
    }
    put(table, 'border-spacing', value === '0' ? '' : inPixels(value));
  });
