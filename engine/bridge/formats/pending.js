// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Formats that were chosen at a caret. They are *pending* until text is typed there, and forgotten
// when the caret goes elsewhere.
import * as inline from './inline.js';
import * as selection from '../page/selection.js';

/** @type {Map<string, FormatValue>} their values by their names */
const chosen = new Map();
/** @type {SelectionPoints | null} the selection that they wait at */
let chosenAt = null;

/** @param {string} name */
export const has = (name) => chosen.has(name);
/** @param {string} name */
export const get = (name) => chosen.get(name);
/**
 * Has text that is typed at the caret next get a format.
 * @param {string} name
 * @param {FormatValue} value
 */
export function set(name, value) {
  chosen.set(name, value);
  chosenAt = selection.points();
}
/** Forgets all of them. */
export function clear() { chosen.clear(); }

/** Forgets them where the selection is another one than when they were chosen. */
export function clearIfMoved() {
  if (chosen.size && !selection.samePoints(chosenAt, selection.points())) chosen.clear();
}

/**
 * Puts them on the text before the caret, and the caret behind it; they are not pending any more.
 * @param {string | null} text what was typed
 */
export function applyToTyped(text) {
  if (!chosen.size || !text) return;
  const { anchorNode: node, anchorOffset: end } = selection.points();
  const start = end - text.length;
  if (node.nodeType !== Node.TEXT_NODE || start < 0) return;
  document.getSelection().setBaseAndExtent(node, start, node, end);
  for (const [name, value] of chosen) inline.apply(name, value, selection.range());
  document.getSelection().collapseToEnd();
  chosen.clear();
}

/** Has them wait at the caret where it is now: input such as Enter moves it and keeps them. */
export function moveToCaret() { if (chosen.size) chosenAt = selection.points(); }
