// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Guides: where the edges and the middle of an object that is moved are in line with those of
// another one that has a place of its own too.
import * as boxes from './boxes.js';
import { snaps } from './grid.js';
import { movablesBeside } from './layers.js';
import { hasAdditions } from '../page/additions.js';

/** @typedef {{ x: number[], y: number[] }} Lines positions in the viewport */

const near = 6;      // pixels at which an object is drawn to a guide
const exact = 0.75;  // pixels that are no difference

/**
 * The positions of a box's edges and middle.
 * @param {Box} box
 * @returns {Lines}
 */
const linesOf = ({ left, top, right, bottom }) =>
  ({ x: [left, (left + right) / 2, right], y: [top, (top + bottom) / 2, bottom] });

/**
 * The lines that an object can be put in line with.
 * @param {HTMLElement} object
 * @returns {Lines}
 */
export function linesBeside(object) {
  /** @type {Lines} */
  const all = { x: [], y: [] };
  if (!hasAdditions()) return all;
  for (const other of movablesBeside(object)) {
    const box = boxes.boxOf(other);
    if (!box.width || !box.height) continue;
    const { x, y } = linesOf(box);
    all.x.push(...x);
    all.y.push(...y);
  }
  return all;
}

// How far the nearest line is from one of the positions; null where none is within `most`.
/**
 * @param {number[]} own
 * @param {number[]} lines
 * @param {number} most
 */
function nearest(own, lines, most) {
  let found = null;
  for (const at of own) {
    for (const line of lines) {
      const by = line - at;
      if (Math.abs(by) <= (found === null ? most : Math.abs(found))) found = by;
    }
  }
  return found;
}

/**
 * What the guides do to an object whose box would be moved to `box`: how far off they draw it while
 * it snaps, null in a direction where none does.
 * @param {Box} box
 * @param {Lines} lines
 */
export function drawnBy(box, lines) {
  const own = linesOf(box);
  const most = snaps() ? near : -1;
  return { x: nearest(own.x, lines.x, most), y: nearest(own.y, lines.y, most) };
}

/**
 * The lines that an object is in line with, where they are in the viewport now.
 * @param {Element} object
 * @param {Lines | null} lines as they were
 * @param {Position} scroll how far the elements around the object were scrolled then
 * @returns {Lines}
 */
export function guidesInSight(object, lines, scroll) {
  if (!lines) return { x: [], y: [] };
  const now = boxes.scrolled(object);
  const by = { x: now.x - scroll.x, y: now.y - scroll.y };
  const own = linesOf(boxes.boxOf(object));
  /** @param {'x' | 'y'} axis */
  const met = (axis) => [...new Set(lines[axis])].map((line) => line - by[axis])
    .filter((line) => own[axis].some((at) => Math.abs(at - line) <= exact));
  return { x: met('x'), y: met('y') };
}
