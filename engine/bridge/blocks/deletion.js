// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Deleting across paragraphs. The engine keeps the looks of joined text by styled spans; here the
// text joins the paragraph before it and takes on that one's looks.
import { breakLines } from './blocks.js';
import * as lists from './lists.js';
import * as blanks from '../page/blanks.js';
import * as dom from '../page/dom.js';
import { beside, keepsBlanks } from '../page/beside.js';
import { holdOpen, lineElement, prune } from '../page/lines.js';
import * as selection from '../page/selection.js';
import { dropLine } from '../page/sourceLines.js';
import { gapAt, heldUnits, unitsIn } from '../page/units.js';

// A place like a range, but no live one: the engine follows all of those through every change of
// the document until they are collected, thousands after long work.
const caretAt = (node, offset) => ({
  startContainer: node, startOffset: offset, endContainer: node, endOffset: offset, collapsed: true,
});
const unitAt = (node, offset) => heldUnits(unitsIn(caretAt(node, offset)))[0] ?? null;
const sameUnit = (one, other) =>
  one === other || Boolean(one && other && one.container === other.container &&
    one.nodes[0] === other.nodes[0]);
const cellOf = (node) => dom.ancestor(node, dom.isCell) || document.body;

// The same selection with its ends in the blocks that it takes in, so that what stands behind a
// block that is selected as a whole stays out of it. All of the page stays all of it.
function inward(range) {
  const { startContainer, startOffset, endContainer, endOffset } = range;
  const { body } = document;
  const all = startContainer === body && endContainer === body && startOffset === 0 &&
    endOffset === body.childNodes.length;
  if (all || selection.control(range)) return range;
  const result = range.cloneRange();
  const enters = (node) => dom.isElement(node) && dom.isBlock(node) && !dom.isAtom(node) &&
    node.tagName !== 'TABLE' && node.hasChildNodes();
  const first = () => result.startContainer.childNodes[result.startOffset];
  const last = () => result.endContainer.childNodes[result.endOffset - 1];
  while (enters(first())) result.setStart(first(), 0);
  while (enters(last())) result.setEnd(last(), last().childNodes.length);
  withdraw(result);
  return result.collapsed ? range : result;
}
// Whole paragraphs that were selected by three clicks end at the start of the one behind them.
function withdraw(range) {
  const { startContainer, startOffset, endContainer, endOffset } = range;
  const first = unitAt(startContainer, startOffset);
  const behind = unitAt(endContainer, endOffset);
  if (!first || !behind || sameUnit(first, behind) || hollow(first)) return;
  if (!atEdge(caretAt(startContainer, startOffset), first, 'start')) return;
  if (!atEdge(caretAt(endContainer, endOffset), behind, 'start')) return;
  const leaf = [...selection.leavesIn(range)]
    .filter((each) => dom.isShown(each) && !behind.nodes.some((node) => node.contains(each)))
    .at(-1);
  if (dom.isText(leaf)) range.setEnd(leaf, leaf.length);
  else if (leaf) range.setEndAfter(leaf);
}

// True when the range begins in one paragraph and ends in another.
export function spansUnits(range) {
  if (range.collapsed || selection.control(range)) return false;
  const { startContainer, startOffset, endContainer, endOffset } = inward(range);
  return !sameUnit(unitAt(startContainer, startOffset), unitAt(endContainer, endOffset));
}

// Removes a block that was emptied, and the lists and quotes that held nothing else.
function removeEmptied(element) {
  while (dom.isElement(element) && !dom.isCell(element) && !dom.hasContent(element)) {
    const parent = element.parentNode;
    dropBlock(element);
    element = parent;
  }
}
// Lines of bare text that only the block kept apart stay apart; lists of a kind become one.
function dropBlock(block) {
  const before = dom.neighbour(block, 'previousSibling');
  const after = dom.neighbour(block, 'nextSibling');
  const isLine = (node) => node && !dom.isBlock(node) && !dom.isBreak(node);
  if (dom.isBlock(block) && isLine(before) && isLine(after)) {
    block.replaceWith(dom.create('BR'));
  } else {
    dropLine(block);
    block.remove();
  }
  if (dom.isList(before) && dom.isList(after) && before.tagName === after.tagName &&
      (dom.sameAttributes(before, after) || !after.attributes.length)) {
    dom.absorb(before, after);
  }
}

const dropTrailingBreak = (nodes) => {
  const last = nodes.at(-1);
  if (dom.isBreak(last)) {
    last.remove();
    return nodes.slice(0, -1);
  }
  return nodes;
};

// The text that nodes show, where no markup may stand; in their place.
function asText(nodes) {
  const text = document.createTextNode(
    nodes.map((node) => (dom.isBreak(node) ? '\n' : node.textContent)).join(''));
  nodes.forEach((node) => node.remove());
  return text.length ? [text] : [];
}

// Moves the content of one unit to the end of the one before it; behind the mark where nothing is
// left of that. Returns the place between them.
function join(first, second, mark) {
  const left = dropTrailingBreak(first.nodes.filter((node) => node.isConnected));
  const home = second.container;
  const leavesPre = dom.isPreformatted(second.block) && !dom.isPreformatted(first.container);
  if (leavesPre) breakLines(home);
  const all = leavesPre ? [...home.childNodes] : second.nodes.filter((node) => node.isConnected);
  const moved = dom.rawAt(first.container) ? asText(all) : all;
  const last = left.at(-1);
  const place = last ? selection.endOf(last) : selection.startOf(moved[0] ?? first.container);
  if (last ?? mark) (last ?? mark).after(...moved);
  else if (first.container.firstChild) first.container.prepend(...moved);
  else first.container.append(...moved);
  const item = lists.itemOf(first);
  const rest = [...home.childNodes].filter(dom.isShown);
  const onlyLists = rest.length > 0 && rest.every(dom.isList);
  if (home.tagName === 'LI' && item && !home.contains(item) && onlyLists) item.append(...rest);
  removeEmptied(home);
  holdOpen(first.container);
  return place;
}

// Across table cells only contents go; the cells stay.
function removeLeaves(range) {
  const { startContainer, startOffset, endContainer, endOffset } = range;
  const blocks = new Set();
  for (const leaf of [...selection.leavesIn(range)]) {
    if (!dom.isShown(leaf)) continue;
    const { parentNode } = leaf;
    blocks.add(dom.blockOf(parentNode));
    const from = leaf === startContainer ? startOffset : 0;
    if (dom.isText(leaf)) {
      leaf.deleteData(from, (leaf === endContainer ? endOffset : leaf.length) - from);
      prune(leaf);
    } else {
      leaf.remove();
      prune(parentNode);
    }
  }
  blocks.forEach(holdOpen);
}

// Deletes what is selected in one paragraph, as it stands.
function cut(range) {
  const block = dom.blockOf(range.startContainer);
  if (dom.isHollow(block)) return;
  const { startContainer, startOffset, endContainer } = range;
  const [first, second] = [lineElement(startContainer), lineElement(endContainer)];
  range.deleteContents();
  if (first && second && first !== second && !first.contains(second) && !second.contains(first)) {
    first.append(...second.childNodes);
    second.remove();
    range.setStart(startContainer, startOffset);
    range.collapse(true);
  }
  prune(startContainer);
  prune(endContainer);
  holdOpen(block);
}

function select({ startContainer, startOffset, endContainer, endOffset }) {
  document.getSelection().setBaseAndExtent(
    startContainer, startOffset, endContainer, endOffset);
}

// The one thing that is selected: an object, or a closed island in the flow.
function thingIn(range) {
  const object = selection.control(range);
  if (object) return object;
  const leaves = [];
  for (const leaf of selection.leavesIn(range)) {
    if (!dom.isShown(leaf) || untouched(leaf, range)) continue;
    leaves.push(leaf);
    if (leaves.length > 1) return null;
  }
  return dom.isIsland(leaves[0]) ? leaves[0] : null;
}
// A text at an end of the range of which nothing is selected.
const untouched = (leaf, range) =>
  (leaf === range.startContainer && dom.isText(leaf) && range.startOffset === leaf.length) ||
  (leaf === range.endContainer && range.endOffset === 0);

function removeThing(thing, place) {
  place.setStartBefore(thing);
  place.setEndAfter(thing);
  const { parentNode } = thing;
  const block = dom.blockOf(parentNode);
  thing.remove();
  prune(parentNode);
  holdOpen(block);
}

// What began before a table or a rule joins nothing: the caret is where the rest begins.
function caretInto(unit, place) {
  const [node] = unit.nodes.filter((each) => each.isConnected);
  if (!node && !unit.container.isConnected) return;
  place.setStart(...selection.pointOf(selection.startOf(node ?? unit.container)));
  place.collapse(true);
}

// Across paragraphs; `place` is where the caret will be.
function removeSpan(between, place) {
  const { startContainer, startOffset, endContainer, endOffset } = between;
  const first = unitAt(startContainer, startOffset);
  const second = unitAt(endContainer, endOffset);
  place.setStart(startContainer, startOffset);
  place.collapse(true);
  if (!first || !second || cellOf(startContainer) !== cellOf(endContainer)) {
    removeLeaves(between);
    return;
  }
  const begins = first.container === startContainer ||
    first.nodes.some((node) => node.contains(startContainer));
  const mark = document.createTextNode('');
  if (first.nodes.length) first.nodes[0].before(mark);
  else first.container.prepend(mark);
  between.deleteContents();
  prune(startContainer);
  prune(endContainer);
  if (begins && second.container.isConnected) join(first, second, mark);
  else removeEmptied(dom.blockOf(endContainer));
  mark.remove();
  holdOpen(first.container);
  if (!begins) caretInto(second, place);
  else if (!first.container.contains(place.startContainer)) place.setStart(first.container, 0);
}

// Deletes what is selected, whatever it spans. Returns the range where it was.
export function clear(range) {
  const thing = thingIn(range);
  const between = inward(range);
  // Moves along with what changes around it.
  const place = between.cloneRange();
  if (thing) removeThing(thing, place);
  else if (spansUnits(range)) removeSpan(between, place);
  else cut(place);
  return place;
}

// Deletes what is selected; the caret is there, even where no line is.
export function empty(range) {
  blanks.watch();
  const { startContainer, startOffset } = clear(range);
  selection.setCaret(startContainer, startOffset);
  blanks.watched({ inputType: 'delete' });
}

// Deletes what is selected and puts the caret into the line that is there.
export function remove(range) {
  empty(range);
  const [node, offset] = gapAt(selection.range()) ?? [];
  if (!node) return;
  const next = dom.shownFrom(node.childNodes[offset], 'nextSibling');
  const previous = dom.shownFrom(node.childNodes[offset - 1], 'previousSibling');
  const enters = (block) =>
    dom.isElement(block) && !dom.isAtom(block) && block.tagName !== 'TABLE';
  if (enters(next)) selection.setCaret(...selection.pointOf(selection.startOf(next)));
  else if (enters(previous)) selection.setCaret(...selection.pointOf(selection.endOf(previous)));
}

// True when something shows between the edge of a paragraph and a place in it: white space there
// does not.
function shownBetween(range) {
  const { startContainer, startOffset, endContainer, endOffset } = range;
  for (const leaf of selection.leavesIn(range)) {
    if (!dom.isShown(leaf)) continue;
    if (!dom.isText(leaf)) return true;
    const from = leaf === startContainer ? startOffset : 0;
    const text = leaf.data.slice(from, leaf === endContainer ? endOffset : leaf.length);
    if (text !== '' && (keepsBlanks(leaf) || /[^ \t\n]/.test(text))) return true;
  }
  return false;
}

function atEdge(range, unit, side) {
  const [first, last] = [unit.nodes[0], unit.nodes.at(-1)];
  if (!first) return true;
  const { indexOf } = selection;
  const { startContainer, startOffset, endContainer, endOffset } = range;
  const rest = { startContainer, startOffset, endContainer, endOffset };
  if (side === 'start') {
    Object.assign(rest, { startContainer: first.parentNode, startOffset: indexOf(first) });
  } else {
    const end = dom.isBreak(last) && last !== first ? last.previousSibling : last;
    Object.assign(rest, { endContainer: end.parentNode, endOffset: indexOf(end) + 1 });
  }
  return !shownBetween(rest) || dom.isHollow(unit.home);
}

// An element without content that takes no place either.
const isNothing = (node) => dom.isElement(node) && !dom.hasContent(node) &&
  node.getBoundingClientRect().height * node.getBoundingClientRect().width === 0;
// Takes away what is nothing between two paragraphs, less what may be a link's target.
function clearBetween(first, second) {
  const range = document.createRange();
  range.setStartAfter(first.nodes.at(-1) ?? first.container);
  range.setEndBefore(second.nodes[0] ?? second.container);
  for (const leaf of [...selection.leavesIn(range)]) {
    if (isNothing(leaf) && dom.isBlock(leaf) && !leaf.id && !leaf.firstChild) leaf.remove();
  }
}

// The nearest shown leaf before or after a node; null at the edge of its cell.
function leafBeside(node, side) {
  const cell = cellOf(node);
  for (let at = node; at && at !== cell; at = at.parentNode) {
    let near = dom.neighbour(at, side);
    while (isNothing(near)) near = dom.neighbour(near, side);
    if (!near) continue;
    if (near.tagName === 'TABLE') return near;
    return side === 'previousSibling' ? shownEdge(near, 'lastChild', 'previousSibling')
      : shownEdge(near, 'firstChild', 'nextSibling');
  }
  return null;
}
// The outermost leaf that shows something, on one side of a node; a table is one thing.
function shownEdge(node, child, side) {
  const isWhole = node.tagName === 'TABLE' || dom.isAtom(node);
  const inner = isWhole ? null : dom.shownFrom(node[child], side);
  return inner ? shownEdge(inner, child, side) : node;
}

const unitOfLeaf = (leaf) =>
  (dom.isText(leaf) || dom.isBlock(leaf)
    ? unitAt(leaf, 0) : unitAt(leaf.parentNode, selection.indexOf(leaf)));

const hollow = (unit) => Boolean(unit.block) && dom.isHollow(unit.block);

// Most carets stand beside a character: no edge is there, however long the paragraph.
const isWithinText = ({ startContainer: node, startOffset: offset, collapsed }, side) =>
  collapsed && dom.isText(node) &&
  (side === 'start' ? node.data.slice(0, offset) : node.data.slice(offset)).trim() !== '';

// The picture, the island and the like that a deletion at a caret means.
function thingBeside({ startContainer, startOffset }, side) {
  const back = side === 'start';
  const found = beside(
    startContainer, startOffset, back ? 'previousSibling' : 'nextSibling');
  return found?.object ?? null;
}
function removeBeside(thing) {
  const range = document.createRange();
  range.selectNode(thing);
  remove(range);
}

// A deletion at a caret that is not the engine's. Tells whether there is one, and what carries it
// out.
export function joining(range, side) {
  if (isWithinText(range, side)) return null;
  const unit = unitsIn(range)[0];
  if (!unit || !range.collapsed) return null;
  const thing = thingBeside(range, side);
  if (thing) return () => removeBeside(thing);
  return atEdge(range, unit, side) ? joiningAtEdge(unit, side) : null;
}
function joiningAtEdge(unit, side) {
  const back = side === 'start';
  if (back && startsItem(unit)) return () => lists.leave(unit);
  const anchor = unit.block || (back ? unit.nodes[0] : unit.nodes.at(-1)) || unit.container;
  const leaf = leafBeside(anchor, back ? 'previousSibling' : 'nextSibling');
  if (!leaf || leaf.tagName === 'TABLE') return () => {};
  if (dom.isBlock(leaf) && dom.isAtom(leaf)) return () => leaf.remove();
  const other = unitOfLeaf(leaf);
  if (!other || sameUnit(unit, other)) return null;
  return back ? () => joinAt(other, unit) : () => joinAt(unit, other);
}

// The break that is an empty line of bare text, where the run begins or ends with one. An item's
// or a cell's only line is that item or cell.
function emptyLine({ block, nodes, container }, side) {
  const [edge, inner] = side === 'start' ? nodes : [nodes.at(-1), nodes.at(-2)];
  if (block || lists.isItem(container) || !dom.isBreak(edge)) return null;
  if (!dom.neighbour(edge, 'previousSibling') && !dom.neighbour(edge, 'nextSibling')) return null;
  return side === 'start' || !inner || dom.isBreak(inner) ? edge : null;
}

function trimEdges(first, second) {
  blanks.trimEdges(first.nodes.length ? dom.lastLeaf(first.nodes.at(-1)) : null,
    second.nodes.length ? dom.firstLeaf(second.nodes[0]) : null);
}

function joinAt(first, second) {
  clearBetween(first, second);
  const above = emptyLine(first, 'end') ?? (hollow(first) ? first.block : null);
  const below = emptyLine(second, 'start') ?? (hollow(second) ? second.block : null);
  // Bare text has the emptied paragraph for its own.
  const takesIn = !second.block && above?.tagName === 'P';
  const emptied = takesIn ? null : above ?? below;
  if (takesIn) above.replaceChildren();
  if (!emptied) {
    trimEdges(first, second);
    selection.setCaret(...selection.pointOf(join(first, second)));
    return;
  }
  const { parentNode } = emptied;
  dropBlock(emptied);
  const place = emptied === above ? selection.startOf(second.nodes[0] ?? second.container)
    : selection.endOf(first.nodes.at(-1) ?? first.container);
  removeEmptied(parentNode);
  selection.setCaret(...selection.pointOf(place));
}
function startsItem(unit) {
  const item = lists.itemOf(unit);
  if (!item) return false;
  const first = [...item.childNodes].find(dom.isShown);
  return !first || first === unit.nodes[0] || first === unit.block || item === unit.block;
}

// Takes the ends of the selection into the blocks that it means, for the engine to type over.
export const tighten = (range) => { if (!range.collapsed) select(inward(range)); };

