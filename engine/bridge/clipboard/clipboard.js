// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Copying, cutting and pasting. What is copied carries full addresses, so that it is of use
// elsewhere; what comes in is cleaned unless it was copied here.
import { deleteToPoint } from '../blocks/deletion.js';
import { deleteKeepingLooks } from '../blocks/typing.js';
import * as addresses from './addresses.js';
import { cleaned } from './clean.js';
import { closed, openEndsOf } from './openEnds.js';
import { put } from './paste.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';
import { host } from '../talk/host.js';
import { schedulePush } from '../talk/pace.js';

// Says in copied markup that it comes from this program and needs no cleaning, and which of its
// ends lie within a paragraph.
const generator = '<meta name="generator" content="Velor Web Creator"';
const origin = new RegExp(`${generator} data-ends="(closed|open|line) (closed|open|line)">`);
const originOf = ({ start, end }) => `${generator} data-ends="${start} ${end}">`;

// What must be around a part of the page for it to mean the same elsewhere.
const holds = (node) => dom.isInline(node) || dom.isList(node) ||
  /^(DL|TABLE|TBODY|THEAD|TFOOT|TR|PRE)$/.test(node.tagName);
function contextOf(range) {
  const elements = [];
  let at = range.commonAncestorContainer;
  if (dom.isText(at)) at = at.parentNode;
  for (; holds(at); at = at.parentNode) elements.push(at);
  return elements;
}

function partOf(range) {
  const content = range.cloneContents();
  for (const element of contextOf(range)) {
    const shell = element.cloneNode(false);
    shell.append(content);
    content.append(shell);
  }
  return content;
}
function copied(range) {
  const holder = dom.create('DIV');
  holder.append(partOf(range));
  addresses.widen(holder);
  // A parser drops the first line end of these.
  for (const { firstChild } of holder.querySelectorAll('pre, listing')) {
    if (dom.isText(firstChild) && firstChild.data.startsWith('\n')) firstChild.insertData(0, '\n');
  }
  return holder.innerHTML;
}

const isForms = (node) => dom.isElement(node) && node.closest('input, textarea, select');

function give(data, range) {
  data.setData('text/html', originOf(openEndsOf(range)) + copied(range));
  data.setData('text/plain', document.getSelection().toString());
}

function copy(event) {
  const range = selection.range();
  if (!range || range.collapsed || isForms(event.target)) return null;
  event.preventDefault();
  give(event.clipboardData, range);
  return range;
}

function cut(event) {
  const range = copy(event);
  if (!range) return;
  history.step('deleteByCut', () => deleteKeepingLooks(range));
  schedulePush();
}

// Blanks that a page would not show: all but the last of a run, and those before a line. One
// before the first line parts it from the text that it joins.
const runKept = (line) => line.replace(/\t/g, '    ').replace(/ (?= )/g, '\u00a0');
const blanksKept = (line) => runKept(line).replace(/^ /, '\u00a0');

// Lines of text: paragraphs where empty lines part them, else lines of one; items in a list.
function lines(text, inList) {
  const fragment = document.createDocumentFragment();
  const broken = (block) => block.split('\n').flatMap((line, index) =>
    (index ? [dom.create('BR'), blanksKept(line)] : [runKept(line)]));
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
function textFragment(text, range) {
  const pre = dom.ancestor(
    range.startContainer, (node) => /^(PRE|LISTING|XMP)$/.test(node.tagName));
  if (!pre) return lines(text, Boolean(itemAt(range)));
  const fragment = document.createDocumentFragment();
  fragment.append(text.replace(/\r\n?/g, '\n'));
  return fragment;
}

// An address that is dropped as one, not as a text.
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

function fragmentOf(data, range) {
  const html = data.getData('text/html');
  if (!html.trim()) return linkOf(data) ?? textFragment(data.getData('text/plain'), range);
  if (!origin.test(html)) return cleaned(html);
  const own = document.createElement('template');
  own.innerHTML = html.replace(origin, '');
  for (const element of own.content.querySelectorAll('meta[charset]')) element.remove();
  return document.importNode(own.content, true);
}

// One paragraph means its text, which joins the one that the caret is in: programs put a P around
// a single word. On an empty page it stays what it is.
function unwrapSingle(fragment, { startContainer }) {
  const shown = [...fragment.childNodes].filter(dom.isShown);
  const [only] = shown;
  if (shown.length !== 1 || only.tagName !== 'P' || only.attributes.length) return;
  if (startContainer !== document.body || dom.hasContent(document.body)) dom.unwrap(only);
}

// In a list paragraphs and items are items of that list.
function itemAt({ startContainer, startOffset }) {
  const start = dom.isList(startContainer) && startContainer.childNodes[startOffset];
  return dom.ancestor(start || startContainer, (node) => node.tagName === 'LI', dom.isCell);
}
function fitIntoList(fragment, range) {
  if (!itemAt(range)) return;
  const shown = [...fragment.childNodes].filter(dom.isShown);
  if (shown.length === 1 && /^(OL|UL)$/.test(shown[0].tagName)) dom.unwrap(shown[0]);
  else if (shown.every((node) => node.tagName === 'P')) {
    shown.forEach((paragraph) => dom.rename(paragraph, 'LI'));
  }
}

// No id may be in a page twice.
function dropKnownIds(fragment) {
  for (const element of fragment.querySelectorAll('[id]')) {
    if (document.getElementById(element.id)) element.removeAttribute('id');
  }
}

function paste(event) {
  if (!dom.isEditable() || isForms(event.target)) return;
  event.preventDefault();
  const { clipboardData } = event;
  const says = (type) => clipboardData.getData(type).trim() !== '';
  // A file manager gives the names of files as text too.
  const files = /^file:/im.test(clipboardData.getData('text/uri-list'));
  const text = says('text/plain') && !files;
  if (says('text/html') || text) insert(clipboardData, 'insertFromPaste');
  else host()?.pictureWanted();
}

/** @returns {any} the open ends */
function openEndsIn(data) {
  const [, start, end] = origin.exec(data.getData('text/html')) ?? [];
  return start ? { start, end } : closed;
}

function fit(fragment, range) {
  unwrapSingle(fragment, range);
  fitIntoList(fragment, range);
}
function insert(data, kind) {
  const range = selection.range();
  if (!range) return;
  const fragment = fragmentOf(data, range);
  const open = openEndsIn(data);
  fit(fragment, range);
  dropKnownIds(fragment);
  addresses.narrow(fragment);
  if (!fragment.hasChildNodes()) return;
  history.step(kind, () => put(fragment, open));
  schedulePush();
}

// What is being dragged out of this page; null for what comes from elsewhere.
let dragged = null;

// A picture that is not selected is dragged by itself.
function dragStarts(event) {
  const range = selection.range()?.cloneRange();
  const { target } = event;
  dragged = range && !range.collapsed && range.intersectsNode(target) ? range : null;
  if (!dragged && target.tagName === 'IMG' && dom.isEditable()) {
    dragged = document.createRange();
    dragged.selectNode(target);
  }
  if (!dragged || isForms(target)) return;
  // The engine would have a picture carry a file, which a drop opens or puts beside a page.
  event.dataTransfer.items.clear();
  give(event.dataTransfer, dragged);
}
const dragEnds = () => { dragged = null; };

// The engine's own moving of what is dragged within a page takes two steps and doubles ids.
function move(range, event) {
  const target = document.caretRangeFromPoint(event.clientX, event.clientY);
  const isAway = target && document.body.contains(target.startContainer) &&
    !range.isPointInRange(target.startContainer, target.startOffset);
  if (!isAway) return;
  history.step('drag', () => {
    const fragment = partOf(range);
    // Texts and elements there may be joined to others; this stays where it is in them.
    const mark = document.createComment('');
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

export const listenToClipboard = () => {
  document.addEventListener('dragstart', dragStarts, true);
  document.addEventListener('dragend', dragEnds, true);
  document.addEventListener('drop', drop, true);
  document.addEventListener('copy', copy, true);
  document.addEventListener('cut', cut, true);
  document.addEventListener('paste', paste, true);
};
