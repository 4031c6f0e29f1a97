// SPDX-License-Identifier: GPL-3.0-or-later
// @ts-check
// How many words and characters the page's text has.
import { placeIn, readLines } from './pageText.js';
import * as selection from '../page/selection.js';
import { signsIn } from '../page/signs.js';

// Template signs are read by nobody.
/** @param {string} text */
const withoutSigns = (text) => signsIn(text).reverse()
  .reduce((read, { start, end }) => read.slice(0, start) + read.slice(end), text);

/**
 * Words are those of Unicode's word boundaries (UAX #29, dictionaries for languages without
 * blanks); characters are code points, blanks between words included.
 * @param {string[]} lines
 * @returns {TextCount}
 */
function countIn(lines) {
  const segmenter = new Intl.Segmenter(undefined, { granularity: 'word' });
  const count = { words: 0, characters: 0 };
  for (const line of lines) {
    const text = withoutSigns(line).trim();
    count.characters += [...text].length;
    for (const { isWordLike } of segmenter.segment(text)) if (isWordLike) count.words += 1;
  }
  return count;
}

/**
 * The counts of the page as it reads, and of what is selected of it where something is.
 * @returns {{ page: TextCount, selection: TextCount | null }}
 */
export function counts() {
  const lines = readLines();
  const page = countIn(lines.map(({ text }) => text));
  const selected = selection.range();
  if (!selected || selected.collapsed) return { page, selection: null };
  const [first, start] = placeIn(lines, selected.startContainer, selected.startOffset);
  const [last, end] = placeIn(lines, selected.endContainer, selected.endOffset);
  const parts = lines.slice(first, last + 1).map(({ text }, index) =>
    text.slice(index === 0 ? start : 0, first + index === last ? end : undefined));
  return { page, selection: countIn(parts) };
}
