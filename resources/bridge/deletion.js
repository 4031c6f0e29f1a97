// SPDX-License-Identifier: GPL-3.0-or-later
// Deleting across paragraphs. The engine keeps the looks of joined text by styled spans; here the
// text joins the paragraph before it and takes on that one's looks.
(() => {
  'use strict';
  const { velor } = globalThis;
  const dom = velor.dom;
  const { unitsIn } = velor.units;

  const caretAt = (node, offset) => {
    const range = document.createRange();
    range.setStart(node, offset);
    return range;
  };
  const unitAt = (node, offset) => unitsIn(caretAt(node, offset))[0] ?? null;
  const sameUnit = (one, other) =>
    one === other || Boolean(one && other && one.container === other.container &&
      one.nodes[0] === other.nodes[0]);
  const cellOf = (node) => dom.ancestor(node, dom.isCell) || document.body;

  // The same selection with its ends in the blocks that it takes in, so that what stands behind a
  // block that is selected as a whole stays out of it. All of the page stays all of it.
  function inward(range) {
    const { startContainer, startOffset, endContainer, endOffset } = range;
    const { body } = document;
    const all = startContainer === body && endContainer === body && startOffset === 0 &&
      endOffset === body.childNodes.length;
    if (all) return range;
    const result = range.cloneRange();
    const enters = (node) => dom.isElement(node) && dom.isBlock(node) && !dom.isAtom(node) &&
      node.tagName !== 'TABLE' && node.hasChildNodes();
    const first = () => result.startContainer.childNodes[result.startOffset];
    const last = () => result.endContainer.childNodes[result.endOffset - 1];
    while (enters(first())) result.setStart(first(), 0);
    while (enters(last())) result.setEnd(last(), last().childNodes.length);
    withdraw(result);
    return result.collapsed ? range : result;
  }
  // Whole paragraphs that were selected by three clicks end at the start of the one behind them.
  function withdraw(range) {
    const { startContainer, startOffset, endContainer, endOffset } = range;
    const first = unitAt(startContainer, startOffset);
    const behind = unitAt(endContainer, endOffset);
    if (!first || !behind || sameUnit(first, behind) || hollow(first)) return;
    if (!atEdge(caretAt(startContainer, startOffset), first, 'start')) return;
    if (!atEdge(caretAt(endContainer, endOffset), behind, 'start')) return;
    const leaf = [...velor.selection.leavesIn(range)]
      .filter((each) => dom.isShown(each) && !behind.nodes.some((node) => node.contains(each)))
      .at(-1);
    if (dom.isText(leaf)) range.setEnd(leaf, leaf.length);
    else if (leaf) range.setEndAfter(leaf);
  }

  // True when the range begins in one paragraph and ends in another.
  function spansUnits(range) {
    if (range.collapsed || velor.selection.control(range)) return false;
    const { startContainer, startOffset, endContainer, endOffset } = inward(range);
    return !sameUnit(unitAt(startContainer, startOffset), unitAt(endContainer, endOffset));
  }

  // A paragraph without content needs a break to be a line.
  function holdOpen(block) {
    if (dom.isElement(block) && block.isConnected && dom.isBlock(block) && !dom.isAtom(block) &&
        !dom.hasContent(block) && block.tagName !== 'BODY') {
      block.append(dom.create('BR'));
    }
  }

  // Removes a block that was emptied, and the lists and quotes that held nothing else.
  function removeEmptied(element) {
    while (dom.isElement(element) && !dom.isCell(element) && !dom.hasContent(element)) {
      const parent = element.parentNode;
      dropBlock(element);
      element = parent;
    }
  }
  // Lines of bare text that only the block kept apart stay apart; lists of a kind become one.
  function dropBlock(block) {
    const before = dom.neighbour(block, 'previousSibling');
    const after = dom.neighbour(block, 'nextSibling');
    const isLine = (node) => node && !dom.isBlock(node) && !dom.isBreak(node);
    if (dom.isBlock(block) && isLine(before) && isLine(after)) block.replaceWith(dom.create('BR'));
    else block.remove();
    if (dom.isList(before) && dom.isList(after) && before.tagName === after.tagName &&
        (dom.sameAttributes(before, after) || !after.attributes.length)) {
      dom.absorb(before, after);
    }
  }

  // Places as velor.selection keeps them.
  const startOf = (node) => {
    const leaf = dom.firstLeaf(node);
    if (dom.isText(leaf)) return { node: leaf, offset: 0 };
    return leaf === node && dom.isBlock(node) && !dom.isAtom(node)
      ? { inside: node } : { beside: leaf, side: 0 };
  };
  // An empty line's caret is before the break that holds it open.
  const endOf = (node) => {
    const leaf = dom.lastLeaf(node);
    if (dom.isText(leaf)) return { node: leaf, offset: leaf.length };
    return leaf === node && dom.isBlock(node) && !dom.isAtom(node)
      ? { inside: node } : { beside: leaf, side: dom.isBreak(leaf) ? 0 : 1 };
  };

  const dropTrailingBreak = (nodes) => {
    const last = nodes.at(-1);
    if (dom.isBreak(last)) {
      last.remove();
      return nodes.slice(0, -1);
    }
    return nodes;
  };

  // Moves the content of one unit to the end of the one before it. Returns the place between them.
  function join(first, second) {
    const left = dropTrailingBreak(first.nodes.filter((node) => node.isConnected));
    const home = second.container;
    const { isPreformatted, breakLines } = velor.blocks;
    const leavesPre = isPreformatted(second.block) && !isPreformatted(first.container);
    if (leavesPre) breakLines(home);
    const moved = leavesPre ? [...home.childNodes] : second.nodes.filter((node) => node.isConnected);
    const last = left.at(-1);
    const place = last ? endOf(last) : startOf(moved[0] ?? first.container);
    if (last) last.after(...moved);
    else if (first.container.firstChild) first.container.prepend(...moved);
    else first.container.append(...moved);
    const item = velor.lists.itemOf(first);
    const rest = [...home.childNodes].filter(dom.isShown);
    const onlyLists = rest.length > 0 && rest.every(dom.isList);
    if (home.tagName === 'LI' && item && !home.contains(item) && onlyLists) item.append(...rest);
    removeEmptied(home);
    holdOpen(first.container);
    return place;
  }

  // Across table cells only contents go; the cells stay.
  function removeLeaves(range) {
    const { startContainer, startOffset, endContainer, endOffset } = range;
    const blocks = new Set();
    for (const leaf of [...velor.selection.leavesIn(range)]) {
      if (!dom.isShown(leaf)) continue;
      blocks.add(dom.blockOf(leaf));
      const from = leaf === startContainer ? startOffset : 0;
      if (dom.isText(leaf)) {
        leaf.deleteData(from, (leaf === endContainer ? endOffset : leaf.length) - from);
      } else {
        leaf.remove();
      }
    }
    blocks.forEach(holdOpen);
  }

  // Two blanks would show as one where texts meet.
  function keepBlanks(node, offset) {
    const blank = (text, at) => dom.isText(text) && /[ \n]/.test(text.data[at] ?? '');
    let next = node;
    let at = offset;
    if (at === node.length) [next, at] = [node.nextSibling, 0];
    if (!blank(node, offset - 1) || !blank(next, at)) return;
    next.replaceData(at, 1, '\u00a0');
    velor.blanks.hold(next, at, false);
  }

  // Deletes what is selected in one paragraph, as it stands; leaves a caret.
  function cut(range) {
    const block = dom.blockOf(range.startContainer);
    const ends = [range.startContainer, range.endContainer];
    range.deleteContents();
    for (const end of ends) {
      let at = dom.isText(end) && !end.length ? end : end.parentNode;
      if (dom.isText(end) && !end.length) {
        at = end.parentNode;
        end.remove();
      }
      while (at?.isConnected && dom.isInline(at) && !dom.isAtom(at) && !at.hasChildNodes()) {
        const { parentNode } = at;
        at.remove();
        at = parentNode;
      }
    }
    holdOpen(block);
  }

  function select({ startContainer, startOffset, endContainer, endOffset }) {
    document.getSelection().setBaseAndExtent(
      startContainer, startOffset, endContainer, endOffset);
  }

  // Deletes what is selected, whatever it spans; leaves a caret.
  function remove(range) {
    const object = velor.selection.control(range);
    if (object) {
      const { parentNode } = object;
      const block = dom.blockOf(parentNode);
      const index = velor.selection.indexOf(object);
      object.remove();
      holdOpen(block);
      velor.selection.setCaret(parentNode, Math.min(index, parentNode.childNodes.length));
      return;
    }
    const between = inward(range);
    if (!spansUnits(range)) {
      select(between);
      velor.blanks.watch();
      document.execCommand('delete');
      velor.blanks.watched({ inputType: 'deleteContent' });
      return;
    }
    const { startContainer, startOffset, endContainer, endOffset } = between;
    const first = unitAt(startContainer, startOffset);
    const second = unitAt(endContainer, endOffset);
    if (!first || !second || cellOf(startContainer) !== cellOf(endContainer)) {
      removeLeaves(between);
      velor.selection.setCaret(startContainer, startOffset);
      return;
    }
    between.deleteContents();
    const start = startContainer.isConnected ? [startContainer, startOffset] : [first.container, 0];
    if (second.container.isConnected) join(first, second);
    else removeEmptied(endContainer);
    holdOpen(first.container);
    if (dom.isText(start[0])) keepBlanks(...start);
    velor.selection.setCaret(...start);
  }

  const keepsBlanks = (text) => /^(pre|break)/.test(getComputedStyle(text.parentNode).whiteSpace);
  // True when something shows between the edge of a paragraph and a place in it: white space there
  // does not.
  function shownBetween(range) {
    const { startContainer, startOffset, endContainer, endOffset } = range;
    for (const leaf of velor.selection.leavesIn(range)) {
      if (!dom.isShown(leaf)) continue;
      if (!dom.isText(leaf)) return true;
      const from = leaf === startContainer ? startOffset : 0;
      const text = leaf.data.slice(from, leaf === endContainer ? endOffset : leaf.length);
      if (text !== '' && (keepsBlanks(leaf) || /[^ \t\n]/.test(text))) return true;
    }
    return false;
  }

  function atEdge(range, unit, side) {
    const [first, last] = [unit.nodes[0], unit.nodes.at(-1)];
    if (!first) return true;
    const rest = range.cloneRange();
    if (side === 'start') rest.setStartBefore(first);
    else rest.setEndAfter(dom.isBreak(last) && last !== first ? last.previousSibling : last);
    return rest.collapsed || dom.isHollow(unit.block || unit.container) || !shownBetween(rest);
  }

  // An element without content that takes no place either.
  const isNothing = (node) => dom.isElement(node) && !dom.hasContent(node) &&
    node.getBoundingClientRect().height * node.getBoundingClientRect().width === 0;
  // Takes away what is nothing between two paragraphs, less what may be a link's target.
  function clearBetween(first, second) {
    const range = document.createRange();
    range.setStartAfter(first.nodes.at(-1) ?? first.container);
    range.setEndBefore(second.nodes[0] ?? second.container);
    for (const leaf of [...velor.selection.leavesIn(range)]) {
      if (isNothing(leaf) && dom.isBlock(leaf) && !leaf.id && !leaf.firstChild) leaf.remove();
    }
  }

  // The nearest shown leaf before or after a node; null at the edge of its cell.
  function leafBeside(node, side) {
    const cell = cellOf(node);
    for (let at = node; at && at !== cell; at = at.parentNode) {
      let beside = dom.neighbour(at, side);
      while (isNothing(beside)) beside = dom.neighbour(beside, side);
      if (!beside) continue;
      if (beside.tagName === 'TABLE') return beside;
      return side === 'previousSibling' ? lastShown(beside) : firstShown(beside);
    }
    return null;
  }
  function lastShown(node) {
    if (node.tagName === 'TABLE' || dom.isAtom(node)) return node;
    const child = [...node.childNodes].reverse().find(dom.isShown);
    return child ? lastShown(child) : node;
  }
  function firstShown(node) {
    if (node.tagName === 'TABLE' || dom.isAtom(node)) return node;
    const child = [...node.childNodes].find(dom.isShown);
    return child ? firstShown(child) : node;
  }

  const unitOfLeaf = (leaf) =>
    dom.isText(leaf) ? unitAt(leaf, 0)
      : dom.isBlock(leaf) ? unitAt(leaf, 0)
        : unitAt(leaf.parentNode, [...leaf.parentNode.childNodes].indexOf(leaf));

  const hollow = (unit) => Boolean(unit.block) && dom.isHollow(unit.block);

  // A deletion at a paragraph's edge. Tells whether there is one, and what carries it out.
  function joining(range, side) {
    const unit = unitsIn(range)[0];
    if (!unit || !range.collapsed || !atEdge(range, unit, side)) return null;
    const back = side === 'start';
    if (back && startsItem(unit)) return () => velor.lists.leave(unit);
    const anchor = unit.block || (back ? unit.nodes[0] : unit.nodes.at(-1)) || unit.container;
    const leaf = leafBeside(anchor, back ? 'previousSibling' : 'nextSibling');
    if (!leaf || leaf.tagName === 'TABLE') return () => {};
    if (dom.isBlock(leaf) && dom.isAtom(leaf)) return () => leaf.remove();
    const other = unitOfLeaf(leaf);
    if (!other || sameUnit(unit, other)) return null;
    return back ? () => joinAt(other, unit) : () => joinAt(unit, other);
  }

  // The break that is an empty line of bare text, where the run begins or ends with one. An item's
  // or a cell's only line is that item or cell.
  function emptyLine({ block, nodes, container }, side) {
    const [edge, inner] = side === 'start' ? nodes : [nodes.at(-1), nodes.at(-2)];
    if (block || velor.lists.isItem(container) || !dom.isBreak(edge)) return null;
    if (!dom.neighbour(edge, 'previousSibling') && !dom.neighbour(edge, 'nextSibling')) return null;
    return side === 'start' || !inner || dom.isBreak(inner) ? edge : null;
  }

  // White space that showed nothing at the edges of two paragraphs would be a blank between them. A
  // blank alone may have been typed at the end of the first.
  function trimEdges(first, second) {
    const last = first.nodes.length ? dom.lastLeaf(first.nodes.at(-1)) : null;
    const next = second.nodes.length ? dom.firstLeaf(second.nodes[0]) : null;
    const layout = dom.isText(last) && !keepsBlanks(last) && /[ \t\n]{2,}$|\n$/.exec(last.data);
    if (layout) last.deleteData(layout.index, layout[0].length);
    if (dom.isText(next) && !keepsBlanks(next)) {
      next.deleteData(0, /^[ \t\n]*/.exec(next.data)[0].length);
    }
  }

  function joinAt(first, second) {
    clearBetween(first, second);
    const above = emptyLine(first, 'end') ?? (hollow(first) ? first.block : null);
    const below = emptyLine(second, 'start') ?? (hollow(second) ? second.block : null);
    // Bare text has the emptied paragraph for its own.
    const takesIn = !second.block && above?.tagName === 'P';
    const emptied = takesIn ? null : above ?? below;
    if (takesIn) above.replaceChildren();
    if (!emptied) {
      trimEdges(first, second);
      velor.selection.setCaret(...velor.selection.place(join(first, second)));
      return;
    }
    const { parentNode } = emptied;
    dropBlock(emptied);
    const place = emptied === above ? startOf(second.nodes[0] ?? second.container)
      : endOf(first.nodes.at(-1) ?? first.container);
    removeEmptied(parentNode);
    velor.selection.setCaret(...velor.selection.place(place));
  }
  function startsItem(unit) {
    const item = velor.lists.itemOf(unit);
    if (!item) return false;
    const first = [...item.childNodes].find(dom.isShown);
    return !first || first === unit.nodes[0] || first === unit.block || item === unit.block;
  }

  // Takes the ends of the selection into the blocks that it means, for the engine to type over.
  const tighten = (range) => { if (!range.collapsed) select(inward(range)); };

  velor.deletion = { remove, cut, spansUnits, joining, tighten };
})();
