// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Objects out of the flow: how one gets there and back, and which of them lies over which. All is
// written as inline styles; the text of the page lies at z-index 0.
import { putDeclaration, takeDeclaration } from '../formats/declarations.js';
import * as objects from './objects.js';
import * as dom from '../page/dom.js';
import * as selection from '../page/selection.js';

/**
 * What the commands on positions are about: the selected object, else the box that the caret is in.
 * @param {View} view
 * @returns {HTMLElement | null}
 */
export const subjectOf = ({ object, range }) =>
  /** @type {HTMLElement | null} */ (object ??
    (range && dom.ancestor(range.startContainer, objects.isBox)));

const written = ['position', 'left', 'top', 'right', 'bottom', 'z-index'];

/**
 * Takes an object out of the flow, in its place, or puts it back.
 * @param {HTMLElement} object
 */
export function toggleAbsolute(object) {
  if (objects.isMovable(object)) {
    for (const property of written) takeDeclaration(object, property);
    // A rule of the page's style sheets places it.
    if (objects.isMovable(object)) putDeclaration(object, 'position', 'static');
    return;
  }
  const { width } = object.getBoundingClientRect();
  const { marginLeft, marginTop } = getComputedStyle(object);
  const left = object.offsetLeft - parseFloat(marginLeft);
  const top = object.offsetTop - parseFloat(marginTop);
  putDeclaration(object, 'position', 'absolute');
  putDeclaration(object, 'left', `${Math.round(left)}px`);
  putDeclaration(object, 'top', `${Math.round(top)}px`);
  // A box that was as wide as its line keeps that.
  if (Math.abs(object.getBoundingClientRect().width - width) > 1) {
    objects.writeChange(object, objects.measure(object), { width });
  }
}

/** @param {Element} object */
const levelOf = (object) => parseInt(getComputedStyle(object).zIndex, 10) || 0;

/**
 * The other objects out of the flow that neither hold this one nor lie in it.
 * @param {HTMLElement} object
 */
export const movablesBeside = (object) => [...document.body.querySelectorAll('*')]
  .filter((each) => each !== object && objects.isMovable(each) && !each.contains(object) &&
    !object.contains(each));

// The levels of the other objects, with whether each lies before this one in the page.
/** @param {HTMLElement} object */
function othersOf(object) {
  return movablesBeside(object)
    .map((each) => ({
      level: levelOf(each),
      isBefore: Boolean(each.compareDocumentPosition(object) & Node.DOCUMENT_POSITION_FOLLOWING),
    }));
}

/** @typedef {'front' | 'forward' | 'aboveText' | 'back' | 'backward' | 'belowText'} Order */

// The level that an order comes to; the own one where nothing is to change.
/**
 * @param {HTMLElement} object
 * @param {Order} order
 */
function levelFor(object, order) {
  const own = levelOf(object);
  if (order === 'aboveText') return Math.max(own, 0);
  if (order === 'belowText') return Math.min(own, -1);
  const all = othersOf(object);
  const over = all.filter(({ level, isBefore }) => level > own || (level === own && !isBefore))
    .map(({ level }) => level);
  const under = all.filter(({ level, isBefore }) => level < own || (level === own && isBefore))
    .map(({ level }) => level);
  if (order === 'front') return over.length ? Math.max(...over) + 1 : own;
  if (order === 'forward') return over.length ? Math.min(...over) + 1 : own;
  if (order === 'back') return under.length ? Math.min(...under) - 1 : own;
  return under.length ? Math.max(...under) - 1 : own;
}

/**
 * Puts an object over or under others, or the text.
 * @param {Order} order
 */
export const placed = (order) =>
  /**
   * @param {string} value
   * @param {View} view
   */
  (value, view) => {
    const object = subjectOf(view);
    const level = levelFor(object, order);
    if (level !== levelOf(object)) putDeclaration(object, 'z-index', String(level));
    if (view.object) selection.selectNode(object);
  };
