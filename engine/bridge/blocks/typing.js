// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What is made ready before the engine types, and typing over selected text.
import { deleteRange, deleteToLine, deleteToPoint } from './deletion.js';
import { narrowSelection } from './extent.js';
import { formats } from '../formats/formats.js';
import * as pending from '../formats/pending.js';
import * as objects from '../objects/objects.js';
import * as blanks from '../page/blanks.js';
import * as dom from '../page/dom.js';
import { keepsBlanks } from '../page/beside.js';
import { holdOpen, openParagraph } from '../page/lines.js';
import * as selection from '../page/selection.js';
import { addTyped, noBreak, resolveAll } from '../page/standIns.js';
import { enclose, gapAt, unitsIn } from '../page/units.js';

// Input that fills an empty paragraph, so that nothing need keep it open any more.
const fills = new Set(['insertText', 'insertFromPaste', 'insertReplacementText']);

// Bare text becomes a paragraph before it is split; so does the first text of an empty page. What
// has a name is there once, with the paragraph in it.
function needsParagraph(unit, { inputType }) {
  if (!unit || !dom.isBare(unit.container)) return false;
  const empty = () => unit.container === document.body && dom.isHollow(document.body);
  const begins = /^insert(Composition)?Text$/.test(inputType);
  if (inputType !== 'insertParagraph' && (!begins || !empty())) return false;
  return !unit.block || unit.block.id !== '';
}
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
 * A paragraph at a point where no line is, as before a table.
 * @param {Point} point
 */
export function makeLine([node, offset]) {
  openParagraph((paragraph) => node.insertBefore(paragraph, node.childNodes[offset] ?? null));
}

// The no-break space that is all a paragraph or cell holds, which keeps an empty one open.
const isHolder = (text) => /^[ \t\n]*\u00a0[ \t\n]*$/.test(text.data);
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

// Takes that no-break space away, where the caret is beside it, for what comes in its place.
export function emptyHolder() {
  const caret = selection.range();
  const holder = caret?.collapsed ? holderOf(unitsIn(caret)[0], caret) : null;
  if (!holder) return;
  const { parentNode } = holder;
  const index = selection.indexOf(holder);
  holder.remove();
  holdOpen(dom.blockOf(parentNode));
  selection.setCaret(parentNode, index);
}

// All of the page: what is typed over it begins a new one.
const isAll = ({ startContainer, startOffset, endContainer, endOffset }) =>
  startContainer === document.body && endContainer === document.body && startOffset === 0 &&
  endOffset === document.body.childNodes.length;

// The formats that elements around a text give it, each with its value there.
function looksOf(text) {
  const around = [];
  for (let at = text.parentNode; !dom.isBlock(at); at = at.parentNode) around.push(at);
  return Object.entries(formats).filter(([, format]) => around.some((at) => format.carries(at)))
    .map(([name, format]) => [name, format.read(text.parentNode)]);
}

// Deletes what is selected. What is typed next looks as the first of it did, where it is typed in
// the same paragraph: its formats wait at the caret. All of the page leaves none.
export function deleteKeepingLooks(range) {
  const [text] = isAll(range) || selection.control(range) ? [] : selection.textsIn(range);
  const looks = text ? looksOf(text) : [];
  const block = text && dom.blockOf(text);
  deleteToLine(range);
  const caret = selection.range();
  if (!caret || dom.blockOf(caret.startContainer) !== block) return;
  const element = selection.caretElement(caret);
  for (const [name, value] of looks) {
    const { read, same } = formats[name];
    if (!same(read(element), value)) pending.set(name, value);
  }
}

export function prepare(event) {
  const range = selection.range();
  if (!range) return;
  if (!range.collapsed) {
    const object = selection.control(range);
    // A table is nothing to type over.
    const behind = object?.tagName === 'TABLE' && !isAll(range) && objects.entering(object);
    if (behind) behind();
    const gaveWay = Boolean(behind) || (object && objects.giveWay(object));
    if (event.inputType === 'insertCompositionText' && !object) deleteKeepingLooks(range);
    else if (!gaveWay) deleteToPoint(range);
  }
  const caret = selection.range();
  const gap = gapAt(caret);
  if (gap) {
    makeLine(gap);
    return;
  }
  const [unit] = unitsIn(caret);
  if (needsParagraph(unit, event)) makeParagraph(unit);
  const holder = fills.has(event.inputType) ? holderOf(unit, caret) : null;
  if (holder) document.getSelection().setBaseAndExtent(holder, 0, holder, holder.length);
}

const linkAt = (node) => dom.ancestor(node, (at) => at.tagName === 'A' && at.href, dom.isBlock);

// Where typing over a part of a link ended: what follows belongs to it, while the engine would go
// on behind the link.
/** @type {TextAnchor | null} */
let linkEnd = null;
const isInLink = ({ collapsed, startContainer, startOffset }) =>
  collapsed && linkEnd?.node === startContainer && linkEnd.offset === startOffset;

// Where the first selected text begins to be selected; null where something else comes first.
/** @returns {TextAnchor | null} */
function firstSelectedText(range) {
  const [node] = selection.textsIn(range);
  if (!node || selection.control(range) || isAll(range)) return null;
  if (node === range.startContainer) return { node, offset: range.startOffset };
  const [leaf] = selection.leavesIn(range);
  return leaf === node ? { node, offset: 0 } : null;
}

// In a link that holds blocks the engine would type behind it, and cut the link to pieces for that.
function inLinkOfBlocks({ startContainer, startOffset }) {
  if (!dom.isText(startContainer) || !dom.blockOf(startContainer).closest('a[href]')) return null;
  return { node: startContainer, offset: startOffset };
}

// Answers the offset behind what was put in.
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

// Types over selected text where the first of it stood, so that what is typed has its looks. The
// engine would write them anew in markup of its own. False where no text is selected.
export function over(data) {
  if (!data || !selection.range()) return false;
  narrowSelection(selection.range());
  const range = selection.range();
  const start = isInLink(range) ? linkEnd : firstSelectedText(range) ?? inLinkOfBlocks(range);
  if (!start) return false;
  const { node } = start;
  if (!range.collapsed) resolveAll();
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

// Something was typed at the caret.
export function done() {
  const { anchorNode } = selection.points();
  if (anchorNode) blanks.noteTyped(anchorNode);
}
