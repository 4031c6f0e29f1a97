// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What the program shows of the selection: the status of every command, the values of five queries,
// the kind of selection and the element at its start.
import { linkOf } from '../formats/links.js';
import * as selection from '../page/selection.js';
import { commands as table, queryValue, readView, statusOf } from './commands.js';
import { pathTold } from './path.js';
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
    picture: pictureTold(view.object), path: pathTold() };
};
