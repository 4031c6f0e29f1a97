// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Show details: the signs for what no style sheet can mark, since it has no box to hang a glyph on
// (breaks, comments, scripts, hidden fields) or no name that a rule could give (tags that HTML does
// not know). They are drawn over the page, those in sight only.
import * as boxes from './boxes.js';
import * as overlay from './overlay.js';
import * as dom from '../page/dom.js';

const most = 4000;  // nodes looked at for one drawing
const height = 12;  // pixels
const overlap = 3;  // pixels of a badge that lie on its line

/**
 * The picture of a sign, and one that is drawn for a node.
 * @typedef {{ image: string, width: number, height: number }} Sign
 * @typedef {Layer & { node: Node }} Glyph
 */

/**
 * @param {number} width
 * @param {string} content
 */
const picture = (width, content) => {
  const svg = `<svg xmlns="http://www.w3.org/2000/svg" width="${width}" height="${height}">` +
    `${content}</svg>`;
  return { image: `url("data:image/svg+xml,${encodeURIComponent(svg)}")`, width, height };
};
/**
 * @param {number} width
 * @param {string} text
 */
const mark = (width, text) => picture(width,
  `<rect x="0.5" y="0.5" width="${width - 1}" height="${height - 1}" rx="1.5" fill="#fdf6d8"` +
  ' stroke="#b58900"/><text x="50%" y="9" font-family="sans-serif" font-size="9"' +
  ` text-anchor="middle" fill="#7a5c00">${text}</text>`);
/** @param {string} path */
const arrow = (path) => picture(12, `<path d="${path}" fill="none" stroke="#3465a4"/>`);
/** @type {Record<string, Sign>} */
const breaks = {
  ltr: arrow('M10 2v5H3M5.5 4.5L3 7l2.5 2.5'), rtl: arrow('M2 2v5H9M6.5 4.5L9 7l-2.5 2.5'),
};
const badges = new Map();
/** @param {string} text */
function badge(text) {
  const short = text.replace(/[^\w:.-]/g, '').slice(0, 12);
  if (!badges.has(short)) badges.set(short, mark(Math.ceil(6 + 5.7 * short.length), short));
  return badges.get(short);
}
const comment = mark(16, '!--');

const silent = /^(BASE|LINK|MAP|META|NOSCRIPT|SCRIPT|STYLE|TEMPLATE|TITLE)$/;
const boxless = /^(APPLET|EMBED|OBJECT|VIDEO|AUDIO)$/;
// The picture that stands for a node; null for one that needs none.
/**
 * @param {AnyNode} node
 * @returns {Sign | null}
 */
function signOf(node) {
  if (node.nodeType === Node.COMMENT_NODE) return comment;
  if (!dom.isElement(node)) return null;
  const { tagName, localName } = node;
  if (tagName === 'BR') return breaks[getComputedStyle(node.parentElement).direction];
  if (tagName === 'INPUT') return node.matches('[type="hidden" i]') ? badge('hidden') : null;
  const unknown = node instanceof HTMLUnknownElement || localName.includes('-');
  const marked = silent.test(tagName) || unknown ||
    (boxless.test(tagName) && !boxes.firstBoxOf(node)?.width);
  return marked ? badge(localName) : null;
}

// The position of a node's sign: at the node's own start, else where the next node starts, else
// where the one before it ends, else in its parent.
/**
 * @param {AnyNode} node
 * @param {Sign} sign
 */
function positionOf(node, { width }) {
  const isLtr = getComputedStyle(node.parentElement).direction === 'ltr';
  /** @param {Box} box */
  const startOf = ({ left, right, top }) => ({ x: isLtr ? left : right - width, y: top });
  /** @param {Box} box */
  const endOf = ({ left, right, top }) => ({ x: isLtr ? right : left - width, y: top });
  /** @param {AnyNode} at */
  const boxed = (at) => at && boxes.firstBoxOf(at);
  const own = dom.isElement(node) && boxed(node);
  if (own?.width) return startOf(own);
  const next = boxed(dom.neighbour(node, 'nextSibling'));
  if (next) return startOf(next);
  const before = boxed(dom.neighbour(node, 'previousSibling'));
  return before ? endOf(before) : startOf(boxes.boxOf(node.parentElement));
}
// A sign with its position, above the others; null for a break that is not seen.
/**
 * @param {AnyNode} node
 * @param {Sign} sign
 * @param {Glyph[]} others
 * @returns {Glyph | null}
 */
function layerOf(node, sign, others) {
  if (!dom.isBreak(node)) {
    // Above the line that it stands before, so that the text can be read; beside another one.
    const position = positionOf(node, sign);
    const y = Math.max(-scrollY, position.y + overlap - height);
    let { x } = position;
    /** @param {Glyph} other */
    const inTheWay = (other) => Math.abs(other.y - y) < height && other.x < x + sign.width &&
      x < other.x + other.width;
    for (let other = others.find(inTheWay); other; other = others.find(inTheWay)) {
      x = other.x + other.width + 1;
    }
    return { ...sign, node, x, y };
  }
  const box = boxes.firstBoxOf(node);
  if (!box) return null;
  const x = sign === breaks.ltr ? box.left : box.right - sign.width;
  return { ...sign, node, x, y: box.top + (box.height - height) / 2 };
}

// The signs of the nodes in sight.
function layers() {
  /** @type {Glyph[]} */
  const signs = [];
  const walker = document.createTreeWalker(
    document.body, NodeFilter.SHOW_ELEMENT | NodeFilter.SHOW_COMMENT | NodeFilter.SHOW_TEXT);
  const { first, last } = boxes.nodesInSight();
  walker.currentNode = first;
  // What stands just before the first text in sight belongs to it.
  for (let back = 0; back < 5 && walker.previousNode(); back++);
  // And a few more behind the last one.
  let rest = most;
  for (let node = walker.currentNode; node && rest > 0; node = walker.nextNode(), rest--) {
    if (last && rest > 50 && last.compareDocumentPosition(node) ===
        Node.DOCUMENT_POSITION_FOLLOWING) rest = 50;
    const sign = signOf(node);
    const layer = sign && layerOf(node, sign, signs);
    if (layer) signs.push(layer);
  }
  return signs;
}

let shown = false;
/** @type {Glyph[]} */
let found = [];
function redraw() {
  found = shown && dom.isEditable() ? layers() : [];
  overlay.drawInView('glyphs', found);
}

/** @param {Layer} layer */
const boxOfLayer = ({ x, y, width }) =>
  ({ left: x, top: y, right: x + width, bottom: y + height, width, height });
/**
 * Shows or hides the signs.
 * @param {boolean} on
 */
export function show(on) {
  shown = on;
  overlay.scheduleRedraw();
}

/**
 * The node whose sign is at a mouse event; null where none is seen there.
 * @param {Pointer} event
 */
export const nodeAt = (event) =>
  found.find((layer) => boxes.holds(boxOfLayer(layer), event))?.node ?? null;

/**
 * The box of a node's sign in the viewport; null where none is seen.
 * @param {Node} node
 */
export function boxOf(node) {
  const layer = found.find((each) => each.node === node);
  return layer ? boxOfLayer(layer) : null;
}

overlay.addRedraw(redraw);
