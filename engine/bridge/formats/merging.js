// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Joins what has come to stand side by side when a format was put on text or markup was put in:
// elements that look the same, and texts.
import * as dom from '../page/dom.js';
import * as selection from '../page/selection.js';

const mergeable = new Set(['B', 'EM', 'FONT', 'I', 'SPAN', 'STRONG', 'U', 'BIG', 'SMALL']);
// True when both look the same: by the same markup, or each by markup of the format alone.
/**
 * @param {Format} format
 * @param {AnyNode} element
 * @param {AnyNode} other
 */
function alike(format, element, other) {
  if (!dom.isElement(other)) return false;
  /** @param {AnyNode} each */
  const bare = (each) => format.carries(each) && !dom.isBlock(each) &&
    format.shell(each).tagName === each.tagName && dom.sameLooks(format.shell(each), each);
  const isSame = () => format.same(format.read(element), format.read(other));
  const isNamesake = other.tagName === element.tagName && mergeable.has(element.tagName) &&
    !element.id;
  if (isNamesake && dom.sameLooks(element, other)) return true;
  if (bare(element) && bare(other)) return isSame();
  if (!isNamesake) return false;
  // The format itself may be spelled otherwise.
  /** @param {AnyNode} each */
  const rest = (each) => {
    const copy = each.cloneNode(false);
    if (format.attribute) copy.removeAttribute(format.attribute);
    copy.style.removeProperty(format.property);
    if (!copy.style.length) copy.removeAttribute('style');
    return copy;
  };
  return format.carries(element) && format.carries(other) && isSame() &&
    dom.sameLooks(rest(element), rest(other));
}

// True for an element that may as well stand inside one of the format: it looks the same.
/**
 * @param {Format} format
 * @param {Element} outer
 */
function canGoInside(format, outer) {
  if (format.carries(outer)) return false;
  if (/^(B|EM|I|STRONG)$/.test(outer.tagName)) return !outer.attributes.length;
  return /^(FONT|SPAN)$/.test(outer.tagName) && !outer.id &&
    /^font-(weight|style)$/.test(format.property);
}
// Turns a neighbour inside out where all of it has the format within such elements: the format is
// outside then. Answers the neighbour as it is afterwards.
/**
 * @param {Format} format
 * @param {AnyNode} element
 * @param {AnyNode} neighbour
 */
function turnedInsideOut(format, element, neighbour) {
  for (let at = neighbour; dom.isElement(at) && canGoInside(format, at); at = at.firstChild) {
    const inner = at.firstChild;
    if (at.childNodes.length !== 1) break;
    if (!alike(format, element, inner)) continue;
    inner.replaceWith(...inner.childNodes);
    return dom.wrap([neighbour], inner);
  }
  return neighbour;
}

/**
 * Joins an element of the format with its neighbour where both are alike, into the older one of the
 * two; answers the one that is left.
 * @param {Format} format
 * @param {AnyNode} element
 * @param {Side} side
 * @param {boolean} isNew
 */
export function mergeWith(format, element, side, isNew) {
  if (!dom.isElement(element[side])) return element;
  const other = turnedInsideOut(format, element, element[side]);
  if (!alike(format, element, other)) return element;
  const [stays, gone] = isNew ? [other, element] : [element, other];
  const before = (side === 'previousSibling') === isNew;
  if (before) stays.append(...gone.childNodes);
  else stays.prepend(...gone.childNodes);
  gone.remove();
  return stays;
}

/**
 * Joins each of the texts with the texts right beside it; the anchors stay at their characters.
 * @param {Iterable<Node>} nodes
 * @param {any[]} anchors
 */
export function joinTexts(nodes, anchors) {
  for (const node of nodes) {
    if (!dom.isText(node) || !node.parentNode) continue;
    let first = node;
    while (dom.isText(first.previousSibling)) first = first.previousSibling;
    for (let next = first.nextSibling; dom.isText(next); next = first.nextSibling) {
      for (const anchor of anchors.filter(({ node: at }) => at === next)) {
        Object.assign(anchor, { node: first, offset: first.length + anchor.offset });
      }
      first.appendData(next.data);
      next.remove();
    }
  }
}

// Two inline elements that are the same become one: a part of one was cut out and comes back.
/** @param {AnyNode} node */
const isOpenInline = (node) => dom.isInline(node) && !dom.isAtom(node) && !dom.isBreak(node);
/**
 * @param {AnyNode} left
 * @param {AnyNode} right
 */
const areAlike = (left, right) => isOpenInline(left) && isOpenInline(right) &&
  left.tagName === right.tagName &&
  (dom.sameAttributes(left, right) || dom.sameAttributes(dom.twin(left), right));
/**
 * Joins two neighbours that are the same inline element, and what meets in them then.
 * @param {AnyNode} left
 * @param {AnyNode} right
 */
export function joinAlike(left, right) {
  while (areAlike(left, right)) {
    const inner = [left.lastChild, right.firstChild];
    dom.absorb(left, right);
    [left, right] = inner;
  }
}
/**
 * @param {AnyNode} node
 * @param {Side} side
 */
const besideNode = (node, side) => {
  let at = node[side];
  while (dom.isText(at) && !at.length) at = at[side];
  return at;
};
/**
 * Joins the ends of what was put in, from `first` to `last`, to elements beside it that are the
 * same; the caret stays where it is.
 * @param {AnyNode} first
 * @param {AnyNode} last
 */
export function joinToNeighbours(first, last) {
  const [before, after] = [besideNode(first, 'previousSibling'), besideNode(last, 'nextSibling')];
  if (!areAlike(before, first) && !areAlike(last, after)) return;
  const caret = selection.save();
  joinAlike(last, after);
  joinAlike(before, first);
  selection.restore(caret);
}
