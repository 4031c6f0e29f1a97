// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Open ends: a part of the page that begins or ends within a paragraph. Where such a part comes in,
// its first paragraph joins the one before the caret, and the one behind the caret joins its last:
// what was cut comes back as it was.
import { breakLines } from '../blocks/blocks.js';
import { leafBeside, unitOfLeaf } from '../blocks/caretDeletion.js';
import { caretAt, isAtEdge, narrowed, sameUnit, unitAt } from '../blocks/extent.js';
import { join } from '../blocks/joining.js';
import { reachesNext } from './copied.js';
import { joinAlike } from '../formats/merging.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';
import { noBreak } from '../page/standIns.js';

/**
 * An end is 'open' within a paragraph's text, a 'line' where it takes in the line end beside a
 * paragraph and none of its text, 'whole' where it takes in the line end behind paragraphs that are
 * all in it, else 'closed'.
 * @typedef {'closed' | 'open' | 'line' | 'whole'} End
 * @typedef {{ start: End, end: End }} OpenEnds
 */

/** @type {OpenEnds} */
export const closed = { start: 'closed', end: 'closed' };

/**
 * Whether something of a paragraph stands before or behind a point in it.
 * @param {Node} node
 * @param {number} offset
 * @param {Edge} side
 */
export function isWithin(node, offset, side) {
  const unit = unitAt(node, offset);
  if (!unit?.nodes.length) return false;
  const paragraph = document.createRange();
  paragraph.setStartBefore(unit.nodes[0]);
  paragraph.setEndAfter(unit.nodes.at(-1));
  const beyond = paragraph.comparePoint(node, offset);
  if (beyond) return beyond === (side === 'start' ? 1 : -1) && !dom.isHollow(unit.home);
  return !isAtEdge(caretAt(node, offset), unit, side);
}

/**
 * @param {Node} node
 * @param {number} offset
 * @param {Edge} side
 * @param {Edge} other
 * @returns {End}
 */
function endAt(node, offset, side, other) {
  if (!isWithin(node, offset, side)) return 'closed';
  return isWithin(node, offset, other) ? 'open' : 'line';
}

/**
 * The open ends of a range.
 * @param {Range} range
 * @returns {OpenEnds}
 */
export function openEndsOf(range) {
  if (range.collapsed || selection.control(range)) return closed;
  const { startContainer, startOffset, endContainer, endOffset } = narrowed(range);
  const end = endAt(endContainer, endOffset, 'end', 'start');
  return {
    start: endAt(startContainer, startOffset, 'start', 'end'),
    end: end === 'closed' && reachesNext(range) ? 'whole' : end,
  };
}

/** @param {ParentNode} node */
const holdsBlock = (node) => [...node.querySelectorAll('*')].some(dom.isBlock);

// The outermost node on one side that says something: layout between blocks does not, white space
// in a paragraph does.
/**
 * @param {AnyNode} node
 * @param {EdgeChild} child
 * @param {Side} side
 */
function edgeIn(node, child, side) {
  const shown = dom.shownFrom(node[child], side);
  return holdsBlock(node) && dom.isBlock(shown) ? shown : node[child];
}

// Of a paragraph that only a line end was taken from there are but tags. Answers that one.
/**
 * @param {DocumentFragment} fragment
 * @param {EdgeChild} child
 * @param {Side} side
 * @returns {AnyNode}
 */
function dropEmptyEdge(fragment, child, side) {
  /** @type {ParentNode} */
  let holder = fragment;
  let at = edgeIn(holder, child, side);
  while (dom.isElement(at) && !dom.isAtom(at)) {
    if (dom.hasContent(at)) {
      holder = at;
    } else {
      at.remove();
      if (dom.isBlock(at)) return at;
    }
    at = edgeIn(holder, child, side);
  }
  return null;
}

// The text behind what was put in is the paragraph again that it had been before its line end was
// deleted.
/**
 * @param {AnyNode} was
 * @param {AnyNode} end the last node that was put in
 */
function becomeAgain(was, end) {
  const leaf = end && leafBeside(end, 'nextSibling');
  const unit = leaf ? unitOfLeaf(leaf) : null;
  if (!unit || [...was.querySelectorAll('*')].some(dom.isBlock)) return;
  const half = unit.block;
  if (!half) {
    becomeOfBare(was, unit);
    return;
  }
  const isSame = half.tagName === was.tagName;
  const isPlain = dom.isParagraph(was) && !dom.isPreformatted(was);
  if (!isSame && !(isPlain && dom.isParagraph(half))) return;
  if (!isSame && dom.isPreformatted(half)) breakLines(half);
  was.replaceChildren(...half.childNodes);
  half.replaceWith(was);
  selection.setCaret(...selection.pointOf(selection.startOf(was)));
}

// The same of bare text in a division, behind which the paragraph stood.
/**
 * @param {AnyNode} was
 * @param {Unit} unit
 */
function becomeOfBare(was, { container, nodes }) {
  if (container.tagName !== 'DIV' || !nodes.length || !dom.isParagraph(was)) return;
  const behind = nodes.at(-1).nextSibling;
  const isLast = !dom.shownFrom(behind, 'nextSibling');
  const before = nodes[0].previousSibling;
  was.replaceChildren(...nodes);
  if (isLast) container.after(...(dom.isBlank(before) ? [before] : []), was);
  else container.insertBefore(was, behind);
  selection.setCaret(...selection.pointOf(selection.startOf(was)));
}

// The leaf at one end of the fragment. White space alone would be taken for layout: a no-break
// space keeps its place until the paragraphs are joined.
/**
 * @param {DocumentFragment} fragment
 * @param {EdgeChild} child
 * @param {Side} side
 */
function leafAt(fragment, child, side) {
  let at = edgeIn(fragment, child, side);
  while (dom.isElement(at) && !dom.isAtom(at) && at.tagName !== 'TABLE' && at.firstChild) {
    at = edgeIn(at, child, side);
  }
  const blank = blankOf(at)?.data;
  if (blank) at.data = noBreak;
  return { node: at, blank };
}

/**
 * @param {Unit} unit
 * @param {Side} side
 */
const edgeOf = ({ block, nodes, container }, side) =>
  block || (side === 'previousSibling' ? nodes[0] : nodes.at(-1)) || container;

/**
 * Says what is to be joined once the fragment is in the page at that point. Answers what joins it.
 * @param {DocumentFragment} fragment
 * @param {OpenEnds} open
 * @param {Node} node
 * @param {number} offset
 * @returns {() => void}
 */
export function joinsFor(fragment, open, node, offset) {
  if (open.start === 'line') dropEmptyEdge(fragment, 'firstChild', 'nextSibling');
  const gone = open.end === 'line'
    ? dropEmptyEdge(fragment, 'lastChild', 'previousSibling') : null;
  // The line that began or ended there is a paragraph's.
  if (open !== closed && fragment.firstChild && !holdsBlock(fragment)) {
    dom.wrap([...fragment.childNodes], dom.create('P'));
  }
  const follows = open.start !== 'closed' && isWithin(node, offset, 'start');
  const joinsStart = open.start === 'open' && follows;
  const isFollowed = isWithin(node, offset, 'end');
  const joinsEnd = open.end === 'open' && isFollowed;
  const first = joinsStart ? leafAt(fragment, 'firstChild', 'nextSibling') : null;
  const last = joinsEnd ? leafAt(fragment, 'lastChild', 'previousSibling') : null;
  const end = fragment.lastChild;
  return () => {
    if (gone && follows && isFollowed) becomeAgain(gone, end);
    if (first) joinWith(first.node, 'previousSibling');
    if (last) joinWith(last.node, 'nextSibling');
    for (const leaf of [first, last]) if (leaf?.blank) leaf.node.data = leaf.blank;
  };
}

/** @param {AnyNode} leaf */
const isOne = (leaf) => dom.isBlock(leaf) && (dom.isAtom(leaf) || leaf.tagName === 'TABLE');

/**
 * A block that goes gives its name to the one that comes in its place.
 * @param {AnyNode} block
 * @param {AnyNode} next
 */
export function giveName(block, next) {
  if (!block?.id || !dom.isElement(next) || !dom.isBlock(next) || next.id) return;
  const { id } = block;
  history.attributesOf(block);
  block.removeAttribute('id');
  next.id = id;
}

// Joins two paragraphs that were one before that was cut in two. A break at the first one's end was
// before the caret: it holds no empty line open.
/**
 * @param {Unit} first
 * @param {Unit} second
 * @param {ChildNode | null} blank
 */
function joinHalves(first, second, blank) {
  giveName(second.block, first.block);
  const [left, right] = [first.nodes.at(-1), second.nodes[0]];
  const between = join(first, second, null, left ?? null);
  if (blank) right.before(blank);
  if (left && left.nextSibling === right) joinAlike(left, right);
  return between;
}

// Joins the paragraph that a leaf begins or ends with the one on that side of it. Text that was put
// in beside text is in its paragraph already.
/**
 * @param {AnyNode} leaf
 * @param {Side} side
 */
function joinWith(leaf, side) {
  const back = side === 'previousSibling';
  const unit = leaf?.isConnected && !isOne(leaf) ? unitOfLeaf(leaf) : null;
  const outer = back ? unit?.nodes[0] : unit?.nodes.at(-1);
  if (!outer?.contains(leaf)) return;
  const near = leafBeside(edgeOf(unit, side), side);
  const other = near && !isOne(near) ? unitOfLeaf(near) : null;
  if (!other || sameUnit(unit, other)) return;
  if (back) {
    joinHalves(other, unit, blankOf(other.nodes.at(-1)?.nextSibling));
  } else {
    const between = joinHalves(unit, other, blankOf(other.nodes[0]?.previousSibling));
    selection.setCaret(...selection.pointOf(between));
  }
}

// White space at the edge of a paragraph was a blank between words before that was cut in two.
/** @param {AnyNode} node */
const blankOf = (node) => (dom.isText(node) && /^[ \t\n]+$/.test(node.data) ? node : null);
