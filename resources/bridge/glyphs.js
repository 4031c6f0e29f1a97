// SPDX-License-Identifier: GPL-3.0-or-later
// Show details: the signs for what no style sheet can mark, since it has no box to hang a glyph on:
// breaks, comments and scripts. They are drawn over the page, those in sight only.
(() => {
  'use strict';
  const { velor } = globalThis;
  const dom = velor.dom;

  const most = 4000;  // nodes looked at for one drawing
  const height = 12;  // pixels
  const overlap = 3;  // pixels of a badge that lie on its line

  const picture = (width, content) => {
    const svg = `<svg xmlns="http://www.w3.org/2000/svg" width="${width}" height="${height}">` +
      `${content}</svg>`;
    return { image: `url("data:image/svg+xml,${encodeURIComponent(svg)}")`, width, height };
  };
  const badge = (width, text) => picture(width,
    `<rect x="0.5" y="0.5" width="${width - 1}" height="${height - 1}" rx="1.5" fill="#fdf6d8"` +
    ' stroke="#b58900"/><text x="50%" y="9" font-family="sans-serif" font-size="9"' +
    ` text-anchor="middle" fill="#7a5c00">${text}</text>`);
  const signs = {
    break: picture(12, '<path d="M10 2v5H3M5.5 4.5L3 7l2.5 2.5" fill="none" stroke="#3465a4"/>'),
    comment: badge(16, '!--'),
    script: badge(34, 'script'),
  };

  function signOf(node) {
    if (node.nodeType === Node.COMMENT_NODE) return signs.comment;
    if (dom.isBreak(node)) return signs.break;
    return dom.isElement(node) && node.tagName === 'SCRIPT' ? signs.script : null;
  }

  // Where something stands that has no box: at the start of what follows it, else at the end of what
  // is before it, else in its parent.
  function placeOf(node) {
    const boxed = (side) => {
      const at = dom.neighbour(node, side);
      if (!at) return null;
      const range = document.createRange();
      range.selectNode(at);
      return range.getClientRects()[0] ?? null;
    };
    const next = boxed('nextSibling');
    if (next) return { x: next.left, y: next.top };
    const before = boxed('previousSibling');
    if (before) return { x: before.right, y: before.top };
    const { left, top } = node.parentElement.getBoundingClientRect();
    return { x: left, y: top };
  }
  function layerOf(node, sign) {
    if (sign !== signs.break) {
      // Above the line that it stands before, so that the text can be read.
      const { x, y } = placeOf(node);
      return { ...sign, x, y: Math.max(-scrollY, y + overlap - height) };
    }
    const box = node.getClientRects()[0];
    return box && { ...sign, x: box.left, y: box.top + (box.height - height) / 2 };
  }

  // The nodes in sight lie between those at the viewport's corners.
  function inSight() {
    const { clientWidth, clientHeight } = document.documentElement;
    const columns = [2, clientWidth / 2, clientWidth - 2];
    const nodesAt = (y) => columns.map((x) => document.caretRangeFromPoint(x, y))
      .filter(Boolean).map(({ startContainer, startOffset }) =>
        startContainer.childNodes[startOffset] ?? startContainer);
    const precedes = (one, other) =>
      (one.compareDocumentPosition(other) & Node.DOCUMENT_POSITION_FOLLOWING ? -1 : 1);
    return {
      first: nodesAt(1).sort(precedes)[0] ?? document.body,
      last: nodesAt(clientHeight - 1).sort(precedes).at(-1) ?? null,
    };
  }

  function layers() {
    const found = [];
    const walker = document.createTreeWalker(
      document.body, NodeFilter.SHOW_ELEMENT | NodeFilter.SHOW_COMMENT | NodeFilter.SHOW_TEXT);
    const { first, last } = inSight();
    walker.currentNode = first;
    // What stands just before the first text in sight belongs to it.
    for (let back = 0; back < 5 && walker.previousNode(); back++);
    // And a few more behind the last one.
    let rest = most;
    for (let node = walker.currentNode; node && rest > 0; node = walker.nextNode(), rest--) {
      if (last && rest > 50 && last.compareDocumentPosition(node) ===
          Node.DOCUMENT_POSITION_FOLLOWING) rest = 50;
      const sign = signOf(node);
      const layer = sign && layerOf(node, sign);
      if (layer) found.push(layer);
    }
    return found;
  }

  let shown = false;
  function redraw() {
    const found = shown && velor.editable() ? layers() : [];
    if (!found.length) {
      velor.overlay.clear('details');
      return;
    }
    const { clientWidth: right, clientHeight: bottom } = document.documentElement;
    velor.overlay.draw('details', { left: 0, top: 0, right, bottom }, found);
  }

  velor.showGlyphs = (on) => {
    shown = on;
    velor.overlay.follow();
  };
  velor.overlay.add(redraw);
})();
