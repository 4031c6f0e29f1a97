// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Formats chosen at a caret: they wait for the text that is typed there.
import * as inline from './inline.js';
import * as selection from '../page/selection.js';

const chosen = new Map();
let chosenAt = null;  // where the formats were chosen

export const has = (name) => chosen.has(name);
export const get = (name) => chosen.get(name);
export function set(name, value) {
  chosen.set(name, value);
  chosenAt = selection.points();
}
export function clear() { chosen.clear(); }

// The caret went elsewhere: what was chosen is forgotten.
export function selectionMoved() {
  if (chosen.size && !selection.samePoints(chosenAt, selection.points())) chosen.clear();
}

// The text is there: puts the formats on it and the caret at its end.
export function typed(text) {
  if (!chosen.size || !text) return;
  const { anchorNode: node, anchorOffset: end } = selection.points();
  const start = end - text.length;
  if (node.nodeType !== Node.TEXT_NODE || start < 0) return;
  document.getSelection().setBaseAndExtent(node, start, node, end);
  for (const [name, value] of chosen) inline.apply(name, value, selection.range());
  document.getSelection().collapseToEnd();
  chosen.clear();
}

// A new line keeps what was chosen.
export function moved() { if (chosen.size) chosenAt = selection.points(); }
