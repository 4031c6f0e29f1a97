// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What the history keeps of each mutation record, so that it can be taken back and done again on
// the live nodes.
import * as dom from './dom.js';

// What a node weighs beside its text, in UTF-16 code units.
const nodeWeight = 100;

// A long page has very many changes in a step, so they are kept small: classes, not closures.
export class TextChange {
  /**
   * @param {AnyNode} node
   * @param {string | null} old
   */
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

/**
 * @param {AnyNode} element
 * @param {string | null} space
 * @param {string} name
 * @param {string | null} value
 */
function putAttribute(element, space, name, value) {
  if (value === null) element.removeAttributeNS(space, name);
  else element.setAttributeNS(space, name, value);
}
// An attribute that is put back would come last; the page's text has it where it was.
/**
 * @param {AnyNode} element
 * @param {string[]} names
 */
function orderAttributes(element, names) {
  if (!names || element.getAttributeNames().join() === names.join()) return;
  const attributes = names.map((name) => element.getAttributeNode(name)).filter(Boolean);
  for (const attribute of attributes) {
    element.removeAttributeNode(attribute);
    element.setAttributeNode(attribute);
  }
}
export class AttributeChange {
  /**
   * @param {AnyNode} element
   * @param {string | null} space
   * @param {string} name
   * @param {string | null} old
   * @param {string[]} names
   */
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

/**
 * @param {AnyNode} parent
 * @param {AnyNode[]} gone
 * @param {AnyNode[]} come
 * @param {AnyNode} next
 */
function exchange(parent, gone, come, next) {
  for (const node of gone) if (node.parentNode === parent) node.remove();
  for (const node of come) parent.insertBefore(node, next?.parentNode === parent ? next : null);
}
// What hangs under nodes that leave the document. The observer does not see what goes into a tree
// before that tree comes into the document; taking the step back pulls such nodes out again, and
// doing it again needs them where they were.
/** @param {AnyNode[]} nodes */
const hangings = (nodes) => {
  /** @type {[parent: AnyNode, children: AnyNode[]][]} */
  const parents = [];
  /** @param {AnyNode} node */
  const collect = (node) => {
    if (!node.hasChildNodes()) return;
    parents.push([node, [...node.childNodes]]);
    node.childNodes.forEach(collect);
  };
  nodes.forEach(collect);
  return parents;
};
/** @param {[parent: AnyNode, children: AnyNode[]][]} parents */
const hang = (parents) => {
  for (const [parent, children] of parents) {
    const same = parent.childNodes.length === children.length &&
      children.every((child, index) => child === parent.childNodes[index]);
    if (!same) parent.replaceChildren(...children);
  }
};
/** @param {AnyNode} node */
const weightOf = (node) => nodeWeight + (node.firstChild
  ? node.getElementsByTagName('*').length * nodeWeight + node.textContent.length : 0);
/** @type {any[]} */
const none = [];
/** @param {NodeList} nodes */
const listOf = (nodes) => (nodes.length ? [...nodes] : none);
export class ChildChange {
  /** @param {MutationRecord} record */
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
