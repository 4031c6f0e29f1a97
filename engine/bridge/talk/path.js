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
import { classesFor } from './classes.js';
import { schedulePush } from './pace.js';

/** @returns {HTMLElement[]} */
export function path() {
  const found = [];
  const root = document.documentElement;
  for (let at = selection.element(); at && at !== root; at = at.parentElement) found.push(at);
  return /** @type {HTMLElement[]} */ (found.reverse());
}

/** The elements of the path by name, id and classes: "body", "p.intro", "img#logo". */
export const pathTold = () => path().map((element) =>
  element.tagName.toLowerCase() + (element.id && `#${element.id}`) +
  [...element.classList].map((name) => `.${name}`).join(''));

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
function deleteAll(element) {
  // Of what has to stay, the content goes.
  if (element === document.body || dom.isCell(element)) select(element);
  else selection.selectNode(element);
  deleteKeepingLooks(selection.range());
}

/**
 * Does something to the element of the path with that index: 'select', 'removeTag' or 'delete'. The
 * last two are one step of the history.
 * @param {number} index
 * @param {'select' | 'removeTag' | 'delete'} deed
 */
export function actOnPath(index, deed) {
  const element = path()[index];
  if (!element || !dom.isEditable()) return;
  if (deed === 'select') select(element);
  else if (deed === 'delete') work(() => history.step('deleteElement', () => deleteAll(element)));
  else if (!isPart(element)) work(() => history.step('removeTag', () => removeTag(element)));
  schedulePush();
}

/**
 * What can be done to the element of the path with that index: whether its tag can be taken off,
 * and the classes that the style sheets define for it, with whether it has each.
 * @param {number} index
 * @returns {{ removable: boolean, classes: [name: string, has: boolean][] }}
 */
export function choicesOnPath(index) {
  const element = path()[index];
  if (!element || !dom.isEditable()) return { removable: false, classes: [] };
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
  if (!selected || selected.collapsed) return found;
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
 * Gives a class to the element of the path with that index and to those of its name that are
 * selected with it, or takes it off them; one step of the history.
 * @param {number} index
 * @param {string} name
 * @param {boolean} on
 */
export function setClassOnPath(index, name, on) {
  const element = path()[index];
  if (!element || !dom.isEditable()) return;
  work(() => history.step('setClass', () => {
    for (const each of alike(element)) {
      const others = [...each.classList].filter((one) => one !== name);
      setAttributes(each, [['class', [...others, ...(on ? [name] : [])].join(' ')]]);
    }
  }));
  schedulePush();
}
