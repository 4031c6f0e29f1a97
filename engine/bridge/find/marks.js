// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// The marks over the matches of a search, those in sight only.
import { pointBefore, pointBehind } from './pageText.js';
import * as boxes from '../objects/boxes.js';
import * as overlay from '../objects/overlay.js';

const most = 1500;  // matches marked at a time
/** @param {string} colour */
const paint = (colour) => `linear-gradient(${colour}, ${colour})`;
const ofMatches = paint('rgba(255, 196, 0, 0.35)');
const ofCurrent = paint('rgba(255, 120, 0, 0.35)');

/** @type {PageMatch[]} */
let matches = [];
let current = -1;
// Set for a moment only, since the engine follows every range through each change of the document.
const range = document.createRange();

// The first match that begins behind a node's start.
/** @param {Node} node */
function firstBehind(node) {
  let [low, high] = [0, matches.length];
  while (low < high) {
    const middle = (low + high) >> 1;
    const { node: text } = pointBefore(matches[middle].line, matches[middle].start);
    const isBefore = text !== node &&
      text.compareDocumentPosition(node) & Node.DOCUMENT_POSITION_FOLLOWING;
    if (isBefore) low = middle + 1;
    else high = middle;
  }
  return low;
}

/** @param {PageMatch} match */
function boxesOf({ line, start, end }) {
  const { node, offset } = pointBefore(line, start);
  const last = pointBehind(line, end - 1);
  range.setStart(node, offset);
  range.setEnd(last.node, last.offset);
  return boxes.boxesOf(range, node.parentElement);
}

function layers() {
  const { clientHeight } = document.documentElement;
  const { first, last } = boxes.nodesInSight();
  const found = [];
  for (let at = firstBehind(first), count = 0; at < matches.length && count < most; at++, count++) {
    const { node } = pointBefore(matches[at].line, matches[at].start);
    if (last && last.compareDocumentPosition(node) === Node.DOCUMENT_POSITION_FOLLOWING) break;
    for (const { left: x, top: y, width, height } of boxesOf(matches[at])) {
      if (y > clientHeight || y + height < 0) continue;
      found.push({ image: at === current ? ofCurrent : ofMatches, x, y, width, height });
    }
  }
  range.setStart(document, 0);
  range.collapse(true);
  return found;
}

/**
 * Marks matches in place of those that were marked before.
 * @param {PageMatch[]} found in document order
 * @param {number} index of the one that is selected; -1 for none
 */
export function mark(found, index) {
  matches = found;
  current = index;
  overlay.scheduleRedraw();
}

overlay.addRedraw(() => overlay.drawInView('marks', matches.length ? layers() : []));
