// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Lists: made of paragraphs, changed into another kind, moved in and out, taken apart again.
import { moveBlankAbove } from '../page/blanks.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import { holdOpen, dropEmptyInline } from '../page/lines.js';
import * as selection from '../page/selection.js';
import { dropInnerLines } from '../page/sourceLines.js';
import { enclose, itemAround, unitsIn } from '../page/units.js';

const isListOf = (node) => dom.isElement(node) && (dom.isList(node) || node.tagName === 'DL');
export const isItem = (node) =>
  dom.isElement(node) && /^(LI|DT|DD)$/.test(node.tagName) && isListOf(node.parentNode);
export const itemOf = (unit) => itemAround(unit, isItem);

const itemsIn = (list) => [...list.children].filter(isItem);

const itemsOf = (units) => new Set(units.map(itemOf).filter(Boolean));

// Items in document order, grouped by neighbourhood.
function grouped(items) {
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

// The groups of the units' items, those in another one of them left out.
export function groupsOf(units) {
  const items = itemsOf(units);
  const within = (item) => {
    for (let at = item.parentNode; at; at = at.parentNode) if (items.has(at)) return true;
    return false;
  };
  return grouped([...items].filter((item) => !within(item)));
}

// Old pages have lists directly in lists: such a list belongs to the item before it, or to one of
// its own. What is touched is put right.
function adopt(list) {
  while (dom.isElement(list?.parentNode) && dom.isList(list) && dom.isList(list.parentNode)) {
    const before = dom.neighbour(list, 'previousSibling');
    if (isItem(before)) before.append(list);
    else dom.wrap([list], dom.create('LI'));
    list = list.parentNode.parentNode;
  }
}

// Cuts a list so that the group is all that it holds; returns that list.
function isolate(group) {
  let list = group[0].parentNode;
  const behind = dom.neighbour(group.at(-1), 'nextSibling');
  if (behind) dom.splitBefore(behind, list);
  if (dom.neighbour(group[0], 'previousSibling')) list = dom.splitBefore(group[0], list);
  return list;
}

/** True where the second of two lists beside each other can be joined to the first. */
export const isContinuation = (first, second) =>
  dom.isElement(first) && dom.isElement(second) && first.tagName === second.tagName &&
  (dom.sameAttributes(first, second) || !second.attributes.length);

// Joins a list with the lists beside it that it continues, or that continue it.
function joinNeighbours(list) {
  const before = dom.neighbour(list, 'previousSibling');
  const after = dom.neighbour(list, 'nextSibling');
  if (isContinuation(before, list)) {
    dom.absorb(before, list);
    list = before;
  }
  if (isContinuation(list, after)) dom.absorb(list, after);
  return list;
}

// An item's alignment is carried by a division in it.
function alignInside(item) {
  const side = item.getAttribute('align');
  if (!side) return;
  history.attributesOf(item);
  item.removeAttribute('align');
  const division = dom.create('DIV', { align: side });
  division.append(...item.childNodes);
  item.append(division);
}

// A box with a place of its own stays where it is; its text becomes the item.
const isBox = ({ block, nodes }) =>
  nodes.length > 0 && block?.tagName === 'DIV' && dom.isObject(block);

function makeItem(unit, inner) {
  const block = isBox(unit) ? null : unit.block;
  if (block && (block.tagName === 'P' || block.tagName === 'DIV')) {
    const item = dom.rename(block, inner);
    alignInside(item);
    return item;
  }
  const item = dom.create(inner);
  if (block) return dom.wrap([block], item);
  return enclose(unit, item);
}

// Makes every unit an item `inner` of a list `outer`.
export function make(units, outer, inner) {
  const definition = outer === 'DL';
  const fits = ([item]) => item.parentNode.tagName === 'DL' === definition;
  const loose = groupsOf(units).filter((group) => !fits(group)).flatMap(release);
  for (const group of grouped(itemsOf(units)).filter(fits)) {
    if (definition) group.forEach((item) => dom.rename(item, inner));
    else convert(group, outer);
  }
  // A term holds no list.
  const asItem = (block) =>
    makeItem({ block, nodes: [] }, definition && isListOf(block) ? 'DD' : inner);
  const fresh = units.filter((unit) => !itemOf(unit) && !loose.includes(unit.block) &&
    (unit.block ?? unit.container).isConnected);
  const items = [...loose.map(asItem), ...fresh.map((unit) => makeItem(unit, inner))];
  const isInList = (item) => isListOf(item.parentNode);
  gather(items.filter((item) => !isInList(item)).sort(inOrder), outer);
  // What stood in a list without being an item of it.
  grouped(items.filter(isInList).sort(inOrder)).forEach((group) => convert(group, outer));
}
function convert(group, outer) {
  if (group[0].parentNode.tagName === outer) return;
  adopt(group[0].parentNode);
  joinNeighbours(dom.rename(isolate(group), outer));
}
const inOrder = (one, other) =>
  (one.compareDocumentPosition(other) & Node.DOCUMENT_POSITION_FOLLOWING ? -1 : 1);

// Puts neighbouring items that stand outside any list into one.
function gather(items, outer) {
  let list = null;
  let last = null;
  for (const item of items) {
    if (list && dom.neighbour(list, 'nextSibling') === item) {
      for (let at = list.nextSibling; at !== item; at = list.nextSibling) list.append(at);
      list.append(item);
    } else {
      if (list) joinNeighbours(list);
      list = dom.wrap([item], dom.create(outer));
    }
    last = item;
  }
  if (last) joinNeighbours(list);
}

// A division that is a line of an item.
const isLine = (node) => dom.isPlainDivision(node) && ![...node.children].some(dom.isBlock);

// Makes items that stand in no list into paragraphs; returns those.
function toParagraphs(item) {
  const shown = [...item.childNodes].filter(dom.isShown);
  const [only] = shown;
  if (shown.length === 1 && isLine(only)) {
    const paragraph = dom.rename(only, 'P');
    dom.unwrap(item);
    return [paragraph];
  }
  history.attributesOf(item);
  for (const name of ['value', 'type']) item.removeAttribute(name);
  if (!shown.some(dom.isBlock)) return [dom.rename(item, 'P')];
  const blocks = [];
  let run = [];
  const flush = () => {
    while (run.length && !dom.isShown(run.at(-1))) run.pop();
    if (run.length) blocks.push(dom.wrap(run, dom.create('P')));
    run = [];
  };
  for (const child of [...item.childNodes]) {
    if (dom.isBlock(child)) {
      flush();
      blocks.push(isLine(child) ? dom.rename(child, 'P') : child);
    } else if (run.length || dom.isShown(child)) {
      run.push(child);
    }
  }
  flush();
  dom.unwrap(item);
  return blocks;
}

// Takes items of one list out of it, to where the list stands; returns the paragraphs.
function release(group) {
  const list = isolate(group);
  const paragraphs = group.flatMap(toParagraphs);
  dropInnerLines(list);
  dom.unwrap(list);
  return paragraphs;
}

// What followed items that leave their list becomes theirs, or stays on its level in an item of its
// own. Returns the item that it is in.
function toLast(last, list, tail) {
  const isWhole = itemsIn(list).every((item) => tail.includes(item));
  const own = [...last.childNodes].filter(dom.isShown).at(-1);
  if (isWhole && own?.tagName !== list.tagName) last.append(list);
  else sublist(last, list).append(...tail);
  return last;
}
function toOwnItem(last, list, tail) {
  const rest = dom.twin(list);
  rest.append(...tail);
  const item = dom.create('LI');
  item.append(rest);
  last.after(item);
  return item;
}

// Moves items of a nested list one level out.
function lift(group, putTail) {
  const list = group[0].parentNode;
  const outer = list.parentNode;
  const last = group.at(-1);
  const tail = [];
  for (let at = last.nextSibling; at; at = at.nextSibling) tail.push(at);
  const behind = [];
  if (outer.tagName === 'LI') {
    for (let at = list.nextSibling; at; at = at.nextSibling) behind.push(at);
  }
  (outer.tagName === 'LI' ? outer : list).after(...group);
  const end = tail.some(dom.isShown) ? putTail(last, list, tail) : last;
  if (behind.some(dom.isShown)) end.append(...ownLine(end, behind));
  if (!itemsIn(list).length) list.remove();
  if (outer.tagName === 'LI' && !dom.hasContent(outer) && !holdsNamed(outer)) outer.remove();
}

// What followed a list as text would run into the text of the item that takes it in.
function ownLine(item, nodes) {
  const ends = [...item.childNodes].reverse().find(dom.isShown);
  const bare = (node) => !dom.isBlock(node);
  if (!ends || !bare(ends) || !bare(nodes.find(dom.isShown))) return nodes;
  const stop = nodes.findIndex(dom.isBlock);
  const line = nodes.slice(0, stop < 0 ? nodes.length : stop);
  return [dom.wrap(line, dom.create('DIV')), ...nodes.slice(line.length)];
}

// The list at an item's end that takes further items of a list's kind.
function sublist(item, like) {
  const shown = [...item.childNodes].filter(dom.isShown).at(-1);
  if (shown?.tagName === like.tagName) return shown;
  const list = dom.create(like.tagName);
  item.append(list);
  return list;
}

const isNested = (item) => {
  const outer = item.parentNode.parentNode;
  return outer.tagName === 'LI' || dom.isList(outer);
};

// Nests items in the item before them. False for the first items of a list, which have none.
export function nest(group) {
  adopt(group[0].parentNode);
  const beside = dom.neighbour(group[0], 'previousSibling');
  if (dom.isList(beside)) adopt(beside);
  const before = dom.neighbour(group[0], 'previousSibling');
  if (!isItem(before)) return false;
  sublist(before, group[0].parentNode).append(...group);
  return true;
}

// What has no text may be an icon, a link or a link's target.
const holdsNamed = (item) => item.querySelector('[id], [name], [href], [class]') !== null;

export function outdent(group, putTail = toLast) {
  adopt(group[0].parentNode);
  if (group[0].tagName === 'LI' && isNested(group[0])) lift(group, putTail);
  else release(group);
}

// Takes the item that the caret is in one level out.
export function leave(unit) {
  const saved = selection.save();
  groupsOf([unit]).forEach((group) => outdent(group));
  selection.restore(saved);
}

// Cuts an item in two at the caret, where its text stands in a block with more behind it: the
// engine would take the text past that.
export function split(item) {
  const mark = document.createTextNode('');
  selection.range().insertNode(mark);
  dom.splitBefore(mark, item);
  const below = dom.blockOf(mark);
  const above = below === item.nextSibling ? item : item.lastChild;
  dropEmptyInline(dom.lastLeaf(above));
  dropEmptyInline(mark);
  moveBlankAbove(above, below);
  holdOpen(above);
  holdOpen(below);
  selection.setCaret(...selection.pointOf(selection.startOf(below)));
}

// Takes every unit of the selection out of all lists. Elements change on the way, so the units
// are read anew for each level.
export function unlist() {
  for (let level = 0; level < 50; level++) {
    const groups = groupsOf(unitsIn(selection.range()));
    if (!groups.length) return;
    const saved = selection.save();
    groups.forEach((group) => outdent(group, toOwnItem));
    selection.restore(saved);
  }
}

// Old pages have text directly in lists: what is touched becomes an item. Returns the units as they
// are then.
export function housed(units, saved) {
  const stray = units.filter(({ container, nodes }) => dom.isList(container) && nodes.length);
  if (!stray.length) return units;
  stray.forEach(({ nodes }) => dom.wrap(nodes, dom.create('LI')));
  selection.restore(saved);
  return unitsIn(selection.range());
}

export const tagOf = (unit) => {
  const item = itemAround(unit);
  return item && dom.isList(item.parentNode) ? item.parentNode.tagName : null;
};

