// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What is copied of a page: the content of a range with the elements around it that it cannot do
// without elsewhere.
import { narrowed, sameUnit, showsAnything, spansUnits, unitAt } from '../blocks/extent.js';
import * as addresses from './addresses.js';
import * as dom from '../page/dom.js';
import { gridOf } from '../tables/grid.js';
import { setSpan } from '../tables/making.js';

// True for an element that has to be around a part of the page for it to mean the same elsewhere.
/** @param {AnyNode} node */
const isContext = (node) => dom.isInline(node) || dom.isList(node) ||
  /^(DL|TABLE|TBODY|THEAD|TFOOT|TR|PRE)$/.test(node.tagName);
// True where nothing shows in a node before the range.
/**
 * @param {Node} node
 * @param {Range} range
 */
function beginsWith(node, { startContainer, startOffset }) {
  const before = document.createRange();
  before.setStart(node, 0);
  before.setEnd(startContainer, startOffset);
  return !showsAnything(before);
}
// True for an item whose paragraphs are all in the range: it is copied as an item.
/**
 * @param {Node} item
 * @param {Range} range
 */
function isAllOfItem(item, range) {
  if (item.nodeName !== 'LI' || !spansUnits(range)) return false;
  const { endContainer, endOffset } = range;
  const behind = document.createRange();
  behind.setStart(endContainer, endOffset);
  behind.setEnd(item, item.childNodes.length);
  return beginsWith(item, range) && !showsAnything(behind);
}

/**
 * True for a range over whole paragraphs that ends at the start of the one behind them.
 * @param {Range} range
 */
export function reachesNext(range) {
  const { endContainer, endOffset } = narrowed(range);
  return !sameUnit(unitAt(range.endContainer, range.endOffset), unitAt(endContainer, endOffset));
}
// Such a range less that paragraph, which would be copied as an empty one.
/** @param {Range} range */
function withoutNext(range) {
  if (!reachesNext(range)) return range;
  const { endContainer, endOffset } = narrowed(range);
  let last = endContainer.childNodes[endOffset - 1] ?? endContainer;
  for (let outer = last.parentNode; !outer.contains(range.endContainer); outer = outer.parentNode) {
    const isPart = dom.isList(outer) || !beginsWith(outer, range);
    if (isPart && outer.contains(range.startContainer)) break;
    last = outer;
  }
  const result = range.cloneRange();
  result.setEndAfter(last);
  return result;
}

/** @param {Range} range */
function contextOf(range) {
  const elements = [];
  let at = range.commonAncestorContainer;
  if (dom.isText(at)) at = at.parentNode;
  if (isAllOfItem(at, range)) elements.push(at);
  if (elements.length) at = at.parentNode;
  for (; isContext(at); at = at.parentNode) elements.push(at);
  return elements;
}

/** @param {AnyNode} node */
const isInTable = (node) => dom.ancestor(node, (at) => at.tagName === 'TABLE') !== null;
// Cells reach no further than the rows that are copied with them.
/** @param {ParentNode} part */
function endSpans(part) {
  for (const table of part.querySelectorAll('table')) {
    for (const { cell, height } of gridOf(table).places) {
      if (cell.rowSpan > height) setSpan(cell, 'rowspan', height);
    }
  }
}

/**
 * A copy of a range's content, with such elements around it.
 * @param {Range} selected
 */
export function partOf(selected) {
  const range = withoutNext(selected);
  const content = range.cloneContents();
  for (const element of contextOf(range)) {
    const shell = /** @type {Element} */ (element.cloneNode(false));
    shell.append(content);
    content.append(shell);
  }
  const { startContainer, endContainer } = range;
  if ([startContainer, endContainer].some(isInTable)) endSpans(content);
  return content;
}
/**
 * The markup of a part of the page for the clipboard.
 * @param {Node} part
 */
export function copiedMarkup(part) {
  const holder = dom.create('DIV');
  holder.append(part);
  addresses.makeFull(holder);
  // A parser drops the first line end of these.
  for (const { firstChild } of holder.querySelectorAll('pre, listing')) {
    if (dom.isText(firstChild) && firstChild.data.startsWith('\n')) firstChild.insertData(0, '\n');
  }
  return holder.innerHTML;
}
