// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The white space that sets out the source. HTML shows a run of it as one blank or not at all; the
// engine, when it types or deletes beside such a run, makes no-break spaces of it or takes it away.
// Here the texts at the caret are noted before the engine changes them, and what was white space of
// the source is written back after it.
import * as dom from './dom.js';
import { beside, endsLine, isBlank, keepsBlanks } from './beside.js';
import { dropEmptyInline } from './lines.js';
import * as selection from './selection.js';

const noBreak = '\u00a0';
/** @param {string} text */
const lead = (text) => /^[ \t\r\n]*/.exec(text)[0];
/**
 * The white space at a text's end. An expression that ends in $ is tried at every place of a text;
 * this looks at its end alone.
 * @param {string} text
 */
export function tail(text) {
  let from = text.length;
  while (from > 0 && /[ \t\r\n]/.test(text[from - 1])) from--;
  return text.slice(from);
}
/** @param {string} text */
const wordsOf = (text) => text.replace(/[ \t\r\n\u00a0]+/g, '');
// Looks at the part that differs alone: a key in a text of a megabyte changes little of it.
/**
 * @param {AnyNode} one
 * @param {AnyNode} other
 */
function haveSameWords(one, other) {
  const { head, tail: end } = dom.commonEnds(one, other);
  /** @param {string} text */
  const middle = (text) => wordsOf(text.slice(head, text.length - end));
  return middle(one) === middle(other);
}

/**
 * The white space that a character is the first of, in its own text.
 * @param {Neighbour | null} character
 * @param {Side} side where the rest of it is
 */
export function gapFrom(character, side) {
  if (!character?.node) return '';
  const { node: { data }, index } = character;
  return side === 'nextSibling' ? lead(data.slice(index)) : tail(data.slice(0, index + 1));
}

// The texts from a character on, the first that holds more than white space the last.
const mostBeyond = 4;
/**
 * @param {Neighbour | null} place
 * @param {Side} side
 */
function textsFrom(place, side) {
  const nodes = [];
  let at = place;
  while (at?.node && nodes.length < mostBeyond) {
    nodes.push(at.node);
    if (nodes.length > 1 && !dom.isBlank(at.node)) break;
    at = beside(at.node, side === 'nextSibling' ? at.node.length : 0, side);
  }
  return nodes;
}

// The texts that a change at the range may reach: those beside it, the ones beside these, and white
// space that follows.
/** @param {PlainRange} range */
function textsAt({ startContainer, startOffset, endContainer, endOffset }) {
  const left = beside(startContainer, startOffset, 'previousSibling');
  const right = beside(endContainer, endOffset, 'nextSibling');
  const nodes = [...textsFrom(left, 'previousSibling'), ...textsFrom(right, 'nextSibling')];
  return { left, right, texts: new Map(nodes.map((node) => [node, node.data])) };
}

// Where a text stood: the engine drops those that it leaves without words.
/**
 * @param {Siblings} node
 * @returns {Siblings}
 */
const standing = ({ parentNode, previousSibling, nextSibling }) =>
  ({ parentNode, previousSibling, nextSibling });

// Texts that stand before a cut of Enter's, with the white space that is their end since.
const cutBehind = new WeakMap();
/**
 * Notes that a text ends in white space that parted words before Enter did.
 * @param {Text} text
 */
export const noteCut = (text) => cutBehind.set(text, tail(text.data));
/**
 * True where the white space at a text's end parted words before Enter parted them.
 * @param {AnyNode} text
 */
export const partedWords = (text) => cutBehind.has(text) && tail(text.data) === cutBehind.get(text);

/**
 * A line was cut between two blocks: the white space that would begin the second ends the first.
 * @param {AnyNode} above
 * @param {AnyNode} below
 */
export function moveGapAbove(above, below) {
  const first = beside(below, 0, 'nextSibling');
  const last = beside(above, above.childNodes.length, 'previousSibling');
  if (!isBlank(first) || keepsBlanks(first.node) || !last || isBlank(last)) return;
  // Behind server code a blank may be between words.
  if (dom.firstLeaf(below) !== first.node) return;
  const gap = lead(first.node.data);
  const isInCutInline = last.node && first.node.parentNode !== below;
  first.node.deleteData(0, gap.length);
  dropEmptyInline(first.node);
  if (isInCutInline) {
    last.node.insertData(last.index + 1, gap);
    noteCut(last.node);
  } else {
    above.append(gap);
    noteCut(above.lastChild);
  }
}

/**
 * What is known before a change at the range. `target`, a static range, is what it will delete.
 * @param {PlainRange} range
 * @param {string} inputType
 * @param {StaticRange | PlainRange | null} target
 */
export function note(range, inputType, target) {
  const { left, right, texts } = textsAt(range);
  if (inputType.startsWith('deleteWord')) {
    const block = document.createRange();
    block.selectNodeContents(dom.blockOf(range.startContainer));
    for (const text of selection.textsIn(block)) texts.set(text, text.data);
  }
  const { startContainer, startOffset } = range;
  const stood = new Map([...texts.keys()].map((node) => [node, standing(node)]));
  return { texts, left, right, stood, start: { node: startContainer, offset: startOffset },
    target: dom.isText(target?.startContainer) && dom.isText(target.endContainer) ? target : null };
}

// The offset in a noted text where the caret stood, null where it did not touch it. At a line's end
// the caret is seen before the white space that shows nothing.
/**
 * @param {Noted} noted
 * @param {AnyNode} node
 */
function caretOffset({ start, left, right }, node) {
  if (node === start.node) return start.offset;
  if (node === left?.node) return left.index + 1;
  return node === right?.node ? right.index : null;
}
/**
 * @param {string} text
 * @param {number} offset
 * @param {boolean} showsRest
 */
function shownOffset(text, offset, showsRest) {
  const above = text.slice(0, offset);
  return showsRest ? offset : above.length - tail(above).length;
}

// What is typed into the text at that offset: a blank that HTML would swallow is a no-break space.
/**
 * @param {AnyNode} node
 * @param {string} data
 * @param {string} above
 * @param {string} below
 */
function typed(node, data, above, below) {
  if (data !== ' ' || keepsBlanks(node)) return data;
  /**
   * @param {string} text
   * @param {number} index
   * @param {Side} side
   * @param {number} offset
   */
  const sees = (text, index, side, offset) => {
    const near = text ? text.at(index) : beside(node, offset, side);
    return typeof near === 'string' ? !/[ \t\r\n]/.test(near) : Boolean(near) && !isBlank(near);
  };
  const alone = sees(above, -1, 'previousSibling', 0) && sees(below, 0, 'nextSibling', node.length);
  return alone ? ' ' : noBreak;
}

// What the noted texts are to be: {texts, caret}; null where that is not known.
/**
 * @param {Noted} noted
 * @param {{ data?: string | null }} input
 */
function afterTyping(noted, { data }) {
  const points = selection.points();
  const anchorNode = /** @type {Text} */ (points.anchorNode);
  const { anchorOffset } = points;
  const texts = new Map(noted.texts);
  if (!texts.has(anchorNode)) return { texts, caret: null };
  const old = texts.get(anchorNode);
  const at = caretOffset(noted, anchorNode);
  if (at === null) return null;
  const rest = beside(anchorNode, anchorOffset, 'nextSibling');
  const below = old.slice(at);
  const hasRest = /[^ \t\r\n]/.test(below);
  const ends = !hasRest && (rest === null || endsLine(rest));
  const offset = keepsBlanks(anchorNode) ? at : shownOffset(old, at, !ends);
  // A stand-in the engine makes a blank, where a word follows.
  /** @param {number} index */
  const isBlankNow = (index) => data !== ' ' && anchorNode.data[index] === ' ' &&
    lead(old[index - 1] ?? '') === '' && noted.isStandIn({ node: anchorNode, index });
  const above = old.slice(0, offset)
    .replace(/\u00a0/g, (sign, index) => (isBlankNow(index) ? ' ' : sign));
  const behind = old.slice(offset);
  const put = typed(anchorNode, data, above, behind);
  texts.set(anchorNode, above + put + behind);
  return { texts, caret: { node: anchorNode, offset: offset + put.length } };
}

// White space is deleted as the one blank that it shows.
/**
 * @param {StaticRange | PlainRange | null} target
 * @param {Map<Text, string>} texts
 */
function wholeRun(target, texts) {
  const { startContainer, startOffset, endContainer, endOffset } = target;
  const data = texts.get(/** @type {Text} */ (startContainer)) ?? '';
  const part = data.slice(startOffset, endOffset);
  if (startContainer !== endContainer || !part || lead(part) !== part) return target;
  return { startContainer, startOffset: startOffset - tail(data.slice(0, startOffset)).length,
    endContainer, endOffset: endOffset + lead(data.slice(endOffset)).length };
}

/** @param {Noted} noted */
function afterDeletion({ texts: old, target }) {
  if (!target) return null;
  const { startContainer, startOffset, endContainer, endOffset } = wholeRun(target, old);
  /**
   * @param {AnyNode} node
   * @param {AnyNode} other
   */
  const precedes = (node, other) =>
    Boolean(other.compareDocumentPosition(node) & Node.DOCUMENT_POSITION_PRECEDING);
  const texts = new Map([...old].map(([node, data]) => {
    let from = precedes(node, startContainer) ? data.length : 0;
    let to = precedes(endContainer, node) ? 0 : data.length;
    if (node === startContainer) from = startOffset;
    if (node === endContainer) to = endOffset;
    return [node, to > from ? data.slice(0, from) + data.slice(to) : data];
  }));
  return { texts, caret: { node: startContainer, offset: startOffset } };
}

// A text was cut by a break: white space that would begin the second line ends the first.
/** @param {Noted} noted */
function afterBreak({ texts: old, start, right }) {
  const data = old.get(/** @type {Text} */ (start.node));
  if (data === undefined) return null;
  const { anchorNode, anchorOffset } = selection.points();
  // Cut at its end, with the rest of the line in another text.
  const isWhole = start.offset === data.length && right?.node && right.node !== start.node;
  const second = isWhole ? right.node : beside(anchorNode, anchorOffset, 'nextSibling')?.node;
  const below = isWhole ? old.get(right.node) : data.slice(start.offset);
  const isAtStart = dom.isText(anchorNode) && anchorOffset === 0;
  const first = textBeforeBreak(isWhole ? start.node.nextSibling
    : isAtStart && anchorNode.previousSibling);
  if (!first || !second || first === second || !/[^ \t\r\n\u00a0]/.test(below)) return null;
  const above = data.slice(0, start.offset) + lead(below);
  cutBehind.set(first, tail(above));
  const texts = new Map([[first, above], [second, below.slice(lead(below).length)]]);
  return { texts, caret: { node: second, offset: 0 } };
}
/** @param {AnyNode} node */
const textBeforeBreak = (node) =>
  (dom.isBreak(node) && dom.isText(node.previousSibling) ? node.previousSibling : null);

// A paragraph was cut where a line of the source ends: that line end stays behind the first part.
/** @param {Noted} noted */
function afterSplit({ texts: old, start }) {
  const data = old.get(/** @type {Text} */ (start.node));
  if (data === undefined) return null;
  const above = data.slice(0, start.offset);
  const below = data.slice(start.offset);
  const gap = tail(above) + lead(below);
  const { anchorNode, anchorOffset } = selection.points();
  const second = beside(anchorNode, anchorOffset, 'nextSibling')?.node;
  const block = anchorNode && dom.neighbour(dom.blockOf(anchorNode), 'previousSibling');
  const first = dom.isElement(block) ? dom.lastLeaf(block) : null;
  if (!gap.includes('\n') || !second || !dom.isText(first) || first === second) return null;
  if (lead(below) === below || !wordsOf(above) !== !wordsOf(first.data)) return null;
  const texts = new Map([[first, above.slice(0, above.length - tail(above).length) + gap],
    [second, below.slice(lead(below).length)]]);
  cutBehind.set(first, gap);
  return { texts, caret: { node: second, offset: 0 } };
}

/**
 * @param {Noted} noted
 * @param {{ inputType: string, data?: string | null }} input
 */
function planned(noted, input) {
  const { inputType } = input;
  if (inputType === 'insertText') return input.data ? afterTyping(noted, input) : null;
  if (inputType === 'insertLineBreak') return afterBreak(noted);
  if (inputType === 'insertParagraph') return afterSplit(noted);
  return inputType.startsWith('delete') ? afterDeletion(noted) : null;
}

// A text that is white space now and that the engine has taken out of the page.
/**
 * @param {AnyNode} node
 * @param {Siblings} stood
 * @param {boolean} isLeft
 */
function reinsert(node, { parentNode, previousSibling, nextSibling }, isLeft) {
  if (!parentNode.isConnected) return;
  /** @param {AnyNode} sibling */
  const isThere = (sibling) => sibling?.parentNode === parentNode;
  if (isLeft) {
    if (previousSibling && !isThere(previousSibling)) return;
    const next = previousSibling ? previousSibling.nextSibling : parentNode.firstChild;
    // The break that holds the line open, which is empty now.
    if (dom.isBreak(next) && next !== nextSibling) next.after(node);
    else parentNode.insertBefore(node, next);
  } else if (isThere(nextSibling)) {
    nextSibling.before(node);
  } else if (!nextSibling) {
    parentNode.append(node);
  }
}

// Writes what differs only: the selection and the history see no more than that.
/**
 * @param {AnyNode} node
 * @param {string} text
 */
function write(node, text) {
  const now = node.data;
  if (now === text) return false;
  const { head, tail: end } = dom.commonEnds(now, text);
  const fresh = text.slice(head, text.length - end);
  // In that order, so that an input method's text that begins here still does.
  node.insertData(head, fresh);
  node.deleteData(head + fresh.length, now.length - head - end);
  return true;
}

// Nothing but white space is left of a line that a break holds open: it stays on the sides of the
// break that it had of the caret.
/**
 * @param {{ node: AnyNode, offset: number }} caret
 * @param {AnyNode} line
 */
function setToEmptiedLine({ node, offset }, line) {
  if (offset > 0 && offset < node.length) line.after(node.splitText(offset));
  if (offset > 0) line.before(node);
  selection.setCaret(line.parentNode, selection.indexOf(line));
}

// True where white space is left of a text, which is the source's: all of it was, or it has a line
// end.
/**
 * @param {string} was
 * @param {string} text
 */
const isLayout = (was, text) => text.includes('\n') || (text !== '' && !wordsOf(was));

/**
 * The engine has done what was noted for: its white space becomes the source's again. Nothing is
 * written where the texts are not what was expected but for their blanks.
 * @param {Noted} noted
 * @param {{ inputType: string, data?: string | null }} input
 */
export function putBack(noted, input) {
  const plan = planned(noted, input);
  if (!plan) return;
  const texts = [...plan.texts].filter(([node]) => node.isConnected ? !keepsBlanks(node) : true);
  /** @param {[node: Text, text: string]} planned */
  const fits = ([node, text]) => haveSameWords(node.isConnected ? node.data : '', text);
  if (!texts.every(fits)) return;
  let changed = false;
  for (const [node, text] of texts) {
    const stood = noted.stood.get(node);
    if (!node.isConnected && stood && isLayout(noted.texts.get(node), text)) {
      reinsert(node, stood, node === noted.left?.node);
      changed = true;
    }
    if (node.isConnected && write(node, text)) changed = true;
  }
  const { caret } = plan;
  if (!changed || !caret?.node.isConnected) return;
  const line = dom.isBlank(caret.node) ? caret.node.previousSibling : null;
  if (dom.isBreak(line)) setToEmptiedLine(caret, line);
  else selection.setCaret(caret.node, caret.offset);
}
