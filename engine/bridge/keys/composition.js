// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Input methods. What one writes is not final until it ends; it replaces what it has written
// before, and all of that is one input.
import * as pending from '../formats/pending.js';
import * as history from '../page/history.js';
import { work } from '../page/working.js';

let composing = false;

/** True while an input method has written something that is not final yet. */
export const isComposing = () => composing;

/** True where the input belongs to a composition that has begun already; begins one otherwise. */
export function continues({ inputType }) {
  if (!/Composition/.test(inputType)) return false;
  const began = composing;
  composing = true;
  return began;
}

export function compositionEnd({ data }) {
  composing = false;
  work(() => pending.applyToTyped(data));
  history.arrive();
  // An abandoned one leaves nothing behind.
  if (!data) history.finish();
}
