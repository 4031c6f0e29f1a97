// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The one undo history. A mutation observer sees every change of the document, whoever makes it;
// the changes are gathered into steps, and a step is taken back on the live nodes, last change
// first. So a step holds nodes, not copies, and what it brings back is exact.
import { AttributeChange, ChildChange, TextChange } from './recordedChanges.js';
import { points, samePoints, select } from './selection.js';

const mostSteps = 1000;
// In UTF-16 code units of kept text, nodes counted with what they weigh about; some 64 MB.
const mostWeight = 32e6;

/** @type {MutationObserver | null} */
let observer = null;
/** @type {Step | null} */
let open = null;  // the step that is being gathered
/** @type {Step[]} */
let undoable = [];
/** @type {Step[]} */
let redoable = [];
/** @type {RestPoints | null} */
let lastPoints = null;  // the selection when the document was last at rest
// Whether the program has documents to go back or on to where these steps end.
let beyond = { undo: false, redo: false };
/** @type {{ changed(): void, wantBeyond(way: string): void } | null} */
let hooks = null;  // see start
/** @type {(changes: any[]) => void} */
let completeStep = () => {};
/**
 * @typedef {{ current(): any, restore(saved: any): void, isSame(one: any, other: any): boolean }}
 * Keeper
 */
/** @type {Keeper} */
let along = { current: () => null, restore() {}, isSame: () => true };

// Where the document is at rest: the selection and what is kept along with it.
/** @returns {RestPoints} */
const rest = () => ({ ...points(), along: along.current() });

/**
 * @param {string | number} kind
 * @param {AnyNode} [before]
 */
const begin = (kind, before = rest()) => {
  open = {
    kind, before, after: before, changes: [], seen: new Map(), names: new Map(), weight: 0,
    completed: 0,
  };
};

// Within a step the first value of a text or an attribute is the one to go back to.
/**
 * @param {AnyNode} node
 * @param {string} key
 */
const firstOf = (node, key) => {
  const keys = open.seen.get(node) ?? new Set();
  open.seen.set(node, keys);
  return keys.has(key) ? false : Boolean(keys.add(key));
};

/** @param {MutationRecord} record */
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

/** @param {MutationRecord[]} records */
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

/** @param {any[]} changes */
const seal = (changes) => changes.reduce((sum, change) => sum + change.seal(), 0);

function forgetOldest() {
  let weight = undoable.reduce((sum, each) => sum + each.weight, 0);
  while (undoable.length > 1 && (undoable.length > mostSteps || weight > mostWeight)) {
    weight -= undoable.shift().weight;
  }
}

/**
 * @param {AnyNode[]} one
 * @param {AnyNode[]} other
 */
const sameNodes = (one, other) =>
  one.length === other.length && one.every((node, index) => node === other[index]);
// Whether a change takes away just what the one before it has put in.
/**
 * @param {Change} change
 * @param {Change | undefined} before
 */
const takesBack = (change, before) => change instanceof ChildChange &&
  before instanceof ChildChange && change.target === before.target && !change.added.length &&
  !before.removed.length && sameNodes(change.removed, before.added);
/** @param {any[]} changes */
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
  const isSame = along.isSame(closed.before.along, closed.after.along);
  if (!closed.changes.length && isSame) return;
  delete closed.seen;
  delete closed.names;
  undoable.push(closed);
  forgetOldest();
}

/**
 * Makes the last step part of the one before it, where that is `earlier`.
 * @param {Step} earlier
 */
export function join(earlier) {
  finish();
  if (undoable.at(-2) !== earlier) return;
  const { changes, weight, after } = undoable.pop();
  earlier.changes = [...earlier.changes, ...changes];
  earlier.weight += weight;
  earlier.after = after;
}

/** The step that was done last; null for none. */
export const lastStep = () => open ?? undoable.at(-1) ?? null;

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

/**
 * A command: everything that `change` does is one step. Tells whether it changed the document.
 * @param {string | number} kind
 * @param {() => void} change
 */
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

/**
 * Input that the engine is about to carry out. It joins the step at hand when that is of the same
 * kind, `joins` allows it and the caret is still where that step left it.
 * @param {string | number} kind
 * @param {boolean} joins
 */
export function expect(kind, joins) {
  settle();
  if (open && open.kind === kind && joins && samePoints(open.after, points())) return;
  close();
  begin(kind);
}

// Answers where points are after changes of the texts that they are in.
/** @param {RestPoints} points */
function following({ anchorNode, anchorOffset, focusNode, focusOffset }) {
  const [anchor, focus] = [document.createRange(), document.createRange()];
  if (anchorNode) anchor.setStart(anchorNode, anchorOffset);
  if (focusNode) focus.setStart(focusNode, focusOffset);
  return () => ({ anchorNode, anchorOffset: anchor.startOffset, focusNode,
    focusOffset: focus.startOffset });
}

/**
 * A change that belongs to what was done last, and ends it.
 * @param {() => void} change
 */
export function amend(change) {
  settle();
  const last = open ?? undoable.at(-1);
  if (!last) return;
  if (!open) Object.assign(last, { seen: new Map(), names: new Map() });
  open = last;
  const after = following(last.after);
  const sealed = last.changes.length;
  const wasClosed = undoable.at(-1) === last;
  change();
  observer.takeRecords().forEach(add);
  last.after = { ...after(), along: along.current() };
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

/**
 * @param {Step[]} from
 * @param {Step[]} to
 * @param {'undo' | 'redo'} way
 * @param {'before' | 'after'} end the one of the step where this comes to
 */
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

/**
 * Begins anew, for a document that was just loaded. `earlier` and `later` tell whether the program
 * has documents beyond the steps; `changed` is called after each change of the document, and
 * `wantBeyond` with the way ('undo' or 'redo') where the steps end and the program has more.
 * @param {{ earlier: boolean, later: boolean, changed(): void,
 *   wantBeyond(way: string): void }} options
 */
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

/**
 * Says what else belongs to the document at a step's ends: `current()` answers it, `restore(saved)`
 * puts it back, `isSame` compares two answers.
 * @param {Keeper} keeper
 */
export function keepAlong(keeper) { along = keeper; }

/**
 * Says what is called at a step's end with its changes, to change what goes with them.
 * @param {(changes: any[]) => void} completer
 */
export function completeStepsBy(completer) { completeStep = completer; }

/**
 * To be told before a step takes an attribute off an element of the page.
 * @param {AnyNode} element
 */
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
