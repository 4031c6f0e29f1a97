// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What the properties dialogs read and change. A value that the subject's elements have not in
// common is the empty text.
import { subjectOf } from './subjects.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';
import { resolveAll } from '../page/standIns.js';
import { work } from '../page/working.js';
import { readView } from '../talk/view.js';
import { schedulePush } from '../talk/pace.js';

// What a dialog has changed since it asked for its properties: the step, and the values.
/** @type {{ step: Step | null, name: string, changed: Record<string, string> } | null} */
let applied = null;
// The last step before the page was converted since then, by another document in its place.
/** @type {{ last: Step | null } | null} */
let converted = null;

// The step that the dialog has made; null where there is none, or another one came behind it.
function ownStep() {
  const last = history.lastStep();
  const isOwn = converted ? last !== converted.last && last?.kind === 'replace'
    : last === applied?.step;
  return isOwn ? last : null;
}

/**
 * The properties of a subject ('page', 'image', 'table', 'cell', 'link', 'fonts', 'element') by
 * their names; none where it is not there. `number` is that of the element of a path.
 * @param {string} name
 * @param {number} [number]
 * @returns {Record<string, string>}
 */
export function properties(name, number) {
  applied = null;
  converted = null;
  if (!dom.isEditable()) return {};
  const { find, fields } = subjectOf(name);
  const elements = find(readView(), number);
  if (!elements.length) return {};
  return Object.fromEntries(Object.entries(fields).map(([field, { read }]) => {
    const values = new Set(elements.map((element) => read(element)));
    return [field, values.size === 1 ? [...values][0] : ''];
  }));
}

/**
 * @param {string} name
 * @param {Record<string, string>} changed
 * @param {number} number
 */
function write(name, changed, number) {
  const view = readView();
  const { find, fields } = subjectOf(name);
  let elements = find(view, number);
  if (!elements.length) return;
  if (!view.range?.collapsed) resolveAll();
  const saved = selection.save();
  for (const [field, value] of Object.entries(changed)) {
    const { write: put } = fields[field] ?? {};
    if (put) elements = elements.map((element) => put(element, value) ?? element);
  }
  if (name !== 'fonts') selection.restore(saved);
}

/**
 * Changes properties of a subject, as one step of the history; those that are not given stay. What
 * a dialog changes more than once is one step too.
 * @param {string} name
 * @param {Record<string, string>} changed
 * @param {number} [number]
 */
export function setProperties(name, changed, number) {
  if (!dom.isEditable()) return;
  work(() => {
    const own = ownStep();
    let wanted = changed;
    if (own && !converted && applied.name === name) {
      history.undo();
      wanted = { ...applied.changed, ...changed };
    }
    const isChanged = history.step('properties', () => write(name, wanted, number));
    if (own && converted) history.join(own);
    else applied = isChanged ? { step: history.lastStep(), name, changed: wanted } : null;
  });
  schedulePush();
}

/**
 * Takes back what a dialog has changed, for a conversion of the page that has it too: that is one
 * step along with what the dialog changes then.
 */
export function takeBackProperties() {
  if (ownStep()) work(history.undo);
  converted = { last: history.lastStep() };
}
