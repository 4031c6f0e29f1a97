// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Input methods. While one composes it replaces its own text again and again; all of that is one
// input, and is final when the composition ends.
import * as pending from '../formats/pending.js';
import * as history from '../page/history.js';
import { work } from '../page/working.js';

let composing = false;

/** True while an input method has written something that is not final yet. */
export const isComposing = () => composing;

/**
 * True for input of a composition that goes on. The first input of one answers false, and begins
 * it.
 * @param {InputEvent} event a beforeinput event
 */
export function continuesComposition({ inputType }) {
  if (!/Composition/.test(inputType)) return false;
  const began = composing;
  composing = true;
  return began;
}

/**
 * Ends the composition: pending formats go on its text.
 * @param {CompositionEvent} event
 */
export function endComposition({ data }) {
  composing = false;
  work(() => pending.applyToTyped(data));
  history.arrive();
  // One that was given up leaves no text, and no step of the history.
  if (!data) history.finish();
}
