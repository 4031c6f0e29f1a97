// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The document's text for the program, as what has changed since the last time. So the cost is that
// of the change, however large the page is, and it can be told while somebody types.
//
// Of the text that was told only the lengths of its *pieces* are kept here. Pieces are the children
// of a *branch*: the root element, and each element in it that is longer than `largestPiece`. A
// mutation observer says which pieces have to be serialized anew.
import { selectionPaths } from '../page/paths.js';
import { firstBreaks, rawBreaks, serialize, serializeNode } from '../page/serialize.js';
import { blanksAsWritten } from '../page/standIns.js';
import { shownGeneration } from './replace.js';

// Elements that are serialized in ways of their own: they are never branches.
const undivided = 'pre, listing, textarea, template, title, script, style, xmp, iframe, noembed, ' +
  'noframes, noscript, plaintext, svg, math';
const mostSteps = 8;     // kept, for a program that has not seen the last ones
const mostPieces = 500;  // where more have changed, the whole text costs less

// The number of the text that was told last. It begins at random, so that a number of the document
// before this one is not taken for one of this document's.
let revision = 1 + Math.floor(Math.random() * 1e9);
let largestPiece = 20000;  // UTF-16 code units
/** @type {TextEdit[][]} the steps that led to the last texts */
let steps = [];
/** @type {MutationObserver | null} */
let observer = null;
/** @type {Set<Node>} nodes that changed since the last text */
const touched = new Set();
/** @type {Resolution[]} the stand-ins that the last text has blanks for */
let blanks = [];
/**
 * A branch: `open` and `close` are the lengths of its tags, `lengths` those of its children.
 * @typedef {{ open: number, close: number, children: Node[], lengths: number[] }} Branch
 */
/** @type {Map<Node, Branch>} the branches by their elements */
const branches = new Map();

/** @param {MutationRecord[]} records */
const note = (records) => { for (const { target } of records) touched.add(target); };
/** @param {number[]} lengths */
const sum = (lengths) => lengths.reduce((all, length) => all + length, 0);

// The nodes whose text is another one than the engine's `outerHTML`, with all elements around them.
function nodesWithOwnText() {
  const found = new Set();
  const nodes =
    [...firstBreaks(document), ...rawBreaks(document), ...blanks.map(({ node }) => node)];
  for (const node of nodes) for (let at = node; at; at = at.parentNode) found.add(at);
  return found;
}

// True for a node of that length whose children are to be pieces.
/**
 * @param {AnyNode} node
 * @param {number} length
 */
const isBranch = (node, length) => length > largestPiece && node.childElementCount > 1 &&
  !node.matches(undivided);

// The length of a node's text; makes it a branch where it is long. `special` are nodesWithOwnText.
/**
 * @param {AnyNode} node
 * @param {Set<Node>} special
 */
function lengthOf(node, special) {
  const isText = node.nodeType === Node.TEXT_NODE;
  if (isText && !special.has(node) && !/[&<>\u00a0]/.test(node.data)) return node.length;
  const isPlain = node.nodeType === Node.ELEMENT_NODE && !special.has(node);
  const { length } = isPlain ? node.outerHTML : serializeNode(node);
  if (isBranch(node, length)) makeBranch(node, special);
  return length;
}

// An element's start tag, and the length of its end tag.
/** @param {Element} element */
function tagsOf(element) {
  const text = /** @type {Element} */ (element.cloneNode(false)).outerHTML;
  const open = text.lastIndexOf('</');
  return { open: text.slice(0, open), close: text.length - open };
}

/**
 * @param {Element} element
 * @param {Set<Node>} special
 */
function makeBranch(element, special) {
  const { open, close } = tagsOf(element);
  const children = [...element.childNodes];
  const lengths = children.map((child) => lengthOf(child, special));
  branches.set(element, { open: open.length, close, children, lengths });
}

/** @param {Node} node */
function dropBranch(node) {
  const branch = branches.get(node);
  if (!branch) return;
  branches.delete(node);
  branch.children.forEach(dropBranch);
}

// Takes the lengths of the whole text, where they are not known and nothing has changed since.
function makeBranches() {
  note(observer.takeRecords());
  const root = document.documentElement;
  if (branches.size || touched.size || !root) return;
  makeBranch(root, nodesWithOwnText());
}

// The whole text, as one that no steps lead to. The lengths are taken later, in idle time.
/** @returns {Telling} */
function tellWhole() {
  if (!observer) {
    observer = new MutationObserver(note);
    observer.observe(
      document, { subtree: true, childList: true, attributes: true, characterData: true });
  }
  observer.takeRecords();
  touched.clear();
  branches.clear();
  steps = [];
  revision += 1;
  blanks = blanksAsWritten();
  requestIdleCallback(makeBranches);
  return { revision, html: serialize() };
}

/**
 * What of the text has changed. `pieces`: to be serialized anew. `lists`: branches that have got
 * other children. `ways`: both and all branches around them.
 * @typedef {{ pieces: Set<Node>, lists: Set<Node>, ways: Set<Node> }} Touched
 */

// The same since the last text; null where the whole is to be told.
/** @returns {Touched | null} */
function touchedPieces() {
  if (touched.has(document) || !branches.size) return null;
  /** @type {Touched} */
  const found = { pieces: new Set(), lists: new Set(), ways: new Set() };
  for (const node of touched) {
    if (!node.isConnected) continue;
    let at = node;
    if (branches.has(at)) {
      found.lists.add(at);
    } else {
      while (at && !branches.has(at.parentNode)) at = at.parentNode;
      if (!at) return null;
      found.pieces.add(at);
    }
    for (; at !== document && !found.ways.has(at); at = at.parentNode) found.ways.add(at);
  }
  return found.pieces.size > mostPieces ? null : found;
}

// A node's text; makes it a branch where that is long.
/** @param {AnyNode} node */
function serializePiece(node) {
  const text = serializeNode(node);
  if (isBranch(node, text.length)) makeBranch(node, nodesWithOwnText());
  return text;
}

// What of a branch's children was exchanged: those from `head` to `end`, for the nodes `come`.
/**
 * @param {Node[]} children
 * @param {Node[]} fresh
 */
function difference(children, fresh) {
  let head = 0;
  let end = children.length;
  let freshEnd = fresh.length;
  while (head < end && head < freshEnd && children[head] === fresh[head]) head += 1;
  while (end > head && freshEnd > head && children[end - 1] === fresh[freshEnd - 1]) {
    end -= 1;
    freshEnd -= 1;
  }
  return { head, end, come: fresh.slice(head, freshEnd) };
}

// Adds the edits for a node whose text is `length` long at `offset`; answers its new length.
/**
 * @param {AnyNode} node
 * @param {number} length
 * @param {number} offset
 * @param {Touched} found
 * @param {TextEdit[]} edits
 * @returns {number}
 */
function addEdits(node, length, offset, found, edits) {
  if (found.pieces.has(node)) {
    const text = serializePiece(node);
    edits.push([offset, length, text]);
    return text.length;
  }
  const branch = branches.get(node);
  const { children, lengths } = branch;
  let at = offset + branch.open;
  /**
   * @param {number} from
   * @param {number} to
   */
  const keep = (from, to) => {
    for (let index = from; index < to; index += 1) {
      const before = lengths[index];
      if (found.ways.has(children[index])) {
        lengths[index] = addEdits(children[index], before, at, found, edits);
      }
      at += before;
    }
  };
  if (!found.lists.has(node)) {
    keep(0, children.length);
  } else {
    const { open } = tagsOf(node);
    edits.push([offset, branch.open, open]);
    branch.open = open.length;
    branch.children = [...node.childNodes];
    const { head, end, come } = difference(children, branch.children);
    keep(0, head);
    children.slice(head, end).forEach(dropBranch);
    const texts = come.map(serializePiece);
    const gone = sum(lengths.slice(head, end));
    edits.push([at, gone, texts.join('')]);
    at += gone;
    keep(end, children.length);
    branch.lengths = lengths.slice(0, head).concat(
      texts.map((text) => text.length), lengths.slice(end));
  }
  return branch.open + sum(branch.lengths) + branch.close;
}

// The edits that lead from the last text to the document's now; null where the whole is to be told.
/** @returns {TextEdit[] | null} */
function editsSinceLast() {
  const found = touchedPieces();
  if (!found) return null;
  const root = document.documentElement;
  let offset = 0;
  for (const node of document.childNodes) {
    if (node === root) break;
    offset += serializeNode(node).length + 1;
  }
  /** @type {TextEdit[]} */
  const edits = [];
  addEdits(root, 0, offset, found, edits);
  return edits;
}

/**
 * @param {Resolution[]} one
 * @param {Resolution[]} other
 */
const sameBlanks = (one, other) => one.length === other.length && one.every(
  ({ node, index, text }, number) => node === other[number].node &&
    index === other[number].index && text === other[number].text);

/**
 * What leads from a text that was told to the document's text now, which is given a new number
 * where it is another one. The whole text, where the steps are not known any more or would cost
 * more.
 * @param {number} [known] the number of the text that the program has
 * @returns {Telling}
 */
export const changes = (known = revision) => {
  if (!observer) return tellWhole();
  note(observer.takeRecords());
  const now = blanksAsWritten();
  if (!sameBlanks(now, blanks)) for (const { node } of [...now, ...blanks]) touched.add(node);
  if (known > revision || revision - known > steps.length) return tellWhole();
  if (!branches.size) makeBranches();
  if (touched.size) {
    blanks = now;
    const edits = editsSinceLast();
    if (!edits) return tellWhole();
    touched.clear();
    steps = [...steps, edits].slice(-mostSteps);
    revision += 1;
  }
  return { revision, steps: steps.slice(steps.length - (revision - known)) };
};

/**
 * For tests: has a small page told as a large one is.
 * @param {number} size the length from which an element is a branch
 */
export function dividePiecesOver(size) { largestPiece = size; }

/**
 * The same with the document's generation and the selection's ends.
 * @param {number} [known]
 */
export const mirror = (known) => (
  { ...changes(known), generation: shownGeneration(), ...selectionPaths() });
