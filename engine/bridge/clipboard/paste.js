// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Puts markup in at the selection, exactly as it stands: scripts, handlers, comments and objects
// stay in it (nothing of it runs while a page is edited). The paragraph at the caret is cut in two
// where blocks come in.
import { breakBehind, dropBreak } from '../blocks/breaks.js';
import { deleteToLine, deleteToPoint } from '../blocks/deletion.js';
import { isListOf } from '../blocks/items.js';
import { dropHolder } from '../blocks/typing.js';
import { joinToNeighbours } from '../formats/merging.js';
import { dropDoubleEmphasis, dropSharedContext, makeItems, wrapParts } from './fitting.js';
import { closed, giveName, joinsFor } from './openEnds.js';
import { noteArrival } from './pictures.js';
import * as objects from '../objects/objects.js';
import * as blanks from '../page/blanks.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import { dropEmptyInline, holdOpen, plainText } from '../page/lines.js';
import * as selection from '../page/selection.js';
import { leaveSign } from '../page/signs.js';
import { resolveAll, splitText } from '../page/standIns.js';

/** @param {string} html */
function parse(html) {
  const template = document.createElement('template');
  template.innerHTML = html;
  return document.importNode(template.content, true);
}

// The element that must be cut for blocks to come in at a node; null where none needs to. `items`
// are the tags of the items that all of the blocks are.
/**
 * @param {AnyNode} node
 * @param {string[]} [items]
 */
function cutAt(node, items) {
  let top = null;
  for (let at = node; at && !dom.isCell(at); at = at.parentNode) {
    if (items?.includes(at.tagName)) return at;
    if (dom.isInline(at) || dom.isParagraph(at)) top = at;
    else if (!dom.isText(at) && !items) break;
  }
  return top;
}

// Cuts an element in two at a point in it; answers both halves.
/**
 * @param {AnyNode} node
 * @param {number} offset
 * @param {AnyNode} top
 */
function cutInTwo(node, offset, top) {
  if (dom.isText(node)) {
    node = offset === 0 ? node : splitText(node, offset);
  } else {
    const mark = document.createTextNode('');
    node.insertBefore(mark, node.childNodes[offset] ?? null);
    node = mark;
  }
  return [top, dom.splitBefore(node, top)];
}

// The comments in a block, in document order.
/** @param {Node} block */
function commentsIn(block) {
  const walker = document.createTreeWalker(block, NodeFilter.SHOW_COMMENT);
  const comments = [];
  while (walker.nextNode()) comments.push(walker.currentNode);
  return comments;
}
// Drops a half that nothing is left in; tells whether it did. Comments, and the
// server code that stands as such, stay.
/**
 * @param {AnyNode} half
 * @param {AnyNode} [next]
 */
function dropIfHollow(half, next = null) {
  if (dom.isHollow(half) && ![...half.querySelectorAll('*')].some(dom.isAtom)) {
    giveName(half, next);
    half.replaceWith(...commentsIn(half));
    return true;
  }
  return false;
}

// The items that stand beside one another.
const itemTags = [['LI'], ['DT', 'DD']];

// Puts a fragment with blocks in at a point.
/**
 * @param {DocumentFragment} fragment
 * @param {AnyNode} node
 * @param {number} offset
 * @param {boolean} endsLine the blocks end the line of the point, so that its break goes
 */
function putBlocks(fragment, node, offset, endsLine) {
  const tops = [...fragment.children];
  const items = itemTags.find((tags) => tops.every(({ tagName }) => tags.includes(tagName)));
  const top = cutAt(node, tops.length ? items : undefined);
  if (top?.tagName === 'DT') makeItems(fragment, top.parentNode);
  const last = fragment.lastChild;
  const line = endsLine ? breakBehind(node, offset) : null;
  if (!top) {
    const holder = holderAt(node, offset);
    insertAt(fragment, node, offset);
    dropHolderBreak(holder);
    dropBreak(line);
    setCaretBehindBlocks(last, null);
    return;
  }
  const [before, after] = cutInTwo(node, offset, top);
  const first = [...fragment.childNodes].find((child) => !dom.isBlank(child));
  before.after(fragment);
  dropBreak(line);
  dropEmptyInline(dom.lastLeaf(before));
  dropEmptyInline(dom.firstLeaf(after));
  // The source's line end behind the caret.
  const gap = dom.isHollow(after) && /^[ \t]*\n[ \t\n]*$/.exec(after.textContent);
  if (gap && !dom.isHollow(before) && !after.querySelector('br')) before.append(gap[0]);
  dropIfHollow(before, first);
  setCaretBehindBlocks(last, dropIfHollow(after) ? null : after);
}

// Puts the caret behind blocks that were put in: to the start of what follows, else to the end of
// the last one.
/**
 * @param {AnyNode} last
 * @param {AnyNode} following
 */
function setCaretBehindBlocks(last, following) {
  const text = following && dom.firstLeaf(following);
  if (text) {
    const range = document.createRange();
    if (dom.isText(text)) range.setStart(text, 0);
    else range.setStartBefore(text);
    selection.setCaret(range.startContainer, range.startOffset);
    return;
  }
  let shown = last;
  while (shown.previousSibling && !dom.isShown(shown)) shown = shown.previousSibling;
  const leaf = dom.isElement(shown) && shown.tagName !== 'TABLE' ? dom.lastLeaf(shown) : shown;
  if (dom.isText(leaf)) selection.setCaret(leaf, leaf.length);
  else setCaretBehind(leaf);
}

/** @param {AnyNode} node */
function setCaretBehind(node) {
  const index = [...node.parentNode.childNodes].indexOf(node);
  selection.setCaret(node.parentNode, index + 1);
}

// Puts a fragment in at a point, as it is.
/**
 * @param {DocumentFragment} fragment
 * @param {AnyNode} node
 * @param {number} offset
 */
function insertAt(fragment, node, offset) {
  if (dom.isText(node)) {
    const second = offset === 0 ? node : splitText(node, offset);
    if (offset === node.length && second === node) node.after(fragment);
    else second.before(fragment);
    if (!second.length) second.remove();
  } else {
    node.insertBefore(fragment, node.childNodes[offset] ?? null);
  }
}

// The break that holds an empty block, an empty last line or an item's line above its list open.
/**
 * @param {AnyNode} node
 * @param {number} offset
 */
function holderAt(node, offset) {
  const block = dom.blockOf(node);
  if (dom.isHollow(block)) return block.querySelector('br');
  let at = dom.isText(node) ? node : node.childNodes[offset];
  while (at && dom.isBlank(at)) at = at.nextSibling;
  if (!dom.isBreak(at)) return null;
  const [before, next] = dom.sides.map((side) => dom.neighbour(at, side));
  /** @param {AnyNode} sibling */
  const isEdge = (sibling) => !sibling || dom.isBlock(sibling);
  const isLast = dom.isBlock(at.parentNode) && isEdge(next);
  const isEmpty = isEdge(before) || dom.isBreak(before);
  return (isLast && isEmpty) || dom.isList(next) ? at : null;
}

/** @param {AnyNode} holder */
function dropHolderBreak(holder) {
  if (!holder) return;
  const { parentNode } = holder;
  holder.remove();
  if (!dom.isBlock(parentNode)) dropEmptyInline(parentNode);
}

/** @param {AnyNode} node */
const linkAt = (node) => dom.ancestor(node, (at) => at.tagName === 'A' && at.href, dom.isBlock);

// Puts a fragment without blocks in at a point.
/**
 * @param {DocumentFragment} fragment
 * @param {AnyNode} node
 * @param {number} offset
 */
function putInline(fragment, node, offset) {
  const holder = holderAt(node, offset);
  dropSharedContext(fragment, node);
  dropDoubleEmphasis(fragment, node);
  const { firstChild: first, lastChild: last } = fragment;
  if (!last) return;
  const link = fragment.querySelector('a[href]') && linkAt(node);
  if (link) {
    // No link stands in another one.
    const [before, after] = cutInTwo(node, offset, link);
    before.after(fragment);
    dropEmptyInline(dom.lastLeaf(before));
    dropEmptyInline(dom.firstLeaf(after));
  } else {
    insertAt(fragment, node, offset);
  }
  dropHolderBreak(holder);
  holdOpen(dom.blockOf(node));
  if (dom.isText(last)) selection.setCaret(last, last.length);
  else setCaretBehind(last);
  joinToNeighbours(first, last);
}

/** @param {ParentNode} fragment */
const holdsBlock = (fragment) => [...fragment.querySelectorAll('*')].some(dom.isBlock);

// Deletes what the fragment replaces, and the ids in the fragment that the page still has then.
/**
 * @param {Range} range
 * @param {DocumentFragment} fragment
 */
function makeRoom(range, fragment) {
  const object = selection.control(range);
  const gone = object && fragment.firstChild && objects.replaceByLine(object);
  if (!gone && !range.collapsed && !fragment.firstChild) deleteToLine(range);
  else if (!gone && !range.collapsed) deleteToPoint(range);
  dom.dropTakenIds(fragment);
}

// Nothing comes into what is closed, such as a rule: what is put in at a caret there goes behind.
function leaveClosed() {
  const { startContainer, collapsed } = selection.range();
  const atom = collapsed ? dom.ancestor(startContainer, dom.isAtom) : null;
  if (atom) setCaretBehind(atom);
}

/**
 * Puts a fragment in the place of the selection.
 * @param {DocumentFragment} fragment
 * @param {import('./openEnds.js').OpenEnds} [open]
 */
export const put = (fragment, open = closed) => {
  leaveSign();
  leaveClosed();
  const replaces = !selection.range().collapsed;
  if (replaces) resolveAll();
  wrapParts(fragment, selection.range().startContainer);
  if (fragment.firstChild) dropHolder();
  makeRoom(selection.range(), fragment);
  if (!fragment.firstChild) return;
  blanks.watch();
  putJoined(fragment, open, selection.range());
  // What stood in for a blank beside the gap stands beside what was put in.
  if (replaces) resolveAll();
  blanks.watched({ inputType: 'insertText' });
};

/**
 * @param {DocumentFragment} fragment
 * @param {import('./openEnds.js').OpenEnds} open
 * @param {Range} range
 */
function putJoined(fragment, open, range) {
  const isJoined = holdsBlock(fragment) && !dom.rawAt(range.startContainer);
  const ends = isJoined ? open : closed;
  const join = joinsFor(fragment, ends, range.startContainer, range.startOffset);
  // What comes behind an open end goes on in the last paragraph.
  if (fragment.firstChild) putAt(fragment, range, /^(closed|whole)$/.test(ends.end));
  join();
}

// What a paragraph shows. At its edges the source's line ends are layout; a blank parted words.
/** @param {AnyNode} node */
function lineOf(node) {
  const text = plainText(node);
  const from = /^[ \t]*\n/.test(node.textContent) && text.startsWith(' ') ? 1 : 0;
  const isLayout = /\n[ \t]*$/.test(node.textContent) && text.endsWith(' ');
  return text.slice(from, isLayout ? -1 : undefined);
}

/**
 * What a node's blocks hold, each as a line.
 * @param {AnyNode} node
 * @returns {string[]}
 */
export const linesOf = (node) => (node.firstChild && holdsBlock(node)
  ? [...node.childNodes].filter((child) => !dom.isBlank(child)).flatMap(linesOf)
  : [dom.isBlock(node) && !dom.isPreformatted(node) ? lineOf(node) : plainText(node)]);

// Puts a fragment in at the caret.
/**
 * @param {DocumentFragment} fragment
 * @param {PlainRange} caret
 * @param {boolean} endsLine
 */
function putAt(fragment, { startContainer, startOffset }, endsLine) {
  if (dom.rawAt(startContainer)) {
    fragment.replaceChildren(linesOf(fragment).join('\n'));
  }
  /** @type {AnyNode} */
  const home = dom.isText(startContainer) ? startContainer.parentNode : startContainer;
  if (isListOf(home)) makeItems(fragment, home);
  if (holdsBlock(fragment)) putBlocks(fragment, startContainer, startOffset, endsLine);
  else putInline(fragment, startContainer, startOffset);
}

/**
 * Puts markup in at the selection, as one step of the history. Behind a table that comes alone the
 * caret goes into its first cell.
 * @param {string} html
 */
export const pasteHTML = (html) => history.step('pasteHTML', () => {
  if (!dom.isEditable()) return;
  selection.ensure();
  if (!selection.range()) return;
  const fragment = parse(html);
  /** @type {any[]} */
  const [only, ...others] = [...fragment.childNodes]
    .filter((node) => dom.isShown(node) && !dom.isBlank(node));
  noteArrival(fragment);
  put(fragment);
  if (only?.tagName === 'TABLE' && !others.length) enterTable(only);
});

// Puts the caret into a new table's first cell, where that is empty.
/** @param {HTMLTableElement} table */
function enterTable(table) {
  const cell = table.rows[0]?.cells[0];
  const isEmpty = cell && cell.textContent.trim() === '' && !cell.querySelector('*:not(br)');
  if (!isEmpty) return;
  const text = dom.isText(cell.firstChild) ? cell.firstChild : null;
  selection.setCaret(text ?? cell, 0);
}
