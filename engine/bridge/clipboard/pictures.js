// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The pictures that were put in: the program asks for their alternative text, or gives them another
// address, while the person goes on typing elsewhere.
import { deleteToLine } from '../blocks/deletion.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';

// In order. They stay the same elements over Undo and Redo.
/** @type {HTMLImageElement[]} */
const arrived = [];

/**
 * Notes the pictures of a fragment that is about to be put in.
 * @param {DocumentFragment} fragment
 */
export function noteArrival(fragment) { arrived.push(...fragment.querySelectorAll('img')); }

// The picture with that address that was put in last; else the only one of the page that has it.
/**
 * @param {string} address as written in the page
 * @returns {HTMLImageElement | null}
 */
function pictureOf(address) {
  /** @param {HTMLImageElement} picture */
  const has = (picture) => picture.isConnected && picture.getAttribute('src') === address;
  const last = arrived.filter(has).pop();
  if (last) return last;
  const all = [...document.images].filter(has);
  return all.length === 1 ? all[0] : null;
}

/**
 * Changes attributes of the picture with that address that was put in last; null takes one off.
 * @param {string} address
 * @param {[name: string, value: string | null][]} attributes
 */
export const changePicture = (address, attributes) => history.step('changePicture', () => {
  const picture = dom.isEditable() ? pictureOf(address) : null;
  if (!picture) return;
  for (const [name, value] of attributes) {
    if (value !== null) {
      picture.setAttribute(name, value);
    } else if (picture.hasAttribute(name)) {
      history.attributesOf(picture);
      picture.removeAttribute(name);
    }
  }
});

/**
 * Takes out the picture with that address that was put in last.
 * @param {string} address
 */
export const removePicture = (address) => history.step('removePicture', () => {
  const picture = dom.isEditable() ? pictureOf(address) : null;
  if (!picture) return;
  selection.selectNode(picture);
  deleteToLine(selection.range());
});
