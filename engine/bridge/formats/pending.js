// SPDX-License-Identifier: GPL-3.0-or-later
// Formats chosen at a caret: they wait for the text that is typed there.
(() => {
  'use strict';
  const { velor } = globalThis;

  const chosen = new Map();
  let place = null;  // where the formats were chosen

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
      if (chosen.size && !velor.selection.samePoints(place, velor.selection.points())) {
        chosen.clear();
      }
    },
    // The text is there: puts the formats on it and the caret at its end.
    typed(text) {
      if (!chosen.size || !text) return;
      const { anchorNode: node, anchorOffset: end } = velor.selection.points();
      const start = end - text.length;
      if (node.nodeType !== Node.TEXT_NODE || start < 0) return;
      document.getSelection().setBaseAndExtent(node, start, node, end);
      for (const [name, value] of chosen) velor.inline.apply(name, value, velor.selection.range());
      document.getSelection().collapseToEnd();
      chosen.clear();
    },
    // A new line keeps what was chosen.
    moved() { if (chosen.size) place = velor.selection.points(); },
  };
})();
