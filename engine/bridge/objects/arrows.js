// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What arrow keys do to objects.
import { extendCells } from './cellGestures.js';
import { gridStep, snaps } from './grid.js';
import * as objects from './objects.js';
import { hasAdditions } from '../page/additions.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';

/** @type {Map<string, [x: number, y: number]>} */
const steps = new Map([
  ['ArrowLeft', [-1, 0]], ['ArrowRight', [1, 0]], ['ArrowUp', [0, -1]], ['ArrowDown', [0, 1]],
]);

// The position of the next line of the grid in a direction: -1, 1, or 0 for where it is.
/**
 * @param {number} pixels
 * @param {number} direction
 */
function nextLine(pixels, direction) {
  if (!direction) return pixels;
  const lines = pixels / gridStep;
  return (direction > 0 ? Math.floor(lines) + 1 : Math.ceil(lines) - 1) * gridStep;
}

// Moves an object by a key: to the next line of the grid, or by a pixel where `fine`. Moves in a
// row are one step of the history.
/**
 * @param {HTMLElement} object
 * @param {[x: number, y: number]} step
 * @param {boolean} fine
 */
function nudge(object, [x, y], fine) {
  const before = objects.measure(object);
  const { left, top } = before;
  const change = !fine
    ? { dx: nextLine(left, x) - left, dy: nextLine(top, y) - top } : { dx: x, dy: y };
  history.expect('nudge', true);
  objects.writeChange(object, before, change);
  history.arrive();
}

// The object that comes next on one side of the caret, within its cell; null where text comes next.
/**
 * @param {PlainRange} caret
 * @param {boolean} forward
 */
function objectBeside({ startContainer: node, startOffset: offset }, forward) {
  const side = forward ? 'nextSibling' : 'previousSibling';
  if (dom.isText(node) && (forward ? offset < node.length : offset > 0)) return null;
  let beside = dom.shownFrom(node.childNodes[forward ? offset : offset - 1] ?? null, side);
  for (let at = node; !beside && !dom.isCell(at); at = at.parentNode) {
    beside = dom.neighbour(at, side);
  }
  while (beside && !dom.isObject(beside)) {
    if (!dom.isInline(beside)) return null;
    const within = [...beside.childNodes].filter(dom.isShown);
    beside = within.at(forward ? 0 : -1) ?? null;
  }
  return beside;
}

// Selects the object that comes next in an arrow key's direction; false where none does.
/**
 * @param {Range} range
 * @param {string} key
 */
function extendOver(range, key) {
  const { direction } = getComputedStyle(selection.element());
  const forwards = ['ArrowDown', direction === 'ltr' ? 'ArrowRight' : 'ArrowLeft'];
  const forward = forwards.includes(key);
  const object = objectBeside(range, forward);
  if (!object) return false;
  const index = selection.indexOf(object);
  const [from, to] = forward ? [index, index + 1] : [index + 1, index];
  const { parentNode } = object;
  document.getSelection().setBaseAndExtent(parentNode, from, parentNode, to);
  return true;
}

/**
 * Moves the selected object; with Shift, extends the selection by an object or by cells. Does
 * nothing for other keys.
 * @param {KeyboardEvent} event
 */
export function arrow(event) {
  const { key, ctrlKey, shiftKey } = event;
  if (!steps.has(key)) return;
  const range = selection.range();
  const object = selection.control(range);
  if (shiftKey) {
    const isTaken = () => (range?.collapsed && extendOver(range, key)) || extendCells(key);
    if (!ctrlKey && isTaken()) event.preventDefault();
  } else if (object && objects.isMovable(object)) {
    event.preventDefault();
    // Ctrl does what the arrow alone does not.
    nudge(object, steps.get(key), snaps() ? ctrlKey : !ctrlKey || !hasAdditions());
  }
}
