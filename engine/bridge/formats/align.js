// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Alignment: in the align attribute of the old dialect, in styles in HTML5 pages.
import { putDeclaration, takeDeclaration } from './declarations.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import { enclose, unitsIn } from '../page/units.js';

const objects = new Set(['HR', 'TABLE']);
const bearer = ({ block }) =>
  block && (/^(P|DIV|H[1-6]|ADDRESS|HR|TABLE)$/.test(block.tagName) || dom.isPreformatted(block))
    ? block : null;

function sideOf(element) {
  const { textAlign, direction } = getComputedStyle(element);
  const side = textAlign.replace('-webkit-', '');
  if (side === 'start') return direction === 'rtl' ? 'right' : 'left';
  if (side === 'end') return direction === 'rtl' ? 'left' : 'right';
  return side;
}

// A table or rule is placed by its margins.
const margins = { left: [], center: ['margin-left', 'margin-right'], right: ['margin-left'] };
function placeOf(object) {
  const written = object.getAttribute('align');
  if (written) return written.toLowerCase();
  const isAuto = (side) => object.style.getPropertyValue(`margin-${side}`) === 'auto';
  if (!isAuto('left')) return 'left';
  return isAuto('right') ? 'center' : 'right';
}

export function read(unit) {
  const { object, home } = unit;
  return objects.has(object?.tagName) ? placeOf(object) : sideOf(home);
}

// Where the page has an alignment of its own it stays: in the attribute or in the style.
const spellingOf = (element) => {
  if (element.hasAttribute('align')) return 'attribute';
  return element.style.textAlign ? 'style' : null;
};
function write(element, side, spelling) {
  const styled = dom.writesStyles();
  if (spelling === 'attribute' || (!spelling && !styled)) element.setAttribute('align', side);
  else if (!objects.has(element.tagName)) putDeclaration(element, 'text-align', side);
  else for (const margin of margins[side]) putDeclaration(element, margin, 'auto');
}

// An attribute that is written anew stays in its place among the others: without a value it aligns
// nothing.
function clear(element) {
  history.attributesOf(element);
  if (element.hasAttribute('align')) element.setAttribute('align', '');
  if (element.style.textAlign) takeDeclaration(element, 'text-align');
  if (!objects.has(element.tagName)) return;
  for (const margin of margins.center) {
    if (element.style.getPropertyValue(margin) === 'auto') takeDeclaration(element, margin);
  }
}

// Gives the element the alignment; tells whether it has to be written there.
function change(element, side) {
  const spelling = spellingOf(element);
  clear(element);
  const plain = objects.has(element.tagName) ? side === 'left' : sideOf(element) === side;
  if (!plain) write(element, side, spelling);
  else element.removeAttribute('align');
  return !plain;
}

// Bare text in the body becomes a paragraph; in a cell or an item, where a paragraph would bring
// its margins, a division.
function apply(unit, side) {
  if (read(unit) === side) return;
  let element = bearer(unit);
  if (element) {
    if (!change(element, side)) dissolve(element);
    return;
  }
  const tag = /^(LI|DD|DT|TD|TH|CAPTION)$/.test(unit.container.tagName) ? 'DIV' : 'P';
  element = enclose(unit, dom.create(tag));
  write(element, side, null);
}

const keyOf = ({ block, nodes, container }) => block ?? nodes[0] ?? container;
const within = (element) => {
  const range = document.createRange();
  range.selectNodeContents(element);
  return unitsIn(range);
};

// The elements that align the units and nothing else: these are changed, not doubled inside.
function carriersOf(units, side) {
  const chosen = new Set(units.map(keyOf));
  const judged = new Map();
  for (const unit of units) {
    const isCarrier = (node) => /^(DIV|BLOCKQUOTE|TD|TH)$/.test(node.tagName) &&
      spellingOf(node) !== null;
    const at = dom.ancestor(unit.block?.parentNode ?? unit.container, isCarrier);
    if (!at || judged.has(at) || read(unit) === side) continue;
    judged.set(at, within(at).every((each) => chosen.has(keyOf(each))));
  }
  return [...judged.keys()].filter((element) => judged.get(element));
}

export function applyAll(units, side) {
  for (const carrier of carriersOf(units, side)) change(carrier, side);
  units.forEach((unit) => apply(unit, side));
}

// A division that only carried the alignment of an item goes with it.
function dissolve(element) {
  const item = element.parentNode;
  const carried = element.tagName === 'DIV' && !element.attributes.length &&
    /^(LI|DD|DT|TD|TH|CAPTION)$/.test(item.tagName);
  if (carried && ![...item.childNodes].some((node) => node !== element && dom.isShown(node))) {
    dom.unwrap(element);
  }
}

