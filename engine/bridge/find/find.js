// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// Finding and replacing in the page's text. A search is kept until it ends or the document changes.
import { put, putAndFollow } from './exchange.js';
import { expressionOf, matchesIn, replacementFor } from './matcher.js';
import { mark } from './marks.js';
import { pointBefore, pointBehind, readLines } from './pageText.js';
import * as history from '../page/history.js';
import { showSelection } from '../page/places.js';
import * as selection from '../page/selection.js';
import { outsideSigns } from '../page/signs.js';
import { resolveAll } from '../page/standIns.js';

/** @type {TextLine[] | null} null where they have to be read anew */
let lines = null;
/** @type {PageMatch[]} */
let matches = [];
let searched = '';  // the query that `matches` are of
/** @type {Range | null} the selection that a search was limited to */
let scope = null;

const observer = new MutationObserver(forget);
function forget() {
  lines = null;
  searched = '';
  matches = [];
  mark([], -1);
}

/** @param {PageMatch} match */
const startOf = ({ line, start }) => pointBefore(line, start);
/** @param {PageMatch} match */
const endOf = ({ line, end }) => pointBehind(line, end - 1);

/** @param {TextAnchor} point */
const cutsSign = ({ node, offset }) => outsideSigns(node, offset) !== offset;
/** @param {TextAnchor} point */
const isInScope = ({ node, offset }) => !scope || scope.comparePoint(node, offset) === 0;

// The matches of a query; null where its words are no expression.
/** @param {SearchQuery} query */
function search(query) {
  const regex = expressionOf(query);
  if (!regex || !query.words) return regex && [];
  /** @type {PageMatch[]} */
  const found = [];
  for (const line of lines) {
    const holdsSigns = /[{<]/.test(line.text);
    for (const each of matchesIn(line.text, regex, query)) {
      const match = { ...each, line };
      const ends = [startOf(match), endOf(match)];
      if (!(holdsSigns && ends.some(cutsSign)) && ends.every(isInScope)) found.push(match);
    }
  }
  return found;
}

/** @param {SearchQuery} query */
function limit({ inSelection }) {
  if (!inSelection) scope = null;
  else if (!scope) scope = selection.range()?.cloneRange() ?? null;
}

// Brings `matches` up to date; false where the words are no expression.
/** @param {SearchQuery} query */
function refresh(query) {
  history.settle();
  if (observer.takeRecords().length) forget();
  limit(query);
  const asked = JSON.stringify(query);
  if (lines && asked === searched) return true;
  if (!lines) {
    lines = readLines();
    observer.observe(document, { subtree: true, childList: true, characterData: true });
  }
  const found = search(query);
  matches = found ?? [];
  searched = found ? asked : '';
  return found !== null;
}

// The number of the first match that begins at a point or behind it.
/** @param {Range} range collapsed */
function firstFrom(range) {
  let [low, high] = [0, matches.length];
  while (low < high) {
    const middle = (low + high) >> 1;
    const { node, offset } = startOf(matches[middle]);
    if (range.comparePoint(node, offset) < 0) low = middle + 1;
    else high = middle;
  }
  return low;
}

/** @param {boolean} toStart */
function edgeOfSelection(toStart) {
  const range = document.createRange();
  const selected = selection.range();
  if (selected && toStart) range.setStart(selected.startContainer, selected.startOffset);
  else if (selected) range.setStart(selected.endContainer, selected.endOffset);
  else range.selectNodeContents(document.body);
  range.collapse(true);
  return range;
}

// True where no text but white space is between two points.
/**
 * @param {TextAnchor} one
 * @param {{ node: Node, offset: number }} other
 */
function isSamePlace(one, other) {
  if (one.node === other.node) return one.offset === other.offset;
  const between = document.createRange();
  between.setStart(one.node, one.offset);
  between.setEnd(other.node, other.offset);
  // It is the other one that comes first then.
  if (between.collapsed) between.setEnd(one.node, one.offset);
  return between.toString().trim() === '';
}

// The number of the match that is selected; -1 for none.
function selectedMatch() {
  const selected = selection.range();
  if (!selected || selected.collapsed) return -1;
  const index = firstFrom(edgeOfSelection(true));
  const match = matches[index];
  if (!match) return -1;
  const { startContainer, startOffset, endContainer, endOffset } = selected;
  const isSame = isSamePlace(startOf(match), { node: startContainer, offset: startOffset }) &&
    isSamePlace(endOf(match), { node: endContainer, offset: endOffset });
  return isSame ? index : -1;
}

/** @type {Record<SearchWay, () => number>} */
const ways = {
  stay: selectedMatch,
  here: () => firstFrom(edgeOfSelection(true)) % matches.length,
  next: () => firstFrom(edgeOfSelection(false)) % matches.length,
  previous: () =>
    (firstFrom(edgeOfSelection(true)) + matches.length - 1) % matches.length,
};

/** @param {PageMatch} match */
function select(match) {
  const [start, end] = [startOf(match), endOf(match)];
  history.finish();
  document.getSelection().setBaseAndExtent(start.node, start.offset, end.node, end.offset);
  showSelection(start.node.parentElement);
}

/**
 * Searches, marks the matches, and selects one: 'here' the first from the selection's start on,
 * 'next' and 'previous' the one behind and before the selection, around the ends; 'stay' none.
 * @param {SearchQuery} query
 * @param {SearchWay} way
 * @returns {SearchAnswer}
 */
export function find(query, way) {
  if (!refresh(query)) {
    mark([], -1);
    return { count: 0, current: 0, invalid: true };
  }
  const index = matches.length ? ways[way]() : -1;
  if (index >= 0 && way !== 'stay') select(matches[index]);
  mark(matches, index);
  return { count: matches.length, current: index + 1, invalid: false };
}

/**
 * Replaces the selected match as one step of the history, and selects the next one.
 * @param {SearchQuery} query
 * @param {string} replacement
 */
export function replaceFound(query, replacement) {
  if (refresh(query) && selectedMatch() >= 0) {
    history.step('replace', () => {
      resolveAll();
      refresh(query);
      const match = matches[selectedMatch()];
      if (match) putAndFollow(match, replacementFor(match, replacement, query));
    });
  }
  return find(query, 'next');
}

/**
 * Replaces all matches as one step of the history.
 * @param {SearchQuery} query
 * @param {string} replacement
 * @returns {SearchAnswer}
 */
export function replaceAll(query, replacement) {
  let replaced = 0;
  if (refresh(query) && matches.length) {
    history.step('replaceAll', () => {
      resolveAll();
      refresh(query);
      replaced = matches.length;
      // From the end on: what is replaced moves nothing before it.
      for (const match of matches.reverse()) put(match, replacementFor(match, replacement, query));
    });
  }
  return { ...find(query, 'stay'), replaced };
}

/** Ends a search: nothing is marked any more. */
export function endFind() {
  observer.disconnect();
  scope = null;
  forget();
}

/** The selected text where it lies in one line; '' otherwise. */
export function selectedLine() {
  const text = selection.range() ? document.getSelection().toString() : '';
  return /[\r\n]/.test(text) ? '' : text.replace(/\s+/g, ' ');
}
