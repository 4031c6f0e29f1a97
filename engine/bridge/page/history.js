// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The one undo history. A mutation observer sees every change of the document, whoever makes it;
// the changes are gathered into steps, and a step is taken back on the live nodes, last change
// first. So a step holds nodes, not copies, and what it brings back is exact.
import * as dom from './dom.js';
import { points, samePoints, select } from './selection.js';

const mostSteps = 1000;
// In UTF-16 units of kept text, nodes counted with what they weigh about; some 64 MB.
const mostWeight = 32e6;
const nodeWeight = 100;

let observer = null;
/** @type {Step | null} */
let open = null;  // the step that is being gathered
/** @type {Step[]} */
let undoable = [];
/** @type {Step[]} */
let redoable = [];
let lastPoints = null;  // the selection when the document was last at rest
// Whether the program has documents to go back or on to where these steps end.
let beyond = { undo: false, redo: false };
/** @type {{ changed(): void, wantBeyond(way: string): void } | null} */
let hooks = null;  // see start
/** @type {(changes: any[]) => void} */
let completeStep = () => {};
/** @type {{ current(): unknown, restore(saved: unknown): void }} */
let along = { current: () => null, restore() {} };

// A long page has very many changes in a step, so they are kept small: classes, not closures.
class TextChange {
  constructor(node, old) {
    this.node = node;
    this.old = old;
  }
  // Keeps what differs only: one key in a long text must not cost the text.
  seal() {
    const { old } = this;
    const now = this.node.data;
    const { head, tail } = dom.commonEnds(old, now);
    this.head = head;
    this.before = old.slice(head, old.length - tail);
    this.after = now.slice(head, now.length - tail);
    this.isVoid = this.before === this.after;
    this.old = null;
    return this.before.length + this.after.length + nodeWeight;
  }
  undo() { this.node.replaceData(this.head, this.after.length, this.before); }
  redo() { this.node.replaceData(this.head, this.before.length, this.after); }
}

function putAttribute(element, space, name, value) {
  if (value === null) element.removeAttributeNS(space, name);
  else element.setAttributeNS(space, name, value);
}
// An attribute that is put back would come last; the page's text has it where it was.
function orderAttributes(element, names) {
  if (!names || element.getAttributeNames().join() === names.join()) return;
  const attributes = names.map((name) => element.getAttributeNode(name)).filter(Boolean);
  for (const attribute of attributes) {
    element.removeAttributeNode(attribute);
    element.setAttributeNode(attribute);
  }
}
class AttributeChange {
  constructor(element, space, name, old, names) {
    this.element = element;
    this.space = space;
    this.name = name;
    this.old = old;
    this.before = names;
  }
  seal() {
    this.now = this.element.getAttributeNS(this.space, this.name);
    this.after = this.element.getAttributeNames();
    return (this.old?.length ?? 0) + (this.now?.length ?? 0) + nodeWeight;
  }
  undo() {
    putAttribute(this.element, this.space, this.name, this.old);
    orderAttributes(this.element, this.before);
  }
  redo() {
    putAttribute(this.element, this.space, this.name, this.now);
    orderAttributes(this.element, this.after);
  }
}

function exchange(parent, gone, come, next) {
  for (const node of gone) if (node.parentNode === parent) node.remove();
  for (const node of come) parent.insertBefore(node, next?.parentNode === parent ? next : null);
}
// What hangs under nodes that leave the document. The observer does not see what goes into a tree
// before that tree comes into the document; taking the step back pulls such nodes out again, and
// doing it again needs them where they were.
const hangings = (nodes) => {
  const parents = [];
  const collect = (node) => {
    if (!node.hasChildNodes()) return;
    parents.push([node, [...node.childNodes]]);
    node.childNodes.forEach(collect);
  };
  nodes.forEach(collect);
  return parents;
};
const hang = (parents) => {
  for (const [parent, children] of parents) {
    const same = parent.childNodes.length === children.length &&
      children.every((child, index) => child === parent.childNodes[index]);
    if (!same) parent.replaceChildren(...children);
  }
};
const weightOf = (node) => nodeWeight + (node.firstChild
  ? node.getElementsByTagName('*').length * nodeWeight + node.textContent.length : 0);
const none = [];
const listOf = (nodes) => (nodes.length ? [...nodes] : none);
class ChildChange {
  constructor({ target, addedNodes, removedNodes, nextSibling }) {
    this.target = target;
    this.added = listOf(addedNodes);
    this.removed = listOf(removedNodes);
    this.next = nextSibling;
    this.under = none;
  }
  // What has left the document is kept by this step alone.
  seal() {
    let weight = nodeWeight * (1 + this.added.length);
    for (const node of this.removed) if (!node.isConnected) weight += weightOf(node);
    return weight;
  }
  undo() {
    this.under = hangings(this.added);
    exchange(this.target, this.added, this.removed, this.next);
  }
  redo() {
    for (const node of this.removed) if (node.parentNode === this.target) node.remove();
    hang(this.under);
    exchange(this.target, none, this.added, this.next);
  }
}

// Where the document is at rest: the selection and what is kept along with it.
/** @returns {RestPoints} */
const rest = () => ({ ...points(), along: along.current() });

const begin = (kind, before = rest()) => {
  open = {
    kind, before, after: before, changes: [], seen: new Map(), names: new Map(), weight: 0,
    completed: 0,
  };
};

// Within a step the first value of a text or an attribute is the one to go back to.
const firstOf = (node, key) => {
  const keys = open.seen.get(node) ?? new Set();
  open.seen.set(node, keys);
  return keys.has(key) ? false : Boolean(keys.add(key));
};

function add(record) {
  const { type, target, oldValue } = record;
  if (type === 'childList') open.changes.push(new ChildChange(record));
  else if (type === 'characterData') {
    if (firstOf(target, '')) open.changes.push(new TextChange(target, oldValue));
  } else if (firstOf(target, record.attributeNamespace + ' ' + record.attributeName)) {
    open.changes.push(new AttributeChange(
      target, record.attributeNamespace, record.attributeName, oldValue, open.names.get(target)));
  }
}

function absorb(records) {
  if (records.length) {
    const alone = !open;
    if (alone) begin('other', lastPoints ?? rest());
    records.forEach(add);
    open.after = rest();
    redoable = [];
    beyond.redo = false;
    hooks.changed();
    if (alone) close();
  }
  lastPoints = rest();
}

const seal = (changes) => changes.reduce((sum, change) => sum + change.seal(), 0);

function forgetOldest() {
  let weight = undoable.reduce((sum, each) => sum + each.weight, 0);
  while (undoable.length > 1 && (undoable.length > mostSteps || weight > mostWeight)) {
    weight -= undoable.shift().weight;
  }
}

const sameNodes = (one, other) =>
  one.length === other.length && one.every((node, index) => node === other[index]);
// Whether a change takes away just what the one before it has put in.
const takesBack = (change, before) => change instanceof ChildChange &&
  before instanceof ChildChange && change.target === before.target && !change.added.length &&
  !before.removed.length && sameNodes(change.removed, before.added);
function withoutPairs(changes) {
  const left = [];
  for (const change of changes) {
    if (takesBack(change, left.at(-1))) left.pop();
    else left.push(change);
  }
  return left;
}

function close() {
  if (!open) return;
  const closed = open;
  open = null;
  if (!closed.changes.length) return;
  closed.weight = seal(closed.changes);
  // What an input method wrote and took away again is no change, nor is a line that was held open.
  closed.changes = withoutPairs(closed.changes.filter((change) => !change.isVoid));
  if (!closed.changes.length) return;
  delete closed.seen;
  delete closed.names;
  undoable.push(closed);
  forgetOldest();
}

export const settle = () => { if (observer) absorb(observer.takeRecords()); };
export const finish = () => { settle(); close(); };

// What else belongs to the changes that the step at hand has got since it was last asked.
function complete() {
  if (!open) return;
  const fresh = open.changes.slice(open.completed);
  if (fresh.length) completeStep(fresh);
  settle();
  open.completed = open.changes.length;
}

// A command: everything that `change` does is one step. Tells whether it changed the document.
export function step(kind, change) {
  finish();
  begin(kind);
  try {
    change();
  } finally {
    settle();
    complete();
  }
  const changed = open.changes.length > 0;
  close();
  return changed;
}

// Input that the engine is about to carry out. It joins the step at hand when that is of the same
// kind, `joins` allows it and the caret is still where that step left it.
export function expect(kind, joins) {
  settle();
  if (open && open.kind === kind && joins && samePoints(open.after, points())) return;
  close();
  begin(kind);
}

// A change that belongs to what was done last, and ends it.
export function amend(change) {
  settle();
  const last = open ?? undoable.at(-1);
  if (!last) return;
  if (!open) Object.assign(last, { seen: new Map(), names: new Map() });
  open = last;
  const { after } = last;
  const sealed = last.changes.length;
  const wasClosed = undoable.at(-1) === last;
  change();
  observer.takeRecords().forEach(add);
  last.after = { ...after, along: along.current() };
  if (wasClosed) {
    last.weight += seal(last.changes.slice(sealed));
    open = null;
  } else {
    close();
  }
  lastPoints = rest();
  hooks.changed();
}

// Takes the caret into the step at hand after the input was carried out.
export function arrive() {
  settle();
  complete();
  if (open) open.after = rest();
}

function travel(from, to, way, end) {
  finish();
  const taken = from.pop();
  if (!taken) {
    if (beyond[way]) hooks.wantBeyond(way);
    return;
  }
  const changes = way === 'undo' ? [...taken.changes].reverse() : taken.changes;
  changes.forEach((change) => change[way]());
  observer.takeRecords();
  to.push(taken);
  select(taken[end]);
  lastPoints = rest();
  along.restore(taken[end].along);
  hooks.changed();
}

// Begins anew, for a document that was just loaded. `earlier` and `later` tell whether the program
// has documents beyond the steps; `changed` is called after each change of the document, and
// `wantBeyond` with the way ('undo' or 'redo') where the steps end and the program has more.
export function start({ earlier, later, changed, wantBeyond }) {
  observer?.disconnect();
  beyond = { undo: earlier, redo: later };
  hooks = { changed, wantBeyond };
  open = null;
  undoable = [];
  redoable = [];
  lastPoints = null;
  observer = new MutationObserver(absorb);
  observer.observe(document, {
    subtree: true, childList: true, attributes: true, attributeOldValue: true,
    characterData: true, characterDataOldValue: true,
  });
}

// Says what else belongs to the selection at a step's ends: `current()` answers it,
// `restore(saved)` puts it back.
export function keepAlong(keeper) { along = keeper; }

// Says what is called at a step's end with its changes, to change what goes with them.
export function completeStepsBy(completer) { completeStep = completer; }

// To be told before a step takes an attribute off an element of the page.
export function attributesOf(element) {
  if (open && !open.names.has(element)) open.names.set(element, element.getAttributeNames());
}

export function undo() { travel(undoable, redoable, 'undo', 'before'); }
export function redo() { travel(redoable, undoable, 'redo', 'after'); }

// Something was taken back and can be done again.
export const isBack = () => redoable.length > 0;
export const canUndo = () => undoable.length > 0 || Boolean(open?.changes.length) || beyond.undo;
export const canRedo = () => redoable.length > 0 || beyond.redo;

// The selection moved without a change of the document.
export function selectionMoved() { if (!open?.changes.length) lastPoints = rest(); }
