// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Units: the paragraphs of a selection, as block commands see them. A unit is a run of inline nodes
// between two blocks, in the block that holds it; where the run is all that a P, a heading and the
// like hold, that block is the unit's own.
import * as dom from './dom.js';
import * as selection from './selection.js';
import { standsForNothing } from './standIns.js';

/** @param {AnyNode} block */
const own = (block) => dom.isParagraph(block) || block.tagName === 'DIV';

// The run around `node`, which is inline or shown text, in its block; edges that show nothing are
// left out of it.
/** @param {AnyNode} node */
function runAround(node) {
  const container = dom.blockOf(node.parentNode);
  let top = node;
  while (top.parentNode !== container) top = top.parentNode;
  /** @param {AnyNode} at */
  const holdsBlock = (at) => dom.isInline(at) && !dom.isAtom(at) && containsBlock(at);
  // An inline element around blocks (old pages wrap them in FONT) is a container of its own.
  for (let at = node.parentNode; at !== container; at = at.parentNode) {
    if (holdsBlock(at)) return unit(at, childTowards(at, node));
  }
  return unit(container, top);
}
/** @type {(element: AnyNode) => boolean} */
const containsBlock = (element) =>
  [...element.children].some((child) =>
    dom.isBlock(child) || (dom.isInline(child) && !dom.isAtom(child) && containsBlock(child)));
/**
 * @param {AnyNode} parent
 * @param {AnyNode} node
 */
function childTowards(parent, node) {
  while (node.parentNode !== parent) node = node.parentNode;
  return node;
}

// A block, or an inline element around blocks: a run ends there.
/** @param {AnyNode} node */
const stops = (node) =>
  dom.isBlock(node) || (dom.isInline(node) && !dom.isAtom(node) && containsBlock(node));

// The nodes of a run on one side of it, the nearest first, and what ends the run there.
/**
 * @param {AnyNode} top
 * @param {Side} side
 */
function reach(top, side) {
  const nodes = [];
  let at = top[side];
  for (; at && !stops(at); at = at[side]) nodes.push(at);
  return { nodes, end: at };
}

/**
 * @param {AnyNode} top
 * @param {AnyNode} container
 */
function spread(top, container) {
  const before = reach(top, 'previousSibling');
  const after = reach(top, 'nextSibling');
  const nodes = [...before.nodes.reverse(), top, ...after.nodes];
  let first = 0;
  let end = nodes.length;
  while (end - first > 1 && !dom.isShown(nodes[first])) first++;
  while (end - first > 1 && !dom.isShown(nodes[end - 1])) end--;
  const whole = own(container) && !before.end && !after.end;
  return { nodes: nodes.slice(first, end), block: whole ? container : null };
}

// `home` is the element that a unit lies in or, where it is an object, is: enough for most answers.
// The nodes of a run and its block are found out when they are asked for: a paragraph may be long.
/**
 * @param {AnyNode} container
 * @param {AnyNode} top
 * @returns {Unit}
 */
function unit(container, top) {
  /** @type {{ nodes: ChildNode[], block: Element | null } | null} */
  let known = null;
  const read = () => (known ??= top ? spread(top, container)
    : { nodes: [], block: own(container) && !firstShown(container) ? container : null });
  return {
    container, home: container, object: null,
    get nodes() { return read().nodes; },
    get block() { return read().block; },
  };
}

/** @param {AnyNode} node */
const firstShown = (node) => dom.shownFrom(node.firstChild, 'nextSibling');
/** @param {AnyNode} node */
const lastShownChild = (node) => dom.shownFrom(node.lastChild, 'previousSibling');

// The unit of one leaf; null where the leaf is no part of any (a rule, space between blocks).
/** @param {AnyNode} leaf */
function unitOf(leaf) {
  if (dom.isBlock(leaf)) {
    const holdsLine = own(leaf) || dom.isCell(leaf) || /^(BLOCKQUOTE|DD|LI)$/.test(leaf.tagName);
    return holdsLine && !dom.isAtom(leaf) ? unit(leaf, null) : null;
  }
  return runAround(leaf);
}

/**
 * The first leaf of a node that shows something.
 * @type {(node: AnyNode) => AnyNode}
 */
export function firstShownLeaf(node) {
  const child = dom.isAtom(node) ? null : firstShown(node);
  return child ? firstShownLeaf(child) : node;
}
/**
 * The last such leaf.
 * @type {(node: AnyNode) => AnyNode}
 */
export function lastShown(node) {
  if (dom.isAtom(node)) return node;
  const child = lastShownChild(node);
  return child ? lastShown(child) : node;
}

// A selected object that is a block itself.
/** @param {AnyNode} object */
const objectUnit = (object) =>
  ({ container: object.parentNode, home: object, object, nodes: [object], block: object });

/**
 * The point of a caret between two blocks, or at their edge, where no line is; null elsewhere.
 * @param {PlainRange} range
 * @returns {Point | null}
 */
export function gapAt({ startContainer, startOffset, collapsed }) {
  if (!collapsed) return null;
  let [node, offset] = [startContainer, startOffset];
  if (dom.isText(node)) {
    if (!dom.isIgnorable(node)) return null;
    [node, offset] = [node.parentNode, selection.indexOf(node)];
  }
  if (!dom.isBare(node) && !/^(LI|DD)$/.test(node.nodeName)) return null;
  const around = [dom.shownFrom(node.childNodes[offset - 1], 'previousSibling'),
    dom.shownFrom(node.childNodes[offset], 'nextSibling')].filter(Boolean);
  return around.length && around.every(dom.isBlock) ? [node, offset] : null;
}

// The line before a rule or the like, else the one behind it; none in a table's cells.
/**
 * @param {AnyNode} object
 * @returns {Unit | null}
 */
function unitBeside(object) {
  const [before, behind] = dom.sides.map((side) => dom.neighbour(object, side));
  const near = before ?? behind;
  if (!near || dom.isAtom(near) || near.tagName === 'TABLE') return null;
  return unitOf(before ? lastShown(before) : firstShownLeaf(behind));
}

/**
 * @param {AnyNode} node
 * @param {number} offset
 * @returns {Unit | null}
 */
function caretUnit(node, offset) {
  if (dom.isText(node) && !dom.isIgnorable(node)) return unitOf(node);
  if (dom.isText(node)) {
    const { parentNode } = node;
    return caretUnit(parentNode, selection.indexOf(node));
  }
  const last = lastShownChild(node);
  if (!last) return dom.isBlock(node) ? unit(node, null) : unitOf(node);
  const next = dom.shownFrom(node.childNodes[offset], 'nextSibling');
  const line = dom.shownFrom(node.childNodes[offset - 1], 'previousSibling');
  // At the end of a line before a block the caret is in that line.
  if (line && !dom.isBlock(line) && dom.isBlock(next)) return unitOf(lastShown(line));
  const leaf = next ? firstShownLeaf(next) : lastShown(last);
  if (!dom.isBlock(leaf) || !dom.isAtom(leaf)) return unitOf(leaf);
  return dom.isIsland(leaf) ? null : unitBeside(leaf);
}

/** @param {PlainRange} range */
const caretUnits = ({ startContainer, startOffset }) =>
  [caretUnit(startContainer, startOffset)].filter(Boolean);

// Tells of one leaf after the other, in document order, whether it is in the run of the one before.
function runFollower() {
  /** @type {AnyNode} */
  let container = null;
  /** @type {AnyNode} */
  let child = null;  // of the container, with the last leaf in it
  return {
    /**
     * @param {Unit} found
     * @param {AnyNode} leaf
     */
    begin(found, leaf) {
      ({ container } = found);
      child = container.contains(leaf) && container !== leaf ? childTowards(container, leaf) : null;
    },
    /** @param {AnyNode} leaf */
    takes(leaf) {
      if (!child || !container.contains(leaf)) return false;
      const next = childTowards(container, leaf);
      while (child !== next && child && !stops(child)) child = child.nextSibling;
      return child === next && !stops(next);
    },
  };
}

/**
 * @param {PlainRange} range
 * @param {AnyNode} leaf
 */
const endsAtStart = ({ endContainer, endOffset }, leaf) => leaf === endContainer &&
  (endOffset === 0 || standsForNothing(leaf, endOffset));

// `most` is the number of leaves that are looked at.
/**
 * @param {PlainRange | null} range
 * @returns {Unit[]}
 */
export function unitsIn(range, most = Infinity) {
  if (!range) return [];
  const object = selection.control(range);
  // A box has paragraphs of its own.
  /** @param {AnyNode} node */
  const isWhole = (node) => dom.isAtom(node) || node.tagName === 'TABLE';
  if (object && dom.isBlock(object) && isWhole(object)) return [objectUnit(object)];
  if (range.collapsed) return caretUnits(range);
  const units = [];
  const run = runFollower();
  const cells = selection.cellsIn(range);
  // Where nothing that is selected shows, its start counts; an island is in no line.
  let others = caretUnits;
  let rest = most;
  for (const leaf of selection.leavesIn(range)) {
    if (rest-- <= 0) break;
    if (!dom.isShown(leaf)) continue;
    // A selection that ends at the very start of a paragraph does not mean that paragraph.
    const untouched = units.length && !cells && endsAtStart(range, leaf);
    if (untouched || run.takes(leaf)) continue;
    const found = unitOf(leaf);
    if (!found) {
      others = () => [];
      continue;
    }
    units.push(found);
    run.begin(found, leaf);
  }
  return units.length ? units : others(range);
}

/**
 * Reads what the units hold, before elements change: from then on a unit is what it was.
 * @param {Unit[]} units
 */
export function readUnits(units) {
  for (const each of units) void each.nodes;
  return units;
}

/**
 * The list item (or the item of another kind) that a unit lies in, within its table cell.
 * @param {Unit} found
 * @param {(node: AnyNode) => boolean} [fits]
 */
export const itemAround = (found, fits = (node) => node.tagName === 'LI') =>
  dom.ancestor(found.home, (node) => dom.isElement(node) && fits(node),
    dom.isCell);

/**
 * Puts the unit into a new element, or makes its own block into that element where it is only a
 * paragraph of another kind. Returns the element.
 * @param {Unit} found
 * @param {string} tag
 */
export function become(found, tag) {
  const { block, nodes, container } = found;
  const paragraph = block && dom.isParagraph(block) && block.tagName !== 'DT';
  if (paragraph || dom.isPlainDivision(block)) {
    return dom.rename(block, tag);
  }
  return enclose({ container, nodes }, dom.create(tag));
}

/**
 * Puts an element around the unit's nodes; into the container where it has none.
 * @param {Pick<Unit, 'container' | 'nodes'>} unit
 * @param {AnyNode} element
 */
export function enclose({ container, nodes }, element) {
  if (nodes.length) return dom.wrap(nodes, element);
  container.append(element);
  return element;
}

/**
 * Gives the selected units to `change` and then selects `saved` again. A caret where nothing is
 * gets a line to change: a break holds it open, and goes where the change has made nothing of it.
 * @param {SavedSelection} saved
 * @param {(units: Unit[]) => void} change
 */
export function changeUnits(saved, change) {
  const units = unitsIn(selection.range());
  const [only] = units;
  const isOpen = units.length !== 1 || only.block || only.nodes.length;
  if (isOpen || !dom.isCell(only.container)) {
    change(units);
    selection.restore(saved);
    return;
  }
  const { container } = only;
  const line = dom.create('BR');
  container.append(line);
  selection.setCaret(container, selection.indexOf(line));
  Object.assign(saved, selection.save());
  change(unitsIn(selection.range()));
  if (line.parentNode !== container) {
    selection.restore(saved);
  } else {
    line.remove();
    selection.setCaret(container, container.childNodes.length);
  }
}

/**
 * The topmost node of a unit: its block, or each of its nodes.
 * @param {Unit} unit
 */
export const partsOf = ({ block, nodes }) => (block ? [block] : nodes);

