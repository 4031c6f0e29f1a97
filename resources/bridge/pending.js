// SPDX-License-Identifier: GPL-3.0-or-later
// Formats chosen at a caret: they wait for the text that is typed there.
(() => {
  'use strict';
  const { velor } = globalThis;

  const chosen = new Map();
  let place = null;  // where the formats were chosen
  let typedFrom = null;  // where the text that is being typed begins

  const caret = () => {
    const { anchorNode: node, anchorOffset: offset } = velor.selection.points();
    return { node, offset };
  };

  velor.pending = {
    has: (name) => chosen.has(name),
    get: (name) => chosen.get(name),
    set(name, value) {
      chosen.set(name, value);
      place = velor.selection.points();
    },
    clear() { chosen.clear(); },
    // The caret went elsewhere: what was chosen is forgotten.
    selectionMoved() {
      if (chosen.size && !typedFrom && !velor.selection.samePoints(place, velor.selection.points())) {
        chosen.clear();
      }
    },
    typingBegins() {
      const range = velor.selection.range();
      typedFrom ??= chosen.size && range?.collapsed ? caret() : null;
    },
    // The text is there: puts the formats on it and the caret at its end.
    typingEnds() {
      const from = typedFrom;
      typedFrom = null;
      if (!from?.node?.isConnected) return;
      const range = document.createRange();
      const { node, offset } = caret();
      range.setStart(from.node, Math.min(from.offset, from.node.length ?? from.node.childNodes.length));
      range.setEnd(node, offset);
      if (range.collapsed) return;
      for (const [name, value] of chosen) {
        document.getSelection().setBaseAndExtent(
          range.startContainer, range.startOffset, range.endContainer, range.endOffset);
        velor.inline.apply(name, value, velor.selection.range());
        range.setStart(document.getSelection().anchorNode, document.getSelection().anchorOffset);
        range.setEnd(document.getSelection().focusNode, document.getSelection().focusOffset);
      }
      document.getSelection().collapseToEnd();
      chosen.clear();
    },
    // A new line keeps what was chosen.
    moved() { if (chosen.size) place = velor.selection.points(); },
  };
})();
