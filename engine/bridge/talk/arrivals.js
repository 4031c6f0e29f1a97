// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// How the program knows that all keys have arrived. They take another way than its expressions,
// which may overtake them. So the program releases a key that no keyboard has (F24) behind the
// others, and is told here when that release has come.
import { host } from './host.js';

/** @param {KeyboardEvent} event */
function tellArrival(event) {
  if (event.key !== 'F24') return;
  event.stopImmediatePropagation();
  host()?.inputArrived();
}

addEventListener('keyup', tellArrival, true);
