// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Lists: paragraphs become items, a list becomes one of another kind, items go a level deeper or
// higher, items become paragraphs again. What is done to a group (items.js) is done to all of its
// items at once. `outer` is the tag of a list (OL, UL,
// DIR, MENU, DL), `inner` the tag of its items (LI, DT, DD).
import {
  groupNeighbours, groupsOf, isContinuation, isItem, isListOf, itemOf, itemsIn, itemsOf,
} from './items.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import { holdOpen } from '../page/lines.js';
import * as selection from '../page/selection.js';
import {
  dropInnerLines, joinLists, moveBehind, moveToEnd, removeList, setCutList,
} from '../page/sourceLines.js';
import { enclose, unitsIn } from '../page/units.js';

// Old pages have lists directly in lists. Moves such a list into the item before it, or into an
// item of its own where there is none; the same for the lists around it.
/** @param {AnyNode} list */
function moveIntoItem(list) {
  while (dom.isElement(list?.parentNode) && dom.isList(list) && dom.isList(list.parentNode)) {
    const before = dom.neighbour(list, 'previousSibling');
    if (isItem(before)) before.append(list);
    else dom.wrap([list], dom.create('LI'));
    list = list.parentNode.parentNode;
  }
}

// Cuts a list in up to three, so that the group is all that one of them holds; answers that one.
/** @param {AnyNode[]} group */
function cutOutList(group) {
  let list = group[0].parentNode;
  const behind = dom.neighbour(group.at(-1), 'nextSibling');
  if (behind) setCutList(list, dom.splitBefore(behind, list));
  if (dom.neighbour(group[0], 'previousSibling')) {
    const first = list;
    list = dom.splitBefore(group[0], first);
    setCutList(first, list);
  }
  return list;
}

// Joins a list with the lists beside it, where they are alike; answers the list that is left.
/** @param {AnyNode} list */
function joinNeighbours(list) {
  const before = dom.neighbour(list, 'previousSibling');
  const after = dom.neighbour(list, 'nextSibling');
  if (isContinuation(before, list)) {
    joinLists(before, list);
    list = before;
  }
  if (isContinuation(list, after)) joinLists(list, after);
  return list;
}

// Moves an item's `align` to a new division around its content: an item has none.
/** @param {Element} item */
function moveAlignInside(item) {
  const side = item.getAttribute('align');
  if (!side) return;
  history.attributesOf(item);
  item.removeAttribute('align');
  const division = dom.create('DIV', { align: side });
  division.append(...item.childNodes);
  item.append(division);
}

// A box outside the flow of the text stays where it is; its text becomes the item.
/** @param {Unit} unit */
const isBox = ({ block, nodes }) =>
  nodes.length > 0 && block?.tagName === 'DIV' && dom.isObject(block);

// Makes an item of one paragraph, not in any list yet; answers the item.
/**
 * @param {Unit} unit
 * @param {string} inner
 */
function makeItem(unit, inner) {
  const block = isBox(unit) ? null : unit.block;
  return block ? makeItemOf(block, inner) : enclose(unit, dom.create(inner));
}
// The same of a block.
/**
 * @param {Element} block
 * @param {string} inner
 */
function makeItemOf(block, inner) {
  if (block.tagName !== 'P' && block.tagName !== 'DIV') {
    return dom.wrap([block], dom.create(inner));
  }
  const item = dom.rename(block, inner);
  moveAlignInside(item);
  return item;
}

/**
 * Makes every paragraph an item of a list of that kind. Items of another kind of list change kind
 * with their list, which is cut for that where it holds others too.
 * @param {Unit[]} units
 * @param {string} outer
 * @param {string} inner
 */
export function makeItems(units, outer, inner) {
  const definition = outer === 'DL';
  /** @param {AnyNode[]} group */
  const fits = (group) => group[0].parentNode.tagName === 'DL' === definition;
  const loose = groupsOf(units).filter((group) => !fits(group)).flatMap(takeOutOfList);
  for (const group of groupNeighbours(itemsOf(units)).filter(fits)) {
    if (definition) for (const item of group) dom.rename(item, inner);
    else changeListKind(group, outer);
  }
  // A term holds no list.
  /** @param {AnyNode} block */
  const asItem = (block) =>
    makeItemOf(block, definition && isListOf(block) ? 'DD' : inner);
  const fresh = units.filter((unit) => !itemOf(unit) && !loose.includes(unit.block) &&
    (unit.block ?? unit.container).isConnected);
  const items = [...loose.map(asItem), ...fresh.map((unit) => makeItem(unit, inner))];
  /** @param {AnyNode} item */
  const isInList = (item) => isListOf(item.parentNode);
  wrapInLists(items.filter((item) => !isInList(item)).sort(inOrder), outer);
  // What stood in a list without being an item of it.
  groupNeighbours(items.filter(isInList).sort(inOrder))
    .forEach((group) => changeListKind(group, outer));
}
// Cuts the group's list out and makes it a list of that kind.
/**
 * @param {AnyNode[]} group
 * @param {string} outer
 */
function changeListKind(group, outer) {
  if (group[0].parentNode.tagName === outer) return;
  moveIntoItem(group[0].parentNode);
  joinNeighbours(dom.rename(cutOutList(group), outer));
}
/**
 * @param {Node} one
 * @param {Node} other
 */
const inOrder = (one, other) =>
  (one.compareDocumentPosition(other) & Node.DOCUMENT_POSITION_FOLLOWING ? -1 : 1);

// Puts items that stand in no list into new ones: neighbours into one list.
/**
 * @param {AnyNode[]} items
 * @param {string} outer
 */
function wrapInLists(items, outer) {
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
/** @param {AnyNode} node */
const isLine = (node) => dom.isPlainDivision(node) && ![...node.children].some(dom.isBlock);

// Makes an item into paragraphs, in the place where it stands; answers those.
/** @param {AnyNode} item */
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
  if (!shown.some(dom.isBlock)) {
    const paragraph = dom.rename(item, 'P');
    holdOpen(paragraph);
    return [paragraph];
  }
  const blocks = [];
  /** @type {AnyNode[]} */
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

// Makes the items of a group into paragraphs where their list stands; answers the paragraphs.
/** @param {AnyNode[]} group */
function takeOutOfList(group) {
  const list = cutOutList(group);
  dropInnerLines(list);
  const paragraphs = group.flatMap(toParagraphs);
  dom.unwrap(list);
  return paragraphs;
}

/**
 * Where the items go that followed a group which leaves its list (`tail`). `last`: the group's last
 * item. Answers the item that the tail is in then.
 * @typedef {(last: Element, list: Element, tail: Node[]) => Element} PutTail
 */

// They become a list in the group's last item.
/** @type {PutTail} */
function putTailIntoLast(last, list, tail) {
  const isWhole = itemsIn(list).every((item) => tail.includes(item));
  /** @type {AnyNode} */
  const own = [...last.childNodes].filter(dom.isShown).at(-1);
  if (isWhole && own?.tagName !== list.tagName) last.append(list);
  else sublistAtEnd(last, list).append(...tail);
  return last;
}
// They stay as deep as they are, in a new item behind it.
/** @type {PutTail} */
function putTailIntoNewItem(last, list, tail) {
  const rest = dom.twin(list);
  rest.append(...tail);
  const item = dom.create('LI');
  item.append(rest);
  last.after(item);
  return item;
}

// Moves a group of a nested list one level out. `putTail` is one of the two functions above.
/**
 * @param {AnyNode[]} group
 * @param {PutTail} putTail
 */
function moveOneLevelOut(group, putTail) {
  const list = group[0].parentNode;
  const outer = list.parentNode;
  const last = group.at(-1);
  const tail = [];
  for (let at = last.nextSibling; at; at = at.nextSibling) tail.push(at);
  const behind = [];
  if (outer.tagName === 'LI') {
    for (let at = list.nextSibling; at; at = at.nextSibling) behind.push(at);
  }
  moveBehind(outer.tagName === 'LI' ? outer : list, group);
  const end = tail.some(dom.isShown) ? putTail(last, list, tail) : last;
  if (behind.some(dom.isShown)) end.append(...ownLine(end, behind));
  if (!itemsIn(list).length) removeList(list);
  if (outer.tagName === 'LI' && !dom.hasContent(outer) && !holdsNamed(outer)) outer.remove();
}

// Nodes that are to stand behind the content of an item, their first line in a division where it
// would run into the item's text else.
/**
 * @param {AnyNode} item
 * @param {AnyNode[]} nodes
 */
function ownLine(item, nodes) {
  const ends = [...item.childNodes].reverse().find(dom.isShown);
  /** @param {AnyNode} node */
  const bare = (node) => !dom.isBlock(node);
  if (!ends || !bare(ends) || !bare(nodes.find(dom.isShown))) return nodes;
  const stop = nodes.findIndex(dom.isBlock);
  const line = nodes.slice(0, stop < 0 ? nodes.length : stop);
  return [dom.wrap(line, dom.create('DIV')), ...nodes.slice(line.length)];
}

// The list of a kind (that of `like`) at an item's end, made where there is none.
/**
 * @param {AnyNode} item
 * @param {Element} like
 */
function sublistAtEnd(item, like) {
  const shown = [...item.childNodes].filter(dom.isShown).at(-1);
  if (shown?.tagName === like.tagName) return shown;
  const list = dom.create(like.tagName);
  item.append(list);
  return list;
}

/** @param {AnyNode} item */
const isNested = (item) => {
  const outer = item.parentNode.parentNode;
  return outer.tagName === 'LI' || dom.isList(outer);
};

/**
 * Moves a group into a list in the item before it. False for the first items of a list, which have
 * no item before them: nothing is changed then.
 * @param {AnyNode[]} group
 * @returns {boolean}
 */
export function nest(group) {
  moveIntoItem(group[0].parentNode);
  const beside = dom.neighbour(group[0], 'previousSibling');
  if (dom.isList(beside)) moveIntoItem(beside);
  const before = dom.neighbour(group[0], 'previousSibling');
  if (!isItem(before)) return false;
  moveToEnd(sublistAtEnd(before, group[0].parentNode), group);
  return true;
}

// True for an item that is kept though it has no text: it may hold an icon, a link or a link's
// target.
/** @param {Element} item */
const holdsNamed = (item) => item.querySelector('[id], [name], [href], [class]') !== null;

/**
 * Takes a group one level out: to the list around its list, or out of all lists as paragraphs.
 * @param {AnyNode[]} group
 * @param {PutTail} [putTail] where the items go
 *   that followed the group in its list
 */
export function outdent(group, putTail = putTailIntoLast) {
  moveIntoItem(group[0].parentNode);
  if (group[0].tagName === 'LI' && isNested(group[0])) moveOneLevelOut(group, putTail);
  else takeOutOfList(group);
}

/**
 * Takes the item that a paragraph is in one level out. The selection stays in the text it is in.
 * @param {Unit} unit
 */
export function outdentItemOf(unit) {
  const saved = selection.save();
  groupsOf([unit]).forEach((group) => outdent(group));
  selection.restore(saved);
}

/**
 * Takes every paragraph of the selection out of all lists. Elements change on the way, so the
 * paragraphs are read anew for each level.
 */
export function unlist() {
  for (let level = 0; level < 50; level++) {
    const groups = groupsOf(unitsIn(selection.range()));
    if (!groups.length) return;
    const saved = selection.save();
    groups.forEach((group) => outdent(group, putTailIntoNewItem));
    selection.restore(saved);
  }
}

/**
 * Old pages have text directly in lists. Makes an item of such text among the paragraphs, and puts
 * the selection back to `saved`. Answers the selection's paragraphs as they are then.
 * @param {Unit[]} units
 * @param {SavedSelection} saved
 * @returns {Unit[]}
 */
export function wrapStrayText(units, saved) {
  const stray = units.filter(({ container, nodes }) => dom.isList(container) && nodes.length);
  if (!stray.length) return units;
  stray.forEach(({ nodes }) => dom.wrap(nodes, dom.create('LI')));
  selection.restore(saved);
  return unitsIn(selection.range());
}
