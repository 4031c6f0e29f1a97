// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Alignment of paragraphs, tables and rules. It stays where the page has it; else it is written as
// a style in HTML5 pages and as the align attribute in others. A *side* is 'left', 'center' or
// 'right' ('justify' is read too).
import { putDeclaration, takeDeclaration } from './declarations.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import { enclose, unitsIn } from '../page/units.js';

/** @typedef {'left' | 'center' | 'right'} AlignSide */

const objects = new Set(['HR', 'TABLE']);
// The block that has a paragraph's alignment; null where one has to be made.
/** @param {Unit} unit */
const bearer = ({ block }) =>
  block && (/^(P|DIV|H[1-6]|ADDRESS|HR|TABLE)$/.test(block.tagName) || dom.isPreformatted(block))
    ? block : null;

/** @param {Element} element */
function sideOf(element) {
  const { textAlign, direction } = getComputedStyle(element);
  const side = textAlign.replace('-webkit-', '');
  if (side === 'start') return direction === 'rtl' ? 'right' : 'left';
  if (side === 'end') return direction === 'rtl' ? 'left' : 'right';
  return side;
}

// A table or rule is aligned by its margins: these are `auto` for each side.
/** @type {Record<AlignSide, string[]>} */
const margins = { left: [], center: ['margin-left', 'margin-right'], right: ['margin-left'] };
/** @param {AnyNode} object */
function placeOf(object) {
  const written = object.getAttribute('align');
  if (written) return written.toLowerCase();
  /** @param {string} side */
  const isAuto = (side) => object.style.getPropertyValue(`margin-${side}`) === 'auto';
  if (!isAuto('left')) return 'left';
  return isAuto('right') ? 'center' : 'right';
}

/**
 * How a paragraph, or the table or rule that it is, is aligned.
 * @param {Unit} unit
 * @returns {string}
 */
export function read(unit) {
  const { object, home } = unit;
  return objects.has(object?.tagName) ? placeOf(object) : sideOf(home);
}

// Where the page has an alignment of its own it stays: in the attribute or in the style.
/** @param {HTMLElement} element */
const spellingOf = (element) => {
  if (element.hasAttribute('align')) return 'attribute';
  return element.style.textAlign ? 'style' : null;
};
/**
 * @param {HTMLElement} element
 * @param {AlignSide} side
 * @param {'attribute' | 'style' | null} spelling
 */
function write(element, side, spelling) {
  const styled = dom.writesStyles();
  if (spelling === 'attribute' || (!spelling && !styled)) element.setAttribute('align', side);
  else if (!objects.has(element.tagName)) putDeclaration(element, 'text-align', side);
  else for (const margin of margins[side]) putDeclaration(element, margin, 'auto');
}

// Takes the alignment off an element. The attribute stays, without a value, which aligns nothing:
// so one that is written next is in its place among the others.
/** @param {HTMLElement} element */
function clear(element) {
  history.attributesOf(element);
  if (element.hasAttribute('align')) element.setAttribute('align', '');
  if (element.style.textAlign) takeDeclaration(element, 'text-align');
  if (!objects.has(element.tagName)) return;
  for (const margin of margins.center) {
    if (element.style.getPropertyValue(margin) === 'auto') takeDeclaration(element, margin);
  }
}

// Aligns an element; false where it has the side without anything written there.
/**
 * @param {HTMLElement} element
 * @param {AlignSide} side
 */
function change(element, side) {
  const spelling = spellingOf(element);
  clear(element);
  const plain = objects.has(element.tagName) ? side === 'left' : sideOf(element) === side;
  if (!plain) write(element, side, spelling);
  else element.removeAttribute('align');
  return !plain;
}

// Aligns one paragraph. Bare text in the body becomes a P for that, in a cell or an item a DIV: a P
// would have margins there.
/**
 * @param {Unit} unit
 * @param {AlignSide} side
 */
function apply(unit, side) {
  if (read(unit) === side) return;
  /** @type {AnyNode} */
  let element = bearer(unit);
  if (element) {
    if (!change(element, side)) unwrapBareDivision(element);
    return;
  }
  const tag = /^(LI|DD|DT|TD|TH|CAPTION)$/.test(unit.container.tagName) ? 'DIV' : 'P';
  element = enclose(unit, dom.create(tag));
  write(element, side, null);
}

/** @param {Unit} unit */
const keyOf = ({ block, nodes, container }) => block ?? nodes[0] ?? container;
/** @param {HTMLElement} element */
const within = (element) => {
  const range = document.createRange();
  range.selectNodeContents(element);
  return unitsIn(range);
};

// The elements around the units that align these and nothing else: they are changed, so that no
// second alignment comes inside them.
/**
 * @param {Unit[]} units
 * @param {AlignSide} side
 */
function carriersOf(units, side) {
  const chosen = new Set(units.map(keyOf));
  const judged = new Map();
  for (const unit of units) {
    /** @param {AnyNode} node */
    const isCarrier = (node) => /^(BLOCKQUOTE|DD|DIV|DT|LI|TD|TH)$/.test(node.tagName) &&
      spellingOf(node) !== null;
    const at = dom.ancestor(unit.block?.parentNode ?? unit.container, isCarrier);
    if (!at || judged.has(at) || read(unit) === side) continue;
    judged.set(at, within(at).every((each) => chosen.has(keyOf(each))));
  }
  return [...judged.keys()].filter((element) => judged.get(element));
}

/**
 * Aligns paragraphs, tables and rules.
 * @param {Unit[]} units
 * @param {AlignSide} side
 */
export function applyAll(units, side) {
  for (const carrier of carriersOf(units, side)) change(carrier, side);
  units.forEach((unit) => apply(unit, side));
}

// Unwraps a division that is all of an item or cell and has no attributes left: it was there for
// the alignment.
/** @param {AnyNode} element */
function unwrapBareDivision(element) {
  const item = element.parentNode;
  const carried = element.tagName === 'DIV' && !element.attributes.length &&
    /^(LI|DD|DT|TD|TH|CAPTION)$/.test(item.tagName);
  if (carried && ![...item.childNodes].some((node) => node !== element && dom.isShown(node))) {
    dom.unwrap(element);
  }
}

