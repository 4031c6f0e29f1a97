// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The pointer: its place goes to the program.
import { host } from './host.js';

let place = null;
let waiting = false;

function tell() {
  waiting = false;
  host()?.pushMouse(Math.round(place.x), Math.round(place.y));
}

const at = ({ clientX, clientY }) => ({ x: clientX, y: clientY });

function moved(event) {
  place = at(event);
  if (waiting) return;
  waiting = true;
  requestAnimationFrame(tell);
}

function pressed(event) {
  place = at(event);
  tell();
}

export const listenToPointer = () => {
  document.addEventListener('mousemove', moved, true);
  document.addEventListener('mousedown', pressed, true);
};
