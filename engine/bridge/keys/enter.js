// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Enter. The engine splits paragraphs and items; what it would do badly is done here, and what it
// leaves behind is put in order.
import { leafBeside } from '../blocks/caretDeletion.js';
import { deleteToLine } from '../blocks/deletion.js';
import { spansUnits } from '../blocks/extent.js';
import { itemOf } from '../blocks/items.js';
import * as lists from '../blocks/lists.js';
import * as typing from '../blocks/typing.js';
import { joinTexts } from '../formats/merging.js';
import * as objects from '../objects/objects.js';
import { beside, isBlank, isCommentBeside } from '../page/beside.js';
import * as blanks from '../page/blanks.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import {
  dropEmptyInline, emptyBlockAt, holdOpen, openCaretLine, openParagraph, shownBefore,
} from '../page/lines.js';
import * as selection from '../page/selection.js';
import { gapAt, unitsIn } from '../page/units.js';
import { moveGapAbove } from '../page/whitespace.js';

/** @param {PlainRange} range */
const preAt = (range) => dom.ancestor(range.startContainer, dom.isPreformatted);

// The text of a preformatted block on both sides of the caret.
/**
 * @param {Element} pre
 * @param {PlainRange} caret
 */
function sidesOf(pre, { startContainer, startOffset }) {
  const above = document.createRange();
  above.setStart(pre, 0);
  above.setEnd(startContainer, startOffset);
  const below = document.createRange();
  below.setStart(startContainer, startOffset);
  below.setEnd(pre, pre.childNodes.length);
  return [above.toString(), below.toString()];
}

// Enter in preformatted text is a line end, but on an empty last line leaves it.
function breakLine() {
  if (!selection.range().collapsed) deleteToLine(selection.range());
  const range = selection.range();
  const pre = preAt(range);
  const [above, below] = sidesOf(pre, range);
  const atEnd = /^\n?$/.test(below);
  if (atEnd && above.endsWith('\n') && above + below !== '\n') {
    leavePre(pre);
    return;
  }
  const end = document.createTextNode(below === '' ? '\n\n' : '\n');
  const held = dom.isHollow(pre) ? pre.querySelector('br') : null;
  range.insertNode(end);
  held?.remove();
  const caret = { node: end, offset: 1 };
  joinTexts([end], [caret]);
  selection.setCaret(caret.node, caret.offset);
}
/** @param {Element} pre */
function leavePre(pre) {
  const last = dom.lastLeaf(pre);
  if (dom.isText(last)) last.data = last.data.replace(/\n{1,2}$/, '');
  openParagraph((paragraph) => pre.after(paragraph));
}

// What is done by the engine after all, with an eye on the blanks beside it as at typing.
/** @param {string} inputType */
function byEngine(inputType) {
  blanks.watch();
  document.execCommand(inputType);
  blanks.engineDone({ inputType });
  blanks.watched({ inputType });
}

// The lines of an address are one address; Enter on its empty last line leaves it.
/** @param {AnyNode} address */
function breakAddress(address) {
  const { startContainer, startOffset } = selection.range();
  const at = dom.isText(startContainer) ? null : startContainer.childNodes[startOffset];
  const isLast = dom.isBreak(at) && dom.lastLeaf(address) === at;
  if (!isLast || !dom.isBreak(at.previousSibling)) {
    byEngine('insertLineBreak');
    return;
  }
  at.previousSibling.remove();
  at.remove();
  openParagraph((paragraph) => address.after(paragraph));
}

// Over selected text Enter first deletes that.
function replaceSelection() {
  typing.splitKeepingLooks(selection.range(), () => {
    const own = ownEnter();
    if (own) {
      own();
      return;
    }
    typing.prepareCaret({ inputType: 'insertParagraph' });
    byEngine('insertParagraph');
    tidySplit();
  });
}

// Cuts a block in two at the caret, which is at the start of the second one then.
/** @param {AnyNode} block */
function splitBlock(block) {
  // A caret behind a closed part may be told as one behind the block.
  if (!block.contains(selection.range().startContainer)) {
    selection.setCaret(...selection.pointOf(selection.endOf(block)));
  }
  const mark = document.createTextNode('');
  selection.range().insertNode(mark);
  dom.splitBefore(mark, block);
  const below = dom.blockOf(mark);
  const above = below === block.nextSibling ? block : block.lastChild;
  dropEmptyInline(dom.lastLeaf(above));
  dropEmptyInline(mark);
  const [first] = [...below.childNodes].filter(dom.isShown);
  if (below.tagName === 'LI' && dom.isList(first)) below.prepend(dom.create('BR'));
  moveGapAbove(above, below);
  holdOpen(above);
  holdOpen(below);
  selection.setCaret(...selection.pointOf(selection.startOf(below)));
}

// True for a paragraph that is all of an item, or of a division that is.
/**
 * @param {Element} item
 * @param {Unit} unit
 */
function isAllOf(item, { block }) {
  if (!block || block === item) return false;
  for (let at = block; at !== item; at = at.parentElement) {
    if (dom.sides.some((side) => dom.neighbour(at, side))) return false;
  }
  return true;
}

// True where an item shows nothing but a break; white space in a format beside it shows nothing.
/** @param {Element} item */
function showsBreakAlone(item) {
  const range = document.createRange();
  range.selectNodeContents(item);
  const leaves = [...selection.leavesIn(range)].filter((leaf) => !dom.isBlank(leaf));
  return leaves.length === 1 && dom.isBreak(leaves[0]);
}

// In an item: an empty one is left. With other blocks in the item the engine would put the new one
// among those, or drop the source's lines before a list.
/** @param {Unit} unit */
function enterInItem(unit) {
  const item = itemOf(unit);
  if (!item) return null;
  const isAlone = isAllOf(item, unit);
  const isEmpty = dom.isHollow(item) || (isAlone && dom.isHollow(unit.block)) ||
    ((isAlone || !unit.block) && showsBreakAlone(item));
  if (isEmpty) return () => lists.outdentItemOf(unit);
  const others = [...item.children].filter((child) => child !== unit.block && dom.isBlock(child));
  const goesOn = unit.block
    ? /^(P|DIV|H[1-6])$/.test(unit.block.tagName) && unit.block.parentNode === item &&
      dom.neighbour(unit.block, 'nextSibling')
    : unit.container === item && others.length > 0;
  return goesOn || goesOnInside(unit, item) ? () => splitBlock(item) : null;
}
// True for a paragraph that lies deeper in an item (in a division), with more behind it there, and
// for bare text beside other blocks of such a division: the engine would write looks of its own.
/**
 * @param {Unit} unit
 * @param {Element} item
 */
function goesOnInside({ block, container, nodes }, item) {
  if (item === (block ? block.parentNode : container) || item === block) return false;
  if (!block && container.tagName === 'DIV') return true;
  for (let at = block ?? nodes.at(-1) ?? container; at !== item; at = at.parentElement) {
    if (dom.neighbour(at, 'nextSibling')) return true;
  }
  return false;
}

// True where a comment (server code stands as such) is at the caret, within a line. The engine
// would move the caret and white space past it.
/** @param {PlainRange} caret */
const isBesideComment = ({ startContainer, startOffset }) =>
  dom.sides.some((side) => isCommentBeside(startContainer, startOffset, side)) &&
  dom.sides.every((side) => characterOn(side, startContainer, startOffset));
// The nearest character on one side that is no blank, in the same line; null for none.
/**
 * @param {Side} side
 * @param {Node} node
 * @param {number} offset
 */
function characterOn(side, node, offset) {
  const step = side === 'nextSibling' ? 1 : 0;
  let at = beside(node, offset, side);
  while (isBlank(at)) at = beside(at.node, at.index + step, side);
  return at;
}
// Beside an island the engine would write looks as FONT and styles, or do nothing.
/** @param {PlainRange} caret */
function isBesideIsland({ startContainer, startOffset }) {
  const [last, next] = dom.sides.map((side) => beside(startContainer, startOffset, side));
  return last !== null && [last, next].some((near) => dom.isIsland(near?.object));
}
// Before a break within a formatted line it would do the same, and take what follows to pieces.
// Answers the last character before such a break.
/** @param {PlainRange} caret */
function endOfFormattedLine({ startContainer, startOffset }) {
  const isInText = dom.isText(startContainer);
  if (isInText && startContainer.data.slice(startOffset).trim()) return null;
  const before = isInText ? startContainer : startContainer.childNodes[startOffset - 1];
  const next = before ? leafBeside(before, 'nextSibling') : dom.firstLeaf(startContainer);
  const last = characterOn('previousSibling', startContainer, startOffset);
  const block = dom.blockOf(startContainer);
  const isInLine = last?.node && dom.isBreak(next) && block.contains(next) &&
    dom.lastLeaf(block) !== next;
  const isFormatted = isInLine && (last.node.parentNode !== block || next.parentNode !== block);
  return isFormatted ? last : null;
}
/** @param {Neighbour} last */
function splitBehind({ node, index }) {
  selection.setCaret(node, index + 1);
  splitHere();
}
function splitHere() {
  typing.prepareCaret({ inputType: 'insertParagraph' });
  const [unit] = unitsIn(selection.range());
  const item = itemOf(unit);
  splitBlock(item && isAllOf(item, unit) ? item : unit.block ?? unit.container);
}

/** @param {Range} range */
function enterInLine(range) {
  const gap = gapAt(range);
  if (gap) return () => typing.makeLine(gap);
  const [unit] = unitsIn(range);
  if (!unit) return null;
  // A table has one caption.
  if (unit.container.tagName === 'CAPTION') return () => byEngine('insertLineBreak');
  if (unit.block?.tagName === 'ADDRESS' && !dom.isHollow(unit.block)) {
    return () => breakAddress(unit.block);
  }
  const own = enterInItem(unit);
  if (own) return own;
  if (isBesideComment(range) || isBesideIsland(range)) return splitHere;
  const last = endOfFormattedLine(range);
  return last && (() => typing.splitKeepingLooks(range, () => splitBehind(last)));
}

/** What Shift+Enter does here where the engine would do it badly, else null. */
export function ownBreak() {
  const range = selection.range();
  const isOwn = range?.collapsed && !preAt(range) && isBesideComment(range);
  return isOwn ? () => breakBesideComment(range) : null;
}
/** @param {Range} caret */
function breakBesideComment(caret) {
  const line = dom.create('BR');
  caret.insertNode(line);
  // White space that would begin the second line ends the first.
  const below = /** @type {AnyNode} */ (line.nextSibling);
  const gap = dom.isText(below) ? /^[ \t\n]*/.exec(below.data)[0] : '';
  if (gap) {
    line.before(gap);
    below.deleteData(0, gap.length);
  }
  if (dom.isText(below)) dropEmptyInline(below);
  selection.setCaret(line.parentNode, selection.indexOf(line) + 1);
}

function openAndEnter() {
  openCaretLine();
  const own = ownEnter();
  if (own) own();
  else byEngine('insertParagraph');
}

/** What Enter does here where the engine would do it badly, else null. */
export function ownEnter() {
  const range = selection.range();
  if (!range) return null;
  if (preAt(range) && !spansUnits(range)) return breakLine;
  if (dom.isParagraph(emptyBlockAt(range))) return openAndEnter;
  const object = selection.control(range);
  const action = object && objects.enterActionOf(object);
  if (action) return action;
  return range.collapsed ? enterInLine(range) : replaceSelection;
}

// A split paragraph leaves its id with the first half only, and so does a link in it its name.
function dropDoubledNames() {
  /**
   * @param {AnyNode} at
   * @param {string} name
   */
  const drop = (at, name) => {
    history.attributesOf(at);
    at.removeAttribute(name);
  };
  for (let at = selection.element(); at && at !== document.body; at = at.parentElement) {
    if (at.id && document.getElementById(at.id) !== at) drop(at, 'id');
    const isDoubled = at.tagName === 'A' && at.name && [...document.getElementsByName(at.name)]
      .some((other) => other.tagName === 'A' && other !== at);
    if (isDoubled) drop(at, 'name');
  }
}

// A new paragraph that is empty is outside of the link that the one before it ended with.
/** @param {AnyNode} block */
function leaveLink(block) {
  const link = dom.lastLeaf(block).parentNode.closest('a[href]');
  if (!link || !block.contains(link)) return;
  const saved = selection.save();
  dom.unwrap(link);
  selection.restore(saved);
}

// A definition follows a term, and a term a definition.
/** @param {AnyNode} block */
function alternate(block) {
  const item = block.closest('DT, DD');
  const others = item && [...item.childNodes].some((node) => node !== block && dom.isShown(node));
  if (!item || (item !== block && others)) return;
  const before = dom.neighbour(item, 'previousSibling');
  if (before?.tagName !== item.tagName) return;
  const saved = selection.save();
  dom.rename(item, item.tagName === 'DT' ? 'DD' : 'DT');
  selection.restore(saved);
}

// The engine cuts a formatted text in two even where nothing but a blank that it takes away stands
// behind the caret: the second half is empty then.
/**
 * @param {Element} first
 * @param {Element} block
 */
function dropEmptyHalf(first, block) {
  const half = dom.firstLeaf(block);
  if (!dom.isElement(half) || dom.isAtom(half)) return;
  for (let at = dom.lastLeaf(first).parentNode; at !== first; at = at.parentNode) {
    if (at.cloneNode(false).isEqualNode(half)) {
      dropEmptyInline(half);
      return;
    }
  }
}

// In an empty line the engine writes looks of the line before as FONT, whatever the page.
/** @param {Element} first */
function dropFonts(first) {
  if (!dom.writesStyles() || dom.lastLeaf(first).parentNode.closest('font')) return;
  for (let font = selection.element()?.closest('font'); font && !font.textContent.trim();
    font = selection.element().closest('font')) {
    const saved = selection.save();
    dom.unwrap(font);
    selection.restore(saved);
  }
}

// The block that a block ends with; white space of the source may stand behind it.
/**
 * @param {AnyNode} block
 * @returns {AnyNode}
 */
function lastBlockOf(block) {
  const last = dom.shownFrom(block.lastChild, 'previousSibling');
  return dom.isBlock(last) && !dom.isAtom(last) ? lastBlockOf(last) : block;
}

/**
 * Puts in order what the engine left where it split a paragraph. The break that held a line open is
 * not needed where text stands before it.
 */
export function tidySplit() {
  dropDoubledNames();
  const split = dom.blockOf(selection.points().anchorNode);
  if (dom.isHollow(split)) {
    leaveLink(split);
    alternate(split);
  }
  const block = dom.successor(split);
  const half = shownBefore(block);
  if (!dom.isElement(half) || !dom.isBlock(half) || dom.isHollow(half)) return;
  const first = lastBlockOf(half);
  const last = dom.lastLeaf(first);
  const before = last.previousSibling;
  if (dom.isBreak(last) && before && !dom.isBreak(before)) last.remove();
  moveGapAbove(first, block);
  dropEmptyHalf(first, block);
  dropFonts(first);
}
