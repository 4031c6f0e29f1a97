// SPDX-License-Identifier: GPL-3.0-or-later
// Units: the paragraphs of a selection, as block commands see them. A unit is a run of inline nodes
// between two blocks, in the block that holds it; where the run is all that a P, a heading and the
// like hold, that block is the unit's own.
(() => {
  'use strict';
  const { velor } = globalThis;
  const dom = velor.dom;

  const own = (block) => dom.isParagraph(block) || block.tagName === 'DIV';

  // The run around `node`, which is inline or shown text, in its block; edges that show nothing are
  // left out of it.
  function runAround(node) {
    const container = dom.blockOf(node.parentNode);
    let top = node;
    while (top.parentNode !== container) top = top.parentNode;
    const holdsBlock = (at) => dom.isInline(at) && !dom.isAtom(at) && containsBlock(at);
    // An inline element around blocks (old pages wrap them in FONT) is a container of its own.
    for (let at = node.parentNode; at !== container; at = at.parentNode) {
      if (holdsBlock(at)) return spread(childTowards(at, node), at);
    }
    return spread(top, container);
  }
  const containsBlock = (element) =>
    [...element.children].some((child) =>
      dom.isBlock(child) || (dom.isInline(child) && !dom.isAtom(child) && containsBlock(child)));
  function childTowards(parent, node) {
    while (node.parentNode !== parent) node = node.parentNode;
    return node;
  }

  function spread(top, container) {
    const stops = (node) =>
      dom.isBlock(node) || (dom.isInline(node) && !dom.isAtom(node) && containsBlock(node));
    const nodes = [top];
    for (let at = top.previousSibling; at && !stops(at); at = at.previousSibling) nodes.unshift(at);
    for (let at = top.nextSibling; at && !stops(at); at = at.nextSibling) nodes.push(at);
    while (nodes.length > 1 && !dom.isShown(nodes[0])) nodes.shift();
    while (nodes.length > 1 && !dom.isShown(nodes.at(-1))) nodes.pop();
    return unit(container, nodes);
  }

  function unit(container, nodes) {
    const whole = own(container) &&
      [...container.childNodes].every((node) => nodes.includes(node) || !dom.isShown(node));
    return { container, nodes, block: whole ? container : null };
  }

  // The unit of one leaf; null where the leaf is no part of any (a rule, space between blocks).
  function unitOf(leaf) {
    if (dom.isBlock(leaf)) {
      return dom.isAtom(leaf) || !own(leaf) && !velor.dom.isCell(leaf) && leaf.tagName !== 'LI' &&
        leaf.tagName !== 'DD' && leaf.tagName !== 'BLOCKQUOTE'
        ? null
        : unit(leaf, []);
    }
    return runAround(leaf);
  }

  // The last leaf of a node that shows something.
  function lastShown(node) {
    if (dom.isAtom(node)) return node;
    const child = [...node.childNodes].reverse().find(dom.isShown);
    return child ? lastShown(child) : node;
  }

  // A selected object that is a block itself.
  const objectUnit = (object) => ({ container: object.parentNode, nodes: [object], block: object });

  // The place of a caret between two blocks, or at their edge, where no line is: [node, offset];
  // null elsewhere.
  function gapAt({ startContainer, startOffset, collapsed }) {
    if (!collapsed) return null;
    let [node, offset] = [startContainer, startOffset];
    if (dom.isText(node)) {
      if (!dom.isIgnorable(node)) return null;
      [node, offset] = [node.parentNode, velor.selection.indexOf(node)];
    }
    if (!dom.isBare(node) && !/^(LI|DD)$/.test(node.tagName)) return null;
    const around = [dom.shownFrom(node.childNodes[offset - 1], 'previousSibling'),
      dom.shownFrom(node.childNodes[offset], 'nextSibling')].filter(Boolean);
    return around.length && around.every(dom.isBlock) ? [node, offset] : null;
  }

  function caretUnit({ startContainer: node, startOffset: offset }) {
    if (dom.isText(node) && !dom.isIgnorable(node)) return unitOf(node);
    if (dom.isText(node)) {
      const { parentNode } = node;
      return caretUnit(
        { startContainer: parentNode, startOffset: velor.selection.indexOf(node) });
    }
    const shown = [...node.childNodes].filter(dom.isShown);
    if (!shown.length) return dom.isBlock(node) ? unit(node, []) : unitOf(node);
    const next = dom.shownFrom(node.childNodes[offset], 'nextSibling');
    const last = dom.shownFrom(node.childNodes[offset - 1], 'previousSibling');
    // At the end of a line before a block the caret is in that line.
    if (last && !dom.isBlock(last) && dom.isBlock(next)) return unitOf(lastShown(last));
    const leaf = next ? dom.firstLeaf(next) : dom.lastLeaf(shown.at(-1));
    if (!dom.isBlock(leaf) || !dom.isAtom(leaf)) return unitOf(leaf);
    if (dom.isIsland(leaf)) return null;
    const near = dom.neighbour(leaf, 'previousSibling') || dom.neighbour(leaf, 'nextSibling');
    return near && !dom.isAtom(near) ? unitOf(lastShown(near)) : null;
  }

  function unitsIn(range, limit = Infinity) {
    if (!range) return [];
    const object = velor.selection.control(range);
    if (object && dom.isBlock(object)) return [objectUnit(object)];
    if (range.collapsed) return [caretUnit(range)].filter(Boolean);
    const units = [];
    const known = new Set();
    for (const leaf of velor.selection.leavesIn(range)) {
      if (known.has(leaf) || !dom.isShown(leaf)) continue;
      // A selection that ends at the very start of a paragraph does not mean that paragraph.
      const untouched = units.length && leaf === range.endContainer && range.endOffset === 0;
      if (untouched || covered(leaf, known)) continue;
      const found = unitOf(leaf);
      if (!found) continue;
      units.push(found);
      found.nodes.forEach((node) => known.add(node));
      if (units.length === limit) break;
    }
    return units.length ? units : [caretUnit(range)].filter(Boolean);
  }

  function covered(leaf, known) {
    for (let at = leaf; at && !dom.isBlock(at); at = at.parentNode) if (known.has(at)) return true;
    return false;
  }

  // The list item (or the item of another kind) that a unit lies in, within its table cell.
  const itemOf = (found, fits = (node) => node.tagName === 'LI') =>
    dom.ancestor(found.block || found.container, (node) => dom.isElement(node) && fits(node),
      (node) => dom.isCell(node));

  // Puts the unit into a new element, or makes its own block into that element where it is only a
  // paragraph of another kind. Returns the element.
  function become(found, tag) {
    const { block, nodes, container } = found;
    const paragraph = block && dom.isParagraph(block) && block.tagName !== 'DT';
    if (paragraph || dom.isPlainDivision(block)) {
      return dom.rename(block, tag);
    }
    return enclose({ container, nodes }, dom.create(tag));
  }

  // Puts an element around the unit's nodes; into the container where it has none.
  function enclose({ container, nodes }, element) {
    if (nodes.length) return dom.wrap(nodes, element);
    container.append(element);
    return element;
  }

  // The topmost node of a unit: its block, or each of its nodes.
  const partsOf = ({ block, nodes }) => (block ? [block] : nodes);

  velor.units = { gapAt, unitsIn, itemOf, become, enclose, partsOf };
})();
