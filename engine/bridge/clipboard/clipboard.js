// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Copying, cutting, pasting and dragging. What is copied has full addresses, so that it is of use
// elsewhere; what comes in is built anew (clean.js) unless it was copied in this program.
import { deleteToPoint } from '../blocks/deletion.js';
import { meant } from '../blocks/extent.js';
import { deleteSelected } from '../blocks/typing.js';
import * as addresses from './addresses.js';
import { copiedCells, fillingOf, takesTable } from './cells.js';
import { cleaned, cleaning } from './clean.js';
import { copiedMarkup, partOf } from './copied.js';
import { doSlowly, isLong } from './longPaste.js';
import { asMarkdown } from './markdown.js';
import { closed, openEndsOf } from './openEnds.js';
import { linesOf, put } from './paste.js';
import { picturesFrom, tellOfPictures } from './pictures.js';
import { asItStands, asTable, withListsAndLinks } from './plainText.js';
import { hasAdditions } from '../page/additions.js';
import * as dom from '../page/dom.js';
import * as history from '../page/history.js';
import * as selection from '../page/selection.js';
import { outsideSigns, takeInSigns } from '../page/signs.js';
import { host } from '../talk/host.js';
import { schedulePush } from '../talk/pace.js';

// Says in copied markup that it comes from this program and needs no cleaning, and which of its
// ends lie within a paragraph, or that it is of cells that were selected as such.
const generator = '<meta name="generator" content="Velor Web Creator"';
const origin =
  new RegExp(`${generator} data-ends="(closed|open|line) (closed|open|line|whole)"( data-cells)?>`);
/** @param {import('./openEnds.js').OpenEnds} ends */
const originOf = ({ start, end }) => `${generator} data-ends="${start} ${end}">`;
const originOfCells = `${generator} data-ends="closed closed" data-cells>`;

// True in a field of a form, where the engine copies and pastes its text.
/** @param {AnyNode} node */
const isInField = (node) => dom.isElement(node) && node.closest('input, textarea, select');

// Puts a range on the clipboard, or into what is dragged.
/**
 * @param {DataTransfer} data
 * @param {Range} range
 */
function putInto(data, range) {
  const cells = copiedCells(range);
  if (cells) {
    data.setData('text/html', originOfCells + copiedMarkup(cells.table));
    data.setData('text/plain', cells.text);
    return;
  }
  const part = meant(range);
  data.setData('text/html', originOf(openEndsOf(part)) + copiedMarkup(partOf(part)));
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
  history.step('deleteByCut', () => deleteSelected(range));
  schedulePush();
}

// How plain text becomes markup.
/** @type {Record<string, (text: string, inList: boolean) => DocumentFragment>} */
const forms = {
  '': withListsAndLinks, text: asItStands, table: asTable, markdown: asMarkdown,
};
/**
 * @param {string} text
 * @param {PlainRange} range
 * @param {string} form
 */
function textFragment(text, range, form) {
  const pre = dom.ancestor(
    range.startContainer, (node) => /^(PRE|LISTING|XMP)$/.test(node.tagName));
  const wished = form || (hasAdditions() ? '' : 'text');
  if (!pre) return forms[wished](text, Boolean(itemAt(range)));
  const fragment = document.createDocumentFragment();
  fragment.append(text.replace(/\r\n?/g, '\n'));
  return fragment;
}

/**
 * What the clipboard or a drop has; its data can be read during the event only.
 * @typedef {{ html: string, text: string, addresses: string }} Content
 */
/** @param {DataTransfer} data */
const contentOf = (data) => ({
  html: data.getData('text/html'), text: data.getData('text/plain'),
  addresses: data.getData('text/uri-list'),
});

// An address that is dropped as one, not as a text.
/** @param {Content} content */
function linkOf({ addresses: list, text }) {
  const address = list.split(/[\r\n]+/).find((line) => /^(https?|ftp|mailto):/i.test(line));
  if (!address) return null;
  const link = dom.create('A', { href: address });
  link.append(text.trim() || address);
  const fragment = document.createDocumentFragment();
  fragment.append(link);
  return fragment;
}

// What this program has copied.
/** @param {string} html */
function ownFragment(html) {
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

// The form that the next paste takes its text in; empty for a paste of whatever is there.
let wanted = '';
/**
 * Pastes the clipboard's text as `form` says: 'text' as it stands, 'table' with tabs between cells,
 * 'markdown'.
 * @param {string} form
 */
export function pasteAs(form) {
  wanted = form;
  try {
    document.execCommand('paste');
  } finally {
    wanted = '';
  }
}

// Ctrl+Shift+V, where the program does not take that key: the engine would paste the text too, but
// as any other text.
/** @param {KeyboardEvent} event */
function pressPasteText(event) {
  const { key, ctrlKey, altKey, metaKey, shiftKey } = event;
  if (!ctrlKey || !shiftKey || altKey || metaKey || key.toLowerCase() !== 'v') return;
  if (!dom.isEditable() || isInField(event.target)) return;
  event.preventDefault();
  pasteAs('text');
}

/** @param {ClipboardEvent} event */
function paste(event) {
  if (!dom.isEditable() || isInField(event.target)) return;
  event.preventDefault();
  const content = contentOf(event.clipboardData);
  // A file manager gives the names of files as text too.
  const files = /^file:/im.test(content.addresses);
  const text = content.text.trim() !== '' && !files;
  if (content.html.trim() || text) insert(content, 'insertFromPaste', wanted);
  else host()?.pictureWanted();
}

/**
 * @param {string} html
 * @returns {any} the open ends
 */
function openEndsIn(html) {
  const [, start, end, cells] = origin.exec(html) ?? [];
  return start ? { start, end, isCells: Boolean(cells) } : closed;
}

// Makes the fragment one that goes with what is around the range.
/**
 * @param {DocumentFragment} fragment
 * @param {Range} range
 * @param {import('./openEnds.js').OpenEnds} [open]
 */
function fit(fragment, range, open = closed) {
  if (open.end !== 'whole') unwrapSingle(fragment, range);
  fitIntoList(fragment, range);
}
// Puts a fragment in at the selection, as one step of the history.
/**
 * @param {DocumentFragment} fragment
 * @param {string} kind
 * @param {import('./openEnds.js').OpenEnds & { isCells?: boolean }} [open]
 */
function putIn(fragment, kind, open = closed) {
  const range = selection.range();
  if (!range) return;
  const fill = fillingOf(fragment, range, open.isCells);
  if (!fill) fit(fragment, range, open);
  addresses.makeRelative(fragment);
  if (!fragment.hasChildNodes()) return;
  history.step(kind, fill ?? (() => put(fragment, open)));
  schedulePush();
}
// Puts in what another program's markup has become, and has its pictures brought into the site.
/**
 * @param {DocumentFragment} fragment
 * @param {string} kind
 */
function putCleaned(fragment, kind) {
  const pictures = picturesFrom(fragment);
  putIn(fragment, kind);
  tellOfPictures(pictures);
}
// Puts what the clipboard or a drop has in.
/**
 * @param {Content} content
 * @param {string} kind
 * @param {string} [form] what becomes of its text where that is to be taken
 */
export function insert(content, kind, form = '') {
  const range = selection.range();
  if (!range) return;
  const { html, text } = content;
  if (!html.trim() && takesTable(range, text)) {
    putIn(asTable(text), kind);
  } else if (form || !html.trim()) {
    const said = text || (html.trim() ? linesOf(cleaned(html)).join('\n') : '');
    putIn((form ? null : linkOf(content)) ?? textFragment(said, range, form), kind);
  } else if (origin.test(html)) {
    putIn(ownFragment(html), kind, openEndsIn(html));
  } else if (isLong(html)) {
    doSlowly(cleaning(html), (fragment) => putCleaned(fragment, kind));
  } else {
    putCleaned(cleaned(html), kind);
  }
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
  // Cells are not dragged: their rows would stay without them.
  if (range && !range.collapsed && selection.cellsIn(range)) {
    event.preventDefault();
    return;
  }
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
  insert(contentOf(event.dataTransfer), 'insertFromDrop');
}

/** Begins to listen on a document that was loaded. */
export const listenToClipboard = () => {
  document.addEventListener('dragstart', startDrag, true);
  document.addEventListener('dragend', endDrag, true);
  document.addEventListener('drop', drop, true);
  document.addEventListener('copy', copy, true);
  document.addEventListener('cut', cut, true);
  document.addEventListener('paste', paste, true);
  document.addEventListener('keydown', pressPasteText, true);
};
