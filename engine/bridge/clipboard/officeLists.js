// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Lists that office documents write as paragraphs, with the bullet or number as text.
import * as dom from '../page/dom.js';

/**
 * A paragraph that is an item: `name` is the list that it belongs to, `start` its number there, 0
 * for none, `type` the kind of the number where that is a letter.
 * @typedef {{ name: string, level: number, tag: 'OL' | 'UL', type: string, start: number }} Item
 */

// A number as office documents write it, and a bullet with the gap behind it.
const numbers = /^\s*\(?(?:\d{1,3}\.)*(?:(\d{1,4})[.)]?|([a-z]{1,4})[.)])\s*$/i;
const bullets = /^\s*[\u00b7\u2022\u25aa\u25cf\u00a7\uf0a7\uf0b7o\u2013-]\s*$/;
/** @param {string} text */
const isSign = (text) => /[\u00a0 ]{2}$/.test(text) && (bullets.test(text) || numbers.test(text));

// What a number says of its list. Letters that may be Roman numerals are such at a list's start.
/**
 * @param {string} sign
 * @returns {Pick<Item, 'tag' | 'type' | 'start'>}
 */
function kindOf(sign) {
  const [, digits, letters] = numbers.exec(sign) ?? [];
  const number = digits ?? letters;
  if (!number) return { tag: 'UL', type: '', start: 0 };
  if (Number(number)) return { tag: 'OL', type: '', start: Number(number) };
  const isUpper = number === number.toUpperCase();
  const letter = number.toLowerCase();
  if (/^[ivx]+$/.test(letter) && letter !== 'v' && letter !== 'x') {
    return { tag: 'OL', type: isUpper ? 'I' : 'i', start: letter === 'i' ? 1 : 0 };
  }
  const start = letter.length === 1 ? letter.charCodeAt(0) - 'a'.charCodeAt(0) + 1 : 0;
  return { tag: 'OL', type: isUpper ? 'A' : 'a', start };
}

// The first element of a paragraph where that is a sign and the gap behind it, and nothing else.
/** @param {Element} paragraph */
function signAtStart(paragraph) {
  const first = [...paragraph.childNodes]
    .find((node) => dom.isElement(node) || /\S/.test(node.nodeValue));
  return dom.isElement(first) && isSign(first.textContent) ? first : null;
}

// Points of a length in a style; office documents indent a level by half an inch.
/** @type {Record<string, number>} */
const units = { pt: 1, in: 72, cm: 72 / 2.54, px: 0.75 };
const levelIndent = 36;
/** @param {HTMLElement} paragraph */
function levelByIndent({ style }) {
  const [, number, unit] = /^([\d.]+)(pt|in|cm|px)$/.exec(style.marginLeft) ?? [];
  return Math.max(1, Math.round((Number(number) * units[unit]) / levelIndent) || 1);
}

// The sign that the document says is one.
/** @param {Element} paragraph */
const markedSign = (paragraph) => [...paragraph.querySelectorAll('span')]
  .find((span) => /mso-list:\s*ignore/i.test(span.getAttribute('style') ?? '')) ?? null;

// Takes the sign out of a paragraph that is an item and answers which; null for no item. A numbered
// heading stays a heading, with its number as text.
/**
 * @param {HTMLElement} paragraph
 * @returns {Item | null}
 */
function readItem(paragraph) {
  const said = paragraph.getAttribute('style') ?? '';
  const [, name, level] = /mso-list:\s*(\S+)[^;"]*level(\d)/.exec(said) ?? [];
  const marked = level ? markedSign(paragraph) : null;
  if (dom.isHeading(paragraph)) {
    if (marked) marked.textContent = `${marked.textContent.trim()} `;
    return null;
  }
  const isList = level || paragraph.className.startsWith('MsoListParagraph');
  const sign = marked ?? (isList ? signAtStart(paragraph) : null);
  if (!level && !sign) return null;
  const text = sign?.textContent ?? '';
  sign?.remove();
  return {
    name: name ?? '', level: Number(level ?? levelByIndent(paragraph)), ...kindOf(text),
  };
}

// Opens lists until there is one of the item's level. `lists` are the open ones, the outermost
// first.
/**
 * @param {AnyNode[]} lists
 * @param {Item} item
 * @param {Element} paragraph
 */
function openLists(lists, { level, tag, type, start }, paragraph) {
  while (lists.length < level) {
    const made = paragraph.ownerDocument.createElement(tag);
    if (lists.length === level - 1 && start > 1) made.setAttribute('start', String(start));
    if (type) made.setAttribute('type', type);
    if (lists.length) (lists.at(-1).lastChild ?? lists.at(-1)).append(made);
    else paragraph.before(made);
    lists.push(made);
  }
}

/**
 * Makes lists of such paragraphs.
 * @param {HTMLElement} root
 */
export function makeLists(root) {
  /** @type {AnyNode[]} */
  let lists = [];
  let last = null;  // the outermost list
  let of = '';
  for (const paragraph of /** @type {NodeListOf<HTMLElement>} */ (
    root.querySelectorAll('p, h1, h2, h3, h4, h5, h6'))) {
    const found = readItem(paragraph);
    if (!found) continue;
    const { name, level, tag } = found;
    const isBeside = last && paragraph.previousElementSibling === last;
    if (!isBeside || (level === 1 && name !== of)) lists = [];
    of = name;
    lists.length = Math.min(lists.length, level);
    if (lists[level - 1]?.tagName !== tag) lists.length = Math.min(lists.length, level - 1);
    const item = root.ownerDocument.createElement('LI');
    item.append(...paragraph.childNodes);
    openLists(lists, found, paragraph);
    lists.at(-1).append(item);
    last = lists[0];
    paragraph.remove();
  }
}
