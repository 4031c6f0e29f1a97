// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Blanks at the edge of a line. HTML does not show them, so the engine writes a no-break space
// where a blank was typed there or stands there after a deletion. That is needed while the caret is
// beside it and wrong afterwards: here such places are held, shown to the program as blanks at
// once, and made blanks again as soon as the caret has gone. Blanks that a person types at a line's
// start or several in a row stay no-break spaces, since HTML would swallow them.
import * as dom from './dom.js';
import * as history from './history.js';
import { prune } from './lines.js';
import * as selection from './selection.js';

const noBreak = '\u00a0';

let held = [];  // {node, index, typed}; never changed in place
let before = null;

// The character beside a place in its line: {node, index}, {object}, or null at the line's edge.
export function beside(node, offset, side) {
  const back = side === 'previousSibling';
  let at = node;
  if (dom.isText(node)) {
    const index = back ? offset - 1 : offset;
    if (index >= 0 && index < node.length) return { node, index };
  } else {
    const child = node.childNodes[back ? offset - 1 : offset];
    if (child) return edge(child, back) ?? beside(child, 0, side);
  }
  while (!at[side]) {
    if (dom.isBlock(at)) return null;
    at = at.parentNode;
  }
  if (dom.isBlock(at)) return null;
  at = at[side];
  const found = edge(at, back);
  return found === undefined ? beside(at, back ? 0 : Infinity, side) : found;
}
// The outermost character of a node; undefined where the node has none.
function edge(node, back) {
  if (dom.isBlock(node) || dom.isBreak(node)) return null;
  if (dom.isNeutral(node) && !dom.isText(node)) return undefined;
  if (dom.isText(node)) {
    return node.length ? { node, index: back ? node.length - 1 : 0 } : undefined;
  }
  if (dom.isAtom(node)) return { object: node };
  const child = back ? node.lastChild : node.firstChild;
  for (let at = child; at; at = back ? at.previousSibling : at.nextSibling) {
    const found = edge(at, back);
    if (found !== undefined) return found;
  }
  return undefined;
}
const charAt = (place) => (place?.node ? place.node.data[place.index] : '');
const isBlank = (place) => /[ \t\r\n]/.test(charAt(place));

/** @returns {[left: any, right: any]} */
function ends() {
  const { anchorNode, anchorOffset } = selection.points();
  if (!anchorNode) return [null, null];
  return [
    beside(anchorNode, anchorOffset, 'previousSibling'),
    beside(anchorNode, anchorOffset, 'nextSibling'),
  ];
}
const isHeld = (place) =>
  held.some(({ node, index }) => node === place?.node && index === place?.index);

export function hold(node, index, typed) {
  if (isHeld({ node, index })) return;
  held = [...held, { node, index, typed }];
}

// In that order, so that a selection that ends behind the character still does.
function exchange({ node, index }, text) {
  node.insertData(index, text);
  node.deleteData(index + text.length, 1);
}

export const keepsBlanks = (text) =>
  /^(pre|break)/.test(getComputedStyle(text.parentNode).whiteSpace);

// A deletion ends at a place: a blank that HTML would not show there is held, so that what is
// typed next stands beside it.
export function meet(node, offset) {
  const left = beside(node, offset, 'previousSibling');
  const right = beside(node, offset, 'nextSibling');
  const keep = (place) => {
    if (keepsBlanks(place.node)) return;
    exchange(place, noBreak);
    hold(place.node, place.index, false);
  };
  if (isBlank(right) && (!left || isBlank(left))) keep(right);
  if (isBlank(left) && !right) keep(left);
}

// A line was cut between two blocks: the blank that would begin the second ends the first.
export function part(above, below) {
  const first = beside(below, 0, 'nextSibling');
  if (!isBlank(first)) return;
  first.node.deleteData(first.index, 1);
  prune(first.node);
  const last = beside(above, above.childNodes.length, 'previousSibling');
  if (last?.node && !isBlank(last)) last.node.insertData(last.index + 1, ' ');
}

// What the texts at the caret were before the engine changed them.
export function watch(inputType = '') {
  const range = selection.range();
  before = null;
  if (!range) return;
  leave();
  const left = beside(range.startContainer, range.startOffset, 'previousSibling');
  const right = beside(range.endContainer, range.endOffset, 'nextSibling');
  // A deletion may reach to the texts beside those.
  const further = [
    left?.node && beside(left.node, 0, 'previousSibling'),
    right?.node && beside(right.node, right.node.length, 'nextSibling'),
  ];
  const texts = new Map();
  for (const place of [left, right, ...further]) {
    if (place?.node) texts.set(place.node, place.node.data);
  }
  if (inputType.startsWith('deleteWord')) {
    const block = document.createRange();
    block.selectNodeContents(dom.blockOf(range.startContainer));
    for (const text of selection.textsIn(block)) texts.set(text, text.data);
  }
  const own = (place) => charAt(place) === noBreak && !isHeld(place);
  const isGap = (place) => isBlank(place) || charAt(place) === noBreak;
  before = {
    texts, left, ownLeft: own(left), ownRight: own(right),
    parts: own(left) && isGap(right), begins: own(right) && (!left || isGap(left)),
  };
}

// What is held moves along with what was written or deleted before it.
function follow() {
  held = held.flatMap((place) => {
    const old = before.texts.get(place.node);
    if (old === undefined || old === place.node.data) return [place];
    const { head, tail } = dom.kept(old, place.node.data);
    if (place.index < head) return [place];
    const index = place.index + place.node.length - old.length;
    return place.index >= old.length - tail ? [{ ...place, index }] : [];
  });
}

// Where the engine has written in a text just now, from and to. In a text that was not at the caret
// before (typed text may have been put into another format) that is what was typed.
function freshPart(node, data) {
  if (!before.texts.has(node)) {
    const { anchorNode, anchorOffset } = selection.points();
    const from = Math.max(0, anchorOffset - (data?.length ?? 0));
    return node === anchorNode ? [from, anchorOffset] : [0, 0];
  }
  const { head, tail } = dom.kept(before.texts.get(node), node.data);
  return [head, node.length - tail];
}

// A no-break space that stood beside a blank, or first in its line, stands between words now.
function holdAlone(inputType, data) {
  const holdIf = (place) => {
    if (charAt(place) === noBreak) hold(place.node, place.index, false);
  };
  const { anchorNode, anchorOffset } = selection.points();
  if (inputType === 'insertText' && data?.trim() !== '') {
    if (before.parts) holdIf(before.left);
    if (before.begins) holdIf(beside(anchorNode, anchorOffset, 'nextSibling'));
  }
  for (const [node, old] of before.texts) {
    const { head, tail } = dom.kept(old, node.data);
    const gone = old.slice(head, old.length - tail);
    if (!gone || !node.isConnected) continue;
    if (/^[ \u00a0]/.test(gone)) holdIf(beside(node, head, 'previousSibling'));
    if (/[ \u00a0]$/.test(gone)) holdIf(beside(node, head, 'nextSibling'));
  }
}

// Holds what the engine wrote for blanks.
function holdFresh(inputType, data) {
  const { anchorNode } = selection.points();
  const texts = new Set(before.texts.keys());
  if (dom.isText(anchorNode)) texts.add(anchorNode);
  for (const node of texts) {
    if (!node.isConnected) continue;
    const [from, to] = freshPart(node, data);
    for (let index = from; index < to; index++) {
      if (node.data[index] === noBreak) hold(node, index, inputType === 'insertText');
    }
  }
}

// A line was cut at the caret: the blank that would begin the second one ends the first.
function tidyCut([, right]) {
  const cutsBlank = charAt(right) === noBreak && !before.ownRight;
  if (cutsBlank && right.node.length > 1) right.node.deleteData(right.index, 1);
  const last = lineBefore();
  if (!last?.node) return;
  if (charAt(last) === noBreak && !before.ownLeft) {
    last.node.replaceData(last.index, 1, ' ');
  } else if (cutsBlank && !isBlank(last)) last.node.appendData(' ');
}
// The last character of the line above the caret.
function lineBefore() {
  const { anchorNode } = selection.points();
  const block = dom.blockOf(anchorNode);
  const broken = beside(anchorNode, 0, 'previousSibling');
  if (broken) return null;
  let leaf = anchorNode;
  while (leaf && leaf !== block && !leaf.previousSibling) leaf = leaf.parentNode;
  const above = leaf === block ? dom.neighbour(block, 'previousSibling') : leaf?.previousSibling;
  if (!above) return null;
  if (dom.isBreak(above)) return beside(above, 0, 'previousSibling') ?? edgeBefore(above);
  return dom.isBlock(above) && above.lastChild ? edge(above.lastChild, true) : null;
}
const edgeBefore = (node) => (node.previousSibling ? edge(node.previousSibling, true) : null);

/**
 * The input is there: holds what the engine wrote for blanks.
 * @param {{ inputType: string, data?: string | null }} input
 */
export function watched({ inputType, data }) {
  if (!before) return;
  const places = ends();
  if (inputType === 'insertParagraph' || inputType === 'insertLineBreak') tidyCut(places);
  if (data?.includes(noBreak)) return;
  if (inputType === 'insertText' || inputType.startsWith('delete')) {
    follow();
    holdFresh(inputType, data);
    holdAlone(inputType, data);
  }
  before = null;
  leave();
}

// True while the caret touches the blanks that the place is one of.
const same = (one, other) => one.node === other.node && one.index === other.index;
function reaches(node, offset, side, place) {
  const step = side === 'previousSibling' ? 0 : 1;
  let at = node && beside(node, offset, side);
  while (at?.node && (isBlank(at) || charAt(at) === noBreak)) {
    if (same(at, place)) return true;
    at = beside(at.node, at.index + step, side);
  }
  return false;
}
function atCaret(place) {
  const { anchorNode, anchorOffset, focusNode, focusOffset } = selection.points();
  return ['previousSibling', 'nextSibling'].some((side) =>
    reaches(anchorNode, anchorOffset, side, place) || reaches(focusNode, focusOffset, side, place));
}

// What is not at the caret any more becomes what was meant.
function leave() {
  const left = held.filter((place) => !atCaret(place));
  held = held.filter(atCaret);
  settle(left);
}

// What the held no-break spaces are to become, the last of a text first: a blank, nothing, or
// (null) what they are. At a line's end blanks are one.
function meanings(places) {
  const known = new Map();
  const dropped = ({ node, index }) => known.get(node)?.get(index) === '';
  const beyond = (node, index) => {
    let right = beside(node, index + 1, 'nextSibling');
    while (right?.node && dropped(right)) {
      right = beside(right.node, right.index + 1, 'nextSibling');
    }
    return right;
  };
  const meaning = ({ node, index, typed }) => {
    if (!node.isConnected || node.data[index] !== noBreak) return null;
    const left = beside(node, index, 'previousSibling');
    const right = beyond(node, index);
    if (!left) return typed ? null : '';
    if (!right) return isBlank(left) || charAt(left) === noBreak ? '' : ' ';
    if (charAt(left) === noBreak || charAt(right) === noBreak) return null;
    if (isBlank(left) || isBlank(right)) return typed ? null : '';
    return ' ';
  };
  const inOrder = (one, other) => {
    if (one.node === other.node) return other.index - one.index;
    const order = one.node.compareDocumentPosition(other.node);
    return order & Node.DOCUMENT_POSITION_FOLLOWING ? 1 : -1;
  };
  return [...places].sort(inOrder).map((place) => {
    const text = meaning(place);
    if (!known.has(place.node)) known.set(place.node, new Map());
    known.get(place.node).set(place.index, text);
    return { ...place, text };
  }).filter(({ text }) => text !== null);
}
const settle = (places) => meanings(places).forEach((place) => exchange(place, place.text));

// The caret moved. Steps that can be done again need the texts as they are.
export function selectionMoved() {
  if (history.isBack() || held.every(atCaret)) return;
  history.amend(leave);
}

// Texts are about to be cut and joined: what is held becomes what was meant.
export function release() {
  settle(held);
  held = [];
}

// What is held belongs to the history: a step that is taken back brings back what was held.
export function reinstate(places) { held = places; }
history.keepAlong({ held: () => held, reinstate });

// The places that the page's text has otherwise, the last ones first: {node, index, text}.
export const meantBlanks = () => meanings(held);
