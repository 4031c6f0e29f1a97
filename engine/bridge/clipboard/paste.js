// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Markup put in at the selection exactly as it stands: scripts, handlers, comments and objects stay
// in it (nothing of it runs while a page is edited).
import { deleteToLine, deleteToPoint } from '../blocks/deletion.js';
import { dropHolder } from '../blocks/typing.js';
import { closed, joinsFor } from './openEnds.js';
import * as objects from '../objects/objects.js';
import * as blanks from '../page/blanks.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import { holdOpen, dropEmptyInline } from '../page/lines.js';
import * as selection from '../page/selection.js';
import { resolveAll, splitText } from '../page/standIns.js';

function parse(html) {
  const template = document.createElement('template');
  template.innerHTML = html;
  return document.importNode(template.content, true);
}

// The element that must be cut for blocks to come in at a node; null where none needs to.
function cutAt(node, items) {
  let top = null;
  for (let at = node; at && !dom.isCell(at); at = at.parentNode) {
    if (items && at.tagName === 'LI') return at;
    if (dom.isInline(at) || dom.isParagraph(at)) top = at;
    else if (!dom.isText(at) && !items) break;
  }
  return top;
}

// Cuts everything up to `top` at the caret. Returns the two halves.
function cut(node, offset, top) {
  if (dom.isText(node)) {
    node = offset === 0 ? node : splitText(node, offset);
  } else {
    const mark = document.createTextNode('');
    node.insertBefore(mark, node.childNodes[offset] ?? null);
    node = mark;
  }
  return [top, dom.splitBefore(node, top)];
}

// An empty block gives its name to the one that comes in its place.
function giveName(block, next) {
  if (!block.id || !dom.isElement(next) || !dom.isBlock(next) || next.id) return;
  const { id } = block;
  history.attributesOf(block);
  block.removeAttribute('id');
  next.id = id;
}
// Comments, and the server code that stands as such, stay where an empty block goes.
function commentsIn(block) {
  const walker = document.createTreeWalker(block, NodeFilter.SHOW_COMMENT);
  const comments = [];
  while (walker.nextNode()) comments.push(walker.currentNode);
  return comments;
}
function dropIfHollow(half, next = null) {
  if (dom.isHollow(half) && ![...half.querySelectorAll('*')].some(dom.isAtom)) {
    giveName(half, next);
    half.replaceWith(...commentsIn(half));
    return true;
  }
  return false;
}

// What a list takes: items, and those of another list; anything else goes into an item.
function makeItems(fragment, list) {
  const definitions = list.tagName === 'DL';
  const tag = definitions ? 'DD' : 'LI';
  const fits = (node) => (definitions ? /^(DT|DD)$/.test(node.tagName) : node.tagName === 'LI');
  const isSame = (node) => (definitions ? node.tagName === 'DL' : dom.isList(node));
  for (const node of [...fragment.childNodes]) {
    if (isSame(node)) dom.unwrap(node);
    else if (/^(P|LI)$/.test(node.tagName) && !fits(node)) dom.rename(node, tag);
    else if (dom.isShown(node) && !fits(node)) dom.wrap([node], dom.create(tag));
  }
}
const isListOf = (node) => dom.isList(node) || node.tagName === 'DL';

function putBlocks(fragment, node, offset) {
  const tops = [...fragment.children];
  const items = tops.length > 0 && tops.every(({ tagName }) => tagName === 'LI');
  const top = cutAt(node, items);
  if (top?.tagName === 'DT') makeItems(fragment, top.parentNode);
  const last = fragment.lastChild;
  if (!top) {
    const holder = holderAt(node);
    putHere(fragment, node, offset);
    holder?.remove();
    afterBlocks(last, null);
    return;
  }
  const [before, after] = cut(node, offset, top);
  const first = dom.shownFrom(fragment.firstChild, 'nextSibling');
  before.after(fragment);
  dropEmptyInline(dom.lastLeaf(before));
  dropEmptyInline(dom.firstLeaf(after));
  dropIfHollow(before, first);
  afterBlocks(last, dropIfHollow(after) ? null : after);
}

// The caret after inserted blocks: at the start of what follows, else at the end of the last.
function afterBlocks(last, following) {
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
  else afterNode(leaf);
}

function afterNode(node) {
  const index = [...node.parentNode.childNodes].indexOf(node);
  selection.setCaret(node.parentNode, index + 1);
}

function putHere(fragment, node, offset) {
  if (dom.isText(node)) {
    const second = offset === 0 ? node : splitText(node, offset);
    if (offset === node.length && second === node) node.after(fragment);
    else second.before(fragment);
    if (!second.length) second.remove();
  } else {
    node.insertBefore(fragment, node.childNodes[offset] ?? null);
  }
}

// The break that holds an empty block open.
function holderAt(node) {
  const block = dom.blockOf(node);
  return dom.isHollow(block) ? block.querySelector('br') : null;
}

// Elements that would stand in their like.
const likes = { STRONG: 'B', EM: 'I', STRIKE: 'S' };
const emphasis = 'b, strong, i, em, u, s, strike, code, sub, sup';
const kindOf = ({ tagName }) => likes[tagName] ?? tagName;
function dropLikes(fragment, node) {
  const around = new Set();
  for (let at = node; !dom.isBlock(at); at = at.parentNode) around.add(kindOf(at));
  for (const element of fragment.querySelectorAll(emphasis)) {
    if (!element.attributes.length && around.has(kindOf(element))) dom.unwrap(element);
  }
}
const linkAt = (node) => dom.ancestor(node, (at) => at.tagName === 'A' && at.href, dom.isBlock);

function putInline(fragment, node, offset) {
  const holder = holderAt(node);
  dropLikes(fragment, node);
  const last = fragment.lastChild;
  const link = fragment.querySelector('a[href]') && linkAt(node);
  if (link) {
    // No link stands in another one.
    const [before, after] = cut(node, offset, link);
    before.after(fragment);
    dropEmptyInline(dom.lastLeaf(before));
    dropEmptyInline(dom.firstLeaf(after));
  } else {
    putHere(fragment, node, offset);
  }
  holder?.remove();
  holdOpen(dom.blockOf(node));
  if (dom.isText(last)) selection.setCaret(last, last.length);
  else afterNode(last);
}

const holdsBlock = (fragment) => [...fragment.querySelectorAll('*')].some(dom.isBlock);

// An id that the page has already stays where it is.
function dropTakenIds(fragment) {
  for (const element of fragment.querySelectorAll('[id]')) {
    if (document.getElementById(element.id)) element.removeAttribute('id');
  }
}

// Removes what the fragment replaces; only then is it known which ids are free.
function makeRoom(range, fragment) {
  const object = selection.control(range);
  const gone = object && fragment.firstChild && objects.replaceByLine(object);
  if (!gone && !range.collapsed && !fragment.firstChild) deleteToLine(range);
  else if (!gone && !range.collapsed) deleteToPoint(range);
  dropTakenIds(fragment);
}

/**
 * Puts a fragment in the place of the selection.
 * @param {DocumentFragment} fragment
 * @param {import('./openEnds.js').OpenEnds} [open]
 */
export const put = (fragment, open = closed) => {
  const replaces = !selection.range().collapsed;
  if (replaces) resolveAll();
  house(fragment, selection.range().startContainer);
  if (fragment.firstChild) dropHolder();
  makeRoom(selection.range(), fragment);
  if (!fragment.firstChild) return;
  blanks.watch();
  putJoined(fragment, open, selection.range());
  // What stood in for a blank beside the gap stands beside what was put in.
  if (replaces) resolveAll();
  blanks.watched({ inputType: 'insertText' });
};

function putJoined(fragment, open, range) {
  const ends = holdsBlock(fragment) ? open : closed;
  const join = joinsFor(fragment, ends, range.startContainer, range.startOffset);
  putAt(fragment, range);
  join();
}

function putAt(fragment, { startContainer, startOffset }) {
  if (dom.rawAt(startContainer)) {
    const parts = holdsBlock(fragment) ? [...fragment.childNodes] : [fragment];
    fragment.replaceChildren(parts.map((part) => part.textContent).join('\n'));
  }
  const home = dom.isText(startContainer) ? startContainer.parentNode : startContainer;
  if (isListOf(home)) makeItems(fragment, home);
  if (holdsBlock(fragment)) putBlocks(fragment, startContainer, startOffset);
  else putInline(fragment, startContainer, startOffset);
}

// Parts of lists and tables that come without them: items and rows get theirs, cells and options
// are what they hold.
const homes = {
  LI: 'UL', DT: 'DL', DD: 'DL', TR: 'TABLE', TBODY: 'TABLE', TFOOT: 'TABLE', THEAD: 'TABLE',
};
const takesItems = (node) => node.tagName === 'LI' || dom.isList(node);
const isIn = (node, home) =>
  dom.ancestor(node, home === 'UL' ? takesItems : isListOf, dom.isCell) !== null;
function house(fragment, node) {
  for (const part of [...fragment.children]) {
    if (/^(CAPTION|COL|COLGROUP|OPTGROUP|OPTION|TD|TH)$/.test(part.tagName)) {
      dom.unwrap(part);
      continue;
    }
    const home = homes[part.tagName];
    if (!home || part.parentNode !== fragment) continue;
    if (home !== 'TABLE' && isIn(node, home)) continue;
    const parts = [];
    const belongs = (at) => homes[at.tagName] === home || !dom.isShown(at);
    /** @type {any} */
    let at = part;
    for (; at && belongs(at); at = at.nextSibling) parts.push(at);
    const holder = dom.wrap(parts, dom.create(home));
    const rows = [...holder.children].filter(({ tagName }) => tagName === 'TR');
    if (rows.length) dom.wrap(rows, dom.create('TBODY'));
  }
}

export const pasteHTML = (html) => history.step('pasteHTML', () => {
  if (!dom.isEditable()) return;
  selection.ensure();
  if (!selection.range()) return;
  const fragment = parse(html);
  /** @type {any[]} */
  const [only, ...others] = [...fragment.childNodes]
    .filter((node) => dom.isShown(node) && !dom.isBlank(node));
  put(fragment);
  if (only?.tagName === 'TABLE' && !others.length) enterTable(only);
});

// Whoever has made a table writes in it.
function enterTable(table) {
  const cell = table.rows[0]?.cells[0];
  const isEmpty = cell && cell.textContent.trim() === '' && !cell.querySelector('*:not(br)');
  if (!isEmpty) return;
  const text = dom.isText(cell.firstChild) ? cell.firstChild : null;
  selection.setCaret(text ?? cell, 0);
}
