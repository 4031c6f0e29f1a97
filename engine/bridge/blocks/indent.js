// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Indenting and outdenting. A paragraph is indented by a BLOCKQUOTE around it, an item by moving it
// into a list in the item before it.
import { groupsOf, itemOf } from './items.js';
import * as lists from './lists.js';
import * as dom from '../page/dom.js';
import { enclose, partsOf } from '../page/units.js';
import { holdOpen } from '../page/lines.js';
import { endLineOf } from '../page/lineEnds.js';
import { dropEdgeLines, setCutList } from '../page/sourceLines.js';

/** @param {AnyNode} node */
const isQuote = (node) => dom.isElement(node) && node.tagName === 'BLOCKQUOTE';
/** @param {Unit} unit */
const inList = (unit) => {
  const item = itemOf(unit);
  return item?.tagName === 'LI' ? item : null;
};

/** @param {AnyNode} node */
const quoteAround = (node) =>
  dom.ancestor(node, isQuote, (at) => dom.isCell(at) || at.tagName === 'LI');
/** @param {Unit} unit */
const quoteOf = (unit) => quoteAround(unit.home);
// The quote around the list whose first item this is; null for any other item. Indenting a first
// item has put that quote there, since such an item has none before it.
/** @param {AnyNode[]} group */
const quoteOfList = (group) => {
  const list = group[0].parentNode;
  const first = !dom.neighbour(group[0], 'previousSibling');
  return first && isQuote(list.parentNode) ? list.parentNode : null;
};

// True where two quotes meet with lines without a block of their own, which would become one line.
/**
 * @param {Element} one
 * @param {Element} other
 */
const runsOn = (one, other) => {
  const edges = [[...one.childNodes].reverse(), [...other.childNodes]]
    .map((nodes) => nodes.find(dom.isShown));
  return edges.every((node) => node && !dom.isBlock(node));
};

/** @param {AnyNode[]} parts */
const enquote = (parts) => dom.wrap(parts, dom.create('BLOCKQUOTE'));

// Joins a new quote with the quotes beside it that have no attributes.
/** @param {AnyNode} quote */
function joinQuotes(quote) {
  const before = dom.neighbour(quote, 'previousSibling');
  if (isQuote(before) && !before.attributes.length && !runsOn(before, quote)) {
    dom.absorb(before, quote);
    quote = before;
  }
  const after = dom.neighbour(quote, 'nextSibling');
  if (isQuote(after) && !after.attributes.length && !runsOn(quote, after)) {
    dom.absorb(quote, after);
  }
}

/**
 * Indents paragraphs by one level. Neighbours come into one quote.
 * @param {Unit[]} units
 */
export function indent(units) {
  const made = [];
  const loose = units.filter((unit) => !inList(unit));
  for (const group of groupsOf(units.filter(inList))) {
    if (!lists.nest(group)) made.push(enquote([group[0].parentNode]));
  }
  /** @type {AnyNode[]} */
  let run = [];
  const flush = () => {
    if (run.length) made.push(enquote(run));
    run = [];
  };
  for (const unit of loose) {
    // A term is indented as a definition.
    if (unit.block?.tagName === 'DT') {
      flush();
      dom.rename(unit.block, 'DD');
      continue;
    }
    const parts = partsOf(unit);
    if (!parts.length) {
      flush();
      enclose(unit, dom.create('BLOCKQUOTE'));
      continue;
    }
    if (run.length && dom.neighbour(run.at(-1), 'nextSibling') !== parts[0]) flush();
    const last = run.at(-1);
    for (let at = last?.nextSibling; at && at !== parts[0]; at = at.nextSibling) run.push(at);
    run.push(...parts);
  }
  flush();
  made.filter((quote) => quote.isConnected).forEach(joinQuotes);
}

// The child of an element that a node lies in.
/**
 * @param {AnyNode} element
 * @param {AnyNode} node
 */
function childOf(element, node) {
  while (node.parentNode !== element) node = node.parentNode;
  return node;
}

// Takes parts out of their quote, to where it stands; what is before and behind them stays in a
// quote.
/**
 * @param {AnyNode} quote
 * @param {AnyNode[]} parts
 */
function unquote(quote, parts) {
  const first = childOf(quote, parts[0]);
  const behind = dom.neighbour(childOf(quote, parts.at(-1)), 'nextSibling');
  let middle = quote;
  if (behind) setCutList(middle, dom.splitBefore(behind, middle));
  if (dom.neighbour(first, 'previousSibling')) {
    middle = dom.splitBefore(first, quote);
    setCutList(quote, middle);
    const line = endLineOf(quote);
    if (line && dom.isElement(quote.nextSibling)) quote.after(line);
  }
  wrapEdgeLines(middle);
  dropEdgeLines(middle);
  dom.unwrap(middle);
}
// Makes paragraphs of a quote's first and last line without a block, where another such line stands
// beside the quote: without the quote they would be one.
/** @param {AnyNode} quote */
function wrapEdgeLines(quote) {
  /** @param {AnyNode} node */
  const isLine = (node) => Boolean(node) && !dom.isBlock(node) && !dom.isBreak(node);
  /** @type {[edge: 'firstChild' | 'lastChild', outer: Side, inner: Side][]} */
  const ends = [['firstChild', 'previousSibling', 'nextSibling'],
    ['lastChild', 'nextSibling', 'previousSibling']];
  for (const [edge, outer, inner] of ends) {
    if (!isLine(dom.neighbour(quote, outer))) continue;
    const line = [];
    for (let at = quote[edge]; at && !dom.isBlock(at); at = at[inner]) line.push(at);
    if (edge === 'lastChild') line.reverse();
    if (line.some(dom.isShown)) dom.wrap(line, dom.create('P'));
  }
}

/**
 * Takes paragraphs one level out: items out of their list, others out of their quote.
 * @param {Unit[]} units
 */
export function outdent(units) {
  for (const group of groupsOf(units)) {
    const quote = quoteOfList(group);
    if (quote) unquote(quote, [group[0].parentNode]);
    else lists.outdent(group);
  }
  for (const parts of quotedRuns(units.filter((each) => !itemOf(each)))) {
    // Asked for now: the run before may have cut the quote in two.
    const quote = quoteAround(parts[0]);
    if (quote === parts[0] || (quote && dom.isHollow(quote))) holdOpen(dom.rename(quote, 'P'));
    else if (quote?.isConnected) unquote(quote, parts);
  }
}
// The runs of nodes that leave their quote together: the paragraphs that are neighbours in it.
/** @param {Unit[]} units */
function quotedRuns(units) {
  const runs = [];
  let last = null;
  for (const unit of units) {
    const own = partsOf(unit);
    const parts = own.length ? own : [unit.container];
    const quote = quoteAround(parts[0]);
    if (!quote) continue;
    const goesOn = last?.quote === quote && parts[0] !== quote && childOf(quote, parts[0]) ===
      dom.neighbour(childOf(quote, last.parts.at(-1)), 'nextSibling');
    if (goesOn) {
      last.parts.push(...parts);
    } else {
      last = { quote, parts: [...parts] };
      runs.push(last.parts);
    }
  }
  return runs;
}

/**
 * True for a paragraph that is in a list or in a quote.
 * @param {Unit} unit
 */
export const canOutdent = (unit) => Boolean(itemOf(unit) || quoteOf(unit));

