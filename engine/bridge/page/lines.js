// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What keeps lines whole while text is taken out of them.
import * as dom from './dom.js';
import * as selection from './selection.js';

// True where the page's rules hide all that a shown block holds.
/** @param {AnyNode} block */
function hidesAll(block) {
  if (!block.getClientRects().length) return false;
  const range = document.createRange();
  range.selectNodeContents(block);
  for (const leaf of selection.leavesIn(range)) {
    range.selectNode(leaf);
    if (dom.isShown(leaf) && range.getClientRects().length) return false;
  }
  return true;
}
/**
 * A paragraph without content that is seen needs a break to be a line.
 * @param {AnyNode} block
 */
export function holdOpen(block) {
  if (dom.isElement(block) && block.isConnected && dom.isBlock(block) && !dom.isAtom(block) &&
      block.tagName !== 'BODY' && (!dom.hasContent(block) || hidesAll(block))) {
    block.append(dom.create('BR'));
  }
}

/**
 * The block without content that a caret is in, or the first one of a cell or page that is all
 * without: no line is there, and the engine would type beside it, even outside its table. null
 * where a line is, as in a cell.
 * @param {PlainRange | null} range
 * @returns {AnyNode}
 */
export function emptyBlockAt(range) {
  if (!range?.collapsed) return null;
  const block = dom.blockOf(range.startContainer);
  if (dom.isAtom(block) || dom.hasContent(block)) return null;
  return dom.isCell(block) ? [...block.querySelectorAll('*')].find(dom.isParagraph) : block;
}
/** Makes a line of such a block. False where the caret is in none. */
export function openCaretLine() {
  const block = emptyBlockAt(selection.range());
  if (!block) return false;
  holdOpen(block);
  selection.setCaret(...selection.pointOf(selection.endOf(block)));
  return true;
}

// True for an inline element that the page's rules make a line: one in a flex or grid box too.
/** @param {AnyNode} node */
const isLineElement = (node) => dom.isInline(node) &&
  /^(block|flex|grid|list-item)$/.test(getComputedStyle(node).display);

/**
 * Drops a text that a deletion has left empty, and the inline elements around it that hold nothing
 * else; one that is a line of its own stays as an empty one.
 * @param {AnyNode} node
 */
export function dropEmptyInline(node) {
  /** @param {AnyNode} at */
  const emptied = (at) => (dom.isText(at) ? !at.length
    : dom.isInline(at) && !dom.isAtom(at) && !dom.isBreak(at) &&
      [...at.childNodes].every((child) => dom.isText(child) && !child.length));
  while (node.isConnected && emptied(node)) {
    if (isLineElement(node)) {
      node.replaceChildren(dom.create('BR'));
      return;
    }
    const { parentNode } = node;
    node.remove();
    node = parentNode;
  }
}

/**
 * Makes an empty paragraph, which `put` puts into the document, and sets the caret into it.
 * @param {(paragraph: HTMLElement) => void} put
 */
export function openParagraph(put) {
  const paragraph = dom.create('P');
  paragraph.append(dom.create('BR'));
  put(paragraph);
  selection.setCaret(paragraph, 0);
}

// Text that stands in no element was copied from such as well.
/** @param {Text} text */
const keepsLines = (text) => !text.parentElement ||
  text.parentElement.closest('PRE, LISTING, XMP, PLAINTEXT, TEXTAREA') !== null;
/**
 * What a node shows as text, its breaks as line ends: for where no markup may stand.
 * @param {AnyNode} node
 * @returns {string}
 */
export function plainText(node) {
  if (dom.isBreak(node)) return '\n';
  if (dom.isText(node)) return keepsLines(node) ? node.data : node.data.replace(/[ \t\r\n]+/g, ' ');
  const isUnseen = node.nodeType !== Node.DOCUMENT_FRAGMENT_NODE && dom.isNeutral(node);
  return isUnseen ? '' : [...node.childNodes].map(plainText).join('');
}

/**
 * The inline element around a node that a page's rules make a line; null for none.
 * @param {AnyNode} node
 */
export const lineElement = (node) => dom.ancestor(node, isLineElement, dom.isBlock);

/**
 * What is shown before a block in its cell. It may be what stands before the item or division that
 * the block is first in: a split of the block has cut these too. null for nothing.
 * @param {AnyNode} block
 */
export function shownBefore(block) {
  let at = block;
  while (!dom.isCell(at) && !dom.neighbour(at, 'previousSibling')) at = at.parentNode;
  return dom.isCell(at) ? null : dom.neighbour(at, 'previousSibling');
}
