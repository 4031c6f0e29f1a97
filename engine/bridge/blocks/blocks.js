// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The block formats (Heading 1, Formatted, Bulleted List ...): which one a paragraph has, and how a
// selection is given another one.
import * as lists from './lists.js';
import { beside, isBlank } from '../page/beside.js';
import * as dom from '../page/dom.js';
import { dropEmptyInline } from '../page/lines.js';
import * as selection from '../page/selection.js';
import { become, changeUnits, readUnits, unitsIn } from '../page/units.js';

/**
 * The block formats, in the order in which lists show them: the published name, the tag of the
 * block and, for an item's format, the tag of the list around it.
 * @typedef {{ name: string, element: string, list?: string }} BlockFormat
 * @type {BlockFormat[]}
 */
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
/** @param {string} name */
const byName = (name) => formats.find((each) => each.name.toLowerCase() === name.toLowerCase());

// The name of the format that an element gives; null or undefined for none.
/** @param {AnyNode} element */
function nameAt(element) {
  const { tagName, parentNode } = element;
  if (/^(LISTING|PLAINTEXT|XMP)$/.test(tagName)) return 'Formatted';
  if (tagName === 'P') return null;
  /** @param {BlockFormat} each */
  const fits = (each) => each.element === tagName &&
    (tagName !== 'LI' || each.list === parentNode.tagName);
  return formats.find(fits)?.name;
}

/**
 * The name of a paragraph's block format.
 * @param {Unit} unit
 * @returns {string}
 */
export function read(unit) {
  /** @type {AnyNode} */
  let at = unit.home;
  for (; at && !dom.isCell(at); at = at.parentNode) {
    const name = nameAt(at);
    if (name) return name;
  }
  return 'Normal';
}

/** @type {(anchor: Anchor) => anchor is TextAnchor} */
const isInText = (anchor) => 'node' in anchor;
/** @param {SavedSelection} [saved] */
const textAnchorsOf = (saved) => (saved ? [saved.anchor, saved.focus].filter(isInText) : []);

/**
 * Makes breaks of the line ends in an element that is no preformatted one any more: line ends show
 * in such text only.
 * @param {Element} element
 * @param {SavedSelection} [saved] its anchors move along
 */
export function breakLines(element, saved) {
  // What is shown behind a text, in the element; null where nothing is.
  /** @param {Text} text */
  const shownBehind = (text) => {
    let at = dom.nextSkippingChildren(text);
    while (at && element.contains(at) && !(dom.isText(at) ? at.length : dom.hasContent(at))) {
      at = dom.nextSkippingChildren(at);
    }
    return element.contains(at) ? at : null;
  };
  /** @param {Text} text */
  const dropEmpty = (text) => {
    if (text.length) return;
    const next = shownBehind(text);
    text.remove();
    if (!saved) return;
    for (const end of /** @type {const} */ (['anchor', 'focus'])) {
      const anchor = saved[end];
      if (!isInText(anchor) || anchor.node !== text) continue;
      saved[end] = next ? selection.startOf(next) : selection.endOf(element);
    }
  };
  const anchors = textAnchorsOf(saved);
  for (let text of dom.textsUnder(element)) {
    for (let at = text.data.indexOf('\n'); at >= 0; at = text.data.indexOf('\n')) {
      const rest = text.splitText(at);
      rest.deleteData(0, 1);
      const moved = anchors.filter((anchor) => anchor.node === text && anchor.offset > at);
      for (const anchor of moved) {
        Object.assign(anchor, { node: rest, offset: anchor.offset - at - 1 });
      }
      // The last line end shows nothing, unless its line is empty.
      const isEmptyLine = at === 0 && beside(text, 0, 'previousSibling') === null;
      if (rest.length || shownBehind(rest) || isEmptyLine) text.after(dom.create('BR'));
      dropEmpty(text);
      text = rest;
    }
    dropEmpty(text);
  }
}

// Leaves of white space what was seen of it, in an element that becomes preformatted: there all of
// it shows. The anchors of `saved` move along.
/**
 * @param {Element} element
 * @param {SavedSelection} saved
 */
function collapseBlanks(element, saved) {
  const anchors = textAnchorsOf(saved);
  for (const text of dom.textsUnder(element)) {
    if (!dom.ancestor(text, dom.isAtom)) collapseText(text, anchors);
  }
}
/**
 * The same of a text.
 * @param {Text} text
 * @param {TextAnchor[]} [anchors]
 */
export function collapseText(text, anchors = []) {
  for (let at = text.length - 1; at >= 0; at--) {
    if (!isBlank({ node: text, index: at })) continue;
    const before = beside(text, at, 'previousSibling');
    const shows = before && !isBlank(before) && beside(text, at + 1, 'nextSibling') !== null;
    if (shows) text.insertData(at + 1, ' ');
    text.deleteData(at, 1);
    const moved = shows ? [] : anchors.filter(({ node, offset }) => node === text && offset > at);
    for (const anchor of moved) anchor.offset -= 1;
  }
  if (!anchors.some(({ node }) => node === text)) dropEmptyInline(text);
}

// Gives one paragraph the block of a format; answers that block, null where nothing is to be done.
/**
 * @param {Unit} unit
 * @param {BlockFormat} format
 * @param {SavedSelection} saved
 */
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

// Joins blocks that are neighbours into one, as lines of it (a preformatted text, an address).
// `lineEnd` makes what goes between two lines.
/**
 * @param {AnyNode[]} blocks
 * @param {() => ChildNode} lineEnd
 */
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

// Makes a heading, address or preformatted text a plain paragraph, or bare text of its item where
// it is all of that: an item is no heading.
/**
 * @param {Unit} unit
 * @param {SavedSelection} saved
 */
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

/**
 * False for a table or a rule that is selected as a whole: it has no text to format.
 * @param {Unit} unit
 */
export const takesFormat = ({ object }) =>
  !object || (!dom.isAtom(object) && object.tagName !== 'TABLE');

// Makes items of the selected paragraphs. Those of definition lists in other lists, and the other
// way round, leave theirs one level at a time.
/**
 * @param {BlockFormat} format
 * @param {SavedSelection} saved
 */
function makeList({ name, list, element }, saved) {
  for (let level = 0; level < 50; level++) {
    selection.restore(saved);
    const units = unitsIn(selection.range());
    if (units.every((unit) => read(unit) === name)) return;
    lists.makeItems(readUnits(units), list, element);
  }
}

/**
 * Gives the selected paragraphs a block format and keeps the selection; nothing for an unknown
 * name.
 * @param {string} name as published, in any case
 */
export function apply(name) {
  const format = byName(name);
  if (!format) return;
  const saved = selection.save();
  changeUnits(saved, (units) => applyTo(units, format, saved));
}
/**
 * @param {Unit[]} found
 * @param {BlockFormat} format
 * @param {SavedSelection} saved
 */
function applyTo(found, format, saved) {
  const units = lists.wrapStrayText(found, saved).filter(takesFormat);
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

