// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Tab: in a table it goes from cell to cell, in a list it moves the item one level in or out;
// elsewhere it does nothing.
import { listTagOf } from '../blocks/items.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';
import { enterCell } from '../tables/deeds.js';
import { appendRow } from '../tables/rows.js';
import { unitsIn } from '../page/units.js';
import { exec } from '../talk/commands.js';
import { Command } from '../talk/vocabulary.js';

function cellAtCaret() {
  const range = selection.range();
  return range && dom.ancestor(range.startContainer, (node) => /^(TD|TH)$/.test(node.tagName));
}

// The cell before (-1) or behind (1) a cell; undefined at the table's ends.
/**
 * @param {AnyNode} cell
 * @param {number} step
 */
function cellBeside(cell, step) {
  const row = cell.parentNode;
  const { rows } = cell.closest('TABLE');
  let beside = row.cells[cell.cellIndex + step];
  for (let index = row.rowIndex + step; !beside && rows[index]; index += step) {
    beside = [...rows[index].cells].at(step < 0 ? -1 : 0);
  }
  return beside;
}

/**
 * Does what Tab does. Behind the last cell it adds a row, which is one step of the history.
 * @param {boolean} backwards Shift+Tab
 */
export function pressTab(backwards) {
  const cell = cellAtCaret();
  if (!cell) {
    const [unit] = unitsIn(selection.range());
    if (unit && listTagOf(unit)) exec(backwards ? Command.Outdent : Command.Indent);
    return;
  }
  const next = cellBeside(cell, backwards ? -1 : 1);
  if (next) enterCell(next);
  else if (!backwards) history.step('addRow', () => enterCell(appendRow(cell.closest('TABLE'))[0]));
}
