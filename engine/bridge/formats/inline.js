// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Character formats put on selected text. First the elements that carry the format are taken off
// the text, and given back to their other content. Then what does not have the wanted look yet is
// wrapped in as few elements as possible. `chosen` is the set of texts that are formatted, `reads`
// tells whether an element gives the wanted look.
import { formats } from './formats.js';
import { joinTexts, mergeWith } from './merging.js';
import { changeSpan, putOnRun } from './wrapping.js';
import * as dom from '../page/dom.js';
import * as selection from '../page/selection.js';
import { takeInSigns } from '../page/signs.js';
import { splitText } from '../page/standIns.js';

// Cuts the texts at the ends of the range in two, so that all that is selected is whole texts;
// answers those.
/** @param {Range} range */
function splitTextsAtEnds(range) {
  const { startContainer, startOffset, endContainer, endOffset } = range;
  const texts = selection.textsIn(range);
  if (!texts.length) return texts;
  const last = texts.at(-1);
  if (last === endContainer && endOffset < last.length) splitText(last, endOffset);
  if (texts[0] === startContainer && startOffset > 0) texts[0] = splitText(texts[0], startOffset);
  return texts;
}

/**
 * @param {AnyNode} node
 * @returns {Generator<Text>}
 */
const textsUnder = function* (node) {
  if (dom.isText(node)) {
    if (!dom.isIgnorable(node)) yield node;
  } else if (!dom.isNeutral(node) && !dom.isAtom(node)) {
    for (const child of node.childNodes) yield* textsUnder(child);
  }
};

// How much of a node's text is in the set: 'all', 'some' or 'none' of it; 'empty' without text.
/**
 * @param {AnyNode} node
 * @param {Set<Text>} chosen
 */
function coverage(node, chosen) {
  let inside = false;
  let outside = false;
  for (const text of textsUnder(node)) {
    if (chosen.has(text)) inside = true;
    else outside = true;
    if (inside && outside) return 'some';
  }
  if (inside) return 'all';
  return outside ? 'none' : 'empty';
}

// Gives the format that `carrier` loses back to the part of its content that is not chosen.
/**
 * @param {Format} format
 * @param {HTMLElement} carrier
 * @param {Set<Text>} chosen
 */
function pushDown(format, carrier, chosen) {
  /** @param {AnyNode} parent */
  const give = (parent) => {
    /** @type {AnyNode[]} */
    let group = [];
    const flush = () => {
      while (group.length && coverage(group.at(-1), chosen) === 'empty') group.pop();
      while (group.length && coverage(group[0], chosen) === 'empty') group.shift();
      if (group.length) dom.wrap(group, format.shell(carrier));
      group = [];
    };
    for (const child of [...parent.childNodes]) {
      const cover = coverage(child, chosen);
      const plain = !dom.isBlock(child) && !format.carries(child) && !holdsBlock(child);
      if (plain && (cover === 'none' || cover === 'empty')) {
        group.push(child);
        continue;
      }
      flush();
      if (cover !== 'all' && cover !== 'empty' && !format.carries(child)) give(child);
    }
    flush();
  };
  give(carrier);
  format.strip(carrier);
}
/**
 * @param {AnyNode} node
 * @returns {boolean}
 */
const holdsBlock = (node) =>
  dom.isInline(node) && !dom.isAtom(node) &&
  [...node.children].some((child) => dom.isBlock(child) || holdsBlock(child));

// What gives the texts another look than the wanted one and is to be taken off them, the outermost
// first: what holds nothing but them, and what stands before an ancestor with the wanted look.
// Another one stays around the new format, as a person would write it; so does what is in a cell
// or table with the look that holds other text too, where an element inside can give another look.
/** @param {Element} element */
const isPartOfTable = ({ tagName }) => /^(TABLE|TBODY|TD|TFOOT|TH|THEAD|TR)$/.test(tagName);
/**
 * @param {Format} format
 * @param {Text[]} texts
 * @param {Set<Text>} chosen
 * @param {Test} reads
 * @param {FormatValue} value
 */
function carriersOf(format, texts, chosen, reads, value) {
  const carriers = new Set();
  const whole = remembered((carrier) => coverage(carrier, chosen) === 'all');
  const canBeInside = format.write(value) !== null;
  /** @param {AnyNode} carrier */
  const stays = (carrier) => canBeInside && isPartOfTable(carrier) && !whole(carrier);
  for (const text of texts) {
    const chain = [];
    let at = text.parentNode;
    for (; !reads(at) && at !== document.body; at = at.parentNode) {
      if (format.carries(at)) chain.unshift(at);
    }
    const isLast = reads(at) && !chain.some(stays);
    for (const carrier of chain) if (isLast || whole(carrier)) carriers.add(carrier);
  }
  return carriers;
}
// The same function, which asks `judge` once only for each node.
/**
 * @template T
 * @param {(node: AnyNode) => T} judge
 * @returns {(node: AnyNode) => T}
 */
function remembered(judge) {
  const known = new Map();
  return (node) => {
    if (!known.has(node)) known.set(node, judge(node));
    return known.get(node);
  };
}

// The outermost inline node around a text that holds chosen texts only; `covers` keeps what is
// known.
/**
 * @param {Text} text
 * @param {Set<Text>} chosen
 * @param {Format} format
 * @param {Map<Node, boolean>} covers
 */
function highest(text, chosen, format, covers) {
  /** @type {Node} */
  let node = text;
  for (let parent = text.parentElement; dom.isInline(parent); parent = parent.parentElement) {
    if (format.insideLinks && parent.tagName === 'A') break;
    if (!covers.has(parent)) {
      const holdsLink = format.insideLinks && parent.querySelector('a[href]');
      covers.set(parent, !holdsLink && !holdsBlock(parent) && coverage(parent, chosen) === 'all');
    }
    if (!covers.get(parent)) break;
    node = parent;
  }
  return node;
}

/** @type {Set<Text>} */
const nothing = new Set();

// Runs of neighbouring nodes; breaks and objects between two of them go along.
/** @param {Iterable<AnyNode>} tops */
function runsOf(tops) {
  /** @type {AnyNode[][]} */
  const runs = [];
  for (const top of tops) {
    const run = runs.at(-1);
    const between = [];
    let at = run?.at(-1).nextSibling;
    while (at && at !== top && !dom.isBlock(at) && !dom.isIsland(at) &&
           (!dom.isText(at) || dom.isBlank(at)) && coverage(at, nothing) === 'empty') {
      between.push(at);
      at = at.nextSibling;
    }
    if (run && at === top) run.push(...between, top);
    else runs.push([top]);
  }
  return runs;
}

// The parents of the texts that give a look which the text has without them too.
/**
 * @param {Format} entry
 * @param {Text[]} texts
 * @param {Set<Text>} chosen
 * @param {Test} reads
 * @returns {AnyNode[]}
 */
function needless(entry, texts, chosen, reads) {
  const whole = remembered((element) => coverage(element, chosen) === 'all');
  const parents = new Set(texts.map((text) => text.parentNode));
  return [...parents].filter((element) => dom.isInline(element) && entry.carries(element) &&
    reads(element) && reads(element.parentNode) && whole(element));
}

// The page's own rules may give text in one of the new elements another look: such text is
// formatted by itself, and the element given up. Answers the elements that are left.
/**
 * @param {Format} entry
 * @param {AnyNode[]} elements
 * @param {FormatValue} value
 */
function formatAgainstRules(entry, elements, value) {
  const reads = remembered((element) => entry.read(element));
  const stubborn = elements.map((element) => new Set([...textsUnder(element)]
    .filter((text) => !entry.same(reads(text.parentNode), reads(element)))));
  return elements.filter((element, index) => {
    const texts = stubborn[index];
    if (!texts.size) return true;
    pushDown(entry, element, texts);
    for (const text of texts) putOnRun(entry, [text], value);
    return false;
  });
}

// The elements of the format around the texts that have no effect: all of the text in them lacks
// the look and gets an element inside.
/**
 * @param {Format} entry
 * @param {Text[]} texts
 * @param {Set<Text>} chosen
 */
function withoutEffect(entry, texts, chosen) {
  const around = new Set();
  for (const text of texts) {
    for (let at = text.parentNode; dom.isInline(at) && !around.has(at); at = at.parentNode) {
      around.add(at);
    }
  }
  return [...around].filter((element) => entry.tags.includes(element.tagName) &&
    coverage(element, chosen) === 'all');
}

// Puts a format on texts; answers the nodes whose neighbours may have become texts to join. Each
// pass reads first and writes then, since the engine computes styles anew for what is read after a
// change.
/**
 * @param {Format} entry
 * @param {FormatValue} value
 * @param {Text[]} texts
 */
function putOn(entry, value, texts) {
  const touched = new Set();
  /** @param {Node} node */
  const around = (node) => {
    for (const near of [node.previousSibling, node, node.nextSibling]) {
      if (near) touched.add(near);
    }
  };
  texts.forEach(around);
  const all = new Set(texts);
  /** @param {AnyNode} element */
  const reads = (element) => entry.same(entry.read(element), value);
  /** @type {HTMLElement[]} */
  const changed = [];
  for (const carrier of carriersOf(entry, texts, all, remembered(reads), value)) {
    const isInChanged = changed.some((each) => each.contains(carrier));
    const isWhole = !isInChanged && coverage(carrier, all) === 'all';
    if (isWhole && changeSpan(entry, carrier, value)) changed.push(carrier);
    else pushDown(entry, carrier, all);
  }
  needless(entry, texts, all, remembered(reads)).forEach((element) => entry.strip(element));
  const lacks = remembered((element) => !reads(element));
  const left = texts.filter((text) => lacks(text.parentNode));
  const chosen = new Set(left);
  if (value === true) {
    withoutEffect(entry, left, chosen).forEach((element) => entry.strip(element));
  }
  const covers = new Map();
  const tops = new Set(left.map((text) => highest(text, chosen, entry, covers)));
  const made = runsOf(tops).map((run) => putOnRun(entry, run, value)).filter(Boolean);
  const still = changed.filter((element) => element.isConnected);
  for (const element of formatAgainstRules(entry, [...still, ...made], value)) {
    const joined = mergeWith(entry, element, 'previousSibling', true);
    mergeWith(entry, joined, 'nextSibling', joined === element);
  }
  return touched;
}

// True where all of the range has the format's value.
/**
 * @param {Format} entry
 * @param {FormatValue} value
 * @param {Range} range
 */
function isThere({ read, same }, value, range) {
  const elements = new Set(selection.textsIn(range).map((text) => text.parentElement));
  return [...elements].every((element) => same(read(element), value));
}

// The selection's two ends as anchors: at its outermost texts, or beside the picture, island or
// break that it begins or ends with.
/**
 * @param {Text[]} texts
 * @param {Range} range
 */
function anchorsOf(texts, range) {
  const last = texts.at(-1);
  const outermost = [{ node: texts[0], offset: 0 }, { node: last, offset: last.length }];
  const { startContainer, startOffset, endContainer, endOffset } = range;
  const leaves = [...selection.leavesIn(range)].filter((leaf) => dom.isShown(leaf) &&
    !(dom.isText(leaf) && selection.showsNothing(leaf, range)) &&
    (leaf !== startContainer || startOffset < leaf.length) &&
    (leaf !== endContainer || endOffset > 0));
  if (!leaves.length) return outermost;
  /**
   * @param {AnyNode} leaf
   * @param {number} side
   */
  const beside = (leaf, side) =>
    (dom.isAtom(leaf) || dom.isBreak(leaf)) && { beside: leaf, side };
  const [first, end] = [leaves[0], leaves.at(-1)];
  const from = { node: first, offset: first === startContainer ? startOffset : 0 };
  const to = { node: end, offset: end === endContainer ? endOffset : end.length };
  return [
    beside(first, 0) || (dom.rawAt(first) ? from : outermost[0]),
    beside(end, 1) || (dom.rawAt(end) ? to : outermost[1]),
  ];
}

/**
 * Puts a format of the table on the text of a range; see applyFormat.
 * @param {string} name
 * @param {FormatValue} value
 * @param {Range} range
 */
export function apply(name, value, range) { applyFormat(formats[name], value, range); }

/**
 * Puts a format on the text of a range and selects that again, in the direction it was selected in.
 * @param {Format} entry
 * @param {FormatValue} value
 * @param {Range} range the selected one
 */
export function applyFormat(entry, value, range) {
  takeInSigns(range);
  if (isThere(entry, value, range)) return;
  const backward = document.getSelection().focusNode === range.startContainer &&
    document.getSelection().focusOffset === range.startOffset && !range.collapsed;
  const texts = splitTextsAtEnds(range);
  if (!texts.length) return;
  const cells = selection.saveCells(range);
  const anchors = anchorsOf(texts, range);
  joinTexts(putOn(entry, value, texts), anchors);
  if (backward) anchors.reverse();
  selection.restore(cells ?? { anchor: anchors[0], focus: anchors[1] });
}
