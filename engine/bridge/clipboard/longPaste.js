// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Work on what is pasted that takes long: it is done in slices between which the page answers.
// Until it ends the page takes no input; Escape stops it, and nothing has changed then.
import { host } from '../talk/host.js';

// Markup of this length is cleaned in a fraction of a second.
const shortMarkup = 300000;
/**
 * True for markup that is to be cleaned in slices.
 * @param {string} html
 */
export const isLong = (html) => html.length > shortMarkup;

// How long a slice is, in milliseconds: as an animation's frame takes.
const slice = 16;
const inputs = ['keydown', 'beforeinput', 'mousedown', 'paste', 'cut', 'drop', 'dragstart'];

/** @type {((stop: boolean) => void) | null} */
let end = null;
/** True while such work goes on. */
export const isPasting = () => end !== null;

/** @param {Event} event */
function refuse(event) {
  event.preventDefault();
  event.stopImmediatePropagation();
  if (/** @type {KeyboardEvent} */ (event).key === 'Escape') end?.(true);
}

/**
 * Does the work, and then `use` with what it answers, unless it was stopped.
 * @template T
 * @param {Generator<number, T, void>} work
 * @param {(result: T) => void} use
 */
export function doSlowly(work, use) {
  const { documentElement } = document;
  const { port1: from, port2: to } = new MessageChannel();
  let told = -1;
  /** @param {boolean} stop */
  end = (stop) => {
    for (const type of inputs) removeEventListener(type, refuse, true);
    from.close();
    end = null;
    if (stop) host()?.pasteStopped();
    else host()?.pasting(100);
  };
  for (const type of inputs) addEventListener(type, refuse, true);
  const nextSlice = () => {
    if (!isPasting()) return;
    // The program has put another document in this one's place.
    if (document.documentElement !== documentElement) return end(true);
    const until = performance.now() + slice;
    for (let step = work.next(); ; step = work.next()) {
      if (step.done) {
        end(false);
        use(/** @type {T} */ (step.value));
        return;
      }
      const percent = Math.floor(10 * Number(step.value)) * 10;
      if (percent !== told) host()?.pasting(percent);
      told = percent;
      if (performance.now() > until) break;
    }
    to.postMessage(null);
  };
  from.onmessage = nextSlice;
  to.postMessage(null);
}
