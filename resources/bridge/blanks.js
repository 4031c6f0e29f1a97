// SPDX-License-Identifier: GPL-3.0-or-later
// Blanks at the edge of a line. HTML does not show them, so the engine writes a no-break space
// where a blank was typed there or stands there after a deletion. That is needed while the caret is
// beside it and wrong afterwards: here such places are held, shown to the program as blanks at
// once, and made blanks again as soon as the caret has gone. Blanks that a person types at a line's
// start or several in a row stay no-break spaces, since HTML would swallow them.
(() => {
  'use strict';
  const { velor } = globalThis;
  const dom = velor.dom;

  const noBreak = '\u00a0';

  let held = [];  // {node, index, typed}; never changed in place
  let before = null;

  // The character beside a place in its line: {node, index}, {object}, or null at the line's edge.
  function beside(node, offset, side) {
    const back = side === 'previousSibling';
    let at = node;
    if (dom.isText(node)) {
      const index = back ? offset - 1 : offset;
      if (index >= 0 && index < node.length) return { node, index };
    } else {
      const child = node.childNodes[back ? offset - 1 : offset];
      if (child) return edge(child, back) ?? beside(child, 0, side);
    }
    while (!at[side]) {
      if (dom.isBlock(at)) return null;
      at = at.parentNode;
    }
    if (dom.isBlock(at)) return null;
    at = at[side];
    const found = edge(at, back);
    return found === undefined ? beside(at, back ? 0 : Infinity, side) : found;
  }
  // The outermost character of a node; undefined where the node has none.
  function edge(node, back) {
    if (dom.isBlock(node) || dom.isBreak(node)) return null;
    if (dom.isNeutral(node) && !dom.isText(node)) return undefined;
    if (dom.isText(node)) {
      return node.length ? { node, index: back ? node.length - 1 : 0 } : undefined;
    }
    if (dom.isAtom(node)) return { object: node };
    const child = back ? node.lastChild : node.firstChild;
    for (let at = child; at; at = back ? at.previousSibling : at.nextSibling) {
      const found = edge(at, back);
      if (found !== undefined) return found;
    }
    return undefined;
  }
  const charAt = (place) => (place?.node ? place.node.data[place.index] : '');
  const isBlank = (place) => /[ \t\r\n]/.test(charAt(place));

  function ends() {
    const { anchorNode, anchorOffset } = velor.selection.points();
    if (!anchorNode) return [null, null];
    return [
      beside(anchorNode, anchorOffset, 'previousSibling'),
      beside(anchorNode, anchorOffset, 'nextSibling'),
    ];
  }
  const isHeld = (place) =>
    held.some(({ node, index }) => node === place?.node && index === place?.index);

  function hold(node, index, typed) {
    if (isHeld({ node, index })) return;
    held = [...held, { node, index, typed }];
  }

  // In that order, so that a selection that ends behind the character still does.
  function exchange({ node, index }, text) {
    node.insertData(index, text);
    node.deleteData(index + text.length, 1);
  }

  const keepsBlanks = ({ node }) => /^(pre|break)/.test(getComputedStyle(node.parentNode).whiteSpace);

  // A deletion ends at a place: a blank that HTML would not show there is held, so that what is
  // typed next stands beside it.
  function meet(node, offset) {
    const left = beside(node, offset, 'previousSibling');
    const right = beside(node, offset, 'nextSibling');
    const keep = (place) => {
      if (keepsBlanks(place)) return;
      exchange(place, noBreak);
      hold(place.node, place.index, false);
    };
    if (isBlank(right) && (!left || isBlank(left))) keep(right);
    if (isBlank(left) && !right) keep(left);
  }

  // What the texts at the caret were before the engine changed them.
  function watch() {
    const range = velor.selection.range();
    before = null;
    if (!range) return;
    const left = beside(range.startContainer, range.startOffset, 'previousSibling');
    const right = beside(range.endContainer, range.endOffset, 'nextSibling');
    // A deletion may reach to the texts beside those.
    const further = [
      left?.node && beside(left.node, 0, 'previousSibling'),
      right?.node && beside(right.node, right.node.length, 'nextSibling'),
    ];
    const texts = new Map();
    for (const place of [left, right, ...further]) {
      if (place?.node) texts.set(place.node, place.node.data);
    }
    const own = (place) => charAt(place) === noBreak && !isHeld(place);
    before = { texts, ownLeft: own(left), ownRight: own(right) };
  }

  // True when the engine has written that character just now. A text that was not at the caret is a
  // new one where it holds nothing but what was typed.
  function isFresh({ node, index }, data) {
    if (!before.texts.has(node)) return node.length === data?.length;
    const { head, tail } = velor.dom.kept(before.texts.get(node), node.data);
    return index >= head && index < node.length - tail;
  }

  // A line was cut at the caret: the blank that would begin the second one ends the first.
  function tidyCut([, right]) {
    const cutsBlank = charAt(right) === noBreak && !before.ownRight;
    if (cutsBlank && right.node.length > 1) right.node.deleteData(right.index, 1);
    const last = lineBefore();
    if (!last?.node) return;
    if (charAt(last) === noBreak && !before.ownLeft) {
      last.node.replaceData(last.index, 1, ' ');
    } else if (cutsBlank && !isBlank(last)) last.node.appendData(' ');
  }
  // The last character of the line above the caret.
  function lineBefore() {
    const { anchorNode } = velor.selection.points();
    const block = dom.blockOf(anchorNode);
    const broken = beside(anchorNode, 0, 'previousSibling');
    if (broken) return null;
    let leaf = anchorNode;
    while (leaf && leaf !== block && !leaf.previousSibling) leaf = leaf.parentNode;
    const above = leaf === block ? dom.neighbour(block, 'previousSibling') : leaf?.previousSibling;
    if (!above) return null;
    if (dom.isBreak(above)) return beside(above, 0, 'previousSibling') ?? edgeBefore(above);
    return dom.isBlock(above) && above.lastChild ? edge(above.lastChild, true) : null;
  }
  const edgeBefore = (node) => (node.previousSibling ? edge(node.previousSibling, true) : null);

  // The input is there: holds what the engine wrote for blanks.
  function watched({ inputType, data }) {
    if (!before) return;
    const places = ends();
    if (inputType === 'insertParagraph' || inputType === 'insertLineBreak') tidyCut(places);
    const typed = inputType === 'insertText';
    if (typed && data?.includes(noBreak)) return;
    if (typed || inputType.startsWith('delete')) {
      for (const place of places) {
        if (charAt(place) === noBreak && isFresh(place, data)) hold(place.node, place.index, typed);
      }
    }
    before = null;
    held.filter((place) => !atCaret(place)).forEach(settle);
    held = held.filter(atCaret);
  }

  function atCaret({ node, index }) {
    const { anchorNode, anchorOffset, focusNode, focusOffset } = velor.selection.points();
    const touches = (at, offset) => at === node && (offset === index || offset === index + 1);
    return touches(anchorNode, anchorOffset) || touches(focusNode, focusOffset);
  }

  // What a held no-break space is to become: a blank, nothing, or (null) what it is.
  function meant({ node, index, typed }) {
    if (!node.isConnected || node.data[index] !== noBreak) return null;
    const left = beside(node, index, 'previousSibling');
    const right = beside(node, index + 1, 'nextSibling');
    if (!left && !typed) return '';
    if (!left || charAt(left) === noBreak || charAt(right) === noBreak) return null;
    if (isBlank(left) || isBlank(right)) return typed ? null : '';
    return ' ';
  }
  function settle(place) {
    const text = meant(place);
    if (text !== null) exchange(place, text);
  }

  velor.blanks = {
    watch, watched, meet, beside,
    // The caret moved: what it left behind becomes what was meant.
    selectionMoved() {
      const left = held.filter((place) => !atCaret(place));
      if (!left.length) return;
      held = held.filter(atCaret);
      velor.history.amend(() => left.forEach(settle));
    },
    // Texts are about to be cut and joined: what is held becomes what was meant.
    release() {
      held.forEach(settle);
      held = [];
    },
    // What is held belongs to the history: a step that is taken back brings back what was held.
    held: () => held,
    reinstate(places) { held = places; },
    // The places that the page's text has otherwise: {node, index, text}.
    meant: () => held.map((place) => ({ ...place, text: meant(place) }))
      .filter(({ text }) => text !== null),
  };
})();
