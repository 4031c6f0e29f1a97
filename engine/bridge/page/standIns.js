// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Stand-ins: no-break spaces in the document that stand for a blank which HTML would not show
// there. A stand-in is needed while the caret is beside it and wrong afterwards. So the page's text
// has what it stands for at once (blanksAsWritten), and the document as soon as the caret has gone:
// it is *resolved* into a blank or into nothing, or stays the no-break space that it is.
import { beside, charAt, endsLine, isBlank } from './beside.js';
import * as dom from './dom.js';
import * as history from './history.js';
import * as selection from './selection.js';

export const noBreak = '\u00a0';

// A list that is never changed in place, since the history keeps it.
/** @type {StandIn[]} */
let standIns = [];

/**
 * Puts a character in the place of another; a selection that ends behind it still does.
 * @param {Neighbour} character
 * @param {string} text
 */
export function replaceCharacter({ node, index }, text) {
  node.insertData(index, text);
  node.deleteData(index + text.length, 1);
}

/**
 * True for a character that is a stand-in.
 * @param {Neighbour | null} character
 */
export const isStandIn = (character) => character !== null && 'node' in character &&
  standIns.some(({ node, index }) => node === character.node && index === character.index);

// Makes a no-break space a stand-in, unless it is one.
/** @param {StandIn} standIn */
function add(standIn) {
  if (!isStandIn(standIn)) standIns = [...standIns, standIn];
}
/**
 * A no-break space that the person typed, as a blank, becomes a stand-in.
 * @param {Neighbour} character
 */
export const addTyped = ({ node, index }) =>
  add({ node, index, typed: true, was: ' ', across: null });
/**
 * A no-break space that a change has left in the place of a blank becomes a stand-in.
 * @param {Neighbour} character
 * @param {string} was the character of the page that it stands for
 * @param {Side | 'none' | null} across it is resolved into nothing where the one on this side is a
 *   blank; 'none': it is always resolved into `was`
 */
export const addLeft = ({ node, index }, was = ' ', across = null) =>
  add({ node, index, typed: false, was, across });

/** @type {(node: Text, old: string) => { head: number, tail: number }} */
const commonEnds = (node, old) => dom.commonEnds(old, node.data);
/**
 * Stand-ins move along with what was written or deleted before them; those that were deleted go.
 * @param {Map<Text, string>} texts what the changed texts were before
 * @param {typeof commonEnds} keptEnds how much of such a text is as it was
 */
export function shiftStandIns(texts, keptEnds = commonEnds) {
  standIns = standIns.flatMap((standIn) => {
    const { node, index } = standIn;
    const old = texts.get(node);
    if (old === undefined || old === node.data) return [standIn];
    const { head, tail } = keptEnds(node, old);
    if (index < head) return [standIn];
    const moved = { ...standIn, index: index + node.length - old.length };
    return moved.index >= node.length - tail ? [moved] : [];
  });
}

/**
 * Cuts a text in two; the stand-ins in it go along. Returns the second half.
 * @param {Text} text
 * @param {number} offset
 */
export function splitText(text, offset) {
  const second = text.splitText(offset);
  standIns = standIns.map((standIn) => (standIn.node === text && standIn.index >= offset
    ? { ...standIn, node: second, index: standIn.index - offset } : standIn));
  return second;
}

// True when the character is one of the blanks that reach from a point to one side.
/**
 * @param {AnyNode} node
 * @param {number} offset
 * @param {Side} side
 * @param {Character} character
 */
function reaches(node, offset, side, { node: text, index }) {
  const step = side === 'previousSibling' ? 0 : 1;
  let at = node && beside(node, offset, side);
  while (at?.node && (isBlank(at) || charAt(at) === noBreak)) {
    if (at.node === text && at.index === index) return true;
    at = beside(at.node, at.index + step, side);
  }
  return false;
}
// True while an end of the selection touches the blanks that the stand-in is one of.
/** @param {StandIn} standIn */
function isAtCaret(standIn) {
  const { anchorNode, anchorOffset, focusNode, focusOffset } = selection.points();
  return dom.sides.some((side) =>
    reaches(anchorNode, anchorOffset, side, standIn) ||
    reaches(focusNode, focusOffset, side, standIn));
}

// What stand-ins are resolved into, the last of a text first: a blank, nothing, or (left out) what
// they are. At a line's end blanks are one.
/**
 * @param {StandIn[]} among
 * @returns {Resolution[]}
 */
function resolutions(among) {
  /** @type {Map<Text, Map<number, string | null>>} */
  const known = new Map();
  /** @param {Neighbour} character */
  const resolved = ({ node, index }) => known.get(node)?.get(index);
  /** @param {Neighbour | null} character */
  const isGap = (character) => isBlank(character) || resolved(character) === ' ';
  /**
   * @param {AnyNode} node
   * @param {number} index
   */
  const nextBehind = (node, index) => {
    let right = beside(node, index + 1, 'nextSibling');
    while (right?.node && resolved(right) === '') {
      right = beside(right.node, right.index + 1, 'nextSibling');
    }
    return right;
  };
  /** @param {StandIn} standIn */
  const textFor = ({ node, index, typed, was, across }) => {
    if (!node.isConnected || node.data[index] !== noBreak) return null;
    const left = beside(node, index, 'previousSibling');
    const right = nextBehind(node, index);
    if (across === 'none') return was;
    if (across === 'previousSibling') return !left || isBlank(left) ? '' : was;
    if (across === 'nextSibling') return right && isGap(right) ? '' : was;
    if (!left) return typed ? null : '';
    if (!right) return isBlank(left) || charAt(left) === noBreak ? '' : was;
    return typed ? textForTyped(left, right, was) : textForLeft(left, right, was);
  };
  /**
   * @param {Neighbour | null} left
   * @param {Neighbour | null} right
   * @param {string} was
   */
  const textForTyped = (left, right, was) => {
    if (endsLine(right)) return '';
    return isBlank(left) || isGap(right) ? null : was;
  };
  /**
   * @param {Neighbour | null} left
   * @param {Neighbour | null} right
   * @param {string} was
   */
  const textForLeft = (left, right, was) => {
    if (charAt(left) === noBreak || charAt(right) === noBreak) return null;
    return isBlank(left) || isBlank(right) ? '' : was;
  };
  /**
   * @param {StandIn} one
   * @param {StandIn} other
   */
  const lastFirst = (one, other) => {
    if (one.node === other.node) return other.index - one.index;
    const order = one.node.compareDocumentPosition(other.node);
    return order & Node.DOCUMENT_POSITION_FOLLOWING ? 1 : -1;
  };
  return [...among].sort(lastFirst).map((standIn) => {
    const text = textFor(standIn);
    if (!known.has(standIn.node)) known.set(standIn.node, new Map());
    known.get(standIn.node).set(standIn.index, text);
    return { node: standIn.node, index: standIn.index, text };
  }).filter(({ text }) => text !== null);
}
/** @param {StandIn[]} among */
const resolve = (among) =>
  resolutions(among).forEach((each) => replaceCharacter(each, each.text));

/** Resolves the stand-ins that the selection does not touch any more. */
export function resolveAwayFromCaret() {
  const left = standIns.filter((standIn) => !isAtCaret(standIn));
  standIns = standIns.filter(isAtCaret);
  resolve(left);
}

/** Resolves all stand-ins: their texts are about to be cut and joined. */
export function resolveAll() {
  resolve(standIns);
  standIns = [];
}

/** The caret moved. Steps that can be done again need the texts as they are. */
export function selectionMoved() {
  if (history.isBack() || standIns.every(isAtCaret)) return;
  history.amend(resolveAwayFromCaret);
}

/** The characters that the page's text has otherwise than the document, the last ones first. */
export const blanksAsWritten = () => resolutions(standIns);

/** A document was loaded: there are no stand-ins in it. */
export function forgetStandIns() { standIns = []; }

// A step that is taken back brings back the stand-ins that were there.
// A blank typed over a no-break space changes no text, but what the page has there.
history.keepAlong({
  current: () => standIns,
  /** @param {StandIn[]} saved */
  restore(saved) { standIns = saved; },
  /**
   * @param {StandIn[]} one
   * @param {StandIn[]} other
   */
  isSame: (one, other) => one.length === other.length && one.every(({ node, index, typed }, at) =>
    node === other[at].node && index === other[at].index && typed === other[at].typed),
});

/**
 * True where a text begins with stand-ins that stand for nothing, and they go up to the offset.
 * @param {Node} node
 * @param {number} offset
 */
export const standsForNothing = (node, offset) => offset > 0 && offset === blanksAsWritten()
  .filter((each) => each.node === node && each.index < offset && each.text === '').length;
