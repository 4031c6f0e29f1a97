// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The selection as commands look at it, and what is read of all that it holds.
import * as selection from '../page/selection.js';
import { unitsIn } from '../page/units.js';
import { chosenIn } from '../tables/chosen.js';
import { Status } from './vocabulary.js';

/**
 * The selection for commands: each part is read when it is asked for, and once.
 * @returns {View}
 */
export const readView = () => {
  const range = selection.range();
  /** @type {<T>(read: () => T) => () => T} */
  const once = (read) => {
    /** @type {ReturnType<typeof read>} */
    let known;
    return () => (known ??= read());
  };
  return {
    range,
    object: selection.control(range),
    elements: once(() => {
      const texts = selection.textsIn(range, selection.leafLimit);
      return [...new Set(texts.map((text) => text.parentElement))];
    }),
    units: once(() => unitsIn(range, selection.leafLimit)),
    chosen: once(() => chosenIn(range)),
  };
};

// The next two stop reading as soon as the answer is known: a selection may be all of a long page.

/**
 * Latched where all of the subjects fit, Ninched where some do, else Enabled.
 * @template T
 * @param {Iterable<T>} subjects
 * @param {(subject: T) => unknown} fits
 */
export function statusOfAll(subjects, fits) {
  let some = false;
  let all = true;
  for (const subject of subjects) {
    if (fits(subject)) some = true;
    else all = false;
    if (some && !all) return Status.Ninched;
  }
  return some ? Status.Latched : Status.Enabled;
}
/**
 * The value that all of the subjects have, or an empty text.
 * @template T, V
 * @param {Iterable<T>} subjects
 * @param {(subject: T) => V} read
 * @param {(one: V, other: V) => boolean} [same]
 */
export function commonValue(subjects, read, same = (one, other) => one === other) {
  let first = null;
  for (const subject of subjects) {
    const value = read(subject);
    first ??= value;
    if (!same(value, first)) return '';
  }
  return first ?? '';
}
