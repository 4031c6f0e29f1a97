// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What the page tells the program without being asked: the state after each change, and the mirror
// (the changes of the document's text) in idle time.
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';
import { changes } from './changes.js';
import { host } from './host.js';
import { flushPush, isHidden, pushBy, schedulePush } from './pace.js';
import { shownGeneration } from './replace.js';
import { state } from './state.js';

// Milliseconds. The mirror is written in idle time when no change came for the pause; during steady
// work when the lag is over, so that little is lost if the page's process ends. Keys that come
// faster than they are shown leave no idle time, nor time for anything that the program asks: the
// mirror goes with the state then.
const mirrorPause = 200;
const mirrorLag = 500;

let version = 0;          // counts pushes
let dirty = true;         // the content changed since the last push
let mirrorWaits = false;  // until there is idle time
let changedFirst = 0;     // when, since the mirror was written
let changedLast = 0;
/** @type {SelectionPoints | null} the selection at the last push */
let pushedPoints = null;

const whenIdle = () => requestIdleCallback(writeMirrorAfterPause, { timeout: mirrorPause });

function scheduleMirror() {
  changedLast = performance.now();
  if (isHidden()) {
    writeMirror(true);
  } else if (!mirrorWaits) {
    changedFirst = changedLast;
    mirrorWaits = true;
    whenIdle();
  } else if (changedLast - changedFirst >= mirrorLag) {
    writeMirror(false);
  }
}
/** @param {IdleDeadline} deadline */
function writeMirrorAfterPause(deadline) {
  if (!mirrorWaits) return;
  const now = performance.now();
  const busy = now - changedLast < mirrorPause && now - changedFirst < mirrorLag;
  if (busy && !isHidden()) whenIdle();
  else writeMirror(!deadline.didTimeout);
}
// `idle`: there was time left, so that all changes are on the screen.
/** @param {boolean} idle */
function writeMirror(idle) {
  mirrorWaits = false;
  host().pushMirror(JSON.stringify({ idle, ...changes() }));
}

function push() {
  if (!host()) return false;
  history.settle();
  version += 1;
  host().pushState(JSON.stringify({ version, dirty, generation: shownGeneration(), ...state() }));
  if (dirty) scheduleMirror();
  dirty = false;
  pushedPoints = selection.points();
  return true;
}
pushBy(push);

/** Has the state pushed after the selection moved, unless the last push had that selection. */
export function selectionMoved() {
  const known = pushedPoints && selection.samePoints(pushedPoints, selection.points());
  if (dirty || !known) schedulePush();
}

/** Has the state pushed, and the mirror written, after the content changed. */
export function contentChanged() {
  dirty = true;
  schedulePush();
}

// A page that is hidden has neither frames nor idle time: what waits for them is told at once.
function flushWhenHidden() {
  if (!isHidden()) return;
  flushPush();
  if (mirrorWaits) writeMirror(true);
}

/** Begins to listen on a document that was loaded. */
export function listenToVisibility() {
  document.addEventListener('visibilitychange', flushWhenHidden);
}
