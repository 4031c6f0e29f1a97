// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The tint over the cells that are selected as such: one box over their rectangle.
import * as boxes from './boxes.js';
import * as overlay from './overlay.js';
import { clearTint } from './tint.js';
import * as selection from '../page/selection.js';

/** @param {string} colour */
const filled = (colour) => `linear-gradient(${colour}, ${colour})`;
const tint = filled('rgba(26, 95, 180, 0.25)');
const line = filled('#1a5fb4');

/** @param {Element[]} cells */
function layersOver(cells) {
  const all = cells.map(boxes.boxOf);
  /** @param {'left' | 'top' | 'right' | 'bottom'} side */
  const sides = (side) => all.map((box) => box[side]);
  const [x, y] = [Math.min(...sides('left')), Math.min(...sides('top'))].map(Math.floor);
  const width = Math.ceil(Math.max(...sides('right'))) - x;
  const height = Math.ceil(Math.max(...sides('bottom'))) - y;
  const box = { image: line, x, y, width, height };
  return [
    { ...box, height: 1 }, { ...box, y: y + height - 1, height: 1 },
    { ...box, width: 1 }, { ...box, x: x + width - 1, width: 1 }, { ...box, image: tint },
  ];
}

overlay.addRedraw(() => {
  const range = selection.range();
  const cells = range && !range.collapsed ? selection.cellsIn(range) : null;
  clearTint('cells', cells ? cells[0].closest('TABLE') : null);
  overlay.drawInView('cells', cells ? layersOver(cells) : []);
});
