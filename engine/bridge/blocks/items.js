// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Items and the lists that they are in, as the page has them. A *group* is a run of items that are
// neighbours in one list. Nothing here changes the document.
import * as dom from '../page/dom.js';
import { itemAround } from '../page/units.js';

/**
 * True for a list of any kind; dom.isList knows no definition lists.
 * @param {AnyNode} node
 */
export const isListOf = (node) =>
  dom.isElement(node) && (dom.isList(node) || node.tagName === 'DL');
/**
 * True for LI, DT or DD that is directly in a list.
 * @param {AnyNode} node
 */
export const isItem = (node) =>
  dom.isElement(node) && /^(LI|DT|DD)$/.test(node.tagName) && isListOf(node.parentNode);
/**
 * The item that a paragraph is in; null for none.
 * @param {Unit} unit
 */
export const itemOf = (unit) => itemAround(unit, isItem);

/**
 * The items of a list, less those of lists in it.
 * @param {Element} list
 */
export const itemsIn = (list) => [...list.children].filter(isItem);

/**
 * The items that paragraphs are in.
 * @param {Unit[]} units
 */
export const itemsOf = (units) => new Set(units.map(itemOf).filter(Boolean));

/**
 * The groups that items in document order make.
 * @param {Iterable<AnyNode>} items
 * @returns {AnyNode[][]}
 */
export function groupNeighbours(items) {
  const groups = new Map();  // by their last items
  for (const item of items) {
    const before = dom.neighbour(item, 'previousSibling');
    const group = groups.get(before) ?? [];
    groups.delete(before);
    group.push(item);
    groups.set(item, group);
  }
  return [...groups.values()];
}

/**
 * The groups of the items that the paragraphs are in, less the items that lie in another one of
 * them: those go along with it.
 * @param {Unit[]} units
 * @returns {AnyNode[][]}
 */
export function groupsOf(units) {
  const items = itemsOf(units);
  /** @param {AnyNode} item */
  const within = (item) => {
    for (let at = item.parentNode; at; at = at.parentNode) if (items.has(at)) return true;
    return false;
  };
  return groupNeighbours([...items].filter((item) => !within(item)));
}

/**
 * True where the second of two neighbouring lists can be joined to the first one.
 * @param {AnyNode} first
 * @param {AnyNode} second
 */
export const isContinuation = (first, second) =>
  dom.isElement(first) && dom.isElement(second) && first.tagName === second.tagName &&
  (dom.sameAttributes(first, second) || !second.attributes.length);

/**
 * The tag of the list that a paragraph is an item of; null for none, and for a definition list.
 * @param {Unit} unit
 * @returns {string | null}
 */
export const listTagOf = (unit) => {
  const item = itemAround(unit);
  return item && dom.isList(item.parentNode) ? item.parentNode.tagName : null;
};
