// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What the program shows of the selection: the status of every command, the values of five queries,
// the kind of selection and the element at its start.
import { linkOf } from '../formats/links.js';
import { subjectOf } from '../objects/layers.js';
import * as objects from '../objects/objects.js';
import { hasAdditions } from '../page/additions.js';
import { placeOfAsked } from '../page/asked.js';
import * as selection from '../page/selection.js';
import { cellsSelected } from '../tables/chosen.js';
import { commands as table, queryValue, statusOf } from './commands.js';
import { pathNumbers, pathTold } from './path.js';
import { readView } from './view.js';
import { Command } from './vocabulary.js';

const values = {
  fontName: Command.GetFontName,
  fontSize: Command.GetFontSize,
  foreColor: Command.GetForeColor,
  backColor: Command.GetBackColor,
  blockFormat: Command.GetBlockFormat,
};

/** @param {Element | null} found */
function told(found) {
  if (!found) return { tag: '', attributes: [] };
  const attributes = [...found.attributes].map(({ name, value }) => [name, value]);
  return { tag: found.tagName.toUpperCase(), attributes };
}

/** @param {View} view */
function kind({ range, object }) {
  if (object) return 'Control';
  return !range || range.collapsed ? 'None' : 'Text';
}

// A selected picture: what its file has and what the page shows of it, in pixels.
/** @param {AnyNode} object */
function pictureTold(object) {
  if (object?.tagName !== 'IMG') return null;
  const { naturalWidth, naturalHeight, width, height } = object;
  return { pixels: [naturalWidth, naturalHeight], shown: [width, height] };
}

// The rectangle of the cells that are selected as such: its first column and row, and its last.
/** @param {View} view */
function cellsTold({ range }) {
  if (!range || range.collapsed || !selection.cellsIn(range)) return [];
  const { top, left, bottom, right } = cellsSelected(range).rectangle;
  return [left, top, right, bottom];
}

// Where an object out of the flow is, and how large, in its pixels.
/** @param {View} view */
function placeTold(view) {
  const object = subjectOf(view);
  if (!object || !hasAdditions() || !objects.isMovable(object)) return [];
  const { left, top, width, height } = objects.measure(object);
  return [left, top, width, height].map(Math.round);
}

/**
 * The state of the selection now; push.js adds the rest of it.
 * @returns {Omit<State, 'version' | 'dirty' | 'generation'>}
 */
export const state = () => {
  const view = readView();
  /** @type {Record<number, number>} */
  const commands = {};
  for (const number of table.keys()) commands[number] = statusOf(number, view);
  const read = Object.entries(values).map(([name, number]) => [name, queryValue(number, view)]);
  return { commands, ...Object.fromEntries(read), selection: kind(view),
    element: told(selection.element()), link: told(linkOf(view)),
    picture: pictureTold(view.object), cells: cellsTold(view),
    place: placeTold(view), asked: placeOfAsked(), path: pathTold(), pathNumbers: pathNumbers() };
};
