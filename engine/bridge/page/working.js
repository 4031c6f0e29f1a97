// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Whether the bridge is at work on the document: what the engine reports then is no input of the
// person's.

let working = false;

export const isWorking = () => working;

/**
 * Tells that the bridge is at work while it calls `change`; answers what that answers.
 * @template T
 * @param {() => T} change
 * @returns {T}
 */
export function work(change) {
  working = true;
  try {
    return change();
  } finally {
    working = false;
  }
}
