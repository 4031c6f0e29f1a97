// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The path of elements: those around the selection's start from the body inwards, a selected object
// last, as the program shows them, and what it does to one of them.
import { deleteKeepingLooks } from '../blocks/typing.js';
import { setAttributes } from '../formats/links.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';
import { work } from '../page/working.js';
import { deleteRowsOf } from '../tables/deeds.js';
import { classesFor } from './classes.js';
import { schedulePush } from './pace.js';

/** @returns {HTMLElement[]} */
export function path() {
  const found = [];
  const root = document.documentElement;
  for (let at = selection.element(); at && at !== root; at = at.parentElement) found.push(at);
  return /** @type {HTMLElement[]} */ (found.reverse());
}

/**
 * An element by name, id and classes: "p.intro", "img#logo".
 * @param {Element} element
 */
const nameOf = (element) => element.tagName.toLowerCase() + (element.id && `#${element.id}`) +
  [...element.classList].map((name) => `.${name}`).join('');
/** The elements of the path as nameOf has them. */
export const pathTold = () => path().map(nameOf);
/**
 * The names of an element and those around it, from the body inwards.
 * @param {Element} element
 */
export function namesTo(element) {
  const names = [];
  for (let at = element; at !== document.documentElement; at = at.parentElement) {
    names.unshift(nameOf(at));
  }
  return names;
}

// Elements of paths have numbers, by which the program names them: the page may have changed, and
// the selection moved, between the telling of a path and a choice in it. A document that is loaded
// later has other ones: it begins with the milliseconds at its load.
let last = Math.floor(performance.timeOrigin) % 2e9;
/** @type {WeakMap<Element, number>} */
const numbers = new WeakMap();
/** @type {Map<number, WeakRef<HTMLElement>>} */
const numbered = new Map();
const most = 2000;
/** The numbers of the path's elements. */
export const pathNumbers = () => path().map((element) => {
  const known = numbers.get(element);
  if (known && numbered.has(known)) return known;
  last += 1;
  numbers.set(element, last);
  numbered.set(last, new WeakRef(element));
  // Nobody chooses in a path of long ago.
  if (numbered.size > most) numbered.delete(numbered.keys().next().value);
  return last;
});
/**
 * The element of a path with that number; null where it has gone from the page.
 * @param {number} number
 */
export function elementOf(number) {
  const element = numbered.get(number)?.deref();
  return element && document.body.contains(element) && dom.isEditable() ? element : null;
}

// Parts that what is around them cannot do without.
/** @param {Element} element */
const isPart = (element) => element === document.body || (dom.isBlock(element) &&
  /^(CAPTION|COL|COLGROUP|DD|DT|LEGEND|LI|SUMMARY|TABLE|TBODY|TD|TFOOT|TH|THEAD|TR|UL|OL|DL)$/
    .test(element.tagName)) || dom.isAtom(element);

// Takes a tag off and leaves its content; lines that were its own stay lines.
/** @param {AnyNode} element */
function removeTag(element) {
  const saved = selection.save();
  if (dom.isParagraph(element) || element.tagName === 'DIV') {
    for (const side of dom.sides) {
      const beside = dom.neighbour(element, side);
      const edge = side === 'previousSibling' ? element.firstChild : element.lastChild;
      const within = dom.shownFrom(edge,
        side === 'previousSibling' ? 'nextSibling' : 'previousSibling');
      if (!beside || !within || dom.isBlock(beside) || dom.isBlock(within)) continue;
      if (side === 'previousSibling') element.before(dom.create('BR'));
      else element.after(dom.create('BR'));
    }
  }
  dom.unwrap(element);
  selection.restore(saved);
}

/** @param {AnyNode} element */
function select(element) {
  if (dom.isObject(element)) selection.selectNode(element);
  else document.getSelection().selectAllChildren(element);
}

/** @param {AnyNode} element */
function deleteNode(element) {
  selection.selectNode(element);
  deleteKeepingLooks(selection.range());
}
/** @param {AnyNode} element */
function deleteAll(element) {
  if (element.tagName === 'TR' || dom.isRowGroup(element)) {
    deleteRowsOf(element, deleteNode);
  } else if (element === document.body || dom.isCell(element)) {
    // Of what has to stay, the content goes.
    select(element);
    deleteKeepingLooks(selection.range());
  } else {
    deleteNode(element);
  }
}

/**
 * Does something to the element of a path with that number: 'select', 'removeTag' or 'delete'. The
 * last two are one step of the history.
 * @param {number} number
 * @param {'select' | 'removeTag' | 'delete'} deed
 */
export function actOnPath(number, deed) {
  const element = elementOf(number);
  if (!element) return;
  if (deed === 'select') select(element);
  else if (deed === 'delete') work(() => history.step('deleteElement', () => deleteAll(element)));
  else if (!isPart(element)) work(() => history.step('removeTag', () => removeTag(element)));
  schedulePush();
}

/**
 * What can be done to the element of a path with that number: whether its tag can be taken off,
 * and the classes that the style sheets define for it, with whether it has each.
 * @param {number} number
 * @returns {{ removable: boolean, classes: [name: string, has: boolean][] }}
 */
export function choicesOnPath(number) {
  const element = elementOf(number);
  if (!element) return { removable: false, classes: [] };
  const { classList } = element;
  return {
    removable: !isPart(element),
    classes: classesFor(element).map((name) => [name, classList.contains(name)]),
  };
}

// The element, and those of its name beside it that the selection reaches into.
/** @param {Element} element */
function alike(element) {
  const found = new Set([element]);
  const selected = selection.range();
  if (!selected || selected.collapsed || !selected.intersectsNode(element)) return found;
  const { startContainer, startOffset, endContainer, endOffset } = selected;
  for (const leaf of selection.leavesIn(selected)) {
    if (leaf === endContainer && endOffset === 0) continue;
    if (leaf === startContainer && startOffset === leaf.length) continue;
    const other = (dom.isText(leaf) ? leaf.parentElement : leaf).closest(element.localName);
    if (other && !other.contains(element) && !element.contains(other)) found.add(other);
  }
  return found;
}

/**
 * Gives a class to the element of a path with that number and to those of its name that are
 * selected with it, or takes it off them; one step of the history.
 * @param {number} number
 * @param {string} name
 * @param {boolean} on
 */
export function setClassOnPath(number, name, on) {
  const element = elementOf(number);
  if (!element) return;
  work(() => history.step('setClass', () => {
    for (const each of alike(element)) {
      const others = [...each.classList].filter((one) => one !== name);
      setAttributes(each, [['class', [...others, ...(on ? [name] : [])].join(' ')]]);
    }
  }));
  schedulePush();
}
