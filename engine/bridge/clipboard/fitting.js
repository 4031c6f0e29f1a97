// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Changes a fragment so that it may stand in the place that it is put into.
import { isListOf } from '../blocks/items.js';
import * as dom from '../page/dom.js';

/**
 * Makes the fragment one that may stand in a list: items, those of lists in it too; anything else
 * goes into an item, a line of text with the list behind it into one.
 * @param {DocumentFragment} fragment
 * @param {Element} list
 */
export function makeItems(fragment, list) {
  const definitions = list.tagName === 'DL';
  const tag = definitions ? 'DD' : 'LI';
  /** @param {AnyNode} node */
  const fits = (node) => (definitions ? /^(DT|DD)$/.test(node.tagName) : node.tagName === 'LI');
  /** @param {AnyNode} node */
  const isSame = (node) => (definitions ? node.tagName === 'DL' : dom.isList(node));
  /** @type {AnyNode} */
  let line = null;
  for (const node of [...fragment.childNodes]) {
    const isInLine = dom.isShown(node) && !dom.isBlock(node);
    if (line && (isInLine || isSame(node))) line.append(node);
    else if (isSame(node)) dom.unwrap(node);
    else if (/^(P|LI)$/.test(node.nodeName) && !fits(node)) dom.rename(node, tag);
    else if (isInLine) line = dom.wrap([node], dom.create(tag));
    else if (dom.isShown(node) && !fits(node)) dom.wrap([node], dom.create(tag));
    if (dom.isBlock(node)) line = null;
  }
}

// The lists and tables that parts of such stand in.
/** @type {Record<string, string>} */
const homes = {
  LI: 'UL', DT: 'DL', DD: 'DL', TR: 'TABLE', TBODY: 'TABLE', TFOOT: 'TABLE', THEAD: 'TABLE',
};
/** @param {AnyNode} node */
const takesItems = (node) => node.tagName === 'LI' || dom.isList(node);
/**
 * @param {AnyNode} node
 * @param {string} home
 */
const isIn = (node, home) => (home === 'UL'
  ? dom.ancestor(node, takesItems, dom.isCell) !== null
  : dom.ancestor(node, isListOf, dom.isCell)?.tagName === home);
/**
 * Puts items and rows that come without their list or table into a new one, unless the place that
 * they go to (`node`) is in one; cells and options become what they hold.
 * @param {DocumentFragment} fragment
 * @param {Node} node
 */
export function wrapParts(fragment, node) {
  for (const part of [...fragment.children]) {
    if (/^(CAPTION|COL|COLGROUP|OPTGROUP|OPTION|TD|TH)$/.test(part.tagName)) {
      dom.unwrap(part);
      continue;
    }
    const home = homes[part.tagName];
    if (!home || part.parentNode !== fragment) continue;
    if (home !== 'TABLE' && isIn(node, home)) continue;
    const parts = [];
    /** @param {AnyNode} at */
    const belongs = (at) => homes[at.tagName] === home || !dom.isShown(at);
    /** @type {any} */
    let at = part;
    for (; at && belongs(at); at = at.nextSibling) parts.push(at);
    const holder = dom.wrap(parts, dom.create(home));
    const rows = [...holder.children].filter(({ tagName }) => tagName === 'TR');
    if (rows.length) dom.wrap(rows, dom.create('TBODY'));
  }
}

// The inline elements around a node, the innermost first.
/** @param {AnyNode} node */
function inlinesAround(node) {
  /** @type {AnyNode[]} */
  const around = [];
  for (let at = node; !dom.isBlock(at); at = at.parentNode) if (dom.isElement(at)) around.push(at);
  return around;
}

/** @type {Record<string, string>} */
const likes = { STRONG: 'B', EM: 'I', STRIKE: 'S' };
const emphasis = 'b, strong, i, em, u, s, strike, code, sub, sup';
/** @param {Element} element */
const kindOf = ({ tagName }) => likes[tagName] ?? tagName;
/**
 * Takes emphasis out of the fragment that the text around it has already: no B comes into a B.
 * @param {DocumentFragment} fragment
 * @param {AnyNode} node
 */
export function dropDoubleEmphasis(fragment, node) {
  const around = inlinesAround(node);
  /** @param {Element} element */
  const adds = (element) => !around.some((outer) => kindOf(outer) === kindOf(element) &&
    (!element.attributes.length || outer.cloneNode(false).isEqualNode(element.cloneNode(false))));
  for (const element of fragment.querySelectorAll(emphasis)) {
    if (!adds(element)) dom.unwrap(element);
  }
}

/**
 * Takes inline elements off the fragment that are around the place that it goes to as well, the
 * outermost first: a word that was cut from a FONT comes back into that, and its size is not
 * enlarged twice.
 * @param {DocumentFragment} fragment
 * @param {AnyNode} node
 */
export function dropSharedContext(fragment, node) {
  for (const outer of inlinesAround(node).reverse()) {
    /** @type {AnyNode} */
    const only = fragment.firstChild;
    if (only !== fragment.lastChild || !dom.isInline(only) || dom.isAtom(only)) return;
    const like = outer.cloneNode(false);
    // The copy of an element has no id of the page's own.
    if (!only.id) like.removeAttribute('id');
    if (!like.isEqualNode(only.cloneNode(false))) return;
    dom.unwrap(only);
  }
}
