// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// When the state is pushed to the program. After a rest that is as soon as the work at hand is
// done, so that the toolbar does not lag a frame behind the key; then once an animation frame at
// most. A hidden page has no animation frames.
import * as overlay from '../objects/overlay.js';

const frame = 16;  // milliseconds

let waiting = false;
let lastPush = -Infinity;
let send = () => false;

/**
 * Sets what is called to push.
 * @param {() => boolean} sender answers whether anything was sent
 */
export function pushBy(sender) { send = sender; }

/** True for a page that nobody sees: it has no animation frames. */
export const isHidden = () => document.visibilityState === 'hidden';

function push() {
  waiting = false;
  if (send()) lastPush = performance.now();
}

/** Has the state pushed soon, once, and what is drawn over the page drawn anew. */
export function schedulePush() {
  overlay.scheduleRedraw();
  if (waiting) return;
  waiting = true;
  const rested = performance.now() - lastPush > frame;
  if (rested || isHidden()) queueMicrotask(push);
  else requestAnimationFrame(push);
}

/** Pushes at once where a push is waiting for a frame. */
export function flushPush() { if (waiting) push(); }
