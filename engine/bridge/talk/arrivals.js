// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Keys come another way than the program's expressions, which may overtake them. Before the program
// reads the document it lets go of a key that no keyboard has, after all the others, and is told
// when that one is here.
import { host } from './host.js';

function arrived(event) {
  if (event.key !== 'F24') return;
  event.stopImmediatePropagation();
  host()?.inputArrived();
}

addEventListener('keyup', arrived, true);
