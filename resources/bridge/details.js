// SPDX-License-Identifier: GPL-3.0-or-later
// Show details: glyphs drawn by a style sheet that hangs on the document but is no part of it.
// Whether dragged objects keep to the grid is kept here too.
(() => {
  'use strict';
  const { velor } = globalThis;

  const glyph = (selector, text) =>
    `${selector}::before { content: "${text}"; font: 10px sans-serif; color: #3465a4; ` +
    'background: #eef2f8; border: 1px solid #9db4d3; padding: 0 2px; margin-right: 2px; }';
  const sheetText = [
    glyph('body p', '\\b6'),
    ...['div', 'center', 'form', 'blockquote', 'address', 'pre', 'a[name]:not([href])']
      .map((selector) => glyph(`body ${selector}`, selector.replace(/\[.*/, ''))),
    'body table, body td, body th { outline: 1px dotted #9db4d3; }',
    'body form, body div, body blockquote { outline: 1px dashed #c4cedd; }',
  ].join('\n');

  let sheet = null;

  velor.setDetails = (on) => {
    const others = document.adoptedStyleSheets.filter((each) => each !== sheet);
    if (!on) {
      document.adoptedStyleSheets = others;
      return;
    }
    sheet = new CSSStyleSheet();
    sheet.replaceSync(sheetText);
    document.adoptedStyleSheets = [...others, sheet];
  };

  velor.snapToGrid = false;
  velor.setSnap = (on) => { velor.snapToGrid = on; };
})();
