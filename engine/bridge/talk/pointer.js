// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Tells the program where the pointer is.
import { host } from './host.js';

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

/** Begins to listen on a document that was loaded. */
export const listenToPointer = () => {
  document.addEventListener('mousemove', moved, true);
  document.addEventListener('mousedown', pressed, true);
};
