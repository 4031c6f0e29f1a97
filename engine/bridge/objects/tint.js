// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What has a frame or a tint of our own is not tinted like selected text too. The rule against the
// tint names the tags in the element, since the engine computes the style of every element with a
// tag of the rule anew. Where the page has more such elements than `most`, the tint stays.
import { adoptSheet } from './overlay.js';

const most = 4000;
const tintless = new CSSStyleSheet();
let untinted = '';
/** @type {Animation | null} */
let repaint = null;
/** @type {Map<string, Element | null>} by who has the tint taken off */
const subjects = new Map();

// An animation that stands still and shows nothing.
/** @param {Element} element */
function stillAnimation(element) {
  const shadow = '0 0 transparent';
  const animation =
    element.animate({ textShadow: [shadow, shadow] }, { duration: 1, fill: 'both' });
  animation.pause();
  return animation;
}

/**
 * Takes the tint of selected text off an element, and gives the one before it back.
 * @param {'frame' | 'cells'} who draws in its place
 * @param {Element | null} element null for none
 */
export function clearTint(who, element) {
  if ((subjects.get(who) ?? null) === element) return;
  subjects.set(who, element);
  const subject = [...subjects.values()].find(Boolean) ?? null;
  const tags = new Set(subject
    ? [subject, ...subject.querySelectorAll('*')].map(({ localName }) => localName) : []);
  const known = [...tags].filter((tag) => /^[a-z][a-z0-9]*$/.test(tag));
  const count = known.reduce((sum, tag) => sum + document.getElementsByTagName(tag).length, 0);
  const selectors = count > most ? '' : known.map((tag) => `${tag}::selection`).join();
  // The engine does not paint anew for such a rule, but does for a shadow, even if none is seen.
  repaint?.cancel();
  repaint = selectors ? stillAnimation(subject) : null;
  if (selectors === untinted) return;
  untinted = selectors;
  adoptSheet(tintless, selectors !== '');
  tintless.replaceSync(
    selectors && `${selectors} { background: transparent !important; color: inherit !important }`);
}
