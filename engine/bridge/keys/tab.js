// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Tab: in a table it goes from cell to cell, in a list it moves the item one level in or out;
// elsewhere it does nothing.
import { listTagOf } from '../blocks/items.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';
import { unitsIn } from '../page/units.js';
import { exec } from '../talk/commands.js';
import { Command } from '../talk/vocabulary.js';

function cellAtCaret() {
  const range = selection.range();
  return range && dom.ancestor(range.startContainer, (node) => /^(TD|TH)$/.test(node.tagName));
}

/** @param {Element} cell */
function enterCell(cell) {
  const leaf = dom.firstLeaf(cell);
  if (dom.isText(leaf) || leaf === cell) selection.setCaret(leaf, 0);
  else selection.setCaret(leaf.parentNode, selection.indexOf(leaf));
}

// Adds an empty row like the given one behind it; answers its first cell.
/** @param {HTMLTableRowElement} row */
function addRow(row) {
  const added = dom.twin(row);
  for (const cell of row.cells) {
    const copy = dom.twin(cell);
    copy.removeAttribute('rowspan');
    copy.append(dom.create('BR'));
    added.append(copy);
  }
  row.after(added);
  return added.cells[0];
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
  else if (!backwards) history.step('addRow', () => enterCell(addRow(cell.parentNode)));
}
