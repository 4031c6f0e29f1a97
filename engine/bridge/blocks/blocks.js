// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The block formats: how a unit's is named and how a unit is given another one.
import * as lists from './lists.js';
import { beside, isBlank } from '../page/beside.js';
import * as dom from '../page/dom.js';
import * as selection from '../page/selection.js';
import { become, changeUnits, readUnits, unitsIn } from '../page/units.js';

// In the order in which lists show them. `list` is the element around the items.
/** @type {{ name: string, element: string, list?: string }[]} */
export const formats = [
  { name: 'Normal', element: 'P' },
  { name: 'Formatted', element: 'PRE' },
  { name: 'Address', element: 'ADDRESS' },
  { name: 'Heading 1', element: 'H1' },
  { name: 'Heading 2', element: 'H2' },
  { name: 'Heading 3', element: 'H3' },
  { name: 'Heading 4', element: 'H4' },
  { name: 'Heading 5', element: 'H5' },
  { name: 'Heading 6', element: 'H6' },
  { name: 'Numbered List', element: 'LI', list: 'OL' },
  { name: 'Bulleted List', element: 'LI', list: 'UL' },
  { name: 'Directory List', element: 'LI', list: 'DIR' },
  { name: 'Menu List', element: 'LI', list: 'MENU' },
  { name: 'Definition Term', element: 'DT', list: 'DL' },
  { name: 'Definition', element: 'DD', list: 'DL' },
  { name: 'Paragraph', element: 'P' },
];
const byName = (name) => formats.find((each) => each.name.toLowerCase() === name.toLowerCase());

function nameAt(element) {
  const { tagName, parentNode } = element;
  if (/^(LISTING|PLAINTEXT|XMP)$/.test(tagName)) return 'Formatted';
  if (tagName === 'P') return null;
  const fits = (each) => each.element === tagName &&
    (tagName !== 'LI' || each.list === parentNode.tagName);
  return formats.find(fits)?.name;
}

export function read(unit) {
  for (let at = unit.home; at && !dom.isCell(at); at = at.parentNode) {
    const name = nameAt(at);
    if (name) return name;
  }
  return 'Normal';
}

// Line ends show in preformatted text only; elsewhere they are breaks. Kept anchors go along.
export function breakLines(element, saved) {
  const goesOn = (text) => {
    if (text.length) return true;
    let at = dom.nextSkippingChildren(text);
    while (at && element.contains(at) && !(dom.isText(at) ? at.length : dom.hasContent(at))) {
      at = dom.nextSkippingChildren(at);
    }
    return Boolean(at) && element.contains(at);
  };
  const anchors = saved ? [saved.anchor, saved.focus] : [];
  for (let text of dom.textsUnder(element)) {
    for (let at = text.data.indexOf('\n'); at >= 0; at = text.data.indexOf('\n')) {
      const rest = text.splitText(at);
      rest.deleteData(0, 1);
      const moved = anchors.filter((anchor) => anchor.node === text && anchor.offset > at);
      for (const anchor of moved) {
        Object.assign(anchor, { node: rest, offset: anchor.offset - at - 1 });
      }
      if (goesOn(rest)) text.after(dom.create('BR'));
      if (!text.length) text.remove();
      text = rest;
    }
    if (!text.length) text.remove();
  }
}

// White space shows as it stands in preformatted text: what was seen of it is left. The selection's
// anchors in it go along.
function collapseBlanks(element, saved) {
  const anchors = saved ? [saved.anchor, saved.focus] : [];
  const walker = document.createTreeWalker(element, NodeFilter.SHOW_TEXT);
  while (walker.nextNode()) {
    const text = /** @type {Text} */ (walker.currentNode);
    if (!dom.ancestor(text, dom.isAtom)) collapseText(text, anchors);
  }
}
function collapseText(text, anchors) {
  for (let at = text.length - 1; at >= 0; at--) {
    if (!isBlank({ node: text, index: at })) continue;
    const before = beside(text, at, 'previousSibling');
    const shows = before && !isBlank(before) && beside(text, at + 1, 'nextSibling') !== null;
    if (shows) text.insertData(at + 1, ' ');
    text.deleteData(at, 1);
    const moved = shows ? [] : anchors.filter(({ node, offset }) => node === text && offset > at);
    for (const anchor of moved) anchor.offset -= 1;
  }
}

function becomeParagraph(unit, { name, element: tag }, saved) {
  const { block, container } = unit;
  if (block?.tagName === tag) return block;
  if (name === 'Normal') {
    const formed = block && (dom.isParagraph(block));
    if (!formed) return null;
  }
  const inside = dom.ancestor(block || container, (node) => node.tagName === tag, dom.isCell);
  if (inside && tag !== 'P') return null;
  const preformatted = dom.isPreformatted(block);
  const element = become(unit, tag);
  if (tag === 'PRE' && !preformatted) collapseBlanks(element, saved);
  if (preformatted) breakLines(element, saved);
  return element;
}

// Several paragraphs are the lines of one preformatted text, or of one address.
function joinLines(blocks, lineEnd) {
  for (const [index, block] of blocks.entries()) {
    const above = blocks[index - 1];
    const follows = above && dom.neighbour(above, 'nextSibling') === block;
    if (!follows || block.attributes.length) continue;
    if (dom.isText(above.nextSibling)) above.nextSibling.remove();
    if (!dom.isBreak(above.lastChild)) above.append(lineEnd());
    above.append(...block.childNodes);
    block.remove();
    blocks[index] = above;
  }
}
const lineEnds = new Map(/** @type {[tag: string, make: () => ChildNode][]} */ ([
  ['PRE', () => document.createTextNode('\n')], ['ADDRESS', () => dom.create('BR')],
]));

// A format chosen by name takes the place of the one that is there: an item is no heading then.
function becomePlain({ block }, saved) {
  if (!block || !dom.isParagraph(block) || /^(P|DT)$/.test(block.tagName)) return;
  const preformatted = dom.isPreformatted(block);
  const paragraph = dom.rename(block, 'P');
  if (preformatted) breakLines(paragraph, saved);
  const item = paragraph.parentNode;
  const alone = /^(LI|DT|DD)$/.test(item.tagName) && !paragraph.attributes.length &&
    !dom.neighbour(paragraph, 'previousSibling') && !dom.neighbour(paragraph, 'nextSibling');
  if (alone) dom.unwrap(paragraph);
}

// A table or a rule that is selected has no text to format.
export const takesFormat = ({ object }) =>
  !object || (!dom.isAtom(object) && object.tagName !== 'TABLE');

// Lists of the other kind are left one level at a time.
/** @param {{ name: string, element: string, list?: string }} format */
function makeList({ name, list, element }, saved) {
  for (let level = 0; level < 50; level++) {
    selection.restore(saved);
    const units = unitsIn(selection.range());
    if (units.every((unit) => read(unit) === name)) return;
    lists.make(readUnits(units), list, element);
  }
}

export function apply(name) {
  const format = byName(name);
  if (!format) return;
  const saved = selection.save();
  changeUnits(saved, (units) => give(format, units, saved));
}
function give(format, found, saved) {
  const units = lists.housed(found, saved).filter(takesFormat);
  if (!units.length) return;
  if (units.every((unit) => read(unit) === format.name)) return;
  if (format.list) {
    units.forEach((unit) => becomePlain(unit, saved));
    makeList(format, saved);
  } else if (format.element === 'P') {
    lists.unlist();
    unitsIn(selection.range())
      .forEach((unit) => becomeParagraph(unit, format, saved));
  } else {
    const made = units.map((unit) => becomeParagraph(unit, format, saved)).filter(Boolean);
    const lineEnd = lineEnds.get(format.element);
    if (lineEnd) joinLines(made, lineEnd);
  }
}

