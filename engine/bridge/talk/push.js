// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What the program is told of by the page itself: the state after each change, the document's text
// in idle time.
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';
import { changes } from './changes.js';
import { host } from './host.js';
import { flushPush, isHidden, pushBy, schedulePush } from './pace.js';
import { shownGeneration } from './replace.js';
import { state } from './state.js';

// The document is told of in idle time, when no change came for a while; during steady work after
// the longer time, so that little is lost with the page's process. Milliseconds.
const mirrorPause = 200;
const mirrorLag = 700;

let version = 0;
let dirty = true;
let mirrorWaits = false;
let changedFirst = 0;  // since the mirror was given
let changedLast = 0;
let pushedPoints = null;

const whenIdle = () => requestIdleCallback(giveMirror, { timeout: mirrorPause });

function wantMirror() {
  changedLast = performance.now();
  if (isHidden()) {
    writeMirror(true);
  } else if (!mirrorWaits) {
    changedFirst = changedLast;
    mirrorWaits = true;
    whenIdle();
  }
}
function giveMirror(deadline) {
  if (!mirrorWaits) return;
  const now = performance.now();
  const busy = now - changedLast < mirrorPause && now - changedFirst < mirrorLag;
  if (busy && !isHidden()) whenIdle();
  else writeMirror(!deadline.didTimeout);
}
// `idle` says that there was time left, so that all that was done is on the screen.
function writeMirror(idle) {
  mirrorWaits = false;
  host().pushMirror(JSON.stringify({ idle, ...changes() }));
}

function push() {
  if (!host()) return false;
  history.settle();
  version += 1;
  host().pushState(JSON.stringify({ version, dirty, generation: shownGeneration(), ...state() }));
  if (dirty) wantMirror();
  dirty = false;
  pushedPoints = selection.points();
  return true;
}
pushBy(push);

// The selection moved; nothing new where the last push told of it already.
export function selectionMoved() {
  const known = pushedPoints && selection.samePoints(pushedPoints, selection.points());
  if (dirty || !known) schedulePush();
}

export function contentChanged() {
  dirty = true;
  schedulePush();
}

function flushWhenHidden() {
  if (!isHidden()) return;
  flushPush();
  if (mirrorWaits) writeMirror(true);
}

export function listenToVisibility() {
  document.addEventListener('visibilitychange', flushWhenHidden);
}
