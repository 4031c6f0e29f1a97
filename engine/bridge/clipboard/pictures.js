// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The pictures that were put in: the program asks for their alternative text, or gives them another
// address, while the person goes on typing elsewhere.
import { deleteToLine } from '../blocks/deletion.js';
import { askAbout } from '../page/asked.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';
import { host } from '../talk/host.js';
import { schedulePush } from '../talk/pace.js';

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

// Those of another program's markup whose files the program is asked to bring into the site, and
// the step that they came with: their new addresses belong to that step.
/** @type {Set<HTMLImageElement>} */
let awaited = new Set();
/** @type {Step | null} */
let pasteStep = null;

/**
 * The pictures of another program's markup that come from files, or hold their file themselves, and
 * how many lie on other computers.
 * @param {DocumentFragment} fragment
 */
export function picturesFrom(fragment) {
  const all = [...fragment.querySelectorAll('img')];
  /** @param {RegExp} form */
  const having = (form) => all.filter((picture) => form.test(picture.getAttribute('src') ?? ''));
  return { own: having(/^(file|data):/i), remote: having(/^(https?:)?\/\//i).length };
}
/**
 * Tells the program of such pictures, once they are in the page.
 * @param {ReturnType<typeof picturesFrom>} pictures
 */
export function tellOfPictures({ own, remote }) {
  const there = own.filter((picture) => picture.isConnected);
  if (!there.length && !remote) return;
  arrived.push(...there);
  awaited = new Set(there);
  pasteStep = history.lastStep();
  const addresses = there.map((picture) => picture.getAttribute('src'));
  host()?.picturesPasted(JSON.stringify({ addresses: [...new Set(addresses)], remote }));
}

/** @typedef {[name: string, value: string | null][]} Attributes */
/**
 * @param {HTMLImageElement} picture
 * @param {Attributes} attributes
 */
function setAttributes(picture, attributes) {
  for (const [name, value] of attributes) {
    if (value !== null) {
      picture.setAttribute(name, value);
    } else if (picture.hasAttribute(name)) {
      history.attributesOf(picture);
      picture.removeAttribute(name);
    }
  }
}
/**
 * Changes attributes of the picture with that address that was put in last; null takes one off. All
 * that came with one paste and have it are changed for the first time in the step of the paste.
 * @param {string} address
 * @param {Attributes} attributes
 */
export function changePicture(address, attributes) {
  if (!dom.isEditable()) return;
  const all = [...awaited].filter((each) => each.getAttribute('src') === address);
  if (all.length && pasteStep && history.lastStep() === pasteStep) {
    all.forEach((each) => awaited.delete(each));
    history.amend(() => all.forEach((each) => setAttributes(each, attributes)));
    schedulePush();
    return;
  }
  const picture = pictureOf(address);
  if (picture) history.step('changePicture', () => setAttributes(picture, attributes));
}

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

/**
 * Has the place of the picture with that address told with every state, for the box beside it; the
 * empty address ends it.
 * @param {string} address
 */
export function askAboutPicture(address) {
  askAbout(() => (address ? pictureOf(address) : null));
  // Scrolling changes nothing else of the state.
  if (address) document.addEventListener('scroll', schedulePush, true);
  else document.removeEventListener('scroll', schedulePush, true);
  schedulePush();
}
