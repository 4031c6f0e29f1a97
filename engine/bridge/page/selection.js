// SPDX-License-Identifier: GPL-3.0-or-later
// The selection: what lies in it, how it is kept while elements change, where the caret is.
(() => {
  'use strict';
  const { velor } = globalThis;
  const { isText, isAtom, isElement, isNeutral, firstLeaf, lastLeaf, nextNode } = velor.dom;

  // States of longer selections are judged by their first texts, objects and breaks.
  const leafLimit = 2000;

  // The inside of an island that is closed to editing is no place for a command.
  function isClosed(node) {
    const host = (isElement(node) ? node : node.parentElement)?.closest('[contenteditable]');
    return host?.getAttribute('contenteditable').toLowerCase() === 'false';
  }

  // The selected range when it lies in the body, else null.
  function range() {
    const selection = document.getSelection();
    if (!velor.editable() || !selection.rangeCount) return null;
    const selected = selection.getRangeAt(0);
    const { commonAncestorContainer } = selected;
    if (!document.body.contains(commonAncestorContainer)) return null;
    return isClosed(commonAncestorContainer) ? null : selected;
  }

  // A place outwards from where it is, as long as nothing lies between.
  function outwards(node, offset, isAtEdge, step) {
    while (node !== document.body && isAtEdge(node, offset)) {
      offset = indexOf(node) + step;
      node = node.parentNode;
    }
    return [node, offset];
  }

  // The one object that the range holds and nothing else, else null.
  function control(selected) {
    if (!selected || selected.collapsed) return null;
    const { startContainer, startOffset, endContainer, endOffset } = selected;
    const [start, from] = outwards(startContainer, startOffset,
      (node, offset) => offset === length(node), 1);
    const [end, to] = outwards(endContainer, endOffset, (node, offset) => offset === 0, 0);
    if (start !== end || isText(start)) return null;
    const stop = start.childNodes[to] ?? null;
    let only = null;
    for (let node = start.childNodes[from]; node && node !== stop; node = node.nextSibling) {
      if (!velor.dom.isShown(node)) continue;
      if (only) return null;
      only = node;
    }
    return only && velor.dom.isObject(only) ? only : null;
  }

  function selectNode(node) {
    const index = indexOf(node);
    document.getSelection().setBaseAndExtent(node.parentNode, index, node.parentNode, index + 1);
  }

  const points = () => {
    const { anchorNode, anchorOffset, focusNode, focusOffset } = document.getSelection();
    return { anchorNode, anchorOffset, focusNode, focusOffset };
  };
  // The engine may have to look for its selection's ends: they are asked for no more than needed.
  const pointNames = ['anchorNode', 'anchorOffset', 'focusNode', 'focusOffset'];
  const samePoints = (one, other) => pointNames.every((name) => one[name] === other[name]);

  const length = (node) => (isText(node) ? node.length : node.childNodes.length);
  function select({ anchorNode, anchorOffset, focusNode, focusOffset }) {
    if (!anchorNode?.isConnected || !focusNode?.isConnected) return;
    document.getSelection().setBaseAndExtent(
      anchorNode, Math.min(anchorOffset, length(anchorNode)),
      focusNode, Math.min(focusOffset, length(focusNode)));
  }
  const setCaret = (node, offset) => document.getSelection().collapse(node, offset);

  // The first node of a range in document order, and the first one behind it.
  function bounds({ startContainer, startOffset, endContainer, endOffset }) {
    const first = isText(startContainer) || !startContainer.hasChildNodes()
      ? startContainer
      : startContainer.childNodes[startOffset] || velor.dom.nextSkippingChildren(startContainer);
    const stop = (isElement(endContainer) && endContainer.childNodes[endOffset]) ||
      velor.dom.nextSkippingChildren(endContainer);
    return { first, stop };
  }

  // The leaves (texts, breaks, objects, empty elements) in a range, in document order.
  function* leavesIn(selected) {
    const { first, stop } = bounds(selected);
    // A range that starts inside an object has all of that object.
    const object = first && velor.dom.ancestor(first.parentNode, isAtom);
    for (let node = object ?? first; node && node !== stop; node = nextNode(node)) {
      if (!isNeutral(node) && (isAtom(node) || !node.firstChild)) yield node;
    }
  }

  // The texts of a range of which at least one character is selected and that can be formatted, among
  // its first `most` leaves.
  function textsIn(selected, most = Infinity) {
    const texts = [];
    if (!selected || selected.collapsed) return texts;
    let rest = most;
    for (const node of leavesIn(selected)) {
      if (rest-- <= 0) break;
      if (!velor.dom.shownText(node) || velor.dom.rawAt(node)) continue;
      if (node === selected.startContainer && selected.startOffset === node.length) continue;
      if (node === selected.endContainer && selected.endOffset === 0) continue;
      texts.push(node);
    }
    return texts;
  }

  const isOpen = (node) =>
    isElement(node) && !isAtom(node) && !isNeutral(node) && !velor.dom.isBreak(node);
  // The engine counts faster than a script that would have to look at every child; the one range for
  // it is kept, since all ranges are followed through every change of the document.
  const counter = document.createRange();
  function indexOf(node) {
    counter.setStartBefore(node);
    return counter.startOffset;
  }

  // A place that survives the wrapping, unwrapping and renaming of elements around it: it clings to
  // a text, to one side of an object, or to an element without content.
  function mark(node, offset, inward) {
    if (isText(node)) return { node, offset };
    const after = node.childNodes[offset];
    const before = node.childNodes[offset - 1];
    // A caret at the end of a line before a block clings to the line.
    if (inward === 'line') {
      const { shownFrom, isBlock } = velor.dom;
      const last = shownFrom(before, 'previousSibling');
      if (last && !isBlock(last) && isBlock(shownFrom(after, 'nextSibling'))) {
        return mark(node, indexOf(last) + 1, 'before');
      }
    }
    const child = after && (inward !== 'before' || !before) ? after : before;
    if (!child) return { inside: node };
    const leaf = child === after ? firstLeaf(after) : lastLeaf(before);
    if (isText(leaf)) return { node: leaf, offset: child === after ? 0 : leaf.length };
    return isOpen(leaf) ? { inside: leaf } : { beside: leaf, side: child === after ? 0 : 1 };
  }

  function place(kept) {
    if (kept.node) return [kept.node, Math.min(kept.offset, kept.node.length)];
    if (kept.beside) {
      const object = velor.dom.successor(kept.beside);
      return [object.parentNode, indexOf(object) + kept.side];
    }
    return [velor.dom.successor(kept.inside), 0];
  }

  function keep() {
    const { anchorNode, anchorOffset, focusNode, focusOffset } = points();
    const selected = range();
    if (!selected) return null;
    const forward = selected.collapsed ||
      (anchorNode === selected.startContainer && anchorOffset === selected.startOffset);
    const object = control(selected);
    if (object) {
      const side = forward ? 0 : 1;
      return { anchor: { beside: object, side }, focus: { beside: object, side: 1 - side } };
    }
    if (selected.collapsed) {
      const caret = mark(focusNode, focusOffset, 'line');
      return { anchor: caret, focus: { ...caret } };
    }
    return {
      anchor: mark(anchorNode, anchorOffset, forward ? 'after' : 'before'),
      focus: mark(focusNode, focusOffset, forward ? 'before' : 'after'),
    };
  }

  function restore(kept) {
    if (!kept) return;
    const [anchorNode, anchorOffset] = place(kept.anchor);
    const [focusNode, focusOffset] = place(kept.focus);
    select({ anchorNode, anchorOffset, focusNode, focusOffset });
  }

  // The element that holds the start of the selection, or the selected object.
  function element() {
    const selected = range();
    if (!selected) return velor.editable() ? document.body : null;
    const object = control(selected);
    if (object) return object;
    const { startContainer } = selected;
    return isElement(startContainer) ? startContainer : startContainer.parentElement;
  }

  // The element that text typed at the caret would be in.
  function caretElement({ startContainer, startOffset }) {
    if (isText(startContainer)) return startContainer.parentElement;
    const child = startContainer.childNodes[startOffset] || startContainer.lastChild;
    const leaf = child && firstLeaf(child);
    const inline = leaf && !velor.dom.isBlock(leaf) && !isNeutral(leaf);
    return inline ? leaf.parentElement : startContainer;
  }

  // A page that was just loaded has its caret at the start.
  function ensure() {
    const { anchorNode } = document.getSelection();
    if (!velor.editable() || document.body.contains(anchorNode)) return;
    let leaf = document.body;
    for (const node of leavesIn({ startContainer: leaf, startOffset: 0, endContainer: leaf,
      endOffset: leaf.childNodes.length })) {
      if (!velor.dom.isShown(node)) continue;
      leaf = node;
      break;
    }
    if (isText(leaf) || isOpen(leaf)) setCaret(leaf, 0);
    else setCaret(leaf.parentNode, indexOf(leaf));
  }

  // A place as numbers, the last one an offset, that holds in a fresh parse of the same document:
  // neighbouring texts count as one node.
  function path(node, offset) {
    const numbers = [];
    const mergedIndexOf = (child) => {
      let index = 0;
      for (let at = child.previousSibling; at; at = at.previousSibling) {
        if (!isText(at) || !isText(at.nextSibling)) index++;
      }
      return index;
    };
    if (isText(node)) {
      for (let at = node.previousSibling; isText(at); at = at.previousSibling) offset += at.length;
      numbers.unshift(offset);
    } else {
      const child = node.childNodes[offset];
      numbers.unshift(child ? mergedIndexOf(child) : node.childNodes.length);
    }
    for (let at = node; at.parentNode && at !== document.documentElement; at = at.parentNode) {
      numbers.unshift(mergedIndexOf(at));
    }
    return numbers;
  }

  function resolve(numbers) {
    let node = document.documentElement;
    for (const index of numbers.slice(0, -1)) {
      if (!node.childNodes.length) break;
      node = node.childNodes[Math.min(index, node.childNodes.length - 1)];
    }
    return [node, Math.min(numbers.at(-1) ?? 0, length(node))];
  }

  velor.places = () => {
    const { anchorNode, anchorOffset, focusNode, focusOffset } = points();
    const at = (node, offset) => (node ? path(node, offset) : []);
    return { start: at(anchorNode, anchorOffset), end: at(focusNode, focusOffset) };
  };

  velor.restore = (start, end) => {
    if (!start?.length || !end?.length) return;
    const [anchorNode, anchorOffset] = resolve(start);
    const [focusNode, focusOffset] = resolve(end);
    select({ anchorNode, anchorOffset, focusNode, focusOffset });
  };

  velor.selection = {
    leafLimit, range, control, selectNode, points, samePoints, select, setCaret, leavesIn, textsIn,
    keep, restore, place, element, caretElement, ensure, indexOf,
  };
})();
