// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The document as text: what outerHTML leaves out is put around it.
import { blanksAsWritten } from './standIns.js';
import * as selection from './selection.js';

/** @param {DocumentType} type */
function doctype({ name, publicId, systemId }) {
  let text = `<!DOCTYPE ${name}`;
  if (publicId) text += ` PUBLIC "${publicId}"`;
  else if (systemId) text += ' SYSTEM';
  if (systemId) text += ` "${systemId}"`;
  return `${text}>`;
}

// A parser drops a line break that comes first in these, so one that is meant is written twice.
const dropsFirstBreak = 'pre, listing, textarea';
/** @param {AnyNode} element */
const startsWithBreak = (element) => element.firstChild?.nodeType === Node.TEXT_NODE &&
  element.firstChild.data.startsWith('\n');
/** @param {AnyNode} top */
export function firstBreaks(top) {
  const found = [...top.querySelectorAll?.(dropsFirstBreak) ?? []];
  if (top.matches?.(dropsFirstBreak)) found.push(top);
  return found.filter(startsWithBreak);
}

/**
 * The breaks in text that is written as it stands, where a tag would be letters: they hold an
 * emptied element open.
 * @param {AnyNode} top
 * @returns {Element[]}
 */
export const rawBreaks = (top) => [...top.querySelectorAll?.('xmp br, plaintext br') ?? []];

// The same node in a copy of its tree.
/**
 * @param {AnyNode} node
 * @param {AnyNode} root
 * @param {AnyNode} copy
 * @returns {AnyNode}
 */
function counterpart(node, root, copy) {
  if (node === root) return copy;
  return counterpart(node.parentNode, root, copy).childNodes[selection.indexOf(node)];
}

// A text is written by an element that holds it.
const holder = document.createElement('p');
/** @param {AnyNode} node */
function written(node) {
  if (node.nodeType === Node.ELEMENT_NODE) return node.outerHTML;
  holder.replaceChildren(node.cloneNode());
  return holder.innerHTML;
}

/** @param {AnyNode} root */
function markup(root) {
  const blanks = blanksAsWritten().filter(({ node }) => root.contains(node));
  const isPlain = !firstBreaks(root).length && !rawBreaks(root).length && !blanks.length;
  if (isPlain) return written(root);
  const copy = root.cloneNode(true);
  for (const { node, index, text } of blanks) {
    counterpart(node, root, copy).replaceData(index, 1, text);
  }
  firstBreaks(copy).forEach((element) => element.prepend('\n'));
  rawBreaks(copy).forEach((line) => line.remove());
  return written(copy);
}

/**
 * What a node adds to the text.
 * @param {AnyNode} node
 */
export function serializeNode(node) {
  switch (node.nodeType) {
    case Node.DOCUMENT_TYPE_NODE: return doctype(node);
    case Node.COMMENT_NODE: return `<!--${node.data}-->`;
    case Node.PROCESSING_INSTRUCTION_NODE: return `<?${node.target} ${node.data}>`;
    default: return markup(node);
  }
}

export const serialize = (page = document) => [...page.childNodes].map(serializeNode).join('\n');
