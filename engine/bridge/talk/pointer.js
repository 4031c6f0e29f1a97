// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Tells the program where the pointer is, and which link is to be followed.
import * as selection from '../page/selection.js';
import { host } from './host.js';
import { flushPush, schedulePush } from './pace.js';

/** @type {Position | null} */
let position = null;
let waiting = false;

function tell() {
  waiting = false;
  host()?.pushMouse(Math.round(position.x), Math.round(position.y));
}

/** @param {Pointer} event */
const at = ({ clientX, clientY }) => ({ x: clientX, y: clientY });

/** @param {MouseEvent} event */
function moved(event) {
  position = at(event);
  if (waiting) return;
  waiting = true;
  requestAnimationFrame(tell);
}

/** @param {MouseEvent} event */
function pressed(event) {
  position = at(event);
  tell();
}

// Ctrl and a click follow a link, as in other editors; a click alone places the caret.
/** @param {MouseEvent} event */
function clicked({ ctrlKey, button, target }) {
  if (!ctrlKey || button !== 0 || !(target instanceof Element)) return;
  const link = target.closest('a[href], area[href]');
  if (link) host()?.linkWanted(link.getAttribute('href'));
}

/** @param {MouseEvent} event */
function clickedTwice({ button, target }) {
  if (button !== 0 || !(target instanceof HTMLImageElement)) return;
  selection.selectNode(target);
  // The program looks at the state: two quick clicks come within one frame.
  schedulePush();
  flushPush();
  host()?.pictureOpened();
}

/** Begins to listen on a document that was loaded. */
export const listenToPointer = () => {
  document.addEventListener('mousemove', moved, true);
  document.addEventListener('mousedown', pressed, true);
  document.addEventListener('click', clicked, true);
  document.addEventListener('dblclick', clickedTwice, true);
};
