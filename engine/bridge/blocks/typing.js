// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Typing. The engine puts typed text in; what is done here is what it needs before it can (a line,
// a paragraph, an empty selection), and all of it where text is typed over selected text or in a
// link.
import { deletionOfLineEnd } from './caretDeletion.js';
import { deleteRange, deleteToLine, deleteToPoint } from './deletion.js';
import { narrowSelection } from './extent.js';
import { looksOf, waitAtCaret } from '../formats/keptLooks.js';
import * as pending from '../formats/pending.js';
import * as objects from '../objects/objects.js';
import * as blanks from '../page/blanks.js';
import * as dom from '../page/dom.js';
import { beginsLine, beside, endsLine, keepsBlanks } from '../page/beside.js';
import { holdOpen, openCaretLine, openParagraph } from '../page/lines.js';
import * as selection from '../page/selection.js';
import { takeInSigns } from '../page/signs.js';
import { addTyped, noBreak, resolveAll } from '../page/standIns.js';
import { enclose, gapAt, unitsIn } from '../page/units.js';

// inputType of input after which an empty paragraph has text: its holder is not needed any more.
const fills = new Set(['insertText', 'insertFromPaste', 'insertReplacementText']);

// True where bare text has to become a paragraph before the input: it is about to be split, or it
// is the first text of an empty page. A block with an id is not split: the paragraph is made in it.
/**
 * @param {Unit} unit
 * @param {{ inputType: string }} input
 */
function needsParagraph(unit, { inputType }) {
  if (!unit || !dom.isBare(unit.container)) return false;
  const empty = () => unit.container === document.body && dom.isHollow(document.body);
  const begins = /^insert(Composition)?Text$/.test(inputType);
  if (inputType !== 'insertParagraph' && (!begins || !empty())) return false;
  return !unit.block || unit.block.id !== '';
}
// Puts a paragraph around bare text, or an empty one where there is no text; the caret stays.
/** @param {Unit} unit */
function makeParagraph(unit) {
  const saved = selection.save();
  const paragraph = enclose(unit, dom.create('P'));
  if (!dom.hasContent(paragraph)) {
    paragraph.append(dom.create('BR'));
    selection.setCaret(paragraph, 0);
  } else {
    selection.restore(saved);
  }
}

/**
 * Makes an empty paragraph, with the caret in it, at a point where no line is (before a table).
 * @param {Point} point
 */
export function makeLine([node, offset]) {
  openParagraph((paragraph) => node.insertBefore(paragraph, node.childNodes[offset] ?? null));
}

// A *holder* is the no-break space that is all a paragraph or cell holds: pages have it there so
// that an empty one is seen. Answers the one at the caret; null for none, and for one that was
// typed.
/** @param {Text} text */
const isHolder = (text) => /^[ \t\n]*\u00a0[ \t\n]*$/.test(text.data);
/**
 * @param {Unit} unit
 * @param {PlainRange} caret
 */
function holderOf(unit, { startContainer }) {
  if (dom.isText(startContainer) && !isHolder(startContainer)) return null;
  if (unit?.nodes.length !== 1) return null;
  let [at] = unit.nodes;
  while (!dom.isText(at)) {
    if (dom.isAtom(at) || at.childNodes.length !== 1) return null;
    at = at.firstChild;
  }
  return isHolder(at) && !blanks.wasTypedIn(at) ? at : null;
}

/** Deletes the holder that the caret is beside; something else is about to come in its place. */
export function dropHolder() {
  const caret = selection.range();
  const holder = caret?.collapsed ? holderOf(unitsIn(caret)[0], caret) : null;
  if (!holder) return;
  const { parentNode } = holder;
  const index = selection.indexOf(holder);
  holder.remove();
  holdOpen(dom.blockOf(parentNode));
  selection.setCaret(parentNode, index);
}

// True where all of the page is selected: what is typed over it has no looks from before.
/** @param {PlainRange} range */
const isAll = ({ startContainer, startOffset, endContainer, endOffset }) =>
  startContainer === document.body && endContainer === document.body && startOffset === 0 &&
  endOffset === document.body.childNodes.length;

/**
 * The first text that is selected, less where that is an object or all of the page.
 * @param {Range} range
 * @returns {Text | undefined}
 */
const firstText = (range) =>
  (isAll(range) || selection.control(range) ? undefined : selection.textsIn(range)[0]);
/**
 * Deletes what is selected and puts the caret into a line. The formats of the first deleted text
 * wait at the caret for what is typed next (formats/pending.js), where that is in the same
 * paragraph; not where all of the page is deleted.
 * @param {Range} range the selected one
 */
export function deleteKeepingLooks(range) {
  const joins = selection.cellsIn(range) ? null : deletionOfLineEnd(range);
  if (joins) {
    joins();
    return;
  }
  const text = firstText(range);
  const looks = text ? looksOf(text) : [];
  const block = text && dom.blockOf(text);
  deleteToLine(range);
  const caret = selection.range();
  if (caret && dom.blockOf(caret.startContainer) === block) waitAtCaret(looks);
}

/**
 * Deletes what is selected, as Delete does. Cells stay selected.
 * @param {Range} range the selected one
 */
export function deleteSelected(range) {
  const cells = selection.saveCells(range);
  deleteKeepingLooks(range);
  selection.restore(cells);
}

/**
 * Deletes what is selected, and has Enter done by `split`; the formats of the first deleted text,
 * else of the one before the caret, wait in the new line for what is typed there.
 * @param {Range} range the selected one
 * @param {() => void} split
 */
export function splitKeepingLooks(range, split) {
  const { collapsed, startContainer, startOffset } = range;
  const text = collapsed
    ? beside(startContainer, startOffset, 'previousSibling')?.node : firstText(range);
  const looks = text ? looksOf(text) : [];
  if (!collapsed) deleteToPoint(range);
  split();
  pending.clear();
  if (selection.range()) waitAtCaret(looks);
}

// A caret between a table and a text goes into the text: the engine would type before the table,
// where that ends in white space.
/** @param {PlainRange} caret */
function enterTextBehindTable({ startContainer, startOffset, collapsed }) {
  const table = dom.shownFrom(startContainer.childNodes[startOffset - 1], 'previousSibling');
  const text = dom.shownFrom(startContainer.childNodes[startOffset], 'nextSibling');
  if (!collapsed || table?.nodeName !== 'TABLE' || !dom.isText(text)) return;
  selection.setCaret(text, /^[ \t\n]*/.exec(text.data)[0].length);
}

/**
 * Makes the caret ready for input that the engine is about to carry out: deletes what is selected,
 * makes a line or paragraph where there is none, and selects a holder so that the text replaces it.
 * @param {{ inputType: string }} event
 */
export function prepareCaret(event) {
  const range = selection.range();
  if (!range) return;
  if (!range.collapsed) {
    const object = selection.control(range);
    // Nobody types over a table: the text goes into a new paragraph behind it.
    const goBehind = object?.tagName === 'TABLE' && !isAll(range) && objects.enterActionOf(object);
    if (goBehind) goBehind();
    const isGone = Boolean(goBehind) || (object && objects.replaceByLine(object));
    if (event.inputType === 'insertCompositionText' && !object) deleteKeepingLooks(range);
    else if (!isGone) deleteToPoint(range);
  }
  openCaretLine();
  const caret = selection.range();
  const gap = gapAt(caret);
  if (gap) {
    makeLine(gap);
    return;
  }
  enterTextBehindTable(caret);
  const [unit] = unitsIn(caret);
  if (needsParagraph(unit, event)) makeParagraph(unit);
  const holder = fills.has(event.inputType) ? holderOf(unit, caret) : null;
  if (holder) document.getSelection().setBaseAndExtent(holder, 0, holder, holder.length);
}

/** @param {AnyNode} node */
const linkAt = (node) => dom.ancestor(node, (at) => at.tagName === 'A' && at.href, dom.isBlock);

// The point behind text that was typed over a part of a link. What is typed there next belongs to
// the link too; the engine would put it behind the link.
/** @type {TextAnchor | null} */
let linkEnd = null;
/** @param {PlainRange} caret */
const isInLink = ({ collapsed, startContainer, startOffset }) =>
  collapsed && linkEnd?.node === startContainer && linkEnd.offset === startOffset;

// The start of the first selected text; null where something else is selected before it.
/**
 * @param {Range} range
 * @returns {TextAnchor | null}
 */
function firstSelectedText(range) {
  const [node] = selection.textsIn(range);
  if (!node || selection.control(range) || isAll(range)) return null;
  if (node === range.startContainer) return { node, offset: range.startOffset };
  const [leaf] = selection.leavesIn(range);
  return leaf === node ? { node, offset: 0 } : null;
}

// The caret as a point in a text, where it is in a link that holds blocks; null elsewhere. The
// engine would type behind such a link, and cut it to pieces for that.
/** @param {PlainRange} caret */
function inLinkOfBlocks({ startContainer, startOffset }) {
  if (!dom.isText(startContainer) || !dom.blockOf(startContainer).closest('a[href]')) return null;
  return { node: startContainer, offset: startOffset };
}

// The end of a link's words, where the caret is behind them and nothing but the source's white
// space follows in the link and in the line. The engine would type behind the link, and that white
// space would be seen.
/** @param {PlainRange} caret */
function beforeEndOfLink({ collapsed, startContainer: node, startOffset }) {
  if (!collapsed || !dom.isText(node) || !linkAt(node) || keepsBlanks(node)) return null;
  const offset = node.data.replace(/[ \t\r\n]+$/, '').length;
  const isAtEnd = offset < node.length && startOffset >= offset &&
    endsLine(beside(node, offset, 'nextSibling'));
  return isAtEnd ? { node, offset } : null;
}

// Puts typed text into a text; answers the offset behind it.
/**
 * @param {string} data
 * @param {TextAnchor} at
 */
function insertAt(data, { node, offset }) {
  const blank = data === ' ' && !keepsBlanks(node);
  node.insertData(offset, blank ? noBreak : data);
  if (blank) addTyped({ node, index: offset });
  return offset + data.length;
}

/**
 * Types text in place of the selected text, into the node of the first of it, so that it has the
 * looks of that; the engine would write them anew in markup of its own. Goes on in a link after
 * such typing. False where it does neither: the engine types then.
 * @param {string | null} data
 * @returns {boolean}
 */
export function typeOver(data) {
  if (!data || !selection.range()) return false;
  if (selection.cellsIn(selection.range())) {
    deleteKeepingLooks(selection.range());
    return false;
  }
  narrowSelection(selection.range());
  const range = selection.range();
  if (!range.collapsed) resolveAll();
  takeInSigns(range);
  const start = isInLink(range) ? linkEnd
    : firstSelectedText(range) ?? inLinkOfBlocks(range) ?? beforeEndOfLink(range);
  if (!start) return false;
  const { node } = start;
  blanks.watch();
  const end = insertAt(data, start);
  if (!range.collapsed) {
    range.setStart(node, end);
    deleteRange(range);
  }
  selection.setCaret(node, end);
  linkEnd = linkAt(node) ? { node, offset: end } : null;
  return true;
}

/**
 * Notes that the text at the caret was typed in: a no-break space that is all of it is no holder.
 * The break that held a line open above a block goes; the engine leaves it.
 * @param {string | null} data
 */
export function noteTyped(data) {
  const { anchorNode } = selection.points();
  if (!anchorNode) return;
  blanks.noteTyped(anchorNode);
  const begins = data && dom.isText(anchorNode) && anchorNode.data.trim() === data &&
    beginsLine(beside(anchorNode, 0, 'previousSibling'));
  if (!begins) return;
  /** @type {AnyNode} */
  let line = anchorNode;
  while (dom.isInline(line.parentNode) && !dom.neighbour(line, 'nextSibling')) {
    line = line.parentNode;
  }
  const holder = dom.neighbour(line, 'nextSibling');
  if (dom.isBreak(holder) && dom.isBlock(dom.neighbour(holder, 'nextSibling'))) holder.remove();
}
