// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The pace of the pushes of state. After a rest the push follows as soon as the work at hand is
// done, so that the toolbar does not lag a frame behind the key; then there is one an animation
// frame at most. A hidden page has no frames.
import * as overlay from '../objects/overlay.js';

const frame = 16;  // milliseconds

let waiting = false;
let lastPush = -Infinity;
let send = () => false;

// Says what a push is: a function that tells whether anything was sent.
export function pushBy(sender) { send = sender; }

export const isHidden = () => document.visibilityState === 'hidden';

function push() {
  waiting = false;
  if (send()) lastPush = performance.now();
}

export function schedulePush() {
  overlay.scheduleRedraw();
  if (waiting) return;
  waiting = true;
  const rested = performance.now() - lastPush > frame;
  if (rested || isHidden()) queueMicrotask(push);
  else requestAnimationFrame(push);
}

// Pushes at once where a push is waiting for a frame.
export function flushPush() { if (waiting) push(); }
