// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// What the program does to unknown words: it reads the page's lines, judges them, and has a word
// selected or exchanged that it has found there.
import { spelledLines } from './spelledLines.js';
import { put, putAndFollow } from '../find/exchange.js';
import { placeIn, pointBefore, pointBehind } from '../find/pageText.js';
import * as history from '../page/history.js';
import { showSelection } from '../page/places.js';
import * as selection from '../page/selection.js';
import { resolveAll } from '../page/standIns.js';

/** @type {SpelledLine[]} as they were told last */
let told = [];

// Reads the lines again that were told last.
let read = spelledLines;

/**
 * The page's lines, as texts with the languages of their parts, and where the selection begins and
 * ends there: a line's number and an index in it. Of a large page it takes long.
 * @param {'page' | 'line'} [extent] `line`: only the line that the selection begins in
 */
export function spelledText(extent) {
  history.settle();
  const selected = selection.range();
  const start = extent === 'line' ? selected?.startContainer : null;
  read = start
    ? () => (start.isConnected ? spelledLines({ first: start, last: start }) : [])
    : spelledLines;
  told = read();
  const lines = told.map(({ line }) => line);
  const from = selected ? placeIn(lines, selected.startContainer, selected.startOffset) : [0, 0];
  const to = selected && !selected.collapsed
    ? placeIn(lines, selected.endContainer, selected.endOffset) : from;
  return { lines: told.map(({ text, runs }) => [text, runs]), from, to };
}

// The stretch of a line as told where it still holds the word; null where the page has changed.
/**
 * @param {[line: number, start: number, end: number]} place
 * @param {string} word
 * @returns {LineStretch | null}
 */
function stretchOf([number, start, end], word) {
  const line = told[number]?.line;
  if (!line || line.text.slice(start, end) !== word) return null;
  const first = pointBefore(line, start);
  const last = pointBehind(line, end - 1);
  if (!first.node.isConnected || !last.node.isConnected) return null;
  const range = document.createRange();
  range.setStart(first.node, first.offset);
  range.setEnd(last.node, Math.min(last.offset, last.node.length));
  return range.toString() === word ? { line, start, end } : null;
}

/**
 * Selects a word of the lines that were told; answers whether it is still there.
 * @param {[line: number, start: number, end: number]} place
 * @param {string} word
 */
export function selectWord(place, word) {
  const found = stretchOf(place, word);
  if (!found) return false;
  const start = pointBefore(found.line, found.start);
  const end = pointBehind(found.line, found.end - 1);
  history.finish();
  document.getSelection().setBaseAndExtent(start.node, start.offset, end.node, end.offset);
  showSelection(start.node.parentElement);
  return true;
}

/**
 * Puts another word in the place of one, at all places of the lines that were told, as one step of
 * the history; answers at how many. The caret goes behind a single one.
 * @param {[line: number, start: number, end: number][]} places in the order of the page
 * @param {string} word
 * @param {string} other
 */
export function correctWord(places, word, other) {
  let count = 0;
  if (!places.some((place) => stretchOf(place, word))) return count;
  history.step('correct', () => {
    resolveAll();
    told = read();
    // From the end on: what is exchanged moves nothing before it.
    for (const place of [...places].reverse()) {
      const found = stretchOf(place, word);
      if (!found) continue;
      if (places.length === 1) putAndFollow(found, other);
      else put(found, other);
      count += 1;
    }
  });
  told = [];
  return count;
}
