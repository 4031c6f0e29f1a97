// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What kinds of nodes a page is made of, and the few ways in which elements are cut and changed.

/** @param {string} names */
const set = (names) => new Set(names.split(' '));
const blocks = set(
  'ADDRESS ARTICLE ASIDE BLOCKQUOTE BODY CAPTION CENTER COL COLGROUP DD DETAILS DIALOG DIR DIV ' +
  'DL DT FIELDSET FIGCAPTION FIGURE FOOTER FORM FRAMESET H1 H2 H3 H4 H5 H6 HEADER HR HTML ' +
  'LEGEND LI LISTING MAIN MENU NAV OL P PLAINTEXT PRE SECTION SUMMARY TABLE TBODY TD TFOOT TH ' +
  'THEAD TR UL XMP');
// Blocks that hold text only: they are split when another block comes into their middle.
const paragraphs = set('ADDRESS DT H1 H2 H3 H4 H5 H6 LISTING P PLAINTEXT PRE XMP');
const preformatted = set('LISTING PLAINTEXT PRE XMP');
// What may hold text without a paragraph around it, besides items.
const bare = set(
  'ARTICLE ASIDE BLOCKQUOTE BODY CENTER DIV FOOTER FORM HEADER MAIN NAV SECTION TD TH');
const lists = set('DIR MENU OL UL');
// Nothing flows from one of these to the next.
const cells = set('BODY CAPTION TD TH');
const rowGroups = set('TBODY TFOOT THEAD');
// Shown as one thing; their inside is no text of the page.
const atoms = set(
  'APPLET AUDIO BUTTON CANVAS EMBED HR IFRAME IMG INPUT ISINDEX MARQUEE METER OBJECT PROGRESS ' +
  'SELECT TEXTAREA VIDEO');
// Selected as wholes, like boxes with a place of their own.
const objects = set(
  'APPLET AUDIO BUTTON CANVAS EMBED HR IFRAME IMG INPUT MARQUEE OBJECT SELECT TABLE TEXTAREA ' +
  'VIDEO svg');
const unseen = set('BASE HEAD LINK META NOFRAMES NOSCRIPT PARAM SCRIPT STYLE TEMPLATE TITLE');

// True where there is a body to edit; a frameset and a document without root have none.
export const isEditable = () => document.body !== null && document.body.tagName === 'BODY';

/**
 * The two directions.
 * @type {Side[]}
 */
export const sides = ['previousSibling', 'nextSibling'];

/** @type {(node: any) => node is HTMLElement} */
export const isElement = (node) => node?.nodeType === Node.ELEMENT_NODE;
/** @type {(node: any) => node is Text} */
export const isText = (node) => node?.nodeType === Node.TEXT_NODE;
/**
 * A comment; server code stands as such.
 * @type {(node: any) => node is Comment}
 */
export const isComment = (node) => node?.nodeType === Node.COMMENT_NODE;
/**
 * True where a comment is in the range.
 * @param {Range} range
 */
export const holdsComment = (range) => range.startContainer !== range.endContainer &&
  document.createTreeWalker(range.cloneContents(), NodeFilter.SHOW_COMMENT).nextNode() !== null;
/** @type {(names: Set<string>) => (node: AnyNode) => boolean} */
const named = (names) => (node) => isElement(node) && names.has(node.tagName);
export const isBlock = named(blocks);
export const isParagraph = named(paragraphs);
export const isList = named(lists);
export const isCell = named(cells);
export const isRowGroup = named(rowGroups);
export const isPreformatted = named(preformatted);
export const isBare = named(bare);
/** @param {AnyNode} node */
export const isHeading = (node) => isElement(node) && /^H[1-6]$/.test(node.tagName);
/**
 * What is closed to editing is one thing too.
 * @param {AnyNode} node
 */
export const isIsland = (node) =>
  isElement(node) && node.getAttribute('contenteditable')?.toLowerCase() === 'false';
/** @param {AnyNode} node */
export const isAtom = (node) =>
  isElement(node) && (atoms.has(node.tagName) || node.tagName === 'svg' || isIsland(node));
/** @param {AnyNode} node */
export function isObject(node) {
  if (!isElement(node) || node === document.body) return false;
  if (objects.has(node.tagName)) return true;
  const { position, display } = getComputedStyle(node);
  return position !== 'static' && !/^(inline|table-.*|contents|none)$/.test(display);
}
/**
 * A box with a place of its own, outside of the flow of the text.
 * @param {AnyNode} node
 */
export const isOutOfFlow = (node) => isElement(node) && isBlock(node) &&
  /^(absolute|fixed)$/.test(getComputedStyle(node).position);
/** @param {AnyNode} node */
export const isBreak = (node) => isElement(node) && node.tagName === 'BR';
/** @param {AnyNode} node */
export const isNeutral = (node) => !isText(node) && (!isElement(node) || unseen.has(node.tagName));
/** @param {AnyNode} node */
export const isInline = (node) => isElement(node) && !isBlock(node) && !isNeutral(node);
/** @param {AnyNode} node */
export const isBlank = (node) => isText(node) && /^[ \t\r\n\f]*$/.test(node.data);

/**
 * True for white space that shows nothing: at the edge of a block or between two of them.
 * @param {AnyNode} node
 */
export function isIgnorable(node) {
  if (!isBlank(node)) return false;
  if (node.data === '') return true;
  if (!isBlock(node.parentNode)) return false;
  if (node.parentNode.closest('PRE, LISTING, XMP, TEXTAREA')) return false;
  /** @param {Side} side */
  const bound = (side) => {
    let next = node[side];
    while (next && (isNeutral(next) || isBlank(next))) next = next[side];
    return !next || isBlock(next) || isBreak(next);
  };
  return bound('previousSibling') || bound('nextSibling');
}

// A division that stands for a paragraph: it carries an alignment at most.
/** @param {Attr} attribute */
const isAlignment = ({ name, value }) =>
  name === 'align' || (name === 'style' && /^\s*text-align\s*:[^;]*;?\s*$/i.test(value));
/** @param {AnyNode} node */
export const isPlainDivision = (node) => isElement(node) && node.tagName === 'DIV' &&
  [...node.attributes].every(isAlignment);

// The page's dialect: an HTML5 page has its looks in styles, an older one in FONT and align.
export const writesStyles = () => {
  const { doctype } = document;
  return doctype?.name === 'html' && !doctype.publicId;
};

/**
 * Text between these tags is written as it stands: no markup can be in it.
 * @param {AnyNode} node
 */
export const rawAt = (node) =>
  (isElement(node) ? node : node.parentElement)?.closest('XMP, PLAINTEXT') ?? null;

/** @param {AnyNode} node */
export const isShown = (node) => !isNeutral(node) && !isIgnorable(node);

/** @param {AnyNode} node */
export function nextSkippingChildren(node) {
  while (node && !node.nextSibling) node = node.parentNode;
  return node ? node.nextSibling : null;
}
/** @param {AnyNode} node */
const entered = (node) => !isAtom(node) && !isNeutral(node) && node.firstChild;
/** @param {AnyNode} node */
export const nextNode = (node) => entered(node) || nextSkippingChildren(node);

/** @param {AnyNode} node */
const isBody = (node) => node === document.body;
/**
 * The nearest ancestor, the node itself included, that fits; null from the body upwards.
 * @param {AnyNode} node
 * @param {(node: AnyNode) => boolean} fits
 * @param {(node: AnyNode) => boolean} [stop] where to stop looking
 */
export function ancestor(node, fits, stop = isBody) {
  for (let at = node; at; at = at.parentNode) {
    if (fits(at)) return at;
    if (stop(at)) return null;
  }
  return null;
}
/** @param {AnyNode} node */
export const blockOf = (node) => ancestor(node, isBlock) || document.body;

/** @param {AnyNode} node */
export function firstLeaf(node) {
  while (entered(node)) node = node.firstChild;
  return node;
}
/** @param {AnyNode} node */
export function lastLeaf(node) {
  while (entered(node)) node = node.lastChild;
  return node;
}

/**
 * The texts in a node, in document order.
 * @param {AnyNode} root
 * @returns {Text[]}
 */
export function textsUnder(root) {
  const walker = document.createTreeWalker(root, NodeFilter.SHOW_TEXT);
  const texts = [];
  while (walker.nextNode()) texts.push(/** @type {Text} */ (walker.currentNode));
  return texts;
}

/**
 * @param {string} tag
 * @param {AnyNode} [attributes]
 */
export const create = (tag, attributes = {}) => {
  const element = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes)) element.setAttribute(name, value);
  return element;
};

// Where an element went that was made into another one, so that a saved selection finds it. One
// that Undo brought back is itself again.
const successors = new WeakMap();
/** @param {AnyNode} node */
export const successor = (node) => {
  while (!node.isConnected && successors.has(node)) node = successors.get(node);
  return node;
};

/**
 * @param {AnyNode} element
 * @param {string} tag
 */
export function rename(element, tag) {
  if (element.tagName === tag) return element;
  const other = create(tag);
  for (const { name, value } of element.attributes) other.setAttribute(name, value);
  other.append(...element.childNodes);
  element.replaceWith(other);
  successors.set(element, other);
  return other;
}

/** @param {AnyNode} element */
export function unwrap(element) {
  const parent = element.parentNode;
  const children = [...element.childNodes];
  element.replaceWith(...children);
  successors.set(element, children[0] || parent);
  return children;
}

/**
 * @param {AnyNode[]} nodes
 * @param {AnyNode} element
 */
export function wrap(nodes, element) {
  nodes[0].before(element);
  element.append(...nodes);
  return element;
}

/**
 * Takes the content of the next element in, and the white space between the two.
 * @param {AnyNode} element
 * @param {AnyNode} next
 */
export function absorb(element, next) {
  const between = [];
  for (let at = element.nextSibling; at !== next; at = at.nextSibling) between.push(at);
  element.append(...between, ...next.childNodes);
  next.remove();
}

/**
 * The element again, empty; an id, and a link's name, stays with the first of the two.
 * @param {AnyNode} element
 */
export function twin(element) {
  const copy = element.cloneNode(false);
  copy.removeAttribute('id');
  if (copy.tagName === 'A') copy.removeAttribute('name');
  return copy;
}

/**
 * Cuts `top` in two just before `node`, which lies in it; returns the second half.
 * @param {AnyNode} node
 * @param {AnyNode} top
 * @returns {AnyNode}
 */
export function splitBefore(node, top) {
  const parent = node.parentNode;
  const second = twin(parent);
  const moved = [];
  for (let at = node; at; at = at.nextSibling) moved.push(at);
  parent.after(second);
  second.append(...moved);
  return parent === top ? second : splitBefore(second, top);
}

/**
 * The shown sibling on one side ('previousSibling', 'nextSibling'), or null.
 * @param {AnyNode} node
 * @param {Side} side
 */
export function neighbour(node, side) {
  let at = node[side];
  while (at && !isShown(at)) at = at[side];
  return at;
}

/**
 * The same, the node itself first.
 * @param {AnyNode} node
 * @param {Side} side
 */
export const shownFrom = (node, side) => (!node || isShown(node) ? node : neighbour(node, side));

/**
 * @param {AnyNode} one
 * @param {AnyNode} other
 */
export const sameAttributes = (one, other) =>
  one.attributes.length === other.attributes.length &&
  [...one.attributes].every(({ name, value }) => other.getAttribute(name) === value);

/**
 * The same attributes, however their styles and colours are spelled.
 * @param {AnyNode} one
 * @param {AnyNode} other
 */
export function sameLooks(one, other) {
  if (sameAttributes(one, other)) return true;
  /** @param {AnyNode} element */
  const looks = (element) => [...element.attributes].map(({ name, value }) => {
    if (name === 'style') return element.style.cssText;
    return name === 'color' || name === 'face' ? value.toLowerCase() : `${name}=${value}`;
  }).sort().join('|');
  return looks(one) === looks(other);
}

/** @param {AnyNode} node */
export const shownText = (node) => isText(node) && !isIgnorable(node);
/**
 * True when the node shows something: text, a break or an object.
 * @param {AnyNode} node
 */
export function hasContent(node) {
  if (isNeutral(node)) return false;
  if (isText(node)) return !isIgnorable(node);
  if (isAtom(node) || isBreak(node) || node.tagName === 'TABLE') return true;
  for (let at = node.firstChild; at; at = at.nextSibling) if (hasContent(at)) return true;
  return false;
}
/**
 * True when nothing but the break that holds an empty line open is in it.
 * @param {AnyNode} element
 * @returns {boolean}
 */
export function isHollow(element) {
  let only = null;
  for (let at = element.firstChild; at; at = at.nextSibling) {
    if (!hasContent(at)) continue;
    if (only) return false;
    only = at;
  }
  return !only || isBreak(only) || (isInline(only) && !isAtom(only) && isHollow(only));
}

// How many units agree, up to `most`: by large pieces, which the engine compares at once, then by
// ever smaller ones.
/**
 * @param {number} most
 * @param {(from: number, to: number) => boolean} agree
 */
function agreed(most, agree) {
  let count = 0;
  for (let piece = 65536; piece >= 1; piece /= 16) {
    while (count < most && agree(count, Math.min(most, count + piece))) {
      count = Math.min(most, count + piece);
    }
  }
  return count;
}
/**
 * How much of a text is the same at its head and, behind that, at its tail.
 * @param {string} old
 * @param {string} now
 * @param {number} mostHead where it is known that the change does not begin behind this offset
 */
export function commonEnds(old, now, mostHead = Infinity) {
  const shorter = Math.min(old.length, now.length);
  const head = agreed(Math.min(shorter, mostHead),
    (from, to) => old.slice(from, to) === now.slice(from, to));
  /**
   * @param {AnyNode} text
   * @param {number} from
   * @param {number} to
   */
  const end = (text, from, to) => text.slice(text.length - to, text.length - from);
  const tail = agreed(shorter - head, (from, to) => end(old, from, to) === end(now, from, to));
  return { head, tail };
}

/**
 * Drops ids that the page has: none may be in it twice.
 * @param {DocumentFragment} fragment
 */
export function dropTakenIds(fragment) {
  for (const element of fragment.querySelectorAll('[id]')) {
    if (document.getElementById(element.id)) element.removeAttribute('id');
  }
}
