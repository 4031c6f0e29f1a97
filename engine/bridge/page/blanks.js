// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Blanks at the edge of a line. HTML does not show them, so a no-break space stands where a blank
// was typed there or is left by a deletion. That is needed while the caret is beside it and wrong
// afterwards: here such places are held, shown to the program as blanks at once, and made blanks
// again as soon as the caret has gone. Blanks that a person types at a line's start or several in a
// row stay no-break spaces, since HTML would swallow them.
//
// Protocol, for every change of text at the caret: watch() before it, then the change, then
// watched(). Where the engine carries the change out, watch() is told what it will do, and
// engineDone() is called first thing after it: that puts back the source's white space which the
// engine rewrote (whitespace.js).
import * as dom from './dom.js';
import * as history from './history.js';
import { beside, charAt, edge, endsLine, isBlank, keepsBlanks } from './beside.js';
import { dropEmptyInline } from './lines.js';
import * as selection from './selection.js';
import * as whitespace from './whitespace.js';

const noBreak = '\u00a0';

// {node, index, typed, was, across}; never changed in place. What was not typed stands for a blank
// of the page: `was` is that character, and it goes where the one on the side `across` is a blank.
let held = [];
let before = null;

// Texts that the person typed in: a blank or no-break space there is one of theirs.
const typedIn = new WeakSet();
export const noteTyped = (text) => typedIn.add(text);
export const wasTypedIn = (text) => typedIn.has(text);

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

export function hold(node, index, typed, { was = ' ', across = null } = {}) {
  if (isHeld({ node, index })) return;
  held = [...held, { node, index, typed, was, across }];
}

// In that order, so that a selection that ends behind the character still does.
function exchange({ node, index }, text) {
  node.insertData(index, text);
  node.deleteData(index + text.length, 1);
}

// A deletion has ended at a point: a blank that HTML would not show there is held, so that what is
// typed next stands beside it. A line end of the source stays where a blank can be taken instead.
function meet(node, offset) {
  const left = beside(node, offset, 'previousSibling');
  const right = beside(node, offset, 'nextSibling');
  const keep = (place, across) => {
    if (keepsBlanks(place.node)) return;
    const was = charAt(place);
    exchange(place, noBreak);
    hold(place.node, place.index, false, { was, across });
  };
  const takesLeft = isBlank(right) && charAt(left) === ' ' && charAt(right) !== ' ';
  if (isBlank(left) && (!right || takesLeft)) {
    keep(left, 'nextSibling');
  } else if (isBlank(right) && (!left || isBlank(left))) {
    keep(right, 'previousSibling');
  }
}

// A line was cut between two blocks: the blank that would begin the second ends the first.
export function part(above, below) {
  const first = beside(below, 0, 'nextSibling');
  if (!isBlank(first)) return;
  first.node.deleteData(first.index, 1);
  dropEmptyInline(first.node);
  const last = beside(above, above.childNodes.length, 'previousSibling');
  if (last?.node && !isBlank(last)) last.node.insertData(last.index + 1, ' ');
}

// Notes what the texts at the caret are. `target` is what the engine is about to delete.
export function watch(inputType = '', target = null) {
  const range = selection.range();
  before = null;
  if (!range) return;
  leave();
  const noted = whitespace.note(range, inputType, target);
  const { left, right } = noted;
  const own = (place) => charAt(place) === noBreak && !isHeld(place);
  const isGap = (place) => isBlank(place) || charAt(place) === noBreak;
  before = {
    ...noted, ownLeft: own(left), ownRight: own(right),
    parts: own(left) && isGap(right), begins: own(right) && (!left || isGap(left)),
  };
}

// The engine has carried the input out.
export function engineDone(input) {
  if (before) whitespace.putBack({ ...before, isHeld }, input);
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
  noteTyped(last.node);
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
  if (inputType === 'insertCompositionText') follow();
  if (inputType === 'insertText' || inputType.startsWith('delete')) {
    follow();
    if (inputType !== 'insertText') meetCaret();
    holdFresh(inputType, data);
    holdAlone(inputType, data);
  }
  before = null;
  leave();
}

function meetCaret() {
  const { anchorNode, anchorOffset } = selection.points();
  if (anchorNode) meet(anchorNode, anchorOffset);
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
  const meant = ({ node, index }) => known.get(node)?.get(index);
  const dropped = (place) => meant(place) === '';
  const isGap = (place) => isBlank(place) || meant(place) === ' ';
  const beyond = (node, index) => {
    let right = beside(node, index + 1, 'nextSibling');
    while (right?.node && dropped(right)) {
      right = beside(right.node, right.index + 1, 'nextSibling');
    }
    return right;
  };
  const meaning = ({ node, index, typed, was, across }) => {
    if (!node.isConnected || node.data[index] !== noBreak) return null;
    const left = beside(node, index, 'previousSibling');
    const right = beyond(node, index);
    if (across === 'previousSibling') return !left || isBlank(left) ? '' : was;
    if (across === 'nextSibling') return right && isGap(right) ? '' : was;
    if (!left) return typed ? null : '';
    if (!right) return isBlank(left) || charAt(left) === noBreak ? '' : was;
    return typed ? meaningOfTyped(left, right, was) : meaningOfLeft(left, right, was);
  };
  const meaningOfTyped = (left, right, was) => {
    if (endsLine(right)) return '';
    return isBlank(left) || isGap(right) ? null : was;
  };
  const meaningOfLeft = (left, right, was) => {
    if (charAt(left) === noBreak || charAt(right) === noBreak) return null;
    return isBlank(left) || isBlank(right) ? '' : was;
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

// The last text of a paragraph and the first of the one that joins it: white space that showed
// nothing there would be a blank between them. A blank alone was seen where it was typed.
export function trimEdges(last, next) {
  if (dom.isText(last) && !keepsBlanks(last)) {
    const unseen = wasTypedIn(last) ? /[ \t\n]{2,}$|\n$/ : /[ \t\n]+$/;
    const [layout = ''] = unseen.exec(last.data) ?? [];
    last.deleteData(last.length - layout.length, layout.length);
  }
  if (dom.isText(next) && !keepsBlanks(next)) {
    next.deleteData(0, /^[ \t\n]*/.exec(next.data)[0].length);
  }
}

// Cuts a text in two; what is held in it goes along. Returns the second half.
export function split(text, offset) {
  const second = text.splitText(offset);
  held = held.map((place) => (place.node === text && place.index >= offset
    ? { ...place, node: second, index: place.index - offset } : place));
  return second;
}

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
