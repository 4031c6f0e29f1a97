// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The document's text for the program, told by what has changed since the last time. So telling it
// costs what changed, however large the page is: it goes on while somebody types.
//
// The text is known here by the lengths of its pieces: the children of the root and of the elements
// that are written with much text, which are called branches. A mutation observer says which pieces
// are to be written anew.
import { selectionPaths } from '../page/paths.js';
import { firstBreaks, serialize, serializeNode } from '../page/serialize.js';
import { blanksAsWritten } from '../page/standIns.js';
import { shownGeneration } from './replace.js';

// These write what is in them in ways of their own.
const undivided = 'pre, listing, textarea, template, title, script, style, xmp, iframe, noembed, ' +
  'noframes, noscript, plaintext, svg, math';
const mostSteps = 8;
const mostPieces = 500;  // where more have changed the whole costs less

// Numbers the texts that were told. It begins anywhere, so that what the document before this one
// told is not taken for this one's.
let revision = 1 + Math.floor(Math.random() * 1e9);
let largestPiece = 20000;  // UTF-16 units; a longer one is divided into its children's
let steps = [];  // the last of them, each a list of [offset, length, text] for the text before it
let observer = null;
const touched = new Set();
let blanks = [];  // that were told otherwise than they stand in the document
const branches = new Map();  // {open, close, children, lengths}, tags and children by their lengths

const note = (records) => { for (const { target } of records) touched.add(target); };
const sum = (lengths) => lengths.reduce((all, length) => all + length, 0);

// Whatever holds something that is written otherwise than the engine writes it.
function exceptions() {
  const found = new Set();
  const nodes = [...firstBreaks(document), ...blanks.map(({ node }) => node)];
  for (const node of nodes) for (let at = node; at; at = at.parentNode) found.add(at);
  return found;
}

const divides = (node, length) => length > largestPiece && node.childElementCount > 1 &&
  !node.matches(undivided);

function lengthOf(node, special) {
  const isText = node.nodeType === Node.TEXT_NODE;
  if (isText && !special.has(node) && !/[&<>\u00a0]/.test(node.data)) return node.length;
  const isPlain = node.nodeType === Node.ELEMENT_NODE && !special.has(node);
  const { length } = isPlain ? node.outerHTML : serializeNode(node);
  if (divides(node, length)) measure(node, special);
  return length;
}

function tagsOf(element) {
  const text = element.cloneNode(false).outerHTML;
  const open = text.lastIndexOf('</');
  return { open: text.slice(0, open), close: text.length - open };
}

function measure(element, special) {
  const { open, close } = tagsOf(element);
  const children = [...element.childNodes];
  const lengths = children.map((child) => lengthOf(child, special));
  branches.set(element, { open: open.length, close, children, lengths });
}

function forget(node) {
  const branch = branches.get(node);
  if (!branch) return;
  branches.delete(node);
  branch.children.forEach(forget);
}

function measureAll() {
  note(observer.takeRecords());
  const root = document.documentElement;
  if (branches.size || touched.size || !root) return;
  measure(root, exceptions());
}

function whole() {
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
  requestIdleCallback(measureAll);
  return { revision, html: serialize() };
}

// What has to be written anew, and the branches on the way there; null where that is the whole.
function touchedPieces() {
  if (touched.has(document) || !branches.size) return null;
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

// Writes a node anew; answers its text.
function piece(node) {
  const text = serializeNode(node);
  if (divides(node, text.length)) measure(node, exceptions());
  return text;
}

// The children that are the same nodes at both ends stay; the others are exchanged.
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

// Adds the edits of a node that stood at `offset`; answers its new length.
function rewrite(node, length, offset, found, edits) {
  if (found.pieces.has(node)) {
    const text = piece(node);
    edits.push([offset, length, text]);
    return text.length;
  }
  const branch = branches.get(node);
  const { children, lengths } = branch;
  let at = offset + branch.open;
  const keep = (from, to) => {
    for (let index = from; index < to; index += 1) {
      const before = lengths[index];
      if (found.ways.has(children[index])) {
        lengths[index] = rewrite(children[index], before, at, found, edits);
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
    children.slice(head, end).forEach(forget);
    const texts = come.map(piece);
    const gone = sum(lengths.slice(head, end));
    edits.push([at, gone, texts.join('')]);
    at += gone;
    keep(end, children.length);
    branch.lengths = lengths.slice(0, head).concat(
      texts.map((text) => text.length), lengths.slice(end));
  }
  return branch.open + sum(branch.lengths) + branch.close;
}

function step() {
  const found = touchedPieces();
  if (!found) return null;
  const root = document.documentElement;
  let offset = 0;
  for (const node of document.childNodes) {
    if (node === root) break;
    offset += serializeNode(node).length + 1;
  }
  const edits = [];
  rewrite(root, 0, offset, found, edits);
  return edits;
}

const sameBlanks = (one, other) => one.length === other.length && one.every(
  ({ node, index, text }, number) => node === other[number].node &&
    index === other[number].index && text === other[number].text);

// {revision, steps} from the text of that number to the document's now, or {revision, html}.
/** @returns {Telling} */
export const changes = (known = revision) => {
  if (!observer) return whole();
  note(observer.takeRecords());
  const now = blanksAsWritten();
  if (!sameBlanks(now, blanks)) for (const { node } of [...now, ...blanks]) touched.add(node);
  if (known > revision || revision - known > steps.length) return whole();
  if (!branches.size) measureAll();
  if (touched.size) {
    blanks = now;
    const edits = step();
    if (!edits) return whole();
    touched.clear();
    steps = [...steps, edits].slice(-mostSteps);
    revision += 1;
  }
  return { revision, steps: steps.slice(steps.length - (revision - known)) };
};

// For tests: a small page is divided as a large one is.
export function dividePiecesOver(size) { largestPiece = size; }

export const mirror = (known) => (
  { ...changes(known), generation: shownGeneration(), ...selectionPaths() });
