// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Show details: what a style sheet can show of a page's structure. The sheet hangs on the document
// but is no part of it.
import * as glyphs from './glyphs.js';
import { adoptSheet } from './overlay.js';

/**
 * @param {string} selector
 * @param {string} text
 */
const glyph = (selector, text) =>
  `body ${selector}::before { content: "${text}"; font: 10px sans-serif; color: #3465a4; ` +
  'background: #eef2f8; border: 1px solid #9db4d3; padding: 0 2px; margin-right: 2px; }';
const bare = 'table:is(:not([border]), [border="0"])';
const sheet = new CSSStyleSheet();
sheet.replaceSync([
  glyph('p', '\\b6'),
  glyph('a:is([name], [id])', '\\2693\\fe0e'),
  ...['div', 'center', 'form', 'blockquote', 'address', 'pre'].map((name) => glyph(name, name)),
  // Borders that would not be seen.
  `body ${bare}, body ${bare} > * > tr > :is(td, th) { outline: 1px dotted #9db4d3; }`,
  'body form, body div, body blockquote { outline: 1px dashed #c4cedd; }',
].join('\n'));

/**
 * Shows or hides the details: this sheet and the signs of glyphs.js.
 * @param {boolean} on
 */
export const setDetails = (on) => {
  adoptSheet(sheet, on);
  glyphs.show(on);
};
