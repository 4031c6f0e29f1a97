// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Copying, cutting, pasting and dragging. What is copied has full addresses, so that it is of use
// elsewhere; what comes in is built anew (clean.js) unless it was copied in this program.
import { deleteToPoint } from '../blocks/deletion.js';
import { deleteKeepingLooks } from '../blocks/typing.js';
import * as addresses from './addresses.js';
import { cleaned } from './clean.js';
import { closed, openEndsOf } from './openEnds.js';
import { put } from './paste.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';
import { outsideSigns, takeInSigns } from '../page/signs.js';
import { host } from '../talk/host.js';
import { schedulePush } from '../talk/pace.js';

// Says in copied markup that it comes from this program and needs no cleaning, and which of its
// ends lie within a paragraph.
const generator = '<meta name="generator" content="Velor Web Creator"';
const origin = new RegExp(`${generator} data-ends="(closed|open|line) (closed|open|line)">`);
/** @param {import('./openEnds.js').OpenEnds} ends */
const originOf = ({ start, end }) => `${generator} data-ends="${start} ${end}">`;

// True for an element that has to be around a part of the page for it to mean the same elsewhere.
/** @param {AnyNode} node */
const isContext = (node) => dom.isInline(node) || dom.isList(node) ||
  /^(DL|TABLE|TBODY|THEAD|TFOOT|TR|PRE)$/.test(node.tagName);
/** @param {Range} range */
function contextOf(range) {
  const elements = [];
  let at = range.commonAncestorContainer;
  if (dom.isText(at)) at = at.parentNode;
  for (; isContext(at); at = at.parentNode) elements.push(at);
  return elements;
}

// A copy of a range's content, with such elements around it.
/** @param {Range} range */
function partOf(range) {
  const content = range.cloneContents();
  for (const element of contextOf(range)) {
    const shell = /** @type {Element} */ (element.cloneNode(false));
    shell.append(content);
    content.append(shell);
  }
  return content;
}
// The markup of a range for the clipboard.
/** @param {Range} range */
function copiedMarkup(range) {
  const holder = dom.create('DIV');
  holder.append(partOf(range));
  addresses.makeFull(holder);
  // A parser drops the first line end of these.
  for (const { firstChild } of holder.querySelectorAll('pre, listing')) {
    if (dom.isText(firstChild) && firstChild.data.startsWith('\n')) firstChild.insertData(0, '\n');
  }
  return holder.innerHTML;
}

// True in a field of a form, where the engine copies and pastes its text.
/** @param {AnyNode} node */
const isInField = (node) => dom.isElement(node) && node.closest('input, textarea, select');

// Puts a range on the clipboard, or into what is dragged.
/**
 * @param {DataTransfer} data
 * @param {Range} range
 */
function putInto(data, range) {
  data.setData('text/html', originOf(openEndsOf(range)) + copiedMarkup(range));
  data.setData('text/plain', document.getSelection().toString());
}

// Answers what was copied; null for nothing.
/** @param {ClipboardEvent} event */
function copy(event) {
  const range = selection.range();
  if (!range || range.collapsed || isInField(event.target)) return null;
  event.preventDefault();
  putInto(event.clipboardData, range);
  return range;
}

/** @param {ClipboardEvent} event */
function cut(event) {
  const selected = selection.range();
  if (selected && !isInField(event.target)) takeInSigns(selected);
  const range = copy(event);
  if (!range) return;
  history.step('deleteByCut', () => deleteKeepingLooks(range));
  schedulePush();
}

// Makes no-break spaces of blanks that a page would not show: of all but the last of a run, and in
// `keepBlanks` of one that a line begins with. The first line joins text that is there: a blank
// before it is shown.
/** @param {string} line */
const keepRuns = (line) => line.replace(/\t/g, '    ').replace(/ (?= )/g, '\u00a0');
/** @param {string} line */
const keepBlanks = (line) => keepRuns(line).replace(/^ /, '\u00a0');

// Plain text as markup: a paragraph for what stands between empty lines, with breaks in it; in a
// list for each line (fitIntoList makes items of them).
/**
 * @param {string} text
 * @param {boolean} inList
 */
function markupOfText(text, inList) {
  const fragment = document.createDocumentFragment();
  /** @param {string} block */
  const broken = (block) => block.split('\n').flatMap((line, index) =>
    (index ? [dom.create('BR'), keepBlanks(line)] : [keepRuns(line)]));
  const ends = inList ? /\n+/ : /\n(?:[ \t]*\n)+/;
  const blocks = text.replace(/\r\n?/g, '\n').replace(/^\n+|\n+$/g, '').split(ends);
  if (blocks.length < 2) {
    fragment.append(...broken(blocks[0]));
    return fragment;
  }
  for (const block of blocks) {
    const paragraph = dom.create('P');
    paragraph.append(...broken(block));
    fragment.append(paragraph);
  }
  return fragment;
}
/**
 * @param {string} text
 * @param {Range} range
 */
function textFragment(text, range) {
  const pre = dom.ancestor(
    range.startContainer, (node) => /^(PRE|LISTING|XMP)$/.test(node.tagName));
  if (!pre) return markupOfText(text, Boolean(itemAt(range)));
  const fragment = document.createDocumentFragment();
  fragment.append(text.replace(/\r\n?/g, '\n'));
  return fragment;
}

// An address that is dropped as one, not as a text.
/** @param {DataTransfer} data */
function linkOf(data) {
  const address = data.getData('text/uri-list').split(/[\r\n]+/)
    .find((line) => /^(https?|ftp|mailto):/i.test(line));
  if (!address) return null;
  const link = dom.create('A', { href: address });
  link.append(data.getData('text/plain').trim() || address);
  const fragment = document.createDocumentFragment();
  fragment.append(link);
  return fragment;
}

// What the clipboard or a drop has, as markup for this page.
/**
 * @param {DataTransfer} data
 * @param {Range} range
 */
function fragmentOf(data, range) {
  const html = data.getData('text/html');
  if (!html.trim()) return linkOf(data) ?? textFragment(data.getData('text/plain'), range);
  if (!origin.test(html)) return cleaned(html);
  const own = document.createElement('template');
  own.innerHTML = html.replace(origin, '');
  for (const element of own.content.querySelectorAll('meta[charset]')) element.remove();
  return document.importNode(own.content, true);
}

// Unwraps a paragraph that is all that comes in: its text joins the paragraph at the caret, since
// programs put a P around a single word too. On an empty page it stays.
/**
 * @param {DocumentFragment} fragment
 * @param {PlainRange} caret
 */
function unwrapSingle(fragment, { startContainer }) {
  /** @type {AnyNode[]} */
  const shown = [...fragment.childNodes].filter(dom.isShown);
  const [only] = shown;
  if (shown.length !== 1 || only.tagName !== 'P' || only.attributes.length) return;
  if (startContainer !== document.body || dom.hasContent(document.body)) dom.unwrap(only);
}

// The list item that a range begins in; null for none.
/** @param {PlainRange} range */
function itemAt({ startContainer, startOffset }) {
  const start = dom.isList(startContainer) && startContainer.childNodes[startOffset];
  return dom.ancestor(start || startContainer, (node) => node.tagName === 'LI', dom.isCell);
}
// In a list paragraphs and the items of one list become items of that list.
/**
 * @param {DocumentFragment} fragment
 * @param {Range} range
 */
function fitIntoList(fragment, range) {
  if (!itemAt(range)) return;
  /** @type {AnyNode[]} */
  const shown = [...fragment.childNodes].filter(dom.isShown);
  if (shown.length === 1 && /^(OL|UL)$/.test(shown[0].tagName)) dom.unwrap(shown[0]);
  else if (shown.every((node) => node.tagName === 'P')) {
    shown.forEach((paragraph) => dom.rename(paragraph, 'LI'));
  }
}

// Drops ids that the page has: none may be in it twice.
/** @param {DocumentFragment} fragment */
function dropKnownIds(fragment) {
  for (const element of fragment.querySelectorAll('[id]')) {
    if (document.getElementById(element.id)) element.removeAttribute('id');
  }
}

/** @param {ClipboardEvent} event */
function paste(event) {
  if (!dom.isEditable() || isInField(event.target)) return;
  event.preventDefault();
  const { clipboardData } = event;
  /** @param {string} type */
  const says = (type) => clipboardData.getData(type).trim() !== '';
  // A file manager gives the names of files as text too.
  const files = /^file:/im.test(clipboardData.getData('text/uri-list'));
  const text = says('text/plain') && !files;
  if (says('text/html') || text) insert(clipboardData, 'insertFromPaste');
  else host()?.pictureWanted();
}

/**
 * @param {DataTransfer} data
 * @returns {any} the open ends
 */
function openEndsIn(data) {
  const [, start, end] = origin.exec(data.getData('text/html')) ?? [];
  return start ? { start, end } : closed;
}

// Makes the fragment one that goes with what is around the range.
/**
 * @param {DocumentFragment} fragment
 * @param {Range} range
 */
function fit(fragment, range) {
  unwrapSingle(fragment, range);
  fitIntoList(fragment, range);
}
// Puts what the clipboard or a drop has in at the selection, as one step of the history.
/**
 * @param {DataTransfer} data
 * @param {string} kind
 */
function insert(data, kind) {
  const range = selection.range();
  if (!range) return;
  const fragment = fragmentOf(data, range);
  const open = openEndsIn(data);
  fit(fragment, range);
  dropKnownIds(fragment);
  addresses.makeRelative(fragment);
  if (!fragment.hasChildNodes()) return;
  history.step(kind, () => put(fragment, open));
  schedulePush();
}

// The range that is being dragged out of this page; null for what comes from elsewhere.
/** @type {Range | null} */
let dragged = null;

// The selection is dragged, or a picture that is not in it.
/** @param {DragEvent} event */
function startDrag(event) {
  const range = selection.range()?.cloneRange();
  /** @type {AnyNode} */
  const target = event.target;
  dragged = range && !range.collapsed && range.intersectsNode(target) ? range : null;
  if (!dragged && target.tagName === 'IMG' && dom.isEditable()) {
    dragged = document.createRange();
    dragged.selectNode(target);
  }
  if (!dragged || isInField(target)) return;
  // The engine would have a picture carry a file, which a drop opens or puts beside a page.
  event.dataTransfer.items.clear();
  putInto(event.dataTransfer, dragged);
}
const endDrag = () => { dragged = null; };

// Moves (with Ctrl copies) a range to where it is dropped, as one step; the engine would take two
// and double ids.
/**
 * @param {Range} range
 * @param {DragEvent} event
 */
function move(range, event) {
  const target = document.caretRangeFromPoint(event.clientX, event.clientY);
  const isAway = target && document.body.contains(target.startContainer) &&
    !range.isPointInRange(target.startContainer, target.startOffset);
  if (!isAway) return;
  history.step('drag', () => {
    if (!event.ctrlKey) takeInSigns(range);
    const fragment = partOf(range);
    // Texts and elements there may be joined to others; this stays where it is in them.
    const mark = document.createComment('');
    target.setStart(target.startContainer,
      outsideSigns(target.startContainer, target.startOffset));
    target.insertNode(mark);
    if (!event.ctrlKey) deleteToPoint(range);
    const { parentNode } = mark;
    const index = selection.indexOf(mark);
    mark.remove();
    selection.setCaret(parentNode, index);
    const last = fragment.lastChild;
    const only = last && last === fragment.firstChild && dom.isObject(last) ? last : null;
    fit(fragment, selection.range());
    put(fragment);
    if (only) selection.selectNode(only);
  });
  schedulePush();
}
/** @param {DragEvent} event */
function drop(event) {
  if (!dom.isEditable()) return;
  event.preventDefault();
  if (dragged) {
    move(dragged, event);
    return;
  }
  selection.setCaretAtPixel(event.clientX, event.clientY);
  insert(event.dataTransfer, 'insertFromDrop');
}

/** Begins to listen on a document that was loaded. */
export const listenToClipboard = () => {
  document.addEventListener('dragstart', startDrag, true);
  document.addEventListener('dragend', endDrag, true);
  document.addEventListener('drop', drop, true);
  document.addEventListener('copy', copy, true);
  document.addEventListener('cut', cut, true);
  document.addEventListener('paste', paste, true);
};
