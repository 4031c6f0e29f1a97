// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Character formats put on selected text. First the elements that carry the format are taken off
// the text, and given back to their other content. Then what does not have the wanted look yet is
// wrapped in as few elements as possible. `chosen` is the set of texts that are formatted, `reads`
// tells whether an element gives the wanted look.
import { formats } from './formats.js';
import * as dom from '../page/dom.js';
import * as selection from '../page/selection.js';

// Cuts the texts at the ends of the range in two, so that all that is selected is whole texts;
// answers those.
function splitTextsAtEnds(range) {
  const { startContainer, startOffset, endContainer, endOffset } = range;
  const texts = selection.textsIn(range);
  if (!texts.length) return texts;
  const last = texts.at(-1);
  if (last === endContainer && endOffset < last.length) last.splitText(endOffset);
  if (texts[0] === startContainer && startOffset > 0) texts[0] = texts[0].splitText(startOffset);
  return texts;
}

const textsUnder = function* (node) {
  if (dom.isText(node)) {
    if (!dom.isIgnorable(node)) yield node;
  } else if (!dom.isNeutral(node) && !dom.isAtom(node)) {
    for (const child of node.childNodes) yield* textsUnder(child);
  }
};

// How much of a node's text is in the set: 'all', 'some' or 'none' of it; 'empty' without text.
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
function pushDown(format, carrier, chosen) {
  const give = (parent) => {
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
const holdsBlock = (node) =>
  dom.isInline(node) && !dom.isAtom(node) &&
  [...node.children].some((child) => dom.isBlock(child) || holdsBlock(child));

// What gives the texts another look than the wanted one and is to be taken off them, the outermost
// first: what holds nothing but them, and what stands before an ancestor with the wanted look.
// Another one stays around the new format, as a person would write it; so does what is in a cell
// or table with the look that holds other text too, where an element inside can give another look.
const isPartOfTable = ({ tagName }) => /^(TABLE|TBODY|TD|TFOOT|TH|THEAD|TR)$/.test(tagName);
function carriersOf(format, texts, chosen, reads, value) {
  const carriers = new Set();
  const whole = remembered((carrier) => coverage(carrier, chosen) === 'all');
  const canBeInside = format.write(value) !== null;
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
function remembered(judge) {
  const known = new Map();
  return (node) => {
    if (!known.has(node)) known.set(node, judge(node));
    return known.get(node);
  };
}

// The outermost inline node around a text that holds chosen texts only; `covers` keeps what is
// known.
function highest(text, chosen, format, covers) {
  let node = text;
  for (let parent = node.parentNode; dom.isInline(parent); parent = parent.parentNode) {
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

const nothing = new Set();

// Runs of neighbouring nodes; breaks and objects between two of them go along.
function runsOf(tops) {
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

// The first element that fits, of those that hold all of a run each, from outside inwards; null for
// none.
function within(run, fits) {
  let only = run.length === 1 ? run[0] : null;
  while (dom.isInline(only) && !dom.isAtom(only) && !(only.tagName === 'A') && !fits(only)) {
    only = only.childNodes.length === 1 ? only.firstChild : null;
  }
  return dom.isElement(only) && fits(only) ? only : null;
}

// Joins a FONT with the FONT that is all it holds; answers the one that is left.
function joinFonts(font) {
  const [inner] = font.childNodes;
  const isBare = font.childNodes.length === 1 && inner.tagName === 'FONT' &&
    [...inner.attributes].every(({ name }) => /^(color|face|size)$/.test(name));
  if (!isBare) return font;
  for (const { name, value } of inner.attributes) font.setAttribute(name, value);
  dom.unwrap(inner);
  return joinFonts(font);
}

// The element to put around a run. Where the run is in one of that tag already, which the page's
// rules have taken the look off, another one would not help.
function wrapperFor(format, value, run) {
  const element = format.write(value);
  const inLike = format.inLike && element.tagName !== 'SPAN' &&
    run[0].parentNode.closest(element.tagName);
  return inLike ? format.inLike() : element;
}

// Gives a run the format, by an element that is there or a new one; answers that, null for none.
function putOnRun(format, run, value) {
  const wrapper = wrapperFor(format, value, run);
  if (!wrapper) return null;
  // A FONT that is there is used in any dialect.
  const font = format.attribute && within(run, ({ tagName }) => tagName === 'FONT');
  if (font) {
    font.setAttribute(format.attribute, format.inAttribute(value));
    return joinFonts(font);
  }
  const span = wrapper.tagName === 'SPAN' && within(run, ({ tagName }) => tagName === 'SPAN');
  if (span) {
    const before = (span.getAttribute('style') ?? '').replace(/;?\s*$/, '');
    const added = wrapper.getAttribute('style');
    span.setAttribute('style', before ? `${before}; ${added}` : added);
    return span;
  }
  dom.wrap(run, wrapper);
  // What went along without text may have been in its like.
  if (format.tags.includes(wrapper.tagName)) {
    const likes = [...wrapper.querySelectorAll(format.tags.join())];
    likes.filter((like) => !like.attributes.length).forEach(dom.unwrap);
  }
  return wrapper;
}

const mergeable = new Set(['B', 'EM', 'FONT', 'I', 'SPAN', 'STRONG', 'U', 'BIG', 'SMALL']);
// True when both look the same: by the same markup, or each by markup of the format alone.
function alike(format, element, other) {
  if (!dom.isElement(other)) return false;
  const bare = (each) => format.carries(each) && !dom.isBlock(each) &&
    format.shell(each).tagName === each.tagName && dom.sameLooks(format.shell(each), each);
  const isSame = () => format.same(format.read(element), format.read(other));
  const isNamesake = other.tagName === element.tagName && mergeable.has(element.tagName) &&
    !element.id;
  if (isNamesake && dom.sameLooks(element, other)) return true;
  if (bare(element) && bare(other)) return isSame();
  if (!isNamesake) return false;
  // The format itself may be spelled otherwise.
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
function canGoInside(format, outer) {
  if (format.carries(outer)) return false;
  if (/^(B|EM|I|STRONG)$/.test(outer.tagName)) return !outer.attributes.length;
  return /^(FONT|SPAN)$/.test(outer.tagName) && !outer.id &&
    /^font-(weight|style)$/.test(format.property);
}
// Turns a neighbour inside out where all of it has the format within such elements: the format is
// outside then. Answers the neighbour as it is afterwards.
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

// Joins the element with its neighbour where both are alike, into the older one of the two; answers
// the one that is left.
function mergeWith(format, element, side, isNew) {
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

// The parents of the texts that give a look which the text has without them too.
function needless(entry, texts, chosen, reads) {
  const whole = remembered((element) => coverage(element, chosen) === 'all');
  const parents = new Set(texts.map((text) => text.parentNode));
  return [...parents].filter((element) => dom.isInline(element) && entry.carries(element) &&
    reads(element) && reads(element.parentNode) && whole(element));
}

// The page's own rules may give text in one of the new elements another look: such text is
// formatted by itself, and the element given up. Answers the elements that are left.
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
function putOn(name, value, texts) {
  const entry = formats[name];
  const touched = new Set();
  const around = (node) => {
    for (const near of [node.previousSibling, node, node.nextSibling]) {
      if (near) touched.add(near);
    }
  };
  texts.forEach(around);
  const all = new Set(texts);
  const reads = (element) => entry.same(entry.read(element), value);
  for (const carrier of carriersOf(entry, texts, all, remembered(reads), value)) {
    pushDown(entry, carrier, all);
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
  for (const element of formatAgainstRules(entry, made, value)) {
    const joined = mergeWith(entry, element, 'previousSibling', true);
    mergeWith(entry, joined, 'nextSibling', joined === element);
  }
  return touched;
}

// True where all of the range has the format's value.
function isThere(name, value, range) {
  const { read, same } = formats[name];
  const elements = new Set(selection.textsIn(range).map((text) => text.parentElement));
  return [...elements].every((element) => same(read(element), value));
}

// The selection's two ends as anchors: at its outermost texts, or beside the picture, island or
// break that it begins or ends with.
function anchorsOf(texts, range) {
  const last = texts.at(-1);
  const outermost = [{ node: texts[0], offset: 0 }, { node: last, offset: last.length }];
  const { startContainer, startOffset, endContainer, endOffset } = range;
  const leaves = [...selection.leavesIn(range)].filter((leaf) => dom.isShown(leaf) &&
    (leaf !== startContainer || startOffset < leaf.length) &&
    (leaf !== endContainer || endOffset > 0));
  if (!leaves.length) return outermost;
  const isThing = (leaf) => dom.isAtom(leaf) || dom.isBreak(leaf);
  const beside = (leaf, side) => isThing(leaf) && { beside: leaf, side };
  const [first, end] = [leaves[0], leaves.at(-1)];
  const from = { node: first, offset: first === startContainer ? startOffset : 0 };
  const to = { node: end, offset: end === endContainer ? endOffset : end.length };
  return [
    beside(first, 0) || (dom.rawAt(first) ? from : outermost[0]),
    beside(end, 1) || (dom.rawAt(end) ? to : outermost[1]),
  ];
}

/**
 * Puts a format on the text of a range and selects that again, in the direction it was selected in.
 * @param {string} name
 * @param {any} value
 * @param {Range} range the selected one
 */
export function apply(name, value, range) {
  if (isThere(name, value, range)) return;
  const backward = document.getSelection().focusNode === range.startContainer &&
    document.getSelection().focusOffset === range.startOffset && !range.collapsed;
  const texts = splitTextsAtEnds(range);
  if (!texts.length) return;
  const anchors = anchorsOf(texts, range);
  joinTexts(putOn(name, value, texts), anchors);
  const [anchor, focus] = backward ? anchors.reverse() : anchors;
  selection.restore({ anchor, focus });
}

