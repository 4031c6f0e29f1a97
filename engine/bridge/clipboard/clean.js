// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Cleans markup of other programs (office documents, mail, browsers): its structure, links,
// pictures, tables, emphasis, colours of words and alignment stay, its private markup and its other
// looks do not. A new tree is built of what is known, in the page's dialect, so that nothing
// unknown comes in. Functions here answer lists of new nodes.
import { isSafeAddress } from './addresses.js';
import {
  elementAround, empties, hasText, isBlock, joined, paragraphs, trim, withoutGaps, wrapLines,
} from './foreignLines.js';
import { makePreformatted, partOf } from './foreignParts.js';
import { setCellLooks, setRowLooks, setTableLooks } from './foreignTables.js';
import * as looks from './looks.js';
import { makeLists } from './officeLists.js';
import * as dom from '../page/dom.js';

/** @param {string} names */
const set = (names) => new Set(names.split(' '));
const dropped = set(
  'APPLET AUDIO BASE BUTTON CANVAS COL COLGROUP COMMENT EMBED FRAME FRAMESET HEAD IFRAME INPUT ' +
  'LINK META NOSCRIPT OBJECT SCRIPT SELECT STYLE svg TEMPLATE TEXTAREA TITLE VIDEO XML');
const structure = set(
  'ADDRESS BLOCKQUOTE CAPTION DD DL DT H1 H2 H3 H4 H5 H6 HR LI OL P PRE TABLE TBODY TD TFOOT ' +
  'TH THEAD TR UL');
const emphasis = set(
  'ABBR B BIG CITE CODE DEL DFN EM I INS KBD MARK Q S SAMP SMALL STRIKE STRONG SUB SUP TT U VAR');
/** @type {Record<string, string[]>} */
const attributes = {
  A: ['href', 'name', 'title'], ABBR: ['title'], IMG: ['src', 'alt', 'title', 'width', 'height'],
  OL: ['start', 'type'], UL: ['type'],
};
// Tags that HTML5 pages have others for; an empty one is left out.
/** @type {Record<string, string>} */
const modern = { BIG: '', STRIKE: 'S', TT: 'CODE' };

// Their own colours count in nothing of these.
const uncoloured = set('A CODE KBD PRE SAMP TT');
// What `Inside` knows of.
const counted = new Set([...emphasis, ...uncoloured]);

/**
 * @param {Element} from
 * @param {Element} to
 */
function copyAttributes(from, to) {
  // Programs say "from left to right" of everything.
  if (from.getAttribute('dir')?.toLowerCase() === 'rtl') to.setAttribute('dir', 'rtl');
  for (const name of attributes[from.tagName] ?? []) {
    const value = from.getAttribute(name);
    const own = name === 'name' && value?.startsWith('_');
    const written = name === 'name' && dom.writesStyles() ? 'id' : name;
    const says = value !== null && (value !== '' || name === 'alt');
    if (says && !own && isSafeAddress(name, value)) to.setAttribute(written, value);
  }
  return to;
}

// The content with the emphasis and the colours that an element's style has.
/**
 * @param {AnyNode[]} nodes
 * @param {HTMLElement} element
 * @param {Inside} inside
 * @param {looks.Colours} colours
 */
function withLooks(nodes, element, { tags }, colours) {
  const coloured = looks.elementsFor(colours).reduceRight((content, shell) =>
    wrapLines(content, (line) => {
      const part = shell.cloneNode(false);
      for (const node of line) part.appendChild(node);
      return part;
    }), nodes);
  if (!nodes.length || !element.hasAttribute('style')) return coloured;
  return looks.emphasisOf(element)
    .filter((tag) => !tags.has(tag) && !(tag === 'U' && tags.has('A')))
    .reduce((content, tag) => inEmphasis(content, tag), coloured);
}

// The nodes in an element of emphasis; headings are bold without one.
/**
 * @param {AnyNode[]} nodes
 * @param {string} tag
 */
function inEmphasis(nodes, tag) {
  const written = (dom.writesStyles() ? modern[tag] : null) ?? tag;
  if (!written) return nodes;
  const bold = /^(B|STRONG)$/.test(tag);
  return nodes.some(isBlock)
    ? nodes.flatMap((node) =>
      (bold && isBlock(node) && /^(H[1-6]|TH)$/.test(node.tagName)
        ? [node] : wrapLines([node], (content) => elementAround(written, content))))
    : wrapLines(nodes, (content) => elementAround(written, content));
}

// Tags that mean the same within one another.
/** @type {Record<string, string>} */
const same = { STRONG: 'B', EM: 'I', INS: 'U', STRIKE: 'S' };

/**
 * What is known of what is around a node: the tags of emphasis and the like, the colours of its
 * words, the side of its lines.
 * @typedef {{ tags: Set<string>, colours: looks.Colours, side: string }} Inside
 */
/** @type {Inside} */
const outermost = { tags: new Set(), colours: { colour: '', behind: '' }, side: '' };
/**
 * An element whose content is being cleaned.
 * @typedef {{ node: HTMLElement, outer: Inside, inside: Inside, colours: looks.Colours,
 *   content: AnyNode[], next: ChildNode | null }} Frame
 */

const isCellTag = /^(TD|TH)$/;
/**
 * @param {HTMLElement} node
 * @param {Inside} outer
 * @returns {Frame}
 */
function frameOf(node, outer) {
  const tag = node.tagName;
  const added = isPlain(node, outer) ? [] : [same[tag] ?? tag].filter((kind) => counted.has(kind));
  if (/^(H[1-6]|TH)$/.test(tag)) added.push('B');
  const keepsColours = (tag === 'FONT' || node.hasAttribute('style')) &&
    ![...uncoloured].some((kind) => outer.tags.has(kind)) && !uncoloured.has(tag);
  const colours = keepsColours ? looks.coloursOf(node, outer.colours) : outermost.colours;
  const side = isBlock(node) ? looks.sideOf(node) : '';
  let inside = outer;
  if (added.length) inside = { ...inside, tags: new Set([...inside.tags, ...added]) };
  if (colours.colour || colours.behind) {
    const { colour, behind } = outer.colours;
    inside = {
      ...inside,
      colours: { colour: colours.colour || colour, behind: colours.behind || behind },
    };
  }
  if (isCellTag.test(tag)) inside = { ...inside, side: '' };
  else if (side) inside = { ...inside, side };
  return { node, outer, inside, colours, content: [], next: node.firstChild };
}
// True for an element of emphasis that adds none.
/**
 * @param {HTMLElement} node
 * @param {Inside} outer
 */
const isPlain = (node, { tags }) => looks.isUndone(node) ||
  (emphasis.has(node.tagName) && tags.has(same[node.tagName] ?? node.tagName));

// What a node becomes that is not gone through; null for an element whose content is.
/**
 * @param {AnyNode} node
 * @param {Inside} inside
 * @returns {AnyNode[] | null}
 */
function leafOf(node, { tags }) {
  if (dom.isText(node)) {
    const text = tags.has('PRE') ? node.data : node.data.replace(/[ \t\r\n\u00a0]+/g, ' ');
    return text ? [document.createTextNode(text)] : [];
  }
  if (!dom.isElement(node) || dropped.has(node.tagName) || looks.isHidden(node)) return [];
  return empties.has(node.tagName) ? copyOfEmpty(node) : null;
}
// What an element becomes whose content is cleaned.
/** @param {Frame} frame */
function made(frame) {
  const { node, outer, inside, colours } = frame;
  const content = withLooks(frame.content, node, inside, colours);
  const tag = node.tagName;
  if (tag === 'A') return link(node, content);
  if (emphasis.has(tag) && !isPlain(node, outer)) return inEmphasis(content, tag);
  if (structure.has(tag)) return structured(frame, content);
  return dom.isBlock(node) ? paragraphs(content, inside.side) : content;
}

// Alternatives of pictures that are characters.
const isEmoji = /^(?:\p{Extended_Pictographic}|\p{Emoji_Modifier}|\u200d|\ufe0f)+$/u;
/** @param {HTMLElement} node */
function copyOfEmpty(node) {
  const copy = copyAttributes(node, dom.create(node.tagName));
  if (node.tagName !== 'IMG') return [copy];
  const alternative = node.getAttribute('alt')?.trim() ?? '';
  const stand = () => (alternative ? [document.createTextNode(alternative)] : []);
  if (isEmoji.test(alternative)) return stand();
  // Mails count their readers by pictures of one pixel.
  const sides = ['width', 'height'].map((name) => node.getAttribute(name));
  if (sides.every((side) => side !== null && Number(side) <= 1)) return [];
  return copy.hasAttribute('src') ? [copy] : stand();
}
/**
 * @param {Element} node
 * @param {AnyNode[]} content
 */
function link(node, content) {
  const copy = copyAttributes(node, dom.create('A'));
  const isNamed = copy.hasAttribute('name') || copy.id !== '';
  if (!isNamed && (!copy.hasAttribute('href') || !hasText(content))) return content;
  if (content.some(isBlock)) {
    return wrapLines(content, (line) => {
      const part = /** @type {Element} */ (copy.cloneNode(false));
      copy.removeAttribute('name');
      copy.removeAttribute('id');
      part.append(...line);
      return part;
    });
  }
  copy.append(...content);
  return [copy];
}

// What an element of the structure becomes, given what its content became.
/**
 * @param {Frame} frame
 * @param {AnyNode[]} content
 */
function structured({ node, outer, inside }, content) {
  const tag = node.tagName;
  if (/^(UL|OL|DL)$/.test(tag)) return list(node, content);
  if (/^(TABLE|TBODY|THEAD|TFOOT|TR)$/.test(tag)) return partOfTable(node, content, outer.side);
  const blocks = content.some(isBlock);
  if (isCellTag.test(tag)) return [cell(/** @type {HTMLTableCellElement} */ (node), content)];
  if (/^(LI|DD|CAPTION)$/.test(tag)) return [item(node, content)];
  if (tag === 'BLOCKQUOTE') {
    return hasText(content) ? [elementAround(tag, paragraphs(content, inside.side))] : [];
  }
  // A paragraph or heading around blocks is none; an empty one is a gap.
  if (blocks) return paragraphs(content, inside.side);
  const line = tag === 'PRE' ? content : trim(withoutGaps(content));
  if (!hasText(line)) return [];
  const copy = copyAttributes(node, elementAround(tag, line));
  // A colour of all of a heading is its page's look.
  if (dom.isHeading(copy) && line.length === 1 && /^(FONT|SPAN)$/.test(line[0].tagName)) {
    dom.unwrap(line[0]);
  }
  if (inside.side && inside.side !== 'left' && tag !== 'PRE') looks.setSide(copy, inside.side);
  return [copy];
}
/**
 * @param {Element} node
 * @param {AnyNode[]} content
 */
function item(node, content) {
  const blocks = content.some(isBlock);
  const inner = blocks ? unwrapSingle(content) : content;
  const lines = node.tagName === 'LI' && !blocks ? withoutGaps(inner) : inner;
  return copyAttributes(node, elementAround(node.tagName, trim(lines)));
}
/**
 * @param {AnyNode} node
 * @param {AnyNode[]} content
 * @param {string} side
 */
function partOfTable(node, content, side) {
  const parts = content.filter(isBlock);
  if (!parts.length) return [];
  /** @type {AnyNode} */
  const copy = copyAttributes(node, elementAround(node.tagName, parts));
  if (node.tagName === 'TR') setRowLooks(node, copy);
  if (node.tagName === 'TABLE') setTableLooks(node, copy, side);
  return [copy];
}
// A cell takes the side of the paragraph that is all of it.
/**
 * @param {HTMLTableCellElement} node
 * @param {AnyNode[]} content
 */
function cell(node, content) {
  const shown = content.filter((each) => !dom.isText(each) || hasText([each]));
  const [only] = shown;
  const side = shown.length === 1 && only.tagName === 'P' ? looks.sideOf(only) : '';
  if (side) {
    only.removeAttribute('align');
    only.removeAttribute('style');
  }
  const inner = content.some(isBlock) ? unwrapSingle(content) : content;
  /** @type {AnyNode} */
  const copy = copyAttributes(node, elementAround(node.tagName, trim(inner)));
  setCellLooks(node, copy);
  if (side) looks.setSide(copy, side);
  return copy;
}
// The content of an item or cell; a paragraph that is all of it, but for lists behind, is
// unwrapped, unless it has an alignment of its own.
/** @param {AnyNode[]} content */
function unwrapSingle(content) {
  const shown = content.filter((node) => !dom.isText(node) || hasText([node]));
  const isBare = shown[0]?.tagName === 'P' && !shown[0].attributes.length;
  if (isBare && shown.slice(1).every(dom.isList)) {
    return [...shown[0].childNodes, ...shown.slice(1)];
  }
  return shown;
}
// What a list becomes: one with items only; a list directly in it goes into the item before.
/**
 * @param {Element} node
 * @param {AnyNode[]} content
 */
function list(node, content) {
  const copy = copyAttributes(node, dom.create(node.tagName));
  for (const each of content) {
    if (/^(LI|DT|DD)$/.test(each.tagName ?? '')) copy.append(each);
    else if (copy.lastChild && dom.isList(each)) copy.lastElementChild.append(each);
    else if (hasText([each])) copy.append(elementAround('LI', [each]));
  }
  return copy.firstChild ? [copy] : [];
}

// How many nodes are cleaned between two looks at the clock.
const nodesAtOnce = 200;
/**
 * Cleans another program's markup bit by bit: tells again and again which part of the work is done,
 * and answers at the end what is ready to be put in.
 * @param {string} html
 * @returns {Generator<number, DocumentFragment, void>}
 */
export function* cleaning(html) {
  const from = new DOMParser().parseFromString(html, 'text/html');
  yield 0;
  looks.applyClassRules(from);
  const body = partOf(from);
  makePreformatted(body);
  makeLists(body);
  yield 0;
  // Elements and about as many texts.
  const all = 2 * body.getElementsByTagName('*').length + 1;
  const frames = [frameOf(body, outermost)];
  for (let done = 1; frames.length; done++) {
    if (done % nodesAtOnce === 0) yield Math.min(done / all, 1);
    const frame = frames.at(-1);
    const node = frame.next;
    if (!node) {
      frames.pop();
      if (!frames.length) return fragmentOf(frame.content);
      for (const each of made(frame)) frames.at(-1).content.push(each);
      continue;
    }
    frame.next = node.nextSibling;
    const leaf = leafOf(node, frame.inside);
    if (leaf) frame.content.push(...leaf);
    else frames.push(frameOf(/** @type {HTMLElement} */ (node), frame.inside));
  }
  return document.createDocumentFragment();
}
/** @param {AnyNode[]} content */
function fragmentOf(content) {
  const fragment = document.createDocumentFragment();
  const isLine = !content.some(isBlock);
  for (const node of isLine ? joined(content) : paragraphs(content)) fragment.append(node);
  fragment.normalize();
  return fragment;
}

/**
 * The clean form of another program's markup, ready to be put in.
 * @param {string} html
 * @returns {DocumentFragment}
 */
export function cleaned(html) {
  const work = cleaning(html);
  for (;;) {
    const { done, value } = work.next();
    if (done) return /** @type {DocumentFragment} */ (value);
  }
}
