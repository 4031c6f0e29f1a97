// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Blanks beside the caret, while text changes there. HTML does not show a blank at a line's edge,
// so the engine writes a no-break space where one was typed there or is left by a deletion; such a
// no-break space becomes a stand-in (standIns.js). Blanks that a person types at a line's start or
// several in a row stay no-break spaces, since HTML would swallow them.
//
// Protocol, for every change of text at the caret:
//
//   at rest --watch()--> watching --[the change]--> --engineDone()--> --watched()--> at rest
//
// watch() notes the texts at the caret (`noted`, null at rest). engineDone() belongs to a change
// that the engine carries out, and comes first thing after it: it puts back the source's white
// space that the engine rewrote (whitespace.js); watch() was told for that what the engine would
// do. watched() makes stand-ins of what was written for blanks, and resolves those that the caret
// has left. watch() while watching begins anew: what was announced before did not happen.
import {
  beginsLine, beside, charAt, edge, endsLine, isBlank, isCommentBeside, keepsBlanks,
} from './beside.js';
import * as dom from './dom.js';
import { dropEmptyInline, shownBefore } from './lines.js';
import * as selection from './selection.js';
import {
  addLeft, addTyped, isStandIn, noBreak, replaceCharacter, resolveAwayFromCaret, shiftStandIns,
} from './standIns.js';
import * as whitespace from './whitespace.js';

// What watch() has found; null at rest.
/**
 * @type {(Noted & { ownLeft: boolean, ownRight: boolean, parts: boolean, begins: boolean,
 *   isRange: boolean, isFollowed: boolean, isDone: boolean }) | null}
 */
let noted = null;

// Texts that the person typed in: a blank or no-break space there is one of theirs.
const typedIn = new WeakSet();
/** @param {AnyNode} text */
export const noteTyped = (text) => typedIn.add(text);
/** @param {Text} text */
export const wasTypedIn = (text) => typedIn.has(text);

// The character on that side of the caret.
/** @param {Side} side */
function atCaret(side) {
  const { anchorNode, anchorOffset } = selection.points();
  return anchorNode ? beside(anchorNode, anchorOffset, side) : null;
}

function isBeforeBreak() {
  const { anchorNode, anchorOffset } = selection.points();
  return dom.isElement(anchorNode) && dom.isBreak(anchorNode.childNodes[anchorOffset]);
}

// A deletion has ended at the caret: a stand-in takes the place of a blank that HTML would not show
// there, so that what is typed next stands beside it. A line end of the source stays where a blank
// can be taken instead.
function replaceUnseenBlank() {
  const { anchorNode, anchorOffset } = selection.points();
  if (!anchorNode) return;
  // Beside server code a blank may be between words.
  if (dom.sides.some((side) => isCommentBeside(anchorNode, anchorOffset, side))) return;
  const left = atCaret('previousSibling');
  const right = atCaret('nextSibling');
  // In an empty line the source's white space is layout.
  if (beginsLine(left) && (isBeforeBreak() || endsLine(right))) return;
  // A line of the source that has lost its only word, or its first one.
  /** @param {Neighbour | null} character @param {Side} side */
  const hasLineEnd = (character, side) => whitespace.gapFrom(character, side).includes('\n');
  const isLaidOut = hasLineEnd(right, 'nextSibling') &&
    (!left || hasLineEnd(left, 'previousSibling'));
  /**
   * @param {Neighbour} blank
   * @param {Side} across
   */
  const replace = (blank, across) => {
    if (keepsBlanks(blank.node)) return;
    const was = charAt(blank);
    replaceCharacter(blank, noBreak);
    addLeft(blank, was, isLaidOut ? 'none' : across);
  };
  const takesLeft = isBlank(right) && charAt(left) === ' ' && charAt(right) !== ' ';
  if (isBlank(left) && (!right || takesLeft)) {
    replace(left, 'nextSibling');
  } else if (isBlank(right) && (!left || isBlank(left))) {
    replace(right, 'previousSibling');
  }
}

/**
 * Before a change of text at the caret: notes what the texts there are.
 * @param {string} inputType what the engine is about to do; '' where the bridge does it
 * @param {StaticRange | PlainRange | null} target what the engine is about to delete
 */
export function watch(inputType = '', target = null) {
  const range = selection.range();
  noted = null;
  if (!range) return;
  resolveAwayFromCaret();
  const found = whitespace.note(range, inputType, target);
  const { left, right } = found;
  /** @param {Neighbour | null} character */
  const isOwn = (character) => charAt(character) === noBreak && !isStandIn(character);
  /** @param {Neighbour | null} character */
  const isGap = (character) => isBlank(character) || charAt(character) === noBreak;
  // Without a selection these are the characters on the other side of the caret.
  const behindLeft = beside(range.startContainer, range.startOffset, 'nextSibling');
  const beforeRight = beside(range.endContainer, range.endOffset, 'previousSibling');
  noted = {
    ...found,
    // A no-break space of the page's own on that side.
    ownLeft: isOwn(left),
    ownRight: isOwn(right),
    // The one on the left stands before a blank, and the one on the right begins a line or run.
    parts: isOwn(left) && isGap(behindLeft),
    begins: isOwn(right) && (!beforeRight || isGap(beforeRight)),
    isRange: !range.collapsed,
    // The stand-ins have moved along with the change, and it has got its own.
    isFollowed: false,
    isDone: false,
  };
}

/**
 * After the change, where the engine has carried it out.
 * @param {{ inputType: string, data?: string | null }} input
 */
export function engineDone(input) {
  if (!noted) return;
  whitespace.putBack({ ...noted, isStandIn }, input);
  for (const [text, { parentNode }] of noted.stood) {
    if (!text.isConnected) dropEmptyInline(parentNode);
  }
  followTexts(input);
}

// Once a change, and before typed text is cut out of its node for another look.
/** @param {{ inputType: string, data?: string | null }} input */
function followTexts({ inputType, data }) {
  if (noted.isFollowed || !/^(insertText|insertCompositionText|delete.*)$/.test(inputType)) return;
  noted.isFollowed = true;
  shiftStandIns(noted.texts, (node, old) => keptEnds(node, old, data));
}

// How much of a noted text is as it was. Of characters that are alike in a row the one before the
// caret is the one that was typed.
/**
 * @param {AnyNode} node
 * @param {string} old
 * @param {string} data
 */
function keptEnds(node, old, data) {
  const { anchorNode, anchorOffset } = selection.points();
  const most = data && node === anchorNode ? Math.max(0, anchorOffset - data.length) : Infinity;
  return dom.commonEnds(old, node.data, most);
}

// Where text was written in a node just now, from and to. In a text that was not at the caret
// before (typed text may have been put into another format) that is what was typed.
/**
 * @param {AnyNode} node
 * @param {string} data
 */
function writtenIn(node, data) {
  if (!noted.texts.has(node)) {
    const { anchorNode, anchorOffset } = selection.points();
    const from = Math.max(0, anchorOffset - (data?.length ?? 0));
    return node === anchorNode ? [from, anchorOffset] : [0, 0];
  }
  const { head, tail } = keptEnds(node, noted.texts.get(node), data);
  return [head, node.length - tail];
}

// Makes stand-ins of what the engine wrote for blanks.
/**
 * @param {string} inputType
 * @param {string} data
 */
function addWritten(inputType, data) {
  const { anchorNode } = selection.points();
  const texts = new Set(noted.texts.keys());
  const add = inputType === 'insertText' ? addTyped : addLeft;
  if (dom.isText(anchorNode)) texts.add(anchorNode);
  for (const node of texts) {
    if (!node.isConnected) continue;
    const [from, to] = writtenIn(node, data);
    for (let index = from; index < to; index++) {
      if (node.data[index] === noBreak) add({ node, index });
    }
  }
}

/** @param {Neighbour | null} character */
function addIf(character) {
  if (charAt(character) === noBreak) addLeft(character);
}
// The same where a deletion has joined a line with one that a blank was typed at the start of, and
// where what was selected began with the blank.
function addJoined() {
  const behind = noted.begins || !noted.right ? atCaret('nextSibling') : null;
  if (behind?.node && wasTypedIn(behind.node) && atCaret('previousSibling')) addIf(behind);
  if (noted.parts && noted.isRange) addIf(noted.left);
}

// A no-break space that stood beside a blank, or first in its line, stands between words now: it
// is needed no more.
/**
 * @param {string} inputType
 * @param {string} data
 */
function addNeedless(inputType, data) {
  if (inputType === 'insertText' && data?.trim() !== '') {
    if (noted.parts) addIf(noted.left);
    if (noted.begins) addIf(atCaret('nextSibling'));
  }
  if (inputType.startsWith('delete')) addJoined();
  for (const [node, old] of noted.texts) {
    const { head, tail } = dom.commonEnds(old, node.data);
    const gone = old.slice(head, old.length - tail);
    if (!gone || !node.isConnected) continue;
    if (/^[ \t\r\n\u00a0]/.test(gone)) addIf(beside(node, head, 'previousSibling'));
    if (/[ \t\r\n\u00a0]$/.test(gone)) addIf(beside(node, head, 'nextSibling'));
  }
  // The same of texts that the deletion took whole.
  if (tookBlank(noted.right)) addIf(atCaret('previousSibling'));
  if (tookBlank(noted.left)) addIf(atCaret('nextSibling'));
}
// True where a character beside the caret was a blank in a text that is gone.
/** @param {Neighbour | null} character */
const tookBlank = (character) => Boolean(character?.node) && !character.node.isConnected &&
  /[ \t\r\n\u00a0]/.test(noted.texts.get(character.node)[character.index]);

// A line was cut at the caret: the blank that would begin the second one ends the first. Before an
// element the engine writes a no-break space to the blank that is there.
function moveBlankBeforeCut() {
  const right = atCaret('nextSibling');
  const cutsBlank = charAt(right) === noBreak && !noted.ownRight;
  let gap = ' ';
  if (cutsBlank && !endsLine(beside(right.node, right.index + 1, 'nextSibling'))) {
    const { node, index } = right;
    const [rest] = /^[ \t\n]*/.exec(node.data.slice(index + 1));
    node.deleteData(index, 1 + rest.length);
    dropEmptyInline(node);
    gap = rest || gap;
  }
  const last = lastAbove();
  if (!last?.node) return;
  noteTyped(last.node);
  if (charAt(last) === noBreak && !noted.ownLeft) {
    last.node.replaceData(last.index, 1, ' ');
  } else if (cutsBlank && !isBlank(last)) {
    last.node.appendData(gap);
    whitespace.noteCut(last.node);
  }
}
// The last character of the line above the caret.
function lastAbove() {
  const { anchorNode, anchorOffset } = selection.points();
  if (!anchorNode || beside(anchorNode, anchorOffset, 'previousSibling')) return null;
  const block = dom.blockOf(anchorNode);
  let leaf = anchorNode.childNodes[anchorOffset] ?? anchorNode;
  while (leaf !== block && !dom.neighbour(leaf, 'previousSibling')) leaf = leaf.parentNode;
  const above = leaf === block ? shownBefore(block) : dom.neighbour(leaf, 'previousSibling');
  if (!above) return null;
  if (dom.isBreak(above)) return beside(above, 0, 'previousSibling') ?? lastBefore(above);
  return dom.isBlock(above) ? lastIn(above) : null;
}
/**
 * @param {AnyNode} block
 * @returns {Neighbour | null | undefined}
 */
function lastIn({ lastChild }) {
  const shown = dom.shownFrom(lastChild, 'previousSibling');
  if (dom.isBlock(shown)) return lastIn(shown);
  return lastChild && edge(lastChild, true);
}
/** @param {AnyNode} node */
const lastBefore = (node) => (node.previousSibling ? edge(node.previousSibling, true) : null);

/** @param {{ inputType: string, data?: string | null }} input */
function addStandIns({ inputType, data }) {
  if (noted.isDone || !/^(insertText|delete.*)$/.test(inputType)) return;
  noted.isDone = true;
  addWritten(inputType, data);
  addNeedless(inputType, data);
}

/**
 * Text was typed, and may be cut out of its node for another look: its stand-ins go along then.
 * @param {{ inputType: string, data?: string | null }} input
 */
export function typed(input) {
  if (!noted || input.data?.includes(noBreak)) return;
  followTexts(input);
  addStandIns(input);
}

/**
 * After the change, and after engineDone() where that is called.
 * @param {{ inputType: string, data?: string | null }} input
 */
export function watched({ inputType, data }) {
  if (!noted) return;
  if (inputType === 'insertParagraph' || inputType === 'insertLineBreak') moveBlankBeforeCut();
  if (data?.includes(noBreak)) {
    noted = null;
    return;
  }
  followTexts({ inputType, data });
  if (inputType.startsWith('delete')) replaceUnseenBlank();
  addStandIns({ inputType, data });
  noted = null;
  resolveAwayFromCaret();
}

/**
 * The last text of a paragraph and the first of the one that joins it: white space that showed
 * nothing there would be a blank between them. A blank alone was seen where it was typed, and it
 * may be seen beside server code.
 * @param {AnyNode} last
 * @param {AnyNode} next
 */
export function trimEdges(last, next) {
  if (dom.isComment(last?.nextSibling)) last = null;
  if (dom.isComment(next?.previousSibling)) next = null;
  if (dom.isText(last) && !keepsBlanks(last) && !whitespace.partedWords(last)) {
    const unseen = wasTypedIn(last) ? /[ \t\n]{2,}$|\n$/ : /[ \t\n]+$/;
    const [layout = ''] = unseen.exec(last.data) ?? [];
    last.deleteData(last.length - layout.length, layout.length);
  }
  if (dom.isText(next) && !keepsBlanks(next)) {
    next.deleteData(0, /^[ \t\n]*/.exec(next.data)[0].length);
    if (last && wasTypedIn(next)) writeTypedStart(next);
  }
}
// A blank that was typed at the line's start is one between words.
/** @param {Text} text */
function writeTypedStart(text) {
  const behind = beside(text, 1, 'nextSibling');
  const isAlone = text.data.startsWith(noBreak) && charAt(behind) !== noBreak && !isBlank(behind);
  if (isAlone) text.replaceData(0, 1, ' ');
}
