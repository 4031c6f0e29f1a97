// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Puts texts in the place of stretches of the page's lines.
import { pointBefore, pointBehind } from './pageText.js';
import * as dom from '../page/dom.js';
import { dropEmptyInline, holdOpen } from '../page/lines.js';
import * as selection from '../page/selection.js';

/**
 * Puts a text in a stretch's place, into the text of its first character, so that it has the looks
 * of that. What stands among its texts, comments say, stays.
 * @param {LineStretch} match
 * @param {string} text
 */
export function put(match, text) {
  const start = pointBefore(match.line, match.start);
  const end = pointBehind(match.line, match.end - 1);
  const nodes = [...new Set(match.line.pieces.map(({ node }) => node))];
  const touched = nodes.slice(nodes.indexOf(start.node), nodes.indexOf(end.node) + 1);
  const block = dom.blockOf(start.node);
  for (const node of touched) {
    const from = node === start.node ? start.offset : 0;
    const to = node === end.node ? end.offset : node.length;
    node.replaceData(from, to - from, node === start.node ? text : '');
  }
  touched.filter((node) => !node.length).forEach(dropEmptyInline);
  holdOpen(block);
}

/**
 * Puts a text in a stretch's place, and the caret behind it.
 * @param {LineStretch} match
 * @param {string} text
 */
export function putAndFollow(match, text) {
  const { node, offset } = pointBefore(match.line, match.start);
  put(match, text);
  if (node.isConnected) selection.setCaret(node, offset + text.length);
}
